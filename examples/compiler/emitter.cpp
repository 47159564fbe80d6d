#include "emitter.h"

#include "body.h"
#include "text.h"

namespace {

// The forms of one function, and the declarations that go before all of them.
struct Signature {
  const Function &function;

  std::string parameters(bool wide) const {
    std::string made;
    if (function.result.isTensor()) made = "MTensor **result";
    for (const auto &each : function.parameters)
      made += (made.empty() ? "" : ", ") + declared(each->type, wide) + nameInC(*each);
    return made.empty() ? "void" : made;
  }
  std::string head(const std::string &name, bool wide) const {
    const Type result = function.result;
    return "COMPILED " + (result.isScalar() ? typeInC(result.element, wide) : "void") + " " + name + "(" +
           parameters(wide) + ")";
  }
};

std::string declarations(const Function &function) {
  const Signature signature{function};
  const std::string &name = function.name;
  std::string made =
      signature.head(name + "_exact", false) + ";\n" + signature.head(name + "_wide", true) + ";\n";
  if (function.isPure()) made += signature.head(name + "_either", false) + ";\n";
  return made;
}

std::string form(const Function &function, bool wide) {
  std::string name = function.name + (wide ? "_wide" : "_exact");
  if (function.name.empty()) name = wide ? "overReals" : "overIntegers";
  return Signature{function}.head(name, wide) + " {\n" + bodyOf(function, wide) + "}\n\n";
}

// The frame of a call under a handler: what the handler runs comes first.
std::string frame(const Function &function) {
  std::string made = "struct " + function.name + "_call {\n  void (*run)(void *, void *);\n";
  if (function.result.isScalar()) made += "  " + typeInC(function.result.element, false) + " result;\n";
  if (function.result.isTensor()) made += "  MTensor **result;\n";
  for (const auto &each : function.parameters)
    made += "  " + declared(each->type, false) + nameInC(*each) + ";\n";
  return made + "};\n\n";
}

std::string arguments(const Function &function, const std::string &before) {
  std::string made;
  if (function.result.isTensor()) made = before + "result";
  for (const auto &each : function.parameters) made += (made.empty() ? "" : ", ") + before + nameInC(*each);
  return made;
}

std::string runner(const Function &function) {
  const std::string call = "struct " + function.name + "_call";
  return "COMPILED void " + function.name + "_run(void *argument, void *closure) {\n  " + call +
         " *call = *(" + call + " **)closure;\n  (void)argument;\n  (void)call;\n  " +
         (function.result.isScalar() ? "call->result = " : "") + function.name + "_exact(" +
         arguments(function, "call->") + ");\n}\n\n";
}

bool isWideTensor(const Variable &variable) {
  return variable.type.isTensor() && variable.type.element == kInteger;
}

// The second form runs on the arguments as reals, and its integers must fit after all.
std::string overReals(const Function &function) {
  std::string made, values;
  for (const auto &each : function.parameters) {
    const std::string name = nameInC(*each);
    std::string value = name;
    if (isWideTensor(*each)) {
      value = "wide_" + name;
      made += "  OWNED MTensor *" + value + " = NULL;\n  convertTensor(&" + value + ", " + name +
              ", TORVANE_TYPE_REAL);\n  if (failed())" + returnFrom(function, false) + "\n";
    } else if (each->type.element == kInteger)
      value = "(mreal)" + name;
    values += (values.empty() ? "" : ", ") + value;
  }
  const std::string call = function.name + "_wide(";
  if (function.result == Type{kInteger, 0}) return made + "  return narrow(" + call + values + "));\n";
  if (function.result.isScalar()) return made + "  return " + call + values + ");\n";
  if (!function.result.isTensor()) return made + "  " + call + values + ");\n";
  const std::string rest = (values.empty() ? "" : ", ") + values + ");\n";
  if (function.result.element != kInteger) return made + "  " + call + "result" + rest;
  return made + "  OWNED MTensor *wide = NULL;\n  " + call + "&wide" + rest +
         "  narrowTensor(result, wide);\n";
}

std::string wrapper(const Function &function) {
  const Type result = function.result;
  const std::string values = arguments(function, "");
  std::string initial = function.name + "_run";
  if (result.isScalar()) initial += result.element == kComplex ? ", {0, 0}" : ", 0";
  if (!values.empty()) initial += ", " + values;
  return frame(function) + runner(function) + Signature{function}.head(function.name + "_either", false) +
         " {\n  static bool noted;\n  struct " + function.name + "_call call = {" + initial +
         "}, *closure = &call;\n  if (cannotEnter())" + returnFrom(function, false) +
         "\n  const mint code = attempt(&closure);\n  if (code == 0) return" +
         (result.isScalar() ? " call.result" : "") + ";\n  if (!fallsBack(code, " + quotedInC(function.name) +
         ", &noted))" + returnFrom(function, false) + "\n" + overReals(function) + "}\n\n";
}

} // namespace

std::string emit(const Program &program, const std::string &file) {
  std::string made = "/* Compiled from " + commentInC(file) + ". */\n#include \"compiler/compiled.h\"\n\n";
  for (const auto &function : program.functions)
    if (!function->name.empty()) made += declarations(*function);
  made += program.functions.size() > 1 ? "\n" : "";
  for (const auto &function : program.functions) {
    made += form(*function, false) + form(*function, true);
    if (!function->name.empty() && function->isPure()) made += wrapper(*function);
  }
  return made +
         "mint TorvaneLibrary_entry(TorvaneLibraryData *record, int argc, char **argv) {\n  (void)argv;\n" +
         "  return runProgram(record, argc, " + quotedInC(file) + ", overIntegers, overReals);\n}\n";
}

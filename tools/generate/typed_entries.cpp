// The typed entries: for every row, both forms for each of the thirteen types (or all pairs of them); and
// the casts between the integer types.
#include "operators.h"

#include "scalar/operator_traits.h"

namespace generate {

using namespace torvane;

namespace {

struct ScalarType {
  std::string name;
  Type part; // of a complex: one of its two parts
  TypeClass typeClass;
  bool isPattern; // Real16, which travels as its bits
  unsigned bytes; // of a part
};

template <class T> Type partType() {
  using Part = RealPartOf<T>;
  const std::string width = std::to_string(8 * sizeof(Part));
  if constexpr (isHalf<T>)
    return {"uint16_t", "i16", "zeroext"};
  else if constexpr (isSame<Part, Real32>)
    return {"float", "float", ""};
  else if constexpr (isSame<Part, Real64>)
    return {"double", "double", ""};
  else
    return {(isSigned<T> ? "int" : "uint") + width + "_t", "i" + width,
            sizeof(Part) >= 4 ? ""
            : isSigned<T>     ? "signext"
                              : "zeroext"};
}

const ScalarType kScalarTypes[] = {
#define ROW(T) {#T, partType<T>(), kClass<T>, isHalf<T>, sizeof(RealPartOf<T>)},
    TORVANE_FOR_EACH_SCALAR(ROW)
#undef ROW
};

// ---- operands and results -----------------------------------------------------------------------

void addOperand(DerivedExport &entry, std::string &arguments, const ScalarType &type,
                const std::string &name) {
  auto &parameters = entry.signature.parameters;
  arguments += ", ";
  if (type.typeClass == TypeClass::complex) {
    parameters.push_back({type.part, name + "_re"});
    parameters.push_back({type.part, name + "_im"});
    arguments += type.name + "{" + name + "_re, " + name + "_im}";
  } else {
    parameters.push_back({type.part, name});
    arguments += type.isPattern ? "Real16{" + name + "}" : name;
  }
}

const ScalarType &realPartOf(const ScalarType &type) {
  if (type.typeClass != TypeClass::complex) return type;
  for (const ScalarType &candidate : kScalarTypes)
    if (candidate.typeClass == TypeClass::real && candidate.bytes == type.bytes) return candidate;
  return type;
}

// The type of a power: the base's for an integer exponent, else the wider floating one, complex if
// either is.
const ScalarType &powerType(const ScalarType &base, const ScalarType &exponent) {
  const auto floats = [](const ScalarType &t) {
    return t.typeClass == TypeClass::real || t.typeClass == TypeClass::complex;
  };
  if (!floats(exponent)) return base;
  const bool isComplex = base.typeClass == TypeClass::complex || exponent.typeClass == TypeClass::complex;
  const unsigned bytes = floats(base) && base.bytes > exponent.bytes ? base.bytes : exponent.bytes;
  for (const ScalarType &candidate : kScalarTypes)
    if (floats(candidate) && (candidate.typeClass == TypeClass::complex) == isComplex &&
        candidate.bytes == bytes)
      return candidate;
  return base; // a complex of two halves, which no pair asks for
}

bool yieldsWord(TypedResult rule, const ScalarType &type) {
  switch (rule) {
  case TypedResult::word:
    return true;
  case TypedResult::wordOfReal:
    return type.typeClass == TypeClass::real;
  case TypedResult::wordUnlessComplex:
    return type.typeClass != TypeClass::complex;
  case TypedResult::same:
  case TypedResult::realPart:
  case TypedResult::power:
    break;
  }
  return false;
}

// Sets the result's convention, by value or through leading pointers the first of which comes back, and the
// body by it. `functor` is that of the call with its form, `operands` has a comma before each.
void setResult(DerivedExport &entry, const ScalarType &type, const std::string &functor,
               const std::string &operands) {
  Signature &signature = entry.signature;
  const Type pointer = {type.part.c + " *", "ptr", ""};
  if (type.typeClass == TypeClass::complex) {
    signature.result = pointer;
    signature.parameters.insert(signature.parameters.begin(), {{pointer, "re"}, {pointer, "im"}});
    entry.definition = "return evaluateInto<" + functor + ">(ComplexPlace{re, im}" + operands + ");";
  } else if (type.isPattern) {
    signature.result = pointer;
    signature.parameters.insert(signature.parameters.begin(), {pointer, "result"});
    entry.definition = "return evaluateInto<" + functor + ">(HalfPlace{result}" + operands + ");";
  } else {
    signature.result = type.part;
    entry.definition = "return evaluate<" + functor + ">(" + operands.substr(2) + ");";
  }
}

const ScalarType kWordType = {"", kWord, TypeClass::signedInteger, false, 4};

struct Operand {
  const ScalarType *type;
  const char *name;
};

const ScalarType &resultType(TypedResult rule, const std::vector<Operand> &operands) {
  const ScalarType &type = *operands[0].type;
  if (yieldsWord(rule, type)) return kWordType;
  if (rule == TypedResult::realPart) return realPartOf(type);
  return rule == TypedResult::power ? powerType(type, *operands[1].type) : type;
}

DerivedExport makeEntry(const char *arity, const char *typed, TypedResult rule, bool checked,
                        const std::vector<Operand> &operands) {
  DerivedExport entry;
  entry.signature.family = "typed";
  entry.signature.name = std::string(checked ? "checked_" : "") + arity + "_" + typed;
  std::string arguments;
  for (const Operand &operand : operands) {
    entry.signature.name += "_" + operand.type->name;
    addOperand(entry, arguments, *operand.type, operand.name);
  }
  const std::string functor = std::string(arity) + "::" + typed + (checked ? ", Checked" : ", Plain");
  setResult(entry, resultType(rule, operands), functor, arguments);
  return entry;
}

// ---- comments -----------------------------------------------------------------------------------

std::string codes(Checks cell) {
  if (cell == checks::none) return "no test";
  if ((cell & checks::e17) != 0) return "code 17";
  std::string both, checkedOnly;
  const auto add = [](std::string &list, const char *code) {
    list += (list.empty() ? "" : ", ") + std::string(code);
  };
  if (cell & checks::e1) add(both, "1");
  if (cell & checks::e3) add(both, "3");
  if (cell & checks::e14) add(both, "14");
  if (cell & checks::e16) add(both, "16");
  if (cell & checks::c1) add(checkedOnly, "1");
  if (cell & checks::c69) add(checkedOnly, "6, 9");
  if (checkedOnly.empty()) return both;
  return both + (both.empty() ? "" : "; ") + "checked " + checkedOnly;
}

std::string comment(const char *typed, const char *meaning, const ClassChecks &cells) {
  std::string text = std::string("/* ") + typed + ": " + meaning + ".\n * Codes: ";
  if (cells.signedInteger == cells.unsignedInteger)
    text += "integers " + codes(cells.signedInteger);
  else
    text += "signed integers " + codes(cells.signedInteger) + " - unsigned " + codes(cells.unsignedInteger);
  return text + " - reals " + codes(cells.real) + " - complexes " + codes(cells.complex) + ". */";
}

// ---- rows ---------------------------------------------------------------------------------------

void addPair(ExportGroup &group, const BinaryRow &row, bool checked, const ScalarType &x,
             const ScalarType &y) {
  group.exports.push_back(makeEntry("binary", row.typed, row.result, checked, {{&x, "x"}, {&y, "y"}}));
}

ExportGroup unaryGroup(const UnaryRow &row) {
  ExportGroup group = {row.family, comment(row.typed, row.meaning, row.checks), {}};
  for (const bool checked : {false, true})
    for (const ScalarType &type : kScalarTypes)
      group.exports.push_back(makeEntry("unary", row.typed, row.result, checked, {{&type, "x"}}));
  return group;
}

ExportGroup binaryGroup(const BinaryRow &row) {
  ExportGroup group = {row.family, comment(row.typed, row.meaning, row.checks), {}};
  for (const bool checked : {false, true})
    for (const ScalarType &x : kScalarTypes) {
      if (row.pairs == Pairs::diagonal)
        addPair(group, row, checked, x, x);
      else
        for (const ScalarType &y : kScalarTypes) addPair(group, row, checked, x, y);
    }
  return group;
}

ExportGroup ternaryGroup(const TernaryRow &row) {
  ExportGroup group = {row.family, comment(row.typed, row.meaning, row.checks), {}};
  for (const bool checked : {false, true})
    for (const ScalarType &type : kScalarTypes)
      group.exports.push_back(
          makeEntry("ternary", row.typed, row.result, checked, {{&type, "a"}, {&type, "x"}, {&type, "y"}}));
  return group;
}

// ---- casts --------------------------------------------------------------------------------------

bool isIntegerType(const ScalarType &type) {
  return type.typeClass == TypeClass::signedInteger || type.typeClass == TypeClass::unsignedInteger;
}

DerivedExport makeCast(const ScalarType &from, const ScalarType &to) {
  DerivedExport cast;
  cast.signature = {"casts", "integer_safe_cast_" + from.name + "_" + to.name, to.part, {{from.part, "x"}}};
  cast.definition = "return evaluateCast<" + from.name + ", " + to.name + ">(x);";
  return cast;
}

ExportGroup castGroup() {
  ExportGroup group = {"casts",
                       "/* integer_safe_cast_<from>_<to>: x in the second type.\n"
                       " * Codes: 42 for a value outside that type, or equal to its most negative value. */",
                       {}};
  for (const ScalarType &from : kScalarTypes)
    for (const ScalarType &to : kScalarTypes)
      if (isIntegerType(from) && isIntegerType(to)) group.exports.push_back(makeCast(from, to));
  return group;
}

} // namespace

std::vector<ExportGroup> typedEntries() {
  std::vector<ExportGroup> groups;
  for (const UnaryRow &row : table::kUnary) groups.push_back(unaryGroup(row));
  for (const BinaryRow &row : table::kBinary) groups.push_back(binaryGroup(row));
  for (const TernaryRow &row : table::kTernary) groups.push_back(ternaryGroup(row));
  groups.push_back(castGroup());
  return groups;
}

} // namespace generate

// The headers scalars.h and machfuncs.h, and the translation units that define what they declare.
#include "files.h"

namespace generate {

using namespace torvane;

namespace {

// Where the bodies stand for a user of the installed headers; the build points the same name at src/.
constexpr const char *kBodyFolder = "detail/scalar/bodies/";

std::string header(const std::string &guard, const std::string &about,
                   const std::vector<ExportGroup> &groups) {
  std::string text = "/* " + about + "\n *\n * " + kGeneratedNote + " */\n#ifndef " + guard + "\n#define " +
                     guard + "\n\n#include \"types.h\"\n\nTORVANE_BEGIN_DECLARATIONS\n";
  for (const ExportGroup &group : groups) {
    text += "\n" + group.comment + "\n";
    for (const DerivedExport &one : group.exports) text += prototype(one.signature, "TORVANE_API ") + ";\n";
  }
  return text + "\nTORVANE_END_DECLARATIONS\n\n#endif\n";
}

std::string loopRecordOf(const std::string &family) {
  return static_cast<char>(family[0] - 'a' + 'A') + family.substr(1) + "Loops";
}

// In the unit of the exports: the loops of the level in force.
std::string loopsAccessor(const std::string &family) {
  const std::string record = "torvane_loops::" + loopRecordOf(family);
  return "\nstatic const " + record + " &loops() {\n  static constexpr const " + record +
         " *byLevel[kProcessorLevels] = TORVANE_LOOPS_BY_LEVEL(" + family +
         ");\n  return *byLevel[processorLevel()];\n}\n";
}

// For each family with levels the record of its loops, and the unit that fills it once a level.
void writeLoopFiles(Files &files, const std::vector<ExportGroup> &routines) {
  std::map<std::string, std::string> members, loops;
  for (const ExportGroup &group : routines)
    for (const DerivedExport &one : group.exports) {
      if (!hasLevels(group.family) || one.loop.empty()) continue;
      members[group.family] += "  " + one.loopRecord + " " + loopMember(one) + ";\n";
      loops[group.family] += "    ." + loopMember(one) + " = " + one.loop + ",\n";
    }
  for (const auto &[family, text] : members) {
    const std::string record = loopRecordOf(family), path = "src/elementwise/generated/" + family + "_loops";
    files[path + ".h"] = std::string("// ") + kGeneratedNote +
                         "\n#pragma once\n\n#include \"../levels.h\"\n#include \"../reduction_loops.h\"\n\nnamespace torvane_loops {\n\nstruct " +
                         record + " {\n" + text + "};\nextern const " + record + " " + family + "_baseline, " +
                         family + "_avx2, " + family + "_avx512;\n\n} // namespace torvane_loops\n";
    files[path + ".cpp"] = std::string("// ") + kGeneratedNote + "\n#include \"../kernel.h\"\n#include \"../reduction.h\"\n#include \"" +
                           family + "_loops.h\"\n#include \"../../scalar/bodies/" + family +
                           ".h\"\n\nusing namespace torvane;\n\nconst torvane_loops::" + record +
                           " torvane_loops::TORVANE_LOOPS_HERE(" + family + ") = {\n" + loops[family] + "};\n";
  }
}

// One translation unit a family: many small ones cost minutes of header reading.
void writeUnits(Files &files, const std::string &folder, const std::string &includes,
                const std::string &publicHeader, const std::vector<ExportGroup> &groups) {
  for (const ExportGroup &group : groups) {
    std::string &text = files[folder + "/generated/" + group.family + ".cpp"];
    const bool isAtLevels = publicHeader == "machfuncs.h" && hasLevels(group.family);
    const std::string loopsInclude = isAtLevels ? "#include \"" + group.family + "_loops.h\"\n" : "";
    const std::string accessor = isAtLevels ? loopsAccessor(group.family) : "";
    if (text.empty())
      text = std::string("// ") + kGeneratedNote + "\n" + includes + "#include \"../../scalar/bodies/" +
             group.family + ".h\"\n" + loopsInclude + "#include <torvane/" + publicHeader +
             ">\n\nusing namespace torvane;\n" + accessor;
    text += "\n";
    for (const DerivedExport &one : group.exports)
      text += prototype(one.signature, "") + " {\n  " + one.definition + "\n}\n";
  }
}

// The entries once more as inline functions of a namespace, over the very bodies that the library compiles.
void writeInlineHeader(Files &files, const std::vector<ExportGroup> &entries) {
  std::string text = std::string("// The typed entries as inline functions, for C++20: torvane::inlined::<name> is the export <name>.\n"
                                 "// A failing one still raises through the library. To give the export's values to the bit, compile\n"
                                 "// with -ffp-contract=off: a fused product is not rounded.\n//\n// ") +
                     kGeneratedNote +
                     "\n#ifndef TORVANE_SCALARS_INLINE_HPP\n#define TORVANE_SCALARS_INLINE_HPP\n\n";
  std::string family;
  for (const ExportGroup &group : entries)
    if (group.family != family) text += "#include \"" + std::string(kBodyFolder) + (family = group.family) + ".h\"\n";
  text += "\nnamespace torvane::inlined {\n\n";
  for (const ExportGroup &group : entries)
    for (const DerivedExport &one : group.exports)
      text += prototype(one.signature, "inline ") + " {\n  " + one.definition + "\n}\n";
  files["include/torvane/scalars_inline.hpp"] = text + "\n} // namespace torvane::inlined\n\n#endif\n";
}

} // namespace

void writeScalarFiles(Files &files, const std::vector<ExportGroup> &entries) {
  files["include/torvane/scalars.h"] = header(
      "TORVANE_SCALARS_H",
      "The typed entries: every scalar operator over thirteen element types, plain and checked.\n"
      " *\n * Integers, Real32 and Real64 pass and return by value. Real16 passes as its 16-bit pattern and\n"
      " * comes back through a leading pointer, which is also returned. Complexes pass as (re, im) and come\n"
      " * back through leading pointers to the two parts, the first of which is returned. Results may share\n"
      " * storage with nothing. A failing entry raises its code (failure.h) and stores nothing; in style 1 it\n"
      " * returns an arbitrary value, or its first pointer. Codes before a semicolon are raised by both forms;\n"
      " * codes 1 of checked forms stand for a result outside its integer type or equal to the most negative\n"
      " * value, 6 and 9 for an infinite and a NaN result. All entries are pure and may be called from any\n"
      " * thread. Compilers that inline them find the same entries in scalars_inline.hpp (C++20) and, as LLVM\n"
      " * bitcode, in torvane_scalars.bc.",
      entries);
  writeUnits(files, "src/scalar", "", "scalars.h", entries);
  writeInlineHeader(files, entries);
}

void writeRoutineFiles(Files &files, const std::vector<ExportGroup> &routines) {
  files["include/torvane/machfuncs.h"] = header(
      "TORVANE_MACHFUNCS_H",
      "The vector routines: an operator over runs of elements of kinds i (mint), d (mreal), c (mcomplex).\n"
      " *\n * `strides` counts elements, the result's first, then each operand's; 0 repeats one element and "
      "a\n"
      " * negative stride walks down. Flags: 2 checks real and complex results, 4 integer ones. Returns 0, "
      "or\n"
      " * one plus the position of the first failing element, before which all are written; a checked real\n"
      " * or complex routine that is not in place tests in bulk and returns 1. The result may be the first\n"
      " * operand. Nothing is raised. A count below 1 does nothing.\n"
      " *\n * Reductions store into one accumulator, whose stride is not read and whose content does not count.\n"
      " * A checked total fails at the first running sum that is out of range, infinite or a NaN; of a long\n"
      " * run, each worker sums a piece. A checked dot fails at the first product out of range; its sum is\n"
      " * tested at each of up to 7 elements, of more at the last one only. An extreme fails only if it is the\n"
      " * most negative word, where that first occurs.",
      routines);
  writeUnits(files, "src/elementwise",
             "#include \"../drivers.h\"\n#include \"../kernel.h\"\n#include \"../reduction.h\"\n#include "
             "\"../reduction_driver.h\"\n",
             "machfuncs.h", routines);
  writeLoopFiles(files, routines);
}

namespace {

std::string tableRow(mint number, const std::vector<std::string> &names) {
  std::string text = "    /* " + std::to_string(number) + " */ ";
  for (const std::string &name : names) text += (name.empty() ? "nullptr" : name) + ", ";
  text.pop_back();
  return text + "\n";
}

} // namespace

void writeOperatorTables(Files &files) {
  std::string text =
      std::string("// ") + kGeneratedNote +
      "\n// Plain arrays, which compiled code indexes by operator number and kind.\n"
      "#include <torvane/machfuncs.h>\n#include <torvane/operators.h>\n\n// clang-format off\n";
  text += "const TorvaneUnaryRoutine machfunsarray_1[85 * 3] = {\n";
  for (mint number = 0; number < 85; ++number) {
    std::vector<std::string> names(3);
    const auto enter = [&](const auto &row, auto nameOf) {
      for (int column = 0; row.number == number && column < 3; ++column)
        names[static_cast<size_t>(column)] = nameOf(row, column);
    };
    for (const UnaryRow &row : table::kUnary) enter(row, unaryRoutineName);
    for (const AliasRow &row : table::kAliases) enter(row, aliasRoutineName);
    for (const BoundRow &row : table::kBound)
      if (row.number == number) names[0] = boundRoutineName(row);
    text += tableRow(number, names);
  }
  text += "};\n\nconst TorvaneBinaryRoutine machfunsarray_2[22 * 9] = {\n";
  for (mint number = 256; number < 278; ++number) {
    std::vector<std::string> names(9);
    for (const BinaryRow &row : table::kBinary)
      for (int column = 0; row.number == number && column < 9; ++column)
        names[static_cast<size_t>(column)] = binaryRoutineName(row, column);
    text += tableRow(number, names);
  }
  files["src/elementwise/generated/operator_tables.cpp"] = text + "};\n// clang-format on\n";
}

} // namespace generate

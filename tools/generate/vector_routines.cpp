// The vector routines: for every row and kind column one export, machfunc_<kinds>_<operator>.
#include "operators.h"

namespace generate {

using namespace torvane;

namespace {

const char kKindLetter[] = {'i', 'd', 'c'};
const char *const kKindType[] = {"mint", "mreal", "ComplexReal64"};

std::string listed(std::initializer_list<std::string> items) {
  std::string text;
  for (const std::string &item : items) text += (text.empty() ? "" : ", ") + item;
  return text;
}

DerivedExport makeRoutine(const std::string &name, const std::string &shell,
                          std::vector<std::string> operands) {
  DerivedExport routine;
  routine.signature = {"machfunc", name, kWord, {{kPointer, "result"}}};
  std::string arguments = "result";
  for (const std::string &operand : operands) {
    routine.signature.parameters.push_back({kConstPointer, operand});
    arguments += ", " + operand;
  }
  const Type strides = {"const mint *", "ptr", ""};
  routine.signature.parameters.insert(routine.signature.parameters.end(),
                                      {{kWord, "count"}, {strides, "strides"}, {kWord, "flags"}});
  routine.definition = "return " + shell + "(" + arguments + ", count, strides, flags);";
  return routine;
}

// A routine that hands its loop to the driver of its arity: the loop of the level in force, or the only one.
DerivedExport makeDriven(const std::string &family, const std::string &name, const std::string &arity,
                         const std::string &loop, std::vector<std::string> operands) {
  DerivedExport routine = makeRoutine(name, "drive" + arity, operands);
  routine.loopRecord = arity + "Loop";
  routine.loop = loop;
  const std::string first = hasLevels(family) ? "loops()." + loopMember(routine) : loop;
  routine.definition.replace(routine.definition.find("(result"), 1, "(" + first + ", ");
  return routine;
}

ExportGroup unaryGroup(const UnaryRow &row) {
  ExportGroup group = {row.family, std::string("/* ") + row.vector + ": " + row.meaning + ". */", {}};
  for (int column = 0; column < 3; ++column) {
    const std::string name = unaryRoutineName(row, column);
    if (name.empty()) continue;
    const std::string functor = std::string("unary::") + row.typed;
    group.exports.push_back(makeDriven(row.family, name, "Unary",
                                       "kUnaryLoop<" + listed({functor, kKindType[column]}) + ">", {"x"}));
  }
  return group;
}

ExportGroup binaryGroup(const BinaryRow &row) {
  ExportGroup group = {row.family, std::string("/* ") + row.vector + ": " + row.meaning + ". */", {}};
  for (int column = 0; column < 9; ++column) {
    const std::string name = binaryRoutineName(row, column);
    if (name.empty()) continue;
    const std::string types =
        listed({std::string("binary::") + row.typed, kKindType[column / 3], kKindType[column % 3]});
    group.exports.push_back(
        makeDriven(row.family, name, "Binary", "kBinaryLoop<" + types + ">", {"x", "y"}));
  }
  return group;
}

ExportGroup boundGroup(const BoundRow &row) {
  const std::string operand = std::to_string(row.operand), functor = std::string("binary::") + row.typed;
  ExportGroup group = {
      row.family, std::string("/* ") + row.vector + " with " + operand + " as second operand. */", {}};
  const std::string loop = "kBoundLoop<" + listed({functor, kKindType[0], operand}) + ">";
  group.exports.push_back(makeDriven(row.family, boundRoutineName(row), "Unary", loop, {"x"}));
  return group;
}

ExportGroup ternaryGroup(const TernaryRow &row) {
  ExportGroup group = {row.family, std::string("/* ") + row.typed + ": " + row.meaning + ". */", {}};
  for (int kind = 0; kind < 3; ++kind) {
    if ((row.columns >> kind & 1) == 0) continue;
    const std::string name = "machfunc_" + std::string(3, kKindLetter[kind]) + "_" + row.typed;
    const std::string functor = std::string("ternary::") + row.typed;
    group.exports.push_back(makeDriven(row.family, name, "Ternary",
                                       "kTernaryLoop<" + listed({functor, kKindType[kind]}) + ">",
                                       {"a", "x", "y"}));
  }
  return group;
}

const Type &accumulatorType(const ReductionRow &row, size_t kind) {
  static const Type types[] = {{"mint *", "ptr", ""}, {"mreal *", "ptr", ""}, {"mcomplex *", "ptr", ""}};
  if (row.accumulator == TypedResult::word) return types[0];
  return types[row.accumulator == TypedResult::realPart && kind == 2 ? 1 : kind];
}

ExportGroup reductionGroup(const ReductionRow &row) {
  ExportGroup group = {row.family, std::string("/* ") + row.vector + ": " + row.meaning + ". */", {}};
  const char *const operandTypes[] = {"const mint *", "const mreal *", "const mcomplex *"};
  for (size_t kind = 0; kind < 3; ++kind) {
    if ((row.columns >> kind & 1) == 0) continue;
    const bool isPair = row.operands == 2;
    const std::string name =
        "machfunc_" + std::string(static_cast<size_t>(row.operands), kKindLetter[kind]) + "_" + row.vector;
    const std::string arity = isPair ? "PairReduction" : "Reduction";
    const std::string loop =
        "k" + arity + "Loop<" + listed({std::string("reduction::") + row.vector, kKindType[kind]}) + ">";
    DerivedExport routine = isPair ? makeDriven(row.family, name, arity, loop, {"x", "y"})
                                   : makeDriven(row.family, name, arity, loop, {"data"});
    routine.signature.parameters[0] = {accumulatorType(row, kind), "accumulator"};
    for (size_t k = 1; k <= static_cast<size_t>(row.operands); ++k)
      routine.signature.parameters[k].type = {operandTypes[kind], "ptr", ""};
    routine.definition.replace(routine.definition.find(", result"), 8, ", accumulator");
    group.exports.push_back(routine);
  }
  return group;
}

} // namespace

// The families whose loops a compiler turns into vectors. The others spend their time in the C library.
bool hasLevels(const std::string &family) {
  for (const char *one : {"arithmetic", "bits", "comparison", "parts", "roots", "rounding"})
    if (family == one) return true;
  return false;
}

std::string loopMember(const DerivedExport &routine) {
  return routine.signature.name.substr(std::string("machfunc_").size());
}

std::string unaryRoutineName(const UnaryRow &row, int column) {
  if ((row.columns >> column & 1) == 0) return "";
  return std::string("machfunc_") + kKindLetter[column] + "_" + row.vector;
}

std::string aliasRoutineName(const AliasRow &row, int column) {
  if ((row.columns >> column & 1) == 0) return "";
  return std::string("machfunc_") + kKindLetter[column] + "_" + row.vector;
}

std::string boundRoutineName(const BoundRow &row) { return std::string("machfunc_i_") + row.vector; }

std::string binaryRoutineName(const BinaryRow &row, int column) {
  if ((row.columns >> column & 1) == 0) return "";
  return std::string("machfunc_") + kKindLetter[column / 3] + kKindLetter[column % 3] + "_" + row.vector;
}

std::vector<ExportGroup> vectorRoutines() {
  std::vector<ExportGroup> groups;
  for (const UnaryRow &row : table::kUnary) groups.push_back(unaryGroup(row));
  for (const BoundRow &row : table::kBound) groups.push_back(boundGroup(row));
  for (const BinaryRow &row : table::kBinary) groups.push_back(binaryGroup(row));
  for (const TernaryRow &row : table::kTernary) groups.push_back(ternaryGroup(row));
  for (const ReductionRow &row : table::kReductions) groups.push_back(reductionGroup(row));
  return groups;
}

} // namespace generate

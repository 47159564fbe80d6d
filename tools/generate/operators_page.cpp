// docs/operators.md: the operators by number, as a compiler writer looks them up.
#include "files.h"

#include "scalar/operator_table.h"

#include <map>

namespace generate {

namespace {

using namespace torvane;

// Every routine of a row is called machfunc_<kinds>_<operator>.
std::string kindsOf(const std::string &routine) {
  const size_t from = routine.find('_') + 1;
  return routine.substr(from, routine.find('_', from) - from);
}

template <class Row, class NameOf> std::string listedKinds(const Row &row, int columns, NameOf nameOf) {
  std::string kinds;
  for (int column = 0; column < columns; ++column) {
    const std::string name = nameOf(row, column);
    if (!name.empty()) kinds += (kinds.empty() ? "" : ", ") + kindsOf(name);
  }
  return kinds;
}

std::string line(mint number, const std::string &entry, const std::string &routine, const std::string &kinds,
                 const std::string &meaning) {
  return "| " + (number == 0 ? std::string() : std::to_string(number)) + " | " + entry + " | " +
         (kinds.empty() ? "" : "`" + routine + "`: " + kinds) + " | " + meaning + " |\n";
}

// Rows by number; those without one come last, in the table's order.
class NumberedLines {
public:
  void add(mint number, const std::string &text) { (number == 0 ? rest : byNumber[number]) += text; }
  std::string text() const {
    std::string all;
    for (const auto &[number, lines] : byNumber) all += lines;
    return all + rest;
  }

private:
  std::map<mint, std::string> byNumber;
  std::string rest;
};

std::string typedName(const char *arity, const char *name) { return std::string("`") + arity + name + "`"; }

std::string unaryLines() {
  NumberedLines lines;
  for (const UnaryRow &row : table::kUnary)
    lines.add(row.number, line(row.number, typedName("unary_", row.typed), row.vector,
                               listedKinds(row, 3, unaryRoutineName), row.meaning));
  for (const AliasRow &row : table::kAliases)
    lines.add(row.number,
              line(row.number, "", row.vector, listedKinds(row, 3, aliasRoutineName),
                   "the same routine by a second number, whose result types leave out complexes"));
  for (const BoundRow &row : table::kBound)
    lines.add(row.number, line(row.number, "", row.vector, "i",
                               "`" + std::string(row.typed) + "` with " + std::to_string(row.operand) +
                                   " as second operand"));
  return lines.text();
}

std::string binaryLines() {
  NumberedLines lines;
  for (const BinaryRow &row : table::kBinary)
    lines.add(row.number, line(row.number, typedName("binary_", row.typed), row.vector,
                               listedKinds(row, 9, binaryRoutineName), row.meaning));
  return lines.text();
}

const char *const kPreface = R"(# Operators by number

<!-- Generated from src/scalar/operators.def by tools/generate; not to be edited. -->

For those who write compilers: the numbers that `MTensorMathUnary`, `MTensorMathBinary`, `ReturnType1`, `ReturnType2` and the tables
`machfunsarray_1` and `machfunsarray_2` take, and the names behind them. [calling.md](calling.md) tells which to call.

- *Entry* is the stem of the typed entries: an element type for each operand follows, as in `unary_sqrt_Real64` and
  `binary_plus_Integer32_Integer32`, and `checked_` may precede. `torvane/scalars.h` says for each what it raises, and for
  which types it is not defined (code 17, always).
- *Routine* is the vector routine and the kinds of operands it exists for: `i` for `mint`, `d` for `mreal`, `c` for
  `mcomplex`; so `sqrt`: d, c are `machfunc_d_sqrt` and `machfunc_c_sqrt`.
- An operator without a number has typed entries only.
)";

const char *const kHeading = "| Number | Entry | Routine | Result |\n|---|---|---|---|\n";

} // namespace

void writeOperatorsPage(Files &files) {
  files["docs/operators.md"] = std::string(kPreface) + "\n## Of one operand\n\n" + kHeading + unaryLines() +
                               "\n## Of two operands\n\n" + kHeading + binaryLines();
}

} // namespace generate

// Which operator checks what: every cell of the table, for all thirteen types, both forms, over samples that
// reach the edges of each type.
//
// Of every call: the plain form raises only what both forms raise; the checked form raises what the plain one
// does, else what the cell adds for the value; without a code both forms agree to the bit. Of every cell:
// each of its codes is met, and so is success.
#include "typed_cells.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

// ---- cells ----------------------------------------------------------------------------------------

std::set<mint> codesOfBoth(Checks cell) {
  std::set<mint> codes;
  if (cell & checks::e1) codes.insert(1);
  if (cell & checks::e3) codes.insert(3);
  if (cell & checks::e14) codes.insert(14);
  if (cell & checks::e16) codes.insert(16);
  if (cell & checks::e17) codes.insert(17);
  return codes;
}

class Cell {
public:
  Cell(std::string entryName, Checks cell)
      : name(std::move(entryName)), checks(cell), both(codesOfBoth(cell)) {}

  void meet(const Called &plain, const Called &checked) {
    seen.insert({plain.code, checked.code});
    ASSERT_TRUE(plain.code == 0 || both.count(plain.code)) << name << " plain raises " << plain.code;
    if (plain.code != 0) {
      ASSERT_EQ(checked.code, plain.code) << name;
    } else if (checked.code != 0) {
      const bool overflow = checked.code == 1 && (checks & torvane::checks::c1);
      const bool value =
          (checks & torvane::checks::c69) && (checked.code == plain.valueCode || plain.valueCode == 0);
      ASSERT_TRUE(overflow || value) << name << " checked raises " << checked.code;
    } else {
      ASSERT_TRUE(plain.bytes == checked.bytes || plain.valueCode == 9 || formsDiffer()) << name;
      ASSERT_TRUE((checks & torvane::checks::c69) == 0 || plain.valueCode == 0)
          << name << " passes a bad value";
    }
  }

  // Which of the cell's codes no sample has met.
  std::set<mint> missing() const {
    std::set<mint> codes = both;
    if (checks & torvane::checks::c1) codes.insert(1);
    if (checks & torvane::checks::c69) codes.insert({6, 9});
    if ((checks & torvane::checks::e17) == 0) codes.insert(0);
    for (const auto &[plain, checked] : seen) codes.erase(checked);
    return codes;
  }

  std::string name;

private:
  // The test of a value tells in its checked form what its plain form does not look at.
  bool formsDiffer() const { return name.starts_with("unary_fpexception_"); }

  Checks checks;
  std::set<mint> both;
  std::set<std::pair<mint, mint>> seen;
};

// Whether no value of the type brings about a code that the cell lists.
bool isOutOfReach(const std::string &name, mint code);

void expectMet(const Cell &cell) {
  for (const mint code : cell.missing())
    EXPECT_TRUE(isOutOfReach(cell.name, code)) << cell.name << " never gives " << code;
}

Cell meetAll(const TypedCell &typed) {
  Cell cell(typed.plain.name, typed.checks);
  forEachSample(typed, [&](const Operands &operands) {
    if (!testing::Test::HasFatalFailure())
      cell.meet(call(typed.plain, operands), call(typed.checked, operands));
  });
  return cell;
}

void expectMet(std::span<const TypedCell> cells) {
  for (const TypedCell &cell : cells) expectMet(meetAll(cell));
}

TEST(Checks, OfEveryUnaryCellAreMetAndNoOthers) { expectMet(unaryCells()); }
TEST(Checks, OfEveryBinaryCellAreMetAndNoOthers) { expectMet(binaryCells()); }
TEST(Checks, OfEveryTernaryCellAreMetAndNoOthers) { expectMet(ternaryCells()); }

// Powers of two types stand in the cell of their result, whose codes not every pair brings about.
TEST(Checks, OfEveryPairOfAPowerAreThoseOfItsResult) {
  for (const TypedCell &cell : powerCells()) meetAll(cell);
}

// One row of the table of checks stands for a group of functions. Not each of them has a point outside its
// domain, divides by what can be exactly zero, or can leave a bounded range; the codes that a function cannot
// bring about are listed, so that every other one must be met.
struct OutOfReach {
  const char *typeClass;
  mint code;
  std::set<std::string> names;
};

const std::vector<OutOfReach> kOutOfReach = {
    // No point of the plane is refused: every root, arc and area function but those with poles is entire
    // there.
    {"_ComplexReal",
     14,
     {"unary_sqrt", "unary_acos", "unary_acosh", "unary_acsc", "unary_acsch", "unary_asec", "unary_asech",
      "unary_asin", "unary_asinh", "unary_gudermannian", "unary_inversegudermannian",
      "unary_inversehaversine"}},
    // Nothing is divided by, or nothing that a representable number makes exactly zero.
    {"_ComplexReal",
     16,
     {"unary_sqrt",
      "unary_acos",
      "unary_acosh",
      "unary_asin",
      "unary_asinh",
      "unary_atan",
      "unary_atanh",
      "unary_fibonacci",
      "unary_lucasl",
      "unary_gudermannian",
      "unary_inversegudermannian",
      "unary_inversehaversine",
      "unary_log",
      "unary_log1p",
      "unary_logistic",
      "unary_rsqrt",
      "unary_sec",
      "unary_sech",
      "unary_sinc",
      "binary_pow",
      "binary_mod"}},
    // The poles are no representable numbers, or are refused before a value is made.
    {"_ComplexReal",
     6,
     {"unary_acot", "unary_acoth", "unary_atan", "unary_atanh", "unary_gudermannian",
      "unary_inversegudermannian", "unary_logistic", "unary_rsqrt", "unary_sec", "unary_sech", "unary_tan",
      "unary_tanh", "binary_atan2", "binary_mod"}},
    // Bounded, or with poles that are no representable numbers.
    {"_Real",
     6,
     {"unary_acos", "unary_acot", "unary_acsc", "unary_asec", "unary_asech", "unary_asin", "unary_atan",
      "unary_gudermannian", "unary_haversine", "unary_inversegudermannian", "unary_inversehaversine",
      "unary_logistic", "unary_sec", "unary_sech", "unary_sinc", "unary_tan", "unary_tanh"}},
};

bool isOutOfReach(const std::string &name, mint code) {
  for (const OutOfReach &group : kOutOfReach) {
    const size_t type = name.find(group.typeClass);
    if (type != std::string::npos && group.code == code && group.names.count(name.substr(0, type)) != 0)
      return true;
  }
  return false;
}

} // namespace

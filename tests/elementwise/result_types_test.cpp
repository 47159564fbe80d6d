// The result-type functions over every operator number and kind, against lists of numbers that owe nothing to
// the rows of the table.
#include <algorithm>
#include <gtest/gtest.h>
#include <torvane/operators.h>
#include <string>

namespace {

using Numbers = std::initializer_list<mint>;
bool isOneOf(Numbers numbers, mint number) {
  return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

struct Range {
  mint type, flag;
  bool operator==(const Range &) const = default;
};
Range rangeOf(mint op, mint kind) {
  Range range = {0, 42};
  range.type = ReturnRangeType1(op, kind, &range.flag);
  return range;
}

const Numbers kAnalytic = {1,  2,  3,  5,  6,  7,  9,  10, 11, 13, 14, 15, 17, 18, 19, 21, 22, 23, 25,
                           26, 27, 29, 30, 31, 32, 33, 34, 35, 57, 59, 60, 67, 70, 71, 72, 73, 80};
const Numbers kKeepsItsKind = {36, 37, 40, 43, 52, 56, 68, 69, 79};
const Numbers kModulusLike = {38, 39, 42, 82};
const Numbers kTruths = {45, 46, 47, 48, 54, 55, 66};
const Numbers kRoundings = {49, 50, 51, 53};
const Numbers kRealOnly = {58, 74, 75, 77};
const Numbers kIntegerOnly = {62, 63, 64, 65};
const Numbers kNoComplex = {76, 81, 83};

mint expectedType(mint op, mint k) {
  if (isOneOf(kAnalytic, op)) return k == 2 ? 0 : k;
  if (isOneOf(kKeepsItsKind, op)) return k;
  if (isOneOf(kModulusLike, op)) return k == 4 ? 3 : k;
  if (op == 41) return k == 4 ? 3 : 2;
  if (op == 44) return k == 3 ? 2 : k;
  if (isOneOf(kTruths, op)) return k == 4 ? 0 : 2;
  if (isOneOf(kRoundings, op)) return k == 3 ? 2 : 0;
  if (isOneOf(kRealOnly, op)) return k == 3 ? 3 : 0;
  if (isOneOf(kIntegerOnly, op)) return k == 2 ? 2 : 0;
  if (isOneOf(kNoComplex, op)) return k == 4 ? 0 : k;
  if (op == 78) return 2;
  if (op == 84) return k == 4 ? 0 : 2;
  return 0;
}

Range expectedRange(mint op, mint k) {
  const Numbers stays = {1, 2, 3, 5, 6, 7, 9, 10, 11, 13, 14, 15, 19, 23, 25, 29, 32, 33, 60, 67, 72, 80};
  const Numbers leaves = {17, 18, 21, 22, 26, 27, 30, 31, 34, 35, 57, 59, 70, 71, 73};
  if (isOneOf(stays, op)) return {k == 2 ? 7 : k, 0};
  if (isOneOf(leaves, op)) return {k == 2 ? 7 : 4, 0};
  if (op == 36 || op == 37) return {k == 2 ? 2 : 4, 0};
  if (op == 38 || op == 42 || op == 82) return {k == 4 ? 3 : k, 0};
  if (op == 39 || op == 41) return {k == 4 ? 3 : 2, 0};
  if (isOneOf({40, 43, 52, 56, 68, 69, 79}, op)) return {k, 0};
  if (op == 44) return {k == 3 ? 2 : k, 0};
  if (isOneOf({45, 46, 47, 48, 54, 55}, op)) return k == 4 ? Range{7, 0} : Range{1, 1};
  if (isOneOf(kRoundings, op)) return {k == 4 ? 7 : k == 2 ? -1 : 2, 0};
  if (isOneOf(kRealOnly, op)) return {k == 3 ? 3 : 7, 0};
  if (isOneOf(kIntegerOnly, op)) return {k == 2 ? 2 : 7, 0};
  if (op == 66 || op == 84) return {k == 4 ? 7 : 2, 0};
  if (isOneOf(kNoComplex, op)) return {k == 4 ? 7 : k, 0};
  if (op == 78) return {2, 0};
  return {7, 0};
}

TEST(ResultTypes, OfEveryUnaryNumber) {
  for (mint op = -2; op <= 90; ++op)
    for (mint kind = 2; kind <= 4; ++kind) {
      EXPECT_EQ(ReturnType1(op, kind), expectedType(op, kind)) << op << " of " << kind;
      EXPECT_EQ(rangeOf(op, kind), expectedRange(op, kind)) << op << " of " << kind;
    }
}

struct PairExpectation {
  mint plain, range;
};

PairExpectation expectedPair(mint op, mint x, mint y) {
  const mint m = std::max(x, y);
  const PairExpectation undefined = {0, 7};
  const auto both = [](mint kind) { return PairExpectation{kind, kind}; };
  const bool integers = x == 2 && y == 2;
  switch (op) {
  case 257: case 258: case 259: case 261: return both(m);
  case 260: case 265: return m != 2 ? both(m) : undefined;
  case 262: return m == 4 ? undefined : both(2);
  case 263: return y == 2 ? both(x) : PairExpectation{m, 4};
  case 264: return m != 2 ? PairExpectation{m, 4} : undefined;
  case 266: case 267: case 268: case 273: case 274: return integers ? both(2) : undefined;
  case 269: return y == 3 && x != 2 ? both(x) : undefined;
  case 270: return both(integers ? 2 : 3);
  case 271: return integers ? undefined : both(3);
  case 272: return x != y ? undefined : both(integers ? 2 : 3);
  case 275: case 276: return y == 2 ? both(x) : undefined;
  case 277: return both(2);
  default: return undefined;
  }
}

TEST(ResultTypes, OfEveryBinaryNumber) {
  for (mint op = 250; op <= 285; ++op)
    for (mint x = 2; x <= 4; ++x)
      for (mint y = 2; y <= 4; ++y) {
        EXPECT_EQ(ReturnType2(op, x, y), expectedPair(op, x, y).plain) << op << " of " << x << ", " << y;
        EXPECT_EQ(ReturnRangeType2(op, x, y), expectedPair(op, x, y).range) << op << " of " << x << ", " << y;
      }
}

TEST(ResultTypes, OfNumbersFarOutside) {
  for (const mint op : {INT32_MIN, -1, 1 << 20, INT32_MAX}) {
    EXPECT_EQ(ReturnType1(op, 3), 0);
    EXPECT_EQ(rangeOf(op, 3), (Range{7, 0}));
    EXPECT_EQ(ReturnType2(op, 3, 3), 0);
    EXPECT_EQ(ReturnRangeType2(op, 3, 3), 7);
  }
}

// The kinds of operands for which the exported tables hold a routine, by the letters of the catalogue.
TEST(OperatorTables, HaveRoutinesForTheKindsOfTheCatalogue) {
  const auto kindsOf = [](mint op) -> std::string {
    if (isOneOf(kAnalytic, op)) return "-dc";
    if (isOneOf({36, 37, 38, 39, 40, 41, 42, 43, 44, 52, 56, 68, 69, 78, 79, 82}, op)) return "idc";
    if (isOneOf({45, 46, 47, 48, 49, 50, 51, 53, 54, 55, 66, 76, 81, 83, 84}, op)) return "id-";
    if (isOneOf(kRealOnly, op)) return "-d-";
    return isOneOf(kIntegerOnly, op) ? "i--" : "---";
  };
  for (mint op = 0; op < 85; ++op)
    for (size_t k = 0; k < 3; ++k)
      EXPECT_EQ(machfunsarray_1[3 * op + mint(k)] != nullptr, kindsOf(op)[k] != '-') << op;
  const auto pairsOf = [](mint op) -> std::string { // ii id ic di dd dc ci cd cc
    switch (op) {
    case 257: case 258: case 259: case 261: case 263: case 270: return "111111111";
    case 260: case 264: case 265: case 271: return "011111111";
    case 262: return "110110000";
    case 266: case 267: case 268: case 273: case 274: return "100000000";
    case 269: return "000010010";
    case 272: return "100010001";
    case 275: case 276: return "100100100";
    case 277: return "100010010";
    default: return "000000000";
    }
  };
  for (mint op = 256; op < 278; ++op)
    for (size_t k = 0; k < 9; ++k)
      EXPECT_EQ(machfunsarray_2[9 * (op - 256) + mint(k)] != nullptr, pairsOf(op)[k] == '1') << op << " " << k;
}

// The second numbers stand for the very routines of the first.
TEST(OperatorTables, SecondNumbersShareTheirRoutines) {
  for (mint k = 0; k < 2; ++k) {
    EXPECT_EQ(machfunsarray_1[3 * 66 + k], machfunsarray_1[3 * 48 + k]);
    EXPECT_EQ(machfunsarray_1[3 * 83 + k], machfunsarray_1[3 * 38 + k]);
    EXPECT_EQ(machfunsarray_1[3 * 84 + k], machfunsarray_1[3 * 44 + k]);
  }
}

} // namespace

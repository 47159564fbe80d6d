// The result-type functions for the operators that stand, and for numbers that are not operators.
#include <gtest/gtest.h>
#include <torvane/operators.h>

namespace {

struct Range {
  mint type, flag;
  bool operator==(const Range &) const = default;
};
Range rangeOf(mint op, mint kind) {
  Range range = {0, 42};
  range.type = ReturnRangeType1(op, kind, &range.flag);
  return range;
}

TEST(ResultTypes, OfUnaryOperators) {
  for (mint kind = 2; kind <= 4; ++kind) {
    EXPECT_EQ(ReturnType1(43, kind), kind); // minus
    EXPECT_EQ(ReturnType1(56, kind), kind); // square
    EXPECT_EQ(rangeOf(43, kind), (Range{kind, 0}));
    EXPECT_EQ(rangeOf(56, kind), (Range{kind, 0}));
  }
  EXPECT_EQ(ReturnType1(57, 2), 0); // sqrt
  EXPECT_EQ(ReturnType1(57, 3), 3);
  EXPECT_EQ(ReturnType1(57, 4), 4);
  EXPECT_EQ(rangeOf(57, 2), (Range{7, 0}));
  EXPECT_EQ(rangeOf(57, 3), (Range{4, 0})) << "a negative real has a complex root";
  EXPECT_EQ(rangeOf(57, 4), (Range{4, 0}));
}

// An integer needs no rounding, though the table has an identity routine for it.
TEST(ResultTypes, OfRound) {
  EXPECT_EQ(ReturnType1(49, 2), 0);
  EXPECT_EQ(ReturnType1(49, 3), 2);
  EXPECT_EQ(ReturnType1(49, 4), 0);
  EXPECT_EQ(rangeOf(49, 2), (Range{-1, 0}));
  EXPECT_EQ(rangeOf(49, 3), (Range{2, 0}));
  EXPECT_EQ(rangeOf(49, 4), (Range{7, 0}));
  EXPECT_NE(machfunsarray_1[3 * 49], nullptr);
}

TEST(ResultTypes, OfBinaryOperators) {
  for (mint x = 2; x <= 4; ++x)
    for (mint y = 2; y <= 4; ++y) {
      const mint widest = x < y ? y : x;
      for (const mint op : {257, 258, 259}) {
        EXPECT_EQ(ReturnType2(op, x, y), widest);
        EXPECT_EQ(ReturnRangeType2(op, x, y), widest);
      }
      EXPECT_EQ(ReturnType2(260, x, y), widest == 2 ? 0 : widest);
      EXPECT_EQ(ReturnRangeType2(260, x, y), widest == 2 ? 7 : widest);
    }
}

TEST(ResultTypes, OfNumbersThatAreNoOperators) {
  for (const mint op : {-1, 0, 4, 8, 12, 16, 20, 24, 28, 61, 85, 256, 1 << 30, -(1 << 30)}) {
    EXPECT_EQ(ReturnType1(op, 3), 0) << op;
    EXPECT_EQ(rangeOf(op, 3), (Range{7, 0})) << op;
  }
  for (const mint op : {-1, 0, 43, 256, 278, 1 << 30, -(1 << 30)}) {
    EXPECT_EQ(ReturnType2(op, 3, 3), 0) << op;
    EXPECT_EQ(ReturnRangeType2(op, 3, 3), 7) << op;
  }
}

} // namespace

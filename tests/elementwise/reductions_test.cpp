// Totals: initial value, order of summation, strides, checks.
#include "support/kinds.h"

#include <gtest/gtest.h>
#include <torvane/machfuncs.h>
#include <torvane/operators.h>

using namespace torvane::test;

namespace {

const mint kDense[2] = {1, 1};

TEST(Total, OfNoElementsIsZeroWhateverTheAccumulatorHeld) {
  for (const mint count : {0, -5}) {
    mreal real = 42;
    mint word = 42;
    mcomplex complex = {42, 42};
    EXPECT_EQ(machfunc_d_total(&real, nullptr, count, kDense, 6), 0);
    EXPECT_EQ(machfunc_i_total(&word, nullptr, count, kDense, 6), 0);
    EXPECT_EQ(machfunc_c_total(&complex, nullptr, count, kDense, 6), 0);
    EXPECT_EQ(real, 0);
    EXPECT_EQ(word, 0);
    EXPECT_EQ(complex.re, 0);
    EXPECT_EQ(complex.im, 0);
  }
}

// Rounding is part of the interface: left to right, nothing reassociated.
TEST(Total, OfRealsRunsLeftToRight) {
  const std::vector<double> data = randomReals<double>(1000, 3);
  for (const mint count : {1, 2, 7, 63, 1000}) {
    volatile double expected = 0;
    for (mint k = 0; k < count; ++k) expected = expected + data[size_t(k)];
    mreal total = 1;
    EXPECT_EQ(machfunc_d_total(&total, data.data(), count, kDense, 0), 0);
    EXPECT_TRUE(sameReal<double>(total, expected)) << count;
  }
  const mreal cancelling[4] = {1e16, 1, -1e16, 1};
  mreal total;
  machfunc_d_total(&total, cancelling, 4, kDense, 0);
  EXPECT_EQ(total, 1); // 1e16 + 1 rounds the 1 away
}

TEST(Total, WalksAnyStride) {
  const mreal data[7] = {1, 2, 4, 8, 16, 32, 64};
  mreal total;
  const auto at = [&](mint start, mint stride, mint count) {
    const mint strides[2] = {99, stride};
    machfunc_d_total(&total, data + start, count, strides, 0);
    return total;
  };
  EXPECT_EQ(at(0, 2, 4), 85);
  EXPECT_EQ(at(6, -3, 3), 73);
  EXPECT_EQ(at(5, 0, 4), 128);
}

TEST(Total, OfComplexesSumsBothParts) {
  const mcomplex data[3] = {{1, 2}, {3, 4}, {-5, 0.5}};
  mcomplex total;
  EXPECT_EQ(machfunc_c_total(&total, data, 3, kDense, TORVANE_CHECK_REALS), 0);
  EXPECT_EQ(total.re, -1);
  EXPECT_EQ(total.im, 6.5);
}

TEST(Total, OfIntegersWrapsUncheckedAndFailsAtTheFirstBadRunningSum) {
  const mint data[4] = {2147483647, 1, -5, 3};
  mint total;
  EXPECT_EQ(machfunc_i_total(&total, data, 4, kDense, 0), 0);
  EXPECT_EQ(total, static_cast<mint>(2147483647u + 1u - 5u + 3u));
  EXPECT_EQ(machfunc_i_total(&total, data, 4, kDense, TORVANE_CHECK_REALS), 0) << "the flag of another kind";
  EXPECT_EQ(machfunc_i_total(&total, data, 4, kDense, TORVANE_CHECK_INTEGERS), 2);
  const mint reserved[2] = {-2147483647, -1};
  EXPECT_EQ(machfunc_i_total(&total, reserved, 2, kDense, TORVANE_CHECK_INTEGERS), 2);
  EXPECT_EQ(machfunc_i_total(&total, reserved, 2, kDense, 0), 0);
  EXPECT_EQ(total, INT32_MIN);
}

TEST(Total, OfRealsFailsWhereTheRunningSumOverflowsOrIsNaN) {
  const mreal overflowing[3] = {1e308, 1e308, -1e308}, invalid[3] = {1, HUGE_VAL, 2};
  mreal total;
  EXPECT_EQ(machfunc_d_total(&total, overflowing, 3, kDense, 0), 0);
  EXPECT_EQ(total, HUGE_VAL);
  EXPECT_EQ(machfunc_d_total(&total, overflowing, 3, kDense, TORVANE_CHECK_REALS), 2);
  EXPECT_EQ(machfunc_d_total(&total, invalid, 3, kDense, TORVANE_CHECK_REALS), 2);
}

} // namespace

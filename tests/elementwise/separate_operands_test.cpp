// Routines whose second operand keeps its own kind: powers against their 169 typed entries, shifts of reals
// and complexes, tolerances on complexes; and the unary routines that are a binary one with a constant.
#include "support/kinds.h"

#include <cmath>
#include <gtest/gtest.h>
#include <torvane/machfuncs.h>
#include <torvane/operators.h>
#include <torvane/scalars.h>

using namespace torvane::test;

namespace {

constexpr mint kPowerRow = 263 - 256;

struct PowerCase {
  mint kind1, kind2;
  TypedBinary plain;
};

std::vector<PowerCase> powerCases() {
  return {
      {2, 2, wrapBinary<2, 2>(binary_pow_Integer32_Integer32)},
      {2, 3, wrapBinary<2, 3>(binary_pow_Integer32_Real64)},
      {2, 4, wrapBinary<2, 4>(binary_pow_Integer32_ComplexReal64)},
      {3, 2, wrapBinary<3, 2>(binary_pow_Real64_Integer32)},
      {3, 3, wrapBinary<3, 3>(binary_pow_Real64_Real64)},
      {3, 4, wrapBinary<3, 4>(binary_pow_Real64_ComplexReal64)},
      {4, 2, wrapBinary<4, 2>(binary_pow_ComplexReal64_Integer32)},
      {4, 3, wrapBinary<4, 3>(binary_pow_ComplexReal64_Real64)},
      {4, 4, wrapBinary<4, 4>(binary_pow_ComplexReal64_ComplexReal64)},
  };
}

TEST(PowerRoutines, AreTheTypedEntriesOfTheirPairOfTypes) {
  std::mt19937_64 random(31);
  const mint strides[3] = {1, 1, 1};
  for (const PowerCase &pair : powerCases())
    for (int k = 0; k < 3000; ++k) {
      const Element x = sampleElement(pair.kind1, random);
      Element y = sampleElement(pair.kind2, random);
      if (pair.kind2 == TORVANE_TYPE_INTEGER) y.value.re = double(int64_t(random() % 90) - 12);
      Buffer a(pair.kind1, 1), b(pair.kind2, 1);
      a.set(0, x);
      b.set(0, y);
      const Outcome expected = pair.plain(x, y);
      Buffer result(expected.element.kind, 1);
      const TorvaneBinaryRoutine routine =
          machfunsarray_2[9 * kPowerRow + 3 * (pair.kind1 - 2) + (pair.kind2 - 2)];
      ASSERT_EQ(routine(result.data(), a.data(), b.data(), 1, strides, 0), expected.code != 0)
          << x << " to " << y;
      if (expected.code == 0) ASSERT_EQ(result.get(0), expected.element) << x << " to " << y;
      ASSERT_TRUE(result.zonesHold());
    }
}

TEST(ShiftRoutines, ScaleRealsAndComplexesByPowersOfTwo) {
  const mreal x[4] = {3, -0.5, 0, 1e300};
  const mcomplex z[1] = {{-3, 0.25}};
  const mint by[4] = {2, -1, 7, 2000}, strides[3] = {1, 1, 1};
  mreal result[4];
  mcomplex complex;
  EXPECT_EQ(machfunc_di_bitshiftleft(result, x, by, 4, strides, 0), 0);
  for (int k = 0; k < 4; ++k) EXPECT_EQ(result[k], std::ldexp(x[k], by[k])) << k;
  EXPECT_EQ(machfunc_di_bitshiftright(result, x, by, 4, strides, 0), 0);
  for (int k = 0; k < 4; ++k) EXPECT_EQ(result[k], std::ldexp(x[k], -by[k])) << k;
  EXPECT_EQ(machfunc_ci_bitshiftleft(&complex, z, by, 1, strides, 0), 0);
  EXPECT_EQ(complex.re, -12);
  EXPECT_EQ(complex.im, 1);
  EXPECT_EQ(machfunc_ci_bitshiftright(&complex, z, by, 1, strides, 0), 0);
  EXPECT_EQ(complex.re, -0.75);
  EXPECT_EQ(complex.im, 0.0625);
  const mint reserved = INT32_MIN;
  EXPECT_EQ(machfunc_di_bitshiftright(result, x, &reserved, 1, strides, 0), 0);
  EXPECT_EQ(result[0], HUGE_VAL);
}

TEST(ToleranceRoutines, OfComplexesGoByTheModulus) {
  const mcomplex z[4] = {{3, 4}, {0.3, 0.4}, {0, 0}, {-5, 0}};
  const mreal tolerance = 1, negative = -1;
  const mint strides[3] = {1, 1, 0};
  mcomplex chopped[4];
  mint units[4];
  EXPECT_EQ(machfunc_cd_chop(chopped, z, &tolerance, 4, strides, 0), 0);
  EXPECT_EQ(machfunc_cd_unitize(units, z, &tolerance, 4, strides, 0), 0);
  for (int k = 0; k < 4; ++k) {
    const bool isLarge = std::hypot(z[k].re, z[k].im) >= 1;
    EXPECT_EQ(chopped[k].re, isLarge ? z[k].re : 0) << k;
    EXPECT_EQ(chopped[k].im, isLarge ? z[k].im : 0) << k;
    EXPECT_EQ(units[k], isLarge) << k;
  }
  EXPECT_EQ(machfunc_cd_chop(chopped, z, &negative, 4, strides, 0), 1);
  EXPECT_EQ(machfunc_cd_unitize(units, z, &negative, 4, strides, 0), 1);
}

TEST(BoundRoutines, TakeTenAsSecondOperand) {
  const mint x[4] = {1000, -120, 7, 99999}, strides[2] = {1, 1};
  mint result[4];
  EXPECT_EQ(machfunc_i_intexp(result, x, 4, strides, 0), 0);
  for (int k = 0; k < 4; ++k) EXPECT_EQ(result[k], binary_intexp_Integer32_Integer32(x[k], 10));
  EXPECT_EQ(machfunc_i_intlen(result, x, 4, strides, 0), 0);
  for (int k = 0; k < 4; ++k) EXPECT_EQ(result[k], binary_intlen_Integer32_Integer32(x[k], 10));
  const mint zero = 0;
  EXPECT_EQ(machfunc_i_intexp(result, &zero, 1, strides, 0), 1);
  EXPECT_EQ(machfunsarray_1[3 * 64], machfunc_i_intexp);
  EXPECT_EQ(machfunsarray_1[3 * 65], machfunc_i_intlen);
}

// The real forms of these raise at once, and the routine reports the first element.
TEST(ParityRoutines, OfRealsFailAtTheFirstElement) {
  const mreal x[2] = {2, 3};
  mint result[2];
  const mint strides[2] = {1, 1};
  EXPECT_EQ(machfunc_d_evenq(result, x, 2, strides, 0), 1);
  EXPECT_EQ(machfunc_d_oddq(result, x, 2, strides, 0), 1);
}

} // namespace

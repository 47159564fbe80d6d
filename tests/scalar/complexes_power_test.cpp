// Complex powers: the axes, zeros and infinities, integer exponents.
#include "complexes_support.h"
#include "complexes_by_rule.h"

using namespace torvane;
using namespace torvane::test;

namespace {

TEST(ComplexPow, RealOperandsTakeTheRealPower) {
  expectPair(complexes::pow, {2, 0}, {10, 0}, {1024, 0});
  expectPair(complexes::pow, {0, 0}, {0, 0}, {1, 0});
  expectPair(complexes::pow, {0, 0}, {-1, 0}, {kInfinity, 0});
  expectPair(complexes::pow, {0, 0}, {2.5, 0}, {0, 0});
}

TEST(ComplexPow, TheNegativeAxisBelongsToItsUpperSide) {
  for (const double zero : kZeros) expectPair(complexes::pow, {-4, zero}, {0.5, 0}, {0, 2});
  expectPair(complexes::pow, {-1, 0}, {0, 1}, {std::exp(-kPi), 0});
}

TEST(ComplexPow, AZeroBaseWithoutARealExponentRaisesFourteen) {
  for (const double zero : kZeros) {
    EXPECT_EQ(codeOf(complexes::pow, {zero, zero}, {2, 1}), 14);
    EXPECT_EQ(codeOf(complexes::pow, {zero, 0}, {0, 1}), 14);
  }
}

TEST(ComplexPow, MixedPairsEmbedTheRealOperand) {
  error code = error::none;
  for (const Complex<double> z : {Complex<double>{1.5, -2}, {-3, 0}, {0.25, 0.5}}) {
    EXPECT_TRUE(same(complexes::pow(code, 2.5, z), complexes::pow(code, Complex<double>{2.5, 0}, z)));
    EXPECT_TRUE(same(complexes::pow(code, z, 2.5), complexes::pow(code, z, Complex<double>{2.5, 0})));
  }
  EXPECT_EQ(code, error::none);
}

TEST(ComplexPow, AnInfinityToARealExponentHasNoNaN) {
  expectPair(complexes::pow, {kInfinity, 1}, {2, 0}, {kInfinity, 0});
  expectPair(complexes::pow, {kInfinity, 1}, {0, 0}, {1, 0});
  expectPair(complexes::pow, {kInfinity, 1}, {-2, 0}, {0, 0});
}

template <class I> mint integerPowerCode(Complex<double> z, I n) {
  error code = error::none;
  complexes::pow(code, z, n);
  return static_cast<mint>(code);
}

TEST(ComplexIntegerPow, MultipliesFirstAndTakesTheReciprocalLast) {
  error code = error::none;
  const Complex<double> i = {0, 1}, z = {3, -4};
  EXPECT_EQ(complexes::pow(code, i, 2).re, -1);
  EXPECT_EQ(complexes::pow(code, i, INT64_MIN).re, 1); // its magnitude is a multiple of 4
  EXPECT_EQ(complexes::pow(code, i, UINT64_MAX).im, -1);
  EXPECT_EQ(complexes::pow(code, i, int8_t{-1}).im, -1);
  EXPECT_TRUE(same(complexes::pow(code, z, 3), {-117, -44}));
  EXPECT_TRUE(same(complexes::pow(code, z, -3), ByRule<double>::over(Complex<double>{1, 0}, {-117, -44})));
  EXPECT_TRUE(same(complexes::pow(code, z, 0), {1, 0}));
  EXPECT_TRUE(same(complexes::pow(code, z, 1), z));
  EXPECT_EQ(code, error::none);
}

TEST(ComplexIntegerPow, RaisesFourteenForAZeroBaseAndSixteenInTheReciprocal) {
  for (const int n : {0, -1, -7}) EXPECT_EQ(integerPowerCode({0, -0.0}, n), 14);
  EXPECT_EQ(integerPowerCode({0, 0}, uint32_t{0}), 14);
  EXPECT_EQ(integerPowerCode({0, 0}, 3), 0);
  EXPECT_EQ(integerPowerCode({1e-200, 1e-200}, -2), 16); // the square is lost
  EXPECT_EQ(integerPowerCode({1e200, 1e200}, -2), 0);
}

TEST(ComplexPow, OfOneIsOneForAnInfiniteExponent) {
  expectPair(complexes::pow, {1, 0}, {kInfinity, 1}, {1, 0});
  expectPair(complexes::pow, {1, 0}, {1, -kInfinity}, {1, 0});
  expectPair(complexes::pow, {2, 0}, {kInfinity, 1}, {kInfinity, kInfinity});
  expectPair(complexes::pow, {kInfinity, 0}, {0, 1}, {kNaN, kNaN}); // no direction is left
}

} // namespace

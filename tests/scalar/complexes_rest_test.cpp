// The remaining complex operators: remainder, unit, Fibonacci and Lucas numbers.
#include "complexes_support.h"

using namespace torvane;
using namespace torvane::test;

namespace {

TEST(ComplexMod, RealOperandsTakeTheRealRule) {
  expectPair(complexes::mod, {-7, 0}, {3, 0}, {2, 0});
  expectPair(complexes::mod, {7, -0.0}, {-3, 0}, {-2, 0});
  expectPair(complexes::mod, {-1e-20, 0}, {3, 0}, {0, 0}); // the sum is the divisor itself
  expectPair(complexes::mod, {1e300, 0}, {3, 0}, {std::fmod(1e300, 3), 0});
}

TEST(ComplexMod, OthersLoseTheNearestGaussianMultiple) {
  expectPair(complexes::mod, {7, 3}, {2, 0}, {-1, -1}); // the quotient (3.5, 1.5) goes to (4, 2)
  expectPair(complexes::mod, {5, 1}, {2, 0}, {1, 1});   // (2.5, 0.5) goes to (2, 0)
  expectPair(complexes::mod, {5, 0}, {0, 2}, {1, 0});
  EXPECT_EQ(codeOf(complexes::mod, {1, 1}, {0, -0.0}), 14);
}

TEST(ComplexMod, AQuotientBeyondThirtyTwoBitsRaisesOne) {
  const double limit = 2147483648.0;
  // What round refuses: from 2^31 - 1 on, but from -2^31 down.
  EXPECT_EQ(codeOf(complexes::mod, {limit - 1, 1}, {1, 0}), 1);
  EXPECT_EQ(codeOf(complexes::mod, {1 - limit, 1}, {1, 0}), 0);
  for (const double sign : {1.0, -1.0}) {
    EXPECT_EQ(codeOf(complexes::mod, {sign * limit, 1}, {1, 0}), 1);
    EXPECT_EQ(codeOf(complexes::mod, {1, sign * limit}, {1, 0}), 1);
    EXPECT_EQ(codeOf(complexes::mod, {sign * (limit - 2), 1}, {1, 0}), 0);
    EXPECT_EQ(codeOf(complexes::mod, {sign * (limit - 0.5), 1}, {1, 0}), 1); // a tie, to the even limit
  }
}

TEST(ComplexMod, TheRemainderIsNoFartherThanHalfADiagonal) {
  std::mt19937 random(31);
  std::uniform_real_distribution<double> part(-50, 50);
  for (int k = 0; k < 2000; ++k) {
    const Complex<double> x = {part(random), part(random)}, y = {part(random), part(random)};
    error code = error::none;
    const Complex<double> r = complexes::mod(code, x, y), n = (x - r) / y;
    ASSERT_LE(std::hypot(r.re, r.im), std::hypot(y.re, y.im) * 0.70710678118655 + 1e-12) << x << y;
    ASSERT_LT(std::abs(n.re - std::rint(n.re)) + std::abs(n.im - std::rint(n.im)), 1e-10) << x << y;
  }
}

TEST(ComplexFibonacci, ContinuesTheIntegers) {
  const double fibonacci[] = {0, 1, 1, 2, 3, 5, 8, 13, 21}, lucas[] = {2, 1, 3, 4, 7, 11, 18, 29, 47};
  for (int n = 0; n < 9; ++n) {
    const ComplexOutcome f = at(complexes::fibonacci, n, 0), l = at(complexes::lucasl, n, 0);
    EXPECT_NEAR(f.value.re, fibonacci[n], 1e-13) << n;
    EXPECT_NEAR(l.value.re, lucas[n], 1e-13) << n;
    EXPECT_NEAR(f.value.im, 0, 1e-13);
    EXPECT_NEAR(l.value.im, 0, 1e-13);
  }
  EXPECT_NEAR(at(complexes::fibonacci, -4, 0).value.re, -3, 1e-13);
  EXPECT_NEAR(at(complexes::lucasl, -3, 0).value.re, -4, 1e-13);
}

TEST(ComplexUnit, IsFoundWithoutOverflow) {
  expectEqual(complexes::sign, {0, -0.0}, {0, 0});
  expectEqual(complexes::sign, {-5, 0}, {-1, 0});
  expectEqual(complexes::sign, {-0.0, -1e-310}, {0, -1});
  expectNear(complexes::sign, {3e307, -4e307}, {0.6, -0.8});
}

// By a division, which an infinite exponential with two parts loses.
TEST(ComplexLogistic, IsAQuotientAtInfinitiesToo) {
  expectEqual(complexes::logistic, {1000, 1}, {1, 0});
  expectEqual(complexes::logistic, {-1000, 0}, {0, 0});
  expectEqual(complexes::logistic, {-1000, 1}, {kNaN, kNaN});
  expectNear(complexes::logistic, {0, 0}, {0.5, 0});
}

// What the page of errors says of the ends of the format.
TEST(ComplexEnds, FormulasGiveOutBeforeTheirFunctionsDo) {
  const double huge = std::numeric_limits<double>::max();
  EXPECT_EQ(at(complexes::exp, 709.9, 1.57).value.re, kInfinity); // exp(709.9) alone overflows
  EXPECT_EQ(at(complexes::sinh, 710.5, 1.57).value.re, kInfinity);
  EXPECT_TRUE(std::isnan(at(complexes::expm1, 709.9, 1.57).value.re));
  EXPECT_TRUE(std::isnan(at(complexes::fibonacci, -2000, 0).value.im));
  EXPECT_TRUE(std::isnan(at(complexes::sign, 1e-310, 1e-310).value.re));
  EXPECT_NEAR(at(complexes::sign, 0x1p-1023, 0x1p-1023).value.re, std::sqrt(0.5), 1e-15);
  EXPECT_EQ(at(complexes::sqrt, huge, huge).value.re, kInfinity);
}

} // namespace

// Complex modulus and reciprocal at the ends of the format.
#include "complexes_support.h"

using namespace torvane;
using namespace torvane::test;

namespace {

TEST(ComplexModulus, OverflowsOnlyAtItsLastStepAndKeepsSubnormals) {
  EXPECT_EQ(modulusOf(Complex<double>{3e307, 4e307}), 5e307);
  EXPECT_EQ(modulusOf(Complex<double>{1.5e308, 1.5e308}), kInfinity);
  EXPECT_TRUE(std::isfinite(scaledModulus(Complex<double>{1.5e308, 1.5e308}).r));
  EXPECT_EQ(modulusOf(Complex<double>{1e-320, 1e-320}), 1e-320 * std::numbers::sqrt2);
  EXPECT_EQ(modulusOf(Complex<double>{3e-310, -4e-310}), 5e-310);
}

TEST(ComplexReciprocal, AnInfinitePartGivesSignedZeros) {
  error code = error::none;
  const auto reciprocal = [&](double x, double y) {
    return complexes::reciprocal(code, Complex<double>{x, y});
  };
  EXPECT_TRUE(same(reciprocal(kInfinity, 1), {0, -0.0}));
  EXPECT_TRUE(same(reciprocal(-kInfinity, -1), {-0.0, 0}));
  EXPECT_TRUE(same(reciprocal(-kInfinity, kInfinity), {-0.0, -0.0}));
  EXPECT_TRUE(same(reciprocal(5, -kInfinity), {0, 0}));
  EXPECT_TRUE(same(reciprocal(-5, kInfinity), {0, -0.0}));
  EXPECT_TRUE(same(reciprocal(0, 2), {0, -0.5}));
  EXPECT_EQ(code, error::none);
  reciprocal(-0.0, 0);
  EXPECT_EQ(code, error::complexZeroDivision);
}

} // namespace

// Complex exponentials and logarithms: cuts, codes, zero factors and infinities.
#include "complexes_support.h"

using namespace torvane;
using namespace torvane::test;

namespace {

TEST(ComplexLogarithms, TakeTheUpperSideOfTheNegativeAxis) {
  for (const double zero : kZeros) {
    expectEqual(complexes::log, {-1, zero}, {0, kPi});
    expectEqual(complexes::log2, {-2, zero}, {1, 4.532360141827194});
    expectEqual(complexes::log2, {-0x1p29, zero}, {29, 4.532360141827194}); // log x / log 2 is 1 ulp off
    expectEqual(complexes::log10, {-1000, zero}, {3, 1.3643763538418414});
    expectEqual(complexes::log10, {-100, zero}, {2, 1.3643763538418414});
    expectEqual(complexes::log1p, {-3, zero}, {0.6931471805599453, kPi});
    expectEqual(complexes::log, {-kInfinity, zero}, {kInfinity, kPi});
  }
  EXPECT_LT(at(complexes::log, -1, -1e-300).value.im, 0);
}

TEST(ComplexLogarithms, RaiseFourteenAtTheirSingularity) {
  for (const double x : kZeros)
    for (const double y : kZeros) {
      EXPECT_EQ(codeAt(complexes::log, x, y), 14);
      EXPECT_EQ(codeAt(complexes::log2, x, y), 14);
      EXPECT_EQ(codeAt(complexes::log10, x, y), 14);
      EXPECT_EQ(codeAt(complexes::log1p, -1, y), 14);
      EXPECT_EQ(codeAt(complexes::rsqrt, x, y), 14);
    }
}

TEST(ComplexLogarithms, ReachFromTheSmallestToTheLargestModulus) {
  const double huge = std::numeric_limits<double>::max(), tiny = 1e-310;
  expectNear(complexes::log, {huge, huge}, {std::log(huge) + std::log(2) / 2, kPi / 4});
  expectNear(complexes::log, {tiny, -tiny}, {std::log(tiny) + std::log(2) / 2, -kPi / 4});
}

TEST(ComplexExponentials, AZeroFactorStrikesOutAnInfinity) {
  expectEqual(complexes::exp, {1000, 0}, {kInfinity, 0});
  expectEqual(complexes::expm1, {1000, 0}, {kInfinity, 0});
  expectEqual(complexes::logistic, {-1000, 0}, {0, 0});
  expectEqual(complexes::sinh, {1000, 0}, {kInfinity, 0});
  expectEqual(complexes::cosh, {-1000, 0}, {kInfinity, 0});
  expectEqual(complexes::sin, {0, 1000}, {0, kInfinity});
  expectEqual(complexes::cos, {0, 1000}, {kInfinity, 0});
  expectEqual(complexes::sinh, {0, kInfinity}, {0, kNaN});
  expectEqual(complexes::cosh, {0, kInfinity}, {kNaN, 0});
  expectEqual(complexes::exp, {-kInfinity, kInfinity}, {0, 0});
  expectEqual(complexes::exp, {kNaN, 0}, {kNaN, 0});
}

// exp(x) times the cosine and the sine: without an angle both are NaNs, though the modulus be infinite. Zero
// times them is zero.
TEST(ComplexExponentials, AnInfiniteModulusWithoutAnAngleIsNoNumber) {
  for (const double y : {kInfinity, -kInfinity, kNaN}) {
    expectEqual(complexes::exp, {kInfinity, y}, {kNaN, kNaN});
    expectEqual(complexes::exp, {-kInfinity, y}, {0, 0});
  }
}

TEST(ComplexExponentials, LessOneKeepSmallArgumentsAndLoseThemselvesInInfinities) {
  expectEqual(complexes::expm1, {1e-300, -1e-310}, {1e-300, -1e-310});
  expectEqual(complexes::expm1, {-1e-20, 1e-20}, {-1e-20, 1e-20});
  expectEqual(complexes::expm1, {-kInfinity, 1}, {-1, 0});
  expectEqual(complexes::expm1, {kInfinity, 0}, {kInfinity, 0});
  expectEqual(complexes::expm1, {1000, 1}, {kNaN, kInfinity}); // its terms are infinities of both signs
  expectEqual(complexes::expm1, {-kInfinity, kInfinity}, {kNaN, 0});
}

// As C11 has them, where nothing else settles it.
TEST(ComplexExponentials, AnInfiniteRealPartWithoutDirectionStaysInfinite) {
  for (const double y : {kInfinity, kNaN}) {
    expectEqual(complexes::sinh, {-kInfinity, y}, {-kInfinity, kNaN});
    expectEqual(complexes::cosh, {-kInfinity, y}, {kInfinity, kNaN});
    expectEqual(complexes::sin, {y, kInfinity}, {kNaN, kInfinity});
    expectEqual(complexes::cos, {y, kInfinity}, {kInfinity, kNaN});
  }
}

TEST(ComplexLogToBase, RaisesFourteenForAZeroAndSixteenForBaseOne) {
  expectPair(complexes::log, {2, 0}, {8, 0}, {3, 0});
  expectPair(complexes::log, {0, 1}, {-1, 0}, {2, 0});
  EXPECT_EQ(codeOf(complexes::log, {2, 0}, {0, -0.0}), 14);
  EXPECT_EQ(codeOf(complexes::log, {0, 0}, {2, 1}), 14);
  EXPECT_EQ(codeOf(complexes::log, {1, 0}, {2, 1}), 16);
}

} // namespace

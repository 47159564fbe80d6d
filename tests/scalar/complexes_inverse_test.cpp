// Complex inverse functions: poles, the sides of the cuts, real results, ends of the format.
#include "complexes_support.h"

using namespace torvane;
using namespace torvane::test;

namespace {

TEST(ComplexInverses, RaiseFourteenAtTheirPoles) {
  for (const double zero : kZeros)
    for (const double one : {1.0, -1.0}) {
      EXPECT_EQ(codeAt(complexes::atanh, one, zero), 14);
      EXPECT_EQ(codeAt(complexes::acoth, one, zero), 14);
      EXPECT_EQ(codeAt(complexes::atan, zero, one), 14);
      EXPECT_EQ(codeAt(complexes::acot, zero, one), 14);
    }
  EXPECT_EQ(codeAt(complexes::atanh, 1, 1e-300), 0);
}

TEST(ComplexInverses, BothSignsOfAZeroPartFallOnOneSideOfTheCut) {
  const double acosh2 = 1.3169578969248167, acoth2 = 0.5493061443340548;
  for (const double zero : kZeros) {
    expectNear(complexes::asin, {2, zero}, {kPi / 2, -acosh2});
    expectNear(complexes::asin, {-2, zero}, {-kPi / 2, acosh2});
    expectNear(complexes::acos, {2, zero}, {0, acosh2});
    expectNear(complexes::acos, {-2, zero}, {kPi, -acosh2});
    expectNear(complexes::atanh, {2, zero}, {acoth2, -kPi / 2});
    expectNear(complexes::atanh, {-2, zero}, {-acoth2, kPi / 2});
    expectNear(complexes::acosh, {-2, zero}, {acosh2, kPi});
    expectNear(complexes::acosh, {2, zero}, {acosh2, 0});
    expectNear(complexes::acosh, {-0.75, zero}, {0, std::acos(-0.75)});
    expectNear(complexes::acosh, {0.75, zero}, {0, std::acos(0.75)});
    expectNear(complexes::acosh, {0.25, zero}, {0, std::acos(0.25)});
    expectNear(complexes::asinh, {zero, 2}, {acosh2, kPi / 2});
    expectNear(complexes::asinh, {zero, -2}, {-acosh2, -kPi / 2});
    expectNear(complexes::asinh, {zero, 0.5}, {0, std::asin(0.5)});
    expectNear(complexes::atan, {zero, 0.5}, {0, acoth2});
    for (const double y : {1e3, 1e5, 1e7}) { // no cancellation on either half of the imaginary axis
      expectNear(complexes::asinh, {zero, y}, {std::acosh(y), kPi / 2});
      expectNear(complexes::asinh, {zero, -y}, {-std::acosh(y), -kPi / 2});
    }
  }
}

TEST(ComplexInverses, RealResultsAreExactlyReal) {
  for (double x = -1; x < 1; x += 0x1p-7) EXPECT_EQ(at(complexes::acosh, x, 0).value.re, 0) << x;
  for (const double zero : kZeros)
    for (const double x : {-3.0, -0.25, 0.25, 3.0})
      EXPECT_TRUE(sameReal(at(complexes::asinh, x, zero).value.im, 0.0))
          << x; // + 0, whatever the sign of zero
}

TEST(ComplexInverses, HugeArgumentsAreTheirLogarithmPlusLnTwo) {
  expectNear(complexes::asinh, {1e300, 0}, {std::log(1e300) + std::log(2), 0});
  expectNear(complexes::asinh, {-1e300, 0}, {-std::log(1e300) - std::log(2), 0});
  expectNear(complexes::acosh, {1e300, 1e300}, {std::log(1e300) + 1.5 * std::log(2), kPi / 4});
  expectEqual(complexes::asinh, {kInfinity, 1}, {kInfinity, 0});
  expectEqual(complexes::asinh, {-kInfinity, kInfinity}, {-kInfinity, kPi / 4});
  expectEqual(complexes::acosh, {1, kInfinity}, {kInfinity, kPi / 2});
  expectEqual(complexes::asinh, {kNaN, kInfinity}, {kInfinity, kNaN});
  expectEqual(complexes::atan, {kInfinity, 0}, {kPi / 2, 0});
  expectEqual(complexes::atanh, {1, kInfinity}, {0, kPi / 2});
  expectEqual(complexes::acsc, {kInfinity, 1}, {0, 0});
  expectNear(complexes::asec, {-kInfinity, 1}, {kPi / 2, 0});
}

TEST(ComplexInverses, TheSmallestArgumentsStayThemselves) {
  for (const double x : {1e-300, -1e-300, 1e-20}) {
    for (ComplexFunction<double> f : {complexes::asinh<double>, complexes::asin<double>}) {
      expectEqual(f, {x, 0}, {x, 0});
      expectEqual(f, {0, x}, {0, x});
    }
    expectEqual(complexes::atanh, {x, 0}, {x, 0});
    expectEqual(complexes::atan, {0, x}, {0, x});
  }
}

TEST(ComplexInverses, ZeroIsExact) {
  for (const double x : kZeros)
    for (const double y : kZeros) {
      for (ComplexFunction<double> f : {complexes::asinh<double>, complexes::asin<double>,
                                        complexes::atanh<double>, complexes::atan<double>})
        expectEqual(f, {x, y}, {0, 0});
      expectEqual(complexes::acos, {x, y}, {kPi / 2, 0});
      expectEqual(complexes::acosh, {x, y}, {0, kPi / 2});
    }
}

TEST(ComplexAtan2, ContinuesTheRealOne) {
  for (const double x : {-3.0, -0.5, 2.0})
    for (const double y : {-1.5, 0.25, 4.0})
      expectPair(complexes::atan2, {x, 0}, {y, 0}, {std::atan2(x, y), 0});
  EXPECT_EQ(codeOf(complexes::atan2, {0, -0.0}, {0, 0}), 14);
  EXPECT_EQ(codeOf(complexes::atan2, {0, 1}, {1, 0}), 16); // 1 + i^2
  EXPECT_EQ(codeOf(complexes::atan2, {1, 0}, {0, -1}), 16);
}

// The reciprocal of an infinity is zero whatever the other part, which then only picks the side.
TEST(ComplexInverses, OfAnInfinityBesideANaNAreThoseOfInfinity) {
  expectEqual(complexes::atanh, {kInfinity, kNaN}, {0, -kPi / 2});
  expectEqual(complexes::atanh, {kNaN, kInfinity}, {0, kPi / 2});
  expectEqual(complexes::atan, {kNaN, kInfinity}, {-kPi / 2, 0});
  expectEqual(complexes::acsch, {kNaN, -kInfinity}, {0, 0});
  expectEqual(complexes::asinh, {kInfinity, kNaN}, {kInfinity, kNaN});
  expectEqual(complexes::acosh, {-kInfinity, kNaN}, {kInfinity, kNaN});
}

} // namespace

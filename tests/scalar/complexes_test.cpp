// Complex entries: results through two pointers, products and quotients, the square root's regions and
// branch cut, codes.
#include "support/raised.h"
#include "support/real_samples.h"

#include <gtest/gtest.h>
#include <torvane/scalars.h>

using namespace torvane::test;

namespace {

template <class R> struct Z { R re, im; };
template <class R> std::ostream &operator<<(std::ostream &out, Z<R> z) {
  return out << "(" << z.re << ", " << z.im << ")";
}
template <class R> bool same(Z<R> x, Z<R> y) { return sameReal(x.re, y.re) && sameReal(x.im, y.im); }

template <class R> using Unary = R *(*)(R *, R *, R, R);
template <class R> using Binary = R *(*)(R *, R *, R, R, R, R);

template <class R> Z<R> call(Unary<R> entry, Z<R> x) {
  Z<R> z = {};
  EXPECT_EQ(entry(&z.re, &z.im, x.re, x.im), &z.re);
  return z;
}
template <class R> Z<R> call(Binary<R> entry, Z<R> x, Z<R> y) {
  Z<R> z = {};
  EXPECT_EQ(entry(&z.re, &z.im, x.re, x.im, y.re, y.im), &z.re);
  return z;
}
// The code that a call raises, the value aside.
template <class... A> mint codeOf(A... arguments) {
  return raisedBy([&] { call(arguments...); });
}

template <class R> struct Entries {
  Binary<R> plus, subtract, times, checkedTimes, divide, checkedDivide;
  Unary<R> minus, square, sqrt, checkedSqrt;
};
template <class R> Entries<R> entries();
#define ENTRIES(T)                                                                                           \
  {                                                                                                          \
    binary_plus_##T##_##T, binary_subtract_##T##_##T, binary_times_##T##_##T,                                \
        checked_binary_times_##T##_##T, binary_divide_##T##_##T, checked_binary_divide_##T##_##T,            \
        unary_minus_##T, unary_square_##T, unary_sqrt_##T, checked_unary_sqrt_##T                            \
  }
template <> Entries<float> entries() { return ENTRIES(ComplexReal32); }
template <> Entries<double> entries() { return ENTRIES(ComplexReal64); }

template <class R> class ComplexEntries : public testing::Test {};
using BothWidths = testing::Types<float, double>;
TYPED_TEST_SUITE(ComplexEntries, BothWidths);

TYPED_TEST(ComplexEntries, SumsAndProductsFollowTheirFormulas) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  const std::vector<R> parts = specialReals<R>();
  for (size_t k = 0; k + 3 < parts.size(); ++k)
    for (const R w : parts) {
      const Z<R> x = {parts[k], parts[k + 1]}, y = {w, parts[k + 3]};
      ASSERT_TRUE(same(call(e.plus, x, y), {x.re + y.re, x.im + y.im})) << x << y;
      ASSERT_TRUE(same(call(e.subtract, x, y), {x.re - y.re, x.im - y.im})) << x << y;
      ASSERT_TRUE(same(call(e.times, x, y), {x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re}))
          << x << y;
      ASSERT_TRUE(same(call(e.square, x), call(e.times, x, x))) << x;
      ASSERT_TRUE(same(call(e.minus, x), {-x.re, -x.im})) << x;
    }
}

TYPED_TEST(ComplexEntries, DivisionByZeroRaisesSixteenInBothForms) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  const R zero = 0;
  for (const Z<R> divisor : {Z<R>{zero, zero}, Z<R>{-zero, zero}, Z<R>{-zero, -zero}})
    for (auto divide : {e.divide, e.checkedDivide}) EXPECT_EQ(codeOf(divide, Z<R>{1, 2}, divisor), 16);
}

TYPED_TEST(ComplexEntries, DivisionByANaNIsNaNAndOnlyTheCheckedFormRaises) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  const R nan = std::numeric_limits<R>::quiet_NaN();
  for (const Z<R> divisor : {Z<R>{nan, 1}, Z<R>{1, nan}, Z<R>{nan, nan}}) {
    EXPECT_EQ(codeOf(e.divide, Z<R>{1, 2}, divisor), 0);
    EXPECT_TRUE(same(call(e.divide, {1, 2}, divisor), {nan, nan}));
    EXPECT_EQ(codeOf(e.checkedDivide, Z<R>{1, 2}, divisor), 9);
  }
}

TYPED_TEST(ComplexEntries, DivisionTakesTheSmallerPartAsTheRatio) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  EXPECT_TRUE(same(call(e.divide, {4, 2}, {2, 0}), {2, 1}));
  EXPECT_TRUE(same(call(e.divide, {4, 2}, {0, 2}), {1, -2}));
  EXPECT_TRUE(same(call(e.divide, {1, 0}, {1, 1}), {R(0.5), R(-0.5)}));
  // Neither form overflows early, as the textbook quotient would.
  const R huge = std::numeric_limits<R>::max() / 4;
  EXPECT_TRUE(same(call(e.divide, {huge, huge}, {huge, huge}), {1, 0}));
}

TYPED_TEST(ComplexEntries, CodesClassifyTheRealPartFirst) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  const R huge = std::numeric_limits<R>::max();
  EXPECT_EQ(codeOf(e.checkedTimes, Z<R>{huge, 0}, Z<R>{2, 0}), 6);
  // (huge + i huge) squared: inf - inf in the real part, inf in the imaginary one.
  EXPECT_EQ(codeOf(e.checkedTimes, Z<R>{huge, huge}, Z<R>{huge, huge}), 9);
  EXPECT_EQ(codeOf(e.checkedTimes, Z<R>{huge, -1}, Z<R>{1, huge}), 6);
}

TYPED_TEST(ComplexEntries, SquareRootOnTheAxes) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  const R zero = 0;
  EXPECT_TRUE(same(call(e.sqrt, {-4, 0}), {0, 2}));
  EXPECT_TRUE(same(call(e.sqrt, {-4, -zero}), {0, 2})); // the sign of a zero imaginary part is not looked at
  EXPECT_TRUE(same(call(e.sqrt, {9, 0}), {3, 0}));
  EXPECT_TRUE(same(call(e.sqrt, {0, -2}), {1, -1}));
  EXPECT_TRUE(same(call(e.sqrt, {0, 2}), {1, 1}));
  EXPECT_TRUE(same(call(e.sqrt, {0, 0}), {0, 0}));
  EXPECT_TRUE(same(call(e.sqrt, {0, -zero}), {0, -zero}));
  EXPECT_TRUE(same(call(e.sqrt, {-zero, 0}), {0, 0}));
  EXPECT_TRUE(same(call(e.sqrt, {-1, 0}), {0, 1}));
}

TYPED_TEST(ComplexEntries, SquareRootOfInfinitiesAndNaNs) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  const R infinity = std::numeric_limits<R>::infinity(), nan = std::numeric_limits<R>::quiet_NaN();
  EXPECT_TRUE(same(call(e.sqrt, {infinity, 1}), {infinity, infinity}));
  EXPECT_TRUE(same(call(e.sqrt, {-infinity, nan}), {infinity, infinity}));
  EXPECT_TRUE(same(call(e.sqrt, {nan, 1}), {nan, nan}));
  EXPECT_TRUE(same(call(e.sqrt, {1, nan}), {nan, nan}));
  EXPECT_TRUE(same(call(e.sqrt, {infinity, 0}), {infinity, 0}));
  EXPECT_EQ(codeOf(e.sqrt, Z<R>{infinity, 1}), 0);
  EXPECT_EQ(codeOf(e.checkedSqrt, Z<R>{infinity, 1}), 6);
  EXPECT_EQ(codeOf(e.checkedSqrt, Z<R>{nan, 1}), 9);
}

// The root lies in the right half plane, on the side of the imaginary part, and commutes with conjugation.
TYPED_TEST(ComplexEntries, SquareRootLiesInTheRightHalfPlane) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  const std::vector<R> parts = randomReals<R>(4000, 11);
  for (size_t k = 0; k + 1 < parts.size(); k += 2) {
    const Z<R> x = {parts[k], parts[k + 1]}, root = call(e.sqrt, x), conjugate = call(e.sqrt, {x.re, -x.im});
    ASSERT_GE(root.re, 0) << x;
    ASSERT_EQ(std::signbit(root.im), std::signbit(x.im)) << x;
    ASSERT_TRUE(same(conjugate, {root.re, -root.im})) << x;
  }
}

TYPED_TEST(ComplexEntries, RoundIsNotDefined) {
  float re, im;
  double wideRe, wideIm;
  EXPECT_EQ(raisedBy([&] { unary_round_ComplexReal32(&re, &im, 1, 0); }), 17);
  EXPECT_EQ(raisedBy([&] { checked_unary_round_ComplexReal64(&wideRe, &wideIm, 1, 0); }), 17);
}

} // namespace

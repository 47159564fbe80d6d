// Real entries: arithmetic and square root correctly rounded (held by MPFR where it is), the codes of
// the checked forms, rounding to integers.
#include "support/raised.h"
#include "support/real_samples.h"

#include <gtest/gtest.h>
#include <torvane/scalars.h>

#if __has_include(<mpfr.h>) && defined(__LP64__)
#include <mpfr.h>
#define HAVE_MPFR 1
#endif

using namespace torvane::test;

namespace {

template <class R> struct Entries {
  R (*plus)(R, R), (*checkedPlus)(R, R);
  R (*subtract)(R, R), (*checkedSubtract)(R, R);
  R (*times)(R, R), (*checkedTimes)(R, R);
  R (*divide)(R, R), (*checkedDivide)(R, R);
  R (*sqrt)(R), (*checkedSqrt)(R);
  R (*square)(R), (*checkedSquare)(R);
  R (*minus)(R), (*checkedMinus)(R);
  mint (*round)(R), (*checkedRound)(R);
};

#define ENTRIES(T)                                                                                                     \
  {binary_plus_##T##_##T,     checked_binary_plus_##T##_##T,  binary_subtract_##T##_##T,                               \
   checked_binary_subtract_##T##_##T, binary_times_##T##_##T, checked_binary_times_##T##_##T,                          \
   binary_divide_##T##_##T,   checked_binary_divide_##T##_##T, unary_sqrt_##T,                                         \
   checked_unary_sqrt_##T,    unary_square_##T,               checked_unary_square_##T,                                \
   unary_minus_##T,           checked_unary_minus_##T,        unary_round_##T,                                         \
   checked_unary_round_##T}

template <class R> Entries<R> entries();
template <> Entries<float> entries() { return ENTRIES(Real32); }
template <> Entries<double> entries() { return ENTRIES(Real64); }

template <class R> mint codeOf(R value) { return std::isnan(value) ? 9 : std::isinf(value) ? 6 : 0; }

template <class R> std::vector<R> samples(unsigned seed) {
  std::vector<R> values = specialReals<R>();
  for (const R x : randomReals<R>(300, seed)) values.push_back(x);
  return values;
}

template <class R> class RealEntries : public testing::Test {};
using BothWidths = testing::Types<float, double>;
TYPED_TEST_SUITE(RealEntries, BothWidths);

TYPED_TEST(RealEntries, CheckedFormsRaiseSixForInfinityAndNineForNaN) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  R (*const pairs[][2])(R, R) = {{e.plus, e.checkedPlus}, {e.subtract, e.checkedSubtract}, {e.times, e.checkedTimes},
                                 {e.divide, e.checkedDivide}};
  for (const R x : samples<R>(1))
    for (const R y : samples<R>(2))
      for (const auto &[plain, checked] : pairs) {
        R value = 0, tested = 0;
        ASSERT_EQ(raisedBy([&] { value = plain(x, y); }), 0) << x << " " << y;
        ASSERT_EQ(raisedBy([&] { tested = checked(x, y); }), codeOf(value)) << x << " " << y;
        ASSERT_TRUE(codeOf(value) != 0 || sameReal(value, tested)) << x << " " << y;
      }
}

TYPED_TEST(RealEntries, SquareIsTheProductWithItself) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  for (const R x : samples<R>(3)) {
    R value = 0;
    ASSERT_TRUE(sameReal(e.square(x), e.times(x, x))) << x;
    ASSERT_EQ(raisedBy([&] { value = e.checkedSquare(x); }), codeOf(e.times(x, x))) << x;
  }
}

TYPED_TEST(RealEntries, MinusFlipsTheSignBitOfEveryValueAndRaisesNothing) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  for (const R x : samples<R>(4))
    for (auto minus : {e.minus, e.checkedMinus}) {
      R value = 0;
      ASSERT_EQ(raisedBy([&] { value = minus(x); }), 0) << x;
      ASSERT_NE(std::signbit(value), std::signbit(x)) << x;
      ASSERT_TRUE(sameReal(std::abs(value), std::abs(x))) << x;
    }
}

TYPED_TEST(RealEntries, SquareRootRaisesFourteenBelowZeroInBothFormsAndPassesNaN) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  for (const R x : samples<R>(5)) {
    R value = 0, tested = 0;
    const mint domain = x < 0 ? 14 : 0;
    ASSERT_EQ(raisedBy([&] { value = e.sqrt(x); }), domain) << x;
    ASSERT_EQ(raisedBy([&] { tested = e.checkedSqrt(x); }), domain != 0 ? domain : codeOf(value)) << x;
    if (domain == 0) ASSERT_TRUE(sameReal(value, std::sqrt(x))) << x;
  }
  EXPECT_TRUE(sameReal(e.sqrt(R(-0.0)), R(-0.0)));
  EXPECT_EQ(raisedBy([&] { e.checkedSqrt(std::numeric_limits<R>::infinity()); }), 6);
}

TYPED_TEST(RealEntries, RoundGoesToTheNearestIntegerTiesToEven) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  const std::pair<R, mint> cases[] = {{R(0.5), 0},   {R(1.5), 2},  {R(2.5), 2},  {R(-0.5), 0}, {R(-1.5), -2},
                                      {R(-2.5), -2}, {R(3.49), 3}, {R(3.51), 4}, {R(-0.0), 0}, {R(8388607.5), 8388608}};
  for (const auto &[x, expected] : cases)
    for (auto round : {e.round, e.checkedRound}) {
      mint value = -99;
      EXPECT_EQ(raisedBy([&] { value = round(x); }), 0) << x;
      EXPECT_EQ(value, expected) << x;
    }
  for (auto round : {e.round, e.checkedRound}) {
    const R infinity = std::numeric_limits<R>::infinity();
    for (const R x : {R(-2147483648.0), R(2147483648.0), R(1e30), infinity, -infinity})
      EXPECT_EQ(raisedBy([&] { round(x); }), 1) << x;
    // A NaN passes the range test and converts as the processor does.
    mint value = 0;
    EXPECT_EQ(raisedBy([&] { value = round(std::numeric_limits<R>::quiet_NaN()); }), 0);
    EXPECT_EQ(value, INT32_MIN);
  }
}

// The limits of the two widths differ by one, and are kept so.
TEST(RealRounding, UpperLimitDependsOnTheWidth) {
  EXPECT_EQ(unary_round_Real64(2147483646.4), 2147483646);
  EXPECT_EQ(raisedBy([] { unary_round_Real64(2147483646.6); }), 1);
  EXPECT_EQ(raisedBy([] { unary_round_Real64(2147483647.0); }), 1);
  EXPECT_EQ(unary_round_Real64(-2147483647.4), -2147483647);
  EXPECT_EQ(unary_round_Real32(2147483520.0f), 2147483520);
  EXPECT_EQ(unary_round_Real32(-2147483520.0f), -2147483520);
}

TEST(RealAxpy, RoundsTheProductBeforeTheSum) {
  const double a = 1 + 0x1p-30, x = 1 - 0x1p-30; // the exact product 1 - 2^-60 rounds to 1
  EXPECT_EQ(ternary_axpy_Real64_Real64_Real64(a, x, -1.0), 0.0);
  EXPECT_EQ(raisedBy([] { checked_ternary_axpy_Real64_Real64_Real64(1e200, 1e200, 0.0); }), 6);
  EXPECT_EQ(raisedBy([] { checked_ternary_axpy_Real64_Real64_Real64(1e200, 1e200, -HUGE_VAL); }), 9);
}

#ifdef HAVE_MPFR

template <class R> constexpr mpfr_prec_t kPrecision = std::numeric_limits<R>::digits;

// The exact result, rounded once to R with its subnormals. 2200 bits hold every sum, product and
// difference exactly, and a quotient or root far beyond a tie.
template <class R, class Operation> R roundedOnce(Operation operation) {
  mpfr_t exact;
  mpfr_init2(exact, 4400);
  operation(exact);
  const R result = sizeof(R) == 4 ? R(mpfr_get_flt(exact, MPFR_RNDN)) : R(mpfr_get_d(exact, MPFR_RNDN));
  mpfr_clear(exact);
  return result;
}

using MpfrBinary = int (*)(mpfr_t, const mpfr_t, const mpfr_t, mpfr_rnd_t);

template <class R> R oracle(MpfrBinary operation, R x, R y) {
  mpfr_t a, b;
  mpfr_inits2(53, a, b, static_cast<mpfr_ptr>(nullptr));
  mpfr_set_d(a, double(x), MPFR_RNDN);
  mpfr_set_d(b, double(y), MPFR_RNDN);
  const R result = roundedOnce<R>([&](mpfr_t exact) { operation(exact, a, b, MPFR_RNDN); });
  mpfr_clears(a, b, static_cast<mpfr_ptr>(nullptr));
  return result;
}

TYPED_TEST(RealEntries, ArithmeticIsCorrectlyRounded) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  const std::pair<R (*)(R, R), MpfrBinary> operators[] = {
      {e.plus, mpfr_add}, {e.subtract, mpfr_sub}, {e.times, mpfr_mul}, {e.divide, mpfr_div}};
  for (const R x : samples<R>(6)) {
    const std::vector<R> others = samples<R>(7);
    for (size_t k = 0; k < others.size(); k += 5)
      for (const auto &[entry, operation] : operators)
        ASSERT_TRUE(sameReal(entry(x, others[k]), oracle(operation, x, others[k]))) << x << " " << others[k];
  }
}

TYPED_TEST(RealEntries, SquareRootIsCorrectlyRounded) {
  using R = TypeParam;
  const Entries<R> e = entries<R>();
  for (const R sample : randomReals<R>(20000, 8)) {
    const R x = std::abs(sample);
    const R expected = roundedOnce<R>([&](mpfr_t exact) {
      mpfr_set_d(exact, double(x), MPFR_RNDN);
      mpfr_sqrt(exact, exact, MPFR_RNDN);
    });
    ASSERT_EQ(e.sqrt(x), expected) << x;
  }
}

#endif

} // namespace

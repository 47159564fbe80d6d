// Powers with a real or complex operand: types, values, domain, and the accuracy of the real one.
#include "scalar/bodies/powers.h"
#include "support/half_values.h"
#include "support/raised.h"
#include "support/real_samples.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <torvane/scalars.h>
#if __has_include(<mpfr.h>) && defined(__LP64__)
#include <mpfr.h>
#define TORVANE_WITH_MPFR
#endif

using namespace torvane;
using namespace torvane::test;

namespace {

// ---- types --------------------------------------------------------------------------------------

template <class X, class Y> using Power = ResultOf<binary::pow, X, Y>;
static_assert(isSame<Power<Integer8, UnsignedInteger64>, Integer8>);
static_assert(isSame<Power<Real16, Integer64>, Real16>);
static_assert(isSame<Power<Integer64, Real16>, Real16>);
static_assert(isSame<Power<Real16, Real32>, Real32>);
static_assert(isSame<Power<Real64, Real16>, Real64>);
static_assert(isSame<Power<Real32, Real64>, Real64>);
static_assert(isSame<Power<ComplexReal32, Integer64>, ComplexReal32>);
static_assert(isSame<Power<ComplexReal32, Real64>, ComplexReal64>);
static_assert(isSame<Power<Real64, ComplexReal32>, ComplexReal64>);
static_assert(isSame<Power<Real16, ComplexReal32>, ComplexReal32>);
static_assert(isSame<Power<Integer64, ComplexReal32>, ComplexReal32>);

// ---- real values --------------------------------------------------------------------------------

template <class T> double valueOf(T x) {
  if constexpr (isHalf<T>)
    return halfValue(x.bits);
  else
    return static_cast<double>(x);
}

// The C library's power in binary64, narrowed step by step to the result's width.
template <class Result> double expectedPower(double x, double y) {
  const double power = std::pow(x, y);
  if (isSame<Result, Real64>) return power;
  const auto narrowed = static_cast<float>(power);
  return isHalf<Result> ? halfValue(halfPattern(narrowed)) : narrowed;
}

template <class X, class Y> void expectPower(X x, Y y) {
  using Result = Power<X, Y>;
  const double a = valueOf(x), b = valueOf(y), power = expectedPower<Result>(a, b);
  const mint domain = a < 0 && b != std::floor(b) && b == b ? 14 : 0;
  const mint finite = std::isinf(power) ? 6 : std::isnan(power) ? 9 : 0;
  error plain = error::none, checked = error::none;
  const Result value = compute<binary::pow, Plain>(plain, x, y);
  compute<binary::pow, Checked>(checked, x, y);
  ASSERT_EQ(static_cast<mint>(plain), domain) << a << "^" << b;
  ASSERT_EQ(static_cast<mint>(checked), domain != 0 ? domain : finite) << a << "^" << b;
  if (domain == 0)
    ASSERT_TRUE(sameReal(valueOf(value), power)) << a << "^" << b << " gave " << valueOf(value);
}

template <class T> std::vector<T> sampleOf() {
  std::vector<T> values;
  if constexpr (isHalf<T>) {
    for (const uint32_t bits : {0u, 0x8000u, 1u, 0x3C00u, 0xBC00u, 0x4000u, 0xC200u, 0x3800u, 0xB800u,
                                0x3E00u, 0x7BFFu, 0x7C00u, 0xFC00u, 0x7E00u, 0x5640u})
      values.push_back({static_cast<uint16_t>(bits)});
  } else if constexpr (isReal<T>) {
    values = specialReals<T>();
    for (const double x : {0.1, -0.1, 7.25, -7.0, 100.0, 1e-3}) values.push_back(static_cast<T>(x));
  } else {
    for (const int x : {-128, -100, -3, -2, -1, 0, 1, 2, 3, 10, 100, 127, 200})
      values.push_back(static_cast<T>(x));
    values.push_back(kReserved<T>);
  }
  return values;
}
template <class X, class Y> void expectPowers() {
  for (const X x : sampleOf<X>())
    for (const Y y : sampleOf<Y>()) ASSERT_NO_FATAL_FAILURE((expectPower<X, Y>(x, y)));
}
template <class X, class... Y> void expectRowOf() { (expectPowers<X, Y>(), ...); }
template <class R> void expectRealBase() {
  expectRowOf<R, Integer8, UnsignedInteger8, Integer16, UnsignedInteger16, Integer32, UnsignedInteger32,
              Integer64, UnsignedInteger64, Real16, Real32, Real64>();
}

TEST(RealPower, IsTheLibrarysNarrowedForEveryPairOfTypes) {
  expectRealBase<Real16>();
  expectRealBase<Real32>();
  expectRealBase<Real64>();
  expectRowOf<Integer8, Real16, Real32, Real64>();
  expectRowOf<UnsignedInteger8, Real16, Real32, Real64>();
  expectRowOf<Integer16, Real16, Real32, Real64>();
  expectRowOf<UnsignedInteger16, Real16, Real32, Real64>();
  expectRowOf<Integer32, Real16, Real32, Real64>();
  expectRowOf<UnsignedInteger32, Real16, Real32, Real64>();
  expectRowOf<Integer64, Real16, Real32, Real64>();
  expectRowOf<UnsignedInteger64, Real16, Real32, Real64>();
}

TEST(RealPower, ToTheFirstPowerIsTheValueForAllPatternsOfReal16) {
  for (uint32_t bits = 0; bits < 65536; ++bits) {
    const auto x = static_cast<uint16_t>(bits);
    uint16_t result = 0;
    binary_pow_Real16_Integer32(&result, x, 1);
    ASSERT_TRUE(sameHalf(result, x)) << bits;
  }
}

TEST(RealPower, EntriesOfMixedPairsHaveTheirResultsConvention) {
  uint16_t half = 0;
  EXPECT_EQ(binary_pow_Integer64_Real16(&half, 2, halfPattern(3)), &half);
  EXPECT_EQ(halfValue(half), 8);
  EXPECT_EQ(binary_pow_Real32_Real64(2.0f, 0.5), std::sqrt(2.0));
  EXPECT_EQ(binary_pow_Real64_UnsignedInteger64(2.0, 10), 1024);
  double re = 0, im = 0;
  EXPECT_EQ(binary_pow_Real64_ComplexReal32(&re, &im, 2.0, 3.0f, 0.0f), &re);
  EXPECT_TRUE(re == 8 && im == 0);
  EXPECT_EQ(raisedBy([] { binary_pow_Real64_Real64(-8.0, 0.5); }), 14);
  EXPECT_EQ(raisedBy([] { checked_binary_pow_Real64_Real64(0.0, -1.0); }), 6);
}

// ---- complex values -----------------------------------------------------------------------------

// Small Gaussian integers: the product one factor after the other is exact.
template <class E> void expectGaussianPowers() {
  for (int a = -3; a <= 3; ++a)
    for (int b = -3; b <= 3; ++b)
      for (int n = 0; n <= 12; ++n) {
        int64_t re = 1, im = 0;
        for (int k = 0; k < n; ++k) {
          const int64_t next = re * a - im * b;
          im = re * b + im * a;
          re = next;
        }
        error code = error::none;
        const auto z =
            compute<binary::pow, Plain>(code, ComplexReal64{double(a), double(b)}, static_cast<E>(n));
        const bool isRefused = a == 0 && b == 0 && n == 0;
        ASSERT_EQ(static_cast<mint>(code), isRefused ? 14 : 0);
        if (!isRefused) ASSERT_TRUE(z.re == double(re) && z.im == double(im)) << a << " " << b << " ^" << n;
      }
}

TEST(ComplexPower, ToAnIntegerIsRepeatedMultiplication) {
  expectGaussianPowers<Integer8>();
  expectGaussianPowers<UnsignedInteger8>();
  expectGaussianPowers<Integer16>();
  expectGaussianPowers<UnsignedInteger16>();
  expectGaussianPowers<Integer32>();
  expectGaussianPowers<UnsignedInteger32>();
  expectGaussianPowers<Integer64>();
  expectGaussianPowers<UnsignedInteger64>();
}

TEST(ComplexPower, ToTheLargestIntegersKeepsItsParity) {
  double re = 0, im = 0;
  binary_pow_ComplexReal64_UnsignedInteger64(&re, &im, 0, 1, UINT64_MAX); // i^(4 k + 3)
  EXPECT_TRUE(re == 0 && im == -1);
  binary_pow_ComplexReal64_Integer64(&re, &im, -1, 0, INT64_MIN);
  EXPECT_TRUE(re == 1 && im == 0);
}

TEST(ComplexPower, OfZeroToANonPositiveIntegerIsRefused) {
  double re = 0, im = 0;
  for (const int8_t n : {int8_t{0}, int8_t{-1}, int8_t{-128}})
    for (auto pow : {binary_pow_ComplexReal64_Integer8, checked_binary_pow_ComplexReal64_Integer8})
      EXPECT_EQ(raisedBy([&] { pow(&re, &im, 0, 0, n); }), 14);
  EXPECT_EQ(raisedBy([&] { checked_binary_pow_ComplexReal64_Integer8(&re, &im, 1e300, 0, 2); }), 6);
}

// ---- accuracy -----------------------------------------------------------------------------------

#ifdef TORVANE_WITH_MPFR
double boundOfRow() {
  for (const BinaryRow &row : table::kBinary)
    if (row.number == 263) return row.accuracy.real;
  return 0;
}

// Bases of every magnitude, exponents that keep the power in range.
template <class R> void expectAccuracy(R (*pow)(R, R)) {
  const int digits = std::numeric_limits<R>::digits;
  const std::vector<R> values = randomReals<R>(40000, 29);
  mpfr_t x, y, exact, error;
  mpfr_inits2(300, x, y, exact, error, static_cast<mpfr_ptr>(nullptr));
  double worst = 0;
  R worstX = 0, worstY = 0;
  for (size_t k = 1; k < values.size(); ++k) {
    const R a = std::fabs(values[k]),
            b = std::fmod(values[k - 1], R(1)) * R(std::fabs(std::log(double(a))) < 1 ? 50 : 1);
    mpfr_set_d(x, a, MPFR_RNDN);
    mpfr_set_d(y, b, MPFR_RNDN);
    mpfr_pow(exact, x, y, MPFR_RNDN);
    const R result = pow(a, b);
    if (!std::isnormal(result)) continue;
    mpfr_sub_d(error, exact, result, MPFR_RNDN);
    const double ulps =
        std::fabs(mpfr_get_d(error, MPFR_RNDN)) / std::ldexp(1.0, std::ilogb(result) + 1 - digits);
    if (ulps > worst) worst = ulps, worstX = a, worstY = b;
  }
  mpfr_clears(x, y, exact, error, static_cast<mpfr_ptr>(nullptr));
  std::printf("pow, %d digits: worst %.3f ulp at %a ^ %a\n", digits, worst, double(worstX), double(worstY));
  EXPECT_LE(worst, boundOfRow());
  EXPECT_GT(worst, 0);
}

TEST(RealPower, IsWithinTheBoundOfItsRow) {
  expectAccuracy<double>(binary_pow_Real64_Real64);
  expectAccuracy<float>(binary_pow_Real32_Real32);
}
#endif

} // namespace

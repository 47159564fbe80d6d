// Reals to integers, fractions and remainders: all patterns of Real16, edges and random values of the wider
// types, grids of small fractions whose exact answers are integers.
#include "support/half_values.h"
#include "support/raised.h"
#include "support/real_samples.h"

#include <gtest/gtest.h>
#include <torvane/scalars.h>

using namespace torvane::test;

namespace {

enum class Way { nearest, down, up, toZero };
constexpr Way kWays[] = {Way::nearest, Way::down, Way::up, Way::toZero};

// The integer by way of the 64-bit one next toward zero; |x| < 2^62.
int64_t integerOf(Way way, double x) {
  const auto toZero = static_cast<int64_t>(x);
  const double rest = x - static_cast<double>(toZero); // exact
  const int away = x < 0 ? -1 : 1;
  switch (way) {
  case Way::down:
    return toZero - (rest < 0);
  case Way::up:
    return toZero + (rest > 0);
  case Way::nearest:
    return toZero + (std::fabs(rest) > 0.5 || (std::fabs(rest) == 0.5 && toZero % 2 != 0) ? away : 0);
  case Way::toZero:
    break;
  }
  return toZero;
}

template <class R> struct RoundingEntries {
  mint (*of[4])(R); // in the order of kWays
};
template <class R> void expectRounding(const RoundingEntries<R> &entries, double upperLimit, R x) {
  for (const Way way : kWays) {
    mint value = 0;
    const mint code = raisedBy([&] { value = entries.of[static_cast<int>(way)](x); });
    if (x != x) {
      ASSERT_TRUE(code == 0 && value == INT32_MIN) << static_cast<int>(way); // as the processor converts it
      continue;
    }
    const bool far = std::fabs(x) > 1e18;
    const int64_t exact = far ? 0 : integerOf(way, x);
    const bool refused = far || exact <= INT32_MIN || static_cast<double>(exact) >= upperLimit;
    ASSERT_EQ(code, refused ? 1 : 0) << static_cast<int>(way) << " of " << x;
    if (!refused) ASSERT_EQ(value, exact) << static_cast<int>(way) << " of " << x;
  }
}

// Every special value, eighths about 0 and about both ends of mint, and random values.
template <class R> std::vector<R> roundingSamples() {
  std::vector<R> samples = specialReals<R>();
  for (const double centre : {0.0, 2147483647.0, -2147483648.0})
    for (int k = -100; k <= 100; ++k) samples.push_back(R(centre + k / 8.0));
  for (const R x : randomReals<R>(4000, 5)) {
    int exponent;
    const R significand = std::frexp(x, &exponent);
    samples.push_back(std::ldexp(significand, exponent % 40));
  }
  return samples;
}

#define ROUNDING(T, prefix)                                                                                  \
  { prefix##_round_##T, prefix##_floor_##T, prefix##_ceiling_##T, prefix##_intpart_##T }

TEST(Rounding, OfReal64IsExactWithinTheRangeOfMint) {
  for (const double x : roundingSamples<double>()) {
    ASSERT_NO_FATAL_FAILURE(expectRounding<double>({ROUNDING(Real64, unary)}, 2147483647.0, x));
    ASSERT_NO_FATAL_FAILURE(expectRounding<double>({ROUNDING(Real64, checked_unary)}, 2147483647.0, x));
  }
}

// The upper limit is one above that of Real64: relied upon.
TEST(Rounding, OfReal32IsExactWithinTheRangeOfMint) {
  for (const float x : roundingSamples<float>()) {
    ASSERT_NO_FATAL_FAILURE(expectRounding<float>({ROUNDING(Real32, unary)}, 2147483648.0, x));
    ASSERT_NO_FATAL_FAILURE(expectRounding<float>({ROUNDING(Real32, checked_unary)}, 2147483648.0, x));
  }
}

// Of Real16 the nearest integer is the one toward zero.
TEST(Rounding, OfReal16IsExactForAllPatterns) {
  using Entry = mint (*)(uint16_t);
  const Entry forms[2][4] = {ROUNDING(Real16, unary), ROUNDING(Real16, checked_unary)};
  const Way ways[] = {Way::toZero, Way::down, Way::up, Way::toZero};
  for (uint32_t bits = 0; bits < 65536; ++bits)
    for (const auto &entries : forms)
      for (int k = 0; k < 4; ++k) {
        const double x = halfValue(uint16_t(bits));
        mint value = 0;
        ASSERT_EQ(raisedBy([&] { value = entries[k](uint16_t(bits)); }), std::isinf(x) ? 1 : 0) << bits;
        if (!std::isinf(x)) ASSERT_EQ(value, x != x ? INT32_MIN : integerOf(ways[k], x)) << bits << " " << k;
      }
}

TEST(Rounding, KeepsItsStatedEdges) {
  EXPECT_EQ(unary_floor_Real64(2147483646.5), 2147483646);
  EXPECT_EQ(raisedBy([] { unary_floor_Real64(2147483647.0); }), 1);
  EXPECT_EQ(unary_floor_Real32(2147483520.0f), 2147483520);
  EXPECT_EQ(raisedBy([] { unary_floor_Real64(-2147483648.0); }), 1);
  EXPECT_EQ(raisedBy([] { unary_floor_Real32(-2147483648.0f); }), 1);
  EXPECT_EQ(unary_round_Real16(0x4100), 2);
  EXPECT_EQ(unary_round_Real16(halfPattern(2.75)), 2);
  EXPECT_EQ(unary_floor_Real16(halfPattern(-0.5)), -1);
  EXPECT_EQ(unary_floor_Real16(0x8000), 0);
}

// ---- fractions ----------------------------------------------------------------------------------

double fractionOf(double x) { return std::copysign(std::isinf(x) ? 0 : x - std::trunc(x), x); }

template <class R> void expectFractions(R (*fracpart)(R), R (*mod1)(R)) {
  for (const R x : roundingSamples<R>()) {
    const R fraction = R(fractionOf(x));
    R part = 0, above = 0;
    ASSERT_EQ(raisedBy([&] { part = fracpart(x), above = mod1(x); }), 0);
    ASSERT_TRUE(sameReal(part, fraction)) << x << " " << part;
    ASSERT_TRUE(sameReal(above, x < 0 ? R(fraction + R(1)) : fraction)) << x << " " << above;
  }
}

TEST(Fraction, KeepsTheSignAndStandsAboveTheFloor) {
  expectFractions<double>(unary_fracpart_Real64, unary_mod1_Real64);
  expectFractions<double>(checked_unary_fracpart_Real64, checked_unary_mod1_Real64);
  expectFractions<float>(unary_fracpart_Real32, unary_mod1_Real32);
  expectFractions<float>(checked_unary_fracpart_Real32, checked_unary_mod1_Real32);
  EXPECT_EQ(unary_mod1_Real64(-3.0), 1.0); // by the rule, not 0
}

TEST(Fraction, OfReal16IsExactForAllPatterns) {
  for (uint32_t bits = 0; bits < 65536; ++bits) {
    const auto x = static_cast<uint16_t>(bits);
    const double value = halfValue(x), fraction = fractionOf(value);
    uint16_t part = 0, above = 0;
    ASSERT_EQ(unary_fracpart_Real16(&part, x), &part);
    ASSERT_EQ(part, isHalfNaN(x) ? x : halfPattern(fraction)) << bits;
    unary_mod1_Real16(&above, x);
    ASSERT_TRUE(sameHalf(above, halfPattern(value < 0 ? float(fraction) + 1.0f : fraction))) << bits;
  }
}

TEST(Fraction, OfAComplexIsThatOfEachPart) {
  double re = 0, im = 0;
  unary_fracpart_ComplexReal64(&re, &im, -2.75, 1.25);
  EXPECT_TRUE(re == -0.75 && im == 0.25);
  checked_unary_mod1_ComplexReal64(&re, &im, -2.75, 1.25);
  EXPECT_TRUE(re == 0.25 && im == 0.25);
  float ref = 0, imf = 0;
  unary_mod1_ComplexReal32(&ref, &imf, 2.5f, -0.25f);
  EXPECT_TRUE(ref == 0.5f && imf == 0.75f);
}

// ---- remainders ---------------------------------------------------------------------------------

int floored(int a, int b) { return a / b - (a % b != 0 && (a < 0) != (b < 0)); }

// On eighths every remainder and every quotient is exact.
template <class R, class Mod, class Quotient> void expectDivision(Mod mod, Quotient quotient) {
  for (int a = -150; a <= 150; ++a)
    for (int b = -40; b <= 40; ++b) {
      const R x = R(a) / 8, y = R(b) / 8;
      R rest = 0;
      mint whole = 0;
      ASSERT_EQ(raisedBy([&] { rest = mod(x, y); }), b == 0 ? 14 : 0) << a << " " << b;
      if (b != 0) ASSERT_EQ(rest, R(a - b * floored(a, b)) / 8) << a << " " << b;
      ASSERT_EQ(raisedBy([&] { whole = quotient(x, y); }), b == 0 && a != 0 ? 1 : 0) << a << " " << b;
      if (b != 0) ASSERT_EQ(whole, floored(a, b)) << a << " " << b;
      if (a == 0 && b == 0) ASSERT_EQ(whole, INT32_MIN); // a NaN, as the processor converts it
    }
}

template <uint16_t *(*entry)(uint16_t *, uint16_t, uint16_t)> float halfEntry(float x, float y) {
  uint16_t result = 0;
  entry(&result, halfPattern(x), halfPattern(y));
  return float(halfValue(result));
}
template <mint (*entry)(uint16_t, uint16_t)> mint halfWordEntry(float x, float y) {
  return entry(halfPattern(x), halfPattern(y));
}

TEST(Remainder, OfRealsTakesTheDivisorsSignAndTheQuotientIsFloored) {
  expectDivision<double>(binary_mod_Real64_Real64, binary_quotient_Real64_Real64);
  expectDivision<double>(checked_binary_mod_Real64_Real64, checked_binary_quotient_Real64_Real64);
  expectDivision<float>(binary_mod_Real32_Real32, binary_quotient_Real32_Real32);
  expectDivision<float>(checked_binary_mod_Real32_Real32, checked_binary_quotient_Real32_Real32);
  expectDivision<float>(halfEntry<binary_mod_Real16_Real16>, halfWordEntry<binary_quotient_Real16_Real16>);
  expectDivision<float>(halfEntry<checked_binary_mod_Real16_Real16>,
                        halfWordEntry<checked_binary_quotient_Real16_Real16>);
}

// Any two finite values: the sign of y or 0, and never y itself, though a sum may round to it.
template <class R> void expectBelowDivisor(R (*mod)(R, R)) {
  const std::vector<R> values = randomReals<R>(3000, 17);
  for (size_t k = 1; k < values.size(); ++k) {
    const R y = values[k], r = mod(values[k - 1], y);
    ASSERT_TRUE(r == 0 || (r < 0) == (y < 0)) << values[k - 1] << " " << y;
    ASSERT_LT(std::fabs(r), std::fabs(y)) << values[k - 1] << " " << y;
  }
}

TEST(Remainder, NeverEqualsTheDivisor) {
  expectBelowDivisor<double>(binary_mod_Real64_Real64);
  expectBelowDivisor<float>(binary_mod_Real32_Real32);
  EXPECT_EQ(binary_mod_Real64_Real64(-1e-20, 3.0), 0.0);
  EXPECT_EQ(binary_mod_Real32_Real32(-1e-10f, 3.0f), 0.0f); // the sum in binary32 is 3
  EXPECT_EQ(binary_mod_Real64_Real64(1e-20, -3.0), 0.0);
}

// An infinite divisor keeps what has its sign; else the sum is the divisor itself, which becomes 0. A remainder
// of 0 keeps the dividend's sign.
template <class R> void expectSignedRemainders(R (*mod)(R, R)) {
  const R infinity = std::numeric_limits<R>::infinity();
  EXPECT_EQ(mod(R(1), infinity), R(1));
  EXPECT_EQ(mod(R(-1), -infinity), R(-1));
  EXPECT_TRUE(sameReal(mod(R(-1), infinity), R(0)));
  EXPECT_TRUE(sameReal(mod(R(1), -infinity), R(0)));
  EXPECT_TRUE(sameReal(mod(R(-6), R(3)), R(-0.0)));
  EXPECT_TRUE(sameReal(mod(R(6), R(-3)), R(0)));
  EXPECT_TRUE(sameReal(mod(R(-0.0), R(3)), R(-0.0)));
}

TEST(Remainder, OfInfiniteDivisorsAndOfZero) {
  expectSignedRemainders<double>(binary_mod_Real64_Real64);
  expectSignedRemainders<double>(checked_binary_mod_Real64_Real64);
  expectSignedRemainders<float>(binary_mod_Real32_Real32);
  EXPECT_EQ(binary_mod_Real64_Real64(-1e-20, 1.0), 0.0);
}

// A checked remainder of reals tests nothing but the divisor.
TEST(Remainder, OfRealsPassesNaNs) {
  double r = 0;
  EXPECT_EQ(raisedBy([&] { r = checked_binary_mod_Real64_Real64(HUGE_VAL, 3.0); }), 0);
  EXPECT_NE(r, r);
  EXPECT_EQ(raisedBy([&] { r = checked_binary_mod_Real64_Real64(1.0, NAN); }), 0);
  EXPECT_NE(r, r);
}

// ---- complex remainders -------------------------------------------------------------------------

int nearestQuotient(int a, int b) { // ties to even, b > 0
  const int down = floored(a, b), twice = 2 * (a - b * down);
  return down + (twice > b || (twice == b && down % 2 != 0));
}

// Of small Gaussian integers, divisors with a modulus whose square is a power of two divide exactly, ties
// included; of the others ties are left out.
template <class R, class Mod> void expectGaussian(Mod mod) {
  for (int a = -9; a <= 9; ++a)
    for (int b = -9; b <= 9; ++b)
      for (int c = -4; c <= 4; ++c)
        for (int d = -4; d <= 4; ++d) {
          const int norm = c * c + d * d, re = a * c + b * d, im = b * c - a * d;
          if (norm == 0 || (b == 0 && d == 0)) continue;
          const bool exact = (norm & (norm - 1)) == 0;
          if (!exact && (2 * re % norm == 0 || 2 * im % norm == 0) && (re % norm != 0 || im % norm != 0))
            continue;
          const int qr = nearestQuotient(re, norm), qi = nearestQuotient(im, norm);
          R r = 0, i = 0;
          ASSERT_EQ(raisedBy([&] { mod(&r, &i, R(a), R(b), R(c), R(d)); }), 0);
          ASSERT_TRUE(r == R(a - (c * qr - d * qi)) && i == R(b - (c * qi + d * qr)))
              << a << " " << b << " mod " << c << " " << d << " gave " << r << " " << i;
        }
}

TEST(ComplexRemainder, TakesTheNearestGaussianInteger) {
  expectGaussian<double>(binary_mod_ComplexReal64_ComplexReal64);
  expectGaussian<double>(checked_binary_mod_ComplexReal64_ComplexReal64);
  expectGaussian<float>(binary_mod_ComplexReal32_ComplexReal32);
}

TEST(ComplexRemainder, OfTwoRealsIsTheRealOne) {
  double re = 9, im = 9;
  binary_mod_ComplexReal64_ComplexReal64(&re, &im, -7, 0, 3, 0);
  EXPECT_TRUE(re == 2 && im == 0);
}

TEST(ComplexRemainder, RefusesZeroAndQuotientsBeyond32Bits) {
  double re = 0, im = 0;
  const auto code = [&](auto mod, double x, double y, double c) {
    return raisedBy([&] { mod(&re, &im, x, y, c, 0.0); });
  };
  for (auto mod : {binary_mod_ComplexReal64_ComplexReal64, checked_binary_mod_ComplexReal64_ComplexReal64}) {
    EXPECT_EQ(code(mod, 1, 1, 0), 14);
    EXPECT_EQ(code(mod, 2147483648.0, 1, 1), 1);
    EXPECT_EQ(code(mod, 2147483647.0, 1, 1), 1); // refused by round as well
    EXPECT_EQ(code(mod, 2147483646.0, 1, 1), 0);
    EXPECT_EQ(code(mod, -2147483648.0, 1, 1), 1);
    EXPECT_EQ(code(mod, -2147483647.0, 1, 1), 0);
    EXPECT_EQ(code(mod, 1, 2147483648.0, 1), 1);
  }
  EXPECT_EQ(code(binary_mod_ComplexReal64_ComplexReal64, NAN, 1, 1), 0);
  EXPECT_EQ(code(checked_binary_mod_ComplexReal64_ComplexReal64, NAN, 1, 1), 9);
}

} // namespace

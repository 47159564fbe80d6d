// Real16: widening of all patterns, narrowing by truncation, the entries of the table's operators.
#include "scalar/half.h"
#include "support/raised.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <torvane/scalars.h>

using namespace torvane;
using namespace torvane::test;

namespace {

// The value of a pattern by the definition of binary16.
double valueOf(uint16_t bits) {
  const int exponent = bits >> 10 & 31, fraction = bits & 0x3FF;
  const double sign = bits >> 15 ? -1 : 1;
  if (exponent == 31) return fraction == 0 ? sign * HUGE_VAL : NAN;
  if (exponent == 0) return sign * std::ldexp(fraction, -24);
  return sign * std::ldexp(1024 + fraction, exponent - 25);
}

// The largest pattern not above |x| in magnitude, with x's sign; infinity from 65536 on.
uint16_t truncated(double x) {
  const uint16_t sign = std::signbit(x) ? 0x8000 : 0;
  const double magnitude = std::fabs(x);
  if (magnitude >= 65536) return sign | kHalfInfinity;
  uint16_t low = 0, high = kHalfInfinity; // value(low) <= magnitude < value(high)
  while (high - low > 1) {
    const uint16_t middle = static_cast<uint16_t>((low + high) / 2);
    (valueOf(middle) <= magnitude ? low : high) = middle;
  }
  return sign | low;
}

uint16_t patternOf(Real16 x) { return x.bits; }

TEST(HalfConversion, WideningIsExactForAllPatterns) {
  for (uint32_t bits = 0; bits < 65536; ++bits) {
    const uint16_t pattern = static_cast<uint16_t>(bits);
    const float wide = widen(Real16{pattern});
    const double expected = valueOf(pattern);
    if (std::isnan(expected))
      ASSERT_TRUE(std::isnan(wide)) << bits;
    else
      ASSERT_TRUE(double(wide) == expected && std::signbit(wide) == std::signbit(expected)) << bits;
  }
}

TEST(HalfConversion, NarrowingTruncatesEveryExponentAndTopFraction) {
  for (uint32_t sign = 0; sign < 2; ++sign)
    for (uint32_t exponent = 0; exponent < 255; ++exponent)
      for (uint32_t top = 0; top < 4096; ++top)
        for (const uint32_t low : {0u, 0x7FFu}) {
          const uint32_t bits = sign << 31 | exponent << 23 | top << 11 | low;
          float x;
          std::memcpy(&x, &bits, sizeof x);
          ASSERT_EQ(patternOf(narrow(x)), truncated(x)) << x;
        }
}

TEST(HalfConversion, EveryNumberSurvivesTheRoundTrip) {
  for (uint32_t bits = 0; bits < 65536; ++bits) {
    const Real16 x = {static_cast<uint16_t>(bits)};
    if (!isNaN(x)) ASSERT_EQ(patternOf(narrow(widen(x))), bits);
  }
  EXPECT_EQ(patternOf(narrow(65520.0f)), 0x7BFF);
  EXPECT_EQ(patternOf(narrow(65536.0f)), 0x7C00);
}

// A NaN without a bit among its top ten narrows to infinity: results rest on it.
TEST(HalfConversion, NaNWithLowBitsOnlyBecomesInfinity) {
  const uint32_t low = 0x7F800001, quiet = 0x7FC00000;
  float x, y;
  std::memcpy(&x, &low, sizeof x);
  std::memcpy(&y, &quiet, sizeof y);
  EXPECT_EQ(patternOf(narrow(x)), kHalfInfinity);
  EXPECT_EQ(patternOf(narrow(y)), 0x7E00);
}

TEST(HalfEntries, MinusFlipsTheSignOfEveryPattern) {
  for (uint32_t bits = 0; bits < 65536; ++bits) {
    uint16_t result = 0;
    uint16_t *returned = unary_minus_Real16(&result, static_cast<uint16_t>(bits));
    ASSERT_EQ(returned, &result);
    ASSERT_EQ(result, bits ^ 0x8000);
  }
}

TEST(HalfEntries, RoundTruncatesAndRefusesInfinities) {
  for (uint32_t bits = 0; bits < 65536; ++bits) {
    const double x = valueOf(static_cast<uint16_t>(bits));
    mint value = 0;
    const mint code = raisedBy([&] { value = unary_round_Real16(static_cast<uint16_t>(bits)); });
    ASSERT_EQ(code, std::isinf(x) ? 1 : 0) << bits;
    if (std::isfinite(x)) ASSERT_EQ(value, static_cast<mint>(std::trunc(x))) << bits;
  }
  EXPECT_EQ(unary_round_Real16(0x4100), 2); // 2.5
  EXPECT_EQ(checked_unary_round_Real16(0x4180), 2); // 2.75
}

TEST(HalfEntries, ArithmeticGoesThroughBinary32AndTruncates) {
  for (uint32_t x = 0; x < 65536; x += 97)
    for (uint32_t y = 0; y < 65536; y += 89) {
      const uint16_t a = static_cast<uint16_t>(x), b = static_cast<uint16_t>(y);
      const float u = float(valueOf(a)), v = float(valueOf(b));
      const float expected[] = {u + v, u - v, u * v, u / v};
      uint16_t result[4];
      binary_plus_Real16_Real16(result, a, b);
      binary_subtract_Real16_Real16(result + 1, a, b);
      binary_times_Real16_Real16(result + 2, a, b);
      binary_divide_Real16_Real16(result + 3, a, b);
      for (int k = 0; k < 4; ++k) {
        if (std::isnan(expected[k]))
          ASSERT_TRUE(isNaN(Real16{result[k]})) << x << " " << y << " " << k;
        else
          ASSERT_EQ(result[k], truncated(expected[k])) << x << " " << y << " " << k;
      }
    }
}

TEST(HalfEntries, CodesComeFromTheNarrowedPattern) {
  uint16_t result = 0;
  const uint16_t x256 = 0x5C00, largest = 0x7BFF, one = 0x3C00;
  EXPECT_EQ(raisedBy([&] { checked_binary_times_Real16_Real16(&result, x256, x256); }), 6);
  EXPECT_EQ(raisedBy([&] { binary_times_Real16_Real16(&result, x256, x256); }), 0);
  EXPECT_EQ(result, kHalfInfinity);
  // 65504 + 1 is finite in binary32 and truncates to 65504.
  EXPECT_EQ(raisedBy([&] { checked_binary_plus_Real16_Real16(&result, largest, one); }), 0);
  EXPECT_EQ(result, largest);
  EXPECT_EQ(raisedBy([&] { checked_binary_subtract_Real16_Real16(&result, kHalfInfinity, kHalfInfinity); }), 9);
  // 0.0004 is lost below 1.0.
  binary_plus_Real16_Real16(&result, one, 0x0E8D);
  EXPECT_EQ(result, one);
}

TEST(HalfEntries, SquareRootRaisesBelowZeroAndPassesNegativeZero) {
  for (uint32_t bits = 0; bits < 65536; ++bits) {
    const double x = valueOf(static_cast<uint16_t>(bits));
    uint16_t result = 0;
    ASSERT_EQ(raisedBy([&] { unary_sqrt_Real16(&result, static_cast<uint16_t>(bits)); }), x < 0 ? 14 : 0) << bits;
    if (x >= 0 && std::isfinite(x)) ASSERT_EQ(result, truncated(std::sqrt(float(x)))) << bits;
  }
}

} // namespace

// Real16: the conversion tables by their rule, widening of all patterns, narrowing by truncation, and the
// arithmetic entries against a model in binary64.
#include "scalar/half.h"
#include "support/half_values.h"
#include "support/raised.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <torvane/scalars.h>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

float floatOf(uint32_t bits) {
  float x;
  std::memcpy(&x, &bits, sizeof x);
  return x;
}
uint16_t narrowed(uint32_t bits) { return narrow(floatOf(bits)).bits; }

// ---- tables -------------------------------------------------------------------------------------

TEST(HalfTables, OfMantissasAreSubnormalsNormalisedAndFractionsShifted) {
  EXPECT_EQ(kHalfTables.mantissa[0], 0u);
  for (int i = 1; i < 1024; ++i) EXPECT_EQ(floatOf(kHalfTables.mantissa[i]), std::ldexp(float(i), -24)) << i;
  for (uint32_t i = 1024; i < 2048; ++i)
    EXPECT_EQ(kHalfTables.mantissa[i], 0x38000000 + ((i - 1024) << 13)) << i;
}

TEST(HalfTables, OfExponentsAndOffsetsSingleOutZerosAndInfinities) {
  for (uint32_t i = 0; i < 64; ++i) {
    const uint32_t low = i & 31, sign = i < 32 ? 0 : 0x80000000;
    EXPECT_EQ(kHalfTables.exponent[i], sign + (low == 31 ? 0x47800000 : low << 23)) << i;
    EXPECT_EQ(kHalfTables.offset[i], low == 0 ? 0 : 1024) << i;
  }
}

TEST(HalfTables, OfBasesAndShiftsFollowTheExponent) {
  for (int i = 0; i < 512; ++i) {
    const int e = (i & 255) - 127, sign = i < 256 ? 0 : 0x8000;
    const int base = e < -24 ? 0 : e < -14 ? 0x400 >> (-e - 14) : e <= 15 ? (e + 15) << 10 : 0x7C00;
    const int shift = e < -24 ? 24 : e < -14 ? -e - 1 : e <= 15 ? 13 : e < 128 ? 24 : 13;
    EXPECT_EQ(kHalfTables.base[i], sign | base) << i;
    EXPECT_EQ(kHalfTables.shift[i], shift) << i;
  }
}

// ---- conversion ---------------------------------------------------------------------------------

TEST(HalfConversion, WideningIsExactForAllPatterns) {
  for (uint32_t bits = 0; bits < 65536; ++bits) {
    const float wide = widen(Real16{uint16_t(bits)});
    const double expected = halfValue(uint16_t(bits));
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
          ASSERT_EQ(narrowed(bits), halfPattern(double(floatOf(bits)))) << bits;
        }
}

// A NaN without a bit among its top ten narrows to infinity: results rest on it.
TEST(HalfConversion, NarrowingKeepsTheTopTenBitsOfANaN) {
  for (uint32_t sign = 0; sign < 2; ++sign)
    for (uint32_t top = 0; top < 4096; ++top)
      for (const uint32_t low : {0u, 0x7FFu}) {
        const uint16_t pattern = narrowed(sign << 31 | 0x7F800000u | top << 11 | low);
        ASSERT_EQ(pattern, (sign << 15 | kHalfInfinity | top >> 2)) << top;
        ASSERT_EQ(isNaN(Real16{pattern}), top >> 2 != 0) << top;
      }
}

TEST(HalfConversion, EveryNumberSurvivesTheRoundTrip) {
  for (uint32_t bits = 0; bits < 65536; ++bits) {
    const Real16 x = {uint16_t(bits)};
    if (!isNaN(x)) ASSERT_EQ(narrow(widen(x)).bits, bits);
  }
  EXPECT_EQ(narrow(65520.0f).bits, 0x7BFF);
  EXPECT_EQ(narrow(65536.0f).bits, 0x7C00);
  EXPECT_EQ(narrow(-0.0f).bits, 0x8000);
}

// ---- arithmetic ---------------------------------------------------------------------------------

// halfPattern, by a table of all values, since millions are asked for.
class Truncation {
public:
  Truncation() {
    for (uint16_t bits = 0; bits <= kHalfInfinity; ++bits) values.push_back(halfValue(bits));
    values.back() = 65536; // where infinity begins
  }
  uint16_t operator()(double x) const {
    if (std::isnan(x)) return 0x7E00;
    const auto above = std::upper_bound(values.begin(), values.end(), std::fabs(x));
    return uint16_t(above - values.begin() - 1) | (std::signbit(x) ? 0x8000 : 0);
  }

private:
  std::vector<double> values;
};

// 2,000 of the 65,536 patterns: every 33rd, and those where something changes.
std::vector<uint16_t> patterns() {
  std::vector<uint16_t> set = {0x0001, 0x03FF, 0x0400, 0x3BFF, 0x3C00, 0x3C01, 0x7BFF,
                               0x7C00, 0x7C01, 0x7E00, 0x8000, 0xBC00, 0xFBFF, 0xFC00};
  for (uint32_t bits = 0; bits < 65536; bits += 33) set.push_back(uint16_t(bits));
  return set;
}

using Pair = uint16_t *(*)(uint16_t *, uint16_t, uint16_t);
struct Operation {
  const char *name;
  Pair plain, checked;
  double (*exact)(double, double); // before it is rounded to binary32; binary64 is exact or rounds harmlessly
};
#define OPERATION(name, expression)                                                                          \
  {                                                                                                          \
#name, binary_##name##_Real16_Real16, checked_binary_##name##_Real16_Real16,                             \
        [](double x, double y) { return expression; }                                                        \
  }

mint codeOf(uint16_t pattern) { return isHalfNaN(pattern) ? 9 : (pattern & 0x7FFF) == kHalfInfinity ? 6 : 0; }

// Sums and products of two patterns are exact in binary64; the quotient's second rounding, to less than half
// the digits, cannot show.
TEST(HalfArithmetic, IsTheBinary32ResultCutOffForAllPairsOfTwoThousandPatterns) {
  const Operation operations[] = {OPERATION(plus, x + y), OPERATION(subtract, x - y), OPERATION(times, x * y),
                                  OPERATION(divide, x / y)};
  const std::vector<uint16_t> set = patterns();
  ASSERT_EQ(set.size(), 2000u);
  const Truncation truncated;
  for (const Operation &operation : operations)
    for (const uint16_t x : set)
      for (const uint16_t y : set) {
        const uint16_t expected = truncated(float(operation.exact(halfValue(x), halfValue(y))));
        uint16_t plain = 0, checked = 0;
        ASSERT_EQ(operation.plain(&plain, x, y), &plain);
        ASSERT_TRUE(sameHalf(plain, expected)) << operation.name << " " << x << " " << y;
        const mint code = raisedBy([&] { operation.checked(&checked, x, y); });
        ASSERT_EQ(code, codeOf(expected)) << operation.name << " " << x << " " << y;
        if (code == 0) ASSERT_EQ(checked, expected) << operation.name << " " << x << " " << y;
      }
}

TEST(HalfArithmetic, PlainFormsRaiseNothing) {
  const std::vector<uint16_t> set = patterns();
  EXPECT_EQ(raisedBy([&] {
              uint16_t result;
              for (const uint16_t x : set)
                for (const uint16_t y : {uint16_t{0}, uint16_t{0x7BFF}, kHalfInfinity, uint16_t{0x7E00}})
                  for (const Pair entry : {binary_plus_Real16_Real16, binary_subtract_Real16_Real16,
                                           binary_times_Real16_Real16, binary_divide_Real16_Real16})
                    entry(&result, x, y);
            }),
            0);
}

TEST(HalfArithmetic, CodesComeFromTheNarrowedPattern) {
  uint16_t result = 0;
  const uint16_t x256 = 0x5C00, largest = 0x7BFF, one = 0x3C00;
  EXPECT_EQ(raisedBy([&] { checked_binary_times_Real16_Real16(&result, x256, x256); }), 6);
  EXPECT_EQ(raisedBy([&] { binary_times_Real16_Real16(&result, x256, x256); }), 0);
  EXPECT_EQ(result, kHalfInfinity);
  // 65504 + 16 is finite in binary32 and truncates to 65504.
  EXPECT_EQ(raisedBy([&] { checked_binary_plus_Real16_Real16(&result, largest, 0x4C00); }), 0);
  EXPECT_EQ(result, largest);
  // 65504 + 32 is 65536.
  EXPECT_EQ(raisedBy([&] { checked_binary_plus_Real16_Real16(&result, largest, 0x5000); }), 6);
  EXPECT_EQ(raisedBy([&] { checked_binary_subtract_Real16_Real16(&result, kHalfInfinity, kHalfInfinity); }),
            9);
  // 0.0004 is lost below 1.0.
  binary_plus_Real16_Real16(&result, one, 0x0E8D);
  EXPECT_EQ(result, one);
}

template <class Exponent, class Entry> void expectFirstPower(Entry plain, Entry checked) {
  for (uint32_t bits = 0; bits < 65536; ++bits) {
    const auto x = uint16_t(bits);
    uint16_t result = 0;
    ASSERT_EQ(raisedBy([&] { plain(&result, x, Exponent(1)); }), 0) << bits;
    ASSERT_TRUE(sameHalf(result, x)) << bits;
    ASSERT_EQ(raisedBy([&] { checked(&result, x, Exponent(1)); }), codeOf(x)) << bits;
    ASSERT_TRUE(sameHalf(result, x)) << bits;
  }
}

TEST(HalfArithmetic, AnIntegerExponentOfOneGivesTheValueItself) {
#define FIRST_POWER(E, type) expectFirstPower<type>(binary_pow_Real16_##E, checked_binary_pow_Real16_##E);
  FIRST_POWER(Integer8, int8_t)
  FIRST_POWER(UnsignedInteger8, uint8_t)
  FIRST_POWER(Integer16, int16_t)
  FIRST_POWER(UnsignedInteger16, uint16_t)
  FIRST_POWER(Integer32, int32_t)
  FIRST_POWER(UnsignedInteger32, uint32_t)
  FIRST_POWER(Integer64, int64_t)
  FIRST_POWER(UnsignedInteger64, uint64_t)
}

// ---- roots --------------------------------------------------------------------------------------

TEST(HalfEntries, RootsRaiseBelowZeroAndPassNegativeZero) {
  for (uint32_t bits = 0; bits < 65536; ++bits) {
    const double x = halfValue(uint16_t(bits));
    uint16_t root = 0, inverse = 0;
    ASSERT_EQ(raisedBy([&] { unary_sqrt_Real16(&root, uint16_t(bits)); }), x < 0 ? 14 : 0) << bits;
    ASSERT_EQ(raisedBy([&] { unary_rsqrt_Real16(&inverse, uint16_t(bits)); }), x < 0 ? 14 : 0) << bits;
    if (x < 0) continue;
    ASSERT_TRUE(sameHalf(root, halfPattern(float(std::sqrt(x))))) << bits;
    ASSERT_TRUE(sameHalf(inverse, halfPattern(float(1 / std::sqrt(x))))) << bits;
  }
}

} // namespace

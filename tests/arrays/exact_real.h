// Reals as sign, integer and power of two, with the few operations that the model of conversions needs, all
// of them exact: no floating-point arithmetic is in here.
#pragma once

#include <bit>
#include <cstdint>

namespace torvane::test {

struct ExactReal {
  enum Class { finite, infinite, notANumber };
  Class is = finite;
  bool negative = false; // also of a zero
  uint64_t mantissa = 0; // odd, or 0
  int exponent = 0;

  static ExactReal of(bool negative, uint64_t mantissa, int exponent) {
    ExactReal x = {finite, negative, mantissa, exponent};
    for (; x.mantissa != 0 && x.mantissa % 2 == 0; ++x.exponent) x.mantissa /= 2;
    if (x.mantissa == 0) x.exponent = 0;
    return x;
  }
  static ExactReal ofInteger(int64_t v) { return of(v < 0, v < 0 ? 0 - uint64_t(v) : uint64_t(v), 0); }

  // From an IEEE pattern with this many bits of fraction and of exponent.
  static ExactReal ofPattern(uint64_t bits, int fractionBits, int exponentBits) {
    const uint64_t fraction = bits & ((uint64_t{1} << fractionBits) - 1);
    const int top = (1 << exponentBits) - 1, biased = int(bits >> fractionBits) & top;
    const bool isNegative = (bits >> (fractionBits + exponentBits)) != 0;
    if (biased == top) return {fraction == 0 ? infinite : notANumber, isNegative, 0, 0};
    const uint64_t hidden = biased == 0 ? 0 : uint64_t{1} << fractionBits;
    return of(isNegative, fraction | hidden, (biased == 0 ? 1 : biased) - (top >> 1) - fractionBits);
  }
  static ExactReal of(double x) { return ofPattern(std::bit_cast<uint64_t>(x), 52, 11); }
  static ExactReal of(float x) { return ofPattern(std::bit_cast<uint32_t>(x), 23, 8); }

  bool isFinite() const { return is == finite; }
  bool isNaN() const { return is == notANumber; }
  bool isZero() const { return is == finite && mantissa == 0; }
  bool isBelowZero() const { return negative && !isNaN() && !isZero(); }
  int leading() const { return exponent + 63 - std::countl_zero(mantissa); } // power of two of the first bit

  ExactReal abs() const {
    ExactReal x = *this;
    x.negative = false;
    return x;
  }
  ExactReal times2To(int k) const {
    return isZero() || !isFinite() ? *this : of(negative, mantissa, exponent + k);
  }

  // The nearest with this many bits, ties to even; exponents have no limit.
  ExactReal roundedTo(int bits) const {
    const int excess = 64 - std::countl_zero(mantissa) - bits;
    return excess <= 0 ? *this : shiftedOut(excess);
  }
  // The nearest integer, ties to even.
  ExactReal rounded() const {
    if (!isFinite() || exponent >= 0) return *this;
    return -exponent > 64 ? of(negative, 0, 0) : shiftedOut(-exponent);
  }
  ExactReal truncated() const {
    if (!isFinite() || exponent >= 0) return *this;
    return of(negative, -exponent > 63 ? 0 : mantissa >> -exponent, 0);
  }
  // Of a finite integral value within 64 bits.
  uint64_t pattern() const {
    const uint64_t magnitude = mantissa << exponent;
    return negative ? 0 - magnitude : magnitude;
  }
  // As an IEEE pattern; must be a value of the format.
  uint64_t patternOf(int fractionBits, int exponentBits) const {
    const uint64_t sign = uint64_t{negative} << (fractionBits + exponentBits);
    const uint64_t top = (uint64_t{1} << exponentBits) - 1;
    if (is != finite) return sign | top << fractionBits | (isNaN() ? uint64_t{1} << (fractionBits - 1) : 0);
    if (mantissa == 0) return sign;
    const int bias = int(top >> 1);
    if (leading() < 1 - bias) return sign | mantissa << (exponent + bias - 1 + fractionBits);
    const uint64_t significand = mantissa << (fractionBits - (63 - std::countl_zero(mantissa)));
    const auto biased = uint64_t(leading() + bias);
    return sign | biased << fractionBits | (significand & ((uint64_t{1} << fractionBits) - 1));
  }

  // -1, 0, 1; neither a NaN.
  friend int compare(const ExactReal &x, const ExactReal &y) {
    if (x.isZero() || y.isZero() || x.negative != y.negative) {
      const auto sign = [](const ExactReal &v) { return v.isZero() ? 0 : v.negative ? -1 : 1; };
      return (sign(x) > sign(y)) - (sign(x) < sign(y));
    }
    const int size = compareSizes(x, y);
    return x.negative ? -size : size;
  }

private:
  static int compareSizes(const ExactReal &x, const ExactReal &y) {
    if (x.is != y.is) return x.is == infinite ? 1 : -1;
    if (x.is == infinite) return 0;
    if (x.leading() != y.leading()) return x.leading() < y.leading() ? -1 : 1;
    const uint64_t a = x.mantissa << std::countl_zero(x.mantissa),
                   b = y.mantissa << std::countl_zero(y.mantissa);
    return (a > b) - (a < b);
  }
  // Rounds away the low `count` bits of the mantissa, 1 to 64.
  ExactReal shiftedOut(int count) const {
    const uint64_t kept = count == 64 ? 0 : mantissa >> count;
    const uint64_t half = uint64_t{1} << (count - 1);
    const uint64_t rest = count == 64 ? mantissa : mantissa & ((half << 1) - 1);
    const bool up = rest > half || (rest == half && kept % 2 == 1);
    return of(negative, kept + up, exponent + count);
  }
};

// Whether two values agree within a whole number of bits of 53.
inline bool modelAgree(int tolerance, const ExactReal &x, const ExactReal &y) {
  if (x.isNaN() || y.isNaN()) return false;
  if (compare(x, y) == 0) return true;
  if (x.isZero() || y.isZero() || x.negative != y.negative) return false;
  if (tolerance >= 53) return true;
  if (tolerance <= 0 || !x.isFinite() || !y.isFinite()) return false;
  const ExactReal &larger = compare(x.abs(), y.abs()) > 0 ? x : y, &smaller = &larger == &x ? y : x;
  const int apart = larger.leading() - smaller.leading();
  if (apart > 1) return false; // less than half of it
  const auto aligned = [](const ExactReal &v) { return v.mantissa << (std::countl_zero(v.mantissa) - 1); };
  const uint64_t m = aligned(larger), d = m - (aligned(smaller) >> apart);
  const int k = 53 - tolerance;
  return d * 2 < m && d < (m + ((uint64_t{1} << k) - 1)) >> k;
}

} // namespace torvane::test

// Binary16 by its definition, for tests: value of a pattern, and the pattern below a value.
#pragma once

#include <cmath>
#include <cstdint>

namespace torvane::test {

inline double halfValue(uint16_t bits) {
  const int exponent = bits >> 10 & 31, fraction = bits & 0x3FF;
  const double sign = bits >> 15 ? -1 : 1;
  if (exponent == 31) return fraction == 0 ? sign * HUGE_VAL : NAN;
  if (exponent == 0) return sign * std::ldexp(fraction, -24);
  return sign * std::ldexp(1024 + fraction, exponent - 25);
}

// The largest pattern not above |x| in magnitude, with x's sign; infinity from 65536 on, NaNs as one.
inline uint16_t halfPattern(double x) {
  const uint16_t sign = std::signbit(x) ? 0x8000 : 0;
  if (std::isnan(x)) return 0x7E00;
  if (std::fabs(x) >= 65536) return sign | 0x7C00;
  uint16_t low = 0, high = 0x7C00; // value(low) <= |x| < value(high)
  while (high - low > 1) {
    const auto middle = static_cast<uint16_t>((low + high) / 2);
    (halfValue(middle) <= std::fabs(x) ? low : high) = middle;
  }
  return sign | low;
}

inline bool isHalfNaN(uint16_t bits) { return (bits & 0x7FFF) > 0x7C00; }
inline bool sameHalf(uint16_t x, uint16_t y) { return x == y || (isHalfNaN(x) && isHalfNaN(y)); }

} // namespace torvane::test

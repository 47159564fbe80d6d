// Whether two reals agree within some bits of a 53-bit significand, which is what conversions and the
// equality of arrays ask. Real32 values are compared by the same factor, narrowed.
//
// It is not the tolerant comparison of tolerance.h: here no tolerance of 0 or below accepts more than equal
// values, and the rejection of differences of half the larger value comes before the factor at all times.
#pragma once

#include <torvane/tolerance.h>

namespace torvane {

inline constexpr mreal kAllBits = 53;

// 2^(tolerance - 53), where a tolerance asks for it. Whole numbers of bits, the usual ones, are made of their
// exponent: short arrays would spend their time in the general way.
inline mreal agreementFactor(mreal tolerance) {
  if (!(tolerance > 0 && tolerance < kAllBits)) return 0;
  const auto whole = static_cast<uint32_t>(tolerance);
  if (whole != tolerance) return ToleranceShiftFactor(tolerance);
  return __builtin_bit_cast(mreal, uint64_t{1023 - 53 + whole} << 52);
}

template <class R> R magnitudeOf(R x) { return x < 0 ? -x : x; }

// Two values of one sign, neither 0. A magnitude of 1 or more takes the factor, a smaller one leaves it to
// the difference, so that nothing overflows or underflows; halves are taken where they are exact.
template <class R> bool agreeWithin(R factor, R x, R y) {
  const R d = magnitudeOf(x - y), a = magnitudeOf(x), b = magnitudeOf(y), m = a > b ? a : b;
  if (m >= 1 ? d >= m * R(0.5) : d * 2 >= m) return false;
  return m >= 1 ? d < m * factor : d / factor < m;
}

template <class R> bool agree(mreal tolerance, mreal factor, R x, R y) {
  if (x == y) return true;
  if (x == 0 || y == 0 || x != x || y != y || (x < 0) != (y < 0)) return false;
  if (tolerance >= kAllBits) return true;
  return tolerance > 0 && agreeWithin(static_cast<R>(factor), x, y);
}

} // namespace torvane

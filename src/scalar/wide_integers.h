// 64-bit multiplication with its overflow, and 64-bit division, from 32-bit halves.
//
// They may not be written with the operators whose helpers they are: on a 32-bit target a / b of 64 bits
// is itself a call of __udivdi3, and some compilers turn the overflow builtin into __mulodi4. Division by
// a long divisor: H. S. Warren, "Hacker's Delight", 2nd ed., section 9-5.
#pragma once

#include "magnitude.h"

namespace torvane {

struct Halves {
  uint32_t high, low;
};
constexpr Halves halvesOf(uint64_t x) { return {static_cast<uint32_t>(x >> 32), static_cast<uint32_t>(x)}; }
constexpr uint64_t joined(uint32_t high, uint32_t low) { return uint64_t{high} << 32 | low; }

// Whether a * b is above `limit`.
constexpr bool productExceeds(uint64_t a, uint64_t b, uint64_t limit) {
  const Halves x = halvesOf(a), y = halvesOf(b);
  if (x.high != 0 && y.high != 0) return true;
  const uint64_t cross = uint64_t{x.high} * y.low + uint64_t{x.low} * y.high; // one of the two is 0
  const uint64_t low = uint64_t{x.low} * y.low;
  if (cross >> 32 != 0) return true;
  const uint64_t product = (cross << 32) + low;
  return product < low || product > limit;
}

constexpr int64_t multiplied(int64_t a, int64_t b, bool &lost) {
  const uint64_t limit = static_cast<uint64_t>(INT64_MAX) + ((a < 0) != (b < 0));
  lost = productExceeds(magnitudeBits(a), magnitudeBits(b), limit);
  return static_cast<int64_t>(static_cast<uint64_t>(a) * static_cast<uint64_t>(b));
}

// The processor's division of 64 bits by 32; the quotient must fit: dividend.high < divisor.
inline Halves divideByHalf(Halves dividend, uint32_t divisor) {
  Halves result; // remainder and quotient
  asm("divl %4"
      : "=d"(result.high), "=a"(result.low)
      : "0"(dividend.high), "1"(dividend.low), "rm"(divisor)
      : "cc");
  return result;
}

// A divisor above 32 bits. Its top 32 bits alone make the quotient too large by 1 at most; one less is then
// right or too small by 1, which the remainder tells.
inline uint32_t divideByLong(uint64_t a, uint64_t b) {
  const int shift = __builtin_clz(halvesOf(b).high);
  const uint32_t top = halvesOf(b << shift).high;
  const Halves estimate = divideByHalf(halvesOf(a >> 1), top);
  uint32_t quotient = static_cast<uint32_t>(uint64_t{estimate.low} << shift >> 31);
  if (quotient != 0) --quotient;
  return a - quotient * b >= b ? quotient + 1 : quotient;
}

inline uint64_t divided(uint64_t a, uint64_t b) {
  const Halves x = halvesOf(a), y = halvesOf(b);
  if (y.high != 0) return divideByLong(a, b);
  const Halves top = divideByHalf({0, x.high}, y.low), rest = divideByHalf({top.high, x.low}, y.low);
  return joined(top.low, rest.low);
}

} // namespace torvane

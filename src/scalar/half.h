// Real16: IEEE binary16 patterns, widened and narrowed by tables.
//
// J. van der Zijp, "Fast Half Float Conversions" (2012). Widening is exact. Narrowing truncates, and a
// NaN whose top ten fraction bits are clear narrows to infinity: the results of every Real16 operator
// rest on this, so it stays.
#pragma once

#include "scalar_types.h"

namespace torvane {

inline constexpr uint16_t kHalfInfinity = 0x7C00;

constexpr uint16_t halfMagnitude(Real16 x) { return x.bits & 0x7FFF; }
constexpr bool isNaN(Real16 x) { return halfMagnitude(x) > kHalfInfinity; }

// The order of all patterns but NaNs: both zeros are 0.
constexpr int32_t halfOrder(Real16 x) { return x.bits >> 15 ? -int32_t{halfMagnitude(x)} : halfMagnitude(x); }

struct HalfTables {
  uint32_t mantissa[2048] = {};
  uint32_t exponent[64] = {};
  uint16_t offset[64] = {};
  uint16_t base[512] = {};
  uint8_t shift[512] = {};

  constexpr HalfTables() {
    fillWidening();
    for (int i = 0; i < 256; ++i) fillNarrowing(i);
  }

private:
  static constexpr uint32_t normalisedSubnormal(uint32_t i) {
    uint32_t m = i << 13, e = 0;
    while ((m & 0x00800000) == 0) {
      e -= 0x00800000;
      m <<= 1;
    }
    return (m & ~0x00800000u) + e + 0x38800000;
  }

  constexpr void fillWidening() {
    for (uint32_t i = 1; i < 1024; ++i) mantissa[i] = normalisedSubnormal(i);
    for (uint32_t i = 1024; i < 2048; ++i) mantissa[i] = 0x38000000 + ((i - 1024) << 13);
    for (uint32_t i = 0; i < 32; ++i) {
      exponent[i] = i == 31 ? 0x47800000 : i << 23;
      exponent[i + 32] = 0x80000000 + exponent[i];
      offset[i] = offset[i + 32] = i == 0 ? 0 : 1024;
    }
  }

  // i is the biased binary32 exponent, e the exponent itself.
  constexpr void fillNarrowing(int i) {
    const int e = i - 127;
    if (e < -24) {
      setNarrowing(i, 0, 24);
    } else if (e < -14) {
      setNarrowing(i, 0x0400 >> (-e - 14), -e - 1);
    } else if (e <= 15) {
      setNarrowing(i, (e + 15) << 10, 13);
    } else {
      setNarrowing(i, kHalfInfinity, e < 128 ? 24 : 13);
    }
  }

  constexpr void setNarrowing(int i, int bits, int by) {
    base[i] = static_cast<uint16_t>(bits);
    base[i + 256] = static_cast<uint16_t>(bits | 0x8000);
    shift[i] = shift[i + 256] = static_cast<uint8_t>(by);
  }
};

inline constexpr HalfTables kHalfTables;

constexpr Real32 widen(Real16 x) {
  const uint32_t i = x.bits >> 10;
  return __builtin_bit_cast(Real32, kHalfTables.mantissa[kHalfTables.offset[i] + (x.bits & 0x3FFu)] +
                                        kHalfTables.exponent[i]);
}

constexpr Real16 narrow(Real32 x) {
  const uint32_t f = __builtin_bit_cast(uint32_t, x), i = f >> 23;
  return {static_cast<uint16_t>(kHalfTables.base[i] + ((f & 0x7FFFFF) >> kHalfTables.shift[i]))};
}

} // namespace torvane

// The magnitude of an integer, in the unsigned type of its width.
//
// There that of the reserved value exists, so that nothing below overflows. The bit counts take unsigned
// values other than 0.
#pragma once

#include "scalar_types.h"

namespace torvane {

template <class T>
using UnsignedOf = ChooseOf<sizeof(T) == 1, uint8_t,
                            ChooseOf<sizeof(T) == 2, uint16_t, ChooseOf<sizeof(T) == 4, uint32_t, uint64_t>>>;

template <class T> inline constexpr mint kWidth = 8 * sizeof(T);

// The largest value of T.
template <class T>
inline constexpr T kMaximum = static_cast<T>(static_cast<UnsignedOf<T>>(~UnsignedOf<T>(0)) >> isSigned<T>);

template <class T> constexpr UnsignedOf<T> magnitudeBits(T x) {
  using U = UnsignedOf<T>;
  return isSigned<T> && x < T(0) ? static_cast<U>(0 - static_cast<U>(x)) : static_cast<U>(x);
}
// Wraps where the magnitude does not fit.
template <class T> constexpr T withSignOf(T x, UnsignedOf<T> magnitude) {
  return static_cast<T>(x < T(0) ? static_cast<UnsignedOf<T>>(0 - magnitude) : magnitude);
}

template <class U> constexpr bool isPowerOfTwo(U x) { return x != 0 && (x & (x - 1)) == 0; }
template <class U> constexpr mint trailingZeros(U x) { return __builtin_ctzll(x); }
template <class U> constexpr mint topBit(U x) { return 63 - __builtin_clzll(x); }

} // namespace torvane

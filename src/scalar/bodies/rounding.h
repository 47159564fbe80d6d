// Reals to integers.
//
// The real result is computed first and then meets the range of mint. The upper limit differs by one
// between the widths and the most negative integer is refused at both: callers rely on either.
#pragma once

#include "../evaluate.h"

#include <emmintrin.h>

namespace torvane {

// Truncation as the processor does it: a NaN gives the reserved value.
inline mint truncateToWord(Real64 x) { return _mm_cvttsd_si32(_mm_set_sd(x)); }

template <class R> constexpr R kWordLimit = isSame<R, Real64> ? R(2147483647.0) : R(2147483648.0);

// Refuses on a true comparison only, so a NaN passes.
template <class R> mint toWord(error &code, R r) {
  if (r <= R(-2147483648.0) || r >= kWordLimit<R>) {
    code = error::integerOverflow;
    return 0;
  }
  return truncateToWord(r);
}

// An integer-valued pattern. Only the infinities are out of range.
inline mint toWord(error &code, Real16 r) {
  if (halfMagnitude(r) == kHalfInfinity) code = error::integerOverflow;
  return truncateToWord(widen(r));
}

// Clears the fraction: truncation toward zero.
constexpr Real16 integerPart(Real16 x) {
  const uint16_t a = halfMagnitude(x);
  if (a < 0x3C00) return {static_cast<uint16_t>(x.bits & 0x8000)};
  if (a >= 0x6400) return x;
  return {static_cast<uint16_t>(x.bits & -(1 << (25 - (a >> 10))))};
}

namespace unary {

struct round {
  template <class Form, class T> static auto apply(error &code, T x) {
    if constexpr (isReal<T>)
      return toWord(code, isSame<T, Real32> ? T(__builtin_rintf(Real32(x))) : T(__builtin_rint(x)));
    else
      return x;
  }
  // Truncates, unlike the other reals: relied upon.
  template <class Form> static mint pattern(error &code, Real16 x) { return toWord(code, integerPart(x)); }
};

} // namespace unary

} // namespace torvane

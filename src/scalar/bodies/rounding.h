// Reals to integers, and remainders.
//
// The real result is computed first and then meets the range of mint. The upper limit differs by one
// between the widths and the most negative integer is refused at both: callers rely on either. Binary32
// goes through the binary64 functions of the C library, which are exact here, so that it loses nothing.
#pragma once

#include "../complexes/rest.h"
#include "../evaluate.h"

#include <emmintrin.h>

namespace torvane {

// Truncation as the processor does it: a NaN gives the reserved value.
inline mint truncateToWord(Real64 x) { return _mm_cvttsd_si32(_mm_set_sd(x)); }

using complexes::kWordLimit;

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

// ---- Real16 on its pattern ----------------------------------------------------------------------

inline constexpr uint16_t kHalfSign = 0x8000, kHalfOne = 0x3C00,
                          kHalfUnitless = 0x6400; // no bit below the units

// The fraction bits below the units place of a magnitude from 1 to 1024.
constexpr uint16_t fractionMask(uint16_t magnitude) {
  return static_cast<uint16_t>((1 << (25 - (magnitude >> 10))) - 1);
}

// Toward zero; away from it where `grows`. A magnitude below 1 grows to 1.
constexpr Real16 integerPart(Real16 x, bool grows = false) {
  const uint16_t a = halfMagnitude(x), sign = x.bits & kHalfSign;
  if (a < kHalfOne) return {static_cast<uint16_t>(grows && a != 0 ? sign | kHalfOne : sign)};
  if (a >= kHalfUnitless) return x;
  const uint16_t mask = fractionMask(a);
  return {static_cast<uint16_t>((grows ? x.bits + mask : x.bits) & ~mask)};
}

// The fraction bits move up until the first takes the implicit place. An infinity has none, a NaN stays.
constexpr Real16 fractionalPart(Real16 x) {
  const uint16_t a = halfMagnitude(x), sign = x.bits & kHalfSign;
  if (a < kHalfOne || isNaN(x)) return x;
  unsigned fraction = a >= kHalfUnitless ? 0u : a & fractionMask(a), exponent = a >> 10;
  if (fraction == 0) return {sign};
  for (; (fraction & 0x400) == 0; fraction <<= 1) --exponent;
  return {static_cast<uint16_t>(sign | exponent << 10 | (fraction & 0x3FF))};
}

// ---- reals and integers -------------------------------------------------------------------------

template <class R> R fractionalPart(R x) {
  Real64 whole;
  return R(__builtin_modf(x, &whole));
}

// In [0, 1]: a negative fraction below the rounding of 1 gives 1 itself, and so does a negative integer.
template <class R> R fractionAboveFloor(R x) { return x < 0 ? fractionalPart(x) + R(1) : fractionalPart(x); }

// The remainder of the floored quotient: the truncating one, moved by one divisor where the signs differ.
// The most negative value divided by -1 is left to the processor, which may trap.
template <class T> constexpr T flooredRemainder(T x, T y) {
  const T r = static_cast<T>(x % y);
  return r != 0 && (r < T(0)) != (y < T(0)) ? static_cast<T>(r + y) : r;
}
template <class T> constexpr T flooredQuotient(T x, T y) {
  const T q = static_cast<T>(x / y), r = static_cast<T>(x % y);
  return r != 0 && (r < T(0)) != (y < T(0)) ? static_cast<T>(q - 1) : q;
}

namespace unary {

struct round {
  template <class Form, class T> static auto apply(error &code, T x) {
    if constexpr (isReal<T>)
      return toWord(code, T(__builtin_rint(x)));
    else
      return x;
  }
  // Truncates, unlike the other reals: relied upon.
  template <class Form> static mint pattern(error &code, Real16 x) { return toWord(code, integerPart(x)); }
};

struct floor {
  template <class Form, class T> static auto apply(error &code, T x) {
    if constexpr (isReal<T>)
      return toWord(code, T(__builtin_floor(x)));
    else
      return x;
  }
  template <class Form> static mint pattern(error &code, Real16 x) {
    return toWord(code, integerPart(x, (x.bits & kHalfSign) != 0));
  }
};

struct ceiling {
  template <class Form, class T> static auto apply(error &code, T x) {
    if constexpr (isReal<T>)
      return toWord(code, T(__builtin_ceil(x)));
    else
      return x;
  }
  template <class Form> static mint pattern(error &code, Real16 x) {
    return toWord(code, integerPart(x, (x.bits & kHalfSign) == 0));
  }
};

struct intpart {
  template <class Form, class T> static auto apply(error &code, T x) {
    if constexpr (isReal<T>)
      return toWord(code, T(__builtin_trunc(x)));
    else
      return x;
  }
  template <class Form> static mint pattern(error &code, Real16 x) { return toWord(code, integerPart(x)); }
};

struct fracpart {
  template <class Form, class T> static T apply(error &, T x) {
    if constexpr (isComplex<T>)
      return {fractionalPart(x.re), fractionalPart(x.im)};
    else if constexpr (isReal<T>)
      return fractionalPart(x);
    else
      return 0;
  }
  template <class Form> static constexpr Real16 pattern(error &, Real16 x) { return fractionalPart(x); }
};

struct mod1 {
  template <class Form, class T> static T apply(error &, T x) {
    if constexpr (isComplex<T>)
      return {fractionAboveFloor(x.re), fractionAboveFloor(x.im)};
    else if constexpr (isReal<T>)
      return fractionAboveFloor(x);
    else
      return 0;
  }
};

} // namespace unary

namespace binary {

struct mod {
  template <class Form, class T> static T apply(error &code, T x, T y) {
    if constexpr (isComplex<T>) {
      return complexes::mod(code, x, y);
    } else {
      if (y == T(0)) {
        code = error::domain;
        return 0;
      }
      if constexpr (isReal<T>)
        return complexes::flooredRemainder(x, y);
      else
        return flooredRemainder(x, y);
    }
  }
};

// Of reals the range is the only test: a divisor of 0 makes an infinity, or a NaN, which passes.
struct quotient {
  template <class Form, class T> static auto apply(error &code, T x, T y) {
    if constexpr (isReal<T>) {
      return toWord(code, T(__builtin_floor(x / y)));
    } else {
      if (y == 0) code = error::domain;
      return code == error::none ? flooredQuotient(x, y) : T(0);
    }
  }
};

} // namespace binary

} // namespace torvane

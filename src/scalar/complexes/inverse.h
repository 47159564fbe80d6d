// Complex inverse circular and hyperbolic functions.
//
// Everything rests on two cores, asinh and atanh, evaluated in the right half plane with logarithms of
// 1 + small where the result is small. Scales are powers of two from the exponents of the parts. On a cut
// both signs of a zero part give the same side, as the steps fall; callers rely on which.
#pragma once

#include "exponential.h"

namespace torvane::complexes {

// As frexp has it; an infinity is beyond every number, a zero below.
template <class R> int binaryExponent(R x) {
  if (isInfinite(x)) return 4096;
  if (x == 0) return -4096;
  int e = 0;
  static_cast<void>(__builtin_frexp(Real64(x), &e));
  return x == x ? e : 0;
}

// The larger of the parts' exponents, drawn by 5 towards 0 beyond 10; a zero part does not count.
template <class R> int scaleExponent(Complex<R> z) {
  if (isZero(z)) return 0;
  const int ofRe = binaryExponent(z.re), ofIm = binaryExponent(z.im), e = ofRe < ofIm ? ofIm : ofRe;
  return e < -10 ? e + 5 : e > 10 ? e - 5 : e;
}

inline constexpr int kLargeScale = 27, kSmallScale = -27; // 1 is lost beside the square, and the reverse

// asinh of z in the right half plane, or small.
template <class R> Complex<R> asinhOfScale(error &code, Complex<R> z, int e) {
  if (e > kLargeScale) return plusReal(log(code, z), R(kLn2));
  const Complex<R> root = sqrt(code, plusReal(z * z, R(1)));
  if (e >= 0) return log(code, root + z);
  return log1p(code, z + z * z / plusReal(root, R(1)));
}

template <class R> Complex<R> asinh(error &code, Complex<R> z) {
  const int e = scaleExponent(z);
  const bool isNegated = e >= 0 && (z.re < 0 || (z.re == 0 && z.im < 0));
  const Complex<R> turned = asinhOfScale(code, isNegated ? -z : z, e);
  Complex<R> result = isNegated ? -turned : turned;
  if (z.im == 0) result.im = 0;
  if (z.re == 0 && magnitudeOf(z.im) <= 1) result.re = 0;
  return result;
}

template <class R> Complex<R> asin(error &code, Complex<R> z) { return overI(asinh(code, timesI(z))); }
template <class R> Complex<R> acos(error &code, Complex<R> z) {
  const Complex<R> turned = asinh(code, timesI(z));
  return {R(kHalfPi) - turned.im, turned.re};
}

// Small arguments: through asinh, as acos is, on the side of the imaginary part.
template <class R> Complex<R> acoshOfSmall(error &code, Complex<R> z) {
  const Complex<R> turned = asinh(code, timesI(z));
  if (z.im < 0) return {turned.re, turned.im - R(kHalfPi)};
  return {-turned.re, R(kHalfPi) - turned.im};
}

// log(z (1 + sqrt(1 - 1 / z^2)))
template <class R> Complex<R> acoshByRoot(error &code, Complex<R> z) {
  const Complex<R> inverseSquare = reciprocal(code, z * z);
  const Complex<R> q = sqrt(code, Complex<R>{R(1), R(0)} - inverseSquare);
  return log(code, z * plusReal(q, R(1)));
}

template <class R> Complex<R> acosh(error &code, Complex<R> z) {
  if (magnitudeOf(z.re) < R(0.5) && magnitudeOf(z.im) < R(0.5)) return acoshOfSmall(code, z);
  if (scaleExponent(z) > kLargeScale) return plusReal(log(code, z), R(kLn2));
  Complex<R> result = acoshByRoot(code, z);
  if ((result.im < 0) != (z.im < 0)) result.im = -result.im;
  if (z.im == 0 && z.re >= 1) result.im = 0;
  if (z.im == 0 && z.re >= -1 && z.re < 1) result.re = 0;
  return result;
}

// Between the small and the large arguments: (1 + z) / sqrt((1 + z)(1 - z)), in the right half plane.
template <class R> Complex<R> atanhBetween(error &code, Complex<R> z) {
  if (z.im == 0 && magnitudeOf(z.re) == 1) {
    code = error::domain;
    return {};
  }
  const Complex<R> one = {1, 0}, a = z.re < 0 ? one - z : one + z, b = z.re < 0 ? one + z : one - z;
  const Complex<R> result = log(code, a * rsqrt(code, a * b));
  return z.re < 0 ? -result : result;
}

// Both parts at most 1/2 in magnitude.
template <class R> Complex<R> atanhOfSmall(error &code, Complex<R> z) {
  const Complex<R> twice = scaled(z, R(2)), above = plusReal(z, R(1));
  if (scaleExponent(z) <= kSmallScale) return log1p(code, twice * above / plusReal(z, R(2)));
  const Complex<R> q = Complex<R>{R(1), R(0)} - z * z;
  return log1p(code, twice * above / (q + above * sqrt(code, q)));
}

template <class R> Complex<R> atanh(error &code, Complex<R> z) {
  const R x = z.re, y = z.im, larger = magnitudeOf(x) < magnitudeOf(y) ? magnitudeOf(y) : magnitudeOf(x);
  const bool isLarge = magnitudeOf(x) >= 2 || magnitudeOf(y) >= 2;
  if (!isLarge && !(larger <= R(0.5))) return atanhBetween(code, z);
  if (!isLarge) return atanhOfSmall(code, z);
  const Complex<R> result = atanhOfSmall(code, reciprocal(code, z));
  return {result.re, y > 0 || (y == 0 && x <= 0) ? result.im + R(kHalfPi) : result.im - R(kHalfPi)};
}

template <class R> Complex<R> atan(error &code, Complex<R> z) { return overI(atanh(code, timesI(z))); }

// The function of 1 / z, for which a zero raises.
#define TORVANE_OF_RECIPROCAL(name, function)                                                                \
  template <class R> Complex<R> name(error &code, Complex<R> z) {                                            \
    const Complex<R> inverse = reciprocal(code, z);                                                          \
    return code != error::none ? inverse : function(code, inverse);                                          \
  }
TORVANE_OF_RECIPROCAL(acsc, asin)
TORVANE_OF_RECIPROCAL(asec, acos)
TORVANE_OF_RECIPROCAL(acot, atan)
TORVANE_OF_RECIPROCAL(acsch, asinh)
TORVANE_OF_RECIPROCAL(asech, acosh)
TORVANE_OF_RECIPROCAL(acoth, atanh)
#undef TORVANE_OF_RECIPROCAL

// -i log((y + i x) / sqrt(x^2 + y^2)); the real operator's, arguments in the same order, continued.
template <class R> Complex<R> atan2(error &code, Complex<R> x, Complex<R> y) {
  if (isZero(x) && isZero(y)) {
    code = error::domain;
    return {};
  }
  const Complex<R> unit = divide(code, y + timesI(x), sqrt(code, x * x + y * y));
  return code != error::none ? unit : overI(log(code, unit));
}

} // namespace torvane::complexes

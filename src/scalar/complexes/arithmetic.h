// Complex sums, products, quotients and the reciprocal.
//
// Products are the plain four multiplications; quotients are Smith's: R. L. Smith, "Algorithm 116: Complex
// division", CACM 5 (1962).
#pragma once

#include "../../runtime/failure.h"
#include "real_functions.h"

namespace torvane {

template <class R> constexpr Complex<R> operator-(Complex<R> z) { return {-z.re, -z.im}; }
template <class R> constexpr Complex<R> operator+(Complex<R> x, Complex<R> y) {
  return {x.re + y.re, x.im + y.im};
}
template <class R> constexpr Complex<R> operator-(Complex<R> x, Complex<R> y) {
  return {x.re - y.re, x.im - y.im};
}
template <class R> constexpr Complex<R> operator*(Complex<R> x, Complex<R> y) {
  return {x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re};
}

// x / y for a divisor that is not zero. A NaN in the divisor, or a modulus that vanishes or is lost on
// the way, makes both parts NaN.
template <class R> constexpr Complex<R> operator/(Complex<R> x, Complex<R> y) {
  constexpr R nan = __builtin_nan("");
  const R c = y.re, d = y.im;
  if (c != c || d != d) return {nan, nan};
  if (magnitudeOf(d) < magnitudeOf(c)) {
    const R t = d / c, m = t * d + c;
    if (m != m || m == 0) return {nan, nan};
    return {(x.re + x.im * t) / m, (x.im - x.re * t) / m};
  }
  if (d == 0) return {nan, nan};
  const R t = c / d, m = t * c + d;
  if (m != m || m == 0) return {nan, nan};
  return {(x.re * t + x.im) / m, (x.im * t - x.re) / m};
}

namespace complexes {

template <class R> constexpr bool isZero(Complex<R> z) { return z.re == 0 && z.im == 0; }

// Quotient and sum with a real, part by part.
template <class R> constexpr Complex<R> scaled(Complex<R> z, R factor) {
  return {z.re * factor, z.im * factor};
}
template <class R> constexpr Complex<R> dividedBy(Complex<R> z, R divisor) {
  return {z.re / divisor, z.im / divisor};
}
template <class R> constexpr Complex<R> plusReal(Complex<R> z, R x) { return {z.re + x, z.im}; }

// i z and -i z, without a multiplication.
template <class R> constexpr Complex<R> timesI(Complex<R> z) { return {-z.im, z.re}; }
template <class R> constexpr Complex<R> overI(Complex<R> z) { return {z.im, -z.re}; }

template <class R> constexpr Complex<R> divide(error &code, Complex<R> x, Complex<R> y) {
  if (isZero(y)) {
    code = error::complexZeroDivision;
    return {};
  }
  return x / y;
}

// 1 / z. An infinite part gives signed zeros, where the quotient would lose itself in a NaN.
template <class R> constexpr Complex<R> reciprocal(error &code, Complex<R> z) {
  if (isInfinite(z.re) || isInfinite(z.im))
    return {isInfinite(z.re) && signBit(z.re) ? R(-0.0) : R(0), signBit(z.im) ? R(0) : R(-0.0)};
  return divide(code, Complex<R>{1, 0}, z);
}

} // namespace complexes

} // namespace torvane

// Complex circular and hyperbolic functions.
//
// sinh and cosh by their sum formulas, a zero factor giving zero; sin and cos are theirs turned by i.
// tanh by W. Kahan, "Branch Cuts for Complex Elementary Functions" (1987), which neither overflows nor
// cancels. Reciprocal functions take the complex reciprocal.
#pragma once

#include "exponential.h"

namespace torvane::complexes {

// At an infinite real part no direction is left when the imaginary part is not finite (C11, G.6.2).
template <class R> constexpr bool hasNoDirection(Complex<R> z) {
  return isInfinite(z.re) && z.im - z.im != 0;
}

template <class R> Complex<R> sinh(error &, Complex<R> z) {
  const R sine = library::sin(z.im);
  if (hasNoDirection(z)) return {z.re, sine};
  return {guardedProduct(library::sinh(z.re), library::cos(z.im)), guardedProduct(library::cosh(z.re), sine)};
}

template <class R> Complex<R> cosh(error &, Complex<R> z) {
  const R sine = library::sin(z.im);
  if (hasNoDirection(z)) return {magnitudeOf(z.re), sine};
  return {guardedProduct(library::cosh(z.re), library::cos(z.im)), guardedProduct(library::sinh(z.re), sine)};
}

template <class R> Complex<R> sin(error &code, Complex<R> z) { return overI(sinh(code, timesI(z))); }
template <class R> Complex<R> cos(error &code, Complex<R> z) { return cosh(code, timesI(z)); }

template <class R> Complex<R> tanh(error &, Complex<R> z) {
  const R t = library::tan(z.im), s = library::sinh(z.re);
  const R b = R(1) + t * t, d = R(1) + b * s * s;
  if (isInfinite(d)) return {signBit(s) ? R(-1) : R(1), t * R(0)};
  return {b * s * squareRoot(R(1) + s * s) / d, t / d};
}

template <class R> Complex<R> tan(error &code, Complex<R> z) { return overI(tanh(code, timesI(z))); }

template <class R> Complex<R> sec(error &code, Complex<R> z) { return reciprocal(code, cos(code, z)); }
template <class R> Complex<R> csc(error &code, Complex<R> z) { return reciprocal(code, sin(code, z)); }
template <class R> Complex<R> cot(error &code, Complex<R> z) { return reciprocal(code, tan(code, z)); }
template <class R> Complex<R> sech(error &code, Complex<R> z) { return reciprocal(code, cosh(code, z)); }
template <class R> Complex<R> csch(error &code, Complex<R> z) { return reciprocal(code, sinh(code, z)); }
template <class R> Complex<R> coth(error &code, Complex<R> z) { return reciprocal(code, tanh(code, z)); }

} // namespace torvane::complexes

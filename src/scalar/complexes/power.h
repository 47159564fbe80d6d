// Complex powers.
//
// exp(w log z), but the real power where base and exponent are real and the base is not negative, and
// repeated multiplication for an integer exponent.
#pragma once

#include "../addition_chain.h"
#include "exponential.h"

namespace torvane::complexes {

// w * l with a zero part of w striking out infinities, so that a real exponent scales.
template <class R> Complex<R> guardedProduct(Complex<R> w, Complex<R> l) {
  return {guardedProduct(w.re, l.re) - guardedProduct(w.im, l.im),
          guardedProduct(w.re, l.im) + guardedProduct(w.im, l.re)};
}

template <class R> Complex<R> pow(error &code, Complex<R> z, Complex<R> w) {
  if (z.im != 0) return exp(code, guardedProduct(w, polarLog(z)));
  const R x = z.re;
  if (w.im == 0 && !(x < 0)) return {library::pow(x, w.re), R(0)};
  if (x == 0) {
    code = error::domain;
    return {};
  }
  // The negative axis belongs to its upper side.
  if (!(x > 0)) return exp(code, guardedProduct(w, polarLog(Complex<R>{x, R(0)})));
  const R l = library::log(x);
  return exp(code, Complex<R>{guardedProduct(w.re, l), guardedProduct(w.im, l)});
}

template <class R> Complex<R> pow(error &code, R x, Complex<R> w) {
  return pow(code, Complex<R>{x, R(0)}, w);
}
template <class R> Complex<R> pow(error &code, Complex<R> z, R w) {
  return pow(code, z, Complex<R>{w, R(0)});
}

// To an integer: the product first, its reciprocal last.
template <class R, class I>
requires isInteger<I> Complex<R> pow(error &code, Complex<R> z, I n) {
  if (isZero(z) && n <= 0) {
    code = error::domain;
    return {};
  }
  if (n == 0) return {R(1), R(0)};
  const uint64_t steps = n < 0 ? uint64_t{0} - static_cast<uint64_t>(n) : static_cast<uint64_t>(n);
  const Complex<R> power = powerByChain(z, steps, [](Complex<R> a, Complex<R> b) { return a * b; });
  return n < 0 ? reciprocal(code, power) : power;
}

} // namespace torvane::complexes

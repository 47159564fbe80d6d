// Complex exponentials and logarithms.
//
// The logarithm's cut is the negative real axis, with imaginary part +pi from both sides: on the axis the
// sign of a zero imaginary part is not looked at. Off it the real part is the logarithm of the scaled
// modulus, whose relative accuracy is lost near |z| = 1, deliberately: the absolute one is kept.
#pragma once

#include "roots.h"

namespace torvane::complexes {

inline constexpr Real64 kPi = 3.141592653589793, kHalfPi = 1.5707963267948966;
inline constexpr Real64 kLn2 = 0.6931471805599453, kLn10 = 2.302585092994046;

// A zero factor gives a zero, of the product's sign, against an infinity or a NaN too.
template <class R> constexpr R guardedProduct(R a, R b) {
  if (a != 0 && b != 0) return a * b;
  return signBit(a) != signBit(b) ? R(-0.0) : R(0);
}

// exp(u) * (cos v, sin v)
template <class R> Complex<R> exp(error &, Complex<R> z) {
  const R modulus = library::exp(z.re);
  return {guardedProduct(modulus, library::cos(z.im)), guardedProduct(modulus, library::sin(z.im))};
}

// exp(x) cos(y) - 1 = m - 2 s^2 m - 2 s^2, with m = exp(x) - 1 and s = sin(y / 2).
template <class R> Complex<R> expm1(error &, Complex<R> z) {
  const R m = library::expm1(z.re), s = library::sin(z.im / R(2)), versine = R(-2) * s * s;
  return {m + guardedProduct(versine, m) + versine, guardedProduct(library::sin(z.im), m + R(1))};
}

// Beyond the range of normal numbers the scaled modulus keeps what |z| would lose.
template <class R> R logModulus(Complex<R> z) {
  const ScaledModulus<R> scaledForm = scaledModulus(z);
  const R modulus = unscaled(scaledForm);
  if (__builtin_isnormal(modulus)) return library::log(modulus);
  return library::log(scaledForm.r) + R(scaledForm.e) * R(kLn2);
}

// (log |z|, arg z): the principal logarithm off the real axis.
template <class R> Complex<R> polarLog(Complex<R> z) { return {logModulus(z), library::atan2(z.im, z.re)}; }

template <class R> Complex<R> log(error &code, Complex<R> z) {
  if (z.im == 0 && z.re > 0) return {library::log(z.re), R(0)};
  if (z.im == 0 && z.re < 0) return {library::log(-z.re), R(kPi)};
  if (isZero(z)) code = error::domain;
  return polarLog(z);
}

template <class R> Complex<R> log1p(error &code, Complex<R> z) {
  const R x = z.re, y = z.im;
  if (y == 0 && x == -1) {
    code = error::domain;
    return {};
  }
  if (y == 0 && x < -1) return {library::log1p(R(-2) - x), R(kPi)};
  if (y == 0 && x > -1) return {library::log1p(x), R(0)};
  if (magnitudeOf(x) >= R(0.5) || magnitudeOf(y) >= R(0.5)) return log(code, plusReal(z, R(1)));
  const R u = x == 0 ? y * y : y * y + R(2) * x + x * x; // |1 + z|^2 - 1
  return {R(0.5) * library::log1p(u), library::atan2(y, x + R(1))};
}

template <class R> Complex<R> log2(error &code, Complex<R> z) {
  if (z.im == 0 && z.re > 0) return {library::log2(z.re), R(0)};
  if (z.im == 0 && z.re < 0) return {library::log2(-z.re), R(4.532360141827194)};
  return dividedBy(log(code, z), R(kLn2));
}

template <class R> Complex<R> log10(error &code, Complex<R> z) {
  if (z.im == 0 && z.re > 0) return {library::log10(z.re), R(0)};
  if (z.im == 0 && z.re < 0) return {library::log10(-z.re), R(1.3643763538418414)};
  return dividedBy(log(code, z), R(kLn10));
}

// The logarithm of z to a base.
template <class R> Complex<R> log(error &code, Complex<R> base, Complex<R> z) {
  const Complex<R> numerator = log(code, z), denominator = log(code, base);
  if (code != error::none) return {};
  return divide(code, numerator, denominator);
}

} // namespace torvane::complexes

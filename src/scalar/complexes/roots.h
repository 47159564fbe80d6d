// Modulus, square root and its reciprocal.
//
// The modulus is scaled by 4 or 1/4, so that neither a square nor the doubled sum overflows early; it
// follows W. Kahan, "Branch Cuts for Complex Elementary Functions" (1987), its constants splitting
// 1 + sqrt 2 in two. The cut of both roots is the negative real axis, which belongs to the upper side for
// sqrt and so to the lower for rsqrt, whatever the sign of a zero imaginary part.
#pragma once

#include "arithmetic.h"

namespace torvane {

// |z| as r * 2^e with e in {-2, 0, 2}; 0 for a modulus that is zero, infinite or a NaN.
template <class R> struct ScaledModulus {
  R r;
  int e;
};

// a + b / (...) with a >= b: the part of the modulus beyond its larger component.
template <class R> R modulusOfOrdered(R a, R b) {
  const R t = a - b;
  if (t == a) return a;
  if (t > b) {
    const R q = a / b;
    return a + b / (q + squareRoot(q * q + R(1)));
  }
  const R q = t / b, u = (q + R(2)) * q;
  return a + b / (u / (squareRoot(u + R(2)) + R(1.4142135623730951)) + R(1.434125237597392e-07) + q +
                  R(2.4142134189605713));
}

template <class R> ScaledModulus<R> scaledModulus(Complex<R> z) {
  if (isInfinite(z.re) || isInfinite(z.im)) return {R(__builtin_inf()), 0};
  if (z.re != z.re) return {z.re, 0};
  if (z.im != z.im) return {z.im, 0};
  const R x = magnitudeOf(z.re), y = magnitudeOf(z.im);
  const R a = x < y ? y : x, b = x < y ? x : y;
  if (a == 0) return {R(0), 0};
  return a >= 1 ? ScaledModulus<R>{modulusOfOrdered(a * R(0.25), b * R(0.25)), 2}
                : ScaledModulus<R>{modulusOfOrdered(a * R(4), b * R(4)), -2};
}

// r * 2^e: infinite only at this last step.
template <class R> R unscaled(ScaledModulus<R> modulus) {
  return modulus.e == 0 ? modulus.r : modulus.r * (modulus.e > 0 ? R(4) : R(0.25));
}

template <class R> R modulusOf(Complex<R> z) { return unscaled(scaledModulus(z)); }

namespace complexes {

template <class R> Complex<R> sqrt(error &, Complex<R> z) {
  const R x = z.re, y = z.im;
  if (x == 0) {
    const R m = squareRoot(magnitudeOf(y) * R(0.5));
    return {m, signBit(y) ? -m : m};
  }
  if (y == 0) return signBit(x) ? Complex<R>{R(0), squareRoot(-x)} : Complex<R>{squareRoot(x), R(0)};
  const ScaledModulus<R> modulus = scaledModulus(z);
  if (modulus.e == 0) return {modulus.r, modulus.r};
  // u is the scaled |x| + |z|; its double may overflow at the very top of the range.
  const bool large = modulus.e == 2;
  const R u = magnitudeOf(x) * (large ? R(0.25) : R(4)) + modulus.r;
  const R p = squareRoot(R(2) * u) * (large ? R(1) : R(0.25)), q = y / (R(2) * p);
  if (x >= 0) return {p, q};
  return y < 0 ? Complex<R>{-q, -p} : Complex<R>{q, p};
}

// The parts of 1 / sqrt(a + i b) up to signs, the larger one in the real place; a, b >= 0, not both 0.
template <class R> Complex<R> reciprocalRootOfMagnitudes(R a, R b) {
  if (a <= b) {
    const R q = a / b, w = squareRoot(q * q + R(1)), v = squareRoot((w + q) * R(0.5));
    const R length = squareRoot(b) * w;
    return {v / length, R(0.5) / (length * v)};
  }
  const R q = b / a, w = squareRoot(q * q + R(1)), v = squareRoot((w + R(1)) * R(0.5));
  const R length = squareRoot(a) * w;
  return {v / length, q / (length * v) * R(0.5)};
}

template <class R> Complex<R> rsqrt(error &code, Complex<R> z) {
  const R x = z.re, y = z.im;
  if (isZero(z)) {
    code = error::domain;
    return {};
  }
  if (x == 0) {
    const R c = R(0.7071067811865476) / squareRoot(magnitudeOf(y));
    return {c, y > 0 ? -c : c};
  }
  if (y == 0 && x > 0) return {R(1) / squareRoot(x), R(0)};
  if (y == 0 && x < 0) return {R(0), R(-1) / squareRoot(-x)};
  const Complex<R> parts = reciprocalRootOfMagnitudes(magnitudeOf(x), magnitudeOf(y));
  const R f = parts.re, g = parts.im;
  if (x < 0) return {g, y > 0 ? -f : f};
  return {f, y > 0 ? -g : g};
}

} // namespace complexes

} // namespace torvane

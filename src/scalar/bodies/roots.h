// Square roots.
//
// Reals: the processor's, correctly rounded. Complexes: from the modulus scaled by 4 or 1/4, so that
// neither a square nor the doubled sum overflows early; the modulus itself follows W. Kahan, "Branch
// Cuts for Complex Elementary Functions" (1987), its constants splitting 1 + sqrt 2 in two.
#pragma once

#include "../evaluate.h"

namespace torvane {

template <class R> constexpr bool signBit(R x) { return __builtin_signbit(x) != 0; }
template <class R> inline R squareRoot(R x) {
  if constexpr (isSame<R, Real32>)
    return __builtin_sqrtf(x);
  else
    return __builtin_sqrt(x);
}

// |z| as r * 2^e with e in {-2, 0, 2}; 0 for a modulus that is zero, infinite or a NaN.
template <class R> struct ScaledModulus {
  R r;
  int e;
};

template <class R> constexpr bool isInfinite(R x) { return __builtin_isinf(x) != 0; }

// a + b / (...) with a >= b > 0: the part of the modulus beyond its larger component.
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
  const R x = R(__builtin_fabs(z.re)), y = R(__builtin_fabs(z.im));
  const R a = x < y ? y : x, b = x < y ? x : y;
  if (a == 0) return {R(0), 0};
  return a >= 1 ? ScaledModulus<R>{modulusOfOrdered(a * R(0.25), b * R(0.25)), 2}
                : ScaledModulus<R>{modulusOfOrdered(a * R(4), b * R(4)), -2};
}

template <class R> Complex<R> squareRootOf(Complex<R> z) {
  const R x = z.re, y = z.im;
  if (x == 0) {
    const R m = squareRoot(R(__builtin_fabs(y)) * R(0.5));
    return {m, signBit(y) ? -m : m};
  }
  if (y == 0) return signBit(x) ? Complex<R>{R(0), squareRoot(-x)} : Complex<R>{squareRoot(x), R(0)};
  const ScaledModulus<R> modulus = scaledModulus(z);
  if (modulus.e == 0) return {modulus.r, modulus.r};
  // u is the scaled |x| + |z|; its double may overflow at the very top of the range.
  const bool large = modulus.e == 2;
  const R u = R(__builtin_fabs(x)) * (large ? R(0.25) : R(4)) + modulus.r;
  const R p = squareRoot(R(2) * u) * (large ? R(1) : R(0.25)), q = y / (R(2) * p);
  if (x >= 0) return {p, q};
  return y < 0 ? Complex<R>{-q, -p} : Complex<R>{q, p};
}

namespace unary {

struct sqrt {
  template <class Form, class T> static T apply(error &code, T x) {
    if constexpr (isComplex<T>) {
      return squareRootOf(x);
    } else {
      if (x < 0) {
        code = error::domain;
        return x;
      }
      return squareRoot(x);
    }
  }
};

} // namespace unary

} // namespace torvane

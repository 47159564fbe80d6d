// Powers of complex numbers.
#pragma once

#include "../bodies/arithmetic.h"

namespace torvane::complexes {

template <class R> Complex<R> powerOfLog(Real64 u, Real64 v) {
  const Real64 scale = __builtin_exp(u);
  return {R(scale * __builtin_cos(v)), R(scale * __builtin_sin(v))};
}

template <class R> Complex<R> pow(error &code, Complex<R> z, Complex<R> w) {
  if (z.im == 0 && w.im == 0 && z.re >= 0) return {R(__builtin_pow(z.re, w.re)), R(0)};
  if (z.re == 0 && z.im == 0) {
    code = error::domain;
    return {};
  }
  const Real64 u = __builtin_log(__builtin_hypot(z.re, z.im)),
               v = z.im == 0 && z.re > 0 ? 0 : __builtin_atan2(z.im + 0.0, z.re);
  return powerOfLog<R>(w.re * u - w.im * v, w.re * v + w.im * u);
}
template <class R> Complex<R> pow(error &code, Complex<R> z, R w) {
  return pow(code, z, Complex<R>{w, R(0)});
}
template <class R> Complex<R> pow(error &code, R z, Complex<R> w) {
  return pow(code, Complex<R>{z, R(0)}, w);
}

template <class R> Complex<R> pow(error &code, Complex<R> z, int64_t n) {
  if (z.re == 0 && z.im == 0 && n <= 0) {
    code = error::domain;
    return {};
  }
  Complex<R> power = {R(1), R(0)};
  for (uint64_t m = n < 0 ? 0 - static_cast<uint64_t>(n) : static_cast<uint64_t>(n); m != 0; m >>= 1) {
    if ((m & 1) != 0) power = power * z;
    z = z * z;
  }
  return n < 0 ? reciprocal(code, power) : power;
}

} // namespace torvane::complexes

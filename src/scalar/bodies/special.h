// Special functions.
//
// Reals: erf, erfc and the gamma functions are the platform's; the others are the formulas that stand here,
// with these constants. fibonacci and lucasl continue the sequences by Binet's formula, with cos(pi x) for
// the sign of the second term; the haversine is sin^2(x / 2), as the old tables of navigation have it.
#pragma once

#include "../complexes/rest.h"
#include "../function.h"
#include "../integer_functions.h"
#include "../log_gamma.h"

namespace torvane {

namespace reals {

inline constexpr Real64 kPi = 3.141592653589793, kGoldenRatio = 1.618033988749895,
                        kRootOfFive = 2.23606797749979;

inline Real64 sinc(error &, Real64 x) { return x == 0 ? 1 : __builtin_sin(x) / x; }

// Either side of 0 has its own form, so that no exponential overflows.
inline Real64 logistic(error &, Real64 x) {
  if (x > 0) return 1 / (__builtin_exp(-x) + 1);
  const Real64 e = __builtin_exp(x);
  return e / (e + 1);
}

inline Real64 gudermannian(error &, Real64 x) { return 2 * __builtin_atan(__builtin_tanh(x / 2)); }
inline Real64 inversegudermannian(error &code, Real64 x) {
  const Real64 t = __builtin_tan(x / 2);
  return __builtin_fabs(t) >= 1 ? outsideDomain<Real64>(code) : 2 * __builtin_atanh(t);
}

inline Real64 haversine(error &, Real64 x) {
  const Real64 s = __builtin_sin(x / 2);
  return s * s;
}
inline Real64 inversehaversine(error &code, Real64 x) {
  return x < 0 || x > 1 ? outsideDomain<Real64>(code) : 2 * __builtin_asin(__builtin_sqrt(x));
}

inline Real64 fibonacci(error &, Real64 x) {
  const Real64 p = __builtin_pow(kGoldenRatio, x);
  return (p - __builtin_cos(x * kPi) / p) / kRootOfFive;
}
inline Real64 lucasl(error &, Real64 x) {
  const Real64 p = __builtin_pow(kGoldenRatio, x);
  return __builtin_cos(x * kPi) / p + p;
}

inline Real64 erf(error &, Real64 x) { return __builtin_erf(x); }
inline Real64 erfc(error &, Real64 x) { return __builtin_erfc(x); }
// Of 0 and of the negative integers what the platform gives: an infinity and a NaN.
inline Real64 gamma(error &, Real64 x) { return __builtin_tgamma(x); }
inline Real64 loggamma(error &code, Real64 x) { return x <= 0 ? outsideDomain<Real64>(code) : logGamma(x); }

} // namespace reals

namespace unary {

TORVANE_FUNCTION(sinc)
TORVANE_FUNCTION(logistic)
TORVANE_FUNCTION(gudermannian)
TORVANE_FUNCTION(inversegudermannian)
TORVANE_FUNCTION(haversine)
TORVANE_FUNCTION(inversehaversine)
TORVANE_FUNCTION_WITH_INTEGERS(fibonacci, integerFibonacci)
TORVANE_FUNCTION_WITH_INTEGERS(lucasl, integerLucas)
TORVANE_REAL_FUNCTION(erf)
TORVANE_REAL_FUNCTION(erfc)
TORVANE_REAL_FUNCTION(loggamma)

struct gamma {
  template <class Form, class T> static constexpr T apply(error &code, T x) {
    if constexpr (isInteger<T>)
      return integerGamma(code, x);
    else
      return static_cast<T>(reals::gamma(code, Real64(x)));
  }
};

} // namespace unary

} // namespace torvane

// Inverse trigonometric and hyperbolic functions.
//
// Reals: the platform's functions, of x or of 1 / x. Where the definition takes 1 / x its rounding counts:
// next to the end of the domain the result is that of a neighbouring argument. The poles of atanh and acoth
// at 1 and -1 are infinities, not outside the domain.
#pragma once

#include "../complexes/inverse.h"
#include "../function.h"

namespace torvane {

namespace reals {

// Whether x lies beyond 1 in magnitude.
inline bool isBeyondOne(Real64 x) { return __builtin_fabs(x) > 1; }

inline Real64 asin(error &code, Real64 x) {
  return isBeyondOne(x) ? outsideDomain<Real64>(code) : __builtin_asin(x);
}
inline Real64 acos(error &code, Real64 x) {
  return isBeyondOne(x) ? outsideDomain<Real64>(code) : __builtin_acos(x);
}
inline Real64 atan(error &, Real64 x) { return __builtin_atan(x); }
inline Real64 acsc(error &code, Real64 x) { return asin(code, 1 / x); }
inline Real64 asec(error &code, Real64 x) { return acos(code, 1 / x); }
// Of both zeros the same value, where 1 / x would take the sign.
inline Real64 acot(error &, Real64 x) { return x == 0 ? 1.5707963267948966 : __builtin_atan(1 / x); }

inline Real64 asinh(error &, Real64 x) { return __builtin_asinh(x); }
inline Real64 acosh(error &code, Real64 x) {
  return x < 1 ? outsideDomain<Real64>(code) : __builtin_acosh(x);
}
inline Real64 atanh(error &code, Real64 x) {
  return isBeyondOne(x) ? outsideDomain<Real64>(code) : __builtin_atanh(x);
}
inline Real64 acsch(error &, Real64 x) { return __builtin_asinh(1 / x); }
// 1 / x of a negative x, and of -0, lies below the domain of acosh; +0 has to be told apart.
inline Real64 asech(error &code, Real64 x) {
  return x <= 0 || x > 1 ? outsideDomain<Real64>(code) : __builtin_acosh(1 / x);
}
inline Real64 acoth(error &code, Real64 x) {
  return __builtin_fabs(x) < 1 ? outsideDomain<Real64>(code) : __builtin_atanh(1 / x);
}

// The platform's function of the same arguments in the same order, but for the origin.
inline Real64 atan2(error &code, Real64 x, Real64 y) {
  return x == 0 && y == 0 ? outsideDomain<Real64>(code) : __builtin_atan2(x, y);
}

} // namespace reals

namespace unary {

TORVANE_FUNCTION(asin)
TORVANE_FUNCTION(acos)
TORVANE_FUNCTION(atan)
TORVANE_FUNCTION(acsc)
TORVANE_FUNCTION(asec)
TORVANE_FUNCTION(acot)
TORVANE_FUNCTION(asinh)
TORVANE_FUNCTION(acosh)
TORVANE_FUNCTION(atanh)
TORVANE_FUNCTION(acsch)
TORVANE_FUNCTION(asech)
TORVANE_FUNCTION(acoth)

} // namespace unary

namespace binary {

TORVANE_BINARY_FUNCTION(atan2)

} // namespace binary

} // namespace torvane

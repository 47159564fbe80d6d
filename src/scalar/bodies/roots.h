// Roots.
//
// Reals: the processor's square root, correctly rounded, and 1 by it; the platform's cube root.
#pragma once

#include "../complexes/roots.h"
#include "../function.h"

namespace torvane {

namespace reals {

inline Real64 cbrt(error &, Real64 x) { return __builtin_cbrt(x); }
// At 0 an infinity with the sign of the zero.
inline Real64 rsqrt(error &code, Real64 x) {
  return x < 0 ? outsideDomain<Real64>(code) : 1 / __builtin_sqrt(x);
}

} // namespace reals

namespace unary {

struct sqrt {
  template <class Form, class T> static T apply(error &code, T x) {
    if constexpr (isComplex<T>) {
      return complexes::sqrt(code, x);
    } else {
      if (x < 0) {
        code = error::domain;
        return x;
      }
      return squareRoot(x);
    }
  }
};

TORVANE_REAL_FUNCTION(cbrt)
TORVANE_FUNCTION(rsqrt)

} // namespace unary

namespace binary {

// Defined for no type: a name that is taken.
struct root {};

} // namespace binary

} // namespace torvane

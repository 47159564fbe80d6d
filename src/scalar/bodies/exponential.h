// Exponentials and logarithms.
//
// Reals: the platform's functions. A logarithm is refused below its domain only: at 0, and at -1 for log1p,
// it is minus infinity, which the checked form reports where its row classifies.
#pragma once

#include "../complexes/exponential.h"
#include "../function.h"
#include "../integer_functions.h"

namespace torvane {

namespace reals {

inline Real64 exp(error &, Real64 x) { return __builtin_exp(x); }
inline Real64 expm1(error &, Real64 x) { return __builtin_expm1(x); }

inline Real64 log(error &code, Real64 x) { return x < 0 ? outsideDomain<Real64>(code) : __builtin_log(x); }
inline Real64 log1p(error &code, Real64 x) {
  return x < -1 ? outsideDomain<Real64>(code) : __builtin_log1p(x);
}
inline Real64 log2(error &code, Real64 x) { return x < 0 ? outsideDomain<Real64>(code) : __builtin_log2(x); }
inline Real64 log10(error &code, Real64 x) {
  return x < 0 ? outsideDomain<Real64>(code) : __builtin_log10(x);
}

// To a base, which comes first. Zeros are outside the domain here; the base 1 divides by zero.
inline Real64 log(error &code, Real64 base, Real64 x) {
  if (base <= 0 || x <= 0) return outsideDomain<Real64>(code);
  return __builtin_log(x) / __builtin_log(base);
}

} // namespace reals

namespace unary {

TORVANE_FUNCTION(exp)
TORVANE_FUNCTION(expm1)
TORVANE_FUNCTION(log)
TORVANE_FUNCTION(log1p)
TORVANE_FUNCTION_WITH_INTEGERS(log2, integerLog2)
TORVANE_FUNCTION_WITH_INTEGERS(log10, integerLog10)

} // namespace unary

namespace binary {

TORVANE_BINARY_FUNCTION(log)

} // namespace binary

} // namespace torvane

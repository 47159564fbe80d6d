// Trigonometric and hyperbolic functions, and their reciprocals.
//
// Reals: the platform's six functions, and 1 by them. No real argument is refused: a pole is an infinity.
#pragma once

#include "../complexes/circular.h"
#include "../function.h"

namespace torvane {

namespace reals {

inline Real64 sin(error &, Real64 x) { return __builtin_sin(x); }
inline Real64 cos(error &, Real64 x) { return __builtin_cos(x); }
inline Real64 tan(error &, Real64 x) { return __builtin_tan(x); }
inline Real64 csc(error &, Real64 x) { return 1 / __builtin_sin(x); }
inline Real64 sec(error &, Real64 x) { return 1 / __builtin_cos(x); }
inline Real64 cot(error &, Real64 x) { return 1 / __builtin_tan(x); }

inline Real64 sinh(error &, Real64 x) { return __builtin_sinh(x); }
inline Real64 cosh(error &, Real64 x) { return __builtin_cosh(x); }
inline Real64 tanh(error &, Real64 x) { return __builtin_tanh(x); }
inline Real64 csch(error &, Real64 x) { return 1 / __builtin_sinh(x); }
inline Real64 sech(error &, Real64 x) { return 1 / __builtin_cosh(x); }
inline Real64 coth(error &, Real64 x) { return 1 / __builtin_tanh(x); }

} // namespace reals

namespace unary {

TORVANE_FUNCTION(sin)
TORVANE_FUNCTION(cos)
TORVANE_FUNCTION(tan)
TORVANE_FUNCTION(csc)
TORVANE_FUNCTION(sec)
TORVANE_FUNCTION(cot)
TORVANE_FUNCTION(sinh)
TORVANE_FUNCTION(cosh)
TORVANE_FUNCTION(tanh)
TORVANE_FUNCTION(csch)
TORVANE_FUNCTION(sech)
TORVANE_FUNCTION(coth)

} // namespace unary

} // namespace torvane

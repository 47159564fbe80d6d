// The functions of reals as the operator table has them: name, bound and entries of each row, for the tests
// that walk them all.
#pragma once

#include <torvane/scalars.h>
#include <vector>

namespace torvane::test {

struct RealFunction {
  const char *name;
  double bound; // in ulp, of the Real64 entry
  double (*real64)(double), (*checkedReal64)(double);
  float (*real32)(float), (*checkedReal32)(float);
  uint16_t *(*real16)(uint16_t *, uint16_t), *(*checkedReal16)(uint16_t *, uint16_t);
};

struct RealPairFunction {
  const char *name;
  double bound;
  double (*real64)(double, double), (*checkedReal64)(double, double);
  float (*real32)(float, float), (*checkedReal32)(float, float);
  uint16_t *(*real16)(uint16_t *, uint16_t, uint16_t), *(*checkedReal16)(uint16_t *, uint16_t, uint16_t);
};

inline std::vector<RealFunction> realFunctions() {
  return {
#define TORVANE_BINARY(...)
#define TORVANE_UNARY(family, number, typed, vector, kinds, group, range, result, i, u, r, c, ulpR, ...)     \
  {#typed,                                                                                                   \
   ulpR,                                                                                                     \
   unary_##typed##_Real64,                                                                                   \
   checked_unary_##typed##_Real64,                                                                           \
   unary_##typed##_Real32,                                                                                   \
   checked_unary_##typed##_Real32,                                                                           \
   unary_##typed##_Real16,                                                                                   \
   checked_unary_##typed##_Real16},
#include "scalar/rows/roots.def"
#include "scalar/rows/exponential.def"
#include "scalar/rows/circular.def"
#include "scalar/rows/inverse.def"
#include "scalar/rows/special.def"
#undef TORVANE_UNARY
#undef TORVANE_BINARY
  };
}

inline std::vector<RealPairFunction> realPairFunctions() {
  return {
#define TORVANE_UNARY(...)
#define TORVANE_BINARY(family, number, typed, vector, kinds, rule, operands, result, i, u, r, c, ulpR, ...)  \
  {#typed,                                                                                                   \
   ulpR,                                                                                                     \
   binary_##typed##_Real64_Real64,                                                                           \
   checked_binary_##typed##_Real64_Real64,                                                                   \
   binary_##typed##_Real32_Real32,                                                                           \
   checked_binary_##typed##_Real32_Real32,                                                                   \
   binary_##typed##_Real16_Real16,                                                                           \
   checked_binary_##typed##_Real16_Real16},
#include "scalar/rows/exponential.def"
#include "scalar/rows/inverse.def"
#include "scalar/rows/powers.def"
#undef TORVANE_UNARY
#undef TORVANE_BINARY
  };
}

} // namespace torvane::test

// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../kernel.h"
#include "../reduction.h"
#include "../../scalar/bodies/rounding.h"
#include <torvane/machfuncs.h>

using namespace torvane;

mint machfunc_i_round(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::round, mint>(result, x, count, strides, flags);
}
mint machfunc_d_round(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::round, mreal>(result, x, count, strides, flags);
}

// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/roots.h"
#include <torvane/machfuncs.h>

using namespace torvane;

mint machfunc_d_sqrt(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::sqrt, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_sqrt(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::sqrt, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_d_cbrt(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::cbrt, mreal>(result, x, count, strides, flags);
}

mint machfunc_d_rsqrt(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::rsqrt, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_rsqrt(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::rsqrt, ComplexReal64>(result, x, count, strides, flags);
}


// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../drivers.h"
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/roots.h"
#include "roots_loops.h"
#include <torvane/machfuncs.h>

using namespace torvane;

static const torvane_loops::RootsLoops &loops() {
  static constexpr const torvane_loops::RootsLoops *byLevel[kProcessorLevels] = TORVANE_LOOPS_BY_LEVEL(roots);
  return *byLevel[processorLevel()];
}

mint machfunc_d_sqrt(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_sqrt, result, x, count, strides, flags);
}
mint machfunc_c_sqrt(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_sqrt, result, x, count, strides, flags);
}

mint machfunc_d_cbrt(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_cbrt, result, x, count, strides, flags);
}

mint machfunc_d_rsqrt(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_rsqrt, result, x, count, strides, flags);
}
mint machfunc_c_rsqrt(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_rsqrt, result, x, count, strides, flags);
}


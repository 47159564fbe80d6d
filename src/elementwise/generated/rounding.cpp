// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../drivers.h"
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/rounding.h"
#include "rounding_loops.h"
#include <torvane/machfuncs.h>

using namespace torvane;

static const torvane_loops::RoundingLoops &loops() {
  static constexpr const torvane_loops::RoundingLoops *byLevel[kProcessorLevels] = TORVANE_LOOPS_BY_LEVEL(rounding);
  return *byLevel[processorLevel()];
}

mint machfunc_i_round(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_round, result, x, count, strides, flags);
}
mint machfunc_d_round(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_round, result, x, count, strides, flags);
}

mint machfunc_i_floor(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_floor, result, x, count, strides, flags);
}
mint machfunc_d_floor(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_floor, result, x, count, strides, flags);
}

mint machfunc_i_ceiling(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_ceiling, result, x, count, strides, flags);
}
mint machfunc_d_ceiling(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_ceiling, result, x, count, strides, flags);
}

mint machfunc_i_intpart(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_intpart, result, x, count, strides, flags);
}
mint machfunc_d_intpart(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_intpart, result, x, count, strides, flags);
}

mint machfunc_i_fracpart(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_fracpart, result, x, count, strides, flags);
}
mint machfunc_d_fracpart(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_fracpart, result, x, count, strides, flags);
}
mint machfunc_c_fracpart(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_fracpart, result, x, count, strides, flags);
}

mint machfunc_i_mod1(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_mod1, result, x, count, strides, flags);
}
mint machfunc_d_mod1(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_mod1, result, x, count, strides, flags);
}
mint machfunc_c_mod1(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_mod1, result, x, count, strides, flags);
}

mint machfunc_ii_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().ii_mod, result, x, y, count, strides, flags);
}
mint machfunc_id_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().id_mod, result, x, y, count, strides, flags);
}
mint machfunc_ic_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().ic_mod, result, x, y, count, strides, flags);
}
mint machfunc_di_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().di_mod, result, x, y, count, strides, flags);
}
mint machfunc_dd_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().dd_mod, result, x, y, count, strides, flags);
}
mint machfunc_dc_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().dc_mod, result, x, y, count, strides, flags);
}
mint machfunc_ci_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().ci_mod, result, x, y, count, strides, flags);
}
mint machfunc_cd_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().cd_mod, result, x, y, count, strides, flags);
}
mint machfunc_cc_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().cc_mod, result, x, y, count, strides, flags);
}

mint machfunc_ii_quotient(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return driveBinary(loops().ii_quotient, result, x, y, count, strides, flags);
}
mint machfunc_id_quotient(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return driveBinary(loops().id_quotient, result, x, y, count, strides, flags);
}
mint machfunc_di_quotient(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return driveBinary(loops().di_quotient, result, x, y, count, strides, flags);
}
mint machfunc_dd_quotient(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return driveBinary(loops().dd_quotient, result, x, y, count, strides, flags);
}

// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../drivers.h"
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/parts.h"
#include "parts_loops.h"
#include <torvane/machfuncs.h>

using namespace torvane;

static const torvane_loops::PartsLoops &loops() {
  static constexpr const torvane_loops::PartsLoops *byLevel[kProcessorLevels] = TORVANE_LOOPS_BY_LEVEL(parts);
  return *byLevel[processorLevel()];
}

mint machfunc_i_abs(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_abs, result, x, count, strides, flags);
}
mint machfunc_d_abs(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_abs, result, x, count, strides, flags);
}
mint machfunc_c_abs(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_abs, result, x, count, strides, flags);
}

mint machfunc_i_abssquare(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_abssquare, result, x, count, strides, flags);
}
mint machfunc_d_abssquare(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_abssquare, result, x, count, strides, flags);
}
mint machfunc_c_abssquare(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_abssquare, result, x, count, strides, flags);
}

mint machfunc_i_arg(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_arg, result, x, count, strides, flags);
}
mint machfunc_d_arg(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_arg, result, x, count, strides, flags);
}
mint machfunc_c_arg(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_arg, result, x, count, strides, flags);
}

mint machfunc_i_conj(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_conj, result, x, count, strides, flags);
}
mint machfunc_d_conj(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_conj, result, x, count, strides, flags);
}
mint machfunc_c_conj(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_conj, result, x, count, strides, flags);
}

mint machfunc_i_im(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_im, result, x, count, strides, flags);
}
mint machfunc_d_im(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_im, result, x, count, strides, flags);
}
mint machfunc_c_im(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_im, result, x, count, strides, flags);
}

mint machfunc_i_re(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_re, result, x, count, strides, flags);
}
mint machfunc_d_re(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_re, result, x, count, strides, flags);
}
mint machfunc_c_re(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_re, result, x, count, strides, flags);
}

mint machfunc_i_sign(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_sign, result, x, count, strides, flags);
}
mint machfunc_d_sign(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_sign, result, x, count, strides, flags);
}
mint machfunc_c_sign(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_sign, result, x, count, strides, flags);
}






mint machfunc_d_fpexception(mint *accumulator, const mreal *data, mint count, const mint *strides,
                            mint flags) {
  return driveReduction(loops().d_fpexception, accumulator, data, count, strides, flags);
}
mint machfunc_c_fpexception(mint *accumulator, const mcomplex *data, mint count, const mint *strides,
                            mint flags) {
  return driveReduction(loops().c_fpexception, accumulator, data, count, strides, flags);
}

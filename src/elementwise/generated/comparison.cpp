// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../drivers.h"
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/comparison.h"
#include "comparison_loops.h"
#include <torvane/machfuncs.h>

using namespace torvane;

static const torvane_loops::ComparisonLoops &loops() {
  static constexpr const torvane_loops::ComparisonLoops *byLevel[kProcessorLevels] = TORVANE_LOOPS_BY_LEVEL(comparison);
  return *byLevel[processorLevel()];
}

mint machfunc_i_pos(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_pos, result, x, count, strides, flags);
}
mint machfunc_d_pos(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_pos, result, x, count, strides, flags);
}

mint machfunc_i_neg(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_neg, result, x, count, strides, flags);
}
mint machfunc_d_neg(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_neg, result, x, count, strides, flags);
}

mint machfunc_i_npos(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_npos, result, x, count, strides, flags);
}
mint machfunc_d_npos(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_npos, result, x, count, strides, flags);
}

mint machfunc_i_nneg(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_nneg, result, x, count, strides, flags);
}
mint machfunc_d_nneg(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_nneg, result, x, count, strides, flags);
}

mint machfunc_i_unitize(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_unitize, result, x, count, strides, flags);
}
mint machfunc_d_unitize(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_unitize, result, x, count, strides, flags);
}
mint machfunc_c_unitize(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_unitize, result, x, count, strides, flags);
}

mint machfunc_i_ramp(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_ramp, result, x, count, strides, flags);
}
mint machfunc_d_ramp(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_ramp, result, x, count, strides, flags);
}



mint machfunc_dd_chop(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return driveBinary(loops().dd_chop, result, x, y, count, strides, flags);
}
mint machfunc_cd_chop(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return driveBinary(loops().cd_chop, result, x, y, count, strides, flags);
}

mint machfunc_ii_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().ii_abserr, result, x, y, count, strides, flags);
}
mint machfunc_id_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().id_abserr, result, x, y, count, strides, flags);
}
mint machfunc_ic_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().ic_abserr, result, x, y, count, strides, flags);
}
mint machfunc_di_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().di_abserr, result, x, y, count, strides, flags);
}
mint machfunc_dd_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().dd_abserr, result, x, y, count, strides, flags);
}
mint machfunc_dc_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().dc_abserr, result, x, y, count, strides, flags);
}
mint machfunc_ci_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().ci_abserr, result, x, y, count, strides, flags);
}
mint machfunc_cd_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().cd_abserr, result, x, y, count, strides, flags);
}
mint machfunc_cc_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().cc_abserr, result, x, y, count, strides, flags);
}

mint machfunc_id_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().id_relerr, result, x, y, count, strides, flags);
}
mint machfunc_ic_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().ic_relerr, result, x, y, count, strides, flags);
}
mint machfunc_di_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().di_relerr, result, x, y, count, strides, flags);
}
mint machfunc_dd_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().dd_relerr, result, x, y, count, strides, flags);
}
mint machfunc_dc_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().dc_relerr, result, x, y, count, strides, flags);
}
mint machfunc_ci_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().ci_relerr, result, x, y, count, strides, flags);
}
mint machfunc_cd_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().cd_relerr, result, x, y, count, strides, flags);
}
mint machfunc_cc_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().cc_relerr, result, x, y, count, strides, flags);
}

mint machfunc_ii_maxabs(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().ii_maxabs, result, x, y, count, strides, flags);
}
mint machfunc_dd_maxabs(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().dd_maxabs, result, x, y, count, strides, flags);
}
mint machfunc_cc_maxabs(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().cc_maxabs, result, x, y, count, strides, flags);
}

mint machfunc_ii_unitize(void *result, const void *x, const void *y, mint count, const mint *strides,
                         mint flags) {
  return driveBinary(loops().ii_unitize, result, x, y, count, strides, flags);
}
mint machfunc_dd_unitize(void *result, const void *x, const void *y, mint count, const mint *strides,
                         mint flags) {
  return driveBinary(loops().dd_unitize, result, x, y, count, strides, flags);
}
mint machfunc_cd_unitize(void *result, const void *x, const void *y, mint count, const mint *strides,
                         mint flags) {
  return driveBinary(loops().cd_unitize, result, x, y, count, strides, flags);
}

mint machfunc_i_max(mint *accumulator, const mint *data, mint count, const mint *strides, mint flags) {
  return driveReduction(loops().i_max, accumulator, data, count, strides, flags);
}
mint machfunc_d_max(mreal *accumulator, const mreal *data, mint count, const mint *strides, mint flags) {
  return driveReduction(loops().d_max, accumulator, data, count, strides, flags);
}

mint machfunc_i_min(mint *accumulator, const mint *data, mint count, const mint *strides, mint flags) {
  return driveReduction(loops().i_min, accumulator, data, count, strides, flags);
}
mint machfunc_d_min(mreal *accumulator, const mreal *data, mint count, const mint *strides, mint flags) {
  return driveReduction(loops().d_min, accumulator, data, count, strides, flags);
}

mint machfunc_i_minmax(mint *accumulator, const mint *data, mint count, const mint *strides, mint flags) {
  return driveReduction(loops().i_minmax, accumulator, data, count, strides, flags);
}
mint machfunc_d_minmax(mreal *accumulator, const mreal *data, mint count, const mint *strides, mint flags) {
  return driveReduction(loops().d_minmax, accumulator, data, count, strides, flags);
}

mint machfunc_i_maxabs(mint *accumulator, const mint *data, mint count, const mint *strides, mint flags) {
  return driveReduction(loops().i_maxabs, accumulator, data, count, strides, flags);
}
mint machfunc_d_maxabs(mreal *accumulator, const mreal *data, mint count, const mint *strides, mint flags) {
  return driveReduction(loops().d_maxabs, accumulator, data, count, strides, flags);
}
mint machfunc_c_maxabs(mreal *accumulator, const mcomplex *data, mint count, const mint *strides,
                       mint flags) {
  return driveReduction(loops().c_maxabs, accumulator, data, count, strides, flags);
}

// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../drivers.h"
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/arithmetic.h"
#include "arithmetic_loops.h"
#include <torvane/machfuncs.h>

using namespace torvane;

static const torvane_loops::ArithmeticLoops &loops() {
  static constexpr const torvane_loops::ArithmeticLoops *byLevel[kProcessorLevels] = TORVANE_LOOPS_BY_LEVEL(arithmetic);
  return *byLevel[processorLevel()];
}

mint machfunc_i_minus(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_minus, result, x, count, strides, flags);
}
mint machfunc_d_minus(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_minus, result, x, count, strides, flags);
}
mint machfunc_c_minus(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_minus, result, x, count, strides, flags);
}

mint machfunc_i_square(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_square, result, x, count, strides, flags);
}
mint machfunc_d_square(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_square, result, x, count, strides, flags);
}
mint machfunc_c_square(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_square, result, x, count, strides, flags);
}

mint machfunc_d_recip(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_recip, result, x, count, strides, flags);
}
mint machfunc_c_recip(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().c_recip, result, x, count, strides, flags);
}

mint machfunc_ii_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return driveBinary(loops().ii_plus, result, x, y, count, strides, flags);
}
mint machfunc_id_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return driveBinary(loops().id_plus, result, x, y, count, strides, flags);
}
mint machfunc_ic_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return driveBinary(loops().ic_plus, result, x, y, count, strides, flags);
}
mint machfunc_di_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return driveBinary(loops().di_plus, result, x, y, count, strides, flags);
}
mint machfunc_dd_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return driveBinary(loops().dd_plus, result, x, y, count, strides, flags);
}
mint machfunc_dc_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return driveBinary(loops().dc_plus, result, x, y, count, strides, flags);
}
mint machfunc_ci_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return driveBinary(loops().ci_plus, result, x, y, count, strides, flags);
}
mint machfunc_cd_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return driveBinary(loops().cd_plus, result, x, y, count, strides, flags);
}
mint machfunc_cc_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return driveBinary(loops().cc_plus, result, x, y, count, strides, flags);
}

mint machfunc_ii_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return driveBinary(loops().ii_subtract, result, x, y, count, strides, flags);
}
mint machfunc_id_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return driveBinary(loops().id_subtract, result, x, y, count, strides, flags);
}
mint machfunc_ic_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return driveBinary(loops().ic_subtract, result, x, y, count, strides, flags);
}
mint machfunc_di_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return driveBinary(loops().di_subtract, result, x, y, count, strides, flags);
}
mint machfunc_dd_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return driveBinary(loops().dd_subtract, result, x, y, count, strides, flags);
}
mint machfunc_dc_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return driveBinary(loops().dc_subtract, result, x, y, count, strides, flags);
}
mint machfunc_ci_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return driveBinary(loops().ci_subtract, result, x, y, count, strides, flags);
}
mint machfunc_cd_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return driveBinary(loops().cd_subtract, result, x, y, count, strides, flags);
}
mint machfunc_cc_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return driveBinary(loops().cc_subtract, result, x, y, count, strides, flags);
}

mint machfunc_ii_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(loops().ii_times, result, x, y, count, strides, flags);
}
mint machfunc_id_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(loops().id_times, result, x, y, count, strides, flags);
}
mint machfunc_ic_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(loops().ic_times, result, x, y, count, strides, flags);
}
mint machfunc_di_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(loops().di_times, result, x, y, count, strides, flags);
}
mint machfunc_dd_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(loops().dd_times, result, x, y, count, strides, flags);
}
mint machfunc_dc_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(loops().dc_times, result, x, y, count, strides, flags);
}
mint machfunc_ci_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(loops().ci_times, result, x, y, count, strides, flags);
}
mint machfunc_cd_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(loops().cd_times, result, x, y, count, strides, flags);
}
mint machfunc_cc_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(loops().cc_times, result, x, y, count, strides, flags);
}

mint machfunc_id_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().id_div, result, x, y, count, strides, flags);
}
mint machfunc_ic_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().ic_div, result, x, y, count, strides, flags);
}
mint machfunc_di_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().di_div, result, x, y, count, strides, flags);
}
mint machfunc_dd_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().dd_div, result, x, y, count, strides, flags);
}
mint machfunc_dc_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().dc_div, result, x, y, count, strides, flags);
}
mint machfunc_ci_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().ci_div, result, x, y, count, strides, flags);
}
mint machfunc_cd_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().cd_div, result, x, y, count, strides, flags);
}
mint machfunc_cc_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(loops().cc_div, result, x, y, count, strides, flags);
}

mint machfunc_iii_axpy(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return driveTernary(loops().iii_axpy, result, a, x, y, count, strides, flags);
}
mint machfunc_ddd_axpy(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return driveTernary(loops().ddd_axpy, result, a, x, y, count, strides, flags);
}
mint machfunc_ccc_axpy(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return driveTernary(loops().ccc_axpy, result, a, x, y, count, strides, flags);
}

mint machfunc_iii_axmy(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return driveTernary(loops().iii_axmy, result, a, x, y, count, strides, flags);
}
mint machfunc_ddd_axmy(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return driveTernary(loops().ddd_axmy, result, a, x, y, count, strides, flags);
}
mint machfunc_ccc_axmy(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return driveTernary(loops().ccc_axmy, result, a, x, y, count, strides, flags);
}

mint machfunc_iii_ymax(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return driveTernary(loops().iii_ymax, result, a, x, y, count, strides, flags);
}
mint machfunc_ddd_ymax(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return driveTernary(loops().ddd_ymax, result, a, x, y, count, strides, flags);
}
mint machfunc_ccc_ymax(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return driveTernary(loops().ccc_ymax, result, a, x, y, count, strides, flags);
}

mint machfunc_ddd_adxmy(void *result, const void *a, const void *x, const void *y, mint count,
                        const mint *strides, mint flags) {
  return driveTernary(loops().ddd_adxmy, result, a, x, y, count, strides, flags);
}
mint machfunc_ccc_adxmy(void *result, const void *a, const void *x, const void *y, mint count,
                        const mint *strides, mint flags) {
  return driveTernary(loops().ccc_adxmy, result, a, x, y, count, strides, flags);
}

mint machfunc_i_total(mint *accumulator, const mint *data, mint count, const mint *strides, mint flags) {
  return driveReduction(loops().i_total, accumulator, data, count, strides, flags);
}
mint machfunc_d_total(mreal *accumulator, const mreal *data, mint count, const mint *strides, mint flags) {
  return driveReduction(loops().d_total, accumulator, data, count, strides, flags);
}
mint machfunc_c_total(mcomplex *accumulator, const mcomplex *data, mint count, const mint *strides,
                      mint flags) {
  return driveReduction(loops().c_total, accumulator, data, count, strides, flags);
}

mint machfunc_ii_dot(mint *accumulator, const mint *x, const mint *y, mint count, const mint *strides,
                     mint flags) {
  return drivePairReduction(loops().ii_dot, accumulator, x, y, count, strides, flags);
}

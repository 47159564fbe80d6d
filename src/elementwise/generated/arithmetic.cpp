// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/arithmetic.h"
#include <torvane/machfuncs.h>

using namespace torvane;

mint machfunc_i_minus(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::minus, mint>(result, x, count, strides, flags);
}
mint machfunc_d_minus(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::minus, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_minus(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::minus, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_i_square(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::square, mint>(result, x, count, strides, flags);
}
mint machfunc_d_square(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::square, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_square(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::square, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_d_recip(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::recip, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_recip(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::recip, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_ii_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return binaryRoutine<binary::plus, mint, mint>(result, x, y, count, strides, flags);
}
mint machfunc_id_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return binaryRoutine<binary::plus, mint, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_ic_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return binaryRoutine<binary::plus, mint, ComplexReal64>(result, x, y, count, strides, flags);
}
mint machfunc_di_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return binaryRoutine<binary::plus, mreal, mint>(result, x, y, count, strides, flags);
}
mint machfunc_dd_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return binaryRoutine<binary::plus, mreal, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_dc_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return binaryRoutine<binary::plus, mreal, ComplexReal64>(result, x, y, count, strides, flags);
}
mint machfunc_ci_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return binaryRoutine<binary::plus, ComplexReal64, mint>(result, x, y, count, strides, flags);
}
mint machfunc_cd_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return binaryRoutine<binary::plus, ComplexReal64, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_cc_plus(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return binaryRoutine<binary::plus, ComplexReal64, ComplexReal64>(result, x, y, count, strides, flags);
}

mint machfunc_ii_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return binaryRoutine<binary::subtract, mint, mint>(result, x, y, count, strides, flags);
}
mint machfunc_id_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return binaryRoutine<binary::subtract, mint, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_ic_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return binaryRoutine<binary::subtract, mint, ComplexReal64>(result, x, y, count, strides, flags);
}
mint machfunc_di_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return binaryRoutine<binary::subtract, mreal, mint>(result, x, y, count, strides, flags);
}
mint machfunc_dd_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return binaryRoutine<binary::subtract, mreal, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_dc_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return binaryRoutine<binary::subtract, mreal, ComplexReal64>(result, x, y, count, strides, flags);
}
mint machfunc_ci_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return binaryRoutine<binary::subtract, ComplexReal64, mint>(result, x, y, count, strides, flags);
}
mint machfunc_cd_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return binaryRoutine<binary::subtract, ComplexReal64, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_cc_subtract(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return binaryRoutine<binary::subtract, ComplexReal64, ComplexReal64>(result, x, y, count, strides, flags);
}

mint machfunc_ii_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return binaryRoutine<binary::times, mint, mint>(result, x, y, count, strides, flags);
}
mint machfunc_id_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return binaryRoutine<binary::times, mint, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_ic_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return binaryRoutine<binary::times, mint, ComplexReal64>(result, x, y, count, strides, flags);
}
mint machfunc_di_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return binaryRoutine<binary::times, mreal, mint>(result, x, y, count, strides, flags);
}
mint machfunc_dd_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return binaryRoutine<binary::times, mreal, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_dc_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return binaryRoutine<binary::times, mreal, ComplexReal64>(result, x, y, count, strides, flags);
}
mint machfunc_ci_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return binaryRoutine<binary::times, ComplexReal64, mint>(result, x, y, count, strides, flags);
}
mint machfunc_cd_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return binaryRoutine<binary::times, ComplexReal64, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_cc_times(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return binaryRoutine<binary::times, ComplexReal64, ComplexReal64>(result, x, y, count, strides, flags);
}

mint machfunc_id_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::divide, mint, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_ic_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::divide, mint, ComplexReal64>(result, x, y, count, strides, flags);
}
mint machfunc_di_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::divide, mreal, mint>(result, x, y, count, strides, flags);
}
mint machfunc_dd_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::divide, mreal, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_dc_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::divide, mreal, ComplexReal64>(result, x, y, count, strides, flags);
}
mint machfunc_ci_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::divide, ComplexReal64, mint>(result, x, y, count, strides, flags);
}
mint machfunc_cd_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::divide, ComplexReal64, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_cc_div(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::divide, ComplexReal64, ComplexReal64>(result, x, y, count, strides, flags);
}

mint machfunc_iii_axpy(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return ternaryRoutine<ternary::axpy, mint>(result, a, x, y, count, strides, flags);
}
mint machfunc_ddd_axpy(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return ternaryRoutine<ternary::axpy, mreal>(result, a, x, y, count, strides, flags);
}
mint machfunc_ccc_axpy(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return ternaryRoutine<ternary::axpy, ComplexReal64>(result, a, x, y, count, strides, flags);
}

mint machfunc_iii_axmy(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return ternaryRoutine<ternary::axmy, mint>(result, a, x, y, count, strides, flags);
}
mint machfunc_ddd_axmy(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return ternaryRoutine<ternary::axmy, mreal>(result, a, x, y, count, strides, flags);
}
mint machfunc_ccc_axmy(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return ternaryRoutine<ternary::axmy, ComplexReal64>(result, a, x, y, count, strides, flags);
}

mint machfunc_iii_ymax(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return ternaryRoutine<ternary::ymax, mint>(result, a, x, y, count, strides, flags);
}
mint machfunc_ddd_ymax(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return ternaryRoutine<ternary::ymax, mreal>(result, a, x, y, count, strides, flags);
}
mint machfunc_ccc_ymax(void *result, const void *a, const void *x, const void *y, mint count,
                       const mint *strides, mint flags) {
  return ternaryRoutine<ternary::ymax, ComplexReal64>(result, a, x, y, count, strides, flags);
}

mint machfunc_ddd_adxmy(void *result, const void *a, const void *x, const void *y, mint count,
                        const mint *strides, mint flags) {
  return ternaryRoutine<ternary::adxmy, mreal>(result, a, x, y, count, strides, flags);
}
mint machfunc_ccc_adxmy(void *result, const void *a, const void *x, const void *y, mint count,
                        const mint *strides, mint flags) {
  return ternaryRoutine<ternary::adxmy, ComplexReal64>(result, a, x, y, count, strides, flags);
}

mint machfunc_i_total(mint *accumulator, const mint *data, mint count, const mint *strides, mint flags) {
  return driveReduction(kReductionLoop<reduction::total, mint>, accumulator, data, count, strides, flags);
}
mint machfunc_d_total(mreal *accumulator, const mreal *data, mint count, const mint *strides, mint flags) {
  return driveReduction(kReductionLoop<reduction::total, mreal>, accumulator, data, count, strides, flags);
}
mint machfunc_c_total(mcomplex *accumulator, const mcomplex *data, mint count, const mint *strides,
                      mint flags) {
  return driveReduction(kReductionLoop<reduction::total, ComplexReal64>, accumulator, data, count, strides, flags);
}

mint machfunc_ii_dot(mint *accumulator, const mint *x, const mint *y, mint count, const mint *strides,
                     mint flags) {
  return drivePairReduction(kPairReductionLoop<reduction::dot, mint>, accumulator, x, y, count, strides, flags);
}

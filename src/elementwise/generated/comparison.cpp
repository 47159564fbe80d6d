// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/comparison.h"
#include <torvane/machfuncs.h>

using namespace torvane;

mint machfunc_i_pos(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::pos, mint>(result, x, count, strides, flags);
}
mint machfunc_d_pos(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::pos, mreal>(result, x, count, strides, flags);
}

mint machfunc_i_neg(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::neg, mint>(result, x, count, strides, flags);
}
mint machfunc_d_neg(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::neg, mreal>(result, x, count, strides, flags);
}

mint machfunc_i_npos(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::npos, mint>(result, x, count, strides, flags);
}
mint machfunc_d_npos(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::npos, mreal>(result, x, count, strides, flags);
}

mint machfunc_i_nneg(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::nneg, mint>(result, x, count, strides, flags);
}
mint machfunc_d_nneg(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::nneg, mreal>(result, x, count, strides, flags);
}

mint machfunc_i_unitize(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::unitize, mint>(result, x, count, strides, flags);
}
mint machfunc_d_unitize(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::unitize, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_unitize(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::unitize, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_i_ramp(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::ramp, mint>(result, x, count, strides, flags);
}
mint machfunc_d_ramp(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::ramp, mreal>(result, x, count, strides, flags);
}



mint machfunc_dd_chop(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return binaryRoutine<binary::chop, mreal, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_cd_chop(void *result, const void *x, const void *y, mint count, const mint *strides,
                      mint flags) {
  return binaryRoutine<binary::chop, ComplexReal64, mreal>(result, x, y, count, strides, flags);
}

mint machfunc_ii_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::abserr, mint, mint>(result, x, y, count, strides, flags);
}
mint machfunc_id_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::abserr, mint, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_ic_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::abserr, mint, ComplexReal64>(result, x, y, count, strides, flags);
}
mint machfunc_di_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::abserr, mreal, mint>(result, x, y, count, strides, flags);
}
mint machfunc_dd_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::abserr, mreal, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_dc_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::abserr, mreal, ComplexReal64>(result, x, y, count, strides, flags);
}
mint machfunc_ci_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::abserr, ComplexReal64, mint>(result, x, y, count, strides, flags);
}
mint machfunc_cd_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::abserr, ComplexReal64, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_cc_abserr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::abserr, ComplexReal64, ComplexReal64>(result, x, y, count, strides, flags);
}

mint machfunc_id_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::relerr, mint, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_ic_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::relerr, mint, ComplexReal64>(result, x, y, count, strides, flags);
}
mint machfunc_di_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::relerr, mreal, mint>(result, x, y, count, strides, flags);
}
mint machfunc_dd_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::relerr, mreal, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_dc_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::relerr, mreal, ComplexReal64>(result, x, y, count, strides, flags);
}
mint machfunc_ci_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::relerr, ComplexReal64, mint>(result, x, y, count, strides, flags);
}
mint machfunc_cd_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::relerr, ComplexReal64, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_cc_relerr(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::relerr, ComplexReal64, ComplexReal64>(result, x, y, count, strides, flags);
}

mint machfunc_ii_maxabs(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::maxabs, mint, mint>(result, x, y, count, strides, flags);
}
mint machfunc_dd_maxabs(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::maxabs, mreal, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_cc_maxabs(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::maxabs, ComplexReal64, ComplexReal64>(result, x, y, count, strides, flags);
}

mint machfunc_ii_unitize(void *result, const void *x, const void *y, mint count, const mint *strides,
                         mint flags) {
  return binaryRoutine<binary::unitize, mint, mint>(result, x, y, count, strides, flags);
}
mint machfunc_dd_unitize(void *result, const void *x, const void *y, mint count, const mint *strides,
                         mint flags) {
  return binaryRoutine<binary::unitize, mreal, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_cd_unitize(void *result, const void *x, const void *y, mint count, const mint *strides,
                         mint flags) {
  return binaryRoutine<binary::unitize, ComplexReal64, mreal>(result, x, y, count, strides, flags);
}

mint machfunc_i_max(mint *accumulator, const mint *data, mint count, const mint *strides, mint flags) {
  return driveReduction(kReductionLoop<reduction::max, mint>, accumulator, data, count, strides, flags);
}
mint machfunc_d_max(mreal *accumulator, const mreal *data, mint count, const mint *strides, mint flags) {
  return driveReduction(kReductionLoop<reduction::max, mreal>, accumulator, data, count, strides, flags);
}

mint machfunc_i_min(mint *accumulator, const mint *data, mint count, const mint *strides, mint flags) {
  return driveReduction(kReductionLoop<reduction::min, mint>, accumulator, data, count, strides, flags);
}
mint machfunc_d_min(mreal *accumulator, const mreal *data, mint count, const mint *strides, mint flags) {
  return driveReduction(kReductionLoop<reduction::min, mreal>, accumulator, data, count, strides, flags);
}

mint machfunc_i_minmax(mint *accumulator, const mint *data, mint count, const mint *strides, mint flags) {
  return driveReduction(kReductionLoop<reduction::minmax, mint>, accumulator, data, count, strides, flags);
}
mint machfunc_d_minmax(mreal *accumulator, const mreal *data, mint count, const mint *strides, mint flags) {
  return driveReduction(kReductionLoop<reduction::minmax, mreal>, accumulator, data, count, strides, flags);
}

mint machfunc_i_maxabs(mint *accumulator, const mint *data, mint count, const mint *strides, mint flags) {
  return driveReduction(kReductionLoop<reduction::maxabs, mint>, accumulator, data, count, strides, flags);
}
mint machfunc_d_maxabs(mreal *accumulator, const mreal *data, mint count, const mint *strides, mint flags) {
  return driveReduction(kReductionLoop<reduction::maxabs, mreal>, accumulator, data, count, strides, flags);
}
mint machfunc_c_maxabs(mreal *accumulator, const mcomplex *data, mint count, const mint *strides,
                       mint flags) {
  return driveReduction(kReductionLoop<reduction::maxabs, ComplexReal64>, accumulator, data, count, strides, flags);
}

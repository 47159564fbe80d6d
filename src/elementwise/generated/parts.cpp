// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/parts.h"
#include <torvane/machfuncs.h>

using namespace torvane;

mint machfunc_i_abs(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::abs, mint>(result, x, count, strides, flags);
}
mint machfunc_d_abs(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::abs, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_abs(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::abs, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_i_abssquare(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::abssquare, mint>(result, x, count, strides, flags);
}
mint machfunc_d_abssquare(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::abssquare, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_abssquare(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::abssquare, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_i_arg(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::arg, mint>(result, x, count, strides, flags);
}
mint machfunc_d_arg(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::arg, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_arg(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::arg, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_i_conj(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::conj, mint>(result, x, count, strides, flags);
}
mint machfunc_d_conj(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::conj, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_conj(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::conj, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_i_im(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::im, mint>(result, x, count, strides, flags);
}
mint machfunc_d_im(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::im, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_im(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::im, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_i_re(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::re, mint>(result, x, count, strides, flags);
}
mint machfunc_d_re(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::re, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_re(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::re, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_i_sign(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::sign, mint>(result, x, count, strides, flags);
}
mint machfunc_d_sign(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::sign, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_sign(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::sign, ComplexReal64>(result, x, count, strides, flags);
}






mint machfunc_d_fpexception(mint *accumulator, const mreal *data, mint count, const mint *strides,
                            mint flags) {
  return driveReduction(kReductionLoop<reduction::fpexception, mreal>, accumulator, data, count, strides, flags);
}
mint machfunc_c_fpexception(mint *accumulator, const mcomplex *data, mint count, const mint *strides,
                            mint flags) {
  return driveReduction(kReductionLoop<reduction::fpexception, ComplexReal64>, accumulator, data, count, strides, flags);
}

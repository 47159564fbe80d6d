// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../drivers.h"
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/exponential.h"
#include <torvane/machfuncs.h>

using namespace torvane;

mint machfunc_d_exp(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::exp, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_exp(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::exp, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_expm1(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::expm1, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_expm1(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::expm1, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_log(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::log, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_log(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::log, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_log1p(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::log1p, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_log1p(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::log1p, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_i_log2(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::log2, mint>, result, x, count, strides, flags);
}
mint machfunc_d_log2(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::log2, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_log2(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::log2, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_i_log10(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::log10, mint>, result, x, count, strides, flags);
}
mint machfunc_d_log10(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::log10, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_log10(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::log10, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_id_log(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::log, mint, mreal>, result, x, y, count, strides, flags);
}
mint machfunc_ic_log(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::log, mint, ComplexReal64>, result, x, y, count, strides, flags);
}
mint machfunc_di_log(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::log, mreal, mint>, result, x, y, count, strides, flags);
}
mint machfunc_dd_log(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::log, mreal, mreal>, result, x, y, count, strides, flags);
}
mint machfunc_dc_log(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::log, mreal, ComplexReal64>, result, x, y, count, strides, flags);
}
mint machfunc_ci_log(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::log, ComplexReal64, mint>, result, x, y, count, strides, flags);
}
mint machfunc_cd_log(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::log, ComplexReal64, mreal>, result, x, y, count, strides, flags);
}
mint machfunc_cc_log(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::log, ComplexReal64, ComplexReal64>, result, x, y, count, strides, flags);
}

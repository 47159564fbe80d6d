// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../drivers.h"
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/inverse.h"
#include <torvane/machfuncs.h>

using namespace torvane;

mint machfunc_d_asin(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::asin, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_asin(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::asin, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_acos(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::acos, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_acos(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::acos, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_atan(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::atan, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_atan(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::atan, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_acsc(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::acsc, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_acsc(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::acsc, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_asec(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::asec, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_asec(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::asec, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_acot(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::acot, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_acot(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::acot, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_asinh(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::asinh, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_asinh(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::asinh, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_acosh(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::acosh, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_acosh(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::acosh, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_atanh(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::atanh, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_atanh(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::atanh, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_acsch(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::acsch, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_acsch(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::acsch, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_asech(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::asech, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_asech(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::asech, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_acoth(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::acoth, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_acoth(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::acoth, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_id_atan2(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(kBinaryLoop<binary::atan2, mint, mreal>, result, x, y, count, strides, flags);
}
mint machfunc_ic_atan2(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(kBinaryLoop<binary::atan2, mint, ComplexReal64>, result, x, y, count, strides, flags);
}
mint machfunc_di_atan2(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(kBinaryLoop<binary::atan2, mreal, mint>, result, x, y, count, strides, flags);
}
mint machfunc_dd_atan2(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(kBinaryLoop<binary::atan2, mreal, mreal>, result, x, y, count, strides, flags);
}
mint machfunc_dc_atan2(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(kBinaryLoop<binary::atan2, mreal, ComplexReal64>, result, x, y, count, strides, flags);
}
mint machfunc_ci_atan2(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(kBinaryLoop<binary::atan2, ComplexReal64, mint>, result, x, y, count, strides, flags);
}
mint machfunc_cd_atan2(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(kBinaryLoop<binary::atan2, ComplexReal64, mreal>, result, x, y, count, strides, flags);
}
mint machfunc_cc_atan2(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(kBinaryLoop<binary::atan2, ComplexReal64, ComplexReal64>, result, x, y, count, strides, flags);
}

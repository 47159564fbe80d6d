// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../drivers.h"
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/powers.h"
#include <torvane/machfuncs.h>

using namespace torvane;

mint machfunc_ii_pow(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::pow, mint, mint>, result, x, y, count, strides, flags);
}
mint machfunc_id_pow(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::pow, mint, mreal>, result, x, y, count, strides, flags);
}
mint machfunc_ic_pow(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::pow, mint, ComplexReal64>, result, x, y, count, strides, flags);
}
mint machfunc_di_pow(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::pow, mreal, mint>, result, x, y, count, strides, flags);
}
mint machfunc_dd_pow(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::pow, mreal, mreal>, result, x, y, count, strides, flags);
}
mint machfunc_dc_pow(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::pow, mreal, ComplexReal64>, result, x, y, count, strides, flags);
}
mint machfunc_ci_pow(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::pow, ComplexReal64, mint>, result, x, y, count, strides, flags);
}
mint machfunc_cd_pow(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::pow, ComplexReal64, mreal>, result, x, y, count, strides, flags);
}
mint machfunc_cc_pow(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return driveBinary(kBinaryLoop<binary::pow, ComplexReal64, ComplexReal64>, result, x, y, count, strides, flags);
}

// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/rounding.h"
#include <torvane/machfuncs.h>

using namespace torvane;

mint machfunc_i_round(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::round, mint>(result, x, count, strides, flags);
}
mint machfunc_d_round(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::round, mreal>(result, x, count, strides, flags);
}

mint machfunc_i_floor(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::floor, mint>(result, x, count, strides, flags);
}
mint machfunc_d_floor(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::floor, mreal>(result, x, count, strides, flags);
}

mint machfunc_i_ceiling(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::ceiling, mint>(result, x, count, strides, flags);
}
mint machfunc_d_ceiling(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::ceiling, mreal>(result, x, count, strides, flags);
}

mint machfunc_i_intpart(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::intpart, mint>(result, x, count, strides, flags);
}
mint machfunc_d_intpart(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::intpart, mreal>(result, x, count, strides, flags);
}

mint machfunc_i_fracpart(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::fracpart, mint>(result, x, count, strides, flags);
}
mint machfunc_d_fracpart(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::fracpart, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_fracpart(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::fracpart, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_i_mod1(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::mod1, mint>(result, x, count, strides, flags);
}
mint machfunc_d_mod1(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::mod1, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_mod1(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::mod1, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_ii_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::mod, mint, mint>(result, x, y, count, strides, flags);
}
mint machfunc_id_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::mod, mint, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_ic_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::mod, mint, ComplexReal64>(result, x, y, count, strides, flags);
}
mint machfunc_di_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::mod, mreal, mint>(result, x, y, count, strides, flags);
}
mint machfunc_dd_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::mod, mreal, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_dc_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::mod, mreal, ComplexReal64>(result, x, y, count, strides, flags);
}
mint machfunc_ci_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::mod, ComplexReal64, mint>(result, x, y, count, strides, flags);
}
mint machfunc_cd_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::mod, ComplexReal64, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_cc_mod(void *result, const void *x, const void *y, mint count, const mint *strides,
                     mint flags) {
  return binaryRoutine<binary::mod, ComplexReal64, ComplexReal64>(result, x, y, count, strides, flags);
}

mint machfunc_ii_quotient(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return binaryRoutine<binary::quotient, mint, mint>(result, x, y, count, strides, flags);
}
mint machfunc_id_quotient(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return binaryRoutine<binary::quotient, mint, mreal>(result, x, y, count, strides, flags);
}
mint machfunc_di_quotient(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return binaryRoutine<binary::quotient, mreal, mint>(result, x, y, count, strides, flags);
}
mint machfunc_dd_quotient(void *result, const void *x, const void *y, mint count, const mint *strides,
                          mint flags) {
  return binaryRoutine<binary::quotient, mreal, mreal>(result, x, y, count, strides, flags);
}

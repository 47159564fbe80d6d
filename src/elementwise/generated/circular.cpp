// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../drivers.h"
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/circular.h"
#include <torvane/machfuncs.h>

using namespace torvane;

mint machfunc_d_sin(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::sin, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_sin(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::sin, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_cos(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::cos, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_cos(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::cos, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_tan(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::tan, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_tan(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::tan, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_csc(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::csc, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_csc(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::csc, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_sec(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::sec, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_sec(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::sec, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_cot(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::cot, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_cot(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::cot, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_sinh(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::sinh, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_sinh(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::sinh, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_cosh(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::cosh, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_cosh(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::cosh, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_tanh(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::tanh, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_tanh(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::tanh, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_csch(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::csch, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_csch(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::csch, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_sech(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::sech, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_sech(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::sech, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_coth(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::coth, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_coth(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::coth, ComplexReal64>, result, x, count, strides, flags);
}

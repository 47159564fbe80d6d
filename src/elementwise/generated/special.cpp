// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../drivers.h"
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/special.h"
#include <torvane/machfuncs.h>

using namespace torvane;

mint machfunc_d_sinc(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::sinc, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_sinc(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::sinc, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_i_fibonacci(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::fibonacci, mint>, result, x, count, strides, flags);
}
mint machfunc_d_fibonacci(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::fibonacci, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_fibonacci(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::fibonacci, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_i_lucasl(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::lucasl, mint>, result, x, count, strides, flags);
}
mint machfunc_d_lucasl(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::lucasl, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_lucasl(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::lucasl, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_gudermannian(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::gudermannian, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_gudermannian(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::gudermannian, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_inversegudermannian(void *result, const void *x, mint count, const mint *strides,
                                    mint flags) {
  return driveUnary(kUnaryLoop<unary::inversegudermannian, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_inversegudermannian(void *result, const void *x, mint count, const mint *strides,
                                    mint flags) {
  return driveUnary(kUnaryLoop<unary::inversegudermannian, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_haversine(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::haversine, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_haversine(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::haversine, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_inversehaversine(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::inversehaversine, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_inversehaversine(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::inversehaversine, ComplexReal64>, result, x, count, strides, flags);
}

mint machfunc_d_erfc(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::erfc, mreal>, result, x, count, strides, flags);
}

mint machfunc_d_erf(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::erf, mreal>, result, x, count, strides, flags);
}

mint machfunc_i_gamma(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::gamma, mint>, result, x, count, strides, flags);
}
mint machfunc_d_gamma(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::gamma, mreal>, result, x, count, strides, flags);
}

mint machfunc_d_loggamma(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::loggamma, mreal>, result, x, count, strides, flags);
}

mint machfunc_d_logistic(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::logistic, mreal>, result, x, count, strides, flags);
}
mint machfunc_c_logistic(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(kUnaryLoop<unary::logistic, ComplexReal64>, result, x, count, strides, flags);
}

// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/special.h"
#include <torvane/machfuncs.h>

using namespace torvane;

mint machfunc_d_sinc(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::sinc, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_sinc(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::sinc, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_i_fibonacci(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::fibonacci, mint>(result, x, count, strides, flags);
}
mint machfunc_d_fibonacci(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::fibonacci, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_fibonacci(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::fibonacci, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_i_lucasl(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::lucasl, mint>(result, x, count, strides, flags);
}
mint machfunc_d_lucasl(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::lucasl, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_lucasl(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::lucasl, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_d_gudermannian(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::gudermannian, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_gudermannian(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::gudermannian, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_d_inversegudermannian(void *result, const void *x, mint count, const mint *strides,
                                    mint flags) {
  return unaryRoutine<unary::inversegudermannian, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_inversegudermannian(void *result, const void *x, mint count, const mint *strides,
                                    mint flags) {
  return unaryRoutine<unary::inversegudermannian, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_d_haversine(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::haversine, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_haversine(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::haversine, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_d_inversehaversine(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::inversehaversine, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_inversehaversine(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::inversehaversine, ComplexReal64>(result, x, count, strides, flags);
}

mint machfunc_d_erfc(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::erfc, mreal>(result, x, count, strides, flags);
}

mint machfunc_d_erf(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::erf, mreal>(result, x, count, strides, flags);
}

mint machfunc_i_gamma(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::gamma, mint>(result, x, count, strides, flags);
}
mint machfunc_d_gamma(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::gamma, mreal>(result, x, count, strides, flags);
}

mint machfunc_d_loggamma(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::loggamma, mreal>(result, x, count, strides, flags);
}

mint machfunc_d_logistic(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::logistic, mreal>(result, x, count, strides, flags);
}
mint machfunc_c_logistic(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::logistic, ComplexReal64>(result, x, count, strides, flags);
}

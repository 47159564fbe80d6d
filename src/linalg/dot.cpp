// Dot products of vectors.
#include "dot.h"

#include "blas.h"
#include "plain_products.h"
#include "plain_sums.h"

#include <torvane/linalg.h>
#include <torvane/machfuncs.h>
#include <torvane/operators.h>

namespace torvane {

namespace {

// A finite number less itself is 0; anything else is not.
bool isFinite(mreal x) { return x - x == 0; }
bool isFinite(mcomplex x) { return isFinite(x.re) && isFinite(x.im); }

template <class T> mint storeTested(T *result, T dot, mint flags) {
  if ((flags & TORVANE_CHECK_REALS) != 0 && !isFinite(dot)) return kNotFinite;
  *result = dot;
  return kSuccess;
}

} // namespace

mint dotReals(mreal *result, const mreal *x, mint incx, const mreal *y, mint incy, mint n, mint flags) {
  if (n > kLongestInline) return storeTested(result, blasDot(n, x, incx, y, incy), flags);
  return storeTested(result, sumOfProducts(x, incx, y, incy, n, kAsItIs), flags);
}

mint dotComplexes(mcomplex *result, const mcomplex *x, mint incx, const mcomplex *y, mint incy, mint n,
                  bool conjugated, mint flags) {
  if (n > kLongestInline) return storeTested(result, blasComplexDot(x, incx, y, incy, n, conjugated), flags);
  return storeTested(result, plainComplexDot(x, incx, y, incy, n, conjugated), flags);
}

mint dotIntegers(mint *result, const mint *x, mint incx, const mint *y, mint incy, mint n, mint flags) {
  const mint strides[] = {1, incx, incy};
  mint dot = 0;
  if (machfunc_ii_dot(&dot, startOf(x, incx, n), startOf(y, incy, n), n, strides, flags) != 0)
    return kNotFinite;
  *result = dot;
  return kSuccess;
}

} // namespace torvane

using namespace torvane;

mint VectorDot_R64(mreal *result, const mreal *x, mint incx, const mreal *y, mint incy, mint n, mint flags) {
  return dotReals(result, x, incx, y, incy, n, flags) != kSuccess;
}

mint VectorDot_I(mint *result, const mint *x, mint incx, const mint *y, mint incy, mint n, mint flags) {
  return dotIntegers(result, x, incx, y, incy, n, flags) != kSuccess;
}

mint VectorDot_CR64(mcomplex *result, const mcomplex *x, mint incx, const mcomplex *y, mint incy, mint n,
                    mint flags) {
  return dotComplexes(result, x, incx, y, incy, n, false, flags) != kSuccess;
}

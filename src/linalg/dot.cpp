// Dot products of vectors.
#include "dot.h"

#include "blas.h"
#include "integer_dot.h"
#include "plain_products.h"
#include "plain_sums.h"

#include <torvane/linalg.h>
#include <torvane/operators.h>

namespace torvane {

namespace {

// A finite number less itself is 0; anything else is not.
bool isFinite(mreal x) { return x - x == 0; }
bool isFinite(mcomplex x) { return isFinite(x.re) && isFinite(x.im); }

// 0, or 1 and the result as it was.
template <class T> mint storeTested(T *result, T dot, mint flags) {
  if ((flags & TORVANE_CHECK_REALS) != 0 && !isFinite(dot)) return 1;
  *result = dot;
  return 0;
}

// Apart from the short dense sums: what lives across a call or a walk needs a frame, which they do without.
[[gnu::noinline]] mint dotByBlas(mreal *result, const mreal *x, mint incx, const mreal *y, mint incy, mint n,
                                 mint flags) {
  return storeTested(result, blasDot(n, x, incx, y, incy), flags);
}
[[gnu::noinline]] mint dotStrided(mreal *result, const mreal *x, mint incx, const mreal *y, mint incy, mint n,
                                  mint flags) {
  return storeTested(result, sumOfProducts(x, incx, y, incy, n, kAsItIs), flags);
}

} // namespace

mint dotComplexes(mcomplex *result, const mcomplex *x, mint incx, const mcomplex *y, mint incy, mint n,
                  bool conjugated, mint flags) {
  if (n > kLongestInline) return storeTested(result, blasComplexDot(x, incx, y, incy, n, conjugated), flags);
  return storeTested(result, plainComplexDot(x, incx, y, incy, n, conjugated), flags);
}

} // namespace torvane

using namespace torvane;

mint VectorDot_R64(mreal *result, const mreal *x, mint incx, const mreal *y, mint incy, mint n, mint flags) {
  if (n > kLongestInline) return dotByBlas(result, x, incx, y, incy, n, flags);
  if (incx != 1 || incy != 1) return dotStrided(result, x, incx, y, incy, n, flags);
  return storeTested(result, sumOfDenseProducts(x, y, n, kAsItIs), flags);
}

mint VectorDot_I(mint *result, const mint *x, mint incx, const mint *y, mint incy, mint n, mint flags) {
  return integerDot(result, x, incx, y, incy, n, flags) ? 0 : 1;
}

mint VectorDot_CR64(mcomplex *result, const mcomplex *x, mint incx, const mcomplex *y, mint incy, mint n,
                    mint flags) {
  return dotComplexes(result, x, incx, y, incy, n, false, flags);
}

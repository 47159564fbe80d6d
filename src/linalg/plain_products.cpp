#include "plain_products.h"

#include <string.h>

namespace torvane {

namespace {

template <class T> const T *startOf(const T *x, mint stride, mint count) {
  return stride < 0 ? x + (ptrdiff_t{1} - count) * stride : x;
}

void addProduct(mreal &sum, mreal x, mreal y) { sum += x * y; }
void addProduct(mcomplex &sum, mcomplex x, mcomplex y) {
  sum.re += x.re * y.re - x.im * y.im;
  sum.im += y.re * x.im + y.im * x.re;
}

constexpr auto same = [](auto x) { return x; };
constexpr auto conjugate = [](mcomplex x) { return mcomplex{x.re, -x.im}; };

template <class T, class Map>
inline __attribute__((always_inline)) T sumOfProducts(const T *x, mint strideX, const T *y, mint strideY,
                                                      mint count, Map map) {
  T sum = {};
  x = startOf(x, strideX, count);
  y = startOf(y, strideY, count);
  if (strideX == 1 && strideY == 1)
    for (ptrdiff_t k = 0; k < count; ++k) addProduct(sum, map(x[k]), y[k]);
  else
    for (ptrdiff_t k = 0; k < count; ++k) addProduct(sum, map(x[k * strideX]), y[k * strideY]);
  return sum;
}

// Row by row of b, so that it is read in the order in which it stands; each sum keeps its own order.
template <class T> void addRows(T *result, const T *a, const T *b, mint m, mint k, mint n) {
  memset(static_cast<void *>(result), 0, sizeof(T) * static_cast<size_t>(m) * static_cast<size_t>(n));
  for (mint i = 0; i < m; ++i, result += n)
    for (mint p = 0; p < k; ++p, ++a)
      for (ptrdiff_t j = 0; j < n; ++j) addProduct(result[j], *a, b[ptrdiff_t{p} * n + j]);
}

} // namespace

mreal plainDot(const mreal *x, mint strideX, const mreal *y, mint strideY, mint count) {
  return sumOfProducts(x, strideX, y, strideY, count, same);
}

mcomplex plainDot(const mcomplex *x, mint strideX, const mcomplex *y, mint strideY, mint count,
                  bool conjugated) {
  if (conjugated) return sumOfProducts(x, strideX, y, strideY, count, conjugate);
  return sumOfProducts(x, strideX, y, strideY, count, same);
}

void plainProduct(mreal *result, const mreal *a, const mreal *b, mint m, mint k, mint n) {
  addRows(result, a, b, m, k, n);
}
void plainProduct(mcomplex *result, const mcomplex *a, const mcomplex *b, mint m, mint k, mint n) {
  addRows(result, a, b, m, k, n);
}

} // namespace torvane

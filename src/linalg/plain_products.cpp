#include "plain_products.h"

#include "plain_sums.h"

#include <string.h>

namespace torvane {

namespace {

// Row by row of b, so that it is read in the order in which it stands; each sum keeps its own order.
template <class T> void addRows(T *result, const T *a, const T *b, mint m, mint k, mint n) {
  memset(static_cast<void *>(result), 0, sizeof(T) * static_cast<size_t>(m) * static_cast<size_t>(n));
  for (mint i = 0; i < m; ++i, result += n)
    for (mint p = 0; p < k; ++p, ++a)
      for (ptrdiff_t j = 0; j < n; ++j) result[j] = plus(result[j], times(*a, b[ptrdiff_t{p} * n + j]));
}

} // namespace

mreal plainDot(mint count, const mreal *x, mint strideX, const mreal *y, mint strideY) {
  return sumOfProducts(x, strideX, y, strideY, count, kAsItIs);
}

mcomplex plainComplexDot(const mcomplex *x, mint strideX, const mcomplex *y, mint strideY, mint count,
                         bool conjugated) {
  if (conjugated) return sumOfProducts(x, strideX, y, strideY, count, kConjugate);
  return sumOfProducts(x, strideX, y, strideY, count, kAsItIs);
}

void plainProduct(mreal *result, const mreal *a, const mreal *b, mint m, mint k, mint n) {
  addRows(result, a, b, m, k, n);
}
void plainProduct(mcomplex *result, const mcomplex *a, const mcomplex *b, mint m, mint k, mint n) {
  addRows(result, a, b, m, k, n);
}

} // namespace torvane

// The one sum of products whose order of additions is part of the interface: from 0, in the order of the
// index, every product and every addition rounded; a complex product is rounded in both parts before it is
// added.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// Where a walk over `count` elements begins: at a negative stride from the far end.
template <class T> inline const T *startOf(const T *x, mint stride, mint count) {
  return stride < 0 ? x + (ptrdiff_t{1} - count) * stride : x;
}

inline void addProduct(mreal &sum, mreal x, mreal y) { sum += x * y; }
inline void addProduct(mcomplex &sum, mcomplex x, mcomplex y) {
  sum.re += x.re * y.re - x.im * y.im;
  sum.im += y.re * x.im + y.im * x.re;
}

// `map` takes each element of x first.
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

} // namespace torvane

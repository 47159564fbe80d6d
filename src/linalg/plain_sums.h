// The one sum of products whose order of additions is part of the interface: from 0, in the order of the
// index, every product and every addition rounded; a complex product is rounded in both parts before it is
// added.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// Where a walk over `count` elements begins: at a negative stride from the far end.
template <class T> inline const T *startOf(const T *x, mint stride, mint count) {
  return stride < 0 && count > 0 ? x + (ptrdiff_t{1} - count) * stride : x;
}

inline mreal times(mreal x, mreal y) { return x * y; }
inline mcomplex times(mcomplex x, mcomplex y) {
  return {x.re * y.re - x.im * y.im, y.re * x.im + y.im * x.re};
}
inline mreal plus(mreal x, mreal y) { return x + y; }
inline mcomplex plus(mcomplex x, mcomplex y) { return {x.re + y.re, x.im + y.im}; }

// The same by fours: the products do not wait for the sum.
template <class T, class Product>
inline __attribute__((always_inline)) T sumInOrder(mint count, Product product) {
  T sum = {};
  ptrdiff_t k = 0;
  for (; count - k >= 4; k += 4) {
    const T p0 = product(k), p1 = product(k + 1), p2 = product(k + 2), p3 = product(k + 3);
    sum = plus(plus(plus(plus(sum, p0), p1), p2), p3);
  }
  const ptrdiff_t rest = count - k; // not a loop, which compilers would prepare for many turns
  if (rest > 0) sum = plus(sum, product(k));
  if (rest > 1) sum = plus(sum, product(k + 1));
  if (rest > 2) sum = plus(sum, product(k + 2));
  return sum;
}

// `map` takes each element of x first.
template <class T, class Map>
inline __attribute__((always_inline)) T sumOfDenseProducts(const T *x, const T *y, mint count, Map map) {
  return sumInOrder<T>(count, [=](ptrdiff_t k) { return times(map(x[k]), y[k]); });
}
template <class T, class Map>
inline __attribute__((always_inline)) T sumOfProducts(const T *x, mint strideX, const T *y, mint strideY,
                                                      mint count, Map map) {
  if (strideX == 1 && strideY == 1) return sumOfDenseProducts(x, y, count, map);
  const T *a = startOf(x, strideX, count), *b = startOf(y, strideY, count);
  return sumInOrder<T>(count, [=](ptrdiff_t k) { return times(map(a[k * strideX]), b[k * strideY]); });
}

inline constexpr auto kAsItIs = [](auto x) { return x; };
inline constexpr auto kConjugate = [](mcomplex x) { return mcomplex{x.re, -x.im}; };

} // namespace torvane

// What the loops of matrix products are to their callers, on whatever processor level. Outside the namespace
// of the levels, since it crosses from one to another.
//
// Row-major and dense, with extents of at least 1: a is m by k, b is k by n; the result overlaps neither.
#pragma once

#include <torvane/types.h>

namespace torvane_loops {

inline constexpr mint kExactRows = 4, kExactColumns = 512;

struct ProductLoops {
  // Each element one sum from 0 in the order of the inner index. False where an element is infinite or a NaN.
  bool (*reals)(mreal *result, const mreal *a, const mreal *b, mint m, mint k, mint n);
  bool (*complexes)(mcomplex *result, const mcomplex *a, const mcomplex *b, mint m, mint k, mint n);
  // Wraps.
  void (*integers)(mint *result, const mint *a, const mint *b, mint m, mint k, mint n);

  // The largest magnitude in each row of b.
  void (*rowMagnitudes)(uint32_t *magnitudes, const mint *b, mint k, mint n);
  // Rows of the result by exact sums, of products in range: one row, or kExactRows of up to kExactColumns
  // columns. Stores up to the first sum out of range, and yields how many it has stored.
  mint (*exactRow)(mint *result, const mint *a, const mint *b, mint k, mint n);
  mint (*exactRows)(mint *result, const mint *a, const mint *b, mint k, mint n);

  bool (*areFinite)(const mreal *x, mint count);
};

extern const ProductLoops product_baseline, product_avx2, product_avx512;

} // namespace torvane_loops

// Loops that add the rows of a matrix to sums of its columns, at several processor levels (levels.h).
#pragma once

#include "../elementwise/levels.h"

#include <stddef.h>

namespace torvane_loops {

// Adds `count` dense rows of `stride` elements, of each the first `columns` ones, to as many sums: column by
// column in the order of the rows. Integers wrap; the checked loop is false where a partial sum leaves the
// range or is the reserved value.
struct ColumnsLoops {
  void (*addReals)(mreal *sums, const mreal *rows, mint count, size_t stride, size_t columns);
  void (*addIntegers)(mint *sums, const mint *rows, mint count, size_t stride, size_t columns);
  bool (*addCheckedIntegers)(mint *sums, const mint *rows, mint count, size_t stride, size_t columns);
};

extern const ColumnsLoops columns_baseline, columns_avx2, columns_avx512;

} // namespace torvane_loops

// Integer products run in vector blocks whose order of additions is free. What a checked one must find is
// found by bounds: with c(p) the largest magnitude in row p of b, a product of row i of a is out of range
// exactly where some |a(i, p)| * c(p) is, because c(p) is the magnitude of an element; and where the sum over
// p of these fits, no sum of the row, whole or partial, can leave the range. Only the other rows need exact
// sums.
#include "matrix_product.h"

#include "../algorithms/scratch_bytes.h"
#include "../elementwise/levels.h"
#include "../elementwise/pieces.h"
#include "../elementwise/reduction_loops.h"
#include "../runtime/platform_cpu_level.h"
#include "../scalar/magnitude.h"
#include "integer_dot.h"
#include "matrix_product_loops.h"

#include <torvane/machfuncs.h>
#include <torvane/operators.h>

namespace torvane {

namespace {

using torvane_loops::kExactColumns;
using torvane_loops::kExactRows;
using torvane_loops::kFreeOrder;

const torvane_loops::ProductLoops &loops() {
  static constexpr const torvane_loops::ProductLoops *byLevel[kProcessorLevels] =
      TORVANE_LOOPS_BY_LEVEL(product);
  return *byLevel[processorLevel()];
}

// By the dot products themselves, in their order.
bool rowByDots(mint *result, const mint *a, const mint *b, mint k, mint n, mint flags) {
  for (mint j = 0; j < n; ++j)
    if (!integerDot(result + j, a, 1, b + j, n, k, flags)) return false;
  return true;
}

bool rowsByDots(mint *result, const mint *a, const mint *b, mint m, mint k, mint n, mint flags) {
  for (ptrdiff_t i = 0; i < m; ++i)
    if (!rowByDots(result + i * n, a + i * k, b, k, n, flags)) return false;
  return true;
}

enum class RowIs { safe, inRangeByProducts, failing };

RowIs judge(const mint *a, const uint32_t *magnitudes, mint k) {
  uint64_t sum = 0, largest = 0;
  for (mint p = 0; p < k; ++p) {
    const uint64_t product = uint64_t{magnitudeBits(a[p])} * magnitudes[p];
    largest = product > largest ? product : largest;
    sum += product; // wraps only where the largest product fails
  }
  if (largest > kMaximum<mint>) return RowIs::failing;
  return sum <= kMaximum<mint> ? RowIs::safe : RowIs::inRangeByProducts;
}

struct Checked {
  mint *result;
  const mint *a, *b;
  mint m, k, n;
  const uint32_t *magnitudes;

  RowIs judgeRow(ptrdiff_t i) const { return judge(a + i * k, magnitudes, k); }

  // Rows of one kind from `first` on; failing ones come alone.
  ptrdiff_t endOfRun(ptrdiff_t first, RowIs row) const {
    ptrdiff_t i = first + 1;
    while (row != RowIs::failing && i < m && judgeRow(i) == row) ++i;
    return i;
  }

  bool runExact(ptrdiff_t i, ptrdiff_t last) const {
    for (; n <= kExactColumns && last - i >= kExactRows; i += kExactRows)
      if (loops().exactRows(result + i * n, a + i * k, b, k, n) < kExactRows * n) return false;
    for (; i < last; ++i)
      if (loops().exactRow(result + i * n, a + i * k, b, k, n) < n) return false;
    return true;
  }

  bool runRows(ptrdiff_t first, ptrdiff_t last, RowIs row) const {
    const mint count = static_cast<mint>(last - first);
    mint *to = result + first * n;
    const mint *from = a + first * k;
    if (row == RowIs::safe) {
      loops().integers(to, from, b, count, k, n);
      return true;
    }
    if (row == RowIs::failing || k < kFreeOrder)
      return rowsByDots(to, from, b, count, k, n, TORVANE_CHECK_INTEGERS);
    return runExact(first, last);
  }

  bool run() const {
    for (ptrdiff_t i = 0; i < m;) {
      const RowIs row = judgeRow(i);
      const ptrdiff_t end = endOfRun(i, row);
      if (!runRows(i, end, row)) return false;
      i = end;
    }
    return true;
  }
};

// Without memory for the bounds every row is run by its dot products: slower, and right.
bool checkedProduct(mint *result, const mint *a, const mint *b, mint m, mint k, mint n) {
  const ScratchBytes magnitudes(static_cast<uint64_t>(k) * sizeof(uint32_t), kQuiet);
  if (!magnitudes) return rowsByDots(result, a, b, m, k, n, TORVANE_CHECK_INTEGERS);
  loops().rowMagnitudes(magnitudes.as<uint32_t>(), b, k, n);
  return Checked{result, a, b, m, k, n, magnitudes.as<uint32_t>()}.run();
}

} // namespace

// Long ones are shared among the workers.
bool areFinite(const mreal *x, mint count) {
  constexpr mint kDense[] = {1, 1};
  if (!goesParallel(kReductions, count)) return loops().areFinite(x, count);
  mint found;
  machfunc_d_fpexception(&found, x, count, kDense, TORVANE_CHECK_REALS);
  return found == 0;
}
bool areFinite(const mcomplex *x, mint count) {
  constexpr mint kDense[] = {1, 1};
  mint found;
  machfunc_c_fpexception(&found, x, count, kDense, TORVANE_CHECK_REALS);
  return found == 0;
}

bool sequentialProduct(mreal *result, const mreal *a, const mreal *b, mint m, mint k, mint n) {
  return loops().reals(result, a, b, m, k, n);
}
bool sequentialProduct(mcomplex *result, const mcomplex *a, const mcomplex *b, mint m, mint k, mint n) {
  return loops().complexes(result, a, b, m, k, n);
}

bool integerProduct(mint *result, const mint *a, const mint *b, mint m, mint k, mint n, mint flags) {
  if (n == 1) return rowsByDots(result, a, b, m, k, n, flags); // both dense
  if ((flags & TORVANE_CHECK_INTEGERS) != 0) return checkedProduct(result, a, b, m, k, n);
  loops().integers(result, a, b, m, k, n);
  return true;
}

} // namespace torvane

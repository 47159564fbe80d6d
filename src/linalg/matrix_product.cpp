// Integer products run in vector blocks whose order of additions is free. What a checked one must find is
// found by bounds: with c(p) the largest magnitude in row p of b, a product of row i of a is out of range
// exactly where some |a(i, p)| * c(p) is, because c(p) is the magnitude of an element; and where the sum over
// p of these fits, no sum of the row, whole or partial, can leave the range. Only the other rows need exact
// sums.
#include "matrix_product.h"

#include "../algorithms/scratch_bytes.h"
#include "../elementwise/levels.h"
#include "../runtime/platform_cpu_level.h"
#include "../scalar/magnitude.h"
#include "matrix_product_loops.h"

#include <torvane/machfuncs.h>
#include <torvane/operators.h>

namespace torvane {

namespace {

constexpr mint kFreeOrder = 8; // elements from which a checked dot product tests its sum as a whole

const torvane_loops::ProductLoops &loops() {
  static constexpr const torvane_loops::ProductLoops *byLevel[kProcessorLevels] =
      TORVANE_LOOPS_BY_LEVEL(product);
  return *byLevel[processorLevel()];
}

// By the dot products themselves, in their order.
bool rowByDots(mint *result, const mint *a, const mint *b, mint k, mint n, mint flags) {
  const mint strides[] = {1, 1, n};
  for (mint j = 0; j < n; ++j) {
    mint sum;
    if (machfunc_ii_dot(&sum, a, b + j, k, strides, flags) != 0) return false;
    result[j] = sum;
  }
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
  mint k, n;

  void runSafe(ptrdiff_t first, ptrdiff_t last) const {
    if (last > first)
      loops().integers(result + first * n, a + first * k, b, static_cast<mint>(last - first), k, n);
  }
  bool runRow(ptrdiff_t i, RowIs row) const {
    if (row == RowIs::failing || k < kFreeOrder)
      return rowByDots(result + i * n, a + i * k, b, k, n, TORVANE_CHECK_INTEGERS);
    return loops().integerRow(result + i * n, a + i * k, b, k, n) == n;
  }
  // Safe rows wait until there is another kind of row, and run together.
  bool run(mint m, const uint32_t *magnitudes) const {
    ptrdiff_t safe = 0;
    for (ptrdiff_t i = 0; i < m; ++i) {
      const RowIs row = judge(a + i * k, magnitudes, k);
      if (row == RowIs::safe) continue;
      runSafe(safe, i);
      if (!runRow(i, row)) return false;
      safe = i + 1;
    }
    runSafe(safe, m);
    return true;
  }
};

// Without memory for the bounds every row is run by its dot products: slower, and right.
bool checkedProduct(mint *result, const mint *a, const mint *b, mint m, mint k, mint n) {
  const ScratchBytes magnitudes(static_cast<uint64_t>(k) * sizeof(uint32_t), kQuiet);
  if (!magnitudes) return rowsByDots(result, a, b, m, k, n, TORVANE_CHECK_INTEGERS);
  loops().rowMagnitudes(magnitudes.as<uint32_t>(), b, k, n);
  return Checked{result, a, b, k, n}.run(m, magnitudes.as<uint32_t>());
}

} // namespace

bool areFinite(const mreal *x, mint count) {
  constexpr mint kDense[] = {1, 1};
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
  return loops().reals(result, a, b, m, k, n) || areFinite(result, m * n);
}
bool sequentialProduct(mcomplex *result, const mcomplex *a, const mcomplex *b, mint m, mint k, mint n) {
  return loops().complexes(result, a, b, m, k, n) || areFinite(result, m * n);
}

bool integerProduct(mint *result, const mint *a, const mint *b, mint m, mint k, mint n, mint flags) {
  if (n == 1) return rowsByDots(result, a, b, m, k, n, flags); // both dense
  if ((flags & TORVANE_CHECK_INTEGERS) != 0) return checkedProduct(result, a, b, m, k, n);
  loops().integers(result, a, b, m, k, n);
  return true;
}

} // namespace torvane

// SmallDet: the determinant of a small real matrix, by expansion along the first column.
//
// A minor is a list of pointers to rows, each at the minor's first column; those of all levels of the
// recursion stand one behind the other in one array of n (n + 1) / 2. The cost grows with n!, as the name
// says. There is no pivoting: the products and the order of their sum are part of the interface.
#include "../algorithms/handler.h"
#include "../tensor/scratch.h"

namespace torvane {

namespace {

mreal determinant(const mreal **rows, mint n) {
  if (n < 1) return 0;
  if (n == 1) return rows[0][0];
  if (n == 2) return rows[0][0] * rows[1][1] - rows[0][1] * rows[1][0];
  const mreal **minor = rows + n;
  mreal sum = 0, sign = 1;
  for (mint i = 0; i < n; ++i, sign = -sign) {
    for (mint k = 0; k < n; ++k)
      if (k != i) minor[k < i ? k : k - 1] = rows[k] + 1;
    sum += (sign * rows[i][0]) * determinant(minor, n - 1);
  }
  return sum;
}

} // namespace

mint handleSmallDet(TorvaneLibraryData *, mint, void *const *arguments, void *result) {
  const MTensor *matrix = tensorArgument(arguments, 0);
  if (matrix->rank != 2) return kWrongRank;
  const mint n = matrix->dimensions[0];
  if (matrix->dimensions[1] != n) return kWrongDimensions;
  if (matrix->type != TORVANE_TYPE_REAL) return kWrongType;
  Scratch<const mreal *, 21> rows(static_cast<mint>(int64_t{n} * (n + 1) / 2)); // on the stack up to n = 6
  if (rows.status() != kSuccess) return rows.status();
  for (mint i = 0; i < n; ++i) rows[i] = static_cast<const mreal *>(matrix->data) + ptrdiff_t{i} * n;
  storeResult(result, determinant(rows.get(), n));
  return kSuccess;
}

} // namespace torvane

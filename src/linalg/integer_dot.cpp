// A short sum is run here: the routine's way to its loops, which choose a form, a level and workers, would
// take several times as long.
#include "integer_dot.h"

#include "../elementwise/reduction_loops.h"
#include "../scalar/magnitude.h"
#include "dot.h"
#include "plain_sums.h"

#include <torvane/machfuncs.h>
#include <torvane/operators.h>

namespace torvane {

namespace {

struct Strided {
  const mint *x, *y;
  ptrdiff_t strideX, strideY;
  int64_t operator()(ptrdiff_t k) const { return int64_t{x[k * strideX]} * y[k * strideY]; }
};
struct Dense {
  const mint *x, *y;
  int64_t operator()(ptrdiff_t k) const { return int64_t{x[k]} * y[k]; }
};

template <class Products> uint32_t wrappedSum(Products product, mint count) {
  uint32_t sum = 0;
  for (mint k = 0; k < count; ++k) sum += static_cast<uint32_t>(product(k));
  return sum;
}

// The top bit is set where x is out of range: one of its distances to the bounds is negative.
uint64_t distances(uint64_t x) { return (uint64_t{kMaximum<mint>} - x) | (uint64_t{kMaximum<mint>} + x); }

// Every product is tested; of fewer than kFreeOrder every partial sum, of more the whole. A sum can wrap only
// behind a product that fails.
template <class Products> bool checkedSum(mint *result, Products product, mint count) {
  uint64_t sum = 0, found = 0;
  const auto take = [&](mint k) {
    const auto term = static_cast<uint64_t>(product(k));
    found |= distances(term);
    sum += term;
  };
  if (count < torvane_loops::kFreeOrder)
    for (mint k = 0; k < count; ++k) take(k), found |= distances(sum);
  else
    for (mint k = 0; k < count; ++k) take(k);
  if (static_cast<int64_t>(found | distances(sum)) < 0) return false;
  *result = static_cast<mint>(sum);
  return true;
}

template <class Products> bool shortDot(mint *result, Products product, mint count, mint flags) {
  if ((flags & TORVANE_CHECK_INTEGERS) != 0) return checkedSum(result, product, count);
  *result = static_cast<mint>(wrappedSum(product, count));
  return true;
}

bool longDot(mint *result, const mint *x, mint strideX, const mint *y, mint strideY, mint count, mint flags) {
  const mint strides[] = {1, strideX, strideY};
  mint dot;
  if (machfunc_ii_dot(&dot, x, y, count, strides, flags) != 0) return false;
  *result = dot;
  return true;
}

} // namespace

bool integerDot(mint *result, const mint *x, mint strideX, const mint *y, mint strideY, mint count,
                mint flags) {
  x = startOf(x, strideX, count);
  y = startOf(y, strideY, count);
  if (count > kLongestInline) return longDot(result, x, strideX, y, strideY, count, flags);
  if (strideX == 1 && strideY == 1) return shortDot(result, Dense{x, y}, count, flags);
  return shortDot(result, Strided{x, y, strideX, strideY}, count, flags);
}

} // namespace torvane

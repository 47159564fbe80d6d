#include "widening.h"

#include "repetition.h"
#include <torvane/failure.h>

namespace torvane {

namespace {

// Elements between two looks at the host's abort flag.
constexpr mint kAbortPollBlock = 1024;

bool abortRequestedAt(mint position) { return position % kAbortPollBlock == 0 && checkAbortWatch() != 0; }

// The kinds seen so far, as the bits of their numbers.
mint outcomeOfKinds(mint kinds) { return kinds == 0 ? kDone : -kinds; }

mreal realAt(const MTensor *tensor, mint index) { return static_cast<const mreal *>(tensor->data)[index]; }

} // namespace

mint widenUnary(const UnaryPair &pair, mcomplex *result, const mreal *x, mint count, mint flags) {
  const mint strides[2] = {1, 1};
  mint kinds = 0;
  for (mint k = 0; k < count; ++k) {
    if (abortRequestedAt(k)) return k;
    mreal value;
    if (pair.real(&value, x + k, 1, strides, flags) == 0) {
      result[k] = {value, 0.0};
      kinds |= TORVANE_TYPE_REAL;
      continue;
    }
    const mcomplex widened = {x[k], 0.0};
    if (pair.complex(result + k, &widened, 1, strides, flags) != 0) return k;
    kinds |= TORVANE_TYPE_COMPLEX;
  }
  return outcomeOfKinds(kinds);
}

namespace {

// One element of a binary pair. Yields the kind it had, or 0 for a failure. The real routine is told to
// refuse infinities and NaNs; if the complex one then stays on the real axis, the refusal was no true
// departure from the reals and the element fails.
mint widenPairElement(const BinaryPair &pair, mcomplex *target, const MTensor *x, mint k1, const MTensor *y,
                      mint k2, mint flags) {
  const mint strides[3] = {1, 1, 1};
  const void *first = elementAt(x, k1), *second = elementAt(y, k2);
  mreal value;
  if (pair.real(&value, first, second, 1, strides, flags | TORVANE_CHECK_REALS) == 0) {
    *target = {value, 0.0};
    return TORVANE_TYPE_REAL;
  }
  const mcomplex widened = {pair.widensFirst ? realAt(x, k1) : realAt(y, k2), 0.0};
  (pair.widensFirst ? first : second) = &widened;
  mcomplex wide;
  if (pair.complex(&wide, first, second, 1, strides, flags) != 0 || wide.im == 0.0) return 0;
  *target = wide;
  return TORVANE_TYPE_COMPLEX;
}

} // namespace

mint widenBinary(const BinaryPair &pair, MTensor *result, const MTensor *x, const MTensor *y, mint flags) {
  return overBlocks({x->elementCount, y->elementCount}, [&](const PairRun &run) {
    auto *target = static_cast<mcomplex *>(result->data) + run.resultStart;
    mint kinds = 0;
    for (mint k = 0; k < run.count; ++k) {
      if (abortRequestedAt(run.resultStart + k)) return k;
      const mint kind = widenPairElement(pair, target + k, x, run.start1 + k * run.strides[1], y,
                                         run.start2 + k * run.strides[2], flags);
      if (kind == 0) return k;
      kinds |= kind;
    }
    return outcomeOfKinds(kinds);
  });
}

} // namespace torvane

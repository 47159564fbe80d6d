// Which way the rows of a tensor are ordered: not at all, turned round, by radix, or by merging.
#include "order.h"

#include "order_radix.h"
#include "order_runs.h"
#include "scratch_bytes.h"

#include <torvane/sorting.h>

#include <numeric>

namespace torvane {

namespace {

constexpr mint kFewRows = 48;  // merging orders them soonest
constexpr mint kManyKeys = 12; // of a row: the first ones decide, and merging looks at no others

bool holdsNaN(const mint *, mint) { return false; }
bool isBlockNaN(const mreal *x, mint count) {
  mint found = 0;
  for (mint k = 0; k < count; ++k) found |= x[k] != x[k];
  return found != 0;
}
bool holdsNaN(const mreal *x, size_t count) {
  for (size_t k = 0; k < count; k += kRunBlock)
    if (isBlockNaN(x + k, static_cast<mint>(std::min<size_t>(kRunBlock, count - k)))) return true;
  return false;
}
bool holdsNaN(const mreal *x, mint count) { return holdsNaN(x, static_cast<size_t>(count)); }
bool holdsNaN(const mcomplex *x, mint count) { return holdsNaN(&x->re, 2 * static_cast<size_t>(count)); }

// False where the memory cannot be had.
template <class Element> bool orderByRadix(mint *rows, RowKeys<Element> keys, mint count) {
  const ScratchBytes words(2 * sizeof(uint64_t) * uint64_t{static_cast<uint32_t>(count)}, kQuiet);
  const ScratchBytes counts(sizeof(DigitCounts), kQuiet);
  if (!words || !counts) return false;
  RadixOrder<Element>(keys, words.as<uint64_t>(), count, counts.as<DigitCounts>()).order(rows, count);
  return true;
}

template <class Order> mint orderByMerging(mint *rows, const Order &order, mint count, bool *wereInOrder) {
  const ScratchBytes scratch(uint64_t{sizeof(mint)} * static_cast<uint32_t>(count / 2), kReport);
  if (!scratch && count > 1) return kSizeFailed;
  *wereInOrder = MergeSort(order, scratch.as<mint>()).sort(rows, count);
  return kSuccess;
}

template <class Element> mint orderTyped(mint *rows, const MTensor *tensor, bool *wereInOrder) {
  const mint count = rowCountOf(tensor), length = rowLengthOf(tensor);
  const auto *data = static_cast<const Element *>(tensor->data);
  return visitRows(data, length, [&](const auto &order) -> mint {
    std::iota(rows, rows + count, 1);
    *wereInOrder = count != 2 && areAscending(order, count);
    if (*wereInOrder) return kSuccess;
    if (count > 2 && areDescending(order, count)) {
      std::reverse(rows, rows + count);
      return kSuccess;
    }
    const RowKeys<Element> keys{data, length};
    const bool byRadix = count > kFewRows && keys.count() <= kManyKeys &&
                         !holdsNaN(data, tensor->elementCount) && orderByRadix(rows, keys, count);
    return byRadix ? kSuccess : orderByMerging(rows, order, count, wereInOrder);
  });
}

} // namespace

mint orderRows(mint *rows, const MTensor *tensor, bool *wereInOrder) {
  *wereInOrder = true;
  if (tensor->elementCount == 0 || tensor->rank < 1) return kSuccess;
  switch (tensor->type) {
  case TORVANE_TYPE_INTEGER:
    return orderTyped<mint>(rows, tensor, wereInOrder);
  case TORVANE_TYPE_REAL:
    return orderTyped<mreal>(rows, tensor, wereInOrder);
  case TORVANE_TYPE_COMPLEX:
    return orderTyped<mcomplex>(rows, tensor, wereInOrder);
  default:
    *wereInOrder = false;
    return kSuccess;
  }
}

} // namespace torvane

using namespace torvane;

// There is no status to give: like every call without an errorMode it ends the process without memory.
mint Runtime_MTensor_computeSortPermutation(MTensor *permutation, MTensor *tensor) {
  bool wereInOrder;
  const mint status = orderRows(static_cast<mint *>(permutation->data), tensor, &wereInOrder);
  if (status != kSuccess) fatalOutOfMemory();
  return wereInOrder;
}

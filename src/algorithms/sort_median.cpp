// Medians of vectors and of columns. Complex numbers have the median of their order, by real part first.
#include "handler.h"
#include "order.h"
#include "scratch_bytes.h"
#include "result_tensor.h"
#include "sort_values.h"

#include <string.h>

namespace torvane {

namespace {

mreal halfway(mreal a, mreal b) { return (a + b) / 2.0; }
mcomplex halfway(mcomplex a, mcomplex b) { return {halfway(a.re, b.re), halfway(a.im, b.im)}; }

template <class Element> constexpr mint kTypeOf = TORVANE_TYPE_REAL;
template <> constexpr mint kTypeOf<mcomplex> = TORVANE_TYPE_COMPLEX;

template <class Element> bool sortedByValue(const Element *from, Element *to, mint count) {
  if constexpr (sizeof(Element) == sizeof(mreal)) return sortValues(from, to, count);
  return false;
}

// Through the order of the rows. 0, or 403.
template <class Element> mint sortByOrder(const Element *from, Element *to, mint count) {
  const auto rows = static_cast<uint64_t>(count);
  const ScratchBytes order(rows * sizeof(mint), kReport), copy(rows * sizeof(Element), kReport);
  if (!order || !copy) return kSizeFailed;
  memcpy(copy.as<Element>(), from, static_cast<size_t>(count) * sizeof(Element));
  MTensor vector = {};
  vector.dimensions = &count;
  vector.rank = 1;
  vector.type = kTypeOf<Element>;
  vector.elementCount = count;
  vector.data = copy.as<Element>();
  bool wereInOrder;
  const mint status = orderRows(order.as<mint>(), &vector, &wereInOrder);
  if (status == kSuccess) gatherRows(to, copy.as<Element>(), order.as<mint>(), count, sizeof(Element));
  return status;
}

// Of `count` elements, 1 at least, which are left in order in `sorted`.
template <class Element> mint medianOf(const Element *x, mint count, Element *sorted, Element *median) {
  if (!sortedByValue(x, sorted, count))
    if (const mint status = sortByOrder(x, sorted, count)) return status;
  const mint middle = (count - 1) / 2;
  *median = count % 2 != 0 ? sorted[middle] : halfway(sorted[middle], sorted[middle + 1]);
  return kSuccess;
}

template <class Element> mint medianOfVector(const MTensor *tensor, void *result) {
  const mint count = tensor->elementCount;
  const ScratchBytes sorted(static_cast<uint64_t>(count) * sizeof(Element), kReport);
  if (!sorted) return kSizeFailed;
  Element median;
  const mint status =
      medianOf(static_cast<const Element *>(tensor->data), count, sorted.as<Element>(), &median);
  if (status == kSuccess) storeResult(result, median);
  return status;
}

template <class Element> mint mediansOfColumns(const MTensor *tensor, Element *medians) {
  const mint count = rowCountOf(tensor), columns = rowLengthOf(tensor);
  const auto *data = static_cast<const Element *>(tensor->data);
  const ScratchBytes column(static_cast<uint64_t>(count) * sizeof(Element), kReport);
  if (!column) return kSizeFailed;
  auto *x = column.as<Element>();
  mint status = kSuccess;
  for (mint j = 0; j < columns && status == kSuccess; ++j) {
    for (mint i = 0; i < count; ++i) x[i] = data[ptrdiff_t{i} * columns + j];
    status = medianOf(x, count, x, medians + j);
  }
  return status;
}

template <class Element> mint medianTensor(MTensor **slot, const MTensor *tensor) {
  ResultTensor result(slot, {tensor});
  mint status = result.allocate(tensor->type, tensor->rank - 1, tensor->dimensions + 1);
  if (status == kSuccess && tensor->elementCount > 0)
    status = mediansOfColumns(tensor, static_cast<Element *>(result.get()->data));
  return status == kSuccess ? result.commit() : status;
}

template <class Element> mint medianTyped(const MTensor *tensor, void *result) {
  return tensor->rank == 1 ? medianOfVector<Element>(tensor, result)
                           : medianTensor<Element>(tensorResult(result), tensor);
}

} // namespace

// The median of nothing is refused before that of integers.
mint handleMedian(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1) return kWrongArguments;
  const MTensor *tensor = tensorArgument(arguments, 0);
  if (tensor->rank < 1) return kWrongRank;
  if (rowCountOf(tensor) == 0) return kValueFailed;
  switch (tensor->type) {
  case TORVANE_TYPE_REAL:
    return medianTyped<mreal>(tensor, result);
  case TORVANE_TYPE_COMPLEX:
    return medianTyped<mcomplex>(tensor, result);
  default:
    return kWrongType;
  }
}

} // namespace torvane

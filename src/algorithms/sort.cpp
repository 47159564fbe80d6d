// Sorted tensors: elements by value where equal ones look alike, rows through their order otherwise.
#include "handler.h"
#include "order.h"
#include "order_runs.h"
#include "result_tensor.h"
#include "sort_values.h"

#include <torvane/sorting.h>

namespace torvane {

namespace {

// A sorted tensor is copied without an errorMode, as by MTensor_copy.
mint copyInto(MTensor **slot, const MTensor *tensor) { return MTensor_makeCopy(slot, tensor); }

// Deliberately not into the tensor that the slot holds: it stays the caller's, who relies on it.
mint copyAnew(MTensor **slot, const MTensor *tensor) {
  *slot = nullptr;
  return copyInto(slot, tensor);
}

mint sortRows(MTensor **slot, MTensor *tensor) {
  MTensor *order = nullptr;
  const mint count = rowCountOf(tensor);
  bool wereInOrder = false;
  mint status = MTensor_allocateCommon(&order, TORVANE_TYPE_INTEGER, 1, &count, kReport);
  if (status != kSuccess) return status;
  status = orderRows(static_cast<mint *>(order->data), tensor, &wereInOrder);
  if (status == kSuccess)
    status = wereInOrder ? copyInto(slot, tensor) : MTensor_gatherRows(slot, tensor, order);
  MTensor_delete(order);
  return status;
}

// Sorting by value reads all it needs before it writes, so that in place is no exception.
template <class Element> mint sortByValue(MTensor **slot, MTensor *tensor, bool *isDone) {
  ResultTensor result(slot);
  const mint status = result.allocateLike(tensor->type, tensor);
  if (status != kSuccess) return status;
  *isDone = sortValues(static_cast<const Element *>(tensor->data), static_cast<Element *>(result.get()->data),
                       tensor->elementCount);
  return *isDone ? result.commit() : kSuccess;
}

template <class Element> mint sortSingles(MTensor **slot, MTensor *tensor) {
  const SingleRows<Element> rows{static_cast<const Element *>(tensor->data)};
  if (tensor->elementCount > 2 && areAscending(rows, tensor->elementCount)) return copyInto(slot, tensor);
  if (areDescending(rows, tensor->elementCount)) return sortRows(slot, tensor);
  bool isDone = false;
  const mint status = sortByValue<Element>(slot, tensor, &isDone);
  return status != kSuccess || isDone ? status : sortRows(slot, tensor);
}

} // namespace

mint handleSort(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1) return kWrongArguments;
  return Runtime_MTensor_Sort(tensorResult(result), tensorArgument(arguments, 0));
}

} // namespace torvane

using namespace torvane;

mint Runtime_MTensor_Sort(MTensor **resultSlot, MTensor *tensor) {
  if (tensor->elementCount < 2) return *resultSlot == tensor ? kSuccess : copyAnew(resultSlot, tensor);
  const bool areSingle = rowLengthOf(tensor) == 1;
  if (areSingle && tensor->type == TORVANE_TYPE_INTEGER) return sortSingles<mint>(resultSlot, tensor);
  if (areSingle && tensor->type == TORVANE_TYPE_REAL) return sortSingles<mreal>(resultSlot, tensor);
  return sortRows(resultSlot, tensor);
}

// Union, Complement and Intersection: operands are sorted, and walks over sorted rows keep those of the
// result.
#include "sets.h"

#include "../tensor/scratch.h"
#include "handler.h"
#include "order.h"
#include "result_tensor.h"
#include "sets_rows.h"

#include <torvane/sorting.h>

namespace torvane {

namespace {

bool agreeBelowFirst(const MTensor *a, const MTensor *b) {
  return std::equal(a->dimensions + 1, a->dimensions + a->rank, b->dimensions + 1);
}

mint checkOperands(MTensor *const *tensors, mint count) {
  if (count < 1 || std::find(tensors, tensors + count, nullptr) != tensors + count) return kWrongArguments;
  const MTensor *first = tensors[0];
  for (mint i = 1; i < count; ++i) {
    if (tensors[i]->type != first->type) return kValueFailed;
    if (tensors[i]->rank != first->rank) return kWrongDimensions;
    if (first->rank > 0 && !agreeBelowFirst(first, tensors[i])) return kWrongDimensions;
  }
  return first->rank > 0 ? kSuccess : kWrongDimensions;
}

// Room for the rows of all tensors.
mint allocateJoin(ResultTensor &result, MTensor *const *tensors, mint count) {
  const MTensor *first = tensors[0];
  int64_t length = 0;
  for (mint i = 0; i < count; ++i) length += rowCountOf(tensors[i]);
  if (length > INT32_MAX) return sizeOverflow(kReport);
  Scratch<mint> extents(first->rank);
  if (extents.status() != kSuccess) return extents.status();
  std::copy_n(first->dimensions, first->rank, extents.get());
  extents[0] = static_cast<mint>(length);
  return result.allocate(first->type, first->rank, extents.get());
}

// The rows of all tensors in order. Those of a single one are sorted from where they are.
mint sortJoined(ResultTensor &result, MTensor *const *tensors, mint count) {
  const mint status = allocateJoin(result, tensors, count);
  if (status != kSuccess) return status;
  MTensor *joined = result.get();
  if (count == 1 && joined->elementCount > 1) return Runtime_MTensor_Sort(&joined, tensors[0]);
  for (mint i = 0, start = 0; i < count; start += tensors[i++]->elementCount)
    MTensor_copyContiguousData(joined, start, tensors[i], 0, tensors[i]->elementCount);
  return Runtime_MTensor_Sort(&joined, joined);
}

// What `walk` yields, called with the elements as what they are.
template <class Walk> mint withRows(const MTensor *tensor, const Walk &walk) {
  switch (tensor->type) {
  case TORVANE_TYPE_INTEGER:
    return walk(static_cast<mint *>(tensor->data));
  case TORVANE_TYPE_REAL:
    return walk(static_cast<mreal *>(tensor->data));
  default:
    return walk(static_cast<mcomplex *>(tensor->data));
  }
}

// Of sorted rows; how many are kept.
mint keepDistinctOf(const MTensor *tensor) {
  return withRows(tensor,
                  [=](auto *rows) { return keepDistinct(rows, rowCountOf(tensor), rowLengthOf(tensor)); });
}

// A block that cannot be had smaller stays as large as it is.
void cutTo(MTensor *tensor, mint rows) {
  const mint count = rows * rowLengthOf(tensor);
  tensor->dimensions[0] = rows;
  if (MTensor_setPayload(tensor, tensor->type, tensor->rank, count, kQuiet) != kSuccess)
    tensor->elementCount = count;
}

mint uniteInto(ResultTensor &result, MTensor *const *tensors, mint count) {
  const mint status = sortJoined(result, tensors, count);
  if (status == kSuccess) cutTo(result.get(), keepDistinctOf(result.get()));
  return status;
}

// The rows of one tensor in order, in space that the next may have again. Of single numbers each is there
// once: a walk would pass its repetitions by one at a time.
class SortedRows {
public:
  SortedRows() = default;
  ~SortedRows() { MTensor_delete(space); }
  SortedRows(const SortedRows &) = delete;
  SortedRows &operator=(const SortedRows &) = delete;

  // So few elements that they are in order stay where they are. For more there is space before they are
  // sorted: a sort that finds them in order would end the process for want of it.
  mint sort(MTensor *tensor) {
    rows = tensor;
    distinct = rowCountOf(tensor);
    if (tensor->elementCount < 2) return kSuccess;
    mint status = MTensor_allocateCommon(&space, tensor->type, tensor->rank, tensor->dimensions, kReport);
    if (status == kSuccess) status = Runtime_MTensor_Sort(&space, tensor);
    if (status != kSuccess) return status;
    rows = space;
    if (walksSingles(tensor->type, rowLengthOf(tensor))) distinct = keepDistinctOf(space);
    return kSuccess;
  }
  const void *data() const { return rows->data; }
  mint count() const { return distinct; }

private:
  MTensor *space = nullptr;
  const MTensor *rows = nullptr;
  mint distinct = 0;
};

mint walkBy(mint mode, const MTensor *kept, mint count, const SortedRows &other) {
  return withRows(kept, [&]<class Element>(Element *rows) {
    const KeptRows<Element> walked = {rows, count, rowLengthOf(kept)};
    const auto *others = static_cast<const Element *>(other.data());
    return mode == kIntersection ? walk<kIntersection>(walked, others, other.count())
                                 : walk<kComplement>(walked, others, other.count());
  });
}

mint walkOthers(MTensor *result, MTensor *const *others, mint count, mint mode) {
  SortedRows sorted;
  mint rows = keepDistinctOf(result);
  for (mint i = 0; i < count && rows > 0; ++i) {
    const mint status = sorted.sort(others[i]);
    if (status != kSuccess) return status;
    rows = walkBy(mode, result, rows, sorted);
  }
  cutTo(result, rows);
  return result->elementCount == 0 && result->rank != 1 ? kNothingLeft : kSuccess;
}

mint operateInto(ResultTensor &result, MTensor *const *tensors, mint count, mint mode) {
  if (count == 1) return uniteInto(result, tensors, 1);
  const mint status = sortJoined(result, tensors, 1);
  return status == kSuccess ? walkOthers(result.get(), tensors + 1, count - 1, mode) : status;
}

// Into a result that knows the operands.
template <class Operate>
mint toSlot(MTensor **slot, MTensor *const *tensors, mint count, const Operate &operate) {
  mint status = checkOperands(tensors, count);
  if (status != kSuccess) return status;
  ResultTensor result(slot);
  for (mint i = 0; i < count; ++i) result.avoid(tensors[i]);
  status = operate(result);
  return status == kSuccess ? result.commit() : status;
}

// Calls `operate` with the tensors of the arguments.
template <class Operate> mint onTensors(mint count, void *const *arguments, const Operate &operate) {
  if (count < 1) return kWrongArguments;
  Scratch<MTensor *> tensors(count);
  if (tensors.status() != kSuccess) return tensors.status();
  for (mint i = 0; i < count; ++i) tensors[i] = tensorArgument(arguments, i);
  return operate(tensors.get());
}

} // namespace

mint MTensor_union(MTensor **resultSlot, MTensor *const *tensors, mint count) {
  return toSlot(resultSlot, tensors, count,
                [=](ResultTensor &result) { return uniteInto(result, tensors, count); });
}

mint MTensor_setOperation(MTensor **resultSlot, MTensor *const *tensors, mint count, mint mode) {
  return toSlot(resultSlot, tensors, count,
                [=](ResultTensor &result) { return operateInto(result, tensors, count, mode); });
}

mint handleUnion(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return onTensors(argumentCount, arguments, [=](MTensor *const *tensors) {
    return MTensor_union(tensorResult(result), tensors, argumentCount);
  });
}

mint handleComplement(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return onTensors(argumentCount, arguments, [=](MTensor *const *tensors) {
    return MTensor_setOperation(tensorResult(result), tensors, argumentCount, kComplement);
  });
}

mint handleIntersection(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return onTensors(argumentCount, arguments, [=](MTensor *const *tensors) {
    return MTensor_setOperation(tensorResult(result), tensors, argumentCount, kIntersection);
  });
}

} // namespace torvane

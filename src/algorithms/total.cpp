// Total: the sum of the rows of a tensor, or of all its elements.
//
// Every sum runs from 0 and strictly from left to right, on the calling thread and at any length: compiled
// code relies on the last bits of a sum of reals, which the vector routines' own totals give up to the
// workers.
#include "handler.h"
#include "result_tensor.h"
#include "total_sums.h"

#include <torvane/operators.h>

namespace torvane {

namespace {

bool checks(const MTensor *tensor, mint flags) {
  const mint flag = tensor->type == TORVANE_TYPE_INTEGER ? TORVANE_CHECK_INTEGERS : TORVANE_CHECK_REALS;
  return (flags & flag) != 0;
}

// A complex row is a real one of twice the length.
bool sumRowsOf(MTensor *sums, const MTensor *tensor, bool isChecked) {
  const mint count = tensor->dimensions[0];
  const auto width = static_cast<size_t>(sums->elementCount);
  if (tensor->type == TORVANE_TYPE_INTEGER)
    return sumRows(integersOf(sums), integersOf(tensor), count, width, isChecked);
  return sumRows(static_cast<mreal *>(sums->data), static_cast<const mreal *>(tensor->data), count,
                 tensor->type == TORVANE_TYPE_COMPLEX ? 2 * width : width, isChecked);
}

mint total(MTensor **slot, const MTensor *tensor, mint flags) {
  if (tensor->rank < 2) return kWrongRank;
  if (elementWidth(tensor->type) == 0) return kWrongType;
  ResultTensor sums(slot, {tensor});
  const mint status = sums.allocate(tensor->type, tensor->rank - 1, tensor->dimensions + 1);
  if (status != kSuccess) return status;
  return sumRowsOf(sums.get(), tensor, checks(tensor, flags)) ? sums.commit() : kNotFinite;
}

// A failure leaves the result as it was.
template <class T> mint totalAll(void *result, const MTensor *tensor, mint flags) {
  T sum;
  const auto *data = static_cast<const T *>(tensor->data);
  if (!sumAll(&sum, data, tensor->elementCount, checks(tensor, flags))) return kNotFinite;
  storeResult(result, sum);
  return kSuccess;
}

} // namespace

mint handleTotal(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 2) return kWrongArguments;
  return total(tensorResult(result), tensorArgument(arguments, 0), integerArgument(arguments, 1));
}

mint handleTotalAll(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 2) return kWrongArguments;
  const MTensor *tensor = tensorArgument(arguments, 0);
  const mint flags = integerArgument(arguments, 1);
  switch (tensor->type) {
  case TORVANE_TYPE_INTEGER:
    return totalAll<mint>(result, tensor, flags);
  case TORVANE_TYPE_REAL:
    return totalAll<mreal>(result, tensor, flags);
  case TORVANE_TYPE_COMPLEX:
    return totalAll<mcomplex>(result, tensor, flags);
  default:
    return kWrongType;
  }
}

} // namespace torvane

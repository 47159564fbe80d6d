// Ordering, OrderingInteger and OrderedQ, by name.
#include "handler.h"
#include "order.h"
#include "scratch_bytes.h"
#include "result_tensor.h"

#include <numeric>
#include <string.h>

namespace torvane {

namespace {

mint ordering(MTensor **slot, const MTensor *tensor) {
  ResultTensor result(slot, {tensor});
  const mint count = rowCountOf(tensor);
  mint status = result.allocate(TORVANE_TYPE_INTEGER, 1, &count);
  if (status != kSuccess) return status;
  bool wereInOrder;
  status = orderRows(integersOf(result.get()), tensor, &wereInOrder);
  return status == kSuccess ? result.commit() : status;
}

mint extremeOrdering(MTensor **slot, const MTensor *tensor, mint direction) {
  if (rowCountOf(tensor) == 0) return kWrongDimensions;
  ResultTensor result(slot, {tensor});
  const mint one = 1;
  const mint status = result.allocate(TORVANE_TYPE_INTEGER, 1, &one);
  if (status != kSuccess) return status;
  integersOf(result.get())[0] = MTensor_extremePosition(tensor, direction);
  return result.commit();
}

// Of the first rows of the order, or with n below 0 of its last.
mint partialOrdering(MTensor **slot, const MTensor *tensor, mint n) {
  const mint count = rowCountOf(tensor);
  const int64_t taken = n < 0 ? -int64_t{n} : n;
  if (taken > count) return kValueFailed;
  const auto length = static_cast<mint>(taken);
  const ScratchBytes order(uint64_t{sizeof(mint)} * static_cast<uint32_t>(count), kReport);
  if (!order && count > 0) return kSizeFailed;
  std::iota(order.as<mint>(), order.as<mint>() + count, 1); // what rows without elements keep
  bool wereInOrder;
  mint status = orderRows(order.as<mint>(), tensor, &wereInOrder);
  if (status != kSuccess) return status;
  ResultTensor result(slot, {tensor});
  status = result.allocate(TORVANE_TYPE_INTEGER, 1, &length);
  if (status != kSuccess) return status;
  const mint *first = order.as<mint>() + (n < 0 ? count - length : 0);
  if (length > 0) memcpy(integersOf(result.get()), first, static_cast<size_t>(length) * sizeof(mint));
  return result.commit();
}

} // namespace

mint handleOrdering(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1) return kWrongArguments;
  const MTensor *tensor = tensorArgument(arguments, 0);
  return tensor->rank < 1 ? kWrongRank : ordering(tensorResult(result), tensor);
}

mint handleOrderingInteger(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 2) return kWrongArguments;
  const MTensor *tensor = tensorArgument(arguments, 0);
  const mint n = integerArgument(arguments, 1);
  if (tensor->rank < 1) return kWrongRank;
  if (n == 1 || n == -1) return extremeOrdering(tensorResult(result), tensor, n);
  return partialOrdering(tensorResult(result), tensor, n);
}

mint handleOrderedQ(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  if (argumentCount != 1) return kWrongArguments;
  const MTensor *tensor = tensorArgument(arguments, 0);
  if (tensor->rank < 1) return kWrongRank;
  storeResult(result, areRowsOrdered(tensor));
  return kSuccess;
}

} // namespace torvane

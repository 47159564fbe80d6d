// Taking a result over into the record that the slot holds.
#include "result_tensor.h"

namespace torvane {

ResultTensor::~ResultTensor() { MTensor_delete(made); }

mint ResultTensor::allocate(mint type, mint rank, const mint *dimensions, mint errorMode) {
  isFresh = *slot == nullptr;
  return MTensor_allocateCommon(isApart || isFresh ? &made : slot, type, rank, dimensions, errorMode);
}

mint ResultTensor::commit() {
  if (isFresh)
    *slot = std::exchange(made, nullptr);
  else if (isApart)
    exchangeContents(*slot, made);
  return kSuccess;
}

namespace {

mint copyAs(ResultTensor &result, const MTensor *tensor, mint rank, const mint *dimensions, mint errorMode) {
  const mint status = result.allocate(tensor->type, rank, dimensions, errorMode);
  if (status != kSuccess) return status;
  MTensor_copyContiguousData(result.get(), 0, tensor, 0, tensor->elementCount);
  return result.commit();
}

} // namespace

mint copyToSlot(MTensor **slot, const MTensor *tensor, std::initializer_list<const MTensor *> others) {
  ResultTensor result(slot, others);
  if (result.isIn(tensor)) return kSuccess;
  return copyAs(result, tensor, tensor->rank, tensor->dimensions, kReport);
}

mint reshapeToSlot(MTensor **slot, MTensor *tensor, mint rank, const mint *dimensions, mint errorMode,
                   std::initializer_list<const MTensor *> others) {
  ResultTensor result(slot, others);
  if (result.isIn(tensor)) return MTensor_setShape(tensor, rank, dimensions, tensor->elementCount, errorMode);
  return copyAs(result, tensor, rank, dimensions, errorMode);
}

} // namespace torvane

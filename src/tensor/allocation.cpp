// The one routine that gives a tensor its shape, type and payload, and reuses what it can.
//
// A compiled loop asks for the same shape and type at every turn; that request is answered by one short
// straight path that writes nothing. All else goes out of line: check, shape, payload, in this order, so
// that a negative rank or extent is refused before anything changes. When the payload cannot be had the
// new shape stays without one, so that no later request mistakes the old block for one of its size.
#include "tensor.h"

#include "../runtime/hooks.h"
#include "../runtime/memory.h"

using namespace torvane;

namespace {

// One test for two things: the extents differ, or the tensor's own has its sign bit set.
bool matches(mint extent, mint own) { return ((extent ^ own) | (own & INT32_MIN)) == 0; }

bool hasShape(const MTensor *tensor, mint rank, const mint *dimensions) {
  if (rank != tensor->rank || tensor->dimensions == nullptr) return false;
  for (mint i = 0; i < rank; ++i)
    if (!matches(dimensions[i], tensor->dimensions[i])) return false;
  return true;
}

inline bool alreadyHolds(const MTensor *tensor, mint type, mint rank, const mint *dimensions) {
  return type == tensor->type && tensor->data != nullptr && hasShape(tensor, rank, dimensions);
}

// The status of a request that no mode and no memory could meet.
mint refusal(mint rank, const mint *dimensions) {
  if (rank < 0) return kNegativeRank;
  for (mint i = 0; i < rank; ++i)
    if (dimensions[i] < 0) return kNegativeExtent;
  return kSuccess;
}

mint failed(mint type, mint count, mint errorMode) {
  if (errorMode == kFatal) fatalOutOfMemory();
  if (errorMode != kQuiet) reportAllocationFailure(checkedByteCount(elementWidth(type), count));
  return kSizeFailed;
}

// The shape stays. An empty tensor has nothing to allocate; one that lost its payload to a failure has.
mint changeType(MTensor *tensor, mint type, mint errorMode) {
  if (tensor->data == nullptr && tensor->elementCount == 0) {
    MTensor_setType(tensor, type);
    return kSuccess;
  }
  if (MTensor_setPayload(tensor, type, tensor->rank, tensor->elementCount, errorMode) == kSuccess)
    return kSuccess;
  return failed(type, tensor->elementCount, errorMode);
}

mint changeShape(MTensor *tensor, mint type, mint rank, const mint *dimensions, mint errorMode) {
  const mint count = NumberOfElements_common(rank, dimensions, errorMode);
  if (count == kCountOverflow) {
    checkLimit(kByteOverflow);
    return failed(type, count, errorMode);
  }
  if (MTensor_setShape(tensor, rank, dimensions, count, errorMode) != kSuccess)
    return failed(type, count, errorMode);
  if (MTensor_setPayload(tensor, type, rank, count, errorMode) == kSuccess) return kSuccess;
  torvane::free(tensor->data);
  tensor->data = nullptr;
  return failed(type, count, errorMode);
}

[[gnu::noinline]] mint change(MTensor *tensor, mint type, mint rank, const mint *dimensions, mint errorMode) {
  const mint refused = refusal(rank, dimensions);
  if (refused != kSuccess) return refused;
  if (hasShape(tensor, rank, dimensions)) return changeType(tensor, type, errorMode);
  return changeShape(tensor, type, rank, dimensions, errorMode);
}

// A fresh record has nothing to reuse and goes straight to its shape. Null on failure.
[[gnu::noinline]] MTensor *create(mint type, mint rank, const mint *dimensions, mint errorMode,
                                  mint *status) {
  MTensor *tensor = MTensor_new();
  *status = refusal(rank, dimensions);
  if (*status == kSuccess) *status = changeShape(tensor, type, rank, dimensions, errorMode);
  if (*status == kSuccess) return tensor;
  MTensor_delete(tensor);
  return nullptr;
}

} // namespace

mint MTensor_allocateMemoryCommon(MTensor *tensor, mint type, mint rank, const mint *dimensions,
                                  mint errorMode) {
  if (alreadyHolds(tensor, type, rank, dimensions)) return kSuccess;
  return change(tensor, type, rank, dimensions, errorMode);
}

mint MTensor_allocateCommon(MTensor **slot, mint type, mint rank, const mint *dimensions, mint errorMode) {
  if (*slot == nullptr) {
    mint status;
    *slot = create(type, rank, dimensions, errorMode, &status);
    return status;
  }
  if (alreadyHolds(*slot, type, rank, dimensions)) return kSuccess;
  return change(*slot, type, rank, dimensions, errorMode);
}

mint MTensor_allocateMemoryLikeCommon(MTensor *tensor, const MTensor *like, mint errorMode) {
  return MTensor_allocateMemoryCommon(tensor, like->type, like->rank, like->dimensions, errorMode);
}

MTensor *MTensor_newAllocatedCommon(mint type, mint rank, const mint *dimensions, mint errorMode) {
  mint status;
  return create(type, rank, dimensions, errorMode, &status);
}

MTensor *CreatePackedArray(mint type, mint rank, const mint *dimensions) {
  return MTensor_newAllocatedCommon(type, rank, dimensions, kReport);
}

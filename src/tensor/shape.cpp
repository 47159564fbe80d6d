// Shapes: the checked element count, storing extents, comparing the shapes of two tensors.
#include "tensor.h"

#include "../runtime/memory.h"

#include <algorithm>

namespace torvane {

namespace {

mint *growExtents(mint *block, uint32_t bytes, mint errorMode) {
  void *grown = block == nullptr ? allocate(bytes, 0, errorMode) : reallocate(block, bytes, 0, errorMode);
  return static_cast<mint *>(grown);
}

// The extents given may be the tensor's own: a block that moves takes them along, and within one block they
// lie at or behind the place they go to, so that a forward copy reads each before it is overwritten.
mint storeExtents(MTensor *tensor, mint rank, const mint *dimensions, mint errorMode) {
  const uint32_t bytes = checkedByteCount(sizeof(mint), rank);
  if (bytes == kByteOverflow) return sizeOverflow(errorMode);
  if (tensor->dimensions == nullptr || rank > tensor->rank) {
    mint *block = growExtents(tensor->dimensions, bytes, errorMode);
    if (block == nullptr) return kSizeFailed;
    if (dimensions == tensor->dimensions) dimensions = block;
    tensor->dimensions = block;
  }
  for (mint i = 0; i < rank; ++i) tensor->dimensions[i] = dimensions[i];
  return kSuccess;
}

void dropExtents(MTensor *tensor) {
  torvane::free(tensor->dimensions);
  tensor->dimensions = nullptr;
}

// A loop, because extents are few: the call of memcmp costs more than they do.
bool sameExtents(const mint *a, const mint *b, mint rank) {
  for (mint i = 0; i < rank; ++i)
    if (a[i] != b[i]) return false;
  return true;
}

mint countFailure(mint errorMode) {
  if (errorMode == kFatal) fatalOutOfMemory();
  return kCountOverflow;
}

} // namespace

mint sizeOverflow(mint errorMode) {
  if (errorMode == kFatal) fatalOutOfMemory();
  checkLimit(kByteOverflow);
  return kSizeFailed;
}

mint MTensor_setShape(MTensor *tensor, mint rank, const mint *dimensions, mint count, mint errorMode) {
  if (rank < 0) return kNegativeRank;
  if (rank > 0) {
    const mint status = storeExtents(tensor, rank, dimensions, errorMode);
    if (status != kSuccess) return status;
  } else {
    dropExtents(tensor);
    count = 1;
  }
  tensor->rank = rank;
  tensor->elementCount = count;
  return kSuccess;
}

} // namespace torvane

using namespace torvane;

// The running product is what overflows: a zero saves the extents after it, not those before.
mint NumberOfElements_common(mint rank, const mint *dimensions, mint errorMode) {
  mint count = 1;
  for (mint i = 0; i < rank; ++i)
    if (dimensions[i] < 0 || __builtin_mul_overflow(count, dimensions[i], &count))
      return countFailure(errorMode);
  return count;
}

void MTensor_resetDimensions(MTensor *tensor, mint rank, const mint *dimensions) {
  if (dimensions != tensor->dimensions || rank != tensor->rank)
    MTensor_setShape(tensor, rank, dimensions, tensor->elementCount, kFatal);
}

mint MTensor_compatibleDimensionsQ(const MTensor *a, const MTensor *b) {
  return sameExtents(a->dimensions, b->dimensions, std::min(a->rank, b->rank));
}

mint MTensor_maxCompatibleDimensions(const MTensor *a, const MTensor *b, mint *rank, mint **dimensions) {
  if (!MTensor_compatibleDimensionsQ(a, b)) return 0;
  const MTensor *larger = a->rank >= b->rank ? a : b;
  *rank = larger->rank;
  *dimensions = larger->dimensions;
  return 1;
}

mint MTensor_equivalentQ(const MTensor *a, const MTensor *b) {
  return a->rank == b->rank && a->type == b->type && sameExtents(a->dimensions, b->dimensions, a->rank);
}

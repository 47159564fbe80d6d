// Payloads: the block of elements behind a tensor, its size, its growth and its filling.
#include "tensor.h"

#include "../runtime/memory.h"

#include <algorithm>
#include <utility>

namespace torvane {

namespace {

void dropPayload(MTensor *tensor) {
  torvane::free(tensor->data);
  tensor->data = nullptr;
}

// The old block stays the tensor's when a new one cannot be had.
mint resizePayload(MTensor *tensor, mint type, mint count, mint errorMode) {
  const uint32_t bytes = checkedByteCount(elementWidth(type), count);
  if (bytes == kByteOverflow) return sizeOverflow(errorMode);
  if (bytes == 0) return kSizeFailed;
  void *block = tensor->data == nullptr ? allocate(bytes, alignFlagOf(type), errorMode)
                                        : reallocate(tensor->data, bytes, alignFlagOf(type), errorMode);
  if (block == nullptr) return kSizeFailed;
  tensor->data = block;
  return kSuccess;
}

} // namespace

mint MTensor_setPayload(MTensor *tensor, mint type, mint rank, mint count, mint errorMode) {
  if (rank < 0) return kNegativeRank;
  if (count == 0) {
    dropPayload(tensor);
  } else {
    const mint status = resizePayload(tensor, type, count, errorMode);
    if (status != kSuccess) return status;
  }
  tensor->elementCount = count;
  MTensor_setType(tensor, type);
  return kSuccess;
}

void exchangeContents(MTensor *a, MTensor *b) {
  const mint typeOfA = a->type;
  std::swap(a->dimensions, b->dimensions);
  std::swap(a->rank, b->rank);
  std::swap(a->elementCount, b->elementCount);
  std::swap(a->data, b->data);
  MTensor_setType(a, b->type);
  MTensor_setType(b, typeOfA);
}

} // namespace torvane

using namespace torvane;

void MTensor_reallocateAndCopyData(MTensor *tensor) {
  if (tensor->elementCount <= 0 || elementWidth(tensor->type) == 0) return dropPayload(tensor);
  resizePayload(tensor, tensor->type, tensor->elementCount, kFatal);
}

void MTensor_initialize(MTensor *tensor, mint value) {
  const mint count = std::max(tensor->elementCount, 0);
  switch (tensor->type) {
  case TORVANE_TYPE_INTEGER:
    std::fill_n(static_cast<mint *>(tensor->data), count, value);
    break;
  case TORVANE_TYPE_REAL:
    std::fill_n(static_cast<mreal *>(tensor->data), count, mreal(value));
    break;
  case TORVANE_TYPE_COMPLEX:
    std::fill_n(static_cast<mcomplex *>(tensor->data), count, mcomplex{mreal(value), 0.0});
    break;
  default:
    break;
  }
}

uint32_t MTensor_getByteCount(const MTensor *tensor) {
  const uint32_t extents = static_cast<uint32_t>(tensor->rank) * uint32_t{sizeof(mint)};
  const uint32_t payload = static_cast<uint32_t>(tensor->elementCount) * elementWidth(tensor->type);
  return allocatedBytesFor(sizeof(MTensor)) + (extents == 0 ? 0 : allocatedBytesFor(extents)) +
         allocatedBytesFor(payload);
}

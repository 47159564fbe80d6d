// The walker over one tensor: everything that its fields say must agree with its two blocks.
#include "tensor.h"

#include "../runtime/memory.h"

namespace torvane {

namespace {

bool holds(const void *block, uint32_t bytes) {
  return bytes == 0 || (block != nullptr && bytes != kByteOverflow && blockUsableBytes(block) >= bytes);
}

bool hasValidShape(const MTensor *tensor) {
  if (tensor->rank < 0 || (tensor->rank == 0) != (tensor->dimensions == nullptr)) return false;
  return holds(tensor->dimensions, checkedByteCount(sizeof(mint), tensor->rank)) &&
         NumberOfElements_common(tensor->rank, tensor->dimensions, kQuiet) == tensor->elementCount;
}

bool hasValidPayload(const MTensor *tensor) {
  return (tensor->data != nullptr) == (tensor->elementCount > 0) &&
         holds(tensor->data, checkedByteCount(elementWidth(tensor->type), tensor->elementCount));
}

bool hasValidType(const MTensor *tensor) {
  MTensor fresh = {};
  MTensor_setType(&fresh, tensor->type);
  return fresh.elementType == tensor->elementType && fresh.numericBound == tensor->numericBound &&
         fresh.flags == (tensor->flags & ~kDeletionGuard);
}

} // namespace

bool isValidTensor(const MTensor *tensor) {
  return hasValidShape(tensor) && hasValidPayload(tensor) && hasValidType(tensor);
}

} // namespace torvane

// Tensors made over elements that a caller already has: adopted where they stand, or copied. Both are for
// data of known shape: a negative extent or a size that overflows is fatal, a negative rank yields null.
#include "tensor.h"

#include "../runtime/memory.h"

#include <string.h>

using namespace torvane;

namespace {

MTensor *newShaped(mint type, mint rank, const mint *dimensions, mint count) {
  MTensor *tensor = MTensor_new();
  MTensor_setType(tensor, type);
  MTensor_setShape(tensor, rank, dimensions, count, kFatal);
  return tensor;
}

bool isEmptyBeforeLast(mint rank, const mint *dimensions) {
  for (mint i = 0; i + 1 < rank; ++i)
    if (dimensions[i] < 1) return true;
  return false;
}

void *newPayloadFrom(const void *source, mint type, mint count) {
  const uint32_t bytes = checkedByteCount(elementWidth(type), count);
  if (bytes == kByteOverflow) fatalOutOfMemory();
  void *payload = allocate(bytes, alignFlagOf(type), kFatal);
  if (bytes != 0) memcpy(payload, source, bytes);
  return payload;
}

} // namespace

// The payload stays the tensor's even when the shape is empty: the delete that follows must free it.
MTensor *MTensor_newUsingDataArray(mint type, mint rank, const mint *dimensions, void *payload) {
  if (rank < 0) return nullptr;
  const mint count = NumberOfElements_common(rank, dimensions, kFatal);
  MTensor *tensor = newShaped(type, rank, dimensions, count);
  tensor->data = payload;
  return tensor;
}

// {3, 0} is an empty tensor, {0, 3} is none at all: callers rely on null for a list without rows.
MTensor *MTensor_newCopyFromDataArray(mint type, mint rank, const mint *dimensions, const void *source) {
  if (rank < 0) return nullptr;
  const mint count = NumberOfElements_common(rank, dimensions, kFatal);
  if (count == 0 && isEmptyBeforeLast(rank, dimensions)) return nullptr;
  void *payload = newPayloadFrom(source, type, count);
  MTensor *tensor = newShaped(type, rank, dimensions, count);
  tensor->data = payload;
  return tensor;
}

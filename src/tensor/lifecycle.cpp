// Tensors from their making to their end. A record and its two blocks, extents and payload, come from
// the library's allocator and go back to it together; refCount is the caller's and decides nothing here.
#include "tensor.h"
#include "tracking.h"

#include "../runtime/memory.h"

using namespace torvane;

MTensor *MTensor_new() {
  auto *tensor = static_cast<MTensor *>(allocate(sizeof(MTensor), 0, kFatal));
  *tensor = {kIntegerBound, nullptr, 0, TORVANE_TYPE_NONE, 0, 0, 0, nullptr, 1};
  if (isTracking()) trackCreation(tensor);
  return tensor;
}

void MTensor_delete(MTensor *tensor) {
  if (tensor == nullptr || (tensor->flags & kDeletionGuard) != 0) return;
  if (isTracking() && trackDeletion(tensor)) return;
  torvane::free(tensor->data);
  torvane::free(tensor->dimensions);
  torvane::free(tensor);
}

// Null is not accepted here, unlike above: compiled code calls this with tensors that it has just used.
void FreeMTensor(MTensor *tensor) {
  if ((tensor->flags & kDeletionGuard) == 0) MTensor_delete(tensor);
}

void MTensorArray_delete(mint count, MTensor **tensors) {
  if (tensors == nullptr) return;
  for (mint i = 0; i < count; ++i) MTensor_delete(tensors[i]);
  torvane::free(tensors);
}

// Not guarded: a constant or the eternal tensor loses its flags here, and with them its protection.
void MTensor_freeMemory(MTensor *tensor) {
  torvane::free(tensor->data);
  torvane::free(tensor->dimensions);
  *tensor = {kIntegerBound, nullptr, 0, TORVANE_TYPE_NONE, 0, 0, 0, nullptr, tensor->refCount};
}

int64_t MTensor_RefCountIncrement(MTensor *tensor) { return tensor->refCount++; }

int64_t MTensor_RefCountDecrement(MTensor *tensor) { return tensor->refCount--; }

MTensor *mtensor_null() { return nullptr; }

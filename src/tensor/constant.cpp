// Tensors that no delete frees: the eternal tensor of the process, and constants of compiled code.
#include "tensor.h"

#include "../runtime/startup.h"

#include <atomic>

namespace torvane {

namespace {
constinit std::atomic<MTensor *> eternalTensor{nullptr};
}

// Every run of stage 4 makes a new one; those that callers still hold stay valid, being eternal.
void initializeEternalTensor(mint stage) {
  if (stage != 4) return;
  MTensor *tensor = MTensor_new();
  tensor->flags |= TORVANE_FLAG_ETERNAL;
  tensor->refCount = int64_t{1} << 32; // out of reach of any balanced counting
  eternalTensor.store(tensor, std::memory_order_relaxed);
}

void tearDownEternalTensor() { eternalTensor.store(nullptr, std::memory_order_relaxed); }

// The flag is set even when the copy failed: whoever holds the target holds a constant either way.
mint MTensor_copyAsConstant(MTensor *target, const MTensor *source) {
  const mint status = MTensor_copyUniqueCommon(target, source, kReport);
  target->flags |= TORVANE_FLAG_CONSTANT;
  return status;
}

} // namespace torvane

MTensor *getEternalMTensor() { return torvane::eternalTensor.load(std::memory_order_relaxed); }

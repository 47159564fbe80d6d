// Tensors of rank 0: new ones for a scalar that must live on, and nine shared ones a thread, three for
// each type, for a scalar that is needed only to pass it on.
//
// The nine are made together at a thread's first request and are never deleted. When a thread ends its
// pool goes to a list, and the next thread that asks takes it over with its tensors as good as new: so
// the process holds as many pools as it ever had such threads at one time, and none is out of reach.
#include "tensor.h"
#include "tracking.h"

#include "../runtime/memory.h"
#include "../runtime/platform.h"
#include "../runtime/startup.h"

#include <string.h>

namespace torvane {

namespace {

constexpr mint kSlots = 3; // of each type

// Rows are integer, real, complex. The exports hand out addresses through `tables`.
struct RankZeroPool {
  MTensor **tables[3];
  MTensor *tensors[3][kSlots];
};
static_assert(sizeof(RankZeroPool) == 12 * sizeof(void *));

// The widths by type once more: these five rows are all that a rank-0 tensor may have.
constexpr uint32_t kWidths[5] = {0, 4, 4, 8, 16};

uint32_t scalarWidth(mint type) { return static_cast<uint32_t>(type) < 5 ? kWidths[type] : 0; }

constexpr ThreadSlot kNoSlot = ~ThreadSlot{0}; // until stage 1, and after a teardown
constinit std::atomic<ThreadSlot> poolSlot{kNoSlot};

constinit Lock idleLock;                     // over the making of the slot too
constinit RankZeroPool *idlePools = nullptr; // guarded by idleLock; linked through the first table word

void retirePool(void *ended) {
  auto *pool = static_cast<RankZeroPool *>(ended);
  LockGuard guard(idleLock);
  pool->tables[0] = reinterpret_cast<MTensor **>(idlePools);
  idlePools = pool;
}

RankZeroPool *takeIdlePool() {
  LockGuard guard(idleLock);
  RankZeroPool *pool = idlePools;
  if (pool != nullptr) idlePools = reinterpret_cast<RankZeroPool *>(pool->tables[0]);
  return pool;
}

// The thread that ended may have left its tensors in any state.
void renew(MTensor *tensor) {
  if (tensor == nullptr) return;
  MTensor_freeMemory(tensor);
  tensor->refCount = 1;
}

void makeTensors(RankZeroPool *pool) {
  for (mint slot = 0; slot < kSlots; ++slot)
    for (mint row = 0; row < 3; ++row) {
      renew(pool->tensors[row][slot]);
      MTensor_allocateCommon(&pool->tensors[row][slot], TORVANE_TYPE_INTEGER + row, 0, nullptr, kFatal);
    }
}

RankZeroPool *newPool() {
  void *block = allocate(sizeof(RankZeroPool), 0, kFatal);
  return static_cast<RankZeroPool *>(memset(block, 0, sizeof(RankZeroPool)));
}

ThreadSlot requireSlot() {
  LockGuard guard(idleLock);
  ThreadSlot slot = poolSlot.load(std::memory_order_relaxed);
  if (slot != kNoSlot) return slot;
  if (!createThreadSlot(&slot, retirePool)) fatalOutOfMemory();
  poolSlot.store(slot, std::memory_order_relaxed);
  return slot;
}

// Tensors of a tracked time must be registered, so none that exist are taken over then.
RankZeroPool *givePoolToThread() {
  const ThreadSlot slot = requireSlot();
  RankZeroPool *pool = isTracking() ? nullptr : takeIdlePool();
  if (pool == nullptr) pool = newPool();
  for (mint row = 0; row < 3; ++row) pool->tables[row] = pool->tensors[row];
  makeTensors(pool);
  if (!setThreadSlotValue(slot, pool)) fatalOutOfMemory();
  return pool;
}

// Before start-up there is no slot, and the number of one would be that of somebody else's.
RankZeroPool *poolOfThread() {
  const ThreadSlot slot = poolSlot.load(std::memory_order_relaxed);
  void *pool = slot != kNoSlot ? threadSlotValue(slot) : nullptr;
  return pool != nullptr ? static_cast<RankZeroPool *>(pool) : givePoolToThread();
}

} // namespace

// The slot outlives a second start-up, and with it the tensors that callers hold.
void initializeRankZeroTensors(mint stage) {
  if (stage == 1) requireSlot();
}

// The pools go with the allocator's memory; what must not happen is that a later start-up finds them.
void tearDownRankZeroTensors() {
  LockGuard guard(idleLock);
  const ThreadSlot slot = poolSlot.exchange(kNoSlot, std::memory_order_relaxed);
  if (slot != kNoSlot) deleteThreadSlot(slot);
  idlePools = nullptr;
}

} // namespace torvane

using namespace torvane;

MTensor *LoadNewRankZeroMTensor(const void *source, mint type) {
  MTensor *tensor = MTensor_new();
  MTensor_setType(tensor, type);
  tensor->elementCount = 1;
  tensor->data = allocate(scalarWidth(type), alignFlagOf(type), kFatal);
  if (source != nullptr && tensor->data != nullptr) memcpy(tensor->data, source, scalarWidth(type));
  return tensor;
}

MTensor **LoadSharedRankZeroMTensor(const void *source, mint type, mint slot) {
  MTensor **shared = &poolOfThread()->tables[type - TORVANE_TYPE_INTEGER][slot];
  if (source != nullptr) memcpy((*shared)->data, source, scalarWidth(type));
  return shared;
}

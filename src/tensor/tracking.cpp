// One table of all records made while tracking is on, by address, under one process-wide lock. No report
// is made under the lock, so that a report function may make and delete tensors itself.
#include "tracking.h"

#include "tensor.h"

#include "../algorithms/hash_table.h"
#include "../runtime/memory.h"
#include "../runtime/platform.h"

#include <atomic>

namespace torvane {

constinit std::atomic<bool> trackingEnabled{false};

namespace {

struct TrackedTensor {
  MTensor *record;
  uintptr_t state;
};
constexpr uintptr_t kDeleted = 1; // bit 0 of the state

using Report = void (*)(const char *);

constinit Lock trackerLock;
constinit HashTable *trackedTensors = nullptr; // guarded by the lock, as is the change of trackingEnabled
constinit std::atomic<Report> reportToHost{nullptr};

void report(const char *text) { reportToHost.load(std::memory_order_relaxed)(text); }

TrackedTensor *entryOf(const HashNode *node) { return reinterpret_cast<TrackedTensor *>(node->value); }

uintptr_t keyOf(MTensor *tensor) { return reinterpret_cast<uintptr_t>(tensor); }

uintptr_t newEntry(MTensor *tensor) {
  auto *entry = static_cast<TrackedTensor *>(allocate(sizeof(TrackedTensor), 0, kFatal));
  *entry = {tensor, 0};
  return reinterpret_cast<uintptr_t>(entry);
}

// The deletion that was put off. Records that were never deleted are their owner's still.
void releaseEntry(HashNode *node) {
  TrackedTensor *entry = entryOf(node);
  if ((entry->state & kDeleted) != 0) {
    MTensor_freeMemory(entry->record);
    torvane::free(entry->record);
  }
  torvane::free(entry);
}

mint countLeak(HashNode *node, void *leaks) {
  const TrackedTensor *entry = entryOf(node);
  const uint32_t flags = std::atomic_ref(entry->record->flags).load(std::memory_order_relaxed);
  if ((entry->state & kDeleted) == 0 && (flags & TORVANE_FLAG_CONSTANT) == 0) ++*static_cast<mint *>(leaks);
  return 0;
}

// Counts while tracking is still on: a thread that deletes now waits for the lock, and its record can be
// read. A table that an earlier stop kept is not searched again, for its records may be gone.
mint endTracking() {
  LockGuard guard(trackerLock);
  mint leaks = 0;
  if (isTracking()) HashTable_forEach(trackedTensors, countLeak, &leaks);
  trackingEnabled.store(false, std::memory_order_relaxed);
  return leaks;
}

void destroyTable() {
  if (trackedTensors != nullptr) HashTable_clear(trackedTensors, 1);
  trackedTensors = nullptr;
}

// What there is to report of a creation or deletion, or null. Called under the lock.
const char *noteCreation(MTensor *tensor) {
  mint wasInserted = 0;
  HashNode *node = HashTable_findOrInsert(trackedTensors, keyOf(tensor), &wasInserted);
  if (wasInserted == 0) return "MTensor already created";
  node->value = newEntry(tensor);
  return nullptr;
}

const char *noteDeletion(MTensor *tensor) {
  const HashNode *node = HashTable_find(trackedTensors, keyOf(tensor));
  if (node == nullptr) return "MTensor cannot be found";
  if ((entryOf(node)->state & kDeleted) != 0) return "MTensor has already been freed";
  entryOf(node)->state |= kDeleted;
  return nullptr;
}

// False when tracking ended between the caller's test and the lock.
bool track(const char *(*note)(MTensor *), MTensor *tensor) {
  trackerLock.enter();
  const bool on = isTracking();
  const char *text = on ? note(tensor) : nullptr;
  trackerLock.leave();
  if (text != nullptr) report(text);
  return on;
}

} // namespace

void trackCreation(MTensor *tensor) { track(noteCreation, tensor); }

bool trackDeletion(MTensor *tensor) { return track(noteDeletion, tensor); }

void MTensor_startTracking(Report reportFunction) {
  LockGuard guard(trackerLock);
  destroyTable();
  trackedTensors = HashTable_new(31, nullptr, nullptr, nullptr, nullptr, releaseEntry);
  reportToHost.store(reportFunction, std::memory_order_relaxed);
  trackingEnabled.store(true, std::memory_order_relaxed);
}

void MTensor_stopTracking(mint destroy) {
  for (mint leaks = endTracking(); leaks > 0; --leaks) report("MTensor not freed");
  if (destroy == 0) return;
  LockGuard guard(trackerLock);
  destroyTable();
}

} // namespace torvane

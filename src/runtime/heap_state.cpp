#include "heap_state.h"

#include "heap_area.h"
#include "heap_thread.h"
#include "memory.h"
#include "startup.h"

#include <bit>
#include <new>

namespace torvane {

constinit std::atomic<AllocatorState *> allocatorState{nullptr};

namespace {

void readGeometry(AllocatorGeometry &geometry) {
  geometry.pageSize = systemPageSize();
  geometry.pageMask = geometry.pageSize - 1;
  geometry.slabBytes = systemAllocationGranularity();
  geometry.pagesPerSlab = geometry.slabBytes / geometry.pageSize;
  geometry.pageShift = static_cast<uint32_t>(std::bit_width(geometry.pageSize)) - 1;
}

// Everything of a state but its slot; what could not be had is null.
AllocatorState *takeStateParts() {
  const ProcessHeap &source = *processHeap.load();
  auto *state = static_cast<AllocatorState *>(source.takeZeroed(sizeof(AllocatorState)));
  if (state == nullptr) return nullptr;
  state->reserve = source.take(kReserveBytes);
  state->geometry = static_cast<AllocatorGeometry *>(source.takeZeroed(sizeof(AllocatorGeometry)));
  state->pageMap = newPageMap();
  return state;
}

void giveStateParts(AllocatorState *state) {
  const ProcessHeap &source = *processHeap.load();
  if (state->pageMap != nullptr) destroyPageMap(state->pageMap);
  source.give(state->geometry);
  source.give(state->reserve.exchange(nullptr));
  source.give(state);
}

AllocatorState *newState() {
  AllocatorState *state = takeStateParts();
  if (state == nullptr) return nullptr;
  if (state->reserve.load() == nullptr || state->geometry == nullptr || state->pageMap == nullptr ||
      !createThreadSlot(&state->tlsSlot, endHeapOfSlot)) {
    giveStateParts(state);
    return nullptr;
  }
  readGeometry(*state->geometry);
  state->pageMapBytes = static_cast<uint32_t>(sizeof(PageMapTop));
  return state;
}

void destroyState(AllocatorState *state) {
  deleteThreadSlot(state->tlsSlot);
  giveStateParts(state);
}

} // namespace

namespace {

constinit Lock stateLock; // held while the state is made

AllocatorState *makeState() {
  AllocatorState *state = newState();
  if (state == nullptr) return nullptr;
  if (newThreadHeap(state, true) == nullptr) {
    destroyState(state);
    return nullptr;
  }
  allocatorState.store(state, std::memory_order_release);
  return state;
}

} // namespace

// A host starts up on one thread; two threads that allocate without that must not end up with a state each.
AllocatorState *ensureState() {
  if (AllocatorState *state = allocatorState.load(std::memory_order_acquire)) return state;
  LockGuard guard(stateLock);
  AllocatorState *state = allocatorState.load(std::memory_order_acquire);
  return state != nullptr ? state : makeState();
}

void adoptAllocatorState(void *state) {
  if (state == nullptr || state == currentState()) return;
  allocatorState.store(static_cast<AllocatorState *>(state), std::memory_order_release);
  forgetHeap(); // the thread's heap is what the adopted state's slot says
}

void tearDownMemory() {
  AllocatorState *state = currentState();
  if (state == nullptr) return;
  while (state->threads != nullptr) dropHeap(state->threads);
  emptyAreaStore();
  destroyState(state);
  allocatorState.store(nullptr, std::memory_order_release);
  forgetHeap();
}

void initializeMemory(mint stage) {
  if (stage != 1) return;
  if (ensureState() == nullptr) fatalOutOfMemory();
  createThreadHookLists();
  addThreadExitHook(endThreadHeap);
}

} // namespace torvane

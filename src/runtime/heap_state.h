// What all thread heaps of a process share: their list, the page map, the geometry read from the system
// and the reserve that the fatal path gives up so that it has room to print.
//
// The state may be made here or by a copy of this same allocator in the host; it is reached through one
// process-wide pointer. It lives until tearDownMemory.
#pragma once

#include "page_map.h"
#include "platform.h"

namespace torvane {

struct ThreadHeap;

inline constexpr uint32_t kReserveBytes = 0x1000;

struct AllocatorGeometry {
  uint32_t pageSize;
  uint32_t pageMask; // pageSize - 1
  uint32_t slabBytes;
  uint32_t pagesPerSlab;
  uint32_t pageShift;
};

struct AllocatorState {
  ThreadHeap *threads;
  ThreadSlot tlsSlot; // holds the thread's ThreadHeap
  Lock threadListLock;
  Lock pageMapLock; // over growth of the page map
  std::atomic<void *> reserve;
  AllocatorGeometry *geometry;
  PageMapTop *pageMap;
  uint32_t pageMapBytes;
};
static_assert(sizeof(void *) != 4 || sizeof(AllocatorState) == 32);

extern std::atomic<AllocatorState *> allocatorState;

inline AllocatorState *currentState() { return allocatorState.load(std::memory_order_relaxed); }

// The process's state, made with the calling thread's heap if there is none; null when memory is
// exhausted, and then nothing is left behind.
AllocatorState *ensureState();

} // namespace torvane

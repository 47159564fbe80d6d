// Size classes: 88 cell sizes from 8 to 65536 bytes, 16 in steps of 8 and then nine groups of 8, each
// group doubling the step of the last, so that a cell is never more than an eighth larger than its request
// from 128 bytes on. Each thread heap has one SizeClass record for each of them.
//
// Cells up to kMaxBareCellBytes carry no header: their slab is found through the page map. Larger cells
// begin with a word that names their slab.
#pragma once

#include "platform.h"

#include <array>

namespace torvane {

struct AllocatorGeometry;
struct Slab;
struct ThreadHeap;

inline constexpr size_t kCacheLineBytes = 64;
inline constexpr uint32_t kClassCount = 88;
inline constexpr uint32_t kMaxBareCellBytes = 1024;
inline constexpr uint32_t kMaxSmallBytes = 65536;
inline constexpr uint32_t kCellHeaderBytes = 8;
inline constexpr uint32_t kBigCellsPerSlab = 8;
inline constexpr uint32_t kBareSlabBytes = 65536; // the area of every slab of bare cells

struct SizeClass {
  ThreadHeap *heap;
#if UINTPTR_MAX == UINT32_MAX
  BriefLock lock; // over pendingSlabs, remoteBytes and the slabs' remote lists
#endif
  Slab *fullSlabs;
  Slab *partialSlabs;               // a queue (heap_list.h); cells are taken from its first slab
  std::atomic<Slab *> pendingSlabs; // under the lock
  Slab *spareSlab;                  // at most one wholly free slab, on no list
  uint32_t slabDataBytes;
  uint32_t objectBytes;
  uint32_t slabPages; // pages to enter in the page map, 0 for cells with a header
#if UINTPTR_MAX == UINT32_MAX
  uint32_t remoteBytes;
#endif
  uint32_t objectsPerSlab;
  uint32_t partialCount;
#if UINTPTR_MAX > UINT32_MAX
  // Written for every cell that comes back from another thread: in a cache line that the owner's common
  // roads do not read.
  alignas(kCacheLineBytes) BriefLock lock;
  uint32_t remoteBytes;
#endif
};
static_assert(sizeof(void *) != 4 || sizeof(SizeClass) == 48);

// Cell bytes of class 1 to 88; 0 for class 0, which is empty.
uint32_t cellBytesOfClass(uint32_t sizeClass);

// (size + 7) / 8, for sizes up to kMaxSmallBytes, to the smallest class that holds it.
extern const std::array<uint8_t, kMaxSmallBytes / 8 + 1> classOfSize;

// Lays the record out for its class: sizes and counts set, no slabs.
void initializeSizeClass(SizeClass &sizeClass, ThreadHeap *heap, uint32_t number,
                         const AllocatorGeometry &geometry);

// Whether other threads have freed cells that the owner has not taken home yet.
inline bool hasPending(const SizeClass &sizeClass) {
  return sizeClass.pendingSlabs.load(std::memory_order_relaxed) != nullptr;
}

inline bool hasCellHeaders(const SizeClass &sizeClass) { return sizeClass.slabPages == 0; }

} // namespace torvane

// Large blocks: requests above kMaxSmallBytes, each an area of its own with a header in front of the user's
// bytes. The word at 8 bytes before the user's bytes holds totalBytes, which is even; a cell's is odd.
#pragma once

#include <cstdint>

namespace torvane {

struct ThreadHeap;

struct LargeBlock {
  LargeBlock *deferredNext; // the block itself until another thread frees it
  LargeBlock *prev;
  LargeBlock *next;
  ThreadHeap *heap;
  uint32_t totalBytes; // with this header
  uint32_t areaGrade;  // what heap_area.h keeps the area under
};
static_assert(sizeof(void *) == 4 ? sizeof(LargeBlock) == 24 : sizeof(LargeBlock) == 40);

inline LargeBlock *largeBlockOf(void *block) { return static_cast<LargeBlock *>(block) - 1; }

// A block of `totalBytes` with its header, linked into the heap and counted; null when memory is exhausted.
// Returns the user's bytes. Owner only.
void *takeLargeBlock(ThreadHeap *heap, uint32_t totalBytes);

// Returns a large block, from any thread.
void freeLargeBlock(LargeBlock *block);

// Unlinks, uncounts and releases what other threads have freed. By the owner, which polls deferredLarge
// first; the second form is for who holds the heap's largeLock.
void releaseDeferredLarge(ThreadHeap *heap);
void releaseDeferredLargeLocked(ThreadHeap *heap);

// Unlinks, uncounts and releases one block.
void releaseLargeBlock(LargeBlock *block);

} // namespace torvane

// A slab: an object area cut into equal cells of one size class, with its header apart from it. A slab
// is on its class's partial queue while it has free cells, on the full list when it has none, and on
// neither while it is the class's spare. For every slab
//     freeCount = length(freeHead),  live = objectsPerSlab - freeCount,
// where live cells include those that wait on remoteHead for their owner. Of wholly free slabs a class keeps
// one, its idle slab: the spare, or, where it is the only slab on the partial queue, left there in place, so
// that a program that takes and returns one cell again and again moves no links.
#pragma once

#include "heap_thread.h"

namespace torvane {

struct FreeCell {
  FreeCell *next;
};

struct Slab {
  SizeClass *sizeClass;
  Slab *prev;
  Slab *next;
  Slab *pendingNext; // the slab itself while it is on no pending list
#if UINTPTR_MAX > UINT32_MAX
  // What other threads write and what the owner writes lie in cache lines apart, so that a thread that hands
  // cells back does not slow an owner that takes cells from the same slab.
  FreeCell *remoteHead; // freed by other threads; under the class's lock
  alignas(kCacheLineBytes) FreeCell *freeHead;
#else
  FreeCell *freeHead;
  FreeCell *remoteHead;
#endif
  void *memory;
  uint32_t freeCount;
};
static_assert(sizeof(void *) == 4 ? sizeof(Slab) == 32 : sizeof(Slab) == 2 * kCacheLineBytes);

// What a slab adds to its heap's freeBytes when it is new.
inline uint32_t slabTotalBytes(const SizeClass &sizeClass) {
  return sizeClass.slabDataBytes + static_cast<uint32_t>(sizeof(Slab));
}

// A new slab on the partial queue, which was empty, all cells free in address order; null when memory is
// exhausted, and then nothing has changed. Owner only.
Slab *newSlab(SizeClass &sizeClass);

// Takes the spare back onto the partial queue; null when there is none.
Slab *takeSpareSlab(SizeClass &sizeClass);

// A slab on the partial queue that became wholly free: it becomes the idle slab, or is released if
// there is one.
void retireSlab(Slab *slab);

// A slab on the partial queue whose last cell was handed out, and one on the full list that got one back.
void *moveToFull(Slab *slab, void *block); // returns `block`, so that it can be a tail call
void moveToPartial(Slab *slab);

// Releases the wholly free slab that the class keeps, if any.
void releaseIdleSlab(SizeClass &sizeClass);

// Releases every slab, whatever is still in use in it.
void releaseAllSlabs(SizeClass &sizeClass);

// A cell comes home: onto its slab's free list, counted as free. The slab's lists are settleSlab's business.
inline void returnCell(ThreadHeap *heap, Slab *slab, FreeCell *cell) {
  const uint32_t bytes = slab->sizeClass->objectBytes;
  cell->next = slab->freeHead;
  slab->freeHead = cell;
  ++slab->freeCount;
  heap->usedBytes.subtract(bytes);
}

// Whether one returned cell has changed where the slab belongs: it was full, or is wholly free.
inline bool isUnsettled(const Slab *slab) {
  return slab->freeCount == 1 || slab->freeCount == slab->sizeClass->objectsPerSlab;
}

// Puts an unsettled slab where it belongs.
inline void settleSlab(Slab *slab) {
  if (slab->freeCount == 1)
    moveToPartial(slab);
  else
    retireSlab(slab);
}

} // namespace torvane

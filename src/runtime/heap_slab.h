// A slab: an object area cut into equal cells of one size class, with its header apart from it. A slab
// is on its class's partial queue while it has free cells, on the full list when it has none, and on
// neither while it is the class's spare. For every slab
//     live cells = objectsPerSlab - freeHead.count(),
// where live cells include those that wait on remoteHead for their owner. Of wholly free slabs a class keeps
// one, its idle slab: the spare, or, where it is the only slab on the partial queue, left there in place, so
// that a program that takes and returns one cell again and again moves no links.
#pragma once

#include "heap_cell.h"
#include "heap_thread.h"

namespace torvane {

// What other threads write and what the owner writes lie in cache lines apart, so that a thread that hands
// cells back does not slow an owner that takes cells from the same slab.
struct Slab {
  SizeClass *sizeClass;
  Slab *prev;
  Slab *next;
  Slab *pendingNext;    // the slab itself while it is on no pending list
  FreeCell *remoteHead; // freed by other threads, their links with a count of 0; under the class's lock
  alignas(kCacheLineBytes) CellLink freeHead;
  void *memory;
  const SizeClass *ownClass; // sizeClass again, where the owner has it at hand
  uint32_t objectBytes;      // the class's
  uint32_t retireCount;      // the count of freeHead at which the slab must move, or kNeverRetire
};
static_assert(sizeof(Slab) == 2 * kCacheLineBytes);
inline constexpr uint32_t kNeverRetire = UINT32_MAX;

// What stands for a slab where there is none: it has no free cell. Nobody writes to it.
extern constinit Slab noSlab;

inline bool isWhollyFree(const Slab *slab) {
  return slab->freeHead.count() == slab->sizeClass->objectsPerSlab;
}

// What a slab's header counts for. On the narrow target the figure is older than the header's present layout,
// and stays what the counters have always said.
inline constexpr uint32_t kSlabHeaderBytes = sizeof(void *) == 4 ? 32 : static_cast<uint32_t>(sizeof(Slab));

// What a slab adds to its heap's freeBytes when it is new.
inline uint32_t slabTotalBytes(const SizeClass &sizeClass) {
  return sizeClass.slabDataBytes + kSlabHeaderBytes;
}

// A new slab on the partial queue, which was empty, all cells free in address order; null when memory is
// exhausted, and then nothing has changed. Owner only.
Slab *newSlab(SizeClass &sizeClass);

// Takes the spare back onto the partial queue; null when there is none.
Slab *takeSpareSlab(SizeClass &sizeClass);

// A slab on the partial queue that became wholly free, and has a retireCount: it becomes the idle slab, or is
// released if there is one. The lone slab of a queue without a spare never retires: it is the idle slab where
// it stands.
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
  const CellLink rest = slab->freeHead;
  cell->next = rest;
  slab->freeHead = CellLink(cell, rest.count() + 1);
  heap->usedBytes.subtract(slab->objectBytes);
}

// Puts a slab where it belongs after one cell came back to it: it may have been full, or be wholly free now.
inline void settleSlab(Slab *slab) {
  const uint32_t count = slab->freeHead.count();
  if (count == 1)
    moveToPartial(slab);
  else if (count == slab->retireCount)
    retireSlab(slab);
}

} // namespace torvane

#include "heap_remote.h"

#include "heap_list.h"
#include "heap_thread.h"

namespace torvane {

namespace {

// Time-stamp ticks, about a microsecond or two, for which the owner lets cells gather after a reclaim. While
// another thread hands back one cell after the other this makes the cost of a reclaim, mostly cache lines
// that travel, one for many cells. A reclaim that comes so much later costs nothing: what waits stays waiting.
constexpr uint64_t kReclaimPause = 4096;

// Puts the slab's remote list in front of its free list; returns the number of cells.
uint32_t spliceRemoteCells(Slab *slab) {
  uint32_t count = 1;
  FreeCell *last = slab->remoteHead;
  for (; last->next != nullptr; last = last->next) ++count;
  last->next = slab->freeHead;
  slab->freeHead = slab->remoteHead;
  slab->remoteHead = nullptr;
  slab->freeCount += count;
  return count;
}

void reclaimSlab(Slab *slab) {
  SizeClass &sizeClass = *slab->sizeClass;
  ThreadHeap *heap = sizeClass.heap;
  const bool wasFull = slab->freeCount == 0;
  const uint32_t bytes = spliceRemoteCells(slab) * sizeClass.objectBytes;
  sizeClass.remoteBytes -= bytes;
  heap->freeBytes += bytes;
  heap->usedBytes.subtract(bytes);
  if (wasFull) moveToPartial(slab);
  if (slab->freeCount == sizeClass.objectsPerSlab) retireSlab(slab);
}

void deferCell(SizeClass &sizeClass, Slab *slab, FreeCell *cell) {
  sizeClass.remoteBytes += sizeClass.objectBytes;
  cell->next = slab->remoteHead;
  slab->remoteHead = cell;
  if (slab->pendingNext != slab) return;
  slab->pendingNext = sizeClass.pendingSlabs.load(std::memory_order_relaxed);
  sizeClass.pendingSlabs.store(slab, std::memory_order_relaxed);
}

// With the class's lock held, which it leaves.
void freeCellOfOrphan(SizeClass &sizeClass, Slab *slab, FreeCell *cell) {
  ThreadHeap *heap = sizeClass.heap;
  heap->largeLock.enter();
  returnCell(heap, slab, cell);
  if (isUnsettled(slab)) settleSlab(slab);
  reclaimPending(sizeClass);
  releaseIdleSlab(sizeClass);
  sizeClass.lock.leave();
  leaveOrphan(heap);
}

} // namespace

void freeCellOfOtherThread(Slab *slab, FreeCell *cell) {
  SizeClass &sizeClass = *slab->sizeClass;
  sizeClass.lock.enter();
  if (sizeClass.heap->orphaned.load(std::memory_order_acquire) != kOwned)
    return freeCellOfOrphan(sizeClass, slab, cell);
  deferCell(sizeClass, slab, cell);
  sizeClass.lock.leave();
}

void reclaimPending(SizeClass &sizeClass) {
  while (Slab *slab = sizeClass.pendingSlabs.load(std::memory_order_relaxed)) {
    sizeClass.pendingSlabs.store(slab->pendingNext, std::memory_order_relaxed);
    slab->pendingNext = slab;
    reclaimSlab(slab);
  }
}

void reclaim(SizeClass &sizeClass) {
  if (!sizeClass.lock.tryEnter()) return;
  reclaimPending(sizeClass);
  sizeClass.lock.leave();
}

} // namespace torvane

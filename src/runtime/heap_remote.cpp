#include "heap_remote.h"

#include "heap_list.h"
#include "heap_thread.h"

namespace torvane {

namespace {

// Time-stamp ticks, about a microsecond or two, for which the owner lets cells gather after a reclaim. While
// another thread hands back one cell after the other this makes the cost of a reclaim, mostly cache lines
// that travel, one for many cells. A reclaim that comes so much later costs nothing: what waits stays
// waiting.
constexpr uint64_t kReclaimPause = 4096;

// What is taken off the pending list in one go.
constexpr uint32_t kGripSlabs = 16;
struct Grip {
  RemoteBox *box;
  uint32_t count;
  Slab *slabs[kGripSlabs];
  FreeCell *cells[kGripSlabs]; // the remote list of each
};

RemoteBox *takeBox(RemoteSide &side) {
  RemoteBox *box = side.filling;
  side.filling = side.empty;
  side.empty = nullptr;
  return box;
}

// Under the class's lock. The cells belong to the caller then, but still count as remote. Returns whether
// slabs are left on the list. The box goes with the last of them: while a slab is pending it must not become
// wholly free, for then it would be released.
bool takePending(SizeClass &sizeClass, Grip &grip) {
  Slab *slab = sizeClass.pendingSlabs.load(std::memory_order_relaxed);
  for (grip.count = 0; slab != nullptr && grip.count < kGripSlabs;) {
    if (slab->remoteHead != nullptr) {
      grip.slabs[grip.count] = slab;
      grip.cells[grip.count++] = slab->remoteHead;
    }
    Slab *const next = slab->pendingNext;
    slab->remoteHead = nullptr;
    slab->pendingNext = slab;
    slab = next;
  }
  sizeClass.pendingSlabs.store(slab, std::memory_order_relaxed);
  grip.box = slab == nullptr ? takeBox(remoteSideOf(sizeClass)) : nullptr;
  return slab != nullptr;
}

// Returns the bytes of the cells. With the last of them the slab may be gone.
uint32_t reclaimCells(SizeClass &sizeClass, Slab *slab, FreeCell *cells) {
  uint32_t bytes = 0;
  while (cells != nullptr) {
    FreeCell *const next = cells->next.cell();
    returnCell(sizeClass.heap, slab, cells);
    settleSlab(slab);
    bytes += sizeClass.objectBytes;
    cells = next;
  }
  return bytes;
}

void keepEmptyBox(RemoteSide &side, RemoteBox *box) {
  box->count = 0;
  if (side.empty == nullptr)
    side.empty = box;
  else
    processHeap.load(std::memory_order_relaxed)->give(box);
}

// Returns the bytes of the cells.
uint32_t reclaimBox(SizeClass &sizeClass, RemoteBox *box) {
  if (box == nullptr) return 0;
  for (uint32_t i = 0; i < box->count; ++i) {
    FreeCell *const cell = box->cells[i];
    Slab *const slab = slabOfCell(sizeClass, cell);
    returnCell(sizeClass.heap, slab, cell);
    settleSlab(slab);
  }
  const uint32_t bytes = box->count * sizeClass.objectBytes;
  keepEmptyBox(remoteSideOf(sizeClass), box);
  return bytes;
}

uint32_t reclaimGrip(SizeClass &sizeClass, const Grip &grip) {
  uint32_t bytes = reclaimBox(sizeClass, grip.box);
  for (uint32_t i = 0; i < grip.count; ++i) bytes += reclaimCells(sizeClass, grip.slabs[i], grip.cells[i]);
  return bytes;
}

// Whether there was room for the cell in the box. The first cell finds no box and makes it.
bool noteInBox(SizeClass &sizeClass, FreeCell *cell) {
  RemoteBox *&box = remoteSideOf(sizeClass).filling;
  if (box == nullptr) {
    box = static_cast<RemoteBox *>(processHeap.load(std::memory_order_relaxed)->take(sizeof(RemoteBox)));
    if (box == nullptr) return false;
    box->count = 0;
  }
  if (box->count == kBoxCells) return false;
  box->cells[box->count++] = cell;
  return true;
}

void deferCell(SizeClass &sizeClass, Slab *slab, FreeCell *cell) {
  sizeClass.remoteBytes += sizeClass.objectBytes;
  if (!noteInBox(sizeClass, cell)) {
    cell->next = CellLink(slab->remoteHead, 0);
    slab->remoteHead = cell;
  }
  if (slab->pendingNext != slab) return;
  slab->pendingNext = sizeClass.pendingSlabs.load(std::memory_order_relaxed);
  sizeClass.pendingSlabs.store(slab, std::memory_order_relaxed);
}

// With the class's lock held, which it leaves.
void freeCellOfOrphan(SizeClass &sizeClass, Slab *slab, FreeCell *cell) {
  ThreadHeap *heap = sizeClass.heap;
  heap->largeLock.enter();
  returnCell(heap, slab, cell);
  settleSlab(slab);
  reclaimPending(sizeClass);
  releaseIdleSlab(sizeClass);
  sizeClass.lock.leave();
  leaveOrphan(heap);
}

} // namespace

void freeCellOfOtherThread(Slab *slab, FreeCell *cell) {
  SizeClass &sizeClass = *slab->sizeClass;
  sizeClass.lock.enter();
  if (remoteSideOf(sizeClass).closed) return freeCellOfOrphan(sizeClass, slab, cell);
  deferCell(sizeClass, slab, cell);
  sizeClass.lock.leave();
}

void discardBoxes(SizeClass &sizeClass) {
  RemoteSide &side = remoteSideOf(sizeClass);
  processHeap.load()->give(side.filling);
  processHeap.load()->give(side.empty);
  side.filling = side.empty = nullptr;
}

void reclaimPending(SizeClass &sizeClass) {
  bool more = true;
  while (more) {
    Grip grip;
    more = takePending(sizeClass, grip);
    sizeClass.remoteBytes -= reclaimGrip(sizeClass, grip);
  }
}

void reclaim(SizeClass &sizeClass) {
  uint64_t &last = remoteSideOf(sizeClass).lastReclaim;
  const uint64_t now = timeStamp();
  if (now - last < kReclaimPause) return;
  last = now;
  reclaimNow(sizeClass);
}

// The work on the cells, each perhaps in another processor's cache, is done without the lock.
void reclaimNow(SizeClass &sizeClass) {
  if (!sizeClass.lock.tryEnter()) return;
  bool more = true;
  while (more) {
    Grip grip;
    more = takePending(sizeClass, grip);
    sizeClass.lock.leave();
    const uint32_t bytes = reclaimGrip(sizeClass, grip);
    sizeClass.lock.enter();
    sizeClass.remoteBytes -= bytes;
  }
  sizeClass.lock.leave();
}

} // namespace torvane

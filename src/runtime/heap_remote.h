// Cells that come back from threads that do not own them, and their way home. Such a thread notes the cell in
// the class's box and leaves the cell itself alone: the cell's cache line is likely in the owner's processor,
// and to wait for it would cost more than all the rest. Only when the box is full, or there is no memory for
// one, the cell is linked into its slab's remote list. A slab with cells in either is on the pending list,
// and
//     remoteBytes = objectBytes * (cells in the box + cells on remote lists).
#pragma once

#include "heap_slab.h"
#include "heap_state.h"

namespace torvane {

inline constexpr uint32_t kBoxCells = 254;

struct RemoteBox {
  uint32_t count;
  FreeCell *cells[kBoxCells];
};

// The slab of a cell that is not free: its page-map entry, or what its header names. For a cell in a box this
// is the owner's to find, so that the box, which travels between the processors, has one word a cell.
inline Slab *slabOfCell(const SizeClass &sizeClass, const FreeCell *cell) {
  if (!hasCellHeaders(sizeClass)) return slabOfAddress(currentState()->pageMap, cell);
  return reinterpret_cast<Slab *>(*reinterpret_cast<const uintptr_t *>(cell) - 1);
}

inline RemoteSide &remoteSideOf(SizeClass &sizeClass) {
  HeapRecords &records = recordsOf(sizeClass.heap);
  return records.remoteSides[&sizeClass - records.sizeClasses];
}

// Hands a cell to its owner's deferred list, or, if the owner has ended, returns it at once.
void freeCellOfOtherThread(Slab *slab, FreeCell *cell);

// Gives the boxes back, which are empty; for a class that takes no more cells this way.
void discardBoxes(SizeClass &sizeClass);

// Moves all cells that other threads have freed to their slabs' free lists. Under the class's lock.
void reclaimPending(SizeClass &sizeClass);

// The owner's form, which takes the lock; not when another thread is just handing a cell back.
void reclaimNow(SizeClass &sizeClass);

// The same, put off to a later step in the class when the last reclaim was only just now.
void reclaim(SizeClass &sizeClass);

} // namespace torvane

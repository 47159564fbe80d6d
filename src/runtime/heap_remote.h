// Cells that come back from threads that do not own them, and their way home.
#pragma once

#include "heap_slab.h"

namespace torvane {

// Hands a cell to its owner's deferred list, or, if the owner has ended, returns it at once.
void freeCellOfOtherThread(Slab *slab, FreeCell *cell);

// Moves all cells that other threads have freed to their slabs' free lists. Under the class's lock.
void reclaimPending(SizeClass &sizeClass);

// The owner's form, which takes the lock; not when another thread is just handing a cell back.
void reclaimNow(SizeClass &sizeClass);

// The same, put off to a later step in the class when the last reclaim was only just now.
void reclaim(SizeClass &sizeClass);

} // namespace torvane

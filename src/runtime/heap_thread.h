// A thread's heap. The thread that owns it takes from it and returns to it without a lock; other threads
// hand blocks back through the deferred lists. With every block at home
//     usedBytes = own records + sum of live cells (class size) + sum of large blocks (totalBytes),
//     heldBytes = usedBytes + freeBytes, where freeBytes = sum over slabs of slabTotalBytes - live cells,
// where cells and blocks that other threads have freed stay live until the owner reclaims them.
//
// When the thread ends with blocks out, the heap stays behind as an orphan. From then on any thread that
// returns a block to it works on it under the class's lock and then the heap's largeLock; the class's lock
// is left first, so that whoever finds the heap empty under largeLock is the last to know it. While the
// ending thread still walks its classes the heap is `closing`: others work on it, and none destroys it.
#pragma once

#include "heap_area.h"
#include "heap_counter.h"
#include "heap_large.h"
#include "heap_size_class.h"

namespace torvane {

enum Ownership : uint32_t { kOwned = 0, kOrphaned = 1, kClosing = 2 };

struct ThreadHeap {
  ThreadHeap *prev;
  ThreadHeap *next;
  SizeClass **classes; // entry 0 is null
  LargeBlock *largeBlocks;
  std::atomic<LargeBlock *> deferredLarge; // written under largeLock, polled by the owner without it
  const uint8_t *classOfSize;
  Lock largeLock;     // over deferredLarge and, for an orphan, everything
  uint32_t heldBytes; // freeBytes + usedBytes: what a cell that goes or comes leaves as it is
  ByteCounter usedBytes;
  ByteCounter peakBytes;
  uint32_t limitBytes; // 0: none
  // A new usedBytes from here on needs a look: peakBytes + 1, or 0 while there is a limit.
  uint32_t noticeBytes;
  uint32_t isMainHeap;
  std::atomic<uint32_t> orphaned; // an Ownership
  uint32_t ownerThreadId;
};

// A class's boxes of cells that other threads have freed; see heap_remote.h.
struct RemoteBox;
struct RemoteSide {
  RemoteBox *filling; // under the class's lock
  RemoteBox *empty;   // the owner's
  // Under the lock: the owner has ended, and who frees a cell works on the heap. A word for each class,
  // because the heap's own shares a cache line with the counters that an owner changes all the time.
  bool closed;
  uint64_t lastReclaim; // the owner's: time stamp
};

inline constexpr uintptr_t kNoHotMemory = ~uintptr_t{0xFFFF}; // where no area can lie

// A slab of bare cells and its area.
struct HotSlab {
  uintptr_t memory; // kNoHotMemory for none
  Slab *slab;
};
inline constexpr uint32_t kHotSlabs = 256;

// A heap and everything that belongs to it, in one piece of the process heap.
struct HeapRecords {
  ThreadHeap heap;
  // Slabs that the owner has returned bare cells to, by their place in the address space. A cell inside the
  // area of its entry belongs to that slab, which saves the look into the page map; more important, the next
  // allocation need not wait for that look to end.
  HotSlab lastSlab; // of them the one that was returned to last, which is the likeliest
  HotSlab hotSlabs[kHotSlabs];
  // By (size + 7) / 8, the first slab with free cells of the class that serves the size, or noSlab, which has
  // none: what a small allocation finds its cell by.
  Slab *readySlabs[kMaxBareCellBytes / 8 + 1];
  SizeClass *classes[kClassCount + 1];
  AreaCache areas;
  RemoteSide remoteSides[kClassCount + 1];
  alignas(kCacheLineBytes) SizeClass
      sizeClasses[kClassCount + 1]; // the first is empty: it serves size 0 with nothing
};

// What a heap counts as used before it has handed out anything: its record, the pointers to its classes, and
// the classes. As with a slab's header, the narrow target's figures are what the counters have always said.
inline constexpr uint32_t kHeapRecordBytes = sizeof(void *) == 4 ? 64 : uint32_t{sizeof(ThreadHeap)};
inline constexpr uint32_t kSizeClassBytes = sizeof(void *) == 4 ? 48 : uint32_t{sizeof(SizeClass)};
inline constexpr uint32_t kHeapOwnBytes =
    kHeapRecordBytes + uint32_t{sizeof(SizeClass *)} * (kClassCount + 1) + kSizeClassBytes * kClassCount;

inline HeapRecords &recordsOf(ThreadHeap *heap) { return *reinterpret_cast<HeapRecords *>(heap); }
inline HotSlab &hotSlabFor(HeapRecords &records, uintptr_t address) {
  return records.hotSlabs[address / kBareSlabBytes % kHotSlabs];
}
inline uint32_t freeBytesOf(const ThreadHeap *heap) { return heap->heldBytes - heap->usedBytes.value(); }
inline AreaCache &areasOf(ThreadHeap *heap) { return recordsOf(heap).areas; }

// What stands for a heap where there is none: nothing in it is ready or hot. Nobody writes to it.
struct NoHeap {
  HeapRecords records{};
  constexpr NoHeap();
};
extern constinit NoHeap noHeap;

// The calling thread's heap, noHeap's before its first allocation: the common roads then find nothing that
// they could use, and need not ask whether there is a heap.
extern constinit thread_local ThreadHeap *threadHeap;

inline bool hasHeap() { return threadHeap != &noHeap.records.heap; }
inline void forgetHeap() { threadHeap = &noHeap.records.heap; }

// The calling thread's heap, made if it has none; null when memory is exhausted.
ThreadHeap *findOrMakeThreadHeap();
inline ThreadHeap *ensureThreadHeap() { return hasHeap() ? threadHeap : findOrMakeThreadHeap(); }

inline void setPeak(ThreadHeap *heap, uint32_t bytes) {
  heap->peakBytes.set(bytes);
  heap->noticeBytes = heap->limitBytes == 0 ? bytes + 1 : 0;
}

inline void setLimit(ThreadHeap *heap, uint32_t bytes) {
  heap->limitBytes = bytes;
  setPeak(heap, heap->peakBytes.value());
}

inline void chargeBytes(ThreadHeap *heap, uint32_t bytes) {
  const uint32_t used = heap->usedBytes.value() + bytes;
  heap->usedBytes.set(used);
  if (used > heap->peakBytes.value()) setPeak(heap, used);
}

struct AllocatorState;

// A heap for the calling thread, linked into the state's list and stored in the thread's slot; null when
// memory is exhausted.
ThreadHeap *newThreadHeap(AllocatorState *state, bool isMain);

// Ends the calling thread's use of its heap: destroys it, or leaves it an orphan if blocks are out. A
// later allocation of the thread makes a new heap. The second form is the destructor of the thread's slot.
void endThreadHeap();
void endHeapOfSlot(void *heap);

// Leaves the largeLock of a heap that others may have left empty; destroys it if it is an empty orphan.
void leaveOrphan(ThreadHeap *heap);

// Releases every block and slab, whatever is still in use, and destroys the heap. For teardown.
void dropHeap(ThreadHeap *heap);

} // namespace torvane

// The common roads of allocate and free: no lock, no atomic read-modify-write, nothing on the stack. Whatever
// is rare stands out of line, behind a tail call, in memory.cpp. Only for the functions of the interface,
// which are these and nothing else.
#pragma once

#include "heap_remote.h"
#include "heap_slab.h"

namespace torvane {

inline constexpr uint32_t roundUpTo8(uint32_t size) { return (size + 7) & ~7u; }

// The whole of an allocation, step by step, and the release of any block that is not in the hot slab.
[[gnu::noinline]] void *allocateSlowly(uint32_t size, mint errorMode);
[[gnu::noinline]] void *allocateWithHeader(uint32_t size, mint errorMode);
[[gnu::noinline]] void freeByPageMap(void *block);
[[gnu::noinline]] void settleAndReclaim(Slab *slab);

// Takes the first free cell of a slab on the partial list. `hasHeader` is known where this is called.
[[gnu::always_inline]] inline void *handOut(ThreadHeap *heap, SizeClass &sizeClass, Slab *slab,
                                            bool hasHeader) {
  FreeCell *cell = slab->freeHead;
  const uint32_t bytes = sizeClass.objectBytes;
  slab->freeHead = cell->next;
  chargeBytes(heap, bytes);
  void *block = cell;
  if (hasHeader) {
    *reinterpret_cast<uintptr_t *>(cell) = reinterpret_cast<uintptr_t>(slab) + 1;
    block = reinterpret_cast<char *>(cell) + kCellHeaderBytes;
  }
  if (--slab->freeCount == 0) [[unlikely]]
    return moveToFull(slab, block);
  return block;
}

// Size 0 finds the empty class 0, which has nothing ready.
[[gnu::always_inline]] inline void *takeReadyCell(uint32_t size, uint32_t bytes, bool hasHeader,
                                                  mint errorMode) {
  ThreadHeap *heap = threadHeap;
  if (heap == nullptr || heap->limitBytes != 0) [[unlikely]]
    return allocateSlowly(size, errorMode);
  SizeClass &sizeClass = recordsOf(heap).sizeClasses[classOfSize[bytes / 8]];
  Slab *slab = sizeClass.partialSlabs;
  if (slab == nullptr || sizeClass.pendingSlabs.load(std::memory_order_relaxed) != nullptr) [[unlikely]]
    return allocateSlowly(size, errorMode);
  return handOut(heap, sizeClass, slab, hasHeader);
}

[[gnu::always_inline]] inline void *allocateInline(uint32_t size, mint errorMode) {
  if (size <= kMaxBareCellBytes) [[likely]]
    return takeReadyCell(size, roundUpTo8(size), false, errorMode);
  return allocateWithHeader(size, errorMode);
}

// Puts a cell back into a slab of this thread's heap.
[[gnu::always_inline]] inline void takeBack(ThreadHeap *heap, Slab *slab, FreeCell *cell) {
  const SizeClass &sizeClass = *slab->sizeClass;
  returnCell(heap, slab, cell);
  if (sizeClass.pendingSlabs.load(std::memory_order_relaxed) != nullptr) [[unlikely]]
    return settleAndReclaim(slab);
  if (slab->freeCount == 1) [[unlikely]]
    return moveToPartial(slab);
  if (slab->freeCount == sizeClass.objectsPerSlab) retireSlab(slab);
}

[[gnu::always_inline]] inline void freeInline(void *block) {
  ThreadHeap *heap = threadHeap;
  if (heap != nullptr) [[likely]] {
    const auto address = reinterpret_cast<uintptr_t>(block);
    const HotSlab &hot = hotSlabFor(recordsOf(heap), address);
    if (address - hot.memory < kBareSlabBytes) [[likely]]
      return takeBack(heap, hot.slab, static_cast<FreeCell *>(block));
  }
  freeByPageMap(block);
}

} // namespace torvane

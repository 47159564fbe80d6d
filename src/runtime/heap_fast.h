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

// Whether a cell of the slab may be handed out at once: nothing waits in its class for the owner, and `used`,
// what usedBytes will be, needs no look at peak or limit.
[[gnu::always_inline]] inline bool isQuiet(const ThreadHeap *heap, const Slab *slab, uint32_t used) {
  return !hasPending(*slab->ownClass) && used < heap->noticeBytes;
}

// Takes the first free cell of a slab on the partial queue, `head`, and notes the new usedBytes.
[[gnu::always_inline]] inline void *takeCell(ThreadHeap *heap, Slab *slab, CellLink head, uint32_t used,
                                             bool hasHeader) {
  FreeCell *const cell = head.cell();
  const CellLink rest = cell->next;
  slab->freeHead = rest;
  heap->usedBytes.set(used);
  void *block = cell;
  if (hasHeader) {
    *reinterpret_cast<uintptr_t *>(cell) = reinterpret_cast<uintptr_t>(slab) + 1;
    block = reinterpret_cast<char *>(cell) + kCellHeaderBytes;
  }
  if (rest.isNull()) [[unlikely]]
    return moveToFull(slab, block);
  return block;
}

// Size 0 finds no slab.
[[gnu::always_inline]] inline void *allocateInline(uint32_t size, mint errorMode) {
  if (size > kMaxBareCellBytes) [[unlikely]]
    return allocateWithHeader(size, errorMode);
  ThreadHeap *heap = threadHeap;
  Slab *slab = recordsOf(heap).readySlabs[(size + 7) / 8];
  const CellLink head = slab->freeHead;
  const uint32_t used = heap->usedBytes.value() + slab->objectBytes;
  if (head.isNull() || !isQuiet(heap, slab, used)) [[unlikely]]
    return allocateSlowly(size, errorMode);
  return takeCell(heap, slab, head, used, false);
}

// Puts a cell back into a slab of this thread's heap.
[[gnu::always_inline]] inline void takeBack(ThreadHeap *heap, Slab *slab, FreeCell *cell) {
  const CellLink rest = slab->freeHead;
  const uint32_t count = rest.count() + 1;
  cell->next = rest;
  slab->freeHead = CellLink(cell, count);
  heap->usedBytes.subtract(slab->objectBytes);
  if (hasPending(*slab->ownClass)) [[unlikely]]
    return settleAndReclaim(slab);
  if (rest.isNull()) [[unlikely]]
    return moveToPartial(slab);
  if (count == slab->retireCount) [[unlikely]]
    return retireSlab(slab);
}

[[gnu::always_inline]] inline void freeInline(void *block) {
  ThreadHeap *heap = threadHeap;
  const auto address = reinterpret_cast<uintptr_t>(block);
  HotSlab &last = recordsOf(heap).lastSlab;
  if (address - last.memory < kBareSlabBytes) [[likely]]
    return takeBack(heap, last.slab, static_cast<FreeCell *>(block));
  const HotSlab hot = hotSlabFor(recordsOf(heap), address);
  if (address - hot.memory < kBareSlabBytes) {
    last = hot;
    return takeBack(heap, hot.slab, static_cast<FreeCell *>(block));
  }
  freeByPageMap(block);
}

} // namespace torvane

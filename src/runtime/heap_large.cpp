#include "heap_large.h"

#include "heap_list.h"
#include "heap_thread.h"

namespace torvane {

namespace {

void freeOfOtherThread(LargeBlock *block) {
  ThreadHeap *heap = block->heap;
  heap->largeLock.enter();
  if (heap->orphaned.load(std::memory_order_acquire) != kOwned) {
    releaseLargeBlock(block);
    releaseDeferredLargeLocked(heap);
    leaveOrphan(heap);
    return;
  }
  block->deferredNext = heap->deferredLarge.load(std::memory_order_relaxed);
  heap->deferredLarge.store(block, std::memory_order_relaxed);
  heap->largeLock.leave();
}

} // namespace

void *takeLargeBlock(ThreadHeap *heap, uint32_t totalBytes) {
  if (heap->deferredLarge.load(std::memory_order_relaxed) != nullptr) releaseDeferredLarge(heap);
  const uint32_t grade = gradeOf(totalBytes);
  auto *block = static_cast<LargeBlock *>(takeArea(areasOf(heap), totalBytes, grade));
  if (block == nullptr) return nullptr;
  pushFront(heap->largeBlocks, block);
  block->deferredNext = block;
  block->heap = heap;
  block->totalBytes = totalBytes;
  block->areaGrade = grade;
  heap->heldBytes += totalBytes;
  chargeBytes(heap, totalBytes);
  return block + 1;
}

void freeLargeBlock(LargeBlock *block) {
  ThreadHeap *heap = block->heap;
  if (heap != threadHeap) return freeOfOtherThread(block);
  releaseLargeBlock(block);
  if (heap->deferredLarge.load(std::memory_order_relaxed) != nullptr) releaseDeferredLarge(heap);
}

void releaseDeferredLarge(ThreadHeap *heap) {
  LockGuard guard(heap->largeLock);
  releaseDeferredLargeLocked(heap);
}

void releaseDeferredLargeLocked(ThreadHeap *heap) {
  LargeBlock *block = heap->deferredLarge.load(std::memory_order_relaxed);
  heap->deferredLarge.store(nullptr, std::memory_order_relaxed);
  while (block != nullptr) {
    LargeBlock *const next = block->deferredNext;
    releaseLargeBlock(block);
    block = next;
  }
}

void releaseLargeBlock(LargeBlock *block) {
  ThreadHeap *heap = block->heap;
  unlink(heap->largeBlocks, block);
  heap->usedBytes.subtract(block->totalBytes);
  heap->heldBytes -= block->totalBytes;
  giveArea(areasOf(heap), block, block->areaGrade);
}

} // namespace torvane

// What the heaps report: figures of every heap, peak marks, and bytes that the host holds outside.
#include "heap_state.h"
#include "heap_thread.h"
#include "hooks.h"
#include "memory.h"

namespace torvane {

struct PeakMark {
  PeakMark *next;
  uint32_t peakBytes;
};

namespace {

constinit std::atomic<uint32_t> externalBytes{0};

uint32_t remoteBytes(ThreadHeap *heap) {
  uint32_t sum = 0;
  for (uint32_t number = 1; number <= kClassCount; ++number) {
    LockGuard guard(heap->classes[number]->lock);
    sum += heap->classes[number]->remoteBytes;
  }
  return sum;
}

uint32_t deferredLargeBytes(ThreadHeap *heap) {
  LockGuard guard(heap->largeLock);
  uint32_t sum = 0;
  for (LargeBlock *block = heap->deferredLarge; block != nullptr; block = block->deferredNext)
    sum += block->totalBytes;
  return sum;
}

uint32_t figureOf(ThreadHeap *heap, mint which) {
  switch (which) {
  case 0:
    return heap->usedBytes.value();
  case 1:
    return heap->peakBytes.value();
  case 2:
    return remoteBytes(heap);
  case 3:
    return deferredLargeBytes(heap);
  default:
    return heap->ownerThreadId;
  }
}

uint32_t countHeaps(const AllocatorState *state) {
  uint32_t count = 0;
  for (const ThreadHeap *heap = state->threads; heap != nullptr; heap = heap->next) ++count;
  return count;
}

ThreadHeap *requireHeap() {
  ThreadHeap *heap = ensureThreadHeap();
  if (heap == nullptr) fatalOutOfMemory();
  return heap;
}

} // namespace

uint32_t *heapStatistics(uint32_t *count, mint which) {
  requireHeap(); // its making takes the list's lock
  AllocatorState *state = currentState();
  LockGuard guard(state->threadListLock);
  *count = countHeaps(state);
  auto *figures = static_cast<uint32_t *>(allocate(*count * uint32_t{sizeof(uint32_t)}, 0, kFatal));
  uint32_t *figure = figures;
  for (ThreadHeap *heap = state->threads; heap != nullptr; heap = heap->next)
    *figure++ = figureOf(heap, which);
  return figures;
}

void pushPeakMark(PeakMark **stack) {
  auto *mark = static_cast<PeakMark *>(allocate(sizeof(PeakMark), 0, kFatal));
  ThreadHeap *heap = threadHeap;
  mark->next = *stack;
  mark->peakBytes = heap->peakBytes.value();
  *stack = mark;
  setPeak(heap, heap->usedBytes.value());
}

uint32_t popPeakMark(PeakMark **stack) {
  PeakMark *mark = *stack;
  ThreadHeap *heap = threadHeap;
  const uint32_t peak = heap->peakBytes.value();
  if (mark->peakBytes > peak) setPeak(heap, mark->peakBytes);
  *stack = mark->next;
  free(mark);
  return peak;
}

uint64_t installedMemoryBytes() { return systemInstalledKilobytes() << 10; }

void adjustExternalBytes(uint32_t newTotal) {
  ThreadHeap *heap = requireHeap();
  const uint32_t oldTotal = externalBytes.exchange(newTotal, std::memory_order_relaxed);
  heap->heldBytes += newTotal - oldTotal;
  if (newTotal <= oldTotal) return heap->usedBytes.subtract(oldTotal - newTotal);
  const uint32_t used = heap->usedBytes.value();
  chargeBytes(heap, newTotal - oldTotal);
  if (heap->limitBytes != 0 &&
      (used + (newTotal - oldTotal) < used || heap->usedBytes.value() > heap->limitBytes))
    limitHook(heap->usedBytes.value());
}

} // namespace torvane

#include "heap_thread.h"

#include "heap_list.h"
#include "heap_remote.h"
#include "heap_slab.h"
#include "heap_state.h"
#include "startup.h"

#include <new>

namespace torvane {

constexpr NoHeap::NoHeap() {
  records.lastSlab.memory = kNoHotMemory;
  for (HotSlab &entry : records.hotSlabs) entry.memory = kNoHotMemory;
  for (Slab *&entry : records.readySlabs) entry = &noSlab;
}

constinit NoHeap noHeap;
constinit thread_local ThreadHeap *threadHeap = &noHeap.records.heap;

namespace {

void initializeHeap(HeapRecords &records, const AllocatorGeometry &geometry, bool isMain) {
  ThreadHeap &heap = records.heap;
  heap.classes = records.classes;
  heap.classOfSize = classOfSize.data();
  heap.usedBytes.set(kHeapOwnBytes);
  heap.heldBytes = kHeapOwnBytes;
  setPeak(&heap, kHeapOwnBytes);
  heap.isMainHeap = isMain;
  heap.ownerThreadId = currentThreadId();
  records.areas.maxKeptBytes = kMaxKeptBytes;
  records.lastSlab.memory = kNoHotMemory;
  for (Slab *&entry : records.readySlabs) entry = &noSlab;
  for (HotSlab &entry : records.hotSlabs) entry.memory = kNoHotMemory;
  for (uint32_t number = 1; number <= kClassCount; ++number) {
    records.classes[number] = &records.sizeClasses[number];
    initializeSizeClass(records.sizeClasses[number], &heap, number, geometry);
  }
}

// Takes the heap off the list and gives its records back. No other thread knows the heap but through the
// list, and who walks the list holds its lock.
void destroyHeap(ThreadHeap *heap) {
  AllocatorState *state = currentState();
  state->threadListLock.enter();
  unlink(state->threads, heap);
  state->threadListLock.leave();
  processHeap.load()->giveAligned(heap);
}

bool hasNoSlabs(ThreadHeap *heap) {
  for (uint32_t number = 1; number <= kClassCount; ++number) {
    const SizeClass &sizeClass = *heap->classes[number];
    if (sizeClass.fullSlabs != nullptr || sizeClass.partialSlabs != nullptr || sizeClass.spareSlab != nullptr)
      return false;
  }
  return true;
}

// freeBytes is 0 only without slabs, each of which counts its header; but the counter has 32 bits, and
// where addresses have more it may have wrapped to 0, so the lists have the last word.
bool isEmptyOrphan(ThreadHeap *heap) {
  return heap->orphaned.load(std::memory_order_relaxed) == kOrphaned && freeBytesOf(heap) == 0 &&
         heap->largeBlocks == nullptr && hasNoSlabs(heap);
}

void closeClass(SizeClass &sizeClass) {
  ThreadHeap *heap = sizeClass.heap;
  sizeClass.lock.enter();
  heap->largeLock.enter();
  reclaimPending(sizeClass);
  discardBoxes(sizeClass);
  remoteSideOf(sizeClass).closed = true;
  releaseIdleSlab(sizeClass);
  sizeClass.lock.leave();
  heap->largeLock.leave();
}

// The last step of an ending: from here on whoever empties the heap destroys it.
void orphanHeap(ThreadHeap *heap) {
  heap->largeLock.enter();
  releaseDeferredLargeLocked(heap);
  closeAreaCache(areasOf(heap));
  heap->orphaned.store(kOrphaned, std::memory_order_release);
  leaveOrphan(heap);
}

void closeHeap(ThreadHeap *heap) {
  // Who sees this under largeLock, or a class closed under its lock, also sees all that the owner wrote
  // without a lock.
  heap->orphaned.store(kClosing, std::memory_order_release);
  for (uint32_t number = 1; number <= kClassCount; ++number) closeClass(*heap->classes[number]);
  orphanHeap(heap);
}

} // namespace

ThreadHeap *newThreadHeap(AllocatorState *state, bool isMain) {
  void *memory = processHeap.load()->takeAligned(sizeof(HeapRecords), alignof(HeapRecords));
  if (memory == nullptr) return nullptr;
  auto *records = new (memory) HeapRecords{};
  initializeHeap(*records, *state->geometry, isMain);
  if (!setThreadSlotValue(state->tlsSlot, &records->heap)) {
    processHeap.load()->giveAligned(memory);
    return nullptr;
  }
  LockGuard guard(state->threadListLock);
  pushFront(state->threads, &records->heap);
  return &records->heap;
}

ThreadHeap *findOrMakeThreadHeap() {
  AllocatorState *state = ensureState();
  if (state == nullptr) return nullptr;
  auto *heap = static_cast<ThreadHeap *>(threadSlotValue(state->tlsSlot));
  if (heap == nullptr) heap = newThreadHeap(state, false);
  if (heap != nullptr) threadHeap = heap;
  return heap;
}

void endThreadHeap() {
  AllocatorState *state = currentState();
  if (state == nullptr) return;
  auto *heap = static_cast<ThreadHeap *>(threadSlotValue(state->tlsSlot));
  forgetHeap();
  setThreadSlotValue(state->tlsSlot, nullptr);
  if (heap != nullptr) closeHeap(heap);
}

// The hooks still need the heap, so it goes back into its slot until the last of them takes it away, or
// endThreadHeap where start-up has made no hooks. A slot that is not empty is that of a state which was
// adopted since, with a heap and an end of its own.
void endHeapOfSlot(void *heap) {
  const ThreadSlot slot = currentState()->tlsSlot;
  if (threadSlotValue(slot) != nullptr || !setThreadSlotValue(slot, heap)) {
    forgetHeap();
    return closeHeap(static_cast<ThreadHeap *>(heap));
  }
  runThreadExitHooks();
  endThreadHeap();
}

void leaveOrphan(ThreadHeap *heap) {
  const bool empty = isEmptyOrphan(heap);
  heap->largeLock.leave();
  if (empty) destroyHeap(heap);
}

void dropHeap(ThreadHeap *heap) {
  for (uint32_t number = 1; number <= kClassCount; ++number) {
    SizeClass &sizeClass = *heap->classes[number];
    LockGuard guard(sizeClass.lock);
    reclaimPending(sizeClass);
    discardBoxes(sizeClass);
    releaseAllSlabs(sizeClass);
  }
  releaseDeferredLarge(heap);
  while (heap->largeBlocks != nullptr) releaseLargeBlock(heap->largeBlocks);
  orphanHeap(heap);
}

} // namespace torvane

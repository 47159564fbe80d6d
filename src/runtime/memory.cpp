// The core operations: allocate, free, reallocate. Their common roads are in heap_fast.h;
// here is what is rare, and the questions about blocks and limits.
#include "memory.h"

#include "heap_fast.h"
#include "heap_state.h"
#include "hooks.h"

#include <cstring>

namespace torvane {

namespace {

constexpr uint32_t kLargeHeaderBytes = static_cast<uint32_t>(sizeof(LargeBlock));
constexpr uint32_t kMaxSmallRequest = kMaxSmallBytes - kCellHeaderBytes;

// What a request takes: rounded up, with the header of its kind. Less than `size` when that wrapped.
constexpr uint32_t bytesToTake(uint32_t size) {
  const uint32_t rounded = roundUpTo8(size);
  if (size <= kMaxBareCellBytes) return rounded;
  return rounded + (rounded + kCellHeaderBytes > kMaxSmallBytes ? kLargeHeaderBytes : kCellHeaderBytes);
}

uint32_t addSaturating(uint32_t a, uint32_t b) { return a + b < a ? UINT32_MAX : a + b; }

// The limit hook sees the heap as it would be with the request granted.
void callLimitHook(ThreadHeap *heap, uint32_t sum) {
  const uint32_t used = heap->usedBytes.value();
  heap->usedBytes.set(sum);
  limitHook(sum);
  heap->usedBytes.set(used);
}

// Whether the heap may hand out `bytes` more; calls the hook if not.
bool withinLimit(ThreadHeap *heap, uint32_t bytes) {
  const uint32_t used = heap->usedBytes.value();
  if (heap->limitBytes == 0 || (used + bytes <= heap->limitBytes && used + bytes >= used)) return true;
  callLimitHook(heap, addSaturating(used, bytes));
  return false;
}

[[gnu::cold]] void *failRequest(uint32_t bytes, mint errorMode) {
  if (errorMode == kFatal) fatalOutOfMemory();
  if (errorMode == kReport) checkLimit(bytes);
  return nullptr;
}

Slab *slabWithFreeCell(SizeClass &sizeClass) {
  if (hasPending(sizeClass)) reclaim(sizeClass);
  if (sizeClass.partialSlabs != nullptr) return sizeClass.partialSlabs;
  if (Slab *slab = takeSpareSlab(sizeClass)) return slab;
  if (Slab *slab = newSlab(sizeClass)) return slab;
  if (hasPending(sizeClass)) reclaimNow(sizeClass);
  return sizeClass.partialSlabs;
}

void *takeSmall(ThreadHeap *heap, uint32_t bytes, mint errorMode) {
  SizeClass &sizeClass = *heap->classes[heap->classOfSize[bytes / 8]];
  Slab *slab = slabWithFreeCell(sizeClass);
  if (slab == nullptr) return failRequest(sizeClass.objectBytes, errorMode);
  chargeBytes(heap, sizeClass.objectBytes);
  return takeCell(heap, slab, slab->freeHead, heap->usedBytes.value(), hasCellHeaders(sizeClass));
}

void *takeLarge(ThreadHeap *heap, uint32_t bytes, mint errorMode) {
  void *block = takeLargeBlock(heap, bytes);
  return block != nullptr ? block : failRequest(bytes, errorMode);
}

void freeCell(Slab *slab, FreeCell *cell) {
  ThreadHeap *heap = slab->sizeClass->heap;
  if (heap != threadHeap) [[unlikely]]
    return freeCellOfOtherThread(slab, cell);
  takeBack(heap, slab, cell);
}

// The word in front of a block without a page-map entry. Odd: a cell, and the word less 1 is its slab.
uintptr_t headerWord(const void *block) {
  return *reinterpret_cast<const uintptr_t *>(static_cast<const char *>(block) - kCellHeaderBytes);
}

bool namesSlab(uintptr_t word) { return (word & 1) != 0 && word != 1; }

[[gnu::noinline]] void freeWithHeader(void *block) {
  const uintptr_t word = headerWord(block);
  if (!namesSlab(word)) return freeLargeBlock(largeBlockOf(block));
  freeCell(reinterpret_cast<Slab *>(word - 1),
           reinterpret_cast<FreeCell *>(static_cast<char *>(block) - kCellHeaderBytes));
}

} // namespace

void *allocateSlowly(uint32_t size, mint errorMode) {
  if (size == 0) return nullptr;
  ThreadHeap *heap = ensureThreadHeap();
  const uint32_t bytes = bytesToTake(size);
  if (heap == nullptr || bytes < size) return failRequest(size, errorMode);
  if (!withinLimit(heap, bytes) && errorMode == kQuiet) return nullptr;
  return bytes > kMaxSmallBytes ? takeLarge(heap, bytes, errorMode) : takeSmall(heap, bytes, errorMode);
}

void *allocateWithHeader(uint32_t size, mint errorMode) {
  if (size > kMaxSmallRequest) return allocateSlowly(size, errorMode);
  ThreadHeap *heap = threadHeap;
  const SizeClass &sizeClass = recordsOf(heap).sizeClasses[classOfSize[(size + 7 + kCellHeaderBytes) / 8]];
  Slab *slab = sizeClass.partialSlabs;
  if (slab == nullptr) return allocateSlowly(size, errorMode);
  const uint32_t used = heap->usedBytes.value() + slab->objectBytes;
  if (!isQuiet(heap, slab, used)) return allocateSlowly(size, errorMode);
  return takeCell(heap, slab, slab->freeHead, used, true);
}

void freeByPageMap(void *block) {
  if (block == nullptr) return;
  Slab *slab = slabOfAddress(currentState()->pageMap, block);
  if (slab == nullptr) return freeWithHeader(block);
  ThreadHeap *heap = slab->sizeClass->heap;
  if (heap != threadHeap) return freeCellOfOtherThread(slab, static_cast<FreeCell *>(block));
  hotSlabFor(recordsOf(heap),
             reinterpret_cast<uintptr_t>(block)) = {reinterpret_cast<uintptr_t>(slab->memory), slab};
  takeBack(heap, slab, static_cast<FreeCell *>(block));
}

void settleAndReclaim(Slab *slab) {
  SizeClass &sizeClass = *slab->sizeClass; // the slab may be released
  settleSlab(slab);
  reclaim(sizeClass);
}

void *allocate(uint32_t size, mint, mint errorMode) { return allocateInline(size, errorMode); }
void free(void *block) { freeInline(block); }

namespace {

void *moveBlock(void *block, uint32_t usable, uint32_t size, mint alignFlag, mint errorMode) {
  void *moved = allocate(size, alignFlag, errorMode);
  if (moved == nullptr) return nullptr;
  memcpy(moved, block, usable < size ? usable : size);
  free(block);
  return moved;
}

} // namespace

void *reallocate(void *block, uint32_t size, mint alignFlag, mint errorMode) {
  if (block == nullptr) return allocate(size, alignFlag, errorMode);
  if (size == 0) {
    free(block);
    return nullptr;
  }
  const uint32_t usable = blockUsableBytes(block);
  if (usable >= size && usable - size <= size) return block;
  return moveBlock(block, usable, size, alignFlag, errorMode);
}

void blockSizeAndOverhead(const void *block, uint32_t *size, uint32_t *overhead) {
  const Slab *slab = slabOfAddress(currentState()->pageMap, block);
  *overhead = 0;
  if (slab == nullptr) {
    const uintptr_t word = headerWord(block);
    if (!namesSlab(word)) {
      *size = largeBlockOf(const_cast<void *>(block))->totalBytes;
      *overhead = kLargeHeaderBytes;
      return;
    }
    slab = reinterpret_cast<const Slab *>(word - 1);
    *overhead = kCellHeaderBytes;
  }
  *size = slab->sizeClass->objectBytes;
}

uint32_t blockUsableBytes(const void *block) {
  uint32_t size, overhead;
  blockSizeAndOverhead(block, &size, &overhead);
  return size - overhead;
}

// Reckoned from the rounded request alone, as tensors have always reported it; `allocate` adds its header
// before it looks up the class, so that near a class's border it may take the next one.
uint32_t allocatedBytesFor(uint32_t request) {
  const uint32_t rounded = roundUpTo8(request);
  if (rounded > kMaxSmallBytes - 1) return rounded + kLargeHeaderBytes;
  const uint32_t cell = cellBytesOfClass(classOfSize[rounded / 8]);
  return cell > kMaxBareCellBytes ? cell + kCellHeaderBytes : cell;
}

void checkLimit(uint32_t extraBytes) {
  const ThreadHeap *heap = threadHeap;
  if (heap->limitBytes == 0) return;
  const uint32_t sum = addSaturating(heap->usedBytes.value(), extraBytes);
  if (sum > heap->limitBytes) callLimitHook(threadHeap, sum);
}

uint32_t usedBytesOfThisThread() {
  ThreadHeap *heap = ensureThreadHeap();
  return heap != nullptr ? heap->usedBytes.value() : 0;
}

void setLimitOfThisThread(uint32_t limit) {
  ThreadHeap *heap = ensureThreadHeap();
  if (heap == nullptr) fatalOutOfMemory();
  setLimit(heap, limit);
}

void fatalOutOfMemory() {
  if (AllocatorState *state = currentState()) processHeap.load()->give(state->reserve.exchange(nullptr));
  writeStandardOutput("\nNo more memory available.\nQuillon kernel has shut down.\n"
                      "Try quitting other applications and then retry.\n");
  sleepMilliseconds(3000);
  endProcess(1);
}

} // namespace torvane

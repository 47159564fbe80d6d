// The memory services, as the rest of the library calls them. The exports in <torvane/memory.h> are
// these with errorMode kFatal. The allocator behind them stands in the heap_ files.
#pragma once

#include "types.h"

namespace torvane {

// A block of at least `size` bytes, 8-byte aligned, not cleared; null for size 0. `alignFlag` is accepted
// and ignored: callers pass it and every block is aligned alike. Failure by `errorMode`.
void *allocate(uint32_t size, mint alignFlag, mint errorMode);

// Returns a block of this allocator, from any thread. Null is ignored.
void free(void *block);

// A block with the old content up to the smaller size. Stays in place when it would shrink by no more
// than half. On failure (modes other than kFatal) the old block stays valid and null is returned.
void *reallocate(void *block, uint32_t size, mint alignFlag, mint errorMode);

// Bytes that a request occupies: rounded up to its class, with the header of its kind. 0 for 0.
uint32_t allocatedBytesFor(uint32_t request);

void blockSizeAndOverhead(const void *block, uint32_t *size, uint32_t *overhead);
uint32_t blockUsableBytes(const void *block);

// Calls the limit hook if `extraBytes` more would pass this thread's limit. Never fails.
void checkLimit(uint32_t extraBytes);

uint32_t usedBytesOfThisThread();
void setLimitOfThisThread(uint32_t limit);

// One word for each thread heap: 0 used bytes, 1 peak, 2 bytes freed by other threads and not reclaimed,
// 3 the same for large blocks, other values the owner's thread id. The caller frees the array.
uint32_t *heapStatistics(uint32_t *count, mint which);

// A stack of peak marks: push starts a span, pop returns the peak of the span and restores the outer one.
struct PeakMark;
void pushPeakMark(PeakMark **stack);
uint32_t popPeakMark(PeakMark **stack);

uint64_t installedMemoryBytes();

// Takes over the host's total of bytes held outside; the difference counts as used by this thread.
void adjustExternalBytes(uint32_t newTotal);

// Frees the reserve, prints the message, waits three seconds and ends the process with status 1.
[[noreturn]] void fatalOutOfMemory();

// Makes a state of this same allocator, which the host made, the process's; the host's heaps are shared from
// then on. Null leaves the state that is there.
void adoptAllocatorState(void *state);

// Releases everything in every heap, whatever is still in use, and the state. Only when no other thread is in
// the library any more; the next allocation starts anew.
void tearDownMemory();

} // namespace torvane

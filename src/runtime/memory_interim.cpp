// Stands in for the allocator until heap.cpp lands: same interface, process heap, one counter.
#include "memory.h"
#include "hooks.h"
#include "platform.h"
#include "startup.h"
#include <torvane/memory.h>
#include <cstring>
namespace torvane {
namespace { thread_local uint32_t used, limit; }
void *allocate(uint32_t size, mint, mint errorMode) {
  if (size == 0) return nullptr;
  if (limit != 0 && errorMode == kQuiet && used + size > limit) return nullptr;
  auto *p = static_cast<uint64_t *>(processHeap.load()->take(size_t{size} + 8));
  if (p == nullptr) { if (errorMode == kFatal) fatalOutOfMemory(); return nullptr; }
  *p = size; used += size; return p + 1;
}
void free(void *block) { if (block == nullptr) return; auto *p = static_cast<uint64_t *>(block) - 1; used -= static_cast<uint32_t>(*p); processHeap.load()->give(p); }
uint32_t blockUsableBytes(const void *b) { return static_cast<uint32_t>(static_cast<const uint64_t *>(b)[-1]); }
void *reallocate(void *block, uint32_t size, mint a, mint m) {
  if (block == nullptr) return allocate(size, a, m);
  if (size == 0) { free(block); return nullptr; }
  const uint32_t usable = blockUsableBytes(block);
  if (usable >= size && usable - size <= size) return block;
  void *n = allocate(size, a, m); if (n == nullptr) return nullptr;
  memcpy(n, block, usable < size ? usable : size); free(block); return n;
}
uint32_t allocatedBytesFor(uint32_t r) { return (r + 7) & ~7u; }
void checkLimit(uint32_t) {}
uint32_t usedBytesOfThisThread() { return used; }
void fatalOutOfMemory() { endProcess(1); }
void setLimitOfThisThread(uint32_t l) { limit = l; }
void initializeMemory(mint stage) { if (stage == 1) createThreadHookLists(); }
void adoptAllocatorState(void *) {}
void tearDownMemory() {}
} // namespace torvane
using namespace torvane;
void *Malloc_fun(uint32_t size) { return allocate(size, 0, kFatal); }
void Free_fun(void *block) { torvane::free(block); }

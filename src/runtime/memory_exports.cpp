// The exported memory functions: the core operations with the fatal path as their failure.
#include <torvane/memory.h>

#include "heap_fast.h"
#include "memory.h"

#include <cstring>

namespace {

// The product wraps in 32 bits: compiled code relies on getting the small block.
void *allocateZeroed(uint32_t count, uint32_t size) {
  const uint32_t bytes = count * size;
  void *block = torvane::allocateInline(bytes, torvane::kFatal);
  return block != nullptr ? std::memset(block, 0, bytes) : nullptr;
}

} // namespace

void *Malloc_fun(uint32_t size) { return torvane::allocateInline(size, torvane::kFatal); }
void *MallocAlign16_fun(uint32_t size) { return torvane::allocateInline(size, torvane::kFatal); }
void *MallocAlign_mreal_fun(uint32_t size) { return torvane::allocateInline(size, torvane::kFatal); }

void *Calloc_fun(uint32_t count, uint32_t size) { return allocateZeroed(count, size); }
void *CallocAlign16_fun(uint32_t count, uint32_t size) { return allocateZeroed(count, size); }
void *CallocAlign_mreal_fun(uint32_t count, uint32_t size) { return allocateZeroed(count, size); }

void *Realloc_fun(void *block, uint32_t size) { return torvane::reallocate(block, size, 0, torvane::kFatal); }
void *ReallocAlign_mreal_fun(void *block, uint32_t size) {
  return torvane::reallocate(block, size, 1, torvane::kFatal);
}

void Free_fun(void *block) { torvane::freeInline(block); }

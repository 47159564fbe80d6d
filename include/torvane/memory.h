/* The memory services: a thread-caching allocator that tensors, tables and compiled code share.
 *
 * Sizes are 32-bit on every target. Every block is aligned to 8 bytes; the Align forms are the plain
 * ones under another name. A request that cannot be met ends the process with a message (the fatal
 * path); a request of 0 bytes yields null and is no failure. Any thread may free any block. */
#ifndef TORVANE_MEMORY_H
#define TORVANE_MEMORY_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

/* A new block of at least `size` bytes, not cleared. The caller owns it and returns it by Free_fun. */
TORVANE_API void *Malloc_fun(uint32_t size);
TORVANE_API void *MallocAlign16_fun(uint32_t size);
TORVANE_API void *MallocAlign_mreal_fun(uint32_t size);

/* A new block of count * size bytes, all zero. The product wraps in 32 bits and is not tested. */
TORVANE_API void *Calloc_fun(uint32_t count, uint32_t size);
TORVANE_API void *CallocAlign16_fun(uint32_t count, uint32_t size);
TORVANE_API void *CallocAlign_mreal_fun(uint32_t count, uint32_t size);

/* A block of at least `size` bytes with the old block's content up to the smaller size; the old block
 * is gone. A block that would shrink by no more than half stays where it is. A null block allocates;
 * size 0 frees and yields null. */
TORVANE_API void *Realloc_fun(void *block, uint32_t size);
TORVANE_API void *ReallocAlign_mreal_fun(void *block, uint32_t size);

/* Returns a block, from any thread. Null is ignored. */
TORVANE_API void Free_fun(void *block);

TORVANE_END_DECLARATIONS

#endif

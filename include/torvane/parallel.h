/* Loops over a function that a compiler has made.
 *
 * The serial ones give compiled code the shape of a loop; the parallel one maps a function over a vector
 * through the platform's task scheduler, apart from the pool that the library's own long loops use. */
#ifndef TORVANE_PARALLEL_H
#define TORVANE_PARALLEL_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

/* Call function(i) for i from `first` to `last`, both inclusive, in order, on the calling thread; nothing
 * when first > last. The closure is handed on. Return 0; what the function raises passes through. */
TORVANE_API mint NonParallelDo(void (*function)(mint), mint first, mint last);
TORVANE_API mint NonParallelDo_Closure(void *closure, void (*function)(void *, mint), mint first, mint last);

/* Stores function(source[i]) in target[i] for `count` elements, on several threads from 4096 on; of the count
 * only the low 32 bits are read. Source and target may be one vector. Returns 0, 18 for a negative count, or
 * the code of the TorvaneRuntimeException at the smallest index that threw: it ends its task, one of as many
 * as there are processors, and the other tasks run on. In style 2 all runs on the calling thread, which has the frame.
 * Throws what the platform throws when it cannot start a task. */
TORVANE_API mint parallel_for_Integer64_Integer64(const int64_t *source, int64_t count, int64_t *target,
                                                  int64_t (*function)(int64_t));

TORVANE_END_DECLARATIONS

#endif

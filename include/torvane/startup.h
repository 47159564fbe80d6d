/* Start-up: nothing of the library runs when it is loaded; a host calls one of these first.
 *
 * Start-up is five stages, 0 to 4, over ten modules in one fixed order. It runs on one thread and must
 * end before any other thread enters the library. */
#ifndef TORVANE_STARTUP_H
#define TORVANE_STARTUP_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

/* Runs one stage over all modules. A stage outside 0 to 4 does nothing. */
TORVANE_API void InitRuntimeLibrary(mint stage);

/* Run stages 0 to 4. There is no guard: a second call runs them all again. Blocks, tensors, the
 * exception style, a pending code, the abort pointers and the set-jump frames survive it. */
TORVANE_API void InitializeRuntimeLibrary(void);
TORVANE_API void TorvaneRTL_initialize(void);

/* The host's start: on the first call only, adopts `allocatorState` (null, or the state of this same
 * allocator in the host), runs the stages, then stores the abort flag and the abort test. A null flag
 * or test keeps the library's own. Later calls do nothing. */
TORVANE_API void InitializeTorvaneRTL(void *allocatorState, mint *abortFlag, mint (*abortTest)(const char *));

TORVANE_END_DECLARATIONS

#endif

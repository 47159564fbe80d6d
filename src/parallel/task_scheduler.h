// The platform's task scheduler: oneTBB where the build has it, else the standard library's asynchronous
// tasks.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// Runs task(closure, k) for k from 0 to count - 1, on any threads, the calling one among them, and waits for
// all. An exception out of a task comes out of here. Where no thread can be had for a task the asynchronous
// form throws std::system_error.
void runTasks(void *closure, void (*task)(void *closure, mint k), mint count);

} // namespace torvane

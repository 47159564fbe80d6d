// Small numbers for threads: 0, 1, ... as they ask, the number of one that has ended before a new one. A
// service to generators that give each thread a stream of its own; none of the built-in ones asks.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// The calling thread's number, the same until it ends. Any thread.
mint threadNumber();

void createThreadNumberSlot();
void deleteThreadNumberSlot();
void releaseThreadNumber(); // at the end of a thread

} // namespace torvane

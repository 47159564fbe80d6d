// What the library's own code uses of the failure machinery beside <torvane/failure.h>.
#pragma once

#include "types.h"
#include <torvane/failure.h>

namespace torvane {

inline void raise(error code) { throwTorvaneException(static_cast<mint>(code)); }

// Stores what the host gave; null keeps the library's own.
void setAbortWatch(mint *flag, mint (*test)(const char *));

// The poll of long loops: a process-wide switch, then a confirmation that is told where it is asked, and is 0
// here.
mint abortQ(const char *where = "In DLLFunction");

// The switch, which nothing in the library sets; yields what it was. For tests.
mint setAbortPoll(mint isOn);

} // namespace torvane

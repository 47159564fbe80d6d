// What the library's own code uses of the failure machinery beside <torvane/failure.h>.
#pragma once

#include "types.h"
#include <torvane/failure.h>

namespace torvane {

inline void raise(error code) { throwTorvaneException(static_cast<mint>(code)); }

// Stores what the host gave; null keeps the library's own.
void setAbortWatch(mint *flag, mint (*test)(const char *));

// The poll of long loops: a process-wide switch that nothing sets, then a confirmation that is 0 here.
mint abortQ();

} // namespace torvane

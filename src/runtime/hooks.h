// Operations that have no effect in this library but are called at stated moments. They stand in a file
// of their own so that a test can put its own in their place when it links.
#pragma once

#include "types.h"

namespace torvane {

// Called when a thread heap is about to pass its limit, with usedBytes at the sum that would pass it.
void limitHook(uint32_t usedBytes);

// Called when a tensor's payload or shape could not be had; all ones when the byte count overflowed.
void reportAllocationFailure(uint32_t byteCount);

// The abort poll of long loops: a switch that nothing sets, and the confirmation behind it.
mint confirmAbort(const char *where);

} // namespace torvane

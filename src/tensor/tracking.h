// The tracker of tensors: an aid of debug hosts that finds leaks and double deletion. While it is on a
// deletion is noted and frees nothing, so that a deleted record stays readable.
#pragma once

#include "../runtime/types.h"
#include <torvane/tensor.h>

#include <atomic>

namespace torvane {

extern std::atomic<bool> trackingEnabled; // read without the tracker's lock

inline bool isTracking() { return trackingEnabled.load(std::memory_order_relaxed); }

void trackCreation(MTensor *tensor);
void trackDeletion(MTensor *tensor);

void MTensor_startTracking(void (*report)(const char *));
void MTensor_stopTracking(mint destroyTable);

} // namespace torvane

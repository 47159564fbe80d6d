// The tracker of tensors: an aid of debug hosts that finds leaks and double deletion. While it is on a
// deletion is noted and frees nothing, so that a deleted record stays readable.
#pragma once

#include "../runtime/types.h"
#include <torvane/tensor.h>

#include <atomic>

namespace torvane {

extern std::atomic<bool> trackingEnabled; // read without the tracker's lock

inline bool isTracking() { return trackingEnabled.load(std::memory_order_relaxed); }

// Begins anew: what an earlier tracking kept is gone. `report` takes one text at a time, and may come from
// any thread that makes or deletes tensors.
void MTensor_startTracking(void (*report)(const char *));

// Reports every tracked tensor that is neither deleted nor a constant. With `destroyTable` the deleted
// records are freed; without it they stay readable until the next start or such a stop.
void MTensor_stopTracking(mint destroyTable);

void trackCreation(MTensor *tensor);
// False when tracking has ended meanwhile and the tensor is still the caller's to free.
bool trackDeletion(MTensor *tensor);

} // namespace torvane

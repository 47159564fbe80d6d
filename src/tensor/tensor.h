// Tensor operations that are not exported, and the tracker.
#pragma once

#include "../runtime/types.h"
#include <torvane/tensor.h>

namespace torvane {

inline constexpr mreal kIntegerBound = 2147483552.0; // numericBound of untyped and integer tensors
inline constexpr uint32_t kDeletionGuard = TORVANE_FLAG_CONSTANT | TORVANE_FLAG_ETERNAL;
inline constexpr mint kCountOverflow = 0x7FFFFFFF; // what NumberOfElements_common gives on failure

void MTensor_setType(MTensor *tensor, mint type);
void MTensor_applyTypeFlags(mint type, uint32_t *flags, MTensor *tensor);
mint MTensor_setShape(MTensor *tensor, mint rank, const mint *dimensions, mint count, mint errorMode);
mint MTensor_setPayload(MTensor *tensor, mint type, mint rank, mint count, mint errorMode);
mint MTensor_copyAsConstant(MTensor *target, const MTensor *source);

// Tracking: while on, deletes free nothing, and leaks and double deletions go to the report function.
void MTensor_startTracking(void (*report)(const char *));
void MTensor_stopTracking(mint destroyTable);

} // namespace torvane

// Whole-tensor mathematics with flags and the full status: what the two exports are shells of.
#pragma once

#include "../runtime/types.h"
#include "../tensor/tensor.h"
#include "outcome.h"
#include <torvane/elementwise.h>

namespace torvane {

// 0; -1 for shapes that do not fit; 4 for no routine or a failing element; 5 for no memory; another
// status of the allocation as it is.
mint tensorMathUnary(MTensor **result, MTensor *x, mint op, mint resultType, mint flags);
mint tensorMathBinary(MTensor **result, MTensor *x, MTensor *y, mint op, mint resultType, mint flags);

constexpr mint statusOf(mint outcome) { return outcome >= kNoRoutine ? kValueFailed : kSuccess; }
constexpr mint allocationStatus(mint status) { return status == kSizeFailed ? mint{kNoMemory} : status; }

} // namespace torvane

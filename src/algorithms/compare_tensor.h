// Whole tensors compared with each other: all alike, or all different.
#pragma once

#include "../tensor/tensor.h"

namespace torvane {

// Operators 1 and 5 ask whether all are alike, 2 and 8 whether all are different; 5 and 8 across types. 1 or
// 0, and 0 for any other operator; fewer than two tensors are both. The tolerance is that of near1_double.
mint MTensor_compare(mint op, mreal tolerance, mint count, const MTensor *const *tensors);

} // namespace torvane

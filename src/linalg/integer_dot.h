// Dot products of integers, as the vector routine has them.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// Any strides; a negative one walks from the far end, (1 - count) * stride elements from the pointer. 0 for a
// count below 1. Wraps; under flag 4 false where the routine fails, and the result stays as it was.
bool integerDot(mint *result, const mint *x, mint strideX, const mint *y, mint strideY, mint count,
                mint flags);

} // namespace torvane

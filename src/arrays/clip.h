// Clipping arrays between two bounds.
#pragma once

#include "numeric_array.h"

namespace torvane {

// Stores into the array of the slot, which may be `source` itself, the elements of `source`; what is below
// the first of the two bounds becomes the first replacement, what is above the second the second. A NaN
// stays. An empty slot receives a new array. All have one element type, no complex one. Status; nothing is
// stored after a failure.
mint MNumericArray_clip(MNumericArray **result, const MNumericArray *source, const MNumericArray *bounds,
                        const MNumericArray *replacements);

} // namespace torvane

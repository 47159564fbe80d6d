// Equality of arrays.
#pragma once

#include "numeric_array.h"

namespace torvane {

// 1 where both have one shape and equal elements, else 0. Arrays without elements are equal; others must have
// one element type unless `mixedTypes`. Integers compare by value. Where a real takes part an integer becomes
// one of its type, and the reals, or both parts of complexes, agree within `tolerance` bits of a 53-bit
// significand.
mint MNumericArray_equal(mreal tolerance, mint mixedTypes, const MNumericArray *first,
                         const MNumericArray *second);

} // namespace torvane

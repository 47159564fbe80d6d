// Real operations of which the type of the result is found out on the way: real while no element leaves the
// reals, complex from the first one that does. For callers inside the library that have not been told a type.
#pragma once

#include <torvane/tensor.h>

namespace torvane {

// *result becomes a tensor of type 3 or 4. The statuses are those of tensorMathUnary and tensorMathBinary; an
// operator, or a pair of types, that does not widen from real to complex is 4. An operand that is its own
// result keeps its elements when the call fails; another tensor in the slot is then of either type.
mint realFirstUnary(MTensor **result, MTensor *x, mint op, mint flags);
mint realFirstBinary(MTensor **result, MTensor *x, MTensor *y, mint op, mint flags);

} // namespace torvane

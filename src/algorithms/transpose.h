// Transposition of tensors: levels of dimensions in another order, with or without conjugation.
#pragma once

#include "../tensor/tensor.h"

namespace torvane {

// Swaps the first two dimensions. Status 2 for a rank below 2, -1 where a complex tensor could not be
// transposed in place for lack of memory.
mint MTensor_transpose12(MTensor **resultSlot, MTensor *tensor, mint conjugate);

// Level k of `tensor` becomes level permutation[k] of the result; levels behind the permutation follow.
// Levels that go to the same one leave their diagonal. Statuses as Runtime_MTensor_ndimTransposeConjugate;
// kAnyRank, or the rank that the result must have, else 2.
inline constexpr mint kAnyRank = -1;
mint MTensor_transposeLevels(MTensor **resultSlot, MTensor *tensor, const MTensor *permutation,
                             mint conjugate, mint expectedRank = kAnyRank);

// The conjugates of a complex tensor's elements, or a copy of another one, into an allocated tensor of its
// shape and type, which may be the tensor itself. Status 0, or 4.
mint MTensor_conjugate(MTensor *result, const MTensor *tensor);

} // namespace torvane

// Transposition of tensors: levels of dimensions in another order, with or without conjugation.
#pragma once

#include "../tensor/tensor.h"

namespace torvane {

// Swaps the first two dimensions. Status 2 for a rank below 2, -1 where a complex tensor could not be
// transposed in place for lack of memory.
mint MTensor_transpose12(MTensor **resultSlot, MTensor *tensor, mint conjugate);

// Level k of `tensor` becomes level permutation[k] of the result; levels behind the permutation follow.
// Levels that go to the same one leave their diagonal. Statuses as Runtime_MTensor_ndimTransposeConjugate,
// and 2 where the result would have another rank than the one expected, if any is.
mint MTensor_transposeLevels(MTensor **resultSlot, MTensor *tensor, const MTensor *permutation,
                             mint conjugate, const mint *expectedRank = nullptr);

// The conjugates of a complex tensor's elements, or a copy of another one, into an allocated tensor of its
// shape and type, which may be the tensor itself. Status 0, or 4.
mint MTensor_conjugate(MTensor *result, const MTensor *tensor);

} // namespace torvane

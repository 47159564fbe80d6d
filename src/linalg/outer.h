// Outer products: every combination of leading positions of several tensors, which have their trailing
// dimensions in common.
//
// levels[i] dimensions of tensors[i] are leading ones, null: all. Result dimensions: the leading ones of each
// tensor in turn, for a list the number of tensors, then the trailing ones. The slot may hold an operand,
// which a failure leaves as it was. Status 3 where trailing ranks or dimensions differ, 4 for types
// unequal or none, a level out of its rank, or a failing element.
#pragma once

#include "../tensor/tensor.h"

namespace torvane {

mint MTensor_outerList(MTensor **resultSlot, mint count, MTensor *const *tensors, const mint *levels);
mint MTensor_outerPlus(MTensor **resultSlot, mint count, MTensor *const *tensors, const mint *levels,
                       mint flags);
mint MTensor_outerTimes(MTensor **resultSlot, mint count, MTensor *const *tensors, const mint *levels,
                        mint flags);

} // namespace torvane

// Sorting of the elements themselves, where equal ones cannot be told apart.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// Writes the elements of `from` to `to` in ascending order; the two may be one, but may not overlap
// otherwise. False, and nothing is written, where scratch cannot be had or the elements call for the order of
// their rows: a NaN, or a negative zero, which stays where it is among zeros.
bool sortValues(const mint *from, mint *to, mint count);
bool sortValues(const mreal *from, mreal *to, mint count);

} // namespace torvane

// Distinct elements of an integer vector, and how often each comes.
#pragma once

#include "../tensor/tensor.h"

namespace torvane {

// A matrix in the slot, which may hold the vector: a row for each value, in order of first appearance, with
// the value and its count. Status: 1 for another type, 2 for another rank, 3 for no elements, 403, 1000.
mint MTensor_tally(MTensor **resultSlot, const MTensor *vector);

// The two ways that it takes. By counting where all values are from `least` on and at most `range` above it;
// by sorting otherwise.
mint tallyByCounting(MTensor **resultSlot, const MTensor *vector, mint least, mint range);
mint tallyBySorting(MTensor **resultSlot, const MTensor *vector);

} // namespace torvane

// Sets of rows: the parts of tensors along their first dimension, each once and in the order of the sort.
//
// Tensors agree in type (else status 4), rank, and extents below the first dimension (else 3); they have a
// dimension at least (else 3), and there is one of them at least (else 12). Rows are the same by IEEE
// equality of their elements, so that one with a NaN always stays. Results go to the slot, which may hold any
// of the operands.
#pragma once

#include "../tensor/tensor.h"

namespace torvane {

enum SetOperation : mint {
  kComplement = 1,   // rows of the first that are in no other
  kIntersection = 2, // rows that are in all
};

// The rows of all tensors.
mint MTensor_union(MTensor **resultSlot, MTensor *const *tensors, mint count);

// Status kNothingLeft, besides, for no elements of rank 2 or more, where there is more than one tensor.
mint MTensor_setOperation(MTensor **resultSlot, MTensor *const *tensors, mint count, mint mode);

} // namespace torvane

// The order of a tensor's rows, and what is built on it.
//
// A tensor of extents d1, ..., dr has d1 rows of elementCount / d1 elements, numbered from 1. They order
// lexicographically, equal rows by their number. A permutation is an integer vector whose entry k is the
// number of the row at place k. Statuses are those of the named functions; a tensor without extents has none
// of these.
#pragma once

#include "../tensor/tensor.h"

namespace torvane {

// The rows of an allocated tensor of rank 1 at least. A tensor without elements has rows of none.
inline mint rowCountOf(const MTensor *tensor) { return tensor->dimensions[0]; }
inline mint rowLengthOf(const MTensor *tensor) {
  return tensor->elementCount == 0 ? 0 : tensor->elementCount / rowCountOf(tensor);
}

// Writes the order of the rows into `rows`, d1 numbers, and whether it is 1, 2, ..., d1 because they were in
// order. A tensor without elements has nothing written. 0, or 403 where scratch cannot be had.
mint orderRows(mint *rows, const MTensor *tensor, bool *wereInOrder);

// Writes rows of `bytes` bytes by their numbers; the two places do not overlap.
void gatherRows(void *to, const void *from, const mint *rows, mint count, size_t bytes);

// A tensor whose row k is row indices[k] of `tensor`, in the slot, which may hold `tensor`. Indices count
// from 1; one above d1 gives status 3, one below 1 is the caller's mistake.
mint MTensor_gatherRows(MTensor **resultSlot, MTensor *tensor, const MTensor *indices);

// The number of the first smallest row (direction 1) or of the last largest (-1). There is a row at least.
mint MTensor_extremePosition(const MTensor *tensor, mint direction);

// Whether no row is greater than the next: 1 or 0; -1 for a type that has no order.
mint areRowsOrdered(const MTensor *tensor);

} // namespace torvane

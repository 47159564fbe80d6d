/* Rearranging tensors: ranges, order, shape. The same algorithms as the functions of docs/registry.md.
 *
 * All return a status of docs/errors.md, 0 on success. The result goes to a slot: one that holds null
 * receives a new tensor, which the caller deletes, and holds null again after a failure; a tensor in it is
 * reused, and may be the operand itself. Operands stay the caller's and as they were, and are read by any
 * number of threads at a time unless one of them is the result. Types 2, 3 and 4 alike. docs/lists.md tells
 * the whole. */
#ifndef TORVANE_LISTS_H
#define TORVANE_LISTS_H

#include "tensor.h"

TORVANE_BEGIN_DECLARATIONS

/* A range of the indices of each of the first `count` dimensions (isTake non-zero), or all but that range.
 * `specs` holds `count` pairs of a tag and a value: tag 1, an MTensor * to a vector of 0 to 3 integers
 * {start, end, step}; any other tag, an integer: the first n, or the last -n; tag -1 clips the start that n
 * says. Status 1, 2 a range is no vector of integers; 2 more ranges than dimensions; 4 a range that does not
 * fit; 403. */
TORVANE_API mint Runtime_MTensor_TakeDrop(MTensor **resultSlot, MTensor *tensor, mint count,
                                          const intptr_t *specs, mint isTake);

/* The first level + 1 dimensions as one; all of them from the last level on. A scalar becomes a vector of one
 * element. In place when the slot holds the tensor. Status 0: running out of memory ends the process. */
TORVANE_API mint Runtime_MTensor_Flatten(MTensor **resultSlot, MTensor *tensor, mint level);

/* Blocks of sizes[i] indices of dimension i, their starts offsets[i] apart, as far as they end inside:
 * extents are the numbers of blocks, the sizes, then the dimensions that remain. Both are vectors of
 * integers. Status 1 another type; 2 other ranks, lengths that differ or exceed the rank; 3 a size below 0,
 * an offset below 1, no elements; 5 out of memory. */
TORVANE_API mint Runtime_MTensor_Partition(MTensor **resultSlot, MTensor *tensor, MTensor *sizes,
                                           MTensor *offsets);

/* The rows in opposite order. Status 2 for rank 0; 403. */
TORVANE_API mint Runtime_MTensor_Reverse(MTensor **resultSlot, MTensor *tensor);

/* Cyclic shift of each of the first `count` dimensions towards its start by shifts[i], any integer. Status 3
 * for more shifts than dimensions; 403. */
TORVANE_API mint Runtime_MTensor_Rotate(MTensor **resultSlot, MTensor *tensor, mint count,
                                        const mint *shifts);

/* Steps of the loop from `min` to `max`: its passes less one, negative for no pass. The real form counts a
 * last value that misses the bound by rounding. 0 for a step of 0 or NaN and for a count that no mint holds.
 */
TORVANE_API mint Runtime_IteratorCount_I_I_I_I(mint min, mint max, mint step);
TORVANE_API mint Runtime_IteratorCount_R_R_R_I(mreal min, mreal max, mreal step);

TORVANE_END_DECLARATIONS

#endif

/* Sorting: the rows of a tensor, which are its parts along the first dimension, in lexicographic order.
 *
 * The sort is stable. Integers and reals order by value, -0.0 and 0.0 being equal; complex numbers by real
 * part, then by the size of the imaginary part, then by its sign, the negative one first. docs/sorting.md says
 * what becomes of NaNs. Tensors are used by one thread at a time. */
#ifndef TORVANE_SORTING_H
#define TORVANE_SORTING_H

#include "tensor.h"

TORVANE_BEGIN_DECLARATIONS

/* Writes into `permutation`, an integer vector as long as the first dimension, the 1-based numbers of the rows of
 * `tensor` in order. 1 where they were in order already, 0 where one moved or the type has no order. A tensor
 * without elements yields 1, and nothing is written. `tensor` is only read. Without memory for scratch the
 * process ends. */
TORVANE_API mint Runtime_MTensor_computeSortPermutation(MTensor *permutation, MTensor *tensor);

/* Puts the sorted rows of `tensor` into the tensor of the slot, which may be `tensor` itself; an empty slot
 * receives a new one. Status: 0, or 403 out of memory. With fewer than two elements a slot that holds another
 * tensor gets a new one all the same, and the tensor it held is the caller's to delete. */
TORVANE_API mint Runtime_MTensor_Sort(MTensor **resultSlot, MTensor *tensor);

TORVANE_END_DECLARATIONS

#endif

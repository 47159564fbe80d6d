/* Transposition: dimensions of a tensor in another order.
 *
 * The tensor of the slot receives the result; an empty slot receives a new tensor. The slot may hold `tensor`
 * itself, which is then transposed in place and stays the same record. Conjugation leaves integers and reals as
 * they are. Status 0, or as said; 403 out of memory. Tensors are used by one thread at a time. */
#ifndef TORVANE_TRANSPOSITION_H
#define TORVANE_TRANSPOSITION_H

#include "tensor.h"

TORVANE_BEGIN_DECLARATIONS

/* Swaps the first two dimensions; `conjugate` 1 conjugates complex elements as well. Status 2 for a rank below
 * 2; -1 where a complex tensor could not be transposed in place for lack of memory, and is as it was. */
TORVANE_API mint Runtime_MTensor_12TransposeConjugate(MTensor **resultSlot, MTensor *tensor, mint conjugate);

/* Makes dimension k of `tensor` dimension permutation[k] of the conjugated result; dimensions beyond the
 * permutation's length keep their order. Dimensions of equal length that go to the same one leave their diagonal.
 * Status, tested in this order: 4 for no integer vector, 3 for one longer than the rank, 4 for an entry below
 * 1, 2 for one above the length, 4 for a dimension that nothing goes to or that lengths disagree about. */
TORVANE_API mint Runtime_MTensor_ndimTransposeConjugate(MTensor **resultSlot, MTensor *tensor,
                                                        MTensor *permutation);

TORVANE_END_DECLARATIONS

#endif

/* Whole-tensor elementwise mathematics.
 *
 * The shapes of two operands are compatible when the shorter list of extents is a prefix of the longer;
 * each element of the smaller operand then pairs with a contiguous block of the larger. */
#ifndef TORVANE_ELEMENTWISE_H
#define TORVANE_ELEMENTWISE_H

#include "tensor.h"

TORVANE_BEGIN_DECLARATIONS

/* *result = op(x) or op(x, y), stored as `resultType`. A null *result receives a new tensor, which the caller
 * deletes; another tensor is reused; an operand is overwritten in place, the larger one of two. With type 4 a
 * real operand widens: elements that leave the reals are computed as complex ones. Returns 0, or 1 on any
 * failure: shapes that do not fit, no such routine, out of memory, an element outside the domain (earlier
 * ones are then written). Raises nothing. Any thread, on a result of its own; long calls use the pool. */
TORVANE_API mint MTensorMathUnary(MTensor **result, MTensor *x, mint op, mint resultType);
TORVANE_API mint MTensorMathBinary(MTensor **result, MTensor *x, MTensor *y, mint op, mint resultType);

/* Element counts from which routines may run in parallel (index 0 to 4: reductions, unary, scalar-valued
 * binary, binary, ternary; 32768 at the start), and three more that nothing reads (2147483647). For the whole
 * process, from any thread. The index is not checked. */
TORVANE_API mint getVectorParallelLengthThreshold(mint index);
TORVANE_API void setVectorParallelLengthThreshold(mint index, mint value);
TORVANE_API mint getVectorVendorLengthThreshold(mint index);
TORVANE_API void setVectorVendorLengthThreshold(mint index, mint value);

TORVANE_END_DECLARATIONS

#endif

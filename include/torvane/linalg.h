/* Dot products.
 *
 * Flags: 2 reports an infinite or NaN result, 4 reports integer overflow; without 4 integers wrap. A checked
 * integer sum fails at a product out of range; it is tested at each of up to 7 elements, of more as a whole.
 * The most negative word counts as out of range. Up to 50 elements a real or complex sum starts from 0 and
 * adds the products in the order of the index; beyond, the system's BLAS chooses. Nothing is raised. */
#ifndef TORVANE_LINALG_H
#define TORVANE_LINALG_H

#include "tensor.h"

TORVANE_BEGIN_DECLARATIONS

/* *result = the sum of x[k] * y[k] over n elements at strides incx and incy, which may be negative: the walk
 * then starts at the far end, (1 - n) * stride elements from the pointer. 0 for n below 1. No conjugation.
 * Returns 0, or 1 for a failure under `flags`: *result is kept. Any thread; long integer vectors use the
 * pool, others may use the threads of the BLAS. */
TORVANE_API mint VectorDot_R64(mreal *result, const mreal *x, mint incx, const mreal *y, mint incy, mint n,
                               mint flags);
TORVANE_API mint VectorDot_I(mint *result, const mint *x, mint incx, const mint *y, mint incy, mint n,
                             mint flags);
TORVANE_API mint VectorDot_CR64(mcomplex *result, const mcomplex *x, mint incx, const mcomplex *y, mint incy,
                                mint n, mint flags);

/* Contracts the last dimension of `a` with the first of `b`, of one type; ranks of at least 1, of at least 3
 * in sum. A null *resultSlot receives a new tensor, which the caller deletes; another one is reused, and may
 * be `a` or `b`. Two matrices, and without a vector up to 8000 products, report infinities and NaNs whatever
 * the flags. Returns 1 for unequal types or a failure, 2 for ranks, 3 for inner dimensions; after a failure a
 * reused tensor has its shape and the elements before the failure. Out of memory ends the process. */
TORVANE_API mint MTensorGeneralDot(MTensor **resultSlot, MTensor *a, MTensor *b, mint flags);

TORVANE_END_DECLARATIONS

#endif

/* Vector routines without an operator number: norms, weights, copies, zeros, compensated sums, booleans.
 *
 * As in machfuncs.h, strides count elements, 0 repeats one element, a negative stride walks down from the
 * element pointed at, and flag 2 checks real and complex results. Nothing is raised, and a routine may be
 * called from any thread; long copies and fills are shared among the workers. The reductions (totals, extremes,
 * integer dot product) stand in machfuncs.h. */
#ifndef TORVANE_VECTORS_H
#define TORVANE_VECTORS_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

/* p that asks for the largest magnitude; a status of the norms. */
enum { TORVANE_MAXIMUM_NORM = 2147483647, TORVANE_NORM_FAILED = 1001 };

/* *result = (sum of |x| to the power p) to the power 1/p over `count` elements, |x| the modulus of a complex.
 * No power overflows on the way; p 1 and 2 with a stride of at least 1 may run in the system's BLAS, whose
 * last bits differ. A NaN among the data makes every norm a NaN. 0 for no elements.
 * Returns 0, or 1001 where flag 2 is set and a power or the result is infinite or a NaN: *result is kept. */
TORVANE_API mint machfunc_d_vectornorm(mreal *result, mint p, const mreal *data, mint count, mint stride,
                                       mint flags);
TORVANE_API mint machfunc_c_vectornorm(mreal *result, mint p, const mcomplex *data, mint count, mint stride,
                                       mint flags);

/* The same of |x| times the element's weight. weights[k] belongs to the k-th element, whatever the stride. */
TORVANE_API mint machfunc_d_weightedvectornorm(mreal *result, mint p, const mreal *data, const mreal *weights,
                                               mint count, mint stride, mint flags);
TORVANE_API mint machfunc_c_weightedvectornorm(mreal *result, mint p, const mcomplex *data,
                                               const mreal *weights, mint count, mint stride, mint flags);

/* weights[k] = 1 / (|data[k]| * atol + rtol). Returns 0, or with flag 2 one plus the position of the first
 * zero denominator, before which all weights are written; without it that weight is infinite. */
TORVANE_API mint machfunc_d_vectornormweights(mreal *weights, mreal atol, mreal rtol, const mreal *data,
                                              mint count, mint flags);
TORVANE_API mint machfunc_c_vectornormweights(mreal *weights, mreal atol, mreal rtol, const mcomplex *data,
                                              mint count, mint flags);

/* The norm of |error[k]| / (|data[k]| * atol + rtol). The sum is divided by `count` before the root: for p 1
 * and 2 where meanFlag is not 0, for the largest one never, for any other p always, deliberately.
 * Returns as the plain norms do. */
TORVANE_API mint machfunc_d_scaledvectornorm(mreal *result, mint p, mreal atol, mreal rtol,
                                             const mreal *error, const mreal *data, mint count, mint meanFlag,
                                             mint flags);
TORVANE_API mint machfunc_c_scaledvectornorm(mreal *result, mint p, mreal atol, mreal rtol,
                                             const mcomplex *error, const mcomplex *data, mint count,
                                             mint meanFlag, mint flags);

/* Copies bit for bit; strides are the result's and the operand's. Returns 0, whatever the flags. */
TORVANE_API mint machfunc_i_copy(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_copy(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_copy(void *result, const void *x, mint count, const mint *strides, mint flags);

/* Stores zeros at strides[0]; neither the operand nor its stride is read. Returns 0. */
TORVANE_API mint machfunc_i_zero(mint *result, const mint *ignored, mint count, const mint *strides,
                                 mint flags);
TORVANE_API mint machfunc_d_zero(mreal *result, const mreal *ignored, mint count, const mint *strides,
                                 mint flags);
TORVANE_API mint machfunc_c_zero(mcomplex *result, const mcomplex *ignored, mint count, const mint *strides,
                                 mint flags);

/* x + y, compensated: the rounding error of the pair's sum is added back. With flag 2 an overflow or an
 * invalid operation returns 1 after all elements have been written, in place as well. */
TORVANE_API mint machfunc_ddd_compplus(void *result, const void *x, const void *y, mint count,
                                       const mint *strides, mint flags);
TORVANE_API mint machfunc_ccc_compplus(void *result, const void *x, const void *y, mint count,
                                       const mint *strides, mint flags);

/* Exclusive or of bytes. The result may be an operand. Returns 0, whatever the flags. */
TORVANE_API mint machfunc_bb_bitxor(uint8_t *result, const uint8_t *x, const uint8_t *y, mint count,
                                    const mint *strides, mint flags);

TORVANE_END_DECLARATIONS

#endif

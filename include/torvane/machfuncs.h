/* The vector routines: an operator over runs of elements of kinds i (mint), d (mreal), c (mcomplex).
 *
 * `strides` counts elements, the result's first, then each operand's; 0 repeats one element and a
 * negative stride walks down. Flags: 2 checks real and complex results, 4 integer ones. Returns 0, or
 * one plus the position of the first failing element, before which all are written; a checked real
 * or complex routine that is not in place tests in bulk and returns 1. The result may be the first
 * operand. Nothing is raised. A count below 1 does nothing.
 *
 * Generated from src/scalar/operators.def by tools/generate; not to be edited. */
#ifndef TORVANE_MACHFUNCS_H
#define TORVANE_MACHFUNCS_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

/* minus: -x. */
TORVANE_API mint machfunc_i_minus(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_minus(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_minus(void *result, const void *x, mint count, const mint *strides, mint flags);

/* round: x rounded to the nearest integer, ties to even. */
TORVANE_API mint machfunc_i_round(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_round(void *result, const void *x, mint count, const mint *strides, mint flags);

/* square: x * x. */
TORVANE_API mint machfunc_i_square(void *result, const void *x, mint count, const mint *strides,
                                   mint flags);
TORVANE_API mint machfunc_d_square(void *result, const void *x, mint count, const mint *strides,
                                   mint flags);
TORVANE_API mint machfunc_c_square(void *result, const void *x, mint count, const mint *strides,
                                   mint flags);

/* sqrt: the square root of x; of a complex, the root in the right half plane. */
TORVANE_API mint machfunc_d_sqrt(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_sqrt(void *result, const void *x, mint count, const mint *strides, mint flags);

/* plus: x + y. */
TORVANE_API mint machfunc_ii_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_id_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_ic_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_di_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_dc_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);

/* subtract: x - y. */
TORVANE_API mint machfunc_ii_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_id_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_ic_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_di_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_dc_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);

/* times: x * y. */
TORVANE_API mint machfunc_ii_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_id_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_ic_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_di_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_dc_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);

/* div: x / y. */
TORVANE_API mint machfunc_id_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_ic_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_di_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_dc_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);

/* axpy: a * x + y. */
TORVANE_API mint machfunc_iii_axpy(void *result, const void *a, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_ddd_axpy(void *result, const void *a, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_ccc_axpy(void *result, const void *a, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);

/* total: the sum of the elements, left to right; 0 for none. */
TORVANE_API mint machfunc_i_total(mint *accumulator, const mint *data, mint count, const mint *strides,
                                  mint flags);
TORVANE_API mint machfunc_d_total(mreal *accumulator, const mreal *data, mint count, const mint *strides,
                                  mint flags);
TORVANE_API mint machfunc_c_total(mcomplex *accumulator, const mcomplex *data, mint count,
                                  const mint *strides, mint flags);

TORVANE_END_DECLARATIONS

#endif

/* Operator numbers: the two exported tables of vector routines and the result-type functions.
 *
 * Kinds are tensor types: 2 integer, 3 real, 4 complex. Unary operators are 1 to 84, binary ones 257
 * to 277. A vector routine yields 0, or one plus the 0-based position of the first failing element;
 * strides count elements, result first. Flags: 2 checks real and complex results, 4 integer results. */
#ifndef TORVANE_OPERATORS_H
#define TORVANE_OPERATORS_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

enum { TORVANE_CHECK_REALS = 2, TORVANE_CHECK_INTEGERS = 4 };

typedef mint (*TorvaneUnaryRoutine)(void *result, const void *x, mint count, const mint *strides, mint flags);
typedef mint (*TorvaneBinaryRoutine)(void *result, const void *x, const void *y, mint count,
                                     const mint *strides, mint flags);

/* The routine of unary operator `op` on kind k is machfunsarray_1[3 * op + (k - 2)]; of binary operator
 * `op` on kinds k1, k2 machfunsarray_2[9 * (op - 256) + 3 * (k1 - 2) + (k2 - 2)]. Null: undefined. */
extern TORVANE_API const TorvaneUnaryRoutine machfunsarray_1[85 * 3];
extern TORVANE_API const TorvaneBinaryRoutine machfunsarray_2[22 * 9];

/* The kind of the result while no value leaves the ordinary domain; 0 where the operator is undefined. */
TORVANE_API mint ReturnType1(mint op, mint kind);
TORVANE_API mint ReturnType2(mint op, mint kind1, mint kind2);

/* The kind that holds the result for every value; 7 where the operator is undefined, -1 where it is the
 * identity and needs no call, 1 with *flag set to 1 where the result is a truth value. */
TORVANE_API mint ReturnRangeType1(mint op, mint kind, mint *flag);
TORVANE_API mint ReturnRangeType2(mint op, mint kind1, mint kind2);

TORVANE_END_DECLARATIONS

#endif

/* Arithmetic of 64-bit integers that a 32-bit target has no instruction for. Compiled code calls it by
 * these names, which compilers know. */
#ifndef TORVANE_INTEGERS_H
#define TORVANE_INTEGERS_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

/* The low 64 bits of a * b; stores 1 in `overflow` if the exact product does not fit, else 0. Nothing is
 * raised, and the most negative value is a result like any other. Any thread. */
TORVANE_API int64_t __mulodi4(int64_t a, int64_t b, int *overflow);

/* The whole quotient a / b. A divisor of 0 ends in the processor's divide fault. Any thread. */
TORVANE_API uint64_t __udivdi3(uint64_t a, uint64_t b);

TORVANE_END_DECLARATIONS

#endif

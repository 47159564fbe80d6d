/* Comparison of reals up to a number of low-order bits.
 *
 * A tolerance counts the bits of the significand, 53 or (float) 24, that may differ. At 0 or below the
 * comparison is exact; at the whole significand any two values of one sign are equal. Zero equals nothing
 * but zero, and no tolerance crosses signs. All functions are safe on any thread. */
#ifndef TORVANE_TOLERANCE_H
#define TORVANE_TOLERANCE_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

/* -1 where x is below y, 1 where it is above, 0 where they are equal up to `tolerance` bits. Every thread
 * remembers its last tolerance: of tolerances between 52 and 53 bits (23 and 24), values that differ by half
 * the larger or more are equal only to the one remembered. With a NaN every comparison on the way is false.
 */
TORVANE_API mint CompareDoubleDouble(mreal tolerance, mreal x, mreal y);
TORVANE_API mint CompareFloatFloat(float tolerance, float x, float y);

/* 1 where the comparison gives 0, else 0. */
TORVANE_API mint near1_double(mreal tolerance, mreal x, mreal y);
TORVANE_API mint near1_float(float tolerance, float x, float y);

/* 1 where y is negligible against x, as one part of a complex may be against the other: where x compares
 * equal to |x| - |y| with the sign of x. A negative tolerance gives 0, and else a zero y gives 1. */
TORVANE_API mint near1_reim_mcomplex(mreal tolerance, mreal x, mreal y);

/* 2 to the power tolerance - 53, or (float) tolerance - 24. */
TORVANE_API mreal ToleranceShiftFactor(mreal tolerance);
TORVANE_API float ToleranceShiftFactorFloat(float tolerance);

TORVANE_END_DECLARATIONS

#endif

/* Random numbers: uniform draws from the calling thread's current generator.
 *
 * `destination` has room for `count` elements; a count below 1 draws nothing. Every draw consumes an exact
 * number of bits of the stream, in an order that docs/random.md tells, and takes no lock. Status 0; 11 where
 * the generator lacks the function or the thread has no generator, tested before anything else. */
#ifndef TORVANE_DISTRIBUTIONS_H
#define TORVANE_DISTRIBUTIONS_H

#include "random.h"

TORVANE_BEGIN_DECLARATIONS

/* Integers from the smaller of a and b to the larger, both included; no bits are taken where they are equal.
 * Status 4, without a draw, where they lie 2^31 or more apart. */
TORVANE_API mint UniformRandomMIntegers(mint *destination, mint count, mint a, mint b);
TORVANE_API mint Runtime_UniformRandomMIntegers(mint *destination, mint count, mint a, mint b);

/* Reals from a, included, towards b, in steps of 2^-52 of the distance. Status 1001 where twice the distance
 * is not finite. */
TORVANE_API mint UniformRandomMReals(mreal *destination, mint count, mreal a, mreal b);
TORVANE_API mint Runtime_UniformRandomMReals(mreal *destination, mint count, mreal a, mreal b);

/* Complex numbers of a box: all real parts are drawn before any imaginary part. Status as for reals; 403 out
 * of memory. */
TORVANE_API mint UniformRandomMComplexes(mcomplex *destination, mint count, mreal lowRe, mreal lowIm,
                                         mreal highRe, mreal highIm);
TORVANE_API mint Runtime_UniformRandomMComplexes(mcomplex *destination, mint count, mreal lowRe, mreal lowIm,
                                                 mreal highRe, mreal highIm);

/* The functions of a generator that has bits alone. Status 11 where it has none. */
TORVANE_API mint Generic_randomMIntegers(mint *destination, mint count, mint low, mint high,
                                         RandomGenerator *generator);
TORVANE_API mint Generic_randomMReals(mreal *destination, mint count, mreal low, mreal high,
                                      RandomGenerator *generator);

TORVANE_END_DECLARATIONS

#endif

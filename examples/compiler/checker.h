// Gives every expression a type and every name a meaning, and puts the conversions in.
//
// Integers become reals and reals become complexes wherever the wider type is wanted, never the other way
// round. A function or power that may leave the reals, wanted as a complex, is computed in the complexes: its
// result is not converted, its type is.
#ifndef COMPILER_CHECKER_H
#define COMPILER_CHECKER_H

#include "syntax.h"

void check(Program &program);

#endif

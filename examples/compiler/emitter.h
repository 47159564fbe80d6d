// A checked program as C.
//
// Every function is emitted twice: over integers, by checked operations, and over reals, for when the first
// form overflows. One that neither prints nor draws random numbers gets a third, which its callers over
// integers call: it runs the first form and, on overflow, the second. What has effects is run again with the
// whole program.
#ifndef COMPILER_EMITTER_H
#define COMPILER_EMITTER_H

#include "syntax.h"

// `file` is the name that the program's messages begin with.
std::string emit(const Program &program, const std::string &file);

#endif

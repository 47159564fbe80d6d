// The statements of one form of a function as C.
//
// A number becomes an expression of C; a tensor, a call and whatever must run in order become statements
// before it. Operations do nothing once a code is pending, so one look at it suffices at the end of each
// statement.
#ifndef COMPILER_BODY_H
#define COMPILER_BODY_H

#include "syntax.h"

std::string bodyOf(const Function &function, bool wide);

#endif

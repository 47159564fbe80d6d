// The statements of one form of a function as C, with its slots at their head.
#ifndef COMPILER_BODY_H
#define COMPILER_BODY_H

#include "syntax.h"

std::string bodyOf(const Function &function, bool wide);

#endif

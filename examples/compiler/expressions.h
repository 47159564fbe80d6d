// Values as C.
//
// A number becomes an expression of C; a tensor, a call and whatever must run in order become statements
// before it. Operations do nothing once a code is pending, so one look at it suffices at the end of each
// statement.
#ifndef COMPILER_EXPRESSIONS_H
#define COMPILER_EXPRESSIONS_H

#include "writer.h"

// The text of a number or truth value.
std::string scalar(Writer &out, const Expression &e);

// The name of what holds a tensor: a variable, or a slot that the statements before it fill.
std::string tensor(Writer &out, const Expression &e);

// Whether that tensor is somebody else's, and must be copied to be kept.
bool isBorrowed(const Writer &out, const Expression &e);

// A call for what it does.
void discarded(Writer &out, const Expression &e);

// The first `count` of these as a count and an array of positions.
std::string places(Writer &out, const std::vector<ExpressionPointer> &expressions, size_t count);

#endif

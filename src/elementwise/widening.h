// The widening drivers: a real operation into a complex result, where an element that leaves the reals is
// computed again as a complex one.
//
// Their outcome is the negated union of the kinds that elements had: -3 all stayed real, -4 all became
// complex, -7 both; -2 for no elements.
#pragma once

#include "outcome.h"
#include <torvane/operators.h>
#include <torvane/tensor.h>

namespace torvane {

struct UnaryPair {
  TorvaneUnaryRoutine real, complex;
};
mint widenUnary(const UnaryPair &pair, mcomplex *result, const mreal *x, mint count, mint flags);

struct BinaryPair {
  TorvaneBinaryRoutine real, complex;
  bool widensFirst; // which operand the complex routine takes as complex
};
mint widenBinary(const BinaryPair &pair, MTensor *result, const MTensor *x, const MTensor *y, mint flags);

} // namespace torvane

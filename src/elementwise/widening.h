// The widening drivers: a real operation into a complex result, where an element that leaves the reals is
// computed again as a complex one.
//
// Their meaning is a loop over elements: the real routine on one element, then, where it refuses, the complex
// one. Their method is blocks: the real routine runs over many elements into a buffer of its own, and only a
// block that it refuses is gone through in smaller steps. Values, written prefix and position are the loop's.
//
// Their outcome is the negated union of the kinds that elements had: -3 all stayed real, -4 all became
// complex, -7 both; -2 for no elements. The host's abort flag is looked at once a block and stops the loop
// with the position it has come to.
#pragma once

#include "outcome.h"
#include <torvane/operators.h>
#include <torvane/tensor.h>

namespace torvane {

// Outside [low, high] an operator's real routine is known to refuse: such reals need no attempt, which would
// cost a call for each. Where nothing is known the interval is everything, and the attempt tells.
struct RealDomain {
  mreal low, high;
};
inline constexpr RealDomain kUnknownDomain = {-__builtin_inf(), __builtin_inf()};

struct UnaryPair {
  TorvaneUnaryRoutine real, complex;
  RealDomain domain = kUnknownDomain;
};
// False when the operator has not both routines, or they do not store reals and complexes.
bool wideningPair(mint op, UnaryPair *pair);
// From element `first` on; the elements before it are the caller's.
mint widenUnary(const UnaryPair &pair, mcomplex *result, const mreal *x, mint first, mint count, mint flags);

struct BinaryPair {
  TorvaneBinaryRoutine real, complex;
  bool widensFirst; // which operand the complex routine takes as complex
};
bool wideningPair(mint op, mint kind1, mint kind2, BinaryPair *pair);
mint widenBinary(const BinaryPair &pair, MTensor *result, const MTensor *x, const MTensor *y, mint first,
                 mint flags);

} // namespace torvane

// What the loops of the several processor levels have in common: the form of a loop, and the record that the
// drivers need of it.
//
// The loops are compiled once a level, with the namespace `torvane` under the level's own name: see levels.h.
// What crosses from one level to another therefore stands here, outside it.
#pragma once

#include <torvane/types.h>

namespace torvane_loops {

// 0, or one plus the position of the first failure. Strides: the result's, then each operand's.
template <int arity> struct FunctionOf;
template <> struct FunctionOf<1> { using Type = mint (*)(void *, const void *, mint, const mint *, mint); };
template <> struct FunctionOf<2> {
  using Type = mint (*)(void *, const void *, const void *, mint, const mint *, mint);
};
template <> struct FunctionOf<3> {
  using Type = mint (*)(void *, const void *, const void *, const void *, mint, const mint *, mint);
};

template <int arity> struct Loop {
  typename FunctionOf<arity>::Type run;
  uint8_t bytes[arity + 1]; // of an element, in the order of the strides
};
using UnaryLoop = Loop<1>;
using BinaryLoop = Loop<2>;
using TernaryLoop = Loop<3>;

} // namespace torvane_loops

// Every exported routine over arrays under one signature: the routines of both operator tables, those of
// three operands, reductions, norms, weights, copies, zeros. For tests of what all of them promise.
#pragma once

#include "support/kinds.h"

#include <array>
#include <string>

namespace torvane::test {

using OperandPointers = std::array<const void *, 3>;

struct VectorCall {
  std::string name;
  std::vector<mint> kinds; // of the operands; 1 for bytes
  size_t resultBytes;      // an element of the result, or all of an accumulator
  bool isReduction;        // one result, however many elements
  size_t strides;          // that it heeds, the result's first; what has none is dense
  std::function<mint(void *result, const OperandPointers &, mint count, const mint *strides, mint flags)> run;
};

const std::vector<VectorCall> &everyVectorCall();

} // namespace torvane::test

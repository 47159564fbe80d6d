// A reduction as its driver sees it, whatever it computes and on whatever processor level: see loops of the
// reductions in reduction.h. Outside the namespace of the levels, since it crosses from one to another.
#pragma once

#include <torvane/types.h>

namespace torvane_loops {

// One run of elements, or the two of a dot product. Strides count elements. `count` are all of them, in
// however many pieces they are taken.
struct ReductionOperands {
  const void *data[2];
  mint strides[2];
  mint count;
};

// Products from which a checked dot product tests its sum as a whole.
inline constexpr mint kFreeOrder = 8;

inline constexpr uint32_t kAccumulatorBytes = 2 * sizeof(mreal); // of the largest one

struct ReductionForm {
  // Stores the initial value and takes elements `first` to `last`, exclusive. The result is 0, or the index
  // of the failing element less `first`, plus one.
  mint (*run)(void *accumulator, const ReductionOperands &operands, mint first, mint last);
  bool (*merge)(void *into, const void *from); // false: the merged value fails
  // The test of the final value, null where there is none; returns as a routine does.
  mint (*finish)(const void *accumulator, const ReductionOperands &operands, mint count);
};

struct ReductionLoop {
  ReductionForm plain, checked;
  mint checkFlag;            // of the operands' kind
  uint32_t accumulatorBytes; // that are stored
};
using PairReductionLoop = ReductionLoop;

} // namespace torvane_loops

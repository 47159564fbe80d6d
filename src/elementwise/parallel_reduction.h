// A reduction over several workers: one piece and one accumulator each, merged in the order of the workers.
//
// Since piece k is worker k's, the result depends on the number of workers and on nothing else; so does the
// rounding of a real sum. A worker without a piece is left out, so that its initial value never takes part.
// Compiled once, whatever the processor level of the loops: these come as pointers.
#pragma once

#include "pieces.h"

namespace torvane {

// What a reduction reads: one run of elements, or two for a dot product. Strides count elements.
struct ReductionOperands {
  const void *data[2];
  mint strides[2];
};

inline constexpr uint32_t kAccumulatorBytes = 2 * sizeof(mreal); // of the largest one

struct ReductionLoops {
  void (*start)(void *accumulator); // stores the initial value
  // Takes elements `first` to `last`, exclusive, into an accumulator that has been started. The result is 0,
  // or the index of the failing element less first, plus one.
  mint (*run)(void *accumulator, const ReductionOperands &operands, mint first, mint last);
  bool (*merge)(void *into, const void *from); // false: the merged value fails
};

// The result is 0, or one plus an index: that of the failing element of the first piece that fails, or of the
// last element of the piece with which the merged value fails. Without memory for the accumulators the
// reduction runs as one piece on the calling thread.
mint reduceInParallel(const ReductionLoops &loops, void *accumulator, const ReductionOperands &operands,
                      mint count);

} // namespace torvane

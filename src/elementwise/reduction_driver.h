// How a reduction runs: in one piece on the calling thread, or over the workers, with one piece and one
// accumulator each, merged in the order of the workers.
//
// Since piece k is worker k's, a result depends on the number of workers and on nothing else; so does the
// rounding of a real sum. A worker without a piece is left out of the merge, so that its initial value never
// takes part. Strides are the accumulator's, which is not read, then the operands'. The accumulator's content
// does not count, and it may stand among the data.
#pragma once

#include "reduction_loops.h"

namespace torvane {

mint driveReduction(const torvane_loops::ReductionLoop &loop, void *accumulator, const void *data, mint count,
                    const mint *strides, mint flags);
mint drivePairReduction(const torvane_loops::ReductionLoop &loop, void *accumulator, const void *x,
                        const void *y, mint count, const mint *strides, mint flags);

} // namespace torvane

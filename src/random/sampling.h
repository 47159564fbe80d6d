// Positions drawn from a list: with and without replacement, alike or by weights.
#pragma once

#include "weights.h"

namespace torvane {

// With replacement, of 1 to length. kNoIntegers where the generator has no randomMIntegers, kNoFunction where
// the thread has no generator.
inline constexpr mint kNoIntegers = -1;
mint drawPositions(mint *positions, mint count, mint length);

// Without replacement: count is at least 1 and at most the length, or the number of positive weights. Up to a
// tenth of the length a draw that repeats itself is drawn again; above, what is drawn is taken away.
mint samplePositions(mint *positions, mint count, mint length);
mint sampleByWeights(mint *positions, mint count, const RunningSums &weights);

} // namespace torvane

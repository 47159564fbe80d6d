// When a run of elements goes to the workers, and in which pieces.
#pragma once

#include "../parallel/parallel.h"
#include "../runtime/thresholds.h"

namespace torvane {

// Index into the thresholds, by what the routine is.
enum RoutineArity : mint { kReductions = 0, kUnary = 1, kScalarValued = 2, kBinary = 3, kTernary = 4 };

inline constexpr mint kElementsAPiece = 16384;

// Where a loop runs already, another one is not refused here: it would run in one piece on its own thread.
inline bool goesParallel(RoutineArity arity, mint count) {
  return count >= vectorParallelLength(arity) && workerCount() >= 2 && parallelDisabled() == 0;
}

// Pieces of kElementsAPiece where there are more of these than workers, else one piece a worker.
inline mint runElementPieces(void *closure, ParallelBody body, mint count) {
  const ParallelPartition even = {kOfSize, 1, 0};
  const mint pieces = (count - 1) / kElementsAPiece + 1;
  if (pieces > workerCount()) return parallelLoop(closure, nullptr, body, 0, count, kElementsAPiece, &even);
  return parallelLoop(closure, nullptr, body, 0, count, 1, nullptr);
}

} // namespace torvane

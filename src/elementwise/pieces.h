// When a run of elements goes to the workers, and in which pieces.
//
// A run goes parallel from the threshold of its routine's arity on, when there is a second worker, nothing
// forbids it, and no element that one piece writes is read or written by another.
#pragma once

#include "../parallel/parallel.h"
#include "../runtime/thresholds.h"

#include <algorithm>

namespace torvane {

// Index into the thresholds, by what the routine is.
enum RoutineArity : mint { kReductions = 0, kUnary = 1, kScalarValued = 2, kBinary = 3, kTernary = 4 };

inline constexpr mint kElementsAPiece = 16384;

// Where a loop runs already, another one is not refused here: it would run in one piece on its own thread.
inline bool goesParallel(RoutineArity arity, mint count) {
  return count >= vectorParallelLength(arity) && workerCount() >= 2 && parallelDisabled() == 0;
}

// The bytes that `count` elements at a stride touch, one at least; a negative stride walks down from `first`.
struct ByteRange {
  uintptr_t from, to;

  ByteRange(const void *first, ptrdiff_t stride, ptrdiff_t bytes, mint count) {
    const auto address = reinterpret_cast<uintptr_t>(first);
    const uintptr_t last = address + static_cast<uintptr_t>(stride * bytes * (ptrdiff_t{count} - 1));
    from = std::min(address, last);
    to = std::max(address, last) + static_cast<uintptr_t>(bytes);
  }
  bool meets(const ByteRange &other) const { return from < other.to && other.from < to; }
};

// Pieces of kElementsAPiece where there are more of these than workers, else one piece a worker.
inline mint runElementPieces(void *closure, ParallelBody body, mint count) {
  constexpr ParallelPartition pieces = {kOfSize, 1, 0};
  const bool byLength = (count - 1) / kElementsAPiece + 1 > workerCount();
  return parallelLoop(closure, nullptr, body, 0, count, byLength ? kElementsAPiece : 1,
                      byLength ? &pieces : nullptr);
}

} // namespace torvane

// The drivers: how a vector routine's loop is called, in one piece on the calling thread or in several on the
// pool's.
//
// A loop goes parallel from the threshold of its arity on, when there is a second worker, nothing forbids it
// and no element that one piece writes is read by another. The element sizes of result and operands are all
// that tells one driver from another: they stand in the loop's record.
#pragma once

#include "../runtime/platform_cpu_level.h"
#include "../runtime/thresholds.h"
#include "loops.h"

namespace torvane {

using torvane_loops::BinaryLoop;
using torvane_loops::TernaryLoop;
using torvane_loops::UnaryLoop;

// Elements of a piece where there are more of them than workers.
inline constexpr mint kPieceLength = 16384;

enum VectorThreshold : mint { kUnaryThreshold = 1, kBinaryThreshold = 3, kTernaryThreshold = 4 };

inline bool isLong(mint count, VectorThreshold threshold) {
  return count >= vectorParallelLength(threshold) && workerCount() >= 2 && parallelDisabled() == 0;
}

// Each runs the loop serially after all where the result shares storage with an operand or has stride 0.
mint runLongUnary(const UnaryLoop &loop, void *result, const void *x, mint count, const mint *strides,
                  mint flags);
mint runLongBinary(const BinaryLoop &loop, void *result, const void *x, const void *y, mint count,
                   const mint *strides, mint flags);
mint runLongTernary(const TernaryLoop &loop, void *result, const void *a, const void *x, const void *y,
                    mint count, const mint *strides, mint flags);

inline mint driveUnary(const UnaryLoop &loop, void *result, const void *x, mint count, const mint *strides,
                       mint flags) {
  if (isLong(count, kUnaryThreshold)) [[unlikely]]
    return runLongUnary(loop, result, x, count, strides, flags);
  return loop.run(result, x, count, strides, flags);
}

inline mint driveBinary(const BinaryLoop &loop, void *result, const void *x, const void *y, mint count,
                        const mint *strides, mint flags) {
  if (isLong(count, kBinaryThreshold)) [[unlikely]]
    return runLongBinary(loop, result, x, y, count, strides, flags);
  return loop.run(result, x, y, count, strides, flags);
}

inline mint driveTernary(const TernaryLoop &loop, void *result, const void *a, const void *x, const void *y,
                         mint count, const mint *strides, mint flags) {
  if (isLong(count, kTernaryThreshold)) [[unlikely]]
    return runLongTernary(loop, result, a, x, y, count, strides, flags);
  return loop.run(result, a, x, y, count, strides, flags);
}

} // namespace torvane

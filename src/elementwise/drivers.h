// The drivers: how a vector routine's loop is called, in one piece on the calling thread or in several on the
// pool's.
//
// pieces.h says when and in which. The element sizes of result and operands are all that tells one driver
// from another: they stand in the loop's record.
#pragma once

#include "../runtime/platform_cpu_level.h"
#include "loops.h"
#include "pieces.h"

namespace torvane {

using torvane_loops::BinaryLoop;
using torvane_loops::TernaryLoop;
using torvane_loops::UnaryLoop;

// Each runs the loop serially after all where the result shares storage with an operand or has stride 0.
mint runLongUnary(const UnaryLoop &loop, void *result, const void *x, mint count, const mint *strides,
                  mint flags);
mint runLongBinary(const BinaryLoop &loop, void *result, const void *x, const void *y, mint count,
                   const mint *strides, mint flags);
mint runLongTernary(const TernaryLoop &loop, void *result, const void *a, const void *x, const void *y,
                    mint count, const mint *strides, mint flags);

inline mint driveUnary(const UnaryLoop &loop, void *result, const void *x, mint count, const mint *strides,
                       mint flags) {
  if (goesParallel(kUnary, count)) [[unlikely]]
    return runLongUnary(loop, result, x, count, strides, flags);
  return loop.run(result, x, count, strides, flags);
}

inline mint driveBinary(const BinaryLoop &loop, void *result, const void *x, const void *y, mint count,
                        const mint *strides, mint flags) {
  if (goesParallel(kBinary, count)) [[unlikely]]
    return runLongBinary(loop, result, x, y, count, strides, flags);
  return loop.run(result, x, y, count, strides, flags);
}

inline mint driveTernary(const TernaryLoop &loop, void *result, const void *a, const void *x, const void *y,
                         mint count, const mint *strides, mint flags) {
  if (goesParallel(kTernary, count)) [[unlikely]]
    return runLongTernary(loop, result, a, x, y, count, strides, flags);
  return loop.run(result, a, x, y, count, strides, flags);
}

} // namespace torvane

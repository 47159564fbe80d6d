// The tensor that tells a draw which extents its result is to have.
#pragma once

#include "../algorithms/handler.h"

namespace torvane {

// In the memory of the tensor that gave them.
struct GivenExtents {
  mint rank;
  const mint *extents;
};

// A vector of integers, of length 0 for a rank-0 result; kValueFailed for anything else. Whether the extents
// make a tensor is left to its allocation.
inline mint readExtents(const MTensor *dimensions, GivenExtents *given) {
  if (checkIntegerVector(dimensions) != kSuccess) return kValueFailed;
  *given = {dimensions->elementCount, integersOf(dimensions)};
  return kSuccess;
}

} // namespace torvane

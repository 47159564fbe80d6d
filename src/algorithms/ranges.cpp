// Ranges: from an integer or a vector, and against a dimension. Positions are computed in 64 bits.
#include "ranges.h"

#include "handler.h"

namespace torvane {

Range rangeOfInteger(mint n, mint bounds) {
  return n >= 0 ? Range{1, n, 1, bounds} : Range{n, -1, 1, bounds};
}

mint rangeOfVector(const MTensor *vector, Range *range) {
  const mint status = checkIntegerVector(vector);
  if (status != kSuccess) return status;
  const mint *entries = integersOf(vector);
  switch (vector->elementCount) {
  case 0:
    *range = {1, 0, 1, 0};
    return kSuccess;
  case 1:
    *range = {entries[0], entries[0], 1, 0};
    return kSuccess;
  case 2:
    *range = {entries[0], entries[1], 1, 0};
    return kSuccess;
  case 3:
    *range = {entries[0], entries[1], entries[2], 0};
    return kSuccess;
  default:
    return kValueFailed;
  }
}

namespace {

// Unlike the start of a part's span, 0, which is one past the end, is clipped too.
int64_t startIn(int64_t dimension, mint bounds, int64_t start) {
  if (start < 1) start += 1 + dimension;
  return start > dimension && (bounds & kClipStart) != 0 ? dimension : start;
}

} // namespace

mint MTensor_normalizeRange(mint dimension, mint bounds, mint *start, mint *end, mint *step,
                            mint *resultCount) {
  const PlacedSpan span = {startIn(dimension, bounds, *start), spanEnd(dimension, bounds, *end), *step};
  return fitSpan(dimension, span, start, end, step, resultCount);
}

} // namespace torvane

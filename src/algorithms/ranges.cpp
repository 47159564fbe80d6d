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

// 0 is one past the end as a start, and stays before the first as an end.
int64_t startIn(int64_t dimension, mint bounds, int64_t start) {
  if (start < 1) start += 1 + dimension;
  return start > dimension && (bounds & kClipStart) != 0 ? dimension : start;
}

int64_t endIn(int64_t dimension, mint bounds, int64_t end) {
  if (end < 0) end += 1 + dimension;
  return end > dimension && (bounds & kClipEnd) != 0 ? dimension : end;
}

// One past the end of the longest dimension is no position: no mint holds it.
bool fits(int64_t dimension, int64_t start, int64_t end, int64_t step) {
  if (start > INT32_MAX) return false;
  if (step > 0) return start >= 1 && start <= end + 1 && end <= dimension;
  return step < 0 && end >= 1 && end <= start + 1 && start <= dimension;
}

int64_t floorQuotient(int64_t x, int64_t y) {
  const int64_t quotient = x / y;
  return quotient * y != x && (x < 0) != (y < 0) ? quotient - 1 : quotient;
}

} // namespace

mint MTensor_normalizeRange(mint dimension, mint bounds, mint *start, mint *end, mint *step,
                            mint *resultCount) {
  const int64_t first = startIn(dimension, bounds, *start), last = endIn(dimension, bounds, *end);
  const int64_t by = *step == kAutomaticStep ? (first > last ? -1 : 1) : *step;
  if (!fits(dimension, first, last, by)) return 0;
  *start = static_cast<mint>(first);
  *end = static_cast<mint>(last);
  *step = static_cast<mint>(by);
  *resultCount = static_cast<mint>(floorQuotient(last - first, by) + 1);
  return 1;
}

} // namespace torvane

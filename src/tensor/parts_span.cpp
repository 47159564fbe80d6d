// Spans against a dimension.
#include "parts_span.h"

namespace torvane {

namespace {

// One past the end of the longest dimension is no position: no mint holds it.
bool fits(int64_t extent, int64_t start, int64_t end, int64_t step) {
  if (start > INT32_MAX) return false;
  if (step > 0) return start >= 1 && start <= end + 1 && end <= extent;
  return step < 0 && end >= 1 && end <= start + 1 && start <= extent;
}

int64_t floorQuotient(int64_t x, int64_t y) {
  const int64_t quotient = x / y;
  return quotient * y != x && (x < 0) != (y < 0) ? quotient - 1 : quotient;
}

int64_t spanStart(int64_t extent, mint flags, int64_t start) {
  if (start < 1) return start + extent + 1;
  return start > extent && (flags & kClipStart) != 0 ? extent : start;
}

} // namespace

mint fitSpan(mint extent, const PlacedSpan &span, mint *start, mint *end, mint *step, mint *count) {
  const mint direction = span.start > span.end ? -1 : 1;
  const mint by = span.step == kAutomaticStep ? direction : span.step;
  if (!fits(extent, span.start, span.end, by)) return 0;
  *start = static_cast<mint>(span.start);
  *end = static_cast<mint>(span.end);
  *step = by;
  *count = static_cast<mint>(floorQuotient(span.end - span.start, by) + 1);
  return 1;
}

mint MTensor_resolveSpan(mint extent, mint flags, mint *start, mint *end, mint *step, mint *count) {
  const PlacedSpan span = {spanStart(extent, flags, *start), spanEnd(extent, flags, *end), *step};
  return fitSpan(extent, span, start, end, step, count);
}

} // namespace torvane

// Spans: the indices from a start to an end, both 1-based and included, a step apart. Positions are computed
// in 64 bits; those below 1 count from the end of the dimension that they are looked up in.
#pragma once

#include "../runtime/types.h"

namespace torvane {

inline constexpr mint kAutomaticStep = INT32_MIN; // towards the end of the span, wherever it lies

enum SpanFlags : mint {
  kClipStart = 1,
  kClipEnd = 2
}; // what lies beyond the dimension becomes its last index

// A span whose start and end are positions of the dimension, or one past either end of it.
struct PlacedSpan {
  int64_t start, end;
  mint step;
};

// Stores positions, step and number of indices of a span that lies within a dimension of this length. 1, or 0
// when it does not, and for a step of 0; then nothing is stored. A start one past the end is an empty span.
mint fitSpan(mint extent, const PlacedSpan &span, mint *start, mint *end, mint *step, mint *count);

// Makes start, end and step positive positions of a dimension of this length, and counts the indices. 1, or 0
// when the span does not fit; then nothing is stored. A start of 0 is one past the end, whatever is clipped.
mint MTensor_resolveSpan(mint extent, mint flags, mint *start, mint *end, mint *step, mint *count);

// An end that is counted from the end of the dimension where it is negative, and clipped where asked for. 0
// stays before the first index.
inline int64_t spanEnd(int64_t extent, mint flags, int64_t end) {
  if (end < 0) return end + extent + 1;
  return end > extent && (flags & kClipEnd) != 0 ? extent : end;
}

} // namespace torvane

// Ranges of the indices of one dimension, as Take and Drop are given them, and what they come to in a
// dimension of some length.
#pragma once

#include "../tensor/parts_span.h"
#include "../tensor/tensor.h"

namespace torvane {

// Positions are 1-based and both included; negative ones count from the end. `bounds` are SpanFlags.
struct Range {
  mint start, end, step, bounds;
};

// The first n indices, or the last -n.
Range rangeOfInteger(mint n, mint bounds);

// {}, {n}, {start, end} or {start, end, step}. kWrongType or kWrongRank for no vector of integers,
// kValueFailed for more entries.
mint rangeOfVector(const MTensor *vector, Range *range);

// How compiled code tags a range: kTagVector a tensor, kTagClipped an integer whose start is clipped to the
// dimension, any other tag a plain integer.
enum RangeTag : mint { kTagClipped = -1, kTagVector = 1 };

// Makes start, end and step positive positions of a dimension of this length, with the number of indices of
// the range in `resultCount`. 1, or 0 when the range does not fit.
mint MTensor_normalizeRange(mint dimension, mint bounds, mint *start, mint *end, mint *step,
                            mint *resultCount);

} // namespace torvane

// Copies of an array with its levels in another order: what every transposition into another tensor comes
// down to.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// A level of the result: its length, and how far apart its neighbours stand in source and result. Strides
// count elements. A diagonal's stride in the source is the sum of the strides of its levels.
struct Level {
  mint length;
  ptrdiff_t fromStride, toStride;
  mint position; // in the walk over all levels
};

// Levels in the order of the result, the last one dense in it; none for a single element. `levels` is used
// up.
void copyLevels(const char *from, char *to, Level *levels, mint count, size_t elementBytes);

} // namespace torvane

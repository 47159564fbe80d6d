// Tiling a result cyclically with a padding, around a box that will be written otherwise.
#pragma once

#include "../runtime/types.h"

#include <stddef.h>

namespace torvane {

struct TileRange {
  size_t from, to; // to is past the end
};

// One dimension that the tiling runs along, in bytes where it is a stride.
struct TileAxis {
  size_t count, period,
      first; // indices of the result and of the padding, and the padding's index that comes first
  size_t targetStride, paddingStride;
  TileRange covered; // need not be tiled where all dimensions are covered
};

// Tiles along the axes from the outermost to the one before `last`, whose strides in the target are those of
// elements of so many bytes. Without an axis it copies one element.
void tile(char *target, const char *padding, const TileAxis *axis, const TileAxis *last, size_t element);

} // namespace torvane

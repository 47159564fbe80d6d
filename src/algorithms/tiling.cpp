// A tiling repeats itself along each dimension after as many indices as the padding has: one period is built
// from the dimensions below, the rest of the dimension is copied from it.
#include "tiling.h"

#include <algorithm>
#include <string.h>

namespace torvane {

namespace {

struct Tiler {
  const TileAxis *last;
  size_t element;

  void whole(char *target, const char *padding, const TileAxis *axis) const {
    if (axis == last)
      memcpy(target, padding, element);
    else
      range(target, padding, axis, {0, axis->count});
  }

  void range(char *target, const char *padding, const TileAxis *axis, TileRange indices) const;
  void around(char *target, const char *padding, const TileAxis *axis) const;
};

// Copies the first `period` bytes again and again behind them. What is copied stays in the first cache.
void repeatPeriod(char *target, size_t period, size_t bytes) {
  constexpr size_t kCached = 16384;
  size_t have = std::min(period, bytes), chunk = have;
  while (have < bytes) {
    const size_t next = std::min(chunk, bytes - have);
    memcpy(target + have, target, next);
    have += next;
    if (chunk < kCached) chunk = have;
  }
}

// Elements as dense in the padding as in the result: from the first to the padding's end, then from its
// start.
void copyWrapped(char *target, const char *padding, const TileAxis &axis, size_t first, size_t count) {
  const size_t element = axis.targetStride, before = std::min(count, axis.period - first);
  memcpy(target, padding + first * element, before * element);
  memcpy(target + before * element, padding, (count - before) * element);
}

// The indices of one dimension from the one where `target` stands on.
void Tiler::range(char *target, const char *padding, const TileAxis *axis, TileRange indices) const {
  const size_t count = indices.to - indices.from, built = std::min(count, axis->period);
  const size_t first = (axis->first + indices.from) % axis->period;
  target += indices.from * axis->targetStride;
  if (axis + 1 == last && axis->paddingStride == element)
    copyWrapped(target, padding, *axis, first, built);
  else
    for (size_t j = 0; j < built; ++j)
      whole(target + j * axis->targetStride, padding + (first + j) % axis->period * axis->paddingStride,
            axis + 1);
  repeatPeriod(target, axis->period * axis->targetStride, count * axis->targetStride);
}

// Short rows are tiled whole: going around the covered part of each would cost more than writing it twice.
constexpr size_t kLongRow = 1024;

void Tiler::around(char *target, const char *padding, const TileAxis *axis) const {
  const TileRange covered = axis->covered;
  if (axis + 1 != last && axis->targetStride < kLongRow) return whole(target, padding, axis);
  range(target, padding, axis, {0, covered.from});
  range(target, padding, axis, {covered.to, axis->count});
  if (axis + 1 == last) return;
  for (size_t j = covered.from; j < covered.to; ++j)
    around(target + j * axis->targetStride, padding + (axis->first + j) % axis->period * axis->paddingStride,
           axis + 1);
}

} // namespace

void tile(char *target, const char *padding, const TileAxis *axis, const TileAxis *last, size_t element) {
  const Tiler tiler = {last, element};
  if (axis == last)
    memcpy(target, padding, element);
  else
    tiler.around(target, padding, axis);
}

} // namespace torvane

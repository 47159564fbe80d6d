// Levels are first made as few as possible: those of length 1 go, neighbours that stay neighbours become one,
// and what is innermost on both sides becomes the block that is moved as one element. Two of the rest, the
// one that is dense in the source and the one that is dense in the result, span matrices that are copied
// transposed; the others are walked in the order of the result.
#include "transpose_levels.h"

#include "transpose_tiles.h"

#include <string.h>

namespace torvane {

namespace {

bool isOneWith(const Level &outer, const Level &inner) {
  return outer.fromStride == inner.fromStride * inner.length &&
         outer.toStride == inner.toStride * inner.length;
}

// What is left of the levels; their number.
mint mergeLevels(Level *levels, mint count) {
  mint kept = 0;
  for (mint k = 0; k < count; ++k) {
    if (levels[k].length == 1) continue;
    if (kept > 0 && isOneWith(levels[kept - 1], levels[k]))
      levels[kept - 1] = {levels[kept - 1].length * levels[k].length, levels[k].fromStride,
                          levels[k].toStride, 0};
    else
      levels[kept++] = levels[k];
  }
  return kept;
}

struct LevelCopy {
  const char *from;
  char *to;
  size_t bytes;        // of a block
  ptrdiff_t element;   // bytes of an element: what strides count
  Level rows, columns; // of the matrices: dense in the result, dense in the source

  void run(ptrdiff_t fromOffset, ptrdiff_t toOffset) const {
    copyTransposed({from + fromOffset * element, to + toOffset * element, rows.fromStride * element,
                    columns.toStride * element, rows.length, columns.length},
                   bytes);
  }
};

// Steps the innermost level that has a step left; those within it start again. False at the end.
bool advance(Level *levels, mint count, ptrdiff_t *fromOffset, ptrdiff_t *toOffset) {
  for (mint k = count - 1; k >= 0; --k) {
    Level &level = levels[k];
    *fromOffset += level.fromStride;
    *toOffset += level.toStride;
    if (++level.position < level.length) return true;
    *fromOffset -= level.length * level.fromStride;
    *toOffset -= level.length * level.toStride;
    level.position = 0;
  }
  return false;
}

void walk(const LevelCopy &copy, Level *levels, mint count) {
  ptrdiff_t fromOffset = 0, toOffset = 0;
  for (mint k = 0; k < count; ++k) levels[k].position = 0;
  do copy.run(fromOffset, toOffset);
  while (advance(levels, count, &fromOffset, &toOffset));
}

Level take(Level *levels, mint *count, mint which) {
  const Level taken = levels[which];
  for (mint k = which; k + 1 < *count; ++k) levels[k] = levels[k + 1];
  --*count;
  return taken;
}

// The level that is dense in the source; a diagonal may leave none.
mint denseInSource(const Level *levels, mint count, ptrdiff_t block) {
  for (mint k = 0; k < count; ++k)
    if (levels[k].fromStride == block) return k;
  return -1;
}

} // namespace

void copyLevels(const char *from, char *to, Level *levels, mint count, size_t elementBytes) {
  count = mergeLevels(levels, count);
  ptrdiff_t block = 1;
  if (count > 0 && levels[count - 1].fromStride == 1 && levels[count - 1].toStride == 1)
    block = levels[--count].length;
  const size_t bytes = static_cast<size_t>(block) * elementBytes;
  if (count == 0) {
    memcpy(to, from, bytes);
    return;
  }
  const Level single = {1, 0, 0, 0};
  const bool isRowDense = levels[count - 1].toStride == block;
  const Level rows = isRowDense ? take(levels, &count, count - 1) : single;
  const mint dense = denseInSource(levels, count, block);
  const Level columns = dense >= 0 ? take(levels, &count, dense) : single;
  walk({from, to, bytes, static_cast<ptrdiff_t>(elementBytes), rows, columns}, levels, count);
}

} // namespace torvane

// Transposed copies of matrices, and of square ones in place, by the bytes of an element.
//
// Elements are moved as what they are, without regard to their type, in tiles of eight by eight: of reals,
// that is a whole cache line of each of eight rows on either side, so that a line is fetched once even where
// rows at a distance of a power of two compete for the same places in the cache.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// Where a matrix stands. Strides are in bytes, from one row to the next.
struct MatrixCopy {
  const char *from;
  char *to;
  ptrdiff_t fromStride, toStride;
  mint rows, columns; // of the source
};

// Element (i, j) of the source goes to (j, i) of the result. `bytes` is a multiple of 4; the two do not
// overlap.
void copyTransposed(const MatrixCopy &matrix, size_t bytes);

// The same for a dense square matrix of `size` rows, in place.
void transposeSquare(char *data, mint size, size_t bytes);

} // namespace torvane

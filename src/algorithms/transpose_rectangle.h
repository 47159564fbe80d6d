// Rectangular matrices transposed in place.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// A dense matrix of `rows` by `columns` elements of `bytes` bytes becomes its transpose. False, and the
// matrix is as it was, where the scratch cannot be had: one row and a strip of columns, or a bit an element.
bool transposeRectangle(char *data, mint rows, mint columns, size_t bytes);

// The same by the cycles of the permutation alone, whatever the size of an element.
bool transposeByCycles(char *data, mint rows, mint columns, size_t bytes);

} // namespace torvane

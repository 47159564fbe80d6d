// Sums from 0 and strictly from the first element to the last, on the calling thread: of all elements of an
// array, or of the rows of a matrix, where neighbouring columns are added up side by side.
//
// The checked forms are false where a partial sum fails, and what they store is then arbitrary: a sum of
// integers that leaves the range or is the reserved value, a sum of reals that is infinite or a NaN.
#pragma once

#include "../runtime/types.h"

#include <stddef.h>

namespace torvane {

bool sumAll(mint *sum, const mint *data, mint count, bool isChecked);
bool sumAll(mreal *sum, const mreal *data, mint count, bool isChecked);
bool sumAll(mcomplex *sum, const mcomplex *data, mint count, bool isChecked);

// `count` rows of `width` elements, dense.
bool sumRows(mint *sums, const mint *rows, mint count, size_t width, bool isChecked);
bool sumRows(mreal *sums, const mreal *rows, mint count, size_t width, bool isChecked);

} // namespace torvane

// Products of dense row-major matrices: a is m by k, b is k by n, with extents of at least 1; the result
// overlaps neither, and what it held does not count.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// Each element one sum from 0 in the order of the inner index, every product and addition rounded. False
// where an element is infinite or a NaN.
bool sequentialProduct(mreal *result, const mreal *a, const mreal *b, mint m, mint k, mint n);
bool sequentialProduct(mcomplex *result, const mcomplex *a, const mcomplex *b, mint m, mint k, mint n);

bool areFinite(const mreal *x, mint count);
bool areFinite(const mcomplex *x, mint count);

// Wraps; under flag 4 false where an element fails as a checked dot product of its row and column does, the
// first one in row-major order: the elements before it are written, and no others.
bool integerProduct(mint *result, const mint *a, const mint *b, mint m, mint k, mint n, mint flags);

} // namespace torvane

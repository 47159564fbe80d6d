// Sums of products in loops of the library's own: those of short vectors, whose order of additions is part of
// the interface, and those of builds that have no BLAS. Every product and every addition rounds; a sum starts
// from 0 and runs in the order of the index. A complex product is rounded in both parts before it is added.
// Compiled in every build, so that the tests hold them in every build.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// Any strides; a negative one walks from the far end, (1 - count) * stride elements from the pointer.
// `conjugated` takes the conjugate of x. 0 for a count below 1.
mreal plainDot(mint count, const mreal *x, mint strideX, const mreal *y, mint strideY);
mcomplex plainComplexDot(const mcomplex *x, mint strideX, const mcomplex *y, mint strideY, mint count,
                         bool conjugated);

// Row-major and dense, with extents of at least 1: a is m by k, b is k by n. What the result held does not
// count.
void plainProduct(mreal *result, const mreal *a, const mreal *b, mint m, mint k, mint n);
void plainProduct(mcomplex *result, const mcomplex *a, const mcomplex *b, mint m, mint k, mint n);

} // namespace torvane

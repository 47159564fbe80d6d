// Vector norms and products by the BLAS of the system; no other file names one.
//
// Which BLAS it is decides how a sum is cut, and so its last bits: with n elements, a sum of magnitudes is
// within n ulp, a Euclidean norm within n / 2 + 3 ulp, and neither overflows or underflows on the way; an
// element of a product is within n ulp of the sum of the magnitudes that it adds. A build without BLAS takes
// the loops of plain_norms.h and plain_products.h, with the same bounds. The number of threads that a BLAS
// runs on is the host's setting and is left alone.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// For a count of at least 0 and a stride of at least 1.
mreal blasSumOfMagnitudes(const mreal *x, mint count, mint stride);
mreal blasEuclideanNorm(const mreal *x, mint count, mint stride);
mreal blasEuclideanNorm(const mcomplex *x, mint count, mint stride);

// Any strides; a negative one walks from the far end, (1 - count) * stride elements from the pointer.
// `conjugated` takes the conjugate of x.
// For reals the BLAS's own entry, without a function of ours between: that would be a sixth of a short
// vector's time.
using RealDot = mreal (*)(mint count, const mreal *x, mint strideX, const mreal *y, mint strideY);
extern const RealDot blasDot;
mcomplex blasComplexDot(const mcomplex *x, mint strideX, const mcomplex *y, mint strideY, mint count,
                        bool conjugated);

// Row-major and dense, with extents of at least 1: a is m by k, b is k by n. What the result held does not
// count.
void blasMatrixVector(mreal *result, const mreal *a, const mreal *x, mint m, mint k);
void blasMatrixVector(mcomplex *result, const mcomplex *a, const mcomplex *x, mint m, mint k);
void blasVectorMatrix(mreal *result, const mreal *x, const mreal *b, mint k, mint n);
void blasVectorMatrix(mcomplex *result, const mcomplex *x, const mcomplex *b, mint k, mint n);
void blasMatrixMatrix(mreal *result, const mreal *a, const mreal *b, mint m, mint k, mint n);
void blasMatrixMatrix(mcomplex *result, const mcomplex *a, const mcomplex *b, mint m, mint k, mint n);

} // namespace torvane

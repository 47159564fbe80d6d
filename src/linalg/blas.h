// Vector norms by the BLAS of the system; no other file names one.
//
// Which BLAS it is decides how a sum is cut, and so its last bits: with n elements, a sum of magnitudes is
// within n ulp, a Euclidean norm within n / 2 + 3 ulp, and neither overflows or underflows on the way. A
// build without BLAS takes the loops of plain_norms.h, with the same bounds. The number of threads that a
// BLAS runs on is the host's setting and is left alone.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// For a count of at least 0 and a stride of at least 1.
mreal blasSumOfMagnitudes(const mreal *x, mint count, mint stride);
mreal blasEuclideanNorm(const mreal *x, mint count, mint stride);
mreal blasEuclideanNorm(const mcomplex *x, mint count, mint stride);

} // namespace torvane

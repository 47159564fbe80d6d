// Vector norms in loops of the library's own, for builds that have no BLAS: with n elements, a sum of
// magnitudes is within n ulp, a Euclidean norm within n / 2 + 3 ulp, and neither overflows or underflows on
// the way. Compiled in every build, so that the tests hold them in every build.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// For a count of at least 0, at any stride.
mreal plainSumOfMagnitudes(const mreal *x, mint count, mint stride);
mreal plainEuclideanNorm(const mreal *x, mint count, mint stride);
mreal plainEuclideanNorm(const mcomplex *x, mint count, mint stride);

} // namespace torvane

#include "blas.h"

#ifdef TORVANE_CBLAS
#include <cblas.h>
#else
#include "plain_norms.h"
#endif

namespace torvane {

#ifdef TORVANE_CBLAS

mreal blasSumOfMagnitudes(const mreal *x, mint count, mint stride) { return cblas_dasum(count, x, stride); }
mreal blasEuclideanNorm(const mreal *x, mint count, mint stride) { return cblas_dnrm2(count, x, stride); }
mreal blasEuclideanNorm(const mcomplex *x, mint count, mint stride) { return cblas_dznrm2(count, x, stride); }

#else

mreal blasSumOfMagnitudes(const mreal *x, mint count, mint stride) {
  return plainSumOfMagnitudes(x, count, stride);
}
mreal blasEuclideanNorm(const mreal *x, mint count, mint stride) {
  return plainEuclideanNorm(x, count, stride);
}
mreal blasEuclideanNorm(const mcomplex *x, mint count, mint stride) {
  return plainEuclideanNorm(x, count, stride);
}

#endif

} // namespace torvane

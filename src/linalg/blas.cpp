#include "blas.h"

#ifdef TORVANE_CBLAS
#include <cblas.h>
#else
#include "plain_norms.h"
#include "plain_products.h"
#endif

namespace torvane {

#ifdef TORVANE_CBLAS

namespace {

constexpr mcomplex kOne = {1, 0}, kZero = {0, 0};

} // namespace

mreal blasSumOfMagnitudes(const mreal *x, mint count, mint stride) { return cblas_dasum(count, x, stride); }
mreal blasEuclideanNorm(const mreal *x, mint count, mint stride) { return cblas_dnrm2(count, x, stride); }
mreal blasEuclideanNorm(const mcomplex *x, mint count, mint stride) { return cblas_dznrm2(count, x, stride); }

constinit const RealDot blasDot = cblas_ddot;

mcomplex blasComplexDot(const mcomplex *x, mint strideX, const mcomplex *y, mint strideY, mint count,
                        bool conjugated) {
  mcomplex dot;
  const auto sum = conjugated ? cblas_zdotc_sub : cblas_zdotu_sub;
  sum(count, x, strideX, y, strideY, &dot);
  return dot;
}

void blasMatrixVector(mreal *result, const mreal *a, const mreal *x, mint m, mint k) {
  cblas_dgemv(CblasRowMajor, CblasNoTrans, m, k, 1, a, k, x, 1, 0, result, 1);
}
void blasMatrixVector(mcomplex *result, const mcomplex *a, const mcomplex *x, mint m, mint k) {
  cblas_zgemv(CblasRowMajor, CblasNoTrans, m, k, &kOne, a, k, x, 1, &kZero, result, 1);
}
void blasVectorMatrix(mreal *result, const mreal *x, const mreal *b, mint k, mint n) {
  cblas_dgemv(CblasRowMajor, CblasTrans, k, n, 1, b, n, x, 1, 0, result, 1);
}
void blasVectorMatrix(mcomplex *result, const mcomplex *x, const mcomplex *b, mint k, mint n) {
  cblas_zgemv(CblasRowMajor, CblasTrans, k, n, &kOne, b, n, x, 1, &kZero, result, 1);
}
void blasMatrixMatrix(mreal *result, const mreal *a, const mreal *b, mint m, mint k, mint n) {
  cblas_dgemm(CblasRowMajor, CblasNoTrans, CblasNoTrans, m, n, k, 1, a, k, b, n, 0, result, n);
}
void blasMatrixMatrix(mcomplex *result, const mcomplex *a, const mcomplex *b, mint m, mint k, mint n) {
  cblas_zgemm(CblasRowMajor, CblasNoTrans, CblasNoTrans, m, n, k, &kOne, a, k, b, n, &kZero, result, n);
}

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

constinit const RealDot blasDot = plainDot;

mcomplex blasComplexDot(const mcomplex *x, mint strideX, const mcomplex *y, mint strideY, mint count,
                        bool conjugated) {
  return plainComplexDot(x, strideX, y, strideY, count, conjugated);
}

void blasMatrixVector(mreal *result, const mreal *a, const mreal *x, mint m, mint k) {
  plainProduct(result, a, x, m, k, 1);
}
void blasMatrixVector(mcomplex *result, const mcomplex *a, const mcomplex *x, mint m, mint k) {
  plainProduct(result, a, x, m, k, 1);
}
void blasVectorMatrix(mreal *result, const mreal *x, const mreal *b, mint k, mint n) {
  plainProduct(result, x, b, 1, k, n);
}
void blasVectorMatrix(mcomplex *result, const mcomplex *x, const mcomplex *b, mint k, mint n) {
  plainProduct(result, x, b, 1, k, n);
}
void blasMatrixMatrix(mreal *result, const mreal *a, const mreal *b, mint m, mint k, mint n) {
  plainProduct(result, a, b, m, k, n);
}
void blasMatrixMatrix(mcomplex *result, const mcomplex *a, const mcomplex *b, mint m, mint k, mint n) {
  plainProduct(result, a, b, m, k, n);
}

#endif

} // namespace torvane

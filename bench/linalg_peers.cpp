#include "linalg_peers.h"

#include <Eigen/Core>

#include <cstddef>

namespace {

template <class T> using Matrix = Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
template <class T> using Vector = Eigen::Map<const Eigen::Matrix<T, Eigen::Dynamic, 1>>;

template <class T> void multiply(T *c, const T *a, const T *b, int m, int k, int n) {
  Eigen::Map<Matrix<T>>(c, m, n).noalias() =
      Eigen::Map<const Matrix<T>>(a, m, k) * Eigen::Map<const Matrix<T>>(b, k, n);
}

} // namespace

void plainDot(double *result, const double *x, int incx, const double *y, int incy, int n) {
  double sum = 0;
  if (incx == 1 && incy == 1)
    for (int k = 0; k < n; ++k) sum += x[k] * y[k];
  else
    for (int k = 0; k < n; ++k) sum += x[ptrdiff_t{k} * incx] * y[ptrdiff_t{k} * incy];
  *result = sum;
}

int eigenDot(const int *x, const int *y, int n) { return Vector<int>(x, n).dot(Vector<int>(y, n)); }

void eigenProduct(double *c, const double *a, const double *b, int m, int k, int n) {
  multiply(c, a, b, m, k, n);
}
void eigenProduct(int *c, const int *a, const int *b, int m, int k, int n) { multiply(c, a, b, m, k, n); }

void plainProduct(int *c, const int *a, const int *b, int m, int k, int n) {
  for (int i = 0; i < m; ++i) {
    for (int j = 0; j < n; ++j) c[ptrdiff_t{i} * n + j] = 0;
    for (int p = 0; p < k; ++p)
      for (int j = 0; j < n; ++j)
        c[ptrdiff_t{i} * n + j] += a[ptrdiff_t{i} * k + p] * b[ptrdiff_t{p} * n + j];
  }
}

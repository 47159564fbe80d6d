// Dot products beside the BLAS that the library is linked with, Eigen, Fortran's matmul and plain loops. The
// BLAS is asked for one thread.
#include "linalg_peers.h"
#include "table.h"

#include <torvane/torvane.h>

#include <cblas.h>
#include <dlfcn.h>

#include <random>
#include <string>
#include <vector>

using bench::Candidate;
using bench::compare;
using bench::repeated;
using bench::Row;
using bench::Run;

namespace {

std::mt19937_64 generator(7);

MTensor *newTensor(mint type, const std::vector<mint> &extents, mint bits = 8) {
  MTensor *tensor = MTensor_newAllocatedCommon(type, static_cast<mint>(extents.size()), extents.data(), 0);
  for (mint k = 0; k < tensor->elementCount; ++k) {
    const mint value = static_cast<mint>(generator()) >> (32 - bits);
    if (type == TORVANE_TYPE_INTEGER)
      static_cast<mint *>(tensor->data)[k] = value;
    else
      static_cast<mreal *>(tensor->data)[k] = value / 64.0;
  }
  return tensor;
}

template <class T> const T *elements(const MTensor *tensor) { return static_cast<const T *>(tensor->data); }

void compareVectors(mint n) {
  MTensor *x = newTensor(TORVANE_TYPE_REAL, {n}), *y = newTensor(TORVANE_TYPE_REAL, {n});
  const auto *a = elements<mreal>(x), *b = elements<mreal>(y);
  mreal dot = 0;
  const Candidate plain = {"plain", repeated([&dot, a, b, n] { plainDot(&dot, a, 1, b, 1, n); })};
  const Candidate blas = {"BLAS", repeated([&dot, a, b, n] { dot = cblas_ddot(n, a, 1, b, 1); })};
  compare({"dot of " + std::to_string(n), 1, {16.0 * n, 0, 2.0 * n}, n <= 50 ? 1.1 : 1.05},
          {{"ours", repeated([&dot, a, b, n] { VectorDot_R64(&dot, a, 1, b, 1, n, 0); })},
           n <= 50 ? plain : blas});
  MTensor_delete(x);
  MTensor_delete(y);
}

void compareIntegerVectors(mint n) {
  MTensor *x = newTensor(TORVANE_TYPE_INTEGER, {n}), *y = newTensor(TORVANE_TYPE_INTEGER, {n});
  const auto *a = elements<mint>(x), *b = elements<mint>(y);
  mint dot = 0;
  for (const mint flags : {0, 4})
    compare({"integer dot of " + std::to_string(n) + (flags != 0 ? ", checked" : ""),
             1,
             {8.0 * n},
             flags == 0 && n >= 1000 ? 1.1 : 0},
            {{"ours", repeated([&dot, a, b, n, flags] { VectorDot_I(&dot, a, 1, b, 1, n, flags); })},
             {"Eigen", repeated([&dot, a, b, n] { dot = eigenDot(a, b, n); })}});
  MTensor_delete(x);
  MTensor_delete(y);
}

void compareMatrices(mint m, mint k, mint n) {
  MTensor *a = newTensor(TORVANE_TYPE_REAL, {m, k}), *b = newTensor(TORVANE_TYPE_REAL, {k, n});
  MTensor *result = newTensor(TORVANE_TYPE_REAL, {m, n});
  const auto *x = elements<mreal>(a), *y = elements<mreal>(b);
  auto *c = static_cast<mreal *>(result->data);
  const Run ours = repeated([result, a, b]() mutable { MTensorGeneralDot(&result, a, b, 0); });
  const Run eigen = repeated([=] { eigenProduct(c, x, y, m, k, n); });
  Run fortran;
#ifdef TORVANE_FORTRAN
  fortran = repeated([=] { multiply_reals_by_fortran(c, x, y, m, k, n); });
#endif
  const Run blas = repeated(
      [=] { cblas_dgemm(CblasRowMajor, CblasNoTrans, CblasNoTrans, m, n, k, 1, x, k, y, n, 0, c, n); });
  // Beyond the small products ours is the BLAS and has no other peer.
  const bool isSmall = int64_t{m} * k * n <= 8000;
  const Row row = {std::to_string(m) + "x" + std::to_string(k) + "x" + std::to_string(n),
                   1,
                   {8.0 * (double(m) * k + double(k) * n), 8.0 * m * n, 2.0 * m * k * n},
                   isSmall ? 1.1 : 1.03};
  if (isSmall)
    compare(row, {{"ours", ours}, {"Eigen", eigen}, {"Fortran", fortran}, {"BLAS", blas}});
  else
    compare(row, {{"ours", ours}, {"BLAS", blas}});
  for (MTensor *tensor : {a, b, result}) MTensor_delete(tensor);
}

// With factors of `bits` bits: of 8 no sum can leave the range, of 14 a bound says that one might.
void compareIntegerMatrices(mint size, mint bits) {
  const std::vector<mint> extents = {size, size};
  MTensor *a = newTensor(TORVANE_TYPE_INTEGER, extents, bits),
          *b = newTensor(TORVANE_TYPE_INTEGER, extents, bits);
  MTensor *result = newTensor(TORVANE_TYPE_INTEGER, extents);
  const auto *x = elements<mint>(a), *y = elements<mint>(b);
  auto *c = static_cast<mint *>(result->data);
  Run fortran;
#ifdef TORVANE_FORTRAN
  fortran = repeated([=] { multiply_integers_by_fortran(c, x, y, size, size, size); });
#endif
  for (const mint flags : {0, 4})
    compare({std::to_string(size) + "x" + std::to_string(size) + ", " + std::to_string(bits) + " bits" +
                 (flags != 0 ? ", checked" : ""),
             1,
             {},
             size == 16   ? 0
             : flags == 0 ? 1.1
                          : 3},
            {{"ours", repeated([result, a, b, flags]() mutable { MTensorGeneralDot(&result, a, b, flags); })},
             {"plain", repeated([=] { plainProduct(c, x, y, size, size, size); })},
             {"Fortran", fortran},
             {"Eigen", repeated([=] { eigenProduct(c, x, y, size, size, size); })}});
  for (MTensor *tensor : {a, b, result}) MTensor_delete(tensor);
}

void setOneThread() {
  if (void *set = dlsym(RTLD_DEFAULT, "openblas_set_num_threads")) reinterpret_cast<void (*)(int)>(set)(1);
}

} // namespace

int main(int argc, char **argv) {
  bench::start("linalg", "ns a call", argc, argv, 101);
  InitializeRuntimeLibrary();
  setOneThread();
  for (const mint n : {2, 5, 10, 20, 35, 50, 51, 64, 100, 1000, 100000}) compareVectors(n);
  for (const mint n : {10, 1000, 100000}) compareIntegerVectors(n);
  for (const mint size : {2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 14, 16, 17, 18, 20, 21, 24, 32, 64, 256, 512})
    compareMatrices(size, size, size);
  compareMatrices(100, 8, 10);
  compareMatrices(3, 3, 800);
  compareMatrices(800, 3, 3);
  for (const mint size : {16, 64, 256})
    for (const mint bits : {8, 14}) compareIntegerMatrices(size, bits);
}

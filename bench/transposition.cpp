// Transpositions of reals beside Eigen, OpenBLAS and Fortran's own, all in this process: rounds alternate
// between the candidates, and the least of each counts. Prints nanoseconds an element and our ratio to the best
// peer. OpenBLAS is asked for where the dynamic loader finds it, Fortran where there is a compiler for it.
//
//   bench_transposition [rounds]
#include "algorithms/transpose_rectangle.h"

#include <torvane/torvane.h>

#include <Eigen/Core>
#include <dlfcn.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <vector>

extern "C" void transpose_by_fortran(const double *from, double *to, int rows, int columns);

namespace {

using Clock = std::chrono::steady_clock;
using Run = std::function<void()>;
using Matrix = Eigen::Map<Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>>;
using CopyTransposed = void (*)(int order, int trans, int rows, int columns, double alpha, const double *a,
                                int lda, double *b, int ldb);

int rounds = 15;
CopyTransposed blasCopy = nullptr;

double nanoseconds(const Run &run, int repeats) {
  const auto start = Clock::now();
  for (int i = 0; i < repeats; ++i) {
    run();
    asm volatile("" : : : "memory");
  }
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / repeats;
}

std::vector<double> leastOf(const std::vector<Run> &candidates, double elements) {
  std::vector<double> least(candidates.size(), 1e300);
  const int repeats = std::max(1, static_cast<int>(2e6 / elements));
  for (int round = 0; round < rounds; ++round)
    for (size_t k = 0; k < candidates.size(); ++k)
      if (candidates[k]) least[k] = std::min(least[k], nanoseconds(candidates[k], repeats) / elements);
  return least;
}

MTensor *newMatrix(mint rows, mint columns) {
  const mint extents[] = {rows, columns};
  MTensor *matrix = MTensor_newAllocatedCommon(TORVANE_TYPE_REAL, 2, extents, 0);
  for (mint k = 0; k < matrix->elementCount; ++k) static_cast<mreal *>(matrix->data)[k] = k;
  return matrix;
}

void print(const char *what, mint rows, mint columns, const std::vector<double> &ns, size_t peers) {
  std::printf("%-10s %8d x %-8d", what, rows, columns);
  for (const double one : ns) one < 1e300 ? std::printf(" %9.3f", one) : std::printf("         -");
  std::printf(" %7.2f\n",
              ns[0] / *std::min_element(ns.begin() + 1, ns.begin() + 1 + static_cast<ptrdiff_t>(peers)));
  std::fflush(stdout);
}

// The peers work on the same memory.
void measureCopy(mint rows, mint columns) {
  MTensor *matrix = newMatrix(rows, columns), *result = newMatrix(columns, rows);
  auto *from = static_cast<mreal *>(matrix->data), *to = static_cast<mreal *>(result->data);
  const Run blas = [=] { blasCopy(101, 112, rows, columns, 1, from, columns, to, rows); };
#ifdef TORVANE_FORTRAN
  const Run fortran = [=] { transpose_by_fortran(from, to, rows, columns); };
#else
  const Run fortran;
#endif
  const auto ns =
      leastOf({[&] { Runtime_MTensor_12TransposeConjugate(&result, matrix, 0); },
               [=] { Matrix(to, columns, rows).noalias() = Matrix(from, rows, columns).transpose(); },
               blasCopy != nullptr ? blas : Run(), fortran,
               [=] { std::memcpy(to, from, sizeof(mreal) * static_cast<size_t>(matrix->elementCount)); }},
              static_cast<double>(matrix->elementCount));
  print("copied", rows, columns, ns, 3);
  MTensor_delete(matrix);
  MTensor_delete(result);
}

void measureSquare(mint size) {
  MTensor *matrix = newMatrix(size, size);
  auto *data = static_cast<mreal *>(matrix->data);
  print("in place", size, size,
        leastOf({[&] { Runtime_MTensor_12TransposeConjugate(&matrix, matrix, 0); },
                 [=] { Matrix(data, size, size).transposeInPlace(); }},
                static_cast<double>(matrix->elementCount)),
        1);
  MTensor_delete(matrix);
}

// Beside the walk along the cycles of the whole permutation, and the two copies that a peer makes instead.
void measureRectangle(mint rows, mint columns) {
  MTensor *matrix = newMatrix(rows, columns);
  auto *data = static_cast<char *>(matrix->data);
  print("in place", rows, columns,
        leastOf({[=] { torvane::transposeRectangle(data, rows, columns, sizeof(mreal)); },
                 [=] { torvane::transposeByCycles(data, rows, columns, sizeof(mreal)); }},
                static_cast<double>(matrix->elementCount)),
        1);
  MTensor_delete(matrix);
}

} // namespace

int main(int argc, char **argv) {
  if (argc > 1) rounds = std::atoi(argv[1]);
  InitializeRuntimeLibrary();
  setenv("OPENBLAS_NUM_THREADS", "1", 1);
  if (void *blas = dlopen("libopenblas.so.0", RTLD_NOW))
    blasCopy = reinterpret_cast<CopyTransposed>(dlsym(blas, "cblas_domatcopy"));
  std::printf("%-10s %8s   %-8s %9s %9s %9s %9s %9s %7s\n", "ns", "rows", "columns", "ours", "Eigen", "OpenBLAS",
              "Fortran", "memcpy", "ratio");
  for (const auto &[rows, columns] :
       {std::pair{100, 100}, {1000, 1000}, {1500, 700}, {4096, 4096}, {3, 1000000}, {1000000, 3}})
    measureCopy(rows, columns);
  std::printf("%-10s %8s   %-8s %9s %9s\n", "ns", "rows", "columns", "ours", "Eigen");
  for (const mint size : {100, 1000, 4096}) measureSquare(size);
  std::printf("%-10s %8s   %-8s %9s %9s\n", "ns", "rows", "columns", "ours", "cycles");
  for (const auto &[rows, columns] :
       {std::pair{1500, 700}, {700, 1500}, {4000, 3001}, {3, 1000000}, {1000000, 3}})
    measureRectangle(rows, columns);
}

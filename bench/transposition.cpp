// Transpositions of reals beside Eigen, OpenBLAS and Fortran's own. OpenBLAS is asked for where the dynamic
// loader finds it, Fortran where there is a compiler for it.
#include "algorithms/transpose_rectangle.h"
#include "table.h"

#include <torvane/torvane.h>

#include <Eigen/Core>
#include <dlfcn.h>

#include <cstdlib>
#include <cstring>
#include <string>

using bench::repeated;
using bench::Run;

extern "C" void transpose_by_fortran(const double *from, double *to, int rows, int columns);

namespace {

using Matrix = Eigen::Map<Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>>;
using CopyTransposed = void (*)(int order, int trans, int rows, int columns, double alpha, const double *a,
                                int lda, double *b, int ldb);

CopyTransposed blasCopy = nullptr;

MTensor *newMatrix(mint rows, mint columns) {
  const mint extents[] = {rows, columns};
  MTensor *matrix = MTensor_newAllocatedCommon(TORVANE_TYPE_REAL, 2, extents, 0);
  for (mint k = 0; k < matrix->elementCount; ++k) static_cast<mreal *>(matrix->data)[k] = k;
  return matrix;
}

bench::Row rowOf(const char *what, const MTensor *matrix, mint rows, mint columns, double aim) {
  const double count = matrix->elementCount;
  return {std::string(what) + " " + std::to_string(rows) + "x" + std::to_string(columns),
          count,
          {8 * count, 8 * count},
          aim};
}

// The peers work on the same memory.
void measureCopy(mint rows, mint columns) {
  MTensor *matrix = newMatrix(rows, columns), *result = newMatrix(columns, rows);
  auto *from = static_cast<mreal *>(matrix->data), *to = static_cast<mreal *>(result->data);
  const Run blas = repeated([=] { blasCopy(101, 112, rows, columns, 1, from, columns, to, rows); });
  Run fortran;
#ifdef TORVANE_FORTRAN
  fortran = repeated([=] { transpose_by_fortran(from, to, rows, columns); });
#endif
  bench::compare(rowOf("copied", matrix, rows, columns, 1.1),
                 {{"ours", repeated([&] { Runtime_MTensor_12TransposeConjugate(&result, matrix, 0); })},
                  {"Eigen", repeated([=] {
                     Matrix(to, columns, rows).noalias() = Matrix(from, rows, columns).transpose();
                   })},
                  {"OpenBLAS", blasCopy != nullptr ? blas : Run()},
                  {"Fortran", fortran}});
  MTensor_delete(matrix);
  MTensor_delete(result);
}

void measureSquare(mint size) {
  MTensor *matrix = newMatrix(size, size);
  auto *data = static_cast<mreal *>(matrix->data);
  bench::compare(rowOf("in place", matrix, size, size, 1.1),
                 {{"ours", repeated([&] { Runtime_MTensor_12TransposeConjugate(&matrix, matrix, 0); })},
                  {"Eigen", repeated([=] { Matrix(data, size, size).transposeInPlace(); })}});
  MTensor_delete(matrix);
}

// Beside the walk along the cycles of the whole permutation, as no peer has such a transposition.
void measureRectangle(mint rows, mint columns) {
  MTensor *matrix = newMatrix(rows, columns);
  auto *data = static_cast<char *>(matrix->data);
  bench::compare(
      rowOf("in place", matrix, rows, columns, 0),
      {{"ours", repeated([=] { torvane::transposeRectangle(data, rows, columns, sizeof(mreal)); })},
       {"cycles", repeated([=] { torvane::transposeByCycles(data, rows, columns, sizeof(mreal)); })}});
  MTensor_delete(matrix);
}

} // namespace

int main(int argc, char **argv) {
  bench::start("transposition", "ns an element", argc, argv);
  InitializeRuntimeLibrary();
  setenv("OPENBLAS_NUM_THREADS", "1", 1);
  if (void *blas = dlopen("libopenblas.so.0", RTLD_NOW))
    blasCopy = reinterpret_cast<CopyTransposed>(dlsym(blas, "cblas_domatcopy"));
  for (const auto &[rows, columns] :
       {std::pair{100, 100}, {1000, 1000}, {1500, 700}, {4096, 4096}, {3, 1000000}, {1000000, 3}})
    measureCopy(rows, columns);
  for (const mint size : {100, 1000, 4096}) measureSquare(size);
  for (const auto &[rows, columns] :
       {std::pair{1500, 700}, {700, 1500}, {4000, 3001}, {3, 1000000}, {1000000, 3}})
    measureRectangle(rows, columns);
}

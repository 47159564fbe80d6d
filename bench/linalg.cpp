// Dot products beside the BLAS that the library is linked with, Eigen, Fortran's matmul and plain loops, all
// in this process: rounds alternate between the candidates, and the least of each counts. Prints nanoseconds
// a call and our ratio to the best peer. The BLAS is asked for one thread.
//
//   bench_linalg [rounds]
#include "linalg_peers.h"

#include <torvane/torvane.h>

#include <cblas.h>
#include <dlfcn.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Run = std::function<void(int repeats)>;

struct Candidate {
  const char *name;
  Run run; // none: the peer is not there
};

int rounds = 101;
std::mt19937_64 generator(7);

// The loop over repeats stands inside, so that a call through the wrapper is not timed with every call.
template <class Call> Run repeated(Call call) {
  return [call](int repeats) mutable {
    for (int i = 0; i < repeats; ++i) {
      call();
      asm volatile("" : : : "memory");
    }
  };
}

double nanoseconds(const Run &run, int repeats) {
  const auto start = Clock::now();
  run(repeats);
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / repeats;
}

// Ours comes first; a round takes about 50 us a candidate.
void compare(const std::string &what, const std::vector<Candidate> &candidates) {
  const int repeats = std::max(1, static_cast<int>(50000 / std::max(1.0, nanoseconds(candidates[0].run, 3))));
  std::vector<double> least(candidates.size(), 1e300);
  for (int round = 0; round < rounds; ++round)
    for (size_t k = 0; k < candidates.size(); ++k)
      if (candidates[k].run) least[k] = std::min(least[k], nanoseconds(candidates[k].run, repeats));
  double best = 1e300;
  std::printf("%-28s", what.c_str());
  for (size_t k = 0; k < candidates.size(); ++k) {
    if (!candidates[k].run) continue;
    if (k > 0) best = std::min(best, least[k]);
    std::printf("  %s %.1f", candidates[k].name, least[k]);
  }
  std::printf("  ratio %.2f\n", least[0] / best);
  std::fflush(stdout);
}

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
  compare("dot of " + std::to_string(n),
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
    compare("integer dot of " + std::to_string(n) + (flags != 0 ? ", checked" : ""),
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
  const std::string what = std::to_string(m) + "x" + std::to_string(k) + "x" + std::to_string(n);
  if (int64_t{m} * k * n <= 8000)
    compare(what, {{"ours", ours}, {"Eigen", eigen}, {"Fortran", fortran}, {"BLAS", blas}});
  else
    compare(what, {{"ours", ours}, {"BLAS", blas}});
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
    compare(std::to_string(size) + "x" + std::to_string(size) + ", " + std::to_string(bits) + " bits" +
                (flags != 0 ? ", checked" : ""),
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
  if (argc > 1) rounds = std::atoi(argv[1]);
  InitializeRuntimeLibrary();
  setOneThread();
  std::printf("nanoseconds a call, minima of %d rounds\n", rounds);
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

// Tensors beside Eigen, both in this process: rounds alternate between ours and the peer and the median
// round counts. Prints nanoseconds for one operation (runs: for one element) and our ratio to the peer.
//
//   bench_tensor [rounds]
#include <torvane/startup.h>
#include <torvane/tensor.h>

#include <Eigen/Core>

#include <algorithm>
#include <chrono>
#include <complex>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

// What the optimiser must take to be read and changed here.
template <class T> void opaque(T &value) { asm volatile("" : "+m"(value) : : "memory"); }

double nanoseconds(const std::function<void(int)> &run, int count) {
  const auto start = Clock::now();
  run(count);
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / count;
}

double median(std::vector<double> &rounds) {
  std::nth_element(rounds.begin(), rounds.begin() + std::ptrdiff_t(rounds.size() / 2), rounds.end());
  return rounds[rounds.size() / 2];
}

struct Row {
  const char *name;
  int count;  // operations of a round
  double per; // elements of an operation
  std::function<void(int)> ours, peer;
};

void measure(const Row &row, int rounds) {
  std::vector<double> ours, peer;
  for (int i = 0; i < rounds; ++i) {
    ours.push_back(nanoseconds(row.ours, row.count) / row.per);
    peer.push_back(nanoseconds(row.peer, row.count) / row.per);
  }
  const double a = median(ours), b = median(peer);
  std::printf("%-44s %8.3f ns  peer %8.3f ns  ratio %5.2f\n", row.name, a, b, a / b);
}

mint extents[2] = {40, 30};
MTensor *held;
Eigen::MatrixXd peerHeld;
Eigen::Index peerExtents[2] = {40, 30};

void oursSameShape(int count) {
  for (int i = 0; i < count; ++i) {
    opaque(extents);
    MTensor_allocateMemoryCommon(held, TORVANE_TYPE_REAL, 2, extents, 2);
  }
}

void oursSameShapeInSlot(int count) {
  for (int i = 0; i < count; ++i) {
    opaque(extents);
    MTensor_allocateCommon(&held, TORVANE_TYPE_REAL, 2, extents, 2);
  }
}

void peerSameShape(int count) {
  for (int i = 0; i < count; ++i) {
    opaque(peerExtents);
    peerHeld.resize(peerExtents[0], peerExtents[1]);
    opaque(peerHeld);
  }
}

mint length = 10;

void oursCreate(int count) {
  for (int i = 0; i < count; ++i) {
    opaque(length);
    MTensor *tensor = CreatePackedArray(TORVANE_TYPE_REAL, 1, &length);
    opaque(tensor);
    MTensor_delete(tensor);
  }
}

void peerCreate(int count) {
  for (int i = 0; i < count; ++i) {
    opaque(length);
    auto *vector = new Eigen::VectorXd(length);
    opaque(vector);
    delete vector;
  }
}

constexpr mint kRun = 4096; // in the first cache: the loops are measured, not the memory
std::vector<mint> integers(kRun, 5);
std::vector<mreal> reals(4 * kRun, 2.5), realsOut(4 * kRun);
std::vector<std::complex<double>> complexes(kRun, {1.5, 0.5});

template <class T> auto view(std::vector<T> &values) {
  return Eigen::Map<Eigen::Array<T, Eigen::Dynamic, 1>>(values.data(), kRun);
}
auto strided(std::vector<mreal> &values, int stride) {
  return Eigen::Map<Eigen::ArrayXd, 0, Eigen::InnerStride<>>(values.data(), kRun,
                                                             Eigen::InnerStride<>(stride));
}

std::function<void(int)> repeat(const std::function<void()> &once) {
  return [once](int count) {
    for (int i = 0; i < count; ++i) {
      once();
      asm volatile("" : : : "memory");
    }
  };
}

std::function<void(int)> coerce(void *target, mint targetType, mint targetStride, void *source,
                                mint sourceType, mint sourceStride) {
  return repeat([=] {
    GenericData_copySomeCoerce(target, targetType, 0, targetStride, source, sourceType, 0, sourceStride,
                               kRun);
  });
}

} // namespace

int main(int argc, char **argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 51;
  InitializeRuntimeLibrary();
  held = CreatePackedArray(TORVANE_TYPE_REAL, 2, extents);
  peerHeld.resize(40, 30);
  const Row rows[] = {
      {"same shape and type again", 200000, 1, oursSameShape, peerSameShape},
      {"the same through a slot", 200000, 1, oursSameShapeInSlot, peerSameShape},
      {"create and delete 10 reals", 100000, 1, oursCreate, peerCreate},
      {"integers to reals", 500, kRun, coerce(realsOut.data(), 3, 1, integers.data(), 2, 1),
       repeat([] { view(realsOut) = view(integers).cast<double>(); })},
      {"reals to complexes", 500, kRun, coerce(complexes.data(), 4, 1, reals.data(), 3, 1),
       repeat([] { view(complexes) = view(reals).cast<std::complex<double>>(); })},
      {"complexes to reals", 500, kRun, coerce(realsOut.data(), 3, 1, complexes.data(), 4, 1),
       repeat([] { view(realsOut) = view(complexes).real(); })},
      {"reals, contiguous", 500, kRun, coerce(realsOut.data(), 3, 1, reals.data(), 3, 1),
       repeat([] { view(realsOut) = view(reals); })},
      {"reals, every third to every second", 500, kRun, coerce(realsOut.data(), 3, 2, reals.data(), 3, 3),
       repeat([] { strided(realsOut, 2) = strided(reals, 3); })},
  };
  for (const Row &row : rows) measure(row, rounds);
  MTensor_delete(held);
}

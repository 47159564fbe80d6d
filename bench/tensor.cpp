// Shapes and coercions of tensors beside Eigen.
#include "table.h"

#include <torvane/startup.h>
#include <torvane/tensor.h>

#include <Eigen/Core>

#include <complex>
#include <vector>

using bench::compare;
using bench::repeated;
using bench::Run;

namespace {

// What the optimiser must take to be read and changed here.
template <class T> void opaque(T &value) { asm volatile("" : "+m"(value) : : "memory"); }

void compareShapes() {
  mint extents[2] = {40, 30};
  Eigen::Index peerExtents[2] = {40, 30};
  MTensor *held = CreatePackedArray(TORVANE_TYPE_REAL, 2, extents);
  Eigen::MatrixXd peerHeld(40, 30);
  const Run again = repeated([&] {
    opaque(extents);
    MTensor_allocateMemoryCommon(held, TORVANE_TYPE_REAL, 2, extents, 2);
  });
  const Run inSlot = repeated([&] {
    opaque(extents);
    MTensor_allocateCommon(&held, TORVANE_TYPE_REAL, 2, extents, 2);
  });
  const Run peer = repeated([&] {
    opaque(peerExtents);
    peerHeld.resize(peerExtents[0], peerExtents[1]);
    opaque(peerHeld);
  });
  compare({"same shape and type again"}, {{"ours", again}, {"Eigen", peer}});
  compare({"the same through a slot"}, {{"ours", inSlot}, {"Eigen", peer}});
  MTensor_delete(held);
}

void compareCreation() {
  mint length = 10;
  const Run ours = repeated([&] {
    opaque(length);
    MTensor *tensor = CreatePackedArray(TORVANE_TYPE_REAL, 1, &length);
    opaque(tensor);
    MTensor_delete(tensor);
  });
  const Run peer = repeated([&] {
    opaque(length);
    auto *vector = new Eigen::VectorXd(length);
    opaque(vector);
    delete vector;
  });
  compare({"create and delete 10 reals"}, {{"ours", ours}, {"Eigen", peer}});
}

constexpr mint kRun = 4096; // in the first cache: the loops are measured, not the memory
using Integers = std::vector<mint>;
using Reals = std::vector<mreal>;
using Complexes = std::vector<std::complex<double>>;

template <class T> constexpr mint kTypeOf = TORVANE_TYPE_COMPLEX;
template <> constexpr mint kTypeOf<mint> = TORVANE_TYPE_INTEGER;
template <> constexpr mint kTypeOf<mreal> = TORVANE_TYPE_REAL;

template <class T> auto view(std::vector<T> &values, int stride) {
  using Array = Eigen::Array<T, Eigen::Dynamic, 1>;
  return Eigen::Map<Array, 0, Eigen::InnerStride<>>(values.data(), kRun, Eigen::InnerStride<>(stride));
}
template <class T> auto view(std::vector<T> &values) {
  return Eigen::Map<Eigen::Array<T, Eigen::Dynamic, 1>>(values.data(), kRun);
}

template <class To, class From>
void compareCoercion(const char *name, std::vector<To> &to, mint toStride, std::vector<From> &from,
                     mint fromStride, const Run &peer) {
  const auto ours = [&to, &from, toStride, fromStride] {
    GenericData_copySomeCoerce(to.data(), kTypeOf<To>, 0, toStride, from.data(), kTypeOf<From>, 0, fromStride,
                               kRun);
  };
  compare({name, kRun, {double(sizeof(From)) * kRun, double(sizeof(To)) * kRun}},
          {{"ours", repeated(ours)}, {"Eigen", peer}});
}

void compareCoercions() {
  Integers integers(kRun, 5);
  Reals reals(3 * kRun, 2.5), to(2 * kRun);
  Complexes complexes(kRun, {1.5, 0.5});
  compareCoercion("integers to reals", to, 1, integers, 1,
                  repeated([&] { view(to) = view(integers).cast<double>(); }));
  compareCoercion("reals to complexes", complexes, 1, reals, 1,
                  repeated([&] { view(complexes) = view(reals).cast<std::complex<double>>(); }));
  compareCoercion("complexes to reals", to, 1, complexes, 1,
                  repeated([&] { view(to) = view(complexes).real(); }));
  compareCoercion("reals, contiguous", to, 1, reals, 1, repeated([&] { view(to) = view(reals); }));
  compareCoercion("reals, every third to every second", to, 2, reals, 3,
                  repeated([&] { view(to, 2) = view(reals, 3); }));
}

} // namespace

int main(int argc, char **argv) {
  bench::start("tensor", "ns a call or an element", argc, argv, 501);
  InitializeRuntimeLibrary();
  compareShapes();
  compareCreation();
  compareCoercions();
}

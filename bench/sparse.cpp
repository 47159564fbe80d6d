// Sparse arrays from positions beside Eigen's setFromTriplets, and to dense tensors, from them and copied
// beside Eigen's same, in this process: rounds alternate, and the least of each counts. Prints nanoseconds a
// position, or an element of the dense tensor, and our ratio to the peer. Filling the dense tensor stands
// beside as the least that an expansion costs.
//
// Eigen also sorts the columns within rows and adds up repetitions; ours keeps the order of positions.
//
//   bench_sparse [rounds [positions]]
#include "arrays/sparse_array.h"

#include <torvane/torvane.h>

#include <Eigen/SparseCore>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <random>
#include <vector>

namespace {

using Matrix = Eigen::SparseMatrix<double, Eigen::RowMajor, int>;

// Of the processor, as both candidates have one thread: other programs' turns do not count.
double nanoseconds(const std::function<void()> &run) {
  const std::clock_t start = std::clock();
  run();
  return 1e9 * double(std::clock() - start) / CLOCKS_PER_SEC;
}

struct Case {
  const char *name;
  mint rows, columns;
  bool byRows, withExtents;
};

struct Input {
  std::vector<Eigen::Triplet<double>> triplets;
  MTensor *positions, *values, *extents, *background;

  Input(const Case &c, mint count) {
    std::mt19937 random(5);
    for (mint i = 0; i < count; ++i)
      triplets.emplace_back(mint(random() % uint32_t(c.rows)), mint(random() % uint32_t(c.columns)),
                            double(i));
    if (c.byRows)
      std::sort(triplets.begin(), triplets.end(), [](auto &a, auto &b) {
        return a.row() != b.row() ? a.row() < b.row() : a.value() < b.value();
      });
    const mint lines[] = {count, 2}, two = 2;
    positions = CreatePackedArray(TORVANE_TYPE_INTEGER, 2, lines);
    values = CreatePackedArray(TORVANE_TYPE_REAL, 1, &count);
    for (size_t i = 0; i < triplets.size(); ++i) {
      static_cast<mint *>(positions->data)[2 * i] = triplets[i].row() + 1;
      static_cast<mint *>(positions->data)[2 * i + 1] = triplets[i].col() + 1;
      static_cast<mreal *>(values->data)[i] = triplets[i].value();
    }
    const mint shape[] = {c.rows, c.columns};
    extents = c.withExtents ? MTensor_newCopyFromDataArray(TORVANE_TYPE_INTEGER, 1, &two, shape) : nullptr;
    background = LoadNewRankZeroMTensor(nullptr, TORVANE_TYPE_REAL);
    MTensor_initialize(background, 0);
  }
  ~Input() {
    for (MTensor *tensor : {positions, values, extents, background}) MTensor_delete(tensor);
  }
  Input(const Input &) = delete;
  Input &operator=(const Input &) = delete;
};

void compare(const Case &c, int rounds, mint count) {
  const Input input(c, count);
  double ours = 1e300, peers = 1e300;
  for (int round = 0; round < rounds; ++round) {
    MSparseArray *array = nullptr;
    ours = std::min(ours, nanoseconds([&] {
                      torvane::MSparseArray_fromPositions(input.positions, input.values, input.extents,
                                                          input.background, &array);
                    }));
    if (array == nullptr) std::abort();
    MSparseArray_delete(array);
    Matrix matrix(c.rows, c.columns);
    peers = std::min(
        peers, nanoseconds([&] { matrix.setFromTriplets(input.triplets.begin(), input.triplets.end()); }));
    if (matrix.nonZeros() == 0) std::abort();
  }
  std::printf("%-36s %8.2f %8.2f %7.2f\n", c.name, ours / count, peers / count, ours / peers);
}

// A matrix with an element in so many of a thousand places.
MTensor *newDense(mint rows, mint columns, uint32_t ofThousand) {
  std::mt19937 random(9);
  const mint extents[] = {rows, columns};
  MTensor *dense = CreatePackedArray(TORVANE_TYPE_REAL, 2, extents);
  auto *elements = static_cast<mreal *>(dense->data);
  for (mint i = 0; i < dense->elementCount; ++i) elements[i] = random() % 1000 < ofThousand ? 1.0 + i : 0;
  return dense;
}

using Dense = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
using Runs = std::vector<std::function<void()>>;

void compareRuns(const char *what, mint ofThousand, mint count, int rounds, const Runs &runs) {
  std::vector<double> least(runs.size(), 1e300);
  const int repeats = std::max(1, 1000000 / count);
  for (int round = 0; round < rounds; ++round)
    for (size_t k = 0; k < runs.size(); ++k)
      least[k] = std::min(least[k], nanoseconds([&] {
                                      for (int i = 0; i < repeats; ++i) runs[k]();
                                    }) / repeats);
  std::printf("%-24s %5.1f %% %4s", what, ofThousand / 10.0, "");
  for (const double time : least) std::printf(" %8.3f", time / count);
  if (runs.size() > 1) std::printf(" %7.2f", least[0] / least[1]);
  std::printf("\n");
}

void compareDense(int rounds, mint rows, mint columns, mint ofThousand) {
  MTensor *dense = newDense(rows, columns, uint32_t(ofThousand)), *expanded = nullptr;
  MTensor *one = LoadNewRankZeroMTensor(nullptr, TORVANE_TYPE_REAL);
  MTensor_initialize(one, 1);
  const Eigen::Map<const Dense> view(static_cast<mreal *>(dense->data), rows, columns);
  MSparseArray *array = nullptr, *copy = nullptr, *changed = nullptr;
  if (torvane::MSparseArray_fromTensor(dense, nullptr, &array) != 0) std::abort();
  Matrix matrix = view.sparseView(), other;
  Dense filled(rows, columns);
  const auto fill = [&] { std::fill_n(filled.data(), filled.size(), double(rounds)); };
  const mint count = dense->elementCount;
  compareRuns("to a tensor", ofThousand, count, rounds,
              {[&] { torvane::MSparseArray_toTensor(array, &expanded); }, [&] { filled = matrix; }, fill});
  compareRuns("from a tensor", ofThousand, count, rounds,
              {[&] { torvane::MSparseArray_fromTensor(dense, nullptr, &array); },
               [&] { matrix = view.sparseView(); }, fill});
  compareRuns("copy", ofThousand, count, rounds,
              {[&] { torvane::MSparseArray_copyHandle(array, &copy); }, [&] { other = Matrix(matrix); }});
  compareRuns("another background", ofThousand, count, rounds,
              {[&] { torvane::MSparseArray_setBackground(array, one, &changed); }});
  for (MTensor *tensor : {dense, expanded, one}) MTensor_delete(tensor);
  for (MSparseArray *each : {array, copy, changed}) MSparseArray_delete(each);
}

} // namespace

int main(int argc, char **argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 15;
  const mint count = argc > 2 ? std::atoi(argv[2]) : 1000000;
  InitializeTorvaneRTL(nullptr, nullptr, nullptr);
  std::printf("%d positions, ns each %18s %8s %7s\n", count, "ours", "Eigen", "ratio");
  for (const Case &c : {Case{"1000 x 1000, random", 1000, 1000, false, true},
                        Case{"100000 x 100000, random", 100000, 100000, false, true},
                        Case{"100000 x 100000, extents found", 100000, 100000, false, false},
                        Case{"1000000 x 100, random", 1000000, 100, false, true},
                        Case{"100000 x 100000, by rows", 100000, 100000, true, true}})
    compare(c, rounds, count);
  std::printf("\nns an element of the tensor %22s %8s %8s %7s\n", "ours", "Eigen", "fill", "ratio");
  for (const mint ofThousand : {1, 10, 100, 500})
    for (const mint rows : {100, 2000}) compareDense(rounds, rows, rows, ofThousand);
}

// Sparse arrays from positions beside Eigen's setFromTriplets, and back to dense tensors, in this process:
// rounds alternate, and the least of each counts. Prints nanoseconds a position and our ratio to the peer.
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
}

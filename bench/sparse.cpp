// Sparse arrays from positions beside Eigen's setFromTriplets, which also sorts the columns within rows and
// adds up repetitions where ours keeps the order of positions; and to dense tensors, from them and copied,
// beside Eigen's same.
#include "arrays/sparse_array.h"
#include "table.h"

#include <torvane/torvane.h>

#include <Eigen/SparseCore>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <utility>
#include <vector>

using bench::repeated;
using bench::Run;

namespace {

using Matrix = Eigen::SparseMatrix<double, Eigen::RowMajor, int>;

void require(mint status) {
  if (status == 0) return;
  std::fprintf(stderr, "status %d\n", status);
  std::abort();
}

struct Case {
  const char *name;
  mint rows, columns;
  bool byRows, withExtents;
};

using Triplets = std::vector<Eigen::Triplet<double>>;

Triplets tripletsOf(const Case &c, mint count) {
  std::mt19937 random(5);
  Triplets triplets;
  for (mint i = 0; i < count; ++i)
    triplets.emplace_back(mint(random() % uint32_t(c.rows)), mint(random() % uint32_t(c.columns)), double(i));
  if (c.byRows)
    std::sort(triplets.begin(), triplets.end(), [](auto &a, auto &b) {
      return a.row() != b.row() ? a.row() < b.row() : a.value() < b.value();
    });
  return triplets;
}

MTensor *newScalar(mint value) {
  MTensor *scalar = LoadNewRankZeroMTensor(nullptr, TORVANE_TYPE_REAL);
  MTensor_initialize(scalar, value);
  return scalar;
}

// The same as our arguments.
struct Input {
  MTensor *positions, *values, *extents = nullptr, *background = newScalar(0);

  Input(const Case &c, const Triplets &triplets) {
    const mint count = mint(triplets.size()), lines[] = {count, 2}, shape[] = {c.rows, c.columns}, two = 2;
    positions = CreatePackedArray(TORVANE_TYPE_INTEGER, 2, lines);
    values = CreatePackedArray(TORVANE_TYPE_REAL, 1, &count);
    for (size_t i = 0; i < triplets.size(); ++i) {
      static_cast<mint *>(positions->data)[2 * i] = triplets[i].row() + 1;
      static_cast<mint *>(positions->data)[2 * i + 1] = triplets[i].col() + 1;
      static_cast<mreal *>(values->data)[i] = triplets[i].value();
    }
    if (c.withExtents) extents = MTensor_newCopyFromDataArray(TORVANE_TYPE_INTEGER, 1, &two, shape);
  }
  ~Input() {
    for (MTensor *tensor : {positions, values, extents, background}) MTensor_delete(tensor);
  }
  Input(const Input &) = delete;
  Input &operator=(const Input &) = delete;
};

void comparePositions(const Case &c) {
  constexpr mint kPositions = 1000000;
  const Triplets triplets = tripletsOf(c, kPositions);
  const Input input(c, triplets);
  MSparseArray *array = nullptr;
  Matrix matrix;
  // Each makes a new one.
  const Run emptyOurs = [&](int) { MSparseArray_delete(std::exchange(array, nullptr)); };
  const Run emptyPeer = [&](int) { matrix = Matrix(c.rows, c.columns); };
  const auto ours = [&] {
    require(torvane::MSparseArray_fromPositions(input.positions, input.values, input.extents,
                                                input.background, &array));
  };
  bench::compare(
      {c.name, kPositions, {16.0 * kPositions, 12.0 * kPositions}, 1.2},
      {{"ours", repeated(ours), emptyOurs},
       {"Eigen", repeated([&] { matrix.setFromTriplets(triplets.begin(), triplets.end()); }), emptyPeer}});
  MSparseArray_delete(array);
}

// A matrix with an element in so many of a thousand places.
MTensor *newDense(mint size, uint32_t ofThousand) {
  std::mt19937 random(9);
  const mint extents[] = {size, size};
  MTensor *dense = CreatePackedArray(TORVANE_TYPE_REAL, 2, extents);
  std::generate_n(static_cast<mreal *>(dense->data), dense->elementCount,
                  [&, i = 0]() mutable { return ++i, random() % 1000 < ofThousand ? 1.0 + i : 0; });
  return dense;
}

using Dense = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

void compareDense(mint size, mint ofThousand, const char *share) {
  MTensor *dense = newDense(size, uint32_t(ofThousand)), *one = newScalar(1), *expanded = nullptr;
  const Eigen::Map<const Dense> view(static_cast<mreal *>(dense->data), size, size);
  MSparseArray *array = nullptr, *copy = nullptr, *changed = nullptr;
  require(torvane::MSparseArray_fromTensor(dense, nullptr, &array));
  Matrix matrix = view.sparseView(), other;
  Dense filled(size, size);
  const double count = dense->elementCount, whole = sizeof(mreal) * count;
  // Eight bytes a value, four a column; four a row.
  const double compressed = 12.0 * double(matrix.nonZeros()) + 4.0 * size;
  const auto row = [&](const char *what, bench::Work work) {
    return bench::Row{std::string(what) + ", " + share + " filled", count, work};
  };
  bench::compare(row("to a tensor", {compressed, whole}),
                 {{"ours", repeated([&] { require(torvane::MSparseArray_toTensor(array, &expanded)); })},
                  {"Eigen", repeated([&] { filled = matrix; })}});
  bench::compare(
      row("from a tensor", {whole, compressed}),
      {{"ours", repeated([&] { require(torvane::MSparseArray_fromTensor(dense, nullptr, &array)); })},
       {"Eigen", repeated([&] { matrix = view.sparseView(); })}});
  bench::compare(row("copy", {compressed, compressed}),
                 {{"ours", repeated([&] { require(torvane::MSparseArray_copyHandle(array, &copy)); })},
                  {"Eigen", repeated([&] { other = Matrix(matrix); })}});
  bench::compare(
      row("another background", {}),
      {{"ours", repeated([&] { require(torvane::MSparseArray_setBackground(array, one, &changed)); })}});
  for (MTensor *tensor : {dense, expanded, one}) MTensor_delete(tensor);
  for (MSparseArray *each : {array, copy, changed}) MSparseArray_delete(each);
}

} // namespace

int main(int argc, char **argv) {
  bench::start("sparse", "ns a position, or an element of the tensor", argc, argv, 15);
  InitializeTorvaneRTL(nullptr, nullptr, nullptr);
  for (const Case &c : {Case{"1000 x 1000 at random; Eigen sorts", 1000, 1000, false, true},
                        Case{"100000 x 100000 at random; Eigen sorts", 100000, 100000, false, true},
                        Case{"100000 x 100000, extents found; Eigen sorts", 100000, 100000, false, false},
                        Case{"1000000 x 100 at random; Eigen sorts", 1000000, 100, false, true},
                        Case{"100000 x 100000 by rows; Eigen sorts", 100000, 100000, true, true}})
    comparePositions(c);
  for (const mint size : {100, 2000}) {
    compareDense(size, 1, "0.1 %");
    compareDense(size, 10, "1 %");
    compareDense(size, 500, "50 %");
  }
}

// Orders and sorts beside std::stable_sort and Boost's sorts, all in this process: rounds alternate between
// the candidates, and the least of each counts. Prints nanoseconds a row and our ratio to the best peer.
//
// Short inputs come as many different ones, one after another, so that no branch predictor learns them by
// heart.
//
//   bench_sorting [rounds [largest count [smallest count]]]
#include "algorithms/order.h"

#include <torvane/torvane.h>

#include <boost/sort/flat_stable_sort/flat_stable_sort.hpp>
#include <boost/sort/spreadsort/spreadsort.hpp>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <numeric>
#include <random>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Run = std::function<void()>;

int rounds = 7;

double nanoseconds(const Run &run) {
  const auto start = Clock::now();
  run();
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

std::vector<double> leastOf(const std::vector<Run> &candidates) {
  std::vector<double> least(candidates.size(), 1e300);
  for (int round = 0; round < rounds; ++round)
    for (size_t k = 0; k < candidates.size(); ++k)
      if (candidates[k]) least[k] = std::min(least[k], nanoseconds(candidates[k]));
  return least;
}

template <class Element>
constexpr mint kTypeOf = sizeof(Element) == sizeof(mint) ? TORVANE_TYPE_INTEGER : TORVANE_TYPE_REAL;

MTensor *newTensor(mint type, mint rows, mint length) {
  const mint extents[] = {rows, length};
  return MTensor_newAllocatedCommon(type, length == 1 ? 1 : 2, extents, 0);
}

// Many inputs of one kind, each as a tensor.
template <class Element> struct Inputs {
  mint rows, length;
  std::vector<MTensor *> tensors;
  MTensor *permutation, *result = nullptr;
  std::vector<mint> order;

  template <class Draw>
  Inputs(mint rowCount, mint rowLength, const Draw &draw) : rows(rowCount), length(rowLength) {
    const mint count = std::max(1, 1000000 / rows);
    for (mint k = 0; k < count; ++k) {
      tensors.push_back(newTensor(kTypeOf<Element>, rows, length));
      for (mint i = 0; i < rows * length; ++i)
        static_cast<Element *>(tensors.back()->data)[i] = draw(i / length);
    }
    permutation = newTensor(TORVANE_TYPE_INTEGER, rows, 1);
    order.resize(static_cast<size_t>(rows));
  }
  ~Inputs() {
    for (MTensor *tensor : tensors) MTensor_delete(tensor);
    MTensor_delete(permutation);
    MTensor_delete(result);
  }
  Inputs(const Inputs &) = delete;
  Inputs &operator=(const Inputs &) = delete;

  double perRow(double total) const { return total / static_cast<double>(tensors.size()) / rows; }
  Run forEach(const std::function<void(MTensor *)> &run) {
    return [=, this] {
      for (MTensor *tensor : tensors) run(tensor);
    };
  }
};

template <class Element> struct Keyed {
  Element key;
  mint row;
};
template <class Element> bool isLess(const Keyed<Element> &a, const Keyed<Element> &b) {
  return a.key < b.key;
}

template <class Element> void stableSortRows(Inputs<Element> &in, const MTensor *tensor) {
  const auto *x = static_cast<const Element *>(tensor->data);
  const mint length = in.length;
  std::iota(in.order.begin(), in.order.end(), 0);
  if (length == 1)
    std::stable_sort(in.order.begin(), in.order.end(), [=](mint a, mint b) { return x[a] < x[b]; });
  else
    std::stable_sort(in.order.begin(), in.order.end(), [=](mint a, mint b) {
      const Element *left = x + ptrdiff_t{a} * length, *right = x + ptrdiff_t{b} * length;
      return std::lexicographical_compare(left, left + length, right, right + length);
    });
}

template <class Element> void flatStableSortPairs(Inputs<Element> &in, const MTensor *tensor) {
  static std::vector<Keyed<Element>> pairs;
  pairs.resize(in.order.size());
  for (mint k = 0; k < in.rows; ++k)
    pairs[static_cast<size_t>(k)] = {static_cast<const Element *>(tensor->data)[k], k};
  boost::sort::flat_stable_sort(pairs.begin(), pairs.end(), isLess<Element>);
  for (size_t k = 0; k < pairs.size(); ++k) in.order[k] = pairs[k].row;
}

template <class Element> void spreadSortValues(const MTensor *tensor) {
  static std::vector<Element> values;
  const auto *x = static_cast<const Element *>(tensor->data);
  values.assign(x, x + tensor->elementCount);
  boost::sort::spreadsort::spreadsort(values.begin(), values.end());
}

template <class Element, class Draw>
void measure(const char *name, mint rows, mint length, const Draw &draw) {
  Inputs<Element> in(rows, length, draw);
  const bool isSingle = length == 1;
  const Run none;
  const std::vector<double> ns = leastOf({
      in.forEach([&](MTensor *t) { Runtime_MTensor_computeSortPermutation(in.permutation, t); }),
      in.forEach([&](MTensor *t) { stableSortRows(in, t); }),
      isSingle ? in.forEach([&](MTensor *t) { flatStableSortPairs(in, t); }) : none,
      in.forEach([&](MTensor *t) { Runtime_MTensor_Sort(&in.result, t); }),
      in.forEach([&](MTensor *t) {
        Runtime_MTensor_computeSortPermutation(in.permutation, t);
        torvane::MTensor_gatherRows(&in.result, t, in.permutation);
      }),
      isSingle ? in.forEach([](MTensor *t) { spreadSortValues<Element>(t); }) : none,
  });
  std::printf("%-24s %9d %8.2f %8.2f", name, rows, in.perRow(ns[0]), in.perRow(ns[1]));
  const double best = std::min(ns[1], ns[2]);
  isSingle ? std::printf(" %8.2f", in.perRow(ns[2])) : std::printf("        -");
  std::printf(" %6.2f | %8.2f %8.2f", ns[0] / best, in.perRow(ns[3]), in.perRow(ns[4]));
  isSingle ? std::printf(" %8.2f\n", in.perRow(ns[5])) : std::printf("        -\n");
  std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv) {
  if (argc > 1) rounds = std::atoi(argv[1]);
  const mint largest = argc > 2 ? std::atoi(argv[2]) : 10000000,
             smallest = argc > 3 ? std::atoi(argv[3]) : 1000;
  InitializeRuntimeLibrary();
  std::mt19937 random(1);
  std::uniform_real_distribution<> uniform(0, 1);
  std::normal_distribution<> normal(0, 1);
  const auto integer = [&](mint) { return static_cast<mint>(random()); };
  const auto below = [&](unsigned n) {
    return [&random, n](mint) { return static_cast<mint>(random() % n); };
  };
  std::printf("%-24s %9s %8s %8s %8s %6s | %8s %8s %8s\n", "ns a row", "rows", "order", "std", "flat",
              "ratio", "sort", "gathered", "spread");
  for (mint rows = smallest; rows <= largest; rows *= 10) {
    measure<mint>("integers", rows, 1, integer);
    measure<mreal>("reals, uniform", rows, 1, [&](mint) { return uniform(random); });
    measure<mreal>("reals, normal", rows, 1, [&](mint) { return normal(random); });
    measure<mint>("integers, 10 distinct", rows, 1, below(10));
    measure<mreal>("reals, 10 distinct", rows, 1,
                   [&](mint) { return static_cast<double>(random() % 10) * 0.1; });
    measure<mint>("integers, sorted", rows, 1, [](mint k) { return k; });
    measure<mreal>("reals, sorted", rows, 1, [](mint k) { return k * 0.1; });
    measure<mint>("integers, descending", rows, 1, [](mint k) { return -k; });
    measure<mint>("rows of 3 integers", rows, 3, integer);
    measure<mreal>("rows of 3 reals", rows, 3, [&](mint) { return uniform(random); });
    measure<mint>("rows of 3, 30 distinct", rows, 3, below(30));
    measure<mreal>("rows of 3 reals, 30", rows, 3, [&](mint) { return static_cast<double>(random() % 30); });
  }
}

// Orders and sorts beside std::stable_sort and Boost's sorts. An order is the permutation, and its peers make
// one; a sort is the rows themselves, and so is its peers'.
//
// Short inputs come as many different ones, one after another, so that no branch predictor learns them by
// heart.
#include "table.h"

#include <torvane/torvane.h>

#include <boost/sort/flat_stable_sort/flat_stable_sort.hpp>
#include <boost/sort/spreadsort/spreadsort.hpp>

#include <algorithm>
#include <array>
#include <numeric>
#include <random>
#include <string>
#include <vector>

using bench::Run;

namespace {

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
    const mint count = std::max(1, 200000 / rows);
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

  // One input a call, each in its turn.
  template <class Call> Run forEach(Call call) {
    return bench::repeated([this, call, next = size_t{0}]() mutable {
      call(tensors[next]);
      next = (next + 1) % tensors.size();
    });
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

template <class Value> void stableSortValues(const MTensor *tensor) {
  static std::vector<Value> values;
  const auto *x = static_cast<const Value *>(tensor->data);
  values.assign(x, x + tensor->dimensions[0]);
  std::stable_sort(values.begin(), values.end());
}

// What is asked of an order; nothing is asked of a sort.
constexpr double kRandom = 0.5, kSorted = 1.2, kRows = 0.8;

template <class Element, class Draw>
void measure(const std::string &name, double aim, mint rows, mint length, const Draw &draw) {
  if (!bench::isWanted("order, " + name) && !bench::isWanted("sort, " + name)) return;
  Inputs<Element> in(rows, length, draw);
  const bool isSingle = length == 1;
  const double count = rows, read = sizeof(Element) * count * length;
  const auto row = [&](const char *what, double written, double asked) {
    return bench::Row{std::string(what) + ", " + name, count, {read, written}, asked};
  };
  bench::compare(
      row("order", sizeof(mint) * count, aim),
      {{"ours", in.forEach([&](MTensor *t) { Runtime_MTensor_computeSortPermutation(in.permutation, t); })},
       {"std", in.forEach([&](MTensor *t) { stableSortRows(in, t); })},
       {"flat", isSingle ? in.forEach([&](MTensor *t) { flatStableSortPairs(in, t); }) : Run()}});
  const Run std3 = in.forEach([](MTensor *t) { stableSortValues<std::array<Element, 3>>(t); });
  bench::compare(
      row("sort", read, 0),
      {{"ours", in.forEach([&](MTensor *t) { Runtime_MTensor_Sort(&in.result, t); })},
       {"std", isSingle ? in.forEach([](MTensor *t) { stableSortValues<Element>(t); }) : std3},
       {"spread", isSingle ? in.forEach([](MTensor *t) { spreadSortValues<Element>(t); }) : Run()}});
}

std::mt19937 generator(1);
mint anyInteger(mint) { return static_cast<mint>(generator()); }
mreal anyReal(mint) { return std::uniform_real_distribution<>(0, 1)(generator); }

void measureAll(mint rows) {
  std::normal_distribution<> normal(0, 1);
  const auto below = [](unsigned n) { return [n](mint) { return static_cast<mint>(generator() % n); }; };
  const auto tenths = [](mint) { return static_cast<double>(generator() % 10) * 0.1; };
  if (rows > 1000) measure<mreal>("normal reals", kRandom, rows, 1, [&](mint) { return normal(generator); });
  measure<mint>("10 distinct integers", kRandom, rows, 1, below(10));
  measure<mreal>("10 distinct reals", kRandom, rows, 1, tenths);
  measure<mint>("sorted integers", kSorted, rows, 1, [](mint k) { return k; });
  measure<mreal>("sorted reals", kSorted, rows, 1, [](mint k) { return k * 0.1; });
  measure<mint>("descending integers", kSorted, rows, 1, [](mint k) { return -k; });
  measure<mint>("rows of 3 integers", kRows, rows, 3, anyInteger);
  measure<mreal>("rows of 3 reals", kRows, rows, 3, anyReal);
  measure<mint>("rows of 3, 30 distinct", kRows, rows, 3, below(30));
  measure<mreal>("rows of 3 reals, 30 distinct", kRows, rows, 3,
                 [](mint) { return static_cast<double>(generator() % 30); });
}

} // namespace

int main(int argc, char **argv) {
  bench::start("sorting", "ns a row", argc, argv);
  InitializeRuntimeLibrary();
  for (mint rows = 1000; rows <= 10000000; rows *= 10) {
    measure<mint>("integers", kRandom, rows, 1, anyInteger);
    if (rows <= 1000000) measure<mreal>("reals", kRandom, rows, 1, anyReal);
    if (rows == 1000 || rows == 1000000) measureAll(rows);
  }
}

// Sets beside a sort and one pass, tallies beside a sort alone, each by the standard library and by our own
// sort; counts beside the standard library's.
#include "algorithms/search.h"
#include "algorithms/sets.h"
#include "algorithms/tally.h"
#include "table.h"

#include <torvane/torvane.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <string>
#include <vector>

using bench::Run;

namespace {

volatile mint sink;

template <class Element>
constexpr mint kTypeOf = sizeof(Element) == sizeof(mint) ? TORVANE_TYPE_INTEGER : TORVANE_TYPE_REAL;

// Pairs of vectors of one length. Short ones are many, and come one after another, so that no branch
// predictor learns them by heart.
template <class Element> struct Inputs {
  mint rows;
  std::vector<MTensor *> first, second;

  template <class Draw> Inputs(mint rowCount, const Draw &draw) : rows(rowCount) {
    for (mint k = 0; k < std::max(1, 300000 / rows); ++k)
      for (auto *list : {&first, &second}) {
        list->push_back(MTensor_newAllocatedCommon(kTypeOf<Element>, 1, &rows, 0));
        std::generate_n(static_cast<Element *>(list->back()->data), rows, draw);
      }
  }
  ~Inputs() {
    for (auto *list : {&first, &second})
      for (MTensor *tensor : *list) MTensor_delete(tensor);
  }
  Inputs(const Inputs &) = delete;
  Inputs &operator=(const Inputs &) = delete;

  template <class Call> Run inTurn(Call call) const {
    return [call, inputs = first.size(), k = size_t{0}](int repeats) mutable {
      for (int i = 0; i < repeats; ++i) {
        call(k);
        k = k + 1 < inputs ? k + 1 : 0;
        asm volatile("" : : : "memory");
      }
    };
  }
};

// The elements of a tensor sorted in a vector, by the standard library or by ours.
template <class Element> void sortInto(std::vector<Element> &to, const MTensor *tensor) {
  const auto *x = static_cast<const Element *>(tensor->data);
  to.assign(x, x + tensor->elementCount);
  std::sort(to.begin(), to.end());
}
template <class Element> struct OurSort {
  MTensor *slot = nullptr;
  Element *run(MTensor *tensor) {
    Runtime_MTensor_Sort(&slot, tensor);
    return static_cast<Element *>(slot->data);
  }
  ~OurSort() { MTensor_delete(slot); }
};

constexpr const char *kStdSort = "std::sort", *kOurSort = "our sort";

template <class Element> void compareUnion(const std::string &values, const Inputs<Element> &in) {
  MTensor *slot = nullptr;
  std::vector<Element> copy;
  OurSort<Element> sort;
  const auto ours = [&](size_t k) { torvane::MTensor_union(&slot, &in.first[k], 1); };
  const auto byStd = [&](size_t k) {
    sortInto(copy, in.first[k]);
    sink = static_cast<mint>(std::unique(copy.begin(), copy.end()) - copy.begin());
  };
  const auto bySort = [&](size_t k) {
    Element *x = sort.run(in.first[k]);
    sink = static_cast<mint>(std::unique(x, x + in.rows) - x);
  };
  bench::compare({"Union, " + values, double(in.rows), {}, 1.2},
                 {{"ours", in.inTurn(ours)}, {kStdSort, in.inTurn(byStd)}, {kOurSort, in.inTurn(bySort)}});
  MTensor_delete(slot);
}

struct Difference {
  static constexpr const char *kName = "Complement";
  static constexpr mint kMode = torvane::kComplement;
  template <class I, class O> static void run(I a, I aEnd, I b, I bEnd, O to) {
    std::set_difference(a, aEnd, b, bEnd, to);
  }
};
struct Intersection {
  static constexpr const char *kName = "Intersection";
  static constexpr mint kMode = torvane::kIntersection;
  template <class I, class O> static void run(I a, I aEnd, I b, I bEnd, O to) {
    std::set_intersection(a, aEnd, b, bEnd, to);
  }
};

template <class Operation, class Element>
void compareOperation(const std::string &values, const Inputs<Element> &in) {
  MTensor *slot = nullptr;
  std::vector<Element> a, b, result(static_cast<size_t>(in.rows));
  OurSort<Element> sortA, sortB;
  const auto ours = [&](size_t k) {
    MTensor *pair[] = {in.first[k], in.second[k]};
    torvane::MTensor_setOperation(&slot, pair, 2, Operation::kMode);
  };
  const auto byStd = [&](size_t k) {
    sortInto(a, in.first[k]);
    sortInto(b, in.second[k]);
    Operation::run(a.begin(), std::unique(a.begin(), a.end()), b.begin(), b.end(), result.begin());
  };
  const auto bySort = [&](size_t k) {
    Element *x = sortA.run(in.first[k]), *y = sortB.run(in.second[k]);
    Operation::run(x, std::unique(x, x + in.rows), y, y + in.rows, result.data());
  };
  bench::compare({std::string(Operation::kName) + ", " + values, double(in.rows), {}, 1.2},
                 {{"ours", in.inTurn(ours)}, {kStdSort, in.inTurn(byStd)}, {kOurSort, in.inTurn(bySort)}});
  MTensor_delete(slot);
}

template <class Element> void compareSets(const std::string &values, const Inputs<Element> &in) {
  compareUnion(values, in);
  compareOperation<Difference>(values, in);
  compareOperation<Intersection>(values, in);
}

void compareTally(const std::string &values, double aim, const Inputs<mint> &in) {
  MTensor *slot = nullptr;
  std::vector<mint> copy;
  OurSort<mint> sort;
  bench::compare({"Tally, " + values + ", of a sort", double(in.rows), {}, aim},
                 {{"ours", in.inTurn([&](size_t k) { torvane::MTensor_tally(&slot, in.first[k]); })},
                  {kStdSort, in.inTurn([&](size_t k) { sortInto(copy, in.first[k]); })},
                  {kOurSort, in.inTurn([&](size_t k) { sort.run(in.first[k]); })}});
  MTensor_delete(slot);
}

template <class Element> void compareSearch(const std::string &values, const Inputs<Element> &in) {
  MTensor *pattern = MTensor_newAllocatedCommon(kTypeOf<Element>, 0, nullptr, 0);
  auto *wanted = static_cast<Element *>(pattern->data);
  const auto search = [&](size_t k) { return torvane::Search{in.first[k], pattern, 0}; };
  const auto begin = [&](size_t k) { return static_cast<const Element *>(in.first[k]->data); };
  const auto end = [&](size_t k) { return begin(k) + in.rows; };
  const bench::Work work = {double(sizeof(Element)) * in.rows};
  *wanted = 3;
  bench::compare({"Count, " + values, double(in.rows), work},
                 {{"ours", in.inTurn([&](size_t k) { sink = torvane::countMatches(search(k)); })},
                  {"std::count", in.inTurn([&](size_t k) {
                     sink = static_cast<mint>(std::count(begin(k), end(k), *wanted));
                   })}});
  *wanted = -1;
  bench::compare(
      {"MemberQ, none, " + values, double(in.rows), work},
      {{"ours", in.inTurn([&](size_t k) { sink = torvane::hasMatch(search(k)); })},
       {"std::find", in.inTurn([&](size_t k) { sink = std::find(begin(k), end(k), *wanted) != end(k); })}});
  MTensor_delete(pattern);
}

std::mt19937 generator(1);

auto below(mint n) {
  return [n] { return static_cast<mint>(generator() % static_cast<unsigned>(n)); };
}
auto realBelow(mint n) {
  return [draw = below(n)] { return draw() * 0.37; };
}

constexpr double kSmallRange = 0.5;

void compareAll(mint rows) {
  compareSets("integers", Inputs<mint>(rows, below(INT32_MAX)));
  compareSets("integers below n", Inputs<mint>(rows, below(rows)));
  compareSets("10 integers", Inputs<mint>(rows, below(10)));
  compareSets("reals", Inputs<mreal>(rows, realBelow(INT32_MAX)));
  compareSets("10 reals", Inputs<mreal>(rows, realBelow(10)));
  compareTally("one value", kSmallRange, Inputs<mint>(rows, below(1)));
  compareTally("10 values", kSmallRange, Inputs<mint>(rows, below(10)));
  compareTally("100 values", kSmallRange, Inputs<mint>(rows, below(100)));
  compareTally("n / 10 values", kSmallRange, Inputs<mint>(rows, below(rows / 10)));
  compareTally("n values", 0, Inputs<mint>(rows, below(rows)));
  compareTally("any values", 0, Inputs<mint>(rows, below(INT32_MAX)));
  compareSearch("integers", Inputs<mint>(rows, below(10)));
  compareSearch("reals", Inputs<mreal>(rows, below(10)));
}

// Sorts of so many take long.
void compareLargest(mint rows) {
  compareSets("integers", Inputs<mint>(rows, below(INT32_MAX)));
  compareSets("10 integers", Inputs<mint>(rows, below(10)));
  compareSets("reals", Inputs<mreal>(rows, realBelow(INT32_MAX)));
  compareTally("10 values", kSmallRange, Inputs<mint>(rows, below(10)));
  compareTally("any values", 0, Inputs<mint>(rows, below(INT32_MAX)));
}

} // namespace

int main(int argc, char **argv) {
  bench::start("sets", "ns a row", argc, argv, 21);
  InitializeRuntimeLibrary();
  compareAll(1000);
  compareAll(100000);
  compareLargest(1000000);
}

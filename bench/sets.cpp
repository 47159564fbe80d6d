// Sets, tallies and counts beside a sort and one pass, by the standard library and by our own sort, all in
// this process: rounds alternate between the candidates, and the least of each counts. Prints nanoseconds a
// row of the first operand, and our ratio to the better peer.
//
// Short inputs come as many different ones, one after another, so that no branch predictor learns them by
// heart.
//
//   bench_sets [rounds [largest count [smallest count]]]
#include "algorithms/search.h"
#include "algorithms/sets.h"
#include "algorithms/tally.h"

#include <torvane/torvane.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <random>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Run = std::function<void(size_t)>;

int rounds = 9;
volatile mint sink;

template <class Element>
constexpr mint kTypeOf = sizeof(Element) == sizeof(mint) ? TORVANE_TYPE_INTEGER : TORVANE_TYPE_REAL;

// Pairs of vectors of one length.
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

  double nanosecondsARow(const Run &run) const {
    const auto start = Clock::now();
    for (size_t k = 0; k < first.size(); ++k) run(k);
    const std::chrono::duration<double, std::nano> taken = Clock::now() - start;
    return taken.count() / static_cast<double>(first.size()) / rows;
  }
};

// Ours first.
template <class Element>
void measure(const char *what, const char *values, const Inputs<Element> &in,
             const std::vector<Run> &candidates) {
  std::vector<double> least(candidates.size(), 1e300);
  for (int round = 0; round < rounds; ++round)
    for (size_t k = 0; k < candidates.size(); ++k)
      least[k] = std::min(least[k], in.nanosecondsARow(candidates[k]));
  const double best = *std::min_element(least.begin() + 1, least.end());
  std::printf("%-13s %-20s %8d %8.2f", what, values, in.rows, least[0]);
  for (size_t k = 1; k < least.size(); ++k) std::printf(" %8.2f", least[k]);
  if (least.size() == 2) std::printf("        -");
  std::printf(" %6.2f\n", least[0] / best);
  std::fflush(stdout);
}

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

template <class Element> void measureUnion(const char *values, const Inputs<Element> &in) {
  MTensor *slot = nullptr;
  std::vector<Element> copy;
  OurSort<Element> ours;
  measure("Union", values, in,
          {[&](size_t k) { torvane::MTensor_union(&slot, &in.first[k], 1); },
           [&](size_t k) {
             sortInto(copy, in.first[k]);
             sink = static_cast<mint>(std::unique(copy.begin(), copy.end()) - copy.begin());
           },
           [&](size_t k) {
             Element *x = ours.run(in.first[k]);
             sink = static_cast<mint>(std::unique(x, x + in.rows) - x);
           }});
  MTensor_delete(slot);
}

struct Difference {
  template <class I, class O> static void run(I a, I aEnd, I b, I bEnd, O to) {
    std::set_difference(a, aEnd, b, bEnd, to);
  }
};
struct Intersection {
  template <class I, class O> static void run(I a, I aEnd, I b, I bEnd, O to) {
    std::set_intersection(a, aEnd, b, bEnd, to);
  }
};

template <class Peer, class Element>
void measureOperation(const char *what, mint mode, const char *values, const Inputs<Element> &in) {
  MTensor *slot = nullptr;
  std::vector<Element> a, b, result(static_cast<size_t>(in.rows));
  OurSort<Element> oursA, oursB;
  measure(what, values, in,
          {[&](size_t k) {
             MTensor *pair[] = {in.first[k], in.second[k]};
             torvane::MTensor_setOperation(&slot, pair, 2, mode);
           },
           [&](size_t k) {
             sortInto(a, in.first[k]);
             sortInto(b, in.second[k]);
             Peer::run(a.begin(), std::unique(a.begin(), a.end()), b.begin(), b.end(), result.begin());
           },
           [&](size_t k) {
             Element *x = oursA.run(in.first[k]), *y = oursB.run(in.second[k]);
             Peer::run(x, std::unique(x, x + in.rows), y, y + in.rows, result.data());
           }});
  MTensor_delete(slot);
}

template <class Element> void measureSets(const char *values, const Inputs<Element> &in) {
  measureUnion(values, in);
  measureOperation<Difference>("Complement", torvane::kComplement, values, in);
  measureOperation<Intersection>("Intersection", torvane::kIntersection, values, in);
}

// Beside sorts alone.
void measureTally(const char *values, const Inputs<mint> &in) {
  MTensor *slot = nullptr;
  std::vector<mint> copy;
  OurSort<mint> ours;
  measure("Tally", values, in,
          {[&](size_t k) { torvane::MTensor_tally(&slot, in.first[k]); },
           [&](size_t k) { sortInto(copy, in.first[k]); }, [&](size_t k) { ours.run(in.first[k]); }});
  MTensor_delete(slot);
}

template <class Element> void measureSearch(const char *values, const Inputs<Element> &in) {
  MTensor *pattern = MTensor_newAllocatedCommon(kTypeOf<Element>, 0, nullptr, 0);
  auto *wanted = static_cast<Element *>(pattern->data);
  const auto begin = [&](size_t k) { return static_cast<const Element *>(in.first[k]->data); };
  *wanted = 3;
  measure("Count", values, in,
          {[&](size_t k) {
             sink = torvane::countMatches({in.first[k], pattern, 0});
           },
           [&](size_t k) { sink = static_cast<mint>(std::count(begin(k), begin(k) + in.rows, *wanted)); }});
  *wanted = -1;
  measure("MemberQ, none", values, in,
          {[&](size_t k) {
             sink = torvane::hasMatch({in.first[k], pattern, 0});
           },
           [&](size_t k) { sink = std::find(begin(k), begin(k) + in.rows, *wanted) != begin(k) + in.rows; }});
  MTensor_delete(pattern);
}

} // namespace

int main(int argc, char **argv) {
  if (argc > 1) rounds = std::atoi(argv[1]);
  const mint largest = argc > 2 ? std::atoi(argv[2]) : 1000000,
             smallest = argc > 3 ? std::atoi(argv[3]) : 1000;
  InitializeRuntimeLibrary();
  std::mt19937 random(1);
  const auto below = [&random](mint n) {
    return [&random, n] { return static_cast<mint>(random() % static_cast<unsigned>(n)); };
  };
  const auto realBelow = [&](mint n) { return [draw = below(n)] { return draw() * 0.37; }; };
  std::printf("%-13s %-20s %8s %8s %8s %8s %6s\n", "ns a row", "values", "rows", "ours", "std", "sort",
              "ratio");
  for (mint rows = smallest; rows <= largest; rows *= 10) {
    measureSets("integers", Inputs<mint>(rows, below(INT32_MAX)));
    measureSets("integers below n", Inputs<mint>(rows, below(rows)));
    measureSets("10 distinct", Inputs<mint>(rows, below(10)));
    measureSets("reals", Inputs<mreal>(rows, realBelow(INT32_MAX)));
    measureSets("reals, n distinct", Inputs<mreal>(rows, realBelow(rows)));
    measureSets("reals, 10 distinct", Inputs<mreal>(rows, realBelow(10)));
    measureTally("one value", Inputs<mint>(rows, below(1)));
    measureTally("10 distinct", Inputs<mint>(rows, below(10)));
    measureTally("100 distinct", Inputs<mint>(rows, below(100)));
    measureTally("n / 10 distinct", Inputs<mint>(rows, below(rows / 10)));
    measureTally("n distinct", Inputs<mint>(rows, below(rows)));
    measureTally("any", Inputs<mint>(rows, below(INT32_MAX)));
    measureSearch("integers", Inputs<mint>(rows, below(10)));
    measureSearch("reals", Inputs<mreal>(rows, below(10)));
  }
}

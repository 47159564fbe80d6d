// Extremes, totals and running sums by name beside Eigen and plain loops, all in this process: the candidates
// of a row alternate, and the least of each counts. Prints nanoseconds an element and our ratio to the best
// peer. The peers are compiled for the machine at hand; ours chooses for itself when it runs.
//
//   bench_reductions [rounds [part of a row's name]]
#include "algorithms/registry.h"

#include <torvane/torvane.h>

#include <Eigen/Core>

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
using Run = std::function<void()>;

int rounds = 40;
std::string wanted;

double nanoseconds(const Run &run, int repeats) {
  const auto start = Clock::now();
  for (int i = 0; i < repeats; ++i) {
    run();
    asm volatile("" : : : "memory");
  }
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / repeats;
}

std::vector<double> leastOf(const std::vector<Run> &candidates) {
  std::vector<double> least(candidates.size(), 1e300);
  std::vector<int> repeats;
  for (const Run &run : candidates) {
    run();
    repeats.push_back(std::clamp(static_cast<int>(30e3 / nanoseconds(run, 1)), 1, 2000));
  }
  for (int round = 0; round < rounds; ++round)
    for (size_t k = 0; k < candidates.size(); ++k)
      least[k] = std::min(least[k], nanoseconds(candidates[k], repeats[k]));
  return least;
}

void report(const std::string &name, mint count, const std::vector<Run> &candidates) {
  if (name.find(wanted) == std::string::npos) return;
  const std::vector<double> least = leastOf(candidates);
  const double best = *std::min_element(least.begin() + 1, least.end());
  std::printf("%-38s %9d", name.c_str(), count);
  for (double time : least) std::printf(" %8.3f", time / count);
  std::printf("   ratio %.2f\n", least[0] / best);
  std::fflush(stdout);
}

// A function of the registry, its arguments and its slot.
struct Call {
  RuntimeFunctionHandler handler;
  std::vector<void *> arguments;
  MTensor *slot = nullptr;

  Call(const char *name, std::vector<void *> values)
      : handler(torvane::lookupRuntimeFunction(name)), arguments(std::move(values)) {}
  ~Call() { MTensor_delete(slot); }
  Call(const Call &) = delete;
  Call &operator=(const Call &) = delete;

  void run(void *result) {
    if (handler(nullptr, static_cast<mint>(arguments.size()), arguments.data(), result) != 0) std::abort();
  }
  void operator()() { run(&slot); }
};

template <class T> struct Drawn {
  MTensor *tensor;
  const T *x;

  explicit Drawn(std::vector<mint> extents) {
    static std::mt19937 random(1);
    tensor = MTensor_newAllocatedCommon(sizeof(T) == 4 ? TORVANE_TYPE_INTEGER : TORVANE_TYPE_REAL,
                                        static_cast<mint>(extents.size()), extents.data(), 0);
    auto *elements = static_cast<T *>(tensor->data);
    for (mint i = 0; i < tensor->elementCount; ++i)
      elements[i] = sizeof(T) == 4 ? static_cast<T>(random() % 1000) : static_cast<T>(random()) / 7;
    x = elements;
  }
  ~Drawn() { MTensor_delete(tensor); }
  Drawn(const Drawn &) = delete;
  Drawn &operator=(const Drawn &) = delete;
};

volatile double sink;

template <class T> constexpr const char *kElements = sizeof(T) == 8 ? " reals" : " integers";

template <class T> void extremes(mint count) {
  using Vector = Eigen::Map<const Eigen::Array<T, Eigen::Dynamic, 1>>;
  Drawn<T> drawn({count});
  const bool isReal = sizeof(T) == 8;
  Call least(isReal ? "MinRT" : "MinIT", {&drawn.tensor}), most(isReal ? "MaxRT" : "MaxIT", {&drawn.tensor});
  mreal result;
  const Vector x(drawn.x, count);
  report(std::string("min of") + kElements<T>, count,
         {[&] { least.run(&result); }, [&] { sink = static_cast<double>(x.minCoeff()); }});
  report(std::string("max of") + kElements<T>, count,
         {[&] { most.run(&result); }, [&] { sink = static_cast<double>(x.maxCoeff()); }});
}

// Rows added up one by one, as a plain loop nest does, with the columns in vector registers.
template <class T> void plainRows(T *__restrict sums, const T *x, mint rows, mint width) {
  std::fill_n(sums, width, T(0));
  for (mint i = 0; i < rows; ++i)
    for (mint j = 0; j < width; ++j) sums[j] += x[static_cast<ptrdiff_t>(i) * width + j];
}

template <class T> void totals(mint rows, mint width) {
  using Matrix = Eigen::Map<const Eigen::Array<T, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>>;
  Drawn<T> drawn({rows, width});
  mint none = 0, all = 6;
  Call plain("Total", {&drawn.tensor, &none}), checked("Total", {&drawn.tensor, &all});
  std::vector<T> sums(static_cast<size_t>(width));
  Eigen::Array<T, 1, Eigen::Dynamic> sum(width);
  const std::string name = "total of " + std::to_string(rows) + " x " + std::to_string(width) + kElements<T>;
  const Run loop = [&] { plainRows(sums.data(), drawn.x, rows, width); };
  const Run eigen = [&] { sum = Matrix(drawn.x, rows, width).colwise().sum(); };
  report(name, rows * width, {std::ref(plain), loop, eigen});
  report(name + ", checked", rows * width, {std::ref(checked), loop, eigen});
}

template <class T> void vectors(mint count) {
  Drawn<T> drawn({count});
  mint flags = 6;
  Call all("TotalAll", {&drawn.tensor, &flags}), running("Accumulate", {&drawn.tensor, &flags});
  std::vector<T> sums(static_cast<size_t>(count));
  mreal result[2];
  // Sums of integers are kept small: a plain loop would not notice that one leaves the range.
  if (sizeof(T) == 4) {
    auto *x = static_cast<mint *>(drawn.tensor->data);
    for (mint i = 0; i < count; ++i) x[i] %= 100;
  }
  report(std::string("checked total of all") + kElements<T>, count,
         {[&] { all.run(result); },
          [&] {
            T sum = 0;
            for (mint i = 0; i < count; ++i) sum += drawn.x[i];
            sink = static_cast<double>(sum);
          }});
  report(std::string("running sums of") + kElements<T>, count, {std::ref(running), [&] {
                                                                  T sum = 0;
                                                                  for (mint i = 0; i < count; ++i)
                                                                    sums[static_cast<size_t>(i)] = sum +=
                                                                        drawn.x[i];
                                                                }});
  Drawn<mint> one({1});
  *static_cast<mint *>(one.tensor->data) = 1;
  Call differences("Differences", {&drawn.tensor, &one.tensor, &flags});
  report(std::string("differences of") + kElements<T>, count, {std::ref(differences), [&] {
                                                                 for (mint i = 0; i + 1 < count; ++i)
                                                                   sums[static_cast<size_t>(i)] =
                                                                       drawn.x[i + 1] - drawn.x[i];
                                                               }});
}

} // namespace

int main(int argc, char **argv) {
  if (argc > 1) rounds = std::atoi(argv[1]);
  if (argc > 2) wanted = argv[2];
  InitializeRuntimeLibrary();
  std::printf("%-38s %9s %8s %8s\n", "ns an element", "elements", "ours", "peers");
  for (mint count : {10, 1000, 100000, 10000000}) {
    extremes<mint>(count);
    extremes<mreal>(count);
  }
  for (auto [rows, width] : {std::pair{1000, 10000},
                             {10000, 1000},
                             {100, 100000},
                             {1000000, 10},
                             {3000000, 3},
                             {100, 1000},
                             {1000, 100},
                             {10000, 10},
                             {100, 10}}) {
    totals<mint>(rows, width);
    totals<mreal>(rows, width);
  }
  for (mint count : {1000, 100000, 10000000}) {
    vectors<mint>(count);
    vectors<mreal>(count);
  }
}

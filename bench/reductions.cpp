// Extremes, totals and running sums by name beside Eigen and plain loops. The peers are compiled for the
// machine at hand and check nothing; ours chooses for itself when it runs.
#include "named_call.h"
#include "table.h"

#include <Eigen/Core>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

using bench::compare;
using bench::NamedCall;
using bench::repeated;
using bench::Run;
using bench::Tensor;

namespace {

template <class T> constexpr bool kIsReal = sizeof(T) == sizeof(mreal);
template <class T> const std::string kElements = kIsReal<T> ? "reals" : "integers";

// Integers below `bound`; reals of any size.
template <class T> Tensor drawn(const std::vector<mint> &extents, unsigned bound = 1000) {
  static std::mt19937 random(1);
  Tensor tensor = bench::newTensor(kIsReal<T> ? TORVANE_TYPE_REAL : TORVANE_TYPE_INTEGER, extents);
  std::generate_n(static_cast<T *>(tensor->data), tensor->elementCount, [&] {
    return kIsReal<T> ? static_cast<T>(random()) / 7 : static_cast<T>(random() % bound);
  });
  return tensor;
}

template <class T> const T *elements(const Tensor &tensor) { return static_cast<const T *>(tensor->data); }

volatile double sink;

template <class T> void compareExtremes(mint count) {
  const Tensor tensor = drawn<T>({count});
  NamedCall least(kIsReal<T> ? "MinRT" : "MinIT"), most(kIsReal<T> ? "MaxRT" : "MaxIT");
  least.tensor(tensor), most.tensor(tensor);
  mreal result;
  const Eigen::Map<const Eigen::Array<T, Eigen::Dynamic, 1>> x(elements<T>(tensor), count);
  const bench::Work work = {double(sizeof(T)) * count};
  // A call by name costs some 10 ns, which nobody counts but with few elements.
  const double aim = count >= 1000 ? 1.1 : 0;
  compare({"min of " + kElements<T>, double(count), work, aim},
          {{"ours", repeated([&] { least.run(&result); })},
           {"Eigen", repeated([&] { sink = static_cast<double>(x.minCoeff()); })}});
  compare({"max of " + kElements<T>, double(count), work, aim},
          {{"ours", repeated([&] { most.run(&result); })},
           {"Eigen", repeated([&] { sink = static_cast<double>(x.maxCoeff()); })}});
}

// Rows added up one by one, as a plain loop nest does, with the columns in vector registers.
template <class T> void plainRows(T *__restrict sums, const T *x, mint rows, mint width) {
  std::fill_n(sums, width, T(0));
  for (mint i = 0; i < rows; ++i)
    for (mint j = 0; j < width; ++j) sums[j] += x[static_cast<ptrdiff_t>(i) * width + j];
}

template <class T> void compareTotals(mint rows, mint width) {
  using Matrix = Eigen::Map<const Eigen::Array<T, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>>;
  const Tensor tensor = drawn<T>({rows, width});
  const T *x = elements<T>(tensor);
  std::vector<T> sums(static_cast<size_t>(width));
  Eigen::Array<T, 1, Eigen::Dynamic> sum(width);
  const Run loop = repeated([&] { plainRows(sums.data(), x, rows, width); });
  const Run eigen = repeated([&] { sum = Matrix(x, rows, width).colwise().sum(); });
  const std::string name =
      "total of " + std::to_string(rows) + " x " + std::to_string(width) + " " + kElements<T>;
  const double count = double(rows) * width;
  for (const mint flags : {0, 6}) {
    MTensor *slot = nullptr;
    NamedCall total("Total");
    total.tensor(tensor).integer(flags);
    compare({name + (flags != 0 ? ", checked" : ""),
             count,
             {sizeof(T) * count, double(sizeof(T)) * width, kIsReal<T> ? count : 0},
             1.1},
            {{"ours", repeated([&] { total.run(&slot); })}, {"plain loop", loop}, {"Eigen", eigen}});
    MTensor_delete(slot);
  }
}

template <class T> T plainTotal(const T *x, mint count) {
  T sum = 0;
  for (mint i = 0; i < count; ++i) sum += x[i];
  return sum;
}

template <class T> void plainRunningSums(T *__restrict sums, const T *x, mint count) {
  T sum = 0;
  for (mint i = 0; i < count; ++i) sums[i] = sum += x[i];
}

template <class T> void plainDifferences(T *__restrict differences, const T *x, mint count) {
  for (mint i = 0; i + 1 < count; ++i) differences[i] = x[i + 1] - x[i];
}

template <class T> void compareVectors(mint count) {
  // Sums of integers are kept small: a plain loop would not notice that one leaves the range.
  const Tensor tensor = drawn<T>({count}, 100), one = drawn<mint>({1});
  *static_cast<mint *>(one->data) = 1;
  const T *x = elements<T>(tensor);
  constexpr mint kChecked = 6;
  NamedCall total("TotalAll"), running("Accumulate"), differences("Differences");
  total.tensor(tensor).integer(kChecked);
  running.tensor(tensor).integer(kChecked);
  differences.tensor(tensor).tensor(one).integer(kChecked);
  std::vector<T> to(static_cast<size_t>(count));
  const double bytes = double(sizeof(T)) * count;
  const auto row = [&](const char *what, bench::Work work) {
    return bench::Row{what + kElements<T> + ", checked", double(count), work};
  };
  mreal result[2];
  compare(row("total of all ", {bytes}),
          {{"ours", repeated([&] { total.run(result); })},
           {"plain loop", repeated([&] { sink = static_cast<double>(plainTotal(x, count)); })}});
  MTensor *sums = nullptr, *steps = nullptr;
  compare(row("running sums of ", {bytes, bytes}),
          {{"ours", repeated([&] { running.run(&sums); })},
           {"plain loop", repeated([&] { plainRunningSums(to.data(), x, count); })}});
  compare(row("differences of ", {bytes, bytes}),
          {{"ours", repeated([&] { differences.run(&steps); })},
           {"plain loop", repeated([&] { plainDifferences(to.data(), x, count); })}});
  MTensor_delete(sums);
  MTensor_delete(steps);
}

} // namespace

int main(int argc, char **argv) {
  bench::start("reductions", "ns an element (peers check nothing)", argc, argv);
  InitializeRuntimeLibrary();
  for (const mint count : {10, 1000, 100000, 10000000}) {
    compareExtremes<mint>(count);
    compareExtremes<mreal>(count);
  }
  for (const auto &[rows, width] :
       {std::pair{1000, 10000}, {1000000, 10}, {3000000, 3}, {100, 1000}, {10000, 10}, {100, 10}}) {
    compareTotals<mint>(rows, width);
    compareTotals<mreal>(rows, width);
  }
  for (const mint count : {1000, 100000, 10000000}) {
    compareVectors<mint>(count);
    compareVectors<mreal>(count);
  }
}

// Elementwise mathematics beside plain loops, Eigen and xtensor, all in this process: the candidates of a row
// alternate, and the least of each counts, since neighbours on the machine only ever add. Prints nanoseconds
// an element (of the call on 10 elements: a call) and our ratio to the best peer. Everything runs on one
// thread but the last section.
//
//   bench_elementwise [rounds [part of a row's name]]
#include "elementwise_peers.h"

#include <torvane/torvane.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <random>

using peers::Data;
using peers::Peers;
using peers::Run;

namespace {

using Clock = std::chrono::steady_clock;

int rounds = 25;
std::string wanted;

double nanoseconds(const Run &run, int repeats) {
  const auto start = Clock::now();
  for (int i = 0; i < repeats; ++i) {
    run();
    asm volatile("" : : : "memory");
  }
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / repeats;
}

// So many that a timing takes about 30 microseconds.
int repeatsFor(const Run &run) {
  run();
  return std::clamp(static_cast<int>(30e3 / std::max(nanoseconds(run, 1), 1.0)), 1, 2000);
}

// Alternates; a row stops after two seconds, but not before seven rounds.
std::vector<double> minima(const std::vector<Run> &candidates) {
  std::vector<double> least(candidates.size());
  std::vector<int> repeats;
  for (const Run &run : candidates) repeats.push_back(run ? repeatsFor(run) : 0);
  const auto start = Clock::now();
  for (int round = 0; round < rounds && (round < 7 || Clock::now() - start < std::chrono::seconds(2));
       ++round)
    for (size_t c = 0; c < candidates.size(); ++c)
      if (candidates[c]) {
        const double time = nanoseconds(candidates[c], repeats[c]);
        least[c] = least[c] == 0 ? time : std::min(least[c], time);
      }
  return least;
}

bool isWanted(const std::string &name) { return name.find(wanted) != std::string::npos; }

void printCell(double value) { value > 0 ? std::printf(" %9.3f", value) : std::printf(" %9s", "-"); }

void printRow(const std::string &name, size_t count, const std::vector<double> &cells) {
  double best = 0;
  for (size_t c = 1; c < cells.size(); ++c)
    if (cells[c] > 0 && (best == 0 || cells[c] < best)) best = cells[c];
  std::printf("%-30s %9zu", name.c_str(), count);
  for (const double cell : cells) printCell(cell);
  best > 0 && cells[0] > 0 ? std::printf(" %7.2f\n", cells[0] / best) : std::printf(" %7s\n", "-");
  std::fflush(stdout);
}

void compare(const std::string &name, size_t count, const Run &ours, const Peers &others, double per) {
  std::vector<double> cells = minima({ours, others.plain, others.eigen, others.xtensor});
  for (double &cell : cells) cell /= per;
  printRow(name, count, cells);
}

// ---- operands -----------------------------------------------------------------------------------------

// Large enough that neither an overflow nor a domain ends a loop early.
Data operands(size_t count) {
  std::mt19937_64 random(count);
  Data d;
  d.count = count;
  d.rows = count == 1000 ? 10 : count == 100000 ? 100 : count == 10000000 ? 1000 : 1;
  for (size_t k = 0; k < count; ++k) {
    d.x.push_back(static_cast<double>(random() % 100000) / 20000 + 0.001);
    d.y.push_back(static_cast<double>(random() % 100000) / 50000 + 0.5);
    d.n.push_back(static_cast<mint>(random() % 80000) - 40000);
    d.m.push_back(static_cast<mint>(random() % 40000) - 20000);
  }
  d.perRow.assign(d.y.begin(), d.y.begin() + static_cast<std::ptrdiff_t>(d.rows));
  d.result.resize(count);
  d.words.resize(count);
  d.complexes.resize(count);
  return d;
}

const mint kDense[3] = {1, 1, 1};

Run unary(TorvaneUnaryRoutine routine, void *result, const void *x, size_t count) {
  return [=] { routine(result, x, static_cast<mint>(count), kDense, 0); };
}
Run binary(TorvaneBinaryRoutine routine, void *result, const void *x, const void *y, size_t count,
           mint flags) {
  return [=] { routine(result, x, y, static_cast<mint>(count), kDense, flags); };
}

// ---- rows ---------------------------------------------------------------------------------------------

void realRows(Data &d) {
  struct Binary {
    const char *name;
    TorvaneBinaryRoutine routine;
  };
  const Binary binaries[] = {{"plus", machfunc_dd_plus},     {"subtract", machfunc_dd_subtract},
                             {"times", machfunc_dd_times},   {"div", machfunc_dd_div},
                             {"maxabs", machfunc_dd_maxabs}, {"pow", machfunc_dd_pow}};
  for (const Binary &op : binaries)
    if (isWanted(op.name))
      compare(op.name, d.count, binary(op.routine, d.result.data(), d.x.data(), d.y.data(), d.count, 0),
              peersOf(op.name, d), double(d.count));
  if (isWanted("checked real plus")) // beside peers that test nothing
    compare("checked real plus", d.count,
            binary(machfunc_dd_plus, d.result.data(), d.x.data(), d.y.data(), d.count, TORVANE_CHECK_REALS),
            peersOf("plus", d), double(d.count));
  struct Unary {
    const char *name;
    mint number;
  };
  const Unary unaries[] = {{"sqrt", 57}, {"abs", 38}, {"ramp", 81}, {"exp", 32}, {"log", 34},
                           {"sin", 1},   {"cos", 2},  {"tan", 3},   {"tanh", 11}};
  for (const Unary &op : unaries)
    if (isWanted(op.name))
      compare(op.name, d.count,
              unary(machfunsarray_1[3 * op.number + 1], d.result.data(), d.x.data(), d.count),
              peersOf(op.name, d), double(d.count));
}

void integerRows(Data &d) {
  const std::pair<const char *, mint> roundings[] = {
      {"round", 49}, {"floor", 50}, {"ceiling", 51}, {"sign", 44}};
  for (const auto &[name, number] : roundings)
    if (isWanted(name))
      compare(name, d.count, unary(machfunsarray_1[3 * number + 1], d.words.data(), d.x.data(), d.count),
              peersOf(name, d), double(d.count));
  const std::pair<const char *, TorvaneBinaryRoutine> checked[] = {
      {"checked integer plus", machfunc_ii_plus}, {"checked integer times", machfunc_ii_times}};
  for (const auto &[name, routine] : checked)
    if (isWanted(name))
      compare(name, d.count,
              binary(routine, d.words.data(), d.n.data(), d.m.data(), d.count, TORVANE_CHECK_INTEGERS),
              peersOf(name, d), double(d.count));
}

// By name, so that a library that lacks one of them has a row without a figure.
void reductionRows(Data &d) {
  using Reduction = mint (*)(mint *, const mint *, mint, const mint *, mint);
  const std::pair<const char *, const char *> reductions[] = {{"integer total", "machfunc_i_total"},
                                                              {"integer max", "machfunc_i_max"},
                                                              {"integer min", "machfunc_i_min"},
                                                              {"integer minmax", "machfunc_i_minmax"}};
  for (const auto &[name, symbol] : reductions) {
    if (!isWanted(name)) continue;
    const auto routine = reinterpret_cast<Reduction>(dlsym(RTLD_DEFAULT, symbol));
    const Run ours = [&d, routine] {
      mint accumulator[2];
      routine(accumulator, d.n.data(), static_cast<mint>(d.count), kDense, 0);
    };
    compare(name, d.count, routine != nullptr ? ours : Run(), peersOf(name, d), double(d.count));
  }
}

// A tensor over the memory that the peers use too: caches hold as much of it for one as for the other.
struct Tensor {
  mint extents[2];
  MTensor record = {};
  Tensor(const Tensor &) = delete; // the record points into this one
  Tensor(mint type, mint rank, size_t rows, size_t columns, void *data)
      : extents{static_cast<mint>(rows), static_cast<mint>(columns)} {
    record.type = type;
    record.rank = rank;
    record.dimensions = rank == 0 ? nullptr : extents;
    record.elementCount = static_cast<mint>(rows * columns);
    record.data = data;
  }
};

Tensor matrix(std::vector<mreal> &values, size_t rows) {
  return Tensor(TORVANE_TYPE_REAL, 2, rows, values.size() / rows, values.data());
}

void wholeTensorRow(const char *name, const char *peer, Data &d, Tensor second) {
  if (!isWanted(name)) return;
  Tensor x = matrix(d.x, d.rows), result = matrix(d.result, d.rows);
  MTensor *slot = &result.record;
  compare(
      name, d.count, [&] { MTensorMathBinary(&slot, &x.record, &second.record, 257, TORVANE_TYPE_REAL); },
      peersOf(peer, d), double(d.count));
}

void wholeTensorRows(Data &d) {
  wholeTensorRow("whole plus, equal", "plus", d, matrix(d.y, d.rows));
  wholeTensorRow("whole plus, scalar", "whole plus, scalar", d,
                 Tensor(TORVANE_TYPE_REAL, 0, 1, 1, d.y.data()));
  wholeTensorRow("whole plus, rows", "whole plus, rows", d,
                 Tensor(TORVANE_TYPE_REAL, 1, d.rows, 1, d.perRow.data()));
}

void wideningRow(Data &d) {
  if (!isWanted("widening sqrt, half negative")) return;
  std::mt19937_64 random(3);
  for (mreal &x : d.x)
    if (random() % 2 == 0) x = -x;
  Tensor x = matrix(d.x, 1), result(TORVANE_TYPE_COMPLEX, 2, 1, d.count, d.complexes.data());
  MTensor *slot = &result.record;
  compare(
      "widening sqrt, half negative", d.count,
      [&] { MTensorMathUnary(&slot, &x.record, 57, TORVANE_TYPE_COMPLEX); },
      peersOf("widening sqrt, half negative", d), double(d.count));
  for (mreal &value : d.x) value = value < 0 ? -value : value;
}

void shortCall() {
  if (!isWanted("call on 10 elements")) return;
  Data d = operands(10);
  Tensor x = matrix(d.x, 1), y = matrix(d.y, 1), result = matrix(d.result, 1);
  MTensor *slot = &result.record;
  compare(
      "call on 10 elements", 10,
      [&] { MTensorMathBinary(&slot, &x.record, &y.record, 257, TORVANE_TYPE_REAL); }, peersOf("plus", d), 1);
}

void setThresholds(mint length) {
  for (mint i = 0; i < 5; ++i) setVectorParallelLengthThreshold(i, length);
}

// The same call with the pool and without it.
void workersRows(Data &d) {
  const std::pair<const char *, mint> functions[] = {{"exp", 32}, {"sin", 1}, {"tanh", 11}};
  for (const auto &[name, number] : functions) {
    if (!isWanted(std::string("workers ") + name)) continue;
    const Run call = unary(machfunsarray_1[3 * number + 1], d.result.data(), d.x.data(), d.count);
    const auto under = [&](mint threshold) {
      return [&call, threshold] {
        setThresholds(threshold);
        call();
      };
    };
    std::vector<double> cells = minima({under(INT_MAX), under(32768)});
    std::printf("%-30s %9zu %9.3f %9.3f %49.2f\n", (std::string("workers ") + name).c_str(), d.count,
                cells[0] / double(d.count), cells[1] / double(d.count), cells[0] / cells[1]);
  }
}

} // namespace

int main(int argc, char **argv) {
  if (argc > 1) rounds = std::atoi(argv[1]);
  if (argc > 2) wanted = argv[2];
  InitializeTorvaneRTL(nullptr, nullptr, nullptr);
  setThresholds(INT_MAX);
  std::printf("%-30s %9s %9s %9s %9s %9s %7s\n", "ns an element", "count", "ours", "plain", "Eigen",
              "xtensor", "ratio");
  shortCall();
  for (const size_t count : {size_t{1000}, size_t{100000}, size_t{10000000}}) {
    Data d = operands(count);
    realRows(d);
    integerRows(d);
    reductionRows(d);
    wholeTensorRows(d);
    wideningRow(d);
    if (count == 10000000) {
      std::printf("%-30s %9s %9s %9s %49s\n", "one worker, all workers", "count", "one", "all", "times");
      workersRows(d);
    }
  }
}

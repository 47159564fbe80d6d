// Elementwise mathematics beside plain loops, Eigen and xtensor. Everything runs on one thread but the last
// rows.
#include "elementwise_peers.h"
#include "table.h"

#include <torvane/torvane.h>

#include <climits>
#include <random>

using bench::Candidate;
using bench::Work;
using peers::Data;
using peers::Peers;
using peers::Run;

namespace {

Candidate candidate(const char *name, const Run &run) {
  return {name, run ? bench::repeated(run) : bench::Run()};
}

// Work is of one element.
struct Operation {
  const char *name;
  Work work;
  double aim;
};
constexpr Work kUnary = {8, 8}, kBinary = {16, 8}, kSum = {16, 8, 1};

void compare(const Operation &op, size_t count, const Run &ours, const Peers &others) {
  const auto n = static_cast<double>(count);
  const Work work = {op.work.bytesRead * n, op.work.bytesWritten * n, op.work.operations * n};
  bench::compare({op.name, n, work, op.aim},
                 {candidate("ours", ours), candidate("plain", others.plain), candidate("Eigen", others.eigen),
                  candidate("xtensor", others.xtensor)});
}

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

const std::pair<Operation, TorvaneBinaryRoutine> kBinaries[] = {
    {{"plus", kSum, 1.05}, machfunc_dd_plus},        {{"subtract", kSum, 1.05}, machfunc_dd_subtract},
    {{"times", kSum, 1.05}, machfunc_dd_times},      {{"div", kBinary, 1.05}, machfunc_dd_div},
    {{"maxabs", kBinary, 1.05}, machfunc_dd_maxabs}, {{"pow", kBinary, 1.05}, machfunc_dd_pow}};

const std::pair<Operation, mint> kUnaries[] = {
    {{"sqrt", kUnary, 1.05}, 57}, {{"abs", kUnary, 1.05}, 38}, {{"ramp", kUnary, 1.05}, 81},
    {{"exp", kUnary, 1.05}, 32},  {{"log", kUnary, 1.05}, 34}, {{"sin", kUnary, 1.05}, 1},
    {{"cos", kUnary, 1.05}, 2},   {{"tan", kUnary, 1.05}, 3},  {{"tanh", kUnary, 1.05}, 11}};

void binaryRow(const std::pair<Operation, TorvaneBinaryRoutine> &row, Data &d) {
  const auto &[op, routine] = row;
  compare(op, d.count, binary(routine, d.result.data(), d.x.data(), d.y.data(), d.count, 0),
          peersOf(op.name, d));
}

// Ten million exponentials may take a quarter more.
void unaryRow(std::pair<Operation, mint> row, Data &d) {
  auto &[op, number] = row;
  if (number == 32 && d.count == 10000000) op.aim = 1.25;
  compare(op, d.count, unary(machfunsarray_1[3 * number + 1], d.result.data(), d.x.data(), d.count),
          peersOf(op.name, d));
}

// Functions that take long take as long with the operands in memory: two of them show it.
bool isLong(const std::string &name) {
  for (const char *one : {"pow", "log", "cos", "tan", "tanh"})
    if (name == one) return true;
  return false;
}

void realRows(Data &d) {
  const bool isHuge = d.count == 10000000;
  for (const auto &row : kBinaries)
    if (!isHuge || !isLong(row.first.name)) binaryRow(row, d);
  for (const auto &row : kUnaries)
    if (!isHuge || !isLong(row.first.name)) unaryRow(row, d);
  compare({"plus, checked, peers test nothing", kSum, 0}, d.count,
          binary(machfunc_dd_plus, d.result.data(), d.x.data(), d.y.data(), d.count, TORVANE_CHECK_REALS),
          peersOf("plus", d));
}

void integerRows(Data &d) {
  constexpr Work kRounding = {8, 4}, kIntegers = {8, 4};
  const std::pair<Operation, mint> roundings[] = {{{"round", kRounding, 1.05}, 49},
                                                  {{"floor", kRounding, 1.05}, 50},
                                                  {{"ceiling", kRounding, 1.05}, 51},
                                                  {{"sign", kRounding, 1.05}, 44}};
  for (const auto &[op, number] : roundings)
    compare(op, d.count, unary(machfunsarray_1[3 * number + 1], d.words.data(), d.x.data(), d.count),
            peersOf(op.name, d));
  const std::pair<Operation, TorvaneBinaryRoutine> checked[] = {
      {{"checked integer plus", kIntegers, 1.05}, machfunc_ii_plus},
      {{"checked integer times", kIntegers, 1.05}, machfunc_ii_times}};
  for (const auto &[op, routine] : checked)
    compare(op, d.count,
            binary(routine, d.words.data(), d.n.data(), d.m.data(), d.count, TORVANE_CHECK_INTEGERS),
            peersOf(op.name, d));
}

void reductionRows(Data &d) {
  const std::pair<Operation, decltype(&machfunc_i_total)> reductions[] = {
      {{"integer total", {4}, 1.1}, machfunc_i_total},
      {{"integer max", {4}, 1.1}, machfunc_i_max},
      {{"integer min", {4}, 1.1}, machfunc_i_min},
      {{"integer minmax", {4}, 1.1}, machfunc_i_minmax}};
  for (const auto &[op, routine] : reductions)
    compare(
        op, d.count,
        [&d, routine] {
          mint accumulator[2];
          routine(accumulator, d.n.data(), static_cast<mint>(d.count), kDense, 0);
        },
        peersOf(op.name, d));
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

void wholeTensorRow(const Operation &op, const char *peer, Data &d, Tensor second) {
  Tensor x = matrix(d.x, d.rows), result = matrix(d.result, d.rows);
  MTensor *slot = &result.record;
  compare(
      op, d.count, [&] { MTensorMathBinary(&slot, &x.record, &second.record, 257, TORVANE_TYPE_REAL); },
      peersOf(peer, d));
}

void wholeTensorRows(Data &d) {
  constexpr Work kOne = {8, 8, 1};
  wholeTensorRow({"whole plus, equal", kSum, 1.05}, "plus", d, matrix(d.y, d.rows));
  wholeTensorRow({"whole plus, scalar", kOne, 1.05}, "whole plus, scalar", d,
                 Tensor(TORVANE_TYPE_REAL, 0, 1, 1, d.y.data()));
  wholeTensorRow({"whole plus, rows", kOne, 1.05}, "whole plus, rows", d,
                 Tensor(TORVANE_TYPE_REAL, 1, d.rows, 1, d.perRow.data()));
}

// Beside a loop that widens likewise, and beside one that only takes the roots of positive reals.
void wideningRows(Data &d) {
  std::vector<mreal> mixed(d.x);
  std::mt19937_64 random(3);
  for (mreal &x : mixed)
    if (random() % 2 == 0) x = -x;
  Tensor x = matrix(mixed, 1), result(TORVANE_TYPE_COMPLEX, 2, 1, d.count, d.complexes.data());
  MTensor *slot = &result.record;
  const Run ours = [&] { MTensorMathUnary(&slot, &x.record, 57, TORVANE_TYPE_COMPLEX); };
  compare({"widening sqrt, half negative", {8, 16}, 0}, d.count, ours,
          {[&] { peers::widenRoots(d.complexes, mixed); }, {}, {}});
  compare({"widening sqrt, peer: sqrt of reals", {8, 16}, 4}, d.count, ours,
          {peersOf("sqrt", d).plain, {}, {}});
}

void shortCall() {
  Data d = operands(10);
  Tensor x = matrix(d.x, 1), y = matrix(d.y, 1), result = matrix(d.result, 1);
  MTensor *slot = &result.record;
  const Run ours = [&] { MTensorMathBinary(&slot, &x.record, &y.record, 257, TORVANE_TYPE_REAL); };
  bench::compare({"plus of 10 elements, a call", 1, {}, 0, 20}, {candidate("ours", ours)});
}

void setThresholds(mint length) {
  for (mint i = 0; i < 5; ++i) setVectorParallelLengthThreshold(i, length);
}

// The same call with the pool and without it. An aim of 0.56 is a speed-up of 1.8.
void workersRows(Data &d) {
  const std::pair<const char *, mint> functions[] = {
      {"workers, exp", 32}, {"workers, sin", 1}, {"workers, tanh", 11}};
  for (const auto &[name, number] : functions) {
    const Run call = unary(machfunsarray_1[3 * number + 1], d.result.data(), d.x.data(), d.count);
    const auto under = [&](mint threshold) {
      return bench::repeated([&call, threshold] {
        setThresholds(threshold);
        call();
      });
    };
    bench::compare({name, double(d.count), {}, 0.56},
                   {{"ours", under(32768)}, {"one worker", under(INT_MAX)}});
  }
  setThresholds(INT_MAX);
}

// Two rows at sizes in between, for a curve.
void curveRows(Data &d) {
  binaryRow(kBinaries[0], d);
  unaryRow(kUnaries[3], d);
}

} // namespace

int main(int argc, char **argv) {
  bench::start("elementwise", "ns an element", argc, argv);
  InitializeTorvaneRTL(nullptr, nullptr, nullptr);
  setThresholds(INT_MAX);
  shortCall();
  for (const size_t count : {100, 10000, 1000000}) {
    Data d = operands(count);
    curveRows(d);
  }
  for (const size_t count : {1000, 100000, 10000000}) {
    Data d = operands(count);
    realRows(d);
    integerRows(d);
    reductionRows(d);
    wholeTensorRows(d);
    wideningRows(d);
    if (count == 10000000) workersRows(d);
  }
}

// Parallel loops beside the serial loop, and the mapping of a compiled function beside a bare oneTBB loop and
// the serial one. The median call of each counts: two threads are as often luckier than usual as unluckier.
#include "parallel/first_failure.h"
#include "parallel/parallel.h"
#include "runtime/memory.h"
#include "runtime/thresholds.h"
#include "table.h"
#include <torvane/parallel.h>
#include <torvane/startup.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <functional>
#include <oneapi/tbb/parallel_for.h>
#include <string>
#include <thread>
#include <vector>

using namespace torvane;

namespace {

using Clock = std::chrono::steady_clock;
using Run = std::function<void()>;

int pauseMicroseconds = 0;

double nanoseconds(const Run &run) {
  if (pauseMicroseconds > 0) std::this_thread::sleep_for(std::chrono::microseconds(pauseMicroseconds));
  const auto start = Clock::now();
  run();
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

double median(std::vector<double> &times) {
  const auto at = times.begin() + static_cast<long>(times.size() / 2);
  std::nth_element(times.begin(), at, times.end());
  return *at;
}

// Alternates in groups, so that each candidate runs as it would in a row of its own. A row of long calls gets
// fewer and smaller ones.
void compare(const bench::Row &row, const Run &ours, const char *peerName, const Run &peer) {
  if (!bench::isWanted(row.name)) return;
  std::vector<double> own, other;
  const int group = nanoseconds(peer) > 20e6 ? 2 : 10;
  const auto start = Clock::now();
  for (int call = 0; call < bench::rounds(); call += group) {
    if (call >= 10 && Clock::now() - start > std::chrono::milliseconds(1200)) break;
    for (int i = 0; i < group; ++i) own.push_back(nanoseconds(ours));
    for (int i = 0; i < group; ++i) other.push_back(nanoseconds(peer));
  }
  bench::print(row, {{"ours", median(own)}, {peerName, median(other)}});
}

struct Vectors {
  std::vector<double> x, y, z;
};

double plus(double a, double b) { return a + b; }
double sine(double a, double b) { return std::sin(a) + b; }

template <double (*f)(double, double)> void loop(Vectors &v, mint first, mint last) {
  const double *x = v.x.data(), *y = v.y.data();
  double *z = v.z.data();
  for (mint i = first; i < last; ++i) z[i] = f(x[i], y[i]);
}

template <double (*f)(double, double)> void body(void *closure, ParallelWorker *worker) {
  loop<f>(*static_cast<Vectors *>(closure), ParallelWorker_first(worker), ParallelWorker_last(worker));
}

constexpr mint kChunk = 16384;

template <double (*f)(double, double)> void poolRow(const char *name, mint count) {
  Vectors v{std::vector<double>(static_cast<size_t>(count), 0.5),
            std::vector<double>(static_cast<size_t>(count), 1),
            std::vector<double>(static_cast<size_t>(count))};
  ParallelPartition *partition = ParallelPartition_new(kOfSize, 1);
  const bool manyChunks = (count + kChunk - 1) / kChunk > workerCount();
  const auto ours = [&] {
    parallelLoop(&v, nullptr, body<f>, 0, count, manyChunks ? kChunk : 1, manyChunks ? partition : nullptr);
  };
  const char *rest = pauseMicroseconds > 0 ? ", after a rest of 1 ms" : "";
  const double aim = count == 32768 && pauseMicroseconds == 0 ? 1.2 : 0;
  compare({std::string("pool, ") + name + rest, double(count), {16.0 * count, 8.0 * count}, aim}, ours,
          "serial", [&] { loop<f>(v, 0, count); });
  torvane::free(partition);
}

int64_t cheap(int64_t x) { return x * 3 + 1; }
int64_t heavy(int64_t x) {
  for (int i = 0; i < 40; ++i) x = x * 6364136223846793005 + 1442695040888963407;
  return x;
}

void taskRow(const char *name, int64_t (*function)(int64_t), int64_t count) {
  std::vector<int64_t> source(static_cast<size_t>(count), 7), target(source);
  int64_t (*volatile opaque)(int64_t) = function; // compiled code's function is not inlined either
  int64_t (*const f)(int64_t) = opaque;
  const auto ours = [&] { parallel_for_Integer64_Integer64(source.data(), count, target.data(), f); };
  const auto bare = [&] {
    oneapi::tbb::parallel_for(int64_t{0}, count, [&](int64_t i) {
      target[static_cast<size_t>(i)] = f(source[static_cast<size_t>(i)]);
    });
  };
  const auto serial = [&] {
    for (size_t i = 0; i < source.size(); ++i) target[i] = f(source[i]);
  };
  const auto row = [=](const char *what, double aim) {
    return bench::Row{std::string("map, ") + name + what,
                      static_cast<double>(count),
                      {8.0 * double(count), 8.0 * double(count)},
                      aim};
  };
  compare(row("", 1.1), ours, "oneTBB", bare);
  compare(row(", peer: serial", 0), ours, "serial", serial);
}

void poolRows() {
  for (const mint count : {32768, 100000, 1000000}) {
    poolRow<plus>("plus", count);
    poolRow<sine>("sin", count);
  }
}

} // namespace

int main(int argc, char **argv) {
  bench::start("parallel", "ns an element", argc, argv, 300);
  InitializeRuntimeLibrary();
  poolRows();
  for (const int64_t count : {4096, 100000, 1000000}) {
    taskRow("cheap", cheap, count);
    taskRow("heavy", heavy, count);
  }
  taskRow("cheap", cheap, 10000000);
  pauseMicroseconds = 1000;
  poolRows();
}

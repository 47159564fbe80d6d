// Parallel loops beside the serial loop, and the mapping of a compiled function beside a bare oneTBB loop.
// The candidates of a row alternate call by call in this one process, and the median call of each counts: on
// a machine that others use, means tell more about them. Prints microseconds a call and ratios.
//
//   bench_parallel [calls [part of a row's name]]
#include "parallel/first_failure.h"
#include "parallel/parallel.h"
#include "runtime/memory.h"
#include "runtime/thresholds.h"
#include <torvane/parallel.h>
#include <torvane/startup.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <oneapi/tbb/parallel_for.h>
#include <string>
#include <thread>
#include <vector>

using namespace torvane;

namespace {

using Clock = std::chrono::steady_clock;
using Run = std::function<void()>;

const char *wanted = "";
int calls = 301;
int pauseMicroseconds = 0;

double microseconds(const Run &run) {
  if (pauseMicroseconds > 0) std::this_thread::sleep_for(std::chrono::microseconds(pauseMicroseconds));
  const auto start = Clock::now();
  run();
  return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

double quantile(std::vector<double> &times, double part) {
  const auto at = times.begin() + static_cast<long>(part * static_cast<double>(times.size() - 1));
  std::nth_element(times.begin(), at, times.end());
  return *at;
}

// Alternates in groups of ten, so that each candidate runs as it would in a row of its own. A row of long
// calls gets fewer of them, but at least thirty.
void compare(const std::string &name, const Run &ours, const Run &peer) {
  if (name.find(wanted) == std::string::npos) return;
  std::vector<double> own, other;
  const auto start = Clock::now();
  for (int call = 0; call < calls && (call < 30 || Clock::now() - start < std::chrono::seconds(3));
       call += 10) {
    for (int i = 0; i < 10; ++i) own.push_back(microseconds(ours));
    for (int i = 0; i < 10; ++i) other.push_back(microseconds(peer));
  }
  const double a = quantile(own, 0.5), b = quantile(other, 0.5);
  std::printf("%-40s %10.2f %10.2f %8.2f   %10.2f %10.2f\n", name.c_str(), a, b, a / b, quantile(own, 0.9),
              quantile(other, 0.9));
  std::fflush(stdout);
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
  compare(std::string("pool, ") + name + ", " + std::to_string(count), ours, [&] { loop<f>(v, 0, count); });
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
  compare(std::string("map, ") + name + ", " + std::to_string(count) + ", bare oneTBB", ours, bare);
  compare(std::string("map, ") + name + ", " + std::to_string(count) + ", serial", ours, serial);
}

void poolRows() {
  for (const mint count : {32768, 100000, 1000000}) {
    poolRow<plus>("plus", count);
    poolRow<sine>("sin", count);
  }
}

} // namespace

int main(int argc, char **argv) {
  if (argc > 1) calls = std::atoi(argv[1]);
  if (argc > 2) wanted = argv[2];
  InitializeRuntimeLibrary();
  std::printf("%-40s %10s %10s %8s   %10s %10s\n", "microseconds", "ours", "peer", "ratio", "ours 0.9",
              "peer 0.9");
  poolRows();
  for (const int64_t count : {int64_t{4096}, int64_t{100000}, int64_t{10000000}}) {
    taskRow("cheap", cheap, count);
    taskRow("heavy", heavy, count);
  }
  pauseMicroseconds = 1000;
  std::printf("with a pause of 1 ms before each call\n");
  poolRows();
}

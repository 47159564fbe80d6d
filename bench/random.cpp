// Draws beside the standard library's, all in this process: rounds alternate between the candidates, and the
// least of each counts. Prints nanoseconds a value and our ratio to the best peer. The peers draw from
// std::mt19937_64: through its distributions, and for reals from the high bits of its words as well.
// random_numpy.py has NumPy.
//
//   bench_random [rounds [count]]
#include "random/sampling.h"
#include "random/variates.h"

#include <torvane/torvane.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Run = std::function<void()>;

int rounds = 15;
mint count = 1000000;
std::mt19937_64 words(1);

double nanoseconds(const Run &run) {
  const auto start = Clock::now();
  run();
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / count;
}

Run withMethod(mint method, const Run &run) {
  return [=] {
    Runtime_SeedRandom(nullptr, method);
    run();
  };
}

void measure(const char *name, const Run &ours, const std::vector<Run> &peers) {
  std::vector<Run> candidates = {withMethod(3, ours), withMethod(1, ours)};
  candidates.insert(candidates.end(), peers.begin(), peers.end());
  std::vector<double> least(candidates.size(), 1e300);
  for (int round = 0; round < rounds; ++round)
    for (size_t k = 0; k < candidates.size(); ++k) least[k] = std::min(least[k], nanoseconds(candidates[k]));
  const double best = *std::min_element(least.begin() + 2, least.end());
  std::printf("%-26s %8.2f %8.2f %8.2f %6.2f %6.2f\n", name, least[0], least[1], best, least[0] / best,
              least[1] / best);
  std::fflush(stdout);
}

std::vector<mreal> reals;
std::vector<mint> integers;

template <class Distribution>
Run fill(std::vector<typename Distribution::result_type> &values, Distribution draw) {
  return [&values, draw]() mutable {
    for (auto &value : values) value = draw(words);
  };
}

void measureIntegers(mint last) {
  char name[32];
  std::snprintf(name, sizeof name, "integers 0..%d", last);
  measure(name, [=] { UniformRandomMIntegers(integers.data(), count, 0, last); },
          {fill(integers, std::uniform_int_distribution<mint>(0, last))});
}

void measureNormal() {
  measure("normal", [] { torvane::drawNormal(reals.data(), count, 0, 1); },
          {fill(reals, std::normal_distribution<>(0, 1))});
}

// The peer is the ratio of two gamma variates.
void measureBeta(mreal a, mreal b) {
  char name[32];
  std::snprintf(name, sizeof name, "beta %g, %g", a, b);
  std::gamma_distribution<> first(a), second(b);
  measure(name, [=] { torvane::drawBeta(reals.data(), count, a, b); }, {[=]() mutable {
            for (mreal &value : reals) {
              const mreal x = first(words);
              value = x / (x + second(words));
            }
          }});
}

// Of a list with so many rows.
void measurePositions(mint length) {
  char name[32];
  std::vector<mreal> weights(static_cast<size_t>(length));
  std::uniform_real_distribution<> uniform(0, 1);
  for (mreal &weight : weights) weight = uniform(words);
  MTensor *tensor = MTensor_newCopyFromDataArray(TORVANE_TYPE_REAL, 1, &length, weights.data());
  std::discrete_distribution<mint> discrete(weights.begin(), weights.end());
  std::snprintf(name, sizeof name, "weighted choice of %d", length);
  measure(name, [=] { torvane::RunningSums(tensor).draw(integers.data(), count); },
          {fill(integers, discrete)});
  MTensor_delete(tensor);
}

void measurePermutation() {
  measure("permutation", [] { torvane::samplePositions(integers.data(), count, count); },
          {[] { std::shuffle(integers.begin(), integers.end(), words); }});
  measure("a tenth of a list", [] { torvane::samplePositions(integers.data(), count, 10 * count); }, {[] {
            std::vector<mint> list(10 * static_cast<size_t>(count));
            std::sample(list.begin(), list.end(), integers.begin(), count, words);
          }});
}

} // namespace

int main(int argc, char **argv) {
  if (argc > 1) rounds = std::atoi(argv[1]);
  if (argc > 2) count = std::atoi(argv[2]);
  reals.resize(static_cast<size_t>(count));
  integers.resize(static_cast<size_t>(count));
  InitializeRuntimeLibrary();
  const uint32_t seed = 1;
  for (const mint method : {1, 3}) Runtime_SeedRandom(&seed, method);
  std::printf("%-26s %8s %8s %8s %6s %6s\n", "ns a value", "Twister", "CA", "std", "ratio", "ratio");
  measure("reals", [] { UniformRandomMReals(reals.data(), count, 0, 1); },
          {fill(reals, std::uniform_real_distribution<>(0, 1)), [] {
             for (mreal &value : reals) value = static_cast<mreal>(words() >> 11) * 0x1p-53;
           }});
  for (const mint last : {1, 2, 99, 255, 1000000, INT32_MAX - 1}) measureIntegers(last);
  measureNormal();
  for (const auto &[a, b] : {std::pair{1.0, 3.0}, {0.5, 0.5}, {2.0, 3.0}, {0.5, 2.0}}) measureBeta(a, b);
  for (const mint length : {10, 1000, 1000000}) measurePositions(length);
  measurePermutation();
}

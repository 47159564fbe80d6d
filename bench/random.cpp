// Draws by MersenneTwister and by ExtendedCA beside the standard library's, which draw from std::mt19937_64:
// through its distributions, and for reals from the high bits of its words as well. random_numpy.py has
// NumPy.
#include "random/sampling.h"
#include "random/variates.h"
#include "table.h"

#include <torvane/torvane.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

using bench::Candidate;
using bench::repeated;
using bench::Run;

namespace {

constexpr mint kMillion = 1000000, kFew = 100000;
constexpr struct {
  mint method;
  const char *name;
} kMethods[] = {{3, "MersenneTwister"}, {1, "ExtendedCA"}};

std::mt19937_64 words(1);
std::vector<mreal> reals(kMillion);
std::vector<mint> integers(kMillion);

std::string shortest(double x) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", x);
  return text;
}

// A row for each method. Where a draw is a few operations, the bytes that are written are its limit.
void compareDraws(const std::string &name, mint count, size_t bytes, double aim, const Run &ours,
                  std::vector<Candidate> peers) {
  peers.insert(peers.begin(), {"ours", ours});
  const bench::Work work = {0, double(bytes)};
  for (const auto &each : kMethods) {
    Runtime_SeedRandom(nullptr, each.method);
    bench::compare({name + ", " + each.name, double(count), work, aim}, peers);
  }
}

// The distribution is the run's own, with what it keeps from one draw to the next.
template <class Distribution, class Value>
Run fill(std::vector<Value> &values, mint count, Distribution draw) {
  return repeated([&values, count, draw]() mutable {
    std::generate_n(values.begin(), count, [&] { return draw(words); });
  });
}

void compareReals() {
  compareDraws("reals", kMillion, kMillion * sizeof(mreal), 1.1,
               repeated([] { UniformRandomMReals(reals.data(), kMillion, 0, 1); }),
               {{"std", fill(reals, kMillion, std::uniform_real_distribution<>(0, 1))},
                {"std words", repeated([] {
                   for (mreal &value : reals) value = static_cast<mreal>(words() >> 11) * 0x1p-53;
                 })}});
}

void compareIntegers(mint last, double aim) {
  compareDraws("integers 0.." + std::to_string(last), kMillion, kMillion * sizeof(mint), aim,
               repeated([last] { UniformRandomMIntegers(integers.data(), kMillion, 0, last); }),
               {{"std", fill(integers, kMillion, std::uniform_int_distribution<mint>(0, last))}});
}

void compareNormal() {
  compareDraws("normal", kFew, 0, 0, repeated([] { torvane::drawNormal(reals.data(), kFew, 0, 1); }),
               {{"std", fill(reals, kFew, std::normal_distribution<>(0, 1))}});
}

struct RatioOfGammas {
  std::gamma_distribution<> first, second;
  double operator()(std::mt19937_64 &from) {
    const double x = first(from);
    return x / (x + second(from));
  }
};

void compareBeta(mreal a, mreal b) {
  const RatioOfGammas peer = {std::gamma_distribution<>(a), std::gamma_distribution<>(b)};
  compareDraws("beta " + shortest(a) + " " + shortest(b), kFew, 0, 0,
               repeated([a, b] { torvane::drawBeta(reals.data(), kFew, a, b); }),
               {{"two std gammas", fill(reals, kFew, peer)}});
}

// Of a list with so many rows. Each draws by sums that stand ready.
void comparePositions(mint length) {
  std::vector<mreal> weights(static_cast<size_t>(length));
  std::uniform_real_distribution<> uniform(0, 1);
  for (mreal &weight : weights) weight = uniform(words);
  MTensor *tensor = MTensor_newCopyFromDataArray(TORVANE_TYPE_REAL, 1, &length, weights.data());
  const std::discrete_distribution<mint> peer(weights.begin(), weights.end());
  const torvane::RunningSums sums(tensor);
  compareDraws("weighted choice of " + std::to_string(length), kFew, 0, 0,
               repeated([&sums] { sums.draw(integers.data(), kFew); }),
               {{"std", fill(integers, kFew, peer)}});
  MTensor_delete(tensor);
}

void compareSamples() {
  compareDraws("permutation", kMillion, 0, 0,
               repeated([] { torvane::samplePositions(integers.data(), kMillion, kMillion); }),
               {{"std", repeated([] { std::shuffle(integers.begin(), integers.end(), words); })}});
  const std::vector<mint> list(kMillion);
  compareDraws(
      "a tenth, in order by std", kFew, 0, 0,
      repeated([] { torvane::samplePositions(integers.data(), kFew, kMillion); }),
      {{"std", repeated([&list] { std::sample(list.begin(), list.end(), integers.begin(), kFew, words); })}});
}

} // namespace

int main(int argc, char **argv) {
  bench::start("random", "ns a value", argc, argv);
  InitializeRuntimeLibrary();
  const uint32_t seed = 1;
  for (const auto &each : kMethods) Runtime_SeedRandom(&seed, each.method);
  compareReals();
  compareIntegers(1, 0);
  compareIntegers(2, 0);
  compareIntegers(99, 0.8);
  compareIntegers(255, 0.5);
  compareIntegers(1000000, 0);
  compareIntegers(INT32_MAX - 1, 0);
  compareNormal();
  for (const auto &[a, b] : {std::pair{1.0, 3.0}, {0.5, 0.5}, {2.0, 3.0}, {0.5, 2.0}}) compareBeta(a, b);
  for (const mint length : {10, 1000, 1000000}) comparePositions(length);
  compareSamples();
}

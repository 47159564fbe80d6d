// Choice and sampling with draws that a test writes: which calls are made, and every outcome of small cases.
#include "random/sampling.h"
#include "scripted_draws.h"
#include "runtime/memory.h"
#include "support/polling.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

using namespace torvane;
using namespace torvane::test;

namespace {

using Picks = std::vector<mint>;

class Sampling : public testing::Test {
protected:
  Sampling() { startRandomNumbers(); }
};

struct Call {
  mint count, low, high;
  friend bool operator==(const Call &, const Call &) = default;
};

// Gives the digits of a number in mixed radix, one a value, and keeps the calls. `advance` counts on until
// all numbers have been given.
class Odometer {
public:
  mint draw(mint *to, mint count, mint low, mint high) {
    calls.push_back({count, low, high});
    for (mint k = 0; k < count; ++k, ++place) {
      if (place == digits.size()) {
        digits.push_back(0);
        radices.push_back(high - low + 1);
      }
      to[k] = low + digits[place];
    }
    return 0;
  }
  bool advance() {
    calls.clear();
    place = 0;
    for (size_t k = digits.size(); k-- > 0; digits[k] = 0)
      if (++digits[k] < radices[k]) return true;
    return false;
  }
  std::vector<Call> calls;

private:
  Picks digits, radices;
  size_t place = 0;
};

int64_t fallingFactorial(mint n, mint k) {
  int64_t product = 1;
  for (mint j = 0; j < k; ++j) product *= n - j;
  return product;
}

bool areDistinct(Picks picks) {
  std::sort(picks.begin(), picks.end());
  return std::adjacent_find(picks.begin(), picks.end()) == picks.end();
}

// As many outcomes of the draws as there are ordered samples, and each sample from one of them.
TEST_F(Sampling, EveryOrderedSampleComesFromOneOutcomeOfTheDraws) {
  for (mint length = 1; length <= 6; ++length)
    for (mint count = 1; count <= length; ++count) {
      Odometer odometer;
      ScriptedDraws script;
      script.integers = [&](auto... draw) { return odometer.draw(draw...); };
      std::map<Picks, mint> outcomes;
      do {
        Picks picks(static_cast<size_t>(count));
        ASSERT_EQ(samplePositions(picks.data(), count, length), 0);
        ASSERT_TRUE(areDistinct(picks) && *std::max_element(picks.begin(), picks.end()) <= length &&
                    *std::min_element(picks.begin(), picks.end()) >= 1);
        ASSERT_EQ(odometer.calls.size(), size_t(count));
        for (mint k = 0; k < count; ++k) EXPECT_EQ(odometer.calls[size_t(k)], (Call{1, 0, length - 1 - k}));
        ++outcomes[picks];
      } while (odometer.advance());
      EXPECT_EQ(int64_t(outcomes.size()), fallingFactorial(length, count));
      for (const auto &[picks, times] : outcomes) EXPECT_EQ(times, 1);
    }
}

// The numbers left keep their places but for the last, which takes the place of the one picked.
TEST_F(Sampling, TheLastNumberTakesThePlaceOfThePick) {
  ScriptedDraws script;
  script.integers = [](mint *to, mint, mint, mint) { return *to = 1, 0; };
  Picks picks(4);
  EXPECT_EQ(samplePositions(picks.data(), 4, 5), 0);
  EXPECT_EQ(picks, (Picks{2, 5, 4, 3}));
}

// A shuffle counts from 0, the other method from 1.
TEST_F(Sampling, ATenthOfTheLengthDecidesTheMethod) {
  for (const auto &[length, count, isShuffled] : {std::tuple{9, 1, true},
                                                  {10, 1, false},
                                                  {19, 1, false},
                                                  {19, 2, true},
                                                  {20, 2, false},
                                                  {20, 3, true}}) {
    mint drawn = 0;
    ScriptedDraws script;
    script.integers = [&, first = isShuffled ? 0 : 1](mint *to, mint wanted, mint low, mint) {
      EXPECT_EQ(low, first);
      for (mint k = 0; k < wanted; ++k) to[k] = low + drawn++;
      return 0;
    };
    Picks picks(static_cast<size_t>(count));
    EXPECT_EQ(samplePositions(picks.data(), count, length), 0);
  }
}

TEST_F(Sampling, FewPicksAreDrawnInRoundsOfWhatIsMissing) {
  const Picks stream = {5, 5, 7, 5, /**/ 7, 9, /**/ 5, /**/ 30};
  std::vector<Call> calls;
  size_t next = 0;
  ScriptedDraws script;
  script.integers = [&](mint *to, mint count, mint low, mint high) {
    calls.push_back({count, low, high});
    for (mint k = 0; k < count; ++k) to[k] = stream[next++];
    return 0;
  };
  Picks picks(4);
  EXPECT_EQ(samplePositions(picks.data(), 4, 40), 0);
  EXPECT_EQ(picks, (Picks{5, 7, 9, 30}));
  EXPECT_EQ(calls, (std::vector<Call>{{4, 1, 40}, {2, 1, 40}, {1, 1, 40}, {1, 1, 40}}));
}

TEST_F(Sampling, EveryPairWithoutARepetitionIsItself) {
  for (mint first = 1; first <= 20; ++first)
    for (mint second = 1; second <= 20; ++second) {
      ScriptedDraws script;
      mint calls = 0;
      script.integers = [&](mint *to, mint count, mint, mint) {
        const Picks drawn = calls++ == 0 ? Picks{first, second} : Picks{first % 20 + 1};
        std::copy_n(drawn.begin(), count, to);
        return 0;
      };
      Picks picks(2);
      EXPECT_EQ(samplePositions(picks.data(), 2, 20), 0);
      EXPECT_EQ(picks, (Picks{first, first != second ? second : first % 20 + 1}));
      EXPECT_EQ(calls, first != second ? 1 : 2);
    }
}

TEST_F(Sampling, ManyRepetitionsEndWithDistinctPicks) {
  const uint32_t seed = 3;
  Runtime_SeedRandom(&seed, 3);
  Picks picks(10000);
  EXPECT_EQ(samplePositions(picks.data(), 10000, 100000), 0);
  EXPECT_TRUE(areDistinct(picks));
  EXPECT_LE(*std::max_element(picks.begin(), picks.end()), 100000);
  EXPECT_GE(*std::min_element(picks.begin(), picks.end()), 1);
}

TEST_F(Sampling, WithReplacementIsOneDrawOfPositions) {
  std::vector<Call> calls;
  ScriptedDraws script;
  script.integers = [&](mint *to, mint count, mint low, mint high) {
    calls.push_back({count, low, high});
    std::fill_n(to, count, 3);
    return 0;
  };
  Picks picks(6);
  EXPECT_EQ(drawPositions(picks.data(), 6, 8), 0);
  EXPECT_EQ(picks, Picks(6, 3));
  EXPECT_EQ(calls, (std::vector<Call>{{6, 1, 8}}));
}

TEST_F(Sampling, AFailingDrawEndsEachMethodWithItsStatus) {
  for (const mint length : {5, 100}) {
    mint left = 1;
    ScriptedDraws script;
    script.integers = [&](mint *to, mint count, mint low, mint) {
      std::fill_n(to, count, low);
      return left-- > 0 ? 0 : 77;
    };
    Picks picks(3);
    EXPECT_EQ(samplePositions(picks.data(), 3, length), 77);
    EXPECT_EQ(drawPositions(picks.data(), 3, length), 77);
  }
}

// Known of the operation: the numbers from which it picks stay allocated then, and only then.
TEST_F(Sampling, AFailingDrawLeavesTheNumbersOfAShuffleAllocated) {
  ScriptedDraws script;
  mint status = 0;
  script.integers = [&](mint *to, mint, mint, mint) { return *to = 0, status; };
  Picks picks(3);
  Free_fun(Malloc_fun(sizeof(mint) * 1000));
  const uint32_t used = usedBytesOfThisThread();
  void *numbers = Malloc_fun(sizeof(mint) * 1000);
  const uint32_t cost = usedBytesOfThisThread() - used;
  Free_fun(numbers);
  EXPECT_EQ(samplePositions(picks.data(), 3, 20), 0);
  EXPECT_EQ(usedBytesOfThisThread(), used);
  status = 77;
  EXPECT_EQ(samplePositions(picks.data(), 500, 1000), 77);
  EXPECT_EQ(usedBytesOfThisThread(), used + cost);
}

TEST_F(Sampling, WithoutIntegersThereAreNoPositions) {
  const ScriptedDraws script;
  script.table()->randomMIntegers = nullptr;
  mint pick;
  EXPECT_EQ(drawPositions(&pick, 1, 5), -1);
  EXPECT_EQ(samplePositions(&pick, 1, 5), -1);
  EXPECT_EQ(samplePositions(&pick, 1, 50), -1);
}

// Weights.

Tensor weightsOf(const std::vector<mreal> &weights) {
  return tensorOf<mreal>({mint(weights.size())}, weights);
}

// Gives these reals of [0, 1), stretched to the bounds, and keeps the calls.
class Reals {
public:
  struct Draw {
    mint count;
    mreal a, b;
    friend bool operator==(const Draw &, const Draw &) = default;
  };
  explicit Reals(std::vector<mreal> stream) : unread(std::move(stream)) {
    script.reals = [this](mreal *to, mint count, mreal a, mreal b) {
      calls.push_back({count, a, b});
      for (mint k = 0; k < count; ++k) to[k] = a + (b - a) * unread.at(next++);
      return 0;
    };
  }
  std::vector<Draw> calls;

private:
  ScriptedDraws script;
  std::vector<mreal> unread;
  size_t next = 0;
};

// Position of a real by a walk over the weights.
mint positionByWalk(const std::vector<mreal> &weights, mreal u) {
  mreal sum = 0;
  for (size_t k = 0; k < weights.size(); ++k)
    if ((sum += weights[k]) >= u) return mint(k) + 1;
  return mint(weights.size());
}

TEST_F(Sampling, AWeightedChoiceIsTheFirstPositionWhoseSumReachesTheReal) {
  const std::vector<mreal> weights = {0, 2, 0, 0, 1, 5, 0, 8, 0};
  std::vector<mreal> reals;
  for (mint k = 0; k < 64; ++k) reals.push_back(k / 64.0); // with every sum among them
  Reals script(reals);
  const Tensor tensor = weightsOf(weights);
  const RunningSums sums(tensor.get());
  ASSERT_EQ(sums.status(), 0);
  Picks picks(64);
  EXPECT_EQ(sums.draw(picks.data(), 64), 0);
  EXPECT_EQ(script.calls, (std::vector<Reals::Draw>{{64, 0, 16}}));
  for (size_t k = 0; k < 64; ++k) EXPECT_EQ(picks[k], positionByWalk(weights, 16 * reals[k])) << reals[k];
  EXPECT_EQ(picks[0], 1); // a weight of 0 is met by a real of 0 at the first position alone
  for (size_t k = 1; k < 64; ++k) EXPECT_GT(weights[size_t(picks[k]) - 1], 0);
}

TEST_F(Sampling, EachOfManyWeightsHasItsShareOfTheReals) {
  std::vector<mreal> weights(37);
  for (size_t k = 0; k < 37; ++k) weights[k] = mreal((k * k) % 11);
  const auto total = std::accumulate(weights.begin(), weights.end(), 0.0);
  std::vector<mreal> reals;
  for (mreal j = 0.5; j < total; ++j) reals.push_back(j / total);
  const Tensor tensor = weightsOf(weights);
  Reals script(reals);
  const RunningSums sums(tensor.get());
  Picks picks(reals.size());
  EXPECT_EQ(sums.draw(picks.data(), mint(reals.size())), 0);
  for (size_t k = 0; k < 37; ++k)
    EXPECT_EQ(mreal(std::count(picks.begin(), picks.end(), mint(k) + 1)), weights[k]);
}

// Picks without replacement by a walk over what is left.
Picks sampleByWalk(std::vector<mreal> weights, const std::vector<mreal> &reals) {
  Picks picks;
  for (const mreal real : reals) {
    const mreal total = std::accumulate(weights.begin(), weights.end(), 0.0);
    picks.push_back(positionByWalk(weights, real * total));
    weights[size_t(picks.back()) - 1] = 0;
  }
  return picks;
}

// With whole weights all sums are exact. The reals of a pick stand in the middle of equal shares of what is
// left, one share for each unit of weight: so every ordered sample comes as often as its probability says.
TEST_F(Sampling, EveryOrderedWeightedSampleHasItsShareOfTheReals) {
  const std::vector<mreal> weights = {1, 2, 0, 3, 4};
  std::map<Picks, mint> outcomes;
  const auto shareOf = [](mint j, mint total) { return (j + 0.5) / total; };
  const Tensor tensor = weightsOf(weights);
  for (mint i = 0; i < 10; ++i) {
    const mint left = 10 - mint(weights[size_t(sampleByWalk(weights, {shareOf(i, 10)})[0]) - 1]);
    for (mint j = 0; j < left; ++j) {
      const std::vector<mreal> reals = {shareOf(i, 10), shareOf(j, left)};
      Reals script(reals);
      const RunningSums sums(tensor.get());
      Picks picks(2);
      EXPECT_EQ(sampleByWeights(picks.data(), 2, sums), 0);
      EXPECT_EQ(script.calls, (std::vector<Reals::Draw>{{2, 0, 1}}));
      EXPECT_EQ(picks, sampleByWalk(weights, reals));
      ++outcomes[picks];
    }
  }
  for (mint i = 1; i <= 5; ++i)
    for (mint j = 1; j <= 5; ++j)
      EXPECT_EQ(mreal((outcomes[Picks{i, j}])), i == j ? 0 : weights[size_t(i) - 1] * weights[size_t(j) - 1]);
}

TEST_F(Sampling, LargeWeightedSamplesAreThoseOfAWalkOverWhatIsLeft) {
  for (const size_t length : {1u, 2u, 3u, 17u, 100u}) {
    std::vector<mreal> weights(length), reals(length);
    for (size_t k = 0; k < length; ++k) {
      weights[k] = 1 + mreal(wordAt(k) % 50);
      reals[k] = wordAt(1000 + k) * 0x1p-32;
    }
    const Tensor tensor = weightsOf(weights);
    Reals script(reals);
    const RunningSums sums(tensor.get());
    Picks picks(length);
    EXPECT_EQ(sampleByWeights(picks.data(), mint(length), sums), 0);
    EXPECT_EQ(picks, sampleByWalk(weights, reals));
    EXPECT_TRUE(areDistinct(picks));
  }
}

TEST_F(Sampling, FewWeightedPicksAreDrawnInRoundsOfWhatIsMissing) {
  const std::vector<mreal> weights(40, 0.25); // position p from reals above (p - 1) / 40
  const auto real = [](mint position) { return (position - 0.5) / 40; };
  Reals script({real(5), real(5), real(7), real(5), /**/ real(7), real(9), /**/ real(5), /**/ real(30)});
  const Tensor tensor = weightsOf(weights);
  const RunningSums sums(tensor.get());
  Picks picks(4);
  EXPECT_EQ(sampleByWeights(picks.data(), 4, sums), 0);
  EXPECT_EQ(picks, (Picks{5, 7, 9, 30}));
  EXPECT_EQ(script.calls, (std::vector<Reals::Draw>{{4, 0, 10}, {2, 0, 10}, {1, 0, 10}, {1, 0, 10}}));
}

TEST_F(Sampling, AnAbortBeforeTheFirstRoundOfWeightedPicksDrawsNothing) {
  Reals script({});
  const Tensor tensor = weightsOf(std::vector<mreal>(40, 0.25));
  const RunningSums sums(tensor.get());
  Picks picks(4, -7);
  const Polling polling(0);
  EXPECT_EQ(sampleByWeights(picks.data(), 4, sums), 1000);
  EXPECT_EQ(polling.polls(), 1u);
  EXPECT_TRUE(script.calls.empty());
  EXPECT_EQ(picks, Picks(4, -7));
}

TEST_F(Sampling, AnAbortBetweenRoundsOfWeightedPicksEndsThem) {
  const auto real = [](mint position) { return (position - 0.5) / 40; };
  Reals script({real(5), real(5), real(7), real(5)});
  const Tensor tensor = weightsOf(std::vector<mreal>(40, 0.25));
  const RunningSums sums(tensor.get());
  Picks picks(4, -7);
  const uint32_t used = usedBytesOfThisThread();
  const Polling polling(1);
  EXPECT_EQ(sampleByWeights(picks.data(), 4, sums), 1000);
  EXPECT_EQ(script.calls, (std::vector<Reals::Draw>{{4, 0, 10}}));
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

// The reals come in one call, before any pick.
TEST_F(Sampling, AnAbortBetweenPicksOfALargeWeightedSampleEndsThem) {
  const Tensor tensor = weightsOf({1, 1, 1, 1});
  const RunningSums sums(tensor.get());
  for (const mint passes : {0, 2}) {
    Reals script({0.1, 0.5, 0.5, 0.5});
    Picks picks(4, -7);
    const uint32_t used = usedBytesOfThisThread();
    const Polling polling(passes);
    EXPECT_EQ(sampleByWeights(picks.data(), 4, sums), 1000);
    EXPECT_EQ(script.calls, (std::vector<Reals::Draw>{{4, 0, 1}}));
    EXPECT_EQ(std::count(picks.begin(), picks.end(), -7), 4 - passes);
    EXPECT_EQ(usedBytesOfThisThread(), used);
  }
}

// Picks of a large sample by weights, from scripted reals.
Picks largeSample(const std::vector<mreal> &weights, const std::vector<mreal> &reals) {
  Reals script(reals);
  Picks picks(reals.size());
  EXPECT_EQ(sampleByWeights(picks.data(), mint(reals.size()), RunningSums(weightsOf(weights).get())), 0);
  return picks;
}

// Of 1e16, 3 and 5 the running sums are 1e16, 1e16 + 4 and 1e16 + 8, so that both small ones weigh 4.
TEST_F(Sampling, LargeWeightedSamplesWeighByDifferencesOfRunningSums) {
  EXPECT_EQ(largeSample({1e16, 3, 5}, {0.5, 0.45, 0.5}), (Picks{1, 2, 3}));
}

TEST_F(Sampling, ARealThatEqualsTheLeftSumGoesLeft) {
  EXPECT_EQ(largeSample({1, 1, 2}, {0.25}), Picks{1});
  EXPECT_EQ(largeSample({1, 1, 2}, {std::nextafter(0.25, 1)}), Picks{2});
}

// The sum of a range, always that of its halves, and the pick by it.
class HalvedRange {
public:
  explicit HalvedRange(const std::vector<mreal> &weights) {
    mreal sum = 0, below;
    for (const mreal weight : weights) below = sum, leaves.push_back((sum += weight) - below);
  }
  mint pick(mreal real) {
    size_t first = 0, length = leaves.size();
    for (mreal u = real * sumOf(0, length); length > 1;) {
      const size_t half = length / 2;
      const mreal left = sumOf(first, half);
      const bool isLeft = left >= u;
      if (!isLeft) u -= left, first += half;
      length = isLeft ? half : length - half;
    }
    leaves[first] = 0;
    return mint(first) + 1;
  }

private:
  mreal sumOf(size_t first, size_t length) const {
    if (length == 1) return leaves[first];
    return sumOf(first, length / 2) + sumOf(first + length / 2, length - length / 2);
  }
  std::vector<mreal> leaves;
};

// Where a weight that drowned the others is taken away, what is left comes back in full.
TEST_F(Sampling, SumsOfWhatIsLeftAreAddedUpAnew) {
  const std::vector<mreal> weights = {0.1, 0.2, 0.3, 1e16};
  for (mint i = 0; i < 50; ++i)
    for (mint j = 0; j < 50; ++j) {
      const std::vector<mreal> reals = {0.5, (i + 0.5) / 50, (j + 0.5) / 50, 0.5};
      HalvedRange model(weights);
      Picks expected;
      for (const mreal real : reals) expected.push_back(model.pick(real));
      EXPECT_EQ(expected[0], 4);
      EXPECT_EQ(largeSample(weights, reals), expected);
    }
}

TEST_F(Sampling, WeightsAreRefusedByTheirOwnStatus) {
  const mreal infinity = HUGE_VAL, nan = std::nan("");
  const std::pair<std::vector<mreal>, mint> kRows[] = {
      {{}, -1},          {{0, 0, 0}, -1}, {{-0.0}, -1},       {{1, -1, 5}, -1},       {{1, nan}, -1},
      {{-infinity}, -1}, {{1, 2}, 0},     {{infinity}, 1001}, {{1e308, 1e308}, 1001}, {{infinity, nan}, -1}};
  for (const auto &[weights, status] : kRows)
    EXPECT_EQ(RunningSums(weightsOf(weights).get()).status(), status);
  EXPECT_EQ(RunningSums(tensorOf<mint>({3}, {1, 1, 1}).get()).status(), 4);
  EXPECT_EQ(RunningSums(tensorOf<mint>({0}, {}).get()).status(), -1);
}

// What they are read as, not what they are.
TEST_F(Sampling, ComplexWeightsAreReadAsReals) {
  const Tensor tensor = tensorOf<mcomplex>({3}, {{1, 2}, {4, 100}, {100, 100}});
  const RunningSums sums(tensor.get());
  EXPECT_EQ(sums.status(), 0);
  EXPECT_EQ(sums.length(), 3);
  EXPECT_EQ(sums.total(), 7);
}

TEST_F(Sampling, WeightsThatAreLostInTheSumCountAsNone) {
  const Tensor tensor = weightsOf({0, 1, 0x1p-60, 0x1p-52, 0});
  EXPECT_EQ(RunningSums(tensor.get()).positiveCount(), 2);
}

TEST_F(Sampling, FailingRealsEndWeightedDrawsWithTheirStatus) {
  ScriptedDraws script;
  script.reals = [](mreal *, mint, mreal, mreal) { return 77; };
  const Tensor many = weightsOf(std::vector<mreal>(50, 1));
  const RunningSums sums(many.get());
  Picks picks(20);
  const uint32_t used = usedBytesOfThisThread();
  EXPECT_EQ(sums.draw(picks.data(), 20), 77);
  EXPECT_EQ(sampleByWeights(picks.data(), 3, sums), 77);
  EXPECT_EQ(sampleByWeights(picks.data(), 20, sums), 77);
  script.table()->randomMReals = nullptr;
  EXPECT_EQ(sums.draw(picks.data(), 20), 11);
  EXPECT_EQ(sampleByWeights(picks.data(), 3, sums), 11);
  EXPECT_EQ(sampleByWeights(picks.data(), 20, sums), 11);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

} // namespace

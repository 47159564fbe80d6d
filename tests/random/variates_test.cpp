// Normal and beta variates against their formulas, on a stream that the test reads itself: values, and the
// bits that each draw takes.
#include "random/variates.h"
#include "scripted_draws.h"

#include "runtime/memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <utility>

using namespace torvane;
using namespace torvane::test;

namespace {

class Variates : public testing::Test {
protected:
  Variates() { startRandomNumbers(); }
};

TEST_F(Variates, NormalVariatesComeInPairsOfUniforms) {
  for (const mint count : {1, 2, 3, 4, 5, 8, 9, 100, 101}) {
    const BufferedWords words(40);
    const CurrentGenerator current(words.generator);
    std::vector<mreal> drawn(size_t(count) + 1, -7);
    EXPECT_EQ(drawNormal(drawn.data(), count, 10, 2.5), 0);
    BitModel model;
    for (mint k = 0; k < count; k += 2) {
      const mreal u1 = readReal(model), u2 = readReal(model);
      const mreal radius = 2.5 * std::sqrt(-2 * std::log(u1)), angle = 2 * 3.14159265358979323846 * u2;
      EXPECT_DOUBLE_EQ(drawn[size_t(k)], 10 + radius * std::cos(angle));
      if (k + 1 < count) EXPECT_DOUBLE_EQ(drawn[size_t(k) + 1], 10 + radius * std::sin(angle));
    }
    EXPECT_EQ(drawn.back(), -7);
    EXPECT_TRUE(words.isAt(model.position)) << count;
  }
}

TEST_F(Variates, NormalUniformsAreOneCallOfAnEvenCount) {
  for (const auto &[count, uniforms] : {std::pair{0, 0}, {1, 2}, {2, 2}, {7, 8}}) {
    ScriptedDraws script;
    mint calls = 0;
    script.reals = [&, wanted = uniforms](mreal *to, mint asked, mreal a, mreal b) {
      EXPECT_EQ(asked, wanted);
      EXPECT_EQ(a, 0);
      EXPECT_EQ(b, 1);
      std::fill_n(to, asked, 0.5);
      return ++calls, 0;
    };
    std::vector<mreal> drawn(8);
    EXPECT_EQ(drawNormal(drawn.data(), count, 0, 1), 0);
    EXPECT_EQ(calls, 1);
  }
}

TEST_F(Variates, NothingIsAskedOfTheDeviationAndAUniformOf0IsInfinitelyFar) {
  ScriptedDraws script;
  script.reals = [](mreal *to, mint, mreal, mreal) { return to[0] = 0, to[1] = 0.25, 0; };
  mreal drawn[2];
  EXPECT_EQ(drawNormal(drawn, 2, 0, 1), 0);
  EXPECT_EQ(drawn[1], HUGE_VAL);
  EXPECT_EQ(drawNormal(drawn, 2, 0, -3), 0);
  EXPECT_EQ(drawn[1], -HUGE_VAL);
  script.reals = [](mreal *to, mint, mreal, mreal) { return to[0] = to[1] = 0.25, 0; };
  EXPECT_EQ(drawNormal(drawn, 2, 6, 0), 0);
  EXPECT_EQ(drawn[1], 6);
  EXPECT_EQ(drawNormal(drawn, 1, 6, std::nan("")), 0);
  EXPECT_TRUE(std::isnan(drawn[0]));
}

// Beta: what a trial makes of two uniforms; no value where it rejects.
struct Trial {
  bool isAccepted;
  mreal value;
};

Trial joehnk(mreal a, mreal b, mreal u1, mreal u2) {
  const mreal p = std::pow(u1, 1 / a), q = std::pow(u2, 1 / b);
  return {p + q <= 1, p / (p + q)};
}

Trial cheng(mreal a, mreal b, mreal u1, mreal u2) {
  const mreal a0 = a <= b ? a : b, b0 = a <= b ? b : a, s = a0 + b0;
  const mreal beta = std::sqrt((s - 2) / (2 * a0 * b0 - s));
  const mreal v = beta * std::log(u1 / (1 - u1)), w = a0 * std::exp(v);
  const mreal left = s * std::log(s / (b0 + w)) + (1 / beta + a0) * v - std::log(4.0);
  return {left >= std::log(u1 * u1 * u2), a > b ? b0 / (b0 + w) : w / (b0 + w)};
}

Trial atkinsonWhittaker(mreal a, mreal b, mreal u1, mreal u2) {
  const mreal a0 = a < 1 ? a : b, b0 = a < 1 ? b : a;
  const mreal t = (1 - a0) / (b0 + 1 - a0);
  const mreal r = b0 * t / (b0 * t + a0 * std::pow(1 - t, b0));
  mreal x, e;
  if (u1 <= r) {
    x = t * std::pow(u1 / r, 1 / a0);
    e = (b0 - 1) * std::log(1 - x);
  } else {
    x = 1 - (1 - t) * std::pow((1 - u1) / (1 - r), 1 / b0);
    e = (a0 - 1) * std::log(x / t);
  }
  return {!(std::log(u2) >= e), a > 1 ? 1 - x : x};
}

struct Method {
  Trial (*trial)(mreal a, mreal b, mreal u1, mreal u2);
  std::vector<std::pair<mreal, mreal>> parameters;
};
const Method kMethods[] = {
    {joehnk, {{0.5, 0.5}, {0.3, 0.9}, {0.9, 0.3}, {0.999, 0.999}, {0.05, 0.1}}},
    {cheng, {{2, 3}, {3, 2}, {2.5, 2.5}, {1.01, 1.02}, {1.5, 400}, {1000, 1.1}, {80, 90}}},
    {atkinsonWhittaker, {{0.5, 2}, {2, 0.5}, {0.99, 1.01}, {1.01, 0.99}, {0.1, 50}, {50, 0.1}}}};

struct Model {
  std::vector<mreal> values;
  std::vector<mint> batches;
  uint64_t position;
};

// Batches of two uniforms for each missing value, a trial for each pair.
Model drawInBatches(const Method &method, mreal a, mreal b, mint count) {
  Model model;
  BitModel stream;
  while (mint(model.values.size()) < count) {
    std::vector<mreal> batch(2 * (size_t(count) - model.values.size()));
    for (mreal &uniform : batch) uniform = readReal(stream);
    model.batches.push_back(mint(batch.size()));
    for (size_t k = 0; k < batch.size(); k += 2)
      if (const Trial trial = method.trial(a, b, batch[k], batch[k + 1]); trial.isAccepted)
        model.values.push_back(trial.value);
  }
  model.position = stream.position;
  return model;
}

TEST_F(Variates, BetaTrialsAndTheirBatchesAreThoseOfTheirMethods) {
  for (const Method &method : kMethods)
    for (const auto &[a, b] : method.parameters)
      for (const mint count : {1, 2, 10, 200}) {
        const Model model = drawInBatches(method, a, b, count);
        const BufferedWords words(40);
        const CurrentGenerator current(words.generator);
        std::vector<mreal> drawn(static_cast<size_t>(count));
        EXPECT_EQ(drawBeta(drawn.data(), count, a, b), 0);
        for (size_t k = 0; k < drawn.size(); ++k)
          EXPECT_DOUBLE_EQ(drawn[k], model.values[k]) << a << ' ' << b;
        EXPECT_TRUE(words.isAt(model.position)) << a << ' ' << b << ' ' << count;
      }
}

TEST_F(Variates, BetaCallsForTwoUniformsAMissingValueAndNotAfterTheLast) {
  for (const Method &method : kMethods) {
    const auto [a, b] = method.parameters[0];
    const Model model = drawInBatches(method, a, b, 60);
    EXPECT_GT(model.batches.size(), 1u);
    BitModel stream;
    std::vector<mint> asked;
    ScriptedDraws script;
    script.reals = [&](mreal *to, mint count, mreal low, mreal high) {
      EXPECT_EQ(low, 0);
      EXPECT_EQ(high, 1);
      asked.push_back(count);
      for (mint k = 0; k < count; ++k) to[k] = readReal(stream);
      return 0;
    };
    std::vector<mreal> drawn(60);
    EXPECT_EQ(drawBeta(drawn.data(), 60, a, b), 0);
    EXPECT_EQ(asked, model.batches);
  }
}

TEST_F(Variates, BetaWithAParameterOf1IsAnInversionOfOneUniformEach) {
  struct Row {
    std::pair<mreal, mreal> parameters;
    mreal (*inverse)(mreal);
  };
  const Row kRows[] = {{{1, 1}, [](mreal u) { return u; }},
                       {{1, 4}, [](mreal u) { return 1 - std::pow(1 - u, 0.25); }},
                       {{1, 0.5}, [](mreal u) { return 1 - std::pow(1 - u, 2); }},
                       {{4, 1}, [](mreal u) { return std::pow(u, 0.25); }},
                       {{0.5, 1}, [](mreal u) { return std::pow(u, 2); }}};
  for (const auto &[parameters, inverse] : kRows) {
    const BufferedWords words(40);
    const CurrentGenerator current(words.generator);
    std::vector<mreal> drawn(101);
    EXPECT_EQ(drawBeta(drawn.data(), 101, parameters.first, parameters.second), 0);
    BitModel model;
    for (const mreal value : drawn) EXPECT_EQ(value, inverse(readReal(model)));
    EXPECT_TRUE(words.isAt(model.position));
  }
}

TEST_F(Variates, NoneAreDrawnWithoutBits) {
  const BufferedWords words(40);
  const CurrentGenerator current(words.generator);
  for (const auto &[a, b] : {std::pair{1.0, 2.0}, {0.5, 0.5}, {2.0, 2.0}, {0.5, 2.0}})
    EXPECT_EQ(drawBeta(nullptr, 0, a, b), 0);
  EXPECT_EQ(drawNormal(nullptr, 0, 0, 1), 0);
  EXPECT_TRUE(words.isAt(0));
}

// Parameters of which no trial is ever accepted end the draw instead of going on for good.
TEST_F(Variates, BetaWithoutADistributionEndsAfterOneBatch) {
  for (const auto &[a, b] : {std::pair{-1.0, -1.0},
                             {-1.0, 0.5},
                             {0.5, -1e300},
                             {-HUGE_VAL, 0.5},
                             {-0.0, 0.5},
                             {HUGE_VAL, 2.0},
                             {1e200, 1e200},
                             {DBL_MAX, DBL_MAX}}) {
    const BufferedWords words(40);
    const CurrentGenerator current(words.generator);
    mreal drawn[3];
    EXPECT_EQ(drawBeta(drawn, 3, a, b), 1001) << a << ' ' << b;
    EXPECT_TRUE(words.isAt(6 * 52)) << a << ' ' << b;
  }
}

TEST_F(Variates, BetaOfWhichHardlyATrialIsAcceptedEnds) {
  for (const auto &[a, b] : {std::pair{-50.0, 20.0}, {20.0, -50.0}, {-1e4, 200.0}})
    for (const mint count : {1, 7, 100}) {
      const BufferedWords words(40);
      const CurrentGenerator current(words.generator);
      std::vector<mreal> drawn(static_cast<size_t>(count));
      EXPECT_EQ(drawBeta(drawn.data(), count, a, b), 1001) << a << ' ' << b;
      const auto calls = uint64_t((10000 + count - 1) / count);
      EXPECT_TRUE(words.isAt(calls * uint64_t(count) * 2 * 52)) << a << ' ' << b << ' ' << count;
    }
}

// Uniforms that reject, but in the calls of these numbers, whose first trial is accepted.
mint betaAccepting(std::vector<mint> acceptingCalls, mint count, mint *calls) {
  *calls = 0;
  ScriptedDraws script;
  script.reals = [&](mreal *to, mint uniforms, mreal, mreal) {
    for (mint k = 0; k < uniforms; k += 2) to[k] = 0.5, to[k + 1] = 1 - 0x1p-52;
    const auto end = acceptingCalls.end();
    if (std::find(acceptingCalls.begin(), end, ++*calls) != end) to[1] = 0x1p-52;
    return 0;
  };
  std::vector<mreal> drawn(static_cast<size_t>(count));
  return drawBeta(drawn.data(), count, 0.5, 2);
}

TEST_F(Variates, BetaEndsWith10000RejectionsInARow) {
  mint calls;
  EXPECT_EQ(betaAccepting({10000}, 1, &calls), 0);
  EXPECT_EQ(calls, 10000);
  EXPECT_EQ(betaAccepting({10001}, 1, &calls), 1001);
  EXPECT_EQ(calls, 10000);
  EXPECT_EQ(betaAccepting({3334}, 3, &calls), 1001) << "in the call that brings their number there";
  EXPECT_EQ(calls, 3334 + 5000);
  EXPECT_EQ(betaAccepting({5000, 14999}, 2, &calls), 0) << "a value begins the count anew";
  EXPECT_EQ(calls, 14999);
}

TEST_F(Variates, OtherParametersAreNotLookedAt) {
  mreal drawn;
  for (const auto &[a, b] : {std::pair{std::nan(""), 2.0},
                             {2.0, std::nan("")},
                             {-1.0, 2.0},
                             {0.0, 2.0},
                             {1.0, -3.0},
                             {0.0, 0.5},
                             {0.5, HUGE_VAL}})
    EXPECT_EQ(drawBeta(&drawn, 1, a, b), 0) << a << ' ' << b;
}

TEST_F(Variates, TheStatusOfTheDrawIsTheirs) {
  ScriptedDraws script;
  mreal drawn[3];
  const std::pair<mreal, mreal> kParameters[] = {{1, 2}, {0.5, 0.5}, {2, 2}, {0.5, 2}};
  const uint32_t used = usedBytesOfThisThread();
  script.reals = [](mreal *, mint, mreal, mreal) { return 77; };
  for (const auto &[a, b] : kParameters) EXPECT_EQ(drawBeta(drawn, 3, a, b), 77);
  for (const mint count : {2, 3}) EXPECT_EQ(drawNormal(drawn, count, 0, 1), 77);
  script.table()->randomMReals = nullptr;
  for (const auto &[a, b] : kParameters)
    for (const mint count : {0, 3}) EXPECT_EQ(drawBeta(drawn, count, a, b), 11);
  for (const mint count : {0, 2, 3}) EXPECT_EQ(drawNormal(drawn, count, 0, 1), 11);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

} // namespace

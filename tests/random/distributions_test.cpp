// Whether draws have their distributions: chi-square and Kolmogorov-Smirnov tests with fixed seeds.
//
// Every test here has significance 1e-4: draws of the right distribution would fail one seed in ten thousand.
// The seeds were not chosen: each is the first that was tried.
#include "algorithms/registry.h"
#include "random/sampling.h"
#include "random/variates.h"
#include "support/tensor_builders.h"
#include "words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace torvane;
using namespace torvane::test;

namespace {

// Of the supremum of |F_n - F| sqrt(n): sqrt(-log(significance / 2) / 2).
constexpr mreal kKolmogorovLimit = 2.2253;

// E. B. Wilson and M. M. Hilferty, 1931; 3.719 deviations of a normal variate.
mreal chiSquareLimit(mint degrees) {
  const mreal variance = 2.0 / (9.0 * degrees), root = 1 - variance + 3.719 * std::sqrt(variance);
  return degrees * root * root * root;
}

// A value stands for all that round to it: of a beta variate next to 1 many do.
template <class Distribution> mreal kolmogorov(std::vector<mreal> values, const Distribution &distribution) {
  std::sort(values.begin(), values.end());
  const auto n = mreal(values.size());
  mreal supremum = 0;
  for (size_t k = 0; k < values.size(); ++k) {
    const mreal below = distribution(std::nextafter(values[k], -HUGE_VAL)),
                above = distribution(std::nextafter(values[k], HUGE_VAL));
    supremum = std::max({supremum, mreal(k + 1) / n - above, below - mreal(k) / n});
  }
  return supremum * std::sqrt(n);
}

// Cells without probability must be empty; they are no degrees of freedom.
void expectShares(const std::vector<mint> &counts, const std::vector<mreal> &probabilities) {
  const mreal n = std::accumulate(counts.begin(), counts.end(), 0.0);
  mreal chiSquare = 0;
  mint degrees = -1;
  for (size_t k = 0; k < counts.size(); ++k) {
    const mreal expected = n * probabilities[k];
    if (expected == 0) {
      EXPECT_EQ(counts[k], 0);
      continue;
    }
    ASSERT_GT(expected, 5);
    chiSquare += (counts[k] - expected) * (counts[k] - expected) / expected;
    ++degrees;
  }
  EXPECT_LT(chiSquare, chiSquareLimit(degrees));
}

mreal onUnitInterval(mreal x) { return std::clamp(x, 0.0, 1.0); }
mreal normalBelow(mreal x) { return std::erfc(-x / std::sqrt(2.0)) / 2; }

// The continued fraction of the incomplete beta function (DLMF 8.17.22), by the method of W. J. Lentz.
mreal betaFraction(mreal a, mreal b, mreal x) {
  mreal c = 1, d = 1 / (1 - (a + b) * x / (a + 1)), fraction = d;
  for (mint m = 1; m < 500; ++m) {
    for (const mreal term : {m * (b - m) * x / ((a + 2 * m - 1) * (a + 2 * m)),
                             -(a + m) * (a + b + m) * x / ((a + 2 * m) * (a + 2 * m + 1))}) {
      d = 1 / (1 + term * d);
      c = 1 + term / c;
      fraction *= c * d;
    }
    if (std::abs(c * d - 1) < 1e-15) break;
  }
  return fraction;
}

mreal betaBelow(mreal a, mreal b, mreal x) {
  if (x <= 0 || x >= 1) return onUnitInterval(x);
  if (x > (a + 1) / (a + b + 2)) return 1 - betaBelow(b, a, 1 - x);
  const mreal logarithm =
      a * std::log(x) + b * std::log1p(-x) + std::lgamma(a + b) - std::lgamma(a) - std::lgamma(b);
  return std::exp(logarithm) * betaFraction(a, b, x) / a;
}

class Distributions : public testing::TestWithParam<mint> {
protected:
  Distributions() {
    startRandomNumbers();
    const uint32_t seed = 20261121;
    EXPECT_EQ(Runtime_SeedRandom(&seed, GetParam()), 0);
  }
  ~Distributions() override {
    const uint32_t seed = 1;
    Runtime_SeedRandom(&seed, 1);
  }
};
INSTANTIATE_TEST_SUITE_P(Methods, Distributions, testing::Values(1, 3), [](const auto &method) {
  return method.param == 1 ? "ExtendedCA" : "MersenneTwister";
});

constexpr mint kCount = 100000;

std::vector<mreal> variates(DrawVariates draw, mreal first, mreal second, mint count = kCount) {
  std::vector<mreal> values(static_cast<size_t>(count));
  EXPECT_EQ(draw(values.data(), count, first, second), 0);
  return values;
}

mreal meanOf(const std::vector<mreal> &values) {
  return std::accumulate(values.begin(), values.end(), 0.0) / mreal(values.size());
}
mreal varianceOf(const std::vector<mreal> &values) {
  const mreal mean = meanOf(values);
  return std::accumulate(values.begin(), values.end(), 0.0,
                         [mean](mreal sum, mreal x) { return sum + (x - mean) * (x - mean); }) /
         mreal(values.size());
}

// The mean of independent values lies within 3.89 deviations of the distribution's.
void expectMean(const std::vector<mreal> &values, mreal mean, mreal variance) {
  EXPECT_NEAR(meanOf(values), mean, 3.891 * std::sqrt(variance / mreal(values.size())));
}

TEST_P(Distributions, RealsAreUniform) {
  std::vector<mreal> values(kCount);
  EXPECT_EQ(UniformRandomMReals(values.data(), kCount, -3, 5), 0);
  EXPECT_LT(kolmogorov(values, [](mreal x) { return onUnitInterval((x + 3) / 8); }), kKolmogorovLimit);
  expectMean(values, 1, 64.0 / 12);
}

// Neighbours fall on the cells of a square alike.
TEST_P(Distributions, PairsOfRealsAreUniform) {
  std::vector<mreal> values(2 * kCount);
  EXPECT_EQ(UniformRandomMReals(values.data(), 2 * kCount, 0, 1), 0);
  std::vector<mint> cells(400);
  for (size_t k = 0; k < values.size(); k += 2)
    ++cells[size_t(values[k] * 20) * 20 + size_t(values[k + 1] * 20)];
  expectShares(cells, std::vector<mreal>(400, 1.0 / 400));
}

TEST_P(Distributions, IntegersAreUniform) {
  for (const mint range : {1, 2, 3, 9, 99, 255, 1000}) {
    std::vector<mint> values(kCount), counts(size_t(range) + 1);
    EXPECT_EQ(UniformRandomMIntegers(values.data(), kCount, -5, range - 5), 0);
    for (const mint value : values) ++counts.at(size_t(value + 5));
    expectShares(counts, std::vector<mreal>(counts.size(), 1.0 / (range + 1)));
  }
}

TEST_P(Distributions, ComplexesAreUniformOnTheirRectangle) {
  std::vector<mcomplex> values(kCount);
  EXPECT_EQ(UniformRandomMComplexes(values.data(), kCount, 0, -1, 1, 1), 0);
  std::vector<mint> cells(100);
  for (const mcomplex &z : values) ++cells.at(size_t(z.re * 10) * 10 + size_t((z.im + 1) * 5));
  expectShares(cells, std::vector<mreal>(100, 0.01));
}

TEST_P(Distributions, NormalVariatesAreNormal) {
  for (const mint count : {kCount, kCount - 1}) {
    const std::vector<mreal> values = variates(drawNormal, 2, 3, count);
    EXPECT_LT(kolmogorov(values, [](mreal x) { return normalBelow((x - 2) / 3); }), kKolmogorovLimit);
    expectMean(values, 2, 9);
    EXPECT_NEAR(varianceOf(values), 9, 9 * 3.891 * std::sqrt(2.0 / count));
  }
}

TEST_P(Distributions, SingleNormalVariatesAreNormal) {
  std::vector<mreal> values(20000);
  for (mreal &value : values) EXPECT_EQ(drawNormal(&value, 1, 0, 1), 0);
  EXPECT_LT(kolmogorov(values, normalBelow), kKolmogorovLimit);
}

// The sine and the cosine of one angle say nothing of each other, nor do their squares.
TEST_P(Distributions, NormalVariatesOfAPairAreIndependent) {
  const std::vector<mreal> values = variates(drawNormal, 0, 1, 2 * kCount);
  std::vector<mreal> products, squares;
  for (size_t k = 0; k < values.size(); k += 2) {
    products.push_back(values[k] * values[k + 1]);
    squares.push_back((values[k] * values[k] - 1) * (values[k + 1] * values[k + 1] - 1));
  }
  expectMean(products, 0, 1);
  expectMean(squares, 0, 4);
}

TEST_P(Distributions, BetaVariatesOfEveryMethodAreBeta) {
  const std::pair<mreal, mreal> kParameters[] = {
      {1, 1},   {1, 3},   {3, 1},      {1, 0.2},     {0.2, 1},             // inversion
      {.5, .5}, {.3, .9}, {.9, .3},    {.05, .1},                          // both below 1
      {2, 3},   {3, 2},   {2.5, 2.5},  {1.01, 1.02}, {1.5, 40}, {40, 1.5}, // both above
      {.5, 2},  {2, .5},  {.99, 1.01}, {.1, 50},     {50, .1}};            // one on either side
  for (const auto &[first, second] : kParameters) {
    const mreal a = first, b = second, s = a + b;
    const std::vector<mreal> values = variates(drawBeta, a, b, 20000);
    EXPECT_LT(kolmogorov(values, [=](mreal x) { return betaBelow(a, b, x); }), kKolmogorovLimit)
        << a << ' ' << b;
    const mreal variance = a * b / (s * s * (s + 1));
    expectMean(values, a / s, variance);
    const mreal fourth =
        3 * variance * variance * (s + 1) * (2 * s * s + a * b * (s - 6)) / (a * b * (s + 2) * (s + 3));
    EXPECT_NEAR(varianceOf(values), variance, 3.891 * std::sqrt((fourth - variance * variance) / 20000))
        << a << ' ' << b;
  }
}

// The oracle: distributions with closed forms, and the two halves of a symmetric one.
TEST(IncompleteBeta, OfTheTestsHasTheClosedFormsOfSimpleParameters) {
  for (const mreal x : {0.01, 0.3, 0.5, 0.77, 0.999}) {
    EXPECT_NEAR(betaBelow(1, 3, x), 1 - std::pow(1 - x, 3), 1e-13);
    EXPECT_NEAR(betaBelow(0.2, 1, x), std::pow(x, 0.2), 1e-13);
    EXPECT_NEAR(betaBelow(2, 2, x), x * x * (3 - 2 * x), 1e-13);
    EXPECT_NEAR(betaBelow(0.5, 0.5, x), 2 / M_PI * std::asin(std::sqrt(x)), 1e-13);
    EXPECT_NEAR(betaBelow(30, 30, x) + betaBelow(30, 30, 1 - x), 1, 1e-13);
  }
}

const std::vector<mreal> kWeights = {3, 0, 1, 0.5, 2.5, 0, 4, 7};

std::vector<mreal> sharesOf(std::vector<mreal> weights) {
  const mreal total = std::accumulate(weights.begin(), weights.end(), 0.0);
  for (mreal &weight : weights) weight /= total;
  return weights;
}

TEST_P(Distributions, ChoicesHaveTheirWeights) {
  std::vector<mint> positions(kCount), counts(kWeights.size());
  const Tensor tensor = tensorOf<mreal>({mint(kWeights.size())}, kWeights);
  EXPECT_EQ(RunningSums(tensor.get()).draw(positions.data(), kCount), 0);
  for (const mint position : positions) ++counts.at(size_t(position) - 1);
  expectShares(counts, sharesOf(kWeights));
  std::fill(counts.begin(), counts.end(), 0);
  EXPECT_EQ(drawPositions(positions.data(), kCount, 8), 0);
  for (const mint position : positions) ++counts.at(size_t(position) - 1);
  expectShares(counts, std::vector<mreal>(8, 1.0 / 8));
}

// Ordered pairs without replacement: the first by its share of all, the second by its share of the rest.
// `draw` draws one pair.
template <class Draw> void expectOrderedPairs(const std::vector<mreal> &shares, const Draw &draw) {
  const size_t n = shares.size();
  std::vector<mint> counts(n * n);
  for (mint k = 0; k < kCount; ++k) {
    mint pair[2];
    ASSERT_EQ(draw(pair), 0);
    ++counts.at(size_t(pair[0] - 1) * n + size_t(pair[1] - 1));
  }
  std::vector<mreal> probabilities(n * n);
  for (size_t i = 0; i < n; ++i)
    for (size_t j = 0; j < n; ++j)
      if (i != j) probabilities[i * n + j] = shares[i] * shares[j] / (1 - shares[i]);
  expectShares(counts, probabilities);
}

TEST_P(Distributions, SamplesAreUniformWhicheverMethodDrawsThem) {
  for (const mint length : {8, 20})
    expectOrderedPairs(std::vector<mreal>(size_t(length), 1.0 / length),
                       [length](mint *pair) { return samplePositions(pair, 2, length); });
}

TEST_P(Distributions, WeightedSamplesTakeFromWhatIsLeftWhicheverMethodDrawsThem) {
  for (const size_t length : {8u, 20u}) {
    std::vector<mreal> weights = kWeights;
    weights.resize(length, 0);
    const Tensor tensor = tensorOf<mreal>({mint(length)}, weights);
    const RunningSums sums(tensor.get());
    expectOrderedPairs(sharesOf(weights), [&](mint *pair) { return sampleByWeights(pair, 2, sums); });
  }
}

} // namespace

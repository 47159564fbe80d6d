// Norms, weights and scaled norms against exact sums (norms_oracle.h): both kinds, every power, strides,
// magnitudes whose squares leave the range; checks and special values.
#include "linalg/blas.h"
#include "linalg/plain_norms.h"
#include "norms_oracle.h"
#include "support/kinds.h"

#include <gtest/gtest.h>
#include <torvane/operators.h>
#include <torvane/vectors.h>

using namespace torvane::test;

namespace {

constexpr mint kMax = TORVANE_MAXIMUM_NORM, kCheck = TORVANE_CHECK_REALS;
constexpr mreal kInfinity = HUGE_VAL, kNaN = NAN, kKept = 123.25;
const mint kPowers[] = {1, 2, 3, 4, 7, 20, kMax};

Wide magnitude(mreal x) { return wideMagnitude(x); }
Wide magnitude(const mcomplex &z) { return lengthOf(Wide(z.re), Wide(z.im)); }

// The norm of the terms; `divisor` goes into the sum before the root.
Wide wideNorm(mint p, const std::vector<Wide> &terms, mreal divisor = 1) {
  Wide sum = 0, largest = 0;
  for (const Wide &a : terms) largest = larger(largest, a);
  if (p == kMax || isZero(largest)) return largest;
  for (const Wide &a : terms) sum = sum + power(a / largest, Wide(p));
  return largest * power(sum / Wide(divisor), Wide(1) / Wide(p));
}

// n terms: each of them, and each addition, may be off by one rounding; so may a power, and its root divides
// what has piled up by p.
mreal allowed(size_t count) { return mreal(count) + 16; }

void expectWithin(mreal bound, mreal norm, const Wide &expected, size_t count) {
  EXPECT_LE(ulpsBetween(norm, expected), bound) << norm << " for " << narrow(expected) << " of " << count;
}
void expectClose(mreal norm, const Wide &expected, size_t count) {
  expectWithin(allowed(count), norm, expected, count);
}

struct Normed {
  mreal value = kKept;
  mint status = -1;
};
Normed normOf(const std::vector<mreal> &data, mint p, mint flags = 0) {
  Normed normed;
  normed.status = machfunc_d_vectornorm(&normed.value, p, data.data(), mint(data.size()), 1, flags);
  return normed;
}
Normed normOf(const std::vector<mcomplex> &data, mint p, mint flags = 0) {
  Normed normed;
  normed.status = machfunc_c_vectornorm(&normed.value, p, data.data(), mint(data.size()), 1, flags);
  return normed;
}

template <class T> T randomOf(std::mt19937_64 &random, int exponent);
template <> mreal randomOf(std::mt19937_64 &random, int exponent) {
  return std::ldexp(mreal(int64_t(random())) * 0x1p-63, exponent + int(random() % 6) - 3);
}
template <> mcomplex randomOf(std::mt19937_64 &random, int exponent) {
  return {randomOf<mreal>(random, exponent), randomOf<mreal>(random, exponent)};
}
template <class T> std::vector<T> randomVector(std::mt19937_64 &random, size_t count, int exponent) {
  std::vector<T> list(count);
  for (T &x : list) x = randomOf<T>(random, exponent);
  return list;
}
template <class T> std::vector<Wide> magnitudes(const std::vector<T> &list) {
  std::vector<Wide> terms;
  for (const T &x : list) terms.push_back(magnitude(x));
  return terms;
}

// ---- plain --------------------------------------------------------------------------------------

// Powers of 2, around those where squares of doubles overflow, underflow, or only just do not.
const int kExponents[] = {0, 1010, 500, -500, -1000, -1060};
const size_t kCounts[] = {1, 2, 3, 5, 8, 33, 67, 1000};

bool sumOverflows(mint p, int exponent, size_t count) { return exponent == 1010 && p == 1 && count == 1000; }

template <class T> void expectPlainNorms() {
  std::mt19937_64 random(31);
  for (const mint p : kPowers)
    for (const int exponent : kExponents)
      for (const size_t count : kCounts) {
        if (sumOverflows(p, exponent, count)) continue;
        const std::vector<T> data = randomVector<T>(random, count, exponent);
        const Wide expected = wideNorm(p, magnitudes(data));
        for (const mint flags : {0, kCheck}) {
          const Normed normed = normOf(data, p, flags);
          ASSERT_EQ(normed.status, 0);
          expectClose(normed.value, expected, count);
        }
      }
}

TEST(VectorNorm, OfRealsIsRightFromTheSmallestToTheLargestMagnitudes) { expectPlainNorms<mreal>(); }
TEST(VectorNorm, OfComplexesIsRightFromTheSmallestToTheLargestModuli) { expectPlainNorms<mcomplex>(); }

TEST(VectorNorm, OfKnownVectors) {
  EXPECT_EQ(normOf(std::vector<mreal>{3, -4}, 2).value, 5);
  EXPECT_EQ(normOf(std::vector<mreal>{3, -4}, 1).value, 7);
  EXPECT_EQ(normOf(std::vector<mreal>{1, -3, 2}, kMax).value, 3);
  EXPECT_EQ(normOf(std::vector<mcomplex>{{3, 4}, {0, -12}}, 2).value, 13);
  EXPECT_EQ(normOf(std::vector<mcomplex>{{3, 4}, {0, -12}}, 1).value, 17) << "of moduli, not of parts";
  EXPECT_EQ(normOf(std::vector<mcomplex>{{3, 4}, {4.5, 0}}, kMax).value, 5);
  EXPECT_EQ(normOf(std::vector<mcomplex>{{3, 3}, {4.5, 0}}, kMax).value, 4.5);
}

TEST(VectorNorm, OfMixedMagnitudesLosesNeitherEnd) {
  const std::vector<mreal> data = {1e-320, 1e300, -1e-300, 1e300, 4e-310};
  for (const mint p : kPowers) expectClose(normOf(data, p).value, wideNorm(p, magnitudes(data)), data.size());
  const std::vector<mreal> small = {5e-324, 5e-324, -5e-324, 5e-324};
  EXPECT_EQ(normOf(small, 2).value, 1e-323);
  EXPECT_EQ(normOf(small, 1).value, 2e-323);
  EXPECT_EQ(normOf(small, kMax).value, 5e-324);
}

TEST(VectorNorm, OfNoElementsOrZerosIsZero) {
  for (const mint p : kPowers)
    for (const mint count : {0, -4, 3}) {
      const mreal zeros[3] = {0.0, -0.0, 0.0};
      const mcomplex complexes[3] = {{0.0, -0.0}, {0, 0}, {-0.0, 0}};
      mreal real = 9, complex = 9;
      EXPECT_EQ(machfunc_d_vectornorm(&real, p, zeros, count, 1, kCheck), 0);
      EXPECT_EQ(machfunc_c_vectornorm(&complex, p, complexes, count, 1, kCheck), 0);
      EXPECT_EQ(real, 0) << p << " of " << count;
      EXPECT_EQ(complex, 0);
    }
}

template <class T, class Norm> void expectStrides(Norm norm) {
  std::mt19937_64 random(32);
  for (const mint p : kPowers)
    for (const mint stride : {1, 2, 7, 0, -1, -3})
      for (const mint count : {0, 1, 2, 10, 67}) {
        const size_t size = count == 0 ? 0 : size_t((count - 1) * std::abs(stride) + 1);
        const std::vector<T> data = randomVector<T>(random, size, 0);
        const T *start = data.data() + (stride < 0 && size != 0 ? size - 1 : 0);
        std::vector<T> list;
        for (mint k = 0; k < count; ++k) list.push_back(start[k * stride]);
        mreal value = kKept;
        ASSERT_EQ(norm(&value, p, start, count, stride, kCheck), 0);
        expectClose(value, wideNorm(p, magnitudes(list)), list.size());
      }
}

TEST(VectorNorm, WalksAnyStride) {
  expectStrides<mreal>(machfunc_d_vectornorm);
  expectStrides<mcomplex>(machfunc_c_vectornorm);
}

TEST(VectorNorm, OfAnInfinityOrANaNIsOneAndFailsUnderTheFlag) {
  for (const mint p : kPowers)
    for (const mreal odd : {kInfinity, -kInfinity, kNaN})
      for (size_t count = 1; count < 68; ++count)
        for (const size_t at : {size_t(0), count / 2, count - 1}) {
          std::vector<mreal> data(count, 1.5);
          std::vector<mcomplex> complexes(count, mcomplex{1.5, -2});
          data[at] = complexes[at].im = odd;
          for (const Normed &normed : {normOf(data, p), normOf(complexes, p)}) {
            ASSERT_EQ(normed.status, 0);
            ASSERT_EQ(std::isnan(normed.value), std::isnan(odd)) << p << " at " << at << " of " << count;
            ASSERT_FALSE(std::isfinite(normed.value));
          }
          for (const Normed &normed : {normOf(data, p, kCheck), normOf(complexes, p, kCheck)}) {
            ASSERT_EQ(normed.status, 1001);
            ASSERT_EQ(normed.value, kKept) << "nothing is stored";
          }
          ASSERT_EQ(normOf(data, p, TORVANE_CHECK_INTEGERS).status, 0) << "the flag of another kind";
        }
}

TEST(VectorNorm, BeyondTheLargestRealIsInfiniteAndFailsUnderTheFlag) {
  for (const mint p : {1, 2, 3}) {
    const std::vector<mreal> data(8, 1.7e308);
    EXPECT_EQ(normOf(data, p).value, kInfinity);
    EXPECT_EQ(normOf(data, p, kCheck).status, 1001);
  }
  EXPECT_EQ(normOf(std::vector<mreal>(8, 1.7e308), kMax, kCheck).value, 1.7e308);
  EXPECT_EQ(normOf(std::vector<mcomplex>{{1.7e308, 1.7e308}}, kMax, kCheck).status, 1001);
}

// No norm, but what the sum makes of them: the first power is of 0.
TEST(VectorNorm, ForAPowerBelowOneFailsUnderTheFlag) {
  for (const mint p : {0, -1, -2}) {
    EXPECT_EQ(normOf(std::vector<mreal>{1, 2}, p, kCheck).status, 1001) << p;
    EXPECT_EQ(normOf(std::vector<mreal>{1, 2}, p).status, 0) << p;
  }
}

// ---- sums by the BLAS and without it ------------------------------------------------------------

// The two ways that a sum may be computed, under the bounds that are stated for both.
struct Sums {
  mreal (*ofMagnitudes)(const mreal *, mint, mint);
  mreal (*ofSquares)(const mreal *, mint, mint);
  mreal (*ofComplexSquares)(const mcomplex *, mint, mint);
};
const Sums kSums[] = {
    {torvane::blasSumOfMagnitudes, torvane::blasEuclideanNorm, torvane::blasEuclideanNorm},
    {torvane::plainSumOfMagnitudes, torvane::plainEuclideanNorm, torvane::plainEuclideanNorm}};

template <class T> std::vector<T> everyNth(const std::vector<T> &list, mint stride) {
  std::vector<T> chosen;
  for (size_t k = 0; k < list.size(); k += size_t(stride)) chosen.push_back(list[k]);
  return chosen;
}

void expectSums(const std::vector<mreal> &data, const std::vector<mcomplex> &complexes, mint stride) {
  const std::vector<mreal> list = everyNth(data, stride);
  const std::vector<mcomplex> pairs = everyNth(complexes, stride);
  const auto count = mint(list.size());
  const mreal n = count;
  const Wide sum = wideNorm(1, magnitudes(list)), norm = wideNorm(2, magnitudes(list)),
             ofPairs = wideNorm(2, magnitudes(pairs));
  for (const Sums &sums : kSums) {
    if (std::isfinite(narrow(sum)))
      expectWithin(n, sums.ofMagnitudes(data.data(), count, stride), sum, list.size());
    expectWithin(n / 2 + 3, sums.ofSquares(data.data(), count, stride), norm, list.size());
    expectWithin(n + 3, sums.ofComplexSquares(complexes.data(), count, stride), ofPairs, list.size());
  }
}

TEST(SumsOfNorms, AreWithinTheirBoundsAtEveryMagnitudeAndStride) {
  std::mt19937_64 random(35);
  for (const int exponent : {0, 1010, 513, 488, 486, 484, -509, -511, -513, -1000, -1060})
    for (const mint stride : {1, 2, 7})
      for (const size_t count : kCounts) {
        const size_t size = (count - 1) * size_t(stride) + 1;
        expectSums(randomVector<mreal>(random, size, exponent),
                   randomVector<mcomplex>(random, size, exponent), stride);
      }
}

// Neighbours of which one has a square in range and the other has not, and the ends of the range together.
TEST(SumsOfNorms, LoseNothingWhereMagnitudesMix) {
  std::mt19937_64 random(36);
  const std::vector<std::vector<int>> mixes = {
      {490, 480}, {-505, -517}, {-511, -1060}, {1000, 0, -1000}, {500, 486, -511, -900}};
  for (int round = 0; round < 200; ++round)
    for (const std::vector<int> &mix : mixes) {
      const auto anExponent = [&] { return mix[size_t(random() % mix.size())]; };
      std::vector<mreal> data(1 + size_t(random() % 40));
      std::vector<mcomplex> complexes(data.size());
      for (mreal &x : data) x = randomOf<mreal>(random, anExponent());
      for (mcomplex &z : complexes)
        z = {randomOf<mreal>(random, anExponent()), randomOf<mreal>(random, anExponent())};
      expectSums(data, complexes, 1);
    }
}

TEST(SumsOfNorms, OfZerosInfinitiesAndNaNsAreThese) {
  for (const Sums &sums : kSums) {
    const mreal zeros[3] = {0.0, -0.0, 0.0}, infinite[3] = {1, -kInfinity, 1e300},
                invalid[3] = {1e300, kNaN, 1e-300};
    EXPECT_EQ(sums.ofSquares(zeros, 3, 1), 0);
    EXPECT_EQ(sums.ofMagnitudes(zeros, 3, 1), 0);
    EXPECT_EQ(sums.ofSquares(zeros, 0, 1), 0);
    EXPECT_EQ(sums.ofSquares(infinite, 3, 1), kInfinity);
    EXPECT_EQ(sums.ofMagnitudes(infinite, 3, 1), kInfinity);
    EXPECT_TRUE(std::isnan(sums.ofSquares(invalid, 3, 1)));
    EXPECT_TRUE(std::isnan(sums.ofMagnitudes(invalid, 3, 1)));
    const mcomplex pair[1] = {{0, -kInfinity}}, none[1] = {{0, kNaN}};
    EXPECT_EQ(sums.ofComplexSquares(pair, 1, 1), kInfinity);
    EXPECT_TRUE(std::isnan(sums.ofComplexSquares(none, 1, 1)));
  }
}

// ---- weighted -----------------------------------------------------------------------------------

template <class T, class Norm> void expectWeighted(Norm norm) {
  std::mt19937_64 random(33);
  for (const mint p : kPowers)
    for (const mint stride : {1, 3, -2, 0})
      for (const size_t count : std::initializer_list<size_t>{0, 1, 2, 19, 67}) {
        const size_t size = count == 0 ? 0 : (count - 1) * size_t(std::abs(stride)) + 1;
        const std::vector<T> data = randomVector<T>(random, size, 0);
        std::vector<mreal> weights = randomVector<mreal>(random, count, 2);
        for (mreal &w : weights) w = std::fabs(w);
        const T *start = data.data() + (stride < 0 && size != 0 ? size - 1 : 0);
        std::vector<Wide> terms;
        for (size_t k = 0; k < count; ++k)
          terms.push_back(magnitude(start[ptrdiff_t(k) * stride]) * Wide(weights[k]));
        mreal value = kKept;
        ASSERT_EQ(norm(&value, p, start, weights.data(), mint(count), stride, kCheck), 0);
        expectClose(value, wideNorm(p, terms), count);
      }
}

// Powers of 2 of data and weights, whose terms are in range though their squares are not.
const int kWeightedExponents[][2] = {{1000, -990}, {600, 300}, {-600, -300}, {-1000, 980}, {500, 500}};

template <class T, class Norm> void expectWeightedExtremes(Norm norm) {
  std::mt19937_64 random(37);
  for (const mint p : kPowers)
    for (const auto &[ofData, ofWeights] : kWeightedExponents)
      for (const size_t count : std::initializer_list<size_t>{1, 2, 19, 67}) {
        const std::vector<T> data = randomVector<T>(random, count, ofData);
        std::vector<mreal> weights = randomVector<mreal>(random, count, ofWeights);
        std::vector<Wide> terms;
        for (size_t k = 0; k < count; ++k) {
          weights[k] = std::fabs(weights[k]);
          terms.push_back(magnitude(data[k]) * Wide(weights[k]));
        }
        mreal value = kKept;
        ASSERT_EQ(norm(&value, p, data.data(), weights.data(), mint(count), 1, kCheck), 0);
        expectClose(value, wideNorm(p, terms), count);
      }
}

TEST(WeightedVectorNorm, TakesEachMagnitudeTimesItsWeight) {
  expectWeighted<mreal>(machfunc_d_weightedvectornorm);
  expectWeighted<mcomplex>(machfunc_c_weightedvectornorm);
}

TEST(WeightedVectorNorm, OfTermsWhoseSquaresLeaveTheRangeIsRight) {
  expectWeightedExtremes<mreal>(machfunc_d_weightedvectornorm);
  expectWeightedExtremes<mcomplex>(machfunc_c_weightedvectornorm);
}

TEST(WeightedVectorNorm, OfNoElementsOrWeightsOfZeroIsZero) {
  const mreal data[3] = {1, -2, 3}, weights[3] = {0, 0, 0};
  const mcomplex complexes[3] = {{1, 1}, {0, 2}, {3, 0}};
  for (const mint p : kPowers)
    for (const mint count : {3, 0, -1, INT32_MIN}) {
      mreal real = kKept, complex = kKept;
      EXPECT_EQ(machfunc_d_weightedvectornorm(&real, p, data, weights, count, 1, kCheck), 0);
      EXPECT_EQ(machfunc_c_weightedvectornorm(&complex, p, complexes, weights, count, 1, kCheck), 0);
      EXPECT_EQ(real, 0) << p << " of " << count;
      EXPECT_EQ(complex, 0) << p << " of " << count;
    }
}

TEST(WeightedVectorNorm, FailsUnderTheFlagWhereItIsNotFinite) {
  const mreal data[2] = {1, 2}, infinite[2] = {1, kInfinity}, invalid[2] = {kNaN, 1};
  for (const mint p : kPowers) {
    mreal value = kKept;
    EXPECT_EQ(machfunc_d_weightedvectornorm(&value, p, data, infinite, 2, 1, kCheck), 1001);
    EXPECT_EQ(machfunc_d_weightedvectornorm(&value, p, data, invalid, 2, 1, kCheck), 1001);
    EXPECT_EQ(value, kKept);
    EXPECT_EQ(machfunc_d_weightedvectornorm(&value, p, data, invalid, 2, 1, 0), 0);
    EXPECT_TRUE(std::isnan(value)) << p;
  }
}

// ---- weights ------------------------------------------------------------------------------------

TEST(VectorNormWeights, AreTheReciprocalTolerances) {
  const mreal data[4] = {3, -5, 0, 1e300};
  const mcomplex complexes[4] = {{3, -4}, {-5, 12}, {0, 0}, {0, 1e300}};
  mreal weights[6] = {7, 7, 7, 7, 7, 7};
  EXPECT_EQ(machfunc_d_vectornormweights(weights + 1, 2, 0.5, data, 4, kCheck), 0);
  EXPECT_EQ(std::vector<mreal>(weights, weights + 6),
            (std::vector<mreal>{7, 1 / 6.5, 1 / 10.5, 2, 1 / (1e300 * 2 + 0.5), 7}));
  EXPECT_EQ(machfunc_c_vectornormweights(weights + 1, 2, 0.5, complexes, 4, kCheck), 0);
  EXPECT_EQ(std::vector<mreal>(weights, weights + 6),
            (std::vector<mreal>{7, 1 / 10.5, 1 / 26.5, 2, 1 / (1e300 * 2 + 0.5), 7}));
  EXPECT_EQ(machfunc_d_vectornormweights(weights, 2, 0.5, data, 0, kCheck), 0);
  EXPECT_EQ(machfunc_d_vectornormweights(weights, 2, 0.5, data, -1, kCheck), 0);
  EXPECT_EQ(weights[0], 7);
}

// A product, a sum and a quotient, and the modulus of a complex: each is rounded once.
template <class T, class Weigh> void expectWeights(Weigh weigh) {
  std::mt19937_64 random(38);
  const mreal tolerances[][2] = {{1e-3, 1e-6}, {0, 0.25}, {1, 0}, {0x1p-500, 0x1p-600}, {1e300, 1e-300}};
  for (const auto &[atol, rtol] : tolerances)
    for (const int exponent : {0, 20, -500}) {
      const std::vector<T> data = randomVector<T>(random, 67, exponent);
      std::vector<mreal> weights(67);
      ASSERT_EQ(weigh(weights.data(), atol, rtol, data.data(), 67, kCheck), 0);
      for (size_t k = 0; k < 67; ++k)
        expectWithin(3, weights[k], Wide(1) / (magnitude(data[k]) * Wide(atol) + Wide(rtol)), k);
    }
}

TEST(VectorNormWeights, AreRightAtEveryMagnitude) {
  expectWeights<mreal>(machfunc_d_vectornormweights);
  expectWeights<mcomplex>(machfunc_c_vectornormweights);
}

TEST(VectorNormWeights, OfAnInfinityIsZeroAndOfANaNIsOneAndNeitherFails) {
  const mreal data[3] = {kInfinity, kNaN, -kInfinity};
  const mcomplex complexes[3] = {{1, -kInfinity}, {kNaN, 1}, {kInfinity, kNaN}};
  mreal weights[3];
  EXPECT_EQ(machfunc_d_vectornormweights(weights, 1, 1, data, 3, kCheck), 0);
  EXPECT_EQ(weights[0], 0);
  EXPECT_TRUE(std::isnan(weights[1]));
  EXPECT_EQ(weights[2], 0);
  EXPECT_EQ(machfunc_c_vectornormweights(weights, 1, 1, complexes, 3, kCheck), 0);
  EXPECT_EQ(weights[0], 0);
  EXPECT_TRUE(std::isnan(weights[1]));
}

TEST(VectorNormWeights, OfAZeroDenominatorFailUnderTheFlagElseAreInfinite) {
  const mreal data[3] = {2, 0, 4};
  const mcomplex complexes[3] = {{2, 0}, {0, 0}, {0, 4}};
  for (const bool isComplex : {false, true}) {
    mreal weights[3] = {7, 7, 7};
    const auto run = [&](mint flags) {
      return isComplex ? machfunc_c_vectornormweights(weights, 1, 0, complexes, 3, flags)
                       : machfunc_d_vectornormweights(weights, 1, 0, data, 3, flags);
    };
    EXPECT_EQ(run(kCheck), 2);
    EXPECT_EQ(weights[0], 0.5) << "those before the failure are written";
    EXPECT_EQ(weights[1], 7);
    EXPECT_EQ(run(0), 0);
    EXPECT_EQ(weights[1], kInfinity);
    EXPECT_EQ(weights[2], 0.25);
  }
}

// ---- scaled -------------------------------------------------------------------------------------

template <class T, class Norm> void expectScaled(Norm norm) {
  std::mt19937_64 random(34);
  for (const mint p : kPowers)
    for (const size_t count : std::initializer_list<size_t>{0, 1, 2, 19, 67, 500})
      for (const mint mean : {0, 1, -3}) {
        const std::vector<T> error = randomVector<T>(random, count, -20),
                             data = randomVector<T>(random, count, 3);
        std::vector<Wide> terms;
        for (size_t k = 0; k < count; ++k)
          terms.push_back(magnitude(error[k]) / (magnitude(data[k]) * Wide(1e-3) + Wide(1e-6)));
        const bool divides = p == 1 || p == 2 ? mean != 0 : true;
        mreal value = kKept;
        ASSERT_EQ(norm(&value, p, 1e-3, 1e-6, error.data(), data.data(), mint(count), mean, kCheck), 0);
        expectClose(value, wideNorm(p, terms, divides && count != 0 ? mreal(count) : 1), 2 * count + 16);
      }
}

TEST(ScaledVectorNorm, IsTheNormOfErrorsRelativeToTheirTolerance) {
  expectScaled<mreal>(machfunc_d_scaledvectornorm);
  expectScaled<mcomplex>(machfunc_c_scaledvectornorm);
}

// Relative errors of 2 to the 800 and to the -800, about: no square of one is in range.
template <class T, class Norm> void expectScaledExtremes(Norm norm) {
  std::mt19937_64 random(39);
  const struct {
    int ofError, ofData;
    mreal atol, rtol;
  } cases[] = {
      {500, -300, 1, 0x1p-310}, {-500, 300, 1, 0x1p290}, {1000, 900, 0x1p-600, 0}, {-900, 0, 0, 0x1p-100}};
  for (const mint p : kPowers)
    for (const auto &c : cases)
      for (const mint mean : {0, 1}) {
        const std::vector<T> error = randomVector<T>(random, 67, c.ofError),
                             data = randomVector<T>(random, 67, c.ofData);
        std::vector<Wide> terms;
        for (size_t k = 0; k < 67; ++k)
          terms.push_back(magnitude(error[k]) / (magnitude(data[k]) * Wide(c.atol) + Wide(c.rtol)));
        const bool divides = p != kMax && (mean != 0 || p > 2);
        mreal value = kKept;
        ASSERT_EQ(norm(&value, p, c.atol, c.rtol, error.data(), data.data(), 67, mean, kCheck), 0);
        expectClose(value, wideNorm(p, terms, divides ? 67 : 1), 2 * 67 + 16);
      }
}

TEST(ScaledVectorNorm, OfRelativeErrorsWhoseSquaresLeaveTheRangeIsRight) {
  expectScaledExtremes<mreal>(machfunc_d_scaledvectornorm);
  expectScaledExtremes<mcomplex>(machfunc_c_scaledvectornorm);
}

TEST(ScaledVectorNorm, OfNoElementsIsZeroThoughTheMeanOfNoneIsNot) {
  for (const mint p : kPowers)
    for (const mint mean : {0, 1})
      for (const mint count : {0, -1, INT32_MIN}) {
        mreal real = kKept, complex = kKept;
        EXPECT_EQ(machfunc_d_scaledvectornorm(&real, p, 1, 1, nullptr, nullptr, count, mean, kCheck), 0);
        EXPECT_EQ(machfunc_c_scaledvectornorm(&complex, p, 1, 1, nullptr, nullptr, count, mean, kCheck), 0);
        EXPECT_EQ(real, 0) << p << " of " << count;
        EXPECT_EQ(complex, 0) << p << " of " << count;
      }
}

TEST(ScaledVectorNorm, OfAnInfiniteOrInvalidErrorIsOneAndFailsUnderTheFlag) {
  for (const mint p : kPowers)
    for (const mreal odd : {kInfinity, -kInfinity, kNaN})
      for (const size_t at : {size_t(0), size_t(3), size_t(6)}) {
        std::vector<mreal> error(7, 0.5);
        std::vector<mcomplex> errors(7, mcomplex{0.5, 1});
        const std::vector<mreal> data(7, 1.0);
        const std::vector<mcomplex> complexes(7, mcomplex{0, 1});
        error[at] = errors[at].im = odd;
        for (const mint flags : {0, kCheck}) {
          mreal real = kKept, complex = kKept;
          const mint status = flags == 0 ? 0 : 1001;
          EXPECT_EQ(machfunc_d_scaledvectornorm(&real, p, 1, 1, error.data(), data.data(), 7, 0, flags),
                    status);
          EXPECT_EQ(
              machfunc_c_scaledvectornorm(&complex, p, 1, 1, errors.data(), complexes.data(), 7, 0, flags),
              status);
          for (const mreal value : {real, complex})
            EXPECT_TRUE(flags != 0        ? value == kKept
                        : std::isnan(odd) ? std::isnan(value)
                                          : value == kInfinity)
                << value << " for " << p << " at " << at;
        }
      }
}

TEST(ScaledVectorNorm, HeedsTheMeanFlagForOneAndTwoOnly) {
  const mreal error[4] = {1, 1, 1, 1}, data[4] = {0, 0, 0, 0};
  const auto norm = [&](mint p, mint mean) {
    mreal value = kKept;
    EXPECT_EQ(machfunc_d_scaledvectornorm(&value, p, 0, 0.5, error, data, 4, mean, kCheck), 0);
    return value;
  };
  EXPECT_EQ(norm(1, 0), 8);
  EXPECT_EQ(norm(1, 1), 2);
  EXPECT_EQ(norm(2, 0), 4);
  EXPECT_EQ(norm(2, 1), 2);
  EXPECT_EQ(norm(kMax, 0), 2);
  EXPECT_EQ(norm(kMax, 1), 2);
  EXPECT_EQ(norm(4, 0), 2) << "always the mean";
  EXPECT_EQ(norm(4, 1), 2);
}

TEST(ScaledVectorNorm, OfAZeroToleranceFailsUnderTheFlag) {
  const mreal error[2] = {1, 0}, data[2] = {0, 1};
  for (const mint p : kPowers) {
    mreal value = kKept;
    EXPECT_EQ(machfunc_d_scaledvectornorm(&value, p, 1, 0, error, data, 2, 0, kCheck), 1001) << p;
    EXPECT_EQ(value, kKept);
    EXPECT_EQ(machfunc_d_scaledvectornorm(&value, p, 1, 0, error, data, 2, 0, 0), 0);
    EXPECT_EQ(value, kInfinity) << p;
  }
}

} // namespace

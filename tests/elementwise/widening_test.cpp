// The widening drivers on lengths beyond a block: every operator against the loop over elements that they
// stand for, outcomes, written prefixes, polls of the abort watch.
#include "widening_oracle.h"

#include "elementwise/dispatch.h"
#include "runtime/failure.h"

#include <torvane/machfuncs.h>

using namespace torvane;
using namespace torvane::test;

namespace {

// ---- one operand -------------------------------------------------------------------------------------

TEST(WideningUnary, IsTheLoopOverElementsForEveryOperator) {
  std::mt19937_64 random(5);
  int pairs = 0;
  for (mint op = 0; op < 85; ++op) {
    UnaryPair pair;
    if (!wideningPair(op, &pair)) continue;
    ++pairs;
    for (const Mixture mixture : kMixtures)
      for (const mint count : {0, 1, 255, 256, 257, 1500})
        for (const mint flags : {0, 2})
          for (const mint first : {0, 300}) {
            const Reals x = reals(mixture, size_t(count), random);
            const Looped looped = loopUnary(pair, x.data(), first, count, flags);
            Complexes result(size_t(count) + 1, kUnwritten);
            SCOPED_TRACE(testing::Message() << "operator " << op << " mixture " << int(mixture) << " count "
                                            << count << " flags " << flags << " first " << first);
            ASSERT_EQ(widenUnary(pair, result.data(), x.data(), first, count, flags), looped.outcome);
            ASSERT_NO_FATAL_FAILURE(expectWritten(result.data(), std::min(first, count), looped));
            ASSERT_EQ(result[size_t(count)].im, kUnwritten.im);
          }
  }
  EXPECT_EQ(pairs, 46) << "operators with a real and a complex routine that store those";
}

// Pairs of elements and the last single one are told apart in different ways.
TEST(WideningUnary, IsTheLoopOverElementsForEveryExtremeAtEveryPlace) {
  for (mint op = 0; op < 85; ++op) {
    UnaryPair pair;
    if (!wideningPair(op, &pair)) continue;
    for (const mreal extreme : {0.0, -0.0, HUGE_VAL, -HUGE_VAL, mreal(NAN), -mreal(NAN), 5e-324, -5e-324})
      for (const mint count : {1, 2, 5})
        for (mint place = 0; place < count; ++place)
          for (const mreal other : {2.0, -2.0}) {
            Reals x(size_t(count), other);
            x[size_t(place)] = extreme;
            const Looped looped = loopUnary(pair, x.data(), 0, count, 0);
            Complexes result(size_t(count), kUnwritten);
            SCOPED_TRACE(testing::Message() << "operator " << op << ": " << extreme << " at " << place);
            ASSERT_EQ(widenUnary(pair, result.data(), x.data(), 0, count, 0), looped.outcome);
            ASSERT_NO_FATAL_FAILURE(expectWritten(result.data(), 0, looped));
          }
  }
}

// What stands for a refusal without a call must be one.
TEST(WideningUnary, OutsideTheKnownDomainTheRealRoutineRefuses) {
  const mint strides[2] = {1, 1};
  int known = 0;
  for (mint op = 0; op < 85; ++op) {
    UnaryPair pair;
    if (!wideningPair(op, &pair) || pair.domain.low == -HUGE_VAL) continue;
    ++known;
    const auto [low, high] = pair.domain;
    mreal value;
    for (const mreal x : {std::nextafter(low, -HUGE_VAL), low - 1e-9, low - 1, low - 1e300, -HUGE_VAL})
      EXPECT_EQ(pair.real(&value, &x, 1, strides, 0), 1) << op << " at " << x;
    EXPECT_EQ(pair.real(&value, &low, 1, strides, 0), 0) << op;
    if (high == HUGE_VAL) continue;
    for (const mreal x : {std::nextafter(high, HUGE_VAL), high + 1e-9, high + 1, high + 1e300, HUGE_VAL})
      EXPECT_EQ(pair.real(&value, &x, 1, strides, 0), 1) << op << " at " << x;
    EXPECT_EQ(pair.real(&value, &high, 1, strides, 0), 0) << op;
  }
  EXPECT_EQ(known, 10);
}

mint refusingLarge(void *result, const void *x, mint count, const mint *strides, mint flags) {
  for (mint k = 0; k < count; ++k) {
    const auto z = static_cast<const mcomplex *>(x)[k];
    if (z.re < -1000) return k + 1;
    machfunc_c_sqrt(static_cast<mcomplex *>(result) + k, &z, 1, strides, flags);
  }
  return 0;
}

// The complex routine fails too, at every place of a block and of its neighbours.
TEST(WideningUnary, TellsThePositionOfTheFailureAndWritesWhatIsBefore) {
  std::mt19937_64 random(6);
  UnaryPair pair;
  ASSERT_TRUE(wideningPair(kSqrt, &pair));
  pair.complex = refusingLarge;
  for (const mint position : {0, 1, 254, 255, 256, 257, 511, 512, 599})
    for (const bool isKnown : {false, true}) {
      Reals x = reals(Mixture::random, 600, random);
      x[size_t(position)] = -2000;
      UnaryPair tried = pair;
      if (!isKnown) tried.domain = kUnknownDomain;
      Complexes result(600, kUnwritten);
      EXPECT_EQ(widenUnary(tried, result.data(), x.data(), 0, 600, 0), position);
      const Looped looped = loopUnary(tried, x.data(), 0, 600, 0);
      EXPECT_EQ(looped.outcome, position);
      expectWritten(result.data(), 0, looped);
    }
}

// ---- two operands -------------------------------------------------------------------------------------

TEST(WideningBinary, IsTheLoopOverElementsForEveryOperatorAndShape) {
  std::mt19937_64 random(7);
  const Extents shapes[][2] = {{{700}, {700}},  {{600}, {}},     {{}, {600}},       {{5, 120}, {5}},
                               {{5}, {5, 120}}, {{2, 300}, {2}}, {{200, 3}, {200}}, {{1}, {1}}};
  int pairs = 0;
  for (mint op = 257; op < 278; ++op)
    for (const auto &[kind1, kind2] : {std::pair{2, 3}, {3, 2}, {3, 3}}) {
      BinaryPair pair;
      if (!wideningPair(op, kind1, kind2, &pair)) continue;
      ++pairs;
      for (const auto &shape : shapes)
        for (const Mixture mixture : kMixtures) {
          const Tensor x = operand(kind1, shape[0], mixture, random),
                       y = operand(kind2, shape[1], mixture, random);
          const mint count = std::max(x->elementCount, y->elementCount),
                     first = random() % 3 == 0 ? mint(random() % 600) % count : 0;
          const Looped looped = loopBinary(pair, x.get(), y.get(), first, 0);
          const Tensor result = unwritten(count);
          SCOPED_TRACE(testing::Message() << "operator " << op << " of " << kind1 << " " << kind2
                                          << " counts " << x->elementCount << " " << y->elementCount
                                          << " mixture " << int(mixture) << " first " << first);
          ASSERT_EQ(widenBinary(pair, result.get(), x.get(), y.get(), first, 0), looped.outcome);
          ASSERT_NO_FATAL_FAILURE(expectWritten(elements<mcomplex>(result), first, looped));
        }
    }
  EXPECT_EQ(pairs, 26) << "eight operators on three pairs of types, the shifts on one";
}

// 10 to the power 1000 overflows the reals under the forced check, and the complex power is real again.
TEST(WideningBinary, AnOverflowThatStaysRealFails) {
  MTensor *result = nullptr;
  const Tensor base = tensorOf<mreal>({3}, {2, 10, 2}), power = tensorOf<mreal>({3}, {0.5, 1000, 0.5});
  EXPECT_EQ(MTensorMathBinary(&result, base.get(), power.get(), kPow, kComplex), 1);
  EXPECT_EQ(static_cast<mcomplex *>(result->data)[0].re, std::sqrt(2.0));
  MTensor_delete(result);
  result = nullptr;
  const Tensor thousand = tensorOf<mreal>({1}, {1000});
  EXPECT_EQ(MTensorMathUnary(&result, thousand.get(), 32, kComplex), 0) << "not so through the unary driver";
  EXPECT_EQ(static_cast<mcomplex *>(result->data)[0].re, HUGE_VAL);
  EXPECT_EQ(static_cast<mcomplex *>(result->data)[0].im, 0);
  MTensor_delete(result);
}

// ---- the abort watch --------------------------------------------------------------------------------------

mint abortFlag = 0, asked = 0, confirmedAt = 0;
mint confirm(const char *) { return ++asked == confirmedAt; }

class WideningAborts : public testing::Test {
protected:
  WideningAborts() {
    setAbortWatch(&abortFlag, confirm);
    abortFlag = 1;
    asked = 0;
    confirmedAt = 0;
  }
  ~WideningAborts() override {
    abortFlag = 0;
    setAbortWatch(nullptr, nullptr);
  }
};

constexpr mint kLongestBlock = 1024; // between two polls, at most

TEST_F(WideningAborts, ArePolledAtLeastOnceABlock) {
  std::mt19937_64 random(8);
  const Reals x = reals(Mixture::random, 10000, random);
  Complexes result(10000);
  UnaryPair roots;
  ASSERT_TRUE(wideningPair(kSqrt, &roots));
  EXPECT_EQ(widenUnary(roots, result.data(), x.data(), 0, 10000, 0), -7);
  EXPECT_GE(asked, (10000 + kLongestBlock - 1) / kLongestBlock);
  EXPECT_LE(asked, 100) << "a poll an element would be dear";
  BinaryPair sums;
  ASSERT_TRUE(wideningPair(kPlus, kReal, kReal, &sums));
  for (const Extents &rows : {Extents{3000, 3}, Extents{3, 3000}}) {
    asked = 0;
    const Tensor a = operand(kReal, rows, Mixture::random, random),
                 b = operand(kReal, {rows[0]}, Mixture::random, random), c = unwritten(9000);
    EXPECT_EQ(widenBinary(sums, c.get(), a.get(), b.get(), 0, 0), -3);
    EXPECT_GE(asked, (9000 + kLongestBlock - 1) / kLongestBlock);
    EXPECT_LE(asked, 100);
  }
}

TEST_F(WideningAborts, StopWithThePositionReached) {
  std::mt19937_64 random(9);
  const Reals x = reals(Mixture::random, 10000, random);
  UnaryPair roots;
  BinaryPair sums;
  ASSERT_TRUE(wideningPair(kSqrt, &roots));
  ASSERT_TRUE(wideningPair(kPlus, kReal, kReal, &sums));
  const Tensor a = operand(kReal, {1000, 10}, Mixture::random, random),
               b = operand(kReal, {1000}, Mixture::random, random);
  for (mint at = 1; at <= 4; ++at) {
    Complexes result(10000, kUnwritten);
    asked = 0;
    confirmedAt = at;
    const mint stopped = widenUnary(roots, result.data(), x.data(), 0, 10000, 0);
    EXPECT_LE(stopped, (at - 1) * kLongestBlock);
    EXPECT_EQ(stopped == 0, at == 1);
    EXPECT_EQ(result[size_t(stopped)].im, kUnwritten.im);
    if (stopped > 0) EXPECT_NE(result[size_t(stopped) - 1].im, kUnwritten.im);
    asked = 0;
    const Tensor c = unwritten(10000);
    const mint stoppedSums = widenBinary(sums, c.get(), a.get(), b.get(), 0, 0);
    EXPECT_LE(stoppedSums, (at - 1) * kLongestBlock);
    EXPECT_EQ(stoppedSums == 0, at == 1);
    EXPECT_EQ(elements<mcomplex>(c)[stoppedSums].im, kUnwritten.im);
    if (stoppedSums > 0) EXPECT_EQ(elements<mcomplex>(c)[stoppedSums - 1].im, 0);
  }
}

TEST_F(WideningAborts, OfAnEmptyTensorAskNobody) {
  UnaryPair roots;
  ASSERT_TRUE(wideningPair(kSqrt, &roots));
  EXPECT_EQ(widenUnary(roots, nullptr, nullptr, 0, 0, 0), -2);
  EXPECT_EQ(asked, 0);
}

TEST_F(WideningAborts, AreAStatusLikeAFailingElement) {
  const Tensor x = tensorOf<mreal>({2}, {4, -4});
  MTensor *result = nullptr;
  confirmedAt = 1;
  EXPECT_EQ(tensorMathUnary(&result, x.get(), kSqrt, kComplex, 0), 4);
  MTensor_delete(result);
}

} // namespace

// The widening drivers and the real-first operations on lengths beyond a block: every operator against the
// loop over elements that they stand for, outcomes, written prefixes, polls of the abort watch.
#include "elementwise/dispatch.h"
#include "elementwise/real_first.h"
#include "elementwise/repetition.h"
#include "elementwise/widening.h"
#include "runtime/startup.h"
#include "runtime/thresholds.h"
#include "runtime/failure.h"
#include "support/failing_heap.h"
#include "support/kinds.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>
#include <thread>
#include <torvane/machfuncs.h>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mint kInteger = 2, kReal = 3, kComplex = 4;
constexpr mint kSqrt = 57, kPow = 263, kPlus = 257, kSquare = 56, kLog = 34;

using Reals = std::vector<mreal>;
using Complexes = std::vector<mcomplex>;

const mcomplex kUnwritten = {-77, -78};

// ---- the loop over elements ---------------------------------------------------------------------------

struct Looped {
  mint outcome;
  Complexes written; // before the failure
};

mint outcomeOfKinds(mint kinds) { return kinds == 0 ? -2 : -kinds; }

Looped loopUnary(const UnaryPair &pair, const mreal *x, mint first, mint count, mint flags) {
  const mint strides[2] = {1, 1};
  Looped looped = {0, {}};
  mint kinds = 0;
  for (mint k = first; k < count; ++k) {
    mreal value;
    mcomplex wide;
    const mcomplex widened = {x[k], 0};
    if (pair.real(&value, x + k, 1, strides, flags) == 0) {
      looped.written.push_back({value, 0});
      kinds |= 3;
    } else if (pair.complex(&wide, &widened, 1, strides, flags) == 0) {
      looped.written.push_back(wide);
      kinds |= 4;
    } else {
      looped.outcome = k;
      return looped;
    }
  }
  looped.outcome = outcomeOfKinds(kinds);
  return looped;
}

// Element k of the result pairs with element k of the longer operand and k / b of the shorter.
Looped loopBinary(const BinaryPair &pair, const MTensor *x, const MTensor *y, mint first, mint flags) {
  const mint strides[3] = {1, 1, 1}, longer = std::max(x->elementCount, y->elementCount),
             shorter = std::min(x->elementCount, y->elementCount), block = longer / shorter;
  Looped looped = {0, {}};
  mint kinds = 0;
  for (mint k = first; k < longer; ++k) {
    const void *a = elementAt(x, x->elementCount == longer ? k : k / block),
               *b = elementAt(y, y->elementCount == longer ? k : k / block);
    mreal value;
    mcomplex wide;
    if (pair.real(&value, a, b, 1, strides, flags | 2) == 0) {
      looped.written.push_back({value, 0});
      kinds |= 3;
      continue;
    }
    const mcomplex widened = {*static_cast<const mreal *>(pair.widensFirst ? a : b), 0};
    (pair.widensFirst ? a : b) = &widened;
    if (pair.complex(&wide, a, b, 1, strides, flags) != 0 || wide.im == 0) {
      looped.outcome = k;
      return looped;
    }
    looped.written.push_back(wide);
    kinds |= 4;
  }
  looped.outcome = outcomeOfKinds(kinds);
  return looped;
}

void expectSame(mcomplex x, mcomplex y, size_t k) {
  ASSERT_TRUE(sameReal(x.re, y.re) && sameReal(x.im, y.im))
      << k << ": (" << x.re << ", " << x.im << ") and (" << y.re << ", " << y.im << ")";
}

void expectWritten(const mcomplex *result, mint first, const Looped &looped) {
  for (mint k = 0; k < first; ++k) ASSERT_EQ(result[k].im, kUnwritten.im) << "not this call's";
  for (size_t k = 0; k < looped.written.size(); ++k)
    ASSERT_NO_FATAL_FAILURE(expectSame(result[size_t(first) + k], looped.written[k], k));
}

// ---- operands -------------------------------------------------------------------------------------------

enum class Mixture { positive, sparse, alternating, halves, random, anything };
constexpr Mixture kMixtures[] = {Mixture::positive, Mixture::sparse, Mixture::alternating,
                                 Mixture::halves,   Mixture::random, Mixture::anything};

mreal sample(Mixture mixture, size_t k, size_t count, std::mt19937_64 &random) {
  const mreal magnitude = mreal(random() % 4000 + 1) / 1000;
  switch (mixture) {
  case Mixture::positive:
    return magnitude;
  case Mixture::sparse:
    return random() % 300 == 0 ? -magnitude : magnitude;
  case Mixture::alternating:
    return k % 2 == 0 ? -magnitude : magnitude;
  case Mixture::halves:
    return k < count / 2 ? magnitude : -magnitude;
  case Mixture::random:
    return random() % 2 == 0 ? -magnitude : magnitude;
  case Mixture::anything:
    break;
  }
  return sampleElement(kReal, random).value.re;
}

Reals reals(Mixture mixture, size_t count, std::mt19937_64 &random) {
  Reals x(count);
  for (size_t k = 0; k < count; ++k) x[k] = sample(mixture, k, count, random);
  return x;
}

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

// ---- binary ---------------------------------------------------------------------------------------------

Tensor operand(mint kind, const Extents &extents, Mixture mixture, std::mt19937_64 &random) {
  Tensor tensor = newTensor(kind, extents);
  const auto count = size_t(tensor->elementCount);
  for (size_t k = 0; k < count; ++k) {
    const mreal value = sample(mixture, k, count, random);
    if (kind == kReal) elements<mreal>(tensor)[k] = value;
    if (kind == kInteger) elements<mint>(tensor)[k] = std::fabs(value) < 100 ? mint(value * 2) : 3;
  }
  return tensor;
}

Tensor unwritten(mint count) {
  Tensor tensor = newTensor(kComplex, {count});
  std::fill_n(elements<mcomplex>(tensor), count, kUnwritten);
  return tensor;
}

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

// ---- real first -------------------------------------------------------------------------------------------

struct RealFirst {
  Tensor result;
  mint status;
};
RealFirst realFirst(const Tensor &x, mint op, mint flags = 0) {
  MTensor *result = nullptr;
  const mint status = realFirstUnary(&result, x.get(), op, flags);
  return {Tensor(result), status};
}

TEST(RealFirst, StaysRealWhileNoElementLeavesTheReals) {
  const RealFirst roots = realFirst(tensorOf<mreal>({2, 2}, {1, 4, 9, -0.0}), kSqrt);
  ASSERT_EQ(roots.status, 0);
  EXPECT_EQ(roots.result->type, kReal);
  EXPECT_EQ(valuesOf<mreal>(roots.result), (Reals{1, 2, 3, -0.0}));
  const RealFirst none = realFirst(tensorOf<mreal>({0}, {}), kSqrt);
  EXPECT_EQ(none.status, 0);
  EXPECT_EQ(none.result->type, kReal);
}

// Position p at every place: what is before it is coerced, the rest is the widening loop's.
TEST(RealFirst, TurnsComplexAtTheFirstElementThatLeaves) {
  std::mt19937_64 random(10);
  UnaryPair pair;
  ASSERT_TRUE(wideningPair(kSqrt, &pair));
  for (const mint position : {0, 1, 2, 17, 255, 256, 600, 699})
    for (const mint flags : {0, 2}) {
      Reals values = reals(Mixture::positive, 700, random);
      for (size_t k = size_t(position); k < 700; k += 3) values[k] = -values[k];
      const Tensor x = tensorOf<mreal>({70, 10}, values);
      const RealFirst roots = realFirst(x, kSqrt, flags);
      ASSERT_EQ(roots.status, 0);
      ASSERT_TRUE(isValidTensor(roots.result.get()));
      ASSERT_EQ(roots.result->type, kComplex);
      ASSERT_EQ(extentsOf(roots.result), (Extents{70, 10}));
      ASSERT_EQ(valuesOf<mreal>(x), values);
      const Looped looped = loopUnary(pair, values.data(), 0, 700, flags);
      expectWritten(elements<mcomplex>(roots.result), 0, looped);
    }
}

// A coerced zero loses its sign; one of the loop keeps it.
TEST(RealFirst, CoercesZerosBeforeTheFirstElementThatLeaves) {
  const RealFirst roots = realFirst(tensorOf<mreal>({3}, {-0.0, -4, -0.0}), kSqrt);
  ASSERT_EQ(roots.status, 0);
  const auto *z = elements<mcomplex>(roots.result);
  EXPECT_FALSE(std::signbit(z[0].re));
  EXPECT_EQ(z[1].im, 2);
  EXPECT_TRUE(std::signbit(z[2].re));
}

TEST(RealFirst, ComputesOverItsOwnOperand) {
  const Tensor x = tensorOf<mreal>({4}, {4, 9, -16, 25});
  MTensor *slot = x.get();
  EXPECT_EQ(realFirstUnary(&slot, x.get(), kSqrt, 0), 0);
  EXPECT_EQ(slot, x.get());
  ASSERT_EQ(x->type, kComplex);
  EXPECT_EQ(elements<mcomplex>(x)[1].re, 3);
  EXPECT_EQ(elements<mcomplex>(x)[2].im, 4);
  EXPECT_EQ(elements<mcomplex>(x)[3].re, 5);
  const Tensor base = tensorOf<mreal>({2}, {4, -4}), power = tensorOf<mreal>({2, 2}, {0.5, 2, 0.5, 2});
  slot = base.get();
  EXPECT_EQ(realFirstBinary(&slot, base.get(), power.get(), kPow, 0), 0) << "the smaller operand grows";
  EXPECT_TRUE(isValidTensor(base.get()));
  EXPECT_EQ(extentsOf(base), (Extents{2, 2}));
  ASSERT_EQ(base->type, kComplex);
  EXPECT_EQ(elements<mcomplex>(base)[0].re, 2);
  EXPECT_EQ(elements<mcomplex>(base)[3].re, 16);
}

TEST(RealFirst, OfPairsKeepsTheBlocksBeforeTheFailure) {
  std::mt19937_64 random(11);
  BinaryPair pair;
  ASSERT_TRUE(wideningPair(kPow, kReal, kReal, &pair));
  const Tensor base = operand(kReal, {6, 50}, Mixture::positive, random),
               power = tensorOf<mreal>({6}, Reals(6, 0.5));
  MTensor *result = nullptr;
  ASSERT_EQ(realFirstBinary(&result, base.get(), power.get(), kPow, 0), 0);
  EXPECT_EQ(result->type, kReal);
  for (size_t k = 170; k < 300; k += 7) elements<mreal>(base)[k] *= -1;
  ASSERT_EQ(realFirstBinary(&result, base.get(), power.get(), kPow, 0), 0);
  ASSERT_EQ(result->type, kComplex);
  EXPECT_EQ(extentsOf(result), (Extents{6, 50}));
  expectWritten(static_cast<mcomplex *>(result->data), 0, loopBinary(pair, base.get(), power.get(), 0, 0));
  elements<mreal>(base)[290] = 1e300; // overflows as a square, and stays real as a complex
  elements<mreal>(power)[5] = 2;
  EXPECT_EQ(realFirstBinary(&result, base.get(), power.get(), kPow, 0), 4);
  MTensor_delete(result);
}

// A pair must stay finite to stay real, here as in the widening driver.
TEST(RealFirst, OfPairsRefusesAnInfinityThatStaysReal) {
  const Tensor large = tensorOf<mreal>({3}, {1, 1e308, 2});
  MTensor *result = nullptr;
  EXPECT_EQ(realFirstBinary(&result, large.get(), large.get(), kPlus, 0), 4);
  EXPECT_EQ(static_cast<mcomplex *>(result->data)[0].re, 2);
  MTensor_delete(result);
}

TEST(RealFirst, RefusesWhatDoesNotWiden) {
  const Tensor words = tensorOf<mint>({2}, {1, 2}), x = tensorOf<mreal>({2}, {1, 2}),
               z = tensorOf<mcomplex>({2}, {{1, 0}, {2, 0}}), longer = tensorOf<mreal>({3}, {1, 2, 3});
  MTensor *result = nullptr;
  EXPECT_EQ(realFirstUnary(&result, words.get(), kSqrt, 0), 4);
  EXPECT_EQ(realFirstUnary(&result, z.get(), kSqrt, 0), 4);
  for (const mint op : {0, 4, 38, 49, 58, 61, 85, -1})
    EXPECT_EQ(realFirstUnary(&result, x.get(), op, 0), 4) << op;
  EXPECT_EQ(realFirstBinary(&result, words.get(), words.get(), kPlus, 0), 4);
  EXPECT_EQ(realFirstBinary(&result, z.get(), x.get(), 270, 0), 4);
  EXPECT_EQ(realFirstBinary(&result, x.get(), x.get(), 256, 0), 4);
  EXPECT_EQ(realFirstBinary(&result, x.get(), longer.get(), kPlus, 0), -1);
  EXPECT_EQ(result, nullptr);
}

// ---- memory
// -------------------------------------------------------------------------------------------------

// Every request for memory fails in turn: status 5, nothing lost. Yields how often the slot stayed empty. On
// one thread, since a pool that finds no memory is no failure of the call.
template <class Call> int failEveryRequestOf(Call call) {
  const mint parallelBefore = setParallelDisabled(1);
  FailingHeap heap;
  int empty = 0;
  const int64_t failures = failEveryRequest(heap, [&] {
    MTensor *slot = nullptr;
    const mint status = call(&slot);
    EXPECT_EQ(status, heap.failed() ? 5 : 0);
    empty += slot == nullptr;
    MTensor_delete(slot);
  });
  EXPECT_GT(failures, 0) << "the test asks for memory that the heap had at hand";
  setParallelDisabled(parallelBefore);
  return empty;
}

// Payloads so large that the process heap is asked for each.
constexpr mint kLarge = 200000;

TEST(DispatchMemory, AFailureIsStatusFiveForEveryOperation) {
  const Tensor x = tensorOf<mreal>({kLarge}, Reals(size_t(kLarge), -4));
  EXPECT_GE(
      failEveryRequestOf([&](MTensor **slot) { return tensorMathUnary(slot, x.get(), kSquare, kReal, 0); }),
      1);
  EXPECT_GE(
      failEveryRequestOf([&](MTensor **slot) { return tensorMathUnary(slot, x.get(), kSqrt, kComplex, 0); }),
      1);
  EXPECT_GE(failEveryRequestOf(
                [&](MTensor **slot) { return tensorMathBinary(slot, x.get(), x.get(), kPlus, kReal, 0); }),
            1);
  // The real result may stand when memory for the complex one cannot be had; it is the caller's.
  failEveryRequestOf([&](MTensor **slot) { return realFirstUnary(slot, x.get(), kSqrt, 0); });
}

TEST(DispatchMemory, AFailureOfThePoolLeavesTheWorkToTheCaller) {
  const Tensor x = tensorOf<mreal>({kLarge}, Reals(size_t(kLarge), -4)),
               held = tensorOf<mreal>({kLarge}, Reals(size_t(kLarge)));
  FailingHeap heap;
  const int64_t failures = failEveryRequest(heap, [&] {
    tearDownPool();
    MTensor *slot = held.get();
    EXPECT_EQ(tensorMathUnary(&slot, x.get(), kSquare, kReal, 0), 0);
    EXPECT_EQ(elements<mreal>(held)[kLarge - 1], 16);
    elements<mreal>(held)[kLarge - 1] = 0;
  });
  EXPECT_TRUE(workerCount() < 2 || failures > 0);
}

TEST(DispatchMemory, AFailureLeavesTheTensorOfTheSlotWithItsOwner) {
  const Tensor x = tensorOf<mreal>({kLarge}, Reals(size_t(kLarge), 4)), held = tensorOf<mreal>({2}, {1, 2});
  FailingHeap heap;
  heap.failFrom(1);
  MTensor *slot = held.get();
  for (int call = 0; call < 2; ++call) { // the second finds the shape and no payload
    EXPECT_EQ(tensorMathBinary(&slot, x.get(), x.get(), kPlus, kReal, 0), 5);
    EXPECT_EQ(slot, held.get());
  }
  heap.succeed();
  EXPECT_EQ(tensorMathBinary(&slot, x.get(), x.get(), kPlus, kReal, 0), 0) << "asked again, it is allocated";
  EXPECT_EQ(elements<mreal>(held)[kLarge - 1], 8);
}

TEST(DispatchMemory, AFailureOfRealFirstKeepsTheOperandThatIsItsResult) {
  const Tensor x = tensorOf<mreal>({kLarge}, Reals(size_t(kLarge), -4));
  FailingHeap heap;
  for (const int64_t request : {1, 2, 3}) {
    heap.failFrom(request);
    MTensor *slot = x.get();
    const mint status = realFirstUnary(&slot, x.get(), kSqrt, 0);
    if (!heap.failed()) break;
    EXPECT_EQ(status, 5);
    EXPECT_EQ(x->type, kReal);
    EXPECT_EQ(elements<mreal>(x)[kLarge - 1], -4);
    heap.succeed();
  }
}

// Only 403 has a status of its own; what else an allocation says comes through.
TEST(DispatchMemory, OtherStatusesOfTheAllocationComeThrough) {
  mint extents[2] = {2, -1};
  MTensor broken = {};
  broken.type = kReal;
  broken.rank = 2;
  broken.dimensions = extents;
  MTensor *result = nullptr;
  EXPECT_EQ(tensorMathUnary(&result, &broken, kSqrt, kReal, 0), 402);
  EXPECT_EQ(tensorMathBinary(&result, &broken, &broken, kPlus, kReal, 0), 402);
  EXPECT_EQ(realFirstUnary(&result, &broken, kSqrt, 0), 402);
  broken.rank = -1;
  EXPECT_EQ(tensorMathUnary(&result, &broken, kSqrt, kReal, 0), 401);
  extents[0] = extents[1] = 65536;
  broken.rank = 2;
  EXPECT_EQ(tensorMathUnary(&result, &broken, kSqrt, kReal, 0), 5);
  EXPECT_EQ(MTensorMathUnary(&result, &broken, kSqrt, kReal), 1);
  EXPECT_EQ(result, nullptr);
}

// ---- what no call does
// ----------------------------------------------------------------------------------------

// Positions are all that is left of a failure: neither a pending code nor a jump nor a throw.
TEST(DispatchFailures, RaiseInNoStyle) {
  const Tensor x = tensorOf<mreal>({3}, {1, -1, 1});
  for (const mint style : {0, 1, 2}) {
    setExceptionStyle(style);
    const mint before = setExceptionActive(77);
    MTensor *result = nullptr;
    EXPECT_EQ(MTensorMathUnary(&result, x.get(), kLog, kReal), 1);
    EXPECT_EQ(MTensorMathUnary(&result, x.get(), kLog, kComplex), 0);
    EXPECT_EQ(setExceptionActive(before), 77);
    MTensor_delete(result);
  }
  setExceptionStyle(1);
}

// Operands are only read, so that several threads may compute from the same ones.
TEST(ConcurrentDispatch, ThreadsShareTheirOperands) {
  std::mt19937_64 random(12);
  const Tensor x = operand(kReal, {40, 50}, Mixture::random, random),
               y = operand(kReal, {40}, Mixture::positive, random);
  std::vector<Complexes> roots(4);
  std::vector<Reals> sums(4);
  std::vector<std::thread> threads;
  for (size_t k = 0; k < 4; ++k)
    threads.emplace_back([&, k] {
      MTensor *root = nullptr, *sum = nullptr;
      EXPECT_EQ(MTensorMathUnary(&root, x.get(), kSqrt, kComplex), 0);
      EXPECT_EQ(MTensorMathBinary(&sum, x.get(), y.get(), kPlus, kReal), 0);
      roots[k] = valuesOf<mcomplex>(Tensor(root));
      sums[k] = valuesOf<mreal>(Tensor(sum));
    });
  for (std::thread &thread : threads) thread.join();
  UnaryPair pair;
  ASSERT_TRUE(wideningPair(kSqrt, &pair));
  const Looped looped = loopUnary(pair, elements<mreal>(x), 0, 2000, 0);
  for (size_t k = 0; k < 4; ++k) {
    expectWritten(roots[k].data(), 0, looped);
    EXPECT_EQ(sums[k], sums[0]);
    EXPECT_EQ(sums[k][1999], elements<mreal>(x)[1999] + elements<mreal>(y)[39]);
  }
}

} // namespace

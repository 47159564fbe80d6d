// The uniform draws as callers reach them, from the calling thread's generator.
#include "runtime/memory.h"
#include "words.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace torvane;
using namespace torvane::test;

namespace {

class UniformDraws : public testing::Test {
protected:
  UniformDraws() { startRandomNumbers(); }
  BitModel model;
};

constexpr auto kIntegerDraws = {UniformRandomMIntegers, Runtime_UniformRandomMIntegers};
constexpr auto kRealDraws = {UniformRandomMReals, Runtime_UniformRandomMReals};
constexpr auto kComplexDraws = {UniformRandomMComplexes, Runtime_UniformRandomMComplexes};

TEST_F(UniformDraws, IntegersLieFromTheSmallerBoundToTheLarger) {
  for (const auto draw : kIntegerDraws)
    for (const auto &[a, b] : {std::pair{10, 25}, {25, 10}}) {
      const BufferedWords words(40);
      const CurrentGenerator current(words.generator);
      std::vector<mint> drawn(100);
      BitModel fresh;
      EXPECT_EQ(draw(drawn.data(), 100, a, b), 0);
      for (const mint value : drawn) EXPECT_EQ(value, 10 + mint(fresh.read(4)));
      EXPECT_TRUE(words.isAt(400));
    }
}

TEST_F(UniformDraws, RealsLieFromTheFirstBoundTowardsTheSecond) {
  for (const auto draw : kRealDraws)
    for (const auto &[a, b] : {std::pair{2.0, 3.0}, {3.0, 2.0}}) {
      const BufferedWords words(40);
      const CurrentGenerator current(words.generator);
      std::vector<mreal> drawn(100);
      BitModel fresh;
      EXPECT_EQ(draw(drawn.data(), 100, a, b), 0);
      for (const mreal value : drawn) EXPECT_EQ(value, readReal(fresh, a, b));
    }
}

TEST_F(UniformDraws, AllRealPartsAreDrawnBeforeAnyImaginaryPart) {
  for (const auto draw : kComplexDraws) {
    const BufferedWords words(40);
    const CurrentGenerator current(words.generator);
    std::vector<mcomplex> drawn(50);
    BitModel fresh;
    EXPECT_EQ(draw(drawn.data(), 50, -1, 10, 1, 20), 0);
    for (const mcomplex &z : drawn) EXPECT_EQ(z.re, readReal(fresh, -1, 1));
    for (const mcomplex &z : drawn) EXPECT_EQ(z.im, readReal(fresh, 10, 20));
    EXPECT_TRUE(words.isAt(fresh.position));
  }
}

TEST_F(UniformDraws, NoComplexPartIsANegativeZero) {
  const CurrentGenerator current;
  current.table()->randomMReals = [](mreal *to, mint count, mreal, mreal, RandomGenerator *) {
    for (mint k = 0; k < count; ++k) to[k] = -0.0;
    return mint{0};
  };
  mcomplex z[2];
  EXPECT_EQ(UniformRandomMComplexes(z, 2, 0, 0, 1, 1), 0);
  for (const mcomplex &part : z) EXPECT_FALSE(std::signbit(part.re) || std::signbit(part.im));
}

// Callers count the scratch among the costs of the call.
TEST_F(UniformDraws, EachComplexDrawLeavesItsScratchAllocated) {
  for (const mint count : {1, 3, 1000}) {
    std::vector<mcomplex> drawn(size_t(count) + 1);
    Free_fun(Malloc_fun(uint32_t(count) * 8));
    const uint32_t used = usedBytesOfThisThread();
    void *scratch = Malloc_fun(uint32_t(count) * 8);
    const uint32_t cost = usedBytesOfThisThread() - used;
    Free_fun(scratch);
    ASSERT_EQ(usedBytesOfThisThread(), used);
    EXPECT_EQ(UniformRandomMComplexes(drawn.data(), count, 0, 0, 1, 1), 0);
    EXPECT_EQ(usedBytesOfThisThread() - used, cost) << count;
    EXPECT_EQ(UniformRandomMComplexes(drawn.data(), count, 0, 0, HUGE_VAL, 1), 1001);
    EXPECT_EQ(usedBytesOfThisThread() - used, 2 * cost) << count;
  }
  const uint32_t used = usedBytesOfThisThread();
  EXPECT_EQ(UniformRandomMComplexes(nullptr, 0, 0, 0, 1, 1), 0);
  EXPECT_EQ(UniformRandomMComplexes(nullptr, -1, 0, 0, 1, 1), 0);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST_F(UniformDraws, WideRealBoundsTakeNoBitsAndWideImaginaryOnesThoseOfTheRealParts) {
  const BufferedWords words(40);
  const CurrentGenerator current(words.generator);
  std::vector<mcomplex> drawn(5, {-7, -7});
  EXPECT_EQ(UniformRandomMComplexes(drawn.data(), 5, 0, 0, HUGE_VAL, 1), 1001);
  EXPECT_EQ(drawn[0].re, -7);
  EXPECT_TRUE(words.isAt(0));
  EXPECT_EQ(UniformRandomMComplexes(drawn.data(), 5, 0, 0, 1, HUGE_VAL), 1001);
  EXPECT_TRUE(words.isAt(5 * 52));
  EXPECT_EQ(drawn[4].im, 0);
  EXPECT_EQ(UniformRandomMComplexes(nullptr, 0, 0, 0, 1, HUGE_VAL), 1001);
}

TEST_F(UniformDraws, ScratchBeyond32BitsIsNotHad) {
  EXPECT_EQ(UniformRandomMComplexes(nullptr, 1 << 29, 0, 0, 1, 1), 403);
}

TEST_F(UniformDraws, AMissingFunctionIsToldBeforeAnythingElse) {
  const CurrentGenerator current;
  current.table()->randomMIntegers = nullptr;
  current.table()->randomMReals = nullptr;
  for (const auto draw : kIntegerDraws) {
    EXPECT_EQ(draw(nullptr, 0, 1, 1), 11);
    EXPECT_EQ(draw(nullptr, 1, INT32_MIN, INT32_MAX), 11);
  }
  for (const auto draw : kRealDraws) EXPECT_EQ(draw(nullptr, 0, 0, HUGE_VAL), 11);
  for (const auto draw : kComplexDraws) {
    EXPECT_EQ(draw(nullptr, 0, 0, 0, 1, 1), 11);
    EXPECT_EQ(draw(nullptr, 1 << 29, 0, 0, HUGE_VAL, 1), 11);
  }
}

TEST_F(UniformDraws, SpansOf2To31AndMoreAreRefused) {
  const BufferedWords words(40);
  const CurrentGenerator current(words.generator);
  mint drawn = -7;
  for (const auto draw : kIntegerDraws) {
    EXPECT_EQ(draw(&drawn, 1, INT32_MIN, 0), 4);
    EXPECT_EQ(draw(&drawn, 1, INT32_MAX, -1), 4);
  }
  EXPECT_EQ(drawn, -7);
  EXPECT_TRUE(words.isAt(0));
}

// The built-in generators' tables hold the bulk draws: the same stream as their bits, one by one.
TEST_F(UniformDraws, BuiltInGeneratorsDrawWhatTheirBitsSay) {
  for (const mint method : {1, 3}) {
    const uint32_t seed = 4711;
    std::vector<mreal> reals(1000);
    std::vector<mint> integers(1000);
    EXPECT_EQ(Runtime_SeedRandom(&seed, method), 0);
    EXPECT_EQ(UniformRandomMReals(reals.data(), 1000, 0, 1), 0);
    EXPECT_EQ(UniformRandomMIntegers(integers.data(), 1000, 1, 100), 0);
    EXPECT_EQ(Runtime_SeedRandom(&seed, method), 0);
    RandomGenerator *generator = Runtime_GetCurrentRandomGenerator();
    const RandomGetBits getBits = Runtime_RandomGenerator_getBitFunction(generator);
    for (const mreal real : reals) {
      const uint64_t high = getBits(20, generator);
      EXPECT_EQ(real, realOf(high << 32 | getBits(32, generator), 0, 1));
    }
    for (const mint integer : integers) {
      uint32_t read;
      do read = getBits(7, generator);
      while (read > 99);
      EXPECT_EQ(integer, 1 + mint(read));
    }
  }
}

} // namespace

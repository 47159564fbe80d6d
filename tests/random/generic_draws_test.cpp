// Draws of a generator that has bits alone: values, and the reads that each makes.
#include "words.h"

#include "support/polling.h"

#include <gtest/gtest.h>

#include <bit>
#include <cfloat>
#include <cmath>

using namespace torvane;
using namespace torvane::test;

namespace {

class GenericDraws : public testing::Test {
protected:
  GenericDraws() { startRandomNumbers(); }
  GenericWords words;
  BitModel model;

  std::vector<mint> drawn(mint count, mint low, mint high) {
    std::vector<mint> values(static_cast<size_t>(count), -7);
    EXPECT_EQ(Generic_randomMIntegers(values.data(), count, low, high, words.generator), 0);
    return values;
  }
};

TEST_F(GenericDraws, IntegersAreReadsOfTheirBitsAndLargerOnesAreThrownAway) {
  for (const mint high : {2, 4, 9, 99, 127, 511, 1000000, 0x40000000, INT32_MAX}) {
    const mint bits = mint(std::bit_width(uint32_t(high)));
    for (const mint value : drawn(500, 0, high)) {
      uint32_t expected;
      do expected = model.read(bits);
      while (expected > uint32_t(high));
      EXPECT_EQ(value, mint(expected)) << high;
    }
    EXPECT_EQ(words.stream.position, model.position) << high;
    for (const mint read : words.reads) EXPECT_EQ(read, bits);
    words.reads.clear();
  }
}

TEST_F(GenericDraws, IntegersThatFillWordsAreCutFromWordsAndTheRestIsReadSingly) {
  for (const mint bits : {1, 2, 4, 8, 16}) {
    const mint each = 32 / bits, high = mint((1u << bits) - 1), count = 3 * each + each / 2;
    for (const mint value : drawn(count, -5, high - 5)) EXPECT_EQ(value, mint(model.read(bits)) - 5);
    std::vector<mint> reads(3, 32);
    reads.resize(size_t(3 + each / 2), bits);
    EXPECT_EQ(words.reads, reads);
    words.reads.clear();
  }
}

TEST_F(GenericDraws, OtherRangesWithoutRejectionAreReadSingly) {
  for (const mint value : drawn(20, 0, 7)) EXPECT_EQ(value, mint(model.read(3)));
  EXPECT_EQ(words.reads, std::vector<mint>(20, 3));
}

TEST_F(GenericDraws, IntegersReachBothEndsOfMint) {
  for (const mint value : drawn(50, INT32_MIN, -1)) EXPECT_EQ(value, mint(model.read(31) | 0x80000000u));
}

TEST_F(GenericDraws, EqualBoundsAndCountsBelow1ReadNothing) {
  EXPECT_EQ(drawn(3, 8, 8), (std::vector<mint>{8, 8, 8}));
  for (const mint count : {0, -1}) {
    EXPECT_EQ(Generic_randomMIntegers(nullptr, count, 0, 255, words.generator), 0);
    EXPECT_EQ(Generic_randomMIntegers(nullptr, count, 3, 3, words.generator), 0);
    EXPECT_EQ(Generic_randomMReals(nullptr, count, 0, 1, words.generator), 0);
  }
  EXPECT_TRUE(words.reads.empty());
}

TEST_F(GenericDraws, SpansOf2To31AndMoreAreRefusedWithoutARead) {
  mint value = -7;
  EXPECT_EQ(Generic_randomMIntegers(&value, 1, INT32_MIN, 0, words.generator), 4);
  EXPECT_EQ(Generic_randomMIntegers(&value, 1, INT32_MIN, INT32_MAX, words.generator), 4);
  EXPECT_EQ(Generic_randomMIntegers(&value, 1, 1, 0, words.generator), 4);
  EXPECT_EQ(Generic_randomMIntegers(&value, 0, 1, 0, words.generator), 4);
  EXPECT_EQ(value, -7);
  EXPECT_TRUE(words.reads.empty());
}

// The 32 high bits come first, so that 52 bits of a fraction are not those of a buffered generator.
TEST_F(GenericDraws, RealsTake32HighBitsAndThen20LowOnes) {
  for (const auto &[a, b] : {std::pair{0.0, 1.0}, {5.0, -5.0}, {0.1, 0.3}, {-1e307, 1e307}}) {
    std::vector<mreal> values(200);
    EXPECT_EQ(Generic_randomMReals(values.data(), 200, a, b, words.generator), 0);
    for (const mreal value : values) {
      const uint64_t high = model.read(32);
      const auto x = mreal((uint64_t{1} << 52) + (high << 20 | model.read(20)));
      const mreal d = (b - a) * 2, product = x * (d * 0x1p-53);
      EXPECT_EQ(value, product + (b - d));
    }
    for (size_t k = 0; k < 400; ++k) EXPECT_EQ(words.reads[k], k % 2 == 0 ? 32 : 20);
    words.reads.clear();
  }
}

TEST_F(GenericDraws, RealBoundsWithoutALineAreRefusedWithoutARead) {
  const mreal infinity = HUGE_VAL;
  for (const auto &[a, b] :
       {std::pair{0.0, infinity}, {-1e308, 1e308}, {DBL_MAX, DBL_MAX / 2}, {std::nan(""), 0.0}}) {
    mreal value = -7;
    EXPECT_EQ(Generic_randomMReals(&value, 1, a, b, words.generator), 1001);
    EXPECT_EQ(Generic_randomMReals(&value, 0, a, b, words.generator), 1001);
    EXPECT_EQ(value, -7);
  }
  EXPECT_TRUE(words.reads.empty());
}

TEST_F(GenericDraws, RealsStopAfterTheOneWhosePollAborts) {
  const Polling polling(2);
  std::vector<mreal> values(10, -7);
  EXPECT_EQ(Generic_randomMReals(values.data(), 10, 0, 1, words.generator), 1000);
  EXPECT_EQ(polling.polls(), 3u);
  EXPECT_EQ(words.reads, (std::vector<mint>{32, 20, 32, 20, 32, 20}));
  for (size_t k = 0; k < 3; ++k) {
    const uint64_t high = model.read(32);
    EXPECT_EQ(values[k], realOf(high << 20 | model.read(20), 0, 1));
  }
  EXPECT_EQ(std::vector<mreal>(values.begin() + 3, values.end()), std::vector<mreal>(7, -7));
}

TEST_F(GenericDraws, RealsWhosePollsPassAreAllDrawn) {
  const Polling polling(INT64_MAX);
  std::vector<mreal> values(10, -7);
  EXPECT_EQ(Generic_randomMReals(values.data(), 10, 0, 1, words.generator), 0);
  EXPECT_EQ(polling.polls(), 10u);
  EXPECT_EQ(words.reads.size(), 20u);
}

// The poll has a switch of its own.
TEST_F(GenericDraws, TheHostsAbortFlagAloneDoesNotStopReals) {
  mint flag = 1;
  setAbortWatch(&flag, [](const char *) { return mint{1}; });
  EXPECT_NE(checkAbortWatch(), 0);
  std::vector<mreal> values(10, -7);
  EXPECT_EQ(Generic_randomMReals(values.data(), 10, 0, 1, words.generator), 0);
  setAbortWatch(nullptr, nullptr);
  for (const mreal value : values) EXPECT_NE(value, -7);
}

TEST_F(GenericDraws, WithoutBitsNothingElseIsLookedAt) {
  words.generator->functions->getBits = nullptr;
  EXPECT_EQ(Generic_randomMIntegers(nullptr, 0, 1, 1, words.generator), 11);
  EXPECT_EQ(Generic_randomMIntegers(nullptr, 1, INT32_MIN, INT32_MAX, words.generator), 11);
  EXPECT_EQ(Generic_randomMReals(nullptr, 0, 0, HUGE_VAL, words.generator), 11);
}

} // namespace

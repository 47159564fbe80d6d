// Bulk draws of buffered generators against reads of a row of bits, one by one: values, the cursor, the
// fills.
#include "random/draws.h"
#include "runtime/platform_cpu_level.h"
#include "words.h"

#include <gtest/gtest.h>

#include <bit>
#include <cfloat>
#include <cmath>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr uint32_t kCapacities[] = {1, 2, 3, 7, 8, 9, 10, 40, 624};
constexpr mint kUnset = 0x5A5A5A5A;

struct Bounds {
  mint low, high;
};
constexpr Bounds kBounds[] = {
    {0, 1},          {0, 2},          {0, 3},          {-3, 3},        {1, 8},         {0, 99},
    {-128, 127},     {0, 511},        {0, 600},        {0, 65535},     {0, 1000000},   {-5, 67108858},
    {0, 0x3FFFFFFF}, {0, 0x40000000}, {INT32_MIN, -1}, {0, INT32_MAX}, {INT32_MIN, -2}};

class BufferedDraws : public testing::TestWithParam<mint> {
protected:
  BufferedDraws() : outer((startRandomNumbers(), setProcessorLevel(GetParam()))) {}
  ~BufferedDraws() override { setProcessorLevel(outer); }
  const mint outer;
};
INSTANTIATE_TEST_SUITE_P(Levels, BufferedDraws, testing::Values(kBaselineLevel, kAvx512Level));

mint bitsOf(const Bounds &bounds) {
  return mint(std::bit_width(uint32_t(int64_t{bounds.high} - bounds.low)));
}

struct Model {
  std::vector<mint> values;
  BitModel stream;
  mint status = 0;
};

// The words number 1 and on that fill k brings are the stream's from bit 32 * capacity * (k - 1) on. A read
// that reaches bit 32 * capacity * (k - 1) makes fill k, and its value is whole where it stops there.
Model drawOneByOne(const Bounds &bounds, mint count, mint skipped, uint64_t failsAtBit) {
  Model model;
  model.stream.read(skipped);
  const auto range = uint32_t(int64_t{bounds.high} - bounds.low);
  while (mint(model.values.size()) < count && model.status == 0) {
    const uint64_t before = model.stream.position;
    const uint32_t read = model.stream.read(bitsOf(bounds));
    const uint64_t after = model.stream.position;
    const bool fails = (before < failsAtBit && after >= failsAtBit) || (failsAtBit == 0 && before == 0);
    if (fails) model.status = BufferedWords::kFillFailed;
    if (read <= range && (!fails || after == failsAtBit))
      model.values.push_back(mint(uint32_t(bounds.low) + read));
  }
  return model;
}

constexpr uint64_t kNever = UINT64_MAX;

void expectIntegers(const Bounds &bounds, uint32_t capacity, mint count, mint skipped, int64_t failingFill) {
  BufferedWords words(capacity);
  if (skipped > 0) words.getBits(skipped);
  words.failingFill = failingFill;
  const uint64_t failsAtBit = failingFill > 0 ? 32 * uint64_t(capacity) * uint64_t(failingFill - 1) : kNever;
  Model model = drawOneByOne(bounds, count, skipped, failsAtBit);
  std::vector<mint> drawn(size_t(count) + 3, kUnset);
  const auto where = testing::Message()
                     << bounds.low << ".." << bounds.high << ", " << capacity << " words, " << count
                     << " values after " << skipped << " bits, fill " << failingFill << " fails";
  EXPECT_EQ(bufferedMIntegers(drawn.data(), count, bounds.low, bounds.high, words.generator), model.status)
      << where;
  model.values.resize(drawn.size(), kUnset);
  EXPECT_EQ(drawn, model.values) << where;
  EXPECT_TRUE(words.isAt(model.stream.position)) << where;
}

TEST_P(BufferedDraws, IntegersAndCursorAreThoseOfReadsOneByOne) {
  for (const uint32_t capacity : kCapacities)
    for (const Bounds &bounds : kBounds)
      for (const mint count : {1, 2, 7, 8, 9, 63, 700})
        for (const mint skipped : {0, 5, 32}) expectIntegers(bounds, capacity, count, skipped, 0);
}

TEST_P(BufferedDraws, IntegersOfEveryWidthFromEveryBitOfAWord) {
  for (mint bits = 1; bits <= 31; ++bits)
    for (mint skipped = 1; skipped <= 32; ++skipped) {
      const mint high = mint(0xFFFFFFFFu >> (32 - bits));
      expectIntegers({0, high}, 24, 200, skipped, 0);
      expectIntegers({-1, high - 2}, 24, 200, skipped, 0);
    }
}

TEST_P(BufferedDraws, ManyBlocksOfIntegersAreThoseOfReadsOneByOne) {
  for (const Bounds &bounds : {Bounds{0, 255}, Bounds{0, 99}, Bounds{0, 4}})
    expectIntegers(bounds, 624, 5000, 0, 0);
}

TEST_P(BufferedDraws, AFailingFillEndsIntegersAfterTheFinishedValues) {
  for (const uint32_t capacity : {1u, 2u, 3u, 7u, 40u})
    for (const Bounds &bounds : {Bounds{0, 255}, Bounds{0, 2}, Bounds{0, 99}, Bounds{0, 1000000}})
      for (const mint count : {1, 8, 30, 400})
        for (int64_t fill = 1; fill <= 12; ++fill)
          for (const mint skipped : {0, 5}) {
            // The skipped bits must not meet the fill.
            if (skipped == 0 || fill > 1) expectIntegers(bounds, capacity, count, skipped, fill);
          }
}

TEST_P(BufferedDraws, AFailingFillThatTheLastBitBringsLeavesTheLastValueFinished) {
  BufferedWords words(1);
  words.failingFill = 2;
  mint drawn[5] = {kUnset, kUnset, kUnset, kUnset, kUnset};
  EXPECT_EQ(bufferedMIntegers(drawn, 4, 0, 255, words.generator), BufferedWords::kFillFailed);
  for (mint k = 0; k < 4; ++k) EXPECT_EQ(drawn[k], mint(wordAt(0) >> (24 - 8 * k) & 255));
  EXPECT_EQ(drawn[4], kUnset);
  EXPECT_TRUE(words.isAt(32));
}

void expectReals(mreal a, mreal b, uint32_t capacity, mint count, mint skipped, int64_t failingFill) {
  BufferedWords words(capacity);
  if (skipped > 0) words.getBits(skipped);
  words.failingFill = failingFill;
  BitModel model;
  model.read(skipped);
  std::vector<mreal> drawn(size_t(count) + 1, -7), expected(drawn);
  for (mint k = 0; k < count; ++k) expected[size_t(k)] = readReal(model, a, b);
  EXPECT_EQ(bufferedMReals(drawn.data(), count, a, b, words.generator), 0);
  EXPECT_EQ(drawn, expected) << a << ".." << b << ", " << capacity << " words, " << count << " after "
                             << skipped;
  EXPECT_TRUE(words.isAt(model.position)) << capacity << " words, " << count << " after " << skipped;
}

TEST_P(BufferedDraws, RealsAndCursorAreThoseOfReadsOneByOne) {
  for (const uint32_t capacity : kCapacities)
    for (const mint count : {1, 2, 3, 4, 5, 24, 25, 777})
      for (const mint skipped : {0, 1, 5, 20, 32}) expectReals(0, 1, capacity, count, skipped, 0);
}

TEST_P(BufferedDraws, RealsFromEveryBitOfAWord) {
  for (mint skipped = 1; skipped <= 32; ++skipped) expectReals(-3, 1e10, 17, 100, skipped, 0);
}

TEST_P(BufferedDraws, RealsDoNotHeedAFailingFill) {
  for (const uint32_t capacity : {1u, 3u, 40u})
    for (int64_t fill = 1; fill <= 5; ++fill) expectReals(0, 1, capacity, 60, 0, fill);
}

TEST_P(BufferedDraws, RealsLieOnIntervalsOfEitherDirection) {
  for (const auto &[a, b] : {std::pair{0.1, 0.3}, {5.0, -5.0}, {1e300, 2e300}, {-1e-310, 1e-310}, {2.0, 2.0}})
    expectReals(a, b, 40, 300, 0, 0);
}

// x = 1/2 gives a, and the largest x a number next to b.
TEST_P(BufferedDraws, RealsBeginAtTheFirstBoundAndStopShortOfTheSecond) {
  BufferedWords words(4);
  for (const uint32_t word : {0u, 0xFFFFFFFFu}) {
    for (uint32_t k = 0; k < 4; ++k) words.data()->words[k] = word;
    words.data()->index = 0;
    words.data()->bitsLeft = 32;
    mreal drawn[2];
    EXPECT_EQ(bufferedMReals(drawn, 2, 0, 1, words.generator), 0);
    EXPECT_EQ(drawn[0], word == 0 ? 0.0 : 1 - 0x1p-52);
    EXPECT_EQ(drawn[1], drawn[0]);
  }
}

TEST_P(BufferedDraws, EqualBoundsTakeNoBits) {
  BufferedWords words(3);
  std::vector<mint> drawn(5, kUnset);
  EXPECT_EQ(bufferedMIntegers(drawn.data(), 4, -9, -9, words.generator), 0);
  EXPECT_EQ(drawn, (std::vector<mint>{-9, -9, -9, -9, kUnset}));
  EXPECT_TRUE(words.isAt(0));
}

TEST_P(BufferedDraws, SpansOf2To31AndMoreAreRefusedWithoutADraw) {
  BufferedWords words(3);
  for (const Bounds &bounds :
       {Bounds{INT32_MIN, 0}, {INT32_MIN, INT32_MAX}, {-1, INT32_MAX}, {1, 0}, {7, -7}}) {
    mint drawn = kUnset;
    EXPECT_EQ(bufferedMIntegers(&drawn, 1, bounds.low, bounds.high, words.generator), 4);
    EXPECT_EQ(drawn, kUnset);
  }
  EXPECT_TRUE(words.isAt(0));
}

TEST_P(BufferedDraws, RealBoundsTooFarApartAreRefusedWithoutADraw) {
  BufferedWords words(3);
  const mreal infinity = HUGE_VAL, nan = std::nan("");
  for (const auto &[a, b] : {std::pair{0.0, 1e308},
                             {-1e308, 1e308},
                             {0.0, infinity},
                             {infinity, infinity},
                             {nan, 1.0},
                             {1.0, nan},
                             {-infinity, 0.0}}) {
    mreal drawn = -7;
    EXPECT_EQ(bufferedMReals(&drawn, 1, a, b, words.generator), 1001);
    EXPECT_EQ(bufferedMReals(&drawn, 0, a, b, words.generator), 1001);
    EXPECT_EQ(drawn, -7);
  }
  EXPECT_TRUE(words.isAt(0));
}

// 2 a - b is out of range, twice the distance is not.
TEST_P(BufferedDraws, RealsTestTheWidthAlone) {
  BufferedWords words(3);
  mreal drawn = -7;
  EXPECT_EQ(bufferedMReals(&drawn, 1, DBL_MAX, DBL_MAX / 2, words.generator), 0);
  EXPECT_EQ(drawn, HUGE_VAL);
  EXPECT_TRUE(words.isAt(52));
}

TEST_P(BufferedDraws, CountsBelow1DrawNothing) {
  BufferedWords words(3);
  for (const mint count : {0, -1, INT32_MIN}) {
    EXPECT_EQ(bufferedMIntegers(nullptr, count, 0, 9, words.generator), 0);
    EXPECT_EQ(bufferedMReals(nullptr, count, 0, 1, words.generator), 0);
  }
  EXPECT_TRUE(words.isAt(0));
}

// Of a range with four values none is thrown away, of one with three about one in four.
TEST_P(BufferedDraws, RejectionTakesWhatTheRangeDemands) {
  constexpr mint kCount = 100000;
  std::vector<mint> drawn(kCount);
  BufferedWords four(624), three(624);
  EXPECT_EQ(bufferedMIntegers(drawn.data(), kCount, 0, 3, four.generator), 0);
  EXPECT_TRUE(four.isAt(2 * kCount));
  EXPECT_EQ(bufferedMIntegers(drawn.data(), kCount, 0, 2, three.generator), 0);
  BitModel model;
  mint rejected = 0;
  for (mint kept = 0; kept < kCount;) model.read(2) == 3 ? ++rejected : ++kept;
  EXPECT_TRUE(three.isAt(model.position));
  // Their number has mean count / 3 and variance 4 count / 9; six standard deviations.
  EXPECT_NEAR(rejected, kCount / 3.0, 6 * std::sqrt(4 * kCount / 9.0));
}

TEST_P(BufferedDraws, BulkAndSingleReadsMayAlternate) {
  BufferedWords words(7);
  BitModel model;
  for (mint round = 0; round < 400; ++round) {
    std::vector<mint> integers(size_t(round % 13));
    EXPECT_EQ(bufferedMIntegers(integers.data(), round % 13, 0, 15, words.generator), 0);
    for (const mint drawn : integers) EXPECT_EQ(drawn, mint(model.read(4)));
    EXPECT_EQ(words.getBits(1 + round % 32), model.read(1 + round % 32));
    std::vector<mreal> reals(size_t(round % 7));
    EXPECT_EQ(bufferedMReals(reals.data(), round % 7, 0, 1, words.generator), 0);
    for (const mreal drawn : reals) EXPECT_EQ(drawn, readReal(model));
  }
  EXPECT_TRUE(words.isAt(model.position));
}

} // namespace

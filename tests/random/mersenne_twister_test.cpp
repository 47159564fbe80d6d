// MersenneTwister against published values and against the standard library's generator, at each processor
// level.
#include "plain_method.h"

#include "random/buffer.h"
#include "runtime/platform_cpu_level.h"

#include <random>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

class MersenneTwister : public testing::TestWithParam<mint> {
protected:
  MersenneTwister() : level(setProcessorLevel(GetParam())), generator(MersenneTwister_alloc(nullptr)) {}
  ~MersenneTwister() override {
    MersenneTwister_free(generator);
    setProcessorLevel(level);
  }
  void seed(const std::vector<uint32_t> &words) {
    generator->seed(generator, words.data(), mint(words.size()));
  }
  uint64_t next() {
    const uint64_t high = drawBits(generator, 32);
    return (high << 32) | drawBits(generator, 32);
  }

  const mint level;
  RandomGenerator *const generator;
};

INSTANTIATE_TEST_SUITE_P(Levels, MersenneTwister, testing::Range<mint>(0, kProcessorLevels));

// The outputs that its authors published for initialisation by the array {0x12345, 0x23456, 0x34567,
// 0x45678}.
TEST_P(MersenneTwister, BeginsAsPublishedForTheArrayOfItsAuthors) {
  seed({0x12345, 0, 0x23456, 0, 0x34567, 0, 0x45678, 0});
  for (uint64_t expected : {7266447313870364031u, 4946485549665804864u, 16945909448695747420u,
                            16394063075524226720u, 4873882236456199058u})
    EXPECT_EQ(next(), expected);
}

// The state of the standard library's engine, put into the generator: its 10000th value is the standard's
// own.
TEST_P(MersenneTwister, HasTheTenThousandthValueOfTheStandard) {
  uint64_t *words = *sourceState<uint64_t *>(generator);
  words[0] = std::mt19937_64::default_seed;
  for (uint64_t i = 1; i < 312; ++i)
    words[i] = 6364136223846793005 * (words[i - 1] ^ (words[i - 1] >> 62)) + i;
  uint64_t value = 0;
  for (int i = 0; i < 10000; ++i) value = next();
  EXPECT_EQ(value, 9981545732273789042u);
}

// A linear recurrence that is right for one state at every position of two periods of its array is right.
TEST_P(MersenneTwister, GoesOnAsTheStandardLibrarysEngine) {
  std::mt19937_64 peer(77);
  uint64_t *words = *sourceState<uint64_t *>(generator);
  words[0] = 77;
  for (uint64_t i = 1; i < 312; ++i)
    words[i] = 6364136223846793005 * (words[i - 1] ^ (words[i - 1] >> 62)) + i;
  for (int i = 0; i < 100000; ++i) ASSERT_EQ(next(), peer()) << i;
}

// Initialisation by an array of keys, as its authors wrote it down: the model of the seeds.
std::vector<uint64_t> stateOfKeys(const std::vector<uint64_t> &keys) {
  std::vector<uint64_t> mt(312);
  const auto shaken = [&](size_t i) { return mt[i] ^ (mt[i] >> 62); };
  mt[0] = 19650218;
  for (size_t i = 1; i < 312; ++i) mt[i] = 6364136223846793005 * shaken(i - 1) + i;
  size_t i = 1, j = 0;
  const auto advance = [&] {
    if (++i >= 312) {
      mt[0] = mt[311];
      i = 1;
    }
  };
  for (size_t k = std::max<size_t>(312, keys.size()); k > 0; --k, advance()) {
    mt[i] = (mt[i] ^ (shaken(i - 1) * 3935559000370003845)) + keys[j] + j;
    if (++j >= keys.size()) j = 0;
  }
  for (size_t k = 311; k > 0; --k, advance()) mt[i] = (mt[i] ^ (shaken(i - 1) * 2862933555777941757)) - i;
  mt[0] = uint64_t{1} << 63;
  return mt;
}

void expectSeed(RandomGenerator *generator, const std::vector<uint32_t> &words,
                const std::vector<uint64_t> &keys) {
  generator->seed(generator, words.data(), mint(words.size()));
  const uint64_t *state = *sourceState<uint64_t *>(generator);
  EXPECT_EQ(std::vector<uint64_t>(state, state + 312), stateOfKeys(keys)) << words.size() << " words";
}

TEST_P(MersenneTwister, SeedWordsArePairedToKeysLowHalfFirst) {
  expectSeed(generator, {0}, {0});
  expectSeed(generator, {5}, {5});
  expectSeed(generator, {5, 6}, {5 + (uint64_t{6} << 32)});
  expectSeed(generator, {5, 6, 7}, {5 + (uint64_t{6} << 32), 7});
}

TEST_P(MersenneTwister, SeedsLongerThanTheStateCountToTheirEnd) {
  std::vector<uint32_t> words(2 * 312 + 9);
  std::vector<uint64_t> keys((words.size() + 1) / 2, 0);
  for (uint32_t i = 0; i < words.size(); ++i) {
    words[i] = plainWord(3, i);
    keys[i / 2] |= uint64_t{words[i]} << (32 * (i % 2));
  }
  expectSeed(generator, words, keys);
}

TEST_P(MersenneTwister, WordsOfTheBufferAreHighAndLowHalves) {
  seed({0});
  RandomGenerator *same = MersenneTwister_alloc(nullptr);
  uint64_t *state = *sourceState<uint64_t *>(same);
  const std::vector<uint64_t> expected = stateOfKeys({0});
  std::copy(expected.begin(), expected.end(), state);
  for (int i = 0; i < 700; ++i) {
    const uint64_t value = (uint64_t{drawBits(same, 32)} << 32) | drawBits(same, 32);
    EXPECT_EQ(drawBits(generator, 32), value >> 32);
    EXPECT_EQ(drawBits(generator, 32), value & 0xFFFFFFFF);
  }
  MersenneTwister_free(same);
}

TEST_P(MersenneTwister, CloneGoesOnAtTheSameBitByItself) {
  seed({1, 2, 3});
  for (int i = 0; i < 900; ++i) drawBits(generator, 13);
  RandomGenerator *clone = MersenneTwister_clone(generator);
  std::vector<uint32_t> expected;
  for (int i = 0; i < 3000; ++i) expected.push_back(drawBits(generator, 17));
  for (uint32_t bits : expected) ASSERT_EQ(drawBits(clone, 17), bits);
  MersenneTwister_free(clone);
}

TEST_P(MersenneTwister, HasOneFillOf624Words) {
  EXPECT_EQ(bufferOf(generator)->data->capacity, 624u);
  seed({1});
  drawBits(generator, 1);
  EXPECT_EQ(bufferOf(generator)->data->count, 624u);
  EXPECT_EQ(bufferOf(generator)->data->bitsLeft, 31u);
}

} // namespace

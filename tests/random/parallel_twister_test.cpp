// ParallelMersenneTwister, its stream table aside: recurrence, tempering and seeds against a model that takes
// them step by step, and the numbers of streams.
#include "plain_method.h"

#include "random/buffer.h"
#include "random/stream_table.h"
#include "support/child_process.h"

#include <algorithm>
#include <array>
#include <barrier>
#include <set>
#include <thread>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

using State = std::array<uint32_t, 17>;

State seeded(const std::vector<uint32_t> &key) {
  State mt = {19650218};
  const auto shaken = [&](size_t i) { return mt[i] ^ (mt[i] >> 30); };
  for (uint32_t i = 1; i < 17; ++i) mt[i] = 1812433253 * shaken(i - 1) + i;
  uint32_t i = 1, j = 0;
  const auto advance = [&] {
    if (++i < 17) return;
    mt[0] = mt[16];
    i = 1;
  };
  for (size_t k = std::max<size_t>(17, key.size()); k > 0; --k, advance()) {
    mt[i] = (mt[i] ^ (shaken(i - 1) * 1664525)) + key[j] + j;
    if (++j == key.size()) j = 0;
  }
  for (int k = 16; k > 0; --k, advance()) mt[i] = (mt[i] ^ (shaken(i - 1) * 1566083941)) - i;
  mt[0] = 0x80000000;
  return mt;
}

// As one sequence, which has no place where it starts over: word n + 17 is made of words n, n + 1 and n + 8.
std::vector<uint32_t> outputs(const State &state, mint stream, size_t count) {
  std::vector<uint32_t> words(state.begin(), state.end()), tempered;
  for (size_t n = 0; n < count; ++n) {
    const uint32_t y = (words[n] & 0xFF800000) | (words[n + 1] & 0x007FFFFF);
    words.push_back(words[n + 8] ^ (y >> 1) ^ (y % 2 == 1 ? streamTwists[stream] : 0));
    uint32_t out = words.back();
    out ^= out >> 12;
    out ^= (out << 7) & streamMasksB[stream];
    out ^= (out << 15) & streamMasksC[stream];
    tempered.push_back(out ^ (out >> 18));
  }
  return tempered;
}

void expectAsModel(mint stream, const std::vector<uint32_t> &seed) {
  RandomGenerator *generator = PMT32_alloc(&stream);
  generator->seed(generator, seed.data(), mint(seed.size()));
  for (uint32_t word : outputs(seeded(seed), stream, 200)) ASSERT_EQ(drawBits(generator, 32), word) << stream;
  PMT32_free(generator);
}

TEST(ParallelTwister, EveryStreamGivesItsRecurrenceTempered) {
  for (mint stream = 0; stream < 1024; ++stream) expectAsModel(stream, {uint32_t(stream)});
}

TEST(ParallelTwister, SeedsOfAnyLength) {
  for (size_t count : {1u, 2u, 16u, 17u, 18u, 100u}) {
    std::vector<uint32_t> seed(count);
    for (size_t i = 0; i < count; ++i) seed[i] = plainWord(6, i);
    expectAsModel(700, seed);
  }
}

TEST(ParallelTwister, NoParametersMeanStreamZero) {
  mint zero = 0;
  RandomGenerator *one = PMT32_alloc(nullptr), *other = PMT32_alloc(&zero);
  const uint32_t seed = 5;
  one->seed(one, &seed, 1);
  other->seed(other, &seed, 1);
  for (int i = 0; i < 100; ++i) EXPECT_EQ(drawBits(one, 32), drawBits(other, 32));
  PMT32_free(one);
  PMT32_free(other);
}

TEST(ParallelTwister, NumbersOutsideTheTableAreRefused) {
  for (mint stream : {-1, 1024, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(PMT32_alloc(&stream), nullptr);
    EXPECT_EQ(PMT32_checkParameters(stream), 0);
  }
  EXPECT_EQ(PMT32_checkParameters(0), 1);
  EXPECT_EQ(PMT32_checkParameters(1023), 1);
}

TEST(ParallelTwister, StreamsWithOneSeedDiffer) {
  std::set<std::vector<uint32_t>> beginnings;
  for (mint stream = 0; stream < 1024; ++stream) {
    RandomGenerator *generator = PMT32_alloc(&stream);
    const uint32_t seed = 1;
    generator->seed(generator, &seed, 1);
    std::vector<uint32_t> words;
    for (int i = 0; i < 17; ++i) words.push_back(drawBits(generator, 32));
    beginnings.insert(words);
    PMT32_free(generator);
  }
  EXPECT_EQ(beginnings.size(), 1024u);
}

TEST(ParallelTwister, FillMakesThirtyFourWords) {
  RandomGenerator *generator = PMT32_alloc(nullptr);
  EXPECT_EQ(bufferOf(generator)->data->capacity, 34u);
  PMT32_free(generator);
}

TEST(ParallelTwister, CloneGoesOnAtTheSameBitByItself) {
  mint stream = 33;
  RandomGenerator *generator = PMT32_alloc(&stream);
  const uint32_t seed = 5;
  generator->seed(generator, &seed, 1);
  for (int i = 0; i < 90; ++i) drawBits(generator, 19);
  RandomGenerator *clone = PMT32_clone(generator);
  std::vector<uint32_t> expected;
  for (int i = 0; i < 500; ++i) expected.push_back(drawBits(generator, 21));
  for (uint32_t bits : expected) ASSERT_EQ(drawBits(clone, 21), bits);
  PMT32_free(clone);
  PMT32_free(generator);
}

// What each field of the inner state says, for those who look at it.
TEST(ParallelTwister, StateTellsItsParameters) {
  mint stream = 4;
  RandomGenerator *generator = PMT32_alloc(&stream);
  const auto *fields = sourceState<const uint32_t>(generator);
  const uint32_t expected[] = {0xC6A70004, 8,  17, 23, 32, 0xFFFFFFFF, 0xFF800000,
                               0x007FFFFF, 12, 18, 7,  15, 0xA664DB80, 0xFFB58000};
  for (size_t i = 0; i < std::size(expected); ++i) EXPECT_EQ(fields[i], expected[i]) << i;
  PMT32_free(generator);
}

// Before any other test of the program that asks for numbers.
TEST(ParallelTwister, NumbersOfAProcessBeginAt0AndGoAround) {
  inFreshProcess([] {
    EXPECT_EQ(PMT32_getNextIndex(), 0);
    for (int i = 2; i < 1024; ++i) PMT32_getNextIndex();
    EXPECT_EQ(PMT32_getNextIndex(), 1023);
    EXPECT_EQ(PMT32_getNextIndex(), 0);
  });
}

TEST(ParallelTwisterThreads, NumbersAreHandedOutOnceEachInTurn) {
  constexpr int kTakers = 4, kTurns = 2000;
  const mint first = PMT32_getNextIndex();
  std::vector<std::vector<int>> taken(kTakers, std::vector<int>(1024));
  std::barrier start(kTakers);
  std::vector<std::thread> threads;
  for (std::vector<int> &mine : taken)
    threads.emplace_back([&] {
      start.arrive_and_wait();
      for (int i = 0; i < kTurns * 1024 / kTakers; ++i) ++mine.at(size_t(PMT32_getNextIndex()));
    });
  for (std::thread &thread : threads) thread.join();
  for (size_t number = 0; number < 1024; ++number) {
    int times = 0;
    for (const std::vector<int> &mine : taken) times += mine[number];
    ASSERT_EQ(times, kTurns) << number;
  }
  EXPECT_EQ(PMT32_getNextIndex(), (first + 1) % 1024);
  while (PMT32_getNextIndex() != 1023) { // as the test found them, if it is repeated
  }
}

} // namespace

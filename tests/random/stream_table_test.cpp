// The stream table, by what the generators of its rows put out: their periods, how their bits are
// distributed, and that the search finds the rows again. With TORVANE_ALL_STREAMS set in the environment
// every row is tested.
#include "plain_method.h"

#include "../../tools/streams/mask_search.h"
#include "../../tools/streams/twist_search.h"
#include "random/stream_table.h"

#include <bitset>
#include <cstdlib>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr size_t kExponent = 521;

TEST(StreamTable, LowHalvesOfTheTwistsAreTheStreamNumbers) {
  for (uint32_t i = 0; i < kStreamCount; ++i) {
    EXPECT_EQ(streamTwists[i] & 0xFFFF, i);
    EXPECT_EQ(streamTwists[i] >> 31, 1u);
  }
}

// Programs count on the sequences.
TEST(StreamTable, ElevenRowsStayAsTheyAre) {
  const uint32_t rows[][3] = {{0x91240000, 0xE4ECED00, 0xDFD08000}, {0x94560001, 0x76977780, 0xEF648000},
                              {0xC20F0002, 0xCEB5AF80, 0xBDED0000}, {0x9EF90003, 0xF3356F80, 0xDEED8000},
                              {0xC6A70004, 0xA664DB80, 0xFFB58000}, {0xE52F0005, 0xB7F55E80, 0xFDF50000},
                              {0xF0E10006, 0x1734B780, 0xFEF30000}, {0xA50D0064, 0x19957580, 0xEFE50000},
                              {0xB7610200, 0x74BD5F80, 0xFFD58000}, {0x989703FE, 0x9BB55F80, 0xFD750000},
                              {0xE2E503FF, 0xECF4ED80, 0xDFD48000}};
  for (const auto &row : rows) {
    const uint32_t i = row[0] & 0xFFFF;
    EXPECT_EQ(streamTwists[i], row[0]);
    EXPECT_EQ(streamMasksB[i], row[1]);
    EXPECT_EQ(streamMasksC[i], row[2]);
  }
}

// G. Fowler, L. C. Noll, K.-P. Vo: FNV-1a of 64 bits, over words from their low byte on.
TEST(StreamTable, NoWordOfAnyRowChanges) {
  uint64_t hash = 0xCBF29CE484222325;
  for (const uint32_t *column : {streamTwists, streamMasksB, streamMasksC})
    for (uint32_t i = 0; i < kStreamCount; ++i)
      for (int shift = 0; shift < 32; shift += 8)
        hash = (hash ^ ((column[i] >> shift) & 0xFF)) * 0x100000001B3;
  EXPECT_EQ(hash, 0xF89D2241EA448EDE);
}

std::vector<uint32_t> outputs(mint stream, size_t count) {
  RandomGenerator *generator = PMT32_alloc(&stream);
  const uint32_t seed = 1;
  generator->seed(generator, &seed, 1);
  std::vector<uint32_t> words;
  for (size_t i = 0; i < count; ++i) words.push_back(drawBits(generator, 32));
  PMT32_free(generator);
  return words;
}

using Bits = std::bitset<2 * kExponent + 2>;

struct Recurrence {
  Bits coefficients; // of the connection polynomial 1 + c_1 t + ...
  size_t length;
};

// The shortest linear recurrence of the top bits of a stream, by Berlekamp and Massey.
Recurrence shortestRecurrence(mint stream) {
  const std::vector<uint32_t> words = outputs(stream, 2 * kExponent);
  Bits current, previous, seen; // seen: the sequence backwards from the bit at hand
  current[0] = previous[0] = true;
  size_t length = 0, shift = 1;
  for (size_t n = 0; n < words.size(); ++n) {
    seen <<= 1;
    seen[0] = words[n] >> 31 != 0;
    if ((current & seen).count() % 2 == 0) {
      ++shift;
      continue;
    }
    const Bits before = current;
    current ^= previous << shift;
    if (2 * length <= n) {
      length = n + 1 - length;
      previous = before;
      shift = 0;
    }
    ++shift;
  }
  return {current, length};
}

Bits squareModulo(const Bits &p, const Bits &modulus) {
  Bits square;
  for (size_t i = 0; i < kExponent; ++i) square[2 * i] = p[i];
  for (size_t i = 2 * kExponent - 2; i >= kExponent; --i)
    if (square[i]) square ^= modulus << (i - kExponent);
  return square;
}

// 521 is prime, and so is 2^521 - 1: a polynomial of this degree without roots that divides t^(2^521) - t is
// irreducible, and every sequence of it but zero has the period 2^521 - 1.
bool isIrreducible(const Recurrence &recurrence) {
  const Bits &p = recurrence.coefficients;
  if (recurrence.length != kExponent || !p[0] || !p[kExponent] || p.count() % 2 == 0) return false;
  Bits power = 2;
  for (size_t i = 0; i < kExponent; ++i) power = squareModulo(power, p);
  return power == Bits(2);
}

bool testsAll() { return std::getenv("TORVANE_ALL_STREAMS") != nullptr; }

TEST(StreamTable, StreamsFourTo1022HaveTheLongestPeriod) {
  const mint step = testsAll() ? 1 : 31;
  for (mint stream = 4; stream < 1023; stream += step)
    EXPECT_TRUE(isIrreducible(shortestRecurrence(stream))) << stream;
  EXPECT_TRUE(isIrreducible(shortestRecurrence(1022)));
}

TEST(StreamTable, FiveKeptStreamsHaveNot) {
  for (mint stream : {0, 1, 2, 3, 1023}) EXPECT_FALSE(isIrreducible(shortestRecurrence(stream))) << stream;
}

// How many successive words are equidistributed in their top `bits` bits: as many as give independent bits. A
// bit of the sequence stands for the function of the state that it is by the 521 bits that follow it.
int equidistributedWords(const std::vector<uint32_t> &words, unsigned bits) {
  std::vector<std::bitset<kExponent>> reduced(kExponent); // at i one whose first bit is i
  for (size_t s = 0;; ++s)
    for (unsigned bit = 0; bit < bits; ++bit) {
      std::bitset<kExponent> vector;
      for (size_t j = 0; j < kExponent; ++j) vector[j] = ((words[s + j] << bit) >> 31) != 0;
      size_t first = vector._Find_first();
      for (; first < kExponent && reduced[first].any(); first = vector._Find_first())
        vector ^= reduced[first];
      if (first == kExponent) return static_cast<int>(s);
      reduced[first] = vector;
    }
}

TEST(StreamTable, LatticeOfTheSearchTellsTheEquidistributionOfTheOutput) {
  for (mint stream : {4, 777, 1022}) {
    const std::vector<uint32_t> words = outputs(stream, 2 * kExponent + 2);
    const std::vector<int> told =
        streams::equidistribution(streamTwists[stream], {streamMasksB[stream], streamMasksC[stream]});
    for (unsigned bits = 1; bits <= 32; ++bits)
      EXPECT_EQ(told[bits - 1], equidistributedWords(words, bits)) << stream << ", " << bits << " bits";
  }
}

TEST(StreamTable, SearchFindsTheFirstTwistsAgain) {
  streams::TwistSearch search;
  for (uint32_t number = 0; number < 12; ++number) {
    const uint32_t twist = search.find(number);
    if (number >= 4) EXPECT_EQ(twist, streamTwists[number]);
  }
}

TEST(StreamTable, SearchFindsMasksAgain) {
  const int step = testsAll() ? 1 : 509;
  for (int stream = 4; stream < 1023; stream += step) {
    const streams::Masks masks = streams::findMasks(streamTwists[stream]);
    EXPECT_EQ(masks.b, streamMasksB[stream]) << stream;
    EXPECT_EQ(masks.c, streamMasksC[stream]) << stream;
  }
}

} // namespace

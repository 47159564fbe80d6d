// MurmurHash3: x86_32, x86_128 and x64_128, after A. Appleby, "MurmurHash3" (2011), public domain.
//
// Each lane mixes one word of a block into its state; the tail is mixed as a block of zero-padded words,
// whose all-zero lanes have no effect.
#include "hash_functions.h"

#include "hash_functions_bytes.h"
#include "hash_table_settings.h"

namespace torvane {

namespace {

uint32_t finish(uint32_t h) {
  h = (h ^ (h >> 16)) * 0x85EBCA6Bu;
  h = (h ^ (h >> 13)) * 0xC2B2AE35u;
  return h ^ (h >> 16);
}

uint64_t finish(uint64_t h) {
  h = (h ^ (h >> 33)) * 0xFF51AFD7ED558CCDu;
  h = (h ^ (h >> 33)) * 0xC4CEB9FE1A85EC53u;
  return h ^ (h >> 33);
}

// What a lane does to its word of a block, and to its state afterwards.
template <class Word> struct Lane {
  Word before, after; // multipliers around the word's rotation
  int wordTurn, stateTurn;
  Word added;
};

template <class Word> Word mixWord(const Lane<Word> &lane, Word word) {
  return std::rotl(word * lane.before, lane.wordTurn) * lane.after;
}

constexpr Lane<uint32_t> kSingle = {0xCC9E2D51u, 0x1B873593u, 15, 13, 0xE6546B64u};

constexpr Lane<uint32_t> kNarrow[4] = {{0x239B961Bu, 0xAB0E9789u, 15, 19, 0x561CCD1Bu},
                                       {0xAB0E9789u, 0x38B34AE5u, 16, 17, 0x0BCAA747u},
                                       {0x38B34AE5u, 0xA1E38B93u, 17, 15, 0x96CD1C35u},
                                       {0xA1E38B93u, 0x239B961Bu, 18, 13, 0x32AC3B17u}};

constexpr Lane<uint64_t> kWide[2] = {{0x87C37B91114253D5u, 0x4CF5AD432745937Fu, 31, 27, 0x52DCE729u},
                                     {0x4CF5AD432745937Fu, 0x87C37B91114253D5u, 33, 31, 0x38495AB5u}};

// Mixes the whole blocks and the tail into the lanes' states, then the length, and lets the lanes mix.
template <class Word, uint32_t lanes>
void mixAll(const Lane<Word> (&lane)[lanes], const void *bytes, uint32_t length, Word (&h)[lanes]) {
  constexpr uint32_t blockBytes = lanes * uint32_t{sizeof(Word)};
  const auto *at = static_cast<const unsigned char *>(bytes);
  uint32_t left = length;
  for (; left >= blockBytes; left -= blockBytes, at += blockBytes)
    for (uint32_t i = 0; i < lanes; ++i) {
      h[i] = std::rotl(h[i] ^ mixWord(lane[i], loadWord<Word>(at + i * sizeof(Word))), lane[i].stateTurn);
      if constexpr (lanes > 1) h[i] += h[(i + 1) % lanes];
      h[i] = h[i] * 5 + lane[i].added;
    }
  for (uint32_t i = 0; i * sizeof(Word) < left; ++i) {
    const uint32_t start = i * uint32_t{sizeof(Word)};
    const uint32_t count = left - start < sizeof(Word) ? left - start : uint32_t{sizeof(Word)};
    h[i] ^= mixWord(lane[i], loadTail<Word>(at + start, count));
  }
  for (Word &state : h) state ^= length;
}

template <class Word, uint32_t lanes> void spread(Word (&h)[lanes]) {
  for (uint32_t i = 1; i < lanes; ++i) h[0] += h[i];
  for (uint32_t i = 1; i < lanes; ++i) h[i] += h[0];
}

template <class Word, uint32_t lanes> void finishLanes(Word (&h)[lanes]) {
  spread(h);
  for (Word &state : h) state = finish(state);
  spread(h);
}

constexpr uint32_t kWideInput = 128; // bytes from which four lanes are worth their finish

} // namespace

uint32_t murmur3x86_32(const void *bytes, uint32_t length, uint32_t seed) {
  uint32_t h[1] = {seed};
  mixAll({kSingle}, bytes, length, h);
  return finish(h[0]);
}

void murmur3x86_128(const void *bytes, uint32_t length, uint32_t seed, uint32_t result[4]) {
  uint32_t h[4] = {seed, seed, seed, seed};
  mixAll(kNarrow, bytes, length, h);
  finishLanes(h);
  memcpy(result, h, sizeof h);
}

void murmur3x64_128(const void *bytes, uint32_t length, const uint64_t seeds[2], uint64_t result[2]) {
  uint64_t h[2] = {seeds[0], seeds[1]};
  mixAll(kWide, bytes, length, h);
  finishLanes(h);
  memcpy(result, h, sizeof h);
}

uint32_t hashMurmur3(const void *bytes, uint32_t length) {
  const HashSeeds *seeds = hashSeeds.load(std::memory_order_relaxed);
  if (length < kWideInput) return murmur3x86_32(bytes, length, seeds->murmur32);
  uint32_t words[4];
  murmur3x86_128(bytes, length, seeds->murmur128, words);
  return words[0] ^ words[1] ^ words[2] ^ words[3];
}

void hashMurmurWide(const void *bytes, uint32_t length, uint64_t result[2]) {
  murmur3x64_128(bytes, length, hashSeeds.load(std::memory_order_relaxed)->murmurWide, result);
}

} // namespace torvane

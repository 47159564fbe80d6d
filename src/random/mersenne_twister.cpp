// "MersenneTwister": MT19937-64 as a buffered generator, each word of 64 bits read high half first.
//
// Source: T. Nishimura, "Tables of 64-bit Mersenne Twisters" (2000); M. Matsumoto, T. Nishimura, "Mersenne
// Twister" (1998). A fill regenerates all 312 words in place and tempers them into the buffer, in loops that
// become vectors: the state stays untempered.
#include "../runtime/memory.h"
#include "../runtime/types.h"
#include "buffer.h"
#include "by_level.h"

#include <algorithm>
#include <string.h>

namespace torvane {

namespace {

constexpr uint32_t kWords = 312;
constexpr uint32_t kMiddle = 156;
constexpr uint64_t kTwist = 0xB5026F5AA96619E9;
constexpr uint64_t kUpperBits = 0xFFFFFFFF80000000; // 33 of a word, 31 of the next

struct MersenneTwisterState {
  uint64_t *words;
};

[[gnu::always_inline]] inline uint64_t twisted(uint64_t upper, uint64_t lower, uint64_t middle) {
  const uint64_t y = (upper & kUpperBits) | (lower & ~kUpperBits);
  return middle ^ (y >> 1) ^ ((0 - (lower & 1)) & kTwist);
}

[[gnu::always_inline]] inline void regenerateHere(uint64_t *words) {
  for (uint32_t i = 0; i < kMiddle; ++i) words[i] = twisted(words[i], words[i + 1], words[i + kMiddle]);
  for (uint32_t i = kMiddle; i < kWords - 1; ++i)
    words[i] = twisted(words[i], words[i + 1], words[i - kMiddle]);
  words[kWords - 1] = twisted(words[kWords - 1], words[0], words[kMiddle - 1]);
}

[[gnu::always_inline]] inline uint64_t tempered(uint64_t y) {
  y ^= (y >> 29) & 0x5555555555555555;
  y ^= (y << 17) & 0x71D67FFFEDA60000;
  y ^= (y << 37) & 0xFFF7EEE000000000;
  return y ^ (y >> 43);
}

// High half first, by memory of either order of bytes that the targets have.
[[gnu::always_inline]] inline void temperHere(uint32_t *halves, const uint64_t *words) {
  for (uint32_t i = 0; i < kWords; ++i) {
    const uint64_t y = tempered(words[i]);
    const uint64_t highFirst = (y << 32) | (y >> 32);
    memcpy(halves + 2 * i, &highFirst, sizeof highFirst);
  }
}

[[gnu::always_inline]] inline void makeWordsHere(uint32_t *__restrict halves, uint64_t *__restrict words) {
  regenerateHere(words);
  temperHere(halves, words);
}

TORVANE_BY_LEVEL(makeWords, makeWordsHere, (uint32_t * halves, uint64_t *words), (halves, words))

mint fill(uint32_t *words, uint32_t *, uint32_t *bitsLeft, RandomGenerator *source) {
  makeWords(words, static_cast<MersenneTwisterState *>(source->state)->words);
  *bitsLeft = 32;
  return kSuccess;
}

uint64_t shaken(uint64_t previous) { return previous ^ (previous >> 62); }

// A key of 64 bits: two words of the seed, the low half first; the last of an odd number stands alone.
uint64_t keyOf(const uint32_t *seed, mint count, mint j) {
  const uint64_t low = seed[2 * j];
  return 2 * j + 1 < count ? low | (uint64_t{seed[2 * j + 1]} << 32) : low;
}

void initialize(uint64_t *words, uint64_t seed) {
  words[0] = seed;
  for (uint32_t i = 1; i < kWords; ++i) words[i] = 6364136223846793005 * shaken(words[i - 1]) + i;
}

// Position 0 mirrors the last word at each turn.
uint32_t nextPosition(uint64_t *words, uint32_t i) {
  if (i + 1 < kWords) return i + 1;
  words[0] = words[kWords - 1];
  return 1;
}

// The reference's initialisation by an array, its multipliers included.
mint seedState(RandomGenerator *source, const uint32_t *seed, mint count) {
  uint64_t *words = static_cast<MersenneTwisterState *>(source->state)->words;
  const mint keys = count / 2 + count % 2;
  initialize(words, 19650218);
  uint32_t i = 1;
  mint j = 0;
  for (mint k = std::max<mint>(kWords, keys); k > 0; --k) {
    words[i] = (words[i] ^ (shaken(words[i - 1]) * 3935559000370003845)) + keyOf(seed, count, j) +
               static_cast<uint64_t>(j);
    i = nextPosition(words, i);
    j = j + 1 < keys ? j + 1 : 0;
  }
  for (uint32_t k = kWords - 1; k > 0; --k) {
    words[i] = (words[i] ^ (shaken(words[i - 1]) * 2862933555777941757)) - i;
    i = nextPosition(words, i);
  }
  words[0] = uint64_t{1} << 63;
  return kSuccess;
}

RandomGenerator *newSourceOf(const uint64_t *words) {
  auto *state = static_cast<MersenneTwisterState *>(allocate(sizeof(MersenneTwisterState), 0, kFatal));
  state->words = static_cast<uint64_t *>(allocate(kWords * uint32_t{sizeof(uint64_t)}, 0, kFatal));
  std::copy_n(words, kWords, state->words);
  return newSource(seedState, state);
}

constexpr uint64_t kUnseeded[kWords] = {};

} // namespace

} // namespace torvane

using namespace torvane;

RandomGenerator *MersenneTwister_alloc(void *) {
  RandomGenerator *generator = RandomBuffer_new(fill, 2 * kWords);
  bufferOf(generator)->source = newSourceOf(kUnseeded);
  return generator;
}

RandomGenerator *MersenneTwister_clone(RandomGenerator *generator) {
  RandomGenerator *clone = RandomBuffer_copy(generator);
  bufferOf(clone)->source = newSourceOf(sourceState<MersenneTwisterState>(generator)->words);
  return clone;
}

void MersenneTwister_free(RandomGenerator *generator) {
  auto *state = sourceState<MersenneTwisterState>(generator);
  torvane::free(state->words);
  torvane::free(state);
  deleteWithSource(generator);
}

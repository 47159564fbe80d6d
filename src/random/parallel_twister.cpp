// "ParallelMersenneTwister": 1,024 small Mersenne Twisters of 17 words, each with a recurrence and a
// tempering of its own, so that streams with the same seed have nothing in common.
//
// Source: M. Matsumoto, T. Nishimura, "Dynamic Creation of Pseudorandom Number Generators" (2000). The period
// of streams 4 to 1022 is 2^521 - 1; docs/random.md tells of the other five.
#include "../runtime/memory.h"
#include "../runtime/types.h"
#include "buffer.h"
#include "stream_table.h"

#include <algorithm>
#include <atomic>

namespace torvane {

namespace {

constexpr uint32_t kWords = 17;
constexpr uint32_t kMiddle = 8;
constexpr uint32_t kStepsOfFill = 2;

struct PMT32State {
  uint32_t aaa;
  uint32_t mm, nn, rr, ww;
  uint32_t wordMask, upperMask, lowerMask;
  uint32_t shift0, shift1, shiftB, shiftC;
  uint32_t maskB, maskC;
  uint32_t *state;
};

// What streams do not differ in: in loops these are constants, and the record's fields tell them to nobody
// but who looks.
constexpr uint32_t kUpperMask = 0xFF800000;
constexpr uint32_t kShift0 = 12, kShift1 = 18, kShiftB = 7, kShiftC = 15;

uint32_t twisted(uint32_t upper, uint32_t lower, uint32_t middle, uint32_t aaa) {
  const uint32_t y = (upper & kUpperMask) | (lower & ~kUpperMask);
  return middle ^ (y >> 1) ^ ((0 - (y & 1)) & aaa);
}

void regenerate(uint32_t *words, uint32_t aaa) {
  for (uint32_t i = 0; i < kWords - kMiddle; ++i)
    words[i] = twisted(words[i], words[i + 1], words[i + kMiddle], aaa);
  for (uint32_t i = kWords - kMiddle; i < kWords - 1; ++i)
    words[i] = twisted(words[i], words[i + 1], words[i + kMiddle - kWords], aaa);
  words[kWords - 1] = twisted(words[kWords - 1], words[0], words[kMiddle - 1], aaa);
}

uint32_t tempered(uint32_t y, uint32_t maskB, uint32_t maskC) {
  y ^= y >> kShift0;
  y ^= (y << kShiftB) & maskB;
  y ^= (y << kShiftC) & maskC;
  return y ^ (y >> kShift1);
}

mint fill(uint32_t *words, uint32_t *, uint32_t *bitsLeft, RandomGenerator *source) {
  const auto *twister = static_cast<PMT32State *>(source->state);
  for (uint32_t step = 0; step < kStepsOfFill; ++step, words += kWords) {
    regenerate(twister->state, twister->aaa);
    for (uint32_t i = 0; i < kWords; ++i)
      words[i] = tempered(twister->state[i], twister->maskB, twister->maskC);
  }
  *bitsLeft = 32;
  return kSuccess;
}

uint32_t shaken(uint32_t previous) { return previous ^ (previous >> 30); }

// Position 0 mirrors the last word at each turn.
uint32_t nextPosition(uint32_t *words, uint32_t i) {
  if (i + 1 < kWords) return i + 1;
  words[0] = words[kWords - 1];
  return 1;
}

// The initialisation by an array of the 2002 Mersenne Twister, over 17 words.
mint seedState(RandomGenerator *source, const uint32_t *seed, mint count) {
  uint32_t *words = static_cast<PMT32State *>(source->state)->state;
  words[0] = 19650218;
  for (uint32_t i = 1; i < kWords; ++i) words[i] = 1812433253 * shaken(words[i - 1]) + i;
  uint32_t i = 1;
  mint j = 0;
  for (mint k = std::max<mint>(kWords, count); k > 0; --k) {
    words[i] = (words[i] ^ (shaken(words[i - 1]) * 1664525)) + seed[j] + static_cast<uint32_t>(j);
    i = nextPosition(words, i);
    j = j + 1 < count ? j + 1 : 0;
  }
  for (uint32_t k = kWords - 1; k > 0; --k) {
    words[i] = (words[i] ^ (shaken(words[i - 1]) * 1566083941)) - i;
    i = nextPosition(words, i);
  }
  words[0] = uint32_t{1} << 31;
  return kSuccess;
}

PMT32State stateOfStream(mint stream) {
  return {streamTwists[stream],
          kMiddle,
          kWords,
          23,
          32,
          0xFFFFFFFF,
          kUpperMask,
          ~kUpperMask,
          kShift0,
          kShift1,
          kShiftB,
          kShiftC,
          streamMasksB[stream],
          streamMasksC[stream],
          nullptr};
}

RandomGenerator *newSourceOf(const PMT32State &parameters, const uint32_t *words) {
  auto *state = static_cast<PMT32State *>(allocate(sizeof(PMT32State), 0, kFatal));
  *state = parameters;
  state->state = static_cast<uint32_t *>(allocate(kWords * uint32_t{sizeof(uint32_t)}, 0, kFatal));
  std::copy_n(words, kWords, state->state);
  return newSource(seedState, state);
}

constexpr uint32_t kUnseeded[kWords] = {};

constinit std::atomic<mint> nextIndex{0};

} // namespace

} // namespace torvane

using namespace torvane;

RandomGenerator *PMT32_alloc(void *parameters) {
  const mint stream = parameters != nullptr ? *static_cast<const mint *>(parameters) : 0;
  if (PMT32_checkParameters(stream) == 0) return nullptr;
  RandomGenerator *generator = RandomBuffer_new(fill, kStepsOfFill * kWords);
  bufferOf(generator)->source = newSourceOf(stateOfStream(stream), kUnseeded);
  return generator;
}

RandomGenerator *PMT32_clone(RandomGenerator *generator) {
  RandomGenerator *clone = RandomBuffer_copy(generator);
  const auto *state = sourceState<PMT32State>(generator);
  bufferOf(clone)->source = newSourceOf(*state, state->state);
  return clone;
}

void PMT32_free(RandomGenerator *generator) {
  auto *state = sourceState<PMT32State>(generator);
  torvane::free(state->state);
  torvane::free(state);
  deleteWithSource(generator);
}

mint PMT32_checkParameters(mint stream) { return static_cast<uint32_t>(stream) < kStreamCount ? 1 : 0; }

mint PMT32_getNextIndex() {
  mint index = nextIndex.load(std::memory_order_relaxed);
  while (!nextIndex.compare_exchange_weak(index, index + 1 < mint{kStreamCount} ? index + 1 : 0,
                                          std::memory_order_relaxed)) {
  }
  return index;
}

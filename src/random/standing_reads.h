// Reads whose bits all stand in a buffer: they are taken where they stand, none waiting for the one before.
//
// Read k begins at bit first + k * bits of `words`, counted from the high bit of each word. The reads end
// before the last words: two words (three, for more than 32 bits) may be loaded wherever one begins, and the
// cursor moves over them without a fill. What is left is for a BitCursor.
#pragma once

#include "../runtime/types.h"
#include <torvane/random.h>

#include <algorithm>

namespace torvane {

struct StandingReads {
  const uint32_t *words;
  uint32_t first;
  mint count;
};

inline StandingReads standingReads(const BufferData *data, uint32_t bits, mint wanted) {
  constexpr uint32_t kMostWords = 1 << 20; // so that bits are counted in 32 bits
  const uint32_t loaded = bits > 32 ? 3 : 2;
  const uint32_t words = data->index < data->count ? std::min(data->count - data->index, kMostWords) : 0;
  if (words < loaded) return {nullptr, 0, 0};
  const uint32_t first = 32 - data->bitsLeft, end = 32 * (words - loaded + 1);
  const auto count = static_cast<mint>((end - first + bits - 1) / bits);
  return {data->words + data->index, first, std::min(count, wanted)};
}

inline void moveOver(BufferData *data, const StandingReads &reads, uint32_t bits) {
  const uint32_t end = reads.first + static_cast<uint32_t>(reads.count) * bits;
  data->index += end / 32;
  data->bitsLeft = 32 - end % 32;
  data->words[data->index] &= 0xFFFFFFFF >> (end % 32);
}

// 1 to 32 bits that begin at a bit of the words.
inline uint32_t bitsAt(const uint32_t *words, uint32_t begin, uint32_t bits) {
  const uint32_t *word = words + begin / 32;
  const uint64_t pair = uint64_t{word[0]} << 32 | word[1];
  return static_cast<uint32_t>(pair << begin % 32 >> (64 - bits));
}

// 64 bits of which the first 52 count.
inline uint64_t longBitsAt(const uint32_t *words, uint32_t begin) {
  const uint32_t *word = words + begin / 32;
  const uint64_t pair = uint64_t{word[0]} << 32 | word[1];
  return pair << begin % 32 | word[2] >> 1 >> (31 - begin % 32);
}

} // namespace torvane

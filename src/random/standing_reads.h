// Reads whose bits all stand in a buffer: they are taken where they stand, none waiting for the one before.
//
// Read k begins at bit first + k * bits of `words`, counted from the high bit of each word. The last one ends
// before the last bit, so that the cursor moves over them without a fill; what is left is for a BitCursor.
#pragma once

#include "real_interval.h"
#include <torvane/random.h>

#include <algorithm>

namespace torvane {

inline constexpr uint32_t kFractionBits = 52; // of a real, the first of them the highest

struct StandingReads {
  const uint32_t *words;
  uint32_t wordCount, first;
  mint count;
};

// The words from the one under the cursor on, as far as their bits are counted in 32 bits.
inline StandingReads standingWords(const BufferData *data) {
  constexpr uint32_t kMostWords = 1 << 20;
  const uint32_t count = data->index < data->count ? std::min(data->count - data->index, kMostWords) : 0;
  return {data->words + data->index, count, 32 - data->bitsLeft, 0};
}

// At most `wanted` reads of 1 to 31 bits, perhaps none. They begin before the last word, so that two words
// may be loaded where one begins.
inline StandingReads standingReads(const BufferData *data, uint32_t bits, mint wanted) {
  StandingReads reads = standingWords(data);
  if (reads.wordCount < 2) return reads;
  const uint32_t spread = 32 * (reads.wordCount - 1) - reads.first;
  reads.count = std::min(static_cast<mint>((spread + bits - 1) / bits), wanted);
  return reads;
}

// At most `wanted` fractions, perhaps none.
inline StandingReads standingFractions(const BufferData *data, mint wanted) {
  StandingReads reads = standingWords(data);
  if (reads.wordCount < 2) return reads;
  const uint32_t spread = 32 * reads.wordCount - reads.first;
  reads.count = std::min(static_cast<mint>((spread - 1) / kFractionBits), wanted);
  return reads;
}

// Moves the cursor over them.
inline void moveOver(BufferData *data, const StandingReads &reads, uint32_t bits) {
  const uint32_t end = reads.first + static_cast<uint32_t>(reads.count) * bits;
  data->index += end / 32;
  data->bitsLeft = 32 - end % 32;
  data->words[data->index] &= 0xFFFFFFFF >> (end % 32);
}

// Reads of 1 to 31 bits, and fractions made reals of an interval. The processor level decides how many are
// taken at a time.
void readAll(const StandingReads &reads, uint32_t bits, uint32_t *to);
void readReals(const StandingReads &reads, const RealInterval &interval, mreal *to);

} // namespace torvane

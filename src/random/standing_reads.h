// Reads whose bits all stand in a buffer: they are taken where they stand, none waiting for the one before.
//
// Read k begins at bit first + k * bits of `words`, counted from the high bit of each word. The reads end
// before the last words: two words (three, for more than 32 bits) may be loaded wherever one begins, and the
// cursor moves over them without a fill. What is left is for a BitCursor.
#pragma once

#include "real_interval.h"
#include <torvane/random.h>

namespace torvane {

inline constexpr uint32_t kFractionBits = 52; // of a real, the first of them the highest

struct StandingReads {
  const uint32_t *words;
  uint32_t wordCount, first;
  mint count;
};

// At most `wanted` of them, perhaps none.
StandingReads standingReads(const BufferData *data, uint32_t bits, mint wanted);

// Moves the cursor over them.
void moveOver(BufferData *data, const StandingReads &reads, uint32_t bits);

// Reads of 1 to 31 bits, and fractions made reals of an interval. The processor level decides how many are
// taken at a time.
void readAll(const StandingReads &reads, uint32_t bits, uint32_t *to);
void readReals(const StandingReads &reads, const RealInterval &interval, mreal *to);

} // namespace torvane

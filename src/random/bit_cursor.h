// A run of reads from a buffered generator, its cursor in registers between them.
//
// The stream is the words in order, each read from its high bit to its low bit; a read may span two words,
// and so two fills. Reads through a BitCursor leave the buffer as the same reads one by one through getBits
// do. Invariant between reads: bitsLeft > 0 and word < 2^bitsLeft, or index == count and bitsLeft == 0, and a
// fill is due.
#pragma once

#include "../runtime/types.h"
#include <torvane/random.h>

namespace torvane {

class BitCursor {
public:
  // The buffer must have words.
  explicit BitCursor(RandomBuffer *read);
  ~BitCursor() { store(); }
  BitCursor(const BitCursor &) = delete;
  BitCursor &operator=(const BitCursor &) = delete;

  // 1 to 32 bits, in the low end.
  uint32_t read(uint32_t bits);

  // The first status other than 0 that a fill gave since the cursor was loaded.
  mint fillStatus() const { return status; }

private:
  void store();
  RandomBuffer *buffer;
  uint32_t word, index, bitsLeft;
  mint status = 0;
};

} // namespace torvane

// A run of reads from a buffered generator, its cursor in registers between them.
//
// The stream is the words in order, each read from its high bit to its low bit; a read may span two words,
// and so two fills. Reads through a BitCursor leave the buffer as the same reads one by one through getBits
// do: the word that follows the last bit of another is fetched at once, by a fill where that was the last.
// Invariant between reads: bitsLeft > 0 and word < 2^bitsLeft, or index == count, bitsLeft == 0, word == 0,
// and a fill is due.
#pragma once

#include "../runtime/types.h"
#include <torvane/random.h>

namespace torvane {

// Makes a buffer's words anew; index 0. Returns what the fill function returns.
mint refill(const RandomBuffer *buffer);

class BitCursor {
public:
  // The buffer must have words.
  explicit BitCursor(RandomBuffer *read) : buffer(read) { load(); }
  ~BitCursor() { store(); }
  BitCursor(const BitCursor &) = delete;
  BitCursor &operator=(const BitCursor &) = delete;

  // 1 to 32 bits, in the low end.
  uint32_t read(uint32_t bits) {
    if (bits < bitsLeft) [[likely]]
      return takeBits(bits);
    return readAcross(bits);
  }

  // Bits that can be read before the next word is wanted.
  uint32_t bitsOfWord() const { return bitsLeft; }

  // The first status other than 0 that a fill gave since the cursor was loaded.
  mint fillStatus() const { return status; }

private:
  // Nothing here takes the cursor's address out of line, so that a loop of reads keeps it in registers.
#define TORVANE_IN_REGISTERS [[gnu::always_inline]]
  TORVANE_IN_REGISTERS void load() {
    const BufferData *data = buffer->data;
    words = data->words;
    count = data->count;
    index = data->index;
    bitsLeft = data->bitsLeft;
    word = index < count ? words[index] : 0;
  }

  TORVANE_IN_REGISTERS void store() {
    BufferData *data = buffer->data;
    if (index < count) words[index] = word;
    data->index = index;
    data->bitsLeft = bitsLeft;
  }

  // At most bitsLeft of them, and fewer than 32 stay.
  TORVANE_IN_REGISTERS uint32_t takeBits(uint32_t bits) {
    bitsLeft -= bits;
    const uint32_t taken = word >> bitsLeft;
    word &= (uint32_t{1} << bitsLeft) - 1;
    return taken;
  }

  // What the word has left are the high bits of the result, the next word's high bits its low ones.
  TORVANE_IN_REGISTERS uint32_t readAcross(uint32_t bits) {
    const uint32_t high = word;
    const uint32_t missing = bits - bitsLeft;
    moveToNextWord();
    if (missing == 0) return high;
    if (missing < 32) return (high << missing) | takeBits(missing);
    const uint32_t whole = word;
    moveToNextWord();
    return whole;
  }

  TORVANE_IN_REGISTERS void moveToNextWord() {
    if (index + 1 < count) [[likely]] {
      word = words[++index];
      bitsLeft = 32;
      return;
    }
    const mint filled = refill(buffer);
    if (status == 0) status = filled;
    load();
  }
#undef TORVANE_IN_REGISTERS

  RandomBuffer *buffer;
  uint32_t *words;
  uint32_t count, index, bitsLeft, word;
  mint status = 0;
};

} // namespace torvane

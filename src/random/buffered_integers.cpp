// Integers from a buffered generator: reads that stand in the buffer all at once, the others one by one.
#include "bit_cursor.h"
#include "draws.h"
#include "integer_span.h"
#include "standing_reads.h"

#include <algorithm>

namespace torvane {

namespace {

mint takeWhole(const StandingReads &reads, const IntegerSpan &span, mint *destination) {
  uint32_t begin = reads.first;
  for (mint k = 0; k < reads.count; ++k, begin += span.bits)
    destination[k] = span.valueOf(bitsAt(reads.words, begin, span.bits));
  return reads.count;
}

// Whether a value stays is not to be foretold: each is written, and the next one over it if it does not. That
// goes on in a block apart, because a draw that a fill ends leaves the places of missing values untouched.
mint takeWithin(const StandingReads &reads, const IntegerSpan &span, mint *destination) {
  constexpr mint kBlock = 512;
  mint block[kBlock];
  uint32_t begin = reads.first;
  mint stored = 0;
  for (mint done = 0; done < reads.count; done += kBlock) {
    mint kept = 0;
    for (mint k = std::min(kBlock, reads.count - done); k > 0; --k, begin += span.bits) {
      const uint32_t read = bitsAt(reads.words, begin, span.bits);
      block[kept] = span.valueOf(read);
      kept += read <= span.range;
    }
    std::copy_n(block, kept, destination + stored);
    stored += kept;
  }
  return stored;
}

mint takeStanding(BufferData *data, const StandingReads &reads, const IntegerSpan &span, mint *destination) {
  const mint stored =
      span.isWhole() ? takeWhole(reads, span, destination) : takeWithin(reads, span, destination);
  moveOver(data, reads, span.bits);
  return stored;
}

// At most so many reads, until `wanted` values are stored. A fill that fails ends them; a value whose bits
// stood before it is stored.
mint takeSingly(RandomBuffer *buffer, mint reads, const IntegerSpan &span, mint *destination, mint wanted,
                mint *stored) {
  BitCursor cursor(buffer);
  for (*stored = 0; reads > 0 && *stored < wanted; --reads) {
    const bool isStanding = span.bits <= cursor.bitsOfWord();
    const uint32_t read = cursor.read(span.bits);
    const mint status = cursor.fillStatus();
    if (read <= span.range && (status == kSuccess || isStanding))
      destination[(*stored)++] = span.valueOf(read);
    if (status != kSuccess) return status;
  }
  return kSuccess;
}

mint drawSpan(RandomBuffer *buffer, mint *destination, mint count, const IntegerSpan &span) {
  constexpr mint kFew = 8; // not worth the division
  while (count > 0) {
    const StandingReads reads =
        count > kFew ? standingReads(buffer->data, span.bits, count) : StandingReads{};
    mint stored;
    if (reads.count > 0) {
      stored = takeStanding(buffer->data, reads, span, destination);
    } else {
      const mint most = count > kFew ? static_cast<mint>(32 / span.bits + 1) : INT32_MAX;
      const mint status = takeSingly(buffer, most, span, destination, count, &stored);
      if (status != kSuccess) return status;
    }
    destination += stored;
    count -= stored;
  }
  return kSuccess;
}

} // namespace

mint bufferedMIntegers(mint *destination, mint count, mint low, mint high, RandomGenerator *generator) {
  IntegerSpan span;
  if (const mint status = spanOf(low, high, &span)) return status;
  if (count < 1) return kSuccess;
  if (span.range != 0)
    return drawSpan(static_cast<RandomBuffer *>(generator->state), destination, count, span);
  std::fill_n(destination, count, low);
  return kSuccess;
}

} // namespace torvane

// Integers from a buffered generator: reads that stand in the buffer all at once, the others one by one.
#include "bit_cursor.h"
#include "draws.h"
#include "integer_span.h"
#include "standing_reads.h"

#include <algorithm>

namespace torvane {

namespace {

constexpr mint kBlock = 512;

// Whether a value stays is not to be foretold: each is written, and the next one over it if it does not.
mint keepWithin(uint32_t *reads, mint count, uint32_t range) {
  mint kept = 0;
  for (mint k = 0; k < count; ++k) {
    const uint32_t read = reads[k];
    reads[kept] = read;
    kept += read <= range;
  }
  return kept;
}

// At most a block, read apart: a draw that a fill ends leaves the places of missing values untouched.
mint takeStanding(BufferData *data, const StandingReads &reads, const IntegerSpan &span, mint *destination) {
  uint32_t block[kBlock];
  readAll(reads, span.bits, block);
  moveOver(data, reads, span.bits);
  const mint kept = span.isWhole() ? reads.count : keepWithin(block, reads.count, span.range);
  for (mint k = 0; k < kept; ++k) destination[k] = span.valueOf(block[k]);
  return kept;
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
        count > kFew ? standingReads(buffer->data, span.bits, std::min(count, kBlock)) : StandingReads{};
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
  auto *buffer = static_cast<RandomBuffer *>(generator->state);
  if (buffer->data == nullptr) return kNoFunction;
  IntegerSpan span;
  if (const mint status = spanOf(low, high, &span)) return status;
  if (count < 1) return kSuccess;
  if (span.range != 0) return drawSpan(buffer, destination, count, span);
  std::fill_n(destination, count, low);
  return kSuccess;
}

} // namespace torvane

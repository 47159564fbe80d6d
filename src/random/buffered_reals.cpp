// Reals from a buffered generator: 52 bits of the stream are the fraction of x in [1/2, 1), the first 20 of
// them its high part.
#include "bit_cursor.h"
#include "draws.h"
#include "standing_reads.h"

namespace torvane {

namespace {

// What a fill returns is not looked at: the words that it leaves are read.
mreal takeOne(RandomBuffer *buffer, const RealInterval &interval) {
  BitCursor cursor(buffer);
  const uint64_t high = cursor.read(20);
  return interval.ofFraction(high << 32 | cursor.read(32));
}

} // namespace

// The bound c is not tested, so that an interval whose far end is out of range draws infinities. Callers rely
// on the status of such bounds.
mint bufferedMReals(mreal *destination, mint count, mreal low, mreal high, RandomGenerator *generator) {
  auto *buffer = static_cast<RandomBuffer *>(generator->state);
  if (buffer->data == nullptr) return kNoFunction;
  const RealInterval interval(low, high);
  if (!interval.hasFiniteWidth()) return kNotFinite;
  constexpr mint kFew = 3; // not worth the looking
  while (count > 0) {
    StandingReads reads = count > kFew ? standingFractions(buffer->data, count) : StandingReads{};
    if (reads.count > 0) {
      readReals(reads, interval, destination);
      moveOver(buffer->data, reads, kFractionBits);
    } else {
      *destination = takeOne(buffer, interval);
      reads.count = 1;
    }
    destination += reads.count;
    count -= reads.count;
  }
  return kSuccess;
}

} // namespace torvane

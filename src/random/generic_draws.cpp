// Draws of a generator that has bits alone. Its reals take the 32 high bits of a fraction before the 20 low
// ones, a buffered generator's the 20 high bits before the 32 low ones: from equal bits come different
// sequences, and callers rely on both.
#include "../runtime/failure.h"
#include "integer_span.h"
#include "real_interval.h"
#include <torvane/distributions.h>

#include <algorithm>

using namespace torvane;

namespace {

// Of a range without rejection whose values fill words: 32 bits at a time, the first value from the top.
mint drawWords(mint *destination, mint count, const IntegerSpan &span, RandomGenerator *generator,
               RandomGetBits getBits) {
  const auto each = static_cast<mint>(32 / span.bits);
  const mint rest = count % each;
  for (count -= rest; count > 0; count -= each) {
    uint32_t word = getBits(32, generator);
    for (mint k = 0; k < each; ++k, word <<= span.bits)
      *destination++ = span.valueOf(word >> (32 - span.bits));
  }
  return rest;
}

uint32_t drawWithin(const IntegerSpan &span, RandomGenerator *generator, RandomGetBits getBits) {
  uint32_t read;
  do read = getBits(static_cast<mint>(span.bits), generator);
  while (read > span.range);
  return read;
}

// x in [2^52, 2^53), from 32 bits and then 20.
mreal drawFraction(RandomGenerator *generator, RandomGetBits getBits) {
  constexpr mreal kTwoTo32 = 4294967296.0, kTwoTo20 = 1048576.0;
  const mreal high = static_cast<mreal>(getBits(32, generator)) + kTwoTo32;
  return high * kTwoTo20 + static_cast<mreal>(getBits(20, generator));
}

} // namespace

mint Generic_randomMIntegers(mint *destination, mint count, mint low, mint high, RandomGenerator *generator) {
  const RandomGetBits getBits = generator->functions->getBits;
  if (getBits == nullptr) return kNoFunction;
  IntegerSpan span;
  if (const mint status = spanOf(low, high, &span)) return status;
  if (count < 1) return kSuccess;
  if (span.range == 0) {
    std::fill_n(destination, count, low);
    return kSuccess;
  }
  mint rest = count;
  if (span.isWhole() && 32 % span.bits == 0) rest = drawWords(destination, count, span, generator, getBits);
  for (mint k = count - rest; k < count; ++k)
    destination[k] = span.valueOf(drawWithin(span, generator, getBits));
  return kSuccess;
}

mint Generic_randomMReals(mreal *destination, mint count, mreal low, mreal high, RandomGenerator *generator) {
  const RandomGetBits getBits = generator->functions->getBits;
  if (getBits == nullptr) return kNoFunction;
  const RealInterval interval(low, high);
  if (!interval.hasFiniteWidth() || !std::isfinite(interval.c)) return kNotFinite;
  const mreal scale = interval.d * 0x1p-53;
  for (mint k = 0; k < count; ++k) {
    destination[k] = drawFraction(generator, getBits) * scale + interval.c;
    if (abortQ() != 0) return kAborted;
  }
  return kSuccess;
}

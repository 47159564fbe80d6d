// The values that an integer draw may give, and the bits that each takes.
#pragma once

#include "../runtime/types.h"

#include <bit>

namespace torvane {

// low, low + 1, ..., low + range. A value is `bits` bits of the stream, thrown away above `range`: no
// remainder is taken, so that every value is equally likely and a range of 2^bits - 1 throws none away.
struct IntegerSpan {
  mint low;
  uint32_t range, bits;

  bool isWhole() const { return (range & (range + 1)) == 0; }
  mint valueOf(uint32_t read) const { return static_cast<mint>(static_cast<uint32_t>(low) + read); }
};

// A range beyond mint, or a high bound below the low one, would let no value pass: kValueFailed.
inline mint spanOf(mint low, mint high, IntegerSpan *span) {
  const int64_t range = int64_t{high} - low;
  if (range < 0 || range > INT32_MAX) return kValueFailed;
  const auto bits = static_cast<uint32_t>(range);
  *span = {low, bits, static_cast<uint32_t>(std::bit_width(bits))};
  return kSuccess;
}

} // namespace torvane

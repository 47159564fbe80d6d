// The line on which real draws lie: x in [1/2, 1) becomes x times d plus c, rounded twice.
#pragma once

#include "../runtime/types.h"

#include <bit>
#include <cmath>

namespace torvane {

// The bits of 1/2; a fraction of 52 bits makes them a number of [1/2, 1).
inline constexpr uint64_t kHalfBits = 0x3FE0000000000000;

struct RealInterval {
  mreal d, c;

  RealInterval(mreal a, mreal b) : d((b - a) * 2), c(b - d) {}
  mreal ofFraction(uint64_t fraction) const { return std::bit_cast<mreal>(kHalfBits | fraction) * d + c; }
  bool hasFiniteWidth() const { return std::isfinite(d); }
};

} // namespace torvane

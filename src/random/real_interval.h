// The line on which real draws lie: x in [1/2, 1) becomes x times d plus c, rounded twice.
#pragma once

#include "../runtime/types.h"

#include <cmath>

namespace torvane {

struct RealInterval {
  mreal d, c;

  RealInterval(mreal a, mreal b) : d((b - a) * 2), c(b - d) {}
  mreal at(mreal x) const { return x * d + c; }
  bool hasFiniteWidth() const { return std::isfinite(d); }
};

} // namespace torvane

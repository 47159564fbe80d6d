// The logarithm of the gamma function, in a unit of its own for the sake of its header.
#pragma once

#include "scalar_types.h"

namespace torvane {

Real64 logGamma(Real64 x);

} // namespace torvane

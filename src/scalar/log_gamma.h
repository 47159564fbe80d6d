// The logarithm of the gamma function, by the platform's reentrant form: the plain one leaves the sign of
// gamma in a word of the whole process. Declared here as <math.h> declares it, which is not read for it.
#pragma once

#include "scalar_types.h"

extern "C" double lgamma_r(double x, int *sign) noexcept;

namespace torvane {

inline Real64 logGamma(Real64 x) {
  int sign;
  return lgamma_r(x, &sign);
}

} // namespace torvane

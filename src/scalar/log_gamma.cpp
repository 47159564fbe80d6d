// The reentrant form: the plain one leaves the sign of gamma in a word of the whole process.
#include "log_gamma.h"

#include <math.h>

namespace torvane {

Real64 logGamma(Real64 x) {
  int sign;
  return lgamma_r(x, &sign);
}

} // namespace torvane

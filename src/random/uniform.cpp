// Uniform draws from the calling thread's generator, by its table of functions.
#include "../runtime/types.h"
#include "draw_source.h"
#include <torvane/distributions.h>

#include <algorithm>

using namespace torvane;

mint UniformRandomMIntegers(mint *destination, mint count, mint a, mint b) {
  const IntegerSource source;
  return source ? source.draw(destination, count, std::min(a, b), std::max(a, b)) : mint{kNoFunction};
}

// The bounds stay as given: from a, included, downwards where a is the larger one.
mint UniformRandomMReals(mreal *destination, mint count, mreal a, mreal b) {
  const RealSource source;
  return source ? source.draw(destination, count, a, b) : mint{kNoFunction};
}

mint Runtime_UniformRandomMIntegers(mint *destination, mint count, mint a, mint b) {
  return UniformRandomMIntegers(destination, count, a, b);
}

mint Runtime_UniformRandomMReals(mreal *destination, mint count, mreal a, mreal b) {
  return UniformRandomMReals(destination, count, a, b);
}

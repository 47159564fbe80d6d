// Uniform draws from the calling thread's generator, by its table of functions.
#include "../runtime/types.h"
#include <torvane/distributions.h>

#include <algorithm>

using namespace torvane;

mint UniformRandomMIntegers(mint *destination, mint count, mint a, mint b) {
  RandomGenerator *generator = Runtime_GetCurrentRandomGenerator();
  const RandomMIntegers draw = generator->functions->randomMIntegers;
  if (draw == nullptr) return kNoFunction;
  return draw(destination, count, std::min(a, b), std::max(a, b), generator);
}

// The bounds stay as given: from a, included, downwards where a is the larger one.
mint UniformRandomMReals(mreal *destination, mint count, mreal a, mreal b) {
  RandomGenerator *generator = Runtime_GetCurrentRandomGenerator();
  const RandomMReals draw = generator->functions->randomMReals;
  if (draw == nullptr) return kNoFunction;
  return draw(destination, count, a, b, generator);
}

mint Runtime_UniformRandomMIntegers(mint *destination, mint count, mint a, mint b) {
  return UniformRandomMIntegers(destination, count, a, b);
}

mint Runtime_UniformRandomMReals(mreal *destination, mint count, mreal a, mreal b) {
  return UniformRandomMReals(destination, count, a, b);
}

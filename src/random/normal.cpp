// Normal variates in pairs: G. E. P. Box and M. E. Muller, A note on the generation of random normal
// deviates, Ann. Math. Stat. 29 (1958).
#include "../tensor/scratch.h"
#include "variates.h"
#include <torvane/distributions.h>

#include <cmath>

namespace torvane {

namespace {

struct Polar {
  mreal radius, angle;
};

// A uniform of 0 makes the radius infinite; that happens once in 2^52 draws.
Polar polarOf(const mreal *uniforms, mreal deviation) {
  constexpr mreal kTwoPi = 6.283185307179586;
  return {deviation * std::sqrt(-2 * std::log(uniforms[0])), kTwoPi * uniforms[1]};
}

// The values may take the place of their uniforms. Of the last pair of an odd count the sine is left out.
void transform(mreal *values, const mreal *uniforms, mint count, mreal mean, mreal deviation) {
  for (mint k = 0; k < count; k += 2) {
    const Polar polar = polarOf(uniforms + k, deviation);
    values[k] = mean + polar.radius * std::cos(polar.angle);
    if (k + 1 < count) values[k + 1] = mean + polar.radius * std::sin(polar.angle);
  }
}

mint drawOddNormal(mreal *destination, mint count, mreal mean, mreal deviation) {
  Scratch<mreal, 2> uniforms(count + 1);
  if (uniforms.status() != kSuccess) return uniforms.status();
  const mint status = UniformRandomMReals(uniforms.get(), count + 1, 0, 1);
  if (status == kSuccess) transform(destination, uniforms.get(), count, mean, deviation);
  return status;
}

} // namespace

mint drawNormal(mreal *destination, mint count, mreal mean, mreal deviation) {
  if (count % 2 != 0) return drawOddNormal(destination, count, mean, deviation);
  const mint status = UniformRandomMReals(destination, count, 0, 1);
  if (status == kSuccess) transform(destination, destination, count, mean, deviation);
  return status;
}

} // namespace torvane

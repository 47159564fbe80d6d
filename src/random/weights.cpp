#include "weights.h"

#include <torvane/distributions.h>

#include <cmath>

namespace torvane {

RunningSums::RunningSums(const MTensor *weights)
    : count(weights->elementCount), block(uint64_t{sizeof(mreal)} * static_cast<uint32_t>(count), kReport),
      failure(read(weights)) {}

// The payload is read as reals whatever its type, so that of complex weights the first half counts: callers
// rely on it. Integers would end too early.
mint RunningSums::read(const MTensor *weights) {
  if (count == 0) return kBadWeights;
  if (weights->type != TORVANE_TYPE_REAL && weights->type != TORVANE_TYPE_COMPLEX) return kValueFailed;
  if (!block) return kSizeFailed;
  const auto *weight = static_cast<const mreal *>(weights->data);
  mreal sum = 0;
  for (mint k = 0; k < count; ++k) {
    if (!(weight[k] >= 0)) return kBadWeights;
    sums()[k] = sum += weight[k];
  }
  if (sum == 0) return kBadWeights;
  return std::isfinite(sum) ? kSuccess : kNotFinite;
}

mint RunningSums::positiveCount() const {
  mint positive = 0;
  for (mint position = 1; position <= count; ++position) positive += weightOf(position) > 0;
  return positive;
}

// The first whose sum is not below u. A weight of 0 is met only at the first position, by u = 0. Which half
// it lies in is not to be foretold, so that a choice of addresses is cheaper than a branch.
mint RunningSums::positionOf(mreal u) const {
  const mreal *first = sums();
  for (mint length = count; length > 1; length -= length / 2)
    first += u > first[length / 2 - 1] ? length / 2 : 0;
  return static_cast<mint>(first - sums()) + 1;
}

mint RunningSums::draw(mint *positions, mint wanted) const {
  const ScratchBytes scratch(uint64_t{sizeof(mreal)} * static_cast<uint32_t>(wanted), kReport);
  if (!scratch && wanted > 0) return kSizeFailed;
  const auto *reals = scratch.as<mreal>();
  const mint status = UniformRandomMReals(scratch.as<mreal>(), wanted, 0, total());
  if (status != kSuccess) return status;
  for (mint k = 0; k < wanted; ++k) positions[k] = positionOf(reals[k]);
  return kSuccess;
}

} // namespace torvane

// Weights of positions 1 to length, kept as their running sums.
#pragma once

#include "../algorithms/scratch_bytes.h"
#include "../tensor/tensor.h"

namespace torvane {

inline constexpr mint kBadWeights = -1; // the status of weights that make no distribution

class RunningSums {
public:
  // kBadWeights for no weights, a negative one, a NaN or a total of 0; kValueFailed for integers;
  // kNotFinite for the total; kSizeFailed.
  explicit RunningSums(const MTensor *weights);
  mint status() const { return failure; }

  mint length() const { return count; }
  mreal total() const { return sums()[count - 1]; }
  // What a position adds to the sums, which is 0 where it is lost in them.
  mreal weightOf(mint position) const {
    return position == 1 ? sums()[0] : sums()[position - 1] - sums()[position - 2];
  }
  mint positiveCount() const;

  // Positions with replacement, from as many reals in [0, total), which are drawn in one call.
  mint draw(mint *positions, mint wanted) const;

private:
  mreal *sums() const { return block.as<mreal>(); }
  mint read(const MTensor *weights);
  mint positionOf(mreal u) const;

  mint count;
  ScratchBytes block;
  mint failure;
};

} // namespace torvane

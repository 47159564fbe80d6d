// A balanced tree of weights from which positions are taken away.
//
// The node of a range of positions holds the sum of their weights; its left half (the shorter one) and its
// right half follow it, so that a range of n positions takes 2 n - 1 nodes in a row. Sums are always left
// plus right, and a position that was taken weighs 0.
#pragma once

#include "weights.h"

namespace torvane {

class WeightTree {
public:
  // Holds nothing where the memory cannot be had.
  explicit WeightTree(const RunningSums &weights);
  explicit operator bool() const { return static_cast<bool>(block); }

  mreal total() const { return sums()[0]; }
  // The position that u of [0, total) falls on.
  mint take(mreal u) { return take({0, 1, length}, u); }

private:
  struct Range {
    ptrdiff_t node;
    mint first, length;
    mint half() const { return length / 2; }
    Range left() const { return {node + 1, first, half()}; }
    Range right() const { return {node + 2 * ptrdiff_t{half()}, first + half(), length - half()}; }
  };
  mreal *sums() const { return block.as<mreal>(); }
  mreal build(const RunningSums &weights, Range range);
  mint take(Range range, mreal u);

  mint length;
  ScratchBytes block;
};

} // namespace torvane

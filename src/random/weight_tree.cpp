#include "weight_tree.h"

namespace torvane {

WeightTree::WeightTree(const RunningSums &weights)
    : length(weights.length()), block(sizeof(mreal) * (2 * static_cast<uint64_t>(length) - 1), kReport) {
  if (block) build(weights, {0, 1, length});
}

mreal WeightTree::build(const RunningSums &weights, Range range) {
  mreal &sum = sums()[range.node];
  if (range.length == 1) return sum = weights.weightOf(range.first);
  const mreal left = build(weights, range.left());
  return sum = left + build(weights, range.right());
}

mint WeightTree::take(Range range, mreal u) {
  mreal *const sum = sums();
  if (range.length == 1) {
    sum[range.node] = 0;
    return range.first;
  }
  const Range left = range.left(), right = range.right();
  const mreal leftSum = sum[left.node];
  const mint position = leftSum >= u ? take(left, u) : take(right, u - leftSum);
  sum[range.node] = sum[left.node] + sum[right.node];
  return position;
}

} // namespace torvane

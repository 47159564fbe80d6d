// The repetition rule: how the elements of a shorter operand pair with blocks of a longer one.
//
// With n1 > n2 each element of the second operand pairs with a block of n1 / n2 elements of the first,
// and passes as a scalar, with stride 0: an operand is never copied or expanded.
#pragma once

#include "outcome.h"
#include <torvane/operators.h>
#include <torvane/tensor.h>

namespace torvane {

struct PairCounts {
  mint n1, n2;
};

// One call of a routine: where each operand starts, and over how many elements it runs.
struct PairRun {
  mint resultStart, start1, start2, count;
  const mint *strides;
};

inline void *elementAt(const MTensor *tensor, mint index) {
  if (tensor->data == nullptr) return nullptr;
  return static_cast<char *>(tensor->data) +
         size_t{MTensor_typeSizeTable[tensor->type]} * static_cast<size_t>(index);
}

// Elements that the calls write. A shorter operand of no elements makes no call.
constexpr mint resultCount(mint n1, mint n2) {
  const mint shorter = n1 < n2 ? n1 : n2, longer = n1 < n2 ? n2 : n1;
  return shorter == 0 ? 0 : longer / shorter * shorter;
}

// Runs `call` over the blocks in order, until one fails. The outcomes below -2 of several blocks are the
// union of theirs: they are negated sets of bits.
template <class Call> mint overBlocks(PairCounts counts, Call call) {
  static constexpr mint kDense[3] = {1, 1, 1}, kScalar1[3] = {1, 0, 1}, kScalar2[3] = {1, 1, 0};
  const auto [n1, n2] = counts;
  if (n1 == n2) return call(PairRun{0, 0, 0, n1, kDense});
  const bool firstIsLonger = n1 > n2;
  const mint blocks = firstIsLonger ? n2 : n1, length = blocks == 0 ? 1 : (firstIsLonger ? n1 : n2) / blocks;
  mint merged = kDone;
  for (mint block = 0; block < blocks; ++block) {
    const mint start = block * length;
    const mint outcome = call(firstIsLonger ? PairRun{start, start, block, length, kScalar2}
                                            : PairRun{start, block, start, length, kScalar1});
    if (outcome > kDone) return outcome == kNoRoutine ? outcome : start + outcome;
    if (outcome < kDone) merged = merged == kDone ? outcome : -(-merged | -outcome);
  }
  return merged;
}

// One routine over all blocks. Its outcome is that of a dispatch entry.
inline mint runOverBlocks(TorvaneBinaryRoutine routine, MTensor *result, const MTensor *x, const MTensor *y,
                          mint flags) {
  return overBlocks({x->elementCount, y->elementCount}, [&](const PairRun &run) {
    return outcomeOf(routine(elementAt(result, run.resultStart), elementAt(x, run.start1),
                             elementAt(y, run.start2), run.count, run.strides, flags));
  });
}

} // namespace torvane

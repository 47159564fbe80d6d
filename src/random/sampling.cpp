#include "sampling.h"

#include "../tensor/scratch.h"
#include "../runtime/failure.h"
#include "draw_source.h"
#include "position_set.h"
#include "weight_tree.h"
#include <torvane/distributions.h>

#include <numeric>

namespace torvane {

namespace {

bool isLargeShare(mint count, mint length) { return count > length / 10; }

// Callers tell a generator without integers from no generator.
mint statusWithoutDraw(const IntegerSource &source) {
  return source.generator == nullptr ? mint{kNoFunction} : kNoIntegers;
}

mint *newNumbers(mint length) {
  const uint32_t bytes = checkedByteCount(sizeof(mint), length);
  auto *numbers = bytes == kByteOverflow ? nullptr : static_cast<mint *>(allocate(bytes, 0, kReport));
  if (numbers != nullptr) std::iota(numbers, numbers + length, 1);
  return numbers;
}

// R. A. Fisher and F. Yates, as far as needed. A failing draw leaves the numbers allocated, which is part of
// what callers know of this operation and rely upon.
mint shuffleSome(const IntegerSource &source, mint *positions, mint count, mint length) {
  mint *const numbers = newNumbers(length);
  if (numbers == nullptr) return kSizeFailed;
  for (mint k = 0, last = length - 1; k < count; ++k, --last) {
    mint drawn;
    if (const mint status = source.draw(&drawn, 1, 0, last)) return status;
    positions[k] = numbers[drawn];
    numbers[drawn] = numbers[last];
  }
  torvane::free(numbers);
  return kSuccess;
}

// Rounds of as many positions as are missing, until none is.
template <class Draw> mint drawUntilDistinct(mint *positions, mint count, const Draw &draw) {
  PositionSet chosen(count);
  while (count > 0) {
    if (const mint status = draw(positions, count)) return status;
    const mint kept = chosen.keepNew(positions, count);
    positions += kept;
    count -= kept;
  }
  return kSuccess;
}

mint takeByWeights(mint *positions, mint count, const RunningSums &weights) {
  WeightTree tree(weights);
  Scratch<mreal> reals(count);
  if (!tree || reals.status() != kSuccess) return kSizeFailed;
  if (const mint status = UniformRandomMReals(reals.get(), count, 0, 1)) return status;
  for (mint k = 0; k < count; ++k) {
    if (abortQ() != 0) return kAborted;
    positions[k] = tree.take(reals[k] * tree.total());
  }
  return kSuccess;
}

} // namespace

mint drawPositions(mint *positions, mint count, mint length) {
  const IntegerSource source;
  return source ? source.draw(positions, count, 1, length) : statusWithoutDraw(source);
}

mint samplePositions(mint *positions, mint count, mint length) {
  const IntegerSource source;
  if (!source) return statusWithoutDraw(source);
  if (isLargeShare(count, length)) return shuffleSome(source, positions, count, length);
  return drawUntilDistinct(positions, count,
                           [&](mint *place, mint missing) { return source.draw(place, missing, 1, length); });
}

mint sampleByWeights(mint *positions, mint count, const RunningSums &weights) {
  if (isLargeShare(count, weights.length())) return takeByWeights(positions, count, weights);
  return drawUntilDistinct(positions, count, [&](mint *place, mint missing) {
    return abortQ() != 0 ? kAborted : weights.draw(place, missing);
  });
}

} // namespace torvane

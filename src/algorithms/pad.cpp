// PadLeft and PadRight: the result is tiled with the padding, and the tensor laid over it.
//
// A tiling repeats itself along each dimension after as many indices as the padding has: one period is built
// from the dimensions below, the rest of the dimension is copied from it.
#include "handler.h"
#include "pieces.h"
#include "result_tensor.h"
#include "scratch.h"

#include <algorithm>
#include <string.h>

namespace torvane {

namespace {

struct Padding {
  const MTensor *tensor, *lengths, *padding, *margins;
  int64_t sign; // of the lengths: PadRight turns them round
};

mint checkVector(const MTensor *vector, const MTensor *tensor) {
  if (checkIntegerVector(vector) != kSuccess) return kWrongType;
  return vector->elementCount == tensor->rank ? kSuccess : kWrongDimensions;
}

// No tiling is made of no elements.
mint checkExtents(const Padding &pad) {
  const mint *lengths = integersOf(pad.lengths);
  if (std::count(lengths, lengths + pad.tensor->rank, 0) > 0) return kWrongDimensions;
  return pad.padding->elementCount == 0 ? kWrongDimensions : kSuccess;
}

mint check(const Padding &pad) {
  if (pad.padding->rank != pad.tensor->rank || pad.tensor->rank == 0) return kWrongRank;
  if (pad.padding->type != pad.tensor->type) return kWrongType;
  mint status = checkVector(pad.lengths, pad.tensor);
  if (status == kSuccess) status = checkVector(pad.margins, pad.tensor);
  return status != kSuccess ? status : checkExtents(pad);
}

// One dimension that the tiling runs along, in bytes.
struct TileAxis {
  size_t count, period,
      first; // indices of the result and of the padding, and the padding's index that comes first
  size_t targetStride, paddingStride;
};

// Copies the first `period` bytes again and again behind them. What is copied stays in the first cache.
void repeatPeriod(char *target, size_t period, size_t bytes) {
  constexpr size_t kCached = 16384;
  size_t have = std::min(period, bytes), chunk = have;
  while (have < bytes) {
    const size_t next = std::min(chunk, bytes - have);
    memcpy(target + have, target, next);
    have += next;
    if (chunk < kCached) chunk = have;
  }
}

// The first `built` indices of the last axis, where the padding's elements are as dense as the result's: from
// the first one to the padding's end, then from its start.
void copyWrapped(char *target, const char *padding, const TileAxis &axis, size_t built) {
  const size_t element = axis.targetStride, before = std::min(built, axis.period - axis.first);
  memcpy(target, padding + axis.first * element, before * element);
  memcpy(target + before * element, padding, (built - before) * element);
}

void tile(char *target, const char *padding, const TileAxis *axis, const TileAxis *last, size_t element) {
  if (axis == last) {
    memcpy(target, padding, element);
    return;
  }
  const size_t built = std::min(axis->count, axis->period);
  if (axis->targetStride == element && axis->paddingStride == element)
    copyWrapped(target, padding, *axis, built);
  else
    for (size_t j = 0; j < built; ++j)
      tile(target + j * axis->targetStride, padding + (axis->first + j) % axis->period * axis->paddingStride,
           axis + 1, last, element);
  repeatPeriod(target, axis->period * axis->targetStride, axis->count * axis->targetStride);
}

size_t modulo(int64_t x, int64_t y) { return static_cast<size_t>((x % y + y) % y); }

// The padding's index at the start of dimension i: its copies are aligned to the place of the tensor.
size_t firstPaddingIndex(const Padding &pad, mint i, int64_t extent) {
  const int64_t period = pad.padding->dimensions[i], margin = integersOf(pad.margins)[i];
  const bool isAtEnd = pad.sign * integersOf(pad.lengths)[i] > 0;
  return modulo(-(isAtEnd ? extent - margin : margin), period);
}

size_t bytesOf(const MTensor *tensor) {
  return static_cast<size_t>(tensor->elementCount) * elementWidth(tensor->type);
}

// Dimensions of one index only choose a part of the padding; at most 31 are left.
void fill(const MTensor *target, const Padding &pad) {
  TileAxis axes[32];
  mint count = 0;
  size_t targetStride = bytesOf(target), paddingStride = bytesOf(pad.padding);
  const char *padding = static_cast<const char *>(pad.padding->data);
  for (mint i = 0; i < target->rank; ++i) {
    const auto extent = static_cast<size_t>(target->dimensions[i]);
    const auto period = static_cast<size_t>(pad.padding->dimensions[i]);
    const size_t first = firstPaddingIndex(pad, i, target->dimensions[i]);
    targetStride /= extent;
    paddingStride /= period;
    if (extent == 1)
      padding += first * paddingStride;
    else
      axes[count++] = {extent, period, first, targetStride, paddingStride};
  }
  tile(static_cast<char *>(target->data), padding, axes, axes + count, elementWidth(target->type));
}

// Where the tensor lies along dimension i, as far as it is inside the result.
AxisPieces placeOf(const Padding &pad, mint i, int64_t extent) {
  const int64_t length = pad.tensor->dimensions[i], margin = integersOf(pad.margins)[i];
  const bool isAtEnd = pad.sign * integersOf(pad.lengths)[i] > 0;
  const int64_t start = isAtEnd ? extent - margin - length : margin;
  const int64_t from = std::clamp<int64_t>(start, 0, extent),
                to = std::clamp<int64_t>(start + length, 0, extent);
  AxisPieces pieces;
  pieces.add(runOf(static_cast<mint>(to - from), static_cast<mint>(from), static_cast<mint>(from - start)));
  return pieces;
}

// False when the tensor lies outside the result.
bool placeAll(const MTensor *target, const Padding &pad, AxisPieces *axes) {
  for (mint i = 0; i < target->rank; ++i) {
    axes[i] = placeOf(pad, i, target->dimensions[i]);
    if (axes[i].begin() == axes[i].end()) return false;
  }
  return true;
}

// The most negative length has none, and stays negative: no such result can be allocated.
mint magnitude(mint length) {
  return length < 0 ? static_cast<mint>(0u - static_cast<uint32_t>(length)) : length;
}

mint padTensor(MTensor **slot, const Padding &pad) {
  mint status = check(pad);
  if (status != kSuccess) return status;
  const mint rank = pad.tensor->rank;
  Scratch<mint> extents(rank);
  Scratch<AxisPieces> axes(rank);
  if (extents.status() != kSuccess || axes.status() != kSuccess) return kSizeFailed;
  for (mint i = 0; i < rank; ++i) extents[i] = magnitude(integersOf(pad.lengths)[i]);
  ResultTensor result(slot, {pad.tensor, pad.lengths, pad.padding, pad.margins});
  status = result.allocate(pad.tensor->type, rank, extents.get());
  if (status != kSuccess) return status;
  fill(result.get(), pad);
  if (placeAll(result.get(), pad, axes.get())) copyPieces(result.get(), pad.tensor, axes.get(), rank);
  return result.commit();
}

mint padByName(mint argumentCount, void *const *arguments, void *result, int64_t sign) {
  if (argumentCount != 4) return kWrongArguments;
  return padTensor(tensorResult(result), {tensorArgument(arguments, 0), tensorArgument(arguments, 1),
                                          tensorArgument(arguments, 2), tensorArgument(arguments, 3), sign});
}

} // namespace

mint handlePadLeft(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return padByName(argumentCount, arguments, result, 1);
}

// The lengths are only read: they may be shared with other threads meanwhile.
mint handlePadRight(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return padByName(argumentCount, arguments, result, -1);
}

} // namespace torvane

// PadLeft and PadRight: the result is tiled with the padding, and the tensor laid over it.
//
// A tiling repeats itself along each dimension after as many indices as the padding has: one period is built
// from the dimensions below, the rest of the dimension is copied from it.
#include "handler.h"
#include "pieces.h"
#include "result_tensor.h"
#include "../tensor/scratch.h"
#include "tiling.h"

#include <algorithm>

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

TileRange coveredBy(const AxisPieces *places, mint i) {
  if (places == nullptr) return {0, 0};
  const Piece &place = *places[i].begin();
  return {static_cast<size_t>(place.target), static_cast<size_t>(place.target + place.length)};
}

// Dimensions of one index only choose a part of the padding; at most 31 are left. `places` is null when the
// tensor lies outside the result.
void fill(const MTensor *target, const Padding &pad, const AxisPieces *places) {
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
      axes[count++] = {extent, period, first, targetStride, paddingStride, coveredBy(places, i)};
  }
  tile(static_cast<char *>(target->data), padding, axes, axes + count, elementWidth(target->type));
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
  const bool isInside = placeAll(result.get(), pad, axes.get());
  fill(result.get(), pad, isInside ? axes.get() : nullptr);
  if (isInside) copyPieces(result.get(), pad.tensor, axes.get(), rank);
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

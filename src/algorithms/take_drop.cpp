// Take and Drop: a range of the indices of each of the first dimensions, or all but that range.
#include "handler.h"
#include "pieces.h"
#include "ranges.h"
#include "result_tensor.h"
#include "../tensor/scratch.h"
#include <torvane/lists.h>

#include <algorithm>
#include <stdlib.h>

namespace torvane {

namespace {

// What is left of one dimension: how many indices, and where they stand.
struct Choice {
  mint length;
  AxisPieces pieces;
};
using Choose = Choice (*)(mint dimension, const Range &range, mint count);

Choice chooseTaken(mint, const Range &range, mint count) {
  Choice choice = {count, {}};
  choice.pieces.add({count, 1, 0, 1, range.start - 1, range.step});
  return choice;
}

// Before the range, between its indices, after it: the same set whichever way the range runs.
Choice chooseKept(mint dimension, const Range &range, mint count) {
  Choice choice = {dimension - count, {}};
  if (count == 0) {
    choice.pieces.add(runOf(dimension, 0, 0));
    return choice;
  }
  const mint last = range.start - 1 + (count - 1) * range.step;
  const mint low = std::min(range.start - 1, last), high = std::max(range.start - 1, last);
  const mint step = std::abs(range.step), gap = step - 1;
  choice.pieces.add(runOf(low, 0, 0));
  choice.pieces.add({count - 1, gap, low, gap, low + 1, step});
  choice.pieces.add(runOf(dimension - 1 - high, low + (count - 1) * gap, high + 1));
  return choice;
}

struct Selection {
  Selection(mint rank, mint count) : extents(rank), axes(count) {}
  mint status() const { return extents.status() != kSuccess ? extents.status() : axes.status(); }
  Scratch<mint> extents;
  Scratch<AxisPieces> axes;
};

mint select(const MTensor *tensor, mint count, Range *ranges, Choose choose, Selection &selection) {
  std::copy_n(tensor->dimensions, tensor->rank, selection.extents.get());
  for (mint i = 0; i < count; ++i) {
    Range &range = ranges[i];
    mint indices;
    if (!MTensor_normalizeRange(tensor->dimensions[i], range.bounds, &range.start, &range.end, &range.step,
                                &indices))
      return kValueFailed;
    const Choice choice = choose(tensor->dimensions[i], range, indices);
    selection.extents[i] = choice.length;
    selection.axes[i] = choice.pieces;
  }
  return kSuccess;
}

mint takeDrop(ResultTensor &result, const MTensor *tensor, mint count, Range *ranges, bool isTake) {
  Selection selection(tensor->rank, count);
  if (selection.status() != kSuccess) return selection.status();
  mint status = select(tensor, count, ranges, isTake ? chooseTaken : chooseKept, selection);
  if (status != kSuccess) return status;
  status = result.allocate(tensor->type, tensor->rank, selection.extents.get());
  if (status != kSuccess) return status;
  copyPieces(result.get(), tensor, selection.axes.get(), count);
  return result.commit();
}

// A range as its caller gives it: an integer, or a vector where the tag says so.
struct RangeValue {
  intptr_t tag;
  mint integer;
  const MTensor *vector;
};

mint readRange(const RangeValue &value, Range *range) {
  if (value.tag == kTagVector) return rangeOfVector(value.vector, range);
  *range = rangeOfInteger(value.integer, value.tag == kTagClipped ? kClipStart : 0);
  return kSuccess;
}

template <class ValueAt>
mint takeDropBy(MTensor **slot, const MTensor *tensor, mint count, bool isTake, ValueAt valueAt) {
  if (count < 0 || count > tensor->rank) return kWrongRank;
  Scratch<Range> ranges(count);
  ResultTensor result(slot, {tensor});
  mint status = ranges.status();
  for (mint i = 0; i < count && status == kSuccess; ++i) {
    const RangeValue value = valueAt(i);
    result.avoid(value.vector);
    status = readRange(value, &ranges[i]);
  }
  return status != kSuccess ? status : takeDrop(result, tensor, count, ranges.get(), isTake);
}

mint takeDropByName(mint argumentCount, void *const *arguments, void *result, bool isTake) {
  if (argumentCount < 1 || argumentCount % 2 == 0) return kWrongArguments;
  const auto valueAt = [&](mint i) -> RangeValue {
    const mint tag = integerArgument(arguments, 2 * i + 1);
    if (tag == kTagVector) return {tag, 0, tensorArgument(arguments, 2 * i + 2)};
    return {tag, integerArgument(arguments, 2 * i + 2), nullptr};
  };
  return takeDropBy(tensorResult(result), tensorArgument(arguments, 0), argumentCount / 2, isTake, valueAt);
}

} // namespace

mint handleTake(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return takeDropByName(argumentCount, arguments, result, true);
}

mint handleDrop(TorvaneLibraryData *, mint argumentCount, void *const *arguments, void *result) {
  return takeDropByName(argumentCount, arguments, result, false);
}

} // namespace torvane

using namespace torvane;

mint Runtime_MTensor_TakeDrop(MTensor **resultSlot, MTensor *tensor, mint count, const intptr_t *specs,
                              mint isTake) {
  const auto valueAt = [&](mint i) -> RangeValue {
    const intptr_t tag = specs[2 * i], value = specs[2 * i + 1];
    if (tag == kTagVector) return {tag, 0, reinterpret_cast<const MTensor *>(value)};
    return {tag, static_cast<mint>(value), nullptr};
  };
  return takeDropBy(resultSlot, tensor, count, isTake != 0, valueAt);
}

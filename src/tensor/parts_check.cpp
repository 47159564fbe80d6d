// Selectors against dimensions, and sources against selections.
#include "parts.h"

#include <algorithm>

namespace torvane {

namespace {

bool fail(PartReporter *reporter, const char *tag, intptr_t first = 0, intptr_t second = 0) {
  if (reporter != nullptr) {
    reporter->values[0] = first;
    reporter->values[1] = second;
    reporter->report(tag, reporter);
  }
  return false;
}

// Most lists count from the start of the dimension: they are told by a loop without a branch, and stay as
// they are.
bool arePlainPositions(mint extent, const mint *positions, intptr_t count) {
  uint32_t strays = 0;
  for (intptr_t i = 0; i < count; ++i)
    strays |= static_cast<uint32_t>(positions[i] < 1) | static_cast<uint32_t>(positions[i] > extent);
  return strays == 0;
}

bool checkPositions(mint extent, const PartSpec &selector, PartReporter *reporter) {
  if (arePlainPositions(extent, selector.positions, selector.count)) return true;
  for (mint *p = selector.positions; p < selector.positions + selector.count; ++p) {
    const int64_t position = *p < 0 ? int64_t{*p} + extent + 1 : *p;
    if (position < 1 || position > extent) return fail(reporter, kPartPosition, *p);
    *p = static_cast<mint>(position);
  }
  return true;
}

bool checkSpan(mint extent, PartSpec &selector, PartReporter *reporter) {
  mint *span = selector.positions, count;
  if (!MTensor_resolveSpan(extent, span[3], &span[0], &span[1], &span[2], &count))
    return fail(reporter, kPartTake, span[0], span[1]);
  selector.count = count;
  return true;
}

bool checkSelector(mint extent, PartSpec &selector, PartReporter *reporter) {
  if (selector.count == kInvalidPart) return false;
  switch (selector.kind) {
  case TORVANE_PART_ALL:
    selector.count = extent;
    return true;
  case TORVANE_PART_SPAN:
    return checkSpan(extent, selector, reporter);
  default:
    return checkPositions(extent, selector, reporter);
  }
}

// Wraps only where an earlier extent is 0 and no element is ever reached.
uint32_t elementsFrom(mint rank, const mint *dimensions, mint first) {
  uint32_t count = 1;
  for (mint i = first; i < rank; ++i) count *= static_cast<uint32_t>(dimensions[i]);
  return count;
}

void fillStrides(mint rank, const mint *dimensions, mint selectorCount, PartSpec *specs) {
  uint32_t length = elementsFrom(rank, dimensions, selectorCount);
  for (mint i = selectorCount - 1; i >= 0; --i) {
    specs[i].stride = specs[i].blockLength = static_cast<mint>(length);
    length *= static_cast<uint32_t>(dimensions[i]);
  }
}

// Trailing extents agree as far as the smaller rank goes, and whole copies of the source fill the selection.
// One element fits anything, and anything an empty selection.
bool fits(const MTensor *source, mint rank, const mint *extents) {
  if (std::find(extents, extents + rank, 0) != extents + rank) return true;
  const mint count = NumberOfElements_common(rank, extents, kQuiet);
  if (count == kCountOverflow || source->elementCount == 0 || count % source->elementCount != 0) return false;
  if (source->elementCount == 1) return true;
  const mint common = std::min(rank, source->rank);
  return std::equal(extents + rank - common, extents + rank, source->dimensions + source->rank - common);
}

} // namespace

mint selectionRank(mint rank, mint selectorCount, const PartSpec *specs) {
  for (mint i = 0; i < selectorCount; ++i) rank -= specs[i].kind == TORVANE_PART_POSITION;
  return rank;
}

void selectionExtents(mint rank, const mint *dimensions, mint selectorCount, const PartSpec *specs,
                      mint *extents) {
  for (mint i = 0; i < selectorCount; ++i)
    if (specs[i].kind != TORVANE_PART_POSITION) *extents++ = static_cast<mint>(specs[i].count);
  std::copy_n(dimensions + selectorCount, rank - selectorCount, extents);
}

mint MTensor_checkPartSpecs(mint rank, const mint *dimensions, mint selectorCount, PartSpec *specs,
                            mint *resultRank, PartReporter *reporter) {
  *resultRank = 0x7FFFFFFF;
  const mint checked = std::min(rank, selectorCount);
  for (mint i = 0; i < checked; ++i)
    if (!checkSelector(dimensions[i], specs[i], reporter)) return 0;
  if (selectorCount > rank) return fail(reporter, kPartDepth);
  fillStrides(rank, dimensions, selectorCount, specs);
  *resultRank = selectionRank(rank, selectorCount, specs);
  return 1;
}

mint MTensor_checkPartAssignment(const MTensor *target, const MTensor *source, mint selectorCount,
                                 PartSpec *specs, PartReporter *reporter) {
  mint rank;
  if (!MTensor_checkPartSpecs(target->rank, target->dimensions, selectorCount, specs, &rank, reporter))
    return kSelectorFails;
  Scratch<mint> extents(rank, kFatal);
  selectionExtents(target->rank, target->dimensions, selectorCount, specs, extents.get());
  return fits(source, rank, extents.get()) ? kSourceFits : kSourceDiffers;
}

} // namespace torvane

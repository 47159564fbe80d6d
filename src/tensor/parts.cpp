// Extraction and assignment of the parts of tensors. Selectors are checked before anything is made or
// changed.
#include "parts.h"

#include <string.h>

namespace torvane {

namespace {

PartShape shapeOf(const MTensor *tensor) {
  return {tensor->rank, tensor->dimensions, elementWidth(tensor->type)};
}

bool isEmptySelection(mint selectorCount, const PartSpec *specs) {
  for (mint i = 0; i < selectorCount; ++i)
    if (specs[i].count == 0) return true;
  return false;
}

// Allocates what a tensor is to become. With `isApart` a tensor of its own, so that the old content can be
// read until the new one is whole.
class PartResult {
public:
  PartResult(MTensor *reused, bool isApart)
      : kept(isApart ? reused : nullptr), made(isApart ? nullptr : reused) {}
  ~PartResult() {
    if (kept != nullptr) MTensor_delete(made);
  }
  PartResult(const PartResult &) = delete;
  PartResult &operator=(const PartResult &) = delete;

  mint allocate(mint type, mint rank, const mint *dimensions) {
    return MTensor_allocateCommon(&made, type, rank, dimensions, kReport);
  }
  MTensor *get() const { return made; }
  MTensor *finish() {
    if (kept == nullptr) return made;
    exchangeContents(kept, made);
    return kept;
  }

private:
  MTensor *kept, *made;
};

mint extractTo(PartResult &result, const MTensor *source, mint rank, mint selectorCount,
               const PartSpec *specs) {
  Scratch<mint> extents(rank, kFatal);
  selectionExtents(source->rank, source->dimensions, selectorCount, specs, extents.get());
  const mint status = result.allocate(source->type, rank, extents.get());
  if (status == kSuccess) MTensor_copyParts(source, result.get(), selectorCount, specs, kExtract);
  return status;
}

mint getParts(PartResult &result, MTensor **slot, const MTensor *source, mint resultRank, mint selectorCount,
              PartSpec *specs) {
  mint rank;
  if (!MTensor_checkPartSpecs(source->rank, source->dimensions, selectorCount, specs, &rank, nullptr) ||
      rank != resultRank)
    return kValueFailed;
  const mint status = extractTo(result, source, rank, selectorCount, specs);
  if (status == kSuccess) *slot = result.finish();
  return status;
}

mint assign(MTensor *target, const MTensor *source, mint selectorCount, const PartSpec *specs) {
  if (source->data != target->data) {
    MTensor_copyParts(source, target, selectorCount, specs, kAssign);
    return kSuccess;
  }
  MTensor *copy = nullptr;
  MTensor_makeCopy(&copy, source);
  MTensor_copyParts(copy, target, selectorCount, specs, kAssign);
  MTensor_delete(copy);
  return kSuccess;
}

mint setParts(MTensor *target, const MTensor *source, mint resultRank, mint selectorCount, PartSpec *specs) {
  if (MTensor_checkPartAssignment(target, source, selectorCount, specs, nullptr) != kSourceFits)
    return kValueFailed;
  if (selectionRank(target->rank, selectorCount, specs) != resultRank || source->type != target->type)
    return kValueFailed;
  return assign(target, source, selectorCount, specs);
}

} // namespace

void MTensor_copyParts(const MTensor *source, MTensor *target, mint selectorCount, const PartSpec *specs,
                       PartDirection direction) {
  const MTensor *whole = direction == kExtract ? source : target;
  const MTensor *packed = direction == kExtract ? target : source;
  if (whole->elementCount == 0 || packed->elementCount == 0 || isEmptySelection(selectorCount, specs)) return;
  copyParts(shapeOf(whole), static_cast<char *>(whole->data), static_cast<char *>(packed->data),
            packed->elementCount, selectorCount, specs, direction);
}

mint MTensor_partSelectOne(MTensor **resultSlot, const MTensor *source, mint depth, mint position) {
  PartResult result(*resultSlot, *resultSlot == source);
  const mint status = result.allocate(source->type, source->rank - depth, source->dimensions + depth);
  if (status != kSuccess) return kNoMemory;
  const mint count = result.get()->elementCount;
  MTensor_copyContiguousData(result.get(), 0, source, count * position, count);
  *resultSlot = result.finish();
  return kSuccess;
}

} // namespace torvane

using namespace torvane;

mint MTensor_getParts(MTensor *resultTensor, MTensor **resultSlot, const MTensor *source, mint resultRank,
                      mint selectorCount, const mint *kinds, void *const *specs) {
  if (selectorCount < 0) return 1;
  PartSelectors selectors(selectorCount, kinds, specs);
  const bool isOperand = resultTensor != nullptr &&
                         (resultTensor == source || isPartSpec(resultTensor, selectorCount, kinds, specs));
  PartResult result(resultTensor, isOperand);
  return getParts(result, resultSlot, source, resultRank, selectorCount, selectors.get()) != kSuccess;
}

mint MTensor_setParts(MTensor *target, const MTensor *source, mint resultRank, mint selectorCount,
                      const mint *kinds, void *const *specs) {
  if (selectorCount < 0) return 1;
  PartSelectors selectors(selectorCount, kinds, specs);
  return setParts(target, source, resultRank, selectorCount, selectors.get()) != kSuccess;
}

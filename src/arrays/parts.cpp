// Extraction of the parts of numeric arrays, by the tensors' selectors and copy.
#include "../runtime/element_types.h"
#include "../tensor/parts.h"
#include "numeric_array.h"

#include <algorithm>
#include <utility>

namespace torvane {

namespace {

PartShape shapeOf(const MNumericArray *array) {
  return {array->rank, array->dimensions, kElementWidths[array->elementType]};
}

void extract(const MNumericArray *source, MNumericArray *result, mint selectorCount, const PartSpec *specs) {
  if (result->elementCount > 0)
    copyParts(shapeOf(source), static_cast<char *>(source->data), static_cast<char *>(result->data),
              result->elementCount, selectorCount, specs, kExtract);
}

// The count is asked too: extents that were reset say nothing about the payload.
bool hasShape(const MNumericArray *array, mint elementType, mint rank, const mint *dimensions) {
  return array != nullptr && array->elementType == elementType && array->rank == rank &&
         array->elementCount == NumberOfElements_common(rank, dimensions, kReport) &&
         std::equal(dimensions, dimensions + rank, array->dimensions);
}

// The record stays, and with it the reference count.
void takeContents(MNumericArray *array, MNumericArray *made) {
  std::swap(*array, *made);
  std::swap(array->refCount, made->refCount);
  MNumericArray_delete(made);
}

// The array that holds the selection, or null. `reused` is changed only when nothing can fail any more.
MNumericArray *extracted(MNumericArray *reused, const MNumericArray *source, mint rank, const mint *extents,
                         mint selectorCount, const PartSpec *specs) {
  if (reused != source && hasShape(reused, source->elementType, rank, extents)) {
    extract(source, reused, selectorCount, specs);
    return reused;
  }
  MNumericArray *made = MNumericArray_newWithData(source->elementType, rank, extents, nullptr, 1);
  if (made == nullptr) return nullptr;
  extract(source, made, selectorCount, specs);
  if (reused == nullptr) return made;
  takeContents(reused, made);
  return reused;
}

} // namespace

} // namespace torvane

using namespace torvane;

mint MNumericArray_getParts(MNumericArray *resultArray, MNumericArray **resultSlot,
                            const MNumericArray *source, mint resultRank, mint selectorCount,
                            const mint *kinds, void *const *specs) {
  if (selectorCount < 0) return 1;
  PartSelectors selectors(selectorCount, kinds, specs);
  PartSpec *records = selectors.get();
  mint rank;
  if (!MTensor_checkPartSpecs(source->rank, source->dimensions, selectorCount, records, &rank, nullptr) ||
      rank != resultRank)
    return 1;
  Scratch<mint> extents(rank, kFatal);
  selectionExtents(source->rank, source->dimensions, selectorCount, records, extents.get());
  MNumericArray *result = extracted(resultArray, source, rank, extents.get(), selectorCount, records);
  if (result == nullptr) return 1;
  *resultSlot = result;
  return 0;
}

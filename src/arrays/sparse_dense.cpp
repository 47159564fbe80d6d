// Sparse arrays from dense tensors, and back.
//
// From a tensor: the elements are walked twice, so that index tensors and values are made in their size. To a
// tensor: background first, elements over it. They are not told to be too few to cover it: repeated
// positions would leave places that nothing was written to.
#include "sparse_background.h"

#include "../tensor/scratch.h"
#include "../tensor/tensor.h"

#include <string.h>

namespace torvane {

namespace {

template <class Element> const Element *elementsOf(const MTensor *tensor) {
  return static_cast<const Element *>(tensor->data);
}

// run(isBackground). 0, the usual background, takes nothing but zeros, and a loop that knows it calls
// nothing.
template <class Element, class Run> auto withBackground(Element background, Run run) {
  constexpr Element kZero = {};
  if (memcmp(&background, &kZero, sizeof kZero) == 0)
    return run([](Element x) { return equalsBackground(x, Element{}); });
  return run([background](Element x) { return equalsBackground(x, background); });
}

template <class Element> mint countElements(const MTensor *tensor, Element background) {
  const Element *elements = elementsOf<Element>(tensor);
  return withBackground(background, [&](auto isBackground) {
    return tensor->elementCount -
           static_cast<mint>(std::count_if(elements, elements + tensor->elementCount, isBackground));
  });
}

// Row-major index within a row, from 0, as 1-based coordinates.
void toCoordinates(mint index, const mint *extents, mint rank, mint *coordinates) {
  for (mint k = rank - 1; k >= 0; --k) {
    coordinates[k] = index % extents[k] + 1;
    index /= extents[k];
  }
}

// The dimensions after the first; the only one of a vector, which is one row.
const mint *extentsInRow(const MSparseArray *array) {
  return array->property->dimensions + (sparseRank(array) == 1 ? 0 : 1);
}

// Every element is stored, and the next one over it unless it counts: which of them count is not to be
// foreseen. Nothing is stored behind the last that does.
template <class Element, class IsBackground>
void fillFrom(MSparseArray *array, const MTensor *tensor, IsBackground isBackground) {
  const mint rows = sparseRowCount(array), length = rows == 0 ? 0 : tensor->elementCount / rows;
  const mint rank = coordinatesOfALine(sparseRank(array)), *extents = extentsInRow(array);
  const mint count = array->elementCount;
  auto *values = static_cast<Element *>(array->skeleton->values->data);
  const Element *element = elementsOf<Element>(tensor);
  mint found = 0;
  for (mint row = 1; row <= rows; ++row, element += length) {
    for (mint i = 0; i < length && found < count; ++i) {
      mint *line = array->columnIndexData + ptrdiff_t{found} * rank;
      values[found] = element[i];
      *line = i + 1;
      const bool counts = !isBackground(element[i]);
      if (rank > 1 && counts) toCoordinates(i, extents, rank, line);
      found += counts;
    }
    array->rowPointerData[row] = found;
  }
}

bool areArguments(const MTensor *tensor, const MTensor *background) {
  return tensor != nullptr && tensor->rank > 0 && tensor->type >= TORVANE_TYPE_INTEGER &&
         tensor->type <= TORVANE_TYPE_COMPLEX &&
         (background == nullptr || (background->rank == 0 && background->type == tensor->type));
}

template <class Element> MSparseArray *build(const MTensor *tensor, const MTensor *background) {
  const Element value = background == nullptr ? Element{} : scalarOf<Element>(background);
  const mint count = countElements(tensor, value);
  MSparseArray *array = newSparseArray(tensor->rank, tensor->dimensions, count, kReport);
  if (array == nullptr) return nullptr;
  if (background != nullptr) setBackgroundValue(array, background);
  if (!allocateValues(array, tensor->type, kReport)) {
    MSparseArray_delete(array);
    return nullptr;
  }
  withBackground(value, [&](auto isBackground) { fillFrom<Element>(array, tensor, isBackground); });
  return array;
}

// Where a line of a row stands in the row.
ptrdiff_t offsetInRow(const mint *line, const mint *extents, mint rank) {
  ptrdiff_t offset = 0;
  for (mint k = 0; k < rank; ++k) offset = offset * extents[k] + line[k] - 1;
  return offset;
}

template <class Element, class OffsetOf>
void writeRows(const MSparseArray *array, Element *target, ptrdiff_t length, OffsetOf offsetOf) {
  const auto *values = static_cast<const Element *>(array->skeleton->values->data);
  const mint rows = sparseRowCount(array), *ends = array->rowPointerData + 1;
  for (mint row = 0, entry = 0; row < rows; ++row, target += length)
    for (; entry < ends[row]; ++entry) target[offsetOf(entry)] = values[entry];
}

template <class Element> void writeElements(const MSparseArray *array, MTensor *tensor) {
  auto *target = static_cast<Element *>(tensor->data);
  const mint *lines = array->columnIndexData, *extents = extentsInRow(array);
  const mint rank = coordinatesOfALine(sparseRank(array));
  const ptrdiff_t length = tensor->elementCount / sparseRowCount(array);
  if (rank == 1)
    writeRows(array, target, length, [=](mint entry) { return ptrdiff_t{lines[entry]} - 1; });
  else
    writeRows(array, target, length,
              [=](mint entry) { return offsetInRow(lines + ptrdiff_t{entry} * rank, extents, rank); });
}

// The system's own routine, which is for bytes, has the widest stores.
template <class Element> void fill(MTensor *tensor, Element value) {
  constexpr Element kZero = {};
  const auto count = static_cast<size_t>(tensor->elementCount);
  if (memcmp(&value, &kZero, sizeof kZero) == 0 && count > 0)
    memset(tensor->data, 0, count * sizeof(Element));
  else
    std::fill_n(static_cast<Element *>(tensor->data), count, value);
}

template <class Element> void expand(const MSparseArray *array, MTensor *tensor) {
  fill(tensor, scalarOf<Element>(array->skeleton->background));
  if (sparseRank(array) > 0 && array->elementCount > 0) writeElements<Element>(array, tensor);
}

} // namespace

mint MSparseArray_fromTensor(const MTensor *tensor, const MTensor *background, MSparseArray **result) {
  if (result == nullptr || !areArguments(tensor, background)) return kSparseFault;
  MSparseArray *array =
      withElement(tensor->type, [&](auto element) { return build<decltype(element)>(tensor, background); });
  if (array == nullptr) return kSparseFault;
  MSparseArray_delete(*result);
  *result = array;
  return kSuccess;
}

mint MSparseArray_toTensor(const MSparseArray *array, MTensor **result) {
  const TensorProperty *property = array->property;
  if (property->type == TORVANE_TYPE_PATTERN) return kWrongType;
  const mint status =
      MTensor_allocateCommon(result, property->type, property->rank, property->dimensions, kReport);
  if (status == kSuccess)
    withElement(property->type, [&](auto element) { expand<decltype(element)>(array, *result); });
  return status;
}

} // namespace torvane

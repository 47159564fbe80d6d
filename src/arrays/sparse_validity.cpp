// The walker over one sparse array.
#include "sparse_array.h"

#include "../tensor/tensor.h"

namespace torvane {

namespace {

bool isIntegers(const MTensor *tensor, std::initializer_list<mint> extents) {
  return tensor != nullptr && isValidTensor(tensor) && tensor->type == TORVANE_TYPE_INTEGER &&
         std::equal(extents.begin(), extents.end(), tensor->dimensions, tensor->dimensions + tensor->rank);
}

bool hasRows(const MSparseArray *array) {
  const mint rows = sparseRowCount(array), *pointers = array->rowPointerData;
  return isIntegers(array->skeleton->rowPointers, {rows + 1}) &&
         pointers == array->skeleton->rowPointers->data && pointers[0] == 0 &&
         std::is_sorted(pointers, pointers + rows + 1) && pointers[rows] == array->elementCount;
}

bool hasColumns(const MSparseArray *array) {
  const MTensor *columns = array->skeleton->columnIndices;
  if (array->elementCount == 0) return columns == nullptr && array->columnIndexData == nullptr;
  const mint rank = sparseRank(array), length = coordinatesOfALine(rank);
  if (!isIntegers(columns, {array->elementCount, length}) || columns->data != array->columnIndexData)
    return false;
  const mint *extents = array->property->dimensions + (rank == 1 ? 0 : 1);
  for (ptrdiff_t i = 0; i < ptrdiff_t{array->elementCount} * length; ++i)
    if (array->columnIndexData[i] < 1 || array->columnIndexData[i] > extents[i % length]) return false;
  return true;
}

// Without elements there may be no values in any type.
bool hasValues(const MSparseArray *array) {
  const MTensor *values = array->skeleton->values;
  const mint type = array->property->type;
  if (values == nullptr) return type == TORVANE_TYPE_PATTERN || array->elementCount == 0;
  return isValidTensor(values) && values->type == type && values->rank == 1 &&
         values->elementCount == array->elementCount;
}

bool hasBackground(const MSparseArray *array) {
  const MTensor *background = array->skeleton->background;
  const mint type = array->property->type;
  return background != nullptr && isValidTensor(background) && background->rank == 0 &&
         background->type == (type == TORVANE_TYPE_PATTERN ? mint{TORVANE_TYPE_INTEGER} : type);
}

} // namespace

bool isValidSparseArray(const MSparseArray *array) {
  return array->state == 0 && (sparseRank(array) < 1 || (hasRows(array) && hasColumns(array))) &&
         hasValues(array) && hasBackground(array);
}

} // namespace torvane

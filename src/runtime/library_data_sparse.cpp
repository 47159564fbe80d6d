// The table of sparse arrays of the record. Null arrays answer 0.
#include "../arrays/sparse_array.h"
#include "library_data_tables.h"

namespace torvane {

namespace {

mint rankOf(const MSparseArray *array) { return array != nullptr ? array->property->rank : 0; }
mint *dimensionsOf(const MSparseArray *array) {
  return array != nullptr ? array->property->dimensions : nullptr;
}
mint elementCountOf(const MSparseArray *array) { return array != nullptr ? array->elementCount : 0; }
mint *rowPointersOf(const MSparseArray *array) { return array != nullptr ? array->rowPointerData : nullptr; }
mint *columnIndicesOf(const MSparseArray *array) {
  return array != nullptr ? array->columnIndexData : nullptr;
}
mint typeOf(const MSparseArray *array) { return array != nullptr ? array->property->type : 0; }
MTensor *valuesOf(const MSparseArray *array) { return array != nullptr ? array->skeleton->values : nullptr; }
MTensor *backgroundOf(const MSparseArray *array) {
  return array != nullptr ? array->skeleton->background : nullptr;
}
MSparseArray *copyOf(const MSparseArray *array) {
  return array != nullptr ? MSparseArray_copy(array) : nullptr;
}

} // namespace

constexpr TorvaneSparseTable kSparseTable = {
    .fromPositions = MSparseArray_fromPositions,
    .deleteArray = MSparseArray_delete,
    .rank = rankOf,
    .dimensions = dimensionsOf,
    .elementCount = elementCountOf,
    .rowPointers = rowPointersOf,
    .columnIndices = columnIndicesOf,
    .type = typeOf,
    .values = valuesOf,
    .background = backgroundOf,
    .properties = MSparseArray_getProperties,
    .copy = copyOf,
    .copyInto = MSparseArray_copyHandle,
    .setBackground = MSparseArray_setBackground,
    .toTensor = MSparseArray_toTensor,
    .fromTensor = MSparseArray_fromTensor,
};

} // namespace torvane

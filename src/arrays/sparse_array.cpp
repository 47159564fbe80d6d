// Sparse arrays from their making to their end: record, skeleton, index tensors, values and background.
//
// The background is allocated as a complex number and relabelled from then on: its storage is wide enough for
// every type, so that a change of type allocates nothing.
#include "sparse_array.h"

#include "../runtime/memory.h"
#include "../runtime/startup.h"
#include "../tensor/tensor.h"
#include "tensor_property.h"

#include <atomic>
#include <string.h>

namespace torvane {

namespace {

constinit std::atomic<mreal> defaultTolerance{0};

// Another type for the bytes that are there.
void relabel(MTensor *background, mint type) { MTensor_setType(background, type); }

void coerce(MTensor *background, mint type) {
  mcomplex held, coerced = {0, 0};
  memcpy(&held, background->data, sizeof held);
  GenericData_copySomeCoerce(&coerced, type, 0, 1, &held, background->type, 0, 1, 1);
  memcpy(background->data, &coerced, sizeof coerced);
  relabel(background, type);
}

MTensor *newBackground(mint errorMode) {
  MTensor *background = MTensor_newAllocatedCommon(TORVANE_TYPE_COMPLEX, 0, nullptr, errorMode);
  if (background == nullptr) return nullptr;
  memset(background->data, 0, sizeof(mcomplex));
  relabel(background, TORVANE_TYPE_INTEGER);
  return background;
}

void deleteSkeleton(SparseArraySkeleton *skeleton) {
  for (MTensor *tensor :
       {skeleton->rowPointers, skeleton->columnIndices, skeleton->values, skeleton->background})
    MTensor_delete(tensor);
  torvane::free(skeleton);
}

SparseArraySkeleton *newSkeleton(mint errorMode) {
  auto *skeleton = static_cast<SparseArraySkeleton *>(allocate(sizeof(SparseArraySkeleton), 0, errorMode));
  if (skeleton == nullptr) return nullptr;
  *skeleton = {};
  skeleton->background = newBackground(errorMode);
  if (skeleton->background != nullptr) return skeleton;
  deleteSkeleton(skeleton);
  return nullptr;
}

// Room for two extents at least: what looks at rank 1 as at one row stores both. They are 0, so that an array
// whose extents nobody has stored can be copied.
TensorProperty *newProperty(mint rank, mint errorMode) {
  TensorProperty *property = newTensorProperty(std::max(rank, 2), errorMode);
  if (property == nullptr) return nullptr;
  std::fill_n(property->dimensions, std::max(rank, 2), 0);
  property->rank = rank;
  property->type = TORVANE_TYPE_PATTERN;
  return property;
}

MSparseArray *newEmpty(mint rank, mint errorMode) {
  auto *array = static_cast<MSparseArray *>(allocate(sizeof(MSparseArray), 0, errorMode));
  if (array == nullptr) return nullptr;
  *array = {};
  array->skeleton = newSkeleton(errorMode);
  if (array->skeleton != nullptr) array->property = newProperty(rank, errorMode);
  if (array->property != nullptr) return array;
  MSparseArray_delete(array);
  return nullptr;
}

bool hasNegative(mint rank, const mint *dimensions) {
  return std::any_of(dimensions, dimensions + std::max(rank, 0), [](mint extent) { return extent < 0; });
}

bool allocateRowPointers(MSparseArray *array, MTensor **slot, mint errorMode) {
  mint length;
  if (__builtin_add_overflow(sparseRowCount(array), 1, &length)) return sizeOverflow(errorMode) == kSuccess;
  if (length < 1 || MTensor_allocateCommon(slot, TORVANE_TYPE_INTEGER, 1, &length, errorMode) != kSuccess)
    return false;
  MTensor_initialize(*slot, 0);
  array->rowPointerData = static_cast<mint *>((*slot)->data);
  array->rowPointerData[length - 1] = array->elementCount;
  return true;
}

bool allocateColumns(MSparseArray *array, MTensor **slot, mint errorMode) {
  array->columnIndexData = nullptr;
  if (array->elementCount == 0) {
    MTensor_delete(*slot);
    *slot = nullptr;
    return true;
  }
  const mint extents[] = {array->elementCount, coordinatesOfALine(sparseRank(array))};
  if (MTensor_allocateCommon(slot, TORVANE_TYPE_INTEGER, 2, extents, errorMode) != kSuccess) return false;
  array->columnIndexData = static_cast<mint *>((*slot)->data);
  return true;
}

bool allocateIndices(MSparseArray *array, MTensor **rowPointers, MTensor **columnIndices, mint errorMode) {
  return sparseRank(array) < 1 || (allocateRowPointers(array, rowPointers, errorMode) &&
                                   allocateColumns(array, columnIndices, errorMode));
}

bool hasValues(mint type) { return type >= TORVANE_TYPE_INTEGER && type <= TORVANE_TYPE_COMPLEX; }

uint32_t bytesOfTensor(const MTensor *tensor) { return tensor == nullptr ? 0 : MTensor_getByteCount(tensor); }

uint32_t bytesOfSkeleton(const SparseArraySkeleton *skeleton) {
  return bytesOfTensor(skeleton->rowPointers) + bytesOfTensor(skeleton->columnIndices) +
         bytesOfTensor(skeleton->values) + bytesOfTensor(skeleton->background);
}

bool copyTensor(MTensor *target, const MTensor *source) {
  return source == nullptr || MTensor_copyUniqueCommon(target, source, kReport) == kSuccess;
}

// An empty array is copied without values, also where it has some.
bool copyElements(MSparseArray *copy, const MSparseArray *array) {
  const mint type = array->property->type;
  if (sparseRank(array) > 0 && !copyTensor(copy->skeleton->rowPointers, array->skeleton->rowPointers))
    return false;
  if (array->elementCount == 0) return true;
  if (sparseRank(array) > 0 && !copyTensor(copy->skeleton->columnIndices, array->skeleton->columnIndices))
    return false;
  return type == TORVANE_TYPE_PATTERN ||
         (allocateValues(copy, type, kReport) && copyTensor(copy->skeleton->values, array->skeleton->values));
}

template <class Value> void hand(Value *to, Value value) {
  if (to != nullptr) *to = value;
}

} // namespace

void initializeSparseArrays(mint stage) {
  if (stage == 0) defaultTolerance.store(0.01, std::memory_order_relaxed);
}

mreal sparseDefaultTolerance() { return defaultTolerance.load(std::memory_order_relaxed); }

MSparseArray *newSparseArray(mint rank, const mint *dimensions, mint elementCount, mint errorMode) {
  if (hasNegative(rank, dimensions)) return nullptr;
  MSparseArray *array = newEmpty(rank, errorMode);
  if (array == nullptr) return nullptr;
  std::copy_n(dimensions, std::max(rank, 0), array->property->dimensions);
  array->elementCount = elementCount;
  SparseArraySkeleton *skeleton = array->skeleton;
  if (allocateIndices(array, &skeleton->rowPointers, &skeleton->columnIndices, errorMode)) return array;
  MSparseArray_delete(array);
  return nullptr;
}

bool allocateValues(MSparseArray *array, mint type, mint errorMode) {
  MTensor **values = &array->skeleton->values;
  MTensor_delete(*values);
  *values = nullptr;
  array->property->type = type;
  coerce(array->skeleton->background, type == TORVANE_TYPE_PATTERN ? mint{TORVANE_TYPE_INTEGER} : type);
  return type == TORVANE_TYPE_PATTERN ||
         MTensor_allocateCommon(values, type, 1, &array->elementCount, errorMode) == kSuccess;
}

void setBackgroundValue(MSparseArray *array, const MTensor *background) {
  MTensor *own = array->skeleton->background;
  relabel(own, background->type);
  GenericData_copySomeCoerce(own->data, own->type, 0, 1, background->data, background->type, 0, 1, 1);
}

void MSparseArray_getProperties(MSparseArray *array, mint *rank, mint **dimensions, mint *elementCount,
                                mint **rowPointers, mint **columnIndices, mint *type, MTensor **values,
                                MTensor **background) {
  hand(rank, array->property->rank);
  hand(dimensions, array->property->dimensions);
  hand(elementCount, array->elementCount);
  hand(rowPointers, array->rowPointerData);
  hand(columnIndices, array->columnIndexData);
  hand(type, array->property->type);
  hand(values, array->skeleton->values);
  hand(background, array->skeleton->background);
}

// The flags go along, though the copy's skeleton is its own: callers rely on it that the count of bytes of a
// copy is reckoned as the original's.
MSparseArray *MSparseArray_copy(const MSparseArray *array) {
  const TensorProperty *property = array->property;
  MSparseArray *copy = newSparseArray(property->rank, property->dimensions, array->elementCount, kReport);
  if (copy == nullptr) return nullptr;
  if (!copyElements(copy, array)) {
    MSparseArray_delete(copy);
    return nullptr;
  }
  TensorProperty_copyValues(copy->property, property);
  copy->property->flags = 0;
  copy->flags = array->flags;
  copy->reserved = array->reserved;
  setBackgroundValue(copy, array->skeleton->background);
  return copy;
}

mint MSparseArray_copyHandle(const MSparseArray *source, MSparseArray **result) {
  if (source == nullptr || result == nullptr) return kSparseFault;
  if (*result == source) return kSuccess;
  MSparseArray_delete(*result);
  *result = MSparseArray_copy(source);
  return *result != nullptr ? kSuccess : kSparseFault;
}

} // namespace torvane

using namespace torvane;

MSparseArray *MSparseArray_new(mint rank) { return newEmpty(rank, kFatal); }

// Memory of its own errors is fatal in this mode; what comes back null is an extent that nothing can hold.
MSparseArray *MSparseArray_newAllocated(mint rank, const mint *dimensions, mint elementCount) {
  MSparseArray *array = newSparseArray(rank, dimensions, elementCount, kFatal);
  if (array == nullptr) fatalOutOfMemory();
  return array;
}

void SparseArraySkeleton_allocIndexMTensors(MSparseArray *array, MTensor **rowPointersSlot,
                                            MTensor **columnIndicesSlot) {
  if (!allocateIndices(array, rowPointersSlot, columnIndicesSlot, kFatal)) fatalOutOfMemory();
}

MTensor *MSparseArray_allocValues(MSparseArray *array, mint type) {
  if (type != TORVANE_TYPE_PATTERN && !hasValues(type)) return nullptr;
  allocateValues(array, type, kFatal);
  return array->skeleton->values;
}

uint32_t MSparseArray_byteCount(const MSparseArray *array) {
  if (array == nullptr) return 0;
  const uint32_t extents = static_cast<uint32_t>(sparseRank(array)) * uint32_t{sizeof(mint)};
  const uint32_t own = allocatedBytesFor(sizeof(MSparseArray)) + allocatedBytesFor(sizeof(TensorProperty)) +
                       allocatedBytesFor(extents);
  return (array->flags & TORVANE_SPARSE_BORROWED) != 0 ? own : own + bytesOfSkeleton(array->skeleton);
}

// Also of one that was given up half made.
void MSparseArray_delete(MSparseArray *array) {
  if (array == nullptr || (array->skeleton != nullptr && array->skeleton->shared != 0)) return;
  if (array->skeleton != nullptr) deleteSkeleton(array->skeleton);
  if (array->property != nullptr) TensorProperty_delete(array->property);
  torvane::free(array);
}

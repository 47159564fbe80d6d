// Numeric arrays from their making to their end, and copies of elements that stay what they are. Every
// failure to allocate yields null or a status: nothing here ends the process.
#include "numeric_array.h"

#include "../runtime/element_types.h"
#include "../runtime/memory.h"
#include "../tensor/tensor.h"

#include <algorithm>
#include <string.h>

namespace torvane {

namespace {

uint32_t widthOf(const MNumericArray *array) { return kElementWidths[array->elementType]; }

// What the allocator is told of a payload's alignment: 16 bytes for reals and complexes.
mint alignFlagOfElements(mint elementType) { return elementType >= TORVANE_ELEMENT_REAL32; }

mint typeOfElements(mint elementType) {
  switch (elementType) {
  case TORVANE_ELEMENT_INTEGER32:
    return TORVANE_TYPE_INTEGER;
  case TORVANE_ELEMENT_REAL64:
    return TORVANE_TYPE_REAL;
  case TORVANE_ELEMENT_COMPLEX_REAL64:
    return TORVANE_TYPE_COMPLEX;
  default:
    return TORVANE_TYPE_NONE;
  }
}

mreal boundOfType(mint type) { return type < TORVANE_TYPE_REAL ? kIntegerBound : 0.0; }

// {3, 0} is an array without elements, {0, 3} is none at all.
bool hasExtents(mint rank, const mint *dimensions) {
  for (mint i = 0; i < rank; ++i)
    if (dimensions[i] < 0 || (dimensions[i] == 0 && i + 1 < rank)) return false;
  return true;
}

MNumericArray *newRecord(mint elementType, mint rank, mint *dimensions, mint count) {
  auto *array = static_cast<MNumericArray *>(allocate(sizeof(MNumericArray), 0, kReport));
  if (array == nullptr) return nullptr;
  const mint type = typeOfElements(elementType);
  *array = {boundOfType(type), dimensions, rank, type, 0, elementType, count, nullptr, 1};
  return array;
}

mint *copiedExtents(mint rank, const mint *dimensions) {
  const uint32_t bytes = checkedByteCount(sizeof(mint), rank);
  auto *block = bytes == kByteOverflow ? nullptr : static_cast<mint *>(allocate(bytes, 0, kReport));
  if (block != nullptr) memcpy(block, dimensions, bytes);
  return block;
}

// Over a block of extents that becomes the array's; still the caller's where null comes back.
MNumericArray *newAdopting(mint elementType, mint rank, mint *dimensions) {
  if (!isElementType(elementType) || rank < 1) return nullptr;
  const mint count = NumberOfElements_common(rank, dimensions, kReport);
  if (count == kCountOverflow || checkedByteCount(kElementWidths[elementType], count) == kByteOverflow)
    return nullptr;
  return newRecord(elementType, rank, dimensions, count);
}

// Whether the extents still are those of the elements.
bool tellCount(const MNumericArray *array) {
  return NumberOfElements_common(array->rank, array->dimensions, kReport) == array->elementCount;
}

bool isAligned(const void *data, mint elementType) {
  const uintptr_t mask = alignFlagOfElements(elementType) != 0 ? 15 : 7;
  return (reinterpret_cast<uintptr_t>(data) & mask) == 0;
}

// The allocator decides what a request for alignment is worth; a block that it leaves in place is good
// enough.
void *alignedPayload(void *data, uint32_t bytes, mint elementType) {
  if (data == nullptr) return allocate(bytes, alignFlagOfElements(elementType), kReport);
  return isAligned(data, elementType) ? data
                                      : reallocate(data, bytes, alignFlagOfElements(elementType), kReport);
}

bool takePayload(MNumericArray *array, void *data) {
  const uint32_t bytes = MNumericArray_byteCount(array);
  if (bytes == 0) {
    torvane::free(data);
    return true;
  }
  array->data = alignedPayload(data, bytes, array->elementType);
  return array->data != nullptr;
}

void *elementAt(const MNumericArray *array, ptrdiff_t index) {
  return static_cast<char *>(array->data) + index * static_cast<ptrdiff_t>(widthOf(array));
}

template <size_t width>
void copySteps(char *to, ptrdiff_t toStep, const char *from, ptrdiff_t fromStep, mint count) {
  for (mint i = 0; i < count; ++i)
    memcpy(to + i * toStep * ptrdiff_t{width}, from + i * fromStep * ptrdiff_t{width}, width);
}

} // namespace

MNumericArray *MNumericArray_newShaped(mint elementType, mint rank, const mint *dimensions) {
  if (rank < 1 || !hasExtents(rank, dimensions)) return nullptr;
  mint *block = copiedExtents(rank, dimensions);
  if (block == nullptr) return nullptr;
  MNumericArray *array = newAdopting(elementType, rank, block);
  if (array == nullptr) torvane::free(block);
  return array;
}

MNumericArray *MNumericArray_newWithData(mint elementType, mint rank, const mint *dimensions, void *data,
                                         mint copyDimensions) {
  const bool isCopied = copyDimensions != 0;
  MNumericArray *array = isCopied ? MNumericArray_newShaped(elementType, rank, dimensions)
                                  : newAdopting(elementType, rank, const_cast<mint *>(dimensions));
  if (array == nullptr || takePayload(array, data)) return array;
  if (!isCopied) array->dimensions = nullptr; // the caller's again
  MNumericArray_delete(array);
  return nullptr;
}

// The block of extents is adopted, because the other array may have been made over extents that are not
// looked at one by one, such as {0, 5}.
MNumericArray *MNumericArray_newLike(mint elementType, const MNumericArray *other) {
  if (other->rank < 1 || !tellCount(other)) return nullptr;
  mint *block = copiedExtents(other->rank, other->dimensions);
  if (block == nullptr) return nullptr;
  MNumericArray *array = MNumericArray_newWithData(elementType, other->rank, block, nullptr, 0);
  if (array == nullptr) torvane::free(block);
  return array;
}

MNumericArray *MNumericArray_clone(const MNumericArray *array) {
  MNumericArray *copy = MNumericArray_newLike(array->elementType, array);
  if (copy != nullptr) MNumericArray_copyElements(copy, 0, array, 0, array->elementCount);
  return copy;
}

void MNumericArray_delete(MNumericArray *array) {
  if (array == nullptr) return;
  torvane::free(array->data);
  torvane::free(array->dimensions);
  torvane::free(array);
}

uint32_t MNumericArray_byteCount(const MNumericArray *array) {
  return widthOf(array) * static_cast<uint32_t>(array->elementCount);
}

uint32_t MNumericArray_totalByteCount(const MNumericArray *array) {
  return MNumericArray_byteCount(array) + uint32_t{sizeof(MNumericArray)};
}

void MNumericArray_copyElements(MNumericArray *target, mint targetStart, const MNumericArray *source,
                                mint sourceStart, mint count) {
  if (count > 0)
    memmove(elementAt(target, targetStart), elementAt(source, sourceStart),
            static_cast<size_t>(count) * widthOf(source));
}

void MNumericArray_copyStrided(MNumericArray *target, mint targetStart, mint targetStep,
                               const MNumericArray *source, mint sourceStart, mint sourceStep, mint count) {
  if (count < 1) return;
  if (targetStep == 1 && sourceStep == 1)
    return MNumericArray_copyElements(target, targetStart, source, sourceStart, count);
  auto *to = static_cast<char *>(elementAt(target, targetStart));
  const auto *from = static_cast<const char *>(elementAt(source, sourceStart));
  switch (widthOf(source)) {
  case 1:
    return copySteps<1>(to, targetStep, from, sourceStep, count);
  case 2:
    return copySteps<2>(to, targetStep, from, sourceStep, count);
  case 4:
    return copySteps<4>(to, targetStep, from, sourceStep, count);
  case 8:
    return copySteps<8>(to, targetStep, from, sourceStep, count);
  default:
    return copySteps<16>(to, targetStep, from, sourceStep, count);
  }
}

mint MNumericArray_resetDimensions(MNumericArray *array, mint rank, const mint *dimensions) {
  if (rank < 0) return kNegativeRank;
  if (rank == 0) {
    torvane::free(array->dimensions);
    array->dimensions = nullptr;
    array->elementCount = 1;
  }
  if (rank > array->rank) {
    const uint32_t bytes = checkedByteCount(sizeof(mint), rank);
    void *block = bytes == kByteOverflow ? nullptr : reallocate(array->dimensions, bytes, 0, kReport);
    if (block == nullptr) return kSizeFailed;
    if (dimensions == array->dimensions) dimensions = static_cast<mint *>(block);
    array->dimensions = static_cast<mint *>(block);
  }
  for (mint i = 0; i < rank; ++i) array->dimensions[i] = dimensions[i];
  array->rank = rank;
  return kSuccess;
}

} // namespace torvane

using namespace torvane;

MNumericArray *Runtime_CreateNumericArray(mint elementType, mint rank, const mint *dimensions) {
  return MNumericArray_newWithData(elementType, rank, dimensions, nullptr, 1);
}

MNumericArray *mnumericarray_null() { return nullptr; }

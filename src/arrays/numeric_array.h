// Operations on the record of a numeric array that are not exported, and the statuses of the room.
//
// Invariant: elementCount is the product of the extents, type and numericBound follow from elementType, and
// data is non-null exactly when elementCount is above 0. Data and extents are blocks of their own.
//
// Extents that were reset may break the first of these: whoever walks two arrays side by side compares their
// counts too, and no array is made in the shape of one whose extents do not tell its count.
#pragma once

#include "../runtime/element_types.h"
#include "../runtime/types.h"
#include <torvane/numeric_arrays.h>

namespace torvane {

enum ArrayStatus : mint {
  kNotAnArray = 204, // a tensor that cannot be viewed as an array
  kNullArgument = 1300,
  kBadElementType = 1301,
  kRanksDiffer = 1302,
  kSizesDiffer = 1303,
  kBadMethod = 1304,
  kNoPass = 1305, // a value does not pass, or the destination does not match
};

inline bool isElementType(mint tag) { return tag >= 1 && tag <= kElementTypeCount; }

// A new array, or null for the reasons that Runtime_CreateNumericArray states. The extents are copied and
// checked one by one; without `copyDimensions` the block itself becomes the array's, and only their product
// is checked. Given `data`, a block of the allocator, becomes the array's too, also where it is empty and the
// block freed; null data stands for a new payload. After a failure both blocks are still the caller's.
MNumericArray *MNumericArray_newWithData(mint elementType, mint rank, const mint *dimensions, void *data,
                                         mint copyDimensions);

// The same without payload, also where there are elements: for views, and for those who fill it in.
MNumericArray *MNumericArray_newShaped(mint elementType, mint rank, const mint *dimensions);

// Whether two arrays have the same extents and as many elements. A library's comparison of two ranges would
// be a call for the few bytes of the extents.
inline bool haveOneShape(const MNumericArray *first, const MNumericArray *second) {
  if (first->rank != second->rank || first->elementCount != second->elementCount) return false;
  for (mint i = 0; i < first->rank; ++i)
    if (first->dimensions[i] != second->dimensions[i]) return false;
  return true;
}

// A new array with the extents of another, its elements unset. Null when memory is short, the element type is
// none, the rank is 0, or the extents were reset to another number of elements.
MNumericArray *MNumericArray_newLike(mint elementType, const MNumericArray *other);

// A copy, refCount 1; null as above.
MNumericArray *MNumericArray_clone(const MNumericArray *array);

// Frees record, extents and data, whatever the refCount. Null is ignored.
void MNumericArray_delete(MNumericArray *array);

// Bytes of the elements, and those with the record's.
uint32_t MNumericArray_byteCount(const MNumericArray *array);
uint32_t MNumericArray_totalByteCount(const MNumericArray *array);

// Copy runs of elements between arrays of one element type, bit by bit; starts are 0-based, and starts, steps
// and counts are in elements. Both runs must be in bounds; a count below 1 does nothing. Bulk copies may
// overlap.
void MNumericArray_copyElements(MNumericArray *target, mint targetStart, const MNumericArray *source,
                                mint sourceStart, mint count);
void MNumericArray_copyStrided(MNumericArray *target, mint targetStart, mint targetStep,
                               const MNumericArray *source, mint sourceStart, mint sourceStep, mint count);

// Stores other extents. The payload is neither touched nor checked against them, and elementCount stays, but
// for rank 0 it is 1. Status: 0, or 403 with the shape as it was. `dimensions` may be the array's own.
mint MNumericArray_resetDimensions(MNumericArray *array, mint rank, const mint *dimensions);

// Compiled code reads the fields where they stand: as in a tensor.
#if UINTPTR_MAX > 0xFFFFFFFF
static_assert(offsetof(MNumericArray, rank) == 16 && offsetof(MNumericArray, type) == 20 &&
              offsetof(MNumericArray, flags) == 24);
static_assert(offsetof(MNumericArray, elementType) == 28 && offsetof(MNumericArray, elementCount) == 32);
static_assert(offsetof(MNumericArray, data) == 40 && offsetof(MNumericArray, refCount) == 48 &&
              sizeof(MNumericArray) == 56);
#else
static_assert(offsetof(MNumericArray, rank) == 12 && offsetof(MNumericArray, type) == 16 &&
              offsetof(MNumericArray, flags) == 20);
static_assert(offsetof(MNumericArray, elementType) == 24 && offsetof(MNumericArray, elementCount) == 28);
static_assert(offsetof(MNumericArray, data) == 32 && offsetof(MNumericArray, refCount) == 40 &&
              sizeof(MNumericArray) == 48);
#endif
static_assert(offsetof(MNumericArray, numericBound) == 0 && offsetof(MNumericArray, dimensions) == 8);
static_assert(alignof(MNumericArray) == 8);

} // namespace torvane

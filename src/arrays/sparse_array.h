// Sparse arrays: what is not exported, which a compiled library reaches through its record.
//
// Invariant: rowPointers has a length of rows + 1, begins with 0, does not descend and ends with
// elementCount; row r owns the entries rowPointers[r - 1] ... rowPointers[r] - 1, in any order and repeated
// at will. Every line of columnIndices lies within the dimensions after the first (rank 1: within the only
// one).
//
// The operations that return a status give 0, -1 for a fault of arguments or where memory is short, and
// others as stated; a failing one deletes what it made.
#pragma once

#include "../runtime/types.h"
#include <torvane/sparse_arrays.h>

#include <algorithm>

namespace torvane {

inline constexpr mint kSparseFault = -1;
inline constexpr mreal kBackgroundTolerance = 7.0; // bits by which a real may differ from the background

// What MSparseArray_newAllocated does, by an errorMode. Null where that is not fatal and memory is short, or
// an extent negative.
MSparseArray *newSparseArray(mint rank, const mint *dimensions, mint elementCount, mint errorMode);
// False as above, and the array has no values.
bool allocateValues(MSparseArray *array, mint type, mint errorMode);

inline mint sparseRank(const MSparseArray *array) { return array->property->rank; }
inline mint sparseRowCount(const MSparseArray *array) {
  return sparseRank(array) < 2 ? 1 : array->property->dimensions[0];
}
inline mint coordinatesOfALine(mint rank) { return std::max(rank - 1, 1); }

// The background takes over type and value of a tensor of rank 0.
void setBackgroundValue(MSparseArray *array, const MTensor *background);

// Whether the array holds the invariant above.
bool isValidSparseArray(const MSparseArray *array);

// The fields; pointers that are null are passed over. Everything pointed at stays the array's.
void MSparseArray_getProperties(MSparseArray *array, mint *rank, mint **dimensions, mint *elementCount,
                                mint **rowPointers, mint **columnIndices, mint *type, MTensor **values,
                                MTensor **background);

// A new array; null when memory is short. `flags` and the reserved word are copied, the property's flags are
// 0.
MSparseArray *MSparseArray_copy(const MSparseArray *array);
// The same in place of the array in the slot, if any, which goes also when the copy fails. A slot that
// holds the source stays as it is.
mint MSparseArray_copyHandle(const MSparseArray *source, MSparseArray **result);

// An array of the lines of `positions`, an integer matrix, with `values`, an integer vector, or one of the
// type of `background`; without values a pattern. Lines that repeat stay. Without `dimensions`, an integer
// vector, the extents are the largest coordinates. The array in the slot, if any, is deleted in any case,
// after the arguments were read: they may be its own. A coordinate below 1 or above its extent is a fault.
mint MSparseArray_fromPositions(const MTensor *positions, const MTensor *values, const MTensor *dimensions,
                                const MTensor *background, MSparseArray **result);

// The elements of a tensor of rank 1 or more that do not equal the background, by default 0, in place of the
// array in the slot. On failure the slot stays as it is.
mint MSparseArray_fromTensor(const MTensor *tensor, const MTensor *background, MSparseArray **result);

// All elements into the tensor of the slot, or a new one; of repeated positions the last stands. 1 for a
// pattern; 403 when memory is short.
mint MSparseArray_toTensor(const MSparseArray *array, MTensor **result);

// Without the repetitions of a position, the first of which stays: the array itself where there are none,
// else a new one, with values only where asked for. A pattern that is asked for values it would have to make
// is a fault.
mint MSparseArray_dropDuplicates(MSparseArray *array, mint withValues, MSparseArray **result);

// Without the elements that equal the background: the array itself where there are none, else a new one. Null
// when memory is short.
MSparseArray *MSparseArray_dropBackground(MSparseArray *array);

// The same elements over another background, in place of the array in the slot; with a null or equal
// background the array without elements that equal it. The slot may hold the array itself; where nothing is
// to drop, it holds it afterwards. 1 for a pattern and for a background of another type, 2 for one that has
// extents; 403 when memory is short for the elements.
mint MSparseArray_setBackground(MSparseArray *array, const MTensor *background, MSparseArray **result);

// Kept for hosts, and set at start-up: no operation of this library reads it.
mreal sparseDefaultTolerance();

#if UINTPTR_MAX > 0xFFFFFFFF
static_assert(sizeof(MSparseArray) == 56 && sizeof(SparseArraySkeleton) == 40);
#else
static_assert(sizeof(MSparseArray) == 32 && sizeof(SparseArraySkeleton) == 20);
#endif

} // namespace torvane

/* Sparse arrays: rectangular arrays of any rank by their elements that differ from a background, in
 * compressed rows.
 *
 * The first dimension is the row; the other coordinates stand where a matrix has the column. An array of rank
 * 1 is one row. Running out of memory ends the process. An array is used by one thread at a time; pointers
 * are not null unless said. docs/sparse_arrays.md tells the whole. */
#ifndef TORVANE_SPARSE_ARRAYS_H
#define TORVANE_SPARSE_ARRAYS_H

#include "tensor.h"

TORVANE_BEGIN_DECLARATIONS

/* The `type` of an array that has positions alone. */
enum { TORVANE_TYPE_PATTERN = 1 };

/* Shape and type of an array that is not dense. */
typedef struct TensorProperty {
  TORVANE_ALIGNED_8 mreal realProperty; /* kept for compiled code; the library never reads it */
  mint *dimensions;                     /* owned; null when made for rank 0 */
  mint rank;
  mint type; /* of the values */
  uint32_t flags;
} TensorProperty;

typedef struct SparseArraySkeleton {
  MTensor *rowPointers;   /* dimension 1 plus 1: entry r counts the elements of the rows before row r + 1 */
  MTensor *columnIndices; /* a line of 1-based coordinates for each element; null when there is none */
  MTensor *values;        /* one for each line; null in a pattern */
  MTensor *background;    /* of rank 0, with storage for any type */
  uint32_t shared;        /* not 0: all of it is somebody else's, and a delete leaves it alone */
} SparseArraySkeleton;

typedef struct MSparseArray {
  uint32_t state; /* 0 */
  SparseArraySkeleton *skeleton;
  mint *rowPointerData;  /* of skeleton->rowPointers */
  mint *columnIndexData; /* of skeleton->columnIndices, or null */
  TensorProperty *property;
  mint elementCount;  /* lines of columnIndices */
  uint32_t flags;     /* TORVANE_SPARSE_BORROWED */
  uintptr_t reserved; /* copied with the array, and else left alone */
} MSparseArray;

/* The skeleton is another array's, and not counted. */
enum { TORVANE_SPARSE_BORROWED = 2 };

/* A new array without elements, a pattern whose extents are all 0, the background integer 0. The caller
 * deletes it. */
TORVANE_API MSparseArray *MSparseArray_new(mint rank);

/* A new pattern of this shape with index tensors for so many elements: the row pointers 0 but the last, which
 * is the count; the coordinates unset. `dimensions` are copied. A negative extent ends the process. Rank 0
 * has no index tensors. */
TORVANE_API MSparseArray *MSparseArray_newAllocated(mint rank, const mint *dimensions, mint elementCount);

/* Gives the array values of this type, unset, in place of those that it had, and the background the same
 * type; returns the values, the array's own. For a pattern there are none, the background becomes an integer,
 * and null is returned. Other types than 1 to 4: null, and nothing happens. */
TORVANE_API MTensor *MSparseArray_allocValues(MSparseArray *array, mint type);

/* Bytes that record, property and, unless it is borrowed, the skeleton's tensors occupy in the allocator. 0
 * for null. Wraps in 32 bits. */
TORVANE_API uint32_t MSparseArray_byteCount(const MSparseArray *array);

/* Frees the array with its skeleton and property. Null is ignored, and an array with a shared skeleton too.
 */
TORVANE_API void MSparseArray_delete(MSparseArray *array);

/* Gives the tensors in the slots, or new ones, the sizes of the array's row pointers and coordinates, with
 * the content that MSparseArray_newAllocated states, and lets the array's cached pointers point at their
 * data. Without elements the second slot is emptied. Rank 0 has none: nothing happens. */
TORVANE_API void SparseArraySkeleton_allocIndexMTensors(MSparseArray *array, MTensor **rowPointersSlot,
                                                        MTensor **columnIndicesSlot);

/* A new record with room for `rank` extents, which are not set; type and flags 0. */
TORVANE_API TensorProperty *TensorProperty_new(mint rank);

/* A new record with the same content. */
TORVANE_API TensorProperty *TensorProperty_copy(const TensorProperty *property);

/* Copies the source's extents, as many as its rank, its type, flags and real property. The target's rank
 * stays; its room for extents must be large enough. The two may share it. */
TORVANE_API void TensorProperty_copyValues(TensorProperty *target, const TensorProperty *source);

/* Frees the record and its extents. Not for null. */
TORVANE_API void TensorProperty_delete(TensorProperty *property);

TORVANE_END_DECLARATIONS

#endif

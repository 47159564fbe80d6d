/* Numeric arrays: dense rectangular arrays of any of twelve element types.
 *
 * The record has the layout of a tensor's, but the element type alone says what the payload holds. An array
 * is used by one thread at a time. docs/numeric_arrays.md says how arrays convert into each other. */
#ifndef TORVANE_NUMERIC_ARRAYS_H
#define TORVANE_NUMERIC_ARRAYS_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

/* The `elementType` of an array, and of a tensor where its type has one. */
enum {
  TORVANE_ELEMENT_INTEGER8 = 1,
  TORVANE_ELEMENT_UNSIGNED_INTEGER8 = 2,
  TORVANE_ELEMENT_INTEGER16 = 3,
  TORVANE_ELEMENT_UNSIGNED_INTEGER16 = 4,
  TORVANE_ELEMENT_INTEGER32 = 5,
  TORVANE_ELEMENT_UNSIGNED_INTEGER32 = 6,
  TORVANE_ELEMENT_INTEGER64 = 7,
  TORVANE_ELEMENT_UNSIGNED_INTEGER64 = 8,
  TORVANE_ELEMENT_REAL32 = 9,
  TORVANE_ELEMENT_REAL64 = 10,
  TORVANE_ELEMENT_COMPLEX_REAL32 = 11,
  TORVANE_ELEMENT_COMPLEX_REAL64 = 12
};

typedef struct MNumericArray {
  TORVANE_ALIGNED_8 mreal numericBound; /* as of a tensor of the same type */
  mint *dimensions;                     /* `rank` extents, owned */
  mint rank;
  mint type; /* 2, 3, 4 for element types 5, 10, 12; 0 for all others */
  uint32_t flags;
  mint elementType;                   /* TORVANE_ELEMENT_... */
  mint elementCount;                  /* product of the extents */
  void *data;                         /* payload, last dimension fastest, owned; null when empty */
  TORVANE_ALIGNED_8 int64_t refCount; /* the caller's own count: nothing is freed at 0 */
} MNumericArray;

/* A new array of this element type and shape, its payload not cleared, refCount 1. Null where the element
 * type is not 1 to 12, the rank below 1, an extent negative, an extent 0 that is not the last, the size out
 * of range, or memory short. `dimensions` are copied. */
TORVANE_API MNumericArray *Runtime_CreateNumericArray(mint elementType, mint rank, const mint *dimensions);

/* Null. */
TORVANE_API MNumericArray *mnumericarray_null(void);

TORVANE_END_DECLARATIONS

#endif

/* The tensor: a dense row-major rectangular array of mint, mreal or mcomplex.
 *
 * Status codes: 0 success, 401 negative rank, 402 negative extent, 403 size overflow or out of memory.
 * `errorMode` says what a failed allocation does: 0 ends the process, 1 returns quietly, 2 returns
 * after the library's report hook. Where a function takes none, running out of memory ends the process
 * unless its comment says otherwise. A tensor is used by one thread at a time; pointers are not null
 * unless said. Extents and payload belong to their tensor. docs/tensors.md tells the whole. */
#ifndef TORVANE_TENSOR_H
#define TORVANE_TENSOR_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

typedef struct MTensor {
  TORVANE_ALIGNED_8 mreal numericBound; /* kept for compiled code; the library never reads it */
  mint *dimensions;                     /* `rank` extents, owned; null for rank 0 */
  mint rank;
  mint type; /* TORVANE_TYPE_... */
  uint32_t flags;
  mint elementType;                   /* tag of the element type: 5, 10 or 12 for types 2, 3, 4 */
  mint elementCount;                  /* product of the extents; 1 for rank 0 */
  void *data;                         /* payload, last dimension fastest, owned; null when empty */
  TORVANE_ALIGNED_8 int64_t refCount; /* the caller's own count: nothing is freed at 0 */
} MTensor;

/* Bits of `flags`. The first two groups follow from the type; the last two refuse deletion. */
enum {
  TORVANE_FLAG_TYPED = 0x83,
  TORVANE_FLAG_COMPLEX = 0x8,
  TORVANE_FLAG_CONSTANT = 0x800000,
  TORVANE_FLAG_ETERNAL = 0x2000000
};

/* Making and deleting. Whoever makes a tensor deletes it. */

/* A new empty tensor: rank 0, type 0, no payload, refCount 1. */
TORVANE_API MTensor *MTensor_new(void);

/* A new tensor of this type and shape, its payload not cleared; null on failure, by errorMode.
 * `dimensions` are copied; they may be null for rank 0. */
TORVANE_API MTensor *MTensor_newAllocatedCommon(mint type, mint rank, const mint *dimensions, mint errorMode);

/* Gives the tensor in the slot this type and shape, as MTensor_allocateMemoryCommon does; an empty slot
 * receives a new tensor first. Status. On failure a tensor made here is deleted and the slot null
 * again; the caller's own stays in the slot. */
TORVANE_API mint MTensor_allocateCommon(MTensor **slot, mint type, mint rank, const mint *dimensions,
                                        mint errorMode);

/* A new tensor of this type and shape, or null on failure (errorMode 2). */
TORVANE_API MTensor *CreatePackedArray(mint type, mint rank, const mint *dimensions);

/* A new tensor over `payload`, a block of this library's allocator that holds the shape's elements. The
 * tensor owns it from now on. A negative extent or an overflowing count ends the process; a negative
 * rank yields null and leaves the payload the caller's. */
TORVANE_API MTensor *MTensor_newUsingDataArray(mint type, mint rank, const mint *dimensions, void *payload);

/* A new tensor with a copy of the elements at `source`. Fails as above, and ends the process when the
 * byte count overflows. An empty shape yields null if an extent before the last is 0, else a tensor
 * without payload. */
TORVANE_API MTensor *MTensor_newCopyFromDataArray(mint type, mint rank, const mint *dimensions,
                                                  const void *source);

/* Frees the tensor, extents and payload, whatever its refCount. Null, constants and the eternal tensor
 * are ignored. FreeMTensor does the same but does not take null. */
TORVANE_API void MTensor_delete(MTensor *tensor);
TORVANE_API void FreeMTensor(MTensor *tensor);

/* Deletes `count` tensors, skipping nulls, and frees the array that holds them, a block of this
 * library's allocator. A null array is ignored. */
TORVANE_API void MTensorArray_delete(mint count, MTensor **tensors);

/* Empties the tensor: no payload, rank 0, type 0, no flags. The record and its refCount stay. A constant
 * is not spared and loses its protection. */
TORVANE_API void MTensor_freeMemory(MTensor *tensor);

/* Add 1 to refCount or take 1 off, and return the value before. Not atomic; nothing is freed at 0. */
TORVANE_API int64_t MTensor_RefCountIncrement(MTensor *tensor);
TORVANE_API int64_t MTensor_RefCountDecrement(MTensor *tensor);

/* Null. */
TORVANE_API MTensor *mtensor_null(void);

/* Shape and payload. */

/* Gives the tensor this type and shape. Status; 401 and 402 come back in every errorMode, and change
 * nothing. The same type and shape again keep payload and content; otherwise the content is raw memory.
 * After a 403 allocate again or delete. `dimensions` may be the tensor's own. */
TORVANE_API mint MTensor_allocateMemoryCommon(MTensor *tensor, mint type, mint rank, const mint *dimensions,
                                              mint errorMode);

/* The same, with type and shape of `like`, which may be the tensor itself. */
TORVANE_API mint MTensor_allocateMemoryLikeCommon(MTensor *tensor, const MTensor *like, mint errorMode);

/* The product of the extents, 1 for rank 0 or below. A negative extent or a product beyond mint, met
 * from left to right, yields 0x7FFFFFFF, or ends the process in errorMode 0. */
TORVANE_API mint NumberOfElements_common(mint rank, const mint *dimensions, mint errorMode);

/* Stores another shape with the present element count (rank 0: 1). The payload is neither touched nor
 * checked against it. `dimensions` may be the tensor's own. */
TORVANE_API void MTensor_resetDimensions(MTensor *tensor, mint rank, const mint *dimensions);

/* Fits the payload to elementCount elements of the tensor's type, content kept up to the smaller size;
 * frees it when there are none. */
TORVANE_API void MTensor_reallocateAndCopyData(MTensor *tensor);

/* Sets every element to `value`; complex ones to value + 0 i. */
TORVANE_API void MTensor_initialize(MTensor *tensor, mint value);

/* Bytes that record, extents and payload occupy in the allocator. Wraps in 32 bits. */
TORVANE_API uint32_t MTensor_getByteCount(const MTensor *tensor);

/* 1 when the extents agree as far as the smaller rank goes, else 0. */
TORVANE_API mint MTensor_compatibleDimensionsQ(const MTensor *a, const MTensor *b);

/* With compatible shapes 1, and stores rank and extents of the tensor of larger rank, `a` on a tie; the
 * extents stored are that tensor's own, not a copy. Else 0, and stores nothing. */
TORVANE_API mint MTensor_maxCompatibleDimensions(const MTensor *a, const MTensor *b, mint *rank,
                                                 mint **dimensions);

/* 1 when type, rank and extents agree, else 0. Elements are not compared. */
TORVANE_API mint MTensor_equivalentQ(const MTensor *a, const MTensor *b);

/* Rank-zero tensors and the eternal tensor. */

/* A new tensor of rank 0 with a copy of the element at `source`; null leaves the element unset. */
TORVANE_API MTensor *LoadNewRankZeroMTensor(const void *source, mint type);

/* The address of one of the calling thread's nine shared rank-0 tensors: type 2 to 4, slot 0 to 2. Copies
 * the element at `source` into it unless null, over what it held. The library's own: not to be
 * deleted, nor used after the thread has ended. */
TORVANE_API MTensor **LoadSharedRankZeroMTensor(const void *source, mint type, mint slot);

/* The process's eternal tensor, empty and ignored by every delete. Null before start-up. */
TORVANE_API MTensor *getEternalMTensor(void);

/* Copies. Whole tensors: type, shape and elements; flags and refCount stay the target's. */

/* Makes `target` a copy. Status; 0 at once when both are one tensor. */
TORVANE_API mint MTensor_copy(MTensor *target, const MTensor *source);
TORVANE_API mint MTensor_copyUniqueCommon(MTensor *target, const MTensor *source, mint errorMode);

/* The same for the tensor in the slot; an empty slot receives a new one, which stays on failure. */
TORVANE_API mint MTensor_makeCopy(MTensor **targetSlot, const MTensor *source);

/* Runs of elements. Starts are 0-based; starts, strides and counts are in elements; strides may be 0 or
 * negative. Shapes are not checked: both runs must be in bounds. A count below 1 does nothing. Where
 * the runs overlap the result is unspecified. */

/* Types must agree; a block copy where both strides are 1. */
TORVANE_API void MTensor_copyContiguousData(MTensor *target, mint targetStart, const MTensor *source,
                                            mint sourceStart, mint count);
TORVANE_API void MTensor_copySomeData(MTensor *target, mint targetStart, mint targetStride,
                                      const MTensor *source, mint sourceStart, mint sourceStride, mint count);

/* Types may differ. To integer: rounded, ties to even; from the first element that no mint holds on, the
 * result is unspecified, and nothing is raised. From complex: the imaginary part is dropped. To
 * complex: imaginary part +0, and a zero of either sign is +0. Other types than 2 to 4: nothing. */
TORVANE_API void MTensor_copySomeDataCoerce(MTensor *target, mint targetStart, mint targetStride,
                                            const MTensor *source, mint sourceStart, mint sourceStride,
                                            mint count);
TORVANE_API void GenericData_copySomeCoerce(void *target, mint targetType, mint targetStart,
                                            mint targetStride, const void *source, mint sourceType,
                                            mint sourceStart, mint sourceStride, mint count);

/* The element at 0-based `index` as a real. A complex one whose imaginary part is not 0, or a tensor of
 * another type, sets *failureFlag to 1 and yields 0; success leaves the flag alone. */
TORVANE_API mreal TensorDataToReal(const MTensor *tensor, mint index, mint *failureFlag);

TORVANE_END_DECLARATIONS

#endif

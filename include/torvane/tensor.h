/* The tensor: a dense row-major rectangular array of mint, mreal or mcomplex.
 *
 * Status codes: 0 success, 401 negative rank, 402 negative extent, 403 size overflow or out of memory.
 * `errorMode` says what a failed allocation does: 0 ends the process, 1 returns quietly, 2 returns
 * after the library's report hook. A tensor is used by one thread at a time. */
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
  mint elementType;  /* tag of the element type: 5, 10 or 12 for types 2, 3, 4 */
  mint elementCount; /* product of the extents; 1 for rank 0 */
  void *data;        /* payload, last dimension fastest, owned; null when empty */
  TORVANE_ALIGNED_8 int64_t refCount; /* the caller's own count: nothing is freed at 0 */
} MTensor;

/* Bits of `flags`. The first two groups follow from the type; the last two refuse deletion. */
enum {
  TORVANE_FLAG_TYPED = 0x83,
  TORVANE_FLAG_COMPLEX = 0x8,
  TORVANE_FLAG_CONSTANT = 0x800000,
  TORVANE_FLAG_ETERNAL = 0x2000000
};

/* Making and deleting. */
TORVANE_API MTensor *MTensor_new(void);
TORVANE_API MTensor *MTensor_newAllocatedCommon(mint type, mint rank, const mint *dimensions, mint errorMode);
TORVANE_API mint MTensor_allocateCommon(MTensor **slot, mint type, mint rank, const mint *dimensions,
                                        mint errorMode);
TORVANE_API MTensor *CreatePackedArray(mint type, mint rank, const mint *dimensions);
TORVANE_API MTensor *MTensor_newUsingDataArray(mint type, mint rank, const mint *dimensions, void *payload);
TORVANE_API MTensor *MTensor_newCopyFromDataArray(mint type, mint rank, const mint *dimensions,
                                                  const void *source);
TORVANE_API void MTensor_delete(MTensor *tensor);
TORVANE_API void FreeMTensor(MTensor *tensor);
TORVANE_API void MTensorArray_delete(mint count, MTensor **tensors);
TORVANE_API void MTensor_freeMemory(MTensor *tensor);
TORVANE_API int64_t MTensor_RefCountIncrement(MTensor *tensor);
TORVANE_API int64_t MTensor_RefCountDecrement(MTensor *tensor);
TORVANE_API MTensor *mtensor_null(void);

/* Shape and payload. */
TORVANE_API mint MTensor_allocateMemoryCommon(MTensor *tensor, mint type, mint rank, const mint *dimensions,
                                              mint errorMode);
TORVANE_API mint MTensor_allocateMemoryLikeCommon(MTensor *tensor, const MTensor *like, mint errorMode);
TORVANE_API mint NumberOfElements_common(mint rank, const mint *dimensions, mint errorMode);
TORVANE_API void MTensor_resetDimensions(MTensor *tensor, mint rank, const mint *dimensions);
TORVANE_API void MTensor_reallocateAndCopyData(MTensor *tensor);
TORVANE_API void MTensor_initialize(MTensor *tensor, mint value);
TORVANE_API uint32_t MTensor_getByteCount(const MTensor *tensor);
TORVANE_API mint MTensor_compatibleDimensionsQ(const MTensor *a, const MTensor *b);
TORVANE_API mint MTensor_maxCompatibleDimensions(const MTensor *a, const MTensor *b, mint *rank,
                                                 mint **dimensions);
TORVANE_API mint MTensor_equivalentQ(const MTensor *a, const MTensor *b);

/* Rank-zero tensors and the eternal tensor. */
TORVANE_API MTensor *LoadNewRankZeroMTensor(const void *source, mint type);
TORVANE_API MTensor **LoadSharedRankZeroMTensor(const void *source, mint type, mint slot);
TORVANE_API MTensor *getEternalMTensor(void);

/* Copies. Starts are 0-based; starts, strides and counts are in elements. */
TORVANE_API mint MTensor_copy(MTensor *target, const MTensor *source);
TORVANE_API mint MTensor_copyUniqueCommon(MTensor *target, const MTensor *source, mint errorMode);
TORVANE_API mint MTensor_makeCopy(MTensor **targetSlot, const MTensor *source);
TORVANE_API void MTensor_copyContiguousData(MTensor *target, mint targetStart, const MTensor *source,
                                            mint sourceStart, mint count);
TORVANE_API void MTensor_copySomeData(MTensor *target, mint targetStart, mint targetStride,
                                      const MTensor *source, mint sourceStart, mint sourceStride, mint count);
TORVANE_API void MTensor_copySomeDataCoerce(MTensor *target, mint targetStart, mint targetStride,
                                            const MTensor *source, mint sourceStart, mint sourceStride,
                                            mint count);
TORVANE_API void GenericData_copySomeCoerce(void *target, mint targetType, mint targetStart, mint targetStride,
                                            const void *source, mint sourceType, mint sourceStart,
                                            mint sourceStride, mint count);
TORVANE_API mreal TensorDataToReal(const MTensor *tensor, mint index, mint *failureFlag);

TORVANE_END_DECLARATIONS

#endif

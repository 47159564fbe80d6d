// Tensor operations that are not exported, and the sizes that they share.
//
// Invariant of an allocated tensor: elementCount is the product of the extents (1 for rank 0), data is
// non-null exactly when elementCount is above 0, and dimensions is null exactly when rank is 0.
#pragma once

#include "../runtime/types.h"
#include <torvane/tensor.h>

namespace torvane {

inline constexpr mreal kIntegerBound = 2147483552.0; // numericBound of untyped and integer tensors
inline constexpr uint32_t kDeletionGuard = TORVANE_FLAG_CONSTANT | TORVANE_FLAG_ETERNAL;
inline constexpr mint kCountOverflow = 0x7FFFFFFF; // what NumberOfElements_common gives on failure

// All ones stands for a byte count that left 32 bits. No true count is that: every width is even.
inline constexpr uint32_t kByteOverflow = 0xFFFFFFFF;

// 0 for every type that has no payload, the numbers outside the table among them.
inline uint32_t elementWidth(mint type) {
  return static_cast<uint32_t>(type) < 7 ? MTensor_typeSizeTable[type] : 0;
}

inline uint32_t checkedByteCount(uint32_t width, mint count) {
  const uint64_t bytes = uint64_t{width} * static_cast<uint32_t>(count);
  return bytes < kByteOverflow ? static_cast<uint32_t>(bytes) : kByteOverflow;
}

// What the allocator is told of a payload's alignment.
inline mint alignFlagOf(mint type) { return type != TORVANE_TYPE_INTEGER; }

// The outcome of a size that no allocation can meet: the fatal path, or the status after the limit hook.
mint sizeOverflow(mint errorMode);

void MTensor_setType(MTensor *tensor, mint type);
void MTensor_applyTypeFlags(mint type, uint32_t *flags, MTensor *tensor);
mint MTensor_setShape(MTensor *tensor, mint rank, const mint *dimensions, mint count, mint errorMode);
mint MTensor_setPayload(MTensor *tensor, mint type, mint rank, mint count, mint errorMode);

// Two tensors change type, shape and elements with each other. The records stay where they are, and with them
// their guard bits and reference counts.
void exchangeContents(MTensor *a, MTensor *b);

mint MTensor_copyAsConstant(MTensor *target, const MTensor *source);

// Whether an allocated tensor holds the invariant above, its blocks are as large as its fields say, and its
// flags, tag and bound are those of its type.
bool isValidTensor(const MTensor *tensor);

// Compiled code reads the fields where they stand.
#if UINTPTR_MAX > 0xFFFFFFFF
static_assert(offsetof(MTensor, rank) == 16 && offsetof(MTensor, type) == 20 &&
              offsetof(MTensor, flags) == 24);
static_assert(offsetof(MTensor, elementType) == 28 && offsetof(MTensor, elementCount) == 32);
static_assert(offsetof(MTensor, data) == 40 && offsetof(MTensor, refCount) == 48 && sizeof(MTensor) == 56);
#else
static_assert(offsetof(MTensor, rank) == 12 && offsetof(MTensor, type) == 16 &&
              offsetof(MTensor, flags) == 20);
static_assert(offsetof(MTensor, elementType) == 24 && offsetof(MTensor, elementCount) == 28);
static_assert(offsetof(MTensor, data) == 32 && offsetof(MTensor, refCount) == 40 && sizeof(MTensor) == 48);
#endif
static_assert(offsetof(MTensor, numericBound) == 0 && offsetof(MTensor, dimensions) == 8);
static_assert(alignof(MTensor) == 8);

} // namespace torvane

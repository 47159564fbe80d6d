// The type of a tensor and what follows from it: tag of the element type, flags, numericBound.
#include "tensor.h"

#include <atomic>

namespace torvane {

namespace {

struct TypeTraits {
  mint elementType;
  uint32_t flags;
  mreal numericBound;
};

// By type 0 to 4. Compiled code reads the flags and the bound; the library sets them and reads neither.
constexpr TypeTraits kTraits[] = {
    {0, 0, kIntegerBound},
    {0, TORVANE_FLAG_TYPED, kIntegerBound},
    {5, TORVANE_FLAG_TYPED, kIntegerBound},
    {10, TORVANE_FLAG_TYPED, 0.0},
    {12, TORVANE_FLAG_TYPED | TORVANE_FLAG_COMPLEX, 0.0},
};

bool hasTraits(mint type) { return static_cast<uint32_t>(type) <= TORVANE_TYPE_COMPLEX; }

} // namespace

void MTensor_applyTypeFlags(mint type, uint32_t *flags, MTensor *tensor) {
  // Relaxed, because the tracker's search for leaks may read the word meanwhile.
  const std::atomic_ref word(*flags);
  const uint32_t bits =
      word.load(std::memory_order_relaxed) & ~uint32_t{TORVANE_FLAG_TYPED | TORVANE_FLAG_COMPLEX};
  word.store(hasTraits(type) ? bits | kTraits[type].flags : bits, std::memory_order_relaxed);
  if (hasTraits(type)) tensor->numericBound = kTraits[type].numericBound; // else that of the last type stays
}

void MTensor_setType(MTensor *tensor, mint type) {
  tensor->type = type;
  tensor->elementType = hasTraits(type) ? kTraits[type].elementType : 0;
  MTensor_applyTypeFlags(type, &tensor->flags, tensor);
}

} // namespace torvane

// The type of a tensor and what follows from it: tag of the element type, flags, numericBound.
#include "tensor.h"

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
  *flags &= ~uint32_t{TORVANE_FLAG_TYPED | TORVANE_FLAG_COMPLEX};
  if (!hasTraits(type)) return; // a type that does not exist keeps the bound of the last one
  *flags |= kTraits[type].flags;
  tensor->numericBound = kTraits[type].numericBound;
}

void MTensor_setType(MTensor *tensor, mint type) {
  tensor->type = type;
  tensor->elementType = hasTraits(type) ? kTraits[type].elementType : 0;
  MTensor_applyTypeFlags(type, &tensor->flags, tensor);
}

} // namespace torvane

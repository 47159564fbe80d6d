// Dot products by name.
#include "../algorithms/handler.h"
#include "dot.h"

#include <torvane/linalg.h>

namespace torvane {

namespace {

template <class T> const T *elementsOf(const MTensor *tensor) { return static_cast<const T *>(tensor->data); }

mint dotVectors(void *result, const MTensor *x, const MTensor *y, mint flags) {
  const mint n = x->elementCount;
  switch (x->type) {
  case TORVANE_TYPE_INTEGER:
    return VectorDot_I(static_cast<mint *>(result), elementsOf<mint>(x), 1, elementsOf<mint>(y), 1, n, flags);
  case TORVANE_TYPE_REAL:
    return VectorDot_R64(static_cast<mreal *>(result), elementsOf<mreal>(x), 1, elementsOf<mreal>(y), 1, n,
                         flags);
  default:
    return VectorDot_CR64(static_cast<mcomplex *>(result), elementsOf<mcomplex>(x), 1,
                          elementsOf<mcomplex>(y), 1, n, flags);
  }
}

} // namespace

// Unequal types are the general routine's to refuse.
mint handleDot(TorvaneLibraryData *, mint, void *const *arguments, void *result) {
  MTensor *a = tensorArgument(arguments, 0), *b = tensorArgument(arguments, 1);
  if (a == nullptr || b == nullptr || !ranksFit(a, b)) return kWrongRank;
  if (!innerExtentsFit(a, b)) return kWrongDimensions;
  const mint status = generalDot(tensorResult(result), a, b, integerArgument(arguments, 2));
  return status == kSuccess ? kSuccess : kValueFailed;
}

mint handleDotVV(TorvaneLibraryData *, mint, void *const *arguments, void *result) {
  const MTensor *x = tensorArgument(arguments, 0), *y = tensorArgument(arguments, 1);
  if (x == nullptr || y == nullptr || x->rank != 1 || y->rank != 1) return kWrongRank;
  if (x->elementCount != y->elementCount) return kWrongDimensions;
  if (x->type != y->type || x->type < TORVANE_TYPE_INTEGER || x->type > TORVANE_TYPE_COMPLEX)
    return kWrongType;
  return dotVectors(result, x, y, integerArgument(arguments, 2)) == 0 ? kSuccess : kValueFailed;
}

} // namespace torvane

#include "clip.h"

#include "../scalar/scalar_types.h"

namespace torvane {

namespace {

template <class T>
void clipElements(void *to, const void *from, const void *boundPair, const void *replacementPair,
                  mint count) {
  const auto *x = static_cast<const T *>(from);
  const T *bounds = static_cast<const T *>(boundPair),
          *replacements = static_cast<const T *>(replacementPair);
  const T low = bounds[0], high = bounds[1], lowered = replacements[0], raised = replacements[1];
  for (mint i = 0; i < count; ++i)
    static_cast<T *>(to)[i] = x[i] < low ? lowered : x[i] > high ? raised : x[i];
}

// By tag less one: complexes have no order.
using Clip = void (*)(void *, const void *, const void *, const void *, mint);
constexpr Clip kClips[] = {clipElements<Integer8>,  clipElements<UnsignedInteger8>,
                           clipElements<Integer16>, clipElements<UnsignedInteger16>,
                           clipElements<Integer32>, clipElements<UnsignedInteger32>,
                           clipElements<Integer64>, clipElements<UnsignedInteger64>,
                           clipElements<Real32>,    clipElements<Real64>};

bool isOrdered(mint elementType) {
  return isElementType(elementType) && elementType < TORVANE_ELEMENT_COMPLEX_REAL32;
}

mint argumentFault(const MNumericArray *source, const MNumericArray *bounds,
                   const MNumericArray *replacements) {
  if (source == nullptr || bounds == nullptr || replacements == nullptr) return kNullArgument;
  const mint elementType = source->elementType;
  if (!isOrdered(elementType) || bounds->elementType != elementType ||
      replacements->elementType != elementType)
    return kBadElementType;
  if (bounds->elementCount != 2 || replacements->elementCount != 2) return kSizesDiffer;
  return kSuccess;
}

mint destinationFault(const MNumericArray *result, const MNumericArray *source) {
  if (result->elementType != source->elementType) return kBadElementType;
  if (result->rank != source->rank) return kRanksDiffer;
  if (!haveOneShape(result, source)) return kSizesDiffer;
  return kSuccess;
}

mint prepareDestination(MNumericArray **result, const MNumericArray *source) {
  if (*result != nullptr) return destinationFault(*result, source);
  *result = MNumericArray_newLike(source->elementType, source);
  return *result == nullptr ? mint{kSizeFailed} : mint{kSuccess};
}

} // namespace

mint MNumericArray_clip(MNumericArray **result, const MNumericArray *source, const MNumericArray *bounds,
                        const MNumericArray *replacements) {
  if (result == nullptr) return kNullArgument;
  mint status = argumentFault(source, bounds, replacements);
  if (status == kSuccess) status = prepareDestination(result, source);
  if (status != kSuccess) return status;
  kClips[source->elementType - 1]((*result)->data, source->data, bounds->data, replacements->data,
                                  source->elementCount);
  return kSuccess;
}

} // namespace torvane

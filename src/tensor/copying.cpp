// Copies without coercion: whole tensors, which shape the target first, and runs of elements, which
// touch payload alone.
#include "run.h"

#include <string.h>

namespace torvane {

namespace {

// Types without a width have no elements to copy.
void copyBlock(mint type, void *target, mint targetStart, const void *source, mint sourceStart, mint count) {
  const uint32_t width = elementWidth(type);
  if (count < 1 || width == 0) return;
  memmove(static_cast<char *>(target) + byteOffset(type, targetStart),
          static_cast<const char *>(source) + byteOffset(type, sourceStart),
          static_cast<size_t>(count) * width);
}

template <class Element>
void copyStrided(void *target, mint targetStart, mint targetStride, const void *source, mint sourceStart,
                 mint sourceStride, mint count) {
  convertRun(static_cast<Element *>(target) + targetStart, targetStride,
             static_cast<const Element *>(source) + sourceStart, sourceStride, count,
             [](Element element) { return element; });
}

mint copyPayload(MTensor *target, const MTensor *source) {
  copyBlock(source->type, target->data, 0, source->data, 0, source->elementCount);
  return kSuccess;
}

} // namespace

void copyRun(mint type, void *target, mint targetStart, mint targetStride, const void *source,
             mint sourceStart, mint sourceStride, mint count) {
  if (targetStride == 1 && sourceStride == 1)
    return copyBlock(type, target, targetStart, source, sourceStart, count);
  if (count < 1) return;
  switch (type) {
  case TORVANE_TYPE_INTEGER:
    return copyStrided<mint>(target, targetStart, targetStride, source, sourceStart, sourceStride, count);
  case TORVANE_TYPE_REAL:
    return copyStrided<mreal>(target, targetStart, targetStride, source, sourceStart, sourceStride, count);
  case TORVANE_TYPE_COMPLEX:
    return copyStrided<mcomplex>(target, targetStart, targetStride, source, sourceStart, sourceStride, count);
  default:
    return;
  }
}

} // namespace torvane

using namespace torvane;

mint MTensor_copyUniqueCommon(MTensor *target, const MTensor *source, mint errorMode) {
  if (target == source) return kSuccess;
  const mint status = MTensor_allocateMemoryLikeCommon(target, source, errorMode);
  return status == kSuccess ? copyPayload(target, source) : status;
}

mint MTensor_copy(MTensor *target, const MTensor *source) {
  return MTensor_copyUniqueCommon(target, source, kFatal);
}

// A tensor made here stays in the slot when the copy fails, unlike MTensor_allocateCommon's.
mint MTensor_makeCopy(MTensor **targetSlot, const MTensor *source) {
  if (*targetSlot == nullptr) *targetSlot = MTensor_new();
  return MTensor_copy(*targetSlot, source);
}

void MTensor_copyContiguousData(MTensor *target, mint targetStart, const MTensor *source, mint sourceStart,
                                mint count) {
  copyBlock(target->type, target->data, targetStart, source->data, sourceStart, count);
}

void MTensor_copySomeData(MTensor *target, mint targetStart, mint targetStride, const MTensor *source,
                          mint sourceStart, mint sourceStride, mint count) {
  copyRun(target->type, target->data, targetStart, targetStride, source->data, sourceStart, sourceStride,
          count);
}

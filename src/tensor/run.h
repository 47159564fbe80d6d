// Runs of elements: `count` of them from a start element on, a stride apart. Strides count elements and
// may be 0 or negative; starts are 0-based. The caller warrants that both runs are in bounds.
#pragma once

#include "tensor.h"

namespace torvane {

inline ptrdiff_t byteOffset(mint type, mint start) {
  return ptrdiff_t{start} * static_cast<ptrdiff_t>(elementWidth(type));
}

// The contiguous case has a loop of its own, which the compiler vectorises.
template <class Target, class Source, class Convert>
void convertRun(Target *target, ptrdiff_t targetStride, const Source *source, ptrdiff_t sourceStride,
                mint count, Convert convert) {
  if (targetStride == 1 && sourceStride == 1) {
    for (ptrdiff_t i = 0; i < count; ++i) target[i] = convert(source[i]);
  } else {
    for (ptrdiff_t i = 0; i < count; ++i) target[i * targetStride] = convert(source[i * sourceStride]);
  }
}

// A run without coercion, between payloads of one type.
void copyRun(mint type, void *target, mint targetStart, mint targetStride, const void *source,
             mint sourceStart, mint sourceStride, mint count);

} // namespace torvane

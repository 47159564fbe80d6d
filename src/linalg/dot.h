// Dot products of vectors, and of tensors over the last and the first dimension.
#pragma once

#include "../tensor/tensor.h"

namespace torvane {

// Longer vectors and larger matrices go to the BLAS: for shorter ones its call would cost more than the sum.
inline constexpr mint kLongestInline = 50;           // elements of a vector
inline constexpr mint kLargestInline = 16;           // extents of a matrix by a vector
inline constexpr mint kLongestSmallExtent = 1024;    // of a product of matrices,
inline constexpr int64_t kLargestSmallVolume = 8000; // and the product of its three extents

// As VectorDot_CR64, and with `conjugated` of the conjugate of x.
mint dotComplexes(mcomplex *result, const mcomplex *x, mint incx, const mcomplex *y, mint incy, mint n,
                  bool conjugated, mint flags);

// A scalar has no dimension to contract, and two vectors have no tensor for a result: they go by DotVV.
inline bool ranksFit(const MTensor *a, const MTensor *b) {
  return a->rank >= 1 && b->rank >= 1 && (a->rank > 1 || b->rank > 1);
}
inline bool innerExtentsFit(const MTensor *a, const MTensor *b) {
  return a->dimensions[a->rank - 1] == b->dimensions[0];
}

// Of tensors whose ranks and inner dimensions fit. The slot may hold an operand, which a failure leaves as it
// was; out of memory ends the process. kWrongType for unequal types, kNotFinite for a failing element.
mint generalDot(MTensor **resultSlot, MTensor *a, MTensor *b, mint flags);

} // namespace torvane

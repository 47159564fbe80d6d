// Dot products of tensors: a product of matrices, whatever the ranks. The leading dimensions of `a` are the
// rows, its last one is the inner dimension, the trailing dimensions of `b` are the columns.
#include "dot.h"

#include "../algorithms/result_tensor.h"
#include "../tensor/scratch.h"
#include "blas.h"
#include "matrix_product.h"

#include <torvane/linalg.h>
#include <torvane/operators.h>

#include <algorithm>
#include <string.h>

namespace torvane {

namespace {

template <class T> struct Product {
  T *result;
  const T *a, *b;
  mint m, k, n;

  bool isSmall() const {
    return std::max({m, k, n}) <= kLongestSmallExtent && int64_t{m} * k * n <= kLargestSmallVolume;
  }
};

// Whether infinities and NaNs count: always where a small product has looked for them on its way, and
// deliberately in every product of two matrices; else where they are asked for.
template <class T> bool multiplyMatrices(const Product<T> &of, bool isTested) {
  if (of.isSmall()) return sequentialProduct(of.result, of.a, of.b, of.m, of.k, of.n);
  blasMatrixMatrix(of.result, of.a, of.b, of.m, of.k, of.n);
  return !isTested || areFinite(of.result, of.m * of.n);
}

template <class T> bool multiplyVector(const Product<T> &of, bool isVectorFirst, bool isTested) {
  const mint length = isVectorFirst ? of.n : of.m;
  if (of.k <= kLargestInline && length <= kLargestInline)
    return sequentialProduct(of.result, of.a, of.b, of.m, of.k, of.n) || !isTested;
  if (isVectorFirst)
    blasVectorMatrix(of.result, of.a, of.b, of.k, of.n);
  else
    blasMatrixVector(of.result, of.a, of.b, of.m, of.k);
  return !isTested || areFinite(of.result, length);
}

// Of rank 1 or 2 the extents themselves: two divisions are a third of the smallest product.
mint rowsOf(const MTensor *a, mint k) { return a->rank == 2 ? a->dimensions[0] : a->elementCount / k; }
mint columnsOf(const MTensor *b, mint k) { return b->rank == 2 ? b->dimensions[1] : b->elementCount / k; }

template <class T>
Product<T> productOf(const MTensor *result, const MTensor *a, const MTensor *b, mint m, mint k, mint n) {
  return {static_cast<T *>(result->data),
          static_cast<const T *>(a->data),
          static_cast<const T *>(b->data),
          m,
          k,
          n};
}

template <class T>
bool multiplyAs(const MTensor *result, const MTensor *a, const MTensor *b, mint k, mint flags) {
  const auto of = productOf<T>(result, a, b, rowsOf(a, k), k, columnsOf(b, k));
  if constexpr (sizeof(T) == sizeof(mint)) {
    return integerProduct(of.result, of.a, of.b, of.m, of.k, of.n, flags);
  } else {
    const bool isAsked = (flags & TORVANE_CHECK_REALS) != 0;
    if (a->rank + b->rank == 3) return multiplyVector(of, a->rank == 1, isAsked);
    return multiplyMatrices(of, isAsked || (a->rank == 2 && b->rank == 2));
  }
}

bool multiplyNonempty(const MTensor *result, const MTensor *a, const MTensor *b, mint k, mint flags) {
  if (a->type == TORVANE_TYPE_REAL) return multiplyAs<mreal>(result, a, b, k, flags);
  if (a->type == TORVANE_TYPE_COMPLEX) return multiplyAs<mcomplex>(result, a, b, k, flags);
  return multiplyAs<mint>(result, a, b, k, flags);
}

// A sum of nothing is 0, in every shape and type.
mint multiply(const MTensor *result, const MTensor *a, const MTensor *b, mint flags) {
  const mint k = b->dimensions[0];
  if (result->elementCount == 0) return kSuccess;
  if (k > 0) return multiplyNonempty(result, a, b, k, flags) ? kSuccess : kNotFinite;
  memset(result->data, 0, static_cast<size_t>(result->elementCount) * elementWidth(result->type));
  return kSuccess;
}

// The dimensions of the result.
struct Extents {
  mint rank;
  Scratch<mint> lengths;

  Extents(const MTensor *a, const MTensor *b) : rank(a->rank + b->rank - 2), lengths(rank, kFatal) {
    mint *next = lengths.get();
    for (mint i = 0; i < a->rank - 1; ++i) *next++ = a->dimensions[i];
    for (mint i = 1; i < b->rank; ++i) *next++ = b->dimensions[i];
  }
};

mint multiplyApart(MTensor **slot, MTensor *a, MTensor *b, mint rank, const mint *extents, mint flags) {
  ResultTensor result(slot, {a, b});
  mint status = result.allocate(a->type, rank, extents, kFatal);
  if (status == kSuccess) status = multiply(result.get(), a, b, flags);
  return status == kSuccess ? result.commit() : status;
}

bool isNumeric(mint type) { return type >= TORVANE_TYPE_INTEGER && type <= TORVANE_TYPE_COMPLEX; }

[[gnu::noinline]] mint multiplyTensors(MTensor **slot, MTensor *a, MTensor *b, mint flags) {
  if (a->type != b->type || !isNumeric(a->type)) return kWrongType;
  Extents extents(a, b);
  const mint rank = extents.rank, *lengths = extents.lengths.get();
  if (*slot == nullptr || *slot == a || *slot == b) return multiplyApart(slot, a, b, rank, lengths, flags);
  const mint status = MTensor_allocateCommon(slot, a->type, rank, lengths, kFatal);
  return status == kSuccess ? multiply(*slot, a, b, flags) : status;
}

bool isRealMatrix(const MTensor *tensor) { return tensor->type == TORVANE_TYPE_REAL && tensor->rank == 2; }

// Whether the product of two matrices of reals may be stored without more ado.
bool isSettled(const MTensor *result, const MTensor *a, const MTensor *b) {
  return result != nullptr && result != a && result != b && isRealMatrix(result) && result->data != nullptr &&
         result->dimensions[0] == a->dimensions[0] && result->dimensions[1] == b->dimensions[1];
}

} // namespace

// A compiled loop multiplies matrices into the result of the turn before: all else would take it as long as
// the product of a few rows.
mint generalDot(MTensor **slot, MTensor *a, MTensor *b, mint flags) {
  if (isRealMatrix(a) && isRealMatrix(b) && isSettled(*slot, a, b)) {
    const auto of = productOf<mreal>(*slot, a, b, a->dimensions[0], b->dimensions[0], b->dimensions[1]);
    if (of.k > 0) return multiplyMatrices(of, true) ? kSuccess : kNotFinite;
  }
  return multiplyTensors(slot, a, b, flags);
}

} // namespace torvane

using namespace torvane;

mint MTensorGeneralDot(MTensor **resultSlot, MTensor *a, MTensor *b, mint flags) {
  if (a->type != b->type) return kWrongType;
  if (!ranksFit(a, b)) return kWrongRank;
  if (!innerExtentsFit(a, b)) return kWrongDimensions;
  return generalDot(resultSlot, a, b, flags) == kSuccess ? 0 : 1;
}

#include "equality.h"

#include "../scalar/scalar_types.h"
#include "agreement.h"

#include <utility>

namespace torvane {

namespace {

struct Tolerance {
  mreal bits, factor;
};

template <class A, class B> using WiderOf = ChooseOf<(sizeof(A) < sizeof(B)), B, A>;

// The real in which two elements are compared: an integer takes the other's, and the wider of two counts.
template <class A, class B>
using ComparedAs = ChooseOf<isInteger<A>, RealPartOf<B>,
                            ChooseOf<isInteger<B>, RealPartOf<A>, WiderOf<RealPartOf<A>, RealPartOf<B>>>>;

template <class R, class T> R realOf(T x) {
  if constexpr (isComplex<T>)
    return static_cast<R>(x.re);
  else
    return static_cast<R>(x);
}
template <class R, class T> R imaginaryOf(T x) {
  if constexpr (isComplex<T>)
    return static_cast<R>(x.im);
  else
    return 0;
}

template <class A, class B> bool areEqual(const Tolerance &tolerance, A x, B y) {
  if constexpr (isInteger<A> && isInteger<B>) {
    return std::cmp_equal(x, y);
  } else {
    using R = ComparedAs<A, B>;
    if (!agree(tolerance.bits, tolerance.factor, realOf<R>(x), realOf<R>(y))) return false;
    if constexpr (!isComplex<A> && !isComplex<B>) return true;
    return agree(tolerance.bits, tolerance.factor, imaginaryOf<R>(x), imaginaryOf<R>(y));
  }
}

template <class A, class B>
bool haveEqualElements(const Tolerance &tolerance, const void *first, const void *second, mint count) {
  const auto *x = static_cast<const A *>(first);
  const auto *y = static_cast<const B *>(second);
  for (mint i = 0; i < count; ++i)
    if (!areEqual(tolerance, x[i], y[i])) return false;
  return true;
}

// By the tags of both, less one.
using Comparison = bool (*)(const Tolerance &, const void *, const void *, mint);
#define TORVANE_COMPARISONS(A)                                                                               \
  {haveEqualElements<A, Integer8>,      haveEqualElements<A, UnsignedInteger8>,                              \
   haveEqualElements<A, Integer16>,     haveEqualElements<A, UnsignedInteger16>,                             \
   haveEqualElements<A, Integer32>,     haveEqualElements<A, UnsignedInteger32>,                             \
   haveEqualElements<A, Integer64>,     haveEqualElements<A, UnsignedInteger64>,                             \
   haveEqualElements<A, Real32>,        haveEqualElements<A, Real64>,                                        \
   haveEqualElements<A, ComplexReal32>, haveEqualElements<A, ComplexReal64>},
constexpr Comparison kComparisons[][12] = {
    TORVANE_COMPARISONS(Integer8) TORVANE_COMPARISONS(UnsignedInteger8) TORVANE_COMPARISONS(Integer16)
        TORVANE_COMPARISONS(UnsignedInteger16) TORVANE_COMPARISONS(Integer32)
            TORVANE_COMPARISONS(UnsignedInteger32) TORVANE_COMPARISONS(Integer64)
                TORVANE_COMPARISONS(UnsignedInteger64) TORVANE_COMPARISONS(Real32) TORVANE_COMPARISONS(Real64)
                    TORVANE_COMPARISONS(ComplexReal32) TORVANE_COMPARISONS(ComplexReal64)};

} // namespace

mint MNumericArray_equal(mreal tolerance, mint mixedTypes, const MNumericArray *first,
                         const MNumericArray *second) {
  if (!haveOneShape(first, second)) return 0;
  if (first->elementCount == 0) return 1;
  if (mixedTypes == 0 && first->elementType != second->elementType) return 0;
  const Comparison compare = kComparisons[first->elementType - 1][second->elementType - 1];
  return compare({tolerance, agreementFactor(tolerance)}, first->data, second->data, first->elementCount);
}

} // namespace torvane

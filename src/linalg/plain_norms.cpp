#include "plain_norms.h"

#include "../scalar/complexes/real_functions.h"

namespace torvane {

namespace {

// J. L. Blue, "A Portable Fortran Program to Find the Euclidean Norm of a Vector" (1978): squares that could
// overflow or underflow go to accumulators of their own, scaled by powers of two.
struct SumsOfSquares {
  mreal large = 0, middle = 0, small = 0;

  static constexpr mreal kLarge = 0x1p486, kSmall = 0x1p-511; // beyond them 2^26 squares would not fit
  static constexpr mreal kShrink = 0x1p-538, kGrow = 0x1p537;

  void take(mreal x) {
    const mreal a = magnitudeOf(x);
    if (a > kLarge)
      large += (a * kShrink) * (a * kShrink);
    else if (a < kSmall)
      small += (a * kGrow) * (a * kGrow);
    else
      middle += a * a; // a NaN too
  }
  mreal root() const {
    if (middle != middle) return middle;
    if (large > 0) return __builtin_sqrt(large + (middle * kShrink) * kShrink) / kShrink;
    if (middle == 0) return __builtin_sqrt(small) / kGrow;
    return __builtin_sqrt(middle + (small / kGrow) / kGrow);
  }
};

} // namespace

mreal plainSumOfMagnitudes(const mreal *x, mint count, mint stride) {
  mreal sum = 0;
  for (mint k = 0; k < count; ++k) sum += magnitudeOf(x[ptrdiff_t{k} * stride]);
  return sum;
}

mreal plainEuclideanNorm(const mreal *x, mint count, mint stride) {
  SumsOfSquares sums;
  for (mint k = 0; k < count; ++k) sums.take(x[ptrdiff_t{k} * stride]);
  return sums.root();
}

mreal plainEuclideanNorm(const mcomplex *x, mint count, mint stride) {
  SumsOfSquares sums;
  for (mint k = 0; k < count; ++k) {
    sums.take(x[ptrdiff_t{k} * stride].re);
    sums.take(x[ptrdiff_t{k} * stride].im);
  }
  return sums.root();
}

} // namespace torvane

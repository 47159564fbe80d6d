// Vector norms, plain, weighted and relative to a tolerance, and the weights.
//
// A norm is computed over terms, one number a element. Sums of powers keep a scale, the largest term so far,
// and the sum of the powers of ratios to it, so that no power overflows (the method of the reference BLAS, C.
// L. Lawson et al., "Basic Linear Algebra Subprograms for Fortran Usage", 1979). Plain norms for p 1 and 2
// are the BLAS's where it takes the stride; its maximum norm is not used, since libraries differ on NaN and a
// complex has another magnitude there.
#include "../linalg/blas.h"
#include "../scalar/bodies/parts.h"
#include "../scalar/bodies/powers.h"
#include "folds.h"

#include <torvane/operators.h>
#include <torvane/vectors.h>

using namespace torvane;

namespace torvane {

namespace {

mreal magnitude(mreal x) { return magnitudeOf(x); }
mreal magnitude(const mcomplex &z) { return modulusOf(ComplexReal64{z.re, z.im}); }

// ---- terms --------------------------------------------------------------------------------------

template <class T> struct PlainTerms {
  const T *data;
  mint stride;
  mreal at(mint k) const { return magnitude(data[ptrdiff_t{k} * stride]); }
};

template <class T> struct WeightedTerms {
  PlainTerms<T> plain;
  const mreal *weights;
  mreal at(mint k) const { return plain.at(k) * weights[k]; }
};

struct Tolerance {
  mreal atol, rtol;
  template <class T> mreal of(const T &x) const { return magnitude(x) * atol + rtol; }
};

template <class T> struct RelativeTerms {
  const T *error, *data;
  Tolerance tolerance;
  mreal at(mint k) const { return magnitude(error[k]) / tolerance.of(data[k]); }
};

// ---- norms of terms -----------------------------------------------------------------------------

// scale * (sum to the power 1 / p) is the norm of what has been taken; sum is 1 before anything has.
struct ScaledSum {
  mreal scale = 0, sum = 1;

  template <class Power> void take(mreal a, Power power) {
    if (a == 0) return;
    if (a <= scale) {
      sum += power(a / scale);
    } else {
      sum = sum * power(scale / a) + 1;
      scale = a;
    }
  }
};

template <class Terms> mreal sumOf(const Terms &terms, mint count) {
  mreal sum = 0;
  for (mint k = 0; k < count; ++k) sum += terms.at(k);
  return sum;
}

template <class Terms> mreal largestOf(const Terms &terms, mint count) {
  mreal largest = 0;
  for (mint k = 0; k < count; ++k)
    if (const mreal a = terms.at(k); a > largest || a != a) largest = a; // a NaN stays: nothing is larger
  return largest;
}
mreal largestOf(const PlainTerms<mreal> &terms, mint count) {
  LargestMagnitudeOrNaN<mreal> largest = {0};
  if (terms.stride == 1)
    foldDense(largest, terms.data, count);
  else
    for (mint k = 0; k < count; ++k) largest.merge({terms.at(k)});
  return largest.value;
}

template <class Terms> mreal rootOfSquares(const Terms &terms, mint count, mreal divisor) {
  ScaledSum squares;
  for (mint k = 0; k < count; ++k) squares.take(terms.at(k), [](mreal ratio) { return ratio * ratio; });
  return squares.scale * __builtin_sqrt(squares.sum / divisor);
}

template <class Form, class Terms>
mreal rootOfPowers(error &code, const Terms &terms, mint count, mint p, mreal divisor) {
  const auto power = [&code](mreal base, mreal exponent) {
    error own = error::none;
    const mreal value = compute<binary::pow, Form>(own, base, exponent);
    if (own != error::none) code = own;
    return value;
  };
  ScaledSum powers;
  for (mint k = 0; k < count && code == error::none; ++k)
    powers.take(terms.at(k), [&](mreal ratio) { return power(ratio, p); });
  return powers.scale * power(powers.sum / divisor, 1.0 / p);
}

// The divisors say what of a mean a norm is: 1 for none.
struct Divisors {
  mreal ofSums = 1, ofPowers = 1;
};

template <class Form, class Terms>
mreal normOf(error &code, const Terms &terms, mint count, mint p, Divisors divisors) {
  if (count <= 0) return 0;
  switch (p) {
  case 1:
    return sumOf(terms, count) / divisors.ofSums;
  case 2:
    return rootOfSquares(terms, count, divisors.ofSums);
  case TORVANE_MAXIMUM_NORM:
    return largestOf(terms, count);
  default:
    return rootOfPowers<Form>(code, terms, count, p, divisors.ofPowers);
  }
}

mint storeNorm(mreal *result, error code, mreal norm) {
  if (code != error::none) return TORVANE_NORM_FAILED;
  *result = norm;
  return 0;
}

template <class Terms>
mint storeNormOf(mreal *result, const Terms &terms, mint count, mint p, Divisors divisors, mint flags) {
  error code = error::none;
  if ((flags & TORVANE_CHECK_REALS) == 0) {
    const mreal norm = normOf<Plain>(code, terms, count, p, divisors);
    return storeNorm(result, code, norm);
  }
  const mreal norm = normOf<Checked>(code, terms, count, p, divisors);
  return storeNorm(result, code != error::none ? code : classify(norm), norm);
}

// ---- plain norms --------------------------------------------------------------------------------

bool isOfBlas(mint p, const mreal *) { return p == 1 || p == 2; }
bool isOfBlas(mint p, const mcomplex *) { return p == 2; } // its sum takes |re| + |im| for the magnitude

mreal blasNorm(mint p, const mreal *data, mint count, mint stride) {
  return p == 1 ? blasSumOfMagnitudes(data, count, stride) : blasEuclideanNorm(data, count, stride);
}
mreal blasNorm(mint, const mcomplex *data, mint count, mint stride) {
  return blasEuclideanNorm(data, count, stride);
}

template <class T> mint plainNorm(mreal *result, mint p, const T *data, mint count, mint stride, mint flags) {
  if (count <= 0 || stride < 1 || !isOfBlas(p, data))
    return storeNormOf(result, PlainTerms<T>{data, stride}, count, p, {}, flags);
  const mreal norm = blasNorm(p, data, count, stride);
  return storeNorm(result, (flags & TORVANE_CHECK_REALS) != 0 ? classify(norm) : error::none, norm);
}

template <class T>
mint scaledNorm(mreal *result, mint p, const RelativeTerms<T> &terms, mint count, mint meanFlag, mint flags) {
  return storeNormOf(result, terms, count, p, {meanFlag != 0 ? mreal(count) : 1.0, mreal(count)}, flags);
}

template <class T>
mint storeWeights(mreal *weights, Tolerance tolerance, const T *data, mint count, mint flags) {
  for (mint k = 0; k < count; ++k) {
    const mreal denominator = tolerance.of(data[k]);
    if (denominator == 0 && (flags & TORVANE_CHECK_REALS) != 0) return k + 1;
    weights[k] = 1 / denominator;
  }
  return 0;
}

} // namespace

} // namespace torvane

mint machfunc_d_vectornorm(mreal *result, mint p, const mreal *data, mint count, mint stride, mint flags) {
  return plainNorm(result, p, data, count, stride, flags);
}
mint machfunc_c_vectornorm(mreal *result, mint p, const mcomplex *data, mint count, mint stride, mint flags) {
  return plainNorm(result, p, data, count, stride, flags);
}

mint machfunc_d_weightedvectornorm(mreal *result, mint p, const mreal *data, const mreal *weights, mint count,
                                   mint stride, mint flags) {
  return storeNormOf(result, WeightedTerms<mreal>{{data, stride}, weights}, count, p, {}, flags);
}
mint machfunc_c_weightedvectornorm(mreal *result, mint p, const mcomplex *data, const mreal *weights,
                                   mint count, mint stride, mint flags) {
  return storeNormOf(result, WeightedTerms<mcomplex>{{data, stride}, weights}, count, p, {}, flags);
}

mint machfunc_d_vectornormweights(mreal *weights, mreal atol, mreal rtol, const mreal *data, mint count,
                                  mint flags) {
  return storeWeights(weights, {atol, rtol}, data, count, flags);
}
mint machfunc_c_vectornormweights(mreal *weights, mreal atol, mreal rtol, const mcomplex *data, mint count,
                                  mint flags) {
  return storeWeights(weights, {atol, rtol}, data, count, flags);
}

mint machfunc_d_scaledvectornorm(mreal *result, mint p, mreal atol, mreal rtol, const mreal *error,
                                 const mreal *data, mint count, mint meanFlag, mint flags) {
  return scaledNorm<mreal>(result, p, {error, data, {atol, rtol}}, count, meanFlag, flags);
}
mint machfunc_c_scaledvectornorm(mreal *result, mint p, mreal atol, mreal rtol, const mcomplex *error,
                                 const mcomplex *data, mint count, mint meanFlag, mint flags) {
  return scaledNorm<mcomplex>(result, p, {error, data, {atol, rtol}}, count, meanFlag, flags);
}

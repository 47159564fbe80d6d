// Functions of complex numbers that have no family of their own.
#pragma once

#include "../bodies/arithmetic.h"

namespace torvane::complexes {

// One part of the whole quotient: rounded, ties to even, and within 32 bits.
template <class R> R wholePart(error &code, R x) {
  const R whole = R(__builtin_rint(x));
  if (whole <= R(-2147483648.0) || whole >= R(2147483648.0)) code = error::integerOverflow;
  return whole;
}

// The remainder by the nearest Gaussian integer of the quotient.
template <class R> Complex<R> mod(error &code, Complex<R> x, Complex<R> y) {
  if (y.re == 0 && y.im == 0) {
    code = error::domain;
    return {};
  }
  const Complex<R> quotient = x / y;
  const Complex<R> whole = {wholePart(code, quotient.re), wholePart(code, quotient.im)};
  return x - y * whole;
}

} // namespace torvane::complexes

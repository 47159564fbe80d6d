// Powers, for all pairs of types.
//
// Integers by multiplication chains; reals by the C library in binary64, narrowed once, whatever the
// operands' own types; complexes by their own functions, in the width of the result.
#pragma once

#include "../complexes/power.h"
#include "../evaluate.h"
#include "../integer_power.h"

namespace torvane {

// A negative base has a real power for an integer exponent only; infinite exponents count as integers.
template <class R> R realPower(error &code, Real64 x, Real64 y) {
  if (x < 0 && __builtin_floor(y) < y) {
    code = error::domain;
    return R(0);
  }
  return R(__builtin_pow(x, y));
}

template <class R, class T> constexpr auto toPart(T x) {
  if constexpr (isComplex<T>)
    return Complex<R>{R(x.re), R(x.im)};
  else
    return R(x);
}

namespace binary {

struct pow {
  static constexpr bool separateOperands = true;
  template <class Form, class X, class Y> static typename PowerType<X, Y>::Type apply(error &code, X x, Y y) {
    using Result = typename PowerType<X, Y>::Type;
    using R = RealPartOf<Result>;
    if constexpr (isInteger<Result>)
      return integerPower<Form>(code, x, y);
    else if constexpr (!isComplex<Result>)
      return realPower<R>(code, Real64(x), Real64(y));
    else if constexpr (isInteger<Y>)
      return complexes::pow(code, x, y);
    else
      return complexes::pow(code, toPart<R>(x), toPart<R>(y));
  }
};

} // namespace binary

} // namespace torvane

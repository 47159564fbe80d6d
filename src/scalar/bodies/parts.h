// The parts of a number: modulus, argument, conjugate, real and imaginary part, sign; and the constants.
#pragma once

#include "../complexes/rest.h"
#include "arithmetic.h"
#include "roots.h"

namespace torvane {

template <class T> constexpr T oneOf() {
  if constexpr (isComplex<T>)
    return {1, 0};
  else if constexpr (isHalf<T>)
    return {0x3C00};
  else
    return T(1);
}

namespace unary {

struct abs {
  template <class Form, class T> static constexpr RealPartOf<T> apply(error &code, T x) {
    if constexpr (isComplex<T>)
      return modulusOf(x);
    else if constexpr (isReal<T>)
      return magnitudeOf(x);
    else
      return x < T(0) ? minus::apply<Form>(code, x) : x;
  }
  template <class Form> static constexpr Real16 pattern(error &, Real16 x) { return {halfMagnitude(x)}; }
};

struct abssquare {
  template <class Form, class T> static constexpr RealPartOf<T> apply(error &code, T x) {
    if constexpr (isComplex<T>)
      return x.re * x.re + x.im * x.im;
    else
      return square::apply<Form>(code, x);
  }
};

// Of a real, no argument but 0 is a real number that keeps the type: a negative value is refused. A NaN is
// not negative.
struct arg {
  template <class Form, class T> static RealPartOf<T> apply(error &code, T x) {
    if constexpr (isComplex<T>) {
      return complexes::library::atan2(x.im, x.re);
    } else {
      if (x < T(0)) code = error::domain;
      return T(0);
    }
  }
};

struct conj {
  template <class Form, class T> static constexpr T apply(error &, T x) {
    if constexpr (isComplex<T>)
      return {x.re, -x.im};
    else
      return x;
  }
  template <class Form> static constexpr Real16 pattern(error &, Real16 x) { return x; }
};

struct im {
  template <class Form, class T> static constexpr RealPartOf<T> apply(error &, T x) {
    if constexpr (isComplex<T>)
      return x.im;
    else
      return T(0);
  }
  template <class Form> static constexpr Real16 pattern(error &, Real16) { return {0}; }
  // The routine on reals stores integers.
  template <class Form> static constexpr mint element(error &, mreal) { return 0; }
};

struct re {
  template <class Form, class T> static constexpr RealPartOf<T> apply(error &, T x) {
    if constexpr (isComplex<T>)
      return x.re;
    else
      return x;
  }
  template <class Form> static constexpr Real16 pattern(error &, Real16 x) { return x; }
};

struct sign {
  template <class Form, class T> static auto apply(error &code, T x) {
    if constexpr (isComplex<T>)
      return complexes::sign(code, x);
    else
      return mint{(x > T(0)) - (x < T(0))};
  }
  // The sign of a NaN is 1.
  template <class Form> static constexpr mint pattern(error &, Real16 x) {
    if (halfMagnitude(x) == 0) return 0;
    return isNaN(x) || halfOrder(x) >= 0 ? 1 : -1;
  }
};

struct copy {
  template <class Form, class T> static constexpr T apply(error &, T x) { return x; }
  template <class Form> static constexpr Real16 pattern(error &, Real16 x) { return x; }
};

struct zero {
  template <class Form, class T> static constexpr T apply(error &, T) { return T{}; }
  template <class Form> static constexpr Real16 pattern(error &, Real16) { return {0}; }
};

struct one {
  template <class Form, class T> static constexpr T apply(error &, T) { return oneOf<T>(); }
  template <class Form> static constexpr Real16 pattern(error &, Real16) { return oneOf<Real16>(); }
};

// The plain form reads no argument.
struct fpexception {
  template <class Form, class T> static constexpr mint apply(error &, T x) {
    if constexpr (Form::checked && !isInteger<T>)
      return classify(x) != error::none;
    else
      return 0;
  }
  template <class Form> static constexpr mint pattern(error &, Real16 x) {
    return Form::checked && classify(x) != error::none;
  }
};

} // namespace unary

namespace binary {

// The checked form tests its operands, x first, rather than its result.
struct fpexception {
  template <class Form, class T> static constexpr mint apply(error &code, T x, T y) {
    if constexpr (Form::checked && !isInteger<T>) {
      code = classify(x);
      if (code == error::none) code = classify(y);
    }
    return 0;
  }
  template <class Form> static constexpr mint pattern(error &code, Real16 x, Real16 y) {
    return apply<Form, Real16>(code, x, y);
  }
};

} // namespace binary

} // namespace torvane

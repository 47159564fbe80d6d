// Comparisons with zero, with another value, and with a tolerance.
//
// On reals a NaN compares as false throughout. Real16 is ordered by its pattern.
#pragma once

#include "parts.h"

namespace torvane {

namespace unary {

struct pos {
  template <class Form, class T> static constexpr mint apply(error &, T x) { return x > T(0); }
  template <class Form> static constexpr mint pattern(error &, Real16 x) {
    return !isNaN(x) && halfOrder(x) > 0;
  }
};

struct neg {
  template <class Form, class T> static constexpr mint apply(error &, T x) { return x < T(0); }
  template <class Form> static constexpr mint pattern(error &, Real16 x) {
    return !isNaN(x) && halfOrder(x) < 0;
  }
};

struct npos {
  template <class Form, class T> static constexpr mint apply(error &, T x) { return x <= T(0); }
  template <class Form> static constexpr mint pattern(error &, Real16 x) {
    return !isNaN(x) && halfOrder(x) <= 0;
  }
};

struct nneg {
  template <class Form, class T> static constexpr mint apply(error &, T x) { return x >= T(0); }
  template <class Form> static constexpr mint pattern(error &, Real16 x) {
    return !isNaN(x) && halfOrder(x) >= 0;
  }
};

struct unitize {
  template <class Form, class T> static constexpr mint apply(error &, T x) {
    if constexpr (isComplex<T>)
      return x.re != 0 || x.im != 0;
    else
      return x != T(0);
  }
};

} // namespace unary

namespace binary {

// The pair functions of C: a NaN on one side yields the other value. Of equal values the first.
struct max {
  template <class Form, class T> static constexpr T apply(error &code, T x, T y) {
    const T larger = x < y ? y : x; // one instruction, which passes a NaN of x
    if constexpr (isInteger<T>)
      return Form::fit(code, false, larger);
    else
      return x != x ? y : larger;
  }
  template <class Form> static constexpr Real16 pattern(error &, Real16 x, Real16 y) {
    if (isNaN(x)) return y;
    return isNaN(y) || halfOrder(x) >= halfOrder(y) ? x : y;
  }
};

struct min {
  template <class Form, class T> static constexpr T apply(error &code, T x, T y) {
    const T smaller = y < x ? y : x;
    if constexpr (isInteger<T>)
      return Form::fit(code, false, smaller);
    else
      return x != x ? y : smaller;
  }
  template <class Form> static constexpr Real16 pattern(error &, Real16 x, Real16 y) {
    if (isNaN(x)) return y;
    return isNaN(y) || halfOrder(x) <= halfOrder(y) ? x : y;
  }
};

} // namespace binary

namespace unary {

struct ramp {
  template <class Form, class T> static constexpr T apply([[maybe_unused]] error &code, T x) {
    if constexpr (isReal<T>)
      return x >= T(0) ? x : T(0); // the zero of either sign stays, a NaN goes
    else
      return binary::max::apply<Plain>(code, x, T(0));
  }
};

} // namespace unary

namespace binary {

// The distance of a complex pair has imaginary part +0; its routine stores the real part alone.
template <class T> constexpr T realResult(RealPartOf<T> x) {
  if constexpr (isComplex<T>)
    return {x, 0};
  else
    return x;
}

struct abserr {
  static constexpr bool storesRealPart = true;
  template <class Form, class T> static constexpr T apply(error &code, T x, T y) {
    if constexpr (isSigned<T>) {
      // Either difference must fit where it is taken.
      const T difference = subtract::apply<Form>(code, x, y);
      return code != error::none || difference >= 0 ? difference : subtract::apply<Form>(code, y, x);
    } else if constexpr (isInteger<T>) {
      return subtract::apply<Form>(code, x, y);
    } else {
      return realResult<T>(unary::abs::apply<Form>(code, subtract::apply<Form>(code, x, y)));
    }
  }
};

struct relerr {
  static constexpr bool storesRealPart = true;
  template <class Form, class T> static constexpr T apply(error &code, T x, T y) {
    const T quotient = divide::apply<Form>(code, x - y, y);
    return code != error::none ? T{} : realResult<T>(unary::abs::apply<Form>(code, quotient));
  }
};

struct maxabs {
  static constexpr bool storesRealPart = true;
  template <class Form, class T> static constexpr T apply(error &code, T x, T y) {
    if constexpr (isSigned<T>)
      if (Form::checked && (isReserved(x) || isReserved(y))) code = error::integerOverflow;
    error ignored = error::none;
    const auto a = unary::abs::apply<Plain>(ignored, x), b = unary::abs::apply<Plain>(ignored, y);
    return realResult<T>(max::apply<Plain>(ignored, a, b));
  }
};

// The tolerance must not be negative; a NaN passes.
template <class R> constexpr bool isTolerance(error &code, R tolerance) {
  if (tolerance < 0) code = error::domain;
  return code == error::none;
}

struct chop {
  static constexpr bool separateOperands = true;
  template <class Form, class T> static constexpr T apply(error &code, T x, T tolerance) {
    return isTolerance(code, tolerance) && tolerance > magnitudeOf(x) ? T(0) : x;
  }
  // Complexes have a routine, though no typed entry.
  template <class Form> static ComplexReal64 element(error &code, ComplexReal64 x, mreal tolerance) {
    return isTolerance(code, tolerance) && tolerance > modulusOf(x) ? ComplexReal64{0, 0} : x;
  }
};

struct unitize {
  static constexpr bool separateOperands = true;
  template <class Form, class T> static constexpr mint apply(error &code, T x, T tolerance) {
    if constexpr (isInteger<T>)
      return ofInteger<Form>(code, x, tolerance);
    else
      return isTolerance(code, tolerance) ? ofMagnitude<Form>(code, magnitudeOf(x), tolerance) : 0;
  }
  template <class Form> static mint element(error &code, ComplexReal64 x, mreal tolerance) {
    return isTolerance(code, tolerance) ? ofMagnitude<Form>(code, modulusOf(x), tolerance) : 0;
  }

private:
  // The magnitude of the reserved value is taken unsigned in the plain form and refused in the checked.
  template <class Form, class T> static constexpr mint ofInteger(error &code, T x, T tolerance) {
    if (tolerance < 1) {
      code = error::domain;
      return 0;
    }
    Form::fit(code, false, x);
    return isReserved(x) || (x < T(0) ? static_cast<T>(-x) : x) >= tolerance;
  }
  template <class Form, class R> static constexpr mint ofMagnitude(error &code, R magnitude, R tolerance) {
    if constexpr (Form::checked) code = classify(magnitude);
    return magnitude >= tolerance;
  }
};

} // namespace binary

} // namespace torvane

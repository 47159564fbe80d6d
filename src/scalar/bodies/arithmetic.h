// Sums, differences, products and quotients.
//
// Integers wrap; whether bits were lost is what Form::fit asks. Reals are the processor's own. Complex
// products are the plain four multiplications; quotients are Smith's: R. L. Smith, "Algorithm 116:
// Complex division", CACM 5 (1962).
#pragma once

#include "../evaluate.h"

namespace torvane {

template <class R> constexpr Complex<R> operator-(Complex<R> z) { return {-z.re, -z.im}; }
template <class R> constexpr Complex<R> operator+(Complex<R> x, Complex<R> y) {
  return {x.re + y.re, x.im + y.im};
}
template <class R> constexpr Complex<R> operator-(Complex<R> x, Complex<R> y) {
  return {x.re - y.re, x.im - y.im};
}
template <class R> constexpr Complex<R> operator*(Complex<R> x, Complex<R> y) {
  return {x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re};
}

// x / y for a divisor that is not zero. A NaN in the divisor, or a modulus that vanishes or is lost on
// the way, makes both parts NaN.
template <class R> constexpr Complex<R> operator/(Complex<R> x, Complex<R> y) {
  constexpr R nan = __builtin_nan("");
  const R c = y.re, d = y.im;
  if (c != c || d != d) return {nan, nan};
  if (__builtin_fabs(d) < __builtin_fabs(c)) {
    const R t = d / c, m = t * d + c;
    if (m != m || m == 0) return {nan, nan};
    return {(x.re + x.im * t) / m, (x.im - x.re * t) / m};
  }
  if (d == 0) return {nan, nan};
  const R t = c / d, m = t * c + d;
  if (m != m || m == 0) return {nan, nan};
  return {(x.re * t + x.im) / m, (x.im * t - x.re) / m};
}

namespace binary {

struct plus {
  template <class Form, class T> static constexpr T apply(error &code, T x, T y) {
    if constexpr (isInteger<T>) {
      T sum = 0;
      const bool lost = __builtin_add_overflow(x, y, &sum);
      return Form::fit(code, lost, sum);
    } else {
      return x + y;
    }
  }
};

struct subtract {
  template <class Form, class T> static constexpr T apply(error &code, T x, T y) {
    if constexpr (isInteger<T>) {
      T difference = 0;
      const bool lost = __builtin_sub_overflow(x, y, &difference);
      return Form::fit(code, lost, difference);
    } else {
      return x - y;
    }
  }
};

struct times {
  template <class Form, class T> static constexpr T apply(error &code, T x, T y) {
    if constexpr (isInteger<T>) {
      T product = 0;
      const bool lost = __builtin_mul_overflow(x, y, &product);
      return Form::fit(code, lost, product);
    } else {
      return x * y;
    }
  }
};

struct divide {
  template <class Form, class T> static constexpr T apply(error &code, T x, T y) {
    if constexpr (isComplex<T>)
      if (y.re == 0 && y.im == 0) {
        code = error::complexZeroDivision;
        return T{};
      }
    return x / y;
  }
};

} // namespace binary

namespace unary {

// The sign of a real is flipped as a bit, so that of a NaN too. An unsigned integer wraps in both forms:
// its row asks no test.
struct minus {
  template <class Form, class T> static constexpr T apply(error &code, T x) {
    if constexpr (isSigned<T>)
      return binary::subtract::apply<Form>(code, T(0), x);
    else
      return static_cast<T>(-x);
  }
  template <class Form> static constexpr Real16 pattern(error &, Real16 x) {
    return {static_cast<uint16_t>(x.bits ^ 0x8000)};
  }
};

struct square {
  template <class Form, class T> static constexpr T apply(error &code, T x) {
    return binary::times::apply<Form>(code, x, x);
  }
};

} // namespace unary

namespace ternary {

// a * x + y. Up to 32 bits the checked form asks only whether the exact whole fits; at 64 bits each of
// its two steps must.
struct axpy {
  template <class Form, class T> static constexpr T apply(error &code, T a, T x, T y) {
    if constexpr (isInteger<T> && sizeof(T) < 8) {
      using Exact = ChooseOf<isSigned<T>, int64_t, uint64_t>;
      T whole = 0;
      const bool lost = __builtin_add_overflow(Exact(a) * Exact(x), Exact(y), &whole);
      return Form::fit(code, lost, whole);
    } else {
      return binary::plus::apply<Form>(code, binary::times::apply<Form>(code, a, x), y);
    }
  }
};

} // namespace ternary

} // namespace torvane

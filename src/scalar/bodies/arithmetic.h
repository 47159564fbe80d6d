// Sums, differences, products and quotients.
//
// Integers wrap; whether bits were lost is what Form::fit asks. Reals are the processor's own.
#pragma once

#include "../complexes/arithmetic.h"
#include "../evaluate.h"

namespace torvane {

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
      return complexes::divide(code, x, y);
    else
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

struct recip {
  template <class Form, class T> static T apply(error &code, T x) {
    if constexpr (isComplex<T>)
      return complexes::reciprocal(code, x);
    else
      return T(1) / x;
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

// a * x - y and y - a * x: the same with the signs moved. At 64 bits the product is tested by itself.
template <class Form, bool isReversed, class T> constexpr T productDifference(error &code, T a, T x, T y) {
  if constexpr (isInteger<T> && sizeof(T) < 8) {
    using Exact = ChooseOf<isSigned<T>, int64_t, uint64_t>; // differences are taken in infinite precision
    T whole = 0;
    const Exact product = Exact(a) * Exact(x);
    const bool lost = isReversed ? __builtin_sub_overflow(Exact(y), product, &whole)
                                 : __builtin_sub_overflow(product, Exact(y), &whole);
    return Form::fit(code, lost, whole);
  } else {
    const T product = binary::times::apply<Form>(code, a, x);
    if (code != error::none) return product;
    return isReversed ? binary::subtract::apply<Form>(code, y, product)
                      : binary::subtract::apply<Form>(code, product, y);
  }
}

struct axmy {
  template <class Form, class T> static constexpr T apply(error &code, T a, T x, T y) {
    return productDifference<Form, false>(code, a, x, y);
  }
};

struct ymax {
  template <class Form, class T> static constexpr T apply(error &code, T a, T x, T y) {
    return productDifference<Form, true>(code, a, x, y);
  }
};

struct adxmy {
  template <class Form, class T> static constexpr T apply(error &code, T a, T x, T y) {
    return binary::divide::apply<Form>(code, a, x - y);
  }
};

} // namespace ternary

} // namespace torvane

// Operators on the bits and digits of integers.
//
// Shifts act on the magnitude and restore the sign, so that a right shift truncates toward zero. Magnitudes
// are unsigned, where that of the reserved value exists.
#pragma once

#include "../evaluate.h"
#include "../magnitude.h"

namespace torvane {

namespace unary {

struct evenq {
  template <class Form, class T> static constexpr mint apply(error &, T x) { return (x & 1) == 0; }
};

struct oddq {
  template <class Form, class T> static constexpr mint apply(error &, T x) { return (x & 1) != 0; }
};

struct bit_not {
  template <class Form, class T> static constexpr T apply(error &code, T x) {
    return Form::fit(code, false, static_cast<T>(~x));
  }
};

struct bit_count {
  template <class Form, class T> static constexpr mint apply(error &, T x) {
    return __builtin_popcountll(static_cast<UnsignedOf<T>>(x));
  }
};

struct bit_length {
  template <class Form, class T> static constexpr mint apply(error &, T x) {
    const auto bits = static_cast<UnsignedOf<T>>(x < T(0) ? ~x : x);
    return bits == 0 ? 0 : topBit(bits) + 1;
  }
};

} // namespace unary

namespace binary {

struct bit_and {
  template <class Form, class T> static constexpr T apply(error &code, T x, T y) {
    return Form::fit(code, false, static_cast<T>(x & y));
  }
};

struct bit_or {
  template <class Form, class T> static constexpr T apply(error &code, T x, T y) {
    return Form::fit(code, false, static_cast<T>(x | y));
  }
};

struct bit_xor {
  template <class Form, class T> static constexpr T apply(error &code, T x, T y) {
    return Form::fit(code, false, static_cast<T>(x ^ y));
  }
};

struct intexp {
  template <class Form, class T> static constexpr T apply(error &code, T x, T base) {
    if (base < T(2) || x == T(0)) {
      code = error::domain;
      return 0;
    }
    Form::fit(code, false, x);
    return static_cast<T>(count(x, static_cast<UnsignedOf<T>>(base)));
  }

private:
  template <class T> static constexpr mint count(T x, UnsignedOf<T> base) {
    UnsignedOf<T> a = magnitudeBits(x);
    if (isPowerOfTwo(base)) return isReserved(x) ? 0 : trailingZeros(a) / trailingZeros(base);
    mint exponent = 0;
    for (; a % base == 0; ++exponent) a = static_cast<UnsignedOf<T>>(a / base);
    return exponent;
  }
};

struct intlen {
  template <class Form, class T> static constexpr T apply(error &code, T x, T base) {
    if (base < T(2)) {
      code = error::domain;
      return 0;
    }
    Form::fit(code, false, x);
    return static_cast<T>(count(magnitudeBits(x), static_cast<UnsignedOf<T>>(base)));
  }

private:
  template <class U> static constexpr mint count(U a, U base) {
    if (a == 0) return 0;
    if (isPowerOfTwo(base)) return topBit(a) / trailingZeros(base) + 1;
    mint digits = 1;
    for (; a >= base; ++digits) a = static_cast<U>(a / base);
    return digits;
  }
};

// A left shift by y, which may be negative. Plain shifts let bits fall off the top.
template <class Form, class T> constexpr T shifted(error &code, T x, T y) {
  using U = UnsignedOf<T>;
  if (x == T(0)) return 0;
  if (isReserved(x)) {
    code = error::domain;
    return 0;
  }
  const U a = magnitudeBits(x);
  constexpr T topShift = static_cast<T>(kWidth<T> - 1); // the sign bit's place
  if (y <= T(0)) return y <= -topShift ? T(0) : withSignOf<T>(x, static_cast<U>(a >> -y));
  const bool lost = y >= topShift || a > static_cast<U>(static_cast<U>(~U(0)) >> 1) >> y;
  const U wrapped = y > topShift ? U(0) : static_cast<U>(a << y);
  return Form::fit(code, lost, withSignOf<T>(x, wrapped));
}

struct bit_shiftleft {
  static constexpr bool separateOperands = true;
  template <class Form, class T> static constexpr T apply(error &code, T x, T y) {
    return shifted<Form>(code, x, y);
  }
  template <class Form, class R>
  requires(isReal<R>) static R element(error &, R x, mint y) { return __builtin_ldexp(x, y); }
  template <class Form> static ComplexReal64 element(error &, ComplexReal64 x, mint y) {
    return {__builtin_ldexp(x.re, y), __builtin_ldexp(x.im, y)};
  }
};

// The reserved value has no negative to shift by; this test comes before that of x.
struct bit_shiftright {
  static constexpr bool separateOperands = true;
  template <class Form, class T> static constexpr T apply(error &code, T x, T y) {
    if (isReserved(y)) {
      code = error::domain;
      return 0;
    }
    return shifted<Form>(code, x, static_cast<T>(-y));
  }
  template <class Form, class R>
  requires(isReal<R>) static R element(error &, R x, mint y) { return __builtin_ldexp(x, negated(y)); }
  template <class Form> static ComplexReal64 element(error &, ComplexReal64 x, mint y) {
    return {__builtin_ldexp(x.re, negated(y)), __builtin_ldexp(x.im, negated(y))};
  }

private:
  // Beyond every exponent, so that the one value without a negative behaves as its neighbour.
  static constexpr mint negated(mint y) { return isReserved(y) ? INT32_MAX : -y; }
};

} // namespace binary

} // namespace torvane

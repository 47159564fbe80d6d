// From a functor to a value: what every operator shares around its body.
//
// A functor has one static member `apply<Form>(error &code, operands...)`. It sets `code` where both
// forms raise and uses Form::fit for integers; the tests that the row asks of the checked form are added
// here, as is the way of Real16 through binary32. A functor with a member `pattern` computes Real16 on
// the pattern itself instead. Codes are plain values: nothing throws before the frame of the entry.
#pragma once

#include "../runtime/failure.h"
#include "half.h"
#include "operator_traits.h"

namespace torvane {

struct Plain {
  static constexpr bool checked = false;
  template <class T> static constexpr T fit(error &, bool, T wrapped) { return wrapped; }
};

// x is the reserved value just when x - 1 overflows. For 64 bits that is half as long as the comparison with the
// constant: a short entry then fits one line of the processor's cache of decoded instructions.
template <class T> constexpr bool isReservedByOverflow(T x) {
  T rest = 0;
  return sizeof(T) == 8 && isSigned<T> ? __builtin_sub_overflow(x, T(1), &rest) : isReserved(x);
}

// In the checked form a result that lost bits, or that is the reserved value, is an overflow.
struct Checked {
  static constexpr bool checked = true;
  template <class T> static constexpr T fit(error &code, bool lost, T wrapped) {
    // Two tests, each expected to pass: the first is then one jump on the overflow flag.
    if (__builtin_expect(lost, false)) code = error::integerOverflow;
    if (__builtin_expect(isReservedByOverflow(wrapped), false)) code = error::integerOverflow;
    return wrapped;
  }
};

template <class R> constexpr error classify(R x) {
  if (x - x == R(0)) return error::none;
  return x == x ? error::infinite : error::notANumber;
}
constexpr error classify(Real16 x) {
  if (halfMagnitude(x) < kHalfInfinity) return error::none;
  return isNaN(x) ? error::notANumber : error::infinite;
}
template <class R> constexpr error classify(Complex<R> z) {
  const error ofReal = classify(z.re);
  return ofReal != error::none ? ofReal : classify(z.im);
}

template <class T> constexpr auto widened(T x) {
  if constexpr (isHalf<T>)
    return widen(x);
  else
    return x;
}
template <class Result, class R> constexpr Result narrowed(R x) {
  if constexpr (isHalf<Result>)
    return narrow(x);
  else
    return x;
}

template <class Op, class Form, class... T> constexpr auto applyBody(error &code, T... x) {
  using Result = ResultOf<Op, T...>;
  if constexpr (requires { Op::template pattern<Form>(code, x...); } && (isHalf<T> || ...))
    return Op::template pattern<Form>(code, x...);
  else if constexpr ((isHalf<T> || ...))
    return narrowed<Result>(Op::template apply<Form>(code, widened(x)...));
  else
    return Op::template apply<Form>(code, x...);
}

// The value of an operator, with all its checks; `code` tells a failure and the value is then arbitrary.
template <class Op, class Form, class... T> constexpr auto compute(error &code, T... x) {
  using Result = ResultOf<Op, T...>;
  if constexpr (!isDefined<Op, T...>) {
    code = error::undefinedForType;
    return Result{};
  } else {
    const auto result = applyBody<Op, Form>(code, x...);
    static_assert(isSame<decltype(result), const Result>, "the body's type is not the row's");
    if constexpr (Form::checked && (kChecks<Op, T...> & checks::c69) != 0)
      if (code == error::none) code = classify(result);
    return result;
  }
}

// Out of line, so that an entry that succeeds saves no registers.
template <class Result> [[gnu::cold, gnu::noinline]] Result raised(error code, Result result) {
  raise(code);
  return result;
}

// The frame of a typed entry. It holds nothing that needs a destructor: in style 2 the raise leaves it
// for good. A successful call does not touch the pending code.
template <class Op, class Form, class... T> inline auto evaluate(T... x) {
  error code = error::none;
  const auto result = compute<Op, Form>(code, x...);
  if (code != error::none) [[unlikely]]
    return raised(code, result);
  return result;
}

// Where a result goes that comes back through leading pointers.
struct HalfPlace {
  uint16_t *bits;
  uint16_t *first() const { return bits; }
  void store(Real16 x) const { *bits = x.bits; }
};
template <class R> struct ComplexPlace {
  R *re, *im;
  R *first() const { return re; }
  void store(Complex<R> z) const {
    *re = z.re;
    *im = z.im;
  }
};
template <class R> ComplexPlace(R *, R *) -> ComplexPlace<R>;

// The same for such a result. A call that raises stores nothing, in any style: its pointers may lead nowhere.
template <class Op, class Form, class Place, class... T> inline auto evaluateInto(Place place, T... x) {
  error code = error::none;
  const auto result = compute<Op, Form>(code, x...);
  if (code != error::none) [[unlikely]]
    return raised(code, place.first());
  place.store(result);
  return place.first();
}

} // namespace torvane

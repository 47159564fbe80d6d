// Reductions: a run of elements into one accumulator.
//
// A reduction is a functor with an accumulator type, its initial value and a step. The routine stores the
// initial value itself: what the accumulator held does not count. Sums run strictly left to right, since
// their rounding is part of the interface.
#pragma once

#include "kernel.h"
#include "../scalar/bodies/arithmetic.h"

namespace torvane {

namespace reduction {

// A checked total fails at the first running sum that is out of range, or infinite or a NaN.
struct total {
  template <class T> using Accumulator = T;
  template <class T> static constexpr T initial() { return T{}; }
  template <class Form, class T> static constexpr T step(error &code, T sum, T x) {
    return compute<binary::plus, Form>(code, sum, x);
  }
};

} // namespace reduction

template <class Form, class Op, class T, class Accumulator>
inline __attribute__((always_inline)) mint reduceRun(Accumulator &accumulator, const T *data, mint stride,
                                                     mint count) {
  for (mint k = 0; k < count; ++k) {
    error code = error::none;
    accumulator = Op::template step<Form>(code, accumulator, data[ptrdiff_t{k} * stride]);
    if (code != error::none) [[unlikely]]
      return k + 1;
  }
  return 0;
}

// strides[0] is the accumulator's and is not read; strides[1] the data's.
template <class Op, class T>
mint reductionRoutine(void *accumulator, const void *data, mint count, const mint *strides, mint flags) {
  auto sum = Op::template initial<T>();
  const auto *elements = static_cast<const T *>(data);
  const bool checked = (flags & (isInteger<T> ? TORVANE_CHECK_INTEGERS : TORVANE_CHECK_REALS)) != 0;
  const mint stride = strides[1];
  mint position;
  if (checked)
    position = reduceRun<Checked, Op>(sum, elements, stride, count);
  else if (stride == 1)
    position = reduceRun<Plain, Op>(sum, elements, 1, count);
  else
    position = reduceRun<Plain, Op>(sum, elements, stride, count);
  *static_cast<typename Op::template Accumulator<T> *>(accumulator) = sum;
  return position;
}

} // namespace torvane

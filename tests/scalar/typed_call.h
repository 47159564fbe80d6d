// What the walks over typed entries have in common: samples of every scalar type that reach its edges, and a
// call of an entry whatever its convention.
#pragma once

#include "scalar/half.h"
#include "scalar/scalar_types.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <tuple>
#include <vector>

// The types once more, for a walk within a walk.
#define TORVANE_FOR_EACH_SECOND_SCALAR(X, T)                                                                 \
  X(T, Integer8)                                                                                             \
  X(T, UnsignedInteger8)                                                                                     \
  X(T, Integer16)                                                                                            \
  X(T, UnsignedInteger16)                                                                                    \
  X(T, Integer32)                                                                                            \
  X(T, UnsignedInteger32)                                                                                    \
  X(T, Integer64)                                                                                            \
  X(T, UnsignedInteger64)                                                                                    \
  X(T, Real16) X(T, Real32) X(T, Real64) X(T, ComplexReal32) X(T, ComplexReal64)

namespace torvane::test {

// ---- samples --------------------------------------------------------------------------------------

template <class R> std::vector<R> realSamples() {
  using Limits = std::numeric_limits<R>;
  std::vector<R> values;
  for (const R x :
       {R(0), R(0.3), R(0.5), R(1), R(1.5), R(2), R(3), R(8), R(100), R(1000), R(3e9), Limits::denorm_min(),
        Limits::min(), Limits::max(), Limits::infinity(), Limits::quiet_NaN()})
    values.insert(values.end(), {x, -x});
  return values;
}

template <class T> std::vector<T> samples() {
  std::vector<T> values;
  if constexpr (isComplex<T>) {
    const std::vector<RealPartOf<T>> parts = realSamples<RealPartOf<T>>();
    for (const auto re : parts)
      for (const auto im : parts) values.push_back({re, im});
  } else if constexpr (isHalf<T>) {
    for (const float x :
         {0.0f, 0.3f, 0.5f, 1.0f, 1.5f, 2.0f, 3.0f, 8.0f, 100.0f, 60000.0f, 1e-7f, HUGE_VALF, NAN})
      values.insert(values.end(), {narrow(x), Real16{static_cast<uint16_t>(narrow(x).bits | 0x8000)}});
  } else if constexpr (isReal<T>) {
    values = realSamples<T>();
  } else {
    using Limits = std::numeric_limits<T>;
    for (const T x :
         {T(0), T(1), T(2), T(3), T(4), T(5), T(7), T(8), T(10), T(16), T(48), T(100), T(127), Limits::max(),
          T(Limits::max() - 1), T(Limits::max() / 2 + 1), T(Limits::max() / 2), T(Limits::max() / 16)})
      values.insert(values.end(), {x, static_cast<T>(0 - x), static_cast<T>(~x)});
    values.push_back(Limits::min());
  }
  return values;
}

// ---- calls ----------------------------------------------------------------------------------------

template <class T> auto partsOf(T x) {
  if constexpr (isComplex<T>)
    return std::tuple(x.re, x.im);
  else if constexpr (isHalf<T>)
    return std::tuple(x.bits);
  else
    return std::tuple(x);
}

// Calls an entry; results behind pointers go to `parts`, which is not looked at for the others.
template <class R, class... A, class... T>
R callInto(std::remove_pointer_t<R> *parts, R (*entry)(A...), T... x) {
  const auto arguments = std::tuple_cat(partsOf(x)...);
  constexpr size_t places = sizeof...(A) - std::tuple_size_v<decltype(arguments)>;
  if constexpr (places == 2)
    return std::apply(entry,
                      std::tuple_cat(std::tuple(parts, parts == nullptr ? parts : parts + 1), arguments));
  else if constexpr (places == 1)
    return std::apply(entry, std::tuple_cat(std::tuple(parts), arguments));
  else
    return std::apply(entry, arguments);
}

inline mint valueCodeOf(double x) { return std::isnan(x) ? 9 : std::isinf(x) ? 6 : 0; }

} // namespace torvane::test

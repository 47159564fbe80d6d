// Integers worth trying, and a macro that walks the eight types.
#pragma once

#include "scalar/scalar_types.h"

#include <limits>
#include <random>
#include <vector>

#define TORVANE_FOR_EACH_INTEGER(X)                                                                          \
  X(Integer8)                                                                                                \
  X(UnsignedInteger8) X(Integer16) X(UnsignedInteger16) X(Integer32) X(UnsignedInteger32) X(Integer64)       \
      X(UnsignedInteger64)
// The same with a first argument, for pairs of types.
#define TORVANE_FOR_EACH_INTEGER_WITH(X, T)                                                                  \
  X(T, Integer8)                                                                                             \
  X(T, UnsignedInteger8) X(T, Integer16) X(T, UnsignedInteger16) X(T, Integer32) X(T, UnsignedInteger32)     \
      X(T, Integer64) X(T, UnsignedInteger64)

namespace torvane::test {

template <class T> inline constexpr int kBits = 8 * sizeof(T);

// Every value of a type of up to 16 bits.
template <class T> std::vector<T> everyValue() {
  std::vector<T> values;
  for (int64_t v = std::numeric_limits<T>::min(); v <= int64_t{std::numeric_limits<T>::max()}; ++v)
    values.push_back(static_cast<T>(v));
  return values;
}

// Powers of two and their neighbours, of both signs, the edges and their parts, and random values of every
// bit length. `step` thins the powers out.
template <class T> std::vector<T> boundaryValues(int step, int randomCount) {
  std::vector<T> values;
  for (int k = 0; k < kBits<T>; k += k < 5 || k > kBits<T> - 4 ? 1 : step)
    for (const uint64_t d : {~uint64_t{0}, uint64_t{0}, uint64_t{1}})
      for (const uint64_t sign : {uint64_t{0}, ~uint64_t{0}})
        values.push_back(static_cast<T>((((uint64_t{1} << k) + d) ^ sign) - sign));
  for (const T edge : {std::numeric_limits<T>::min(), std::numeric_limits<T>::max()})
    values.insert(values.end(),
                  {edge, static_cast<T>(edge / 2), static_cast<T>(edge / 3), static_cast<T>(edge / 10)});
  std::mt19937_64 random(20261121 + sizeof(T));
  for (int k = 0; k < randomCount; ++k) values.push_back(static_cast<T>(random() >> (random() % 64)));
  return values;
}

template <class T> std::vector<T> unaryOperands() {
  if constexpr (sizeof(T) <= 2)
    return everyValue<T>();
  else
    return boundaryValues<T>(1, 400);
}
template <class T> std::vector<T> pairOperands() {
  if constexpr (sizeof(T) == 1)
    return everyValue<T>();
  else
    return boundaryValues<T>(3, 60);
}

} // namespace torvane::test

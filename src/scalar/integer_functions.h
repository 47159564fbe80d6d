// Functions of integers with an exact integer value or none: logarithms of powers, Fibonacci and Lucas
// numbers, factorials.
//
// The sequences are tables that serve every width; a type's last index is that of the last entry it holds.
// What has no value raises the same code in the plain and in the checked form.
#pragma once

#include "../runtime/failure.h"
#include "magnitude.h"

namespace torvane {

// Entry n is sequence(n).
template <int count> struct IntegerTable {
  uint64_t entry[count] = {};

  // The largest index whose entry T holds, of a table that does not fall beyond its second entry.
  template <class T> constexpr mint lastOf() const {
    mint last = count - 1;
    while (entry[last] > static_cast<uint64_t>(kMaximum<T>)) --last;
    return last;
  }
};

template <int count> constexpr IntegerTable<count> sumsOfTwo(uint64_t first, uint64_t second) {
  IntegerTable<count> table;
  table.entry[0] = first;
  table.entry[1] = second;
  for (int n = 2; n < count; ++n) table.entry[n] = table.entry[n - 1] + table.entry[n - 2];
  return table;
}

// Entry n is (n - 1)!, and entry 0 is 0.
constexpr IntegerTable<22> factorials() {
  IntegerTable<22> table;
  table.entry[1] = 1;
  for (unsigned n = 2; n < 22; ++n) table.entry[n] = table.entry[n - 1] * (n - 1);
  return table;
}

constexpr IntegerTable<20> powersOfTen() {
  IntegerTable<20> table;
  table.entry[0] = 1;
  for (int n = 1; n < 20; ++n) table.entry[n] = table.entry[n - 1] * 10;
  return table;
}

inline constexpr IntegerTable<94> kFibonacci = sumsOfTwo<94>(0, 1);
inline constexpr IntegerTable<93> kLucas = sumsOfTwo<93>(2, 1);
inline constexpr IntegerTable<22> kFactorials = factorials();
inline constexpr IntegerTable<20> kPowersOfTen = powersOfTen();

// The base-2 logarithm of a power of two.
template <class T> constexpr T integerLog2(error &code, T x) {
  if (x <= T(0))
    code = error::domain;
  else if (!isPowerOfTwo(x))
    code = error::inexactLogarithm;
  return code == error::none ? static_cast<T>(trailingZeros(static_cast<uint64_t>(x))) : T(0);
}

// The base-10 logarithm of a power of ten. 1233 / 4096 is a little above log 2 / log 10, so that the guess
// from the bit length is right for every power of ten of 64 bits.
template <class T> constexpr T integerLog10(error &code, T x) {
  if (x <= T(0)) {
    code = error::domain;
    return 0;
  }
  const uint64_t value = static_cast<uint64_t>(x);
  const mint guess = topBit(value) * 1233 >> 12, k = value > kPowersOfTen.entry[guess] ? guess + 1 : guess;
  if (kPowersOfTen.entry[k] != value) code = error::inexactLogarithm;
  return static_cast<T>(k);
}

// Entry |n| of a sequence that runs to negative indices by changing the sign of every second entry: the
// even ones for Fibonacci numbers, the odd ones for Lucas numbers.
template <class T, int count>
constexpr T entryOfEitherSign(error &code, const IntegerTable<count> &table, mint last, unsigned negated,
                              T n) {
  const UnsignedOf<T> m = magnitudeBits(n);
  if (m > static_cast<UnsignedOf<T>>(last)) {
    code = error::integerOverflow;
    return 0;
  }
  const T value = static_cast<T>(table.entry[m]);
  return n < T(0) && (m & 1) == negated ? static_cast<T>(-value) : value;
}

template <class T> constexpr T integerFibonacci(error &code, T n) {
  constexpr mint last = kFibonacci.lastOf<T>();
  return entryOfEitherSign(code, kFibonacci, last, 0, n);
}

template <class T> constexpr T integerLucas(error &code, T n) {
  constexpr mint last = kLucas.lastOf<T>();
  return entryOfEitherSign(code, kLucas, last, 1, n);
}

// (n - 1)!
template <class T> constexpr T integerGamma(error &code, T n) {
  constexpr T last = static_cast<T>(kFactorials.lastOf<T>());
  if (n < T(1) || n > last) {
    code = error::integerOverflow;
    return 0;
  }
  return static_cast<T>(kFactorials.entry[n]);
}

} // namespace torvane

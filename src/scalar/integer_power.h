// Integer powers of integers.
//
// Exponents to 64 run straight-line multiplications, one per step of their addition chain; above, the bits
// of the exponent from the top. Products wrap, in the unsigned word that serves the width. The checked form
// compares the base with the largest one whose power fits, which the exact power exceeds exactly when some
// product of the chain would.
#pragma once

#include "../runtime/failure.h"
#include "addition_chain.h"
#include "magnitude.h"

namespace torvane {

template <int n, class Word> [[gnu::always_inline]] constexpr void climb(Word (&power)[kLongestChain + 1]) {
  if constexpr (n > 1) {
    constexpr int before = kPowerTree.parent[n];
    climb<before>(power);
    power[n] = power[before] * power[n - before];
  }
}

template <int n, class Word> [[gnu::always_inline]] constexpr Word chain(Word x) {
  if constexpr (n == 0) return 1;
  Word power[kLongestChain + 1];
  power[1] = x;
  climb<n>(power);
  return power[n];
}

// One body a word, out of line: its 65 chains would otherwise stand in every entry.
template <class Word> [[gnu::noinline]] Word chainPower(Word x, uint64_t y) {
#define TORVANE_CHAIN(n)                                                                                     \
  case n:                                                                                                    \
    return chain<n>(x);
#define TORVANE_CHAINS(n)                                                                                    \
  TORVANE_CHAIN(n)                                                                                           \
  TORVANE_CHAIN(n + 1)                                                                                       \
  TORVANE_CHAIN(n + 2) TORVANE_CHAIN(n + 3) TORVANE_CHAIN(n + 4) TORVANE_CHAIN(n + 5) TORVANE_CHAIN(n + 6)   \
      TORVANE_CHAIN(n + 7)
  switch (y) {
    TORVANE_CHAIN(0)
    TORVANE_CHAINS(1)
    TORVANE_CHAINS(9)
    TORVANE_CHAINS(17)
    TORVANE_CHAINS(25)
    TORVANE_CHAINS(33)
    TORVANE_CHAINS(41)
    TORVANE_CHAINS(49)
    TORVANE_CHAINS(57)
  }
#undef TORVANE_CHAINS
#undef TORVANE_CHAIN
  Word power = x;
  for (mint bit = topBit(y) - 1; bit >= 0; --bit) {
    power *= power;
    if ((y >> bit & 1) != 0) power *= x;
  }
  return power;
}

// Entry y is the largest magnitude whose power y does not exceed the maximum of T; from the width on only
// 0 and 1 have one.
template <class T> struct LargestBases {
  UnsignedOf<T> entry[kWidth<T>] = {};

  constexpr LargestBases() {
    entry[0] = static_cast<UnsignedOf<T>>(~UnsignedOf<T>(0));
    for (int y = 1; y < kWidth<T>; ++y)
      for (int bit = kWidth<T> / y; bit >= 0; --bit) raise(y, bit);
  }

private:
  constexpr void raise(int y, int bit) {
    if (bit >= kWidth<T>) return;
    const auto next = static_cast<UnsignedOf<T>>(entry[y] | UnsignedOf<T>(1) << bit);
    UnsignedOf<T> power = 1;
    for (int k = 0; k < y; ++k)
      if (__builtin_mul_overflow(power, next, &power)) return;
    if (power <= UnsignedOf<T>(kMaximum<T>)) entry[y] = next;
  }
};

template <class T> inline constexpr LargestBases<T> kLargestBases;

template <class T> constexpr bool powerFits(T x, uint64_t y) {
  const UnsignedOf<T> magnitude = magnitudeBits(x);
  return magnitude <= 1 || (y < kWidth<T> && magnitude <= kLargestBases<T>.entry[y]);
}

// The word that products of T wrap in.
template <class T> using PowerWord = ChooseOf<sizeof(T) == 8, uint64_t, uint32_t>;

// The power wrapped to T, of a base other than 0, 1 and -1.
template <class T> T wrappedPower(T x, uint64_t y) {
  using Word = PowerWord<T>;
  if (magnitudeBits(x) != 2) return static_cast<T>(chainPower(static_cast<Word>(x), y));
  // A power of two is one shift, whose count the processor takes modulo the word's width. Relied upon: 2^32
  // is 1 in 32 bits, not 0.
  const Word shifted = Word(1) << (y & (8 * sizeof(Word) - 1));
  return static_cast<T>(x < T(0) && (y & 1) != 0 ? Word(0) - shifted : shifted);
}

// The exponent's type only decides how it is read; a negative one has a power for 1 and -1 alone.
template <class Form, class T, class E> T integerPower(error &code, T x, E y) {
  const bool isOdd = (y & 1) != 0;
  if (x == T(1)) return 1;
  if (isSigned<T> && x == static_cast<T>(-1)) return static_cast<T>(isOdd ? -1 : 1);
  if (y < E(0) || (x == T(0) && y == E(0))) {
    code = error::domain;
    return 0;
  }
  if (x == T(0)) return 0;
  const uint64_t exponent = static_cast<uint64_t>(y);
  return Form::fit(code, Form::checked && !powerFits(x, exponent), wrappedPower(x, exponent));
}

} // namespace torvane

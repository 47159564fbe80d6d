// Scale: the range of the source goes onto the range of the target, so that the ends meet. No value fails.
//
// Integers map by shifts; what is positive is filled up from below, so that the greatest value meets the
// greatest. A real's range is -1 to 1 beside a signed type and 0 to 1 beside an unsigned one.
#pragma once

#include "conversion_rules.h"

namespace torvane {

template <class T> inline constexpr Word<T> kTopBit = static_cast<Word<T>>(Word<T>{1} << (kBitsOf<T> - 1));

// Between a signed type and an unsigned one the sign bit flips: the least value meets 0.
template <class From, class To> inline constexpr bool kFlips = isSigned<From> != isSigned<To>;

template <class To, class From> To scaledUp(From v) {
  constexpr int shift = kBitsOf<To> - kBitsOf<From>;
  if constexpr (!isSigned<From> && !isSigned<To>)
    return static_cast<To>(v * (kMost<To> / To(kMost<From>))); // repeats the bits
  constexpr auto fill = static_cast<Word<To>>((Word<To>{1} << shift) - 1);
  const auto shifted = static_cast<Word<To>>(static_cast<Word<To>>(v) << shift);
  const auto filled = static_cast<Word<To>>(shifted + (v > 0 ? fill : Word<To>{0}));
  return static_cast<To>(kFlips<From, To> ? filled + kTopBit<To> : filled);
}

template <class To, class From> To scaledDown(From v) {
  constexpr int shift = kBitsOf<From> - kBitsOf<To>;
  const Word<From> flipped = kFlips<From, To> ? kTopBit<From> : Word<From>{0};
  const auto top = static_cast<From>(static_cast<Word<From>>(v) ^ flipped);
  return static_cast<To>(top >> shift);
}

template <class To, class From> To scaledInteger(From v) {
  if constexpr (kBitsOf<From> < kBitsOf<To>)
    return scaledUp<To>(v);
  else
    return scaledDown<To>(v);
}

// A reciprocal in two parts: the first one's product with a source of up to 16 bits is exact in Real32.
struct SplitReciprocal {
  Real32 high, low;
};
template <class From> constexpr SplitReciprocal splitReciprocal(Real64 divisor) {
  const auto pattern = __builtin_bit_cast(uint32_t, static_cast<Real32>(1 / divisor));
  const auto high = __builtin_bit_cast(Real32, pattern & ~uint32_t{0} << kBitsOf<From>);
  return {high, static_cast<Real32>(1 / divisor - high)};
}

// What one division in Real64 and its narrowing yield, without either: a test tries all sources.
template <class From> Real32 scaledNarrow(From v) {
  constexpr SplitReciprocal above = splitReciprocal<From>(static_cast<Real64>(kMost<From>)),
                            below = splitReciprocal<From>(kTwoTo<Real64>(kDigits<From>));
  const auto x = static_cast<Real32>(v);
  const bool isAbove = !isSigned<From> || v > 0;
  return x * (isAbove ? above.high : below.high) + x * (isAbove ? above.low : below.low);
}

// One division in Real64, whose quotient is narrowed.
template <class R, class From> R scaledToReal(From v) {
  if constexpr (isSame<R, Real32> && kBitsOf<From> <= 16) return scaledNarrow(v);
  constexpr auto most = static_cast<Real64>(kMost<From>), least = kTwoTo<Real64>(kDigits<From>);
  return static_cast<R>(static_cast<Real64>(v) / (v > 0 ? most : least));
}

// Up to 32 bits a NaN is 0, and with 64 what the processor stores for want of an integer: callers rely on it.
template <class To> inline constexpr To kScaledNaN = kBitsOf<To> < 64 ? To(0) : static_cast<To>(kTopBit<To>);

template <class To> To truncated(Real64 product) {
  if constexpr (kBitsOf<To> <= 16)
    return static_cast<To>(static_cast<Integer32>(product));
  else if constexpr (kBitsOf<To> == 32)
    return static_cast<To>(product);
  else // the greatest value is no Real64: the power of two above it stands for it
    return product >= kTwoTo<Real64>(kDigits<To>) ? kMost<To> : static_cast<To>(product);
}

template <class To> To scaledFromReal(Real64 x) {
  constexpr auto most = static_cast<Real64>(kMost<To>), least = kTwoTo<Real64>(kDigits<To>);
  const Real64 c = clamped<Real64>({isSigned<To> ? -1.0 : 0.0, 1.0}, x);
  const To value = truncated<To>(c * (c > 0 ? most : least));
  return x != x ? kScaledNaN<To> : value;
}

} // namespace torvane

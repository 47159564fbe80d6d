// Loops of conversions over arrays.
//
// A loop runs by groups of a fixed length, which a compiler turns into vectors without a rest. The last group
// ends where the array ends, and converts elements of the one before once more, to the same.
//
// A rule that may fail has lanes: they convert without a branch and gather what makes them suspect that an
// element fails, or is not for them. A group is run for the suspicion alone, and then, from the nearest
// cache, for its values; one that is suspected is converted one by one. So nothing behind a failing element
// is written, and the common case is vector code. Lanes may suspect too much, never too little, and agree
// with the rule bit for bit.
#pragma once

#include "conversion_rules.h"

#include <emmintrin.h>

namespace torvane {

// The length of a group of elements of some width, known to whoever is given one in place of a count: long
// enough for the suspicion of all its lanes to be gathered, short enough for the processor to look ahead into
// the next one.
template <mint width> struct Group {
  static constexpr mint length = 1024 / width;
  constexpr operator mint() const { return length; }
};
template <class From, class To>
using GroupOf = Group<(sizeof(From) < sizeof(To) ? sizeof(To) : sizeof(From))>;

// Where the accesses of a long loop are to cross no cache line: the wider elements' first line border. A
// short loop does not gain what the beginning costs.
inline constexpr mint kLongBytes = 16384;
template <class From, class To> mint elementsUntilLine(const From *from, const To *to, mint count) {
  constexpr mint width = sizeof(From) < sizeof(To) ? sizeof(To) : sizeof(From);
  if (count < kLongBytes / width) return 0;
  const auto address =
      sizeof(From) < sizeof(To) ? reinterpret_cast<uintptr_t>(to) : reinterpret_cast<uintptr_t>(from);
  return static_cast<mint>(-address % 64) / width;
}

// convert(start, length) yields a status. The first group covers what stands before the line border.
template <class Group, class Convert>
[[gnu::always_inline]] inline mint forGroups(mint untilLine, mint count, Convert convert) {
  constexpr mint kLength = Group::length;
  if (count < kLength) return convert(0, count);
  const mint last = count - kLength;
  mint step = untilLine > 0 ? untilLine : kLength;
  for (mint start = 0;; step = kLength) {
    const mint status = convert(start, Group());
    if (status != kSuccess || start == last) return status;
    start = last - start > step ? start + step : last;
  }
}

// Lanes are copied, so that in each of these the compiler drops what the other one is for.
template <class Lanes, class From, class Length>
[[gnu::always_inline]] inline bool suspect(Lanes lanes, const From *from, Length length) {
  for (mint i = 0; i < length; ++i) static_cast<void>(lanes(from[i]));
  return lanes.isSuspicious();
}
template <class Lanes, class From, class To, class Length>
[[gnu::always_inline]] inline void runLanes(Lanes lanes, To *__restrict to, const From *__restrict from,
                                            Length length) {
  for (mint i = 0; i < length; ++i) store(to[i], lanes(from[i]));
}

// For lanes that cannot fail.
template <class Lanes, class From, class To>
mint convertAll(Lanes lanes, To *to, const From *from, mint count) {
  return forGroups<GroupOf<From, To>>(elementsUntilLine(from, to, count), count,
                                      [=](mint start, auto length) {
                                        runLanes(lanes, to + start, from + start, length);
                                        return mint{kSuccess};
                                      });
}

template <class Rule, class From, class To>
[[gnu::noinline]] mint convertOneByOne(const Conversion &conversion, To *to, const From *from, mint count) {
  for (mint i = 0; i < count; ++i) {
    RealPartOf<To> value;
    const mint status = Rule::convert(conversion, from[i], value);
    if (status != kSuccess) return status;
    store(to[i], value);
  }
  return kSuccess;
}

template <class Rule, class Lanes, class From, class To>
mint convertGroups(const Conversion &conversion, Lanes lanes, To *to, const From *from, mint count) {
  return forGroups<GroupOf<From, To>>(
      elementsUntilLine(from, to, count), count, [&](mint start, auto length) -> mint {
        if (suspect(lanes, from + start, length))
          return convertOneByOne<Rule>(conversion, to + start, from + start, length);
        runLanes(lanes, to + start, from + start, length);
        return kSuccess;
      });
}

// ---- lanes of integers ----

// Integers from -2^digits to below 2^digits are exact in a real, and some beyond.
template <class From, class To> constexpr Bounds<From> safeBounds() {
  if constexpr (isInteger<To>)
    return boundsOf<To, From>(false);
  else
    return {static_cast<From>(isSigned<From> ? -(int64_t{1} << kDigits<To>) : 0),
            static_cast<From>((int64_t{1} << kDigits<To>)-1)};
}

// The bounds are apart by a power of two less one, so that what lies beyond them has a bit beyond it.
template <class From, class To> struct BoundedLanes {
  static constexpr auto kLow = static_cast<Word<From>>(safeBounds<From, To>().low);
  static constexpr auto kRange =
      static_cast<Word<From>>(static_cast<Word<From>>(safeBounds<From, To>().high) - kLow);
  static_assert((kRange & (kRange + 1)) == 0);
  Word<From> strays = 0;
  To operator()(From x) {
    strays |= static_cast<Word<From>>(static_cast<Word<From>>(x) - kLow);
    return static_cast<To>(x);
  }
  bool isSuspicious() const { return (strays & ~kRange) != 0; }
};

// ---- lanes of reals ----

// Rounds to the nearest integer by adding 1.5 * 2^52 (or 2^23): the sum's pattern counts up with its value,
// so that the difference of patterns is the integer as long as it is small, and far from every small one
// otherwise, infinities and NaNs included.
template <class R> inline constexpr R kRounder = isSame<R, Real32> ? R(12582912) : R(6755399441055744);
template <class R> Word<R> patternOf(R x) { return __builtin_bit_cast(Word<R>, x); }

inline bool roundsToNearest() { return (_mm_getcsr() & _MM_ROUND_MASK) == _MM_ROUND_NEAREST; }

// The real in which lanes compute what goes into To.
template <class R, class To> using LaneReal = ChooseOf<isSame<R, Real32> && sizeof(To) <= 2, Real32, Real64>;

// What rounding adds to an element counts by its pattern too: 0 for an integer, and for nothing else.
template <bool agrees, class R, class To> struct RoundingLanes {
  using Lane = LaneReal<R, To>;
  Word<Lane> strays = 0, inexact = 0;
  To operator()(R from) {
    const Lane x = from, sum = x + kRounder<Lane>;
    const auto least =
        static_cast<Word<Lane>>(patternOf(kRounder<Lane>) + static_cast<Word<Lane>>(kLeast<To>));
    strays |= patternOf(sum) - least;
    if constexpr (agrees) inexact |= patternOf(sum - kRounder<Lane> - x);
    return static_cast<To>(patternOf(sum)); // the low bits of the rounder's pattern are 0
  }
  bool isSuspicious() const { return (strays >> (kBitsOf<To> - 1) >> 1) != 0 || inexact != 0; }
};

// What is clipped is suspect where it must agree with an integer: far from the bounds the sum tells nothing.
template <bool agrees, class R, class To> struct ClippingLanes {
  using Lane = LaneReal<R, To>;
  Bounds<Lane> bounds;
  Word<Lane> inexact = 0;
  To operator()(R from) {
    const Lane x = from, sum = clamped(bounds, x) + kRounder<Lane>;
    if constexpr (agrees) inexact |= patternOf(sum - kRounder<Lane> - x);
    return static_cast<To>(patternOf(sum));
  }
  bool isSuspicious() const { return inexact != 0; }
};

template <class Lane, class To> Bounds<Lane> realBoundsOf(bool isSymmetric) {
  return {static_cast<Lane>(kLeast<To>) + (isSigned<To> && isSymmetric ? Lane(1) : Lane(0)),
          static_cast<Lane>(kMost<To>)};
}

// Narrows, and suspects what became the largest Real32 or more, and what became less than a normal one but 0.
template <mint method> struct NarrowingLanes {
  uint32_t most = 0, least = ~uint32_t{0};
  uint64_t inexact = 0;
  Real32 operator()(Real64 x) {
    const auto value = static_cast<Real32>(x);
    const uint32_t magnitude = patternOf(value) & 0x7FFFFFFF, below = magnitude - 1; // of 0 all ones
    most = magnitude > most ? magnitude : most;
    least = below < least ? below : least;
    if constexpr (method == kCheck) inexact |= patternOf(static_cast<Real64>(value)) ^ patternOf(x);
    return method == kRound ? nearestInteger(value) : value;
  }
  bool isSuspicious() const { return most >= 0x7F7FFFFF || least < 0x00800000 || inexact != 0; }
};

} // namespace torvane

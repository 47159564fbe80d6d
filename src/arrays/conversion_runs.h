// Loops of conversions over arrays.
//
// A rule that may fail goes through blocks. Lanes compute a block into a buffer without a branch and gather
// what makes them suspect that an element fails, or is not for them; a block beyond suspicion is copied to
// its place, and any other is converted one by one. So nothing behind a failing element is written, and the
// common case is vector code. Lanes may suspect too much, never too little, and agree with the rule bit for
// bit.
#pragma once

#include "conversion_rules.h"

#include <emmintrin.h>

namespace torvane {

inline constexpr size_t kBlockBytes = 8192;
template <class From, class To>
inline constexpr mint kBlockOf = kBlockBytes / (sizeof(From) > sizeof(To) ? sizeof(From) : sizeof(To));

// Where the accesses of a long loop are to cross no cache line: the wider elements' first line border. A
// short loop does not gain what the beginning costs.
template <class From, class To> mint elementsUntilLine(const From *from, const To *to, mint count) {
  if (count < 2 * kBlockOf<From, To>) return 0;
  const auto address =
      sizeof(From) < sizeof(To) ? reinterpret_cast<uintptr_t>(to) : reinterpret_cast<uintptr_t>(from);
  constexpr mint width = sizeof(From) < sizeof(To) ? sizeof(To) : sizeof(From);
  return static_cast<mint>(-address % 64) / width;
}

// For lanes that cannot fail: what stands before the border, and the rest.
template <class Lanes, class From, class To>
mint convertAll(Lanes lanes, To *__restrict to, const From *__restrict from, mint count) {
  mint i = 0;
  for (mint end = elementsUntilLine(from, to, count); i < count; end = count)
    for (; i < end; ++i) store(to[i], lanes(from[i]));
  return kSuccess;
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

template <class Lanes, class From, class To>
[[gnu::always_inline]] inline bool computeBlock(Lanes lanes, To *__restrict block,
                                                const From *__restrict from, mint count) {
  for (mint i = 0; i < count; ++i) store(block[i], lanes(from[i]));
  return !lanes.isSuspicious();
}

// The length of a block is kept from the compiler's sight: where GCC knows its bound, it copies by a string
// instruction, which doubles the time of all.
template <class Rule, class Lanes, class From, class To>
mint convertBlocks(const Conversion &conversion, Lanes lanes, To *to, const From *from, mint count) {
  constexpr size_t length = kBlockOf<From, To>;
  alignas(64) To block[length];
  const auto total = static_cast<size_t>(count);
  size_t done = 0;
  for (auto end = static_cast<size_t>(elementsUntilLine(from, to, count)); done < total; end += length) {
    const size_t n = (end < total ? end : total) - done;
    if (computeBlock(lanes, block, from + done, static_cast<mint>(n))) {
      __builtin_memcpy(to + done, block, n * sizeof(To));
    } else {
      const mint status = convertOneByOne<Rule>(conversion, to + done, from + done, static_cast<mint>(n));
      if (status != kSuccess) return status;
    }
    done += n;
  }
  return kSuccess;
}

// ---- lanes of integers ----

// A block is in bounds if its least element and its greatest are.
template <class From, class To> struct BoundedLanes {
  Bounds<From> bounds;
  From least = 0, most = 0; // 0 is within all bounds
  To operator()(From x) {
    least = x < least ? x : least;
    most = x > most ? x : most;
    return static_cast<To>(x);
  }
  bool isSuspicious() const { return least < bounds.low || most > bounds.high; }
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

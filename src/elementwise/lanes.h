// Lane forms: the operators that may fail, written so that a compiler computes several elements at once.
//
// A lane computes one element without a branch and never fails: `lane(suspicion, operands...)` yields the
// value and has `suspicion` remember an element that may have failed. The contract with the body of the
// same operator (scalar/bodies): an element that is not suspect has the body's value and no code. The reverse
// is not asked: what is suspect is computed again by the body, so a lane may suspect a rare value that is
// none of its business. A lane of reals raises no exception that its body does not raise on the same value,
// unless the element fails.
#pragma once

#include "../scalar/evaluate.h"

namespace torvane {

template <class Op, class Form, class T> struct LanesOf {};

// Arithmetic that wraps is that of the bits.
constexpr uint32_t bitsOf(mint x) { return static_cast<uint32_t>(x); }
constexpr mint wrapped(uint32_t x) { return static_cast<mint>(x); }

// ---- checked integers -------------------------------------------------------------------------------

struct IntegerLanes {
  struct Suspicion {
    mint signs = 0, lowest = 0; // a sign that is set where bits were lost; the reserved value is the lowest
    constexpr bool any() const { return signs < 0 || lowest == kReserved<mint>; }
  };

  static constexpr mint unlessReserved(Suspicion &suspicion, mint x) {
    suspicion.lowest = x < suspicion.lowest ? x : suspicion.lowest;
    return x;
  }
  static constexpr mint sum(Suspicion &suspicion, mint x, mint y) {
    const mint s = wrapped(bitsOf(x) + bitsOf(y));
    suspicion.signs |= (x ^ s) & (y ^ s);
    return unlessReserved(suspicion, s);
  }
  static constexpr mint difference(Suspicion &suspicion, mint x, mint y) {
    const mint d = wrapped(bitsOf(x) - bitsOf(y));
    suspicion.signs |= (x ^ y) & (x ^ d);
    return unlessReserved(suspicion, d);
  }
  // Of the reserved value the value itself.
  static constexpr mint magnitude(mint x) { return wrapped(bitsOf(x ^ (x >> 31)) - bitsOf(x >> 31)); }
};

// One word whose sign is set by what an element must not be.
struct Mask {
  int64_t signs = 0;
  constexpr bool any() const { return signs < 0; }
  constexpr void add(bool isSuspect) { signs |= isSuspect ? -1 : 0; }
};

struct WideIntegerLanes { // for what 64 bits hold exactly
  using Suspicion = Mask;

  static constexpr mint fitted(Suspicion &suspicion, int64_t exact) {
    constexpr int64_t limit = 0x7FFFFFFF;
    suspicion.signs |= (exact + limit) | (limit - exact);
    return static_cast<mint>(static_cast<uint32_t>(exact));
  }
};

#define TORVANE_LANES(base, op, form, T) template <> struct LanesOf<op, form, T> : base

TORVANE_LANES(IntegerLanes, binary::plus, Checked, mint){
    static constexpr mint lane(Suspicion & suspicion, mint x, mint y){return sum(suspicion, x, y);
} // namespace torvane
}
;
TORVANE_LANES(IntegerLanes, binary::subtract, Checked, mint){
    static constexpr mint lane(Suspicion & suspicion, mint x, mint y){return difference(suspicion, x, y);
}
}
;
TORVANE_LANES(WideIntegerLanes, binary::times, Checked,
              mint){static constexpr mint lane(Suspicion & suspicion, mint x,
                                               mint y){return fitted(suspicion, int64_t{x} * y);
}
}
;
TORVANE_LANES(WideIntegerLanes, unary::square, Checked, mint){
    static constexpr mint lane(Suspicion & suspicion, mint x){return fitted(suspicion, int64_t{x} * x);
}
}
;
TORVANE_LANES(WideIntegerLanes, unary::abssquare, Checked, mint){
    static constexpr mint lane(Suspicion & suspicion, mint x){return fitted(suspicion, int64_t{x} * x);
}
}
;
TORVANE_LANES(IntegerLanes, unary::minus, Checked,
              mint){static constexpr mint lane(Suspicion & suspicion, mint x){
    return unlessReserved(suspicion, wrapped(0 - bitsOf(x)));
}
}
;
TORVANE_LANES(IntegerLanes, unary::abs, Checked, mint){
    static constexpr mint lane(Suspicion & suspicion, mint x){return unlessReserved(suspicion, magnitude(x));
}
}
;
TORVANE_LANES(IntegerLanes, unary::bit_not, Checked, mint){
    static constexpr mint lane(Suspicion & suspicion, mint x){return unlessReserved(suspicion, ~x);
}
}
;
TORVANE_LANES(IntegerLanes, binary::bit_and, Checked, mint){
    static constexpr mint lane(Suspicion & suspicion, mint x, mint y){return unlessReserved(suspicion, x &y);
}
}
;
TORVANE_LANES(IntegerLanes, binary::bit_or, Checked, mint){
    static constexpr mint lane(Suspicion & suspicion, mint x, mint y){return unlessReserved(suspicion, x | y);
}
}
;
TORVANE_LANES(IntegerLanes, binary::bit_xor, Checked, mint){
    static constexpr mint lane(Suspicion & suspicion, mint x, mint y){return unlessReserved(suspicion, x ^ y);
}
}
;
TORVANE_LANES(IntegerLanes, binary::abserr, Checked,
              mint){static constexpr mint lane(Suspicion & suspicion, mint x,
                                               mint y){return magnitude(difference(suspicion, x, y));
}
}
;
TORVANE_LANES(IntegerLanes, binary::maxabs, Checked,
              mint){static constexpr mint lane(Suspicion & suspicion, mint x, mint y){
    const mint a = magnitude(unlessReserved(suspicion, x)), b = magnitude(unlessReserved(suspicion, y));
return a < b ? b : a;
}
}
;
TORVANE_LANES(WideIntegerLanes, ternary::axpy, Checked,
              mint){static constexpr mint lane(Suspicion & suspicion, mint a, mint x,
                                               mint y){return fitted(suspicion, int64_t{a} * x + y);
}
}
;
TORVANE_LANES(WideIntegerLanes, ternary::axmy, Checked,
              mint){static constexpr mint lane(Suspicion & suspicion, mint a, mint x,
                                               mint y){return fitted(suspicion, int64_t{a} * x - y);
}
}
;
TORVANE_LANES(WideIntegerLanes, ternary::ymax, Checked,
              mint){static constexpr mint lane(Suspicion & suspicion, mint a, mint x,
                                               mint y){return fitted(suspicion, y - int64_t{a} * x);
}
}
;

// ---- reals: what both forms refuse ------------------------------------------------------------------

struct RealLanes {
  using Suspicion = Mask;
};

// The processor converts what does not fit, and a NaN, to the reserved value. Next to the ends of the range
// the body decides.
struct WordLanes {
  struct Suspicion {
    mint lowest = 0, highest = 0;
    constexpr bool any() const { return lowest <= -kMaximumWord || highest == kMaximumWord; }
  };
  static constexpr mint kMaximumWord = 0x7FFFFFFF;

  static constexpr mint guarded(Suspicion &suspicion, mint x) {
    suspicion.lowest = x < suspicion.lowest ? x : suspicion.lowest;
    suspicion.highest = x > suspicion.highest ? x : suspicion.highest;
    return x;
  }
  // From the nearest integer, which every level but the lowest finds in one instruction that leaves the
  // exceptions alone; the floor itself is a call for a compiler that minds them. What does not fit comes out
  // as one of the ends. The sign of a zero does not show in an integer.
  static mint floorOf(Suspicion &suspicion, mreal x) {
    const mreal nearest = __builtin_rint(x);
    return guarded(suspicion, wrapped(bitsOf(static_cast<mint>(nearest)) - (nearest > x)));
  }
};

TORVANE_LANES(WordLanes, unary::round, Plain, mreal){static mint lane(Suspicion & suspicion, mreal x){
    return guarded(suspicion, static_cast<mint>(__builtin_rint(x)));
}
}
;
TORVANE_LANES(WordLanes, unary::floor, Plain,
              mreal){static mint lane(Suspicion & suspicion, mreal x){return floorOf(suspicion, x);
}
}
;
TORVANE_LANES(WordLanes, unary::ceiling, Plain, mreal){
    static mint lane(Suspicion & suspicion, mreal x){return wrapped(0 - bitsOf(floorOf(suspicion, -x)));
}
}
;
TORVANE_LANES(WordLanes, unary::intpart, Plain, mreal){
    static mint lane(Suspicion & suspicion, mreal x){return guarded(suspicion, static_cast<mint>(x));
}
}
;
TORVANE_LANES(WordLanes, binary::quotient, Plain, mreal){
    static mint lane(Suspicion & suspicion, mreal x, mreal y){return floorOf(suspicion, x / y);
}
}
;
TORVANE_LANES(RealLanes, unary::sqrt, Plain,
              mreal){static mreal lane(Suspicion & suspicion, mreal x){suspicion.add(x < 0);
return __builtin_sqrt(x);
}
}
;
TORVANE_LANES(RealLanes, unary::rsqrt, Plain,
              mreal){static mreal lane(Suspicion & suspicion, mreal x){suspicion.add(x < 0);
return 1 / __builtin_sqrt(x);
}
}
;
TORVANE_LANES(RealLanes, unary::arg, Plain,
              mreal){static mreal lane(Suspicion & suspicion, mreal x){suspicion.add(x < 0);
return 0;
}
}
;
TORVANE_LANES(RealLanes, binary::chop, Plain, mreal){
    static mreal lane(Suspicion & suspicion, mreal x, mreal tolerance){suspicion.add(tolerance < 0);
return tolerance > __builtin_fabs(x) ? 0 : x;
}
}
;
TORVANE_LANES(RealLanes, binary::unitize, Plain, mreal){
    static mint lane(Suspicion & suspicion, mreal x, mreal tolerance){suspicion.add(tolerance < 0);
return __builtin_fabs(x) >= tolerance;
}
}
;

#undef TORVANE_LANES

} // namespace torvane

// Lane forms: the operators that may fail, written so that a compiler computes several elements at once.
//
// A lane computes one element without a branch and never fails: `lane(suspicion, operands...)` yields the
// value and has `suspicion` remember an element that may have failed. The contract with the body of the
// same operator (scalar/bodies): an element that is not suspect has the body's value and no code. The reverse
// is not asked: what is suspect is computed again by the body, so a lane may suspect a rare value that is
// none of its business. A lane of reals raises no exception that its body does not raise on the same value,
// unless the element fails. Where a level has more than the compiler makes of `lane`, `first` computes some
// of the first elements of a dense run and tells how many.
#pragma once

#include "../scalar/evaluate.h"
#include "square_roots.h"

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

template <> struct LanesOf<binary::plus, Checked, mint> : IntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint x, mint y) { return sum(suspicion, x, y); }
};
template <> struct LanesOf<binary::subtract, Checked, mint> : IntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint x, mint y) { return difference(suspicion, x, y); }
};
template <> struct LanesOf<binary::times, Checked, mint> : WideIntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint x, mint y) {
    return fitted(suspicion, int64_t{x} * y);
  }
};
template <> struct LanesOf<unary::square, Checked, mint> : WideIntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint x) { return fitted(suspicion, int64_t{x} * x); }
};
template <> struct LanesOf<unary::abssquare, Checked, mint> : WideIntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint x) { return fitted(suspicion, int64_t{x} * x); }
};
template <> struct LanesOf<unary::minus, Checked, mint> : IntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint x) {
    return unlessReserved(suspicion, wrapped(0 - bitsOf(x)));
  }
};
template <> struct LanesOf<unary::abs, Checked, mint> : IntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint x) { return unlessReserved(suspicion, magnitude(x)); }
};
template <> struct LanesOf<unary::bit_not, Checked, mint> : IntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint x) { return unlessReserved(suspicion, ~x); }
};
template <> struct LanesOf<binary::bit_and, Checked, mint> : IntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint x, mint y) {
    return unlessReserved(suspicion, x & y);
  }
};
template <> struct LanesOf<binary::bit_or, Checked, mint> : IntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint x, mint y) {
    return unlessReserved(suspicion, x | y);
  }
};
template <> struct LanesOf<binary::bit_xor, Checked, mint> : IntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint x, mint y) {
    return unlessReserved(suspicion, x ^ y);
  }
};
template <> struct LanesOf<binary::abserr, Checked, mint> : IntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint x, mint y) {
    return magnitude(difference(suspicion, x, y));
  }
};
template <> struct LanesOf<binary::maxabs, Checked, mint> : IntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint x, mint y) {
    const mint a = magnitude(unlessReserved(suspicion, x)), b = magnitude(unlessReserved(suspicion, y));
    return a < b ? b : a;
  }
};
template <> struct LanesOf<ternary::axpy, Checked, mint> : WideIntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint a, mint x, mint y) {
    return fitted(suspicion, int64_t{a} * x + y);
  }
};
template <> struct LanesOf<ternary::axmy, Checked, mint> : WideIntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint a, mint x, mint y) {
    return fitted(suspicion, int64_t{a} * x - y);
  }
};
template <> struct LanesOf<ternary::ymax, Checked, mint> : WideIntegerLanes {
  static constexpr mint lane(Suspicion &suspicion, mint a, mint x, mint y) {
    return fitted(suspicion, y - int64_t{a} * x);
  }
};

// ---- reals: what both forms refuse ------------------------------------------------------------------

struct RealLanes {
  using Suspicion = Mask;
};

// Reals to words without the processor's conversion, which levels have at different widths and C++ only where
// the value fits. A sum with 3 * 2^51 is rounded to an integer, by the rounding in force, and holds it in the
// low bits of its pattern: T. J. Dekker's device for the double format. What is not well inside the range of
// a word, a NaN among it, is left to the body.
struct WordLanes {
  using Suspicion = Mask;
  static constexpr mreal kRounder = 6755399441055744.0, kSafe = 2147483645.0;

  static constexpr int64_t patternOf(mreal x) { return __builtin_bit_cast(int64_t, x); }

  // As a comparison of the patterns of magnitudes, which orders NaN last and accrues nothing.
  static constexpr void guard(Suspicion &suspicion, mreal x) {
    suspicion.signs |= patternOf(kSafe) - patternOf(__builtin_fabs(x));
  }
  static constexpr mint lowWord(int64_t pattern) { return wrapped(static_cast<uint32_t>(pattern)); }

  // From the nearest integer. The sign of a zero does not show in a word.
  static mint floorOf(Suspicion &suspicion, mreal x) {
    guard(suspicion, x);
    const mreal sum = x + kRounder;
    return lowWord(patternOf(sum) - (sum - kRounder > x));
  }
};

template <> struct LanesOf<unary::round, Plain, mreal> : WordLanes {
  static mint lane(Suspicion &suspicion, mreal x) {
    guard(suspicion, x);
    return lowWord(patternOf(x + kRounder));
  }
};
template <> struct LanesOf<unary::floor, Plain, mreal> : WordLanes {
  static mint lane(Suspicion &suspicion, mreal x) { return floorOf(suspicion, x); }
};
template <> struct LanesOf<unary::ceiling, Plain, mreal> : WordLanes {
  static mint lane(Suspicion &suspicion, mreal x) { return wrapped(0 - bitsOf(floorOf(suspicion, -x))); }
};
template <> struct LanesOf<unary::intpart, Plain, mreal> : WordLanes {
  static mint lane(Suspicion &suspicion, mreal x) {
    const mint whole = floorOf(suspicion, __builtin_fabs(x));
    return x < 0 ? wrapped(0 - bitsOf(whole)) : whole;
  }
};
template <> struct LanesOf<binary::quotient, Plain, mreal> : WordLanes {
  static mint lane(Suspicion &suspicion, mreal x, mreal y) { return floorOf(suspicion, x / y); }
};
template <> struct LanesOf<unary::sqrt, Plain, mreal> : RealLanes {
  static mreal lane(Suspicion &suspicion, mreal x) {
    suspicion.add(x < 0);
    return __builtin_sqrt(x);
  }
#ifdef __AVX512DQ__
  static ptrdiff_t first(Suspicion &suspicion, mreal *result, ptrdiff_t count, const mreal *x) {
    const SquareRoots roots = squareRoots(result, x, count);
    suspicion.add(roots.anyNegative);
    return roots.done;
  }
#endif
};
template <> struct LanesOf<unary::rsqrt, Plain, mreal> : RealLanes {
  static mreal lane(Suspicion &suspicion, mreal x) {
    suspicion.add(x < 0);
    return 1 / __builtin_sqrt(x);
  }
};
template <> struct LanesOf<unary::arg, Plain, mreal> : RealLanes {
  static mreal lane(Suspicion &suspicion, mreal x) {
    suspicion.add(x < 0);
    return 0;
  }
};
template <> struct LanesOf<binary::chop, Plain, mreal> : RealLanes {
  static mreal lane(Suspicion &suspicion, mreal x, mreal tolerance) {
    suspicion.add(tolerance < 0);
    return tolerance > __builtin_fabs(x) ? 0 : x;
  }
};
template <> struct LanesOf<binary::unitize, Plain, mreal> : RealLanes {
  static mint lane(Suspicion &suspicion, mreal x, mreal tolerance) {
    suspicion.add(tolerance < 0);
    return __builtin_fabs(x) >= tolerance;
  }
};

} // namespace torvane

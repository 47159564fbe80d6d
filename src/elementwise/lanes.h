// Lane forms: the operators that may fail, written so that a compiler computes several elements at once.
//
// A lane computes one element without a branch and never fails: `lane(suspicion, operands...)` yields the
// value and makes `suspicion` negative where the element may have failed. The contract with the body of the
// same operator (scalar/bodies): an element that is not suspect has the body's value and no code. The reverse
// is not asked: what is suspect is computed again by the body, so a lane may suspect a rare value that is
// none of its business. A lane of reals raises no exception that its body does not raise on the same value,
// unless the element fails.
#pragma once

#include "../scalar/evaluate.h"

namespace torvane {

template <class Op, class Form, class T> struct LanesOf {};

// ---- checked integers: the sign of `suspicion` collects lost bits and reserved values ---------------

struct IntegerLanes {
  using Suspicion = mint;

  static constexpr uint32_t bits(mint x) { return static_cast<uint32_t>(x); }
  static constexpr mint word(uint32_t x) { return static_cast<mint>(x); }
  static constexpr mint unlessReserved(mint &suspicion, mint x) {
    suspicion |= x == kReserved<mint> ? -1 : 0;
    return x;
  }
  static constexpr mint sum(mint &suspicion, mint x, mint y) {
    const mint s = word(bits(x) + bits(y));
    suspicion |= (x ^ s) & (y ^ s);
    return unlessReserved(suspicion, s);
  }
  static constexpr mint difference(mint &suspicion, mint x, mint y) {
    const mint d = word(bits(x) - bits(y));
    suspicion |= (x ^ y) & (x ^ d);
    return unlessReserved(suspicion, d);
  }
  // Of the reserved value the value itself.
  static constexpr mint magnitude(mint x) { return word(bits(x ^ (x >> 31)) - bits(x >> 31)); }
};

struct WideIntegerLanes { // for what 64 bits hold exactly
  using Suspicion = int64_t;

  static constexpr mint fitted(int64_t &suspicion, int64_t exact) {
    constexpr int64_t limit = 0x7FFFFFFF;
    suspicion |= (exact + limit) | (limit - exact);
    return static_cast<mint>(static_cast<uint32_t>(exact));
  }
};

#define TORVANE_LANES(base, op, form, T)                                                                     \
  template <> struct LanesOf<op, form, T> : base

TORVANE_LANES(IntegerLanes, binary::plus, Checked, mint) {
  static constexpr mint lane(mint &suspicion, mint x, mint y) { return sum(suspicion, x, y); }
};
TORVANE_LANES(IntegerLanes, binary::subtract, Checked, mint) {
  static constexpr mint lane(mint &suspicion, mint x, mint y) { return difference(suspicion, x, y); }
};
TORVANE_LANES(WideIntegerLanes, binary::times, Checked, mint) {
  static constexpr mint lane(int64_t &suspicion, mint x, mint y) { return fitted(suspicion, int64_t{x} * y); }
};
TORVANE_LANES(WideIntegerLanes, unary::square, Checked, mint) {
  static constexpr mint lane(int64_t &suspicion, mint x) { return fitted(suspicion, int64_t{x} * x); }
};
TORVANE_LANES(WideIntegerLanes, unary::abssquare, Checked, mint) {
  static constexpr mint lane(int64_t &suspicion, mint x) { return fitted(suspicion, int64_t{x} * x); }
};
TORVANE_LANES(IntegerLanes, unary::minus, Checked, mint) {
  static constexpr mint lane(mint &suspicion, mint x) {
    return unlessReserved(suspicion, word(0 - bits(x)));
  }
};
TORVANE_LANES(IntegerLanes, unary::abs, Checked, mint) {
  static constexpr mint lane(mint &suspicion, mint x) { return unlessReserved(suspicion, magnitude(x)); }
};
TORVANE_LANES(IntegerLanes, unary::bit_not, Checked, mint) {
  static constexpr mint lane(mint &suspicion, mint x) { return unlessReserved(suspicion, ~x); }
};
TORVANE_LANES(IntegerLanes, binary::bit_and, Checked, mint) {
  static constexpr mint lane(mint &suspicion, mint x, mint y) { return unlessReserved(suspicion, x & y); }
};
TORVANE_LANES(IntegerLanes, binary::bit_or, Checked, mint) {
  static constexpr mint lane(mint &suspicion, mint x, mint y) { return unlessReserved(suspicion, x | y); }
};
TORVANE_LANES(IntegerLanes, binary::bit_xor, Checked, mint) {
  static constexpr mint lane(mint &suspicion, mint x, mint y) { return unlessReserved(suspicion, x ^ y); }
};
TORVANE_LANES(IntegerLanes, binary::abserr, Checked, mint) {
  static constexpr mint lane(mint &suspicion, mint x, mint y) {
    return magnitude(difference(suspicion, x, y));
  }
};
TORVANE_LANES(IntegerLanes, binary::maxabs, Checked, mint) {
  static constexpr mint lane(mint &suspicion, mint x, mint y) {
    const mint a = magnitude(unlessReserved(suspicion, x)), b = magnitude(unlessReserved(suspicion, y));
    return a < b ? b : a;
  }
};
TORVANE_LANES(WideIntegerLanes, ternary::axpy, Checked, mint) {
  static constexpr mint lane(int64_t &suspicion, mint a, mint x, mint y) {
    return fitted(suspicion, int64_t{a} * x + y);
  }
};
TORVANE_LANES(WideIntegerLanes, ternary::axmy, Checked, mint) {
  static constexpr mint lane(int64_t &suspicion, mint a, mint x, mint y) {
    return fitted(suspicion, int64_t{a} * x - y);
  }
};
TORVANE_LANES(WideIntegerLanes, ternary::ymax, Checked, mint) {
  static constexpr mint lane(int64_t &suspicion, mint a, mint x, mint y) {
    return fitted(suspicion, y - int64_t{a} * x);
  }
};

// ---- reals: what both forms refuse ------------------------------------------------------------------

struct RealLanes {
  using Suspicion = int64_t;

  // Away from the ends of the range, where the body decides, as it does for a NaN.
  static void suspectUnlessWord(int64_t &suspicion, mreal x) {
    suspicion |= __builtin_fabs(x) < 2147483646.0 ? 0 : -1;
  }
};

// Floor and ceiling start from the nearest integer, which every level but the lowest finds in one instruction
// whatever the exceptions: the functions themselves raise `inexact` or not as the compiler pleases, and are
// calls then. The sign of a zero does not show in an integer.
TORVANE_LANES(RealLanes, unary::round, Plain, mreal) {
  static mint lane(int64_t &suspicion, mreal x) {
    suspectUnlessWord(suspicion, x);
    return static_cast<mint>(__builtin_rint(x));
  }
};
TORVANE_LANES(RealLanes, unary::floor, Plain, mreal) {
  static mint lane(int64_t &suspicion, mreal x) {
    suspectUnlessWord(suspicion, x);
    const mreal nearest = __builtin_rint(x);
    return static_cast<mint>(nearest) - (nearest > x);
  }
};
TORVANE_LANES(RealLanes, unary::ceiling, Plain, mreal) {
  static mint lane(int64_t &suspicion, mreal x) {
    suspectUnlessWord(suspicion, x);
    const mreal nearest = __builtin_rint(x);
    return static_cast<mint>(nearest) + (nearest < x);
  }
};
TORVANE_LANES(RealLanes, unary::intpart, Plain, mreal) {
  static mint lane(int64_t &suspicion, mreal x) {
    suspectUnlessWord(suspicion, x);
    return static_cast<mint>(x);
  }
};
TORVANE_LANES(RealLanes, binary::quotient, Plain, mreal) {
  static mint lane(int64_t &suspicion, mreal x, mreal y) {
    return LanesOf<unary::floor, Plain, mreal>::lane(suspicion, x / y);
  }
};
TORVANE_LANES(RealLanes, unary::sqrt, Plain, mreal) {
  static mreal lane(int64_t &suspicion, mreal x) {
    suspicion |= x < 0 ? -1 : 0;
    return __builtin_sqrt(x);
  }
};
TORVANE_LANES(RealLanes, unary::rsqrt, Plain, mreal) {
  static mreal lane(int64_t &suspicion, mreal x) {
    suspicion |= x < 0 ? -1 : 0;
    return 1 / __builtin_sqrt(x);
  }
};
TORVANE_LANES(RealLanes, unary::arg, Plain, mreal) {
  static mreal lane(int64_t &suspicion, mreal x) {
    suspicion |= x < 0 ? -1 : 0;
    return 0;
  }
};
TORVANE_LANES(RealLanes, binary::chop, Plain, mreal) {
  static mreal lane(int64_t &suspicion, mreal x, mreal tolerance) {
    suspicion |= tolerance < 0 ? -1 : 0;
    return tolerance > __builtin_fabs(x) ? 0 : x;
  }
};
TORVANE_LANES(RealLanes, binary::unitize, Plain, mreal) {
  static mint lane(int64_t &suspicion, mreal x, mreal tolerance) {
    suspicion |= tolerance < 0 ? -1 : 0;
    return __builtin_fabs(x) >= tolerance;
  }
};

#undef TORVANE_LANES

} // namespace torvane

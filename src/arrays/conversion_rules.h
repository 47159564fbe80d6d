// The rules of conversion, one value at a time: what a value becomes, or the status of its failure. The loops
// of conversion_runs.h are these over arrays, by other means where those are faster.
//
// Reals that fall outside an integer give status 1, reals that are not close enough to one 1305: callers tell
// the two apart.
#pragma once

#include "../scalar/scalar_types.h"
#include "agreement.h"
#include "conversion.h"
#include "conversion_loops.h"

namespace torvane {

using torvane_loops::Conversion;

// The unsigned integer of a type's width.
template <class T>
using Word = ChooseOf<sizeof(T) == 1, uint8_t,
                      ChooseOf<sizeof(T) == 2, uint16_t, ChooseOf<sizeof(T) == 4, uint32_t, uint64_t>>>;

template <class T> inline constexpr int kBitsOf = 8 * static_cast<int>(sizeof(T));
template <class T> inline constexpr T kLeast = kReserved<T>;
template <class T>
inline constexpr T kMost = isSigned<T> ? static_cast<T>(~kReserved<T>) : static_cast<T>(-1);

// Bits of a magnitude, and of a significand.
template <class T> inline constexpr int kDigits = kBitsOf<T> - isSigned<T>;
template <> inline constexpr int kDigits<Real32> = 24;
template <> inline constexpr int kDigits<Real64> = 53;
template <class R> inline constexpr R kLargestFinite = R(3.4028234663852886e38);
template <> inline constexpr Real64 kLargestFinite<Real64> = 1.7976931348623157e308;

// 2^n. Exact in every real type for n up to 64.
template <class R> inline constexpr R kTwoTo(int n) {
  return n < 64 ? static_cast<R>(uint64_t{1} << n) : R(2) * static_cast<R>(uint64_t{1} << 63);
}

inline mint passIf(bool holds) {
  if (holds) return kSuccess;
  return kNoPass;
}

// What a complex target takes of a real rule.
template <class To> void store(To &to, RealPartOf<To> value) {
  if constexpr (isComplex<To>)
    to = {value, 0};
  else
    to = value;
}

// ---- from integers ----

// Whether every value of From is one of To, integer or real.
template <class From, class To>
inline constexpr bool kAlwaysFits = (isReal<To> || isSigned<To> ||
                                     !isSigned<From>)&&kDigits<From> <= kDigits<To>;

// The values of From that an integer target holds.
template <class From> struct Bounds { From low, high; };
template <class To, class From> constexpr Bounds<From> boundsOf(bool isSymmetric) {
  Bounds<From> bounds = {kLeast<From>, kMost<From>};
  if constexpr (kDigits<To> < kDigits<From>) bounds.high = static_cast<From>(kMost<To>);
  if constexpr (isSigned<From> && !isSigned<To>)
    bounds.low = 0;
  else if constexpr (isSigned<From> && kDigits<To> < kDigits<From>)
    bounds.low = static_cast<From>(kLeast<To> + isSymmetric);
  return bounds;
}

template <class From> From clamped(Bounds<From> bounds, From x) {
  const From raised = x > bounds.low ? x : bounds.low; // a NaN comes out as the low bound
  return raised < bounds.high ? raised : bounds.high;
}

// Whether a real type has this value: its significant bits are no more than a significand's. Told by the
// bits, because a conversion to the real and back may go through registers that are wider than it.
template <class R, class From> bool isExactIn(From v) {
  const auto bits = static_cast<uint64_t>(v);
  const uint64_t magnitude = v < From(0) ? 0 - bits : bits;
  return magnitude == 0 || magnitude >> __builtin_ctzll(magnitude) >> kDigits<R> == 0;
}

// Check of an integer in a real type. A clipped value that is merely inexact becomes the extreme of its sign:
// callers rely on it, as on a mark that nothing else yields.
template <class R, class From> mint checkExact(const Conversion &conversion, From v, R &value) {
  const bool isExact = isExactIn<R>(v);
  if (!isExact && !conversion.clips) return kNoPass;
  const R extreme = v < From(0) ? -kLargestFinite<R> : kLargestFinite<R>;
  value = isExact ? static_cast<R>(v) : extreme;
  return kSuccess;
}

// ---- from reals to integers ----

inline Real32 withSignOf(Real32 magnitude, Real32 x) { return __builtin_copysignf(magnitude, x); }
inline Real64 withSignOf(Real64 magnitude, Real64 x) { return __builtin_copysign(magnitude, x); }

// By the rounding mode in force, ties to even but for a host that has set another. Below SSE4.1 there is no
// instruction for it, and what compilers put in its place rounds magnitudes, which is right to nearest alone.
#ifdef __SSE4_1__
inline Real32 nearestInteger(Real32 x) { return __builtin_rintf(x); }
inline Real64 nearestInteger(Real64 x) { return __builtin_rint(x); }
#else
template <class R> R nearestInteger(R x) {
  constexpr R noFraction = kTwoTo<R>(kDigits<R> - 1);
  const R unit = withSignOf(noFraction, x), r = x + unit - unit;
  return magnitudeOf(x) < noFraction ? withSignOf(r, x) : x;
}
#endif

// Whether an integral real lies in an integer type. Its powers of two are exact in R where its bounds are
// not.
template <class To, class R> bool holds(R r, bool isSymmetric) {
  if (!(r < kTwoTo<R>(kDigits<To>))) return false;
  if constexpr (!isSigned<To>)
    return r >= 0;
  else
    return isSymmetric ? r > -kTwoTo<R>(kDigits<To>) : r >= -kTwoTo<R>(kDigits<To>);
}

template <mint method, class R, class To> mint roundInto(const Conversion &conversion, R x, To &value) {
  const R r = nearestInteger(x);
  if (method != kRound && !agree(conversion.tolerance, conversion.factor, x, r)) return kNoPass;
  if (holds<To>(r, conversion.isSymmetric)) {
    value = static_cast<To>(r);
    return kSuccess;
  }
  if (!conversion.clips) return kWrongType;
  const To least = static_cast<To>(kLeast<To> + (isSigned<To> && conversion.isSymmetric));
  value = x >= 0 ? kMost<To> : least; // of a NaN the least
  return kSuccess;
}

// ---- from reals to reals ----

// Whether a Real64 has a Real32: not beyond the finite ones, unless it is clipped, and no infinity nor NaN in
// any case. What lies below the normal ones is a zero of its sign.
inline bool narrow(Real64 x, bool clips, Real32 &value) {
  const Real64 magnitude = magnitudeOf(x);
  if (magnitude < 1.1754943508222875e-38)
    value = static_cast<Real32>(withSignOf(0.0, x));
  else if (magnitude <= kLargestFinite<Real32>)
    value = static_cast<Real32>(x);
  else if (clips && magnitude <= kLargestFinite<Real64>)
    value = x < 0 ? -kLargestFinite<Real32> : kLargestFinite<Real32>;
  else
    return false;
  return true;
}

// What is clipped is not held against the value that it replaces.
inline mint checkNarrowed(const Conversion &conversion, Real64 x, Real32 &value) {
  if (narrow(x, false, value))
    return passIf(agree(conversion.tolerance, conversion.factor, static_cast<Real64>(value), x));
  if (!conversion.clips) return kNoPass;
  value = x >= 0 ? kLargestFinite<Real32> : -kLargestFinite<Real32>; // of a NaN the negative one
  return kSuccess;
}

template <mint method> mint convertReal(const Conversion &conversion, Real64 x, Real32 &value) {
  if (method == kCheck) return checkNarrowed(conversion, x, value);
  if (!narrow(x, conversion.clips, value)) return kNoPass;
  if (method == kRound) value = nearestInteger(value);
  return kSuccess;
}

template <mint method, class R> mint convertReal(const Conversion &, R x, Real64 &value) {
  value = static_cast<Real64>(method == kRound ? nearestInteger(x) : x);
  return kSuccess;
}

template <mint method> mint convertReal(const Conversion &, Real32 x, Real32 &value) {
  value = method == kRound ? nearestInteger(x) : x;
  return kSuccess;
}

// ---- from complexes ----

// Whether a complex may stand for its real part: the part and what the imaginary one leaves of it agree. With
// Check no imaginary part passes, whatever the tolerance.
template <mint method, class R> bool isNegligible(const Conversion &conversion, R re, R im) {
  if (im == 0) return true;
  if (method == kCheck || conversion.tolerance < 0) return false;
  const bool areOneSigned = __builtin_signbit(re) == __builtin_signbit(im);
  return agree(conversion.tolerance, conversion.factor, re, areOneSigned ? re - im : re + im);
}

} // namespace torvane

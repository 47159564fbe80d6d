// The loops of one integer type as a source, for the units of the two classes.
#pragma once

#include "conversion_runs.h"
#include "conversion_scale.h"

namespace torvane {

template <class From, class To> struct IntegerRule {
  static mint convert(const Conversion &conversion, From x, RealPartOf<To> &value) {
    if constexpr (isInteger<To>) {
      const auto bounds = boundsOf<To, From>(conversion.isSymmetric);
      if (!conversion.clips && (x < bounds.low || x > bounds.high)) return kNoPass;
      value = static_cast<To>(clamped(bounds, x));
      return kSuccess;
    } else {
      return checkExact(conversion, x, value);
    }
  }
};

template <class From, class To> mint castAll(To *to, const From *from, mint count) {
  return convertAll([](From x) { return static_cast<RealPartOf<To>>(x); }, to, from, count);
}

// Symmetric bounds, which nobody asks for without clipping, are not for lanes.
template <class From, class To>
mint fitAll(const Conversion &conversion, To *to, const From *from, mint count) {
  using Part = RealPartOf<To>;
  using Rule = IntegerRule<From, To>;
  if constexpr (kAlwaysFits<From, Part>) return castAll(to, from, count);
  if constexpr (isInteger<To>) {
    const auto bounds = boundsOf<To, From>(conversion.isSymmetric);
    if (conversion.clips)
      return convertAll([=](From x) { return static_cast<To>(clamped(bounds, x)); }, to, from, count);
    if (conversion.isSymmetric) return convertOneByOne<Rule>(conversion, to, from, count);
  }
  return convertGroups<Rule>(conversion, BoundedLanes<From, Part>(), to, from, count);
}

template <class From, class To> mint scaleAll(To *to, const From *from, mint count) {
  using Part = RealPartOf<To>;
  if constexpr (isInteger<To>)
    return convertAll([](From x) { return scaledInteger<To>(x); }, to, from, count);
  else
    return convertAll([](From x) { return scaledToReal<Part>(x); }, to, from, count);
}

// Coerce and Round are Check for integer targets, and plain conversions for the others.
template <class From, class To>
mint convertIntegers(const Conversion &conversion, void *toData, const void *fromData, mint count) {
  auto *to = static_cast<To *>(toData);
  const auto *from = static_cast<const From *>(fromData);
  switch (conversion.method) {
  case kCheck:
    return fitAll(conversion, to, from, count);
  case kCoerce:
  case kRound:
    if constexpr (isInteger<To>)
      return fitAll(conversion, to, from, count);
    else
      return castAll(to, from, count);
  case kScale:
    return scaleAll(to, from, count);
  default:
    return kBadMethod;
  }
}

template <class From, class To> constexpr torvane_loops::ConversionLoop integerLoop() {
  if constexpr (isSame<From, To>)
    return nullptr;
  else
    return convertIntegers<From, To>;
}

#define TORVANE_LOOPS_FROM_INTEGER(From)                                                                     \
  {                                                                                                          \
    integerLoop<From, Integer8>(), integerLoop<From, UnsignedInteger8>(), integerLoop<From, Integer16>(),    \
        integerLoop<From, UnsignedInteger16>(), integerLoop<From, Integer32>(),                              \
        integerLoop<From, UnsignedInteger32>(), integerLoop<From, Integer64>(),                              \
        integerLoop<From, UnsignedInteger64>(), integerLoop<From, Real32>(), integerLoop<From, Real64>(),    \
        integerLoop<From, ComplexReal32>(), integerLoop<From, ComplexReal64>()                               \
  }

} // namespace torvane

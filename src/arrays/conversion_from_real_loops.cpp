// Conversions from reals.
#include "../elementwise/levels.h"
#include "conversion_runs.h"
#include "conversion_scale.h"

using namespace torvane;

namespace torvane {

template <mint method, class From, class To> struct RealRule {
  static mint convert(const Conversion &conversion, From x, RealPartOf<To> &value) {
    if constexpr (isInteger<To>)
      return roundInto<method>(conversion, x, value);
    else
      return convertReal<method>(conversion, x, value);
  }
};

// Lanes round to the nearest alone, words of 64 bits are not for them, and those that may fail know no
// symmetric bounds.
template <mint method, class From, class To>
mint roundAll(const Conversion &conversion, To *to, const From *from, mint count) {
  using Rule = RealRule<method, From, To>;
  constexpr bool agrees = method != kRound;
  if constexpr (kBitsOf<To> < 64) {
    if (conversion.clips && roundsToNearest()) {
      const auto bounds = realBoundsOf<LaneReal<From, To>, To>(conversion.isSymmetric);
      const ClippingLanes<agrees, From, To> lanes = {bounds};
      if constexpr (agrees)
        return convertGroups<Rule>(conversion, lanes, to, from, count);
      else
        return convertAll(lanes, to, from, count);
    }
    if (!conversion.clips && !conversion.isSymmetric && roundsToNearest())
      return convertGroups<Rule>(conversion, RoundingLanes<agrees, From, To>(), to, from, count);
  }
  return convertOneByOne<Rule>(conversion, to, from, count);
}

template <mint method, class From, class To>
mint changeWidth(const Conversion &conversion, To *to, const From *from, mint count) {
  using Part = RealPartOf<To>;
  using Rule = RealRule<method, From, To>;
  if constexpr (sizeof(Part) < sizeof(From))
    return convertGroups<Rule>(conversion, NarrowingLanes<method>(), to, from, count);
  else
    return convertAll([](From x) { return static_cast<Part>(method == kRound ? nearestInteger(x) : x); }, to,
                      from, count);
}

template <mint method, class From, class To>
mint convertRealsBy(const Conversion &conversion, To *to, const From *from, mint count) {
  if constexpr (!isInteger<To>)
    return changeWidth<method>(conversion, to, from, count);
  else if constexpr (method == kScale)
    return convertAll([](From x) { return scaledFromReal<To>(x); }, to, from, count);
  else
    return roundAll<method>(conversion, to, from, count);
}

template <class From, class To>
mint convertReals(const Conversion &conversion, void *toData, const void *fromData, mint count) {
  auto *to = static_cast<To *>(toData);
  const auto *from = static_cast<const From *>(fromData);
  switch (conversion.method) {
  case kCheck:
    return convertRealsBy<kCheck>(conversion, to, from, count);
  case kCoerce:
    return convertRealsBy<kCoerce>(conversion, to, from, count);
  case kRound:
    return convertRealsBy<kRound>(conversion, to, from, count);
  case kScale:
    return convertRealsBy<kScale>(conversion, to, from, count);
  default:
    return kBadMethod;
  }
}

// One type: nothing but Round comes here. Result and source may be one array.
template <class R> mint roundReals(const Conversion &, void *to, const void *from, mint count) {
  for (mint i = 0; i < count; ++i) static_cast<R *>(to)[i] = nearestInteger(static_cast<const R *>(from)[i]);
  return kSuccess;
}

template <class From, class To> constexpr torvane_loops::ConversionLoop realLoop() {
  if constexpr (isSame<From, To>)
    return roundReals<From>;
  else
    return convertReals<From, To>;
}

} // namespace torvane

#define TORVANE_LOOPS_FROM_REAL(From)                                                                        \
  {                                                                                                          \
    realLoop<From, Integer8>(), realLoop<From, UnsignedInteger8>(), realLoop<From, Integer16>(),             \
        realLoop<From, UnsignedInteger16>(), realLoop<From, Integer32>(),                                    \
        realLoop<From, UnsignedInteger32>(), realLoop<From, Integer64>(),                                    \
        realLoop<From, UnsignedInteger64>(), realLoop<From, Real32>(), realLoop<From, Real64>(),             \
        realLoop<From, ComplexReal32>(), realLoop<From, ComplexReal64>()                                     \
  }

const torvane_loops::ConversionsFrom<2> torvane_loops::TORVANE_LOOPS_HERE(fromreal) = {{
    TORVANE_LOOPS_FROM_REAL(Real32),
    TORVANE_LOOPS_FROM_REAL(Real64),
}};

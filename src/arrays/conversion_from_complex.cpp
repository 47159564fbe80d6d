// Conversions from complexes. To a type that is not complex, an element must first be as good as its real
// part; then the rule of reals holds for it. To a complex type the rule holds for both parts.
//
// One by one, at one processor level: what passes through here is rarely long.
#include "conversion_runs.h"
#include "conversion_scale.h"

namespace torvane {

namespace {

template <mint method, class R, class To> mint convertPart(const Conversion &conversion, R x, To &value) {
  if constexpr (!isInteger<To>) {
    return convertReal<method>(conversion, x, value);
  } else if constexpr (method == kScale) {
    value = scaledFromReal<To>(x);
    return kSuccess;
  } else {
    return roundInto<method>(conversion, x, value);
  }
}

template <mint method, class R, class To>
mint convertElement(const Conversion &conversion, Complex<R> z, To &value) {
  if (!isNegligible<method>(conversion, z.re, z.im)) return kNoPass;
  return convertPart<method>(conversion, z.re, value);
}

template <mint method, class R, class Part>
mint convertElement(const Conversion &conversion, Complex<R> z, Complex<Part> &value) {
  const mint status = convertPart<method>(conversion, z.re, value.re);
  return status != kSuccess ? status : convertPart<method>(conversion, z.im, value.im);
}

// Source and result may be one array where they have one type.
template <mint method, class R, class To>
mint convertComplexesBy(const Conversion &conversion, To *to, const Complex<R> *from, mint count) {
  for (mint i = 0; i < count; ++i) {
    To value;
    const mint status = convertElement<method>(conversion, from[i], value);
    if (status != kSuccess) return status;
    to[i] = value;
  }
  return kSuccess;
}

template <class R, class To>
mint convertComplexes(const Conversion &conversion, void *toData, const void *fromData, mint count) {
  auto *to = static_cast<To *>(toData);
  const auto *from = static_cast<const Complex<R> *>(fromData);
  switch (conversion.method) {
  case kCheck:
    return convertComplexesBy<kCheck>(conversion, to, from, count);
  case kCoerce:
    return convertComplexesBy<kCoerce>(conversion, to, from, count);
  case kRound:
    return convertComplexesBy<kRound>(conversion, to, from, count);
  case kScale:
    return convertComplexesBy<kScale>(conversion, to, from, count);
  default:
    return kBadMethod;
  }
}

} // namespace

} // namespace torvane

using namespace torvane;

#define TORVANE_LOOPS_FROM_COMPLEX(R)                                                                        \
  {                                                                                                          \
    convertComplexes<R, Integer8>, convertComplexes<R, UnsignedInteger8>, convertComplexes<R, Integer16>,    \
        convertComplexes<R, UnsignedInteger16>, convertComplexes<R, Integer32>,                              \
        convertComplexes<R, UnsignedInteger32>, convertComplexes<R, Integer64>,                              \
        convertComplexes<R, UnsignedInteger64>, convertComplexes<R, Real32>, convertComplexes<R, Real64>,    \
        convertComplexes<R, ComplexReal32>, convertComplexes<R, ComplexReal64>                               \
  }

const torvane_loops::ConversionsFrom<2> torvane_loops::fromcomplex = {{
    TORVANE_LOOPS_FROM_COMPLEX(Real32),
    TORVANE_LOOPS_FROM_COMPLEX(Real64),
}};

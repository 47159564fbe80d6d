// The real functions that complex ones are made of.
//
// Library functions run in binary64 and are narrowed to the part type, so that both widths take the same
// steps; everything between the calls stays in the part type.
#pragma once

#include "../scalar_types.h"

namespace torvane {

template <class R> constexpr bool signBit(R x) { return __builtin_signbit(x) != 0; }
template <class R> constexpr bool isInfinite(R x) { return __builtin_isinf(x) != 0; }
template <class R> constexpr R magnitudeOf(R x) {
  if constexpr (isSame<R, Real32>)
    return __builtin_fabsf(x);
  else
    return __builtin_fabs(x);
}
template <class R> inline R squareRoot(R x) {
  if constexpr (isSame<R, Real32>)
    return __builtin_sqrtf(x);
  else
    return __builtin_sqrt(x);
}

namespace complexes::library {

#define TORVANE_NARROWED(name)                                                                               \
  template <class R> inline R name(R x) { return static_cast<R>(__builtin_##name(Real64(x))); }
TORVANE_NARROWED(exp)
TORVANE_NARROWED(expm1)
TORVANE_NARROWED(log)
TORVANE_NARROWED(log1p)
TORVANE_NARROWED(log2)
TORVANE_NARROWED(log10)
TORVANE_NARROWED(sin)
TORVANE_NARROWED(cos)
TORVANE_NARROWED(tan)
TORVANE_NARROWED(sinh)
TORVANE_NARROWED(cosh)
TORVANE_NARROWED(floor)
TORVANE_NARROWED(rint)
#undef TORVANE_NARROWED
template <class R> inline R atan2(R y, R x) { return static_cast<R>(__builtin_atan2(Real64(y), Real64(x))); }
template <class R> inline R pow(R x, R y) { return static_cast<R>(__builtin_pow(Real64(x), Real64(y))); }
template <class R> inline R hypot(R x, R y) { return static_cast<R>(__builtin_hypot(Real64(x), Real64(y))); }
template <class R> inline R fmod(R x, R y) { return static_cast<R>(__builtin_fmod(Real64(x), Real64(y))); }

} // namespace complexes::library

} // namespace torvane

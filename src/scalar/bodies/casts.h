// Casts between integer types that refuse what does not fit.
//
// A value must lie in the target type and differ from its most negative value if it is signed, so that
// what arrives is a value that checked arithmetic takes. The source's own most negative value is a number
// like any other to a wider type; to the same type it is refused.
#pragma once

#include "../evaluate.h"

namespace torvane {

template <class From, class To> constexpr To safeCast(error &code, From value) {
  To result = 0;
  if (__builtin_add_overflow(value, From(0), &result) || isReserved(result)) code = error::conversionRange;
  return result;
}

template <class From, class To> inline To evaluateCast(From value) {
  error code = error::none;
  const To result = safeCast<From, To>(code, value);
  if (code != error::none) [[unlikely]]
    return raised(code, result);
  return result;
}

} // namespace torvane

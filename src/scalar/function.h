// Functors of the functions that reals take from `reals` and complexes from `complexes`.
//
// A real function stands beside its functor in bodies/<family>.h, in binary64. Real32 widens, calls it and
// narrows once: its error is half an ulp and the little that rounding twice adds. `code` is what both forms
// raise; the tests are true comparisons, so that a NaN passes every domain and comes out as a NaN.
#pragma once

#include "evaluate.h"

namespace torvane {

// The value of a function outside its domain is not looked at.
template <class R> constexpr R outsideDomain(error &code) {
  code = error::domain;
  return R(0);
}

} // namespace torvane

#define TORVANE_REAL_FUNCTION(name)                                                                          \
  struct name {                                                                                              \
    template <class Form, class T> static T apply(error &code, T x) {                                        \
      return static_cast<T>(reals::name(code, Real64(x)));                                                   \
    }                                                                                                        \
  };

#define TORVANE_FUNCTION(name)                                                                               \
  struct name {                                                                                              \
    template <class Form, class T> static T apply(error &code, T x) {                                        \
      if constexpr (isComplex<T>)                                                                            \
        return complexes::name(code, x);                                                                     \
      else                                                                                                   \
        return static_cast<T>(reals::name(code, Real64(x)));                                                 \
    }                                                                                                        \
  };

// With integers of their own.
#define TORVANE_FUNCTION_WITH_INTEGERS(name, ofInteger)                                                      \
  struct name {                                                                                              \
    template <class Form, class T> static constexpr T apply(error &code, T x) {                              \
      if constexpr (isInteger<T>)                                                                            \
        return ofInteger(code, x);                                                                           \
      else if constexpr (isComplex<T>)                                                                       \
        return complexes::name(code, x);                                                                     \
      else                                                                                                   \
        return static_cast<T>(reals::name(code, Real64(x)));                                                 \
    }                                                                                                        \
  };

#define TORVANE_BINARY_FUNCTION(name)                                                                        \
  struct name {                                                                                              \
    template <class Form, class T> static T apply(error &code, T x, T y) {                                   \
      if constexpr (isComplex<T>)                                                                            \
        return complexes::name(code, x, y);                                                                  \
      else                                                                                                   \
        return static_cast<T>(reals::name(code, Real64(x), Real64(y)));                                      \
    }                                                                                                        \
  };

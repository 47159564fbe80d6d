// Square roots.
//
// Reals: the processor's, correctly rounded.
#pragma once

#include "../complexes/roots.h"
#include "../evaluate.h"

namespace torvane {

namespace unary {

struct sqrt {
  template <class Form, class T> static T apply(error &code, T x) {
    if constexpr (isComplex<T>) {
      return complexes::sqrt(code, x);
    } else {
      if (x < 0) {
        code = error::domain;
        return x;
      }
      return squareRoot(x);
    }
  }
};

} // namespace unary

} // namespace torvane

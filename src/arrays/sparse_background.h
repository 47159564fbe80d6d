// Which elements equal a background. A real may differ by some of its last bits from a background other than
// 0; 0 takes nothing but zeros. A complex number equals part by part. A NaN equals nothing.
#pragma once

#include "sparse_array.h"
#include <torvane/tolerance.h>

namespace torvane {

inline bool equalsBackground(mint x, mint background) { return x == background; }
inline bool equalsBackground(mreal x, mreal background) {
  return x == background || (background != 0 && near1_double(kBackgroundTolerance, x, background) != 0);
}
inline bool equalsBackground(mcomplex x, mcomplex background) {
  return equalsBackground(x.re, background.re) && equalsBackground(x.im, background.im);
}

template <class Element> Element scalarOf(const MTensor *tensor) {
  return *static_cast<const Element *>(tensor->data);
}

// Calls `operation` with an element of the type, which is one of a tensor.
template <class Operation> auto withElement(mint type, Operation operation) {
  switch (type) {
  case TORVANE_TYPE_INTEGER:
    return operation(mint{});
  case TORVANE_TYPE_REAL:
    return operation(mreal{});
  default:
    return operation(mcomplex{});
  }
}

} // namespace torvane

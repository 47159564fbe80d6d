// Comparison of elements and of rows: -1, 0 or 1. Rows compare lexicographically, by the first pair that is
// not equal.
//
// Whatever is neither equal nor greater on the right counts as 1, so that a NaN on either side gives 1 and
// equals nothing, itself included. Callers rely on this: it decides where a sort leaves NaNs. Complex
// numbers go by real part, then by size of the imaginary part, then by its sign, the negative one first.
#pragma once

#include "../runtime/types.h"

#include <cmath>

namespace torvane {

inline mint compareElements(mint left, mint right) { return left == right ? 0 : right > left ? -1 : 1; }
inline mint compareElements(mreal left, mreal right) { return left == right ? 0 : right > left ? -1 : 1; }
inline mint compareElements(mcomplex left, mcomplex right) {
  if (const mint byReal = compareElements(left.re, right.re)) return byReal;
  if (const mint bySize = compareElements(std::fabs(left.im), std::fabs(right.im))) return bySize;
  return compareElements(left.im, right.im);
}

template <class Element> mint compareRows(const Element *left, const Element *right, mint length) {
  for (mint i = 0; i < length; ++i)
    if (const mint decided = compareElements(left[i], right[i])) return decided;
  return 0;
}

// The rows of a tensor by their numbers, which count from 1.
template <class Element> struct Rows {
  const Element *data;
  mint length;

  const Element *at(mint number) const { return data + (ptrdiff_t{number} - 1) * length; }
  mint compare(mint left, mint right) const { return compareRows(at(left), at(right), length); }
  bool isGreater(mint left, mint right) const { return compare(left, right) > 0; }
  // Whether two rows that are all there is change places.
  bool exchangesPair(mint left, mint right) const { return isGreater(left, right); }
};

// Rows of one element. Those of reals take a NaN for neither greater nor smaller, and leave it where it is;
// but where it is one of two rows in all, the two change places. Deliberate, and relied upon.
template <class Element> struct SingleRows {
  const Element *data;

  Element at(mint number) const { return data[ptrdiff_t{number} - 1]; }
  bool isGreater(mint left, mint right) const { return at(left) > at(right); }
  bool exchangesPair(mint left, mint right) const { return !(at(right) >= at(left)); }
};

// Calls `visit` with the view of the rows that compares them fastest.
template <class Element, class Visitor>
auto visitRows(const Element *data, mint length, const Visitor &visit) {
  if constexpr (sizeof(Element) != sizeof(mcomplex))
    if (length == 1) return visit(SingleRows<Element>{data});
  return visit(Rows<Element>{data, length});
}

} // namespace torvane

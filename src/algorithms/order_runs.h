// Whether rows ascend or descend from first to last, told in one pass that ends soon where they do neither.
#pragma once

#include "order_compare.h"

#include <algorithm>

namespace torvane {

inline constexpr mint kRunBlock = 512; // elements that are looked at before the next decision

// A block has no exit from its loop, so that the compiler can make a vector loop of it.
template <class Element> bool isBlockAscending(const Element *x, mint count) {
  mint descents = 0;
  for (mint k = 0; k < count; ++k) descents |= x[k] > x[k + 1];
  return descents == 0;
}
template <class Element> bool isBlockDescending(const Element *x, mint count) {
  mint ascents = 0;
  for (mint k = 0; k < count; ++k) ascents |= !(x[k] > x[k + 1]);
  return ascents == 0;
}

// No element greater than the next: what a sort of three rows and more leaves as it is, NaNs included.
template <class Element> bool areAscending(const SingleRows<Element> &rows, mint count) {
  for (mint k = 0; k + 1 < count; k += kRunBlock)
    if (!isBlockAscending(rows.data + k, std::min(kRunBlock, count - 1 - k))) return false;
  return true;
}
// Each element greater than the next: what a sort turns round.
template <class Element> bool areDescending(const SingleRows<Element> &rows, mint count) {
  for (mint k = 0; k + 1 < count; k += kRunBlock)
    if (!isBlockDescending(rows.data + k, std::min(kRunBlock, count - 1 - k))) return false;
  return true;
}

template <class Element> bool areAscending(const Rows<Element> &rows, mint count) {
  for (mint k = 1; k < count; ++k)
    if (rows.isGreater(k, k + 1)) return false;
  return true;
}
// The next row is smaller beyond doubt: a comparison that a NaN has decided is never -1.
template <class Element> bool areDescending(const Rows<Element> &rows, mint count) {
  for (mint k = 1; k < count; ++k)
    if (rows.compare(k + 1, k) >= 0) return false;
  return true;
}

} // namespace torvane

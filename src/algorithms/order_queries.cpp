// Questions about the order of rows that no sort is needed for.
#include "order.h"

#include "order_compare.h"

namespace torvane {

namespace {

template <class Element> Rows<Element> rowsOf(const MTensor *tensor) {
  return {static_cast<const Element *>(tensor->data), rowLengthOf(tensor)};
}

// Ties keep the row that the walk met first; a NaN counts as the comparison of rows says, from either side.
template <class Element> mint extremeOf(const Rows<Element> &rows, mint count, mint direction) {
  mint best = direction == 1 ? 1 : count;
  for (mint row = best + direction; row >= 1 && row <= count; row += direction)
    if (rows.compare(best, row) == direction) best = row;
  return best;
}

// Here a NaN is neither greater nor smaller: what follows it decides, the next part or the next element.
mint decide(mint left, mint right) { return right > left ? 1 : left > right ? -1 : 0; }
mint decide(mreal left, mreal right) { return right > left ? 1 : left > right ? -1 : 0; }
mint decide(mcomplex left, mcomplex right) {
  if (const mint byReal = decide(left.re, right.re)) return byReal;
  if (const mint bySize = decide(std::fabs(left.im), std::fabs(right.im))) return bySize;
  return decide(left.im, right.im);
}

template <class Element> bool isPairOrdered(const Element *left, const Element *right, mint length) {
  for (mint i = 0; i < length; ++i)
    if (const mint decided = decide(left[i], right[i])) return decided > 0;
  return true;
}

template <class Element> mint areOrdered(const MTensor *tensor) {
  const mint count = rowCountOf(tensor), length = rowLengthOf(tensor);
  if (length == 0) return 1;
  const auto *row = static_cast<const Element *>(tensor->data);
  for (mint k = 1; k < count; ++k, row += length)
    if (!isPairOrdered(row, row + length, length)) return 0;
  return 1;
}

} // namespace

mint MTensor_extremePosition(const MTensor *tensor, mint direction) {
  const mint count = rowCountOf(tensor);
  switch (tensor->type) {
  case TORVANE_TYPE_INTEGER:
    return extremeOf(rowsOf<mint>(tensor), count, direction);
  case TORVANE_TYPE_REAL:
    return extremeOf(rowsOf<mreal>(tensor), count, direction);
  case TORVANE_TYPE_COMPLEX:
    return extremeOf(rowsOf<mcomplex>(tensor), count, direction);
  default:
    return direction == 1 ? 1 : count;
  }
}

mint areRowsOrdered(const MTensor *tensor) {
  switch (tensor->type) {
  case TORVANE_TYPE_INTEGER:
    return areOrdered<mint>(tensor);
  case TORVANE_TYPE_REAL:
    return areOrdered<mreal>(tensor);
  case TORVANE_TYPE_COMPLEX:
    return areOrdered<mcomplex>(tensor);
  default:
    return -1;
  }
}

} // namespace torvane

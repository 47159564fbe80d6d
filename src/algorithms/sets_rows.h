// Walks over rows in ascending order that keep some of them, in place: kept rows move down to the start.
//
// A walk over single numbers writes each of them to where the next kept one goes and steps on only behind
// those that stay, because which stay is what a branch predictor cannot tell.
#pragma once

#include "order_compare.h"
#include "sets.h"

#include <algorithm>
#include <string.h>

namespace torvane {

inline bool areSame(mint a, mint b) { return a == b; }
inline bool areSame(mreal a, mreal b) { return a == b; }
inline bool areSame(mcomplex a, mcomplex b) { return (a.re == b.re) & (a.im == b.im); }

template <class Element> bool areSameRows(const Element *a, const Element *b, mint length) {
  for (mint i = 0; i < length; ++i)
    if (!areSame(a[i], b[i])) return false;
  return true;
}

// Rows of single elements, or rows of `length`: how many are kept of `count`, 1 at least.
template <class Element> mint keepDistinctSingles(Element *rows, mint count) {
  mint kept = 1;
  Element last = rows[0];
  for (mint k = 1; k < count; ++k) {
    const Element row = rows[k];
    rows[kept] = row;
    kept += !areSame(row, last);
    last = row;
  }
  return kept;
}
template <class Element> mint keepDistinctRows(Element *rows, mint count, mint length) {
  Element *last = rows;
  const Element *row = rows;
  mint kept = 1;
  for (mint k = 1; k < count; ++k) {
    row += length;
    if (areSameRows(row, last, length)) continue;
    last += length;
    if (last != row) memcpy(last, row, static_cast<size_t>(length) * sizeof *row);
    ++kept;
  }
  return kept;
}
template <class Element> mint keepDistinct(Element *rows, mint count, mint length) {
  if (count == 0) return 0;
  return length == 1 ? keepDistinctSingles(rows, count) : keepDistinctRows(rows, count, length);
}

// Where rows of two tensors stand to each other: complexes by their parts, unlike in the order that sorted
// them, so that walks over conjugates miss some that are in both. Relied upon as it is. Whatever is neither
// the same nor greater on the right counts as greater on the left, NaNs among it.
inline mint compareParts(mint left, mint right) { return compareElements(left, right); }
inline mint compareParts(mreal left, mreal right) { return compareElements(left, right); }
inline mint compareParts(mcomplex left, mcomplex right) {
  const mint byReal = compareElements(left.re, right.re);
  return byReal != 0 ? byReal : compareElements(left.im, right.im);
}
template <class Element> mint compareRowParts(const Element *left, const Element *right, mint length) {
  for (mint i = 0; i < length; ++i)
    if (const mint decided = compareParts(left[i], right[i])) return decided;
  return 0;
}

// The rows that a set operation works on, and where it stands among them.
template <class Element> struct KeptRows {
  Element *rows;
  mint count, length;
  mint read = 0, write = 0;

  ptrdiff_t offset(mint k) const { return ptrdiff_t{k} * length; }
  const Element *current() const { return rows + offset(read); }
  void keep() { // the current row
    if (write < read && length > 0) moveDown(1);
    ++write;
  }
  // All rows from the current one on; how many are kept in all.
  mint keepRest() {
    if (write < read && length > 0 && read < count) moveDown(count - read);
    return write + (count - read);
  }

private:
  void moveDown(mint many) {
    memmove(rows + offset(write), current(), static_cast<size_t>(offset(many)) * sizeof(Element));
  }
};

template <mint kMode, class Element>
mint walkSingles(KeptRows<Element> kept, const Element *other, mint otherCount) {
  mint against = 0;
  while (kept.read < kept.count && against < otherCount) {
    const Element row = kept.rows[kept.read], with = other[against];
    const bool isSmaller = with > row, isSame = row == with;
    kept.rows[kept.write] = row;
    kept.write += kMode == kIntersection ? isSame : isSmaller;
    kept.read += isSame | isSmaller;
    against += !isSmaller;
  }
  return kMode == kIntersection ? kept.write : kept.keepRest();
}

template <mint kMode, class Element>
mint walkRows(KeptRows<Element> kept, const Element *other, mint otherCount) {
  for (mint against = 0; kept.read < kept.count && against < otherCount;) {
    const mint order = compareRowParts(kept.current(), other, kept.length);
    if (kMode == kIntersection ? order == 0 : order < 0) kept.keep();
    if (order <= 0) ++kept.read;
    if (order < 0) continue;
    ++against;
    other += kept.length;
  }
  return kMode == kIntersection ? kept.write : kept.keepRest();
}

// Complex numbers go as rows do: repetitions count there, because the order of the walk is not the sort's.
inline bool walksSingles(mint type, mint length) { return length == 1 && type != TORVANE_TYPE_COMPLEX; }

// How many rows are kept.
template <mint kMode, class Element>
mint walk(const KeptRows<Element> &kept, const Element *other, mint otherCount) {
  if constexpr (sizeof(Element) != sizeof(mcomplex))
    if (kept.length == 1) return walkSingles<kMode>(kept, other, otherCount);
  return walkRows<kMode>(kept, other, otherCount);
}

} // namespace torvane

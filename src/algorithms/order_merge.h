// A stable merge sort of row numbers: the definition of every order in the library, and what sorts where the
// faster way of order_radix.h does not serve (NaNs among reals, long rows, few rows).
//
// Its course is fixed, because a NaN makes the outcome depend on it: ranges above six rows are halved, the
// smaller half first; ranges of up to six are ordered without recursion, as 1+1, 2+1, 2+2, 2+3 and 3+3. A
// range whose halves are in order already is left alone, so that ordered rows take linear time. Merging moves
// the left half aside and fills the range from its start, so that scratch for half of the rows is enough.
#pragma once

#include "../runtime/types.h"

#include <string.h>
#include <utility>

namespace torvane {

inline constexpr mint kLongestTree = 6;

template <class Order> class MergeSort {
public:
  // `space` holds count / 2 numbers.
  MergeSort(const Order &comparison, mint *space) : order(comparison), scratch(space) {}

  // Whether the rows were in order already.
  bool sort(mint *rows, mint count) const {
    if (count != 2) return sortRange(rows, count);
    if (!order.exchangesPair(rows[0], rows[1])) return true;
    std::swap(rows[0], rows[1]);
    return false;
  }

private:
  const Order &order;
  mint *scratch;

  bool isGreater(mint left, mint right) const { return order.isGreater(left, right); }

  bool sortRange(mint *rows, mint count) const {
    if (count <= 3) return sortUpTo3(rows, count);
    const mint half = count / 2;
    const bool tree = count <= kLongestTree;
    const bool left = tree ? sortUpTo3(rows, half) : sortRange(rows, half);
    const bool right = tree ? sortUpTo3(rows + half, count - half) : sortRange(rows + half, count - half);
    if (!isGreater(rows[half - 1], rows[half])) return left && right;
    merge(rows, half, count);
    return false;
  }

  bool sortUpTo3(mint *rows, mint count) const {
    if (count < 2) return true;
    const bool inOrder = !isGreater(rows[0], rows[1]);
    if (!inOrder) std::swap(rows[0], rows[1]);
    return count == 2 ? inOrder : placeThird(rows) && inOrder;
  }

  bool placeThird(mint *rows) const {
    const mint third = rows[2];
    if (!isGreater(rows[1], third)) return true;
    rows[2] = rows[1];
    const bool isSmallest = isGreater(rows[0], third);
    rows[1] = isSmallest ? rows[0] : third;
    if (isSmallest) rows[0] = third;
    return false;
  }

  // The last of the left half is greater than the first of the right one.
  void merge(mint *rows, mint half, mint count) const {
    memcpy(scratch, rows, static_cast<size_t>(half) * sizeof(mint));
    const mint *left = scratch, *const leftEnd = scratch + half;
    const mint *right = rows + half, *const rightEnd = rows + count;
    mint *to = rows;
    while (left < leftEnd && right < rightEnd) *to++ = isGreater(*left, *right) ? *right++ : *left++;
    memcpy(to, left, static_cast<size_t>(leftEnd - left) * sizeof(mint));
  }
};

} // namespace torvane

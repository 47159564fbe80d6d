// The order of rows, slow and obvious: the merge sort whose course is the definition, over vectors of
// elements.
#pragma once

#include "support/tensor_builders.h"

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <numeric>
#include <random>

namespace torvane::test {

inline mint modelCompare(mint a, mint b) { return a < b ? -1 : a > b ? 1 : 0; }
inline mint modelCompare(mreal a, mreal b) {
  if (a == b) return 0;
  return b > a ? -1 : 1; // 1 with a NaN on either side
}
inline mint modelCompare(mcomplex a, mcomplex b) {
  if (a.re == b.re && a.im == b.im) return 0;
  if (!(a.re == b.re)) return modelCompare(a.re, b.re);
  if (!(std::abs(a.im) == std::abs(b.im))) return modelCompare(std::abs(a.im), std::abs(b.im));
  return modelCompare(a.im, b.im);
}

template <class Element> struct SortModel {
  std::vector<Element> data;
  mint length; // of a row
  std::vector<mint> rows;
  bool isOneReal = false; // rows of one real: a NaN is neither greater nor smaller

  SortModel(const std::vector<Element> &elements, mint rowLength) : data(elements), length(rowLength) {
    rows.resize(data.size() / static_cast<size_t>(length));
    std::iota(rows.begin(), rows.end(), 1);
    isOneReal = typeOf<Element>() == TORVANE_TYPE_REAL && length == 1;
  }

  Element at(mint row, mint column) const { return data[static_cast<size_t>((row - 1) * length + column)]; }
  mint compare(mint a, mint b) const {
    for (mint k = 0; k < length; ++k)
      if (const mint decided = modelCompare(at(a, k), at(b, k))) return decided;
    return 0;
  }
  bool isGreater(mint a, mint b) const {
    if constexpr (typeOf<Element>() == TORVANE_TYPE_REAL)
      if (isOneReal) return at(a, 0) > at(b, 0);
    return compare(a, b) > 0;
  }

  bool sort() {
    const size_t count = rows.size();
    if (count == 2 && isOneReal) return sortPairOfReals();
    return sortRange(0, count);
  }

private:
  // The one place where a NaN makes single reals change places.
  bool sortPairOfReals() {
    if constexpr (typeOf<Element>() == TORVANE_TYPE_REAL)
      if (data[1] >= data[0]) return true;
    std::swap(rows[0], rows[1]);
    return false;
  }
  bool sortRange(size_t first, size_t count) {
    if (count < 2) return true;
    if (count == 2) return sortTwo(first);
    if (count == 3) return sortThree(first);
    const size_t half = count / 2;
    const bool left = sortRange(first, half);
    const bool right = sortRange(first + half, count - half);
    if (!isGreater(rows[first + half - 1], rows[first + half])) return left && right;
    merge(first, half, count);
    return false;
  }
  bool sortTwo(size_t first) {
    if (!isGreater(rows[first], rows[first + 1])) return true;
    std::swap(rows[first], rows[first + 1]);
    return false;
  }
  bool sortThree(size_t first) {
    const bool two = sortTwo(first);
    const mint third = rows[first + 2];
    if (!isGreater(rows[first + 1], third)) return two;
    const bool isSmallest = isGreater(rows[first], third);
    rows[first + 2] = rows[first + 1];
    rows[first + 1] = isSmallest ? rows[first] : third;
    if (isSmallest) rows[first] = third;
    return false;
  }
  void merge(size_t first, size_t half, size_t count) {
    std::vector<mint> merged;
    size_t left = first, right = first + half;
    while (left < first + half && right < first + count)
      merged.push_back(isGreater(rows[left], rows[right]) ? rows[right++] : rows[left++]);
    while (left < first + half) merged.push_back(rows[left++]);
    while (right < first + count) merged.push_back(rows[right++]);
    std::copy(merged.begin(), merged.end(), rows.begin() + static_cast<ptrdiff_t>(first));
  }
};

template <class Element> std::vector<Element> gathered(const SortModel<Element> &model) {
  std::vector<Element> result;
  for (const mint row : model.rows)
    for (mint k = 0; k < model.length; ++k) result.push_back(model.at(row, k));
  return result;
}

// Draws elements of a kind that a test names: what makes sorting by parts of an element go wrong.
using Generator = std::mt19937;
enum class Values { wide, few, close, extreme, ascending, descending, nearlyAscending, withNaN };
inline constexpr Values kNumbers[] = {Values::wide,           Values::few,       Values::close,
                                      Values::extreme,        Values::ascending, Values::descending,
                                      Values::nearlyAscending};

inline mreal drawReal(Generator &generator, Values values, mint k) {
  using Limits = std::numeric_limits<mreal>;
  const auto draw = [&](int n) { return static_cast<int>(generator() % static_cast<unsigned>(n)); };
  static const mreal extremes[] = {0.0,
                                   -0.0,
                                   Limits::infinity(),
                                   -Limits::infinity(),
                                   Limits::max(),
                                   -Limits::max(),
                                   Limits::denorm_min(),
                                   -Limits::denorm_min(),
                                   1,
                                   -1};
  switch (values) {
  case Values::wide:
    return std::ldexp(static_cast<mreal>(generator()) - 2147483648.0, draw(100) - 50);
  case Values::few:
    return (draw(7) - 3) * 0.1;
  case Values::close: // many agree in all but the last bits of their span
    return draw(40) == 0 ? 1e300 : 1 + draw(50) * Limits::epsilon();
  case Values::extreme:
    return extremes[draw(10)];
  case Values::ascending:
    return k / 3 - 10.5;
  case Values::descending:
    return 0.25 - k;
  case Values::nearlyAscending:
    return draw(20) == 0 ? draw(100) : k;
  case Values::withNaN:
    return draw(4) == 0 ? Limits::quiet_NaN() : draw(5) - 2;
  }
  return 0;
}
inline mint drawInteger(Generator &generator, Values values, mint k) {
  static const mint extremes[] = {INT32_MIN, INT32_MAX, INT32_MIN + 1, -1, 0, 1};
  switch (values) {
  case Values::wide:
    return static_cast<mint>(generator());
  case Values::close:
    return static_cast<mint>(generator() % 3000) - 1000000;
  case Values::extreme:
    return extremes[generator() % 6];
  case Values::descending:
    return -k;
  default:
    return static_cast<mint>(drawReal(generator, values == Values::withNaN ? Values::few : values, k) * 10);
  }
}

template <class Element> Element drawElement(Generator &generator, Values values, mint k) {
  if constexpr (typeOf<Element>() == TORVANE_TYPE_INTEGER)
    return drawInteger(generator, values, k);
  else if constexpr (typeOf<Element>() == TORVANE_TYPE_REAL)
    return drawReal(generator, values, k);
  else
    return {drawReal(generator, values, k / 4),
            drawReal(generator, generator() % 2 ? Values::few : values, k)};
}

// Of each row the first element is drawn for its row, so that runs of rows remain what they are named.
template <class Element>
std::vector<Element> drawRows(Generator &generator, Values values, mint rows, mint length) {
  std::vector<Element> data;
  for (mint row = 0; row < rows; ++row)
    for (mint column = 0; column < length; ++column)
      data.push_back(
          drawElement<Element>(generator, column + 1 < length && row % 3 ? Values::few : values, row));
  return data;
}

template <class Element> bool haveSameBits(const std::vector<Element> &a, const std::vector<Element> &b) {
  return a.size() == b.size() &&
         (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(Element)) == 0);
}

inline Extents extentsOfRows(mint rows, mint length) {
  return length == 1 ? Extents{rows} : Extents{rows, length};
}

} // namespace torvane::test

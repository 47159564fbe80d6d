// Blocks of a tensor beside a pattern of as many elements: which of them match it.
//
// Integers match exactly, reals by near1_double, and a complex number as the two reals that it is. Up to a
// tolerance of 0 that test is equality as IEEE 754 has it, and needs no call: blocks of one or two numbers
// are then compared many at a time, in loops without an exit that compilers make vector loops of.
#pragma once

#include "../tensor/tensor.h"

#include <torvane/tolerance.h>

#include <algorithm>
#include <string.h>
#include <type_traits>

namespace torvane {

inline bool hasNumbers(mint type) { return type >= TORVANE_TYPE_INTEGER && type <= TORVANE_TYPE_COMPLEX; }

// Rules by which one number matches another; the pattern's stands on the right.
struct Exactly {
  template <class Number> bool operator()(Number x, Number pattern) const { return x == pattern; }
};
struct Nearly {
  mreal tolerance;
  bool operator()(mreal x, mreal pattern) const { return near1_double(tolerance, x, pattern) != 0; }
};

// Whether each of `count` numbers matches.
template <class Number, class Rule>
bool matchesAll(const Number *x, const Number *pattern, ptrdiff_t count, const Rule &rule) {
  for (ptrdiff_t i = 0; i < count; ++i)
    if (!rule(x[i], pattern[i])) return false;
  return true;
}
inline bool matchesAll(const mint *x, const mint *pattern, ptrdiff_t count, const Exactly &) {
  return memcmp(x, pattern, static_cast<size_t>(count) * sizeof *x) == 0;
}
inline bool matchesAll(const mreal *x, const mreal *pattern, ptrdiff_t count, const Exactly &) {
  constexpr ptrdiff_t kBlock = 64;
  for (ptrdiff_t i = 0; i < count; i += kBlock) {
    int differ = 0;
    for (ptrdiff_t k = i, end = std::min(i + kBlock, count); k < end; ++k) differ |= !(x[k] == pattern[k]);
    if (differ != 0) return false;
  }
  return true;
}

// Blocks of any length, one at a time.
template <class Number, class Rule> struct LongBlocks {
  const Number *data, *pattern;
  ptrdiff_t length;
  Rule rule;

  static constexpr mint kStep = 1; // blocks that count() takes gladly at a time
  bool matches(mint k) const {
    const Number *block = data + k * length;
    return rule(block[0], pattern[0]) && matchesAll(block + 1, pattern + 1, length - 1, rule);
  }
  mint count(mint first, mint blocks) const {
    mint found = 0;
    for (mint k = first; k < first + blocks; ++k) found += matches(k);
    return found;
  }
};

// Blocks of one number, or of two, that match exactly.
template <class Number, int kLength> struct ShortBlocks {
  const Number *data, *pattern;

  static constexpr mint kStep = 256;
  bool matches(mint k) const { return matchesAt(data + ptrdiff_t{k} * kLength, pattern[0], last()); }
  // The count is as wide as the numbers, so that their comparison is what is added up. GCC sees that where
  // the count is stepped under a condition, and not where the condition is added.
  mint count(mint first, mint blocks) const {
    const Number *block = data + ptrdiff_t{first} * kLength;
    const Number one = pattern[0], other = last();
    Count found = 0;
    for (mint k = 0; k < blocks; ++k)
      if (matchesAt(block + ptrdiff_t{k} * kLength, one, other)) ++found;
    return static_cast<mint>(found);
  }

private:
  using Count = std::conditional_t<sizeof(Number) == 8, int64_t, mint>;
  Number last() const { return pattern[kLength - 1]; }
  static bool matchesAt(const Number *block, Number one, [[maybe_unused]] Number other) {
    if constexpr (kLength == 1) return block[0] == one;
    return (block[0] == one) & (block[kLength - 1] == other);
  }
};

// Calls `visit` with the view of the blocks of `length` numbers, 1 at least, that finds matches fastest.
template <class Number, class Visit>
auto visitExactBlocks(const void *data, const void *pattern, ptrdiff_t length, const Visit &visit) {
  const auto *x = static_cast<const Number *>(data), *p = static_cast<const Number *>(pattern);
  if (length == 1) return visit(ShortBlocks<Number, 1>{x, p});
  if (length == 2) return visit(ShortBlocks<Number, 2>{x, p});
  return visit(LongBlocks<Number, Exactly>{x, p, length, {}});
}

// The same for blocks as long as a pattern that has elements, and that is of the tensor's type: one of the
// three.
template <class Visit>
auto visitBlocks(const MTensor *tensor, const MTensor *pattern, mreal tolerance, const Visit &visit) {
  const ptrdiff_t length = pattern->elementCount;
  if (pattern->type == TORVANE_TYPE_INTEGER)
    return visitExactBlocks<mint>(tensor->data, pattern->data, length, visit);
  const ptrdiff_t reals = pattern->type == TORVANE_TYPE_COMPLEX ? 2 * length : length;
  if (!(tolerance > 0)) return visitExactBlocks<mreal>(tensor->data, pattern->data, reals, visit);
  return visit(LongBlocks<mreal, Nearly>{static_cast<const mreal *>(tensor->data),
                                         static_cast<const mreal *>(pattern->data),
                                         reals,
                                         {tolerance}});
}

} // namespace torvane

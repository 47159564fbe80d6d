// Powers by the shortest chains of multiplications.
//
// Up to 64 the power tree gives a chain of at most eight products, and of minimal length for each: D. E.
// Knuth, "The Art of Computer Programming", volume 2, section 4.6.3. Above, squares and multiplications
// from the exponent's top bit.
#pragma once

#include <stdint.h>

namespace torvane {

inline constexpr unsigned kLongestChain = 64;

// parent[n] is the exponent before n in its chain; n - parent[n] stands earlier in the same chain.
struct PowerTree {
  uint8_t parent[kLongestChain + 1] = {};

  constexpr PowerTree() {
    uint8_t order[kLongestChain] = {1};
    unsigned known = 1;
    for (unsigned next = 0; next < known; ++next) known = addChildren(order, known, order[next]);
  }

private:
  // A node's children are its sums with the exponents on the way from the root, in that order.
  constexpr unsigned addChildren(uint8_t *order, unsigned known, uint8_t node) {
    uint8_t path[9] = {};
    unsigned length = 0;
    for (uint8_t n = node; n != 0; n = parent[n]) path[length++] = n;
    while (length > 0) {
      const unsigned child = node + unsigned{path[--length]};
      if (child > kLongestChain || parent[child] != 0) continue;
      parent[child] = node;
      order[known++] = static_cast<uint8_t>(child);
    }
    return known;
  }
};

inline constexpr PowerTree kPowerTree;

template <class T, class Times> T powerByTree(T x, unsigned n, Times times) {
  uint8_t chain[9];
  unsigned length = 0;
  for (unsigned k = n; k != 1; k = kPowerTree.parent[k]) chain[length++] = static_cast<uint8_t>(k);
  T powers[kLongestChain + 1];
  powers[1] = x;
  while (length > 0) {
    const unsigned k = chain[--length], before = kPowerTree.parent[k];
    powers[k] = times(powers[before], powers[k - before]);
  }
  return powers[n];
}

// x^n by `times`, n >= 1.
template <class T, class Times> T powerByChain(T x, uint64_t n, Times times) {
  if (n <= kLongestChain) return powerByTree(x, static_cast<unsigned>(n), times);
  T power = x;
  for (int bit = 62 - __builtin_clzll(n); bit >= 0; --bit) {
    power = times(power, power);
    if (n >> bit & 1) power = times(power, x);
  }
  return power;
}

} // namespace torvane

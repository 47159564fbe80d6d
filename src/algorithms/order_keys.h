// Elements as unsigned numbers that order as they do: what radix sorting works on. No NaN has a key.
//
// A row gives one key after another, most significant first: one an element, of a complex three. The two
// zeros of a real have one key, since neither is greater.
#pragma once

#include "order_compare.h"

#include <bit>

namespace torvane {

inline uint32_t keyOf(mint x) { return static_cast<uint32_t>(x) ^ 0x80000000u; }
inline uint64_t keyOfBits(uint64_t bits) {
  const auto sign = static_cast<uint64_t>(static_cast<int64_t>(bits) >> 63);
  return bits ^ (sign | uint64_t{1} << 63);
}
inline uint64_t bitsOfKey(uint64_t key) {
  return key ^ (static_cast<uint64_t>(static_cast<int64_t>(~key) >> 63) | uint64_t{1} << 63);
}
inline uint64_t keyOf(mreal x) { return keyOfBits(x == 0 ? 0 : std::bit_cast<uint64_t>(x)); }

inline constexpr mint keysOf(const mint *) { return 1; }
inline constexpr mint keysOf(const mreal *) { return 1; }
inline constexpr mint keysOf(const mcomplex *) { return 3; }

template <class Element> struct RowKeys {
  const Element *data;
  mint length;

  mint count() const { return length * keysOf(data); }
  // `row` counts from 0.
  auto at(ptrdiff_t row, mint level) const {
    if constexpr (sizeof(Element) == sizeof(mcomplex)) {
      const mcomplex &z = data[row * length + level / 3];
      const mint part = level % 3;
      return keyOf(part == 0 ? z.re : part == 1 ? std::fabs(z.im) : z.im);
    } else
      return keyOf(data[row * length + level]);
  }
};

} // namespace torvane

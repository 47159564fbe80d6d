// Distinct keys among many, while they are few: rows with few distinct keys are ordered by counting them.
//
// A table with open addressing and a multiplicative hash (D. E. Knuth, The Art of Computer Programming
// 3, 6.4). Keys are numbered as they come; counts[number] is how often one came. Where they turn out to be
// too many, that is soon, and the time was little.
#pragma once

#include "order_keys.h"

#include <algorithm>
#include <numeric>

namespace torvane {

class DistinctKeys {
public:
  static constexpr mint kMost = 128;
  static constexpr mint kNone = -1;

  // Of `total` keys: counting pays where each comes many times.
  explicit DistinctKeys(mint total) : most(std::min(kMost, total / 32)) {}

  // The number of a key, which is counted; kNone where it would be one too many.
  mint count(uint64_t key) {
    // The upper bits of the product depend on all bits of the key.
    auto slot = static_cast<uint32_t>(key * 0x9E3779B97F4A7C15u >> (64 - kSlotBits));
    for (;; slot = (slot + 1) % kSlots) {
      const mint number = slots[slot] - 1;
      if (number < 0) return add(slot, key);
      if (keys[number] != key) continue;
      ++counts[number];
      return number;
    }
  }

  // Calls `visit` with number, key and count of each in ascending order of the keys.
  template <class Visit> void forEachAscending(const Visit &visit) const {
    mint numbers[kMost];
    std::iota(numbers, numbers + size, 0);
    std::sort(numbers, numbers + size, [this](mint a, mint b) { return keys[a] < keys[b]; });
    for (mint k = 0; k < size; ++k) visit(numbers[k], keys[numbers[k]], counts[numbers[k]]);
  }

private:
  static constexpr uint32_t kSlotBits = 9, kSlots = 1u << kSlotBits;
  uint8_t slots[kSlots] = {}; // a number plus 1
  uint64_t keys[kMost];
  mint counts[kMost];
  mint size = 0, most;

  mint add(uint32_t slot, uint64_t key) {
    if (size >= most) return kNone;
    keys[size] = key;
    counts[size] = 1;
    slots[slot] = static_cast<uint8_t>(size + 1);
    return size++;
  }
};

} // namespace torvane

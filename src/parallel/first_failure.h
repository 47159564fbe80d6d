// The smallest position at which the pieces of a loop failed, whichever piece comes to its end first.
//
// A piece may be dropped if a failure is known before its start, so that every index below the smallest one
// has been covered when the loop ends.
#pragma once

#include "../runtime/types.h"

#include <atomic>

namespace torvane {

class FirstFailure {
public:
  void at(mint position) { // 0-based, from the start of the range
    mint known = smallest.load(std::memory_order_relaxed);
    while (position < known && !smallest.compare_exchange_weak(known, position, std::memory_order_relaxed)) {
    }
  }
  bool isBefore(mint start) const { return smallest.load(std::memory_order_relaxed) < start; }

  // After the loop: 0, or one plus the position.
  mint outcome() const {
    const mint position = smallest.load(std::memory_order_relaxed);
    return position == kNone ? 0 : position + 1;
  }

private:
  static constexpr mint kNone = INT32_MAX; // no range from 0 has this index
  std::atomic<mint> smallest{kNone};
};

} // namespace torvane

// A 32-bit byte counter that one thread writes and any thread may read: a relaxed load and a relaxed store,
// so the owner pays two plain moves and the race detector has nothing to report. Values wrap in 32 bits.
#pragma once

#include <atomic>
#include <cstdint>

namespace torvane {

class ByteCounter {
public:
  uint32_t value() const { return word.load(std::memory_order_relaxed); }
  void set(uint32_t bytes) { word.store(bytes, std::memory_order_relaxed); }
  void add(uint32_t bytes) { set(value() + bytes); }
  void subtract(uint32_t bytes) { set(value() - bytes); }

private:
  std::atomic<uint32_t> word{0};
};

} // namespace torvane

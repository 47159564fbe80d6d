// A fuzzer's bytes as a stream of choices. An exhausted input yields zeros.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

class Input {
public:
  Input(const uint8_t *bytes, size_t count) : next(bytes), end(bytes + count) {}

  bool isEmpty() const { return next == end; }
  template <class T> T take() {
    T value = {};
    const size_t left = static_cast<size_t>(end - next), size = left < sizeof value ? left : sizeof value;
    std::memcpy(&value, next, size);
    next += size;
    return value;
  }

private:
  const uint8_t *next, *end;
};

// A broken property stops the fuzzer at the input that breaks it.
inline void require(bool holds) {
  if (!holds) std::abort();
}

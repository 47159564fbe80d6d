// Memory that ends with its scope: nothing is raised while one lives, in whatever style.
#pragma once

#include "../runtime/memory.h"

namespace torvane {

class Scratch {
public:
  // Holds nothing where the memory cannot be had, or the bytes leave 32 bits.
  Scratch(uint64_t bytes, ErrorMode errorMode)
      : block(bytes > UINT32_MAX ? nullptr : allocate(static_cast<uint32_t>(bytes), 1, errorMode)) {}
  ~Scratch() { torvane::free(block); }
  Scratch(const Scratch &) = delete;
  Scratch &operator=(const Scratch &) = delete;

  explicit operator bool() const { return block != nullptr; }
  template <class T> T *as(size_t byteOffset = 0) const {
    return reinterpret_cast<T *>(static_cast<char *>(block) + byteOffset);
  }

private:
  void *block;
};

} // namespace torvane

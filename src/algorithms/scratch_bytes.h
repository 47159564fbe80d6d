// Bytes of any size that end with their scope: nothing is raised while they live, in whatever style. What scratch.h
// is for elements of one type.
#pragma once

#include "../runtime/memory.h"

namespace torvane {

class ScratchBytes {
public:
  // Holds nothing where the memory cannot be had, or the bytes leave 32 bits.
  ScratchBytes(uint64_t bytes, ErrorMode errorMode)
      : block(bytes > UINT32_MAX ? nullptr : allocate(static_cast<uint32_t>(bytes), 1, errorMode)) {}
  ~ScratchBytes() { torvane::free(block); }
  ScratchBytes(const ScratchBytes &) = delete;
  ScratchBytes &operator=(const ScratchBytes &) = delete;

  explicit operator bool() const { return block != nullptr; }
  template <class T> T *as(size_t byteOffset = 0) const {
    return reinterpret_cast<T *>(static_cast<char *>(block) + byteOffset);
  }

private:
  void *block;
};

} // namespace torvane

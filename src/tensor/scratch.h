// Working memory of one call: a few elements on the stack, more from the allocator, freed on every path.
#pragma once

#include "../runtime/memory.h"
#include "tensor.h"

namespace torvane {

template <class Element, mint kInline = 8> class Scratch {
public:
  explicit Scratch(mint count, mint errorMode = kReport) : elements(inlined) {
    if (count <= kInline) return;
    const uint32_t bytes = checkedByteCount(uint32_t{sizeof(Element)}, count);
    elements = bytes == kByteOverflow ? nullptr : static_cast<Element *>(allocate(bytes, 0, errorMode));
    if (elements == nullptr) failure = sizeFailure(bytes, errorMode);
  }
  ~Scratch() {
    if (elements != inlined) torvane::free(elements);
  }
  Scratch(const Scratch &) = delete;
  Scratch &operator=(const Scratch &) = delete;

  // kSuccess, or why there are no elements.
  mint status() const { return failure; }
  Element *get() { return elements; }
  Element &operator[](mint i) { return elements[i]; }

private:
  static mint sizeFailure(uint32_t bytes, mint errorMode) {
    return bytes == kByteOverflow ? sizeOverflow(errorMode) : kSizeFailed;
  }
  Element *elements;
  mint failure = kSuccess;
  Element inlined[kInline];
};

} // namespace torvane

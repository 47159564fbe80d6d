// A box of elements: the strided copy under every operation that rearranges a tensor.
//
// Axes are added from the outermost in; those of one index vanish and neighbours that continue each other
// become one, so that what is left is the longest contiguous blocks that the shapes allow, and never more
// axes than 2^31 elements have room for. Strides count bytes; target and source must not overlap.
#pragma once

#include "../runtime/types.h"

#include <algorithm>
#include <stddef.h>

namespace torvane {

struct BoxAxis {
  size_t count;
  ptrdiff_t target, source;
};

class Box {
public:
  Box() = default;
  Box(const Box &other) : rank(other.rank) { std::copy_n(other.axes, rank, axes); } // the axes in use
  Box &operator=(const Box &) = delete;

  // `count` is at least 1.
  void add(size_t count, ptrdiff_t target, ptrdiff_t source);

  // Copies blocks of so many bytes, the first of them from `source` to `target`.
  void copy(char *target, const char *source, size_t block);

private:
  static constexpr mint kAxes = 32;
  using Rows = void (*)(char *target, const char *source, size_t block, const BoxAxis &rows);

  void walk(mint axis, char *target, const char *source, size_t block, Rows copyRows) const;

  mint rank = 0;
  BoxAxis axes[kAxes];
};

} // namespace torvane

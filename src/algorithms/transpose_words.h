// Elements by their size, read and written as what they are: a register for reals may change the bits of a
// NaN. They stand wherever integers may, because a block of several integers is a word of eight or sixteen
// bytes.
#pragma once

#include "../runtime/types.h"

namespace torvane {

struct __attribute__((may_alias)) Word4 {
  uint32_t bits;
};
struct __attribute__((may_alias, packed, aligned(4))) Word8 {
  uint64_t bits;
};
struct __attribute__((may_alias, packed, aligned(4))) Word16 {
  uint64_t low, high;
};

} // namespace torvane

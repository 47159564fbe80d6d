// Reading of little-endian words from unaligned bytes, for the hash functions.
#pragma once

#include "../runtime/types.h"

#include <bit>
#include <cstring>

namespace torvane {

static_assert(std::endian::native == std::endian::little);

template <class Word> Word loadWord(const unsigned char *bytes) {
  Word word;
  memcpy(&word, bytes, sizeof word);
  return word;
}

// The `count` bytes that are left, fewer than a word holds, as its low bytes.
template <class Word> Word loadTail(const unsigned char *bytes, uint32_t count) {
  Word word = 0;
  for (uint32_t i = 0; i < count; ++i) word |= Word{bytes[i]} << (8 * i);
  return word;
}

} // namespace torvane

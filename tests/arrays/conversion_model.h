// The rules of conversion over exact values: slow, obvious, one element at a time, and nothing of the
// library's arithmetic in it.
#pragma once

#include "arrays/conversion.h"

#include <array>
#include <cstdint>
#include <string>

namespace torvane::test {

inline constexpr mint kTags = 12;

// What a conversion is asked for; the tolerance is a whole number of bits.
struct Asked {
  mint method;
  bool clips, isSymmetric;
  int tolerance;

  ConversionMethod record() const {
    return {mreal(tolerance), method,
            (clips ? uint32_t{kClip} : 0) | (isSymmetric ? uint32_t{kSymmetric} : 0)};
  }
  std::string text() const;
};

struct Converted {
  mint status = 0;
  alignas(16) std::array<unsigned char, 16> bytes = {};
};

Converted modelOf(const Asked &asked, mint sourceTag, const void *element, mint targetTag);

// Equal bytes, but any NaN for a NaN.
bool isElement(mint tag, const void *element, const void *expected);

std::string textOf(mint tag, const void *element);

} // namespace torvane::test

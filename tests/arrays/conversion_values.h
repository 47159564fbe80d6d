// Elements worth converting, by tag, as the bytes of an array.
#pragma once

#include "runtime/types.h"

#include <vector>

namespace torvane::test {

using Bytes = std::vector<unsigned char>;

// Bounds, powers of two, halves, the edges of every format, values that just agree with an integer or just do
// not, infinities and NaNs, and random ones. Complexes pair such parts.
Bytes specialElements(mint tag);

// Every value of an integer type of up to 16 bits.
Bytes everyElement(mint tag);

} // namespace torvane::test

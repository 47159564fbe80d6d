// The exported helpers of 64-bit arithmetic.
#include "wide_integers.h"

#include <torvane/integers.h>

int64_t __mulodi4(int64_t a, int64_t b, int *overflow) {
  bool lost = false;
  const int64_t product = torvane::multiplied(a, b, lost);
  *overflow = lost;
  return product;
}

uint64_t __udivdi3(uint64_t a, uint64_t b) { return torvane::divided(a, b); }

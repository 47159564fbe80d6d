// The accrued exceptions of the floating-point units: what the bulk test of a checked loop clears and reads.
//
// The C library's own clearing stores and loads the whole environment of the x87 unit, at the price of a
// thousand elements; reading the two status words first is all that a call costs while nothing has failed.
// Both units count: the C library may compute with either. Intel 64 and IA-32 Architectures Software
// Developer's Manual, volume 1, sections 8.1.3 and 10.2.3.
#pragma once

#include <fenv.h>

namespace torvane {

// Underflow and inexact never fail an element.
inline constexpr int kFailingExceptions = FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW;

// The compiler keeps what is stored before the call before it, as of any call.
inline bool hasFailingExceptions() {
  unsigned short x87;
  unsigned sse;
  asm volatile("fnstsw %0\n\tstmxcsr %1" : "=am"(x87), "=m"(sse) : : "memory");
  return ((x87 | sse) & static_cast<unsigned>(kFailingExceptions)) != 0;
}

inline void clearFailingExceptions() {
  if (hasFailingExceptions()) feclearexcept(kFailingExceptions);
}

} // namespace torvane

// A process heap that has no large blocks, so that an input costs little whatever it asks for; what fails for
// want of memory is tried along the way.
#pragma once

#include "runtime/platform.h"

#include <torvane/startup.h>

inline constexpr size_t kLargestBlock = 8u << 20;

inline void *takeLimited(size_t bytes) {
  return bytes > kLargestBlock ? nullptr : torvane::platformProcessHeap.take(bytes);
}
inline void *takeZeroedLimited(size_t bytes) {
  return bytes > kLargestBlock ? nullptr : torvane::platformProcessHeap.takeZeroed(bytes);
}
inline void *takeAlignedLimited(size_t bytes, size_t alignment) {
  return bytes > kLargestBlock ? nullptr : torvane::platformProcessHeap.takeAligned(bytes, alignment);
}

// The library as a host starts it, on such a heap; once.
inline void startLimited() {
  static const torvane::ProcessHeap limited = {takeLimited, torvane::platformProcessHeap.give,
                                               takeZeroedLimited, takeAlignedLimited,
                                               torvane::platformProcessHeap.giveAligned};
  if (torvane::processHeap.load() == &limited) return;
  torvane::processHeap = &limited;
  InitializeTorvaneRTL(nullptr, nullptr, nullptr);
}

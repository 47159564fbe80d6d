// Names of methods, copied into memory of the allocator.
#pragma once

#include "../runtime/memory.h"

#include <string.h>

namespace torvane {

inline char *copyOfName(const char *name) {
  const size_t bytes = strlen(name) + 1;
  return static_cast<char *>(memcpy(allocate(static_cast<uint32_t>(bytes), 0, kFatal), name, bytes));
}

} // namespace torvane

#include "hooks.h"

namespace torvane {

void limitHook(uint32_t) {}

void reportAllocationFailure(uint32_t) {}

mint confirmAbort(const char *) { return 0; }

} // namespace torvane

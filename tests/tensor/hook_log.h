// What the library told its hooks, in order. The definitions in hook_log.cpp take the place of the library's
// empty ones in this program.
#pragma once

#include "runtime/types.h"

#include <string>
#include <vector>

namespace torvane::test {

struct HookCall {
  std::string hook; // "limit" or "report"
  uint32_t bytes;
  bool operator==(const HookCall &) const = default;
};

// The calls since the last time they were taken.
std::vector<HookCall> takeHookCalls();

} // namespace torvane::test

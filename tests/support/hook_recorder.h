// Takes the place of the operations that have no effect in the library (hooks.h) and remembers their calls,
// by thread. A program that calls one of these functions links this file's hooks in place of the library's.
#pragma once

#include <cstdint>
#include <vector>

namespace torvane::test {

// What a hook was called with on this thread since the last call of forgetHookCalls.
const std::vector<uint32_t> &limitHookCalls();
const std::vector<uint32_t> &reportedAllocationFailures();
void forgetHookCalls();

} // namespace torvane::test

// Takes the place of the operations that have no effect in the library (hooks.h) and remembers their calls,
// by thread. A program that calls one of these functions links this file's hooks in place of the library's.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace torvane::test {

// What a hook was called with on this thread since the last call of forgetHookCalls.
const std::vector<uint32_t> &limitHookCalls();
const std::vector<uint32_t> &reportedAllocationFailures();
const std::vector<std::string> &confirmedAborts(); // where each poll asked
void forgetHookCalls();

// The confirmation of this thread answers 0 so many times, then 1. Without this call it always answers 1, so
// that a poll that asks although its switch is 0 shows.
void confirmAbortAfter(int64_t polls);

} // namespace torvane::test

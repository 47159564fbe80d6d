#include "hook_log.h"

#include "runtime/hooks.h"

#include <utility>

namespace torvane {

namespace {
thread_local std::vector<test::HookCall> calls;
}

void limitHook(uint32_t usedBytes) { calls.push_back({"limit", usedBytes}); }
void reportAllocationFailure(uint32_t byteCount) { calls.push_back({"report", byteCount}); }
mint confirmAbort(const char *) { return 0; }

namespace test {
std::vector<HookCall> takeHookCalls() { return std::exchange(calls, {}); }
} // namespace test

} // namespace torvane

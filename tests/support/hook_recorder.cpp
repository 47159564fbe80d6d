#include "hook_recorder.h"

#include "runtime/hooks.h"

namespace torvane {

namespace {

thread_local std::vector<uint32_t> limitCalls, failureCalls;

} // namespace

void limitHook(uint32_t usedBytes) { limitCalls.push_back(usedBytes); }
void reportAllocationFailure(uint32_t byteCount) { failureCalls.push_back(byteCount); }
mint confirmAbort(const char *) { return 1; } // so that a poll that asks, though its switch is 0, shows

namespace test {

const std::vector<uint32_t> &limitHookCalls() { return limitCalls; }
const std::vector<uint32_t> &reportedAllocationFailures() { return failureCalls; }

void forgetHookCalls() {
  limitCalls.clear();
  failureCalls.clear();
}

} // namespace test

} // namespace torvane

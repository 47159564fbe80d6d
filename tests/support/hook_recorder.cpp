#include "hook_recorder.h"

#include "runtime/hooks.h"

namespace torvane {

namespace {

thread_local std::vector<uint32_t> limitCalls, failureCalls;
thread_local std::vector<std::string> abortCalls;
thread_local int64_t pollsLeft = 0;

} // namespace

void limitHook(uint32_t usedBytes) { limitCalls.push_back(usedBytes); }
void reportAllocationFailure(uint32_t byteCount) { failureCalls.push_back(byteCount); }
mint confirmAbort(const char *where) {
  abortCalls.push_back(where);
  return pollsLeft-- <= 0;
}

namespace test {

const std::vector<uint32_t> &limitHookCalls() { return limitCalls; }
const std::vector<uint32_t> &reportedAllocationFailures() { return failureCalls; }

const std::vector<std::string> &confirmedAborts() { return abortCalls; }

void forgetHookCalls() {
  limitCalls.clear();
  failureCalls.clear();
  abortCalls.clear();
}

void confirmAbortAfter(int64_t polls) { pollsLeft = polls; }

} // namespace test

} // namespace torvane

#include "memory_sweep.h"

#include "child_process.h"
#include "failing_heap.h"
#include "heap_walker.h"
#include "on_thread.h"
#include "runtime/memory.h"

#include <cstdio>
#include <cstdlib>

namespace torvane::test {

namespace {

constexpr int kAllTried = 50;

// What a child tells, in lines; the parent reads them.
constexpr const char *kRequest = "request ", *kRefused = "refused\n", *kFault = "fault: ";

void tell(const std::string &text) {
  std::fputs(text.c_str(), stdout);
  std::fflush(stdout);
}

class Attempt {
public:
  Attempt(const SweptOperation &swept, FailingHeap &failing) : operation(swept), heap(failing) {}

  // Whether a request failed.
  bool operator()(int64_t k) {
    number = k;
    operation.prepare();
    const uint32_t before = usedBytesOfThisThread();
    heap.failRequest(k);
    const mint status = operation.run();
    const bool failed = heap.failed();
    heap.succeed();
    check(status, failed);
    operation.release();
    expectKept(status, before, "memory is lost");
    if (failed && status != 0) repeat(before);
    return failed;
  }

private:
  const SweptOperation &operation;
  FailingHeap &heap;
  int64_t number = 0;

  void expect(bool holds, const std::string &what) const {
    if (!holds) tell(kFault + what + " (request " + std::to_string(number) + ")\n");
  }

  void expectKept(mint status, uint32_t before, const char *what) const {
    expect(usedBytesOfThisThread() == before + (status == 0 ? operation.keptBytes : 0), what);
    const testing::AssertionResult valid = isValidHere();
    expect(bool(valid), valid.message());
  }

  // A success in spite of a failure is one if the result is whole.
  void check(mint status, bool failed) const {
    if (status == 0) return expect(operation.isRight(), "another result");
    tell(kRefused);
    expect(failed && operation.mayReturn(status), "status " + std::to_string(status));
    const std::string fault = operation.refused();
    expect(fault.empty(), fault);
  }

  void repeat(uint32_t before) const {
    operation.prepare();
    const mint status = operation.run();
    expect(status == 0, "afterwards, with memory, status " + std::to_string(status));
    if (status == 0) expect(operation.isRight(), "afterwards, with memory, another result");
    operation.release();
    expectKept(status, before, "memory is lost afterwards");
  }
};

void runWithoutFailure(const SweptOperation &operation) {
  operation.prepare();
  operation.run();
  operation.release();
}

void tryFrom(const SweptOperation &operation, SweepKind kind, int64_t k) {
  FailingHeap heap;
  Attempt attempt(operation, heap);
  if (kind == SweepKind::warm) runWithoutFailure(operation);
  for (bool failed = true; failed; ++k) {
    tell(kRequest + std::to_string(k) + "\n");
    if (kind == SweepKind::warm)
      failed = attempt(k);
    else
      onThread([&] { failed = attempt(k); });
  }
  std::_Exit(kAllTried);
}

int64_t lastRequestOf(const std::string &output) {
  return std::atoll(output.c_str() + output.rfind(kRequest) + std::string(kRequest).size());
}

// Counts and faults of a child's lines.
void readLines(const std::string &output, SweepOutcome &outcome) {
  for (size_t at = 0; at < output.size();) {
    const size_t end = output.find('\n', at);
    const std::string line = output.substr(at, end == std::string::npos ? end : end + 1 - at);
    outcome.refused += line == kRefused;
    if (line.rfind(kFault, 0) == 0) outcome.faults += line.substr(std::string(kFault).size());
    at += line.size();
  }
}

} // namespace

SweepOutcome sweepMemory(const SweptOperation &operation, SweepKind kind) {
  SweepOutcome outcome;
  for (int64_t k = 1;; ++k) {
    const ChildOutcome child = runInChild([&] { tryFrom(operation, kind, k); });
    if (child.output.find(kRequest) == std::string::npos) {
      outcome.faults += "no request was tried\n";
      return outcome;
    }
    readLines(child.output, outcome);
    k = lastRequestOf(child.output);
    outcome.requests = k - 1;
    if (child.exited && child.status == kAllTried) return outcome;
    const bool toldWhy = child.output.find("No more memory available.") != std::string::npos;
    if (!child.exited || child.status != 1 || !toldWhy) {
      outcome.faults +=
          "the process ended by " + std::to_string(child.status) + " at request " + std::to_string(k) + "\n";
      return outcome;
    }
    ++outcome.ended;
    outcome.requests = k;
  }
}

} // namespace torvane::test

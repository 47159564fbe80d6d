// The poll of long loops switched on: while one lives, it asks, and is told to abort after so many passes.
#pragma once

#include "runtime/failure.h"
#include "support/hook_recorder.h"

namespace torvane::test {

class Polling {
public:
  explicit Polling(int64_t passes) : before(setAbortPoll(1)) {
    forgetHookCalls();
    confirmAbortAfter(passes);
  }
  ~Polling() {
    setAbortPoll(before);
    confirmAbortAfter(0);
  }
  Polling(const Polling &) = delete;
  Polling &operator=(const Polling &) = delete;
  static size_t polls() { return confirmedAborts().size(); }

private:
  const mint before;
};

} // namespace torvane::test

// A pool of the wanted size for one test, and what a loop's bodies were called with.
#pragma once

#include "parallel/pool.h"
#include "runtime/startup.h"
#include "runtime/thresholds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <mutex>
#include <thread>
#include <vector>

namespace torvane::test {

class PoolTest : public testing::Test {
protected:
  PoolTest() {
    tearDownPool();
    setWorkerCount(3);
  }
  ~PoolTest() override {
    if (ParallelPool *pool = enterPool(true)) {
      EXPECT_TRUE(isValidPool(pool));
      leavePool(pool);
    }
    tearDownPool();
    initializeThresholds(0);
    initializeThresholds(1);
  }
};

struct Call {
  mint first, last, index;
  std::thread::id thread;
};

inline bool operator==(const Call &a, const Call &b) {
  return a.first == b.first && a.last == b.last && a.index == b.index;
}
inline void PrintTo(const Call &call, std::ostream *out) {
  *out << "[" << call.first << ", " << call.last << ") on " << call.index;
}

// The calls of a loop's body, in the order of their ranges.
class Recorder {
public:
  static void body(void *closure, ParallelWorker *worker) {
    auto *self = static_cast<Recorder *>(closure);
    const std::lock_guard guard(self->mutex);
    self->recorded.push_back({ParallelWorker_first(worker), ParallelWorker_last(worker),
                              ParallelWorker_index(worker), std::this_thread::get_id()});
  }

  std::vector<Call> calls() {
    std::sort(recorded.begin(), recorded.end(), [](const Call &a, const Call &b) {
      return a.first != b.first ? a.first < b.first : a.index < b.index;
    });
    return recorded;
  }

private:
  std::mutex mutex;
  std::vector<Call> recorded;
};

// A loop whose body is any callable with a worker.
template <class Body> void callBody(void *closure, ParallelWorker *worker) {
  (*static_cast<Body *>(closure))(worker);
}
template <class Body>
mint loopOver(mint first, mint last, mint grain, Body body, const ParallelPartition *partition = nullptr) {
  return parallelLoop(&body, nullptr, callBody<Body>, first, last, grain, partition);
}

} // namespace torvane::test

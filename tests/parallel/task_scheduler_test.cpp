// The scheduler behind the parallel map, whichever the build has.
#include "parallel/task_scheduler.h"
#include "runtime/platform_thread.h"
#include "support/child_process.h"
#include "support/sanitizers.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <stdexcept>
#include <sys/resource.h>
#include <system_error>
#include <vector>

namespace torvane::test {
namespace {

TEST(ConcurrentTasks, EachRunsOnceBeforeTheCallReturns) {
  for (const mint count : {0, 1, 2, 33}) {
    std::vector<mint> runs(static_cast<size_t>(count)); // plain: a call that returns early is a race
    const auto task = [](void *closure, mint k) {
      ++(*static_cast<std::vector<mint> *>(closure))[static_cast<size_t>(k)];
    };
    runTasks(&runs, task, count);
    EXPECT_EQ(runs, std::vector<mint>(static_cast<size_t>(count), 1));
  }
}

TEST(ConcurrentTasks, ExceptionOfATaskComesOutOnceNoTaskRunsAnyMore) {
  std::atomic<mint> running{0};
  const auto task = [](void *closure, mint k) {
    auto &count = *static_cast<std::atomic<mint> *>(closure);
    ++count;
    sleepMilliseconds(1);
    --count;
    if (k == 1) throw std::runtime_error("of a task");
  };
  EXPECT_THROW(runTasks(&running, task, 8), std::runtime_error);
  EXPECT_EQ(running, 0);
}

#if !defined(TORVANE_TBB) && !TORVANE_THREAD_SANITIZER && !TORVANE_ADDRESS_SANITIZER
// Sleeping tasks hold their stacks, so that a process without room for more is refused one of them.
TEST(ConcurrentTasks, TaskThatCannotBeScheduledIsThePlatformsError) {
  const ChildOutcome child = runInChild([] {
    const rlimit none = {1, 1};
    setrlimit(RLIMIT_AS, &none);
    try {
      runTasks(
          nullptr, [](void *, mint) { sleepMilliseconds(50); }, 64);
    } catch (const std::system_error &refused) {
      endProcess(std::strstr(refused.what(), "Fail to schedule the chore!") != nullptr ? 42 : 1);
    }
  });
  EXPECT_TRUE(child.exited);
  EXPECT_EQ(child.status, 42);
}
#endif

} // namespace
} // namespace torvane::test

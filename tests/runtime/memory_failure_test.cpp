// A process heap that fails: every structure stays valid, every counter true, and mode 0 ends the process.
#include "runtime/heap_state.h"
#include "runtime/memory.h"
#include "support/child_process.h"
#include "support/failing_heap.h"
#include "support/heap_walker.h"
#include "support/hook_recorder.h"
#include "support/on_thread.h"

#include <gtest/gtest.h>

#include <cstring>
#include <unistd.h>

namespace torvane::test {

namespace {

constexpr const char *kMessage = "\nNo more memory available.\nQuillon kernel has shut down.\n"
                                 "Try quitting other applications and then retry.\n";

// Allocates with every request failing in turn; afterwards the heap is as before.
void failEveryAllocation(uint32_t size, mint mode) {
  FailingHeap heap;
  const int64_t tables = pageMapTables();
  const int64_t failures = failEveryRequest(heap, [&] {
    onThread([&] {
      void *block = allocate(size, 0, mode);
      EXPECT_EQ(block == nullptr, heap.failed()) << size;
      EXPECT_TRUE(isValidHere());
      free(block);
      EXPECT_TRUE(isValidHere());
    });
    EXPECT_EQ(heap.blocksOut(), pageMapTables() - tables) << size;
  });
  EXPECT_GE(failures, 2) << "the thread's heap and the block's memory are requests";
}

} // namespace

TEST(Exhaustion, AtAnyRequestOfAThreadsFirstAllocationLeavesNothingBehind) {
  ensureThreadHeap();
  for (const uint32_t size : {8u, 1024u, 1025u, 65528u, 65529u, 5000000u})
    for (const mint mode : {1, 2, 3}) failEveryAllocation(size, mode);
}

TEST(Exhaustion, AtAnyRequestOfTheFirstStateLeavesNothingBehind) {
  const ChildOutcome outcome = runInChild([] {
    tearDownMemory();
    FailingHeap heap;
    failEveryRequest(heap, [&] {
      void *block = allocate(100, 0, kQuiet);
      if ((block == nullptr) != heap.failed()) _exit(1);
      if (!heap.failed()) return;
      if (currentState() != nullptr) tearDownMemory();
      if (heap.blocksOut() != 0) _exit(2);
    });
    if (!isValidState()) _exit(3);
    tearDownMemory();
    _exit(heap.blocksOut() == 0 ? 0 : 4);
  });
  EXPECT_TRUE(outcome.exited);
  EXPECT_EQ(outcome.status, 0);
}

TEST(Exhaustion, OfTheThreadSlotsLeavesNothingBehind) {
  const ChildOutcome outcome = runInChild([] {
    tearDownMemory();
    for (ThreadSlot slot; createThreadSlot(&slot, nullptr);) {
    }
    FailingHeap heap;
    for (const mint mode : {1, 2, 3})
      if (allocate(100, 0, mode) != nullptr) _exit(2);
    if (currentState() != nullptr || heap.blocksOut() != 0) _exit(3);
    allocate(100, 0, kFatal);
    _exit(4);
  });
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, kMessage);
}

TEST(Exhaustion, InTheReportModeChecksTheLimit) {
  onThread([] {
    free(allocate(8, 0, kFatal));
    const uint32_t used = usedBytesOfThisThread();
    setLimitOfThisThread(used + 1);
    FailingHeap heap;
    heap.failFrom(1);
    EXPECT_EQ(allocate(2000, 0, kReport), nullptr);
    // Once for passing the limit with 2008, once for failing to get the cell of 2048.
    EXPECT_EQ(limitHookCalls(), (std::vector<uint32_t>{used + 2008, used + 2048}));
    forgetHookCalls();
    EXPECT_EQ(allocate(2000, 0, 3), nullptr);
    EXPECT_EQ(limitHookCalls(), std::vector<uint32_t>{used + 2008});
    heap.succeed();
    setLimitOfThisThread(0);
    EXPECT_TRUE(isValidHere());
  });
}

TEST(Exhaustion, OfReallocationKeepsTheOldBlock) {
  onThread([] {
    auto *block = static_cast<char *>(allocate(16, 0, kFatal));
    std::strcpy(block, "still here");
    FailingHeap heap;
    heap.failFrom(1);
    EXPECT_EQ(reallocate(block, 200000, 0, kQuiet), nullptr);
    heap.succeed();
    EXPECT_STREQ(block, "still here");
    free(block);
    EXPECT_TRUE(isValidHere());
  });
}

TEST(FatalPath, PrintsWaitsThreeSecondsAndEndsWithStatusOne) {
  const ChildOutcome outcome = runInChild([] { fatalOutOfMemory(); }, LongWaits::inFull);
  EXPECT_TRUE(outcome.exited);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, kMessage);
  EXPECT_GE(outcome.seconds, 3.0);
  EXPECT_LT(outcome.seconds, 30.0);
}

TEST(FatalPath, GivesUpTheReserve) {
  ensureThreadHeap();
  const ChildOutcome outcome = runInChild([] {
    static void *reserve = currentState()->reserve;
    static ProcessHeap watching = platformProcessHeap;
    watching.give = [](void *block) {
      if (block == reserve) writeStandardOutput("reserve freed");
      platformProcessHeap.give(block);
    };
    processHeap = &watching;
    fatalOutOfMemory();
  });
  std::string expected = "reserve freed";
  EXPECT_EQ(outcome.output, expected.append(kMessage));
}

class FatalRequest : public testing::TestWithParam<uint32_t> {};

TEST_P(FatalRequest, TakesTheFatalPathWhicheverRequestOfTheHeapFails) {
  for (int64_t k = 1;; ++k) {
    const ChildOutcome outcome = runInChild([&] {
      FailingHeap heap;
      onThread([&] {
        heap.failRequest(k);
        allocate(GetParam(), 0, kFatal);
        _exit(heap.failed() ? 98 : 0);
      });
    });
    if (outcome.status == 0) {
      EXPECT_GE(k, 3) << "the thread's heap and the block's memory are requests";
      return;
    }
    ASSERT_EQ(outcome.status, 1);
    ASSERT_EQ(outcome.output, kMessage);
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, FatalRequest, testing::Values(64u, 2000u, 100000u));

TEST(FatalPath, IsTakenByARequestThatWraps) {
  const ChildOutcome outcome = runInChild([] { allocate(0xFFFFFFFFu, 0, kFatal); });
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, kMessage);
}

} // namespace torvane::test

// Limits, the limit hook, and requests that wrap.
#include "runtime/memory.h"
#include "support/heap_walker.h"
#include "support/hook_recorder.h"
#include "support/on_thread.h"

#include <gtest/gtest.h>

namespace torvane::test {

namespace {

using Calls = std::vector<uint32_t>;

} // namespace

TEST(Limit, FailsOnlyTheQuietMode) {
  onThread([] {
    const uint32_t used = usedBytesOfThisThread();
    setLimitOfThisThread(used + 64);
    EXPECT_EQ(allocate(72, 0, kQuiet), nullptr);
    EXPECT_EQ(limitHookCalls(), Calls{used + 72});
    EXPECT_EQ(usedBytesOfThisThread(), used);
    for (const mint mode : {0, 2, 7}) {
      forgetHookCalls();
      void *block = allocate(72, 0, mode);
      EXPECT_NE(block, nullptr);
      EXPECT_EQ(limitHookCalls(), Calls{used + 72});
      EXPECT_EQ(usedBytesOfThisThread(), used + 72);
      free(block);
    }
    setLimitOfThisThread(0);
    EXPECT_TRUE(isValidHere());
  });
}

TEST(Limit, IsReachedOnlyWhenPassed) {
  onThread([] {
    setLimitOfThisThread(usedBytesOfThisThread() + 64);
    void *block = allocate(64, 0, kQuiet);
    EXPECT_NE(block, nullptr);
    EXPECT_TRUE(limitHookCalls().empty());
    EXPECT_EQ(allocate(1, 0, kQuiet), nullptr);
    setLimitOfThisThread(0);
    free(block);
  });
}

TEST(Limit, CountsTheRoundedRequestAndItsHeader) {
  onThread([] {
    const uint32_t used = usedBytesOfThisThread();
    setLimitOfThisThread(used + 1040);
    void *block = allocate(1025, 0, kQuiet); // 1032 and 8 pass, though the class has 1152
    EXPECT_NE(block, nullptr);
    free(block);
    setLimitOfThisThread(used + 1039);
    EXPECT_EQ(allocate(1025, 0, kQuiet), nullptr);
    EXPECT_EQ(limitHookCalls(), Calls{used + 1040});
    setLimitOfThisThread(0);
  });
}

TEST(Limit, HoldsForLargeBlocks) {
  onThread([] {
    setLimitOfThisThread(usedBytesOfThisThread() + 100000);
    EXPECT_EQ(allocate(100000, 0, kQuiet), nullptr);
    void *block = allocate(99000, 0, kQuiet);
    EXPECT_NE(block, nullptr);
    setLimitOfThisThread(0);
    free(block);
  });
}

TEST(Limit, IsPassedByASumThatWraps) {
  onThread([] {
    setLimitOfThisThread(0xFFFFFFFFu);
    EXPECT_EQ(allocate(0xFFFFFF00u, 0, kQuiet), nullptr);
    EXPECT_EQ(limitHookCalls(), Calls{0xFFFFFFFFu});
    setLimitOfThisThread(0);
    EXPECT_TRUE(isValidHere());
  });
}

TEST(Limit, CheckCallsTheHookWithTheSaturatedSum) {
  onThread([] {
    const uint32_t used = usedBytesOfThisThread();
    checkLimit(1000); // no limit
    setLimitOfThisThread(used + 1000);
    checkLimit(1000); // not above
    EXPECT_TRUE(limitHookCalls().empty());
    checkLimit(1001);
    checkLimit(0xFFFFFFFFu);
    EXPECT_EQ(limitHookCalls(), (Calls{used + 1001, 0xFFFFFFFFu}));
    EXPECT_EQ(usedBytesOfThisThread(), used);
    setLimitOfThisThread(0);
  });
}

TEST(Limit, IsHeededByTheThreadItWasSetOnAlone) {
  setLimitOfThisThread(1);
  onThread([] {
    void *block = allocate(100, 0, kQuiet);
    EXPECT_NE(block, nullptr);
    free(block);
  });
  EXPECT_EQ(allocate(100, 0, kQuiet), nullptr);
  setLimitOfThisThread(0);
}

TEST(Requests, ThatWrapFailByTheirMode) {
  onThread([] {
    const uint32_t used = usedBytesOfThisThread();
    for (const uint32_t size : {0xFFFFFFFFu, 0xFFFFFFF9u, 0xFFFFFFF8u, 0xFFFFFFF1u, 0xFFFFFFE9u})
      for (const mint mode : {1, 2, 3}) EXPECT_EQ(allocate(size, 0, mode), nullptr) << size;
    EXPECT_TRUE(limitHookCalls().empty());
    setLimitOfThisThread(used + 1);
    EXPECT_EQ(allocate(0xFFFFFFFFu, 0, kQuiet), nullptr);
    EXPECT_TRUE(limitHookCalls().empty());
    EXPECT_EQ(allocate(0xFFFFFFFFu, 0, kReport), nullptr);
    EXPECT_EQ(limitHookCalls(), Calls{0xFFFFFFFFu});
    setLimitOfThisThread(0);
    EXPECT_EQ(usedBytesOfThisThread(), used);
  });
}

} // namespace torvane::test

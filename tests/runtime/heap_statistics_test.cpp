// What heaps report: statistics, peak marks, external bytes, installed memory.
#include "runtime/heap_state.h"
#include "runtime/heap_thread.h"
#include "runtime/memory.h"
#include "support/heap_walker.h"
#include "support/hook_recorder.h"
#include "support/on_thread.h"

#include <gtest/gtest.h>

namespace torvane::test {

TEST(Statistics, GiveOneWordForEachHeapTheNewestFirst) {
  onThread([] {
    void *mine = allocate(1000, 0, kFatal);
    onThread([] {
      void *block = allocate(3000, 0, kFatal);
      uint32_t count = 0;
      uint32_t *used = heapStatistics(&count, 0);
      ASSERT_GE(count, 2u);
      EXPECT_EQ(used[0], usedBytesOfThisThread()) << "the array itself is counted";
      EXPECT_EQ(used[1], kHeapOwnBytes + 1024);
      uint32_t *peaks = heapStatistics(&count, 1);
      EXPECT_EQ(peaks[0], usedBytesOfThisThread());
      uint32_t *ids = heapStatistics(&count, 4);
      EXPECT_EQ(ids[0], currentThreadId());
      EXPECT_NE(ids[0], ids[1]);
      uint32_t *alsoIds = heapStatistics(&count, -1);
      EXPECT_EQ(alsoIds[0], ids[0]);
      for (void *figures : {used, peaks, ids, alsoIds}) free(figures);
      free(block);
    });
    free(mine);
  });
}

TEST(Statistics, ReportsWaitingBytesOfCellsAndLargeBlocksApart) {
  onThread([] {
    void *cells[] = {allocate(10, 0, kFatal), allocate(11, 0, kFatal), allocate(5000, 0, kFatal)};
    void *large = allocate(100000, 0, kFatal);
    onThread([&] {
      for (void *cell : cells) free(cell);
      free(large);
    });
    uint32_t count = 0;
    uint32_t *remote = heapStatistics(&count, 2), *deferred = heapStatistics(&count, 3);
    EXPECT_EQ(remote[0], 2u * 16u + 5120u);
    EXPECT_EQ(deferred[0], static_cast<uint32_t>(100000 + sizeof(LargeBlock)));
    free(remote);
    free(deferred);
  });
}

TEST(PeakMarks, ReturnThePeakOfTheirSpanAndRestoreTheOuterOne) {
  onThread([] {
    PeakMark *stack = nullptr;
    void *a = allocate(100000, 0, kFatal);
    free(a);
    const uint32_t outer = threadHeap->peakBytes.value();
    pushPeakMark(&stack);
    const uint32_t start = usedBytesOfThisThread();
    EXPECT_EQ(threadHeap->peakBytes.value(), start);
    free(allocate(1000, 0, kFatal));
    pushPeakMark(&stack);
    free(allocate(2000, 0, kFatal)); // a cell of 2048
    EXPECT_EQ(popPeakMark(&stack), start + sizeof(void *) * 2 + 2048);
    EXPECT_EQ(threadHeap->peakBytes.value(), start + sizeof(void *) * 2 + 2048)
        << "the inner peak is the larger";
    EXPECT_EQ(popPeakMark(&stack), start + sizeof(void *) * 2 + 2048);
    EXPECT_EQ(stack, nullptr);
    EXPECT_EQ(threadHeap->peakBytes.value(), outer);
    EXPECT_TRUE(isValidHere());
  });
}

TEST(PeakMarks, CountLargeBlocks) {
  onThread([] {
    PeakMark *stack = nullptr;
    pushPeakMark(&stack);
    const uint32_t start = usedBytesOfThisThread();
    free(allocate(100000, 0, kFatal));
    EXPECT_EQ(popPeakMark(&stack), static_cast<uint32_t>(start + 100000 + sizeof(LargeBlock)));
  });
}

TEST(ExternalBytes, ChangeUsedByTheDifference) {
  onThread([] {
    const uint32_t used = usedBytesOfThisThread();
    adjustExternalBytes(5000);
    EXPECT_EQ(usedBytesOfThisThread(), used + 5000);
    EXPECT_EQ(threadHeap->peakBytes.value(), used + 5000);
    adjustExternalBytes(2000);
    EXPECT_EQ(usedBytesOfThisThread(), used + 2000);
    EXPECT_EQ(threadHeap->peakBytes.value(), used + 5000);
    EXPECT_TRUE(isValidHere(2000));
    setLimitOfThisThread(used + 2500);
    adjustExternalBytes(2500);
    EXPECT_TRUE(limitHookCalls().empty());
    adjustExternalBytes(2501);
    EXPECT_EQ(limitHookCalls(), std::vector<uint32_t>{used + 2501});
    EXPECT_EQ(usedBytesOfThisThread(), used + 2501);
    adjustExternalBytes(2600);
    EXPECT_EQ(limitHookCalls().size(), 2u);
    adjustExternalBytes(2550); // above the limit still, but it shrank
    EXPECT_EQ(limitHookCalls().size(), 2u);
    setLimitOfThisThread(0);
    adjustExternalBytes(0);
    EXPECT_EQ(usedBytesOfThisThread(), used);
  });
}

TEST(InstalledMemory, IsWholeKilobytesAndMoreThanAPageMap) {
  const uint64_t bytes = installedMemoryBytes();
  EXPECT_EQ(bytes, systemInstalledKilobytes() * 1024);
  EXPECT_EQ(bytes % 1024, 0u);
  EXPECT_GT(bytes, uint64_t{1} << 26);
}

} // namespace torvane::test

// The areas that a thread leaves when it ends: they serve the threads that come, within a bound, and go back
// when the allocator is torn down.
#include "runtime/heap_area.h"
#include "runtime/heap_state.h"
#include "runtime/memory.h"
#include "support/child_process.h"
#include "support/failing_heap.h"
#include "support/heap_walker.h"
#include "support/on_thread.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace torvane::test {

namespace {

constexpr uint32_t kSizes[] = {16, 500, 2000, 30000, 200000};

void useEverySize() {
  for (const uint32_t size : kSizes) free(allocate(size, 0, kFatal));
}

// Requests of the process heap that a thread makes which allocates one block of every size.
int64_t requestsOfAThread(FailingHeap &heap) {
  const int64_t before = heap.requests();
  onThread(useEverySize);
  return heap.requests() - before;
}

} // namespace

TEST(AreaStore, ServesTheNextThreadWithTheAreasOfTheLast) {
  ensureThreadHeap();
  FailingHeap heap;
  onThread(useEverySize); // what the thread slots and the page map need once
  const int64_t warm = requestsOfAThread(heap);
  heap.succeed(); // empties the store
  const int64_t cold = requestsOfAThread(heap);
  EXPECT_EQ(cold - warm, int64_t(std::size(kSizes))) << "one area a size";
}

TEST(AreaStore, GivesEverythingBackWhenItIsEmptied) {
  ensureThreadHeap();
  FailingHeap heap;
  const int64_t tables = pageMapTables();
  onThread(useEverySize);
  EXPECT_EQ(heap.blocksOut(), pageMapTables() - tables) << "counted when the store is empty";
  heap.failFrom(1);
  onThread([] { EXPECT_EQ(allocate(30000, 0, kQuiet), nullptr) << "nothing is left to serve it"; });
}

// Ten threads that live at once keep five times what the store may.
TEST(AreaStore, KeepsNoMoreThanItsBoundWhenManyThreadsEnd) {
  ensureThreadHeap();
  constexpr uint32_t kBlock = 1u << 20;
  constexpr int kThreads = 10, kBlocks = int(kMaxKeptBytes / kBlock) / 2;
  FailingHeap heap;
  std::atomic<int> ready{0};
  std::vector<std::thread> threads;
  for (int k = 0; k < kThreads; ++k)
    threads.emplace_back([&] {
      std::vector<void *> blocks;
      for (int i = 0; i < kBlocks; ++i) blocks.push_back(allocate(kBlock - 100, 0, kFatal));
      for (++ready; ready < kThreads;) std::this_thread::yield();
      for (void *block : blocks) free(block);
    });
  for (std::thread &thread : threads) thread.join();
  const int64_t before = heap.requests();
  onThread([] {
    std::vector<void *> blocks;
    for (uint32_t i = 0; i < 2 * kMaxKeptBytes / kBlock; ++i)
      blocks.push_back(allocate(kBlock - 100, 0, kFatal));
    for (void *block : blocks) free(block);
  });
  EXPECT_GE(heap.requests() - before, int64_t(kMaxKeptBytes / kBlock)) << "half of them found no stored area";
}

TEST(AreaStore, IsEmptyAfterATearDown) {
  const ChildOutcome outcome = runInChild([] {
    tearDownMemory();
    static int64_t out = 0;
    static ProcessHeap counting = platformProcessHeap;
    counting.take = [](size_t bytes) { return ++out, platformProcessHeap.take(bytes); };
    counting.takeZeroed = [](size_t bytes) { return ++out, platformProcessHeap.takeZeroed(bytes); };
    counting.takeAligned = [](size_t bytes, size_t to) {
      return ++out, platformProcessHeap.takeAligned(bytes, to);
    };
    counting.give = [](void *block) { out -= block != nullptr, platformProcessHeap.give(block); };
    counting.giveAligned = [](void *block) {
      out -= block != nullptr, platformProcessHeap.giveAligned(block);
    };
    processHeap = &counting;
    onThread(useEverySize);
    tearDownMemory();
    _exit(out == 0 ? 0 : 1);
  });
  EXPECT_EQ(outcome.status, 0);
}

// The thread sanitizer sees one area change hands a thousand times.
TEST(AreaStoreConcurrent, HandsAreasOnBetweenThreadsThatComeAndGo) {
  ensureThreadHeap();
  std::vector<std::thread> spawners;
  for (int k = 0; k < 4; ++k)
    spawners.emplace_back([] {
      for (int round = 0; round < 50; ++round)
        onThread([] {
          for (const uint32_t size : kSizes) {
            auto *block = static_cast<unsigned char *>(allocate(size, 0, kFatal));
            std::fill(block, block + size, static_cast<unsigned char>(size));
            EXPECT_EQ(block[size / 2], static_cast<unsigned char>(size));
            free(block);
          }
          EXPECT_TRUE(isValidHere());
        });
    });
  for (std::thread &spawner : spawners) spawner.join();
  EXPECT_TRUE(isValidState());
}

} // namespace torvane::test

// Blocks that cross threads, threads that end, and heaps that outlive them.
#include "runtime/heap_remote.h"
#include "runtime/heap_slab.h"
#include "runtime/heap_state.h"
#include "runtime/memory.h"
#include "runtime/startup.h"
#include "support/failing_heap.h"
#include "support/heap_walker.h"
#include "support/on_thread.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace torvane::test {

namespace {

uint32_t heapCount() {
  uint32_t count = 0;
  free(heapStatistics(&count, 0));
  return count;
}

// The sum of a statistic over all heaps.
uint32_t sumOf(mint which) {
  uint32_t count = 0, sum = 0;
  uint32_t *figures = heapStatistics(&count, which);
  for (uint32_t i = 0; i < count; ++i) sum += figures[i];
  free(figures);
  return sum;
}

} // namespace

TEST(RemoteFree, IsCreditedWhenTheOwnerNextTakesInThatClass) {
  onThread([] {
    void *a = allocate(40, 0, kFatal);
    const uint32_t used = usedBytesOfThisThread();
    onThread([&] { free(a); });
    EXPECT_EQ(usedBytesOfThisThread(), used);
    free(allocate(48, 0, kFatal)); // another class
    EXPECT_EQ(usedBytesOfThisThread(), used);
    EXPECT_EQ(sumOf(2), 40u);
    EXPECT_TRUE(isValidHere());
    void *b = allocate(40, 0, kFatal);
    EXPECT_EQ(usedBytesOfThisThread(), used);
    EXPECT_EQ(b, a);
    EXPECT_EQ(sumOf(2), 0u);
    free(b);
    EXPECT_EQ(usedBytesOfThisThread(), used - 40);
    EXPECT_TRUE(isValidHere());
  });
}

TEST(RemoteFree, IsCreditedWhenTheOwnerNextFreesInThatClass) {
  for (const uint32_t size : {40u, 2000u}) {
    onThread([&] {
      const uint32_t before = usedBytesOfThisThread();
      void *a = allocate(size, 0, kFatal), *b = allocate(size, 0, kFatal);
      onThread([&] { free(a); });
      free(b);
      EXPECT_EQ(usedBytesOfThisThread(), before);
      EXPECT_TRUE(isValidHere());
    });
  }
}

TEST(RemoteFree, OfALargeBlockIsCreditedWhenTheOwnerNextTakesOrFreesALargeOne) {
  onThread([] {
    const uint32_t before = usedBytesOfThisThread();
    void *a = allocate(70000, 0, kFatal), *b = allocate(80000, 0, kFatal), *c = allocate(90000, 0, kFatal);
    onThread([&] { free(a); });
    EXPECT_EQ(sumOf(3), static_cast<uint32_t>(70000 + sizeof(LargeBlock)));
    free(allocate(8, 0, kFatal));
    EXPECT_EQ(sumOf(3), static_cast<uint32_t>(70000 + sizeof(LargeBlock)));
    EXPECT_TRUE(isValidHere());
    free(b);
    EXPECT_EQ(sumOf(3), 0u);
    EXPECT_EQ(usedBytesOfThisThread() - before, static_cast<uint32_t>(90000 + sizeof(LargeBlock)));
    onThread([&] { free(c); });
    free(allocate(70000, 0, kFatal));
    EXPECT_EQ(usedBytesOfThisThread(), before);
    EXPECT_TRUE(isValidHere());
  });
}

TEST(RemoteFree, MakesNoHeapForTheFreeingThread) {
  void *block = allocate(40, 0, kFatal), *large = allocate(70000, 0, kFatal);
  onThread([&] {
    free(block);
    free(large);
    EXPECT_FALSE(hasHeap());
  });
  free(allocate(40, 0, kFatal));
  free(allocate(70000, 0, kFatal));
}

// Full slabs of a class whose cells come back partly through the box and partly through the slabs' own lists,
// in more slabs than are taken off the pending list in one go.
TEST(RemoteFree, MixesTheBoxAndTheListsOfManySlabs) {
  for (const uint32_t size : {1000u, 4000u}) {
    onThread([&] {
      const uint32_t used = usedBytesOfThisThread();
      std::vector<void *> blocks(3000);
      for (void *&block : blocks) block = allocate(size, 0, kFatal);
      onThread([&] {
        for (size_t i = 0; i < blocks.size(); ++i) free(blocks[i * 7 % blocks.size()]);
      });
      EXPECT_TRUE(isValidHere());
      free(allocate(size, 0, kFatal));
      EXPECT_EQ(usedBytesOfThisThread(), used);
      EXPECT_TRUE(isValidHere());
    });
  }
}

// More cells than a box holds, and cells for which there is no box: both come home all the same.
TEST(RemoteFree, ReachesTheOwnerWithAFullBoxAndWithoutOne) {
  constexpr uint32_t kCells = kBoxCells + 124;
  for (const bool noMemory : {false, true}) {
    onThread([&] {
      const uint32_t used = usedBytesOfThisThread();
      std::vector<void *> blocks(kCells);
      for (void *&block : blocks) block = allocate(40, 0, kFatal);
      onThread([&] {
        FailingHeap heap;
        if (noMemory) heap.failFrom(1);
        for (void *block : blocks) free(block);
        EXPECT_EQ(heap.failed(), noMemory);
      });
      EXPECT_EQ(sumOf(2), 40 * kCells);
      EXPECT_TRUE(isValidHere());
      free(allocate(40, 0, kFatal));
      EXPECT_EQ(usedBytesOfThisThread(), used);
      EXPECT_EQ(sumOf(2), 0u);
      EXPECT_TRUE(isValidHere());
    });
  }
}

TEST(RemoteFree, OfAllCellsOfManySlabsKeepsOneOfThem) {
  onThread([] {
    std::vector<void *> blocks(1000);
    for (const uint32_t size : {1024u, 4000u}) {
      for (void *&block : blocks) block = allocate(size, 0, kFatal);
      onThread([&] {
        for (void *block : blocks) free(block);
      });
      EXPECT_TRUE(isValidHere());
      void *block = allocate(size, 0, kFatal);
      const SizeClass &sizeClass = *threadHeap->classes[classOfSize[(size + 7 + (size > 1024 ? 8 : 0)) / 8]];
      EXPECT_EQ(sizeClass.fullSlabs, nullptr);
      EXPECT_EQ(sizeClass.partialCount, 1u);
      EXPECT_TRUE(isValidHere());
      free(block);
      EXPECT_TRUE(isValidHere());
    }
  });
}

// The area of a slab that is given up may belong to anyone a moment later.
TEST(ReleasedSlab, IsNoLongerTakenForTheOwnerOfItsArea) {
  onThread([] {
    std::vector<void *> blocks(200);
    for (void *&block : blocks) block = allocate(1024, 0, kFatal);
    for (void *block : blocks) {
      free(block);
      ASSERT_TRUE(isValidHere());
    }
    for (void *&block : blocks) block = allocate(64, 0, kFatal);
    for (void *block : blocks) free(block);
    EXPECT_TRUE(isValidHere());
  });
}

TEST(ThreadEnd, DestroysAnEmptyHeapAndReturnsAllItsMemory) {
  const uint32_t heaps = heapCount();
  FailingHeap heap;
  const int64_t tables = pageMapTables();
  onThread([] {
    std::vector<void *> blocks;
    for (uint32_t size = 1; size < 300000; size = size * 3 / 2 + 1)
      blocks.push_back(allocate(size, 0, kFatal));
    for (void *block : blocks) free(block);
  });
  EXPECT_EQ(heap.blocksOut(), pageMapTables() - tables);
  EXPECT_EQ(heapCount(), heaps);
}

TEST(ThreadEnd, LeavesLiveBlocksValidForAnyThreadToFree) {
  const uint32_t heaps = heapCount();
  for (const uint32_t size : {8u, 1024u, 1025u, 65528u, 65529u}) {
    char *blocks[20];
    onThread([&] {
      for (char *&block : blocks) {
        block = static_cast<char *>(allocate(size, 0, kFatal));
        block[0] = block[size - 1] = 77;
      }
    });
    EXPECT_EQ(heapCount(), heaps + 1);
    EXPECT_TRUE(isValidState());
    for (int i = 0; i < 20; ++i) {
      EXPECT_EQ(blocks[i][0], 77);
      EXPECT_EQ(blocks[i][size - 1], 77);
      if (i % 2 == 0)
        free(blocks[i]);
      else
        onThread([&] { free(blocks[i]); });
      EXPECT_TRUE(isValidState());
    }
    EXPECT_EQ(heapCount(), heaps) << "the last free destroys the orphan";
  }
}

// And gives back what it was kept in.
TEST(ThreadEnd, ReclaimsWhatOthersHaveFreed) {
  const uint32_t heaps = heapCount();
  FailingHeap heap;
  const int64_t tables = pageMapTables();
  onThread([] {
    void *small = allocate(100, 0, kFatal), *big = allocate(5000, 0, kFatal),
         *large = allocate(100000, 0, kFatal);
    onThread([&] {
      free(small);
      free(big);
      free(large);
    });
  });
  EXPECT_EQ(heap.blocksOut(), pageMapTables() - tables);
  EXPECT_EQ(heapCount(), heaps);
}

// The counters have 32 bits: with more memory than that in slabs, freeBytes may be 0.
TEST(ThreadEnd, LeavesAHeapThatHasSlabsWhateverItsCounterSays) {
  const uint32_t heaps = heapCount();
  void *block = nullptr;
  ThreadHeap *heap = nullptr;
  uint32_t freeBytes = 0;
  onThread([&] {
    block = allocate(100, 0, kFatal);
    heap = threadHeap;
    freeBytes = freeBytesOf(heap);
    heap->heldBytes -= freeBytes;
  });
  ASSERT_EQ(heapCount(), heaps + 1);
  heap->heldBytes += freeBytes;
  EXPECT_TRUE(isValidState());
  free(block);
  EXPECT_EQ(heapCount(), heaps);
}

TEST(ThreadEnd, RunsThroughTheSlotOrTheHookButOnce) {
  const uint32_t heaps = heapCount();
  onThread([&] {
    free(allocate(100, 0, kFatal));
    EXPECT_EQ(heapCount(), heaps + 1);
    endThreadHeap();
    EXPECT_FALSE(hasHeap());
    EXPECT_EQ(threadSlotValue(currentState()->tlsSlot), nullptr);
    endThreadHeap(); // nothing left to end
  });
  EXPECT_EQ(heapCount(), heaps);
}

TEST(ThreadEnd, LetsTheThreadStartANewHeap) {
  const uint32_t heaps = heapCount();
  onThread([&] {
    void *kept = allocate(100, 0, kFatal);
    endThreadHeap();
    void *block = allocate(100, 0, kFatal);
    EXPECT_EQ(heapCount(), heaps + 2);
    free(kept); // its heap is an orphan now, and this was its last block
    EXPECT_EQ(heapCount(), heaps + 1);
    free(block);
    EXPECT_TRUE(isValidState());
  });
  EXPECT_EQ(heapCount(), heaps);
}

TEST(ThreadEnd, FindsTheHeapWhoseWordIsLost) {
  const uint32_t heaps = heapCount();
  onThread([] {
    ThreadHeap *heap = ensureThreadHeap();
    forgetHeap();
    EXPECT_EQ(ensureThreadHeap(), heap) << "the slot still knows it";
  });
  EXPECT_EQ(heapCount(), heaps);
}

// Several threads return the blocks of one orphan in several classes at once; exactly one of them destroys
// it.
TEST(Orphan, IsDestroyedOnceByManyFreeingThreads) {
  const uint32_t heaps = heapCount();
  FailingHeap processBlocks;
  const int64_t tables = pageMapTables();
  for (int round = 0; round < 60; ++round) {
    std::vector<void *> blocks(240);
    onThread([&] {
      for (size_t i = 0; i < blocks.size(); ++i) {
        constexpr uint32_t kSizes[] = {16, 200, 1024, 1500, 9000, 70000};
        blocks[i] = allocate(kSizes[i % 6], 0, kFatal);
      }
    });
    std::vector<std::thread> threads;
    std::atomic<bool> go{false};
    for (size_t t = 0; t < 4; ++t)
      threads.emplace_back([&, t] {
        while (!go) std::this_thread::yield();
        for (size_t i = t; i < blocks.size(); i += 4) free(blocks[i]);
      });
    go = true;
    for (std::thread &thread : threads) thread.join();
    ASSERT_EQ(processBlocks.blocksOut(), pageMapTables() - tables);
    ASSERT_EQ(heapCount(), heaps);
  }
  EXPECT_TRUE(isValidState());
}

// Blocks come home while their owner is ending: before, during and after its walk.
TEST(Orphan, TakesBlocksBackWhileItsThreadEnds) {
  const uint32_t heaps = heapCount();
  for (int round = 0; round < 150; ++round) {
    std::vector<void *> blocks(200);
    std::atomic<bool> ready{false};
    std::thread owner([&] {
      for (size_t i = 0; i < blocks.size(); ++i)
        blocks[i] = allocate(i % 5 == 0 ? 70000 : 8u << (i % 12), 0, kFatal);
      ready.store(true, std::memory_order_release);
    });
    std::thread others[2];
    for (size_t t = 0; t < 2; ++t)
      others[t] = std::thread([&, t] {
        while (!ready.load(std::memory_order_acquire)) std::this_thread::yield();
        for (size_t i = t; i < blocks.size(); i += 2) free(blocks[i]);
      });
    owner.join();
    for (std::thread &other : others) other.join();
    ASSERT_EQ(heapCount(), heaps);
  }
  EXPECT_TRUE(isValidState());
}

// Statistics walk the list and every lock while heaps come and go.
TEST(Orphan, MayEndWhileAnotherThreadTakesStatistics) {
  std::atomic<bool> done{false};
  std::thread reporter([&] {
    while (!done) {
      for (mint which = 0; which <= 4; ++which) {
        uint32_t count = 0;
        uint32_t *figures = heapStatistics(&count, which);
        EXPECT_GE(count, 1u);
        free(figures);
      }
    }
  });
  for (int round = 0; round < 200; ++round) {
    std::vector<void *> blocks(40);
    onThread([&] {
      for (void *&block : blocks)
        block = allocate(100 + static_cast<uint32_t>(&block - blocks.data()) * 2000, 0, kFatal);
    });
    std::thread helper([&] {
      for (size_t i = 0; i < blocks.size(); i += 2) free(blocks[i]);
    });
    for (size_t i = 1; i < blocks.size(); i += 2) free(blocks[i]);
    helper.join();
  }
  done = true;
  reporter.join();
  EXPECT_TRUE(isValidState());
}

} // namespace torvane::test

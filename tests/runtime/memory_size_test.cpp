// Sizes: the classes, what a request takes, and what blocks report.
#include "runtime/heap_slab.h"
#include "runtime/heap_state.h"
#include "runtime/memory.h"
#include "support/heap_walker.h"
#include "support/on_thread.h"

#include <gtest/gtest.h>

#include <vector>

namespace torvane::test {

namespace {

constexpr uint32_t kLargeHeader = sizeof(void *) == 4 ? 24 : 40;

// The 88 sizes written out group by group.
std::vector<uint32_t> expectedSizes() {
  std::vector<uint32_t> sizes;
  for (uint32_t size = 8; size <= 128; size += 8) sizes.push_back(size);
  for (uint32_t step = 16, last = 128; step <= 4096; step *= 2, last *= 2)
    for (uint32_t size = last + step; size <= 2 * last; size += step) sizes.push_back(size);
  return sizes;
}

// What this thread's usedBytes grows by when it takes a block of `size`.
uint32_t takenBy(uint32_t size) {
  const uint32_t before = usedBytesOfThisThread();
  void *block = allocate(size, 0, kQuiet);
  const uint32_t taken = usedBytesOfThisThread() - before;
  free(block);
  EXPECT_EQ(usedBytesOfThisThread(), before);
  return taken;
}

} // namespace

TEST(SizeClasses, AreEightyEightAndDoubleTheirStepEveryEight) {
  const std::vector<uint32_t> sizes = expectedSizes();
  ASSERT_EQ(sizes.size(), kClassCount);
  EXPECT_EQ(cellBytesOfClass(0), 0u);
  for (uint32_t number = 1; number <= kClassCount; ++number)
    EXPECT_EQ(cellBytesOfClass(number), sizes[number - 1]) << number;
}

TEST(SizeClasses, TableFindsTheSmallestClassThatHoldsASize) {
  const std::vector<uint32_t> sizes = expectedSizes();
  ASSERT_EQ(classOfSize.size(), 8193u);
  EXPECT_EQ(classOfSize[0], 0);
  for (uint32_t eighth = 1; eighth <= 8192; ++eighth) {
    uint32_t smallest = 0;
    while (sizes[smallest] < 8 * eighth) ++smallest;
    ASSERT_EQ(classOfSize[eighth], smallest + 1) << 8 * eighth;
  }
}

TEST(SizeClasses, AreLaidOutInSlabsOf64KiBOrOfEightCells) {
  ensureThreadHeap();
  for (uint32_t number = 1; number <= kClassCount; ++number) {
    const SizeClass &sizeClass = *threadHeap->classes[number];
    const uint32_t bytes = sizeClass.objectBytes;
    EXPECT_EQ(bytes, cellBytesOfClass(number));
    EXPECT_EQ(sizeClass.objectsPerSlab, bytes <= 1024 ? 65536 / bytes : 8);
    EXPECT_EQ(sizeClass.slabDataBytes, bytes <= 1024 ? 65536 : 8 * bytes);
    EXPECT_EQ(sizeClass.slabPages, bytes <= 1024 ? 65536 / systemPageSize() : 0);
  }
}

TEST(Geometry, IsTheSystems) {
  ensureThreadHeap();
  const AllocatorGeometry &geometry = *currentState()->geometry;
  EXPECT_EQ(geometry.slabBytes, 65536u);
  EXPECT_EQ(geometry.pageSize, systemPageSize());
  EXPECT_EQ(geometry.pageMask, geometry.pageSize - 1);
  EXPECT_EQ(geometry.pagesPerSlab, 65536u / geometry.pageSize);
  EXPECT_EQ(1u << geometry.pageShift, geometry.pageSize);
}

TEST(Requests, TakeTheirClassOrTheirOwnBlock) {
  onThread([] {
    EXPECT_EQ(takenBy(1), 8u);
    EXPECT_EQ(takenBy(8), 8u);
    EXPECT_EQ(takenBy(9), 16u);
    EXPECT_EQ(takenBy(129), 144u);
    EXPECT_EQ(takenBy(1024), 1024u);
    EXPECT_EQ(takenBy(1025), 1152u); // 1032 and a header of 8
    EXPECT_EQ(takenBy(1032), 1152u);
    EXPECT_EQ(takenBy(1144), 1152u);
    EXPECT_EQ(takenBy(1145), 1280u);
    EXPECT_EQ(takenBy(65528), 65536u);
    EXPECT_EQ(takenBy(65529), 65536u + kLargeHeader); // 65560 in 32 bits
    EXPECT_EQ(takenBy(1000000), 1000000u + kLargeHeader);
  });
}

TEST(Requests, OfEverySmallSizeHoldTheirBytesAndAreAligned) {
  onThread([] {
    for (uint32_t size = 1; size <= 66000; size += size < 1200 ? 1 : 37) {
      void *block = allocate(size, 0, kFatal);
      uint32_t total = 0, overhead = 0;
      blockSizeAndOverhead(block, &total, &overhead);
      ASSERT_EQ(reinterpret_cast<uintptr_t>(block) % 8, 0u) << size;
      ASSERT_GE(total - overhead, size);
      ASSERT_EQ(blockUsableBytes(block), total - overhead);
      ASSERT_EQ(overhead, size <= 1024 ? 0u : size <= 65528 ? 8u : kLargeHeader) << size;
      free(block);
    }
    EXPECT_TRUE(isValidHere());
  });
}

TEST(Requests, BlockReportsItsClassAndHeader) {
  uint32_t total = 0, overhead = 0;
  void *large = allocate(65529, 0, kFatal);
  blockSizeAndOverhead(large, &total, &overhead);
  EXPECT_EQ(total, 65536 + kLargeHeader);
  EXPECT_EQ(overhead, kLargeHeader);
  EXPECT_EQ(blockUsableBytes(large), 65536u);
  void *cell = allocate(65528, 0, kFatal);
  blockSizeAndOverhead(cell, &total, &overhead);
  EXPECT_EQ(total, 65536u);
  EXPECT_EQ(overhead, 8u);
  EXPECT_EQ(blockUsableBytes(cell), 65528u);
  void *bare = allocate(1024, 0, kFatal);
  blockSizeAndOverhead(bare, &total, &overhead);
  EXPECT_EQ(total, 1024u);
  EXPECT_EQ(overhead, 0u);
  free(large);
  free(cell);
  free(bare);
}

TEST(Requests, OccupiedBytesAreReckonedFromTheRoundedRequestAlone) {
  EXPECT_EQ(allocatedBytesFor(0), 0u);
  EXPECT_EQ(allocatedBytesFor(1), 8u);
  EXPECT_EQ(allocatedBytesFor(1024), 1024u);
  EXPECT_EQ(allocatedBytesFor(1025), 1160u); // the class of 1032, and 8
  EXPECT_EQ(allocatedBytesFor(1152), 1160u); // allocate takes 1280 here
  EXPECT_EQ(allocatedBytesFor(65528), 65544u);
  EXPECT_EQ(allocatedBytesFor(65529), 65536u + kLargeHeader);
  EXPECT_EQ(allocatedBytesFor(1000001), 1000008u + kLargeHeader);
}

TEST(Requests, FirstCellsOfAFreshThreadAscend) {
  onThread([] {
    for (const uint32_t size : {8u, 100u, 1024u, 2000u, 65528u}) {
      char *before = nullptr;
      uint32_t cell = 0, overhead = 0;
      for (int i = 0; i < 8; ++i) {
        char *block = static_cast<char *>(allocate(size, 0, kFatal));
        blockSizeAndOverhead(block, &cell, &overhead);
        if (before != nullptr) {
          EXPECT_EQ(block, before + cell);
        }
        before = block;
      }
    }
  });
}

TEST(Requests, OwnRecordsCountAsUsedFromTheStart) {
  onThread([] {
    const uint32_t own = sizeof(void *) == 4
                             ? 64 + 356 + 88 * 48
                             : sizeof(ThreadHeap) + 89 * sizeof(void *) + 88 * sizeof(SizeClass);
    EXPECT_EQ(usedBytesOfThisThread(), own);
    EXPECT_EQ(threadHeap->peakBytes.value(), own);
    EXPECT_EQ(freeBytesOf(threadHeap), 0u);
  });
}

} // namespace torvane::test

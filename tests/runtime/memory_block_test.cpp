// The exported functions: what they return, keep and move.
#include "runtime/memory.h"
#include "support/heap_walker.h"
#include "support/on_thread.h"
#include <torvane/memory.h>

#include <gtest/gtest.h>

#include <cstring>

namespace torvane::test {

namespace {

void fill(void *block, uint32_t bytes, unsigned char first) {
  auto *at = static_cast<unsigned char *>(block);
  for (uint32_t i = 0; i < bytes; ++i) at[i] = static_cast<unsigned char>(first + i);
}

bool holds(const void *block, uint32_t bytes, unsigned char first) {
  const auto *at = static_cast<const unsigned char *>(block);
  for (uint32_t i = 0; i < bytes; ++i)
    if (at[i] != static_cast<unsigned char>(first + i)) return false;
  return true;
}

bool isZero(const void *block, uint32_t bytes) {
  const auto *at = static_cast<const unsigned char *>(block);
  for (uint32_t i = 0; i < bytes; ++i)
    if (at[i] != 0) return false;
  return true;
}

} // namespace

TEST(Blocks, OfNoBytesAreNullAndNoFailure) {
  EXPECT_EQ(Malloc_fun(0), nullptr);
  EXPECT_EQ(MallocAlign16_fun(0), nullptr);
  EXPECT_EQ(MallocAlign_mreal_fun(0), nullptr);
  EXPECT_EQ(Calloc_fun(0, 8), nullptr);
  EXPECT_EQ(Calloc_fun(8, 0), nullptr);
  EXPECT_EQ(CallocAlign16_fun(0, 8), nullptr);
  EXPECT_EQ(CallocAlign_mreal_fun(0, 0), nullptr);
  EXPECT_EQ(Realloc_fun(nullptr, 0), nullptr);
  for (const mint mode : {0, 1, 2, 3}) EXPECT_EQ(allocate(0, 0, mode), nullptr);
  Free_fun(nullptr);
}

TEST(Blocks, OfTheAlignFormsAreThePlainOnes) {
  onThread([] {
    const uint32_t before = usedBytesOfThisThread();
    void *blocks[] = {Malloc_fun(40), MallocAlign16_fun(40), MallocAlign_mreal_fun(40)};
    EXPECT_EQ(usedBytesOfThisThread() - before, 3u * 40u);
    EXPECT_EQ(static_cast<char *>(blocks[1]) - static_cast<char *>(blocks[0]), 40);
    EXPECT_EQ(static_cast<char *>(blocks[2]) - static_cast<char *>(blocks[1]), 40);
    for (void *block : blocks) Free_fun(block);
  });
}

TEST(Blocks, OfCallocAreZeroAlsoInReusedMemory) {
  for (auto *calloc : {Calloc_fun, CallocAlign16_fun, CallocAlign_mreal_fun}) {
    for (const uint32_t size : {24u, 1000u, 5000u, 100000u}) {
      void *dirty = Malloc_fun(size);
      fill(dirty, size, 1);
      Free_fun(dirty);
      void *block = calloc(size / 8, 8);
      EXPECT_TRUE(isZero(block, size));
      Free_fun(block);
    }
  }
}

TEST(Blocks, OfAWrappedProductAreSmall) {
  onThread([] {
    const uint32_t before = usedBytesOfThisThread();
    void *block = Calloc_fun(0x20000001u, 8); // 8 in 32 bits
    EXPECT_EQ(usedBytesOfThisThread() - before, 8u);
    EXPECT_TRUE(isZero(block, 8));
    Free_fun(block);
    EXPECT_EQ(Calloc_fun(0x20000000u, 8), nullptr);
  });
}

TEST(Reallocation, OfNullAllocatesAndToNothingFrees) {
  onThread([] {
    const uint32_t before = usedBytesOfThisThread();
    void *block = Realloc_fun(nullptr, 100);
    EXPECT_EQ(usedBytesOfThisThread() - before, 104u);
    EXPECT_EQ(Realloc_fun(block, 0), nullptr);
    EXPECT_EQ(usedBytesOfThisThread(), before);
    EXPECT_EQ(ReallocAlign_mreal_fun(ReallocAlign_mreal_fun(nullptr, 70000), 0), nullptr);
    EXPECT_EQ(usedBytesOfThisThread(), before);
    EXPECT_TRUE(isValidHere());
  });
}

TEST(Reallocation, StaysInPlaceDownToHalfOfTheUsableBytes) {
  for (const uint32_t usable : {16u, 512u, 1024u, 1144u, 65528u, 65536u, 262144u}) {
    void *block = Malloc_fun(usable);
    ASSERT_EQ(blockUsableBytes(block), usable);
    fill(block, usable, 3);
    EXPECT_EQ(Realloc_fun(block, usable), block);
    EXPECT_EQ(Realloc_fun(block, usable / 2), block);
    EXPECT_TRUE(holds(block, usable, 3));
    void *moved = Realloc_fun(block, usable / 2 - 1);
    EXPECT_NE(moved, block) << usable;
    EXPECT_TRUE(holds(moved, usable / 2 - 1, 3));
    Free_fun(moved);
  }
}

TEST(Reallocation, KeepsTheContentWhenItGrows) {
  void *block = Malloc_fun(10);
  fill(block, 10, 7);
  uint32_t size = 10;
  for (const uint32_t next : {17u, 200u, 1024u, 1025u, 30000u, 65528u, 65529u, 500000u, 3000000u}) {
    block = Realloc_fun(block, next);
    EXPECT_TRUE(holds(block, size, 7)) << next;
    fill(block, next, 7);
    size = next;
  }
  Free_fun(block);
  EXPECT_TRUE(isValidHere());
}

TEST(Reallocation, ThatFailsLeavesTheOldBlock) {
  onThread([] {
    void *block = allocate(100, 0, kFatal);
    fill(block, 100, 5);
    setLimitOfThisThread(usedBytesOfThisThread() + 10);
    EXPECT_EQ(reallocate(block, 300, 0, kQuiet), nullptr);
    EXPECT_TRUE(holds(block, 100, 5));
    setLimitOfThisThread(0);
    free(block);
    EXPECT_TRUE(isValidHere());
  });
}

} // namespace torvane::test

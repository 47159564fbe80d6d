// The bags themselves and the table of their numbers: what callers by name do not reach, and growth without
// memory.
#include "algorithms/bags.h"
#include "runtime/memory.h"
#include "support/child_process.h"
#include "support/failing_heap.h"

#include <gtest/gtest.h>

#include <functional>

using namespace torvane;
using namespace torvane::test;

namespace {

TEST(BagRecord, OfNullIsNoTensorAndNoFailure) {
  MTensor *slot = nullptr;
  EXPECT_EQ(Bag_toTensor(&slot, nullptr), 0);
  EXPECT_EQ(slot, nullptr);
}

TEST(BagRecord, AppendOfNothingDoesNothing) {
  Bag *bag = Bag_new(TORVANE_TYPE_INTEGER);
  for (const mint count : {0, -1, INT32_MIN}) Bag_append(bag, count, nullptr);
  EXPECT_EQ(bag->blockCount, 0);
  EXPECT_TRUE(isValidBag(bag));
  Bag_delete(bag);
}

// No bag so large is ever filled here: the fields of one are made up.
TEST(BagRecord, OfMoreElementsThanATensorHoldsIsNoTensor) {
  Bag *bag = Bag_new(TORVANE_TYPE_INTEGER);
  Bag large = *bag;
  large.blockCount = 1 << 21;
  EXPECT_EQ(Bag_elementCount(&large), int64_t{1} << 31);
  MTensor *slot = nullptr;
  EXPECT_EQ(Bag_toTensor(&slot, &large), 403);
  EXPECT_EQ(slot, nullptr);
  Bag_delete(bag);
}

TEST(BagRecord, WalkerSeesWhatIsWrong) {
  Bag *bag = Bag_new(TORVANE_TYPE_INTEGER);
  const mint value = 5;
  Bag_append(bag, 1, &value);
  const Bag well = *bag;
  const auto isSeen = [&](auto change) {
    change(bag);
    const bool seen = !isValidBag(bag);
    *bag = well;
    return seen && isValidBag(bag);
  };
  EXPECT_TRUE(isSeen([](Bag *b) { b->blockCount = 2; }));
  EXPECT_TRUE(isSeen([](Bag *b) { b->tailLink = &b->firstBlock; }));
  EXPECT_TRUE(isSeen([](Bag *b) { b->cursor += 1; }));
  EXPECT_TRUE(isSeen([](Bag *b) { b->cursor = b->firstBlock->data; }));
  EXPECT_TRUE(isSeen([](Bag *b) { b->blockEnd -= 4; }));
  EXPECT_TRUE(isSeen([](Bag *b) { b->elementSize = 8; }));
  EXPECT_TRUE(isSeen([](Bag *b) { b->reserved = b; }));
  Bag_delete(bag);
}

TEST(BagTables, DoubleTheirCapacityAndClearToNumberZero) {
  const uint32_t used = usedBytesOfThisThread();
  BagTable *table = BagTable_new();
  EXPECT_EQ(table->capacity, 0);
  EXPECT_EQ(table->lastIndex, -1);
  mint capacity = 1;
  for (mint n = 0; n < 1000; ++n) {
    ASSERT_EQ(BagTable_add(table, 2 + n % 3), n);
    if (n >= capacity) capacity *= 2;
    ASSERT_EQ(table->capacity, capacity) << n;
    ASSERT_EQ(table->lastIndex, n);
  }
  for (mint n = 1000; n < capacity; ++n) EXPECT_EQ(table->bags[n], nullptr);
  BagTable_clear(table);
  EXPECT_EQ(table->lastIndex, -1);
  EXPECT_EQ(table->capacity, capacity);
  EXPECT_EQ(BagTable_get(table, 0), nullptr);
  EXPECT_EQ(BagTable_add(table, TORVANE_TYPE_COMPLEX), 0);
  EXPECT_EQ(BagTable_get(table, 0)->type, TORVANE_TYPE_COMPLEX);
  BagTable_delete(table);
  BagTable_delete(nullptr);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

// Each in a process of its own, which must end with the fatal path's status.
void expectFatal(const std::function<void()> &body) {
  const ChildOutcome child = runInChild([&body] {
    FailingHeap heap;
    heap.failFrom(1);
    body();
  });
  EXPECT_TRUE(child.exited);
  EXPECT_EQ(child.status, 1) << child.output;
}

TEST(BagMemory, ThatRunsOutWhileABagGrowsEndsTheProcess) {
  expectFatal([] {
    const mcomplex value = {1, 2};
    for (Bag *bag = Bag_new(TORVANE_TYPE_COMPLEX);;) Bag_append(bag, 1, &value);
  });
  expectFatal([] {
    for (BagTable *table = BagTable_new();;) BagTable_add(table, TORVANE_TYPE_INTEGER);
  });
  expectFatal([] {
    for (;;) BagTable_new();
  });
}

// The place of the next bag would be beyond what a block of memory holds.
TEST(BagMemory, ThatNoTableNeedsEndsTheProcess) {
  const ChildOutcome child = runInChild([] {
    BagTable table = {1 << 29, (1 << 29) - 1, nullptr};
    BagTable_add(&table, TORVANE_TYPE_INTEGER);
  });
  EXPECT_TRUE(child.exited);
  EXPECT_EQ(child.status, 1);
}

} // namespace

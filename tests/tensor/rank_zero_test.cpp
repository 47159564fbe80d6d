// Tensors of rank 0, new and shared.
#include "runtime/memory.h"
#include "runtime/platform.h"
#include "runtime/startup.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

#include <set>
#include <thread>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mint kTypes[] = {TORVANE_TYPE_INTEGER, TORVANE_TYPE_REAL, TORVANE_TYPE_COMPLEX};

void expectFreshScalar(const MTensor *tensor, mint type) {
  EXPECT_EQ(tensor->type, type);
  EXPECT_EQ(tensor->refCount, 1);
  EXPECT_EQ(tensor->rank, 0);
  EXPECT_EQ(tensor->elementCount, 1);
  EXPECT_EQ(tensor->flags, type == TORVANE_TYPE_COMPLEX ? 0x8Bu : 0x83u);
  EXPECT_EQ(tensor->numericBound, type == TORVANE_TYPE_INTEGER ? 2147483552.0 : 0.0);
  EXPECT_TRUE(isValidTensor(tensor));
}

TEST(NewRankZeroTensor, HoldsACopyOfTheElement) {
  mint n = -7;
  mreal x = 2.25;
  mcomplex z = {1.5, -0.5};
  const Tensor integer(LoadNewRankZeroMTensor(&n, TORVANE_TYPE_INTEGER));
  const Tensor real(LoadNewRankZeroMTensor(&x, TORVANE_TYPE_REAL));
  const Tensor complex(LoadNewRankZeroMTensor(&z, TORVANE_TYPE_COMPLEX));
  n = 0, x = 0, z = {};
  expectFreshScalar(integer.get(), 2);
  expectFreshScalar(real.get(), 3);
  expectFreshScalar(complex.get(), 4);
  EXPECT_EQ(*elements<mint>(integer), -7);
  EXPECT_EQ(*elements<mreal>(real), 2.25);
  EXPECT_EQ(elements<mcomplex>(complex)->re, 1.5);
  EXPECT_EQ(elements<mcomplex>(complex)->im, -0.5);
}

TEST(NewRankZeroTensor, MayBeMadeWithoutAnElement) {
  const uint32_t before = usedBytesOfThisThread();
  for (const mint type : kTypes) expectFreshScalar(Tensor(LoadNewRankZeroMTensor(nullptr, type)).get(), type);
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(NewRankZeroTensor, OfATypeWithoutWidthHasNoPayload) {
  const mint n = 5;
  for (const mint type : {0, 5, 100, -1}) {
    const Tensor tensor(LoadNewRankZeroMTensor(&n, type));
    EXPECT_EQ(tensor->data, nullptr);
    EXPECT_EQ(tensor->type, type);
    EXPECT_EQ(tensor->elementCount, 1);
  }
}

class SharedRankZeroTensors : public testing::Test {
protected:
  void SetUp() override { initializeRankZeroTensors(1); }
};

std::set<MTensor **> allSlots() {
  std::set<MTensor **> slots;
  for (const mint type : kTypes)
    for (mint slot = 0; slot < 3; ++slot) slots.insert(LoadSharedRankZeroMTensor(nullptr, type, slot));
  return slots;
}

TEST_F(SharedRankZeroTensors, AreNineAndTheSameAtEachRequest) {
  const std::set<MTensor **> slots = allSlots();
  EXPECT_EQ(slots.size(), 9u);
  std::set<MTensor *> tensors;
  for (MTensor **slot : slots) tensors.insert(*slot);
  EXPECT_EQ(tensors.size(), 9u);
  const uint32_t used = usedBytesOfThisThread();
  EXPECT_EQ(allSlots(), slots);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST_F(SharedRankZeroTensors, StandInRunsOfThreeByType) {
  MTensor **const first = LoadSharedRankZeroMTensor(nullptr, TORVANE_TYPE_INTEGER, 0);
  for (const mint type : kTypes)
    for (mint slot = 0; slot < 3; ++slot)
      EXPECT_EQ(LoadSharedRankZeroMTensor(nullptr, type, slot) - first, 3 * (type - 2) + slot);
}

TEST_F(SharedRankZeroTensors, TakeTheElementOfTheLastRequest) {
  const mint a = 5, b = 6;
  const mcomplex z = {3, 4};
  MTensor *const shared = *LoadSharedRankZeroMTensor(&a, TORVANE_TYPE_INTEGER, 1);
  EXPECT_EQ(*static_cast<mint *>(shared->data), 5);
  EXPECT_EQ(*LoadSharedRankZeroMTensor(nullptr, TORVANE_TYPE_INTEGER, 1), shared);
  EXPECT_EQ(*static_cast<mint *>(shared->data), 5);
  LoadSharedRankZeroMTensor(&b, TORVANE_TYPE_INTEGER, 2);
  EXPECT_EQ(*static_cast<mint *>(shared->data), 5);
  LoadSharedRankZeroMTensor(&b, TORVANE_TYPE_INTEGER, 1);
  EXPECT_EQ(*static_cast<mint *>(shared->data), 6);
  MTensor *const complex = *LoadSharedRankZeroMTensor(&z, TORVANE_TYPE_COMPLEX, 1);
  EXPECT_EQ(static_cast<mcomplex *>(complex->data)->im, 4);
}

TEST_F(SharedRankZeroTensors, AreMadeTogetherAtAThreadsFirstRequest) {
  std::thread([] {
    const uint32_t before = usedBytesOfThisThread();
    LoadSharedRankZeroMTensor(nullptr, TORVANE_TYPE_REAL, 0);
    EXPECT_GT(usedBytesOfThisThread(), before);
    const uint32_t used = usedBytesOfThisThread();
    for (MTensor **slot : allSlots()) EXPECT_NE(*slot, nullptr);
    for (const mint type : kTypes)
      for (mint slot = 0; slot < 3; ++slot)
        expectFreshScalar(*LoadSharedRankZeroMTensor(nullptr, type, slot), type);
    EXPECT_EQ(usedBytesOfThisThread(), used);
  }).join();
}

TEST_F(SharedRankZeroTensors, OutliveASecondStartUp) {
  const mreal x = 8.5;
  MTensor **const slot = LoadSharedRankZeroMTensor(&x, TORVANE_TYPE_REAL, 0);
  MTensor *const tensor = *slot;
  for (mint stage = 0; stage <= 4; ++stage) initializeRankZeroTensors(stage);
  EXPECT_EQ(LoadSharedRankZeroMTensor(nullptr, TORVANE_TYPE_REAL, 0), slot);
  EXPECT_EQ(*slot, tensor);
  EXPECT_EQ(*static_cast<mreal *>(tensor->data), 8.5);
}

TEST_F(SharedRankZeroTensors, OfThreadsThatRunTogetherAreApart) {
  const std::set<MTensor **> mine = allSlots();
  std::thread([&] {
    for (MTensor **slot : allSlots()) EXPECT_EQ(mine.count(slot), 0u);
  }).join();
}

TEST_F(SharedRankZeroTensors, OfAThreadThatEndedStayAllocatedForTheNext) {
  std::set<MTensor **> ended;
  std::thread([&] { ended = allSlots(); }).join();
  for (MTensor **slot : ended) EXPECT_TRUE(isValidTensor(*slot));
  std::thread([&] { EXPECT_EQ(allSlots(), ended); }).join();
}

TEST_F(SharedRankZeroTensors, AreAsGoodAsNewForTheThreadThatTakesThemOver) {
  std::thread([] {
    const mint extents[] = {100};
    MTensor **grown = LoadSharedRankZeroMTensor(nullptr, TORVANE_TYPE_REAL, 1);
    ASSERT_EQ(MTensor_allocateCommon(grown, TORVANE_TYPE_COMPLEX, 1, extents, kQuiet), 0);
    (*LoadSharedRankZeroMTensor(nullptr, TORVANE_TYPE_INTEGER, 0))->refCount = 12;
    (*LoadSharedRankZeroMTensor(nullptr, TORVANE_TYPE_INTEGER, 0))->flags |= TORVANE_FLAG_CONSTANT;
    MTensor **deleted = LoadSharedRankZeroMTensor(nullptr, TORVANE_TYPE_COMPLEX, 2);
    MTensor_delete(*deleted);
    *deleted = nullptr;
  }).join();
  std::thread([] {
    for (const mint type : kTypes)
      for (mint slot = 0; slot < 3; ++slot)
        expectFreshScalar(*LoadSharedRankZeroMTensor(nullptr, type, slot), type);
  }).join();
}

// After a teardown the memory behind old pools is not the library's any more.
TEST_F(SharedRankZeroTensors, AreMadeAnewAfterATeardown) {
  std::set<MTensor **> ended;
  std::thread([&] { ended = allSlots(); }).join();
  const std::set<MTensor **> mine = allSlots();
  tearDownRankZeroTensors();
  tearDownRankZeroTensors();
  initializeRankZeroTensors(1);
  for (MTensor **slot : allSlots()) EXPECT_EQ(mine.count(slot) + ended.count(slot), 0u);
  std::thread([&] {
    for (MTensor **slot : allSlots()) EXPECT_EQ(mine.count(slot) + ended.count(slot), 0u);
  }).join();
}

// Whatever stands in other slots of the thread is not taken for a pool.
TEST_F(SharedRankZeroTensors, AskedForBeforeStartUpAreMadeAllTheSame) {
  tearDownRankZeroTensors();
  torvane::free(allocate(8, 0, kFatal)); // the thread's heap stands in a slot of its own
  const mreal x = 4.5;
  MTensor **const slot = LoadSharedRankZeroMTensor(&x, TORVANE_TYPE_REAL, 2);
  expectFreshScalar(*slot, TORVANE_TYPE_REAL);
  EXPECT_EQ(*static_cast<mreal *>((*slot)->data), 4.5);
  initializeRankZeroTensors(1);
  EXPECT_EQ(LoadSharedRankZeroMTensor(nullptr, TORVANE_TYPE_REAL, 2), slot);
}

// A host's own destructor that runs after the library's uses the library once more, and again in the next
// round.
ThreadSlot hostSlot;
int hostRounds;
void useTheLibraryOnceMore(void *rounds) {
  const mreal x = ++hostRounds;
  MTensor **const slot = LoadSharedRankZeroMTensor(&x, TORVANE_TYPE_REAL, 0);
  EXPECT_EQ(*static_cast<mreal *>((*slot)->data), x);
  const mint extents[] = {1000};
  MTensor_delete(CreatePackedArray(TORVANE_TYPE_COMPLEX, 1, extents));
  const auto left = reinterpret_cast<uintptr_t>(rounds) - 1;
  if (left > 0) setThreadSlotValue(hostSlot, reinterpret_cast<void *>(left));
}

uint32_t heapsOfTheProcess() {
  uint32_t count = 0;
  torvane::free(heapStatistics(&count, 0));
  return count;
}

TEST_F(SharedRankZeroTensors, AndTheHeapServeAThreadWhoseSlotsAreBeingEmptied) {
  ASSERT_TRUE(createThreadSlot(&hostSlot, useTheLibraryOnceMore)); // made after the library's: runs after it
  hostRounds = 0;
  std::set<MTensor **> first;
  uint32_t heaps = 0;
  for (int life = 0; life < 20; ++life) {
    std::thread([&] {
      setThreadSlotValue(hostSlot, reinterpret_cast<void *>(uintptr_t{3}));
      const std::set<MTensor **> slots = allSlots();
      if (life == 0) first = slots;
      EXPECT_EQ(slots, first) << "the pool went from thread to thread";
    }).join();
    if (life == 0) heaps = heapsOfTheProcess();
  }
  EXPECT_EQ(hostRounds, 3 * 20);
  EXPECT_EQ(heapsOfTheProcess(), heaps);
  deleteThreadSlot(hostSlot);
}

TEST_F(SharedRankZeroTensors, ServeManyThreadsThatComeAndGo) {
  for (int round = 0; round < 20; ++round) {
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
      threads.emplace_back([i] {
        const mint n = i;
        for (int k = 0; k < 100; ++k) {
          MTensor *shared = *LoadSharedRankZeroMTensor(&n, TORVANE_TYPE_INTEGER, k % 3);
          EXPECT_EQ(*static_cast<mint *>(shared->data), i);
        }
      });
    for (std::thread &thread : threads) thread.join();
  }
}

} // namespace

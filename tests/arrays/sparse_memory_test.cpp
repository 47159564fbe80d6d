// Sparse arrays when memory runs out: every request of every operation fails in turn.
#include "arrays/sparse_array.h"
#include "arrays/sparse_support.h"
#include "runtime/memory.h"
#include "support/child_process.h"
#include "support/failing_heap.h"
#include "support/on_thread.h"

#include <gtest/gtest.h>

#include <cstdlib>

using namespace torvane;
using namespace torvane::test;

namespace {

const Tensor nothing;

// Blocks above a mebibyte are not kept by a thread's heap: each is one request that can fail.
constexpr mint kMany = 400000;

Sparse largeArray(mint repeats) {
  Tensor positions = newTensor(TORVANE_TYPE_INTEGER, {kMany, 2}),
         values = newTensor(TORVANE_TYPE_REAL, {kMany});
  for (mint i = 0; i < kMany; ++i) {
    elements<mint>(positions)[2 * i] = 1 + (kMany - 1 - i / repeats) % 300000;
    elements<mint>(positions)[2 * i + 1] = 1 + i / repeats % 2;
    elements<mreal>(values)[i] = i % 4;
  }
  return fromPositions(positions, values, nothing, scalarTensor<mreal>(0));
}

// Runs with every request failing in turn: `refused` is what a failing run gives, and nothing is left behind.
template <class Attempt> void expectSurvivesFailures(mint refused, int64_t least, Attempt attempt) {
  attempt();
  const uint32_t before = usedBytesOfThisThread();
  FailingHeap heap;
  const int64_t failures = failEveryRequest(heap, [&] {
    const mint status = attempt();
    EXPECT_EQ(status, heap.failed() ? refused : 0);
    EXPECT_EQ(usedBytesOfThisThread(), before);
  });
  EXPECT_GE(failures, least);
  EXPECT_EQ(heap.blocksOut(), 0);
}

TEST(SparseMemory, ThatRunsOutWhileBuildingLeavesNothing) {
  const Tensor positions = newTensor(TORVANE_TYPE_INTEGER, {kMany, 2}),
               values = newTensor(TORVANE_TYPE_REAL, {kMany});
  for (mint i = 0; i < 2 * kMany; ++i) elements<mint>(positions)[i] = 1 + (kMany - i / 2) % 300000;
  MTensor_initialize(values.get(), 2);
  const Tensor background = scalarTensor<mreal>(0);
  expectSurvivesFailures(-1, 3, [&] {
    MSparseArray *slot = nullptr;
    const mint status =
        MSparseArray_fromPositions(positions.get(), values.get(), nullptr, background.get(), &slot);
    EXPECT_EQ(slot == nullptr, status != 0);
    MSparseArray_delete(slot);
    return status;
  });
}

TEST(SparseMemory, ThatRunsOutWhileCopyingLeavesAnEmptySlot) {
  const Sparse array = largeArray(1);
  expectSurvivesFailures(-1, 3, [&] {
    MSparseArray *slot = nullptr;
    const mint status = MSparseArray_copyHandle(array.get(), &slot);
    EXPECT_EQ(slot == nullptr, status != 0);
    MSparseArray_delete(slot);
    return status;
  });
}

TEST(SparseMemory, ThatRunsOutWhileCopyingTakesTheOldArrayWithIt) {
  const Sparse array = largeArray(1);
  FailingHeap heap;
  const uint32_t before = usedBytesOfThisThread();
  MSparseArray *slot =
      MSparseArray_copy(fromPositions(matrixOf({{2, 1}}, 2), nothing, nothing, nothing).get());
  ASSERT_GT(usedBytesOfThisThread(), before);
  heap.failFrom(1);
  EXPECT_EQ(MSparseArray_copyHandle(array.get(), &slot), -1);
  EXPECT_TRUE(heap.failed());
  heap.succeed();
  EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

// Of the same background, where elements are dropped, and of another, where the array is made dense first.
TEST(SparseMemory, ThatRunsOutForABackgroundLeavesAThirdArrayInTheSlot) {
  const Sparse array = largeArray(1);
  const Tensor five = scalarTensor<mreal>(5);
  FailingHeap heap;
  const uint32_t before = usedBytesOfThisThread();
  for (const MTensor *background :
       {static_cast<const MTensor *>(nullptr), static_cast<const MTensor *>(five.get())}) {
    int64_t k = 0;
    for (bool failed = true; failed;) {
      MSparseArray *const third = MSparseArray_new(1);
      MSparseArray *slot = third;
      heap.failRequest(++k);
      const mint status = MSparseArray_setBackground(array.get(), background, &slot);
      failed = heap.failed();
      heap.succeed();
      if (failed)
        EXPECT_TRUE(status == -1 || (status == 403 && background != nullptr)) << status;
      else
        EXPECT_EQ(status, 0);
      EXPECT_EQ(slot == third, failed);
      MSparseArray_delete(slot);
      EXPECT_EQ(usedBytesOfThisThread(), before);
    }
    EXPECT_GE(k, 4);
  }
}

// Lines are ordered by digits where there is room for it, else by merging: two requests fail and the call
// does not.
TEST(SparseMemory, ThatRunsOutWhileDroppingRepetitionsLeavesNothing) {
  const Sparse array = largeArray(2);
  MSparseArray *warm = nullptr; // what the process heap lends for good is lent
  ASSERT_EQ(MSparseArray_dropDuplicates(array.get(), 1, &warm), 0);
  MSparseArray_delete(warm);
  const uint32_t before = usedBytesOfThisThread();
  FailingHeap heap;
  mint refused = 0, failed = 0;
  for (int64_t k = 1;; ++k) {
    MSparseArray *slot = nullptr;
    heap.failRequest(k);
    const mint status = MSparseArray_dropDuplicates(array.get(), 1, &slot);
    if (!heap.failed()) {
      EXPECT_EQ(status, 0);
      MSparseArray_delete(slot);
      break;
    }
    ++failed;
    refused += status == -1;
    EXPECT_TRUE(status == 0 || status == -1);
    EXPECT_EQ(slot == nullptr, status != 0);
    if (status == 0) EXPECT_EQ(slot->elementCount, kMany / 2);
    MSparseArray_delete(slot);
    EXPECT_EQ(usedBytesOfThisThread(), before);
  }
  EXPECT_GE(refused, 4);
  EXPECT_LE(failed - refused, 2);
  heap.succeed();
  EXPECT_EQ(heap.blocksOut(), 0);
}

TEST(SparseMemory, ThatRunsOutWhileDroppingTheBackgroundLeavesTheArray) {
  const Sparse array = largeArray(1);
  expectSurvivesFailures(-1, 3, [&] {
    MSparseArray *slot = nullptr;
    const mint status = MSparseArray_setBackground(array.get(), nullptr, &slot);
    EXPECT_EQ(slot == nullptr, status != 0);
    MSparseArray_delete(slot);
    return status;
  });
  EXPECT_TRUE(isValidSparseArray(array.get()));
}

TEST(SparseMemory, ThatRunsOutOnTheWayFromATensorLeavesTheSlot) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {300000, 2});
  MTensor_initialize(tensor.get(), 1);
  expectSurvivesFailures(-1, 3, [&] {
    MSparseArray *slot = nullptr;
    const mint status = MSparseArray_fromTensor(tensor.get(), nullptr, &slot);
    EXPECT_EQ(slot == nullptr, status != 0);
    MSparseArray_delete(slot);
    return status;
  });
}

TEST(SparseMemory, ThatRunsOutOnTheWayToATensorLeavesAnEmptySlot) {
  const Sparse array = largeArray(1);
  expectSurvivesFailures(403, 1, [&] {
    MTensor *slot = nullptr;
    const mint status = MSparseArray_toTensor(array.get(), &slot);
    EXPECT_EQ(slot == nullptr, status != 0);
    MTensor_delete(slot);
    return status;
  });
}

// On a thread without blocks of any size small requests reach the process heap too. Those for a tensor's
// record end the process, as they do everywhere; others come back.
enum Ended : int { kWhole = 50, kRefused = 51, kBroken = 52 };

Ended buildOnANewThread(int64_t k) {
  const Tensor positions = matrixOf({{2, 1}, {1, 1}}, 2), values = vectorOf<mreal>({1, 2});
  const Tensor background = scalarTensor<mreal>(0);
  Ended ended = kBroken;
  FailingHeap heap;
  onThread([&] {
    MSparseArray *slot = nullptr;
    const uint32_t before = usedBytesOfThisThread();
    heap.failRequest(k);
    const mint status =
        MSparseArray_fromPositions(positions.get(), values.get(), nullptr, background.get(), &slot);
    const bool failed = heap.failed();
    heap.succeed();
    if (status == 0 && !failed && isValidSparseArray(slot)) ended = kWhole;
    if (status == -1 && failed && slot == nullptr && usedBytesOfThisThread() == before) ended = kRefused;
    MSparseArray_delete(slot);
  });
  return ended;
}

TEST(SparseMemory, ThatRunsOutForASmallBlockIsAFaultOrEndsTheProcess) {
  int refused = 0, fatal = 0;
  for (int64_t k = 1;; ++k) {
    const ChildOutcome outcome = runInChild([k] { std::_Exit(buildOnANewThread(k)); });
    ASSERT_TRUE(outcome.exited);
    if (outcome.status == kWhole) break;
    ASSERT_TRUE(outcome.status == kRefused || outcome.status == 1) << outcome.status << " request " << k;
    ++(outcome.status == kRefused ? refused : fatal);
  }
  EXPECT_GE(refused, 2);
}

} // namespace

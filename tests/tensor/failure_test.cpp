// Memory that runs out: every request of every operation fails in turn, and the limit of the thread's heap.
// Extents and payloads here are above 1 MiB: no thread heap keeps blocks of that size for reuse, so that each
// is one request of the process heap.
#include "hook_log.h"
#include "runtime/memory.h"
#include "support/failing_heap.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

#include <functional>

using namespace torvane;
using namespace torvane::test;

namespace {

using Calls = std::vector<HookCall>;

constexpr mint kWideRank = 300000;

// {1, 1, ..., 1, last}
Extents wide(mint last) {
  Extents extents(kWideRank, 1);
  extents.back() = last;
  return extents;
}

mint allocateSlot(MTensor **slot, mint type, const Extents &extents, mint errorMode) {
  return MTensor_allocateCommon(slot, type, static_cast<mint>(extents.size()), extents.data(), errorMode);
}

// An operation on the tensor in the slot, which may be empty. 403 on failure.
struct Operation {
  const char *name;
  mint failures; // requests that it makes of the process heap
  std::function<MTensor *()> prepare;
  std::function<mint(MTensor **slot, mint errorMode)> run;
  uint32_t reported; // bytes that a failure reports in mode 2
};

const Tensor &wideSource() {
  static const Tensor source = newTensor(TORVANE_TYPE_REAL, wide(300000));
  return source;
}

MTensor *emptySlot() { return nullptr; }
MTensor *longVector() { return newTensor(TORVANE_TYPE_INTEGER, {300000}).release(); }

const std::vector<Operation> kOperations = {
    {"new tensor", 2, emptySlot,
     [](MTensor **slot, mint mode) { return allocateSlot(slot, TORVANE_TYPE_REAL, wide(300000), mode); },
     2400000},
    {"fresh record", 2, MTensor_new,
     [](MTensor **slot, mint mode) { return allocateSlot(slot, TORVANE_TYPE_REAL, wide(300000), mode); },
     2400000},
    {"growing shape", 2, longVector,
     [](MTensor **slot, mint mode) { return allocateSlot(slot, TORVANE_TYPE_REAL, wide(300000), mode); },
     2400000},
    {"growing payload", 1, longVector,
     [](MTensor **slot, mint mode) { return allocateSlot(slot, TORVANE_TYPE_INTEGER, {900000}, mode); },
     3600000},
    {"shrinking payload", 1, [] { return newTensor(TORVANE_TYPE_REAL, {1500000}).release(); },
     [](MTensor **slot, mint mode) { return allocateSlot(slot, TORVANE_TYPE_REAL, {300000}, mode); },
     2400000},
    {"another type", 1, longVector,
     [](MTensor **slot, mint mode) { return allocateSlot(slot, TORVANE_TYPE_COMPLEX, {300000}, mode); },
     4800000},
    {"copy", 2, longVector,
     [](MTensor **slot, mint mode) { return MTensor_copyUniqueCommon(*slot, wideSource().get(), mode); },
     2400000},
    {"like", 2, longVector,
     [](MTensor **slot, mint mode) {
       return MTensor_allocateMemoryLikeCommon(*slot, wideSource().get(), mode);
     },
     2400000},
};

// Runs the operation with its k-th request failing; whether one failed.
bool runFailing(FailingHeap &heap, const Operation &operation, MTensor **slot, int64_t k, mint mode) {
  takeHookCalls();
  heap.failRequest(k);
  const mint status = operation.run(slot, mode);
  const bool failed = heap.failed();
  heap.succeed();
  EXPECT_EQ(status, failed ? 403 : 0) << operation.name << " request " << k;
  EXPECT_EQ(takeHookCalls(), failed && mode != kQuiet ? Calls({{"report", operation.reported}}) : Calls())
      << operation.name << " request " << k;
  return failed;
}

void expectRecovery(const Operation &operation, MTensor **slot, mint mode) {
  EXPECT_EQ(operation.run(slot, mode), 0) << operation.name;
  ASSERT_NE(*slot, nullptr);
  EXPECT_TRUE(isValidTensor(*slot)) << operation.name;
}

void expectSurvivesEveryFailure(FailingHeap &heap, const Operation &operation, mint mode) {
  const uint32_t before = usedBytesOfThisThread();
  mint failures = 0;
  for (bool failed = true; failed;) {
    MTensor *slot = operation.prepare();
    MTensor *const mine = slot;
    failed = runFailing(heap, operation, &slot, failures + 1, mode);
    if (failed) {
      ++failures;
      EXPECT_EQ(slot, mine) << operation.name;
      if (failures % 2 == 0) expectRecovery(operation, &slot, mode);
    }
    MTensor_delete(slot);
    EXPECT_EQ(usedBytesOfThisThread(), before) << operation.name;
  }
  EXPECT_EQ(failures, operation.failures) << operation.name;
}

TEST(OutOfMemory, AtAnyRequestLeavesTensorsValidAndCountersTrue) {
  const Tensor warm = newTensor(TORVANE_TYPE_REAL, {2}); // the slabs of small blocks exist
  wideSource();
  for (const mint mode : {kQuiet, kReport})
    for (const Operation &operation : kOperations) {
      FailingHeap heap;
      expectSurvivesEveryFailure(heap, operation, mode);
      EXPECT_EQ(heap.blocksOut(), 0) << operation.name;
    }
}

// The request that failed is asked for again, and the old block is too small for it.
TEST(OutOfMemory, IsOverWhenTheSameRequestIsMadeAgain) {
  const Tensor warm = newTensor(TORVANE_TYPE_REAL, {2}); // the slabs of small blocks exist
  wideSource();
  for (const Operation &operation : kOperations)
    for (mint k = 1; k <= operation.failures; ++k) {
      FailingHeap heap;
      MTensor *slot = operation.prepare();
      ASSERT_TRUE(runFailing(heap, operation, &slot, k, kQuiet));
      expectRecovery(operation, &slot, kQuiet);
      MTensor_delete(slot);
    }
}

TEST(OutOfMemory, KeepsATensorWhoseTypeAloneWasToChange) {
  const Tensor tensor = newTensor(TORVANE_TYPE_INTEGER, {300000});
  MTensor_initialize(tensor.get(), 3);
  FailingHeap heap;
  heap.failFrom(1);
  EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_COMPLEX, {300000}), 403);
  heap.succeed();
  EXPECT_TRUE(isValidTensor(tensor.get()));
  EXPECT_EQ(elements<mint>(tensor)[299999], 3);
}

TEST(OutOfMemory, MakesNoTensorFromNothing) {
  const Tensor warm = newTensor(TORVANE_TYPE_REAL, {2});
  const uint32_t before = usedBytesOfThisThread();
  const mint extents[] = {300000};
  FailingHeap heap;
  heap.failFrom(1);
  takeHookCalls();
  EXPECT_EQ(CreatePackedArray(TORVANE_TYPE_COMPLEX, 1, extents), nullptr);
  EXPECT_EQ(takeHookCalls(), Calls({{"report", 4800000}}));
  EXPECT_EQ(MTensor_newAllocatedCommon(TORVANE_TYPE_COMPLEX, 1, extents, kQuiet), nullptr);
  EXPECT_EQ(takeHookCalls(), Calls());
  heap.succeed();
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(OutOfMemory, MarksAConstantAllTheSame) {
  const Tensor target = newTensor(TORVANE_TYPE_REAL, {2});
  wideSource();
  FailingHeap heap;
  heap.failFrom(1);
  EXPECT_EQ(MTensor_copyAsConstant(target.get(), wideSource().get()), 403);
  heap.succeed();
  EXPECT_EQ(target->flags & 0x2800000u, 0x800000u);
  target->flags &= ~uint32_t{TORVANE_FLAG_CONSTANT};
}

class HeapLimit : public testing::Test {
protected:
  void SetUp() override {
    tensor = newTensor(TORVANE_TYPE_REAL, {2});
    setLimitOfThisThread(usedBytesOfThisThread() + 1000);
    takeHookCalls();
  }
  void TearDown() override { setLimitOfThisThread(0); }
  Tensor tensor;
};

TEST_F(HeapLimit, IsHeededByTheQuietModeAlone) {
  EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, {300000}, kQuiet), 403);
  EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, {300000}, kReport), 0);
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

TEST_F(HeapLimit, TellsItsHookOfAnOverflowWithAllOnesBeforeTheReport) {
  constexpr uint32_t ones = 0xFFFFFFFF;
  for (const Extents &extents : {Extents{65536, 65536}, Extents{INT32_MAX}, Extents{1 << 29}}) {
    EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, extents, kQuiet), 403);
    EXPECT_EQ(takeHookCalls(), Calls({{"limit", ones}}));
    EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, extents, kReport), 403);
    EXPECT_EQ(takeHookCalls(), Calls({{"limit", ones}, {"report", ones}}));
  }
}

TEST_F(HeapLimit, TellsItsHookBeforeTheReportOfAFailedAllocation) {
  const uint32_t used = usedBytesOfThisThread();
  FailingHeap heap;
  heap.failFrom(1);
  EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, {300000}, kReport), 403);
  heap.succeed();
  const Calls calls = takeHookCalls();
  ASSERT_GE(calls.size(), 2u);
  for (size_t i = 0; i + 1 < calls.size(); ++i) {
    EXPECT_EQ(calls[i].hook, "limit");
    EXPECT_GE(calls[i].bytes, used + 2400000);
  }
  EXPECT_EQ(calls.back(), (HookCall{"report", 2400000}));
}

TEST_F(HeapLimit, TellsNobodyOfATypeWithoutWidthButTheReport) {
  EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_NONE, {4}, kReport), 403);
  EXPECT_EQ(takeHookCalls(), Calls({{"report", 0}}));
}

} // namespace

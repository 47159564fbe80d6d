// The eternal tensor and constants.
#include "hook_log.h"
#include "runtime/memory.h"
#include "runtime/startup.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

using namespace torvane;
using namespace torvane::test;

namespace {

// The library never frees one; the test does, so that leak checks stay clean.
void reallyDelete(MTensor *tensor) {
  tensor->flags = 0;
  MTensor_delete(tensor);
}

TEST(EternalTensor, IsMadeAtStageFourAloneAndAnewAtEachRun) {
  for (mint stage = -1; stage <= 5; ++stage) {
    MTensor *const before = getEternalMTensor();
    initializeEternalTensor(stage);
    EXPECT_EQ(getEternalMTensor() != before, stage == 4) << stage;
  }
  MTensor *const first = getEternalMTensor();
  initializeEternalTensor(4);
  MTensor *const second = getEternalMTensor();
  EXPECT_NE(second, first);
  EXPECT_EQ(first->flags, 0x2000000u);
  reallyDelete(first);
  reallyDelete(second);
}

TEST(EternalTensor, IsEmptyAndCountedOutOfReach) {
  initializeEternalTensor(4);
  MTensor *const tensor = getEternalMTensor();
  EXPECT_EQ(tensor->flags, 0x2000000u);
  EXPECT_EQ(tensor->refCount, int64_t{0x100000000});
  EXPECT_EQ(tensor->type, 0);
  EXPECT_EQ(tensor->rank, 0);
  EXPECT_EQ(tensor->elementCount, 0);
  EXPECT_EQ(tensor->data, nullptr);
  EXPECT_EQ(tensor->numericBound, 2147483552.0);
  reallyDelete(tensor);
}

TEST(EternalTensor, IsNoneAfterATeardown) {
  initializeEternalTensor(4);
  MTensor *const tensor = getEternalMTensor();
  tearDownEternalTensor();
  EXPECT_EQ(getEternalMTensor(), nullptr);
  reallyDelete(tensor);
}

TEST(EternalTensor, IsIgnoredByEveryDelete) {
  initializeEternalTensor(4);
  MTensor *const tensor = getEternalMTensor();
  const uint32_t used = usedBytesOfThisThread();
  MTensor_delete(tensor);
  FreeMTensor(tensor);
  EXPECT_EQ(usedBytesOfThisThread(), used);
  MTensor_freeMemory(tensor);
  EXPECT_EQ(tensor->flags, 0u);
  MTensor_delete(tensor);
}

TEST(Constant, IsACopyThatNoDeleteFrees) {
  const Tensor source = tensorOf<mreal>({2}, {1.5, 2.5});
  const Tensor target(MTensor_new());
  ASSERT_EQ(MTensor_copyAsConstant(target.get(), source.get()), 0);
  EXPECT_EQ(valuesOf<mreal>(target), valuesOf<mreal>(source));
  EXPECT_EQ(target->flags, 0x800083u);
  EXPECT_EQ(source->flags, 0x83u);
  const uint32_t used = usedBytesOfThisThread();
  MTensor_delete(target.get());
  EXPECT_EQ(usedBytesOfThisThread(), used);
  target->flags = 0;
}

TEST(Constant, OfItselfIsOnlyMarked) {
  const Tensor tensor = tensorOf<mint>({2}, {1, 2});
  const void *const payload = tensor->data;
  ASSERT_EQ(MTensor_copyAsConstant(tensor.get(), tensor.get()), 0);
  EXPECT_EQ(tensor->data, payload);
  EXPECT_EQ(tensor->flags, 0x800083u);
  tensor->flags = 0;
}

TEST(Constant, IsMarkedEvenWhenTheCopyFailsAndTheFailureIsReported) {
  Tensor source = newTensor(TORVANE_TYPE_REAL, {2});
  source->type = 6; // no width: no payload can be had
  const Tensor target(MTensor_new());
  takeHookCalls();
  EXPECT_EQ(MTensor_copyAsConstant(target.get(), source.get()), 403);
  EXPECT_EQ(takeHookCalls(), std::vector<HookCall>({{"report", 0u}}));
  EXPECT_EQ(target->flags & 0x2800000u, 0x800000u);
  target->flags = 0;
}

} // namespace

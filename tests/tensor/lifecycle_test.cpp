// Making and deleting tensors.
#include "hook_log.h"
#include "runtime/memory.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

#include <bit>

using namespace torvane;
using namespace torvane::test;

namespace {

void expectEmpty(const MTensor *tensor) {
  EXPECT_EQ(std::bit_cast<uint64_t>(tensor->numericBound), 0x41dfffffe8000000u);
  EXPECT_EQ(tensor->dimensions, nullptr);
  EXPECT_EQ(tensor->rank, 0);
  EXPECT_EQ(tensor->type, 0);
  EXPECT_EQ(tensor->flags, 0u);
  EXPECT_EQ(tensor->elementType, 0);
  EXPECT_EQ(tensor->elementCount, 0);
  EXPECT_EQ(tensor->data, nullptr);
}

TEST(TensorLifecycle, ANewRecordIsEmptyAndCountedOnce) {
  const Tensor tensor(MTensor_new());
  expectEmpty(tensor.get());
  EXPECT_EQ(tensor->refCount, 1);
}

TEST(TensorLifecycle, ANewAllocatedTensorHasItsShapeAndType) {
  const mint extents[] = {2, 3};
  const Tensor tensor(MTensor_newAllocatedCommon(TORVANE_TYPE_COMPLEX, 2, extents, kQuiet));
  EXPECT_EQ(extentsOf(tensor), Extents({2, 3}));
  EXPECT_EQ(tensor->elementCount, 6);
  EXPECT_EQ(tensor->type, 4);
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

TEST(TensorLifecycle, AnAllocationThatFailsMakesNoTensor) {
  const uint32_t before = usedBytesOfThisThread();
  const mint negative[] = {2, -3}, huge[] = {65536, 65536};
  for (const mint mode : {kQuiet, kReport}) {
    EXPECT_EQ(MTensor_newAllocatedCommon(TORVANE_TYPE_REAL, 2, negative, mode), nullptr);
    EXPECT_EQ(MTensor_newAllocatedCommon(TORVANE_TYPE_REAL, 2, huge, mode), nullptr);
    EXPECT_EQ(MTensor_newAllocatedCommon(TORVANE_TYPE_REAL, -1, huge, mode), nullptr);
    EXPECT_EQ(MTensor_newAllocatedCommon(TORVANE_TYPE_NONE, 0, nullptr, mode), nullptr);
  }
  EXPECT_EQ(usedBytesOfThisThread(), before);
  takeHookCalls();
}

TEST(TensorLifecycle, AnEmptySlotReceivesANewTensorAndAFullOneIsReused) {
  MTensor *slot = nullptr;
  const mint extents[] = {4};
  ASSERT_EQ(MTensor_allocateCommon(&slot, TORVANE_TYPE_REAL, 1, extents, kQuiet), 0);
  const Tensor owner(slot);
  const mint others[] = {7, 2};
  ASSERT_EQ(MTensor_allocateCommon(&slot, TORVANE_TYPE_INTEGER, 2, others, kQuiet), 0);
  EXPECT_EQ(slot, owner.get());
  EXPECT_EQ(extentsOf(slot), Extents({7, 2}));
  EXPECT_TRUE(isValidTensor(slot));
}

TEST(TensorLifecycle, AFailureEmptiesTheSlotOnlyOfATensorThatTheCallMade) {
  const uint32_t before = usedBytesOfThisThread();
  const mint negative[] = {-1}, huge[] = {65536, 65536};
  MTensor *slot = nullptr;
  EXPECT_EQ(MTensor_allocateCommon(&slot, TORVANE_TYPE_REAL, 1, negative, kQuiet), 402);
  EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(MTensor_allocateCommon(&slot, TORVANE_TYPE_REAL, 2, huge, kQuiet), 403);
  EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(MTensor_allocateCommon(&slot, TORVANE_TYPE_REAL, -2, huge, kFatal), 401);
  EXPECT_EQ(slot, nullptr);

  slot = MTensor_new();
  MTensor *const mine = slot;
  EXPECT_EQ(MTensor_allocateCommon(&slot, TORVANE_TYPE_REAL, 2, huge, kQuiet), 403);
  EXPECT_EQ(slot, mine);
  MTensor_delete(slot);
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(TensorLifecycle, CreatePackedArrayReportsItsFailureAndReturnsNull) {
  const mint extents[] = {10}, huge[] = {1 << 28};
  const Tensor tensor(CreatePackedArray(TORVANE_TYPE_REAL, 1, extents));
  EXPECT_TRUE(isValidTensor(tensor.get()));
  EXPECT_EQ(tensor->elementCount, 10);
  takeHookCalls();
  EXPECT_EQ(CreatePackedArray(TORVANE_TYPE_COMPLEX, 1, huge), nullptr);
  EXPECT_EQ(takeHookCalls(), std::vector<HookCall>({{"report", 0xFFFFFFFFu}}));
}

TEST(TensorLifecycle, ADeleteGivesEverythingBackWhateverTheReferenceCount) {
  const uint32_t before = usedBytesOfThisThread();
  const mint extents[] = {3, 4, 5};
  MTensor *tensor = CreatePackedArray(TORVANE_TYPE_COMPLEX, 3, extents);
  EXPECT_GT(usedBytesOfThisThread(), before);
  tensor->refCount = 100;
  MTensor_delete(tensor);
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(TensorLifecycle, ADeleteIgnoresNull) {
  const uint32_t before = usedBytesOfThisThread();
  MTensor_delete(nullptr);
  MTensorArray_delete(3, nullptr);
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(TensorLifecycle, NoDeletePathFreesAGuardedTensor) {
  const uint32_t before = usedBytesOfThisThread();
  for (const uint32_t guard : {0x800000u, 0x2000000u, 0x2800000u}) {
    const mint extents[] = {3};
    MTensor *tensor = CreatePackedArray(TORVANE_TYPE_INTEGER, 1, extents);
    MTensor_initialize(tensor, 42);
    tensor->flags |= guard;
    const uint32_t used = usedBytesOfThisThread();

    MTensor_delete(tensor);
    FreeMTensor(tensor);
    auto **array = static_cast<MTensor **>(allocate(sizeof(MTensor *), 0, kFatal));
    array[0] = tensor;
    MTensorArray_delete(1, array);

    EXPECT_EQ(usedBytesOfThisThread(), used) << std::hex << guard;
    EXPECT_EQ(static_cast<mint *>(tensor->data)[2], 42);
    tensor->flags &= ~guard;
    FreeMTensor(tensor);
  }
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(TensorLifecycle, AnArrayOfTensorsIsDeletedWithItsTensorsAndItsNulls) {
  const uint32_t before = usedBytesOfThisThread();
  auto **array = static_cast<MTensor **>(allocate(4 * sizeof(MTensor *), 0, kFatal));
  const mint extents[] = {9};
  array[0] = CreatePackedArray(TORVANE_TYPE_REAL, 1, extents);
  array[1] = nullptr;
  array[2] = MTensor_new();
  array[3] = nullptr;
  MTensorArray_delete(4, array);
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(TensorLifecycle, FreeingTheMemoryEmptiesTheRecordAndKeepsItsReferenceCount) {
  const uint32_t before = usedBytesOfThisThread();
  MTensor *tensor = MTensor_new();
  const uint32_t recordOnly = usedBytesOfThisThread();
  const mint extents[] = {2, 2};
  ASSERT_EQ(MTensor_allocateMemoryCommon(tensor, TORVANE_TYPE_COMPLEX, 2, extents, kQuiet), 0);
  tensor->refCount = -5;
  tensor->flags |= TORVANE_FLAG_CONSTANT | TORVANE_FLAG_ETERNAL;
  MTensor_freeMemory(tensor);
  expectEmpty(tensor);
  EXPECT_EQ(tensor->refCount, -5);
  EXPECT_EQ(usedBytesOfThisThread(), recordOnly);
  MTensor_delete(tensor);
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(TensorLifecycle, ReferenceCountsReturnTheValueBeforeAndGoOnBelowZero) {
  const Tensor tensor(MTensor_new());
  EXPECT_EQ(MTensor_RefCountIncrement(tensor.get()), 1);
  EXPECT_EQ(MTensor_RefCountDecrement(tensor.get()), 2);
  EXPECT_EQ(MTensor_RefCountDecrement(tensor.get()), 1);
  EXPECT_EQ(MTensor_RefCountDecrement(tensor.get()), 0);
  EXPECT_EQ(tensor->refCount, -1);
  tensor->refCount = 0xFFFFFFFF;
  EXPECT_EQ(MTensor_RefCountIncrement(tensor.get()), 0xFFFFFFFF);
  EXPECT_EQ(tensor->refCount, int64_t{1} << 32);
}

TEST(TensorLifecycle, TheNullTensorIsNull) { EXPECT_EQ(mtensor_null(), nullptr); }

} // namespace

// Giving a tensor its shape, type and payload: what is reused, what is refused, what is reported.
#include "hook_log.h"
#include "runtime/memory.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

#include <random>
#include <string.h>

using namespace torvane;
using namespace torvane::test;

namespace {

using Calls = std::vector<HookCall>;
constexpr uint32_t kAllOnes = 0xFFFFFFFF;

MTensor fieldsOf(const Tensor &tensor) { return *tensor; }

void expectUnchanged(const Tensor &tensor, const MTensor &before) {
  EXPECT_EQ(memcmp(tensor.get(), &before, sizeof(MTensor)), 0);
}

TEST(TensorAllocation, GivesShapeTypeAndPayload) {
  for (mint type = TORVANE_TYPE_INTEGER; type <= TORVANE_TYPE_COMPLEX; ++type) {
    const Tensor tensor(MTensor_new());
    ASSERT_EQ(allocateAs(tensor, type, {2, 3, 4}), 0);
    EXPECT_EQ(tensor->rank, 3);
    EXPECT_EQ(tensor->elementCount, 24);
    EXPECT_EQ(tensor->type, type);
    EXPECT_EQ(extentsOf(tensor), Extents({2, 3, 4}));
    EXPECT_TRUE(isValidTensor(tensor.get()));
  }
}

TEST(TensorAllocation, OfTheReservedTypeHasElementsOfFourBytes) {
  const Tensor tensor(MTensor_new());
  ASSERT_EQ(allocateAs(tensor, 1, {5}), 0);
  EXPECT_GE(blockUsableBytes(tensor->data), 20u);
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

TEST(TensorAllocation, OfRankZeroHasOneElementAndNoExtents) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {4, 4});
  ASSERT_EQ(MTensor_allocateMemoryCommon(tensor.get(), TORVANE_TYPE_COMPLEX, 0, nullptr, kQuiet), 0);
  EXPECT_EQ(tensor->elementCount, 1);
  EXPECT_EQ(tensor->dimensions, nullptr);
  EXPECT_NE(tensor->data, nullptr);
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

TEST(TensorAllocation, OfAnEmptyShapeHasShapeAndTypeButNoPayload) {
  for (const Extents &extents : {Extents{0}, Extents{3, 0}, Extents{0, 3}, Extents{0, 65536, 65536}}) {
    const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {7});
    ASSERT_EQ(allocateAs(tensor, TORVANE_TYPE_COMPLEX, extents), 0);
    EXPECT_EQ(tensor->elementCount, 0);
    EXPECT_EQ(tensor->data, nullptr);
    EXPECT_EQ(extentsOf(tensor), extents);
    EXPECT_EQ(tensor->flags, 0x8Bu);
    EXPECT_TRUE(isValidTensor(tensor.get()));
  }
}

TEST(TensorAllocation, OfTheSameShapeAndTypeKeepsBlocksAndContent) {
  const uint32_t before = usedBytesOfThisThread();
  const Tensor tensor = tensorOf<mint>({2, 3}, {1, 2, 3, 4, 5, 6});
  const MTensor fields = fieldsOf(tensor);
  const uint32_t used = usedBytesOfThisThread();
  for (const mint mode : {kFatal, kQuiet, kReport})
    ASSERT_EQ(allocateAs(tensor, TORVANE_TYPE_INTEGER, {2, 3}, mode), 0);
  MTensor *slot = tensor.get();
  const mint extents[] = {2, 3};
  ASSERT_EQ(MTensor_allocateCommon(&slot, TORVANE_TYPE_INTEGER, 2, extents, kQuiet), 0);
  expectUnchanged(tensor, fields);
  EXPECT_EQ(usedBytesOfThisThread(), used);
  EXPECT_EQ(valuesOf<mint>(tensor), std::vector<mint>({1, 2, 3, 4, 5, 6}));
  EXPECT_GT(used, before);
}

// Compiled code may have changed flags and bound; the same request again must not set them.
TEST(TensorAllocation, OfTheSameShapeAndTypeRunsNoSetter) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {3});
  tensor->flags = 0x10000;
  tensor->numericBound = 5.0;
  tensor->elementType = 77;
  ASSERT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, {3}), 0);
  EXPECT_EQ(tensor->flags, 0x10000u);
  EXPECT_EQ(tensor->numericBound, 5.0);
  EXPECT_EQ(tensor->elementType, 77);
}

TEST(TensorAllocation, OfTheSameEmptyShapeSetsTheTypeAndTouchesNoMemory) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {3, 0});
  const uint32_t used = usedBytesOfThisThread();
  tensor->flags = TORVANE_FLAG_CONSTANT;
  ASSERT_EQ(allocateAs(tensor, TORVANE_TYPE_COMPLEX, {3, 0}), 0);
  EXPECT_EQ(tensor->type, 4);
  EXPECT_EQ(tensor->elementType, 12);
  EXPECT_EQ(tensor->flags, 0x80008Bu);
  EXPECT_EQ(tensor->data, nullptr);
  EXPECT_EQ(usedBytesOfThisThread(), used);
  tensor->flags &= ~uint32_t{TORVANE_FLAG_CONSTANT};
}

TEST(TensorAllocation, OfTheSameShapeAndAnotherTypeKeepsTheBytesAndTheCount) {
  const Tensor tensor = tensorOf<mint>({2, 2}, {11, 22, 33, 44});
  const mint *const extents = tensor->dimensions;
  ASSERT_EQ(allocateAs(tensor, TORVANE_TYPE_COMPLEX, {2, 2}), 0);
  EXPECT_EQ(tensor->elementCount, 4);
  EXPECT_EQ(tensor->dimensions, extents);
  const mint bytes[] = {11, 22, 33, 44};
  EXPECT_EQ(memcmp(tensor->data, bytes, sizeof bytes), 0);
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

TEST(TensorAllocation, OfAnotherShapeWithTheSameByteSizeKeepsThePayload) {
  const Tensor tensor = tensorOf<mreal>({2, 6}, std::vector<mreal>(12, 1.5));
  const void *const payload = tensor->data;
  ASSERT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, {3, 4}), 0);
  EXPECT_EQ(tensor->data, payload);
  ASSERT_EQ(allocateAs(tensor, TORVANE_TYPE_COMPLEX, {6}), 0);
  EXPECT_EQ(tensor->data, payload);
  EXPECT_EQ(extentsOf(tensor), Extents({6}));
}

TEST(TensorAllocation, TakesTheExtentsOfTheTensorItself) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2, 3, 4});
  ASSERT_EQ(MTensor_allocateMemoryCommon(tensor.get(), TORVANE_TYPE_INTEGER, 3, tensor->dimensions, kQuiet),
            0);
  EXPECT_EQ(extentsOf(tensor), Extents({2, 3, 4}));
  ASSERT_EQ(MTensor_allocateMemoryCommon(tensor.get(), TORVANE_TYPE_REAL, 2, tensor->dimensions + 1, kQuiet),
            0);
  EXPECT_EQ(extentsOf(tensor), Extents({3, 4}));
  ASSERT_EQ(MTensor_allocateMemoryCommon(tensor.get(), TORVANE_TYPE_REAL, 0, tensor->dimensions, kQuiet), 0);
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

TEST(TensorAllocation, LikeAnotherTakesItsTypeAndShape) {
  const Tensor like = newTensor(TORVANE_TYPE_COMPLEX, {3, 2});
  const Tensor tensor(MTensor_new());
  ASSERT_EQ(MTensor_allocateMemoryLikeCommon(tensor.get(), like.get(), kQuiet), 0);
  EXPECT_EQ(MTensor_equivalentQ(tensor.get(), like.get()), 1);
  EXPECT_EQ(MTensor_allocateMemoryLikeCommon(tensor.get(), tensor.get(), kQuiet), 0);
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

TEST(TensorAllocation, KeepsTheDeletionGuardOfAReallocatedConstant) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {3});
  tensor->flags |= TORVANE_FLAG_CONSTANT;
  ASSERT_EQ(allocateAs(tensor, TORVANE_TYPE_INTEGER, {5}), 0);
  EXPECT_EQ(tensor->flags, 0x800083u);
  tensor->flags &= ~uint32_t{TORVANE_FLAG_CONSTANT};
}

TEST(RefusedAllocation, OfANegativeExtentIs402InEveryModeAndChangesNothing) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2, 3});
  const MTensor before = fieldsOf(tensor);
  for (const mint mode : {0, 1, 2, 3, -1}) {
    EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, {2, -3}, mode), 402);
    EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, {INT32_MIN, 2, 2}, mode), 402);
    EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_NONE, {-1}, mode), 402);
  }
  expectUnchanged(tensor, before);
  EXPECT_EQ(extentsOf(tensor), Extents({2, 3}));
  EXPECT_EQ(takeHookCalls(), Calls());
}

TEST(RefusedAllocation, OfANegativeExtentBeatsOverflow) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2});
  EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, {65536, 65536, -1}, kFatal), 402);
  EXPECT_EQ(extentsOf(tensor), Extents({2}));
}

// resetDimensions checks nothing, so a tensor can carry an extent that no allocation would grant.
TEST(RefusedAllocation, OfANegativeExtentHoldsForTheTensorsOwnShape) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2});
  const mint negative[] = {-2};
  MTensor_resetDimensions(tensor.get(), 1, negative);
  EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, {-2}), 402);
}

TEST(RefusedAllocation, OfANegativeRankIs401InEveryModeAndChangesNothing) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2, 3});
  const MTensor before = fieldsOf(tensor);
  for (const mint mode : {0, 1, 2, 3})
    for (const mint rank : {-1, -2, INT32_MIN})
      EXPECT_EQ(MTensor_allocateMemoryCommon(tensor.get(), TORVANE_TYPE_REAL, rank, tensor->dimensions, mode),
                401);
  expectUnchanged(tensor, before);
  EXPECT_EQ(takeHookCalls(), Calls());
}

TEST(RefusedAllocation, OfAnOverflowingCountLeavesTheTensorAsItWas) {
  const Tensor tensor = tensorOf<mint>({2}, {5, 6});
  const MTensor before = fieldsOf(tensor);
  for (const Extents &extents : {Extents{65536, 65536}, Extents{65536, 65536, 0}, Extents{INT32_MAX}})
    EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_INTEGER, extents), 403);
  expectUnchanged(tensor, before);
  EXPECT_EQ(valuesOf<mint>(tensor), std::vector<mint>({5, 6}));
}

TEST(RefusedAllocation, OfAnOverflowingByteSizeIs403) {
  const mint limits[] = {1 << 30, 1 << 29, 1 << 28}; // elements whose bytes are 2^32, by type
  for (mint type = TORVANE_TYPE_INTEGER; type <= TORVANE_TYPE_COMPLEX; ++type) {
    const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2});
    EXPECT_EQ(allocateAs(tensor, type, {limits[type - 2]}), 403) << type;
    EXPECT_EQ(allocateAs(tensor, type, {limits[type - 2] + 1}), 403) << type;
  }
}

TEST(RefusedAllocation, OfATypeWithoutWidthIs403UnlessTheShapeIsEmpty) {
  for (const mint type : {0, 5, 6, 7, 1000, -1, INT32_MIN}) {
    const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2});
    EXPECT_EQ(allocateAs(tensor, type, {3}), 403) << type;
    EXPECT_EQ(allocateAs(tensor, type, {0}), 0) << type;
    EXPECT_EQ(tensor->type, type);
    EXPECT_EQ(tensor->elementType, 0);
  }
}

// The old block is of another size than the new shape says: a same-shape request must not trust it.
TEST(RefusedAllocation, AllocatesWhenItIsAskedForAgain) {
  const Tensor tensor = newTensor(TORVANE_TYPE_INTEGER, {2});
  ASSERT_EQ(allocateAs(tensor, TORVANE_TYPE_NONE, {1000}), 403);
  ASSERT_EQ(allocateAs(tensor, TORVANE_TYPE_INTEGER, {1000}), 0);
  EXPECT_TRUE(isValidTensor(tensor.get()));
  EXPECT_GE(blockUsableBytes(tensor->data), 4000u);

  ASSERT_EQ(allocateAs(tensor, TORVANE_TYPE_COMPLEX, {1 << 28}), 403);
  EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_COMPLEX, {1 << 28}), 403);
  ASSERT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, {10}), 0);
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

TEST(RefusedAllocation, OfAnotherTypeLeavesTheTensorAsItWas) {
  const Tensor tensor = tensorOf<mint>({2, 2}, {1, 2, 3, 4});
  const MTensor before = fieldsOf(tensor);
  EXPECT_EQ(allocateAs(tensor, 5, {2, 2}), 403);
  expectUnchanged(tensor, before);
  EXPECT_EQ(valuesOf<mint>(tensor), std::vector<mint>({1, 2, 3, 4}));
}

TEST(RefusedAllocation, IsReportedWithItsByteCountExceptInTheQuietMode) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2});
  takeHookCalls();
  for (const mint mode : {2, 3, -1}) {
    EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, {65536, 65536}, mode), 403);
    EXPECT_EQ(takeHookCalls(), Calls({{"report", kAllOnes}})) << mode;
    EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_COMPLEX, {1 << 28}, mode), 403);
    EXPECT_EQ(takeHookCalls(), Calls({{"report", kAllOnes}})) << mode;
    EXPECT_EQ(allocateAs(tensor, 6, {4}, mode), 403);
    EXPECT_EQ(takeHookCalls(), Calls({{"report", 0u}})) << mode;
    EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, {2}, mode), 0);
  }
  EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_REAL, {65536, 65536}, kQuiet), 403);
  EXPECT_EQ(allocateAs(tensor, TORVANE_TYPE_COMPLEX, {1 << 28}, kQuiet), 403);
  EXPECT_EQ(takeHookCalls(), Calls());
}

TEST(SetPayload, RefusesANegativeRankAndChangesNothing) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2});
  const MTensor before = fieldsOf(tensor);
  EXPECT_EQ(MTensor_setPayload(tensor.get(), TORVANE_TYPE_INTEGER, -1, 5, kFatal), 401);
  expectUnchanged(tensor, before);
}

TEST(SetPayload, OfNoElementsFreesTheBlock) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2});
  EXPECT_EQ(MTensor_setPayload(tensor.get(), TORVANE_TYPE_INTEGER, 1, 0, kFatal), 0);
  EXPECT_EQ(tensor->data, nullptr);
  EXPECT_EQ(tensor->elementCount, 0);
  EXPECT_EQ(tensor->type, 2);
}

// A shape, a type, a mode: the outcome by the rules written out flat.
mint statusByModel(mint type, const Extents &extents) {
  for (const mint extent : extents)
    if (extent < 0) return 402;
  int64_t count = 1;
  for (const mint extent : extents)
    if ((count *= extent) >= INT32_MAX) return 403;
  const int64_t widths[] = {0, 4, 4, 8, 16, 0};
  const int64_t bytes = count * widths[type];
  return count > 0 && (bytes == 0 || bytes >= int64_t{1} << 32) ? 403 : 0;
}

TEST(TensorAllocation, HoldsItsInvariantOverRandomRequests) {
  const uint32_t before = usedBytesOfThisThread();
  {
    std::mt19937 random(7);
    const mint pool[] = {-1, 0, 1, 2, 3, 5, 8, 17, 65536};
    const Tensor tensor = newTensor(TORVANE_TYPE_INTEGER, {});
    for (int i = 0; i < 20000; ++i) {
      Extents extents(random() % 5);
      for (mint &extent : extents) extent = pool[random() % (random() % 8 == 0 ? 9 : 8)];
      const mint type = static_cast<mint>(random() % 6);
      const mint status = statusByModel(type, extents);
      int64_t count = 1;
      for (const mint extent : extents) count *= extent;
      if (status == 0 && count > 100000) continue;
      ASSERT_EQ(allocateAs(tensor, type, extents), status) << type << testing::PrintToString(extents);
      if (status != 0) continue;
      ASSERT_EQ(extentsOf(tensor), extents);
      ASSERT_TRUE(type == 5 || isValidTensor(tensor.get())) << type << testing::PrintToString(extents);
      if (tensor->data != nullptr) memset(tensor->data, 0x5A, size_t{elementWidth(type)} * size_t(count));
    }
  }
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

} // namespace

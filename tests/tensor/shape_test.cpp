// Element counts, storing shapes, comparing shapes.
#include "runtime/memory.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

#include <random>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mint kFailedCount = 0x7FFFFFFF;

mint count(const Extents &extents, mint errorMode = kQuiet) {
  return NumberOfElements_common(static_cast<mint>(extents.size()), extents.data(), errorMode);
}

// The rule once more, in 64 bits.
mint countByModel(const Extents &extents) {
  int64_t product = 1;
  for (const mint extent : extents) {
    if (extent < 0) return kFailedCount;
    product *= extent;
    if (product > INT32_MAX) return kFailedCount;
  }
  return static_cast<mint>(product);
}

TEST(ElementCount, IsTheProductOfTheExtents) {
  EXPECT_EQ(count({}), 1);
  EXPECT_EQ(count({7}), 7);
  EXPECT_EQ(count({2, 3, 5}), 30);
  EXPECT_EQ(count({46340, 46340}), 2147395600);
  EXPECT_EQ(count({2147483646}, kFatal), 2147483646);
}

TEST(ElementCount, OfRankZeroOrBelowIsOne) {
  EXPECT_EQ(NumberOfElements_common(0, nullptr, kFatal), 1);
  EXPECT_EQ(NumberOfElements_common(-1, nullptr, kFatal), 1);
  EXPECT_EQ(NumberOfElements_common(INT32_MIN, nullptr, kQuiet), 1);
}

TEST(ElementCount, OverflowsFromLeftToRight) {
  EXPECT_EQ(count({65536, 65536}), kFailedCount);
  EXPECT_EQ(count({65536, 65536, 0}), kFailedCount);
  EXPECT_EQ(count({0, 65536, 65536}), 0);
  EXPECT_EQ(count({0, 65536, 65536}, kFatal), 0);
  EXPECT_EQ(count({65536, 32768}), kFailedCount);
}

TEST(ElementCount, ChecksTheExtentsAfterAZero) {
  EXPECT_EQ(count({0, -1}), kFailedCount);
  EXPECT_EQ(count({0, 3, -7, 2}), kFailedCount);
  EXPECT_EQ(count({-1}), kFailedCount);
  EXPECT_EQ(count({INT32_MIN, 2}), kFailedCount);
}

TEST(ElementCount, FailsAlikeInEveryModeButTheFatalOne) {
  for (const mint mode : {1, 2, 3, -1, INT32_MIN}) {
    EXPECT_EQ(count({65536, 65536}, mode), kFailedCount);
    EXPECT_EQ(count({-3}, mode), kFailedCount);
  }
}

// The largest extent is a true product and the mark of failure at once: it is not fatal here.
TEST(ElementCount, OfTheLargestExtentEqualsTheMarkOfFailure) {
  EXPECT_EQ(count({INT32_MAX}, kFatal), kFailedCount);
  EXPECT_EQ(count({1, INT32_MAX, 1}, kFatal), kFailedCount);
}

TEST(ElementCount, AgreesWithASlowModelOnRandomShapes) {
  std::mt19937 random(20261121);
  const mint pool[] = {-1,  0,    1,     1,     2,     3,     5,       7,        255,
                       256, 4096, 46340, 46341, 65535, 65536, 1 << 20, INT32_MAX};
  for (int i = 0; i < 20000; ++i) {
    Extents extents(random() % 6);
    for (mint &extent : extents) extent = pool[random() % std::size(pool)];
    ASSERT_EQ(count(extents), countByModel(extents)) << testing::PrintToString(extents);
  }
}

TEST(TensorShape, IsStoredWithTheCountThatIsGiven) {
  const Tensor tensor(MTensor_new());
  const mint extents[] = {4, 5};
  EXPECT_EQ(MTensor_setShape(tensor.get(), 2, extents, 99, kQuiet), 0);
  EXPECT_EQ(extentsOf(tensor), Extents({4, 5}));
  EXPECT_NE(tensor->dimensions, extents);
  EXPECT_EQ(tensor->elementCount, 99);
  EXPECT_EQ(tensor->data, nullptr);
}

TEST(TensorShape, OfRankZeroFreesTheExtentsAndCountsOne) {
  const uint32_t before = usedBytesOfThisThread();
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2, 3});
  EXPECT_EQ(MTensor_setShape(tensor.get(), 0, nullptr, 77, kQuiet), 0);
  EXPECT_EQ(tensor->dimensions, nullptr);
  EXPECT_EQ(tensor->rank, 0);
  EXPECT_EQ(tensor->elementCount, 1);
  MTensor_freeMemory(tensor.get());
  EXPECT_EQ(usedBytesOfThisThread(), before + allocatedBytesFor(sizeof(MTensor)));
}

TEST(TensorShape, OfANegativeRankIsRefusedAndChangesNothing) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2, 3});
  EXPECT_EQ(MTensor_setShape(tensor.get(), -1, tensor->dimensions, 5, kFatal), 401);
  EXPECT_EQ(extentsOf(tensor), Extents({2, 3}));
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

// No shape of 2^30 extents is read: its size is refused before.
TEST(TensorShape, OfSoHighARankThatItsBytesOverflowIsRefused) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2, 3});
  const mint one[] = {1};
  for (const mint rank : {0x40000000, 0x40000001, INT32_MAX})
    EXPECT_EQ(MTensor_setShape(tensor.get(), rank, one, 1, kQuiet), 403) << rank;
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

TEST(TensorShape, MayBeTakenFromTheTensorItself) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2, 3, 4});
  EXPECT_EQ(MTensor_setShape(tensor.get(), 2, tensor->dimensions + 1, 12, kQuiet), 0);
  EXPECT_EQ(extentsOf(tensor), Extents({3, 4}));
}

TEST(TensorShape, KeepsItsBlockOfExtentsWhenTheRankFalls) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {2, 3, 4});
  const mint *const block = tensor->dimensions;
  const mint extents[] = {24};
  MTensor_resetDimensions(tensor.get(), 1, extents);
  EXPECT_EQ(tensor->dimensions, block);
  EXPECT_EQ(extentsOf(tensor), Extents({24}));
}

TEST(ResetDimensions, StoresAShapeAndTouchesNeitherCountNorPayload) {
  const Tensor tensor = tensorOf<mint>({2, 3}, {1, 2, 3, 4, 5, 6});
  const void *const payload = tensor->data;
  const Extents longer(40, 1);
  MTensor_resetDimensions(tensor.get(), 40, longer.data());
  EXPECT_EQ(extentsOf(tensor), longer);
  EXPECT_EQ(tensor->elementCount, 6);
  EXPECT_EQ(tensor->data, payload);
  EXPECT_EQ(valuesOf<mint>(tensor), std::vector<mint>({1, 2, 3, 4, 5, 6}));
  const mint wrong[] = {100};
  MTensor_resetDimensions(tensor.get(), 1, wrong);
  EXPECT_EQ(tensor->elementCount, 6);
}

TEST(ResetDimensions, ToRankZeroCountsOne) {
  const Tensor tensor = tensorOf<mint>({1, 1}, {5});
  MTensor_resetDimensions(tensor.get(), 0, nullptr);
  EXPECT_EQ(tensor->rank, 0);
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

// A rank that has fallen leaves the further extents in the block, and the tensor's own pointer brings them
// back, although the block moves.
TEST(ResetDimensions, WithTheTensorsOwnPointerTakesTheExtentsAlongWhenTheBlockMoves) {
  const Tensor tensor = tensorOf<mint>({1}, {5});
  const Extents many(200, 7); // a cell without header: once freed its first words are gone
  const mint one[] = {1};
  MTensor_resetDimensions(tensor.get(), 200, many.data());
  MTensor_resetDimensions(tensor.get(), 1, one);
  const mint *const block = tensor->dimensions;
  MTensor_resetDimensions(tensor.get(), 3, tensor->dimensions);
  EXPECT_NE(tensor->dimensions, block);
  EXPECT_EQ(extentsOf(tensor), Extents({1, 7, 7}));
  MTensor_resetDimensions(tensor.get(), 1, tensor->dimensions);
}

TEST(ResetDimensions, WithTheTensorsOwnPointerShortensOrKeepsTheShape) {
  const Tensor tensor = tensorOf<mint>({3, 1}, {1, 2, 3});
  MTensor_resetDimensions(tensor.get(), 2, tensor->dimensions);
  EXPECT_EQ(extentsOf(tensor), Extents({3, 1}));
  MTensor_resetDimensions(tensor.get(), 1, tensor->dimensions);
  EXPECT_EQ(extentsOf(tensor), Extents({3}));
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

TEST(CompatibleDimensions, AgreeAsFarAsTheSmallerRankGoes) {
  const Tensor scalar = newTensor(TORVANE_TYPE_REAL, {});
  const Tensor vector = newTensor(TORVANE_TYPE_INTEGER, {2});
  const Tensor matrix = newTensor(TORVANE_TYPE_REAL, {2, 3});
  const Tensor other = newTensor(TORVANE_TYPE_REAL, {2, 4});
  EXPECT_EQ(MTensor_compatibleDimensionsQ(scalar.get(), matrix.get()), 1);
  EXPECT_EQ(MTensor_compatibleDimensionsQ(matrix.get(), scalar.get()), 1);
  EXPECT_EQ(MTensor_compatibleDimensionsQ(scalar.get(), scalar.get()), 1);
  EXPECT_EQ(MTensor_compatibleDimensionsQ(vector.get(), matrix.get()), 1);
  EXPECT_EQ(MTensor_compatibleDimensionsQ(matrix.get(), vector.get()), 1);
  EXPECT_EQ(MTensor_compatibleDimensionsQ(matrix.get(), matrix.get()), 1);
  EXPECT_EQ(MTensor_compatibleDimensionsQ(matrix.get(), other.get()), 0);
}

TEST(MaxCompatibleDimensions, AreThoseOfTheLargerRankAndTheFirstTensorsOnATie) {
  const Tensor vector = newTensor(TORVANE_TYPE_REAL, {2});
  const Tensor matrix = newTensor(TORVANE_TYPE_REAL, {2, 3});
  const Tensor same = newTensor(TORVANE_TYPE_REAL, {2, 3});
  mint rank = -7;
  mint *dimensions = nullptr;
  EXPECT_EQ(MTensor_maxCompatibleDimensions(vector.get(), matrix.get(), &rank, &dimensions), 1);
  EXPECT_EQ(rank, 2);
  EXPECT_EQ(dimensions, matrix->dimensions);
  EXPECT_EQ(MTensor_maxCompatibleDimensions(matrix.get(), vector.get(), &rank, &dimensions), 1);
  EXPECT_EQ(dimensions, matrix->dimensions);
  EXPECT_EQ(MTensor_maxCompatibleDimensions(same.get(), matrix.get(), &rank, &dimensions), 1);
  EXPECT_EQ(dimensions, same->dimensions);
}

TEST(MaxCompatibleDimensions, StoreNothingForIncompatibleShapes) {
  const Tensor a = newTensor(TORVANE_TYPE_REAL, {2, 3});
  const Tensor b = newTensor(TORVANE_TYPE_REAL, {3});
  mint rank = -7;
  mint *dimensions = &rank;
  EXPECT_EQ(MTensor_maxCompatibleDimensions(a.get(), b.get(), &rank, &dimensions), 0);
  EXPECT_EQ(rank, -7);
  EXPECT_EQ(dimensions, &rank);
}

TEST(EquivalentTensors, AgreeInRankTypeAndExtentsWhateverTheyHold) {
  const Tensor a = tensorOf<mint>({2, 2}, {1, 2, 3, 4});
  const Tensor b = tensorOf<mint>({2, 2}, {9, 9, 9, 9});
  EXPECT_EQ(MTensor_equivalentQ(a.get(), b.get()), 1);
  EXPECT_EQ(MTensor_equivalentQ(a.get(), newTensor(TORVANE_TYPE_REAL, {2, 2}).get()), 0);
  EXPECT_EQ(MTensor_equivalentQ(a.get(), newTensor(TORVANE_TYPE_INTEGER, {2, 3}).get()), 0);
  EXPECT_EQ(MTensor_equivalentQ(a.get(), newTensor(TORVANE_TYPE_INTEGER, {2, 2, 1}).get()), 0);
  EXPECT_EQ(MTensor_equivalentQ(a.get(), newTensor(TORVANE_TYPE_INTEGER, {2}).get()), 0);
  const Tensor scalar = newTensor(TORVANE_TYPE_REAL, {}), other = newTensor(TORVANE_TYPE_REAL, {});
  EXPECT_EQ(MTensor_equivalentQ(scalar.get(), other.get()), 1);
}

} // namespace

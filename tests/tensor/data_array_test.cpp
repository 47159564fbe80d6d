// Tensors made over elements that exist.
#include "runtime/memory.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

using namespace torvane;
using namespace torvane::test;

namespace {

mreal *newReals(size_t count) {
  return static_cast<mreal *>(allocate(uint32_t(count * sizeof(mreal)), 0, kFatal));
}

Tensor adopt(mint type, const Extents &extents, void *payload) {
  return Tensor(MTensor_newUsingDataArray(type, static_cast<mint>(extents.size()), extents.data(), payload));
}

Tensor copyOf(mint type, const Extents &extents, const void *source) {
  return Tensor(
      MTensor_newCopyFromDataArray(type, static_cast<mint>(extents.size()), extents.data(), source));
}

TEST(AdoptedData, BelongsToTheTensorAndIsFreedWithIt) {
  const uint32_t before = usedBytesOfThisThread();
  mreal *payload = newReals(6);
  payload[5] = 2.5;
  {
    const Tensor tensor = adopt(TORVANE_TYPE_REAL, {2, 3}, payload);
    EXPECT_EQ(tensor->data, payload);
    EXPECT_EQ(elements<mreal>(tensor)[5], 2.5);
    EXPECT_EQ(tensor->refCount, 1);
    EXPECT_TRUE(isValidTensor(tensor.get()));
    ASSERT_EQ(allocateAs(tensor, TORVANE_TYPE_COMPLEX, {50}), 0);
  }
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(AdoptedData, OfRankZeroIsOneElement) {
  const Tensor tensor = adopt(TORVANE_TYPE_REAL, {}, newReals(1));
  EXPECT_EQ(tensor->elementCount, 1);
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

TEST(AdoptedData, OfAnEmptyShapeIsKeptForTheDelete) {
  const uint32_t before = usedBytesOfThisThread();
  mreal *payload = newReals(6);
  {
    const Tensor tensor = adopt(TORVANE_TYPE_REAL, {3, 0}, payload);
    EXPECT_EQ(tensor->elementCount, 0);
    EXPECT_EQ(tensor->data, payload);
  }
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(AdoptedData, OfANegativeRankStaysTheCallers) {
  const uint32_t before = usedBytesOfThisThread();
  mreal *payload = newReals(1);
  EXPECT_EQ(MTensor_newUsingDataArray(TORVANE_TYPE_REAL, -1, nullptr, payload), nullptr);
  torvane::free(payload);
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(CopiedData, IsIndependentOfItsSource) {
  const uint32_t before = usedBytesOfThisThread();
  {
    std::vector<mint> source = {1, 2, 3, 4, 5, 6};
    const Tensor tensor = copyOf(TORVANE_TYPE_INTEGER, {3, 2}, source.data());
    source.assign(6, 0);
    EXPECT_EQ(valuesOf<mint>(tensor), std::vector<mint>({1, 2, 3, 4, 5, 6}));
    EXPECT_TRUE(isValidTensor(tensor.get()));
    const mcomplex z = {1.5, -2.5};
    const Tensor scalar = copyOf(TORVANE_TYPE_COMPLEX, {}, &z);
    EXPECT_EQ(elements<mcomplex>(scalar)->im, -2.5);
    EXPECT_TRUE(isValidTensor(scalar.get()));
  }
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(CopiedData, OfAShapeThatIsEmptyInItsLastExtentHasNoPayload) {
  for (const Extents &extents : {Extents{0}, Extents{3, 0}, Extents{2, 3, 0}}) {
    const Tensor tensor = copyOf(TORVANE_TYPE_REAL, extents, nullptr);
    ASSERT_NE(tensor, nullptr);
    EXPECT_EQ(extentsOf(tensor), extents);
    EXPECT_EQ(tensor->data, nullptr);
    EXPECT_TRUE(isValidTensor(tensor.get()));
  }
}

TEST(CopiedData, OfAShapeThatIsEmptyBeforeItsLastExtentIsNone) {
  const uint32_t before = usedBytesOfThisThread();
  const mreal source[8] = {};
  for (const Extents &extents : {Extents{0, 3}, Extents{0, 0}, Extents{2, 0, 3}, Extents{0, 2, 0}})
    EXPECT_EQ(copyOf(TORVANE_TYPE_REAL, extents, source), nullptr) << testing::PrintToString(extents);
  EXPECT_EQ(MTensor_newCopyFromDataArray(TORVANE_TYPE_REAL, -1, nullptr, source), nullptr);
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(CopiedData, OfATypeWithoutWidthHasNoPayload) {
  const mint source[1] = {};
  EXPECT_EQ(copyOf(TORVANE_TYPE_NONE, {1}, source)->data, nullptr);
}

} // namespace

// The shape record of arrays that are not dense.
#include "arrays/tensor_property.h"
#include "runtime/memory.h"

#include <gtest/gtest.h>

using namespace torvane;

namespace {

TEST(TensorProperty, IsNewWithRoomForItsExtents) {
  const uint32_t before = usedBytesOfThisThread();
  TensorProperty *property = TensorProperty_new(3);
  EXPECT_EQ(property->realProperty, 2147483552.0);
  EXPECT_EQ(property->rank, 3);
  EXPECT_EQ(property->type, 0);
  EXPECT_EQ(property->flags, 0u);
  EXPECT_GE(blockUsableBytes(property->dimensions), 12u);
  TensorProperty_delete(property);
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(TensorProperty, OfRankZeroHasNoExtents) {
  const uint32_t before = usedBytesOfThisThread();
  TensorProperty *property = TensorProperty_new(0);
  EXPECT_EQ(property->dimensions, nullptr);
  property->realProperty = 2.5;
  property->flags = 6;
  TensorProperty *copy = TensorProperty_copy(property);
  EXPECT_EQ(copy->rank, 0);
  EXPECT_EQ(copy->dimensions, nullptr);
  EXPECT_EQ(copy->realProperty, 2.5);
  EXPECT_EQ(copy->flags, 6u);
  TensorProperty_delete(copy);
  TensorProperty_delete(property);
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(TensorProperty, IsCopiedWhole) {
  TensorProperty *property = TensorProperty_new(2);
  property->dimensions[0] = 7, property->dimensions[1] = 9;
  property->type = 4;
  property->flags = 0x80000001;
  property->realProperty = -1;
  TensorProperty *copy = TensorProperty_copy(property);
  EXPECT_NE(copy->dimensions, property->dimensions);
  EXPECT_EQ(copy->dimensions[0], 7);
  EXPECT_EQ(copy->dimensions[1], 9);
  EXPECT_EQ(copy->type, 4);
  EXPECT_EQ(copy->flags, 0x80000001u);
  EXPECT_EQ(copy->realProperty, -1);
  TensorProperty_delete(copy);
  TensorProperty_delete(property);
}

TEST(TensorProperty, OfALargerRankKeepsItsRankAndHigherExtents) {
  TensorProperty *source = TensorProperty_new(2), *target = TensorProperty_new(4);
  source->dimensions[0] = 1, source->dimensions[1] = 2;
  for (mint i = 0; i < 4; ++i) target->dimensions[i] = 10 + i;
  source->type = 3;
  TensorProperty_copyValues(target, source);
  EXPECT_EQ(target->rank, 4);
  EXPECT_EQ(std::vector<mint>(target->dimensions, target->dimensions + 4), std::vector<mint>({1, 2, 12, 13}));
  EXPECT_EQ(target->type, 3);
  TensorProperty_delete(source);
  TensorProperty_delete(target);
}

TEST(TensorProperty, MayShareItsExtentsWithTheSource) {
  TensorProperty *source = TensorProperty_new(4);
  for (mint i = 0; i < 4; ++i) source->dimensions[i] = i + 1;
  TensorProperty target = *source;
  target.dimensions = source->dimensions + 1;
  source->rank = 3;
  TensorProperty_copyValues(&target, source);
  EXPECT_EQ(std::vector<mint>(source->dimensions, source->dimensions + 4), std::vector<mint>({1, 1, 2, 3}));
  TensorProperty_delete(source);
}

} // namespace

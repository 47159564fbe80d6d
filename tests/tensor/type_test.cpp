// Type, tag, flags and bound of a tensor.
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

#include <bit>

using namespace torvane;

namespace {

struct Expected {
  mint type, elementType;
  uint32_t flags;
  mreal bound;
};

constexpr uint32_t kOtherBits = 0x02800F74; // bits that no type sets, the deletion guard among them

MTensor afterSetType(mint type, uint32_t flagsBefore, mreal boundBefore) {
  MTensor tensor = {};
  tensor.flags = flagsBefore;
  tensor.numericBound = boundBefore;
  MTensor_setType(&tensor, type);
  return tensor;
}

TEST(TensorType, SetsTagFlagsAndBoundByType) {
  const Expected table[] = {
      {0, 0, 0x00, 2147483552.0}, {1, 0, 0x83, 2147483552.0}, {2, 5, 0x83, 2147483552.0},
      {3, 10, 0x83, 0.0},         {4, 12, 0x8B, 0.0},
  };
  for (const Expected &row : table) {
    const MTensor tensor = afterSetType(row.type, 0xFFu, -1.0);
    EXPECT_EQ(tensor.type, row.type);
    EXPECT_EQ(tensor.elementType, row.elementType) << row.type;
    EXPECT_EQ(tensor.flags, row.flags | 0x74u) << row.type;
    EXPECT_EQ(tensor.numericBound, row.bound) << row.type;
  }
}

TEST(TensorType, LeavesTheOtherFlagsAlone) {
  for (mint type = 0; type <= 4; ++type)
    EXPECT_EQ(afterSetType(type, kOtherBits, 0).flags & ~0x8Bu, kOtherBits) << type;
}

TEST(TensorType, ClearsTheFlagsAndKeepsTheBoundForATypeThatDoesNotExist) {
  for (const mint type : {5, 6, 7, 100, -1, INT32_MIN}) {
    const MTensor tensor = afterSetType(type, kOtherBits | 0x8B, 17.0);
    EXPECT_EQ(tensor.type, type);
    EXPECT_EQ(tensor.elementType, 0) << type;
    EXPECT_EQ(tensor.flags, kOtherBits) << type;
    EXPECT_EQ(tensor.numericBound, 17.0) << type;
  }
}

TEST(TensorType, TakesTheFlagsWordApartFromTheTensor) {
  MTensor tensor = {};
  tensor.flags = 0x40;
  uint32_t flags = 0x8B;
  MTensor_applyTypeFlags(TORVANE_TYPE_INTEGER, &flags, &tensor);
  EXPECT_EQ(flags, 0x83u);
  EXPECT_EQ(tensor.flags, 0x40u);
  EXPECT_EQ(std::bit_cast<uint64_t>(tensor.numericBound), 0x41dfffffe8000000u);
}

TEST(TensorType, HasAWidthForItsTypesAlone) {
  const uint32_t widths[] = {0, 4, 4, 8, 16, 0, 0};
  for (mint type = 0; type < 7; ++type) EXPECT_EQ(elementWidth(type), widths[type]);
  for (const mint type : {7, 1000, -1, INT32_MIN, INT32_MAX}) EXPECT_EQ(elementWidth(type), 0u);
}

} // namespace

// Payloads: fitting, filling, counting bytes.
#include "runtime/memory.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace torvane;
using namespace torvane::test;

namespace {

TEST(ReallocateAndCopyData, GrowsThePayloadToTheCountAndKeepsTheContent) {
  const Tensor tensor = tensorOf<mreal>({4}, {1, 2, 3, 4});
  const mint extents[] = {1000};
  MTensor_resetDimensions(tensor.get(), 1, extents);
  tensor->elementCount = 1000;
  MTensor_reallocateAndCopyData(tensor.get());
  EXPECT_TRUE(isValidTensor(tensor.get()));
  for (int i = 0; i < 4; ++i) EXPECT_EQ(elements<mreal>(tensor)[i], i + 1);
}

TEST(ReallocateAndCopyData, ShrinksThePayloadAndItsBytes) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {1000});
  elements<mreal>(tensor)[0] = 7.5;
  const uint32_t used = usedBytesOfThisThread();
  tensor->elementCount = tensor->dimensions[0] = 10;
  MTensor_reallocateAndCopyData(tensor.get());
  EXPECT_LT(usedBytesOfThisThread(), used - 7000);
  EXPECT_EQ(elements<mreal>(tensor)[0], 7.5);
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

TEST(ReallocateAndCopyData, AllocatesForATensorThatHasNone) {
  const Tensor tensor = newTensor(TORVANE_TYPE_INTEGER, {0});
  tensor->elementCount = tensor->dimensions[0] = 3;
  MTensor_reallocateAndCopyData(tensor.get());
  EXPECT_TRUE(isValidTensor(tensor.get()));
}

TEST(ReallocateAndCopyData, FreesThePayloadOfATensorWithoutElements) {
  for (const mint count : {0, -1}) {
    const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {8});
    tensor->elementCount = count;
    MTensor_reallocateAndCopyData(tensor.get());
    EXPECT_EQ(tensor->data, nullptr);
  }
}

TEST(ReallocateAndCopyData, FreesThePayloadOfATensorWhoseTypeHasNoWidth) {
  const uint32_t before = usedBytesOfThisThread();
  {
    const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {8});
    tensor->type = TORVANE_TYPE_NONE;
    MTensor_reallocateAndCopyData(tensor.get());
    EXPECT_EQ(tensor->data, nullptr);
  }
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(InitializeTensor, SetsEveryElementFromAnInteger) {
  for (const mint value : {0, 1, -1, INT32_MAX, INT32_MIN}) {
    const Tensor integers = newTensor(TORVANE_TYPE_INTEGER, {3, 5});
    const Tensor reals = newTensor(TORVANE_TYPE_REAL, {15});
    const Tensor complexes = newTensor(TORVANE_TYPE_COMPLEX, {5, 3});
    for (const Tensor *tensor : {&integers, &reals, &complexes}) MTensor_initialize(tensor->get(), value);
    EXPECT_EQ(valuesOf<mint>(integers), std::vector<mint>(15, value));
    EXPECT_EQ(valuesOf<mreal>(reals), std::vector<mreal>(15, value));
    for (const mcomplex z : valuesOf<mcomplex>(complexes)) {
      EXPECT_EQ(z.re, value);
      EXPECT_EQ(z.im, 0.0);
      EXPECT_FALSE(std::signbit(z.im));
      EXPECT_EQ(std::signbit(z.re), value < 0);
    }
  }
}

TEST(InitializeTensor, DoesAsManyElementsAsTheCountSays) {
  const Tensor tensor = tensorOf<mint>({4}, {1, 2, 3, 4});
  tensor->elementCount = 2;
  MTensor_initialize(tensor.get(), 9);
  tensor->elementCount = 4;
  EXPECT_EQ(valuesOf<mint>(tensor), std::vector<mint>({9, 9, 3, 4}));
}

TEST(InitializeTensor, LeavesTensorsWithoutElementsOrWithoutTypeAlone) {
  MTensor_initialize(newTensor(TORVANE_TYPE_REAL, {0, 2}).get(), 5);
  const Tensor reserved = newTensor(1, {2});
  elements<mint>(reserved)[0] = 6;
  MTensor_initialize(reserved.get(), 5);
  EXPECT_EQ(elements<mint>(reserved)[0], 6);
  const Tensor fresh(MTensor_new());
  MTensor_initialize(fresh.get(), 5);
  EXPECT_EQ(fresh->data, nullptr);
}

TEST(ByteCount, IsTheSumOfTheThreeBlocks) {
  const uint32_t record = allocatedBytesFor(sizeof(MTensor));
  EXPECT_EQ(MTensor_getByteCount(Tensor(MTensor_new()).get()), record);
  EXPECT_EQ(MTensor_getByteCount(newTensor(TORVANE_TYPE_COMPLEX, {}).get()), record + allocatedBytesFor(16));
  EXPECT_EQ(MTensor_getByteCount(newTensor(TORVANE_TYPE_INTEGER, {3, 0, 2}).get()),
            record + allocatedBytesFor(12));
  EXPECT_EQ(MTensor_getByteCount(newTensor(TORVANE_TYPE_REAL, {10, 10, 10}).get()),
            record + allocatedBytesFor(12) + allocatedBytesFor(8000));
  EXPECT_EQ(MTensor_getByteCount(newTensor(TORVANE_TYPE_INTEGER, {100000}).get()),
            record + allocatedBytesFor(4) + allocatedBytesFor(400000));
}

// What it says is what the allocator counts, for small blocks and large ones. (Of the sizes between, from
// 1 KiB to 64 KiB, a cell has its header inside the class size, but is said to have it on top.)
TEST(ByteCount, IsWhatTheThreadHeapCounts) {
  for (const Extents &extents : {Extents{}, Extents{1}, Extents{7, 9}, Extents{100}, Extents{20000}}) {
    const uint32_t before = usedBytesOfThisThread();
    const Tensor tensor = newTensor(TORVANE_TYPE_REAL, extents);
    EXPECT_EQ(MTensor_getByteCount(tensor.get()), usedBytesOfThisThread() - before)
        << testing::PrintToString(extents);
  }
}

} // namespace

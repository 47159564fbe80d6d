// Copies of whole tensors and of runs, without coercion.
#include "runtime/memory.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string.h>

using namespace torvane;
using namespace torvane::test;

namespace {

bool sameBytes(const Tensor &a, const Tensor &b) {
  return memcmp(a->data, b->data, size_t{elementWidth(a->type)} * static_cast<size_t>(a->elementCount)) == 0;
}

using WholeCopy = std::function<mint(const Tensor &target, const Tensor &source)>;

const std::vector<WholeCopy> kWholeCopies = {
    [](const Tensor &target, const Tensor &source) { return MTensor_copy(target.get(), source.get()); },
    [](const Tensor &target, const Tensor &source) {
      return MTensor_copyUniqueCommon(target.get(), source.get(), kQuiet);
    },
    [](const Tensor &target, const Tensor &source) {
      MTensor *slot = target.get();
      return MTensor_makeCopy(&slot, source.get());
    },
};

Tensor numbered(mint type, const Extents &extents) {
  Tensor tensor = newTensor(type, extents);
  auto *bytes = static_cast<uint8_t *>(tensor->data);
  for (size_t i = 0; i < size_t{elementWidth(type)} * static_cast<size_t>(tensor->elementCount); ++i)
    bytes[i] = static_cast<uint8_t>(i * 7 + 1);
  return tensor;
}

TEST(TensorCopy, HasTypeShapeAndBytesOfItsSource) {
  for (const WholeCopy &copy : kWholeCopies)
    for (const mint type : {1, 2, 3, 4})
      for (const Extents &extents : {Extents{}, Extents{1}, Extents{5}, Extents{2, 3}, Extents{3, 1, 4, 2}}) {
        const Tensor source = numbered(type, extents);
        const Tensor target = newTensor(TORVANE_TYPE_REAL, {4, 4});
        ASSERT_EQ(copy(target, source), 0);
        EXPECT_EQ(MTensor_equivalentQ(target.get(), source.get()), 1);
        EXPECT_NE(target->data, source->data);
        EXPECT_TRUE(sameBytes(target, source));
        EXPECT_TRUE(isValidTensor(target.get()));
      }
}

TEST(TensorCopy, OfAnEmptyTensorHasItsShapeAndNoPayload) {
  for (const WholeCopy &copy : kWholeCopies) {
    const Tensor source = newTensor(TORVANE_TYPE_INTEGER, {3, 0, 2});
    const Tensor target = newTensor(TORVANE_TYPE_REAL, {4});
    ASSERT_EQ(copy(target, source), 0);
    EXPECT_EQ(extentsOf(target), Extents({3, 0, 2}));
    EXPECT_EQ(target->data, nullptr);
    EXPECT_TRUE(isValidTensor(target.get()));
  }
}

TEST(TensorCopy, LeavesTheTargetItsOwnReferenceCountFlagsAndBound) {
  for (const WholeCopy &copy : kWholeCopies) {
    const Tensor source = numbered(TORVANE_TYPE_REAL, {3});
    source->refCount = 50;
    source->flags |= TORVANE_FLAG_CONSTANT | 0x10000;
    source->numericBound = 99.0;
    const Tensor target(MTensor_new());
    target->refCount = 7;
    ASSERT_EQ(copy(target, source), 0);
    EXPECT_EQ(target->refCount, 7);
    EXPECT_EQ(target->flags, 0x83u);
    EXPECT_EQ(target->numericBound, 0.0);
    source->flags = 0;
  }
}

TEST(TensorCopy, OntoItselfDoesNothing) {
  for (const WholeCopy &copy : kWholeCopies) {
    const Tensor tensor = tensorOf<mint>({2}, {1, 2});
    tensor->flags = 0x12345;
    const MTensor before = *tensor;
    ASSERT_EQ(copy(tensor, tensor), 0);
    EXPECT_EQ(memcmp(tensor.get(), &before, sizeof before), 0);
    EXPECT_EQ(valuesOf<mint>(tensor), std::vector<mint>({1, 2}));
    tensor->flags = 0;
  }
}

// Of two records without type the same copy would ask for elements without width.
TEST(TensorCopy, OntoItselfDoesNothingToAFreshRecordEither) {
  for (const WholeCopy &copy : kWholeCopies) {
    const Tensor fresh(MTensor_new());
    const MTensor before = *fresh;
    EXPECT_EQ(copy(fresh, fresh), 0);
    EXPECT_EQ(memcmp(fresh.get(), &before, sizeof before), 0);
  }
}

TEST(TensorCopy, IntoAnEmptySlotMakesATensor) {
  const Tensor source = tensorOf<mreal>({2}, {1.5, 2.5});
  MTensor *slot = nullptr;
  ASSERT_EQ(MTensor_makeCopy(&slot, source.get()), 0);
  const Tensor target(slot);
  EXPECT_EQ(valuesOf<mreal>(target), valuesOf<mreal>(source));
  EXPECT_EQ(target->refCount, 1);
}

TEST(TensorCopy, IntoASlotThatHoldsTheSourceDoesNothing) {
  const Tensor source = tensorOf<mreal>({2}, {1.5, 2.5});
  MTensor *slot = source.get();
  ASSERT_EQ(MTensor_makeCopy(&slot, source.get()), 0);
  EXPECT_EQ(slot, source.get());
}

TEST(TensorCopy, ThatFailsLeavesTheTensorItMadeInTheSlot) {
  const Tensor source = newTensor(TORVANE_TYPE_REAL, {2});
  source->dimensions[0] = -2;
  MTensor *slot = nullptr;
  EXPECT_EQ(MTensor_makeCopy(&slot, source.get()), 402);
  ASSERT_NE(slot, nullptr);
  const Tensor target(slot);
  EXPECT_EQ(target->rank, 0);
}

TEST(TensorCopy, ReturnsTheStatusOfTheAllocation) {
  const Tensor source = newTensor(TORVANE_TYPE_REAL, {2});
  const Tensor target = newTensor(TORVANE_TYPE_REAL, {3});
  source->type = 6;
  for (const mint mode : {kQuiet, kReport})
    EXPECT_EQ(MTensor_copyUniqueCommon(target.get(), source.get(), mode), 403);
  source->dimensions[0] = -2;
  EXPECT_EQ(MTensor_copy(target.get(), source.get()), 402);
  source->type = TORVANE_TYPE_REAL;
}

// Runs. Every copy is held against one written out byte by byte; the byte pattern shows what was touched.
struct Run {
  mint targetStart, targetStride, sourceStart, sourceStride, count;
};

constexpr mint kLength = 64; // elements on both sides

std::vector<uint8_t> expectedBytes(const Tensor &target, const Tensor &source, const Run &run) {
  const size_t width = elementWidth(target->type);
  const auto *from = static_cast<const uint8_t *>(source->data);
  std::vector<uint8_t> bytes(width * kLength);
  memcpy(bytes.data(), target->data, bytes.size());
  for (mint i = 0; i < run.count; ++i)
    for (size_t b = 0; b < width; ++b)
      bytes[size_t(run.targetStart + i * run.targetStride) * width + b] =
          from[size_t(run.sourceStart + i * run.sourceStride) * width + b];
  return bytes;
}

void expectCopied(mint type, const Run &run, bool contiguous = false) {
  const Tensor source = numbered(type, {kLength});
  const Tensor target = newTensor(type, {kLength});
  memset(target->data, 0xEE, size_t{elementWidth(type)} * kLength);
  const std::vector<uint8_t> expected = expectedBytes(target, source, run);
  if (contiguous)
    MTensor_copyContiguousData(target.get(), run.targetStart, source.get(), run.sourceStart, run.count);
  else
    MTensor_copySomeData(target.get(), run.targetStart, run.targetStride, source.get(), run.sourceStart,
                         run.sourceStride, run.count);
  EXPECT_EQ(memcmp(target->data, expected.data(), expected.size()), 0)
      << "type " << type << " strides " << run.targetStride << ", " << run.sourceStride << " count "
      << run.count;
}

mint startFor(mint stride, mint count) { return stride < 0 ? -stride * (count - 1) + 1 : 1; }

TEST(RunCopy, MovesExactlyTheElementsOfTheRun) {
  for (const mint type : {2, 3, 4})
    for (const mint targetStride : {-3, -1, 0, 1, 2, 3})
      for (const mint sourceStride : {-3, -1, 0, 1, 2, 3})
        for (mint count = 1; count <= 19; ++count)
          expectCopied(type, {startFor(targetStride, count), targetStride, startFor(sourceStride, count),
                              sourceStride, count});
}

TEST(RunCopy, OfAContiguousRunIsABlockCopy) {
  for (const mint type : {1, 2, 3, 4})
    for (mint count = 1; count <= 40; ++count) {
      expectCopied(type, {3, 1, 7, 1, count}, true);
      expectCopied(type, {3, 1, 7, 1, count});
    }
}

TEST(RunCopy, OfNoElementsDoesNothing) {
  for (const mint type : {2, 3, 4})
    for (const mint count : {0, -1, INT32_MIN}) {
      expectCopied(type, {3, 1, 7, 1, count}, true);
      expectCopied(type, {3, 1, 7, 1, count});
      expectCopied(type, {3, 2, 7, -1, count});
      expectCopied(type, {3, 0, 7, 1, count});
    }
  const Tensor empty(MTensor_new());
  MTensor_copyContiguousData(empty.get(), 0, empty.get(), 0, 0);
  MTensor_copySomeData(empty.get(), 0, 1, empty.get(), 0, 1, 0);
  EXPECT_EQ(empty->data, nullptr);
}

TEST(RunCopy, OfAnotherTypeDoesNothingWhereTheRunIsStrided) {
  const Tensor source = numbered(1, {8}), target = numbered(1, {8});
  static_cast<uint8_t *>(target->data)[0] = 0xEE;
  for (const mint type : {0, 1, 5, 6, 7, -1}) {
    target->type = type;
    MTensor_copySomeData(target.get(), 0, 1, source.get(), 0, 2, 4);
    EXPECT_EQ(static_cast<uint8_t *>(target->data)[0], 0xEE);
  }
  target->type = 1;
}

TEST(RunCopy, TakesItsWidthFromTheTargetAndComparesNoTypes) {
  const Tensor source = tensorOf<mint>({4}, {1, 2, 3, 4});
  const Tensor target = newTensor(TORVANE_TYPE_REAL, {2});
  MTensor_copyContiguousData(target.get(), 0, source.get(), 0, 2);
  EXPECT_EQ(memcmp(target->data, source->data, 16), 0);
}

} // namespace

#include "arrays.h"

#include "runtime/element_types.h"
#include "runtime/memory.h"
#include "support/failing_heap.h"
#include "tensor/tensor.h"

#include <gtest/gtest.h>
#include <numeric>

namespace torvane::test {

namespace {

TEST(NumericArrays, NewOnesFollowFromTheElementTypeAndTheShape) {
  for (mint tag = 1; tag <= 12; ++tag) {
    const Array array = newArray(tag, {2, 3});
    ASSERT_NE(array, nullptr);
    const mint type = tag == 5 ? 2 : tag == 10 ? 3 : tag == 12 ? 4 : 0;
    EXPECT_EQ(array->type, type);
    EXPECT_EQ(array->elementType, tag);
    EXPECT_EQ(array->numericBound, type >= 3 ? 0.0 : 2147483552.0);
    EXPECT_EQ(array->flags, 0u);
    EXPECT_EQ(array->refCount, 1);
    EXPECT_EQ(array->rank, 2);
    EXPECT_EQ(array->elementCount, 6);
    EXPECT_EQ(array->dimensions[0], 2);
    EXPECT_EQ(array->dimensions[1], 3);
    EXPECT_GE(blockUsableBytes(array->data), 6 * kElementWidths[tag]);
  }
}

TEST(NumericArrays, BadElementTypesRanksAndExtentsYieldNull) {
  const mint extents[] = {2, 3};
  for (const mint tag : {INT32_MIN, -1, 0, 13, INT32_MAX})
    EXPECT_EQ(Runtime_CreateNumericArray(tag, 2, extents), nullptr);
  for (const mint rank : {INT32_MIN, -1, 0}) EXPECT_EQ(Runtime_CreateNumericArray(1, rank, extents), nullptr);
  for (const std::vector<mint> &bad :
       std::vector<std::vector<mint>>{{-1}, {2, -3}, {0, 3}, {2, 0, 3}, {0, 0}, {-1, 0}})
    EXPECT_EQ(newArray(9, bad), nullptr);
}

TEST(NumericArrays, LastExtentMayBeZeroAndLeavesNoData) {
  for (const std::vector<mint> &extents : std::vector<std::vector<mint>>{{0}, {3, 0}}) {
    const Array array = newArray(12, extents);
    ASSERT_NE(array, nullptr);
    EXPECT_EQ(array->elementCount, 0);
    EXPECT_EQ(array->data, nullptr);
  }
}

TEST(NumericArrays, SizesBeyondTheirWidthYieldNull) {
  EXPECT_EQ(newArray(1, {65536, 32768}), nullptr);       // 2^31 elements
  EXPECT_EQ(newArray(12, {16384, 16384}), nullptr);      // 2^32 bytes
  EXPECT_EQ(newArray(7, {1 << 20, 1 << 9, 1}), nullptr); // 2^32 bytes
}

TEST(NumericArrays, GivenExtentsAndDataAreAdopted) {
  auto *extents = static_cast<mint *>(allocate(2 * sizeof(mint), 0, kFatal));
  extents[0] = 0, extents[1] = 5; // not looked at one by one
  MNumericArray *array = MNumericArray_newWithData(3, 2, extents, nullptr, 0);
  ASSERT_NE(array, nullptr);
  EXPECT_EQ(array->dimensions, extents);
  EXPECT_EQ(array->elementCount, 0);
  MNumericArray_delete(array);

  void *data = allocate(6, 0, kFatal);
  const mint three = 3;
  array = MNumericArray_newWithData(4, 1, &three, data, 1);
  ASSERT_NE(array, nullptr);
  EXPECT_EQ(array->data, data);
  EXPECT_NE(array->dimensions, &three);
  MNumericArray_delete(array);
}

// Whatever becomes of their block, the elements are there and nothing is lost.
TEST(NumericArrays, GivenRealsKeepTheirValuesAndBelongToTheArray) {
  const uint32_t used = usedBytesOfThisThread();
  for (int turn = 0; turn < 8; ++turn) { // blocks with and without an address that 16 divides
    auto *data = static_cast<double *>(allocate(5 * sizeof(double), 1, kFatal));
    std::iota(data, data + 5, 0.5);
    void *spacer = allocate(uint32_t(8 * (turn + 1)), 0, kFatal);
    const mint five = 5;
    const Array array(MNumericArray_newWithData(10, 1, &five, data, 1));
    torvane::free(spacer);
    ASSERT_NE(array, nullptr);
    EXPECT_EQ(valuesOf<double>(array.get()), (std::vector<double>{0.5, 1.5, 2.5, 3.5, 4.5}));
  }
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST(NumericArrays, GivenDataOfAnEmptyArrayIsFreed) {
  const uint32_t used = usedBytesOfThisThread();
  const mint zero = 0;
  MNumericArray *array = MNumericArray_newWithData(10, 1, &zero, allocate(8, 1, kFatal), 1);
  ASSERT_NE(array, nullptr);
  EXPECT_EQ(array->data, nullptr);
  MNumericArray_delete(array);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST(NumericArrays, RefusedDataAndExtentsStayTheCallers) {
  const uint32_t used = usedBytesOfThisThread();
  auto *extents = static_cast<mint *>(allocate(sizeof(mint), 0, kFatal));
  void *data = allocate(8, 0, kFatal);
  for (const mint extent : {-1, INT32_MAX}) { // of Real64: too large
    *extents = extent;
    EXPECT_EQ(MNumericArray_newWithData(10, 1, extents, data, 0), nullptr);
  }
  torvane::free(extents);
  torvane::free(data);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST(NumericArrays, CloneHasItsOwnBlocksAndTheSameBits) {
  const std::vector<uint64_t> patterns = {0x7FF0000000000001u, 0x8000000000000000u, 0xFFF8123400000000u};
  const Array array = arrayOf(10, patterns);
  array->refCount = 7;
  const Array copy(MNumericArray_clone(array.get()));
  ASSERT_NE(copy, nullptr);
  EXPECT_NE(copy->data, array->data);
  EXPECT_NE(copy->dimensions, array->dimensions);
  EXPECT_EQ(valuesOf<uint64_t>(copy.get()), patterns);
  EXPECT_EQ(copy->refCount, 1);
  EXPECT_EQ(copy->type, TORVANE_TYPE_REAL);
}

TEST(NumericArrays, CloneTakesAnyShapeThatThereIs) {
  for (const std::vector<mint> &extents : std::vector<std::vector<mint>>{{0, 5}, {2, 0, 3}, {0}, {3, 0}}) {
    const Array array = adoptedArray(10, extents);
    ASSERT_NE(array, nullptr);
    const Array copy(MNumericArray_clone(array.get()));
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(extentsOf(copy.get()), extents);
    EXPECT_NE(copy->dimensions, array->dimensions);
    EXPECT_EQ(copy->elementCount, 0);
    EXPECT_EQ(copy->data, nullptr);
  }
}

TEST(NumericArrays, CloneRefusesExtentsThatWereResetToAnotherCount) {
  const uint32_t used = usedBytesOfThisThread();
  for (const std::vector<mint> &extents : std::vector<std::vector<mint>>{{2}, {5, 3}, {65536, 65536}, {-1}})
    EXPECT_EQ(MNumericArray_clone(resetTo(arrayOf<int16_t>(3, {1, 2, 3, 4}), extents).get()), nullptr);
  const Array square(MNumericArray_clone(resetTo(arrayOf<int16_t>(3, {1, 2, 3, 4}), {2, 2}).get()));
  ASSERT_NE(square, nullptr);
  EXPECT_EQ(valuesOf<int16_t>(square.get()), (std::vector<int16_t>{1, 2, 3, 4}));
  EXPECT_EQ(extentsOf(square.get()), (std::vector<mint>{2, 2}));
  EXPECT_EQ(MNumericArray_clone(resetTo(arrayOf<int16_t>(3, {1, 2}), {}).get()), nullptr) << "rank 0";
  EXPECT_EQ(usedBytesOfThisThread(), used + blockUsableBytes(square.get()) + blockUsableBytes(square->data) +
                                         blockUsableBytes(square->dimensions));
}

TEST(NumericArrays, DeleteTakesNullAndNullIsTheNullArray) {
  MNumericArray_delete(nullptr);
  EXPECT_EQ(mnumericarray_null(), nullptr);
}

TEST(NumericArrays, ByteCountsAreElementsTimesWidthAndTheRecord) {
  for (mint tag = 1; tag <= 12; ++tag) {
    const Array array = newArray(tag, {7});
    EXPECT_EQ(MNumericArray_byteCount(array.get()), 7 * kElementWidths[tag]);
    EXPECT_EQ(MNumericArray_totalByteCount(array.get()), 7 * kElementWidths[tag] + sizeof(MNumericArray));
  }
  if (sizeof(void *) == 4) EXPECT_EQ(sizeof(MNumericArray), 48u);
}

TEST(NumericArrays, StridedCopiesMoveElementsOfEveryWidth) {
  for (const mint tag : {1, 3, 5, 7, 12}) {
    const uint32_t width = kElementWidths[tag];
    const Array source = newArray(tag, {10}), target = newArray(tag, {10});
    auto *from = static_cast<unsigned char *>(source->data), *to = static_cast<unsigned char *>(target->data);
    for (uint32_t k = 0; k < 10 * width; ++k) from[k] = static_cast<unsigned char>(k), to[k] = 0xEE;
    MNumericArray_copyStrided(target.get(), 1, 2, source.get(), 9, -3, 4);
    for (mint i = 0; i < 10; ++i)
      for (uint32_t k = 0; k < width; ++k) {
        const bool isHit = i % 2 == 1 && i < 9;
        const auto expected =
            isHit ? static_cast<unsigned char>(uint32_t(9 - 3 * (i / 2)) * width + k) : 0xEE;
        ASSERT_EQ(to[uint32_t(i) * width + k], expected) << tag << " " << i;
      }
  }
}

TEST(NumericArrays, BulkCopiesMoveRunsAndNothingForNoElements) {
  const Array source = arrayOf<int16_t>(3, {1, 2, 3, 4, 5}), target = arrayOf<int16_t>(3, {0, 0, 0, 0, 0});
  MNumericArray_copyStrided(target.get(), 1, 1, source.get(), 2, 1, 3);
  EXPECT_EQ(valuesOf<int16_t>(target.get()), (std::vector<int16_t>{0, 3, 4, 5, 0}));
  MNumericArray_copyElements(target.get(), 0, source.get(), 0, 2);
  EXPECT_EQ(valuesOf<int16_t>(target.get()), (std::vector<int16_t>{1, 2, 4, 5, 0}));
  for (const mint count : {0, -1}) {
    MNumericArray_copyElements(target.get(), 0, source.get(), 3, count);
    MNumericArray_copyStrided(target.get(), 0, 2, source.get(), 3, 1, count);
  }
  EXPECT_EQ(valuesOf<int16_t>(target.get()), (std::vector<int16_t>{1, 2, 4, 5, 0}));
}

TEST(NumericArrays, ResetDimensionsReplacesTheExtentsAndNothingElse) {
  const Array array = newArray(9, {2, 6});
  void *data = array->data;
  const mint larger[] = {3, 2, 2}, smaller[] = {12};
  EXPECT_EQ(MNumericArray_resetDimensions(array.get(), 3, larger), 0);
  EXPECT_EQ(array->rank, 3);
  EXPECT_TRUE(std::equal(larger, larger + 3, array->dimensions));
  EXPECT_EQ(MNumericArray_resetDimensions(array.get(), 1, smaller), 0);
  EXPECT_EQ(array->rank, 1);
  EXPECT_EQ(array->dimensions[0], 12);
  EXPECT_EQ(array->elementCount, 12);
  EXPECT_EQ(MNumericArray_resetDimensions(array.get(), 0, nullptr), 0);
  EXPECT_EQ(array->rank, 0);
  EXPECT_EQ(array->dimensions, nullptr);
  EXPECT_EQ(array->elementCount, 1);
  EXPECT_EQ(MNumericArray_resetDimensions(array.get(), 2, larger), 0);
  EXPECT_EQ(array->dimensions[1], 2);
  EXPECT_EQ(MNumericArray_resetDimensions(array.get(), -1, larger), 401);
  EXPECT_EQ(array->data, data);
}

TEST(NumericArrays, ResetDimensionsTakesTheArraysOwn) {
  const Array array = newArray(9, {2, 6, 5});
  EXPECT_EQ(MNumericArray_resetDimensions(array.get(), 2, array->dimensions + 1), 0);
  EXPECT_EQ(array->dimensions[0], 6);
  EXPECT_EQ(array->dimensions[1], 5);
}

// Requests of the process heap are rare: sizes of their own reach it each time.
TEST(NumericArrayMemory, EveryFailedRequestYieldsNullAndNothingIsLost) {
  FailingHeap heap;
  const uint32_t used = usedBytesOfThisThread();
  std::vector<mint> extents(20000, 1);
  extents.back() = 300000;
  const int64_t failures = failEveryRequest(heap, [&] {
    const Array array = newArray(10, extents);
    EXPECT_EQ(array == nullptr, heap.failed());
    EXPECT_EQ(MNumericArray_resetDimensions(array ? array.get() : newArray(1, {1}).get(), 1, extents.data()),
              0);
  });
  EXPECT_GE(failures, 2);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST(NumericArrayMemory, GrowingTheExtentsFailsWithoutAChange) {
  const Array array = newArray(1, {4});
  const std::vector<mint> extents(3000000, 1);
  FailingHeap heap;
  heap.failFrom(1);
  EXPECT_EQ(MNumericArray_resetDimensions(array.get(), 3000000, extents.data()), 403);
  EXPECT_TRUE(heap.failed());
  heap.succeed();
  EXPECT_EQ(array->rank, 1);
  EXPECT_EQ(array->dimensions[0], 4);
}

} // namespace

} // namespace torvane::test

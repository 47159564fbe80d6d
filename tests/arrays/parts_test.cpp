// Parts of numeric arrays of every element type against index arithmetic, aliases, what is refused, and
// memory that runs out.
#include "arrays/numeric_array.h"
#include "runtime/element_types.h"
#include "runtime/memory.h"
#include "support/failing_heap.h"
#include "tensor/parts_model.h"

#include <gtest/gtest.h>

using namespace torvane;
using namespace torvane::test;

namespace {

struct ArrayDeleter {
  void operator()(MNumericArray *array) const { MNumericArray_delete(array); }
};
using Array = std::unique_ptr<MNumericArray, ArrayDeleter>;

unsigned char *bytesOf(const MNumericArray *array) { return static_cast<unsigned char *>(array->data); }
size_t widthOf(const MNumericArray *array) { return kElementWidths[array->elementType]; }
Extents extentsOf(const MNumericArray *array) {
  return Extents(array->dimensions, array->dimensions + array->rank);
}

// Bytes at random, so that no two elements are alike but by chance, NaNs and all.
Array randomArray(mint elementType, const Extents &extents, std::mt19937 &random) {
  Array array(Runtime_CreateNumericArray(elementType, mint(extents.size()), extents.data()));
  for (size_t i = 0; i < MNumericArray_byteCount(array.get()); ++i)
    bytesOf(array.get())[i] = static_cast<unsigned char>(random());
  return array;
}

bool isArray(const Extents &extents) {
  return !extents.empty() && std::find(extents.begin(), extents.end() - 1, 0) == extents.end() - 1;
}

void expectPart(const MNumericArray *part, const MNumericArray *source, const Selection &model) {
  ASSERT_EQ(part->elementType, source->elementType);
  ASSERT_EQ(part->type, source->type);
  ASSERT_EQ(part->refCount, 1);
  ASSERT_EQ(extentsOf(part), model.extents);
  ASSERT_EQ(size_t(part->elementCount), model.places.size());
  ASSERT_EQ(part->data == nullptr, model.places.empty());
  const size_t width = widthOf(source);
  for (size_t i = 0; i < model.places.size(); ++i)
    ASSERT_EQ(memcmp(bytesOf(part) + i * width, bytesOf(source) + model.places[i] * width, width), 0) << i;
}

class PartsOfArrays : public testing::TestWithParam<mint> {};

TEST_P(PartsOfArrays, AreWhatIndexArithmeticSays) {
  const mint elementType = GetParam();
  std::mt19937 random(uint32_t(500 + elementType));
  DrawnSelectors drawn(random);
  for (mint i = 0; i < 1200 && !HasFatalFailure(); ++i) {
    const Extents shape = drawn.drawShape(1 + i % 6);
    const Selectors selectors = drawn.drawFor(shape);
    const Selection model(shape, selectors);
    const Array source = randomArray(elementType, shape, random);
    MNumericArray *slot = nullptr;
    ASSERT_EQ(selectors.get(nullptr, &slot, source.get(), selectors.rankOf(source->rank)),
              !isArray(model.extents));
    ASSERT_EQ(slot != nullptr, isArray(model.extents));
    if (slot == nullptr) continue;
    const Array part(slot);
    expectPart(slot, source.get(), model);
  }
}

INSTANTIATE_TEST_SUITE_P(OfElementType, PartsOfArrays, testing::Range(1, 13));

Array bytes(const Extents &extents) {
  Array array(
      Runtime_CreateNumericArray(TORVANE_ELEMENT_UNSIGNED_INTEGER8, mint(extents.size()), extents.data()));
  for (mint i = 0; i < array->elementCount; ++i) bytesOf(array.get())[i] = static_cast<unsigned char>(i + 1);
  return array;
}

std::vector<int> valuesOf(const MNumericArray *array) {
  return std::vector<int>(bytesOf(array), bytesOf(array) + array->elementCount);
}
using Values = std::vector<int>;

TEST(PartOfAnArray, HasBlocksOfAnyNumberOfBytes) {
  for (const mint length : {3, 5, 6, 7, 9, 13, 21, 65}) {
    const Array source = bytes({3, length});
    MNumericArray *slot = nullptr;
    ASSERT_EQ((Selectors{span({3, 1, -2})}.get(nullptr, &slot, source.get(), 2)), 0);
    const Array part(slot);
    Values expected = valuesOf(source.get());
    std::rotate(expected.begin(), expected.begin() + 2 * length, expected.end());
    expected.resize(size_t(2 * length));
    EXPECT_EQ(valuesOf(slot), expected) << length;
  }
}

TEST(PartOfAnArray, DoesNotExistAtRankZeroNorWithAnEmptyOuterExtent) {
  const Array source = bytes({2, 3});
  MNumericArray *slot = nullptr;
  EXPECT_EQ((Selectors{position(1), position(1)}.get(nullptr, &slot, source.get(), 0)), 1);
  EXPECT_EQ((Selectors{list({})}.get(nullptr, &slot, source.get(), 2)), 1);
  EXPECT_EQ(slot, nullptr);
  ASSERT_EQ((Selectors{all(), list({})}.get(nullptr, &slot, source.get(), 2)), 0);
  const Array owned(slot);
  EXPECT_EQ(extentsOf(slot), Extents({2, 0}));
}

TEST(PartOfAnArray, IsRefusedForSelectorsThatDoNotFit) {
  const Array source = bytes({2, 3});
  MNumericArray *slot = source.get();
  EXPECT_EQ((Selectors{position(3)}.get(nullptr, &slot, source.get(), 1)), 1);
  EXPECT_EQ((Selectors{span({3})}.get(nullptr, &slot, source.get(), 2)), 1);
  EXPECT_EQ((Selectors{all(), all(), all()}.get(nullptr, &slot, source.get(), 2)), 1);
  EXPECT_EQ((Selectors{position(1)}.get(nullptr, &slot, source.get(), 2)), 1);
  EXPECT_EQ((Selectors{unknown(5)}.get(nullptr, &slot, source.get(), 2)), 1);
  EXPECT_EQ(MNumericArray_getParts(nullptr, &slot, source.get(), 2, -1, nullptr, nullptr), 1);
  EXPECT_EQ(slot, source.get());
}

TEST(PartOfAnArray, TakesTheResultArrayWhateverItHeld) {
  const Array source = bytes({2, 3});
  const mint two[] = {2, 2};
  MNumericArray *const result = Runtime_CreateNumericArray(TORVANE_ELEMENT_COMPLEX_REAL64, 2, two);
  const Array owned(result);
  result->refCount = 5;
  MNumericArray *slot = nullptr;
  ASSERT_EQ((Selectors{position(2)}.get(result, &slot, source.get(), 1)), 0);
  EXPECT_EQ(slot, result);
  EXPECT_EQ(result->elementType, TORVANE_ELEMENT_UNSIGNED_INTEGER8);
  EXPECT_EQ(result->type, 0);
  EXPECT_EQ(result->refCount, 5);
  EXPECT_EQ(valuesOf(result), Values({4, 5, 6}));
  const void *payload = result->data;
  ASSERT_EQ((Selectors{position(1)}.get(result, &slot, source.get(), 1)), 0);
  EXPECT_EQ(result->data, payload);
  EXPECT_EQ(valuesOf(result), Values({1, 2, 3}));
}

TEST(PartOfAnArray, MakesAPayloadForAResultArrayWhoseExtentsWereReset) {
  const Array source = bytes({2, 100}), result = bytes({3});
  const mint hundred = 100;
  ASSERT_EQ(MNumericArray_resetDimensions(result.get(), 1, &hundred), 0);
  MNumericArray *slot = nullptr;
  ASSERT_EQ((Selectors{position(1)}.get(result.get(), &slot, source.get(), 1)), 0);
  EXPECT_EQ(slot, result.get());
  EXPECT_EQ(slot->elementCount, 100);
  EXPECT_EQ(valuesOf(slot).back(), 100);
  EXPECT_GE(blockUsableBytes(slot->data), 100u);
}

TEST(PartOfAnArray, MayTakeThePlaceOfItsSource) {
  const Array source = bytes({2, 3});
  MNumericArray *slot = nullptr;
  ASSERT_EQ((Selectors{span({2, 1}), span({3, 1})}.get(source.get(), &slot, source.get(), 2)), 0);
  EXPECT_EQ(slot, source.get());
  EXPECT_EQ(valuesOf(slot), Values({6, 5, 4, 3, 2, 1}));
  ASSERT_EQ((Selectors{position(2)}.get(source.get(), &slot, source.get(), 1)), 0);
  EXPECT_EQ(valuesOf(slot), Values({3, 2, 1}));
}

// The payload is the one block that a thread's heap does not keep.
TEST(PartOfAnArray, LeavesEverythingAsItWasWhenMemoryIsShort) {
  const Array source = bytes({2, 3000000}), result = bytes({2});
  const Selectors row{position(2)};
  const uint32_t before = usedBytesOfThisThread();
  FailingHeap heap;
  const int64_t failures = failEveryRequest(heap, [&] {
    MNumericArray *slot = nullptr;
    const mint status = row.get(nullptr, &slot, source.get(), 1);
    EXPECT_EQ(status, heap.failed() ? 1 : 0);
    EXPECT_EQ(slot == nullptr, heap.failed());
    MNumericArray_delete(slot);
    EXPECT_EQ(usedBytesOfThisThread(), before);
  });
  EXPECT_EQ(failures, 1);
  MNumericArray *slot = nullptr;
  heap.failFrom(1);
  EXPECT_EQ(row.get(result.get(), &slot, source.get(), 1), 1);
  heap.succeed();
  EXPECT_EQ(valuesOf(result.get()), Values({1, 2}));
  EXPECT_EQ(slot, nullptr);
}

} // namespace

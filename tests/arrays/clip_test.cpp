#include "arrays.h"

#include "arrays/clip.h"
#include "runtime/memory.h"
#include "support/failing_heap.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace torvane::test {

namespace {

// A few values about two bounds, through the rule itself.
template <class T> void clipsByItsOrder(mint tag) {
  using Limits = std::numeric_limits<T>;
  std::vector<T> x;
  for (const T v : {Limits::lowest(), T(0), T(1), T(9), T(10), T(11), T(99), T(100), T(101), Limits::max(),
                    T(T(0) - T(1))})
    x.insert(x.end(), 7, v);
  const Array source = arrayOf(tag, x), bounds = arrayOf<T>(tag, {10, 100}),
              replacements = arrayOf<T>(tag, {77, 3});
  MNumericArray *result = nullptr;
  ASSERT_EQ(MNumericArray_clip(&result, source.get(), bounds.get(), replacements.get()), 0);
  const Array owner(result);
  EXPECT_EQ(result->elementType, tag);
  const std::vector<T> clipped = valuesOf<T>(result);
  for (size_t i = 0; i < x.size(); ++i)
    EXPECT_EQ(clipped[i], x[i] < 10 ? T(77) : x[i] > 100 ? T(3) : x[i]) << tag << " " << i;
}

TEST(Clip, ReplacesWhatIsOutOfBoundsInTheOrderOfTheElementType) {
  clipsByItsOrder<int8_t>(1);
  clipsByItsOrder<uint8_t>(2);
  clipsByItsOrder<int16_t>(3);
  clipsByItsOrder<uint16_t>(4);
  clipsByItsOrder<int32_t>(5);
  clipsByItsOrder<uint32_t>(6);
  clipsByItsOrder<int64_t>(7);
  clipsByItsOrder<uint64_t>(8);
  clipsByItsOrder<float>(9);
  clipsByItsOrder<double>(10);
}

TEST(Clip, LeavesNaNsAndTakesInfinities) {
  const Array array = arrayOf<double>(10, {NAN, INFINITY, -INFINITY, 0.5}),
              bounds = arrayOf<double>(10, {0, 1});
  MNumericArray *result = array.get(); // in place
  ASSERT_EQ(MNumericArray_clip(&result, array.get(), bounds.get(), bounds.get()), 0);
  EXPECT_EQ(result, array.get());
  const std::vector<double> x = valuesOf<double>(result);
  EXPECT_TRUE(std::isnan(x[0]));
  EXPECT_EQ((std::vector<double>(x.begin() + 1, x.end())), (std::vector<double>{1, 0, 0.5}));
}

TEST(Clip, RefusesWhatDoesNotMatchAndWritesNothing) {
  const Array source = arrayOf<int32_t>(5, {1, 2, 3}), bounds = arrayOf<int32_t>(5, {2, 2});
  const Array unsignedPair = arrayOf<uint32_t>(6, {2, 2}), three = arrayOf<int32_t>(5, {1, 2, 3});
  const Array complexes = arrayOf<double>(12, {1, 2, 3, 4, 5, 6}), reals = arrayOf<float>(9, {1, 2, 3});
  const Array matrix = newArray(5, {1, 3}), four = arrayOf<int32_t>(5, {5, 5, 5, 5});
  const auto clip = [](MNumericArray *slot, const Array &s, const Array &b, const Array &r) {
    MNumericArray *result = slot;
    const mint status = MNumericArray_clip(&result, s.get(), b.get(), r.get());
    EXPECT_EQ(result, slot);
    return status;
  };
  const Array none;
  EXPECT_EQ(clip(nullptr, none, bounds, bounds), 1300);
  EXPECT_EQ(clip(nullptr, source, none, bounds), 1300);
  EXPECT_EQ(clip(nullptr, source, bounds, none), 1300);
  EXPECT_EQ(MNumericArray_clip(nullptr, source.get(), bounds.get(), bounds.get()), 1300);
  EXPECT_EQ(clip(nullptr, complexes, complexes, complexes), 1301);
  EXPECT_EQ(clip(nullptr, source, unsignedPair, bounds), 1301);
  EXPECT_EQ(clip(nullptr, source, bounds, unsignedPair), 1301);
  EXPECT_EQ(clip(nullptr, source, three, bounds), 1303);
  EXPECT_EQ(clip(nullptr, source, bounds, three), 1303);
  EXPECT_EQ(clip(reals.get(), source, bounds, bounds), 1301);
  EXPECT_EQ(clip(matrix.get(), source, bounds, bounds), 1302);
  EXPECT_EQ(clip(four.get(), source, bounds, bounds), 1303);
  EXPECT_EQ(valuesOf<int32_t>(four.get()), (std::vector<int32_t>{5, 5, 5, 5}));
  EXPECT_EQ(valuesOf<float>(reals.get()), (std::vector<float>{1, 2, 3}));
}

// Extents that were reset say nothing about a payload: too small a destination, and too small a source.
TEST(Clip, RefusesADestinationOfOtherExtentsThanElements) {
  const Array bounds = arrayOf<int32_t>(5, {2, 2}), five = arrayOf<int32_t>(5, {1, 2, 3, 4, 5});
  const Array small = resetTo(arrayOf<int32_t>(5, {7, 7}), {5});
  MNumericArray *slot = small.get(), *made = nullptr;
  EXPECT_EQ(MNumericArray_clip(&slot, five.get(), bounds.get(), bounds.get()), 1303);
  slot = five.get();
  EXPECT_EQ(MNumericArray_clip(&slot, small.get(), bounds.get(), bounds.get()), 1303);
  EXPECT_EQ(MNumericArray_clip(&made, small.get(), bounds.get(), bounds.get()), 403);
  EXPECT_EQ(made, nullptr);
  EXPECT_EQ(valuesOf<int32_t>(small.get()), (std::vector<int32_t>{7, 7}));
  EXPECT_EQ(valuesOf<int32_t>(five.get()), (std::vector<int32_t>{1, 2, 3, 4, 5}));
}

TEST(Clip, TakesBoundsThatAreTheWrongWayRoundAsTheyAre) {
  const Array source = arrayOf<double>(10, {50, 5, 200}), bounds = arrayOf<double>(10, {100, 10}),
              replacements = arrayOf<double>(10, {1, 2});
  MNumericArray *result = nullptr;
  ASSERT_EQ(MNumericArray_clip(&result, source.get(), bounds.get(), replacements.get()), 0);
  const Array owner(result);
  EXPECT_EQ(valuesOf<double>(result), (std::vector<double>{1, 1, 2}));
}

TEST(Clip, OfNoElementsIsANewArrayOfTheShape) {
  const Array bounds = arrayOf<int32_t>(5, {2, 2}), empty = newArray(5, {3, 0}),
              adopted = adoptedArray(5, {0, 5});
  for (const Array *source : {&empty, &adopted}) {
    MNumericArray *result = nullptr;
    ASSERT_EQ(MNumericArray_clip(&result, source->get(), bounds.get(), bounds.get()), 0);
    const Array owner(result);
    EXPECT_NE(result, source->get());
    EXPECT_EQ(extentsOf(result), extentsOf(source->get()));
    EXPECT_EQ(result->elementType, 5);
    EXPECT_EQ(result->elementCount, 0);
  }
}

TEST(Clip, EveryFailedRequestGives403) {
  const Array source = newArray(7, {300000}), bounds = arrayOf<int64_t>(7, {0, 1});
  std::memset(source->data, 0, 300000 * 8);
  FailingHeap heap;
  const uint32_t used = usedBytesOfThisThread();
  const int64_t failures = failEveryRequest(heap, [&] {
    MNumericArray *result = nullptr;
    const mint status = MNumericArray_clip(&result, source.get(), bounds.get(), bounds.get());
    EXPECT_EQ(status, heap.failed() ? 403 : 0);
    EXPECT_EQ(result == nullptr, heap.failed());
    MNumericArray_delete(result);
  });
  EXPECT_GE(failures, 1);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

} // namespace

} // namespace torvane::test

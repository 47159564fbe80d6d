// Sorted tensors and medians against the sort that defines the order; slots, aliasing, failures.
#include "algorithms/registry.h"
#include "algorithms/sort_values.h"
#include "runtime/memory.h"
#include "sort_model.h"
#include "support/failing_heap.h"

#include <gtest/gtest.h>

#include <torvane/sorting.h>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mreal kNaN = std::numeric_limits<mreal>::quiet_NaN();

template <class Element> std::vector<Element> modelSorted(const std::vector<Element> &data, mint length) {
  SortModel<Element> model(data, length);
  model.sort();
  return gathered(model);
}

enum class Slot { empty, used, argument };

template <class Element> void expectSorted(const std::vector<Element> &data, mint length, Slot where) {
  const mint rows = static_cast<mint>(data.size()) / length;
  const Tensor tensor = tensorOf(extentsOfRows(rows, length), data);
  Tensor used = where == Slot::used ? newTensor(TORVANE_TYPE_INTEGER, {3, 3}) : nullptr;
  MTensor *slot = where == Slot::argument ? tensor.get() : used.get();
  MTensor *const before = slot;
  ASSERT_EQ(Runtime_MTensor_Sort(&slot, tensor.get()), 0);
  const bool isAnew = data.size() < 2 && where == Slot::used; // the old tensor is still the caller's
  EXPECT_EQ(slot == before, before != nullptr && !isAnew);
  EXPECT_TRUE(isValidTensor(slot));
  EXPECT_EQ(extentsOf(slot), extentsOfRows(rows, length));
  const auto *first = static_cast<const Element *>(slot->data);
  EXPECT_TRUE(
      haveSameBits(std::vector<Element>(first, first + slot->elementCount), modelSorted(data, length)))
      << rows << " rows of " << length;
  if (where != Slot::argument) {
    EXPECT_TRUE(haveSameBits(valuesOf<Element>(tensor), data));
  }
  if (slot != before) MTensor_delete(slot);
}

template <class Element> void expectSortedEverywhere(const std::vector<Values> &kinds, unsigned seed) {
  Generator generator(seed);
  for (const Values values : kinds)
    for (const mint length : {1, 3})
      for (const mint rows : {0, 1, 2, 3, 5, 10, 49, 100, 255, 256, 300, 2999, 5000})
        for (const Slot slot : {Slot::empty, Slot::used, Slot::argument})
          expectSorted(drawRows<Element>(generator, values, rows, length), length, slot);
}

const std::vector<Values> kAllNumbers(std::begin(kNumbers), std::end(kNumbers));

TEST(Sort, PutsIntegersInOrderInEverySlot) { expectSortedEverywhere<mint>(kAllNumbers, 1); }
TEST(Sort, PutsRealsInOrderInEverySlot) { expectSortedEverywhere<mreal>(kAllNumbers, 2); }
TEST(Sort, PutsComplexNumbersInOrderInEverySlot) { expectSortedEverywhere<mcomplex>(kAllNumbers, 3); }
TEST(Sort, LeavesNaNsWhereTheOrderHasThem) {
  expectSortedEverywhere<mreal>({Values::withNaN}, 4);
  expectSortedEverywhere<mcomplex>({Values::withNaN}, 5);
}

TEST(Sort, OfManyValuesIsInOrder) {
  Generator generator(6);
  for (const Values values : kNumbers) {
    expectSorted(drawRows<mint>(generator, values, 70000, 1), 1, Slot::argument);
    expectSorted(drawRows<mint>(generator, values, 70000, 1), 1, Slot::empty);
    expectSorted(drawRows<mreal>(generator, values, 70000, 1), 1, Slot::argument);
    expectSorted(drawRows<mreal>(generator, values, 70000, 1), 1, Slot::empty);
  }
}

// Around the number of distinct values up to which they are counted.
TEST(Sort, OfAnyNumberOfDistinctValuesIsInOrder) {
  Generator generator(10);
  for (const mint distinct : {1, 2, 127, 128, 129, 300}) {
    std::vector<mint> integers;
    std::vector<mreal> reals;
    for (mint k = 0; k < 6000; ++k) {
      integers.push_back(static_cast<mint>(generator() % static_cast<unsigned>(distinct)) * 7000000 -
                         900000000);
      reals.push_back(integers.back() * 0.1);
    }
    for (const Slot slot : {Slot::empty, Slot::argument}) {
      expectSorted(integers, 1, slot);
      expectSorted(reals, 1, slot);
    }
  }
}

TEST(Sort, KeepsTheZerosOfEitherSignInTheirOrder) {
  std::vector<mreal> zeros(1000, 0.0);
  for (size_t k = 0; k < zeros.size(); k += 3) zeros[k] = -0.0;
  zeros[500] = -5;
  expectSorted(zeros, 1, Slot::argument);
}

TEST(Sort, OfConjugatesPutsTheNegativeImaginaryPartFirst) {
  expectSorted<mcomplex>({{1, 2}, {1, -2}, {1, 1}}, 1, Slot::empty);
  EXPECT_TRUE(haveSameBits(modelSorted<mcomplex>({{1, 2}, {1, -2}, {1, 1}}, 1),
                           std::vector<mcomplex>{{1, 1}, {1, -2}, {1, 2}}));
}

TEST(Sort, ByValueStaysAwayFromWhatItCannotTellApart) {
  const mreal withNaN[] = {2, kNaN, 1}, withZero[] = {1, -0.0, 0.0};
  mreal to[] = {7, 7, 7};
  EXPECT_FALSE(sortValues(withNaN, to, 3));
  EXPECT_FALSE(sortValues(withZero, to, 3));
  EXPECT_EQ(to[0], 7);
}

TEST(Sort, OfAScalarIsACopy) {
  const Tensor scalar = newTensor(TORVANE_TYPE_REAL, {});
  elements<mreal>(scalar)[0] = 4.5;
  MTensor *slot = nullptr;
  ASSERT_EQ(Runtime_MTensor_Sort(&slot, scalar.get()), 0);
  const Tensor result(slot);
  EXPECT_EQ(result->rank, 0);
  EXPECT_EQ(elements<mreal>(result)[0], 4.5);
}

TEST(Sort, OfHigherRanksMovesWholeParts) {
  const Tensor tensor = tensorOf<mint>({2, 2, 2}, {5, 6, 7, 8, 1, 2, 3, 4});
  MTensor *argument = tensor.get(), *slot = nullptr;
  void *arguments[] = {&argument};
  ASSERT_EQ(handleSort(nullptr, 1, arguments, &slot), 0);
  const Tensor result(slot);
  EXPECT_EQ(extentsOf(result), (Extents{2, 2, 2}));
  EXPECT_EQ(valuesOf<mint>(result), (std::vector<mint>{1, 2, 3, 4, 5, 6, 7, 8}));
}

// Memory that fails at any one request: the result is right or there is none. Payloads are above 1 MiB, so
// that the thread heap keeps none of the blocks.
template <class Element> void expectSurvivesFailures(Values values, mint length, bool inPlace) {
  Generator generator(7);
  const mint rows = 300000;
  const std::vector<Element> data = drawRows<Element>(generator, values, rows, length);
  const std::vector<Element> expected = modelSorted(data, length);
  const Tensor tensor = tensorOf(extentsOfRows(rows, length), data);
  const uint32_t used = usedBytesOfThisThread();
  FailingHeap heap;
  bool hasFailed = false;
  failEveryRequest(heap, [&] {
    std::copy(data.begin(), data.end(), elements<Element>(tensor));
    MTensor *slot = inPlace ? tensor.get() : nullptr;
    const mint status = Runtime_MTensor_Sort(&slot, tensor.get());
    ASSERT_TRUE(status == 0 || (status == 403 && heap.failed()));
    hasFailed = hasFailed || status == 403;
    ASSERT_TRUE(status == 0 || slot == (inPlace ? tensor.get() : nullptr));
    if (slot != nullptr) {
      const auto &wanted = status == 0 ? expected : data;
      EXPECT_EQ(std::memcmp(slot->data, wanted.data(), wanted.size() * sizeof(Element)), 0);
    }
    if (!inPlace) MTensor_delete(slot);
    EXPECT_EQ(usedBytesOfThisThread(), used);
  });
  EXPECT_TRUE(hasFailed || inPlace);
}

TEST(Sort, WithoutMemoryFailsCleanlyOrFindsAnotherWay) {
  expectSurvivesFailures<mint>(Values::wide, 1, false);
  expectSurvivesFailures<mint>(Values::wide, 1, true);
  expectSurvivesFailures<mreal>(Values::wide, 1, false);
  expectSurvivesFailures<mreal>(Values::withNaN, 1, true);
  expectSurvivesFailures<mcomplex>(Values::few, 1, false);
  expectSurvivesFailures<mint>(Values::few, 2, true);
}

template <class Element> Element median(const std::vector<Element> &data) {
  const Tensor tensor = tensorOf({static_cast<mint>(data.size())}, data);
  MTensor *argument = tensor.get();
  void *arguments[] = {&argument};
  Element result = {};
  EXPECT_EQ(handleMedian(nullptr, 1, arguments, &result), 0);
  EXPECT_TRUE(haveSameBits(valuesOf<Element>(tensor), data));
  return result;
}

TEST(Median, OfAVectorIsTheMiddleOrHalfwayBetweenTheMiddleOnes) {
  EXPECT_EQ(median<mreal>({3, 1}), 2);
  EXPECT_EQ(median<mreal>({1, 2, 3}), 2);
  EXPECT_EQ(median<mreal>({7}), 7);
  EXPECT_EQ(median<mreal>({4, 1, 3, 2}), 2.5);
  const mcomplex odd = median<mcomplex>({{2, 5}, {1, 9}, {2, -5}});
  EXPECT_TRUE(odd.re == 2 && odd.im == -5);
  const mcomplex even = median<mcomplex>({{3, 5}, {1, 9}});
  EXPECT_TRUE(even.re == 2 && even.im == 7);
}

TEST(Median, OfRandomVectorsIsThatOfTheSortedOnes) {
  Generator generator(8);
  for (const Values values : {Values::wide, Values::extreme, Values::withNaN})
    for (const mint count : {2, 3, 40, 301, 1000}) {
      const std::vector<mreal> data = drawRows<mreal>(generator, values, count, 1),
                               sorted = modelSorted(data, 1);
      const auto middle = static_cast<size_t>(count - 1) / 2;
      const mreal expected = count % 2 ? sorted[middle] : (sorted[middle] + sorted[middle + 1]) / 2.0;
      EXPECT_TRUE(haveSameBits<mreal>({median(data)}, {expected})) << count;
    }
}

TEST(Median, OfAMatrixIsThatOfEachColumnAlsoInPlace) {
  const Tensor matrix = tensorOf<mreal>({3, 2}, {1, 30, 3, 10, 2, 20});
  MTensor *argument = matrix.get(), *slot = nullptr;
  void *arguments[] = {&argument};
  ASSERT_EQ(handleMedian(nullptr, 1, arguments, &slot), 0);
  const Tensor result(slot);
  EXPECT_EQ(extentsOf(result), (Extents{2}));
  EXPECT_EQ(valuesOf<mreal>(result), (std::vector<mreal>{2, 20}));
  ASSERT_EQ(handleMedian(nullptr, 1, arguments, &argument), 0);
  EXPECT_EQ(argument, matrix.get());
  EXPECT_TRUE(isValidTensor(argument));
  EXPECT_EQ(valuesOf<mreal>(matrix), (std::vector<mreal>{2, 20}));
}

TEST(Median, OfAColumnOfComplexNumbersIsInTheirOrder) {
  const Tensor tensor = tensorOf<mcomplex>({3, 1, 1}, {{1, 1}, {0, 7}, {1, -1}});
  MTensor *argument = tensor.get(), *slot = nullptr;
  void *arguments[] = {&argument};
  ASSERT_EQ(handleMedian(nullptr, 1, arguments, &slot), 0);
  const Tensor result(slot);
  EXPECT_EQ(extentsOf(result), (Extents{1, 1}));
  EXPECT_EQ(elements<mcomplex>(result)[0].im, -1);
}

mint medianStatus(mint type, const Extents &extents) {
  const Tensor tensor = newTensor(type, extents);
  MTensor *argument = tensor.get();
  void *arguments[] = {&argument};
  union {
    mcomplex number;
    MTensor *slot;
  } result = {{0, 0}};
  const mint status = handleMedian(nullptr, 1, arguments, &result);
  EXPECT_EQ(result.slot, nullptr);
  return status;
}

TEST(Median, RefusesNothingAndIntegers) {
  EXPECT_EQ(medianStatus(TORVANE_TYPE_REAL, {0}), 4);
  EXPECT_EQ(medianStatus(TORVANE_TYPE_COMPLEX, {0, 3}), 4);
  EXPECT_EQ(medianStatus(TORVANE_TYPE_INTEGER, {0}), 4);
  EXPECT_EQ(medianStatus(TORVANE_TYPE_INTEGER, {2}), 1);
  EXPECT_EQ(medianStatus(TORVANE_TYPE_INTEGER, {2, 2}), 1);
  EXPECT_EQ(medianStatus(TORVANE_TYPE_REAL, {}), 2);
}

TEST(Median, OfRowsWithoutElementsIsEmpty) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {3, 0});
  MTensor *argument = tensor.get(), *slot = nullptr;
  void *arguments[] = {&argument};
  ASSERT_EQ(handleMedian(nullptr, 1, arguments, &slot), 0);
  const Tensor result(slot);
  EXPECT_EQ(extentsOf(result), (Extents{0}));
}

TEST(Median, WithoutMemoryFailsAndLeavesNothing) {
  Generator generator(9);
  for (const Values values : {Values::wide, Values::withNaN})
    for (const mint columns : {1, 2}) {
      const mint rows = 300000;
      const Tensor tensor = tensorOf({rows, columns}, drawRows<mreal>(generator, values, rows, columns));
      const Tensor warm = newTensor(TORVANE_TYPE_REAL, {2}); // the slabs of small blocks exist
      const uint32_t used = usedBytesOfThisThread();
      FailingHeap heap;
      const int64_t failures = failEveryRequest(heap, [&] {
        MTensor *argument = tensor.get(), *slot = nullptr;
        void *arguments[] = {&argument};
        const mint status = handleMedian(nullptr, 1, arguments, &slot);
        ASSERT_TRUE(status == 0 || (status == 403 && heap.failed()));
        EXPECT_EQ(slot == nullptr, status != 0);
        MTensor_delete(slot);
        EXPECT_EQ(usedBytesOfThisThread(), used);
      });
      EXPECT_GE(failures, 2);
    }
}

} // namespace

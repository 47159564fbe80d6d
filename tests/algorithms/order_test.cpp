// Orders of rows against the merge sort that defines them; extremes, orderedness, rows collected by number.
#include "algorithms/order.h"
#include "algorithms/registry.h"
#include "runtime/memory.h"
#include "sort_model.h"
#include "support/child_process.h"
#include "support/failing_heap.h"

#include <gtest/gtest.h>

#include <torvane/sorting.h>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mreal kNaN = std::numeric_limits<mreal>::quiet_NaN();

mint call(RuntimeFunctionHandler handler, std::vector<void *> arguments, void *result) {
  return handler(nullptr, static_cast<mint>(arguments.size()), arguments.data(), result);
}

template <class Element>
void expectModelsOrder(const std::vector<Element> &data, mint length, const char *what) {
  SortModel<Element> model(data, length);
  const mint rows = static_cast<mint>(model.rows.size());
  const bool wasInOrder = model.sort();
  const Tensor tensor = tensorOf(extentsOfRows(rows, length), data);
  const Tensor permutation = newTensor(TORVANE_TYPE_INTEGER, {rows});
  EXPECT_EQ(Runtime_MTensor_computeSortPermutation(permutation.get(), tensor.get()), wasInOrder ? 1 : 0)
      << what << ", rows " << rows << " of " << length;
  ASSERT_EQ(valuesOf<mint>(permutation), model.rows) << what << ", rows " << rows << " of " << length;
  EXPECT_TRUE(haveSameBits(valuesOf<Element>(tensor), data)) << what;
}

std::vector<mint> sizesToTry() {
  std::vector<mint> sizes(71);
  std::iota(sizes.begin(), sizes.end(), 0);
  for (const mint large : {100, 255, 256, 257, 600, 2999, 3000, 5000}) sizes.push_back(large);
  return sizes;
}

template <class Element> void expectModelsOrders(const std::vector<Values> &kinds, unsigned seed) {
  Generator generator(seed);
  for (const Values values : kinds)
    for (const mint length : {1, 2, 3, 5, 13})
      for (const mint rows : sizesToTry()) {
        if (rows > 600 && length > 3) continue;
        expectModelsOrder(drawRows<Element>(generator, values, rows, length), length,
                          ("values " + std::to_string(static_cast<int>(values))).c_str());
      }
}

const std::vector<Values> kAllNumbers(std::begin(kNumbers), std::end(kNumbers));

TEST(Order, OfIntegersIsTheMergeSorts) { expectModelsOrders<mint>(kAllNumbers, 1); }
TEST(Order, OfRealsIsTheMergeSorts) { expectModelsOrders<mreal>(kAllNumbers, 2); }
TEST(Order, OfComplexNumbersIsTheMergeSorts) { expectModelsOrders<mcomplex>(kAllNumbers, 3); }
TEST(Order, WithNaNsAnywhereIsTheMergeSorts) {
  expectModelsOrders<mreal>({Values::withNaN}, 4);
  expectModelsOrders<mcomplex>({Values::withNaN}, 5);
}

// Every arrangement of a NaN, two equal numbers and a larger one, in up to six rows.
TEST(Order, OfEveryShortRangeWithNaNsIsTheMergeSorts) {
  const mreal alphabet[] = {0, -0.0, 1, kNaN};
  for (mint rows = 1; rows <= 6; ++rows)
    for (mint code = 0; code < 1 << 2 * rows; ++code) {
      std::vector<mreal> data;
      for (mint k = 0; k < rows; ++k) data.push_back(alphabet[code >> 2 * k & 3]);
      expectModelsOrder(data, 1, "short");
    }
}

TEST(Order, OfManyRowsIsTheMergeSorts) {
  Generator generator(6);
  for (const Values values : {Values::wide, Values::few, Values::close}) {
    expectModelsOrder(drawRows<mint>(generator, values, 60000, 1), 1, "many");
    expectModelsOrder(drawRows<mreal>(generator, values, 60000, 1), 1, "many");
    expectModelsOrder(drawRows<mcomplex>(generator, values, 20000, 1), 1, "many");
    expectModelsOrder(drawRows<mreal>(generator, values, 20000, 3), 3, "many");
  }
}

// Around the number of distinct keys up to which they are counted.
TEST(Order, OfAnyNumberOfDistinctKeysIsTheMergeSorts) {
  Generator generator(12);
  for (const mint distinct : {1, 2, 31, 32, 127, 128, 129, 130, 300})
    for (const mint rows : {1000, 4100, 6000}) {
      std::vector<mint> integers;
      std::vector<mreal> reals;
      for (mint k = 0; k < rows; ++k) {
        const mint drawn = static_cast<mint>(generator() % static_cast<unsigned>(distinct));
        integers.push_back(drawn * 6543210 - 1000000000);
        reals.push_back(std::ldexp(1.0, drawn - 100) * (drawn % 2 ? -1 : 1));
      }
      expectModelsOrder(integers, 1, "distinct integers");
      expectModelsOrder(reals, 1, "distinct reals");
      expectModelsOrder(reals, 2, "distinct reals");
    }
}

// A run that agrees in its upper bits and is too long for merging, inside a span of all exponents.
TEST(Order, TellsLongRunsOfNeighbouringRealsApart) {
  Generator generator(7);
  std::vector<mreal> data(5000);
  for (mreal &x : data)
    x = generator() % 9 == 0 ? -1e308 : 1 + static_cast<mint>(generator() % 1000) * 0x1p-52;
  expectModelsOrder(data, 1, "neighbours");
}

TEST(Order, OfAPairOfRealsExchangesThemWhereOneIsNaN) {
  const std::vector<mreal> pairs[] = {{kNaN, 1}, {1, kNaN}, {kNaN, kNaN}};
  for (const std::vector<mreal> &pair : pairs) {
    const Tensor tensor = tensorOf({2}, pair), permutation = newTensor(TORVANE_TYPE_INTEGER, {2});
    EXPECT_EQ(Runtime_MTensor_computeSortPermutation(permutation.get(), tensor.get()), 0);
    EXPECT_EQ(valuesOf<mint>(permutation), (std::vector<mint>{2, 1}));
  }
}

TEST(Order, OfThreeOrMoreRealsLeavesNaNsWhereNothingElseMoves) {
  const Tensor tensor = tensorOf<mreal>({4}, {3, kNaN, 1, 2}),
               permutation = newTensor(TORVANE_TYPE_INTEGER, {4});
  EXPECT_EQ(Runtime_MTensor_computeSortPermutation(permutation.get(), tensor.get()), 1);
  EXPECT_EQ(valuesOf<mint>(permutation), (std::vector<mint>{1, 2, 3, 4}));
}

TEST(Order, KeepsEqualRowsInTheirOrderAndZerosAreEqual) {
  const Tensor constant = tensorOf<mreal>({5}, {0.0, -0.0, 0.0, -0.0, -0.0});
  const Tensor permutation = newTensor(TORVANE_TYPE_INTEGER, {5});
  EXPECT_EQ(Runtime_MTensor_computeSortPermutation(permutation.get(), constant.get()), 1);
  EXPECT_EQ(valuesOf<mint>(permutation), (std::vector<mint>{1, 2, 3, 4, 5}));
}

TEST(Order, OfATensorWithoutElementsWritesNothing) {
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {3, 0}), permutation = tensorOf<mint>({3}, {7, 8, 9});
  EXPECT_EQ(Runtime_MTensor_computeSortPermutation(permutation.get(), tensor.get()), 1);
  EXPECT_EQ(valuesOf<mint>(permutation), (std::vector<mint>{7, 8, 9}));
}

TEST(Order, OfATypeWithoutOneIsNoOrder) {
  const Tensor tensor = tensorOf<mint>({3}, {3, 2, 1}), permutation = tensorOf<mint>({3}, {7, 8, 9});
  tensor->type = 1;
  EXPECT_EQ(Runtime_MTensor_computeSortPermutation(permutation.get(), tensor.get()), 0);
  tensor->type = TORVANE_TYPE_INTEGER;
}

// Payloads above 1 MiB, so that the thread heap keeps none of the blocks.
TEST(Order, IsTheSameWithLessMemoryAndEndsTheProcessWithNone) {
  Generator generator(8);
  const std::vector<mint> data = drawRows<mint>(generator, Values::wide, 600000, 1);
  const Tensor tensor = tensorOf<mint>({600000}, data),
               permutation = newTensor(TORVANE_TYPE_INTEGER, {600000});
  Runtime_MTensor_computeSortPermutation(permutation.get(), tensor.get());
  const std::vector<mint> expected = valuesOf<mint>(permutation);
  const uint32_t used = usedBytesOfThisThread();
  FailingHeap heap;
  heap.failRequest(1); // of the words to sort by digits
  EXPECT_EQ(Runtime_MTensor_computeSortPermutation(permutation.get(), tensor.get()), 0);
  EXPECT_TRUE(heap.failed());
  EXPECT_EQ(valuesOf<mint>(permutation), expected);
  EXPECT_EQ(usedBytesOfThisThread(), used);
  const ChildOutcome child = runInChild([&] {
    heap.failFrom(1);
    Runtime_MTensor_computeSortPermutation(permutation.get(), tensor.get());
  });
  EXPECT_EQ(child.status, 1);
}

TEST(GatherRows, CollectsAnyRowsAnyNumberOfTimes) {
  const Tensor matrix = tensorOf<mint>({3, 2}, {1, 2, 3, 4, 5, 6}),
               indices = tensorOf<mint>({4}, {3, 1, 3, 2});
  MTensor *slot = nullptr;
  for (int time = 0; time < 2; ++time) {
    MTensor *const before = slot;
    ASSERT_EQ(MTensor_gatherRows(&slot, matrix.get(), indices.get()), 0);
    EXPECT_TRUE(before == nullptr || before == slot);
  }
  const Tensor result(slot);
  EXPECT_EQ(extentsOf(result), (Extents{4, 2}));
  EXPECT_EQ(valuesOf<mint>(result), (std::vector<mint>{5, 6, 1, 2, 5, 6, 3, 4}));
}

template <class Element> void expectRowsOfLength(mint length) {
  Generator generator(9);
  const std::vector<Element> data = drawRows<Element>(generator, Values::wide, 7, length);
  const Tensor tensor = tensorOf<Element>({7, length}, data), indices = tensorOf<mint>({2}, {7, 2});
  MTensor *slot = nullptr;
  ASSERT_EQ(MTensor_gatherRows(&slot, tensor.get(), indices.get()), 0);
  const Tensor result(slot);
  std::vector<Element> expected;
  for (const mint row : {6, 1})
    for (mint k = 0; k < length; ++k) expected.push_back(data[static_cast<size_t>(row * length + k)]);
  EXPECT_TRUE(haveSameBits(valuesOf<Element>(result), expected)) << length;
}

TEST(GatherRows, TakesRowsOfEveryLengthAndType) {
  for (const mint length : {1, 2, 3, 4, 5, 6, 7, 20}) {
    expectRowsOfLength<mint>(length);
    expectRowsOfLength<mreal>(length);
    expectRowsOfLength<mcomplex>(length);
  }
}

TEST(GatherRows, WorksInPlaceAndKeepsTheRecord) {
  const Tensor vector = tensorOf<mreal>({3}, {1, 2, 3}), indices = tensorOf<mint>({2}, {3, 1});
  MTensor *slot = vector.get();
  ASSERT_EQ(MTensor_gatherRows(&slot, vector.get(), indices.get()), 0);
  EXPECT_EQ(slot, vector.get());
  EXPECT_TRUE(isValidTensor(slot));
  EXPECT_EQ(valuesOf<mreal>(vector), (std::vector<mreal>{3, 1}));
}

TEST(GatherRows, RefusesAnIndexBeyondTheRowsAndMakesNothing) {
  const Tensor vector = tensorOf<mint>({3}, {1, 2, 3}), indices = tensorOf<mint>({2}, {1, 4});
  MTensor *slot = nullptr;
  EXPECT_EQ(MTensor_gatherRows(&slot, vector.get(), indices.get()), 3);
  EXPECT_EQ(slot, nullptr);
}

TEST(GatherRows, OfNoneIsEmpty) {
  const Tensor matrix = tensorOf<mint>({3, 2}, {1, 2, 3, 4, 5, 6}), indices = tensorOf<mint>({0}, {});
  MTensor *slot = nullptr;
  ASSERT_EQ(MTensor_gatherRows(&slot, matrix.get(), indices.get()), 0);
  const Tensor result(slot);
  EXPECT_EQ(extentsOf(result), (Extents{0, 2}));
}

// By the comparison of rows alone, walking from the end that the direction starts at.
template <class Element> mint modelExtreme(const SortModel<Element> &model, mint direction) {
  const mint count = static_cast<mint>(model.rows.size());
  mint best = direction == 1 ? 1 : count;
  for (mint step = 1; step < count; ++step) {
    const mint row = direction == 1 ? 1 + step : count - step;
    if (model.compare(best, row) == direction) best = row;
  }
  return best;
}

template <class Element> void expectModelsExtremes(Values values, mint rows, mint length) {
  Generator generator(10);
  const SortModel<Element> model(drawRows<Element>(generator, values, rows, length), length);
  const Tensor tensor = tensorOf(extentsOfRows(rows, length), model.data);
  for (const mint direction : {1, -1})
    EXPECT_EQ(MTensor_extremePosition(tensor.get(), direction), modelExtreme(model, direction))
        << rows << " " << length << " " << direction;
}

TEST(ExtremePosition, IsTheFirstSmallestAndTheLastLargestRow) {
  for (const Values values : {Values::wide, Values::few, Values::extreme, Values::withNaN})
    for (const mint rows : {1, 2, 3, 10, 100})
      for (const mint length : {1, 3}) {
        expectModelsExtremes<mint>(values, rows, length);
        expectModelsExtremes<mreal>(values, rows, length);
        expectModelsExtremes<mcomplex>(values, rows, length);
      }
}

mint orderedQ(const Tensor &tensor) {
  MTensor *argument = tensor.get();
  mint answer = -7;
  EXPECT_EQ(call(handleOrderedQ, {&argument}, &answer), 0);
  return answer;
}

TEST(OrderedQ, IsDecidedByThePairsWithoutANaN) {
  EXPECT_EQ(orderedQ(tensorOf<mreal>({4}, {1, kNaN, 0, 5})), 1);
  EXPECT_EQ(orderedQ(tensorOf<mreal>({4}, {1, kNaN, 5, 0})), 0);
  EXPECT_EQ(orderedQ(tensorOf<mreal>({2, 2}, {kNaN, 2, 1, 1})), 0);
  EXPECT_EQ(orderedQ(tensorOf<mreal>({2, 2}, {kNaN, 1, 1, 2})), 1);
}

TEST(OrderedQ, TakesComplexNumbersByTheirPartsAndPassesOverNaNs) {
  EXPECT_EQ(orderedQ(tensorOf<mcomplex>({3}, {{1, 1}, {1, -2}, {1, 2}})), 1);
  EXPECT_EQ(orderedQ(tensorOf<mcomplex>({2}, {{1, 2}, {1, -2}})), 0);
  EXPECT_EQ(orderedQ(tensorOf<mcomplex>({2}, {{1, -3}, {1, 2}})), 0);
  EXPECT_EQ(orderedQ(tensorOf<mcomplex>({2}, {{kNaN, 3}, {1, 2}})), 0);
  EXPECT_EQ(orderedQ(tensorOf<mcomplex>({2}, {{kNaN, 2}, {1, 3}})), 1);
  EXPECT_EQ(orderedQ(tensorOf<mcomplex>({2, 2}, {{1, kNaN}, {5, 0}, {1, 2}, {4, 0}})), 0);
}

TEST(OrderedQ, TakesEqualRowsAndASingleOneForOrdered) {
  EXPECT_EQ(orderedQ(tensorOf<mint>({3, 2}, {1, 2, 1, 2, 1, 3})), 1);
  EXPECT_EQ(orderedQ(tensorOf<mint>({3, 2}, {1, 2, 1, 2, 1, 1})), 0);
  EXPECT_EQ(orderedQ(tensorOf<mint>({1}, {5})), 1);
  EXPECT_EQ(orderedQ(tensorOf<mint>({2}, {INT32_MAX, INT32_MIN})), 0);
  EXPECT_EQ(orderedQ(tensorOf<mreal>({2}, {0.0, -0.0})), 1);
}

TEST(OrderedQ, OfATypeWithoutAnOrderIsMinusOne) {
  const Tensor tensor = tensorOf<mint>({2}, {1, 2});
  tensor->type = 1;
  EXPECT_EQ(orderedQ(tensor), -1);
  tensor->type = TORVANE_TYPE_INTEGER;
}

std::vector<mint> orderingInteger(const Tensor &tensor, mint n, mint status = 0) {
  MTensor *argument = tensor.get(), *slot = nullptr;
  EXPECT_EQ(call(handleOrderingInteger, {&argument, &n}, &slot), status) << n;
  EXPECT_EQ(slot == nullptr, status != 0);
  return slot != nullptr ? valuesOf<mint>(Tensor(slot)) : std::vector<mint>();
}

TEST(OrderingInteger, TakesTheSmallestOrTheLargestInIncreasingOrder) {
  const Tensor vector = tensorOf<mint>({4}, {3, 1, 2, 1});
  EXPECT_EQ(orderingInteger(vector, 1), (std::vector<mint>{2}));
  EXPECT_EQ(orderingInteger(vector, -1), (std::vector<mint>{1}));
  EXPECT_EQ(orderingInteger(vector, 2), (std::vector<mint>{2, 4}));
  EXPECT_EQ(orderingInteger(vector, 4), (std::vector<mint>{2, 4, 3, 1}));
  EXPECT_EQ(orderingInteger(vector, -2), (std::vector<mint>{3, 1}));
  EXPECT_EQ(orderingInteger(vector, -4), (std::vector<mint>{2, 4, 3, 1}));
  EXPECT_EQ(orderingInteger(vector, 0), std::vector<mint>());
  EXPECT_EQ(orderingInteger(tensorOf<mint>({3}, {5, 7, 7}), -1), (std::vector<mint>{3}));
}

TEST(OrderingInteger, RefusesMoreRowsThanThereAre) {
  const Tensor vector = tensorOf<mint>({4}, {3, 1, 2, 1}), empty = tensorOf<mint>({0}, {});
  for (const mint n : {5, -5, INT32_MAX, INT32_MIN}) orderingInteger(vector, n, 4);
  for (const mint n : {1, -1}) orderingInteger(empty, n, 3);
  for (const mint n : {2, -2}) orderingInteger(empty, n, 4);
  EXPECT_EQ(orderingInteger(empty, 0), std::vector<mint>());
}

TEST(Ordering, MakesReusesAndReplacesItsSlot) {
  const Tensor vector = tensorOf<mreal>({3}, {2.5, 0.5, 1.5});
  MTensor *argument = vector.get(), *slot = nullptr;
  ASSERT_EQ(call(handleOrdering, {&argument}, &slot), 0);
  const Tensor result(slot);
  ASSERT_EQ(call(handleOrdering, {&argument}, &slot), 0);
  EXPECT_EQ(slot, result.get());
  EXPECT_EQ(valuesOf<mint>(result), (std::vector<mint>{2, 3, 1}));
  ASSERT_EQ(call(handleOrdering, {&argument}, &argument), 0);
  EXPECT_EQ(argument, vector.get());
  EXPECT_TRUE(isValidTensor(argument));
  EXPECT_EQ(valuesOf<mint>(vector), (std::vector<mint>{2, 3, 1}));
}

TEST(Ordering, AndItsKinRefuseATensorWithoutRows) {
  const Tensor scalar = newTensor(TORVANE_TYPE_INTEGER, {});
  MTensor *argument = scalar.get(), *slot = nullptr;
  mint n = 1;
  EXPECT_EQ(call(handleOrdering, {&argument}, &slot), 2);
  EXPECT_EQ(call(handleOrderingInteger, {&argument, &n}, &slot), 2);
  EXPECT_EQ(call(handleOrderedQ, {&argument}, &n), 2);
  EXPECT_EQ(slot, nullptr);
}

TEST(Ordering, WithoutMemoryFailsAndLeavesTheSlotEmpty) {
  Generator generator(11);
  const Tensor tensor = tensorOf({600000}, drawRows<mreal>(generator, Values::withNaN, 600000, 1));
  for (const bool isPartial : {false, true}) {
    const uint32_t used = usedBytesOfThisThread();
    FailingHeap heap;
    const int64_t failures = failEveryRequest(heap, [&] {
      MTensor *argument = tensor.get(), *slot = nullptr;
      mint n = 500000;
      const mint status = isPartial ? call(handleOrderingInteger, {&argument, &n}, &slot)
                                    : call(handleOrdering, {&argument}, &slot);
      EXPECT_EQ(status, heap.failed() ? 403 : 0);
      EXPECT_EQ(slot == nullptr, status != 0);
      MTensor_delete(slot);
      EXPECT_EQ(usedBytesOfThisThread(), used);
    });
    EXPECT_EQ(failures, isPartial ? 3 : 2);
  }
}

} // namespace

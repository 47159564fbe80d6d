// Tally against a list that is searched for every element; both of its ways, failures, the poll.
#include "algorithms/tally.h"
#include "exact_call.h"
#include "sort_model.h"
#include "support/polling.h"

using namespace torvane;
using namespace torvane::test;

namespace {

class Tallies : public NamedFunctions {};

std::vector<mint> modelTally(const std::vector<mint> &vector) {
  std::vector<mint> rows;
  for (const mint value : vector) {
    size_t at = 0;
    while (at < rows.size() && rows[at] != value) at += 2;
    if (at == rows.size()) rows.insert(rows.end(), {value, 0});
    ++rows[at + 1];
  }
  return rows;
}

Tensor vectorOf(const std::vector<mint> &values) { return tensorOf<mint>({mint(values.size())}, values); }
Tensor matrixOf(const std::vector<mint> &rows) { return tensorOf<mint>({mint(rows.size()) / 2, 2}, rows); }

void expectTally(const std::vector<mint> &vector) {
  NamedCall call("Tally");
  call.tensor(vectorOf(vector));
  expectExactly(call, matrixOf(modelTally(vector)));
}

// One of the two ways, whichever the vector asks for.
template <class Way> void expectWay(const std::vector<mint> &vector, const Way &way) {
  const Tensor tensor = vectorOf(vector), expected = matrixOf(modelTally(vector));
  MTensor *slot = nullptr;
  ASSERT_EQ(way(&slot, tensor.get()), 0);
  expectSame(slot, expected.get(), "empty slot");
  MTensor_delete(slot);
  MTensor *inPlace = tensor.get();
  ASSERT_EQ(way(&inPlace, tensor.get()), 0);
  EXPECT_EQ(inPlace, tensor.get());
  expectSame(inPlace, expected.get(), "slot with the vector");
}

void expectBothWays(const std::vector<mint> &vector) {
  const auto [least, greatest] = std::minmax_element(vector.begin(), vector.end());
  const mint from = *least, range = *greatest - *least;
  expectWay(vector, [=](MTensor **slot, const MTensor *x) { return tallyByCounting(slot, x, from, range); });
  expectWay(vector, tallyBySorting);
}

// Values from `least` on with both ends of the range among them.
std::vector<mint> drawWithin(std::mt19937 &random, mint count, mint least, mint range) {
  std::vector<mint> vector;
  for (mint k = 0; k < count; ++k) vector.push_back(least + mint(random() % (unsigned(range) + 1)));
  const size_t one = random() % vector.size(), other = (one + 1) % vector.size();
  vector[one] = least;
  if (other != one) vector[other] = least + range;
  return vector;
}

// How often the poll is asked: never for a short range, else once for each value.
size_t pollsOfTally(const std::vector<mint> &vector) {
  const Tensor tensor = vectorOf(vector);
  MTensor *slot = nullptr;
  Polling polling(INT64_MAX);
  EXPECT_EQ(MTensor_tally(&slot, tensor.get()), 0);
  MTensor_delete(slot);
  return polling.polls();
}

TEST_F(Tallies, ListValuesAsTheyFirstAppear) {
  expectTally({5, 5, 2});
  expectBothWays({5, 5, 2});
  expectTally({7});
  expectTally({3, 1, 3, 2, 1, 3});
  expectTally({INT32_MIN, INT32_MAX, INT32_MIN, -1, 0, INT32_MAX, INT32_MIN});
}

TEST_F(Tallies, OfRandomVectorsAreThoseOfAList) {
  std::mt19937 random(1);
  for (const mint count : {1, 2, 9, 10, 11, 99, 100, 1000, 4096, 4097, 9000})
    for (const mint range : {0, 1, 2, 9, 100, 899, 5000, 2000000000})
      expectTally(drawWithin(random, count, -1000000000, range));
}

TEST_F(Tallies, AreTheSameEitherWayAroundTheLimitOfTheRange) {
  std::mt19937 random(2);
  for (const mint count : {10, 19, 20, 101, 1000, 4100, 6009})
    for (const mint range : {count / 10 - 1, count / 10, count / 10 + 1, 4 * count, 4 * count + 1})
      for (const mint least : {INT32_MIN, -range / 2, INT32_MAX - range}) {
        const std::vector<mint> vector = drawWithin(random, count, least, range);
        expectBothWays(vector);
        const size_t distinct = modelTally(vector).size() / 2;
        EXPECT_EQ(pollsOfTally(vector), range <= count / 10 || count == 1 ? 0 : distinct) << count;
      }
}

// Small tables are counted in four lanes; a value that is first seen last ends the walk at the end.
TEST_F(Tallies, OfTablesOfEverySizeAreThoseOfAList) {
  std::mt19937 random(3);
  for (const mint range : {2046, 2047, 2048, 2100}) {
    std::vector<mint> vector = drawWithin(random, 21003, 50, range);
    expectBothWays(vector);
    std::sort(vector.begin(), vector.end());
    expectBothWays(vector);
  }
  std::vector<mint> gap(5001, 4);
  gap.back() = 400;
  expectBothWays(gap);
}

void expectStops(const std::vector<mint> &vector) {
  const uint32_t used = usedBytesOfThisThread();
  for (int64_t passes = 0; passes < 4; ++passes) {
    const Tensor tensor = vectorOf(vector);
    MTensor *slot = nullptr, *held = tensor.get();
    {
      Polling polling(passes);
      EXPECT_EQ(MTensor_tally(&slot, tensor.get()), 1000);
      EXPECT_EQ(polling.polls(), size_t(passes) + 1);
      EXPECT_EQ(confirmedAborts().front(), "RuntimeLibrary");
    }
    EXPECT_EQ(slot, nullptr);
    Polling polling(passes);
    EXPECT_EQ(MTensor_tally(&held, tensor.get()), 1000);
    EXPECT_EQ(held, tensor.get());
    EXPECT_EQ(valuesOf<mint>(tensor), vector);
  }
  EXPECT_EQ(pollsOfTally(vector), 4u);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST_F(Tallies, StopWhenThePollSaysSoAndLeaveNothing) {
  expectStops({100, 5, 100, -7, 5, 1000}); // sorted
  expectStops({9, 5, 9, -7, 5, 10});       // counted
}

void expectStatus(Tensor tensor, mint status) {
  expectFails(NamedCall("Tally").tensor(std::move(tensor)), status);
}

TEST_F(Tallies, RefuseOtherTypesThenOtherRanksThenNothing) {
  expectStatus(tensorOf<mreal>({2}, {1, 1}), 1);
  expectStatus(newTensor(TORVANE_TYPE_COMPLEX, {0, 2}), 1);
  expectStatus(tensorOf<mint>({}, {1}), 2);
  expectStatus(newTensor(TORVANE_TYPE_INTEGER, {0, 2}), 2);
  expectStatus(newTensor(TORVANE_TYPE_INTEGER, {0}), 3);
  MTensor *none = nullptr, *slot = nullptr;
  void *arguments[] = {&none};
  EXPECT_EQ(lookupRuntimeFunction("Tally")(nullptr, 1, arguments, &slot), 12);
}

// One run without the k-th request; whether it asked so often. A sort without memory for its fast way takes
// another, and then the tally succeeds.
bool runWithout(FailingHeap &heap, const NamedCall &original, const Tensor &expected, bool isInPlace,
                int64_t k, mint *refusals) {
  NamedCall call(original);
  MTensor *slot = isInPlace ? call.tensorAt(0) : nullptr, *const held = slot;
  heap.failRequest(k);
  const mint status = call.run(&slot);
  const bool failed = heap.failed();
  heap.succeed();
  EXPECT_TRUE(status == 0 || (status == 403 && failed)) << k;
  if (status == 0) expectSame(slot, expected.get(), "result");
  if (status != 0) EXPECT_EQ(slot, held) << k;
  expectArgumentsOf(call, original, status == 0 && isInPlace ? 0 : kNoArgument);
  if (!isInPlace) MTensor_delete(slot);
  *refusals += status != 0;
  return failed;
}

// Blocks of the vector's size are one request each: order, runs and result, besides the sort's own.
TEST_F(Tallies, WithoutMemoryFailAndLeaveTheVectorAsItWas) {
  std::vector<mint> vector, rows;
  for (uint32_t k = 0; k < 400000; ++k) vector.push_back(static_cast<mint>(k * 2654435761u));
  for (const mint value : vector) rows.insert(rows.end(), {value, 1});
  const Tensor warm = newTensor(TORVANE_TYPE_REAL, {2}), warmToo = newTensor(TORVANE_TYPE_REAL, {3, 2});
  NamedCall call("Tally");
  call.tensor(vectorOf(vector));
  const Tensor expected = matrixOf(rows);
  for (const bool isInPlace : {false, true}) {
    const uint32_t used = usedBytesOfThisThread();
    FailingHeap heap;
    mint refusals = 0;
    for (int64_t k = 1; runWithout(heap, call, expected, isInPlace, k, &refusals); ++k) {
    }
    EXPECT_GE(refusals, 3);
    EXPECT_EQ(usedBytesOfThisThread(), used);
  }
}

// Up to four lengths the table is larger than what sorting cannot do without.
TEST_F(Tallies, WithoutMemoryForATableAreSorted) {
  constexpr mint kCount = 300000;
  std::vector<mint> vector, rows;
  for (uint32_t k = 0; k < kCount; ++k) vector.push_back(static_cast<mint>(k * 7919u % kCount * 4));
  for (const mint value : vector) rows.insert(rows.end(), {value, 1});
  NamedCall call("Tally");
  call.tensor(vectorOf(vector));
  const Tensor expected = matrixOf(rows);
  FailingHeap heap;
  mint refusals = 0;
  EXPECT_TRUE(runWithout(heap, call, expected, false, 1, &refusals));
  EXPECT_EQ(refusals, 0);
  EXPECT_TRUE(runWithout(heap, call, expected, false, 2, &refusals));
  EXPECT_EQ(refusals, 1) << "the result has no second way";
}

TEST_F(Tallies, OfAShortRangeWithoutMemoryFailAsWell) {
  std::vector<mint> vector(4000000);
  for (size_t k = 0; k < vector.size(); ++k) vector[k] = mint(k % 390000);
  NamedCall call("Tally");
  call.tensor(vectorOf(vector));
  expectRequests(call, 2);
}

} // namespace

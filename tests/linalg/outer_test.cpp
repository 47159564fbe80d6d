// Outer products: results, refusals, memory.
#include "outer_calls.h"

#include "support/failing_heap.h"

using namespace torvane;
using namespace torvane::test;

namespace {

TEST(Outer, OfIntegersOfMixedRanksAndLevelsIsItsModel) { expectModel<mint>(31); }
TEST(Outer, OfRealsOfMixedRanksAndLevelsIsItsModel) { expectModel<mreal>(32); }
TEST(Outer, OfComplexNumbersOfMixedRanksAndLevelsIsItsModel) { expectModel<mcomplex>(33); }

TEST(Outer, WithoutLevelsLeadsWithEveryDimension) {
  Samples samples(34);
  for (const Kind kind : kKinds) {
    Call call;
    call.add(samples.tensor<mint>({2, 3}), 2)
        .add(samples.tensor<mint>({4}), 1)
        .add(samples.tensor<mint>({}), 0);
    MTensor *slot = nullptr;
    ASSERT_EQ(call.run(kind, &slot, 4, false), 0);
    expectTensor(slot, modelExtents(call, kind), modelValues<mint>(call, kind));
    MTensor_delete(slot);
  }
}

TEST(Outer, OfSmallVectorsIsWhatOneWritesDown) {
  Call call;
  call.add(tensorOf<mint>({2}, {1, 2}), 1).add(tensorOf<mint>({2}, {3, 4}), 1);
  MTensor *slot = nullptr;
  ASSERT_EQ(call.runByName(kTimes, &slot, 4), 0);
  expectTensor<mint>(slot, {2, 2}, {3, 4, 6, 8});
  ASSERT_EQ(call.runByName(kPlus, &slot, 4), 0);
  expectTensor<mint>(slot, {2, 2}, {4, 5, 5, 6});
  ASSERT_EQ(call.runByName(kList, &slot), 0);
  expectTensor<mint>(slot, {2, 2, 2}, {1, 3, 1, 4, 2, 3, 2, 4});
  MTensor_delete(slot);
}

TEST(Outer, TakesOneTensorManyTimes) {
  Tensor x = tensorOf<mint>({2}, {2, 3});
  MTensor *handles[] = {x.get(), x.get(), x.get()}, *slot = x.get();
  ASSERT_EQ(MTensor_outerTimes(&slot, 3, handles, nullptr, 4), 0);
  expectTensor<mint>(slot, {2, 2, 2}, {8, 12, 12, 18, 12, 18, 18, 27});
}

// ---- one tensor -------------------------------------------------------------------------------------

struct ListOfOne {
  Extents extents;
  mint level;
  Extents result;
};
const ListOfOne kListsOfOne[] = {
    {{2, 3}, 1, {2, 1, 3}}, {{2, 3}, 2, {2, 3, 1}}, {{2, 3}, 0, {1, 2, 3}}, {{}, 0, {1}},
    {{4}, 1, {4, 1}},       {{0, 3}, 1, {0, 1}}, // the last leading dimension is 0: the rank stays
    {{2, 0}, 2, {2, 0}},    {{0}, 1, {0}},          {{0, 3}, 2, {0, 3, 1}}, {{0, 3}, 0, {1, 0, 3}},
    {{2, 0}, 1, {2, 1, 0}},
};

TEST(OuterList, OfOneTensorHasADimensionOfOneBehindTheLeadingOnes) {
  for (const ListOfOne &one : kListsOfOne)
    for (const bool isInPlace : {false, true}) {
      Call call;
      call.add(Samples(35).tensor<mreal>(one.extents), one.level);
      const auto values = valuesOf<mreal>(call.tensors[0]);
      MTensor *slot = isInPlace ? call.tensors[0].get() : nullptr;
      ASSERT_EQ(call.runByName(kList, &slot), 0);
      expectTensor(slot, one.result, values);
      if (!isInPlace) MTensor_delete(slot);
    }
}

TEST(Outer, SumOfOneTensorInItsOwnSlotIsTheTensor) {
  for (const Kind kind : {kPlus, kTimes}) {
    Call call;
    call.add(tensorOf<mint>({2}, {7, 8}), 1);
    MTensor *slot = call.tensors[0].get();
    ASSERT_EQ(call.runByName(kind, &slot, 4), 0);
    expectTensor<mint>(slot, {2}, {7, 8});
  }
}

// ---- refusals ---------------------------------------------------------------------------------------

struct Refusal {
  const char *what;
  std::function<Call()> call;
  mint status;
};

Call pairOf(const Extents &first, mint level1, const Extents &second, mint level2,
            mint typeOfSecond = TORVANE_TYPE_REAL) {
  Call call;
  call.add(newTensor(TORVANE_TYPE_REAL, first), level1).add(newTensor(typeOfSecond, second), level2);
  for (const Tensor &tensor : call.tensors) MTensor_initialize(tensor.get(), 1);
  return call;
}

const Refusal kRefusals[] = {
    {"trailing ranks",
     [] {
       return pairOf({2, 3}, 1, {4}, 1);
     },
     3},
    {"trailing dimensions",
     [] {
       return pairOf({2, 3}, 1, {4, 2}, 1);
     },
     3},
    {"trailing dimensions, of no elements",
     [] {
       return pairOf({2, 0}, 1, {4, 2}, 1);
     },
     3},
    {"types", [] { return pairOf({2}, 1, {2}, 1, TORVANE_TYPE_INTEGER); }, 4},
    {"trailing dimensions before types",
     [] {
       return pairOf({2, 3}, 1, {2, 2}, 1, TORVANE_TYPE_INTEGER);
     },
     3},
    {"a negative level of the first", [] { return pairOf({2}, -1, {2}, 1); }, 4},
    {"a level above the rank of the first", [] { return pairOf({2}, 2, {2}, 1); }, 4},
    {"a negative level of the second", [] { return pairOf({2}, 1, {2}, -1); }, 4},
    {"a level above the rank of the second", [] { return pairOf({2}, 1, {2}, 2); }, 4},
    {"a level above the rank of the only one",
     [] {
       Call call;
       call.add(newTensor(TORVANE_TYPE_REAL, {2}), 2);
       MTensor_initialize(call.tensors[0].get(), 1);
       return call;
     },
     4},
    {"the third after two that fit",
     [] {
       Call call = pairOf({2}, 1, {3}, 1);
       call.add(tensorOf<mint>({2}, {1, 2}), 1);
       return call;
     },
     4},
    {"more elements than can be counted", [] { return pairOf({65536}, 1, {32768}, 1); }, 403},
};

TEST(Outer, RefusesAndLeavesEverythingAsItWas) {
  for (const Refusal &refusal : kRefusals)
    for (const Kind kind : kKinds) {
      const Call call = refusal.call();
      const uint32_t used = usedBytesOfThisThread();
      MTensor *slot = nullptr;
      EXPECT_EQ(call.runByName(kind, &slot), refusal.status) << refusal.what << ", kind " << kind;
      EXPECT_EQ(slot, nullptr) << refusal.what;
      EXPECT_EQ(usedBytesOfThisThread(), used) << refusal.what;
      for (const Tensor &tensor : call.tensors) {
        const Extents before = extentsOf(tensor);
        slot = tensor.get();
        EXPECT_EQ(call.runByName(kind, &slot), refusal.status) << refusal.what;
        EXPECT_EQ(extentsOf(tensor), before) << refusal.what;
        EXPECT_TRUE(isValidTensor(tensor.get())) << refusal.what;
      }
    }
}

TEST(Outer, GivesTwelveForAWrongCountBeforeAnArgumentIsTouched) {
  MTensor *slot = nullptr;
  for (const mint count : {-1, 0, 1, 3, 5})
    EXPECT_EQ(handleOuterList(nullptr, count, nullptr, &slot), 12) << count;
  for (const mint count : {-1, 0, 1, 2, 4, 6}) {
    EXPECT_EQ(handleOuterPlus(nullptr, count, nullptr, &slot), 12) << count;
    EXPECT_EQ(handleOuterTimes(nullptr, count, nullptr, &slot), 12) << count;
  }
  EXPECT_EQ(slot, nullptr);
}

// Such a tensor is no good, but it is what the allocation refuses.
TEST(OuterList, GivesElevenForANegativeExtent) {
  Call call = pairOf({2}, 1, {3}, 1);
  call.tensors[1]->dimensions[0] = -3;
  MTensor *slot = nullptr;
  EXPECT_EQ(call.run(kList, &slot), 11);
  EXPECT_EQ(call.run(kPlus, &slot), 402);
  EXPECT_EQ(slot, nullptr);
  call.tensors[1]->dimensions[0] = 3;
}

TEST(Outer, RefusesTensorsWithoutNumbers) {
  Call call = pairOf({2}, 1, {3}, 1);
  for (const Tensor &tensor : call.tensors) tensor->type = 1;
  MTensor *slot = nullptr;
  for (const Kind kind : kKinds) EXPECT_EQ(call.run(kind, &slot), 4);
  EXPECT_EQ(slot, nullptr);
  for (const Tensor &tensor : call.tensors) tensor->type = TORVANE_TYPE_REAL;
}

// ---- memory -----------------------------------------------------------------------------------------

// Blocks of this many elements are one request of the process heap each.
constexpr mint kWide = 300000;

TEST(Outer, ReportsEveryMissingBlockAndLeavesNothingBehind) {
  for (const Kind kind : kKinds)
    for (const mint tensors :
         {2, 3, 12}) { // 12: handles and levels no longer fit where there is room for a few
      Call call;
      for (mint i = 0; i < tensors; ++i) call.add(newTensor(TORVANE_TYPE_REAL, {1, kWide}), 1);
      for (const Tensor &tensor : call.tensors) MTensor_initialize(tensor.get(), 1);
      FailingHeap heap;
      const uint32_t used = usedBytesOfThisThread();
      const int64_t failed = failEveryRequest(heap, [&] {
        MTensor *slot = nullptr;
        const mint status = call.runByName(kind, &slot);
        EXPECT_EQ(status, heap.failed() ? 403 : 0);
        EXPECT_EQ(slot == nullptr, heap.failed());
        MTensor_delete(slot);
        EXPECT_EQ(usedBytesOfThisThread(), used);
      });
      EXPECT_GE(failed, 2) << "the result and the working memory";
    }
}

} // namespace

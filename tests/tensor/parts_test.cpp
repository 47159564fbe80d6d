// Parts of tensors: every mixture of selectors against a model by index arithmetic, aliases, what is refused,
// what the reporter hears, and memory that runs out.
#include "runtime/memory.h"
#include "support/child_process.h"
#include "support/failing_heap.h"
#include "support/tensor_builders.h"
#include "tensor/parts.h"
#include "tensor/parts_model.h"

#include <gtest/gtest.h>

#include <string>

using namespace torvane;
using namespace torvane::test;

namespace {

Tensor integers(const Extents &extents) {
  Tensor tensor = newTensor(TORVANE_TYPE_INTEGER, extents);
  for (mint i = 0; i < tensor->elementCount; ++i) elements<mint>(tensor)[i] = i + 1;
  return tensor;
}

Tensor vectorOf(const std::vector<mint> &values) { return tensorOf(Extents{mint(values.size())}, values); }

// The part by these selectors into nothing; null when it is refused.
Tensor partOf(const Tensor &source, const Selectors &selectors, mint resultRank) {
  MTensor *slot = nullptr;
  const mint status = selectors.get(nullptr, &slot, source.get(), resultRank);
  EXPECT_EQ(status, slot == nullptr);
  return Tensor(slot);
}
Tensor partOf(const Tensor &source, const Selectors &selectors) {
  return partOf(source, selectors, selectors.rankOf(source->rank));
}

std::vector<mint> valuesOfPart(const Tensor &source, const Selectors &selectors) {
  const Tensor part = partOf(source, selectors);
  EXPECT_NE(part, nullptr);
  EXPECT_TRUE(part == nullptr || isValidTensor(part.get()));
  return part == nullptr ? std::vector<mint>() : valuesOf<mint>(part);
}

bool isRefused(const Tensor &source, const Selectors &selectors, mint resultRank) {
  return partOf(source, selectors, resultRank) == nullptr;
}

using Values = std::vector<mint>;

TEST(Part, ByAPositionLosesItsDimension) {
  const Tensor matrix = integers({3, 4});
  EXPECT_EQ(valuesOfPart(matrix, {position(-1)}), Values({9, 10, 11, 12}));
  EXPECT_EQ(extentsOf(partOf(matrix, {position(-1)})), Extents({4}));
  EXPECT_EQ(valuesOfPart(matrix, {all(), position(2)}), Values({2, 6, 10}));
  EXPECT_EQ(extentsOf(partOf(matrix, {all(), position(2)})), Extents({3}));
}

TEST(Part, ByAPositionInEveryDimensionHasRankZero) {
  const Tensor part = partOf(integers({5}), {position(-2)});
  EXPECT_EQ(part->rank, 0);
  EXPECT_EQ(part->dimensions, nullptr);
  EXPECT_EQ(part->elementCount, 1);
  EXPECT_EQ(valuesOf<mint>(part), Values({4}));
}

TEST(Part, ByAListFollowsItsOrderAndRepeats) {
  EXPECT_EQ(valuesOfPart(integers({5}), {list({4, -5, 4, 2})}), Values({4, 1, 4, 2}));
}

TEST(Part, BySpansOfOneTwoAndThreeWords) {
  const Tensor vector = integers({6});
  EXPECT_EQ(valuesOfPart(vector, {span({2})}), Values({1, 2}));
  EXPECT_EQ(valuesOfPart(vector, {span({-2})}), Values({5, 6}));
  EXPECT_EQ(valuesOfPart(vector, {span({2, -2})}), Values({2, 3, 4, 5}));
  EXPECT_EQ(valuesOfPart(vector, {span({5, 1})}), Values({5, 4, 3, 2, 1}));
  EXPECT_EQ(valuesOfPart(vector, {span({-1, 1, -2})}), Values({6, 4, 2}));
  EXPECT_EQ(valuesOfPart(vector, {span({1, 6, 4})}), Values({1, 5}));
  EXPECT_EQ(valuesOfPart(vector, {span({6, 1, INT32_MIN})}), Values({6, 5, 4, 3, 2, 1}));
  EXPECT_EQ(valuesOfPart(vector, {span({1, 6, INT32_MAX})}), Values({1}));
}

TEST(Part, MayBeEmpty) {
  const Tensor matrix = integers({3, 4});
  for (const Selectors &empty : {Selectors{span({0})}, Selectors{list({})}, Selectors{span({3, 2, 1})},
                                 Selectors{span({0, 3, 1})}, Selectors{span({2, 3, -5})}}) {
    const Tensor part = partOf(matrix, empty);
    ASSERT_NE(part, nullptr);
    EXPECT_EQ(extentsOf(part), Extents({0, 4}));
    EXPECT_EQ(part->data, nullptr);
    EXPECT_EQ(part->type, TORVANE_TYPE_INTEGER);
  }
}

TEST(Part, OfAnEmptyTensorIsEmpty) {
  const Tensor flat = newTensor(TORVANE_TYPE_REAL, {3, 0});
  EXPECT_EQ(extentsOf(partOf(flat, {position(2)})), Extents({0}));
  EXPECT_EQ(extentsOf(partOf(flat, {list({1, 3}), all()})), Extents({2, 0}));
  EXPECT_TRUE(isRefused(flat, {all(), position(1)}, 1));
  EXPECT_TRUE(isRefused(newTensor(TORVANE_TYPE_REAL, {0}), {list({-1})}, 1));
}

TEST(Part, WithoutSelectorsIsTheWhole) {
  const Tensor source = integers({2, 3});
  const Tensor part = partOf(source, Selectors{});
  EXPECT_TRUE(MTensor_equivalentQ(part.get(), source.get()));
  EXPECT_EQ(valuesOf<mint>(part), valuesOf<mint>(source));
  const Tensor scalar = tensorOf<mreal>({}, {2.5});
  EXPECT_EQ(valuesOf<mreal>(partOf(scalar, Selectors{})), std::vector<mreal>({2.5}));
}

TEST(Part, IsRefusedForSelectorsThatDoNotFit) {
  const Tensor matrix = integers({3, 4});
  for (const Selectors &bad :
       {Selectors{list({4})}, Selectors{list({1, 0})}, Selectors{list({-4})}, Selectors{span({4})},
        Selectors{span({-4})}, Selectors{span({1, 4})}, Selectors{span({1, 2, 0})}, Selectors{span({})},
        Selectors{span({1, 2, 1, 1})}, Selectors{all(), span({1, 5, 1})}, Selectors{unknown(4)},
        Selectors{unknown(-1)}})
    EXPECT_TRUE(isRefused(matrix, bad, 2));
  for (const mint outside : {0, 4, -4, INT32_MAX, INT32_MIN})
    EXPECT_TRUE(isRefused(matrix, {position(outside)}, 1)) << outside;
  EXPECT_TRUE(isRefused(matrix, {all(), all(), all()}, 2));
  EXPECT_TRUE(isRefused(matrix, {all(), all(), position(1)}, 2));
}

TEST(Part, IsRefusedForATensorThatIsNoVectorOfIntegers) {
  const Tensor matrix = integers({3, 4}), reals = tensorOf<mreal>({1}, {1.0}), square = integers({1, 1});
  for (const mint kind : {TORVANE_PART_LIST, TORVANE_PART_SPAN})
    for (const Tensor *bad : {&reals, &square}) {
      MTensor *vector = bad->get(), *slot = nullptr;
      void *specs[] = {&vector};
      EXPECT_EQ(MTensor_getParts(nullptr, &slot, matrix.get(), 2, 1, &kind, specs), 1);
      vector = nullptr;
      EXPECT_EQ(MTensor_getParts(nullptr, &slot, matrix.get(), 2, 1, &kind, specs), 1);
      EXPECT_EQ(slot, nullptr);
    }
}

TEST(Part, IsRefusedForAnotherRank) {
  const Tensor matrix = integers({3, 4});
  EXPECT_TRUE(isRefused(matrix, {position(1)}, 2));
  EXPECT_TRUE(isRefused(matrix, {list({1})}, 1));
  EXPECT_TRUE(isRefused(matrix, Selectors{}, -2));
  MTensor *slot = nullptr;
  EXPECT_EQ(MTensor_getParts(nullptr, &slot, matrix.get(), 2, -1, nullptr, nullptr), 1);
  EXPECT_EQ(MTensor_setParts(matrix.get(), matrix.get(), 2, -1, nullptr, nullptr), 1);
}

TEST(Part, ThatPassesTheLargestCountIsRefused) {
  const Tensor matrix = integers({2, 2});
  const std::vector<mint> many(65536, 1);
  EXPECT_TRUE(isRefused(matrix, {list(many), list(many)}, 2));
  const Selectors both{list(many), list(many)};
  EXPECT_EQ(both.set(matrix.get(), integers({}).get(), 2), 1);
  EXPECT_EQ(valuesOf<mint>(matrix), Values({1, 2, 3, 4}));
}

TEST(Part, TakesTheResultTensorAndLeavesTheSlotUnread) {
  const Tensor source = integers({3, 4}), bystander = integers({2});
  MTensor *const result = newTensor(TORVANE_TYPE_COMPLEX, {7}).release();
  MTensor *slot = bystander.get();
  EXPECT_EQ(Selectors{position(2)}.get(result, &slot, source.get(), 1), 0);
  EXPECT_EQ(slot, result);
  EXPECT_EQ(valuesOf<mint>(bystander), Values({1, 2}));
  const void *payload = result->data;
  EXPECT_EQ(Selectors{position(3)}.get(result, &slot, source.get(), 1), 0);
  EXPECT_EQ(result->data, payload);
  const Tensor owned(slot);
  EXPECT_EQ(valuesOf<mint>(owned), Values({9, 10, 11, 12}));
}

TEST(Part, ThatIsRefusedChangesNeitherSlotNorResult) {
  const Tensor source = integers({3, 4}), result = integers({2}), bystander = integers({2});
  MTensor *slot = bystander.get();
  EXPECT_EQ(Selectors{position(5)}.get(result.get(), &slot, source.get(), 1), 1);
  EXPECT_EQ(Selectors{position(1)}.get(result.get(), &slot, source.get(), 2), 1);
  EXPECT_EQ(slot, bystander.get());
  EXPECT_EQ(valuesOf<mint>(result), Values({1, 2}));
}

TEST(Part, MayTakeThePlaceOfItsSource) {
  MTensor *const source = integers({3, 4}).release();
  source->refCount = 7;
  MTensor *slot = nullptr;
  EXPECT_EQ(Selectors({list({3, 1}), span({4, 1})}).get(source, &slot, source, 2), 0);
  EXPECT_EQ(slot, source);
  const Tensor owned(slot);
  EXPECT_EQ(extentsOf(owned), Extents({2, 4}));
  EXPECT_EQ(valuesOf<mint>(owned), Values({12, 11, 10, 9, 4, 3, 2, 1}));
  EXPECT_EQ(owned->refCount, 7);
  EXPECT_TRUE(isValidTensor(slot));
}

TEST(Part, MayTakeThePlaceOfASelector) {
  const Tensor source = integers({5});
  MTensor *positions = vectorOf({5, 1, 3}).release();
  const mint kind = TORVANE_PART_LIST;
  void *specs[] = {&positions};
  EXPECT_EQ(MTensor_getParts(positions, &positions, source.get(), 1, 1, &kind, specs), 0);
  const Tensor owned(positions);
  EXPECT_EQ(valuesOf<mint>(owned), Values({5, 1, 3}));
}

TEST(Part, MayBeSelectedByItsSource) {
  MTensor *vector = vectorOf({3, 1, 2}).release();
  const mint kind = TORVANE_PART_LIST;
  void *specs[] = {&vector};
  MTensor *const self = vector;
  EXPECT_EQ(MTensor_getParts(self, &vector, self, 1, 1, &kind, specs), 0);
  const Tensor owned(vector);
  EXPECT_EQ(valuesOf<mint>(owned), Values({2, 3, 1}));
}

TEST(Part, LeavesItsListAsItWas) {
  const Tensor source = integers({5}), positions = vectorOf({-1, -2});
  MTensor *vector = positions.get(), *slot = nullptr;
  const mint kind = TORVANE_PART_LIST;
  void *specs[] = {&vector};
  ASSERT_EQ(MTensor_getParts(nullptr, &slot, source.get(), 1, 1, &kind, specs), 0);
  const Tensor owned(slot);
  EXPECT_EQ(valuesOf<mint>(positions), Values({-1, -2}));
}

TEST(AssignedPart, TakesASourceOfItsShape) {
  const Tensor target = integers({3, 3}), source = tensorOf<mint>({2, 2}, {-1, -2, -3, -4});
  EXPECT_EQ(Selectors({list({3, 1}), span({2, 3})}).set(target.get(), source.get(), 2), 0);
  EXPECT_EQ(valuesOf<mint>(target), Values({1, -3, -4, 4, 5, 6, 7, -1, -2}));
}

TEST(AssignedPart, IsFilledByOneElementOfAnyRank) {
  for (const Extents &extents : {Extents{}, Extents{1}, Extents{1, 1, 1, 1}}) {
    const Tensor target = integers({3, 3}), one = tensorOf<mint>(extents, {0});
    EXPECT_EQ(Selectors({all(), list({1, 3})}).set(target.get(), one.get(), 2), 0);
    EXPECT_EQ(valuesOf<mint>(target), Values({0, 2, 0, 0, 5, 0, 0, 8, 0}));
  }
}

TEST(AssignedPart, RepeatsASourceThatHasItsLastExtents) {
  const Tensor target = integers({2, 2, 2}), row = tensorOf<mint>({2}, {-1, -2});
  EXPECT_EQ(Selectors({list({2, 1})}).set(target.get(), row.get(), 3), 0);
  EXPECT_EQ(valuesOf<mint>(target), Values({-1, -2, -1, -2, -1, -2, -1, -2}));
  const Tensor tall = tensorOf<mint>({1, 2, 2}, {5, 6, 7, 8});
  EXPECT_EQ(Selectors({position(2), span({2, 1})}).set(target.get(), tall.get(), 2), 0);
  EXPECT_EQ(valuesOf<mint>(target), Values({-1, -2, -1, -2, 7, 8, 5, 6}));
  const Tensor between = tensorOf<mint>({1, 2}, {5, 6});
  EXPECT_EQ(Selectors{position(2)}.set(target.get(), between.get(), 2), 1);
}

TEST(AssignedPart, RefusesASourceThatDoesNotFitAndStoresNothing) {
  const Tensor target = integers({3, 4});
  const Values before = valuesOf<mint>(target);
  for (const Extents &extents : {Extents{3}, Extents{2}, Extents{4, 3}, Extents{2, 4}, Extents{3, 3, 4},
                                 Extents{0}, Extents{8}, Extents{12}, Extents{0, 4}})
    EXPECT_EQ(Selectors{all()}.set(target.get(), integers(extents).get(), 2), 1)
        << testing::PrintToString(extents);
  EXPECT_EQ(Selectors{list({1, 4})}.set(target.get(), integers({}).get(), 2), 1);
  EXPECT_EQ(Selectors{position(1)}.set(target.get(), integers({}).get(), 2), 1) << "another rank";
  EXPECT_EQ(Selectors{position(1)}.set(target.get(), tensorOf<mreal>({}, {1.0}).get(), 1), 1)
      << "another type";
  EXPECT_EQ(Selectors({all(), all(), all()}).set(target.get(), integers({}).get(), 2), 1);
  EXPECT_EQ(Selectors{unknown(7)}.set(target.get(), integers({}).get(), 2), 1);
  EXPECT_EQ(valuesOf<mint>(target), before);
}

TEST(AssignedPart, ThatIsEmptyTakesAnything) {
  const Tensor target = integers({3, 4});
  const Values before = valuesOf<mint>(target);
  for (const Extents &extents : {Extents{}, Extents{7}, Extents{0}, Extents{5, 0}, Extents{4}})
    EXPECT_EQ(Selectors{span({0})}.set(target.get(), integers(extents).get(), 2), 0);
  const std::vector<mint> many(65536, 1);
  EXPECT_EQ(Selectors({list({}), list(many)}).set(target.get(), integers({}).get(), 2), 0);
  EXPECT_EQ(valuesOf<mint>(target), before);
}

TEST(AssignedPart, KeepsTheLastOfRepeatedPositions) {
  const Tensor target = integers({3}), source = tensorOf<mint>({4}, {10, 20, 30, 40});
  EXPECT_EQ(Selectors{list({2, 1, 2, -3})}.set(target.get(), source.get(), 1), 0);
  EXPECT_EQ(valuesOf<mint>(target), Values({40, 30, 3}));
}

TEST(AssignedPart, MayComeFromItsTarget) {
  const Tensor target = integers({2, 3});
  EXPECT_EQ(Selectors({span({2, 1}), span({3, 1})}).set(target.get(), target.get(), 2), 0);
  EXPECT_EQ(valuesOf<mint>(target), Values({6, 5, 4, 3, 2, 1}));
  const Tensor self = vectorOf({2, 3, 1});
  MTensor *vector = self.get();
  const mint kind = TORVANE_PART_LIST;
  void *specs[] = {&vector};
  EXPECT_EQ(MTensor_setParts(vector, vector, 1, 1, &kind, specs), 0);
  EXPECT_EQ(valuesOf<mint>(self), Values({1, 2, 3}));
}

// ---- what the reporter hears ----

struct Recorder {
  PartReporter reporter = {{-99, -99}, record};
  std::string tags;
  static void record(const char *tag, PartReporter *reporter) {
    reinterpret_cast<Recorder *>(reporter)->tags += tag + std::string(" ");
  }
};

struct Report {
  mint status, rank;
  std::string tags;
  intptr_t first, second;
  bool operator==(const Report &) const = default;
};

Report reportOf(const Extents &extents, const Selectors &selectors) {
  PartSelectors records = selectors.records();
  Recorder recorder;
  mint rank = 12;
  const mint status = MTensor_checkPartSpecs(mint(extents.size()), extents.data(), selectors.count(),
                                             records.get(), &rank, &recorder.reporter);
  return {status, rank, recorder.tags, recorder.reporter.values[0], recorder.reporter.values[1]};
}

constexpr mint kNoRank = 0x7FFFFFFF;

TEST(PartReporter, HearsPartwAndThePositionAsItWasGiven) {
  EXPECT_EQ(reportOf({3, 4}, {position(-4)}), (Report{0, kNoRank, "partw ", -4, 0}));
  EXPECT_EQ(reportOf({3, 4}, {all(), position(5)}), (Report{0, kNoRank, "partw ", 5, 0}));
  EXPECT_EQ(reportOf({3, 4}, {list({1, -1, 0})}), (Report{0, kNoRank, "partw ", 0, 0}));
}

TEST(PartReporter, HearsTakeWithStartAndEndAsTheyWereGiven) {
  EXPECT_EQ(reportOf({3, 4}, {span({2, 7})}), (Report{0, kNoRank, "take ", 2, 7}));
  EXPECT_EQ(reportOf({3, 4}, {all(), span({-5})}), (Report{0, kNoRank, "take ", -5, -1}));
  EXPECT_EQ(reportOf({3, 4}, {span({1, 3, 0})}), (Report{0, kNoRank, "take ", 1, 3}));
}

TEST(PartReporter, HearsPartdOfMoreSelectorsThanDimensions) {
  EXPECT_EQ(reportOf({3}, {all(), all()}), (Report{0, kNoRank, "partd ", 0, 0}));
  EXPECT_EQ(reportOf({}, {position(1)}), (Report{0, kNoRank, "partd ", 0, 0}));
}

TEST(PartReporter, HearsOfTheFirstFaultOnly) {
  EXPECT_EQ(reportOf({3}, {position(4), all()}), (Report{0, kNoRank, "partw ", 4, 0}));
  EXPECT_EQ(reportOf({3, 3}, {span({9}), position(4)}), (Report{0, kNoRank, "take ", 1, 9}));
}

TEST(PartReporter, HearsNothingOfWhatFitsNorOfAMalformedSelector) {
  EXPECT_EQ(reportOf({3, 4, 5}, {position(-1), list({1, 2})}), (Report{1, 2, "", -99, -99}));
  EXPECT_EQ(reportOf({3}, {span({})}), (Report{0, kNoRank, "", -99, -99}));
  EXPECT_EQ(reportOf({3}, {unknown(9)}), (Report{0, kNoRank, "", -99, -99}));
}

TEST(PartReporter, HearsOfAnAssignmentAsOfAnExtraction) {
  const Tensor target = integers({3, 4}), source = integers({5});
  const Selectors outside{position(4)}, inside{position(3)};
  Recorder recorder;
  PartSelectors bad = outside.records(), good = inside.records();
  EXPECT_EQ(MTensor_checkPartAssignment(target.get(), target.get(), 1, bad.get(), &recorder.reporter), 0);
  EXPECT_EQ(recorder.tags, "partw ");
  EXPECT_EQ(MTensor_checkPartAssignment(target.get(), source.get(), 1, good.get(), &recorder.reporter), 2);
  EXPECT_EQ(MTensor_checkPartAssignment(target.get(), integers({2}).get(), 1, good.get(), nullptr), 2);
  EXPECT_EQ(MTensor_checkPartAssignment(target.get(), integers({4}).get(), 1, good.get(), nullptr), 1);
  EXPECT_EQ(recorder.tags, "partw ");
}

TEST(PartSpec, HoldsWhatTheCheckFoundOut) {
  const Selectors selectors{position(-1), list({-2, 1}), span({-1, 2})};
  const Extents extents = {2, 3, 5, 7, 11};
  PartSelectors records = selectors.records();
  PartSpec *specs = records.get();
  mint rank;
  ASSERT_EQ(MTensor_checkPartSpecs(5, extents.data(), 3, specs, &rank, nullptr), 1);
  EXPECT_EQ(rank, 4);
  EXPECT_EQ(specs[0].count, 1);
  EXPECT_EQ(specs[0].positions[0], 2);
  EXPECT_EQ(specs[0].stride, 3 * 5 * 7 * 11);
  EXPECT_EQ(Values(specs[1].positions, specs[1].positions + 2), Values({2, 1}));
  EXPECT_EQ(specs[1].stride, 5 * 7 * 11);
  EXPECT_EQ(specs[2].count, 4);
  EXPECT_EQ(Values(specs[2].positions, specs[2].positions + 4), Values({5, 2, -1, 0}));
  EXPECT_EQ(specs[2].blockLength, 7 * 11);
}

TEST(PartSpec, OfAWholeDimensionAndAListHasCountAndStride) {
  const Extents extents = {2, 3, 5};
  PartSelectors records = Selectors{all(), list({2})}.records();
  PartSpec *specs = records.get();
  mint rank;
  ASSERT_EQ(MTensor_checkPartSpecs(3, extents.data(), 2, specs, &rank, nullptr), 1);
  EXPECT_EQ(rank, 3);
  EXPECT_EQ(specs[0].count, 2);
  EXPECT_EQ(specs[0].stride, 15);
  EXPECT_EQ(specs[1].count, 1);
  EXPECT_EQ(specs[1].stride, 5);
}

TEST(PartSpec, ThatNoCheckPassesCountsMinusOne) {
  const Tensor reals = tensorOf<mreal>({1}, {1}), matrix = integers({1, 1});
  MTensor *tensors[] = {reals.get(), matrix.get(), nullptr};
  const Extents extents = {2};
  const auto expectInvalid = [&](PartSelectors &&records) {
    EXPECT_EQ(records.get()[0].count, -1);
    mint rank = 0;
    EXPECT_EQ(MTensor_checkPartSpecs(1, extents.data(), 1, records.get(), &rank, nullptr), 0);
    EXPECT_EQ(rank, 0x7FFFFFFF);
  };
  for (MTensor *&tensor : tensors)
    for (const mint kind : {TORVANE_PART_LIST, TORVANE_PART_SPAN}) {
      void *const given = &tensor;
      expectInvalid(PartSelectors(1, &kind, &given));
    }
  expectInvalid(Selectors{span({})}.records());
  expectInvalid(Selectors{span({1, 2, 1, 0})}.records());
  for (const mint kind : {-1, 4, 5, INT32_MAX}) expectInvalid(Selectors{unknown(kind)}.records());
}

TEST(PartSpec, OfAWholeDimensionIsNotLookedAt) {
  const Tensor source = integers({3}), target = integers({3}), other = integers({1});
  const mint kind = TORVANE_PART_ALL;
  void *const wild = reinterpret_cast<void *>(uintptr_t{8});
  MTensor *slot = nullptr;
  ASSERT_EQ(MTensor_getParts(nullptr, &slot, source.get(), 1, 1, &kind, &wild), 0);
  const Tensor part(slot);
  EXPECT_EQ(valuesOf<mint>(part), Values({1, 2, 3}));
  ASSERT_EQ(MTensor_getParts(target.get(), &slot, source.get(), 1, 1, &kind, &wild), 0);
  EXPECT_EQ(slot, target.get());
  ASSERT_EQ(MTensor_setParts(target.get(), other.get(), 1, 1, &kind, &wild), 0);
  EXPECT_EQ(valuesOf<mint>(target), Values({1, 1, 1}));
}

// ---- one sub-tensor ----

TEST(SelectedSubTensor, StandsAtAFlatPosition) {
  const Tensor source = integers({2, 3, 2});
  MTensor *slot = nullptr;
  ASSERT_EQ(MTensor_partSelectOne(&slot, source.get(), 2, 4), 0);
  EXPECT_EQ(extentsOf(slot), Extents({2}));
  EXPECT_EQ(static_cast<mint *>(slot->data)[0], 9);
  ASSERT_EQ(MTensor_partSelectOne(&slot, source.get(), 3, 11), 0);
  EXPECT_EQ(slot->rank, 0);
  EXPECT_EQ(*static_cast<mint *>(slot->data), 12);
  ASSERT_EQ(MTensor_partSelectOne(&slot, source.get(), 0, 0), 0);
  EXPECT_EQ(extentsOf(slot), Extents({2, 3, 2}));
  ASSERT_EQ(MTensor_partSelectOne(&slot, slot, 1, 1), 0);
  const Tensor owned(slot);
  EXPECT_EQ(valuesOf<mint>(owned), Values({7, 8, 9, 10, 11, 12}));
}

TEST(SelectedSubTensor, IsOfTheTypeOfItsSourceAndMayBeEmpty) {
  const Tensor complexes = tensorOf<mcomplex>({2, 2}, {{1, 2}, {3, 4}, {5, 6}, {7, 8}});
  const Tensor rowsWithout = newTensor(TORVANE_TYPE_REAL, {3, 0});
  MTensor *slot = nullptr;
  ASSERT_EQ(MTensor_partSelectOne(&slot, complexes.get(), 1, 1), 0);
  const Tensor row(slot);
  EXPECT_EQ(slot->type, TORVANE_TYPE_COMPLEX);
  EXPECT_EQ(extentsOf(slot), Extents({2}));
  EXPECT_EQ(elements<mcomplex>(row)[0].re, 5);
  EXPECT_EQ(elements<mcomplex>(row)[1].im, 8);
  slot = nullptr;
  ASSERT_EQ(MTensor_partSelectOne(&slot, complexes.get(), 2, 2), 0);
  const Tensor one(slot);
  EXPECT_EQ(slot->rank, 0);
  EXPECT_EQ(elements<mcomplex>(one)[0].im, 6);
  slot = nullptr;
  ASSERT_EQ(MTensor_partSelectOne(&slot, rowsWithout.get(), 1, 2), 0);
  const Tensor empty(slot);
  EXPECT_EQ(slot->type, TORVANE_TYPE_REAL);
  EXPECT_EQ(extentsOf(slot), Extents({0}));
  EXPECT_TRUE(isValidTensor(slot));
}

TEST(SelectedSubTensor, ReportsMissingMemoryAsFive) {
  const Tensor source = newTensor(TORVANE_TYPE_REAL, {2, 300000});
  FailingHeap heap;
  heap.failFrom(1);
  MTensor *slot = nullptr;
  const mint status = MTensor_partSelectOne(&slot, source.get(), 1, 1);
  heap.succeed();
  EXPECT_EQ(status, 5);
  EXPECT_EQ(slot, nullptr);
}

// ---- memory ----

// The payload is the one block that a thread's heap does not keep.
TEST(PartMemory, ThatIsShortForTheResultIsAFailure) {
  const Tensor source = newTensor(TORVANE_TYPE_REAL, {2, 300000}), bystander = integers({2});
  const Selectors row{position(1)};
  partOf(source, row);
  const uint32_t before = usedBytesOfThisThread();
  FailingHeap heap;
  const int64_t failures = failEveryRequest(heap, [&] {
    MTensor *slot = bystander.get();
    const mint status = row.get(nullptr, &slot, source.get(), 1);
    EXPECT_EQ(status, heap.failed() ? 1 : 0);
    EXPECT_EQ(slot == bystander.get(), heap.failed());
    if (slot != bystander.get()) MTensor_delete(slot);
    EXPECT_EQ(usedBytesOfThisThread(), before);
  });
  EXPECT_EQ(failures, 1);
  EXPECT_EQ(heap.blocksOut(), 0);
}

TEST(PartMemory, ThatIsShortForAReusedResultLeavesItsRecordAndTheSlot) {
  const Tensor source = newTensor(TORVANE_TYPE_REAL, {2, 300000}), bystander = integers({2});
  MTensor_initialize(source.get(), 6);
  const uint32_t before = usedBytesOfThisThread();
  Tensor result = integers({4});
  const Selectors row{position(1)};
  FailingHeap heap;
  heap.failFrom(1);
  MTensor *slot = bystander.get();
  EXPECT_EQ(row.get(result.get(), &slot, source.get(), 1), 1);
  EXPECT_TRUE(heap.failed());
  heap.succeed();
  EXPECT_EQ(slot, bystander.get());
  ASSERT_EQ(row.get(result.get(), &slot, source.get(), 1), 0);
  EXPECT_EQ(slot, result.get());
  EXPECT_EQ(extentsOf(result), Extents({300000}));
  EXPECT_EQ(elements<mreal>(result)[299999], 6);
  EXPECT_TRUE(isValidTensor(slot));
  result.reset();
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST(PartMemory, ThatIsShortLeavesASourceThatWasToBeReplacedWhole) {
  const Tensor source = newTensor(TORVANE_TYPE_INTEGER, {2, 300000});
  MTensor_initialize(source.get(), 6);
  FailingHeap heap;
  heap.failFrom(1);
  MTensor *slot = nullptr;
  EXPECT_EQ(Selectors{position(1)}.get(source.get(), &slot, source.get(), 1), 1);
  heap.succeed();
  EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(extentsOf(source), Extents({2, 300000}));
  EXPECT_EQ(elements<mint>(source)[599999], 6);
  EXPECT_TRUE(isValidTensor(source.get()));
}

TEST(PartMemory, ThatIsShortForTheSelectorsEndsTheProcess) {
  const Tensor source = integers({1}), many = tensorOf({300000}, Values(300000, 1));
  MTensor *positions = many.get(), *slot = nullptr;
  const mint kind = TORVANE_PART_LIST;
  void *specs[] = {&positions};
  for (const bool assigns : {false, true}) {
    const ChildOutcome outcome = runInChild([&] {
      FailingHeap heap;
      heap.failFrom(1);
      if (assigns)
        MTensor_setParts(source.get(), source.get(), 1, 1, &kind, specs);
      else
        MTensor_getParts(nullptr, &slot, source.get(), 1, 1, &kind, specs);
    });
    EXPECT_TRUE(outcome.exited);
    EXPECT_EQ(outcome.status, 1);
  }
}

} // namespace

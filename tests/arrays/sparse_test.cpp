// Sparse arrays: record and skeleton, building from positions, copies, statuses, bytes.
#include "arrays/sparse_array.h"
#include "arrays/sparse_support.h"
#include "runtime/memory.h"
#include "runtime/startup.h"
#include "support/child_process.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

using namespace torvane;
using namespace torvane::test;

namespace {

using Integers = std::vector<mint>;
using Reals = std::vector<mreal>;

const Tensor nothing;

// Every test gives back what it takes.
class SparseArray : public testing::Test {
protected:
  void SetUp() override { before = usedBytesOfThisThread(); }
  void TearDown() override { EXPECT_EQ(usedBytesOfThisThread(), before); }
  uint32_t before = 0;
};

TEST_F(SparseArray, IsNewAsAPatternWithoutElements) {
  for (mint rank = 0; rank < 5; ++rank) {
    const Sparse array(MSparseArray_new(rank));
    EXPECT_EQ(array->state, 0u);
    EXPECT_EQ(array->elementCount, 0);
    EXPECT_EQ(array->flags, 0u);
    EXPECT_EQ(array->reserved, 0u);
    EXPECT_EQ(array->property->rank, rank);
    EXPECT_EQ(array->property->type, 1);
    EXPECT_GE(blockUsableBytes(array->property->dimensions), uint32_t(4 * std::max(rank, 2)));
    EXPECT_EQ(array->skeleton->rowPointers, nullptr);
    EXPECT_EQ(array->skeleton->columnIndices, nullptr);
    EXPECT_EQ(array->skeleton->values, nullptr);
    EXPECT_EQ(array->skeleton->shared, 0u);
    EXPECT_EQ(array->skeleton->background->type, TORVANE_TYPE_INTEGER);
    EXPECT_EQ(array->skeleton->background->elementType, 5);
    EXPECT_EQ(backgroundOf<mint>(array.get()), 0);
  }
}

TEST_F(SparseArray, HasABackgroundWithRoomForEveryType) {
  const Sparse array(MSparseArray_new(2));
  EXPECT_GE(blockUsableBytes(array->skeleton->background->data), 16u);
}

TEST_F(SparseArray, AllocatedWithoutElementsHasRowPointersOfZero) {
  const mint extents[] = {3, 4};
  const Sparse array(MSparseArray_newAllocated(2, extents, 0));
  EXPECT_EQ(rowPointersOf(array.get()), Integers({0, 0, 0, 0}));
  EXPECT_EQ(array->skeleton->columnIndices, nullptr);
  EXPECT_EQ(array->columnIndexData, nullptr);
  EXPECT_TRUE(isValidSparseArray(array.get()));
}

TEST_F(SparseArray, OfRankOneIsOneRow) {
  const mint extent = 5;
  const Sparse array(MSparseArray_newAllocated(1, &extent, 2));
  EXPECT_EQ(rowPointersOf(array.get()), Integers({0, 2}));
  EXPECT_EQ(extentsOf(array->skeleton->columnIndices), Extents({2, 1}));
  EXPECT_EQ(array->property->dimensions[0], 5);
}

TEST_F(SparseArray, OfAHigherRankHasALineForEveryElement) {
  const mint extents[] = {3, 4, 5, 6};
  const Sparse array(MSparseArray_newAllocated(4, extents, 7));
  EXPECT_EQ(rowPointersOf(array.get()), Integers({0, 0, 0, 7}));
  EXPECT_EQ(extentsOf(array->skeleton->columnIndices), Extents({7, 3}));
  EXPECT_EQ(array->rowPointerData, array->skeleton->rowPointers->data);
  EXPECT_EQ(array->columnIndexData, array->skeleton->columnIndices->data);
}

TEST_F(SparseArray, OfRankZeroHasNoIndexTensors) {
  const Sparse array(MSparseArray_newAllocated(0, nullptr, 0));
  EXPECT_EQ(array->skeleton->rowPointers, nullptr);
  EXPECT_EQ(array->rowPointerData, nullptr);
}

TEST_F(SparseArray, IsRefusedANegativeExtentWhereverItStands) {
  const mint extents[] = {2, 3, -1};
  EXPECT_EQ(newSparseArray(3, extents, 0, kReport), nullptr);
  EXPECT_EQ(newSparseArray(1, extents + 2, 0, kReport), nullptr);
  const Sparse array(newSparseArray(2, extents, 0, kReport));
  EXPECT_NE(array, nullptr);
}

TEST_F(SparseArray, GivesIndexTensorsToAnySlots) {
  const mint extents[] = {2, 4};
  const Sparse array(MSparseArray_newAllocated(2, extents, 3));
  Tensor used = newTensor(TORVANE_TYPE_REAL, {9});
  MTensor *const record = used.get();
  MTensor *rows = used.release(), *columns = nullptr;
  SparseArraySkeleton_allocIndexMTensors(array.get(), &rows, &columns);
  const Tensor ownedRows(rows), ownedColumns(columns);
  EXPECT_EQ(rows, record);
  EXPECT_EQ(valuesOf<mint>(ownedRows), Integers({0, 0, 3}));
  EXPECT_EQ(extentsOf(ownedColumns), Extents({3, 1}));
  EXPECT_EQ(array->rowPointerData, rows->data);
  EXPECT_EQ(array->columnIndexData, columns->data);
}

TEST_F(SparseArray, WithoutElementsEmptiesTheSlotOfTheColumns) {
  const mint extents[] = {2, 4};
  const Sparse array(MSparseArray_newAllocated(2, extents, 0));
  MTensor *rows = nullptr, *columns = newTensor(TORVANE_TYPE_INTEGER, {2, 1}).release();
  SparseArraySkeleton_allocIndexMTensors(array.get(), &rows, &columns);
  const Tensor owned(rows);
  EXPECT_EQ(columns, nullptr);
  EXPECT_EQ(array->columnIndexData, nullptr);
}

TEST_F(SparseArray, TakesValuesOfATypeAndCoercesItsBackground) {
  const mint extent = 9;
  const Sparse array(MSparseArray_newAllocated(1, &extent, 2));
  const void *storage = array->skeleton->background->data;
  setBackgroundValue(array.get(), scalarTensor<mint>(7).get());
  MTensor *values = MSparseArray_allocValues(array.get(), TORVANE_TYPE_COMPLEX);
  EXPECT_EQ(values, array->skeleton->values);
  EXPECT_EQ(extentsOf(values), Extents({2}));
  EXPECT_EQ(values->type, TORVANE_TYPE_COMPLEX);
  EXPECT_EQ(array->property->type, TORVANE_TYPE_COMPLEX);
  EXPECT_EQ(backgroundOf<mcomplex>(array.get()).re, 7);
  EXPECT_EQ(backgroundOf<mcomplex>(array.get()).im, 0);
  EXPECT_EQ(array->skeleton->background->elementType, 12);
  MSparseArray_allocValues(array.get(), TORVANE_TYPE_REAL);
  EXPECT_EQ(backgroundOf<mreal>(array.get()), 7);
  EXPECT_EQ(MSparseArray_allocValues(array.get(), 1), nullptr);
  EXPECT_EQ(array->skeleton->values, nullptr);
  EXPECT_EQ(array->property->type, 1);
  EXPECT_EQ(array->skeleton->background->type, TORVANE_TYPE_INTEGER);
  EXPECT_EQ(backgroundOf<mint>(array.get()), 7);
  EXPECT_EQ(array->skeleton->background->data, storage);
}

TEST_F(SparseArray, TakesNoValuesOfATypeThatIsNone) {
  const mint extent = 9;
  const Sparse array(MSparseArray_newAllocated(1, &extent, 2));
  MTensor *values = MSparseArray_allocValues(array.get(), TORVANE_TYPE_REAL);
  for (const mint type : {-1, 0, 5, 6}) EXPECT_EQ(MSparseArray_allocValues(array.get(), type), nullptr);
  EXPECT_EQ(array->skeleton->values, values);
  EXPECT_EQ(array->property->type, TORVANE_TYPE_REAL);
}

TEST_F(SparseArray, CountsItsBytesAsTheAllocatorDoes) {
  EXPECT_EQ(MSparseArray_byteCount(nullptr), 0u);
  const uint32_t records =
      allocatedBytesFor(sizeof(MSparseArray)) + allocatedBytesFor(sizeof(TensorProperty));
  const Sparse scalar(MSparseArray_new(0));
  EXPECT_EQ(MSparseArray_byteCount(scalar.get()),
            records + MTensor_getByteCount(scalar->skeleton->background));
  const mint extents[] = {3, 4, 5};
  const Sparse array(MSparseArray_newAllocated(3, extents, 6));
  MSparseArray_allocValues(array.get(), TORVANE_TYPE_REAL);
  const uint32_t own = records + allocatedBytesFor(12);
  const SparseArraySkeleton *s = array->skeleton;
  EXPECT_EQ(MSparseArray_byteCount(array.get()),
            own + MTensor_getByteCount(s->rowPointers) + MTensor_getByteCount(s->columnIndices) +
                MTensor_getByteCount(s->values) + MTensor_getByteCount(s->background));
  array->flags = TORVANE_SPARSE_BORROWED;
  EXPECT_EQ(MSparseArray_byteCount(array.get()), own);
}

TEST_F(SparseArray, SurvivesADeleteWhileItsSkeletonIsShared) {
  MSparseArray_delete(nullptr);
  Sparse array(MSparseArray_new(2));
  array->skeleton->shared = 1;
  const uint32_t used = usedBytesOfThisThread();
  MSparseArray_delete(array.get());
  EXPECT_EQ(usedBytesOfThisThread(), used);
  array->skeleton->shared = 0;
}

TEST_F(SparseArray, TellsItsPropertiesToWhomeverAsks) {
  const Sparse array = fromPositions(matrixOf({{2, 1}}, 2), vectorOf<mreal>({5}), vectorOf<mint>({2, 3}),
                                     scalarTensor<mreal>(1));
  mint rank, *dimensions, count, *rows, *columns, type;
  MTensor *values, *background;
  MSparseArray_getProperties(array.get(), &rank, &dimensions, &count, &rows, &columns, &type, &values,
                             &background);
  EXPECT_EQ(rank, 2);
  EXPECT_EQ(dimensions, array->property->dimensions);
  EXPECT_EQ(count, 1);
  EXPECT_EQ(rows, array->rowPointerData);
  EXPECT_EQ(columns, array->columnIndexData);
  EXPECT_EQ(type, TORVANE_TYPE_REAL);
  EXPECT_EQ(values, array->skeleton->values);
  EXPECT_EQ(background, array->skeleton->background);
  MSparseArray_getProperties(array.get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                             nullptr);
}

TEST_F(SparseArray, EndsTheProcessForExtentsThatNothingHolds) {
  const mint negatives[][3] = {{-2, 3, 4}, {2, -3, 4}, {-1, 3, 4}, {2, 3, -4}}, widest[] = {INT32_MAX, 1};
  for (const auto &negative : negatives)
    EXPECT_EQ(runInChild([&] { MSparseArray_newAllocated(3, negative, 0); }).status, 1);
  EXPECT_EQ(runInChild([&] { MSparseArray_newAllocated(1, negatives[2], 0); }).status, 1);
  EXPECT_EQ(runInChild([&] { MSparseArray_newAllocated(2, widest, 0); }).status, 1);
}

TEST(SparseStartup, SetsTheDefaultToleranceAtStageZero) {
  EXPECT_EQ(kStartupModules[5].initialize, initializeSparseArrays);
  initializeSparseArrays(0);
  EXPECT_EQ(sparseDefaultTolerance(), 0.01);
}

// ---- from positions ----

class SparseFromPositions : public SparseArray {};

TEST_F(SparseFromPositions, SortsRowsAndTakesTheValuesAlong) {
  const Sparse array =
      fromPositions(matrixOf({{2, 1}, {1, 1}}, 2), vectorOf<mint>({10, 20}), nothing, nothing);
  ASSERT_NE(array, nullptr);
  EXPECT_EQ(rowPointersOf(array.get()), Integers({0, 1, 2}));
  EXPECT_EQ(sparseValuesOf<mint>(array.get()), Integers({20, 10}));
  EXPECT_EQ(extentsOf(array.get()), Extents({2, 1}));
  EXPECT_EQ(array->property->type, TORVANE_TYPE_INTEGER);
  EXPECT_EQ(backgroundOf<mint>(array.get()), 0);
}

TEST_F(SparseFromPositions, KeepsOrderAndRepetitionsWithinARow) {
  const Lines lines = {{3, 2}, {1, 4}, {3, 1}, {1, 4}, {3, 2}};
  const Sparse array =
      fromPositions(matrixOf(lines, 2), vectorOf<mreal>({1, 2, 3, 4, 5}), nothing, scalarTensor<mreal>(9));
  EXPECT_EQ(linesOf(array.get()), Lines({{1, 4}, {1, 4}, {3, 2}, {3, 1}, {3, 2}}));
  EXPECT_EQ(sparseValuesOf<mreal>(array.get()), Reals({2, 4, 1, 3, 5}));
  EXPECT_EQ(rowPointersOf(array.get()), Integers({0, 2, 2, 5}));
  EXPECT_EQ(backgroundOf<mreal>(array.get()), 9);
  EXPECT_TRUE(isValidSparseArray(array.get()));
}

TEST_F(SparseFromPositions, OfRankOneTakesThemAsTheyAre) {
  const Sparse array =
      fromPositions(matrixOf({{4}, {1}, {4}}, 1), vectorOf<mint>({7, 8, 9}), nothing, nothing);
  EXPECT_EQ(extentsOf(array.get()), Extents({4}));
  EXPECT_EQ(rowPointersOf(array.get()), Integers({0, 3}));
  EXPECT_EQ(linesOf(array.get()), Lines({{4}, {1}, {4}}));
  EXPECT_EQ(sparseValuesOf<mint>(array.get()), Integers({7, 8, 9}));
}

TEST_F(SparseFromPositions, WithoutValuesIsAPattern) {
  for (const Lines &lines : {Lines{{1, 2}, {2, 2}}, Lines{{2, 2}, {1, 2}}}) {
    const Sparse array = fromPositions(matrixOf(lines, 2), nothing, nothing, scalarTensor<mreal>(2.75));
    EXPECT_EQ(array->property->type, 1);
    EXPECT_EQ(array->skeleton->values, nullptr);
    EXPECT_EQ(linesOf(array.get()), Lines({{1, 2}, {2, 2}}));
    EXPECT_EQ(backgroundOf<mint>(array.get()), 3);
    EXPECT_TRUE(isValidSparseArray(array.get()));
  }
}

TEST_F(SparseFromPositions, WithoutLinesIsEmpty) {
  const Sparse none = fromPositions(matrixOf({}, 3), nothing, nothing, nothing);
  EXPECT_EQ(extentsOf(none.get()), Extents({0, 0, 0}));
  EXPECT_EQ(rowPointersOf(none.get()), Integers({0}));
  const Sparse given = fromPositions(matrixOf({}, 2), vectorOf<mint>({}), vectorOf<mint>({2, 5}), nothing);
  EXPECT_EQ(rowPointersOf(given.get()), Integers({0, 0, 0}));
  EXPECT_EQ(given->property->type, TORVANE_TYPE_INTEGER);
  EXPECT_TRUE(isValidSparseArray(given.get()));
}

TEST_F(SparseFromPositions, RefusesFaultyArguments) {
  const Tensor positions = matrixOf({{1, 1}, {2, 2}}, 2), values = vectorOf<mint>({1, 2});
  const auto refused = [&](const Tensor &p, const Tensor &v, const Tensor &d, const Tensor &b) {
    return fromPositions(p, v, d, b) == nullptr;
  };
  EXPECT_TRUE(refused(nothing, values, nothing, nothing));
  EXPECT_TRUE(refused(vectorOf<mint>({1, 2}), values, nothing, nothing)) << "rank of positions";
  EXPECT_TRUE(refused(tensorOf<mreal>({2, 1}, {1, 1}), values, nothing, nothing)) << "type of positions";
  EXPECT_TRUE(refused(newTensor(TORVANE_TYPE_INTEGER, {2, 0}), values, nothing, nothing)) << "no coordinates";
  EXPECT_TRUE(refused(positions, matrixOf({{1}, {2}}, 1), nothing, nothing)) << "rank of values";
  EXPECT_TRUE(refused(positions, vectorOf<mint>({1}), nothing, nothing)) << "number of values";
  EXPECT_TRUE(refused(positions, vectorOf<mreal>({1, 2}), nothing, nothing))
      << "reals over an integer background";
  EXPECT_TRUE(refused(positions, values, nothing, scalarTensor<mreal>(0)))
      << "integers over a real background";
  EXPECT_TRUE(refused(positions, values, nothing, vectorOf<mint>({0}))) << "rank of background";
  EXPECT_TRUE(refused(positions, nothing, nothing, Tensor(MTensor_new()))) << "type of background";
  EXPECT_TRUE(refused(positions, values, vectorOf<mint>({2}), nothing)) << "number of extents";
  EXPECT_TRUE(refused(positions, values, vectorOf<mreal>({2, 2}), nothing)) << "type of extents";
  EXPECT_TRUE(refused(positions, values, matrixOf({{2, 2}}, 2), nothing)) << "rank of extents";
  EXPECT_TRUE(refused(matrixOf({}, 2), nothing, vectorOf<mint>({2, -1}), nothing)) << "negative extent";
  EXPECT_TRUE(refused(matrixOf({{INT32_MAX, 1}}, 2), nothing, nothing, nothing)) << "rows beyond an integer";
  EXPECT_FALSE(refused(positions, values, vectorOf<mint>({2, 2}), scalarTensor<mint>(0)));
}

TEST_F(SparseFromPositions, RefusesACoordinateOutside) {
  for (const mint bad : {0, -1, 3, INT32_MIN, INT32_MAX})
    for (const Lines &lines : {Lines{{1, 1}, {bad, 1}}, Lines{{1, 1}, {1, bad}}, Lines{{1, bad}}}) {
      EXPECT_EQ(fromPositions(matrixOf(lines, 2), nothing, vectorOf<mint>({2, 2}), nothing), nullptr) << bad;
      if (bad < 1) EXPECT_EQ(fromPositions(matrixOf(lines, 2), nothing, nothing, nothing), nullptr) << bad;
    }
  EXPECT_EQ(fromPositions(matrixOf({{0}}, 1), nothing, nothing, nothing), nullptr);
  EXPECT_EQ(fromPositions(matrixOf({{1, 1, 0}}, 3), nothing, nothing, nothing), nullptr);
}

TEST_F(SparseFromPositions, DeletesWhatTheSlotHeldInAnyCase) {
  MSparseArray *slot = MSparseArray_new(2);
  const Tensor positions = matrixOf({{1, 1}}, 2), zero = matrixOf({{0, 1}}, 2);
  EXPECT_EQ(MSparseArray_fromPositions(positions.get(), nullptr, nullptr, nullptr, &slot), 0);
  EXPECT_EQ(slot->elementCount, 1);
  EXPECT_EQ(MSparseArray_fromPositions(zero.get(), nullptr, nullptr, nullptr, &slot), -1);
  EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(MSparseArray_fromPositions(positions.get(), nullptr, nullptr, nullptr, nullptr), -1);
}

TEST_F(SparseFromPositions, MayReadTheArrayInTheSlot) {
  MSparseArray *slot =
      fromPositions(matrixOf({{2, 1}, {1, 3}}, 2), vectorOf<mint>({5, 6}), nothing, scalarTensor<mint>(4))
          .release();
  const SparseArraySkeleton *s = slot->skeleton;
  const Tensor positions = matrixOf({{3, 1}, {2, 2}}, 2);
  ASSERT_EQ(MSparseArray_fromPositions(positions.get(), s->values, nullptr, s->background, &slot), 0);
  const Sparse owned(slot);
  EXPECT_EQ(sparseValuesOf<mint>(slot), Integers({5, 6}));
  EXPECT_EQ(linesOf(slot), Lines({{2, 2}, {3, 1}}));
  EXPECT_EQ(backgroundOf<mint>(slot), 4);
}

// ---- copies ----

using SparseCopy = SparseArray;

TEST_F(SparseCopy, HasEverythingButTheFlagsOfTheProperty) {
  for (mint rank = 1; rank < 4; ++rank) {
    const std::vector<mint> first(size_t(rank), 2), second(size_t(rank), 1);
    const Sparse array = fromPositions(matrixOf({first, second}, rank), vectorOf<mreal>({1.5, 2.5}), nothing,
                                       scalarTensor<mreal>(-0.5));
    array->flags = 2, array->reserved = 77;
    array->property->flags = 5, array->property->realProperty = 3.5;
    const Sparse copy(MSparseArray_copy(array.get()));
    EXPECT_TRUE(isValidSparseArray(copy.get()));
    EXPECT_EQ(extentsOf(copy.get()), extentsOf(array.get()));
    EXPECT_EQ(linesOf(copy.get()), linesOf(array.get()));
    EXPECT_EQ(sparseValuesOf<mreal>(copy.get()), sparseValuesOf<mreal>(array.get()));
    EXPECT_NE(copy->skeleton->values, array->skeleton->values);
    EXPECT_EQ(backgroundOf<mreal>(copy.get()), -0.5);
    EXPECT_EQ(copy->flags, 2u);
    EXPECT_EQ(copy->reserved, 77u);
    EXPECT_EQ(copy->property->flags, 0u);
    EXPECT_EQ(copy->property->realProperty, 3.5);
  }
}

TEST_F(SparseCopy, OfAPatternOfAnEmptyAndOfAScalarArray) {
  const Sparse pattern = fromPositions(matrixOf({{2, 1}}, 2), nothing, nothing, scalarTensor<mint>(3));
  const Sparse patternCopy(MSparseArray_copy(pattern.get()));
  EXPECT_EQ(patternCopy->property->type, 1);
  EXPECT_EQ(patternCopy->skeleton->values, nullptr);
  EXPECT_EQ(backgroundOf<mint>(patternCopy.get()), 3);
  const Sparse empty = fromPositions(matrixOf({}, 2), vectorOf<mint>({}), vectorOf<mint>({2, 2}), nothing);
  const Sparse emptyCopy(MSparseArray_copy(empty.get()));
  EXPECT_EQ(emptyCopy->skeleton->values, nullptr);
  EXPECT_EQ(emptyCopy->property->type, TORVANE_TYPE_INTEGER);
  EXPECT_TRUE(isValidSparseArray(emptyCopy.get()));
  const Sparse scalar(MSparseArray_new(0));
  const Sparse scalarCopy(MSparseArray_copy(scalar.get()));
  EXPECT_EQ(scalarCopy->property->rank, 0);
}

TEST_F(SparseCopy, OfAnArrayWhoseExtentsNobodyHasStored) {
  for (mint rank = 1; rank < 5; ++rank) {
    void *dirt = allocate(uint32_t(4 * rank), 0, kFatal);
    std::memset(dirt, 0x7F, size_t(4 * rank));
    torvane::free(dirt); // the next extents are likely to stand here
    const Sparse array(MSparseArray_new(rank));
    EXPECT_EQ(extentsOf(array.get()), Extents(size_t(rank), 0));
    const Sparse copy(MSparseArray_copy(array.get()));
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(extentsOf(copy.get()), Extents(size_t(rank), 0));
    EXPECT_TRUE(isValidSparseArray(copy.get()));
  }
}

TEST_F(SparseCopy, ByHandleReplacesTheTarget) {
  const Sparse array = fromPositions(matrixOf({{2, 1}}, 2), nothing, nothing, nothing);
  MSparseArray *slot = MSparseArray_new(3);
  EXPECT_EQ(MSparseArray_copyHandle(array.get(), &slot), 0);
  const Sparse owned(slot);
  EXPECT_EQ(linesOf(slot), Lines({{2, 1}}));
  EXPECT_EQ(MSparseArray_copyHandle(slot, &slot), 0);
  EXPECT_EQ(slot, owned.get());
  EXPECT_EQ(MSparseArray_copyHandle(nullptr, &slot), -1);
  EXPECT_EQ(MSparseArray_copyHandle(array.get(), nullptr), -1);
  EXPECT_EQ(slot, owned.get());
}

} // namespace

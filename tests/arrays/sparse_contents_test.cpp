// What sparse arrays say: random arrays of rank 1 to 5 against dense models, tensors and back, repetitions,
// backgrounds.
#include "arrays/sparse_array.h"
#include "arrays/sparse_support.h"
#include "runtime/memory.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>
#include <random>
#include <set>

using namespace torvane;
using namespace torvane::test;

namespace {

using Integers = std::vector<mint>;
using Reals = std::vector<mreal>;
const Tensor nothing;
const mreal kNaN = std::numeric_limits<mreal>::quiet_NaN();

class SparseContents : public testing::Test {
protected:
  void SetUp() override { before = usedBytesOfThisThread(); }
  void TearDown() override { EXPECT_EQ(usedBytesOfThisThread(), before); }
  uint32_t before = 0;
};

template <class Element> Element elementOf(mint n) {
  if constexpr (sizeof(Element) == sizeof(mcomplex))
    return {mreal(n), mreal(n % 3)};
  else
    return Element(n);
}

template <class Element> bool same(const Element &a, const Element &b) {
  return memcmp(&a, &b, sizeof a) == 0;
}

// An array as a map of its places, and the positions that it was built from.
template <class Element> struct Drawn {
  Extents extents;
  Lines lines;
  std::vector<Element> values;
  Element background;

  Drawn(mint rank, bool repeats, std::mt19937 &random)
      : background(elementOf<Element>(mint(random() % 2) * 7)) {
    size_t places = 1;
    for (mint k = 0; k < rank; ++k) {
      extents.push_back(1 + mint(random() % (rank < 3 ? 9 : 4)));
      places *= size_t(extents.back());
    }
    const size_t wanted = random() % (places + 3);
    std::set<std::vector<mint>> seen;
    for (size_t i = 0; i < wanted; ++i) {
      std::vector<mint> line;
      for (const mint extent : extents) line.push_back(1 + mint(random() % uint32_t(extent)));
      if (!seen.insert(line).second && !repeats) continue;
      lines.push_back(line);
      values.push_back(elementOf<Element>(mint(random() % 9)));
    }
    if (random() % 2 == 0) sortByRow();
  }

  // Lines of a row stay in their order.
  std::vector<size_t> orderByRow() const {
    std::vector<size_t> order(lines.size());
    std::iota(order.begin(), order.end(), size_t{0});
    std::sort(order.begin(), order.end(), [&](size_t a, size_t b) {
      return lines[a][0] != lines[b][0] ? lines[a][0] < lines[b][0] : a < b;
    });
    return order;
  }

  void sortByRow() {
    Drawn unsorted = *this;
    const std::vector<size_t> order = orderByRow();
    for (size_t i = 0; i < order.size(); ++i) {
      lines[i] = unsorted.lines[order[i]];
      values[i] = unsorted.values[order[i]];
    }
  }

  size_t placeOf(const std::vector<mint> &line) const {
    size_t place = 0;
    for (size_t k = 0; k < line.size(); ++k) place = place * size_t(extents[k]) + size_t(line[k] - 1);
    return place;
  }

  // Repeated places hold the last of them.
  std::vector<Element> dense() const {
    size_t places = 1;
    for (const mint extent : extents) places *= size_t(extent);
    std::vector<Element> elements(places, background);
    for (size_t i = 0; i < lines.size(); ++i) elements[placeOf(lines[i])] = values[i];
    return elements;
  }

  Sparse build() const {
    return fromPositions(matrixOf(lines, mint(extents.size())), vectorOf(values), vectorOf<mint>(extents),
                         scalarTensor(background));
  }
};

template <class Element> std::vector<Element> denseOf(const MSparseArray *array) {
  MTensor *slot = nullptr;
  EXPECT_EQ(MSparseArray_toTensor(array, &slot), 0);
  const Tensor tensor(slot);
  EXPECT_EQ(tensor->type, typeOf<Element>());
  EXPECT_EQ(extentsOf(tensor), extentsOf(array));
  return valuesOf<Element>(tensor);
}

template <class Element> void expectSame(const std::vector<Element> &a, const std::vector<Element> &b) {
  ASSERT_EQ(a.size(), b.size());
  for (size_t i = 0; i < a.size(); ++i) ASSERT_TRUE(same(a[i], b[i])) << i;
}

// The lines in row order, and with them their values.
template <class Element> void expectLines(const MSparseArray *array, const Drawn<Element> &drawn) {
  Drawn<Element> byRow = drawn;
  if (drawn.extents.size() > 1) byRow.sortByRow();
  ASSERT_EQ(linesOf(array), byRow.lines);
  expectSame(sparseValuesOf<Element>(array), byRow.values);
}

template <class Element> void expectNoRepetitions(const Sparse &array, const Drawn<Element> &drawn) {
  MSparseArray *slot = nullptr;
  ASSERT_EQ(MSparseArray_dropDuplicates(array.get(), 1, &slot), 0);
  const Sparse owned(slot == array.get() ? nullptr : slot);
  ASSERT_TRUE(isValidSparseArray(slot));
  Lines first;
  std::vector<Element> values;
  std::set<std::vector<mint>> seen;
  const Lines all = linesOf(array.get());
  const std::vector<Element> allValues = sparseValuesOf<Element>(array.get());
  for (size_t i = 0; i < all.size(); ++i)
    if (seen.insert(all[i]).second) first.push_back(all[i]), values.push_back(allValues[i]);
  ASSERT_EQ(slot == array.get(), first.size() == all.size());
  ASSERT_EQ(linesOf(slot), first);
  expectSame(sparseValuesOf<Element>(slot), values);
  EXPECT_TRUE(same(backgroundOf<Element>(slot), drawn.background));
}

template <class Element> void expectOtherBackground(const Sparse &array, const Drawn<Element> &drawn) {
  const Tensor five = scalarTensor(elementOf<Element>(5));
  MSparseArray *slot = nullptr;
  ASSERT_EQ(MSparseArray_setBackground(array.get(), five.get(), &slot), 0);
  const Sparse owned(slot);
  ASSERT_TRUE(isValidSparseArray(slot));
  EXPECT_TRUE(same(backgroundOf<Element>(slot), elementOf<Element>(5)));
  expectSame(denseOf<Element>(slot), drawn.dense());
  for (const Element &value : sparseValuesOf<Element>(slot)) ASSERT_FALSE(same(value, elementOf<Element>(5)));
}

template <class Element> void expectWithoutBackground(const Sparse &array, const Drawn<Element> &drawn) {
  MSparseArray *slot = nullptr;
  ASSERT_EQ(MSparseArray_setBackground(array.get(), nullptr, &slot), 0);
  const Sparse owned(slot == array.get() ? nullptr : slot);
  ASSERT_TRUE(isValidSparseArray(slot));
  Lines kept;
  const Lines all = linesOf(array.get());
  const std::vector<Element> values = sparseValuesOf<Element>(array.get());
  for (size_t i = 0; i < all.size(); ++i)
    if (!same(values[i], drawn.background)) kept.push_back(all[i]);
  ASSERT_EQ(linesOf(slot), kept);
  ASSERT_EQ(slot == array.get(), kept.size() == all.size());
}

template <class Element> void expectFromDense(const Drawn<Element> &drawn) {
  const std::vector<Element> dense = drawn.dense();
  const Tensor tensor = tensorOf(drawn.extents, dense), background = scalarTensor(drawn.background);
  MSparseArray *slot = nullptr;
  ASSERT_EQ(MSparseArray_fromTensor(tensor.get(), background.get(), &slot), 0);
  const Sparse owned(slot);
  ASSERT_TRUE(isValidSparseArray(slot));
  std::vector<Element> kept;
  for (const Element &x : dense)
    if (!same(x, drawn.background)) kept.push_back(x);
  expectSame(sparseValuesOf<Element>(slot), kept);
  expectSame(denseOf<Element>(slot), dense);
  const Lines lines = linesOf(slot);
  for (size_t i = 0; i + 1 < lines.size(); ++i) ASSERT_LT(lines[i], lines[i + 1]);
}

template <class Element> void expectEverything(const Drawn<Element> &drawn) {
  const Sparse array = drawn.build();
  ASSERT_NE(array, nullptr);
  ASSERT_TRUE(isValidSparseArray(array.get()));
  expectLines(array.get(), drawn);
  expectSame(denseOf<Element>(array.get()), drawn.dense());
  expectNoRepetitions(array, drawn);
  expectWithoutBackground(array, drawn);
  expectOtherBackground(array, drawn);
  expectFromDense(drawn);
}

TEST_F(SparseContents, AreThoseOfADenseModelAtRanksOneToFive) {
  std::mt19937 random(8);
  for (mint i = 0; i < 300 && !HasFatalFailure(); ++i) {
    expectEverything(Drawn<mint>(1 + i % 5, i % 2 == 0, random));
    expectEverything(Drawn<mreal>(1 + i % 5, i % 2 == 0, random));
    expectEverything(Drawn<mcomplex>(1 + i % 5, i % 2 == 0, random));
  }
}

TEST_F(SparseContents, LeaveNoPlaceUnwrittenWhereRepetitionsOutnumberThePlaces) {
  const Sparse array = fromPositions(matrixOf({{2}, {2}, {2}}, 1), vectorOf<mint>({1, 2, 3}),
                                     vectorOf<mint>({3}), scalarTensor<mint>(-1));
  EXPECT_EQ(denseOf<mint>(array.get()), Integers({-1, 3, -1}));
}

TEST_F(SparseContents, GoIntoATensorThatTheSlotHolds) {
  const Sparse array = fromPositions(matrixOf({{2, 1}}, 2), vectorOf<mint>({4}), nothing, nothing);
  MTensor *const used = newTensor(TORVANE_TYPE_COMPLEX, {7}).release();
  MTensor *slot = used;
  EXPECT_EQ(MSparseArray_toTensor(array.get(), &slot), 0);
  const Tensor owned(slot);
  EXPECT_EQ(slot, used);
  EXPECT_EQ(valuesOf<mint>(owned), Integers({0, 4}));
}

TEST_F(SparseContents, OfAnArrayOfRankZeroAreItsBackground) {
  const Sparse array(MSparseArray_new(0));
  MSparseArray_allocValues(array.get(), TORVANE_TYPE_REAL);
  setBackgroundValue(array.get(), scalarTensor<mreal>(2.5).get());
  EXPECT_EQ(denseOf<mreal>(array.get()), Reals({2.5}));
}

TEST_F(SparseContents, OfAPatternAreNotServed) {
  const Sparse pattern = fromPositions(matrixOf({{2, 1}}, 2), nothing, nothing, nothing);
  MTensor *tensor = nullptr;
  EXPECT_EQ(MSparseArray_toTensor(pattern.get(), &tensor), 1);
  EXPECT_EQ(tensor, nullptr);
}

TEST_F(SparseContents, ThatAreTooManyAreRefused) {
  const Sparse array =
      fromPositions(matrixOf({{1, 1}}, 2), vectorOf<mint>({1}), vectorOf<mint>({65536, 65536}), nothing);
  MTensor *tensor = nullptr;
  EXPECT_EQ(MSparseArray_toTensor(array.get(), &tensor), 403);
  EXPECT_EQ(tensor, nullptr);
  MSparseArray *slot = nullptr;
  EXPECT_EQ(MSparseArray_setBackground(array.get(), scalarTensor<mint>(3).get(), &slot), 403);
  EXPECT_EQ(slot, nullptr);
}

// ---- from tensors ----

using SparseFromTensor = SparseContents;

TEST_F(SparseFromTensor, OfBackgroundAloneIsEmpty) {
  const Tensor tensor = tensorOf<mreal>({2, 2}, {0.0, -0.0, 0.0, 0.0});
  MSparseArray *slot = nullptr;
  ASSERT_EQ(MSparseArray_fromTensor(tensor.get(), nullptr, &slot), 0);
  const Sparse owned(slot);
  EXPECT_EQ(slot->elementCount, 0);
  EXPECT_EQ(rowPointersOf(slot), Integers({0, 0, 0}));
  EXPECT_EQ(backgroundOf<mreal>(slot), 0);
  EXPECT_EQ(slot->skeleton->background->type, TORVANE_TYPE_REAL);
}

TEST_F(SparseFromTensor, OfNoElementsIsEmpty) {
  for (const Extents &extents : {Extents{0}, Extents{0, 3}, Extents{3, 0}, Extents{2, 0, 4}}) {
    const Tensor tensor = newTensor(TORVANE_TYPE_INTEGER, extents);
    MSparseArray *slot = nullptr;
    ASSERT_EQ(MSparseArray_fromTensor(tensor.get(), nullptr, &slot), 0);
    const Sparse owned(slot);
    EXPECT_TRUE(isValidSparseArray(slot));
    EXPECT_EQ(extentsOf(slot), extents);
    EXPECT_EQ(denseOf<mint>(slot), Integers());
  }
}

TEST_F(SparseFromTensor, RefusesFaultsAndLeavesTheSlot) {
  const Tensor tensor = tensorOf<mreal>({2}, {1, 2});
  const Sparse held(MSparseArray_new(2));
  MSparseArray *slot = held.get();
  EXPECT_EQ(MSparseArray_fromTensor(tensor.get(), scalarTensor<mint>(0).get(), &slot), -1);
  EXPECT_EQ(MSparseArray_fromTensor(tensor.get(), vectorOf<mreal>({0}).get(), &slot), -1);
  EXPECT_EQ(MSparseArray_fromTensor(nullptr, nullptr, &slot), -1);
  EXPECT_EQ(MSparseArray_fromTensor(scalarTensor<mreal>(1).get(), nullptr, &slot), -1) << "no rows";
  EXPECT_EQ(MSparseArray_fromTensor(Tensor(MTensor_new()).get(), nullptr, &slot), -1);
  EXPECT_EQ(MSparseArray_fromTensor(tensor.get(), nullptr, nullptr), -1);
  EXPECT_EQ(slot, held.get());
}

TEST_F(SparseFromTensor, ReplacesTheArrayInTheSlot) {
  const Tensor tensor = tensorOf<mint>({3}, {0, 5, 0});
  MSparseArray *slot = MSparseArray_new(4);
  ASSERT_EQ(MSparseArray_fromTensor(tensor.get(), nullptr, &slot), 0);
  const Sparse owned(slot);
  EXPECT_EQ(linesOf(slot), Lines({{2}}));
}

// 64 units in the last place are half of what seven bits tolerate; 200 are beyond.
TEST_F(SparseFromTensor, LeavesOutRealsThatDifferFromABackgroundInTheirLastBits) {
  const mreal ulp = std::ldexp(1.0, -52);
  const Tensor tensor = tensorOf<mreal>({5}, {1.0, 1 + 30 * ulp, 1 + 200 * ulp, -1.0, kNaN});
  MSparseArray *slot = nullptr;
  ASSERT_EQ(MSparseArray_fromTensor(tensor.get(), scalarTensor<mreal>(1).get(), &slot), 0);
  const Sparse owned(slot);
  EXPECT_EQ(linesOf(slot), Lines({{3}, {4}, {5}}));
}

TEST_F(SparseFromTensor, LeavesOutNothingButZerosFromAZeroBackground) {
  const mreal tiny = std::numeric_limits<mreal>::denorm_min();
  const Tensor tensor = tensorOf<mreal>({4}, {0.0, -0.0, tiny, -tiny});
  MSparseArray *slot = nullptr;
  ASSERT_EQ(MSparseArray_fromTensor(tensor.get(), nullptr, &slot), 0);
  const Sparse owned(slot);
  EXPECT_EQ(linesOf(slot), Lines({{3}, {4}}));
}

TEST_F(SparseFromTensor, ComparesComplexesPartByPart) {
  const mreal ulp = std::ldexp(1.0, -52), tiny = std::numeric_limits<mreal>::denorm_min();
  const Tensor tensor =
      tensorOf<mcomplex>({4}, {{1 + 30 * ulp, 0}, {1, tiny}, {1 + 200 * ulp, 0}, {1, -0.0}});
  MSparseArray *slot = nullptr;
  ASSERT_EQ(MSparseArray_fromTensor(tensor.get(), scalarTensor<mcomplex>({1, 0}).get(), &slot), 0);
  const Sparse owned(slot);
  EXPECT_EQ(linesOf(slot), Lines({{2}, {3}}));
}

// The coordinates of an element, by its place in the tensor.
std::vector<mint> coordinatesAt(const Extents &extents, size_t place) {
  std::vector<mint> line(extents.size());
  for (size_t k = extents.size(); k-- > 0; place /= size_t(extents[k]))
    line[k] = 1 + mint(place % size_t(extents[k]));
  return line;
}

template <class Element>
void expectFound(const Extents &extents, const std::vector<Element> &dense, const Tensor &background,
                 const std::vector<bool> &counts) {
  MSparseArray *slot = nullptr;
  ASSERT_EQ(MSparseArray_fromTensor(tensorOf(extents, dense).get(), background.get(), &slot), 0);
  const Sparse owned(slot);
  ASSERT_TRUE(isValidSparseArray(slot));
  Lines lines;
  std::vector<Element> values;
  for (size_t i = 0; i < dense.size(); ++i)
    if (counts[i]) lines.push_back(coordinatesAt(extents, i)), values.push_back(dense[i]);
  ASSERT_EQ(linesOf(slot), lines);
  expectSame(sparseValuesOf<Element>(slot), values);
}

// What equals the background and what does not, in any mixture from none to all.
template <class Element>
void expectFoundAmong(const std::vector<Element> &same, const std::vector<Element> &others,
                      const Tensor &background) {
  std::mt19937 random(31);
  for (mint places = 1; places <= 200; ++places) {
    const auto ofFour = random() % 5;
    std::vector<Element> dense;
    std::vector<bool> counts;
    for (mint i = 0; i < places; ++i) {
      counts.push_back(random() % 4 < ofFour);
      const std::vector<Element> &from = counts.back() ? others : same;
      dense.push_back(from[random() % from.size()]);
    }
    for (const Extents &extents : {Extents{places}, Extents{1, places}, Extents{places, 1}})
      expectFound(extents, dense, background, counts);
    for (const mint rows : {2, 3, 7})
      if (places % rows == 0) {
        expectFound(Extents{rows, places / rows}, dense, background, counts);
        expectFound(Extents{places / rows, 1, rows}, dense, background, counts);
      }
    if (testing::Test::HasFatalFailure()) return;
  }
}

TEST_F(SparseFromTensor, FindsTheElementsThatCountWhereverTheyStand) {
  const mreal tiny = std::numeric_limits<mreal>::denorm_min(), ulp = std::ldexp(1.0, -52);
  expectFoundAmong<mint>({0}, {1, -1, INT32_MIN, INT32_MAX, 1 << 16}, nothing);
  expectFoundAmong<mint>({7}, {0, -7}, scalarTensor<mint>(7));
  expectFoundAmong<mreal>({0.0, -0.0}, {tiny, -tiny, 1, kNaN, -kNaN, HUGE_VAL}, nothing);
  expectFoundAmong<mreal>({0.0, -0.0}, {tiny, 1}, scalarTensor<mreal>(-0.0));
  expectFoundAmong<mreal>({1, 1 + 30 * ulp}, {0, 1 + 200 * ulp, -1, kNaN}, scalarTensor<mreal>(1));
  expectFoundAmong<mcomplex>({{0, 0}, {-0.0, 0}, {0, -0.0}}, {{tiny, 0}, {0, -tiny}, {kNaN, 0}}, nothing);
}

// ---- repetitions ----

using SparseRepetitions = SparseContents;

TEST_F(SparseRepetitions, OfAPatternGoWithoutValuesAndFailWithThem) {
  const Sparse pattern =
      fromPositions(matrixOf({{2, 1}, {2, 1}, {1, 1}}, 2), nothing, nothing, scalarTensor<mint>(6));
  MSparseArray *slot = nullptr;
  EXPECT_EQ(MSparseArray_dropDuplicates(pattern.get(), 1, &slot), -1);
  EXPECT_EQ(slot, nullptr);
  ASSERT_EQ(MSparseArray_dropDuplicates(pattern.get(), 0, &slot), 0);
  const Sparse owned(slot);
  EXPECT_EQ(linesOf(slot), Lines({{1, 1}, {2, 1}}));
  EXPECT_EQ(backgroundOf<mint>(slot), 6);
  EXPECT_TRUE(isValidSparseArray(slot));
}

TEST_F(SparseRepetitions, GoWithTheValuesWhereNoneAreAskedFor) {
  const Sparse array = fromPositions(matrixOf({{2, 1}, {2, 1}}, 2), vectorOf<mint>({1, 2}), nothing, nothing);
  MSparseArray *slot = nullptr;
  ASSERT_EQ(MSparseArray_dropDuplicates(array.get(), 0, &slot), 0);
  const Sparse owned(slot);
  EXPECT_EQ(slot->property->type, 1);
  EXPECT_TRUE(isValidSparseArray(slot));
}

TEST_F(SparseRepetitions, InAnotherRowAreNone) {
  const Sparse array = fromPositions(matrixOf({{1, 5}, {2, 5}, {3, 5}}, 2), nothing, nothing, nothing);
  const Sparse empty(MSparseArray_new(1));
  MSparseArray *slot = nullptr;
  EXPECT_EQ(MSparseArray_dropDuplicates(array.get(), 1, &slot), 0);
  EXPECT_EQ(slot, array.get());
  EXPECT_EQ(MSparseArray_dropDuplicates(empty.get(), 1, &slot), 0);
  EXPECT_EQ(slot, empty.get());
}

// ---- backgrounds ----

using SparseBackground = SparseContents;

Sparse realArray(const Reals &values, mreal background) {
  Lines lines;
  for (size_t i = 0; i < values.size(); ++i) lines.push_back({1, mint(i) + 1});
  return fromPositions(matrixOf(lines, 2), vectorOf(values), nothing, scalarTensor(background));
}

TEST_F(SparseBackground, OfAPatternOrOfAnotherTypeOrRankIsRefused) {
  const Sparse array = realArray({1, 2}, 0),
               pattern = fromPositions(matrixOf({{1, 1}}, 2), nothing, nothing, nothing);
  MSparseArray *slot = nullptr;
  EXPECT_EQ(MSparseArray_setBackground(pattern.get(), nullptr, &slot), 1);
  EXPECT_EQ(MSparseArray_setBackground(array.get(), scalarTensor<mint>(0).get(), &slot), 1);
  EXPECT_EQ(MSparseArray_setBackground(array.get(), vectorOf<mint>({0}).get(), &slot), 1);
  EXPECT_EQ(MSparseArray_setBackground(array.get(), vectorOf<mreal>({0}).get(), &slot), 2);
  EXPECT_EQ(MSparseArray_setBackground(array.get(), scalarTensor<mreal>(0).get(), nullptr), -1);
  EXPECT_EQ(MSparseArray_setBackground(array.get(), nullptr, nullptr), -1);
  EXPECT_EQ(slot, nullptr);
}

TEST_F(SparseBackground, ThatEqualsTheOldOneDropsItsElementsAndStays) {
  const mreal ulp = std::ldexp(1.0, -52);
  const Sparse array = realArray({1, 4, 1 + 20 * ulp, 0}, 1);
  MSparseArray *slot = nullptr;
  ASSERT_EQ(MSparseArray_setBackground(array.get(), scalarTensor<mreal>(1 + 10 * ulp).get(), &slot), 0);
  const Sparse owned(slot);
  EXPECT_NE(slot, array.get());
  EXPECT_EQ(sparseValuesOf<mreal>(slot), Reals({4, 0}));
  EXPECT_EQ(backgroundOf<mreal>(slot), 1);
}

TEST_F(SparseBackground, OfAllElementsLeavesNone) {
  const Sparse array = realArray({2, 2, 2}, 2);
  MSparseArray *slot = MSparseArray_new(1);
  ASSERT_EQ(MSparseArray_setBackground(array.get(), nullptr, &slot), 0);
  const Sparse owned(slot);
  EXPECT_EQ(slot->elementCount, 0);
  EXPECT_EQ(slot->skeleton->columnIndices, nullptr);
  EXPECT_TRUE(isValidSparseArray(slot));
  EXPECT_EQ(denseOf<mreal>(slot), Reals({2, 2, 2}));
}

TEST_F(SparseBackground, KeepsTheArrayWhereNothingIsToDrop) {
  const Sparse array = realArray({1, 2}, 0);
  MSparseArray *slot = MSparseArray_new(1);
  EXPECT_EQ(MSparseArray_setBackground(array.get(), nullptr, &slot), 0);
  EXPECT_EQ(slot, array.get());
  EXPECT_EQ(MSparseArray_setBackground(array.get(), nullptr, &slot), 0);
  EXPECT_EQ(slot, array.get());
  EXPECT_TRUE(isValidSparseArray(slot));
}

TEST_F(SparseBackground, MayTakeThePlaceOfItsArray) {
  MSparseArray *slot = realArray({1, 0, 2}, 0).release();
  EXPECT_EQ(MSparseArray_setBackground(slot, nullptr, &slot), 0);
  EXPECT_EQ(sparseValuesOf<mreal>(slot), Reals({1, 2}));
  EXPECT_EQ(MSparseArray_setBackground(slot, scalarTensor<mreal>(2).get(), &slot), 0);
  const Sparse owned(slot);
  EXPECT_EQ(sparseValuesOf<mreal>(slot), Reals({1, 0}));
  EXPECT_EQ(linesOf(slot), Lines({{1, 1}, {1, 2}}));
  EXPECT_EQ(backgroundOf<mreal>(slot), 2);
}

TEST_F(SparseBackground, ThatEqualsTheOldOneKeepsIntegersAndComplexes) {
  const mreal ulp = std::ldexp(1.0, -52);
  const Tensor positions = matrixOf({{1, 1}, {1, 2}}, 2);
  const Sparse integers = fromPositions(positions, vectorOf<mint>({1, 2}), nothing, scalarTensor<mint>(9));
  const Sparse complexes =
      fromPositions(positions, vectorOf<mcomplex>({{1, 0}, {3, 4}}), nothing, scalarTensor<mcomplex>({1, 2}));
  MSparseArray *slot = MSparseArray_new(1); // a third array, which goes
  EXPECT_EQ(MSparseArray_setBackground(integers.get(), scalarTensor<mint>(9).get(), &slot), 0);
  EXPECT_EQ(slot, integers.get());
  slot = MSparseArray_new(1);
  const Tensor near = scalarTensor<mcomplex>({1 + 10 * ulp, 2 - 20 * ulp});
  EXPECT_EQ(MSparseArray_setBackground(complexes.get(), near.get(), &slot), 0);
  EXPECT_EQ(slot, complexes.get());
  EXPECT_EQ(backgroundOf<mcomplex>(slot).re, 1);
  EXPECT_EQ(backgroundOf<mcomplex>(slot).im, 2);
}

TEST_F(SparseBackground, ThatIsAnotherRebuildsInPlaceOfAThirdArray) {
  const mreal ulp = std::ldexp(1.0, -52);
  const Tensor positions = matrixOf({{1, 1}, {1, 2}}, 2);
  const Sparse integers = fromPositions(positions, vectorOf<mint>({1, 2}), nothing, scalarTensor<mint>(9));
  const Sparse complexes =
      fromPositions(positions, vectorOf<mcomplex>({{1, 0}, {3, 4}}), nothing, scalarTensor<mcomplex>({1, 2}));
  MSparseArray *slot = MSparseArray_new(1);
  ASSERT_EQ(MSparseArray_setBackground(integers.get(), scalarTensor<mint>(2).get(), &slot), 0);
  const Sparse first(slot);
  EXPECT_NE(slot, integers.get());
  EXPECT_EQ(sparseValuesOf<mint>(slot), Integers({1}));
  EXPECT_EQ(backgroundOf<mint>(slot), 2);
  slot = MSparseArray_new(1);
  const Tensor far = scalarTensor<mcomplex>({1 + 200 * ulp, 2});
  ASSERT_EQ(MSparseArray_setBackground(complexes.get(), far.get(), &slot), 0);
  const Sparse second(slot);
  EXPECT_NE(slot, complexes.get());
  EXPECT_EQ(backgroundOf<mcomplex>(slot).re, 1 + 200 * ulp);
  EXPECT_EQ(slot->elementCount, 2);
}

TEST_F(SparseBackground, OfZeroIsAnotherThanTheSmallestReal) {
  const mreal tiny = std::numeric_limits<mreal>::denorm_min();
  const Sparse array = fromPositions(matrixOf({{1, 1}, {1, 3}}, 2), vectorOf<mreal>({1, tiny}),
                                     vectorOf<mint>({1, 3}), scalarTensor<mreal>(0));
  MSparseArray *slot = nullptr;
  ASSERT_EQ(MSparseArray_setBackground(array.get(), scalarTensor<mreal>(tiny).get(), &slot), 0);
  const Sparse owned(slot);
  EXPECT_NE(slot, array.get());
  EXPECT_EQ(backgroundOf<mreal>(slot), tiny);
  EXPECT_EQ(linesOf(slot), Lines({{1, 1}, {1, 2}}));
  EXPECT_EQ(sparseValuesOf<mreal>(slot), Reals({1, 0}));
}

TEST_F(SparseBackground, ThatIsRefusedLeavesAThirdArrayInTheSlot) {
  const Sparse array = realArray({1, 2}, 0), third(MSparseArray_new(1)),
               pattern = fromPositions(matrixOf({{1, 1}}, 2), nothing, nothing, nothing);
  const Sparse wide =
      fromPositions(matrixOf({{1, 1}}, 2), vectorOf<mint>({1}), vectorOf<mint>({65536, 65536}), nothing);
  MSparseArray *slot = third.get();
  EXPECT_EQ(MSparseArray_setBackground(pattern.get(), nullptr, &slot), 1);
  EXPECT_EQ(MSparseArray_setBackground(array.get(), scalarTensor<mint>(0).get(), &slot), 1);
  EXPECT_EQ(MSparseArray_setBackground(array.get(), vectorOf<mreal>({0}).get(), &slot), 2);
  EXPECT_EQ(MSparseArray_setBackground(wide.get(), scalarTensor<mint>(3).get(), &slot), 403);
  EXPECT_EQ(slot, third.get());
  EXPECT_EQ(third->property->rank, 1);
}

// It has an element by its count, and neither rows nor columns.
TEST_F(SparseBackground, OfAnArrayOfRankZeroLeavesIt) {
  const Sparse array(MSparseArray_newAllocated(0, nullptr, 1));
  *static_cast<mreal *>(MSparseArray_allocValues(array.get(), TORVANE_TYPE_REAL)->data) = 0;
  MSparseArray *slot = nullptr;
  EXPECT_EQ(MSparseArray_dropDuplicates(array.get(), 1, &slot), 0);
  EXPECT_EQ(slot, array.get());
  slot = nullptr;
  EXPECT_EQ(MSparseArray_setBackground(array.get(), nullptr, &slot), 0);
  EXPECT_EQ(slot, array.get());
  EXPECT_EQ(MSparseArray_setBackground(array.get(), scalarTensor<mreal>(0).get(), &slot), 0);
  EXPECT_EQ(slot, array.get());
  EXPECT_EQ(MSparseArray_setBackground(array.get(), scalarTensor<mreal>(1).get(), &slot), -1);
  EXPECT_EQ(slot, array.get());
  EXPECT_EQ(MSparseArray_dropBackground(array.get()), array.get());
}

TEST_F(SparseBackground, OfNaNTakesNothing) {
  const Sparse array = realArray({kNaN, 1}, kNaN);
  MSparseArray *slot = nullptr;
  EXPECT_EQ(MSparseArray_setBackground(array.get(), nullptr, &slot), 0);
  EXPECT_EQ(slot, array.get());
}

} // namespace

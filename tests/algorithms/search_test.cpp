// Count, MemberQ, FreeQ and Position against a walk over every index of every block.
#include "algorithms/search.h"
#include "exact_call.h"
#include "sort_model.h"

#include <torvane/tolerance.h>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mreal kNaN = std::numeric_limits<mreal>::quiet_NaN();
constexpr mreal kInfinity = std::numeric_limits<mreal>::infinity();

class Searches : public NamedFunctions {};

// ---- model ----

std::vector<Extents> indicesOf(const Extents &extents) {
  std::vector<Extents> indices;
  modelOf(extents, [&](const Extents &index) {
    indices.push_back(index);
    return 0;
  });
  return indices;
}

// At tolerances where the test has no memory (below 52).
bool isNear(mreal tolerance, mreal x, mreal pattern) {
  return tolerance > 0 ? near1_double(tolerance, x, pattern) == 1 : x == pattern;
}
bool isNear(mreal, mint x, mint pattern) { return x == pattern; }
bool isNear(mreal tolerance, mcomplex x, mcomplex pattern) {
  return isNear(tolerance, x.re, pattern.re) && isNear(tolerance, x.im, pattern.im);
}

// The indices from 0 at which the pattern stands.
template <class Element>
std::vector<Extents> modelMatches(const Tensor &tensor, const Tensor &pattern, mreal tolerance) {
  std::vector<Extents> found;
  const Extents extents = extentsOf(tensor), inner = extentsOf(pattern);
  if (inner.size() > extents.size() || countOf(inner) == 0) return found;
  const auto cut = extents.end() - ptrdiff_t(inner.size());
  if (Extents(cut, extents.end()) != inner) return found;
  for (const Extents &above : indicesOf(Extents(extents.begin(), cut))) {
    bool matches = true;
    for (const Extents &below : indicesOf(inner)) {
      Extents index = above;
      index.insert(index.end(), below.begin(), below.end());
      matches = matches && isNear(tolerance, elements<Element>(tensor)[offsetOf(extents, index)],
                                  elements<Element>(pattern)[offsetOf(inner, below)]);
    }
    if (matches) found.push_back(above);
  }
  return found;
}

Tensor positionsOf(const std::vector<Extents> &found, mint columns) {
  std::vector<mint> entries;
  for (const Extents &index : found)
    for (const mint i : index) entries.push_back(i + 1);
  return tensorOf<mint>({mint(found.size()), columns}, entries);
}

// ---- calls ----

mint answerOf(const char *name, const Tensor &tensor, const Tensor &pattern, mreal tolerance) {
  NamedCall call(name);
  call.tensor(cloneOf(tensor.get())).tensor(cloneOf(pattern.get())).real(tolerance);
  mint answer = -77;
  EXPECT_EQ(call.run(&answer), 0) << name;
  return answer;
}

void expectCounts(const Tensor &tensor, const Tensor &pattern, mreal tolerance, mint count) {
  EXPECT_EQ(answerOf("Count", tensor, pattern, tolerance), count);
  EXPECT_EQ(answerOf("MemberQ", tensor, pattern, tolerance), count > 0);
  EXPECT_EQ(answerOf("FreeQ", tensor, pattern, tolerance), count == 0);
}

void expectPositions(const Tensor &tensor, const Tensor &pattern, mreal tolerance, const Tensor &expected) {
  NamedCall call("Position");
  call.tensor(cloneOf(tensor.get())).tensor(cloneOf(pattern.get())).real(tolerance);
  expectExactly(call, expected);
}

template <class Element> void expectFound(const Tensor &tensor, const Tensor &pattern, mreal tolerance) {
  const std::vector<Extents> found = modelMatches<Element>(tensor, pattern, tolerance);
  const mint depth = std::max(tensor->rank - pattern->rank, 0);
  expectCounts(tensor, pattern, tolerance, depth > 0 ? mint(found.size()) : 0);
  expectPositions(tensor, pattern, tolerance, positionsOf(found, depth));
}

// ---- samples ----

mreal sampleReal(std::mt19937 &random) {
  const mreal one = 1 + mint(random() % 3) * std::numeric_limits<mreal>::epsilon();
  const mreal values[] = {one, one, one, 0.0, -0.0, kNaN, kInfinity, -kInfinity, -one};
  return values[random() % 100 < 70 ? random() % 3 : random() % 9];
}
mint sample(std::mt19937 &random, const mint *) { return random() % 100 < 80 ? 7 : mint(random() % 3); }
mreal sample(std::mt19937 &random, const mreal *) { return sampleReal(random); }
mcomplex sample(std::mt19937 &random, const mcomplex *) { return {sampleReal(random), sampleReal(random)}; }

template <class Element> Tensor sampleTensor(std::mt19937 &random, const Extents &extents) {
  Tensor tensor = newTensor(typeOf<Element>(), extents);
  for (mint i = 0; i < tensor->elementCount; ++i)
    elements<Element>(tensor)[i] = sample(random, elements<Element>(tensor));
  return tensor;
}

Extents patternExtents(std::mt19937 &random, const Extents &extents) {
  Extents inner(extents.begin() + ptrdiff_t(random() % (extents.size() + 1)), extents.end());
  if (random() % 10 == 0) inner.insert(inner.begin(), 2);
  if (random() % 10 == 0 && !inner.empty()) inner.back() += 1;
  return inner;
}

template <class Element> void searchAtRandom(unsigned seed) {
  std::mt19937 random(seed);
  for (int round = 0; round < 250; ++round) {
    const Extents extents = randomExtents(random, 0, 4);
    const Tensor tensor = sampleTensor<Element>(random, extents);
    const Tensor pattern = sampleTensor<Element>(random, patternExtents(random, extents));
    const mreal tolerances[] = {0, -3, 1, 7, 30, kNaN};
    expectFound<Element>(tensor, pattern, tolerances[random() % 6]);
  }
}

TEST_F(Searches, OfIntegersFindBlocksOfEveryRankInEverySlot) { searchAtRandom<mint>(1); }
TEST_F(Searches, OfRealsFindBlocksOfEveryRankInEverySlot) { searchAtRandom<mreal>(2); }
TEST_F(Searches, OfComplexesFindBlocksOfEveryRankInEverySlot) { searchAtRandom<mcomplex>(3); }

// Long vectors are looked through many elements at a time.
template <class Element> void findAtPlaces(Element other, Element wanted) {
  for (const mint length : {1, 255, 256, 257, 5000})
    for (const std::vector<mint> &places :
         {std::vector<mint>{}, {0}, {255}, {256}, {length - 1}, {3, 4, 254, 255, 511, 700, length - 1}}) {
      const Tensor tensor = tensorOf<Element>({length}, std::vector<Element>(size_t(length), other));
      for (const mint place : places)
        if (place < length) elements<Element>(tensor)[place] = wanted;
      expectFound<Element>(tensor, tensorOf<Element>({}, {wanted}), 0);
    }
}

TEST_F(Searches, FindElementsWhereverTheyStandInALongVector) {
  findAtPlaces<mint>(4, 5);
  findAtPlaces<mreal>(0.25, -0.0);
  findAtPlaces<mcomplex>({1, 2}, {1, 3});
  findAtPlaces<mcomplex>({2, 1}, {3, 1});
}

TEST_F(Searches, FindRowsThatDifferInTheirLastElementOnly) {
  std::vector<mreal> rows(300 * 200, 1.5);
  rows[200 * 17 + 199] = 2;
  const Tensor matrix = tensorOf<mreal>({300, 200}, rows);
  const Tensor pattern = tensorOf<mreal>({200}, std::vector<mreal>(rows.begin(), rows.begin() + 200));
  expectCounts(matrix, pattern, 0, 299);
  elements<mreal>(pattern)[199] = 2;
  expectPositions(matrix, pattern, 0, tensorOf<mint>({1, 1}, {18}));
}

TEST_F(Searches, PositionsGoByRowsAndColumnsFromOne) {
  expectPositions(tensorOf<mint>({2, 2}, {1, 2, 2, 1}), tensorOf<mint>({}, {2}), 0,
                  tensorOf<mint>({2, 2}, {1, 2, 2, 1}));
}

TEST_F(Searches, APatternAsLargeAsTheTensorStandsAtOnePositionWithoutNumbers) {
  const Tensor pair = tensorOf<mint>({2}, {1, 2}), other = tensorOf<mint>({2}, {1, 3});
  expectPositions(pair, pair, 0, newTensor(TORVANE_TYPE_INTEGER, {1, 0}));
  expectPositions(pair, other, 0, newTensor(TORVANE_TYPE_INTEGER, {0, 0}));
  expectCounts(pair, pair, 0, 0);
}

TEST_F(Searches, APatternOfHigherRankStandsNowhere) {
  const Tensor vector = tensorOf<mint>({1}, {1}), matrix = tensorOf<mint>({1, 1}, {1});
  expectPositions(vector, matrix, 0, newTensor(TORVANE_TYPE_INTEGER, {0, 0}));
  expectCounts(vector, matrix, 0, 0);
}

TEST_F(Searches, APatternOfOtherExtentsHasAMatrixOfNoRows) {
  const Tensor matrix = tensorOf<mint>({2, 2}, {1, 1, 1, 1}), three = tensorOf<mint>({3}, {1, 1, 1});
  expectPositions(matrix, three, 0, newTensor(TORVANE_TYPE_INTEGER, {0, 1}));
  expectCounts(matrix, three, 0, 0);
}

TEST_F(Searches, APatternWithoutElementsStandsNowhere) {
  const Tensor rows = newTensor(TORVANE_TYPE_REAL, {3, 0}), none = newTensor(TORVANE_TYPE_REAL, {0});
  expectPositions(rows, none, 0, newTensor(TORVANE_TYPE_INTEGER, {0, 1}));
  expectCounts(rows, none, 0, 0);
}

TEST_F(Searches, OfAnotherTypeFindNothing) {
  const Tensor integers = tensorOf<mint>({2}, {1, 1}), real = tensorOf<mreal>({}, {1});
  expectCounts(integers, real, 0, 0);
  expectPositions(integers, real, 0, newTensor(TORVANE_TYPE_INTEGER, {0, 1}));
  expectCounts(tensorOf<mreal>({2}, {1, 1}), tensorOf<mint>({}, {1}), 0, 0);
}

TEST_F(Searches, WithoutAToleranceAreExact) {
  const mreal above = 1 + std::numeric_limits<mreal>::epsilon();
  for (const char *name : {"Count", "MemberQ"}) {
    NamedCall call(name);
    call.tensor(tensorOf<mreal>({2}, {above, 1})).tensor(tensorOf<mreal>({}, {1}));
    mint answer = -77;
    EXPECT_EQ(call.run(&answer), 0);
    EXPECT_EQ(answer, 1);
  }
  NamedCall call("Position");
  call.tensor(tensorOf<mreal>({2}, {above, 1})).tensor(tensorOf<mreal>({}, {1}));
  expectExactly(call, tensorOf<mint>({1, 1}, {2}));
  expectCounts(tensorOf<mreal>({2}, {above, 1}), tensorOf<mreal>({}, {1}), 2, 2);
}

// Any two values of one sign are equal at 53 bits, and a NaN counts as positive there.
TEST_F(Searches, AskTheTolerantTestForTheElementAndThePatternInThisOrder) {
  const Tensor tensor = tensorOf<mreal>({4}, {1, 1e300, -1, kNaN});
  for (const mreal pattern : {2.0, -2.0, kNaN, 0.0}) {
    mint count = 0;
    for (mint i = 0; i < 4; ++i) count += near1_double(60, elements<mreal>(tensor)[i], pattern);
    expectCounts(tensor, tensorOf<mreal>({}, {pattern}), 60, count);
  }
}

// 0.4 matches 1 at 52.5 bits only once the tolerance has been asked for before.
TEST_F(Searches, WriteAsManyPositionsAsTheyCountedWhereTheToleranceLearns) {
  const Tensor tensor = tensorOf<mreal>({2}, {0.4, 0.9}), one = tensorOf<mreal>({}, {1});
  EXPECT_EQ(near1_double(10, 1, 1 + 1e-10), 0);
  const Tensor result =
      tensorOf<mint>({2}, {5, 77}); // its block stays: the second entry shows a row too many
  MTensor *slot = result.get();
  ASSERT_EQ(MTensor_position(&slot, tensor.get(), one.get(), 52.5), 0);
  EXPECT_TRUE(isValidTensor(slot));
  EXPECT_EQ(extentsOf(result), (Extents{1, 1}));
  EXPECT_EQ(elements<mint>(result)[1], 77);
  EXPECT_EQ(countMatches({tensor.get(), one.get(), 52.5}), 2);
}

TEST_F(Searches, OfATypeWithoutElementsAreRefused) {
  const Tensor tensor = tensorOf<mreal>({2, 1}, {1, 1}), pattern = tensorOf<mreal>({1}, {1});
  MTensor untyped = *tensor, one = *pattern;
  for (const mint type : {0, 1, 5, 9}) {
    untyped.type = one.type = type;
    EXPECT_EQ(countMatches({&untyped, &one, 0}), -1);
    EXPECT_EQ(hasMatch({&untyped, &one, 0}), -1);
    MTensor *handles[] = {&untyped, &one}, *slot = nullptr;
    void *arguments[] = {&handles[0], &handles[1]};
    mint answer = 0;
    EXPECT_EQ(lookupRuntimeFunction("FreeQ")(nullptr, 2, arguments, &answer), 0);
    EXPECT_EQ(answer, -1);
    EXPECT_EQ(MTensor_position(&slot, &untyped, &one, 0), 1);
    EXPECT_EQ(slot, nullptr);
    EXPECT_EQ(countMatches({&untyped, pattern.get(), 0}), 0);
  }
}

TEST_F(Searches, WithAMissingTensorAreRefused) {
  for (const char *name : {"Count", "MemberQ", "FreeQ", "Position"})
    for (const size_t missing : {size_t{0}, size_t{1}}) {
      const Tensor one = tensorOf<mint>({1}, {1});
      MTensor *handles[] = {one.get(), one.get()}, *slot = nullptr;
      handles[missing] = nullptr;
      void *arguments[] = {&handles[0], &handles[1]};
      EXPECT_EQ(lookupRuntimeFunction(name)(nullptr, 2, arguments, &slot), 12) << name;
      EXPECT_EQ(slot, nullptr) << name;
    }
}

TEST_F(Searches, WithoutMemoryForPositionsFailAndLeaveEverythingAsItWas) {
  NamedCall call("Position");
  call.tensor(tensorOf<mint>({400000}, std::vector<mint>(400000, 3))).tensor(tensorOf<mint>({}, {3}));
  expectRequests(call, 1);
}

} // namespace

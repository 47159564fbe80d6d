// Union, Complement and Intersection against the merge sort that defines the order and walks over lists of
// rows, and, where no NaN and no conjugate comes in, against std::set.
#include "algorithms/sets.h"
#include "exact_call.h"
#include "sort_model.h"

#include <set>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mreal kNaN = std::numeric_limits<mreal>::quiet_NaN();
constexpr mreal kInfinity = std::numeric_limits<mreal>::infinity();

class Sets : public NamedFunctions {};

// ---- model ----

template <class Element> using Row = std::vector<Element>;
template <class Element> using RowList = std::vector<Row<Element>>;

template <class Element> RowList<Element> rowsOf(const Tensor &tensor) {
  RowList<Element> rows(size_t(tensor->dimensions[0]));
  const size_t length = rows.empty() ? 0 : size_t(tensor->elementCount) / rows.size();
  const Element *next = elements<Element>(tensor);
  for (Row<Element> &row : rows) {
    row.assign(next, next + length);
    next += length;
  }
  return rows;
}

template <class Element> RowList<Element> modelSorted(const RowList<Element> &rows) {
  std::vector<Element> data;
  for (const Row<Element> &row : rows) data.insert(data.end(), row.begin(), row.end());
  if (data.size() < 2) return rows;
  SortModel<Element> model(data, mint(rows[0].size()));
  model.sort();
  RowList<Element> sorted;
  for (const mint number : model.rows) sorted.push_back(rows[size_t(number) - 1]);
  return sorted;
}

bool isSame(mint a, mint b) { return a == b; }
bool isSame(mreal a, mreal b) { return a == b; }
bool isSame(mcomplex a, mcomplex b) { return a.re == b.re && a.im == b.im; }

template <class Element> bool isSame(const Row<Element> &a, const Row<Element> &b) {
  for (size_t i = 0; i < a.size(); ++i)
    if (!isSame(a[i], b[i])) return false;
  return true;
}

mint orderOf(mint a, mint b) { return a == b ? 0 : b > a ? -1 : 1; }
mint orderOf(mreal a, mreal b) { return a == b ? 0 : b > a ? -1 : 1; }
mint orderOf(mcomplex a, mcomplex b) { return a.re == b.re ? orderOf(a.im, b.im) : orderOf(a.re, b.re); }
template <class Element> mint orderOf(const Row<Element> &a, const Row<Element> &b) {
  for (size_t i = 0; i < a.size(); ++i)
    if (const mint order = orderOf(a[i], b[i])) return order;
  return 0;
}

template <class Element> RowList<Element> modelUnion(const RowList<Element> &joined) {
  RowList<Element> kept;
  for (const Row<Element> &row : modelSorted(joined))
    if (kept.empty() || !isSame(row, kept.back())) kept.push_back(row);
  return kept;
}

template <class Element>
RowList<Element> modelWalk(mint mode, const RowList<Element> &rows, const RowList<Element> &others) {
  RowList<Element> kept;
  size_t read = 0, against = 0;
  while (read < rows.size() && (mode == kComplement || against < others.size())) {
    const mint order = against == others.size() ? -1 : orderOf(rows[read], others[against]);
    if (order >= 0) ++against;
    if (order == 0 ? mode == kIntersection : order < 0 && mode == kComplement) kept.push_back(rows[read]);
    if (order <= 0) ++read;
  }
  return kept;
}

using Tensors = std::vector<Tensor>;

constexpr mint kUnion = 0;
const char *const kNames[] = {"Union", "Complement", "Intersection"};

template <class Element> RowList<Element> modelOf(mint mode, const Tensors &tensors) {
  RowList<Element> joined;
  for (const Tensor &tensor : tensors)
    for (const Row<Element> &row : rowsOf<Element>(tensor))
      if (mode == kUnion || tensor == tensors[0]) joined.push_back(row);
  RowList<Element> result = modelUnion(joined);
  for (size_t i = 1; i < tensors.size() && mode != kUnion; ++i)
    result = modelWalk(mode, result, modelSorted(rowsOf<Element>(tensors[i])));
  return result;
}

template <class Element> Tensor tensorOfRows(const Tensor &like, const RowList<Element> &rows) {
  Extents extents = extentsOf(like);
  extents[0] = mint(rows.size());
  Tensor tensor = newTensor(typeOf<Element>(), extents);
  Element *next = elements<Element>(tensor);
  for (const Row<Element> &row : rows) next = std::copy(row.begin(), row.end(), next);
  return tensor;
}

// ---- calls ----

NamedCall callOf(mint mode, const Tensors &tensors) {
  NamedCall call(kNames[mode]);
  for (const Tensor &tensor : tensors) call.tensor(cloneOf(tensor.get()));
  return call;
}

bool isNothingLeft(const Tensor &result, mint mode, size_t count) {
  return mode != kUnion && count > 1 && result->elementCount == 0 && result->rank != 1;
}

template <class Element> void expectOperation(mint mode, const Tensors &tensors) {
  const Tensor expected = tensorOfRows<Element>(tensors[0], modelOf<Element>(mode, tensors));
  const NamedCall call = callOf(mode, tensors);
  isNothingLeft(expected, mode, tensors.size()) ? expectFails(call, 7) : expectExactly(call, expected);
}

template <class Element> void expectOperations(const Tensors &tensors) {
  for (const mint mode : {kUnion, mint{kComplement}, mint{kIntersection}})
    expectOperation<Element>(mode, tensors);
}

template <class Element> Tensors vectorsOf(const std::vector<std::vector<Element>> &lists) {
  Tensors tensors;
  for (const std::vector<Element> &list : lists)
    tensors.push_back(tensorOf<Element>({mint(list.size())}, list));
  return tensors;
}

// ---- samples ----

mreal sampleReal(std::mt19937 &random) {
  const mreal values[] = {0.0, -0.0, 1, -1, 2, kInfinity, -kInfinity, kNaN};
  return values[random() % (random() % 3 ? 5 : 8)];
}
mint sample(std::mt19937 &random, const mint *) {
  const mint values[] = {0, 1, -1, 2, INT32_MIN, INT32_MAX};
  return values[random() % 6];
}
mreal sample(std::mt19937 &random, const mreal *) { return sampleReal(random); }
mcomplex sample(std::mt19937 &random, const mcomplex *) { return {sampleReal(random), sampleReal(random)}; }

template <class Element> Tensor sampleTensor(std::mt19937 &random, const Extents &extents) {
  Tensor tensor = newTensor(typeOf<Element>(), extents);
  for (mint i = 0; i < tensor->elementCount; ++i)
    elements<Element>(tensor)[i] = sample(random, elements<Element>(tensor));
  return tensor;
}

template <class Element> Tensors sampleTensors(std::mt19937 &random) {
  Extents extents = randomExtents(random, 1, 4);
  if (random() % 2) std::fill(extents.begin() + 1, extents.end(), 1);
  Tensors tensors;
  for (size_t count = 1 + random() % 4; count > 0; --count) {
    extents[0] = mint(random() % 9);
    tensors.push_back(sampleTensor<Element>(random, extents));
  }
  return tensors;
}

template <class Element> void operateAtRandom(unsigned seed) {
  std::mt19937 random(seed);
  for (int round = 0; round < 200; ++round) expectOperations<Element>(sampleTensors<Element>(random));
}

TEST_F(Sets, OfIntegersAreThoseOfTheWalks) { operateAtRandom<mint>(1); }
TEST_F(Sets, OfRealsAreThoseOfTheWalks) { operateAtRandom<mreal>(2); }
TEST_F(Sets, OfComplexesAreThoseOfTheWalks) { operateAtRandom<mcomplex>(3); }

template <class Element> void operateOnManyRows(Values values, mint length) {
  Generator random(4);
  Tensors tensors;
  for (const mint rows : {1500, 1000, 1250}) {
    std::vector<Element> data = drawRows<Element>(random, values, rows, length);
    tensors.push_back(tensorOf(extentsOfRows(rows, length), data));
  }
  expectOperations<Element>(tensors);
  tensors.pop_back();
  expectOperations<Element>(tensors);
}

TEST_F(Sets, OfManyRowsAreThoseOfTheWalks) {
  for (const Values values :
       {Values::wide, Values::few, Values::extreme, Values::ascending, Values::descending, Values::withNaN})
    for (const mint length : {1, 3}) {
      operateOnManyRows<mint>(values, length);
      operateOnManyRows<mreal>(values, length);
      operateOnManyRows<mcomplex>(values, length);
    }
}

// ---- what sets are, apart from any walk ----

std::set<Row<mint>> setOf(const Tensor &tensor) {
  const RowList<mint> rows = rowsOf<mint>(tensor);
  return {rows.begin(), rows.end()};
}

std::set<Row<mint>> trueSet(mint mode, const Tensors &tensors) {
  std::set<Row<mint>> result = setOf(tensors[0]);
  for (size_t i = 1; i < tensors.size(); ++i) {
    const std::set<Row<mint>> other = setOf(tensors[i]);
    if (mode == kUnion) result.insert(other.begin(), other.end());
    if (mode != kUnion)
      std::erase_if(result, [&](const Row<mint> &row) { return other.count(row) == (mode == kComplement); });
  }
  return result;
}

TEST_F(Sets, OfIntegersAreSets) {
  std::mt19937 random(5);
  for (int round = 0; round < 300; ++round) {
    const Tensors tensors = sampleTensors<mint>(random);
    for (const mint mode : {kUnion, mint{kComplement}, mint{kIntersection}}) {
      const std::set<Row<mint>> expected = trueSet(mode, tensors);
      NamedCall call = callOf(mode, tensors);
      MTensor *slot = nullptr;
      if (call.run(&slot) != 0) continue; // nothing left: that is a test of its own
      const Tensor result(slot);
      const RowList<mint> rows = rowsOf<mint>(result);
      EXPECT_TRUE(std::equal(rows.begin(), rows.end(), expected.begin(), expected.end())) << kNames[mode];
    }
  }
}

TEST_F(Sets, OfAFewNumbers) {
  EXPECT_EQ((modelOf<mint>(kUnion, vectorsOf<mint>({{3, 1, 3}}))), (RowList<mint>{{1}, {3}}));
  expectExactly(callOf(kUnion, vectorsOf<mint>({{3, 1, 3}})), tensorOf<mint>({2}, {1, 3}));
  expectExactly(callOf(kComplement, vectorsOf<mint>({{1, 2, 3}, {2}})), tensorOf<mint>({2}, {1, 3}));
  expectExactly(callOf(kIntersection, vectorsOf<mint>({{1, 2}, {3}})), newTensor(TORVANE_TYPE_INTEGER, {0}));
  expectExactly(callOf(kIntersection, vectorsOf<mint>({{4, 2, 4, 1}, {9, 4, 1, 1}, {1, 4, 4}})),
                tensorOf<mint>({2}, {1, 4}));
}

// ---- numbers that are not ----

TEST_F(Sets, KeepEveryNaN) {
  expectExactly(callOf(kUnion, vectorsOf<mreal>({{1, kNaN, kNaN}, {kNaN}})),
                tensorOf<mreal>({4}, {1, kNaN, kNaN, kNaN}));
  expectExactly(callOf(kComplement, vectorsOf<mreal>({{1, 2, kNaN}, {1, kNaN}})),
                tensorOf<mreal>({2}, {2, kNaN}));
  expectExactly(callOf(kIntersection, vectorsOf<mreal>({{kNaN, kNaN, kNaN}, {kNaN, kNaN, kNaN}})),
                newTensor(TORVANE_TYPE_REAL, {0}));
}

// Behind a NaN nothing is told apart any more: the other rows run out before it.
TEST_F(Sets, KeepOrDropAllRowsBehindANaNOfTheFirst) {
  expectExactly(callOf(kComplement, vectorsOf<mreal>({{kNaN, 1, 2}, {1, 2, 2}})),
                tensorOf<mreal>({3}, {kNaN, 1, 2}));
  expectExactly(callOf(kIntersection, vectorsOf<mreal>({{kNaN, 1, 2}, {1, 2, 2}})),
                newTensor(TORVANE_TYPE_REAL, {0}));
}

TEST_F(Sets, KeepTheFirstOfTheZeros) {
  expectExactly(callOf(kUnion, vectorsOf<mreal>({{3, -0.0}, {0.0}})), tensorOf<mreal>({2}, {-0.0, 3}));
  expectExactly(callOf(kIntersection, vectorsOf<mreal>({{0.0, -0.0}, {-0.0, 5}})),
                tensorOf<mreal>({1}, {0.0}));
}

// Sorted are 1 + i, 1 - 2i, and by parts 1 - 2i comes first: the walk passes 1 - 2i of the other by.
TEST_F(Sets, OfConjugatesMissWhatTheTwoOrdersHoldApart) {
  const std::vector<std::vector<mcomplex>> lists = {{{1, -2}, {1, 1}}, {{1, 1}, {1, -2}}};
  expectExactly(callOf(kIntersection, vectorsOf<mcomplex>(lists)),
                tensorOf<mcomplex>({2}, {{1, 1}, {1, -2}}));
  const std::vector<std::vector<mcomplex>> apart = {{{1, 1}, {1, -2}}, {{1, -2}}};
  expectExactly(callOf(kIntersection, vectorsOf<mcomplex>(apart)), newTensor(TORVANE_TYPE_COMPLEX, {0}));
  expectExactly(callOf(kComplement, vectorsOf<mcomplex>(apart)), tensorOf<mcomplex>({2}, {{1, 1}, {1, -2}}));
}

// ---- nothing ----

TEST_F(Sets, OfNothingAreEmptyAndHaveAStatusOfTheirOwnAboveRank1) {
  Tensors tensors;
  tensors.push_back(newTensor(TORVANE_TYPE_REAL, {0, 3}));
  for (const mint mode : {kUnion, mint{kComplement}, mint{kIntersection}})
    expectExactly(callOf(mode, tensors), newTensor(TORVANE_TYPE_REAL, {0, 3}));
  tensors.push_back(newTensor(TORVANE_TYPE_REAL, {0, 3}));
  expectExactly(callOf(kUnion, tensors), newTensor(TORVANE_TYPE_REAL, {0, 3}));
  expectFails(callOf(kComplement, tensors), 7);
  expectFails(callOf(kIntersection, tensors), 7);
}

TEST_F(Sets, ThatLeaveNothingHaveAStatusOfTheirOwnAboveRank1) {
  Tensors tensors;
  for (const mint value : {1, 2}) tensors.push_back(tensorOf<mint>({1, 2}, {value, value}));
  expectFails(callOf(kIntersection, tensors), 7);
  expectExactly(callOf(kComplement, tensors), cloneOf(tensors[0].get()));
  tensors[1] = cloneOf(tensors[0].get());
  expectFails(callOf(kComplement, tensors), 7);
}

TEST_F(Sets, OfRowsWithoutElementsHaveOneRow) {
  Tensors tensors;
  tensors.push_back(newTensor(TORVANE_TYPE_COMPLEX, {3, 0}));
  for (const mint mode : {kUnion, mint{kComplement}, mint{kIntersection}})
    expectExactly(callOf(mode, tensors), newTensor(TORVANE_TYPE_COMPLEX, {1, 0}));
}

// ---- refusals ----

Tensors pairOf(Tensor a, Tensor b) {
  Tensors tensors;
  tensors.push_back(std::move(a));
  tensors.push_back(std::move(b));
  return tensors;
}

void expectRefusedByAll(const Tensors &tensors, mint status) {
  for (const mint mode : {kUnion, mint{kComplement}, mint{kIntersection}})
    expectFails(callOf(mode, tensors), status);
}

TEST_F(Sets, OfTensorsThatDoNotAgreeAreRefused) {
  const auto integers = [](const Extents &extents) { return newTensor(TORVANE_TYPE_INTEGER, extents); };
  expectRefusedByAll(pairOf(integers({2}), newTensor(TORVANE_TYPE_REAL, {2})), 4);
  expectRefusedByAll(pairOf(integers({2}), newTensor(TORVANE_TYPE_REAL, {2, 2})), 4);
  expectRefusedByAll(pairOf(tensorOf<mint>({2}, {1, 2}), tensorOf<mint>({1, 2}, {1, 2})), 3);
  expectRefusedByAll(pairOf(tensorOf<mint>({1, 2}, {1, 2}), tensorOf<mint>({2, 1}, {1, 2})), 3);
  expectRefusedByAll(pairOf(integers({0, 2, 2}), integers({0, 2, 3})), 3);
  expectRefusedByAll(pairOf(tensorOf<mint>({}, {1}), tensorOf<mint>({}, {1})), 3);
  Tensors scalar;
  scalar.push_back(tensorOf<mint>({}, {1}));
  expectRefusedByAll(scalar, 3);
}

TEST_F(Sets, OfNoTensorOrAMissingOneAreRefused) {
  const Tensor one = tensorOf<mint>({1}, {1});
  for (const char *name : kNames)
    for (const mint missing : {0, 1}) {
      MTensor *handles[] = {one.get(), one.get()}, *slot = nullptr;
      handles[missing] = nullptr;
      void *arguments[] = {&handles[0], &handles[1]};
      EXPECT_EQ(lookupRuntimeFunction(name)(nullptr, 2, arguments, &slot), 12);
      EXPECT_EQ(lookupRuntimeFunction(name)(nullptr, 0, arguments, &slot), 12);
      EXPECT_EQ(lookupRuntimeFunction(name)(nullptr, -1, arguments, &slot), 12);
      EXPECT_EQ(slot, nullptr);
    }
  MTensor *slot = nullptr;
  EXPECT_EQ(MTensor_union(&slot, nullptr, 0), 12);
  EXPECT_EQ(MTensor_setOperation(&slot, nullptr, 0, kComplement), 12);
}

TEST_F(Sets, OfOneTensorTwiceMayGoToIt) {
  for (const mint mode : {kUnion, mint{kComplement}, mint{kIntersection}}) {
    const Tensor tensor = tensorOf<mreal>({4}, {2, 1, 2, 0});
    MTensor *handle = tensor.get(), *slot = handle;
    void *arguments[] = {&handle, &handle};
    ASSERT_EQ(lookupRuntimeFunction(kNames[mode])(nullptr, 2, arguments, &slot), 0);
    EXPECT_EQ(slot, handle);
    EXPECT_TRUE(isValidTensor(slot));
    EXPECT_EQ(valuesOf<mreal>(tensor),
              mode == kComplement ? std::vector<mreal>() : std::vector<mreal>({0, 1, 2}));
  }
}

// The rows of all would be more than a dimension counts: refused before anything is asked of memory.
TEST_F(Sets, OfMoreRowsThanADimensionCountsAreRefused) {
  const Tensor tensor = newTensor(TORVANE_TYPE_INTEGER, {INT32_MAX, 0});
  MTensor *const handles[] = {tensor.get(), tensor.get()};
  MTensor *slot = nullptr;
  EXPECT_EQ(MTensor_union(&slot, handles, 2), 403);
  EXPECT_EQ(slot, nullptr);
}

// ---- memory ----

// Blocks above 1 MiB are one request each. A sort that finds no memory for its fast way takes another, and a
// result that cannot be cut stays in the block that it has, so that not every failure is one of the call.
struct Outcome {
  bool failed;
  mint status;
};

Outcome runWithout(FailingHeap &heap, const NamedCall &original, const Tensor &wanted, bool isInPlace,
                   int64_t request) {
  NamedCall call(original);
  MTensor *slot = isInPlace ? call.tensorAt(0) : nullptr, *const held = slot;
  heap.failRequest(request);
  const mint status = call.run(&slot);
  const bool failed = heap.failed();
  heap.succeed();
  EXPECT_TRUE(status == 0 || (status == 403 && failed)) << call.name << ", request " << request;
  if (status == 0) expectSame(slot, wanted.get(), call.name);
  if (status != 0) EXPECT_EQ(slot, held) << call.name;
  expectArgumentsOf(call, original, status == 0 && isInPlace ? 0 : kNoArgument);
  if (!isInPlace) MTensor_delete(slot);
  return {failed, status};
}

// The number of requests without which there is no result.
mint expectSurvivesFailures(const NamedCall &original, bool isInPlace) {
  MTensor *slot = nullptr;
  EXPECT_EQ(NamedCall(original).run(&slot), 0);
  const Tensor wanted(slot);
  const uint32_t used = usedBytesOfThisThread();
  mint refusals = 0;
  FailingHeap heap;
  for (int64_t request = 1;; ++request) {
    const Outcome outcome = runWithout(heap, original, wanted, isInPlace, request);
    if (!outcome.failed) break;
    refusals += outcome.status == 403;
  }
  EXPECT_EQ(usedBytesOfThisThread(), used);
  return refusals;
}

template <class Element> NamedCall callOnMany(mint mode, Values values, mint length) {
  Generator random(6);
  Tensors tensors;
  for (const mint rows : {400000, 300000})
    tensors.push_back(tensorOf(extentsOfRows(rows, length), drawRows<Element>(random, values, rows, length)));
  return callOf(mode, tensors);
}

TEST_F(Sets, WithoutMemoryFailAndLeaveEverythingOrFindAnotherWay) {
  const Tensor warm = newTensor(TORVANE_TYPE_REAL, {2}), warmToo = newTensor(TORVANE_TYPE_REAL, {3, 2});
  const std::pair<mint, bool> ways[] = {{kUnion, false}, {kComplement, true}, {kIntersection, false}};
  for (const auto &[mode, isInPlace] : ways) {
    EXPECT_GE(expectSurvivesFailures(callOnMany<mint>(mode, Values::wide, 1), isInPlace), 1);
    EXPECT_GE(expectSurvivesFailures(callOnMany<mint>(mode, Values::ascending, 1), isInPlace), 1);
    EXPECT_GE(expectSurvivesFailures(callOnMany<mreal>(mode, Values::few, 1), isInPlace), 1);
  }
  EXPECT_GE(expectSurvivesFailures(callOnMany<mcomplex>(kIntersection, Values::few, 2), true), 1);
}

// Handles of tensors and extents of high rank are blocks of their own.
TEST_F(Sets, WithoutMemoryForHandlesAndExtentsFail) {
  Extents extents(300000, 1);
  extents[0] = 2;
  Tensors tensors;
  tensors.push_back(newTensor(TORVANE_TYPE_INTEGER, extents));
  elements<mint>(tensors[0])[0] = 2;
  elements<mint>(tensors[0])[1] = 1;
  EXPECT_GE(expectSurvivesFailures(callOf(kUnion, tensors), false), 2);
  const Tensor one = tensorOf<mint>({1}, {1});
  MTensor *handle = one.get(), *slot = nullptr;
  std::vector<void *> arguments(300000, &handle);
  FailingHeap heap;
  heap.failRequest(1);
  EXPECT_EQ(lookupRuntimeFunction("Union")(nullptr, 300000, arguments.data(), &slot), 403);
  heap.succeed();
  EXPECT_EQ(slot, nullptr);
}

} // namespace

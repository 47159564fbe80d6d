// Transpositions against index arithmetic: every permutation and diagonal, shapes of every remainder, slots
// empty, used and holding the operand; statuses in their order; memory that fails.
#include "algorithms/registry.h"
#include "algorithms/transpose.h"
#include "algorithms/transpose_rectangle.h"
#include "runtime/memory.h"
#include "sort_model.h"
#include "support/failing_heap.h"
#include "support/named_rows.h"

#include <gtest/gtest.h>

#include <torvane/transposition.h>

#include <algorithm>
#include <sstream>

using namespace torvane;
using namespace torvane::test;

namespace {

using Permutation = std::vector<mint>;

template <class Element> Element numbered(mint k) {
  if constexpr (typeOf<Element>() == TORVANE_TYPE_COMPLEX)
    return {k + 0.5, k % 7 - 3.0};
  else
    return static_cast<Element>(k);
}

mcomplex conjugateOf(mcomplex z) { return {z.re, -z.im}; }
mint conjugateOf(mint k) { return k; }
mreal conjugateOf(mreal x) { return x; }

template <class Element> Tensor numberedTensor(const Extents &extents) {
  Tensor tensor = newTensor(typeOf<Element>(), extents);
  for (mint k = 0; k < tensor->elementCount; ++k) elements<Element>(tensor)[k] = numbered<Element>(k);
  return tensor;
}

// Extents of the result; the levels behind the permutation follow the highest that it names.
Extents resultExtents(const Extents &source, const Permutation &permutation) {
  const mint highest = permutation.empty() ? 0 : *std::max_element(permutation.begin(), permutation.end());
  Extents result(static_cast<size_t>(highest) + source.size() - permutation.size());
  for (size_t k = 0; k < source.size(); ++k)
    result[k < permutation.size() ? static_cast<size_t>(permutation[k]) - 1
                                  : static_cast<size_t>(highest) + k - permutation.size()] = source[k];
  return result;
}

// Every element of the result by the multi-index that it stands at.
template <class Element>
std::vector<Element> modelTransposed(const Extents &source, const Permutation &permutation, bool conjugate) {
  const Extents extents = resultExtents(source, permutation);
  const size_t highest = extents.size() - (source.size() - permutation.size());
  mint count = 1;
  for (const mint extent : extents) count *= extent;
  std::vector<Element> result;
  for (mint place = 0; place < count; ++place) {
    Extents index(extents.size());
    mint rest = place;
    for (size_t k = extents.size(); k-- > 0; rest /= extents[k]) index[k] = rest % extents[k];
    mint from = 0;
    for (size_t k = 0; k < source.size(); ++k) {
      const size_t target =
          k < permutation.size() ? static_cast<size_t>(permutation[k]) - 1 : highest + k - permutation.size();
      from = from * source[k] + index[target];
    }
    const Element element = numbered<Element>(from);
    result.push_back(conjugate ? conjugateOf(element) : element);
  }
  return result;
}

mint byName(bool conjugate, std::vector<void *> arguments, MTensor **slot) {
  return (conjugate ? handleConjugateTranspose
                    : handleTranspose)(nullptr, static_cast<mint>(arguments.size()), arguments.data(), slot);
}

enum class Slot { empty, used, argument };

struct Case {
  Extents extents;
  Permutation permutation;
  bool conjugate;
  Slot where;
};

std::string describe(const Case &c) {
  std::ostringstream text;
  text << (c.conjugate ? "conjugate" : "plain");
  for (const mint extent : c.extents) text << ' ' << extent;
  text << " by";
  for (const mint entry : c.permutation) text << ' ' << entry;
  if (c.where == Slot::argument) text << " in place";
  return text.str();
}

template <class Element> void expectModel(const Case &c) {
  const Tensor tensor = numberedTensor<Element>(c.extents);
  const Tensor used = c.where == Slot::used ? newTensor(TORVANE_TYPE_REAL, {3}) : nullptr;
  const Tensor permutation = tensorOf({static_cast<mint>(c.permutation.size())}, c.permutation);
  MTensor *argument = tensor.get(), *list = permutation.get();
  MTensor *slot = c.where == Slot::argument ? argument : used.get();
  const bool wasEmpty = slot == nullptr;
  MTensor *const before = slot;
  const Extents extents = resultExtents(c.extents, c.permutation);
  mint rank = static_cast<mint>(extents.size());
  ASSERT_EQ(byName(c.conjugate, {&argument, &list, &rank}, &slot), 0) << describe(c);
  EXPECT_TRUE(wasEmpty || slot == before) << describe(c);
  EXPECT_TRUE(isValidTensor(slot)) << describe(c);
  ASSERT_EQ(extentsOf(slot), extents) << describe(c);
  const std::vector<Element> expected = modelTransposed<Element>(c.extents, c.permutation, c.conjugate);
  if (slot->elementCount > 0)
    EXPECT_EQ(std::memcmp(slot->data, expected.data(), expected.size() * sizeof(Element)), 0) << describe(c);
  if (wasEmpty) MTensor_delete(slot);
}

void expectModels(const Extents &extents, const Permutation &permutation) {
  for (const Slot where : {Slot::empty, Slot::used, Slot::argument}) {
    expectModel<mint>({extents, permutation, false, where});
    expectModel<mreal>({extents, permutation, true, where});
    expectModel<mcomplex>({extents, permutation, false, where});
    expectModel<mcomplex>({extents, permutation, true, where});
  }
}

// Every list of targets of a length, with repeats where they leave no level out.
template <class Visit> void forEachPermutation(mint length, const Visit &visit) {
  mint count = 1;
  for (mint k = 0; k < length; ++k) count *= length;
  for (mint code = 0; code < count; ++code) {
    Permutation permutation;
    for (mint k = 0, rest = code; k < length; ++k, rest /= length) permutation.push_back(rest % length + 1);
    const mint highest = *std::max_element(permutation.begin(), permutation.end());
    bool isComplete = true;
    for (mint level = 1; level <= highest; ++level)
      isComplete = isComplete && std::count(permutation.begin(), permutation.end(), level) > 0;
    if (isComplete) visit(permutation, highest);
  }
}

mint productOf(const Extents &extents) {
  mint product = 1;
  for (const mint extent : extents) product *= extent;
  return product;
}

// Lengths that fit a permutation: levels that meet share theirs. At most so many elements.
Extents drawExtents(Generator &generator, mint rank, const Permutation &permutation, mint limit) {
  const mint lengths[] = {1, 2, 3, 31, 33, 64, 65};
  for (;;) {
    Extents extents;
    for (mint k = 0; k < rank; ++k) extents.push_back(lengths[generator() % 7]);
    for (size_t k = 0; k < permutation.size(); ++k)
      for (size_t other = 0; other < k; ++other)
        if (permutation[other] == permutation[k]) extents[k] = extents[other];
    mint size = 1;
    for (const mint extent : extents) size = size > limit ? size : size * extent;
    if (size <= limit) return extents;
  }
}

TEST(Transpose, FollowsEveryPermutationAndDiagonalOfUpToFiveLevels) {
  Generator generator(1);
  for (mint length = 0; length <= 5; ++length)
    for (mint rank = length; rank <= std::min(5, length + 2); ++rank) {
      const auto check = [&](const Permutation &permutation, mint) {
        expectModels(drawExtents(generator, rank, permutation, length < 4 ? 20000 : 3000), permutation);
      };
      if (length == 0)
        check({}, 0);
      else
        forEachPermutation(length, [&](const Permutation &permutation, mint highest) {
          if (length > 1 || permutation[0] == 1) check(permutation, highest);
        });
    }
}

TEST(Transpose, OfMatricesOfEveryRemainderIsExact) {
  for (const mint rows : {1, 2, 3, 4, 7, 8, 9, 16, 31, 33, 64, 65, 71, 130})
    for (const mint columns : {1, 2, 3, 5, 6, 7, 8, 12, 31, 33, 64, 65, 71, 129})
      expectModels({rows, columns}, {2, 1});
}

TEST(Transpose, OfMatricesOfBlocksIsExact) {
  for (const mint rows : {2, 3, 9, 31, 65})
    for (const mint columns : {2, 5, 9, 33, 64})
      for (const mint block : {1, 2, 3, 4, 5, 18, 40}) expectModels({rows, columns, block}, {2, 1});
}

// Common divisors of both sides of every kind: none, one of the sides, something between; strips of every
// width.
TEST(Transpose, OfRectanglesInPlaceIsExact) {
  const Extents shapes[] = {{2, 1000},  {1000, 2},  {3, 1001},  {100, 400}, {400, 100},
                            {210, 150}, {150, 210}, {301, 300}, {300, 301}, {128, 512},
                            {96, 360},  {360, 96},  {7, 2048},  {2048, 7},  {128, 64},
                            {64, 128},  {5, 1000},  {999, 37},  {36, 1024}, {640, 65}};
  for (const Extents &shape : shapes) {
    expectModel<mint>({shape, {2, 1}, false, Slot::argument});
    expectModel<mreal>({shape, {2, 1}, false, Slot::argument});
    expectModel<mcomplex>({shape, {2, 1}, true, Slot::argument});
  }
}

TEST(Transpose, TwiceInPlaceIsNothing) {
  Generator generator(2);
  for (int time = 0; time < 200; ++time) {
    const Extents extents = {static_cast<mint>(generator() % 90 + 1),
                             static_cast<mint>(generator() % 90 + 1)};
    const Tensor tensor = numberedTensor<mreal>(extents);
    const std::vector<mreal> before = valuesOf<mreal>(tensor);
    MTensor *slot = tensor.get();
    ASSERT_EQ(Runtime_MTensor_12TransposeConjugate(&slot, slot, 0), 0);
    EXPECT_EQ(valuesOf<mreal>(tensor), modelTransposed<mreal>(extents, {2, 1}, false));
    ASSERT_EQ(Runtime_MTensor_12TransposeConjugate(&slot, slot, 0), 0);
    EXPECT_EQ(valuesOf<mreal>(tensor), before);
  }
}

TEST(Transpose, ByCyclesIsTheSame) {
  for (const Extents &shape : {Extents{2, 3}, Extents{31, 33}, Extents{64, 20}, Extents{1, 9}, Extents{9, 1}})
    for (const size_t bytes : std::vector<size_t>{4, 8, 12, 16, 40}) {
      std::vector<char> data(static_cast<size_t>(productOf(shape)) * bytes);
      for (size_t k = 0; k < data.size(); ++k) data[k] = static_cast<char>(k * 7 % 251);
      std::vector<char> expected(data.size());
      const auto rows = static_cast<size_t>(shape[0]), columns = static_cast<size_t>(shape[1]);
      for (size_t i = 0; i < rows; ++i)
        for (size_t j = 0; j < columns; ++j)
          std::copy_n(&data[(i * columns + j) * bytes], bytes, &expected[(j * rows + i) * bytes]);
      ASSERT_TRUE(transposeByCycles(data.data(), shape[0], shape[1], bytes));
      EXPECT_EQ(data, expected) << shape[0] << " " << shape[1] << " " << bytes;
    }
}

TEST(Transpose, KeepsTheBitsOfEveryNaN) {
  const uint64_t signalling = 0x7FF0000000000001;
  mreal pattern;
  std::memcpy(&pattern, &signalling, sizeof pattern);
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, {9, 10});
  for (mint k = 0; k < 90; ++k) std::memcpy(elements<mreal>(tensor) + k, &signalling, sizeof signalling);
  MTensor *slot = nullptr, *own = tensor.get();
  ASSERT_EQ(Runtime_MTensor_12TransposeConjugate(&slot, tensor.get(), 0), 0);
  ASSERT_EQ(Runtime_MTensor_12TransposeConjugate(&own, own, 0), 0);
  const Tensor result(slot);
  for (const Tensor *one : {&tensor, &result})
    for (mint k = 0; k < 90; ++k)
      EXPECT_EQ(std::memcmp(elements<mreal>(*one) + k, &signalling, sizeof signalling), 0);
}

TEST(Transpose, OfTensorsWithoutElementsExchangesTheirExtents) {
  expectModels({0, 3}, {2, 1});
  expectModels({3, 0, 2}, {2, 1});
  expectModels({3, 0, 2}, {3, 1, 2});
  expectModels({0, 0}, {1, 1});
  expectModels({0}, {});
}

TEST(Transpose, WithOneArgumentSwapsTheFirstTwoLevels) {
  const Tensor tensor = numberedTensor<mcomplex>({3, 4, 2});
  MTensor *argument = tensor.get();
  for (const bool conjugate : {false, true}) {
    MTensor *slot = nullptr;
    ASSERT_EQ(byName(conjugate, {&argument}, &slot), 0);
    const Tensor result(slot);
    EXPECT_EQ(extentsOf(result), (Extents{4, 3, 2}));
    EXPECT_TRUE(
        haveSameBits(valuesOf<mcomplex>(result), modelTransposed<mcomplex>({3, 4, 2}, {2, 1}, conjugate)));
  }
}

TEST(Transpose, ExportsConjugateAsAskedAndAlways) {
  const Tensor tensor = numberedTensor<mcomplex>({2, 3, 4}), permutation = tensorOf<mint>({3}, {3, 1, 2});
  MTensor *plain = nullptr, *conjugated = nullptr, *general = nullptr;
  ASSERT_EQ(Runtime_MTensor_12TransposeConjugate(&plain, tensor.get(), 0), 0);
  ASSERT_EQ(Runtime_MTensor_12TransposeConjugate(&conjugated, tensor.get(), 1), 0);
  ASSERT_EQ(Runtime_MTensor_ndimTransposeConjugate(&general, tensor.get(), permutation.get()), 0);
  const Tensor a(plain), b(conjugated), c(general);
  EXPECT_TRUE(haveSameBits(valuesOf<mcomplex>(a), modelTransposed<mcomplex>({2, 3, 4}, {2, 1}, false)));
  EXPECT_TRUE(haveSameBits(valuesOf<mcomplex>(b), modelTransposed<mcomplex>({2, 3, 4}, {2, 1}, true)));
  EXPECT_TRUE(haveSameBits(valuesOf<mcomplex>(c), modelTransposed<mcomplex>({2, 3, 4}, {3, 1, 2}, true)));
}

TEST(Transpose, OfRepeatedLevelsIsTheDiagonal) {
  const Tensor matrix = tensorOf<mint>({2, 2}, {1, 2, 3, 4}), permutation = tensorOf<mint>({2}, {1, 1});
  MTensor *slot = nullptr;
  ASSERT_EQ(MTensor_transposeLevels(&slot, matrix.get(), permutation.get(), 0), 0);
  const Tensor result(slot);
  EXPECT_EQ(extentsOf(result), (Extents{2}));
  EXPECT_EQ(valuesOf<mint>(result), (std::vector<mint>{1, 4}));
}

TEST(Transpose, MayPutItsResultWhereThePermutationWas) {
  const Tensor tensor = numberedTensor<mint>({2, 3, 4}), permutation = tensorOf<mint>({3}, {3, 1, 2});
  MTensor *slot = permutation.get();
  ASSERT_EQ(MTensor_transposeLevels(&slot, tensor.get(), permutation.get(), 0), 0);
  EXPECT_EQ(slot, permutation.get());
  EXPECT_EQ(valuesOf<mint>(permutation), modelTransposed<mint>({2, 3, 4}, {3, 1, 2}, false));
}

mint statusWith(const Extents &extents, const Tensor &permutation, mint expectedRank) {
  const Tensor tensor = numberedTensor<mreal>(extents);
  MTensor *argument = tensor.get(), *list = permutation.get(), *slot = nullptr;
  const mint status = byName(false, {&argument, &list, &expectedRank}, &slot);
  EXPECT_EQ(slot == nullptr, status != 0);
  MTensor_delete(slot);
  MTensor *own = tensor.get();
  const mint inPlace = byName(true, {&argument, &list, &expectedRank}, &own);
  EXPECT_EQ(inPlace, status);
  if (status != 0) {
    EXPECT_EQ(extentsOf(tensor), extents);
    EXPECT_TRUE(haveSameBits(valuesOf<mreal>(tensor), valuesOf<mreal>(numberedTensor<mreal>(extents))));
  }
  return status;
}
mint statusOf(const Extents &extents, const Permutation &permutation, mint expectedRank) {
  return statusWith(extents, tensorOf({static_cast<mint>(permutation.size())}, permutation), expectedRank);
}

TEST(Transpose, RefusesWhatIsNoIntegerVector) {
  EXPECT_EQ(statusWith({2, 2}, tensorOf<mreal>({2}, {2, 1}), 2), 4);
  EXPECT_EQ(statusWith({2, 2}, tensorOf<mint>({1, 2}, {2, 1}), 2), 4);
  EXPECT_EQ(statusWith({2, 2}, newTensor(TORVANE_TYPE_INTEGER, {}), 2), 4);
  EXPECT_EQ(statusWith({2, 2}, tensorOf<mreal>({0}, {}), 2), 0);
}

TEST(Transpose, RefusesBadLevelsInTheOrderOfItsChecks) {
  EXPECT_EQ(statusOf({2, 2}, {1, 2, 3}, 2), 3);
  EXPECT_EQ(statusOf({2, 2}, {0, 9, 9}, 2), 3); // length before entries
  EXPECT_EQ(statusOf({2, 2}, {2}, 2), 4);
  EXPECT_EQ(statusOf({2, 2}, {0}, 2), 4);
  EXPECT_EQ(statusOf({2, 2}, {0, 5}, 2), 4); // below 1 before too high
  EXPECT_EQ(statusOf({2, 2}, {1, 3}, 2), 2);
  EXPECT_EQ(statusOf({2, 3, 4}, {1, 3}, 3), 2); // no room for the level behind
  EXPECT_EQ(statusOf({2, 3}, {1, 1}, 1), 4);
  EXPECT_EQ(statusOf({2, 3}, {1, 1}, 7), 4); // lengths before the expected rank
  EXPECT_EQ(statusOf({2, 2}, {2, 2}, 1), 4);
  EXPECT_EQ(statusOf({2, 2, 2}, {3, 1, 1}, 2), 4);
}

TEST(Transpose, RefusesAnotherRankThanExpectedBeforeItWrites) {
  EXPECT_EQ(statusOf({2, 2}, {1, 1}, 2), 2);
  EXPECT_EQ(statusOf({2, 3}, {2, 1}, 3), 2);
  EXPECT_EQ(statusOf({2, 3}, {1, 2}, 1), 2);
  EXPECT_EQ(statusOf({2, 3, 4}, {3, 2, 1}, 2), 2);
  EXPECT_EQ(statusOf({2, 3, 4}, {3, 2, 1}, 3), 0);
  EXPECT_EQ(statusOf({2, 3}, {2, 1}, -1), 2);
}

TEST(Transpose, RefusesARankBelowTwoWithoutAPermutation) {
  for (const Extents &extents : {Extents{}, Extents{5}}) {
    const Tensor tensor = numberedTensor<mreal>(extents);
    MTensor *argument = tensor.get(), *slot = nullptr;
    EXPECT_EQ(byName(false, {&argument}, &slot), 2);
    EXPECT_EQ(Runtime_MTensor_12TransposeConjugate(&slot, tensor.get(), 1), 2);
    EXPECT_EQ(slot, nullptr);
  }
}

// Element (i, j, rest) of a tensor of these extents, numbered, has gone to (j, i, rest).
template <class Element> bool isSwapped(const MTensor *tensor, const Extents &from) {
  const auto *x = static_cast<const Element *>(tensor->data);
  mint k = 0;
  for (mint i = 0; i < from[0]; ++i)
    for (mint j = 0; j < from[1]; ++j)
      for (mint rest = 0; rest < from[2]; ++rest, ++k) {
        const Element expected = numbered<Element>(k);
        if (std::memcmp(x + (j * from[0] + i) * from[2] + rest, &expected, sizeof expected) != 0)
          return false;
      }
  return true;
}

// One request after another fails; blocks above 1 MiB are kept by no thread heap, so that each is a request.
template <class Element> void expectSurvivesFailures(const Extents &extents, bool inPlace, mint failure) {
  const Extents unchanged = {1, productOf(extents), 1};
  const Tensor warm = newTensor(TORVANE_TYPE_REAL, {2}); // the slabs of small blocks exist
  FailingHeap heap;
  Tensor tensor = numberedTensor<Element>(extents);
  const uint32_t used = usedBytesOfThisThread();
  bool hasFailed = false;
  failEveryRequest(heap, [&] {
    MTensor *slot = inPlace ? tensor.get() : nullptr;
    const mint status = Runtime_MTensor_12TransposeConjugate(&slot, tensor.get(), 0);
    ASSERT_TRUE(status == 0 || (status == failure && heap.failed())) << status;
    hasFailed = hasFailed || status != 0;
    EXPECT_EQ(slot != nullptr, inPlace || status == 0);
    if (status == 0)
      EXPECT_TRUE(isSwapped<Element>(slot, extents));
    else
      EXPECT_TRUE(isSwapped<Element>(tensor.get(), unchanged) && extentsOf(tensor) == extents);
    if (!inPlace) MTensor_delete(slot);
    EXPECT_EQ(usedBytesOfThisThread(), used);
    if (inPlace && status == 0) { // back to the start
      heap.succeed();
      for (mint k = 0; k < tensor->elementCount; ++k) elements<Element>(tensor)[k] = numbered<Element>(k);
      MTensor_resetDimensions(tensor.get(), 3, extents.data());
    }
  });
  EXPECT_EQ(hasFailed, failure != 0);
}

TEST(Transpose, WithoutMemoryFailsAndLeavesTheOperandAsItWas) {
  expectSurvivesFailures<mreal>({2, 3, 140000}, false, 403);
  expectSurvivesFailures<mreal>({2, 3, 140000}, true, 403);
  expectSurvivesFailures<mint>({3, 2, 280000}, true, 403);
  expectSurvivesFailures<mcomplex>({2, 3, 70000}, true, -1);
}

TEST(Transpose, OfComplexesInPlaceWithoutMemoryHasAStatusOfItsRow) {
  for (const NamedRow &row : kNamedRows) {
    if (!row.isOneOf({"Transpose", "ConjugateTranspose"})) continue;
    const Tensor tensor = numberedTensor<mcomplex>({2, 3, 70000});
    MTensor *argument = tensor.get(), *slot = argument;
    void *arguments[] = {&argument};
    FailingHeap heap;
    heap.failFrom(1);
    const mint status = row.handler(nullptr, 1, arguments, &slot);
    heap.succeed();
    EXPECT_EQ(status, -1) << row.name;
    EXPECT_TRUE(row.mayReturn(status)) << row.name;
  }
}

TEST(Transpose, InPlaceFindsAnotherWayWhereThereIsMemoryForBitsOnly) {
  for (const bool isWide : {false, true}) {
    const Extents extents = isWide ? Extents{2, 300001, 1} : Extents{300001, 2, 1};
    const Tensor tensor = numberedTensor<mreal>(extents);
    MTensor *slot = tensor.get();
    FailingHeap heap;
    heap.failRequest(1);
    EXPECT_EQ(Runtime_MTensor_12TransposeConjugate(&slot, slot, 0), 0);
    EXPECT_TRUE(heap.failed());
    heap.succeed();
    EXPECT_TRUE(isSwapped<mreal>(slot, extents));
  }
}

TEST(Transpose, OfLevelsWithoutMemoryKeepsTheOperandAlsoInItsOwnSlot) {
  const Extents extents = {50, 60, 70};
  const Tensor tensor = numberedTensor<mreal>(extents), permutation = tensorOf<mint>({3}, {3, 1, 2});
  const std::vector<mreal> before = valuesOf<mreal>(tensor);
  for (const bool inPlace : {false, true}) {
    MTensor *slot = inPlace ? tensor.get() : nullptr;
    FailingHeap heap;
    heap.failFrom(1);
    EXPECT_EQ(MTensor_transposeLevels(&slot, tensor.get(), permutation.get(), 0), 403);
    heap.succeed();
    EXPECT_EQ(slot, inPlace ? tensor.get() : nullptr);
    EXPECT_EQ(extentsOf(tensor), extents);
    EXPECT_EQ(valuesOf<mreal>(tensor), before);
  }
}

TEST(Transpose, MayTakeThePlaceOfThePermutationWhichAFailureLeavesWhole) {
  const Tensor tensor = numberedTensor<mreal>({50, 60, 70});
  for (const Permutation &levels : {Permutation{3, 1, 2}, {2, 1, 3}, {2, 1}}) {
    const Tensor permutation = tensorOf<mint>({mint(levels.size())}, levels);
    MTensor *slot = permutation.get();
    FailingHeap heap;
    heap.failRequest(1);
    EXPECT_EQ(MTensor_transposeLevels(&slot, tensor.get(), slot, 0), 403);
    EXPECT_TRUE(heap.failed());
    heap.succeed();
    EXPECT_EQ(valuesOf<mint>(permutation), levels);
    ASSERT_EQ(MTensor_transposeLevels(&slot, tensor.get(), slot, 0), 0);
    EXPECT_EQ(slot, permutation.get());
    EXPECT_EQ(valuesOf<mreal>(permutation), modelTransposed<mreal>({50, 60, 70}, levels, false));
  }
}

} // namespace

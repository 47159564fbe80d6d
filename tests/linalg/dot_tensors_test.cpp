// Dot products of tensors: shapes, limits, slots, checks and refusals.
#include "dot_models.h"

#include "algorithms/registry.h"
#include "parallel/four_workers.h"
#include "runtime/memory.h"
#include "support/child_process.h"
#include "support/failing_heap.h"

#include <torvane/linalg.h>

#include <gtest/gtest.h>

#include <limits>
#include <numeric>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mreal kInfinity = std::numeric_limits<mreal>::infinity();
constexpr mreal kNaN = std::numeric_limits<mreal>::quiet_NaN();

mint callDot(MTensor **slot, MTensor *a, MTensor *b, mint flags) {
  void *arguments[] = {&a, &b, &flags};
  return handleDot(nullptr, 3, arguments, slot);
}

Extents resultExtents(const Tensor &a, const Tensor &b) {
  Extents extents = extentsOf(a);
  extents.pop_back();
  const Extents rest = extentsOf(b);
  extents.insert(extents.end(), rest.begin() + 1, rest.end());
  return extents;
}

template <class T> std::vector<T> modelOfTensors(const Tensor &a, const Tensor &b) {
  const Extents left = extentsOf(a), right = extentsOf(b);
  const auto product = [](auto from, auto to) {
    return std::accumulate(from, to, mint{1}, std::multiplies<>());
  };
  const mint m = product(left.begin(), left.end() - 1), k = left.back(),
             n = product(right.begin() + 1, right.end());
  return modelProduct(elements<T>(a), elements<T>(b), m, k, n);
}

Tensor cloneOf(const Tensor &tensor) {
  Tensor copy(MTensor_new());
  MTensor_copy(copy.get(), tensor.get());
  return copy;
}

template <class T>
void expectResult(const MTensor *result, const Extents &extents, const std::vector<T> &values) {
  ASSERT_NE(result, nullptr);
  EXPECT_TRUE(isValidTensor(result));
  EXPECT_EQ(result->type, typeOf<T>());
  EXPECT_EQ(extentsOf(result), extents);
  const T *first = static_cast<const T *>(result->data);
  ASSERT_EQ(std::vector<T>(first, first + result->elementCount), values);
}

// With the slot empty, holding tensors of other shapes and types, and holding either operand; both entries.
template <class T> void expectInEverySlot(const Tensor &a, const Tensor &b, const std::vector<T> &values) {
  const Extents extents = resultExtents(a, b);
  for (const auto call : {MTensorGeneralDot, callDot}) {
    MTensor *slot = nullptr;
    ASSERT_EQ(call(&slot, a.get(), b.get(), kChecks), 0);
    expectResult(slot, extents, values);
    MTensor_delete(slot);
    for (const mint type : {TORVANE_TYPE_INTEGER, TORVANE_TYPE_REAL, TORVANE_TYPE_COMPLEX}) {
      const Tensor used = newTensor(type, {2, 3});
      MTensor_initialize(used.get(), 7);
      slot = used.get();
      for (int round = 0; round < 2; ++round) { // the second one finds its shape
        ASSERT_EQ(call(&slot, a.get(), b.get(), kChecks), 0);
        ASSERT_EQ(slot, used.get());
        expectResult(slot, extents, values);
      }
    }
    for (const bool isSecond : {false, true}) {
      const Tensor x = cloneOf(a), y = cloneOf(b);
      slot = isSecond ? y.get() : x.get();
      ASSERT_EQ(call(&slot, x.get(), y.get(), kChecks), 0);
      ASSERT_EQ(slot, isSecond ? y.get() : x.get());
      expectResult(slot, extents, values);
      ASSERT_EQ(valuesOf<T>(isSecond ? x : y), valuesOf<T>(isSecond ? a : b)) << "the other operand";
    }
  }
}

const Extents kLeading[] = {{}, {1}, {2}, {5}, {2, 3}, {3, 1, 2}, {4, 0}}, kInner = {1, 2, 3, 8, 0};

template <class T> void expectEveryShape() {
  Samples samples(11);
  const uint32_t used = usedBytesOfThisThread();
  for (const Extents &leading : kLeading)
    for (const Extents &trailing : kLeading)
      for (const mint k : kInner) {
        if (leading.size() + trailing.size() < 1) continue;
        Extents left = leading, right = trailing;
        left.push_back(k);
        right.insert(right.begin(), k);
        const Tensor a = samples.tensor<T>(left), b = samples.tensor<T>(right);
        expectInEverySlot<T>(a, b, modelOfTensors<T>(a, b));
        if (testing::Test::HasFatalFailure()) return;
      }
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

// Inner and outer dimensions of 0 among them: zeros, or nothing, with status 0.
TEST(Dot, OfIntegersOfEveryShapeIsItsModel) { expectEveryShape<mint>(); }
TEST(Dot, OfRealsOfEveryShapeIsItsModel) { expectEveryShape<mreal>(); }
TEST(Dot, OfComplexNumbersOfEveryShapeIsItsModel) { expectEveryShape<mcomplex>(); }

TEST(Dot, OfATensorWithItselfMayReplaceIt) {
  Samples samples(12);
  const Tensor a = samples.tensor<mreal>({5, 5});
  const auto expected = modelOfTensors<mreal>(a, a);
  MTensor *slot = a.get();
  ASSERT_EQ(MTensorGeneralDot(&slot, slot, slot, 0), 0);
  expectResult(slot, {5, 5}, expected);
}

// ---- limits -----------------------------------------------------------------------------------------

struct Volume {
  Extents left, right;
};

// Up to 8000 products the order of additions is held; so it is by a matrix of up to 16 and a vector.
template <class T> void expectBitForBit() {
  Samples samples(13);
  const Volume volumes[] = {{{20, 20}, {20, 20}},     {{2, 500}, {500, 8}},    {{1, 1000}, {1000, 8}},
                            {{1000, 2}, {2, 4}},      {{1, 7}, {7, 1024}},     {{1024, 7}, {7, 1}},
                            {{16, 16}, {16}},         {{16}, {16, 16}},        {{3, 16}, {16}},
                            {{16}, {16, 5}},          {{10, 2, 20}, {20, 20}}, {{20}, {20, 4, 100}},
                            {{4, 2, 1000}, {1000, 1}}};
  for (const Volume &volume : volumes) {
    const Tensor a = samples.tensor<T>(volume.left), b = samples.tensor<T>(volume.right);
    MTensor *slot = nullptr;
    ASSERT_EQ(MTensorGeneralDot(&slot, a.get(), b.get(), 2), 0);
    expectResult(slot, resultExtents(a, b), modelOfTensors<T>(a, b));
    MTensor_delete(slot);
  }
}
TEST(Dot, OfUpToEightThousandProductsAddsInTheOrderOfTheIndex) {
  expectBitForBit<mreal>();
  expectBitForBit<mcomplex>();
}

template <class T> void expectNearly(const Extents &left, const Extents &right) {
  Samples samples(14);
  const Tensor a = samples.tensor<T>(left), b = samples.tensor<T>(right);
  const mint k = left.back(), n = b->elementCount / k;
  Tensor used = newTensor(typeOf<T>(), {2});
  MTensor *slot = used.get();
  ASSERT_EQ(MTensorGeneralDot(&slot, a.get(), b.get(), 2), 0);
  EXPECT_EQ(extentsOf(slot), resultExtents(a, b));
  for (mint i = 0; i < slot->elementCount; ++i) {
    std::vector<T> row, column;
    for (mint p = 0; p < k; ++p) {
      row.push_back(elements<T>(a)[i / n * k + p]);
      column.push_back(elements<T>(b)[p * n + i % n]);
    }
    ASSERT_TRUE(areNear(row, column, static_cast<T *>(slot->data)[i])) << i;
  }
}
TEST(Dot, OfLargerOnesIsWithinTheRoundingOfAnyOrder) {
  const Volume volumes[] = {{{20, 20}, {20, 21}}, {{17, 16}, {16}},    {{16, 17}, {17}},
                            {{16}, {16, 17}},     {{17}, {17, 3}},     {{1, 1025}, {1025, 3}},
                            {{1025, 2}, {2, 3}},  {{3, 2}, {2, 1025}}, {{90, 80}, {80, 70}},
                            {{200, 300}, {300}},  {{300}, {300, 200}}, {{3, 4, 50}, {50, 6, 7}},
                            {{1500, 3}, {3, 10}}};
  for (const Volume &volume : volumes) {
    expectNearly<mreal>(volume.left, volume.right);
    expectNearly<mcomplex>(volume.left, volume.right);
  }
}

// What a reused tensor holds never takes part.
TEST(Dot, IsNotTouchedByWhatTheResultHeld) {
  Samples samples(15);
  for (const Volume &volume : std::initializer_list<Volume>{{{40, 40}, {40, 40}},
                                                            {{40, 40}, {40}},
                                                            {{40}, {40, 40}},
                                                            {{4, 4}, {4, 4}},
                                                            {{4, 4}, {4}},
                                                            {{4}, {4, 4}}}) {
    const Tensor a = samples.tensor<mreal>(volume.left), b = samples.tensor<mreal>(volume.right);
    const Tensor used = newTensor(TORVANE_TYPE_REAL, resultExtents(a, b));
    for (mint i = 0; i < used->elementCount; ++i) elements<mreal>(used)[i] = i % 2 == 0 ? kNaN : kInfinity;
    MTensor *slot = used.get();
    ASSERT_EQ(MTensorGeneralDot(&slot, a.get(), b.get(), 2), 0);
    for (const mreal x : valuesOf<mreal>(used)) ASSERT_TRUE(std::isfinite(x));
    const Tensor c = samples.tensor<mcomplex>(volume.left), d = samples.tensor<mcomplex>(volume.right);
    const Tensor held = newTensor(TORVANE_TYPE_COMPLEX, resultExtents(a, b));
    for (mint i = 0; i < held->elementCount; ++i) elements<mcomplex>(held)[i] = {kNaN, kInfinity};
    slot = held.get();
    ASSERT_EQ(MTensorGeneralDot(&slot, c.get(), d.get(), 2), 0);
    for (const mcomplex z : valuesOf<mcomplex>(held)) ASSERT_TRUE(std::isfinite(z.re) && std::isfinite(z.im));
  }
}

// ---- infinities and NaNs ----------------------------------------------------------------------------

struct Scan {
  const char *what;
  Extents left, right;
  bool isAlways; // else under flag 2 only
};
const Scan kScans[] = {
    {"two matrices, small", {2, 2}, {2, 2}, true},
    {"two matrices, large", {30, 30}, {30, 30}, true},
    {"two matrices, long", {2000, 2}, {2, 2}, true},
    {"higher ranks, small", {2, 2, 2}, {2, 2}, true},
    {"a vector and a higher rank, small", {2}, {2, 2, 2}, true},
    {"higher ranks, of the longest small extent", {1, 1, 1}, {1, 1024}, true},
    {"higher ranks, one longer", {1, 1, 1}, {1, 1025}, false},
    {"higher ranks, the largest small volume", {2, 10, 20}, {20, 20}, true},
    {"higher ranks, large", {3, 10, 20}, {20, 20}, false},
    {"a small matrix by a vector", {2, 2}, {2}, false},
    {"a vector by a small matrix", {2}, {2, 2}, false},
    {"a large matrix by a vector", {40, 40}, {40}, false},
    {"a vector by a large matrix", {40}, {40, 40}, false},
    {"a higher rank by a vector, small", {2, 2, 2}, {2}, true},
    {"a higher rank by a vector, large", {3, 40, 90}, {90}, false},
};

template <class T> void expectScans(T bad) {
  for (const Scan &scan : kScans) {
    const Tensor a = newTensor(typeOf<T>(), scan.left), b = newTensor(typeOf<T>(), scan.right);
    MTensor_initialize(a.get(), 0);
    MTensor_initialize(b.get(), 0);
    elements<T>(b)[b->elementCount - 1] = bad; // times 0: a NaN
    for (const mint flags : {0, 2, 4, 6}) {
      const bool fails = scan.isAlways || (flags & 2) != 0;
      MTensor *slot = nullptr;
      EXPECT_EQ(MTensorGeneralDot(&slot, a.get(), b.get(), flags), fails ? 1 : 0)
          << scan.what << ", flags " << flags;
      EXPECT_EQ(slot == nullptr, fails) << scan.what;
      MTensor_delete(slot);
      slot = nullptr;
      EXPECT_EQ(callDot(&slot, a.get(), b.get(), flags), fails ? 4 : 0) << scan.what;
      MTensor_delete(slot);
    }
  }
}
TEST(Dot, ReportsInfinitiesAndNaNsByShapeAndFlag) {
  expectScans<mreal>(kInfinity);
  expectScans<mreal>(kNaN);
  expectScans<mcomplex>({kInfinity, 0});
  expectScans<mcomplex>({0, kNaN});
}

TEST(Dot, ReportsASumThatOverflows) {
  const Tensor a = tensorOf<mreal>({1, 2}, {1e308, 1e308}), b = tensorOf<mreal>({2, 1}, {1, 1});
  MTensor *slot = nullptr;
  EXPECT_EQ(MTensorGeneralDot(&slot, a.get(), b.get(), 0), 1);
  EXPECT_EQ(slot, nullptr);
}

// ---- results and sums that the workers share --------------------------------------------------------

class ConcurrentDots : public testing::Test {
protected:
  const FourWorkers workers;
};

void expectStatus(const Tensor &a, const Tensor &b, mint flags, bool fails, const char *what) {
  MTensor *slot = nullptr;
  EXPECT_EQ(MTensorGeneralDot(&slot, a.get(), b.get(), flags), fails ? 1 : 0) << what << ", flags " << flags;
  EXPECT_EQ(slot == nullptr, fails) << what;
  MTensor_delete(slot);
  slot = nullptr;
  EXPECT_EQ(callDot(&slot, a.get(), b.get(), flags), fails ? 4 : 0) << what << ", flags " << flags;
  MTensor_delete(slot);
}

const Scan kSharedScans[] = {
    {"two matrices", {200, 40}, {40, 200}, true},
    {"higher ranks", {2, 20, 40}, {40, 1000}, false},
};

// At first a column of the result is bad, then one element of it, which may be in any worker's piece.
template <class T> void expectSharedScans(T bad, T large) {
  for (const Scan &scan : kSharedScans) {
    const Tensor a = newTensor(typeOf<T>(), scan.left), b = newTensor(typeOf<T>(), scan.right);
    MTensor_initialize(a.get(), 0);
    MTensor_initialize(b.get(), 0);
    const mint columns = scan.right[1], rows = a->elementCount / 40;
    T *const last = elements<T>(b) + b->elementCount - 1;
    for (const mint flags : {0, 2, 4}) {
      expectStatus(a, b, flags, false, scan.what);
      *last = bad; // times 0: a NaN
      expectStatus(a, b, flags, scan.isAlways || flags == 2, scan.what);
      *last = T{};
    }
    for (const mint row : {0, rows / 2, rows - 1})
      for (const mint column : {0, columns - 1}) {
        elements<T>(a)[row * 40] = elements<T>(b)[column] = large;
        for (const mint flags : {0, 2}) expectStatus(a, b, flags, scan.isAlways || flags == 2, scan.what);
        elements<T>(a)[row * 40] = elements<T>(b)[column] = T{};
      }
  }
}

// Not by a name that the thread sanitizer's lane asks for: products of this size go to the system's BLAS,
// whose own threads it cannot follow.
class SharedScans : public ConcurrentDots {};

TEST_F(SharedScans, ReportInfinitiesAndNaNsByShapeAndFlag) {
  expectSharedScans<mreal>(kInfinity, 1e300);
  expectSharedScans<mcomplex>({0, kInfinity}, {1e300, 0});
}

constexpr mint kRowLength = 40000;

int64_t exactDot(const mint *x, const mint *y, mint count) {
  uint64_t sum = 0;
  for (mint k = 0; k < count; ++k) sum += static_cast<uint64_t>(int64_t{x[k]} * y[k]);
  return static_cast<int64_t>(sum);
}

TEST_F(ConcurrentDots, OfIntegersAreExactOrWrap) {
  Samples samples(16);
  for (const mint bits : {7, 30}) {
    const Tensor a = samples.tensor<mint>({2, kRowLength}, bits),
                 b = samples.tensor<mint>({kRowLength}, bits);
    std::vector<mint> expected;
    for (const mint row : {0, 1})
      expected.push_back(mint(exactDot(elements<mint>(a) + row * kRowLength, elements<mint>(b), kRowLength)));
    for (const auto call : {MTensorGeneralDot, callDot})
      for (const mint flags : {0, 4}) {
        if (bits == 30 && flags == 4) continue;
        MTensor *slot = nullptr;
        ASSERT_EQ(call(&slot, a.get(), b.get(), flags), 0);
        expectResult(slot, {2}, expected);
        MTensor_delete(slot);
      }
  }
}

// Products in range and sums of every worker's piece too: it is the whole that is not.
TEST_F(ConcurrentDots, OfIntegersFailWhereTheWholeIsOutOfRange) {
  const Tensor a = newTensor(TORVANE_TYPE_INTEGER, {2, kRowLength}),
               b = newTensor(TORVANE_TYPE_INTEGER, {kRowLength});
  MTensor_initialize(a.get(), 0);
  MTensor_initialize(b.get(), 1);
  for (mint k = 0; k < kRowLength; k += kRowLength / 4) elements<mint>(a)[k] = 1 << 29;
  const Tensor used = tensorOf<mint>({2}, {77, 78});
  MTensor *slot = nullptr;
  EXPECT_EQ(MTensorGeneralDot(&slot, a.get(), b.get(), 4), 1);
  EXPECT_EQ(callDot(&slot, a.get(), b.get(), 4), 4);
  EXPECT_EQ(slot, nullptr);
  slot = used.get();
  EXPECT_EQ(MTensorGeneralDot(&slot, a.get(), b.get(), 4), 1);
  EXPECT_EQ(valuesOf<mint>(used), (std::vector<mint>{77, 78}));
  ASSERT_EQ(MTensorGeneralDot(&slot, a.get(), b.get(), 2), 0);
  EXPECT_EQ(valuesOf<mint>(used), (std::vector<mint>{INT32_MIN, 0}));
  elements<mint>(a)[1] = -1; // 2^31 - 1
  ASSERT_EQ(MTensorGeneralDot(&slot, a.get(), b.get(), 4), 0);
  EXPECT_EQ(valuesOf<mint>(used), (std::vector<mint>{INT32_MAX, 0}));
}

// Every position of a result, so that no lane is left out.
TEST(Dot, FindsANaNWhereverItStands) {
  for (mint n = 1; n <= 40; ++n)
    for (mint m = 1; m <= 9; m += 2) {
      const Tensor a = newTensor(TORVANE_TYPE_REAL, {m, 1}), b = newTensor(TORVANE_TYPE_REAL, {1, n});
      const Tensor c = newTensor(TORVANE_TYPE_COMPLEX, {m, 1}), d = newTensor(TORVANE_TYPE_COMPLEX, {1, n});
      const Tensor reused = newTensor(TORVANE_TYPE_REAL, {m, n});
      for (const Tensor *one : {&a, &b, &c, &d}) MTensor_initialize(one->get(), 1);
      MTensor *slot = reused.get();
      EXPECT_EQ(MTensorGeneralDot(&slot, a.get(), b.get(), 0), 0);
      EXPECT_EQ(MTensorGeneralDot(&slot, c.get(), d.get(), 0), 0);
      for (mint j = 0; j < n; ++j) {
        elements<mreal>(b)[j] = kNaN;
        elements<mcomplex>(d)[j].im = kInfinity;
        ASSERT_EQ(MTensorGeneralDot(&slot, a.get(), b.get(), 0), 1) << m << " by " << n << " at " << j;
        ASSERT_EQ(MTensorGeneralDot(&slot, c.get(), d.get(), 0), 1) << m << " by " << n << " at " << j;
        elements<mreal>(b)[j] = 1;
        elements<mcomplex>(d)[j].im = 1;
      }
    }
}

// ---- refusals ---------------------------------------------------------------------------------------

struct Refusal {
  const char *what;
  Extents left, right;
  mint typeOfRight, exported, named;
};
const Refusal kRefusals[] = {
    {"two vectors", {2}, {2}, TORVANE_TYPE_REAL, 2, 2},
    {"a scalar first", {}, {2, 2, 2}, TORVANE_TYPE_REAL, 2, 2},
    {"a scalar second", {2, 2, 2}, {}, TORVANE_TYPE_REAL, 2, 2},
    {"two scalars", {}, {}, TORVANE_TYPE_REAL, 2, 2},
    {"inner dimensions", {2, 3}, {2, 3}, TORVANE_TYPE_REAL, 3, 3},
    {"inner dimensions, one of them 0", {2, 3}, {0, 3}, TORVANE_TYPE_REAL, 3, 3},
    {"types", {2, 2}, {2, 2}, TORVANE_TYPE_INTEGER, 1, 4},
    {"types, before ranks by export", {2}, {2}, TORVANE_TYPE_INTEGER, 1, 2},
    {"types, before dimensions by export", {2, 3}, {2, 3}, TORVANE_TYPE_COMPLEX, 1, 3},
};

TEST(Dot, RefusesWithEmptyAndUsedSlots) {
  for (const Refusal &refusal : kRefusals) {
    const Tensor a = newTensor(TORVANE_TYPE_REAL, refusal.left),
                 b = newTensor(refusal.typeOfRight, refusal.right);
    const Tensor used = tensorOf<mint>({2}, {5, 6});
    for (MTensor *held : {static_cast<MTensor *>(nullptr), used.get()}) {
      MTensor *slot = held;
      EXPECT_EQ(MTensorGeneralDot(&slot, a.get(), b.get(), 0), refusal.exported) << refusal.what;
      EXPECT_EQ(slot, held) << refusal.what;
      EXPECT_EQ(callDot(&slot, a.get(), b.get(), 0), refusal.named) << refusal.what;
      EXPECT_EQ(slot, held) << refusal.what;
      EXPECT_EQ(valuesOf<mint>(used), (std::vector<mint>{5, 6}));
    }
  }
}

TEST(Dot, RefusesNullTensorsByName) {
  const Tensor a = newTensor(TORVANE_TYPE_REAL, {2, 2});
  MTensor *slot = nullptr;
  EXPECT_EQ(callDot(&slot, nullptr, a.get(), 0), 2);
  EXPECT_EQ(callDot(&slot, a.get(), nullptr, 0), 2);
  EXPECT_EQ(slot, nullptr);
}

TEST(Dot, RefusesTensorsWithoutNumbers) {
  const Tensor a = newTensor(TORVANE_TYPE_REAL, {2, 2}), b = newTensor(TORVANE_TYPE_REAL, {2, 2});
  a->type = b->type = 1;
  MTensor *slot = nullptr;
  EXPECT_EQ(MTensorGeneralDot(&slot, a.get(), b.get(), 0), 1);
  EXPECT_EQ(callDot(&slot, a.get(), b.get(), 0), 4);
  a->type = b->type = TORVANE_TYPE_REAL;
  EXPECT_EQ(slot, nullptr);
}

// An operand in the slot is whole after a failure.
TEST(Dot, LeavesAnOperandInTheSlotAsItWasWhenItFails) {
  const std::vector<mreal> values = {1, kInfinity, 0, 0};
  const std::vector<mint> words = {65536, 0, 0, 65536};
  const Tensor a = tensorOf<mreal>({2, 2}, values), i = tensorOf<mint>({2, 2}, words);
  MTensor *slot = a.get();
  EXPECT_EQ(MTensorGeneralDot(&slot, slot, slot, 0), 1);
  EXPECT_EQ(valuesOf<mreal>(a), values);
  slot = i.get();
  EXPECT_EQ(callDot(&slot, slot, slot, 4), 4);
  EXPECT_EQ(valuesOf<mint>(i), words);
}

TEST(Dot, EndsTheProcessWhenThereIsNoMemoryForTheResult) {
  const auto multiply = [](const Extents &left, const Extents &right) {
    const Tensor a = newTensor(TORVANE_TYPE_REAL, left), b = newTensor(TORVANE_TYPE_REAL, right);
    MTensor_initialize(a.get(), 1);
    MTensor_initialize(b.get(), 1);
    FailingHeap heap;
    heap.failFrom(1);
    MTensor *slot = nullptr;
    MTensorGeneralDot(&slot, a.get(), b.get(), 0);
  };
  EXPECT_EQ(runInChild([&] { multiply({2000, 1}, {1, 2000}); }).status, 1);
  EXPECT_EQ(runInChild([&] { multiply({400000, 1}, {1}); }).status, 1);
}

} // namespace

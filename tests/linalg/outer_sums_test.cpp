// Outer sums and products whose elements fail, and those whose rows the workers share.
#include "outer_calls.h"

#include "parallel/four_workers.h"

#include <limits>

using namespace torvane;
using namespace torvane::test;

namespace {

struct Overflow {
  const char *what;
  Extents trailing;
  std::vector<std::vector<mint>> values; // of each tensor, with `trailing` behind one leading dimension
  size_t written;                        // elements before the run that fails
};
const Overflow kOverflows[] = {
    {"two vectors", {}, {{1, INT32_MAX, 2}, {0, 1}}, 2},
    {"two vectors, the reserved value", {}, {{1, -INT32_MAX, 2}, {0, -1}}, 2},
    {"three vectors, in the last", {}, {{1, 2}, {INT32_MAX - 2, INT32_MAX - 3}, {0, 1}}, 2},
    {"three vectors, in a partial result", {}, {{0, 1}, {INT32_MAX}, {0, 0, 0}}, 3},
    {"blocks", {2}, {{1, 1, 1, INT32_MAX}, {1, 0, 0, 1, 0, 0}}, 8},
};

TEST(Outer, GivesFourForAnOverflowUnderItsFlagAndWrapsWithoutIt) {
  for (const Overflow &overflow : kOverflows) {
    Call call;
    for (const auto &values : overflow.values) {
      Extents extents = {mint(values.size() / product(overflow.trailing))};
      extents.insert(extents.end(), overflow.trailing.begin(), overflow.trailing.end());
      call.add(tensorOf<mint>(extents, values), 1);
    }
    const auto expected = modelValues<mint>(call, kPlus);
    MTensor *slot = nullptr;
    EXPECT_EQ(call.runByName(kPlus, &slot, 4), 4) << overflow.what;
    EXPECT_EQ(slot, nullptr);
    const Tensor used = newTensor(TORVANE_TYPE_INTEGER, modelExtents(call, kPlus));
    MTensor_initialize(used.get(), 7777);
    slot = used.get();
    EXPECT_EQ(call.runByName(kPlus, &slot, 6), 4) << overflow.what;
    const auto held = valuesOf<mint>(used);
    for (size_t k = 0; k < overflow.written; ++k)
      EXPECT_EQ(held[k], expected[k]) << overflow.what << " at " << k;
    EXPECT_EQ(held.back(), 7777) << overflow.what;
    for (const mint flags : {0, 2}) {
      ASSERT_EQ(call.runByName(kPlus, &slot, flags), 0) << overflow.what;
      EXPECT_EQ(valuesOf<mint>(used), expected) << overflow.what;
    }
    for (const Tensor &tensor : call.tensors) { // an operand in the slot is whole
      const auto before = valuesOf<mint>(tensor);
      slot = tensor.get();
      EXPECT_EQ(call.runByName(kPlus, &slot, 4), 4);
      EXPECT_EQ(valuesOf<mint>(tensor), before);
    }
  }
}

TEST(Outer, OfRealsGivesFourForAnOverflowUnderItsFlag) {
  for (const mint tensors : {2, 3}) {
    Call call;
    call.add(tensorOf<mreal>({2}, {1, 1e300}), 1).add(tensorOf<mreal>({1}, {1e300}), 1);
    if (tensors == 3) call.add(tensorOf<mreal>({1}, {1e-300}), 1);
    MTensor *slot = nullptr;
    EXPECT_EQ(call.runByName(kTimes, &slot, 2), 4);
    EXPECT_EQ(slot, nullptr);
    ASSERT_EQ(call.runByName(kTimes, &slot, 4), 0);
    EXPECT_EQ(static_cast<mreal *>(slot->data)[1], std::numeric_limits<mreal>::infinity());
    MTensor_delete(slot);
  }
}

TEST(Outer, OfComplexNumbersGivesFourForAnOverflowUnderItsFlag) {
  struct Row {
    Kind kind;
    mcomplex x;
  };
  for (const Row &row : {Row{kTimes, {1e300, 0}}, Row{kPlus, {1e308, 0}}}) {
    Call call;
    for (int i = 0; i < 2; ++i) call.add(tensorOf<mcomplex>({1}, {row.x}), 1);
    MTensor *slot = nullptr;
    EXPECT_EQ(call.runByName(row.kind, &slot, 2), 4) << row.kind;
    EXPECT_EQ(slot, nullptr);
    ASSERT_EQ(call.runByName(row.kind, &slot, 4), 0) << row.kind;
    EXPECT_EQ(static_cast<mcomplex *>(slot->data)->re, std::numeric_limits<mreal>::infinity());
    MTensor_delete(slot);
  }
}

TEST(Outer, OfBlocksOfRealsGivesFourForAnOverflowUnderItsFlag) {
  Call call;
  for (int i = 0; i < 2; ++i) call.add(tensorOf<mreal>({1, 2}, {1, 1e308}), 1);
  MTensor *slot = nullptr;
  EXPECT_EQ(call.runByName(kPlus, &slot, 2), 4);
  EXPECT_EQ(slot, nullptr);
  ASSERT_EQ(call.runByName(kPlus, &slot, 4), 0);
  expectTensor<mreal>(slot, {1, 1, 2}, {2, std::numeric_limits<mreal>::infinity()});
  MTensor_delete(slot);
}

class ConcurrentOuter : public testing::Test {
protected:
  const FourWorkers workers;
};

TEST_F(ConcurrentOuter, OfLongVectorsIsItsModel) {
  Samples samples(36);
  for (const Kind kind : kKinds) {
    Call integers, reals;
    integers.add(samples.tensor<mint>({3}), 1).add(samples.tensor<mint>({50000}), 1);
    reals.add(samples.tensor<mreal>({3}), 1).add(samples.tensor<mreal>({50000}), 1);
    expectInEverySlot<mint>(integers, kind, 4);
    expectInEverySlot<mreal>(reals, kind, 2);
  }
}

TEST_F(ConcurrentOuter, GivesFourForAnOverflowInOneWorkersPiece) {
  Call call;
  call.add(tensorOf<mint>({3}, {0, 1, 2}), 1).add(newTensor(TORVANE_TYPE_INTEGER, {50000}), 1);
  MTensor_initialize(call.tensors[1].get(), 5);
  elements<mint>(call.tensors[1])[40000] = INT32_MAX - 1; // + 2, in the last row
  const auto expected = modelValues<mint>(call, kPlus);
  MTensor *slot = nullptr;
  EXPECT_EQ(call.runByName(kPlus, &slot, 4), 4);
  EXPECT_EQ(slot, nullptr);
  ASSERT_EQ(call.runByName(kPlus, &slot, 2), 0);
  expectTensor(slot, {3, 50000}, expected);
  EXPECT_EQ(static_cast<mint *>(slot->data)[2 * 50000 + 40000], INT32_MIN);
  elements<mint>(call.tensors[1])[40000] = INT32_MAX - 2;
  EXPECT_EQ(call.runByName(kPlus, &slot, 4), 0);
  MTensor_delete(slot);
}

} // namespace

// Cross products: components against their formula, flags of the caller's arithmetic, failures half way.
#include "algorithms/exact_call.h"

#include "runtime/library_data.h"

#include <cmath>
#include <limits>

using namespace torvane;
using namespace torvane::test;

namespace {

class Cross : public NamedFunctions {
protected:
  Cross() { record.runtimeState = &state; }

  TorvaneLibraryData *withFlags(intptr_t flags) {
    state.arithmeticFlags = flags;
    return &record;
  }
  RuntimeState state = {};
  TorvaneLibraryData record = {};
};

template <class T> Tensor vectorOf(const std::vector<T> &x) { return tensorOf<T>({mint(x.size())}, x); }
template <class T> NamedCall cross(const std::vector<T> &a) {
  return std::move(NamedCall("Cross").tensor(vectorOf(a)));
}
template <class T> NamedCall cross(const std::vector<T> &a, const std::vector<T> &b) {
  return std::move(NamedCall("Cross").tensor(vectorOf(a)).tensor(vectorOf(b)));
}

mreal rounded(mreal x) {
  volatile mreal kept = x;
  return kept;
}

TEST_F(Cross, OfOneVectorTurnsIt) {
  expectExactly(cross<mint>({1, 2}), vectorOf<mint>({-2, 1}));
  expectExactly(cross<mint>({5, INT32_MIN}), vectorOf<mint>({INT32_MIN, 5})); // wraps
  expectExactly(cross<mreal>({1.5, 0.0}), vectorOf<mreal>({-0.0, 1.5}));
  expectExactly(cross<mreal>({-0.0, -2}), vectorOf<mreal>({2, -0.0}));
  expectExactly(cross<mcomplex>({{1, 2}, {3, -0.0}}), vectorOf<mcomplex>({{-3, 0.0}, {1, 2}}));
}

TEST_F(Cross, OfOneRealVectorFlipsTheSignOfANaN) {
  NamedCall call = cross<mreal>({1, std::copysign(std::numeric_limits<mreal>::quiet_NaN(), 1.0)});
  MTensor *slot = nullptr;
  ASSERT_EQ(call.run(&slot, withFlags(6)), 0);
  EXPECT_TRUE(std::isnan(static_cast<mreal *>(slot->data)[0]));
  EXPECT_TRUE(std::signbit(static_cast<mreal *>(slot->data)[0]));
  MTensor_delete(slot);
}

TEST_F(Cross, OfTheAxes) {
  expectExactly(cross<mint>({1, 0, 0}, {0, 1, 0}), vectorOf<mint>({0, 0, 1}));
  expectExactly(cross<mint>({0, 1, 0}, {0, 0, 1}), vectorOf<mint>({1, 0, 0}));
  expectExactly(cross<mint>({0, 0, 1}, {1, 0, 0}), vectorOf<mint>({0, 1, 0}));
}

TEST_F(Cross, OfRandomVectorsIsItsFormulaRoundedAtEachStep) {
  std::mt19937 random(1);
  const auto part = [&random] { return std::ldexp(mreal(mint(random())), mint(random() % 30)); };
  for (int time = 0; time < 100; ++time) {
    std::vector<mint> m, n;
    std::vector<mreal> x, y;
    for (int i = 0; i < 3; ++i) {
      m.push_back(mint(random()) >> 17), n.push_back(mint(random()) >> 17);
      x.push_back(part()), y.push_back(part());
    }
    std::vector<mint> integers;
    std::vector<mreal> reals;
    for (size_t i = 0; i < 3; ++i) {
      const size_t j = (i + 1) % 3, k = (i + 2) % 3;
      integers.push_back(m[j] * n[k] - m[k] * n[j]);
      reals.push_back(rounded(x[j] * y[k]) - rounded(x[k] * y[j]));
    }
    expectExactly(cross(m, n), vectorOf(integers));
    expectExactly(cross(x, y), vectorOf(reals));
  }
}

// Small integers: every product is exact.
TEST_F(Cross, OfComplexesIsThatOfTheirFormula) {
  const mcomplex a[] = {{1, 2}, {-3, 4}, {5, -6}}, b[] = {{7, 1}, {2, -8}, {-9, 3}};
  const auto times = [](mcomplex x, mcomplex y) {
    return mcomplex{x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re};
  };
  std::vector<mcomplex> expected;
  for (size_t i = 0; i < 3; ++i) {
    const size_t j = (i + 1) % 3, k = (i + 2) % 3;
    const mcomplex p = times(a[j], b[k]), q = times(a[k], b[j]);
    expected.push_back({p.re - q.re, p.im - q.im});
  }
  expectExactly(cross<mcomplex>({a[0], a[1], a[2]}, {b[0], b[1], b[2]}), vectorOf(expected));
}

TEST_F(Cross, ChecksAsTheCallersArithmeticDoes) {
  const mreal infinity = std::numeric_limits<mreal>::infinity();
  struct Row {
    intptr_t flags;
    mint ofIntegers, ofReals;
  };
  for (const Row &row : {Row{0, 0, 0}, {2, 0, 4}, {4, 4, 0}, {6, 4, 4}, {1, 0, 0}, {-7, 0, 0}, {-1, 4, 4}}) {
    MTensor *slot = nullptr;
    EXPECT_EQ(cross<mint>({0, 65536, 0}, {0, 0, 65536}).run(&slot, withFlags(row.flags)), row.ofIntegers);
    ASSERT_NE(slot, nullptr);
    if (row.ofIntegers == 0) EXPECT_EQ(static_cast<mint *>(slot->data)[0], 0); // wrapped
    MTensor_delete(std::exchange(slot, nullptr));
    EXPECT_EQ(cross<mreal>({0, 1e200, 0}, {0, 0, 1e200}).run(&slot, withFlags(row.flags)), row.ofReals);
    ASSERT_NE(slot, nullptr);
    if (row.ofReals == 0) EXPECT_EQ(static_cast<mreal *>(slot->data)[0], infinity);
    MTensor_delete(std::exchange(slot, nullptr));
    EXPECT_EQ(cross<mcomplex>({{0, 0}, {1e200, 0}, {0, 0}}, {{0, 0}, {0, 0}, {1e200, 0}})
                  .run(&slot, withFlags(row.flags)),
              row.ofReals);
    MTensor_delete(slot);
  }
}

TEST_F(Cross, ChecksNothingWithoutARecordOrItsState) {
  MTensor *slot = nullptr;
  EXPECT_EQ(cross<mint>({0, 65536, 0}, {0, 0, 65536}).run(&slot), 0);
  record.runtimeState = nullptr;
  EXPECT_EQ(cross<mint>({0, 65536, 0}, {0, 0, 65536}).run(&slot, &record), 0);
  MTensor_delete(slot);
}

// Component by component: what stands before the failure is right, in an empty, a used and an argument's
// slot.
TEST_F(Cross, LeavesThePartialResultInTheSlot) {
  const uint32_t used = usedBytesOfThisThread();
  for (int form = 0; form < 3; ++form) {
    NamedCall call =
        cross<mint>({65536, 2, 3}, {5, 65536, 7}); // 14 - 196608, 15 - 458752, and one that fails
    const Tensor reused = tensorOf<mreal>({2}, {1, 2});
    MTensor *slot = form == 0 ? nullptr : form == 1 ? reused.get() : call.tensorAt(0);
    ASSERT_EQ(call.run(&slot, withFlags(4)), 4);
    ASSERT_NE(slot, nullptr);
    EXPECT_TRUE(isValidTensor(slot));
    EXPECT_EQ(extentsOf(slot), Extents{3});
    EXPECT_EQ(slot->type, TORVANE_TYPE_INTEGER);
    EXPECT_EQ(static_cast<mint *>(slot->data)[0], 14 - 196608);
    EXPECT_EQ(static_cast<mint *>(slot->data)[1], 15 - 458752);
    if (form == 0) MTensor_delete(slot);
  }
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

// Which of the components is the first to fail shows in what has been stored.
TEST_F(Cross, FailsAtInfinitiesOfTheDataWhereRealsAreChecked) {
  const mreal infinity = std::numeric_limits<mreal>::infinity();
  for (const mreal third : {1.0, 0.0}) // infinity * third is the first product, - infinity * 0 the last
    for (const intptr_t flags : {0, 2, 4, 6}) {
      MTensor *slot = nullptr;
      EXPECT_EQ(cross<mreal>({0, infinity, 0}, {0, 0, third}).run(&slot, withFlags(flags)),
                (flags & 2) != 0 ? 4 : 0)
          << third << ", flags " << flags;
      ASSERT_NE(slot, nullptr);
      EXPECT_EQ(extentsOf(slot), Extents{3});
      const mreal *stored = static_cast<mreal *>(slot->data);
      EXPECT_TRUE(third == 1 ? stored[0] == infinity : std::isnan(stored[0]));
      EXPECT_EQ(stored[1], 0);
      if ((flags & 2) == 0) EXPECT_TRUE(std::isnan(stored[2]));
      MTensor_delete(slot);
    }
}

// Also where the memory that the slot holds, or gets, has held something else.
TEST_F(Cross, LeavesZerosBehindTheFailure) {
  for (const mint held : {0, 1, 2}) {
    const Tensor reused = tensorOf<mint>({3}, {7, 7, 7});
    NamedCall integers = cross<mint>({7, 65536, 7}, {7, 7, 65536}),
              reals = cross<mreal>({7, 1e200, 7}, {7, 7, 1e200}),
              complexes = cross<mcomplex>({{7, 7}, {1e200, 0}, {7, 7}}, {{7, 7}, {7, 7}, {1e200, 0}});
    for (NamedCall *call : {&integers, &reals, &complexes}) {
      { const Tensor freed = cloneOf(call->tensorAt(0)); }
      MTensor *slot = held == 0 ? nullptr : held == 1 ? reused.get() : call->tensorAt(1);
      const size_t width = elementWidth(call->tensorAt(0)->type);
      ASSERT_EQ(call->run(&slot, withFlags(6)), 4);
      ASSERT_NE(slot, nullptr);
      const std::vector<char> zeros(2 * width, 0);
      EXPECT_EQ(std::memcmp(static_cast<char *>(slot->data) + width, zeros.data(), 2 * width), 0) << held;
      if (held == 0) MTensor_delete(slot);
    }
  }
}

TEST_F(Cross, FailsAtADifferenceToo) {
  MTensor *slot = nullptr;
  EXPECT_EQ(cross<mint>({0, 46340, 46340}, {0, -46340, 46340}).run(&slot, withFlags(4)), 4);
  EXPECT_EQ(cross<mreal>({0, 1e154, 1e154}, {0, -1e154, 1e154}).run(&slot, withFlags(2)), 4);
  MTensor_delete(slot);
}

TEST_F(Cross, RefusesWhatDoesNotFit) {
  for (mint count : {0, 3, -1})
    EXPECT_EQ(lookupRuntimeFunction("Cross")(nullptr, count, nullptr, nullptr), 12) << count;
  expectFails(std::move(NamedCall("Cross").tensor(tensorOf<mint>({}, {1}))), 2);
  expectFails(std::move(NamedCall("Cross").tensor(tensorOf<mint>({1, 2}, {1, 2}))), 2);
  expectFails(cross<mint>({1, 2, 3}), 3);
  expectFails(cross<mreal>({1}), 3);
  expectFails(cross<mreal>({}), 3);
  expectFails(cross<mint>({1, 2}, {1, 2}), 3);
  expectFails(cross<mint>({1, 2, 3}, {1, 2}), 3);
  expectFails(cross<mint>({1, 2, 3}, {1, 2, 3, 4}), 3);
  expectFails(
      std::move(
          NamedCall("Cross").tensor(vectorOf<mint>({1, 2, 3})).tensor(tensorOf<mint>({3, 1}, {1, 2, 3}))),
      2);
  expectFails(
      std::move(NamedCall("Cross").tensor(vectorOf<mint>({1, 2, 3})).tensor(vectorOf<mreal>({1, 2, 3}))), 1);
  // The rank of the second before its length, its length before its type.
  expectFails(std::move(NamedCall("Cross").tensor(vectorOf<mint>({1, 2, 3})).tensor(vectorOf<mreal>({1, 2}))),
              3);
}

// Every small block that this thread could still take without the process heap.
class NoSmallBlocks {
public:
  explicit NoSmallBlocks(FailingHeap &heap) {
    heap.failFrom(1);
    for (uint32_t size = 8; size <= 128; size += 8)
      while (void *block = allocate(size, 0, kQuiet))
        *static_cast<void **>(block) = std::exchange(blocks, block);
  }
  ~NoSmallBlocks() {
    while (blocks != nullptr) torvane::free(std::exchange(blocks, *static_cast<void **>(blocks)));
  }
  NoSmallBlocks(const NoSmallBlocks &) = delete;
  NoSmallBlocks &operator=(const NoSmallBlocks &) = delete;

private:
  void *blocks = nullptr;
};

TEST_F(Cross, WithoutMemoryKeepsTheRecordInTheSlot) {
  const uint32_t used = usedBytesOfThisThread();
  {
    NamedCall call = cross<mreal>({1, 2, 3}, {3, 2, 1});
    const Tensor reused = tensorOf<mint>({1}, {1});
    MTensor *slot = reused.get();
    FailingHeap heap;
    const NoSmallBlocks none(heap);
    EXPECT_EQ(call.run(&slot), 403);
    EXPECT_EQ(slot, reused.get());
    heap.succeed();
  }
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

} // namespace

// Differences and ratios against the definition, one element at a time; integers against exact ones.
#include "exact_call.h"

#include "support/exact_integer.h"
#include "support/polling.h"

#include <cmath>
#include <limits>
#include <torvane/machfuncs.h>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mint kReals = 2, kIntegers = 4;

class Neighbours : public NamedFunctions {};

// ---- model: a map from index to element, transformed level by level ---------------------------------

template <class T> struct Grid {
  Extents extents;
  std::vector<T> values;
  T &at(const Extents &index) { return values[offsetOf(extents, index)]; }
};

template <class T> Grid<T> gridOf(const Tensor &tensor) { return {extentsOf(tensor), valuesOf<T>(tensor)}; }

struct Step {
  size_t level;
  mint shift;
};

// The failing position of a row, one plus the index within it, is kept of the first row that fails.
template <class T, class Combine> Grid<T> stepped(Grid<T> &grid, Step step, Combine combine) {
  Grid<T> result = {grid.extents, {}};
  mint &extent = result.extents[step.level];
  extent = mint(std::max(int64_t{extent} - std::abs(int64_t{step.shift}), int64_t{0}));
  result.values.resize(countOf(result.extents));
  size_t inner = 1;
  for (size_t j = step.level + 1; j < grid.extents.size(); ++j) inner *= size_t(grid.extents[j]);
  for (size_t i = 0; i < result.values.size(); ++i) {
    Extents near(result.extents.size());
    size_t rest = i;
    for (size_t j = near.size(); j-- > 0; rest /= size_t(result.extents[j]))
      near[j] = mint(rest % size_t(result.extents[j]));
    Extents far = near;
    far[step.level] += std::abs(step.shift);
    result.values[i] = step.shift < 0 ? combine(grid.at(near), grid.at(far), mint(i % inner))
                                      : combine(grid.at(far), grid.at(near), mint(i % inner));
  }
  return result;
}

template <class T, class Combine>
Grid<T> model(Grid<T> grid, const std::vector<mint> &orders, const std::vector<mint> &shifts,
              Combine combine) {
  for (size_t level = 0; level < orders.size(); ++level)
    for (mint k = 0; k < orders[level]; ++k) grid = stepped(grid, {level, shifts[level]}, combine);
  return grid;
}

template <class T> Tensor tensorOfGrid(const Grid<T> &grid) { return tensorOf<T>(grid.extents, grid.values); }

mreal less(mreal x, mreal y) {
  volatile mreal difference = x - y;
  return difference;
}

// ---- calls ------------------------------------------------------------------------------------------

NamedCall differences(const Tensor &tensor, const std::vector<mint> &orders, const std::vector<mint> &shifts,
                      mint flags) {
  return NamedCall("Differences").tensor(cloneOf(tensor.get())).vector(orders).vector(shifts).integer(flags);
}
NamedCall differences(const Tensor &tensor, const std::vector<mint> &orders, mint flags) {
  return NamedCall("Differences").tensor(cloneOf(tensor.get())).vector(orders).integer(flags);
}
NamedCall ratios(const Tensor &tensor, const std::vector<mint> &orders, mint flags) {
  return NamedCall("Ratios").tensor(cloneOf(tensor.get())).vector(orders).integer(flags);
}

std::vector<mint> drawOrders(std::mt19937 &random, mint rank) {
  std::vector<mint> orders(random() % (size_t(rank) + 1));
  for (mint &order : orders) order = mint(random() % 4);
  return orders;
}
std::vector<mint> drawShifts(std::mt19937 &random, size_t count) {
  std::vector<mint> shifts(count);
  for (mint &shift : shifts) shift = mint(random() % 5) - 2;
  return shifts;
}

TEST_F(Neighbours, DifferencesOfIntegersAreExactOrFailWithThePositionInTheRow) {
  std::mt19937 random(1);
  int failures = 0;
  for (int time = 0; time < 1500; ++time) {
    const Tensor tensor = newTensor(TORVANE_TYPE_INTEGER, randomExtents(random, 0, 4));
    for (mint i = 0; i < tensor->elementCount; ++i) elements<mint>(tensor)[i] = mint(random()) >> (time % 3);
    const std::vector<mint> orders = drawOrders(random, tensor->rank),
                            shifts = drawShifts(random, orders.size());
    mint failure = 0;
    const Grid<mint> expected =
        model(gridOf<mint>(tensor), orders, shifts, [&](mint x, mint y, mint position) {
          const Exact difference = Exact::of(x) - Exact::of(y);
          if (failure == 0 && difference.isRefused<mint>()) failure = position + 1;
          return difference.wrapped<mint>();
        });
    if (expected.values.empty()) failure = 0; // no pass runs
    expectExactly(differences(tensor, orders, shifts, 0), tensorOfGrid(expected));
    failure == 0 ? expectExactly(differences(tensor, orders, shifts, kIntegers), tensorOfGrid(expected))
                 : expectFails(differences(tensor, orders, shifts, kIntegers), failure);
    failures += failure > 1;
  }
  EXPECT_GT(failures, 10);
}

TEST_F(Neighbours, DifferencesOfRealsAndComplexesAreThoseOfTheDefinition) {
  std::mt19937 random(2);
  for (int time = 0; time < 250; ++time) {
    const Extents extents = randomExtents(random, 0, 4);
    const Tensor reals = newTensor(TORVANE_TYPE_REAL, extents),
                 complexes = newTensor(TORVANE_TYPE_COMPLEX, extents);
    for (mint i = 0; i < reals->elementCount; ++i) {
      elements<mreal>(reals)[i] = std::ldexp(mreal(mint(random())), mint(random() % 40));
      elements<mcomplex>(complexes)[i] = {mreal(mint(random())) * 0.1, mreal(mint(random())) * 0.3};
    }
    const std::vector<mint> orders = drawOrders(random, reals->rank),
                            shifts = drawShifts(random, orders.size());
    const auto ofReals = [](mreal x, mreal y, mint) { return less(x, y); };
    const auto ofComplexes = [](mcomplex x, mcomplex y, mint) {
      return mcomplex{less(x.re, y.re), less(x.im, y.im)};
    };
    expectExactly(differences(reals, orders, shifts, kReals),
                  tensorOfGrid(model(gridOf<mreal>(reals), orders, shifts, ofReals)));
    expectExactly(differences(complexes, orders, shifts, kReals),
                  tensorOfGrid(model(gridOf<mcomplex>(complexes), orders, shifts, ofComplexes)));
  }
}

TEST_F(Neighbours, RatiosAreThoseOfTheDefinition) {
  std::mt19937 random(3);
  for (int time = 0; time < 250; ++time) {
    const Extents extents = randomExtents(random, 0, 4);
    const Tensor reals = newTensor(TORVANE_TYPE_REAL, extents),
                 complexes = newTensor(TORVANE_TYPE_COMPLEX, extents);
    for (mint i = 0; i < reals->elementCount; ++i) {
      elements<mreal>(reals)[i] = mreal(random() % 1000 + 1) * 0.1;
      elements<mcomplex>(complexes)[i] = {mreal(random() % 1000 + 1) * 0.1, mreal(mint(random())) * 1e-6};
    }
    const std::vector<mint> orders = drawOrders(random, reals->rank), ones(orders.size(), 1);
    const auto ofReals = [](mreal x, mreal y, mint) {
      volatile mreal ratio = x / y;
      return ratio;
    };
    // The quotient of two complexes is the vector routine's, which other tests hold.
    const auto ofComplexes = [](mcomplex x, mcomplex y, mint) {
      const mint one[] = {1, 1, 1};
      mcomplex ratio;
      EXPECT_EQ(machfunc_cc_div(&ratio, &x, &y, 1, one, 0), 0);
      return ratio;
    };
    expectExactly(ratios(reals, orders, kReals),
                  tensorOfGrid(model(gridOf<mreal>(reals), orders, ones, ofReals)));
    expectExactly(ratios(complexes, orders, kReals),
                  tensorOfGrid(model(gridOf<mcomplex>(complexes), orders, ones, ofComplexes)));
  }
}

// More rows, and rows longer, than one call of a routine takes.
TEST_F(Neighbours, LongVectorsAndLongRowsAreTakenInPieces) {
  std::mt19937 random(4);
  for (const Extents &extents : {Extents{40000}, Extents{3, 9000}, Extents{3000, 7}, Extents{2, 50000}}) {
    const Tensor tensor = newTensor(TORVANE_TYPE_INTEGER, extents);
    for (mint i = 0; i < tensor->elementCount; ++i) elements<mint>(tensor)[i] = mint(random() % 1000000);
    const auto minus = [](mint x, mint y, mint) { return x - y; };
    std::vector<mint> orders(extents.size(), 1), shifts(extents.size(), -1);
    expectExactly(differences(tensor, orders, shifts, kIntegers),
                  tensorOfGrid(model(gridOf<mint>(tensor), orders, shifts, minus)));
  }
  for (mint at : {0, 4095, 4096, 8999}) {
    const Tensor tensor = newTensor(TORVANE_TYPE_INTEGER, {2, 9000});
    MTensor_initialize(tensor.get(), 0);
    elements<mint>(tensor)[at] = -INT32_MAX;
    elements<mint>(tensor)[9000 + at] = 5;
    expectFails(differences(tensor, {1}, kIntegers), at + 1);
  }
  const Tensor rows = newTensor(TORVANE_TYPE_INTEGER, {9000, 3});
  MTensor_initialize(rows.get(), 0);
  elements<mint>(rows)[3 * 8000 + 1] = INT32_MIN;
  expectFails(differences(rows, {1}, kIntegers), 2);
}

TEST_F(Neighbours, OfAVectorInTurn) {
  const Tensor squares = tensorOf<mint>({5}, {1, 4, 9, 16, 25});
  expectExactly(differences(squares, {1}, 0), tensorOf<mint>({4}, {3, 5, 7, 9}));
  expectExactly(differences(squares, {2}, 0), tensorOf<mint>({3}, {2, 2, 2}));
  expectExactly(differences(squares, {1}, {2}, 0), tensorOf<mint>({3}, {8, 12, 16}));
  expectExactly(differences(squares, {1}, {-2}, 0), tensorOf<mint>({3}, {-8, -12, -16}));
  expectExactly(ratios(tensorOf<mreal>({3}, {1, 2, 8}), {1}, 0), tensorOf<mreal>({2}, {2, 4}));
  expectExactly(ratios(tensorOf<mreal>({3}, {1, 2, 8}), {2}, 0), tensorOf<mreal>({1}, {2}));
}

TEST_F(Neighbours, OfInnerLevelsAreCompact) {
  const Tensor table = tensorOf<mint>({2, 3}, {1, 2, 4, 10, 30, 90});
  expectExactly(differences(table, {0, 1}, 0), tensorOf<mint>({2, 2}, {1, 2, 20, 60}));
  expectExactly(differences(table, {0, 2}, 0), tensorOf<mint>({2, 1}, {1, 40}));
  expectExactly(differences(table, {1, 1}, 0), tensorOf<mint>({1, 2}, {19, 58}));
}

TEST_F(Neighbours, OrderZeroLeavesALevelAloneAndShiftZeroGivesZeros) {
  const Tensor vector = tensorOf<mreal>({3}, {1, 2, 8});
  expectExactly(differences(vector, {0}, 0), vector);
  expectExactly(ratios(vector, {0}, 0), vector);
  expectExactly(differences(vector, {}, 0), vector);
  expectExactly(differences(vector, {1}, {0}, 0), tensorOf<mreal>({3}, {0, 0, 0}));
  expectExactly(differences(vector, {3}, {0}, 0), tensorOf<mreal>({3}, {0, 0, 0}));
  expectExactly(differences(vector, {0}, {INT32_MIN}, 0), vector);
  expectExactly(differences(tensorOf<mint>({}, {7}), {}, 4), tensorOf<mint>({}, {7}));
}

// Whatever the order: shift 0 leaves all rows, and from some pass on nothing changes.
TEST_F(Neighbours, PassesThatChangeNothingAreNotRun) {
  const auto ofReals = [](mreal x, mreal y, mint) { return less(x, y); };
  const Tensor vector = tensorOf<mreal>({4}, {1, -0.0, HUGE_VAL, NAN}),
               table = tensorOf<mint>({2, 2}, {1, 2, 3, 5});
  for (const mint order : {INT32_MAX, INT32_MAX - 1, 5, 4, 3}) {
    expectExactly(differences(vector, {order}, {0}, 0),
                  tensorOfGrid(model(gridOf<mreal>(vector), {3}, {0}, ofReals)));
    expectExactly(differences(table, {order, 1}, {0, 1}, 4), tensorOf<mint>({2, 1}, {0, 0}));
    expectExactly(differences(table, {1, order}, {1, 0}, 4), tensorOf<mint>({1, 2}, {0, 0}));
    expectExactly(differences(table, {order, order}, {0, 0}, 0), tensorOf<mint>({2, 2}, {0, 0, 0, 0}));
  }
}

TEST_F(Neighbours, TooHighAnOrderLeavesNothing) {
  const Tensor vector = tensorOf<mreal>({3}, {1, 2, 8}), table = tensorOf<mint>({2, 2}, {1, 2, 3, 4});
  expectExactly(differences(vector, {5}, 0), newTensor(TORVANE_TYPE_REAL, {0}));
  expectExactly(differences(vector, {3}, 0), newTensor(TORVANE_TYPE_REAL, {0}));
  expectExactly(ratios(vector, {INT32_MAX}, 0), newTensor(TORVANE_TYPE_REAL, {0}));
  expectExactly(differences(vector, {1}, {INT32_MIN}, 0), newTensor(TORVANE_TYPE_REAL, {0}));
  // Lengths do not wrap: 65536 * 65536 leaves 32 bits.
  expectExactly(differences(vector, {65536}, {65536}, 0), newTensor(TORVANE_TYPE_REAL, {0}));
  expectExactly(differences(table, {1, 2}, 4), newTensor(TORVANE_TYPE_INTEGER, {1, 0}));
  const Polling polling(0);
  expectExactly(differences(table, {1, 2}, 4), newTensor(TORVANE_TYPE_INTEGER, {1, 0}));
  EXPECT_TRUE(confirmedAborts().empty()); // no pass at all
}

TEST_F(Neighbours, CheckedRealsFailWhereARoutineDoes) {
  const mreal infinity = std::numeric_limits<mreal>::infinity();
  const Tensor far = tensorOf<mreal>({2}, {-1e308, 1e308});
  expectExactly(differences(far, {1}, 0), tensorOf<mreal>({1}, {infinity}));
  expectFails(differences(far, {1}, kReals), 1);
  expectFails(ratios(tensorOf<mreal>({3}, {1, 0, 1}), {1}, kReals), 1);
  expectExactly(ratios(tensorOf<mreal>({3}, {1, 0, 1}), {1}, 0), tensorOf<mreal>({2}, {0, infinity}));
  // Real routines tell that one of their elements fails, not which.
  const Tensor rows = tensorOf<mreal>({3, 2}, {1, 1, 0, 0, 5, 5});
  expectFails(ratios(rows, {1}, kReals), 1);
  expectExactly(ratios(rows, {1}, 0), tensorOf<mreal>({2, 2}, {0, 0, infinity, infinity}));
}

// Whatever the flags, and with the position in its row.
TEST_F(Neighbours, RatiosToAComplexZeroFail) {
  for (mint flags : {0, kReals})
    expectFails(ratios(tensorOf<mcomplex>({2, 2}, {{1, 1}, {0, 0}, {2, 2}, {3, 3}}), {1}, flags), 2);
}

TEST_F(Neighbours, RatiosOfIntegersAreRefused) {
  expectFails(ratios(tensorOf<mint>({3}, {1, 2, 4}), {1}, 0), 4);
  expectFails(ratios(tensorOf<mint>({0}, {}), {0}, 0), 4);
}

TEST_F(Neighbours, BadOrdersAndShiftsAreRefused) {
  const auto vector = [] { return tensorOf<mreal>({3}, {1, 2, 8}); };
  const auto call = [&](Tensor orders) {
    return NamedCall("Differences").tensor(vector()).tensor(std::move(orders)).integer(0);
  };
  const auto shifted = [&](Tensor shifts) {
    return NamedCall("Differences").tensor(vector()).vector({1}).tensor(std::move(shifts)).integer(0);
  };
  expectFails(call(tensorOf<mint>({}, {1})), 2);
  expectFails(call(tensorOf<mint>({1, 1}, {1})), 2);
  expectFails(call(tensorOf<mreal>({1}, {1})), 1);
  expectFails(call(tensorOf<mreal>({}, {1})), 2); // the rank first
  expectFails(shifted(tensorOf<mint>({}, {1})), 2);
  expectFails(shifted(tensorOf<mreal>({1}, {1})), 1);
  expectFails(shifted(tensorOf<mint>({0}, {})), 3);
  expectFails(differences(vector(), {1, 1}, 0), 3);
  expectFails(differences(tensorOf<mint>({}, {1}), {0}, 0), 3);
  expectFails(ratios(vector(), {1, 1}, 0), 3);
  expectFails(differences(vector(), {-1}, 0), 4);
  expectFails(ratios(vector(), {INT32_MIN}, 0), 4);
  expectExactly(differences(vector(), {1}, {1, 99}, 0), tensorOf<mreal>({2}, {1, 6})); // spare shifts
}

TEST_F(Neighbours, TensorsWithoutATypeAreRefused) {
  const Tensor untyped(MTensor_new()), orders = tensorOf<mint>({0}, {});
  MTensor *arguments[] = {untyped.get(), orders.get()}, *slot = nullptr;
  mint flags = 0;
  void *pointers[] = {&arguments[0], &arguments[1], &flags};
  for (const char *name : {"Differences", "Ratios"})
    EXPECT_EQ(lookupRuntimeFunction(name)(nullptr, 3, pointers, &slot), 1) << name;
  EXPECT_EQ(slot, nullptr);
}

TEST_F(Neighbours, APollBeforeEachPassMayEndThem) {
  const Tensor table = tensorOf<mint>({4, 4}, std::vector<mint>(16, 1));
  {
    const Polling polling(3);
    NamedCall whole = differences(table, {2, 1}, 0);
    MTensor *slot = nullptr;
    EXPECT_EQ(whole.run(&slot), 0);
    MTensor_delete(slot);
    EXPECT_EQ(confirmedAborts(), std::vector<std::string>(3, "RuntimeLibrary"));
  }
  for (int64_t passes = 0; passes < 3; ++passes) {
    const Polling polling(passes);
    NamedCall call = differences(table, {2, 1}, 0);
    const uint32_t used = usedBytesOfThisThread();
    MTensor *slot = nullptr;
    EXPECT_EQ(call.run(&slot), 1000);
    EXPECT_EQ(slot, nullptr);
    confirmAbortAfter(passes);
    slot = call.tensorAt(0);
    EXPECT_EQ(call.run(&slot), 1000);
    expectSame(slot, table.get(), "the argument in the slot");
    EXPECT_EQ(usedBytesOfThisThread(), used);
  }
}

// One block for the result, one more for a second pass, one more for a third.
TEST_F(Neighbours, WithoutMemoryChangeNothing) {
  const Tensor vector = newTensor(TORVANE_TYPE_REAL, {200000});
  MTensor_initialize(vector.get(), 1);
  expectRequests(differences(vector, {0}, 0), 1);
  expectRequests(differences(vector, {1}, 0), 1);
  expectRequests(differences(vector, {2}, 0), 2);
  expectRequests(differences(vector, {7}, 0), 3);
  expectRequests(ratios(vector, {2}, 0), 2);
}

} // namespace

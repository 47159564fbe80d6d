// Running sums against one addition at a time; integers against exact ones.
#include "exact_call.h"

#include "parallel/four_workers.h"
#include "support/exact_integer.h"

#include <cmath>
#include <limits>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mreal kInfinity = std::numeric_limits<mreal>::infinity();
constexpr mint kReals = 2, kIntegers = 4;

class RunningSums : public NamedFunctions {};

mreal plus(mreal x, mreal y) {
  volatile mreal sum = x + y;
  return sum;
}

// Integers: the status of a checked call is one plus the position, in its row, of the first sum that fails.
struct IntegerModel {
  Tensor sums;
  mint failure = 0;

  explicit IntegerModel(const Tensor &tensor) : sums(cloneOf(tensor.get())) {
    const mint width = tensor->elementCount / std::max(tensor->dimensions[0], 1);
    mint *x = elements<mint>(sums);
    for (mint k = width; k < tensor->elementCount; ++k) {
      const Exact sum = Exact::of(x[k - width]) + Exact::of(x[k]);
      if (failure == 0 && sum.isRefused<mint>()) failure = k % width + 1;
      x[k] = sum.wrapped<mint>();
    }
  }
};

// Reals and parts of complexes: a vector of reals starts from 0, everything else from its first row.
Tensor sumsOf(const Tensor &tensor) {
  Tensor sums = cloneOf(tensor.get());
  const mint parts = tensor->type == TORVANE_TYPE_COMPLEX ? 2 : 1, count = tensor->elementCount * parts;
  const mint width = count / std::max(tensor->dimensions[0], 1);
  auto *x = static_cast<mreal *>(sums->data);
  if (tensor->rank == 1 && parts == 1 && count > 0) x[0] = plus(0.0, x[0]);
  for (mint k = width; k < count; ++k) x[k] = plus(x[k - width], x[k]);
  return sums;
}

NamedCall accumulate(const Tensor &tensor, mint flags) {
  return NamedCall("Accumulate").tensor(cloneOf(tensor.get())).integer(flags);
}

TEST_F(RunningSums, OfIntegersAreExactOrFailWithThePositionInTheRow) {
  std::mt19937 random(1);
  int failures = 0;
  for (int time = 0; time < 300; ++time) {
    const Tensor tensor = newTensor(TORVANE_TYPE_INTEGER, randomExtents(random, 1, 5));
    for (mint i = 0; i < tensor->elementCount; ++i) elements<mint>(tensor)[i] = mint(random()) >> (time % 6);
    const IntegerModel model(tensor);
    expectExactly(accumulate(tensor, 0), model.sums);
    expectExactly(accumulate(tensor, kReals), model.sums);
    model.failure == 0 ? expectExactly(accumulate(tensor, kIntegers), model.sums)
                       : expectFails(accumulate(tensor, kIntegers), model.failure);
    failures += model.failure > 1;
  }
  EXPECT_GT(failures, 10);
}

TEST_F(RunningSums, OfRealsAndComplexesAreThoseOfOneAdditionAtATime) {
  std::mt19937 random(2);
  for (int time = 0; time < 200; ++time)
    for (mint type : {TORVANE_TYPE_REAL, TORVANE_TYPE_COMPLEX}) {
      const Tensor tensor = newTensor(type, randomExtents(random, 1, 5));
      const mint parts = tensor->elementCount * (type == TORVANE_TYPE_COMPLEX ? 2 : 1);
      for (mint i = 0; i < parts; ++i)
        static_cast<mreal *>(tensor->data)[i] =
            random() % 9 == 0 ? -0.0 : std::ldexp(mreal(mint(random())), mint(random() % 60) - 30);
      for (mint flags : {0, kReals, kIntegers}) expectExactly(accumulate(tensor, flags), sumsOf(tensor));
    }
}

TEST_F(RunningSums, OfLongVectorsRunFromLeftToRight) {
  std::mt19937 random(3);
  for (mint type : kTensorTypes) {
    const Tensor tensor = newTensor(type, {70000});
    for (mint i = 0; i < 70000; ++i) {
      if (type == TORVANE_TYPE_INTEGER) elements<mint>(tensor)[i] = mint(random() % 20000) - 10000;
      if (type == TORVANE_TYPE_REAL) elements<mreal>(tensor)[i] = mreal(mint(random())) * 0.1;
      if (type == TORVANE_TYPE_COMPLEX)
        elements<mcomplex>(tensor)[i] = {mreal(mint(random())) * 0.1, i * 0.3};
    }
    const Tensor expected =
        type == TORVANE_TYPE_INTEGER ? std::move(IntegerModel(tensor).sums) : sumsOf(tensor);
    expectExactly(accumulate(tensor, kReals | kIntegers), expected);
  }
}

TEST_F(RunningSums, OfAVectorOfRealsStartFromPlusZeroAndOthersFromTheirFirstRow) {
  expectExactly(accumulate(tensorOf<mreal>({1}, {-0.0}), 0), tensorOf<mreal>({1}, {0.0}));
  expectExactly(accumulate(tensorOf<mreal>({1, 1}, {-0.0}), 0), tensorOf<mreal>({1, 1}, {-0.0}));
  expectExactly(accumulate(tensorOf<mcomplex>({1}, {{-0.0, -0.0}}), 0),
                tensorOf<mcomplex>({1}, {{-0.0, -0.0}}));
}

TEST_F(RunningSums, OfAVectorOfRealsFailAtAnInfiniteOrNaNEndWhateverTheFlags) {
  const mreal nan = std::numeric_limits<mreal>::quiet_NaN();
  for (mint flags : {0, kReals, kIntegers})
    for (const std::vector<mreal> &values :
         {std::vector<mreal>{1e308, 1e308}, {1, -kInfinity, 2}, {nan, 1}, {kInfinity, -kInfinity}, {3, nan}})
      expectFails(accumulate(tensorOf<mreal>({mint(values.size())}, values), flags), 1001);
}

TEST_F(RunningSums, OfRowsOfRealsFailWhereACheckedAdditionDoes) {
  const Tensor overflowing = tensorOf<mreal>({3, 2}, {0, 1e308, 0, 1e308, 0, 0});
  expectExactly(accumulate(overflowing, 0), sumsOf(overflowing));
  expectFails(accumulate(overflowing, kReals), 1);
  // An infinity that the data hold adds up without an exception.
  const Tensor infinite = tensorOf<mreal>({2, 1}, {kInfinity, 1});
  expectExactly(accumulate(infinite, kReals), sumsOf(infinite));
}

TEST_F(RunningSums, OfAVectorOfComplexesFailWhereACheckedAdditionDoes) {
  const Tensor overflowing = tensorOf<mcomplex>({3}, {{0, 1e308}, {0, 1e308}, {0, 0}});
  expectExactly(accumulate(overflowing, 0), sumsOf(overflowing));
  expectExactly(accumulate(overflowing, kIntegers), sumsOf(overflowing));
  expectFails(accumulate(overflowing, kReals), 1);
  const Tensor infinite = tensorOf<mcomplex>({2}, {{kInfinity, 0}, {1, 1}});
  expectExactly(accumulate(infinite, kReals), sumsOf(infinite));
}

TEST_F(RunningSums, OfIntegersFailAtTheReservedValueToo) {
  expectFails(accumulate(tensorOf<mint>({2}, {-1, -INT32_MAX}), kIntegers), 1);
  expectExactly(accumulate(tensorOf<mint>({2}, {-1, -INT32_MAX}), 0), tensorOf<mint>({2}, {-1, INT32_MIN}));
  // A first row is copied, not added.
  expectExactly(accumulate(tensorOf<mint>({1}, {INT32_MIN}), kIntegers), tensorOf<mint>({1}, {INT32_MIN}));
  expectFails(accumulate(tensorOf<mint>({2, 3}, {0, 0, INT32_MAX, 0, 0, 1}), kIntegers), 3);
}

// Rows above the length at which a vector routine gives pieces of them to the workers.
class ConcurrentRunningSums : public RunningSums {
protected:
  const FourWorkers workers;
};

TEST_F(ConcurrentRunningSums, OfRowsAreExactOrFailWithThePositionInTheRow) {
  const mint width = 50000;
  std::mt19937 random(4);
  const Tensor tensor = newTensor(TORVANE_TYPE_INTEGER, {3, width});
  for (mint i = 0; i < 3 * width; ++i) elements<mint>(tensor)[i] = mint(random() % 20000) - 10000;
  expectExactly(accumulate(tensor, kIntegers), IntegerModel(tensor).sums);
  elements<mint>(tensor)[width + 40000] = INT32_MAX;
  elements<mint>(tensor)[40000] = 1;
  EXPECT_EQ(IntegerModel(tensor).failure, 40001);
  expectFails(accumulate(tensor, kIntegers), 40001);
  expectExactly(accumulate(tensor, kReals), IntegerModel(tensor).sums);
  elements<mint>(tensor)[width + 40000] = 0; // and in the last row alone
  elements<mint>(tensor)[2 * width + 40000] = INT32_MAX;
  expectFails(accumulate(tensor, kIntegers), 40001);
}

TEST_F(RunningSums, OfNothingAreNothing) {
  for (mint type : kTensorTypes)
    for (const Extents &extents : {Extents{0}, Extents{0, 3}, Extents{3, 0}})
      expectExactly(accumulate(newTensor(type, extents), 6), newTensor(type, extents));
}

TEST_F(RunningSums, OfScalarsAndTensorsWithoutATypeAreRefused) {
  expectFails(accumulate(tensorOf<mreal>({}, {1}), 0), 2);
  const Tensor untyped(MTensor_new());
  mint extent = 1, flags = 0;
  untyped->rank = 1;
  mint *const own = std::exchange(untyped->dimensions, &extent);
  MTensor *argument = untyped.get(), *slot = nullptr;
  void *arguments[] = {&argument, &flags};
  EXPECT_EQ(lookupRuntimeFunction("Accumulate")(nullptr, 2, arguments, &slot), 1);
  EXPECT_EQ(slot, nullptr);
  untyped->rank = 0;
  untyped->dimensions = own;
}

TEST_F(RunningSums, WithoutMemoryChangeNothing) {
  Tensor tensor = newTensor(TORVANE_TYPE_REAL, {200000});
  MTensor_initialize(tensor.get(), 1);
  expectRequests(accumulate(tensor, 0), 1);
}

} // namespace

// Totals of rows and of all elements against sums one addition at a time; integers against exact ones.
#include "exact_call.h"

#include "parallel/four_workers.h"
#include "support/exact_integer.h"

#include <bit>
#include <limits>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mreal kInfinity = std::numeric_limits<mreal>::infinity();
constexpr mint kReals = 2, kIntegers = 4;

class Totals : public NamedFunctions {};

// What a sum comes to; no value where a checked one fails on its way.
struct Sum {
  bool failed = false;
  mint integer = 0;
  mcomplex number = {0, 0};

  void take(mint x) {
    const Exact exact = Exact::of(integer) + Exact::of(x);
    failed = failed || exact.isRefused<mint>();
    integer = exact.wrapped<mint>();
  }
  void take(mreal x) { take(mcomplex{x, 0}); }
  void take(mcomplex x) {
    volatile mreal re = number.re + x.re, im = number.im + x.im;
    number = {re, im};
    failed = failed || !std::isfinite(number.re) || !std::isfinite(number.im);
  }
  void store(mint *to) const { *to = integer; }
  void store(mreal *to) const { *to = number.re; }
  void store(mcomplex *to) const { *to = number; }
};

template <class T> T draw(std::mt19937 &random, mint spread) {
  if constexpr (sizeof(T) == sizeof(mint)) {
    return mint(random()) >> (spread % 31);
  } else if constexpr (sizeof(T) == sizeof(mreal)) {
    const mreal x = std::ldexp(mreal(mint(random())), mint(random() % 40) - 20);
    return spread % 3 != 0 || random() % 30 != 0 ? x : random() % 2 == 0 ? -0.0 : std::ldexp(x, 1000);
  } else {
    return T{draw<mreal>(random, spread), draw<mreal>(random, spread)};
  }
}

template <class T> Tensor drawTensor(std::mt19937 &random, const Extents &extents) {
  Tensor tensor = newTensor(typeOf<T>(), extents);
  const mint spread = mint(random() % 1000);
  for (mint i = 0; i < tensor->elementCount; ++i) elements<T>(tensor)[i] = draw<T>(random, spread);
  return tensor;
}

template <class T> struct Model {
  Tensor sums;
  bool failed = false;

  explicit Model(const Tensor &tensor) {
    const Extents extents = extentsOf(tensor);
    sums = newTensor(tensor->type, Extents(extents.begin() + 1, extents.end()));
    for (mint j = 0; j < sums->elementCount; ++j) {
      Sum sum;
      for (mint i = 0; i < extents[0]; ++i) sum.take(elements<T>(tensor)[i * sums->elementCount + j]);
      sum.store(elements<T>(sums) + j);
      failed = failed || sum.failed;
    }
  }
};

template <class T> void expectTotalsOf(const Tensor &tensor) {
  const Model<T> model(tensor);
  for (mint flags : {0, kReals, kIntegers, kReals | kIntegers}) {
    NamedCall call("Total");
    call.tensor(cloneOf(tensor.get())).integer(flags);
    const bool isChecked = (flags & (typeOf<T>() == TORVANE_TYPE_INTEGER ? kIntegers : kReals)) != 0;
    isChecked &&model.failed ? expectFails(call, 1001) : expectExactly(call, model.sums);
  }
}

TEST_F(Totals, OfRowsAreThoseOfOneAdditionAtATime) {
  std::mt19937 random(2);
  for (int time = 0; time < 150; ++time) {
    const Extents extents = randomExtents(random, 2, 5);
    expectTotalsOf<mint>(drawTensor<mint>(random, extents));
    expectTotalsOf<mreal>(drawTensor<mreal>(random, extents));
    expectTotalsOf<mcomplex>(drawTensor<mcomplex>(random, extents));
  }
}

// Around the eight rows and the strips of columns that are taken at a time, and every width of registers.
TEST_F(Totals, OfRowsDoNotDependOnTheShape) {
  std::mt19937 random(4);
  atEveryLevel([&random] {
    for (mint rows : {1, 7, 8, 9, 31})
      for (mint width : {1, 2, 3, 15, 16, 17, 67, 2047, 2048, 2049, 5000}) {
        expectTotalsOf<mint>(drawTensor<mint>(random, {rows, width}));
        expectTotalsOf<mreal>(drawTensor<mreal>(random, {rows, width}));
        if (width < 70) expectTotalsOf<mcomplex>(drawTensor<mcomplex>(random, {rows, width}));
      }
    expectTotalsOf<mreal>(drawTensor<mreal>(random, {40000, 2}));
  });
}

TEST_F(Totals, CheckedIntegersFailWhereverAPartialSumDoes) {
  const auto expectFailure = [](mint rows, mint width, mint row, mint column) {
    std::vector<mint> values(size_t(rows * width), 0);
    values[size_t(row * width + column)] = INT32_MAX;
    values[size_t((row + 1) * width + column)] = 1;
    if (row + 2 < rows) values[size_t((row + 2) * width + column)] = -5; // and back again
    const Tensor tensor = tensorOf<mint>({rows, width}, values);
    EXPECT_TRUE(Model<mint>(tensor).failed);
    expectFails(NamedCall("Total").tensor(cloneOf(tensor.get())).integer(kIntegers), 1001);
  };
  atEveryLevel([&] {
    for (mint rows : {2, 3, 8, 9, 20})
      for (mint width : {1, 5, 16, 3000})
        for (mint column : {0, width / 2, width - 1})
          for (mint row = 0; row + 1 < rows; ++row) expectFailure(rows, width, row, column);
  });
}

TEST_F(Totals, CheckedIntegersFailAtTheReservedValueOnly) {
  const auto column = [](std::vector<mint> values) {
    return NamedCall("Total").tensor(tensorOf<mint>({mint(values.size()), 1}, values)).integer(kIntegers);
  };
  expectFails(column({INT32_MIN, 5}), 1001);
  expectFails(column({-5, INT32_MIN + 5}), 1001);
  expectExactly(column({5, INT32_MIN}), tensorOf<mint>({1}, {INT32_MIN + 5}));
  expectExactly(column({-INT32_MAX, 0}), tensorOf<mint>({1}, {-INT32_MAX}));
}

TEST_F(Totals, StartFromPlusZero) {
  expectExactly(NamedCall("Total").tensor(tensorOf<mreal>({1, 1}, {-0.0})).integer(0),
                tensorOf<mreal>({1}, {0.0}));
  expectExactly(
      NamedCall("Total").tensor(tensorOf<mcomplex>({2, 1}, {{-0.0, -0.0}, {-0.0, -0.0}})).integer(0),
      tensorOf<mcomplex>({1}, {{0.0, 0.0}}));
}

TEST_F(Totals, OfNoRowsAreZeros) {
  expectExactly(NamedCall("Total").tensor(newTensor(TORVANE_TYPE_INTEGER, {0, 3})).integer(4),
                tensorOf<mint>({3}, {0, 0, 0}));
  expectExactly(NamedCall("Total").tensor(newTensor(TORVANE_TYPE_REAL, {0, 1, 2})).integer(2),
                tensorOf<mreal>({1, 2}, {0, 0}));
  expectExactly(NamedCall("Total").tensor(newTensor(TORVANE_TYPE_COMPLEX, {0, 2, 0})).integer(2),
                newTensor(TORVANE_TYPE_COMPLEX, {2, 0}));
}

TEST_F(Totals, OfVectorsAndScalarsAreRefused) {
  expectFails(NamedCall("Total").tensor(tensorOf<mreal>({2}, {1, 2})).integer(0), 2);
  expectFails(NamedCall("Total").tensor(tensorOf<mint>({}, {1})).integer(0), 2);
}

TEST_F(Totals, OfTensorsWithoutATypeAreRefused) {
  const Tensor untyped(MTensor_new());
  MTensor *argument = untyped.get(), *slot = nullptr;
  mint flags = 0;
  mreal sum = 42;
  void *arguments[] = {&argument, &flags};
  EXPECT_EQ(lookupRuntimeFunction("TotalAll")(nullptr, 2, arguments, &sum), 1);
  EXPECT_EQ(sum, 42);
  mint extents[] = {1, 1};
  untyped->rank = 2;
  mint *const own = std::exchange(untyped->dimensions, extents);
  EXPECT_EQ(lookupRuntimeFunction("Total")(nullptr, 2, arguments, &slot), 1);
  EXPECT_EQ(slot, nullptr);
  untyped->rank = 0;
  untyped->dimensions = own;
}

template <class T> void expectTotalOfAll(const Tensor &tensor) {
  Sum sum;
  for (mint i = 0; i < tensor->elementCount; ++i) sum.take(elements<T>(tensor)[i]);
  T expected;
  sum.store(&expected);
  for (mint flags : {0, kReals, kIntegers, kReals | kIntegers}) {
    NamedCall call("TotalAll");
    call.tensor(cloneOf(tensor.get())).integer(flags);
    const bool isChecked = (flags & (typeOf<T>() == TORVANE_TYPE_INTEGER ? kIntegers : kReals)) != 0;
    T result, untouched;
    std::memset(&result, 0x5A, sizeof result);
    untouched = result;
    const bool fails = isChecked && sum.failed;
    EXPECT_EQ(call.run(&result), fails ? 1001 : 0);
    EXPECT_EQ(std::memcmp(&result, fails ? &untouched : &expected, sizeof result), 0) << textOf(tensor.get());
  }
}

TEST_F(Totals, OfAllElementsRunFromLeftToRightAtAnyLength) {
  std::mt19937 random(6);
  atEveryLevel([&random] {
    for (mint length : {0, 1, 2, 7, 8, 9, 67, 1000, 1025, 40000, 100000}) {
      expectTotalOfAll<mint>(drawTensor<mint>(random, {length}));
      expectTotalOfAll<mreal>(drawTensor<mreal>(random, {length}));
      expectTotalOfAll<mcomplex>(drawTensor<mcomplex>(random, {length}));
    }
  });
  for (const Extents &extents : {Extents{}, Extents{3, 4}, Extents{2, 0, 5}, Extents{2, 2, 2}}) {
    expectTotalOfAll<mint>(drawTensor<mint>(random, extents));
    expectTotalOfAll<mreal>(drawTensor<mreal>(random, extents));
    expectTotalOfAll<mcomplex>(drawTensor<mcomplex>(random, extents));
  }
}

// Two halves that fit, each by itself, though the sum on the way does not.
TEST_F(Totals, OfAllIntegersFailAtAPartialSumThatOnlyTheWholeRunHas) {
  std::vector<mint> values(80000, 0);
  values[100] = INT32_MAX;
  values[50000] = 1;
  values[79999] = -INT32_MAX;
  expectTotalOfAll<mint>(tensorOf<mint>({80000}, values));
}

// Lengths at which vector routines give pieces to the workers, and workers to give them to.
class ConcurrentTotals : public Totals {
protected:
  const FourWorkers workers;
};

std::vector<mreal> realsOfMixedExponents(size_t count) {
  std::mt19937_64 random(7);
  std::vector<mreal> values(count);
  for (mreal &x : values) x = std::ldexp(mreal(int64_t(random())), mint(random() % 60) - 90);
  return values;
}

mreal plainSum(const mreal *from, const mreal *to) {
  volatile mreal sum = 0;
  for (; from != to; ++from) sum = sum + *from;
  return sum;
}

TEST_F(ConcurrentTotals, OfRealsAreThoseOfOneLoopFromLeftToRight) {
  const size_t count = 100000;
  const std::vector<mreal> values = realsOfMixedExponents(count);
  const mreal expected = plainSum(values.data(), values.data() + count);
  volatile mreal ofPieces = 0;
  for (size_t first = 0; first < count; first += count / 4)
    ofPieces = ofPieces + plainSum(values.data() + first, values.data() + first + count / 4);
  ASSERT_NE(ofPieces, expected) << "sums whose order does not show";
  for (const mint flags : {0, kReals, kIntegers}) {
    mreal sum = 77;
    ASSERT_EQ(NamedCall("TotalAll").tensor(tensorOf<mreal>({100000}, values)).integer(flags).run(&sum), 0);
    EXPECT_EQ(std::bit_cast<uint64_t>(sum), std::bit_cast<uint64_t>(expected)) << flags;
    expectExactly(NamedCall("Total").tensor(tensorOf<mreal>({100000, 1}, values)).integer(flags),
                  tensorOf<mreal>({1}, {expected}));
  }
}

TEST_F(ConcurrentTotals, OfComplexNumbersAreThoseOfOneLoopFromLeftToRight) {
  const std::vector<mreal> parts = realsOfMixedExponents(100000);
  std::vector<mcomplex> values;
  for (const mreal x : parts) values.push_back({x, -x});
  const mreal expected = plainSum(parts.data(), parts.data() + parts.size());
  mcomplex sum = {77, 78};
  ASSERT_EQ(NamedCall("TotalAll").tensor(tensorOf<mcomplex>({100000}, values)).integer(kReals).run(&sum), 0);
  EXPECT_EQ(std::bit_cast<uint64_t>(sum.re), std::bit_cast<uint64_t>(expected));
  EXPECT_EQ(std::bit_cast<uint64_t>(sum.im), std::bit_cast<uint64_t>(-expected));
  expectExactly(NamedCall("Total").tensor(tensorOf<mcomplex>({100000, 1}, values)).integer(kReals),
                tensorOf<mcomplex>({1}, {{expected, -expected}}));
}

// With the last of them at 74999 the sums of four equal pieces would be in range, and theirs in order too.
TEST_F(ConcurrentTotals, OfIntegersFailAtAPartialSumThatOnlyTheWholeRunHas) {
  for (const size_t back : {size_t{79999}, size_t{74999}}) {
    std::vector<mint> values(100000, 0);
    values[100] = INT32_MAX;
    values[50000] = 1;
    values[back] = -INT32_MAX;
    const Tensor vector = tensorOf<mint>({100000}, values), column = tensorOf<mint>({100000, 1}, values);
    mint sum = 77;
    EXPECT_EQ(NamedCall("TotalAll").tensor(cloneOf(vector.get())).integer(kIntegers).run(&sum), 1001);
    EXPECT_EQ(sum, 77);
    EXPECT_EQ(NamedCall("TotalAll").tensor(cloneOf(vector.get())).integer(kReals).run(&sum), 0);
    EXPECT_EQ(sum, 1);
    expectFails(NamedCall("Total").tensor(cloneOf(column.get())).integer(kIntegers), 1001);
    expectExactly(NamedCall("Total").tensor(cloneOf(column.get())).integer(kReals), tensorOf<mint>({1}, {1}));
  }
}

// And here the last piece alone would be out of range.
TEST_F(ConcurrentTotals, OfIntegersFitWhereEveryPartialSumDoes) {
  std::vector<mint> values(100000, 0);
  values[0] = -INT32_MAX;
  values[99998] = INT32_MAX;
  values[99999] = INT32_MAX;
  mint sum = 77;
  EXPECT_EQ(NamedCall("TotalAll").tensor(tensorOf<mint>({100000}, values)).integer(kIntegers).run(&sum), 0);
  EXPECT_EQ(sum, INT32_MAX);
  expectExactly(NamedCall("Total").tensor(tensorOf<mint>({100000, 1}, values)).integer(kIntegers),
                tensorOf<mint>({1}, {INT32_MAX}));
}

TEST_F(Totals, OfInfinitiesFailWhereTheyAreChecked) {
  expectTotalOfAll<mreal>(tensorOf<mreal>({3}, {1, kInfinity, -kInfinity}));
  expectTotalOfAll<mcomplex>(tensorOf<mcomplex>({2}, {{1, 1e308}, {0, 1e308}}));
  expectTotalsOf<mreal>(tensorOf<mreal>({3, 2}, {1, 1, kInfinity, 2, -kInfinity, 3}));
  expectTotalsOf<mcomplex>(tensorOf<mcomplex>({2, 2}, {{1, 1e308}, {0, 0}, {0, 1e308}, {0, 0}}));
}

TEST_F(Totals, WithoutMemoryChangeNothing) {
  std::mt19937 random(1);
  expectRequests(NamedCall("Total").tensor(drawTensor<mreal>(random, {2, 200000})).integer(0), 1);
}

} // namespace

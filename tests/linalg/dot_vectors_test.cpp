// Dot products of vectors: order of the additions, strides, checks, and DotVV.
#include "dot_models.h"

#include "algorithms/registry.h"
#include "linalg/dot.h"
#include "linalg/plain_products.h"
#include "parallel/four_workers.h"

#include <torvane/linalg.h>
#include <torvane/machfuncs.h>

#include <gtest/gtest.h>

#include <limits>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mreal kInfinity = std::numeric_limits<mreal>::infinity();
constexpr mreal kNaN = std::numeric_limits<mreal>::quiet_NaN();

mint dotOf(mint *to, const mint *x, mint incx, const mint *y, mint incy, mint n, mint flags) {
  return VectorDot_I(to, x, incx, y, incy, n, flags);
}
mint dotOf(mreal *to, const mreal *x, mint incx, const mreal *y, mint incy, mint n, mint flags) {
  return VectorDot_R64(to, x, incx, y, incy, n, flags);
}
mint dotOf(mcomplex *to, const mcomplex *x, mint incx, const mcomplex *y, mint incy, mint n, mint flags) {
  return VectorDot_CR64(to, x, incx, y, incy, n, flags);
}

template <class T> const T kUntouched = T{77};
template <> const mcomplex kUntouched<mcomplex> = {77, 78};

constexpr mint kStrides[] = {1, 2, 5, -1, -3, 0};

template <class T, class Test> void overShapes(mint longest, mint shortest, Test test) {
  Samples samples(1);
  for (mint n = shortest; n <= longest; ++n)
    for (const mint incx : kStrides)
      for (const mint incy : kStrides) {
        const size_t room = size_t(n) * 5 + 1;
        test(samples.list<T>(room), incx, samples.list<T>(room), incy, n);
      }
}

template <class T> void expectInOrder() {
  overShapes<T>(50, 0, [](const std::vector<T> &x, mint incx, const std::vector<T> &y, mint incy, mint n) {
    T dot = kUntouched<T>;
    ASSERT_EQ(dotOf(&dot, x.data(), incx, y.data(), incy, n, kChecks), 0);
    ASSERT_EQ(dot, modelDot(walked(x, incx, n), walked(y, incy, n))) << n << " at " << incx << ", " << incy;
  });
}

TEST(VectorDot, OfUpToFiftyRealsAddsInTheOrderOfTheIndex) { expectInOrder<mreal>(); }
TEST(VectorDot, OfUpToFiftyComplexNumbersAddsInTheOrderOfTheIndex) { expectInOrder<mcomplex>(); }
TEST(VectorDot, OfIntegersWalksEveryStride) { expectInOrder<mint>(); }

// So that the tests above can fail: the order shows in the sum.
TEST(VectorDot, HasSamplesWhoseOrderOfAdditionsShows) {
  Samples samples(2);
  int differing = 0;
  for (int round = 0; round < 100; ++round) {
    std::vector<mreal> x = samples.list<mreal>(20), y = samples.list<mreal>(20);
    const mreal forwards = modelDot(x, y);
    differing += forwards != modelDot(walked(x, -1, 20), walked(y, -1, 20));
  }
  EXPECT_GT(differing, 50);
}

template <class T> void expectNear() {
  overShapes<T>(54, 51, [](const std::vector<T> &x, mint incx, const std::vector<T> &y, mint incy, mint n) {
    T dot = kUntouched<T>;
    ASSERT_EQ(dotOf(&dot, x.data(), incx, y.data(), incy, n, kChecks), 0);
    ASSERT_TRUE(areNear(walked(x, incx, n), walked(y, incy, n), dot)) << n << " at " << incx << ", " << incy;
  });
  Samples samples(3);
  for (const size_t n : std::initializer_list<size_t>{64, 100, 1000, 12345}) {
    const auto x = samples.list<T>(n), y = samples.list<T>(n);
    T dot = kUntouched<T>;
    ASSERT_EQ(dotOf(&dot, x.data(), 1, y.data(), 1, mint(n), 0), 0);
    ASSERT_TRUE(areNear(x, y, dot)) << n;
  }
}

TEST(VectorDot, OfLongerRealsIsWithinTheRoundingOfAnyOrder) { expectNear<mreal>(); }
TEST(VectorDot, OfLongerComplexNumbersIsWithinTheRoundingOfAnyOrder) { expectNear<mcomplex>(); }

TEST(VectorDot, OfNoElementsIsZeroWhateverTheResultHeld) {
  for (const mint n : {0, -1, INT32_MIN})
    for (const mint flags : {0, kChecks}) {
      mint i = 5;
      mreal d = kNaN;
      mcomplex c = {kInfinity, kNaN};
      EXPECT_EQ(VectorDot_I(&i, nullptr, 1, nullptr, -2, n, flags), 0);
      EXPECT_EQ(VectorDot_R64(&d, nullptr, 1, nullptr, 1, n, flags), 0);
      EXPECT_EQ(VectorDot_CR64(&c, nullptr, 1, nullptr, 1, n, flags), 0);
      EXPECT_EQ(i, 0);
      EXPECT_EQ(d, 0);
      EXPECT_FALSE(std::signbit(d));
      EXPECT_EQ(c, (mcomplex{0, 0}));
    }
}

TEST(VectorDot, StartsFromPositiveZero) {
  const mreal x[] = {-0.0}, y[] = {1};
  mreal dot = 1;
  EXPECT_EQ(VectorDot_R64(&dot, x, 1, y, 1, 1, 0), 0);
  EXPECT_FALSE(std::signbit(dot));
}

// On both sides of the limit.
TEST(VectorDot, ReportsAnInfiniteOrUndefinedSumUnderItsFlagAndKeepsTheResult) {
  for (const mint n : {3, 50, 51, 200})
    for (const mreal bad : {kInfinity, -kInfinity, kNaN, 1e308}) {
      std::vector<mreal> x(size_t(n), 1.0), y(size_t(n), 2.0);
      x[size_t(n) - 1] = bad;
      if (bad == 1e308) y[size_t(n) - 1] = 1e10;
      mreal dot = 77;
      for (const mint flags : {2, 6}) EXPECT_EQ(VectorDot_R64(&dot, x.data(), 1, y.data(), 1, n, flags), 1);
      EXPECT_EQ(dot, 77);
      for (const mint flags : {0, 4}) EXPECT_EQ(VectorDot_R64(&dot, x.data(), 1, y.data(), 1, n, flags), 0);
      EXPECT_FALSE(std::isfinite(dot));
    }
}

TEST(VectorDot, TestsBothPartsOfAComplexSum) {
  for (const mint n : {1, 50, 51, 90})
    for (const bool isImaginary : {false, true}) {
      std::vector<mcomplex> x(size_t(n), {1, 0}), y(size_t(n), {1, 0});
      y[0] = isImaginary ? mcomplex{0, 1e308} : mcomplex{1e308, 0};
      x[0] = {1e10, 0};
      mcomplex dot = {77, 78};
      EXPECT_EQ(VectorDot_CR64(&dot, x.data(), 1, y.data(), 1, n, 2), 1);
      EXPECT_EQ(dot, (mcomplex{77, 78}));
      EXPECT_EQ(VectorDot_CR64(&dot, x.data(), 1, y.data(), 1, n, 4), 0);
      EXPECT_FALSE(std::isfinite(isImaginary ? dot.im : dot.re));
    }
}

TEST(VectorDot, OfComplexNumbersDoesNotConjugateUnlessAsked) {
  Samples samples(4);
  for (const size_t n : std::initializer_list<size_t>{1, 7, 50, 51, 80}) {
    const auto x = samples.list<mcomplex>(n), y = samples.list<mcomplex>(n);
    auto conjugates = x;
    for (mcomplex &z : conjugates) z.im = -z.im;
    mcomplex plain, conjugated;
    ASSERT_EQ(dotComplexes(&plain, x.data(), 1, y.data(), 1, mint(n), false, 2), 0);
    ASSERT_EQ(dotComplexes(&conjugated, x.data(), 1, y.data(), 1, mint(n), true, 2), 0);
    EXPECT_TRUE(areNear(x, y, plain));
    EXPECT_TRUE(areNear(conjugates, y, conjugated));
    if (n <= 50) EXPECT_EQ(conjugated, modelDot(conjugates, y));
  }
}

TEST(VectorDot, OfIntegersIsExactOrFailsWhereACheckedSumDoes) {
  Samples samples(5);
  int failures = 0;
  for (int round = 0; round < 20000; ++round) {
    const mint n = samples.below(20), bits = 8 + samples.below(25);
    const mint incx = kStrides[samples.below(6)], incy = kStrides[samples.below(6)];
    const auto x = samples.list<mint>(size_t(n) * 5 + 1, bits),
               y = samples.list<mint>(size_t(n) * 5 + 1, 33 - bits);
    const auto walkX = walked(x, incx, n), walkY = walked(y, incy, n);
    const CheckedSum expected = modelChecked(walkX, walkY);
    mint dot = 77;
    ASSERT_EQ(VectorDot_I(&dot, x.data(), incx, y.data(), incy, n, 4), mint(expected.fails));
    ASSERT_EQ(dot, expected.fails ? 77 : expected.value);
    failures += expected.fails;
    for (const mint flags : {0, 2}) ASSERT_EQ(VectorDot_I(&dot, x.data(), incx, y.data(), incy, n, flags), 0);
    ASSERT_EQ(dot, modelDot(walkX, walkY));
  }
  EXPECT_GT(failures, 1000);
  EXPECT_LT(failures, 19000);
}

// Short ones have a loop of their own.
TEST(VectorDot, OfIntegersIsTheVectorRoutineAtEveryLength) {
  const std::vector<mint> bounds = {INT32_MIN, -INT32_MAX, -65536, -46341, -2,    -1,
                                    0,         1,          2,      46340,  65536, INT32_MAX};
  Samples samples(9);
  int failures = 0, rounds = 0;
  for (mint n = 0; n <= 60; ++n)
    for (mint round = 0; round < 300; ++round) {
      std::vector<mint> x(size_t(n) * 5 + 1), y = x;
      const mint rare = 1 + samples.below(2 * n + 2);
      for (mint &one : x)
        one = samples.below(rare) == 0 ? bounds[size_t(samples.below(12))] : samples.bits(9);
      for (mint &one : y) one = samples.bits(samples.below(rare) == 0 ? 31 : 4);
      const mint incx = kStrides[samples.below(6)], incy = kStrides[samples.below(6)];
      const mint strides[] = {1, incx, incy}, startX = incx < 0 && n > 0 ? (1 - n) * incx : 0,
                 startY = incy < 0 && n > 0 ? (1 - n) * incy : 0;
      for (const mint flags : {0, 4, kChecks}) {
        mint dot = 77, expected = 77;
        const bool fails =
            machfunc_ii_dot(&expected, x.data() + startX, y.data() + startY, n, strides, flags) != 0;
        ASSERT_EQ(VectorDot_I(&dot, x.data(), incx, y.data(), incy, n, flags), mint(fails)) << n;
        ASSERT_EQ(dot, fails ? 77 : expected) << n << " at " << incx << ", " << incy;
        failures += fails;
        ++rounds;
      }
    }
  EXPECT_GT(failures, rounds / 20);
  EXPECT_LT(failures, rounds / 2);
}

// ---- loops for builds without a BLAS ----------------------------------------------------------------

TEST(PlainProducts, AddInTheOrderOfTheIndexAtEveryLength) {
  Samples samples(6);
  for (mint n = 0; n <= 70; ++n)
    for (const mint incx : kStrides) {
      const size_t room = size_t(n) * 5 + 1;
      const auto x = samples.list<mreal>(room), y = samples.list<mreal>(room);
      ASSERT_EQ(plainDot(n, x.data(), incx, y.data(), -2), modelDot(walked(x, incx, n), walked(y, -2, n)));
      const auto z = samples.list<mcomplex>(room), w = samples.list<mcomplex>(room);
      auto conjugates = z;
      for (mcomplex &one : conjugates) one.im = -one.im;
      ASSERT_EQ(plainComplexDot(z.data(), incx, w.data(), 1, n, false),
                modelDot(walked(z, incx, n), walked(w, 1, n)));
      ASSERT_EQ(plainComplexDot(z.data(), incx, w.data(), 1, n, true),
                modelDot(walked(conjugates, incx, n), walked(w, 1, n)));
    }
}

template <class T> void expectPlainProducts() {
  Samples samples(7);
  for (const mint m : {1, 2, 7, 30})
    for (const mint k : {1, 3, 40})
      for (const mint n : {1, 5, 33}) {
        const auto a = samples.list<T>(size_t(m * k)), b = samples.list<T>(size_t(k * n));
        std::vector<T> result(size_t(m * n), kUntouched<T>);
        plainProduct(result.data(), a.data(), b.data(), m, k, n);
        ASSERT_EQ(result, modelProduct(a.data(), b.data(), m, k, n)) << m << " " << k << " " << n;
      }
}
TEST(PlainProducts, OfMatricesAreSumsInOrder) {
  expectPlainProducts<mreal>();
  expectPlainProducts<mcomplex>();
}

// ---- DotVV ------------------------------------------------------------------------------------------

mint callDotVV(void *result, MTensor *x, MTensor *y, mint flags) {
  void *arguments[] = {&x, &y, &flags};
  return handleDotVV(nullptr, 3, arguments, result);
}

template <class T> void expectDotVV() {
  Samples samples(8);
  for (const mint n : {0, 1, 7, 50, 51, 200}) {
    const Tensor x = samples.tensor<T>({n}), y = samples.tensor<T>({n});
    T dot = kUntouched<T>, expected = kUntouched<T>;
    EXPECT_EQ(callDotVV(&dot, x.get(), y.get(), kChecks), 0);
    EXPECT_EQ(dotOf(&expected, elements<T>(x), 1, elements<T>(y), 1, n, kChecks), 0);
    EXPECT_EQ(dot, expected) << n;
    if (n == 0) EXPECT_EQ(dot, T{});
    EXPECT_EQ(callDotVV(&dot, x.get(), x.get(), kChecks), 0) << "one tensor twice";
  }
}
TEST(DotVV, OfEachTypeIsItsVectorDot) {
  expectDotVV<mint>();
  expectDotVV<mreal>();
  expectDotVV<mcomplex>();
}

TEST(DotVV, RefusesRanksThenLengthsThenTypes) {
  const Tensor vector = tensorOf<mint>({2}, {1, 2}), longer = tensorOf<mreal>({3}, {1, 2, 3});
  const Tensor reals = tensorOf<mreal>({2}, {1, 2}), matrix = tensorOf<mreal>({1, 2}, {1, 2});
  const Tensor scalar = tensorOf<mreal>({}, {1}), untyped(MTensor_new());
  mcomplex result = {77, 78};
  EXPECT_EQ(callDotVV(&result, matrix.get(), vector.get(), 0), 2);
  EXPECT_EQ(callDotVV(&result, vector.get(), matrix.get(), 0), 2);
  EXPECT_EQ(callDotVV(&result, scalar.get(), scalar.get(), 0), 2);
  EXPECT_EQ(callDotVV(&result, nullptr, vector.get(), 0), 2);
  EXPECT_EQ(callDotVV(&result, vector.get(), nullptr, 0), 2);
  EXPECT_EQ(callDotVV(&result, vector.get(), longer.get(), 0), 3);
  EXPECT_EQ(callDotVV(&result, vector.get(), reals.get(), 0), 1) << "never read as what it is not";
  EXPECT_EQ(callDotVV(&result, reals.get(), vector.get(), 0), 1);
  const mint two = 2;
  MTensor *none = MTensor_newAllocatedCommon(TORVANE_TYPE_NONE, 1, &two, kQuiet);
  if (none != nullptr) EXPECT_EQ(callDotVV(&result, none, none, 0), 1);
  MTensor_delete(none);
  EXPECT_EQ(result, (mcomplex{77, 78}));
}

TEST(DotVV, GivesFourForAFailingSumAndKeepsTheResult) {
  mint i = 77;
  mreal d = 77;
  mcomplex c = {77, 78};
  const Tensor integers = tensorOf<mint>({2}, {65536, 65536}), reals = tensorOf<mreal>({2}, {1e200, 1e200});
  const Tensor complexes = tensorOf<mcomplex>({1}, {{1e200, 1e200}});
  EXPECT_EQ(callDotVV(&i, integers.get(), integers.get(), 4), 4);
  EXPECT_EQ(callDotVV(&d, reals.get(), reals.get(), 2), 4);
  EXPECT_EQ(callDotVV(&c, complexes.get(), complexes.get(), 2), 4);
  EXPECT_EQ(i, 77);
  EXPECT_EQ(d, 77);
  EXPECT_EQ(c, (mcomplex{77, 78}));
  EXPECT_EQ(callDotVV(&i, integers.get(), integers.get(), 2), 0);
  EXPECT_EQ(callDotVV(&d, reals.get(), reals.get(), 4), 0);
  EXPECT_EQ(i, 0) << "wrapped";
  EXPECT_EQ(d, kInfinity);
}

// ---- sums that the workers share --------------------------------------------------------------------

class ConcurrentVectorDots : public testing::Test {
protected:
  const FourWorkers workers;
};

constexpr mint kLong = 100000;
constexpr mint kLongStrides[] = {1, 2, -1};

int64_t exactDot(const std::vector<mint> &x, const std::vector<mint> &y) {
  uint64_t sum = 0; // modulo 2^64, where products of 30 bits take it
  for (size_t k = 0; k < x.size(); ++k) sum += static_cast<uint64_t>(int64_t{x[k]} * y[k]);
  return static_cast<int64_t>(sum);
}

TEST_F(ConcurrentVectorDots, OfIntegersAreExactOrWrapAtEveryStride) {
  Samples samples(9);
  for (const mint bits : {7, 30}) { // of 30, many products are out of range
    const auto x = samples.list<mint>(2 * kLong, bits), y = samples.list<mint>(2 * kLong, bits);
    for (const mint incx : kLongStrides)
      for (const mint incy : kLongStrides) {
        const int64_t expected = exactDot(walked(x, incx, kLong), walked(y, incy, kLong));
        mint dot = 77;
        for (const mint flags : {0, 2}) {
          ASSERT_EQ(VectorDot_I(&dot, x.data(), incx, y.data(), incy, kLong, flags), 0);
          ASSERT_EQ(dot, mint(expected)) << bits << " bits at " << incx << ", " << incy;
        }
        dot = 77;
        ASSERT_EQ(VectorDot_I(&dot, x.data(), incx, y.data(), incy, kLong, 4), mint(bits == 30));
        ASSERT_EQ(dot, bits == 30 ? 77 : mint(expected));
      }
  }
}

TEST_F(ConcurrentVectorDots, OfTensorsAreExactOrWrap) {
  Samples samples(10);
  for (const mint bits : {7, 30}) {
    const Tensor x = samples.tensor<mint>({kLong}, bits), y = samples.tensor<mint>({kLong}, bits);
    const int64_t expected = exactDot(valuesOf<mint>(x), valuesOf<mint>(y));
    mint dot = 77;
    ASSERT_EQ(callDotVV(&dot, x.get(), y.get(), 2), 0);
    EXPECT_EQ(dot, mint(expected));
    dot = 77;
    ASSERT_EQ(callDotVV(&dot, x.get(), y.get(), 4), bits == 30 ? 4 : 0);
    EXPECT_EQ(dot, bits == 30 ? 77 : mint(expected));
  }
}

// Products in range and sums of every worker's piece too: it is the whole that is not.
TEST_F(ConcurrentVectorDots, OfIntegersFailWhereTheWholeIsOutOfRange) {
  const std::vector<mint> y(2 * kLong, 1);
  for (const mint stride : kLongStrides) {
    const size_t step = stride == 2 ? 2 : 1;
    std::vector<mint> x(2 * kLong, 0);
    for (size_t k = 0; k < 4; ++k) x[k * 25000 * step] = 1 << 29;
    mint dot = 77;
    EXPECT_EQ(VectorDot_I(&dot, x.data(), stride, y.data(), 1, kLong, 4), 1) << stride;
    EXPECT_EQ(dot, 77);
    EXPECT_EQ(VectorDot_I(&dot, x.data(), stride, y.data(), 1, kLong, 0), 0) << stride;
    EXPECT_EQ(dot, INT32_MIN);
    x[step] = -1; // 2^31 - 1
    EXPECT_EQ(VectorDot_I(&dot, x.data(), stride, y.data(), 1, kLong, 4), 0) << stride;
    EXPECT_EQ(dot, INT32_MAX);
  }
  const Tensor a = newTensor(TORVANE_TYPE_INTEGER, {kLong}), ones = newTensor(TORVANE_TYPE_INTEGER, {kLong});
  MTensor_initialize(a.get(), 0);
  MTensor_initialize(ones.get(), 1);
  for (mint k = 0; k < kLong; k += 25000) elements<mint>(a)[k] = 1 << 29;
  mint dot = 77;
  EXPECT_EQ(callDotVV(&dot, a.get(), ones.get(), 4), 4);
  EXPECT_EQ(dot, 77);
}

} // namespace

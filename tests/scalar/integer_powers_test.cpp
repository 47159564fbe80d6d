// Powers of integers for all 64 pairs of types, the chains behind them, and the exact functions.
#include "scalar/evaluate.h"
#include "scalar/integer_functions.h"
#include "scalar/integer_power.h"
#include "support/integer_models.h"
#include "support/raised.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <torvane/scalars.h>

using namespace torvane;
using namespace torvane::test;
using model::Outcome;

namespace {

// ---- powers -------------------------------------------------------------------------------------

template <class T, class E> struct PowerEntries { T (*plain)(T, E), (*checked)(T, E); };

template <class T, class E> void expectPower(const PowerEntries<T, E> &entries, T x, E y) {
  const Outcome expected = model::pow(x, y);
  T value = 0;
  ASSERT_EQ(raisedBy([&] { value = entries.plain(x, y); }), expected.code) << +x << "^" << +y;
  if (expected.code == 0) ASSERT_EQ(value, expected.value.template wrapped<T>()) << +x << "^" << +y;
  const mint code = expected.code == 0 && expected.isRefused ? 1 : expected.code;
  ASSERT_EQ(raisedBy([&] { value = entries.checked(x, y); }), code) << "checked " << +x << "^" << +y;
  if (code == 0) ASSERT_EQ(value, expected.value.template wrapped<T>()) << "checked " << +x << "^" << +y;
}

// Bases of few digits have the powers that fit, the edges those that do not; exponents reach beyond the
// chains.
template <class T, class E> void expectPowers(PowerEntries<T, E> entries) {
  std::vector<T> bases = boundaryValues<T>(4, 10);
  for (int x = -20; x <= 20; ++x) bases.push_back(static_cast<T>(x));
  std::vector<E> exponents = boundaryValues<E>(4, 10);
  for (int y = -3; y <= 140; ++y) exponents.push_back(static_cast<E>(y));
  for (const T x : bases)
    for (const E y : exponents) ASSERT_NO_FATAL_FAILURE(expectPower(entries, x, y));
}

#define POWER(T, E)                                                                                          \
  {                                                                                                          \
    SCOPED_TRACE(#T "^" #E);                                                                                 \
    expectPowers<T, E>({binary_pow_##T##_##E, checked_binary_pow_##T##_##E});                                \
  }
#define POWERS(T)                                                                                            \
  TEST(IntegerPower, Of##T##ToEveryIntegerType) { TORVANE_FOR_EACH_INTEGER_WITH(POWER, T) }
TORVANE_FOR_EACH_INTEGER(POWERS)

// The largest base of every exponent, and its neighbour, of both signs.
template <class T> void expectLimits(T (*checked)(T, uint8_t)) {
  for (int y = 1; y < kBits<T>; ++y) {
    const T largest = static_cast<T>(kLargestBases<T>.entry[y]);
    for (const int sign : {1, -1}) {
      if (sign < 0 && !isSigned<T>) continue;
      const T step = static_cast<T>(sign), x = static_cast<T>(step * largest);
      EXPECT_EQ(raisedBy([&] { checked(x, uint8_t(y)); }), 0) << +x << "^" << y;
      EXPECT_TRUE(model::hasPower(x, uint64_t(y))) << +x << "^" << y;
      if (largest == std::numeric_limits<T>::max()) continue;
      const T next = static_cast<T>(x + step);
      EXPECT_EQ(raisedBy([&] { checked(next, uint8_t(y)); }), 1) << +next << "^" << y;
    }
  }
}

TEST(IntegerPower, CheckedFormStopsAtTheLargestBaseOfEveryExponent) {
#define LIMITS(T) expectLimits<T>(checked_binary_pow_##T##_UnsignedInteger8);
  TORVANE_FOR_EACH_INTEGER(LIMITS)
#undef LIMITS
}

TEST(IntegerPower, KeepsItsStatedEdges) {
  EXPECT_EQ(raisedBy([] { binary_pow_Integer32_Integer32(0, 0); }), 14);
  EXPECT_EQ(raisedBy([] { binary_pow_Integer32_Integer32(5, -1); }), 14);
  EXPECT_EQ(binary_pow_Integer32_Integer32(-1, -3), -1);
  EXPECT_EQ(binary_pow_Integer32_Integer32(1, -5), 1);
  EXPECT_EQ(raisedBy([] { checked_binary_pow_Integer32_Integer32(2, 31); }), 1);
  EXPECT_EQ(checked_binary_pow_Integer32_Integer32(2, 30), 1073741824);
  EXPECT_EQ(checked_binary_pow_UnsignedInteger32_Integer8(2, 31), 2147483648u);
  EXPECT_EQ(raisedBy([] { checked_binary_pow_Integer8_Integer8(-128, 1); }), 1);
  EXPECT_EQ(binary_pow_Integer8_Integer8(-128, 1), -128);
  EXPECT_EQ(binary_pow_Integer32_Integer32(2, 33), 2); // the processor's count, modulo 32
}

// The lengths of shortest addition chains, A003313.
TEST(PowerChain, IsOfTheShortestLengthForEveryExponent) {
  const int shortest[] = {0, 1, 2, 2, 3, 3, 4, 3, 4, 4, 5, 4, 5, 5, 5, 4, 5, 5, 6, 5, 6, 6,
                          6, 5, 6, 6, 6, 6, 7, 6, 7, 5, 6, 6, 7, 6, 7, 7, 7, 6, 7, 7, 7, 7,
                          7, 7, 8, 6, 7, 7, 7, 7, 8, 7, 8, 7, 8, 8, 8, 7, 8, 8, 8, 6};
  for (int n = 1; n <= int{kLongestChain}; ++n) {
    int length = 0;
    for (int k = n; k != 1; k = kPowerTree.parent[k]) ++length;
    EXPECT_EQ(length, shortest[n - 1]) << n;
  }
}

// Both factors of a step stand on its own way from 1.
TEST(PowerChain, UsesOnlyPowersItHas) {
  for (int n = 2; n <= int{kLongestChain}; ++n) {
    std::vector<int> way;
    for (int k = kPowerTree.parent[n]; k != 0; k = kPowerTree.parent[k]) way.push_back(k);
    EXPECT_NE(std::find(way.begin(), way.end(), n - kPowerTree.parent[n]), way.end()) << n;
  }
}

// ---- exact functions ----------------------------------------------------------------------------

struct Limits {
  int fibonacci, lucas, gamma;
};

template <class T> mint codeOf(T (*function)(error &, T), T x, T &value) {
  error code = error::none;
  value = function(code, x);
  return static_cast<mint>(code);
}

// Repeated division: 14 below 1, 3 for what is no power.
template <class T> Outcome logarithm(T x, uint64_t base) {
  if (x <= T(0)) return model::raises(14);
  uint64_t count = 0, rest = model::magnitude(x);
  for (; rest % base == 0; rest /= base) ++count;
  return rest == 1 ? model::givesCount(count) : model::raises(3);
}

// Exact sums to the index, forwards or backwards: S(n) = S(n + 2) - S(n + 1).
Exact sequence(int first, int second, int n) {
  Exact a = Exact::of(first), b = Exact::of(second);
  for (; n > 0; --n) {
    const Exact next = a + b;
    a = b;
    b = next;
  }
  for (; n < 0; ++n) {
    const Exact before = b - a;
    b = a;
    a = before;
  }
  return a;
}

template <class T> class IntegerFunctions : public testing::Test {};
using AllIntegers = testing::Types<int8_t, uint8_t, int16_t, uint16_t, int32_t, uint32_t, int64_t, uint64_t>;
TYPED_TEST_SUITE(IntegerFunctions, AllIntegers);

TYPED_TEST(IntegerFunctions, LogarithmsAreExactOrRefused) {
  using T = TypeParam;
  std::vector<T> values = unaryOperands<T>();
  for (uint64_t power = 1, k = 0; k < 20 && power <= uint64_t(std::numeric_limits<T>::max());
       ++k, power *= 10)
    for (const int d : {-1, 0, 1}) values.push_back(static_cast<T>(power + uint64_t(int64_t{d})));
  for (const T x : values) {
    T value = 0;
    const Outcome log2 = logarithm(x, 2), log10 = logarithm(x, 10);
    ASSERT_EQ(codeOf(integerLog2<T>, x, value), log2.code) << +x;
    if (log2.code == 0) ASSERT_EQ(value, log2.value.template wrapped<T>()) << +x;
    ASSERT_EQ(codeOf(integerLog10<T>, x, value), log10.code) << +x;
    if (log10.code == 0) ASSERT_EQ(value, log10.value.template wrapped<T>()) << +x;
  }
}

TYPED_TEST(IntegerFunctions, SequencesAreTheirRecurrencesUpToTheLastThatFits) {
  using T = TypeParam;
  const Limits signedLimits[] = {{11, 10, 6}, {23, 21, 8}, {46, 44, 13}, {92, 90, 21}};
  const Limits unsignedLimits[] = {{13, 11, 6}, {24, 23, 9}, {47, 46, 13}, {93, 92, 21}};
  const int width = sizeof(T) == 1 ? 0 : sizeof(T) == 2 ? 1 : sizeof(T) == 4 ? 2 : 3;
  const Limits last = isSigned<T> ? signedLimits[width] : unsignedLimits[width];
  for (const T n : unaryOperands<T>()) {
    T value = 0;
    const uint64_t m = model::magnitude(n);
    ASSERT_EQ(codeOf(integerFibonacci<T>, n, value), m > uint64_t(last.fibonacci) ? 1 : 0) << +n;
    if (m <= uint64_t(last.fibonacci)) ASSERT_EQ(value, sequence(0, 1, int(n)).wrapped<T>()) << +n;
    ASSERT_EQ(codeOf(integerLucas<T>, n, value), m > uint64_t(last.lucas) ? 1 : 0) << +n;
    if (m <= uint64_t(last.lucas)) ASSERT_EQ(value, sequence(2, 1, int(n)).wrapped<T>()) << +n;
  }
}

TYPED_TEST(IntegerFunctions, GammaIsTheFactorialBelowUpToTheLastThatFits) {
  using T = TypeParam;
  for (const T n : unaryOperands<T>()) {
    T value = 0;
    Exact factorial(1, false);
    bool isRefused = n < T(1);
    for (T k = 1; !isRefused && k < n; ++k) {
      factorial = factorial * Exact::of(k);
      isRefused = !factorial.template fits<T>();
    }
    ASSERT_EQ(codeOf(integerGamma<T>, n, value), isRefused ? 1 : 0) << +n;
    if (!isRefused) ASSERT_EQ(value, factorial.template wrapped<T>()) << +n;
  }
}

TEST(IntegerFunctionsAtTheirEdges, AreExact) {
  error code = error::none;
  EXPECT_EQ(integerFibonacci(code, -4), -3);
  EXPECT_EQ(integerFibonacci(code, -3), 2);
  EXPECT_EQ(integerFibonacci(code, 47u), 2971215073u);
  EXPECT_EQ(integerGamma(code, int8_t{6}), 120);
  EXPECT_EQ(integerLog2(code, 8), 3);
  EXPECT_EQ(code, error::none);
  integerFibonacci(code, 47);
  EXPECT_EQ(code, error::integerOverflow);
}

} // namespace

// Integer entries against exact arithmetic: 8-bit operands exhaustively, wider ones on their boundaries
// squared and at random.
#include "support/exact_integer.h"
#include "support/raised.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <torvane/scalars.h>
#include <vector>

using namespace torvane::test;

namespace {

constexpr mint kOverflow = TORVANE_ERROR_INTEGER_OVERFLOW;

// Both forms of one entry against the exact result.
template <class T> void expectExact(const Exact &exact, T (*plain)(T, T), T (*checked)(T, T), T x, T y) {
  T wrapped = 0, value = 0;
  ASSERT_EQ(raisedBy([&] { wrapped = plain(x, y); }), 0) << +x << " " << +y;
  ASSERT_EQ(wrapped, exact.wrapped<T>()) << +x << " " << +y;
  const mint code = raisedBy([&] { value = checked(x, y); });
  ASSERT_EQ(code, exact.isRefused<T>() ? kOverflow : 0) << +x << " " << +y;
  if (code == 0) ASSERT_EQ(value, wrapped) << +x << " " << +y;
}

template <class T> struct Entries {
  T (*plus)(T, T), (*checkedPlus)(T, T);
  T (*subtract)(T, T), (*checkedSubtract)(T, T);
  T (*times)(T, T), (*checkedTimes)(T, T);
  T (*minus)(T), (*checkedMinus)(T);
  T (*square)(T), (*checkedSquare)(T);
  T (*axpy)(T, T, T), (*checkedAxpy)(T, T, T);
  T (*divide)(T, T), (*checkedDivide)(T, T);
  T (*sqrt)(T), (*checkedSqrt)(T);
  T (*round)(T), (*checkedRound)(T);
};

#define ENTRIES(T)                                                                                                     \
  {binary_plus_##T##_##T,     checked_binary_plus_##T##_##T,     binary_subtract_##T##_##T,                            \
   checked_binary_subtract_##T##_##T, binary_times_##T##_##T,    checked_binary_times_##T##_##T,                       \
   unary_minus_##T,           checked_unary_minus_##T,           unary_square_##T,                                     \
   checked_unary_square_##T,  ternary_axpy_##T##_##T##_##T,      checked_ternary_axpy_##T##_##T##_##T,                 \
   binary_divide_##T##_##T,   checked_binary_divide_##T##_##T,   unary_sqrt_##T,                                       \
   checked_unary_sqrt_##T,    unary_round_##T,                   checked_unary_round_##T}

template <class T> Entries<T> entries();
template <> Entries<int8_t> entries() { return ENTRIES(Integer8); }
template <> Entries<uint8_t> entries() { return ENTRIES(UnsignedInteger8); }
template <> Entries<int16_t> entries() { return ENTRIES(Integer16); }
template <> Entries<uint16_t> entries() { return ENTRIES(UnsignedInteger16); }
template <> Entries<int32_t> entries() { return ENTRIES(Integer32); }
template <> Entries<uint32_t> entries() { return ENTRIES(UnsignedInteger32); }
template <> Entries<int64_t> entries() { return ENTRIES(Integer64); }
template <> Entries<uint64_t> entries() { return ENTRIES(UnsignedInteger64); }

// Every value of an 8-bit type; of a wider one the edges, powers of two and their neighbours, roots of
// the edges, and random values of every bit length.
template <class T> std::vector<T> operands() {
  std::vector<T> values;
  const T low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  if (sizeof(T) == 1) {
    for (int v = low; v <= high; ++v) values.push_back(static_cast<T>(v));
    return values;
  }
  constexpr int bits = 8 * sizeof(T);
  for (int k = 0; k < bits; ++k)
    for (int d = -1; d <= 1; ++d)
      for (const uint64_t sign : {uint64_t{0}, ~uint64_t{0}}) {
        const uint64_t magnitude = (uint64_t{1} << k) + static_cast<uint64_t>(static_cast<int64_t>(d));
        values.push_back(static_cast<T>((magnitude ^ sign) - sign));
      }
  for (const T edge : {low, high}) values.insert(values.end(), {edge, static_cast<T>(edge / 2), static_cast<T>(edge / 3)});
  std::mt19937_64 random(20260101 + sizeof(T));
  for (int k = 0; k < 60; ++k) values.push_back(static_cast<T>(random() >> (random() % 64)));
  return values;
}

template <class T> class IntegerEntries : public testing::Test {};
using AllIntegers = testing::Types<int8_t, uint8_t, int16_t, uint16_t, int32_t, uint32_t, int64_t, uint64_t>;
TYPED_TEST_SUITE(IntegerEntries, AllIntegers);

TYPED_TEST(IntegerEntries, SumsDifferencesAndProductsAreExactOrRefused) {
  using T = TypeParam;
  const Entries<T> e = entries<T>();
  for (const T x : operands<T>())
    for (const T y : operands<T>()) {
      const Exact a = Exact::of(x), b = Exact::of(y);
      ASSERT_NO_FATAL_FAILURE(expectExact(a + b, e.plus, e.checkedPlus, x, y));
      ASSERT_NO_FATAL_FAILURE(expectExact(a - b, e.subtract, e.checkedSubtract, x, y));
      ASSERT_NO_FATAL_FAILURE(expectExact(a * b, e.times, e.checkedTimes, x, y));
    }
}

TYPED_TEST(IntegerEntries, SquareIsExactOrRefused) {
  using T = TypeParam;
  const Entries<T> e = entries<T>();
  for (const T x : operands<T>()) {
    T value = 0;
    const Exact exact = Exact::of(x) * Exact::of(x);
    ASSERT_EQ(e.square(x), exact.wrapped<T>()) << +x;
    ASSERT_EQ(raisedBy([&] { value = e.checkedSquare(x); }), exact.isRefused<T>() ? kOverflow : 0) << +x;
    if (!exact.isRefused<T>()) ASSERT_EQ(value, exact.wrapped<T>()) << +x;
  }
}

// A signed negation is refused for the reserved value alone; an unsigned one wraps and raises nothing.
TYPED_TEST(IntegerEntries, MinusRefusesOnlyTheReservedValue) {
  using T = TypeParam;
  const Entries<T> e = entries<T>();
  const bool isSigned = std::numeric_limits<T>::is_signed;
  for (const T x : operands<T>()) {
    T value = 0;
    const T wrapped = (-Exact::of(x)).template wrapped<T>();
    const bool refused = isSigned && x == std::numeric_limits<T>::min();
    ASSERT_EQ(e.minus(x), wrapped) << +x;
    ASSERT_EQ(raisedBy([&] { value = e.checkedMinus(x); }), refused ? kOverflow : 0) << +x;
    if (!refused) ASSERT_EQ(value, wrapped) << +x;
  }
}

// Up to 32 bits the exact whole counts, at 64 bits each of its two steps.
TYPED_TEST(IntegerEntries, AxpyTestsTheWholeUpTo32BitsAndEachStepAt64) {
  using T = TypeParam;
  const Entries<T> e = entries<T>();
  const std::vector<T> all = operands<T>();
  std::mt19937 random(7);
  for (int k = 0; k < 40000; ++k) {
    const T a = all[random() % all.size()], x = all[random() % all.size()], y = all[random() % all.size()];
    const Exact product = Exact::of(a) * Exact::of(x), exact = product + Exact::of(y);
    const bool refused = exact.isRefused<T>() || (sizeof(T) == 8 && product.isRefused<T>());
    T value = 0;
    ASSERT_EQ(e.axpy(a, x, y), exact.wrapped<T>()) << +a << " " << +x << " " << +y;
    ASSERT_EQ(raisedBy([&] { value = e.checkedAxpy(a, x, y); }), refused ? kOverflow : 0) << +a << " " << +x << " " << +y;
    if (!refused) ASSERT_EQ(value, exact.wrapped<T>()) << +a << " " << +x << " " << +y;
  }
}

TYPED_TEST(IntegerEntries, DivisionAndRootsAreNotDefined) {
  using T = TypeParam;
  const Entries<T> e = entries<T>();
  for (const T x : {T(0), T(1), T(4), std::numeric_limits<T>::max(), std::numeric_limits<T>::min()}) {
    for (auto divide : {e.divide, e.checkedDivide}) EXPECT_EQ(raisedBy([&] { divide(x, T(1)); }), 17);
    for (auto sqrt : {e.sqrt, e.checkedSqrt}) EXPECT_EQ(raisedBy([&] { sqrt(x); }), 17);
  }
}

TYPED_TEST(IntegerEntries, RoundIsTheIdentityAndTestsNothing) {
  using T = TypeParam;
  const Entries<T> e = entries<T>();
  for (const T x : operands<T>())
    for (auto round : {e.round, e.checkedRound}) {
      T value = 0;
      ASSERT_EQ(raisedBy([&] { value = round(x); }), 0) << +x;
      ASSERT_EQ(value, x);
    }
}

TEST(IntegerEntriesAtTheirEdges, ReservedValueCountsAsOverflowThoughItFits) {
  EXPECT_EQ(raisedBy([] { checked_binary_plus_Integer8_Integer8(-100, -28); }), 1);
  EXPECT_EQ(raisedBy([] { checked_binary_plus_Integer32_Integer32(2147483647, 1); }), 1);
  EXPECT_EQ(binary_plus_Integer32_Integer32(2147483647, 1), INT32_MIN);
  EXPECT_EQ(raisedBy([] { checked_binary_times_Integer32_Integer32(-65536, 32768); }), 1);
  EXPECT_EQ(raisedBy([] { checked_unary_minus_Integer32(INT32_MIN); }), 1);
  EXPECT_EQ(checked_unary_minus_UnsignedInteger32(5), 4294967291u);
}

TEST(IntegerEntriesAtTheirEdges, SuccessLeavesAPendingCodeAlone) {
  const mint outer = setExceptionActive(14);
  EXPECT_EQ(checked_binary_plus_Integer32_Integer32(2, 3), 5);
  EXPECT_EQ(setExceptionActive(outer), 14);
}

} // namespace

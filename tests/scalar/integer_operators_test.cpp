// Every integer operator of the matrix against its model, plain and checked: all values of 8 and 16 bits
// for one operand, all pairs of 8 bits for two, the edges and random values of the wider types.
#include "scalar/operator_table.h"
#include "support/integer_models.h"
#include "support/raised.h"

#include <gtest/gtest.h>
#include <sstream>
#include <torvane/scalars.h>

using namespace torvane;
using namespace torvane::test;
using model::Outcome;

namespace {

// Entries yield T or mint; either is exact.
template <auto entry, class... T> Exact call(T... x) { return Exact::of(entry(x...)); }

template <class... T> struct Case {
  const char *name;
  Outcome (*model)(T...);
  Exact (*plain)(T...), (*checked)(T...);
};

std::string shown(const char *name, auto... x) {
  std::ostringstream text;
  text << name;
  ((text << " " << +x), ...);
  return text.str();
}

// Results are compared in 64 bits where they are T, and so are the counts and truths that are mint.
template <class Result, class... T> void expectOutcome(const Case<T...> &one, T... x) {
  const Outcome expected = one.model(x...);
  const uint64_t value = static_cast<uint64_t>(expected.value.wrapped<Result>());
  Exact result(0, false);
  ASSERT_EQ(raisedBy([&] { result = one.plain(x...); }), expected.code) << shown(one.name, x...);
  if (expected.code == 0) ASSERT_EQ(result.wrapped<uint64_t>(), value) << shown(one.name, x...);
  const mint code = expected.code == 0 && expected.isRefused ? 1 : expected.code;
  ASSERT_EQ(raisedBy([&] { result = one.checked(x...); }), code) << "checked " << shown(one.name, x...);
  if (code == 0) ASSERT_EQ(result.wrapped<uint64_t>(), value) << "checked " << shown(one.name, x...);
}

// ---- the operators of one type ------------------------------------------------------------------

template <class T> struct Operators;

#define UNARY(T, op, rule)                                                                                   \
  { #op, model::rule < T>, call < unary_##op##_##T, T>, call < checked_unary_##op##_##T, T> }
#define BINARY(T, op)                                                                                        \
  {                                                                                                          \
#op, model::op < T>, call < binary_##op##_##T##_##T, T, T>, call < checked_binary_##op##_##T##_##T, T,   \
        T>                                                                                                   \
  }

#define OPERATORS(T)                                                                                         \
  template <> struct Operators<T> {                                                                          \
    static constexpr Case<T> ofT[] = {                                                                       \
        UNARY(T, abs, abs),        UNARY(T, square, square),  UNARY(T, abssquare, abssquare),                \
        UNARY(T, minus, minus),    UNARY(T, arg, arg),        UNARY(T, bit_not, bit_not),                    \
        UNARY(T, ramp, ramp),      UNARY(T, round, itself),   UNARY(T, floor, itself),                       \
        UNARY(T, ceiling, itself), UNARY(T, intpart, itself), UNARY(T, conj, itself),                        \
        UNARY(T, copy, itself),    UNARY(T, re, itself),      UNARY(T, im, zero),                            \
        UNARY(T, fracpart, zero),  UNARY(T, mod1, zero),      UNARY(T, zero, zero),                          \
        UNARY(T, one, one),                                                                                  \
    };                                                                                                       \
    static constexpr Case<T> ofWord[] = {                                                                    \
        UNARY(T, bit_count, bit_count),                                                                      \
        UNARY(T, bit_length, bit_length),                                                                    \
        UNARY(T, evenq, evenq),                                                                              \
        UNARY(T, oddq, oddq),                                                                                \
        UNARY(T, pos, pos),                                                                                  \
        UNARY(T, neg, neg),                                                                                  \
        UNARY(T, npos, npos),                                                                                \
        UNARY(T, nneg, nneg),                                                                                \
        UNARY(T, unitize, unitizeUnary),                                                                     \
        UNARY(T, sign, sign),                                                                                \
        UNARY(T, fpexception, zero),                                                                         \
    };                                                                                                       \
    static constexpr Case<T, T> pairsOfT[] = {                                                               \
        BINARY(T, plus),   BINARY(T, subtract), BINARY(T, times), BINARY(T, abserr), BINARY(T, bit_and),     \
        BINARY(T, bit_or), BINARY(T, bit_xor),  BINARY(T, max),   BINARY(T, min),    BINARY(T, maxabs),      \
        BINARY(T, intexp), BINARY(T, intlen),   BINARY(T, pow),                                              \
    };                                                                                                       \
    static constexpr Case<T, T> divisions[] = {BINARY(T, mod), BINARY(T, quotient)};                         \
    static constexpr Case<T, T> shifts[] = {BINARY(T, bit_shiftleft), BINARY(T, bit_shiftright)};            \
    static constexpr Case<T, T> tolerance = BINARY(T, unitize);                                              \
    static mint fpexception(T x, T y) { return binary_fpexception_##T##_##T(x, y); }                         \
    static mint checkedFpexception(T x, T y) { return checked_binary_fpexception_##T##_##T(x, y); }          \
    static T axmy(T a, T x, T y) { return ternary_axmy_##T##_##T##_##T(a, x, y); }                           \
    static T checkedAxmy(T a, T x, T y) { return checked_ternary_axmy_##T##_##T##_##T(a, x, y); }            \
    static T ymax(T a, T x, T y) { return ternary_ymax_##T##_##T##_##T(a, x, y); }                           \
    static T checkedYmax(T a, T x, T y) { return checked_ternary_ymax_##T##_##T##_##T(a, x, y); }            \
  };
TORVANE_FOR_EACH_INTEGER(OPERATORS)

template <class T> class IntegerOperators : public testing::Test {};
using AllIntegers = testing::Types<int8_t, uint8_t, int16_t, uint16_t, int32_t, uint32_t, int64_t, uint64_t>;
TYPED_TEST_SUITE(IntegerOperators, AllIntegers);

TYPED_TEST(IntegerOperators, OfOneOperandAreTheirModels) {
  using T = TypeParam;
  for (const T x : unaryOperands<T>()) {
    for (const Case<T> &one : Operators<T>::ofT) ASSERT_NO_FATAL_FAILURE(expectOutcome<T>(one, x));
    for (const Case<T> &one : Operators<T>::ofWord) ASSERT_NO_FATAL_FAILURE(expectOutcome<mint>(one, x));
  }
}

TYPED_TEST(IntegerOperators, OfTwoOperandsAreTheirModels) {
  using T = TypeParam;
  const std::vector<T> values = pairOperands<T>();
  for (const T x : values)
    for (const T y : values) {
      for (const Case<T, T> &one : Operators<T>::pairsOfT)
        ASSERT_NO_FATAL_FAILURE(expectOutcome<T>(one, x, y));
      ASSERT_NO_FATAL_FAILURE(expectOutcome<mint>(Operators<T>::tolerance, x, y));
    }
}

// The most negative value divided by -1 is the processor's to refuse.
TYPED_TEST(IntegerOperators, RemaindersAndQuotientsAreFloored) {
  using T = TypeParam;
  const std::vector<T> values = pairOperands<T>();
  for (const T x : values)
    for (const T y : values)
      for (const Case<T, T> &one : Operators<T>::divisions)
        if (!model::isLowest(x) || y != static_cast<T>(-1))
          ASSERT_NO_FATAL_FAILURE(expectOutcome<T>(one, x, y));
}

// Counts within and just beyond the width, besides the values themselves.
TYPED_TEST(IntegerOperators, ShiftsMoveTheMagnitudeOfSignedTypesOnly) {
  using T = TypeParam;
  std::vector<T> counts = pairOperands<T>();
  for (int k = -2 - kBits<T>; k <= 2 + kBits<T>; ++k) counts.push_back(static_cast<T>(k));
  for (const T x : pairOperands<T>())
    for (const T y : counts)
      for (const Case<T, T> &one : Operators<T>::shifts) {
        if (isSigned<T>)
          ASSERT_NO_FATAL_FAILURE(expectOutcome<T>(one, x, y));
        else
          for (auto entry : {one.plain, one.checked})
            ASSERT_EQ(raisedBy([&] { entry(x, y); }), 17) << one.name;
      }
}

// Up to 32 bits the exact whole counts, at 64 bits each of the two steps.
TYPED_TEST(IntegerOperators, CompoundsTestTheWholeUpTo32BitsAndEachStepAt64) {
  using T = TypeParam;
  using All = Operators<T>;
  const std::vector<T> all = pairOperands<T>();
  std::mt19937 random(11);
  const auto any = [&] { return all[random() % all.size()]; };
  for (int k = 0; k < 60000; ++k) {
    const T a = any(), x = any(), y = any();
    const Exact product = Exact::of(a) * Exact::of(x), whole = product - Exact::of(y), reversed = -whole;
    const bool productRefused = sizeof(T) == 8 && product.isRefused<T>();
    const auto expect = [&](const Exact &exact, T plain, auto checked) {
      T value = 0;
      const bool refused = productRefused || exact.isRefused<T>();
      ASSERT_EQ(plain, exact.wrapped<T>()) << shown("", a, x, y);
      ASSERT_EQ(raisedBy([&] { value = checked(a, x, y); }), refused ? 1 : 0) << shown("", a, x, y);
      if (!refused) ASSERT_EQ(value, plain) << shown("", a, x, y);
    };
    ASSERT_NO_FATAL_FAILURE(expect(whole, All::axmy(a, x, y), All::checkedAxmy));
    ASSERT_NO_FATAL_FAILURE(expect(reversed, All::ymax(a, x, y), All::checkedYmax));
  }
}

TYPED_TEST(IntegerOperators, NothingIsAnExceptionalOperand) {
  using T = TypeParam;
  for (const T x : boundaryValues<T>(3, 0))
    for (auto entry : {Operators<T>::fpexception, Operators<T>::checkedFpexception}) {
      mint value = -1;
      ASSERT_EQ(raisedBy([&] { value = entry(x, x); }), 0);
      ASSERT_EQ(value, 0);
    }
}

// ---- exact values -------------------------------------------------------------------------------

TEST(IntegerOperatorsAtTheirEdges, BitOperatorsRefuseTheReservedValueThoughNothingOverflows) {
  EXPECT_EQ(raisedBy([] { checked_binary_bit_and_Integer8_Integer8(-128, -128); }), 1);
  EXPECT_EQ(binary_bit_and_Integer8_Integer8(-128, -128), -128);
  EXPECT_EQ(raisedBy([] { checked_binary_min_Integer32_Integer32(INT32_MIN, 0); }), 1);
  EXPECT_EQ(raisedBy([] { checked_unary_bit_not_Integer16(INT16_MAX); }), 1);
  EXPECT_EQ(raisedBy([] { checked_unary_abs_Integer64(INT64_MIN); }), 1);
}

// Operators whose cell asks no test hand the reserved value on.
TEST(IntegerOperatorsAtTheirEdges, ReservedValuePassesWhereNothingIsTested) {
  int8_t copy = 0, quotient = 0, round = 0;
  EXPECT_EQ(raisedBy([&] {
              copy = checked_unary_copy_Integer8(-128);
              quotient = checked_binary_quotient_Integer8_Integer8(-128, 1);
              round = checked_unary_round_Integer8(-128);
            }),
            0);
  EXPECT_EQ(copy, -128);
  EXPECT_EQ(quotient, -128);
  EXPECT_EQ(round, -128);
}

TEST(IntegerOperatorsAtTheirEdges, RemaindersTakeTheDivisorsSign) {
  EXPECT_EQ(binary_mod_Integer32_Integer32(-7, 3), 2);
  EXPECT_EQ(binary_mod_Integer32_Integer32(7, -3), -2);
  EXPECT_EQ(binary_quotient_Integer32_Integer32(-7, 3), -3);
}

TEST(IntegerOperatorsAtTheirEdges, ShiftsTruncateTowardZero) {
  EXPECT_EQ(binary_bit_shiftleft_Integer32_Integer32(-5, -1), -2);
  EXPECT_EQ(raisedBy([] { binary_bit_shiftleft_Integer32_Integer32(INT32_MIN, 1); }), 14);
  EXPECT_EQ(raisedBy([] { binary_bit_shiftright_Integer32_Integer32(0, INT32_MIN); }), 14);
  EXPECT_EQ(binary_bit_shiftleft_Integer32_Integer32(1, 32), 0);
}

TEST(IntegerOperatorsAtTheirEdges, DigitsAndFactorsOfABase) {
  EXPECT_EQ(binary_intexp_Integer32_Integer32(48, 2), 4);
  EXPECT_EQ(binary_intexp_Integer32_Integer32(48, 4), 2);
  EXPECT_EQ(binary_intexp_Integer32_Integer32(48, 3), 1);
  EXPECT_EQ(raisedBy([] { binary_intexp_Integer32_Integer32(0, 2); }), 14);
  EXPECT_EQ(binary_intlen_Integer32_Integer32(255, 16), 2);
  EXPECT_EQ(binary_intlen_Integer32_Integer32(0, 10), 0);
  EXPECT_EQ(binary_intlen_Integer32_Integer32(1, 10), 1);
}

TEST(IntegerOperatorsAtTheirEdges, BitLengthOfANegativeIsThatOfItsComplement) {
  EXPECT_EQ(unary_bit_length_Integer32(-1), 0);
  EXPECT_EQ(unary_bit_length_Integer32(-2), 1);
  EXPECT_EQ(unary_bit_length_Integer32(-256), 8);
}

} // namespace

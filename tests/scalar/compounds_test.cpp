// The entries of three operands, (a, x, y), are the two-operand ones in turn, each step rounded; on Real16
// the steps are those of Real32 and the result is cut off once. Real16 entries of two operands likewise.
#include "typed_call.h"

#include "scalar/operator_traits.h"
#include "support/half_values.h"
#include "support/raised.h"
#include "support/real_samples.h"

#include <gtest/gtest.h>
#include <torvane/scalars.h>

using namespace torvane;
using namespace torvane::test;

namespace {

// ---- values behind pointers ---------------------------------------------------------------------

template <class T, class Entry, class... X> T valueOf(Entry *entry, X... x) {
  RealPartOf<T> parts[2] = {};
  if constexpr (isComplex<T>) {
    callInto(parts, entry, x...);
    return {parts[0], parts[1]};
  } else {
    return callInto(static_cast<T *>(nullptr), entry, x...);
  }
}

template <class T> bool sameValue(T x, T y) {
  if constexpr (isComplex<T>)
    return sameReal(x.re, y.re) && sameReal(x.im, y.im);
  else
    return sameReal(x, y);
}

// ---- compounds ----------------------------------------------------------------------------------

template <class T> struct Steps {
  T (*plus)(T, T), (*subtract)(T, T), (*times)(T, T), (*divide)(T, T);
  T (*axpy[2])(T, T, T), (*axmy[2])(T, T, T), (*ymax[2])(T, T, T), (*adxmy[2])(T, T, T);
};

#define PAIR(op, T) [](T x, T y) { return valueOf<T>(binary_##op##_##T##_##T, x, y); }
#define TRIPLES(op, T)                                                                                       \
  {                                                                                                          \
    [](T a, T x, T y) { return valueOf<T>(ternary_##op##_##T##_##T##_##T, a, x, y); },                       \
        [](T a, T x, T y) { return valueOf<T>(checked_ternary_##op##_##T##_##T##_##T, a, x, y); }            \
  }
#define STEPS(T)                                                                                             \
  {                                                                                                          \
    PAIR(plus, T), PAIR(subtract, T), PAIR(times, T), PAIR(divide, T), TRIPLES(axpy, T), TRIPLES(axmy, T),   \
        TRIPLES(ymax, T), TRIPLES(adxmy, T)                                                                  \
  }

template <class T> struct Expected {
  T value;
  mint code; // of the plain form
};
template <class T, class Call> Expected<T> expectedOf(Call call) {
  Expected<T> expected = {};
  expected.code = raisedBy([&] { expected.value = call(); });
  return expected;
}

template <class T> mint classified(T x) {
  if constexpr (isComplex<T>)
    return valueCodeOf(x.re) != 0 ? valueCodeOf(x.re) : valueCodeOf(x.im);
  else
    return valueCodeOf(x);
}

template <class T>
void expectForms(const Expected<T> &expected, T (*const (&forms)[2])(T, T, T), T a, T x, T y) {
  for (const bool isChecked : {false, true}) {
    T value = {};
    const mint tested = isChecked && expected.code == 0 ? classified(expected.value) : expected.code;
    ASSERT_EQ(raisedBy([&] { value = forms[isChecked](a, x, y); }), tested);
    if (tested == 0) ASSERT_TRUE(sameValue(value, expected.value));
  }
}

template <class T> void expectSteps(const Steps<T> &s, T a, T x, T y) {
  expectForms(expectedOf<T>([&] { return s.plus(s.times(a, x), y); }), s.axpy, a, x, y);
  expectForms(expectedOf<T>([&] { return s.subtract(s.times(a, x), y); }), s.axmy, a, x, y);
  expectForms(expectedOf<T>([&] { return s.subtract(y, s.times(a, x)); }), s.ymax, a, x, y);
  expectForms(expectedOf<T>([&] { return s.divide(a, s.subtract(x, y)); }), s.adxmy, a, x, y);
}

// Special values and their neighbours in magnitude, so that products, sums and differences all matter.
template <class R> std::vector<R> operands() {
  std::vector<R> values = specialReals<R>();
  std::mt19937_64 random(41);
  for (int k = 0; k < 60; ++k)
    values.push_back(R(std::ldexp(double(random() >> 11), -50 - int(random() % 6))) * R(k % 2 == 0 ? 1 : -1));
  return values;
}

template <class T> T any(const std::vector<RealPartOf<T>> &values, std::mt19937 &random) {
  const auto part = [&] { return values[random() % values.size()]; };
  if constexpr (isComplex<T>)
    return {part(), part()};
  else
    return part();
}

template <class T> void expectCompounds(const Steps<T> &steps) {
  const auto values = operands<RealPartOf<T>>();
  std::mt19937 random(43);
  for (int k = 0; k < 40000 && !testing::Test::HasFatalFailure(); ++k) {
    const T a = any<T>(values, random), x = any<T>(values, random);
    const T y = k % 8 == 0 ? x : any<T>(values, random);
    expectSteps(steps, a, x, y);
  }
}

TEST(Compounds, AreTheirTwoStepsEachRounded) {
  expectCompounds<Real32>(STEPS(Real32));
  expectCompounds<Real64>(STEPS(Real64));
  expectCompounds<ComplexReal32>(STEPS(ComplexReal32));
  expectCompounds<ComplexReal64>(STEPS(ComplexReal64));
}

TEST(Compounds, TakeTheirOperandsInTheOrderAXY) {
  EXPECT_EQ(ternary_axpy_Real64_Real64_Real64(2, 3, 10), 16);
  EXPECT_EQ(ternary_axmy_Real64_Real64_Real64(2, 3, 10), -4);
  EXPECT_EQ(ternary_ymax_Real64_Real64_Real64(2, 3, 10), 4);
  EXPECT_EQ(ternary_adxmy_Real64_Real64_Real64(2, 3, -1), 0.5);
  double re = 0, im = 0;
  ternary_adxmy_ComplexReal64_ComplexReal64_ComplexReal64(&re, &im, 0, 2, 3, 1, 1, 1); // 2 i / 2
  EXPECT_TRUE(re == 0 && im == 1);
  ternary_ymax_ComplexReal64_ComplexReal64_ComplexReal64(&re, &im, 0, 1, 0, 1, 5, 7); // y - i i
  EXPECT_TRUE(re == 6 && im == 7);
}

// ---- Real16 -------------------------------------------------------------------------------------

std::vector<Real16> halves() {
  std::vector<Real16> values = samples<Real16>();
  std::mt19937 random(47);
  for (int k = 0; k < 60; ++k) values.push_back({static_cast<uint16_t>(random())});
  for (int k = 0; k < 60; ++k)
    values.push_back({static_cast<uint16_t>(0x3800 + random() % 0x1400 + (random() & 0x8000))});
  return values;
}

// The entry of Real32 on the widened operands, cut off.
template <class Single, class Half, class... T>
void expectCutOff(const char *name, Checks cell, Single *single, Half *plain, Half *checked, T... x) {
  float wide = 0;
  const mint code = raisedBy([&] { wide = single(widen(x)...); });
  const uint16_t pattern = narrow(wide).bits;
  for (Half *entry : {plain, checked}) {
    const bool isTested = entry == checked && code == 0 && (cell & checks::c69) != 0;
    const mint expected = isTested ? valueCodeOf(double(widen(Real16{pattern}))) : code;
    uint16_t result = 0;
    ASSERT_EQ(raisedBy([&] { callInto(&result, entry, x...); }), expected) << name;
    if (expected == 0) ASSERT_TRUE(sameHalf(result, pattern)) << name << " " << result << " for " << pattern;
  }
}

using SinglePair = float(float, float);
using HalfPair = uint16_t *(uint16_t *, uint16_t, uint16_t);
void expectPairsCutOff(const char *name, Checks cell, SinglePair *single, HalfPair *plain,
                       HalfPair *checked) {
  for (const Real16 x : halves())
    for (const Real16 y : halves())
      ASSERT_NO_FATAL_FAILURE(expectCutOff(name, cell, single, plain, checked, x, y));
}

TEST(Real16Pairs, AreTheReal32OperatorsCutOff) {
#define PAIRS(op)                                                                                            \
  expectPairsCutOff(#op, kChecks<binary::op, Real16, Real16>, binary_##op##_Real32_Real32,                   \
                    binary_##op##_Real16_Real16, checked_binary_##op##_Real16_Real16)
  PAIRS(plus);
  PAIRS(subtract);
  PAIRS(times);
  PAIRS(divide);
  PAIRS(mod);
  PAIRS(abserr);
  PAIRS(relerr);
  PAIRS(maxabs);
  PAIRS(chop);
  PAIRS(log);
  PAIRS(atan2);
  PAIRS(pow);
#undef PAIRS
}

// Words need no narrowing.
TEST(Real16Pairs, OfWordsAreThoseOfReal32) {
  for (const Real16 x : halves())
    for (const Real16 y : halves()) {
      mint expected = 0, value = 0;
      const mint code = raisedBy([&] { expected = binary_unitize_Real32_Real32(widen(x), widen(y)); });
      ASSERT_EQ(raisedBy([&] { value = binary_unitize_Real16_Real16(x.bits, y.bits); }), code);
      if (code == 0) ASSERT_EQ(value, expected);
      const mint quotientCode =
          raisedBy([&] { expected = binary_quotient_Real32_Real32(widen(x), widen(y)); });
      ASSERT_EQ(raisedBy([&] { value = binary_quotient_Real16_Real16(x.bits, y.bits); }), quotientCode);
      if (quotientCode == 0) ASSERT_EQ(value, expected);
    }
}

using SingleTriple = float(float, float, float);
using HalfTriple = uint16_t *(uint16_t *, uint16_t, uint16_t, uint16_t);
void expectTriplesCutOff(const char *name, SingleTriple *single, HalfTriple *plain, HalfTriple *checked) {
  const std::vector<Real16> values = halves();
  std::mt19937 random(53);
  const auto any = [&] { return values[random() % values.size()]; };
  for (int k = 0; k < 30000; ++k)
    ASSERT_NO_FATAL_FAILURE(expectCutOff(name, checks::c69, single, plain, checked, any(), any(), any()));
}

TEST(Real16Compounds, AreTheReal32OnesCutOffOnce) {
#define TRIPLES_OF(op)                                                                                       \
  expectTriplesCutOff(#op, ternary_##op##_Real32_Real32_Real32, ternary_##op##_Real16_Real16_Real16,         \
                      checked_ternary_##op##_Real16_Real16_Real16)
  TRIPLES_OF(axpy);
  TRIPLES_OF(axmy);
  TRIPLES_OF(ymax);
  TRIPLES_OF(adxmy);
#undef TRIPLES_OF
}

} // namespace

// Parts, comparisons and tolerances of reals and complexes: special values and random ones of both widths,
// all patterns of Real16.
#include "support/half_values.h"
#include "support/raised.h"
#include "support/real_samples.h"

#include <gtest/gtest.h>
#include <torvane/scalars.h>

using namespace torvane::test;

namespace {

template <class R> std::vector<R> samples() {
  std::vector<R> all = specialReals<R>();
  const std::vector<R> random = randomReals<R>(60, 23);
  all.insert(all.end(), random.begin(), random.end());
  return all;
}

// The code of the checked forms' classification.
template <class R> mint classified(R x) { return std::isinf(x) ? 6 : std::isnan(x) ? 9 : 0; }

// An entry yields a real, bit for bit, or raises.
template <class R, class Entry, class... T> void expectReal(mint code, R expected, Entry entry, T... x) {
  R value = 0;
  ASSERT_EQ(raisedBy([&] { value = entry(x...); }), code);
  if (code == 0) ASSERT_TRUE(sameReal(value, expected)) << value << " for " << expected;
}

// Both forms; the checked one classifies the result if `isTested`.
template <class R, class Entry, class... T>
void expectForms(bool isTested, R expected, Entry plain, Entry checked, T... x) {
  ASSERT_NO_FATAL_FAILURE(expectReal(0, expected, plain, x...));
  ASSERT_NO_FATAL_FAILURE(expectReal(isTested ? classified(expected) : 0, expected, checked, x...));
}

#define BOTH(op, T) unary_##op##_##T, checked_unary_##op##_##T
#define BOTH2(op, T) binary_##op##_##T##_##T, checked_binary_##op##_##T##_##T
#define FORMS(op, T)                                                                                         \
  { unary_##op##_##T, checked_unary_##op##_##T }
#define FORMS2(op, T)                                                                                        \
  { binary_##op##_##T##_##T, checked_binary_##op##_##T##_##T }

// ---- one operand --------------------------------------------------------------------------------

template <class R> struct WordEntry {
  bool (*isTrue)(R);
  mint (*forms[2])(R);
};
template <class R> void expectWords(std::initializer_list<WordEntry<R>> entries, R x) {
  for (const WordEntry<R> &one : entries)
    for (const auto entry : one.forms) {
      mint value = -1;
      ASSERT_EQ(raisedBy([&] { value = entry(x); }), 0) << x;
      ASSERT_EQ(value, one.isTrue(x)) << x;
    }
}

// On reals a NaN compares as false, but differs from 0.
#define REAL_WORDS(T, R)                                                                                     \
  {                                                                                                          \
    {[](R v) { return v > 0; }, FORMS(pos, T)}, {[](R v) { return v < 0; }, FORMS(neg, T)},                  \
        {[](R v) { return v <= 0; }, FORMS(npos, T)}, {[](R v) { return v >= 0; }, FORMS(nneg, T)},          \
        {[](R v) { return !(v == 0); }, FORMS(unitize, T)},                                                  \
  }

#define REAL_PARTS(T, R)                                                                                     \
  TEST(PartsOf##T, AreThoseOfTheValue) {                                                                     \
    for (const R x : samples<R>()) {                                                                         \
      expectForms(true, std::signbit(x) ? -x : x, BOTH(abs, T), x);                                          \
      expectForms(true, R(x *x), BOTH(abssquare, T), x);                                                     \
      expectForms(true, R(x *x), BOTH(square, T), x);                                                        \
      expectForms(false, std::copysign(x, std::signbit(x) ? R(1) : R(-1)), BOTH(minus, T), x);               \
      expectForms(false, x, BOTH(conj, T), x);                                                               \
      expectForms(false, x, BOTH(copy, T), x);                                                               \
      expectForms(false, x, BOTH(re, T), x);                                                                 \
      expectForms(false, R(0), BOTH(im, T), x);                                                              \
      expectForms(false, R(0), BOTH(zero, T), x);                                                            \
      expectForms(false, R(1), BOTH(one, T), x);                                                             \
      expectForms(false, x > 0 ? x : std::isnan(x) ? R(0) : R(x == 0 ? x : R(0)), BOTH(ramp, T), x);         \
      for (const auto arg : {BOTH(arg, T)}) expectReal(x < 0 ? 14 : 0, R(0), arg, x);                        \
      expectWords<R>(REAL_WORDS(T, R), x);                                                                   \
      for (const auto sign : {BOTH(sign, T)}) EXPECT_EQ(sign(x), x > 0 ? 1 : x < 0 ? -1 : 0) << x;           \
      EXPECT_EQ(unary_fpexception_##T(x), 0);                                                                \
      EXPECT_EQ(checked_unary_fpexception_##T(x), !std::isfinite(x));                                        \
    }                                                                                                        \
  }
REAL_PARTS(Real64, double)
REAL_PARTS(Real32, float)

// ---- two operands -------------------------------------------------------------------------------

// NaN on one side yields the other value; of equal values the sign of a zero is free.
template <class R> bool isPairOf(R value, R x, R y, bool isMax) {
  if (std::isnan(x)) return sameReal(value, y);
  if (std::isnan(y)) return sameReal(value, x);
  if (x == y) return value == x;
  return value == ((x > y) == isMax ? x : y);
}

#define REAL_PAIRS(T, R)                                                                                     \
  TEST(PairsOf##T, CompareAndMeasure) {                                                                      \
    for (const R x : samples<R>())                                                                           \
      for (const R y : samples<R>()) {                                                                       \
        for (const auto max : {BOTH2(max, T)}) ASSERT_TRUE(isPairOf(max(x, y), x, y, true)) << x << y;       \
        for (const auto min : {BOTH2(min, T)}) ASSERT_TRUE(isPairOf(min(x, y), x, y, false)) << x << y;      \
        expectForms(true, std::fmax(std::fabs(x), std::fabs(y)), BOTH2(maxabs, T), x, y);                    \
        expectForms(true, R(std::fabs(x - y)), BOTH2(abserr, T), x, y);                                      \
        expectForms(true, R(std::fabs((x - y) / y)), BOTH2(relerr, T), x, y);                                \
        if (y < 0) {                                                                                         \
          for (const auto chop : {BOTH2(chop, T)}) expectReal(14, R(0), chop, x, y);                         \
        } else {                                                                                             \
          expectForms(true, y > std::fabs(x) ? R(0) : x, BOTH2(chop, T), x, y);                              \
        }                                                                                                    \
        EXPECT_EQ(binary_fpexception_##T##_##T(x, y), 0);                                                    \
        const mint first = classified(x);                                                                    \
        EXPECT_EQ(raisedBy([&] { checked_binary_fpexception_##T##_##T(x, y); }),                             \
                  first != 0 ? first : classified(y));                                                       \
      }                                                                                                      \
  }                                                                                                          \
  TEST(PairsOf##T, UnitizeByATolerance) {                                                                    \
    for (const R x : samples<R>())                                                                           \
      for (const R y : samples<R>())                                                                         \
        for (const bool isChecked : {false, true}) {                                                         \
          mint value = -1;                                                                                   \
          const mint code = raisedBy([&] {                                                                   \
            value = isChecked ? checked_binary_unitize_##T##_##T(x, y) : binary_unitize_##T##_##T(x, y);     \
          });                                                                                                \
          ASSERT_EQ(code, y < 0 ? 14 : isChecked ? classified(x) : 0) << x << " " << y;                      \
          if (code == 0) ASSERT_EQ(value, std::fabs(x) >= y) << x << " " << y; /* a NaN is below */          \
        }                                                                                                    \
  }
REAL_PAIRS(Real64, double)
REAL_PAIRS(Real32, float)

TEST(PairsOfReal64, CheckedFormsClassifyTheirResult) {
  EXPECT_EQ(raisedBy([] { checked_binary_plus_Real64_Real64(1e308, 1e308); }), 6);
  EXPECT_EQ(raisedBy([] { checked_binary_plus_Real64_Real64(HUGE_VAL, -HUGE_VAL); }), 9);
  EXPECT_EQ(unary_fpexception_Real64(NAN), 0);
  EXPECT_EQ(checked_unary_fpexception_Real64(NAN), 1);
}

// ---- Real16 on its pattern ----------------------------------------------------------------------

uint16_t patternOf(uint16_t *(*entry)(uint16_t *, uint16_t), uint16_t x) {
  uint16_t result = 0xAAAA;
  EXPECT_EQ(entry(&result, x), &result);
  return result;
}

TEST(PartsOfReal16, AreThoseOfThePattern) {
  for (uint32_t bits = 0; bits < 65536; ++bits) {
    const auto x = static_cast<uint16_t>(bits);
    const double value = halfValue(x);
    for (const auto minus : {BOTH(minus, Real16)}) ASSERT_EQ(patternOf(minus, x), x ^ 0x8000);
    for (const auto same : {BOTH(conj, Real16), BOTH(copy, Real16), BOTH(re, Real16)})
      ASSERT_EQ(patternOf(same, x), x);
    for (const auto none : {BOTH(im, Real16), BOTH(zero, Real16)}) ASSERT_EQ(patternOf(none, x), 0);
    for (const auto one : {BOTH(one, Real16)}) ASSERT_EQ(patternOf(one, x), 0x3C00);
    ASSERT_EQ(patternOf(unary_abs_Real16, x), x & 0x7FFF);
    uint16_t result = 0;
    ASSERT_EQ(raisedBy([&] { checked_unary_abs_Real16(&result, x); }), classified(value)) << bits;
    for (const auto arg : {BOTH(arg, Real16)})
      ASSERT_EQ(raisedBy([&] { arg(&result, x); }), value < 0 ? 14 : 0) << bits;
    ASSERT_EQ(unary_fpexception_Real16(x), 0);
    ASSERT_EQ(checked_unary_fpexception_Real16(x), !std::isfinite(value)) << bits;
  }
}

TEST(PartsOfReal16, CompareByTheOrderOfPatterns) {
  for (uint32_t bits = 0; bits < 65536; ++bits) {
    const auto x = static_cast<uint16_t>(bits);
    const double value = halfValue(x);
    for (const auto pos : {BOTH(pos, Real16)}) ASSERT_EQ(pos(x), value > 0) << bits;
    for (const auto neg : {BOTH(neg, Real16)}) ASSERT_EQ(neg(x), value < 0) << bits;
    for (const auto npos : {BOTH(npos, Real16)}) ASSERT_EQ(npos(x), value <= 0) << bits;
    for (const auto nneg : {BOTH(nneg, Real16)}) ASSERT_EQ(nneg(x), value >= 0) << bits;
    for (const auto unit : {BOTH(unitize, Real16)}) ASSERT_EQ(unit(x), !(value == 0)) << bits;
    // The sign of a NaN is 1, whatever its sign bit.
    for (const auto sign : {BOTH(sign, Real16)})
      ASSERT_EQ(sign(x), value == 0 ? 0 : value < 0 ? -1 : 1) << bits;
    for (const auto ramp : {BOTH(ramp, Real16)}) {
      const uint16_t result = patternOf(ramp, x);
      ASSERT_TRUE(halfValue(result) == (value > 0 ? value : 0)) << bits;
    }
  }
}

TEST(PairsOfReal16, MaxAndMinYieldTheOtherOperandOfANaN) {
  for (uint32_t bits = 0; bits < 65536; bits += 7)
    for (const uint32_t other :
         {0u, 0x8000u, 0x3C00u, 0xBC00u, 0x7BFFu, 0x7C00u, 0xFC00u, 0x7E00u, 0xFE01u, 1u, 0x8001u, bits}) {
      const auto x = static_cast<uint16_t>(bits), y = static_cast<uint16_t>(other);
      const bool takesY = isHalfNaN(x), takesX = !takesY && (isHalfNaN(y) || halfValue(x) == halfValue(y));
      for (const auto max : {BOTH2(max, Real16)}) {
        uint16_t result = 0;
        max(&result, x, y);
        ASSERT_EQ(result, takesX || (!takesY && halfValue(x) > halfValue(y)) ? x : y) << x << " " << y;
      }
      for (const auto min : {BOTH2(min, Real16)}) {
        uint16_t result = 0;
        min(&result, x, y);
        ASSERT_EQ(result, takesX || (!takesY && halfValue(x) < halfValue(y)) ? x : y) << x << " " << y;
      }
    }
}

// ---- complexes ----------------------------------------------------------------------------------

TEST(PartsOfComplexes, AreTheirOwn) {
  double re = 7, im = 7;
  unary_conj_ComplexReal64(&re, &im, 3, -4);
  EXPECT_TRUE(re == 3 && im == 4);
  unary_minus_ComplexReal64(&re, &im, 3, -0.0);
  EXPECT_TRUE(re == -3 && im == 0 && !std::signbit(im));
  EXPECT_EQ(unary_re_ComplexReal64(3, -4), 3);
  EXPECT_EQ(unary_im_ComplexReal32(3, -4), -4);
  EXPECT_EQ(unary_abs_ComplexReal64(3, -4), 5);
  EXPECT_EQ(unary_abssquare_ComplexReal32(3, -4), 25);
  EXPECT_EQ(unary_arg_ComplexReal64(0, 1), M_PI_2);
  EXPECT_EQ(unary_unitize_ComplexReal64(0, 1e-300), 1);
  EXPECT_EQ(unary_unitize_ComplexReal64(0, -0.0), 0);
  unary_sign_ComplexReal64(&re, &im, -0.0, -5);
  EXPECT_TRUE(re == 0 && im == -1);
}

// The parts of x before those of y, the real one first.
TEST(PartsOfComplexes, AreTestedInOrder) {
  const double bad[] = {HUGE_VAL, NAN};
  for (int first = 0; first < 4; ++first)
    for (int second = first; second < 4; ++second)
      for (const bool isNaNFirst : {false, true}) {
        double part[4] = {1, 1, 1, 1};
        part[second] = bad[!isNaNFirst];
        part[first] = bad[isNaNFirst];
        EXPECT_EQ(raisedBy([&] {
                    checked_binary_fpexception_ComplexReal64_ComplexReal64(part[0], part[1], part[2],
                                                                           part[3]);
                  }),
                  isNaNFirst ? 9 : 6);
        EXPECT_EQ(binary_fpexception_ComplexReal64_ComplexReal64(part[0], part[1], part[2], part[3]), 0);
      }
  EXPECT_EQ(checked_unary_fpexception_ComplexReal64(1, NAN), 1);
  EXPECT_EQ(checked_unary_fpexception_ComplexReal32(HUGE_VALF, 1), 1);
  EXPECT_EQ(checked_unary_fpexception_ComplexReal64(1, 2), 0);
}

// Distances are complex in the typed entries, with imaginary part +0.
TEST(PairsOfComplexes, MeasureDistances) {
  double re = 7, im = 7;
  binary_abserr_ComplexReal64_ComplexReal64(&re, &im, 4, -3, 1, 1);
  EXPECT_TRUE(re == 5 && sameReal(im, 0.0));
  binary_maxabs_ComplexReal64_ComplexReal64(&re, &im, 3, -4, 0, 6);
  EXPECT_TRUE(re == 6 && sameReal(im, 0.0));
  binary_relerr_ComplexReal64_ComplexReal64(&re, &im, 6, 8, 3, 4);
  EXPECT_TRUE(re == 1 && sameReal(im, 0.0));
  EXPECT_EQ(raisedBy([&] { binary_relerr_ComplexReal64_ComplexReal64(&re, &im, 6, 8, 0, 0); }), 16);
  EXPECT_EQ(raisedBy([&] { checked_binary_abserr_ComplexReal64_ComplexReal64(&re, &im, NAN, 0, 1, 1); }), 9);
  EXPECT_EQ(raisedBy([&] { binary_max_ComplexReal64_ComplexReal64(&re, &im, 1, 0, 1, 1); }), 17);
}

} // namespace

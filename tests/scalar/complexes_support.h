// What the tests of the complex functions share: every function by name in both widths, its outcome at a
// point, and what is expected of it there.
#pragma once

#include "scalar/complexes/rest.h"
#include "support/real_samples.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <ostream>

namespace torvane { // found by argument
template <class R> std::ostream &operator<<(std::ostream &out, Complex<R> z) {
  return out << "(" << z.re << ", " << z.im << ")";
}
} // namespace torvane

namespace torvane::test {

inline constexpr double kInfinity = HUGE_VAL, kPi = std::numbers::pi,
                        kNaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kZeros[] = {0.0, -0.0};

template <class R> bool same(Complex<R> x, Complex<R> y) {
  return sameReal(x.re, y.re) && sameReal(x.im, y.im);
}

template <class R> using ComplexFunction = Complex<R> (*)(error &, Complex<R>);
struct NamedFunction {
  const char *name;
  ComplexFunction<double> wide;
  ComplexFunction<float> narrow;
};
template <class R> ComplexFunction<R> functionOf(const NamedFunction &f) {
  if constexpr (sizeof(R) == 8)
    return f.wide;
  else
    return f.narrow;
}
#define TORVANE_NAMED(name)                                                                                  \
  NamedFunction { #name, complexes::name < double>, complexes::name < float> }
inline const NamedFunction kAllFunctions[] = {TORVANE_NAMED(sqrt),         TORVANE_NAMED(rsqrt),
                                              TORVANE_NAMED(exp),          TORVANE_NAMED(expm1),
                                              TORVANE_NAMED(log),          TORVANE_NAMED(log1p),
                                              TORVANE_NAMED(log2),         TORVANE_NAMED(log10),
                                              TORVANE_NAMED(sin),          TORVANE_NAMED(cos),
                                              TORVANE_NAMED(tan),          TORVANE_NAMED(sec),
                                              TORVANE_NAMED(csc),          TORVANE_NAMED(cot),
                                              TORVANE_NAMED(sinh),         TORVANE_NAMED(cosh),
                                              TORVANE_NAMED(tanh),         TORVANE_NAMED(sech),
                                              TORVANE_NAMED(csch),         TORVANE_NAMED(coth),
                                              TORVANE_NAMED(asin),         TORVANE_NAMED(acos),
                                              TORVANE_NAMED(atan),         TORVANE_NAMED(acsc),
                                              TORVANE_NAMED(asec),         TORVANE_NAMED(acot),
                                              TORVANE_NAMED(asinh),        TORVANE_NAMED(acosh),
                                              TORVANE_NAMED(atanh),        TORVANE_NAMED(acsch),
                                              TORVANE_NAMED(asech),        TORVANE_NAMED(acoth),
                                              TORVANE_NAMED(sinc),         TORVANE_NAMED(logistic),
                                              TORVANE_NAMED(gudermannian), TORVANE_NAMED(inversegudermannian),
                                              TORVANE_NAMED(haversine),    TORVANE_NAMED(inversehaversine),
                                              TORVANE_NAMED(fibonacci),    TORVANE_NAMED(lucasl),
                                              TORVANE_NAMED(sign)};
#undef TORVANE_NAMED

struct ComplexOutcome {
  Complex<double> value;
  error code;
};
inline ComplexOutcome at(ComplexFunction<double> f, double re, double im) {
  error code = error::none;
  const Complex<double> value = f(code, {re, im});
  return {value, code};
}
inline mint codeAt(ComplexFunction<double> f, double re, double im) {
  return static_cast<mint>(at(f, re, im).code);
}

// Within a few ulp of the expected value, without a code, part by part. A zero is exact, its sign aside.
inline void expectNear(ComplexFunction<double> f, Complex<double> z, Complex<double> expected) {
  const ComplexOutcome outcome = at(f, z.re, z.im);
  EXPECT_EQ(outcome.code, error::none) << z;
  EXPECT_NEAR(outcome.value.re, expected.re, 1e-15 * std::abs(expected.re)) << z << outcome.value;
  EXPECT_NEAR(outcome.value.im, expected.im, 1e-15 * std::abs(expected.im)) << z << outcome.value;
}
// Exactly, zeros of either sign and NaNs of any payload alike.
inline bool equalPart(double x, double y) { return x == y || (x != x && y != y); }
inline void expectEqual(ComplexFunction<double> f, Complex<double> z, Complex<double> expected) {
  const ComplexOutcome outcome = at(f, z.re, z.im);
  EXPECT_EQ(outcome.code, error::none) << z;
  EXPECT_TRUE(equalPart(outcome.value.re, expected.re) && equalPart(outcome.value.im, expected.im))
      << z << " gives " << outcome.value << ", not " << expected;
}

// ---- two operands -------------------------------------------------------------------------------

using ComplexPairFunction = Complex<double> (*)(error &, Complex<double>, Complex<double>);
inline mint codeOf(ComplexPairFunction f, Complex<double> x, Complex<double> y) {
  error code = error::none;
  f(code, x, y);
  return static_cast<mint>(code);
}
inline void expectPair(ComplexPairFunction f, Complex<double> x, Complex<double> y,
                       Complex<double> expected) {
  error code = error::none;
  const Complex<double> z = f(code, x, y);
  EXPECT_EQ(code, error::none) << x << y;
  EXPECT_TRUE(equalPart(z.re, expected.re) || std::abs(z.re - expected.re) < 2e-15) << x << y << z;
  EXPECT_TRUE(equalPart(z.im, expected.im) || std::abs(z.im - expected.im) < 2e-15) << x << y << z;
}

} // namespace torvane::test

// Complex functions at their edges: axes, cuts, codes, infinities and NaNs, and the steps of modulus, roots
// and division held bit for bit to a plain transcription.
#include "scalar/complexes/rest.h"
#include "support/real_samples.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <string_view>

using namespace torvane;
using torvane::test::randomReals;
using torvane::test::sameReal;
using torvane::test::specialReals;

namespace torvane { // found by argument
template <class R> std::ostream &operator<<(std::ostream &out, Complex<R> z) {
  return out << "(" << z.re << ", " << z.im << ")";
}
} // namespace torvane

namespace {

constexpr double kInfinity = HUGE_VAL, kPi = std::numbers::pi,
                 kNaN = std::numeric_limits<double>::quiet_NaN();
template <class R> R nanOf() { return std::numeric_limits<R>::quiet_NaN(); }
template <class R> R infinityOf() { return std::numeric_limits<R>::infinity(); }
template <class R> bool same(Complex<R> x, Complex<R> y) {
  return sameReal(x.re, y.re) && sameReal(x.im, y.im);
}

template <class R> using Function = Complex<R> (*)(error &, Complex<R>);
struct Named {
  const char *name;
  Function<double> wide;
  Function<float> narrow;
};
template <class R> Function<R> functionOf(const Named &f) {
  if constexpr (sizeof(R) == 8)
    return f.wide;
  else
    return f.narrow;
}
#define NAMED(name) {#name, complexes::name<double>, complexes::name<float>},
const Named kAll[] = {
    NAMED(sqrt) NAMED(rsqrt) NAMED(exp) NAMED(expm1) NAMED(log) NAMED(log1p) NAMED(log2) NAMED(log10)
        NAMED(sin) NAMED(cos) NAMED(tan) NAMED(sec) NAMED(csc) NAMED(cot) NAMED(sinh) NAMED(cosh) NAMED(tanh)
            NAMED(sech) NAMED(csch) NAMED(coth) NAMED(asin) NAMED(acos) NAMED(atan) NAMED(acsc) NAMED(asec)
                NAMED(acot) NAMED(asinh) NAMED(acosh) NAMED(atanh) NAMED(acsch) NAMED(asech) NAMED(acoth)
                    NAMED(sinc) NAMED(logistic) NAMED(gudermannian) NAMED(inversegudermannian)
                        NAMED(haversine) NAMED(inversehaversine) NAMED(fibonacci) NAMED(lucasl) NAMED(sign)};

struct Outcome {
  Complex<double> value;
  error code;
};
Outcome at(Function<double> f, double re, double im) {
  error code = error::none;
  const Complex<double> value = f(code, {re, im});
  return {value, code};
}
mint codeAt(Function<double> f, double re, double im) { return static_cast<mint>(at(f, re, im).code); }

// Within a few ulp of the expected value, without a code, part by part. A zero is exact, its sign aside.
void expectNear(Function<double> f, Complex<double> z, Complex<double> expected) {
  const Outcome outcome = at(f, z.re, z.im);
  EXPECT_EQ(outcome.code, error::none) << z;
  EXPECT_NEAR(outcome.value.re, expected.re, 1e-15 * std::abs(expected.re)) << z << outcome.value;
  EXPECT_NEAR(outcome.value.im, expected.im, 1e-15 * std::abs(expected.im)) << z << outcome.value;
}
// Exactly, zeros of either sign and NaNs of any payload alike.
bool equalPart(double x, double y) { return x == y || (x != x && y != y); }
void expectEqual(Function<double> f, Complex<double> z, Complex<double> expected) {
  const Outcome outcome = at(f, z.re, z.im);
  EXPECT_EQ(outcome.code, error::none) << z;
  EXPECT_TRUE(equalPart(outcome.value.re, expected.re) && equalPart(outcome.value.im, expected.im))
      << z << " gives " << outcome.value << ", not " << expected;
}

// ---- modulus, roots and division, transcribed ---------------------------------------------------

template <class R> struct Scaled {
  R r;
  int e;
};

template <class R> Scaled<R> scaledByRule(R x, R y) {
  if (std::isinf(x) || std::isinf(y)) return {infinityOf<R>(), 0};
  if (std::isnan(x)) return {x, 0};
  if (std::isnan(y)) return {y, 0};
  R a = std::max(std::abs(x), std::abs(y)), b = std::min(std::abs(x), std::abs(y));
  if (a == 0) return {0, 0};
  const int e = a >= 1 ? 2 : -2;
  a = std::ldexp(a, -e);
  b = std::ldexp(b, -e);
  const R t = a - b;
  if (t == a) return {a, e};
  if (t > b) {
    const R q = a / b, root = std::sqrt(q * q + 1);
    return {a + b / (q + root), e};
  }
  const R q = t / b, u = (q + 2) * q, root = std::sqrt(u + 2);
  return {a + b / (u / (root + R(1.4142135623730951)) + R(1.434125237597392e-07) + q + R(2.4142134189605713)),
          e};
}

template <class R> Complex<R> sqrtByRule(R x, R y) {
  if (x == 0) {
    const R m = std::sqrt(std::abs(y) * R(0.5));
    return std::signbit(y) ? Complex<R>{m, -m} : Complex<R>{m, m};
  }
  if (y == 0) return std::signbit(x) ? Complex<R>{0, std::sqrt(-x)} : Complex<R>{std::sqrt(x), 0};
  const auto [r, e] = scaledByRule(x, y);
  if (e == 0) return {r, r};
  const R u = std::ldexp(std::abs(x), -e) + r, p = std::ldexp(std::sqrt(2 * u), e / 2 - 1);
  if (x >= 0) return {p, y / (2 * p)};
  if (y < 0) return {-y / (2 * p), -p};
  return {y / (2 * p), p};
}

template <class R> Complex<R> rsqrtByRule(R x, R y) {
  if (x == 0) {
    const R c = R(0.7071067811865476) / std::sqrt(std::abs(y));
    return y > 0 ? Complex<R>{c, -c} : Complex<R>{c, c};
  }
  if (y == 0 && x > 0) return {1 / std::sqrt(x), 0};
  if (y == 0 && x < 0) return {0, -1 / std::sqrt(-x)};
  const R a = std::abs(x), b = std::abs(y);
  R f, g;
  if (a <= b) {
    const R q = a / b, w = std::sqrt(q * q + 1), v = std::sqrt((w + q) * R(0.5));
    f = v / (std::sqrt(b) * w);
    g = R(0.5) / (std::sqrt(b) * w * v);
  } else {
    const R q = b / a, w = std::sqrt(q * q + 1), v = std::sqrt((w + 1) * R(0.5));
    f = v / (std::sqrt(a) * w);
    g = (q / (std::sqrt(a) * w * v)) * R(0.5);
  }
  if (x > 0) return {f, y > 0 ? -g : g};
  return {g, y > 0 ? -f : f};
}

template <class R> Complex<R> quotientByRule(Complex<R> x, R c, R d) {
  const Complex<R> lost = {nanOf<R>(), nanOf<R>()};
  if (std::isnan(c) || std::isnan(d)) return lost;
  if (std::abs(d) < std::abs(c)) {
    const R t = d / c, m = t * d + c;
    return std::isnan(m) || m == 0 ? lost : Complex<R>{(x.re + x.im * t) / m, (x.im - x.re * t) / m};
  }
  if (d == 0) return lost;
  const R t = c / d, m = t * c + d;
  return std::isnan(m) || m == 0 ? lost : Complex<R>{(x.re * t + x.im) / m, (x.im * t - x.re) / m};
}

template <class R> std::vector<Complex<R>> pairsOf(const std::vector<R> &parts) {
  std::vector<Complex<R>> pairs;
  for (const R x : parts)
    for (const R y : parts) pairs.push_back({x, y});
  return pairs;
}
template <class R> std::vector<Complex<R>> specialsAndRandom() {
  std::vector<Complex<R>> values = pairsOf(specialReals<R>());
  const std::vector<R> random = randomReals<R>(20000, 3);
  for (size_t k = 0; k + 1 < random.size(); k += 2) {
    values.push_back({random[k], random[k + 1]});
    values.push_back(
        {random[k], random[k] * (1 + random[k + 1] / std::numeric_limits<R>::max())}); // of like size
  }
  return values;
}

template <class R> class ComplexSteps : public testing::Test {};
using BothWidths = testing::Types<float, double>;
TYPED_TEST_SUITE(ComplexSteps, BothWidths);

TYPED_TEST(ComplexSteps, ModulusFollowsItsStepsBitForBit) {
  for (const auto &z : specialsAndRandom<TypeParam>()) {
    const auto [r, e] = scaledByRule(z.re, z.im);
    const auto scaled = scaledModulus(z);
    ASSERT_TRUE(sameReal(scaled.r, r)) << z;
    ASSERT_EQ(scaled.e, e) << z;
    ASSERT_TRUE(sameReal(modulusOf(z), std::ldexp(r, e))) << z;
  }
}

TYPED_TEST(ComplexSteps, RootsFollowTheirStepsBitForBit) {
  for (const auto &z : specialsAndRandom<TypeParam>()) {
    error code = error::none;
    ASSERT_TRUE(same(complexes::sqrt(code, z), sqrtByRule(z.re, z.im))) << z;
    if (z.re == 0 && z.im == 0) continue;
    ASSERT_TRUE(same(complexes::rsqrt(code, z), rsqrtByRule(z.re, z.im))) << z;
    ASSERT_EQ(code, error::none) << z;
  }
}

TYPED_TEST(ComplexSteps, QuotientFollowsItsStepsBitForBit) {
  using R = TypeParam;
  const std::vector<Complex<R>> values = specialsAndRandom<R>();
  for (size_t k = 0; k < values.size(); ++k) {
    const Complex<R> x = values[(k * 7919 + 13) % values.size()], y = values[k];
    ASSERT_TRUE(same(x / y, quotientByRule(x, y.re, y.im))) << x << y;
  }
}

TEST(ComplexModulus, OverflowsOnlyAtItsLastStepAndKeepsSubnormals) {
  EXPECT_EQ(modulusOf(Complex<double>{3e307, 4e307}), 5e307);
  EXPECT_EQ(modulusOf(Complex<double>{1.5e308, 1.5e308}), kInfinity);
  EXPECT_TRUE(std::isfinite(scaledModulus(Complex<double>{1.5e308, 1.5e308}).r));
  EXPECT_EQ(modulusOf(Complex<double>{1e-320, 1e-320}), 1e-320 * std::numbers::sqrt2);
  EXPECT_EQ(modulusOf(Complex<double>{3e-310, -4e-310}), 5e-310);
}

TEST(ComplexReciprocal, AnInfinitePartGivesSignedZeros) {
  error code = error::none;
  const auto reciprocal = [&](double x, double y) {
    return complexes::reciprocal(code, Complex<double>{x, y});
  };
  EXPECT_TRUE(same(reciprocal(kInfinity, 1), {0, -0.0}));
  EXPECT_TRUE(same(reciprocal(-kInfinity, -1), {-0.0, 0}));
  EXPECT_TRUE(same(reciprocal(-kInfinity, kInfinity), {-0.0, -0.0}));
  EXPECT_TRUE(same(reciprocal(5, -kInfinity), {0, 0}));
  EXPECT_TRUE(same(reciprocal(-5, kInfinity), {0, -0.0}));
  EXPECT_TRUE(same(reciprocal(0, 2), {0, -0.5}));
  EXPECT_EQ(code, error::none);
  reciprocal(-0.0, 0);
  EXPECT_EQ(code, error::complexZeroDivision);
}

// ---- every function -----------------------------------------------------------------------------

bool takesRoot(const Named &f) {
  return f.wide == complexes::sqrt<double> || f.wide == complexes::inversehaversine<double>;
}

template <class R> std::vector<R> partsWorthTrying() {
  const R tiny = std::numeric_limits<R>::min(), huge = std::numeric_limits<R>::max() / 2;
  return {R(0),   R(-0.0), tiny, -tiny, R(0.5),          R(-0.5),          R(1),      R(-1), R(2), R(-2),
          R(3.7), R(-3.7), huge, -huge, infinityOf<R>(), -infinityOf<R>(), nanOf<R>()};
}

// What a composed function hands to its core may underflow to the axis, and there lie cuts.
template <class R> bool innerMeetsAxis(const Named &f, Complex<R> z) {
  error code = error::none;
  Complex<R> inner = z;
  if (f.name[0] == 'a' &&
      (std::string_view(f.name).ends_with("c") || std::string_view(f.name).ends_with("ch")))
    inner = complexes::reciprocal(code, z);
  if (f.wide == complexes::inversehaversine<double>) inner = complexes::sqrt(code, z);
  if (f.wide == complexes::inversegudermannian<double>)
    inner = complexes::tan(code, complexes::scaled(z, R(0.5)));
  if (f.wide == complexes::gudermannian<double>) inner = complexes::tanh(code, complexes::scaled(z, R(0.5)));
  return inner.re == 0 || inner.im == 0;
}

template <class R> bool alike(R x, R y, R slack) {
  return x == y || (std::isnan(x) && std::isnan(y)) || (std::isfinite(slack) && std::abs(x - y) <= slack);
}

// Off the axes there is no cut, and f(conj z) = conj f(z), in infinities and NaNs too; to rounding, since
// what is turned by i before its core sees another half plane. Not so the square root of an infinity, which
// has its modulus in both parts, and what is made of it.
TYPED_TEST(ComplexSteps, ConjugateArgumentsGiveConjugateResults) {
  using R = TypeParam;
  for (const Named &f : kAll)
    for (const auto &z : pairsOf(partsWorthTrying<R>())) {
      if (z.re == 0 || z.im == 0 || std::isnan(z.im)) continue;
      if (takesRoot(f) && (std::isinf(z.re) || std::isinf(z.im))) continue;
      error code = error::none, conjugateCode = error::none;
      if (innerMeetsAxis(f, z)) continue;
      const Complex<R> w = functionOf<R>(f)(code, z), v = functionOf<R>(f)(conjugateCode, {z.re, -z.im});
      ASSERT_EQ(code, conjugateCode) << f.name << z;
      const R slack = 8 * std::numeric_limits<R>::epsilon() * std::max(std::abs(w.re), std::abs(w.im));
      ASSERT_TRUE(alike(w.re, v.re, slack) && alike(w.im, -v.im, slack)) << f.name << z << w << v;
    }
}

// A NaN part never yields a number in both parts, but where an infinity or a zero decides alone.
TYPED_TEST(ComplexSteps, NaNsPropagate) {
  using R = TypeParam;
  const R nan = nanOf<R>();
  for (const Named &f : kAll)
    for (const Complex<R> z : {Complex<R>{nan, R(0.3)}, Complex<R>{R(0.3), nan}, Complex<R>{nan, nan}}) {
      error code = error::none;
      const Complex<R> w = functionOf<R>(f)(code, z);
      ASSERT_EQ(code, error::none) << f.name << z;
      ASSERT_TRUE(std::isnan(w.re) || std::isnan(w.im)) << f.name << z << w;
    }
}

template <class R> double distance(Complex<R> x, Complex<R> y) {
  return std::hypot(double(x.re) - double(y.re), double(x.im) - double(y.im)) /
         std::hypot(double(y.re), double(y.im));
}

TYPED_TEST(ComplexSteps, InversePairsUndoEachOther) {
  using R = TypeParam;
#define PAIR(f, g)                                                                                           \
  {                                                                                                          \
    {#f, complexes::f<double>, complexes::f<float>}, { #g, complexes::g < double>, complexes::g < float> }   \
  }
  const std::pair<Named, Named> pairs[] = {PAIR(sin, asin),
                                           PAIR(cos, acos),
                                           PAIR(tan, atan),
                                           PAIR(csc, acsc),
                                           PAIR(sec, asec),
                                           PAIR(cot, acot),
                                           PAIR(sinh, asinh),
                                           PAIR(cosh, acosh),
                                           PAIR(tanh, atanh),
                                           PAIR(csch, acsch),
                                           PAIR(sech, asech),
                                           PAIR(coth, acoth),
                                           PAIR(exp, log),
                                           PAIR(expm1, log1p),
                                           PAIR(inversegudermannian, gudermannian),
                                           PAIR(haversine, inversehaversine)};
  std::mt19937 random(21);
  std::uniform_real_distribution<double> part(-2, 2);
  for (const auto &[f, g] : pairs)
    for (int k = 0; k < 500; ++k) {
      const Complex<R> z = {R(part(random)), R(part(random))};
      error code = error::none;
      const Complex<R> back = functionOf<R>(f)(code, functionOf<R>(g)(code, z));
      ASSERT_EQ(code, error::none) << g.name << z;
      ASSERT_LT(distance(back, z), 400 * double(std::numeric_limits<R>::epsilon())) << g.name << z << back;
    }
}

// On the positive axis, within both domains, each function is its real one. The imaginary part that atan
// computes there, as a real part of atanh, is only as small as its rounding.
TEST(ComplexFunctions, AgreeWithTheRealFunctionsOnTheRealAxis) {
  const std::pair<Function<double>, double (*)(double)> pairs[] = {
      {complexes::sqrt, std::sqrt},   {complexes::exp, std::exp},     {complexes::expm1, std::expm1},
      {complexes::log, std::log},     {complexes::log1p, std::log1p}, {complexes::log2, std::log2},
      {complexes::log10, std::log10}, {complexes::sin, std::sin},     {complexes::cos, std::cos},
      {complexes::tan, std::tan},     {complexes::sinh, std::sinh},   {complexes::cosh, std::cosh},
      {complexes::tanh, std::tanh},   {complexes::asin, std::asin},   {complexes::acos, std::acos},
      {complexes::atan, std::atan},   {complexes::asinh, std::asinh}, {complexes::atanh, std::atanh}};
  for (const auto &[f, real] : pairs)
    for (const double x : {0x1p-40, 0.125, 0.25, 0.75, 0.875}) {
      const Outcome outcome = at(f, x, 0);
      EXPECT_NEAR(outcome.value.re, real(x), 2e-15 * std::abs(real(x))) << x;
      EXPECT_LE(std::abs(outcome.value.im), f == complexes::atan<double> ? 0x1p-53 * x : 0) << x;
      EXPECT_EQ(outcome.code, error::none);
    }
  for (const double x : {1.5, 3.0, 1e5, 1e200}) expectNear(complexes::acosh, {x, 0}, {std::acosh(x), 0});
}

// ---- axes, cuts and codes -----------------------------------------------------------------------

constexpr double kZeros[] = {0.0, -0.0};

TEST(ComplexLogarithms, TakeTheUpperSideOfTheNegativeAxis) {
  for (const double zero : kZeros) {
    expectEqual(complexes::log, {-1, zero}, {0, kPi});
    expectEqual(complexes::log2, {-2, zero}, {1, 4.532360141827194});
    expectEqual(complexes::log2, {-0x1p29, zero}, {29, 4.532360141827194}); // log x / log 2 is 1 ulp off
    expectEqual(complexes::log10, {-1000, zero}, {3, 1.3643763538418414});
    expectEqual(complexes::log10, {-100, zero}, {2, 1.3643763538418414});
    expectEqual(complexes::log1p, {-3, zero}, {0.6931471805599453, kPi});
    expectEqual(complexes::log, {-kInfinity, zero}, {kInfinity, kPi});
  }
  EXPECT_LT(at(complexes::log, -1, -1e-300).value.im, 0);
}

TEST(ComplexLogarithms, RaiseFourteenAtTheirSingularity) {
  for (const double x : kZeros)
    for (const double y : kZeros) {
      EXPECT_EQ(codeAt(complexes::log, x, y), 14);
      EXPECT_EQ(codeAt(complexes::log2, x, y), 14);
      EXPECT_EQ(codeAt(complexes::log10, x, y), 14);
      EXPECT_EQ(codeAt(complexes::log1p, -1, y), 14);
      EXPECT_EQ(codeAt(complexes::rsqrt, x, y), 14);
    }
}

TEST(ComplexLogarithms, ReachFromTheSmallestToTheLargestModulus) {
  const double huge = std::numeric_limits<double>::max(), tiny = 1e-310;
  expectNear(complexes::log, {huge, huge}, {std::log(huge) + std::log(2) / 2, kPi / 4});
  expectNear(complexes::log, {tiny, -tiny}, {std::log(tiny) + std::log(2) / 2, -kPi / 4});
}

TEST(ComplexExponentials, AZeroFactorStrikesOutAnInfinity) {
  expectEqual(complexes::exp, {1000, 0}, {kInfinity, 0});
  expectEqual(complexes::expm1, {1000, 0}, {kInfinity, 0});
  expectEqual(complexes::logistic, {-1000, 0}, {0, 0});
  expectEqual(complexes::sinh, {1000, 0}, {kInfinity, 0});
  expectEqual(complexes::cosh, {-1000, 0}, {kInfinity, 0});
  expectEqual(complexes::sin, {0, 1000}, {0, kInfinity});
  expectEqual(complexes::cos, {0, 1000}, {kInfinity, 0});
  expectEqual(complexes::sinh, {0, kInfinity}, {0, kNaN});
  expectEqual(complexes::cosh, {0, kInfinity}, {kNaN, 0});
  expectEqual(complexes::exp, {-kInfinity, kInfinity}, {0, 0});
  expectEqual(complexes::exp, {kNaN, 0}, {kNaN, 0});
}

// As C11 has them, where nothing else settles it.
TEST(ComplexExponentials, AnInfiniteRealPartWithoutDirectionStaysInfinite) {
  for (const double y : {kInfinity, kNaN}) {
    expectEqual(complexes::sinh, {-kInfinity, y}, {-kInfinity, kNaN});
    expectEqual(complexes::cosh, {-kInfinity, y}, {kInfinity, kNaN});
    expectEqual(complexes::sin, {y, kInfinity}, {kNaN, kInfinity});
    expectEqual(complexes::cos, {y, kInfinity}, {kInfinity, kNaN});
  }
}

TEST(ComplexTangents, SaturateWithoutOverflow) {
  expectEqual(complexes::tanh, {800, 1}, {1, 0});
  expectEqual(complexes::tanh, {-800, 1}, {-1, 0});
  expectEqual(complexes::tan, {1, 800}, {0, 1});
  expectEqual(complexes::tan, {1, -kInfinity}, {0, -1});
}

TEST(ComplexReciprocals, RaiseSixteenAtAnExactZero) {
  for (const double x : kZeros)
    for (const double y : kZeros) {
      for (Function<double> f :
           {complexes::csc<double>, complexes::cot<double>, complexes::csch<double>, complexes::coth<double>})
        EXPECT_EQ(codeAt(f, x, y), 16);
      for (Function<double> f :
           {complexes::acsc<double>, complexes::asec<double>, complexes::acot<double>,
            complexes::acsch<double>, complexes::asech<double>, complexes::acoth<double>})
        EXPECT_EQ(codeAt(f, x, y), 16);
      EXPECT_EQ(codeAt(complexes::sec, x, y), 0);
      EXPECT_EQ(codeAt(complexes::sech, x, y), 0);
      expectEqual(complexes::sinc, {x, y}, {1, 0});
    }
}

TEST(ComplexInverses, RaiseFourteenAtTheirPoles) {
  for (const double zero : kZeros)
    for (const double one : {1.0, -1.0}) {
      EXPECT_EQ(codeAt(complexes::atanh, one, zero), 14);
      EXPECT_EQ(codeAt(complexes::acoth, one, zero), 14);
      EXPECT_EQ(codeAt(complexes::atan, zero, one), 14);
      EXPECT_EQ(codeAt(complexes::acot, zero, one), 14);
    }
  EXPECT_EQ(codeAt(complexes::atanh, 1, 1e-300), 0);
}

TEST(ComplexInverses, BothSignsOfAZeroPartFallOnOneSideOfTheCut) {
  const double acosh2 = 1.3169578969248167, acoth2 = 0.5493061443340548;
  for (const double zero : kZeros) {
    expectNear(complexes::asin, {2, zero}, {kPi / 2, -acosh2});
    expectNear(complexes::asin, {-2, zero}, {-kPi / 2, acosh2});
    expectNear(complexes::acos, {2, zero}, {0, acosh2});
    expectNear(complexes::acos, {-2, zero}, {kPi, -acosh2});
    expectNear(complexes::atanh, {2, zero}, {acoth2, -kPi / 2});
    expectNear(complexes::atanh, {-2, zero}, {-acoth2, kPi / 2});
    expectNear(complexes::acosh, {-2, zero}, {acosh2, kPi});
    expectNear(complexes::acosh, {2, zero}, {acosh2, 0});
    expectNear(complexes::acosh, {-0.75, zero}, {0, std::acos(-0.75)});
    expectNear(complexes::acosh, {0.75, zero}, {0, std::acos(0.75)});
    expectNear(complexes::acosh, {0.25, zero}, {0, std::acos(0.25)});
    expectNear(complexes::asinh, {zero, 2}, {acosh2, kPi / 2});
    expectNear(complexes::asinh, {zero, -2}, {-acosh2, -kPi / 2});
    expectNear(complexes::asinh, {zero, 0.5}, {0, std::asin(0.5)});
    expectNear(complexes::atan, {zero, 0.5}, {0, acoth2});
    for (const double y : {1e3, 1e5, 1e7}) { // no cancellation on either half of the imaginary axis
      expectNear(complexes::asinh, {zero, y}, {std::acosh(y), kPi / 2});
      expectNear(complexes::asinh, {zero, -y}, {-std::acosh(y), -kPi / 2});
    }
  }
}

TEST(ComplexInverses, RealResultsAreExactlyReal) {
  for (double x = -1; x < 1; x += 0x1p-7) EXPECT_EQ(at(complexes::acosh, x, 0).value.re, 0) << x;
  for (const double zero : kZeros)
    for (const double x : {-3.0, -0.25, 0.25, 3.0})
      EXPECT_TRUE(sameReal(at(complexes::asinh, x, zero).value.im, 0.0))
          << x; // + 0, whatever the sign of zero
}

TEST(ComplexInverses, HugeArgumentsAreTheirLogarithmPlusLnTwo) {
  expectNear(complexes::asinh, {1e300, 0}, {std::log(1e300) + std::log(2), 0});
  expectNear(complexes::asinh, {-1e300, 0}, {-std::log(1e300) - std::log(2), 0});
  expectNear(complexes::acosh, {1e300, 1e300}, {std::log(1e300) + 1.5 * std::log(2), kPi / 4});
  expectEqual(complexes::asinh, {kInfinity, 1}, {kInfinity, 0});
  expectEqual(complexes::asinh, {-kInfinity, kInfinity}, {-kInfinity, kPi / 4});
  expectEqual(complexes::acosh, {1, kInfinity}, {kInfinity, kPi / 2});
  expectEqual(complexes::asinh, {kNaN, kInfinity}, {kInfinity, kNaN});
  expectEqual(complexes::atan, {kInfinity, 0}, {kPi / 2, 0});
  expectEqual(complexes::atanh, {1, kInfinity}, {0, kPi / 2});
  expectEqual(complexes::acsc, {kInfinity, 1}, {0, 0});
  expectNear(complexes::asec, {-kInfinity, 1}, {kPi / 2, 0});
}

TEST(ComplexInverses, TheSmallestArgumentsStayThemselves) {
  for (const double x : {1e-300, -1e-300, 1e-20}) {
    for (Function<double> f : {complexes::asinh<double>, complexes::asin<double>}) {
      expectEqual(f, {x, 0}, {x, 0});
      expectEqual(f, {0, x}, {0, x});
    }
    expectEqual(complexes::atanh, {x, 0}, {x, 0});
    expectEqual(complexes::atan, {0, x}, {0, x});
  }
}

TEST(ComplexInverses, ZeroIsExact) {
  for (const double x : kZeros)
    for (const double y : kZeros) {
      for (Function<double> f : {complexes::asinh<double>, complexes::asin<double>, complexes::atanh<double>,
                                 complexes::atan<double>})
        expectEqual(f, {x, y}, {0, 0});
      expectEqual(complexes::acos, {x, y}, {kPi / 2, 0});
      expectEqual(complexes::acosh, {x, y}, {0, kPi / 2});
    }
}

// ---- two operands -------------------------------------------------------------------------------

using BinaryFunction = Complex<double> (*)(error &, Complex<double>, Complex<double>);
mint codeOf(BinaryFunction f, Complex<double> x, Complex<double> y) {
  error code = error::none;
  f(code, x, y);
  return static_cast<mint>(code);
}
void expectPair(BinaryFunction f, Complex<double> x, Complex<double> y, Complex<double> expected) {
  error code = error::none;
  const Complex<double> z = f(code, x, y);
  EXPECT_EQ(code, error::none) << x << y;
  EXPECT_TRUE(equalPart(z.re, expected.re) || std::abs(z.re - expected.re) < 2e-15) << x << y << z;
  EXPECT_TRUE(equalPart(z.im, expected.im) || std::abs(z.im - expected.im) < 2e-15) << x << y << z;
}

TEST(ComplexLogToBase, RaisesFourteenForAZeroAndSixteenForBaseOne) {
  expectPair(complexes::log, {2, 0}, {8, 0}, {3, 0});
  expectPair(complexes::log, {0, 1}, {-1, 0}, {2, 0});
  EXPECT_EQ(codeOf(complexes::log, {2, 0}, {0, -0.0}), 14);
  EXPECT_EQ(codeOf(complexes::log, {0, 0}, {2, 1}), 14);
  EXPECT_EQ(codeOf(complexes::log, {1, 0}, {2, 1}), 16);
}

TEST(ComplexAtan2, ContinuesTheRealOne) {
  for (const double x : {-3.0, -0.5, 2.0})
    for (const double y : {-1.5, 0.25, 4.0})
      expectPair(complexes::atan2, {x, 0}, {y, 0}, {std::atan2(x, y), 0});
  EXPECT_EQ(codeOf(complexes::atan2, {0, -0.0}, {0, 0}), 14);
  EXPECT_EQ(codeOf(complexes::atan2, {0, 1}, {1, 0}), 16); // 1 + i^2
  EXPECT_EQ(codeOf(complexes::atan2, {1, 0}, {0, -1}), 16);
}

TEST(ComplexMod, RealOperandsTakeTheRealRule) {
  expectPair(complexes::mod, {-7, 0}, {3, 0}, {2, 0});
  expectPair(complexes::mod, {7, -0.0}, {-3, 0}, {-2, 0});
  expectPair(complexes::mod, {-1e-20, 0}, {3, 0}, {0, 0}); // the sum is the divisor itself
  expectPair(complexes::mod, {1e300, 0}, {3, 0}, {std::fmod(1e300, 3), 0});
}

TEST(ComplexMod, OthersLoseTheNearestGaussianMultiple) {
  expectPair(complexes::mod, {7, 3}, {2, 0}, {-1, -1}); // the quotient (3.5, 1.5) goes to (4, 2)
  expectPair(complexes::mod, {5, 1}, {2, 0}, {1, 1});   // (2.5, 0.5) goes to (2, 0)
  expectPair(complexes::mod, {5, 0}, {0, 2}, {1, 0});
  EXPECT_EQ(codeOf(complexes::mod, {1, 1}, {0, -0.0}), 14);
}

TEST(ComplexMod, AQuotientBeyondThirtyTwoBitsRaisesOne) {
  const double limit = 2147483648.0;
  for (const double sign : {1.0, -1.0}) {
    EXPECT_EQ(codeOf(complexes::mod, {sign * limit, 1}, {1, 0}), 1);
    EXPECT_EQ(codeOf(complexes::mod, {1, sign * limit}, {1, 0}), 1);
    EXPECT_EQ(codeOf(complexes::mod, {sign * (limit - 1), 1}, {1, 0}), 0);
    EXPECT_EQ(codeOf(complexes::mod, {sign * (limit - 0.5), 1}, {1, 0}), 1); // a tie, to the even limit
  }
}

TEST(ComplexMod, TheRemainderIsNoFartherThanHalfADiagonal) {
  std::mt19937 random(31);
  std::uniform_real_distribution<double> part(-50, 50);
  for (int k = 0; k < 2000; ++k) {
    const Complex<double> x = {part(random), part(random)}, y = {part(random), part(random)};
    error code = error::none;
    const Complex<double> r = complexes::mod(code, x, y), n = (x - r) / y;
    ASSERT_LE(std::hypot(r.re, r.im), std::hypot(y.re, y.im) * 0.70710678118655 + 1e-12) << x << y;
    ASSERT_LT(std::abs(n.re - std::rint(n.re)) + std::abs(n.im - std::rint(n.im)), 1e-10) << x << y;
  }
}

TEST(ComplexPow, RealOperandsTakeTheRealPower) {
  expectPair(complexes::pow, {2, 0}, {10, 0}, {1024, 0});
  expectPair(complexes::pow, {0, 0}, {0, 0}, {1, 0});
  expectPair(complexes::pow, {0, 0}, {-1, 0}, {kInfinity, 0});
  expectPair(complexes::pow, {0, 0}, {2.5, 0}, {0, 0});
}

TEST(ComplexPow, TheNegativeAxisBelongsToItsUpperSide) {
  for (const double zero : kZeros) expectPair(complexes::pow, {-4, zero}, {0.5, 0}, {0, 2});
  expectPair(complexes::pow, {-1, 0}, {0, 1}, {std::exp(-kPi), 0});
}

TEST(ComplexPow, AZeroBaseWithoutARealExponentRaisesFourteen) {
  for (const double zero : kZeros) {
    EXPECT_EQ(codeOf(complexes::pow, {zero, zero}, {2, 1}), 14);
    EXPECT_EQ(codeOf(complexes::pow, {zero, 0}, {0, 1}), 14);
  }
}

TEST(ComplexPow, MixedPairsEmbedTheRealOperand) {
  error code = error::none;
  for (const Complex<double> z : {Complex<double>{1.5, -2}, {-3, 0}, {0.25, 0.5}}) {
    EXPECT_TRUE(same(complexes::pow(code, 2.5, z), complexes::pow(code, Complex<double>{2.5, 0}, z)));
    EXPECT_TRUE(same(complexes::pow(code, z, 2.5), complexes::pow(code, z, Complex<double>{2.5, 0})));
  }
  EXPECT_EQ(code, error::none);
}

TEST(ComplexPow, AnInfinityToARealExponentHasNoNaN) {
  expectPair(complexes::pow, {kInfinity, 1}, {2, 0}, {kInfinity, 0});
  expectPair(complexes::pow, {kInfinity, 1}, {0, 0}, {1, 0});
  expectPair(complexes::pow, {kInfinity, 1}, {-2, 0}, {0, 0});
}

template <class I> mint integerPowerCode(Complex<double> z, I n) {
  error code = error::none;
  complexes::pow(code, z, n);
  return static_cast<mint>(code);
}

TEST(ComplexIntegerPow, MultipliesFirstAndTakesTheReciprocalLast) {
  error code = error::none;
  const Complex<double> i = {0, 1}, z = {3, -4};
  EXPECT_EQ(complexes::pow(code, i, 2).re, -1);
  EXPECT_EQ(complexes::pow(code, i, INT64_MIN).re, 1); // its magnitude is a multiple of 4
  EXPECT_EQ(complexes::pow(code, i, UINT64_MAX).im, -1);
  EXPECT_EQ(complexes::pow(code, i, int8_t{-1}).im, -1);
  EXPECT_TRUE(same(complexes::pow(code, z, 3), {-117, -44}));
  EXPECT_TRUE(same(complexes::pow(code, z, -3), quotientByRule<double>({1, 0}, -117, -44)));
  EXPECT_TRUE(same(complexes::pow(code, z, 0), {1, 0}));
  EXPECT_TRUE(same(complexes::pow(code, z, 1), z));
  EXPECT_EQ(code, error::none);
}

TEST(ComplexIntegerPow, RaisesFourteenForAZeroBaseAndSixteenInTheReciprocal) {
  for (const int n : {0, -1, -7}) EXPECT_EQ(integerPowerCode({0, -0.0}, n), 14);
  EXPECT_EQ(integerPowerCode({0, 0}, uint32_t{0}), 14);
  EXPECT_EQ(integerPowerCode({0, 0}, 3), 0);
  EXPECT_EQ(integerPowerCode({1e-200, 1e-200}, -2), 16); // the square is lost
  EXPECT_EQ(integerPowerCode({1e200, 1e200}, -2), 0);
}

// ---- functions made of others -------------------------------------------------------------------

TEST(ComplexFibonacci, ContinuesTheIntegers) {
  const double fibonacci[] = {0, 1, 1, 2, 3, 5, 8, 13, 21}, lucas[] = {2, 1, 3, 4, 7, 11, 18, 29, 47};
  for (int n = 0; n < 9; ++n) {
    const Outcome f = at(complexes::fibonacci, n, 0), l = at(complexes::lucasl, n, 0);
    EXPECT_NEAR(f.value.re, fibonacci[n], 1e-13) << n;
    EXPECT_NEAR(l.value.re, lucas[n], 1e-13) << n;
    EXPECT_NEAR(f.value.im, 0, 1e-13);
    EXPECT_NEAR(l.value.im, 0, 1e-13);
  }
  EXPECT_NEAR(at(complexes::fibonacci, -4, 0).value.re, -3, 1e-13);
  EXPECT_NEAR(at(complexes::lucasl, -3, 0).value.re, -4, 1e-13);
}

TEST(ComplexUnit, IsFoundWithoutOverflow) {
  expectEqual(complexes::sign, {0, -0.0}, {0, 0});
  expectEqual(complexes::sign, {-5, 0}, {-1, 0});
  expectEqual(complexes::sign, {-0.0, -1e-310}, {0, -1});
  expectNear(complexes::sign, {3e307, -4e307}, {0.6, -0.8});
}

} // namespace

// What holds for every complex function: conjugates, NaNs, inverse pairs, the real axis.
#include "complexes_support.h"

#include <string_view>

using namespace torvane;
using namespace torvane::test;

namespace {

template <class R> R nanOf() { return std::numeric_limits<R>::quiet_NaN(); }
template <class R> R infinityOf() { return std::numeric_limits<R>::infinity(); }

template <class R> std::vector<Complex<R>> pairsOf(const std::vector<R> &parts) {
  std::vector<Complex<R>> pairs;
  for (const R x : parts)
    for (const R y : parts) pairs.push_back({x, y});
  return pairs;
}

template <class R> class ComplexProperties : public testing::Test {};
using BothWidths = testing::Types<float, double>;
TYPED_TEST_SUITE(ComplexProperties, BothWidths);

bool takesRoot(const NamedFunction &f) {
  return f.wide == complexes::sqrt<double> || f.wide == complexes::inversehaversine<double>;
}

template <class R> std::vector<R> partsWorthTrying() {
  const R tiny = std::numeric_limits<R>::min(), huge = std::numeric_limits<R>::max() / 2;
  return {R(0),   R(-0.0), tiny, -tiny, R(0.5),          R(-0.5),          R(1),      R(-1), R(2), R(-2),
          R(3.7), R(-3.7), huge, -huge, infinityOf<R>(), -infinityOf<R>(), nanOf<R>()};
}

// What a composed function hands to its core may underflow to the axis, and there lie cuts.
template <class R> bool innerMeetsAxis(const NamedFunction &f, Complex<R> z) {
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
TYPED_TEST(ComplexProperties, ConjugateArgumentsGiveConjugateResults) {
  using R = TypeParam;
  for (const NamedFunction &f : kAllFunctions)
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
TYPED_TEST(ComplexProperties, NaNsPropagate) {
  using R = TypeParam;
  const R nan = nanOf<R>();
  for (const NamedFunction &f : kAllFunctions)
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

TYPED_TEST(ComplexProperties, InversePairsUndoEachOther) {
  using R = TypeParam;
#define PAIR(f, g)                                                                                           \
  {                                                                                                          \
    {#f, complexes::f<double>, complexes::f<float>}, { #g, complexes::g < double>, complexes::g < float> }   \
  }
  const std::pair<NamedFunction, NamedFunction> pairs[] = {PAIR(sin, asin),
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
  const std::pair<ComplexFunction<double>, double (*)(double)> pairs[] = {
      {complexes::sqrt, std::sqrt},   {complexes::exp, std::exp},     {complexes::expm1, std::expm1},
      {complexes::log, std::log},     {complexes::log1p, std::log1p}, {complexes::log2, std::log2},
      {complexes::log10, std::log10}, {complexes::sin, std::sin},     {complexes::cos, std::cos},
      {complexes::tan, std::tan},     {complexes::sinh, std::sinh},   {complexes::cosh, std::cosh},
      {complexes::tanh, std::tanh},   {complexes::asin, std::asin},   {complexes::acos, std::acos},
      {complexes::atan, std::atan},   {complexes::asinh, std::asinh}, {complexes::atanh, std::atanh}};
  for (const auto &[f, real] : pairs)
    for (const double x : {0x1p-40, 0.125, 0.25, 0.75, 0.875}) {
      const ComplexOutcome outcome = at(f, x, 0);
      EXPECT_NEAR(outcome.value.re, real(x), 2e-15 * std::abs(real(x))) << x;
      EXPECT_LE(std::abs(outcome.value.im), f == complexes::atan<double> ? 0x1p-53 * x : 0) << x;
      EXPECT_EQ(outcome.code, error::none);
    }
  for (const double x : {1.5, 3.0, 1e5, 1e200}) expectNear(complexes::acosh, {x, 0}, {std::acosh(x), 0});
}

} // namespace

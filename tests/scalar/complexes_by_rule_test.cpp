// Every complex entry against the model that takes the steps one by one: all combinations of zeros, tiny and
// huge numbers, infinities and NaNs in the parts, and random points. Values bit for bit, NaNs of any payload
// alike; codes of both forms.
#include "complexes_by_rule.h"
#include "complexes_support.h"
#include "support/raised.h"

#include <torvane/scalars.h>

using namespace torvane;
using namespace torvane::test;

namespace {

template <class R> int classified(Complex<R> z) {
  for (const R part : {z.re, z.im})
    if (!std::isfinite(part)) return std::isnan(part) ? 9 : 6;
  return 0;
}

// The values of a plain entry and the codes of both forms are the model's.
template <class R, class Entry, class... A>
void expectByRule(const char *name, Entry plain, Entry checked, bool classifies, Complex<R> expected,
                  int code, Complex<R> x, A... arguments) {
  Complex<R> got = {}, ofChecked = {};
  const mint raised = raisedBy([&] { plain(&got.re, &got.im, arguments...); });
  ASSERT_EQ(raised, code) << name << x;
  if (code == 0) ASSERT_TRUE(same(got, expected)) << name << x << " gave " << got << ", not " << expected;
  const mint raisedChecked = raisedBy([&] { checked(&ofChecked.re, &ofChecked.im, arguments...); });
  ASSERT_EQ(raisedChecked, code != 0 || !classifies ? code : classified(expected)) << name << x;
}

// ---- one operand --------------------------------------------------------------------------------

template <class R> using Entry = R *(*)(R *, R *, R, R);
template <class R> struct Function {
  const char *name;
  Entry<R> plain, checked;
  Complex<R> (ByRule<R>::*rule)(Complex<R>);
  bool classifies;
};

#define FUNCTIONS(F, T)                                                                                      \
  F(sqrt, T), F(rsqrt, T), F(exp, T), F(expm1, T), F(log, T), F(log1p, T), F(log2, T), F(log10, T),          \
      F(sin, T), F(cos, T), F(tan, T), F(sec, T), F(csc, T), F(cot, T), F(sinh, T), F(cosh, T), F(tanh, T),  \
      F(sech, T), F(csch, T), F(coth, T), F(asin, T), F(acos, T), F(atan, T), F(acsc, T), F(asec, T),        \
      F(acot, T), F(asinh, T), F(acosh, T), F(atanh, T), F(acsch, T), F(asech, T), F(acoth, T), F(sinc, T),  \
      F(logistic, T), F(gudermannian, T), F(inversegudermannian, T), F(haversine, T),                        \
      F(inversehaversine, T), F(fibonacci, T), F(lucasl, T), F(recip, T)
#define FUNCTION(name, T)                                                                                    \
  Function<PartOf<T>> {                                                                                      \
#name, unary_##name##_##T, checked_unary_##name##_##T, &ByRule < PartOf < T>> ::name, true               \
  }
#define UNCLASSIFIED(name, T)                                                                                \
  Function<PartOf<T>> {                                                                                      \
#name, unary_##name##_##T, checked_unary_##name##_##T, &ByRule < PartOf < T>> ::name, false              \
  }
template <class T> using PartOf = typename T::Part;

template <class R> std::vector<Function<R>> functions();
template <> std::vector<Function<float>> functions() {
  return {FUNCTIONS(FUNCTION, ComplexReal32), UNCLASSIFIED(sign, ComplexReal32)};
}
template <> std::vector<Function<double>> functions() {
  return {FUNCTIONS(FUNCTION, ComplexReal64), UNCLASSIFIED(sign, ComplexReal64)};
}

template <class R> void expectByRule(const Function<R> &function, Complex<R> z) {
  ByRule<R> rule;
  const Complex<R> expected = (rule.*function.rule)(z);
  expectByRule(function.name, function.plain, function.checked, function.classifies, expected, rule.code, z,
               z.re, z.im);
}

template <class R> std::vector<Complex<R>> pairsOf(const std::vector<R> &parts) {
  std::vector<Complex<R>> pairs;
  for (const R x : parts)
    for (const R y : parts) pairs.push_back({x, y});
  return pairs;
}

// The ends of the format and what lies at the borders of the functions' regions.
template <class R> std::vector<R> parts() {
  using Limits = std::numeric_limits<R>;
  std::vector<R> all;
  for (const R x : {R(0),
                    Limits::denorm_min(),
                    Limits::min(),
                    R(0x1p-33),
                    R(0x1p-12),
                    R(0.25),
                    R(0.5),
                    R(0.75),
                    R(1),
                    R(1.5),
                    R(2),
                    R(3),
                    R(0x1p27),
                    R(0x1p34),
                    R(1000),
                    Limits::max() / 2,
                    Limits::max(),
                    Limits::infinity(),
                    Limits::quiet_NaN(),
                    std::nextafter(R(0.5), R(1)),
                    std::nextafter(R(1), R(0)),
                    std::nextafter(R(2), R(0))})
    all.insert(all.end(), {x, -x});
  return all;
}

template <class R> class ComplexByRule : public testing::Test {};
using BothWidths = testing::Types<float, double>;
TYPED_TEST_SUITE(ComplexByRule, BothWidths);

TYPED_TEST(ComplexByRule, EveryFunctionAtEveryCombinationOfSpecialParts) {
  for (const auto &function : functions<TypeParam>())
    for (const auto &z : pairsOf(parts<TypeParam>())) ASSERT_NO_FATAL_FAILURE(expectByRule(function, z));
}

TYPED_TEST(ComplexByRule, EveryFunctionAtRandomPointsOfEveryMagnitude) {
  using R = TypeParam;
  const std::vector<R> random = randomReals<R>(4000, 81);
  std::mt19937_64 engine(82);
  std::uniform_real_distribution<R> part(-4, 4);
  for (const auto &function : functions<R>()) {
    for (size_t k = 0; k + 1 < random.size(); k += 2)
      for (const R y :
           {random[k + 1], random[k] * (1 + random[k + 1] / std::numeric_limits<R>::max())}) // of like size
        ASSERT_NO_FATAL_FAILURE(expectByRule(function, Complex<R>{random[k], y}));
    for (int k = 0; k < 4000; ++k) {
      const R x = part(engine);
      ASSERT_NO_FATAL_FAILURE(expectByRule(function, Complex<R>{x, part(engine)}));
    }
  }
}

TYPED_TEST(ComplexByRule, ModulusAtEveryCombinationAndAtRandomPoints) {
  using R = TypeParam;
  std::vector<Complex<R>> points = pairsOf(parts<R>());
  const std::vector<R> random = randomReals<R>(40000, 83);
  for (size_t k = 0; k + 1 < random.size(); k += 2) {
    points.push_back({random[k], random[k + 1]});
    points.push_back(
        {random[k], random[k] * (1 + random[k + 1] / std::numeric_limits<R>::max())}); // of like size
  }
  for (const auto &z : points) {
    R modulus = 0;
    if constexpr (sizeof(R) == 8)
      modulus = unary_abs_ComplexReal64(z.re, z.im);
    else
      modulus = unary_abs_ComplexReal32(z.re, z.im);
    ASSERT_TRUE(sameReal(modulus, ByRule<R>::abs(z))) << z;
  }
}

// ---- two operands -------------------------------------------------------------------------------

template <class R> using PairEntry = R *(*)(R *, R *, R, R, R, R);
template <class R> struct PairFunction {
  const char *name;
  PairEntry<R> plain, checked;
  Complex<R> (*rule)(ByRule<R> &, Complex<R>, Complex<R>);
};
#define PAIR(name, T, expression)                                                                            \
  PairFunction<PartOf<T>> {                                                                                  \
#name, binary_##name##_##T##_##T, checked_binary_##name##_##T##_##T,                                     \
        [](ByRule <PartOf <T>> & rule, T x, T y) -> T { return expression; }                                 \
  }
#define PAIRS(T)                                                                                             \
  PAIR(divide, T, rule.divide(x, y)), PAIR(log, T, rule.log(x, y)), PAIR(pow, T, rule.pow(x, y)),            \
      PAIR(mod, T, rule.mod(x, y)), PAIR(abserr, T, (T{rule.abs(rule.minus(x, y)), 0})),                     \
      PAIR(relerr, T, (T{rule.abs(rule.divide(rule.minus(x, y), y)), 0})),                                   \
      PAIR(maxabs, T, (T{std::fmax(rule.abs(x), rule.abs(y)), 0}))
template <class R> std::vector<PairFunction<R>> pairFunctions();
template <> std::vector<PairFunction<float>> pairFunctions() { return {PAIRS(ComplexReal32)}; }
template <> std::vector<PairFunction<double>> pairFunctions() { return {PAIRS(ComplexReal64)}; }

template <class R> void expectByRule(const PairFunction<R> &function, Complex<R> x, Complex<R> y) {
  ByRule<R> rule;
  const Complex<R> expected = function.rule(rule, x, y);
  SCOPED_TRACE(testing::Message() << y);
  expectByRule(function.name, function.plain, function.checked, true, expected, rule.code, x, x.re, x.im,
               y.re, y.im);
}

TYPED_TEST(ComplexByRule, EveryFunctionOfTwoAtEveryCombinationOfSpecialParts) {
  using R = TypeParam;
  using Limits = std::numeric_limits<R>;
  const std::vector<Complex<R>> points =
      pairsOf<R>({0, R(-0.0), Limits::min(), 1, -1, R(2.5), Limits::max(), -Limits::max(), Limits::infinity(),
                  -Limits::infinity(), Limits::quiet_NaN()});
  for (const auto &function : pairFunctions<R>())
    for (const auto &x : points)
      for (const auto &y : points) ASSERT_NO_FATAL_FAILURE(expectByRule(function, x, y));
}

TYPED_TEST(ComplexByRule, EveryFunctionOfTwoAtRandomPoints) {
  using R = TypeParam;
  const std::vector<R> random = randomReals<R>(8000, 84);
  std::mt19937_64 engine(85);
  std::uniform_real_distribution<R> part(-4, 4);
  for (const auto &function : pairFunctions<R>())
    for (size_t k = 0; k + 3 < random.size(); k += 4) {
      const R near[] = {part(engine), part(engine), part(engine), part(engine)};
      const Complex<R> x = {near[0], near[1]}, y = {near[2], near[3]};
      ASSERT_NO_FATAL_FAILURE(expectByRule(function, x, y));
      ASSERT_NO_FATAL_FAILURE(expectByRule(function, Complex<R>{x.re, 0}, y));
      ASSERT_NO_FATAL_FAILURE(expectByRule(function, x, Complex<R>{y.re, 0}));
      ASSERT_NO_FATAL_FAILURE(expectByRule(function, Complex<R>{random[k], random[k + 1]},
                                           Complex<R>{random[k + 2], random[k + 3]}));
    }
}

} // namespace

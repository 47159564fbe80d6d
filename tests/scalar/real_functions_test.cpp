// Functions of reals: what each refuses and reports, in both forms and all three widths; values that are
// exact or given; Real16 as the Real32 function cut off. How accurate they are is in accuracy_test.cpp.
#include "real_functions.h"

#include "scalar/half.h"
#include "support/raised.h"
#include "support/real_samples.h"

#include <gtest/gtest.h>
#include <map>
#include <string>

using namespace torvane::test;

namespace {

const double kInfinity = HUGE_VAL, kNaN = NAN;

// ---- one width after another ----

struct Half {
  uint16_t bits;
};

double widened(double x) { return x; }
double widened(float x) { return double(x); }
double widened(Half x) { return double(torvane::widen(torvane::Real16{x.bits})); }

template <class R> R narrowed(double x) { return R(x); }
template <> Half narrowed(double x) { return {torvane::narrow(float(x)).bits}; }

template <class R> struct Outcome {
  R value;
  mint code;
};

Outcome<double> call(const RealFunction &f, bool checked, double x) {
  Outcome<double> outcome = {};
  outcome.code = raisedBy([&] { outcome.value = (checked ? f.checkedReal64 : f.real64)(x); });
  return outcome;
}
Outcome<float> call(const RealFunction &f, bool checked, float x) {
  Outcome<float> outcome = {};
  outcome.code = raisedBy([&] { outcome.value = (checked ? f.checkedReal32 : f.real32)(x); });
  return outcome;
}
Outcome<Half> call(const RealFunction &f, bool checked, Half x) {
  Outcome<Half> outcome = {};
  outcome.code = raisedBy([&] { (checked ? f.checkedReal16 : f.real16)(&outcome.value.bits, x.bits); });
  return outcome;
}
Outcome<double> call(const RealPairFunction &f, bool checked, double x, double y) {
  Outcome<double> outcome = {};
  outcome.code = raisedBy([&] { outcome.value = (checked ? f.checkedReal64 : f.real64)(x, y); });
  return outcome;
}
Outcome<float> call(const RealPairFunction &f, bool checked, float x, float y) {
  Outcome<float> outcome = {};
  outcome.code = raisedBy([&] { outcome.value = (checked ? f.checkedReal32 : f.real32)(x, y); });
  return outcome;
}
Outcome<Half> call(const RealPairFunction &f, bool checked, Half x, Half y) {
  Outcome<Half> outcome = {};
  outcome.code =
      raisedBy([&] { (checked ? f.checkedReal16 : f.real16)(&outcome.value.bits, x.bits, y.bits); });
  return outcome;
}

const RealFunction &unaryOf(const std::string &name) {
  static const std::vector<RealFunction> all = realFunctions();
  for (const RealFunction &function : all)
    if (name == function.name) return function;
  throw std::out_of_range(name);
}
const RealPairFunction &binaryOf(const std::string &name) {
  static const std::vector<RealPairFunction> all = realPairFunctions();
  for (const RealPairFunction &function : all)
    if (name == function.name) return function;
  throw std::out_of_range(name);
}

double at(const std::string &name, double x) { return unaryOf(name).real64(x); }
double at(const std::string &name, double x, double y) { return binaryOf(name).real64(x, y); }

// ---- what is refused ----

using Domain = bool (*)(double x);

// Inside for a NaN, so each is the negation of what is refused.
const std::map<std::string, Domain> kDomains = {
    {"sqrt", [](double x) { return !(x < 0); }},
    {"rsqrt", [](double x) { return !(x < 0); }},
    {"log", [](double x) { return !(x < 0); }},
    {"log2", [](double x) { return !(x < 0); }},
    {"log10", [](double x) { return !(x < 0); }},
    {"log1p", [](double x) { return !(x < -1); }},
    {"asin", [](double x) { return !(x < -1 || x > 1); }},
    {"acos", [](double x) { return !(x < -1 || x > 1); }},
    {"atanh", [](double x) { return !(x < -1 || x > 1); }},
    {"acosh", [](double x) { return !(x < 1); }},
    {"acsc", [](double x) { return !(x > -1 && x < 1); }},
    {"asec", [](double x) { return !(x > -1 && x < 1); }},
    {"acoth", [](double x) { return !(x > -1 && x < 1); }},
    {"asech", [](double x) { return !(x <= 0 || x > 1); }},
    {"inversehaversine", [](double x) { return !(x < 0 || x > 1); }},
    {"inversegudermannian", [](double x) { return !(std::fabs(std::tan(x / 2)) >= 1); }},
    {"loggamma", [](double x) { return !(x <= 0); }},
};

// Functions whose checked form is the plain one.
bool isUntested(const std::string &name) {
  for (const char *untested : {"sin", "cos", "erf", "erfc", "cbrt", "log2", "log10"})
    if (name == untested) return true;
  return false;
}

mint classOf(double x) { return std::isnan(x) ? 9 : std::isinf(x) ? 6 : 0; }
bool sameValue(double x, double y) { return sameReal(x, y); }
bool sameValue(float x, float y) { return sameReal(x, y); }
bool sameValue(Half x, Half y) { return x.bits == y.bits; }

template <class R> std::vector<R> arguments() {
  std::vector<R> values;
  for (const double x : specialReals<double>()) values.push_back(narrowed<R>(x));
  for (const float x : specialReals<float>()) values.push_back(narrowed<R>(double(x)));
  for (const double x : randomReals<double>(200, 3)) values.push_back(narrowed<R>(x));
  for (double x = -4; x <= 4; x += 0.03125) values.push_back(narrowed<R>(x));
  for (const double x : {-1000.0, 1000.0, 711.0, -711.0, 172.0, 1.5707963267948966, 1.5707963267948968,
                         -1.5707963267948968, -10.0, 7.0, 1e-310})
    values.push_back(narrowed<R>(x));
  return values;
}

template <class R> class RealFunctions : public testing::Test {};
using AllWidths = testing::Types<Half, float, double>;
TYPED_TEST_SUITE(RealFunctions, AllWidths);

TYPED_TEST(RealFunctions, BothFormsRefuseTheSameArgumentsAndTheCheckedOneTestsItsResult) {
  using R = TypeParam;
  for (const RealFunction &f : realFunctions()) {
    const auto domain = kDomains.find(f.name);
    int refused = 0;
    for (const R x : arguments<R>()) {
      const bool isInside = domain == kDomains.end() || domain->second(widened(x));
      refused += !isInside;
      const Outcome<R> plain = call(f, false, x), checked = call(f, true, x);
      ASSERT_EQ(plain.code, isInside ? 0 : 14) << f.name << " of " << widened(x);
      const mint tested = isUntested(f.name) ? 0 : classOf(widened(plain.value));
      ASSERT_EQ(checked.code, isInside ? tested : 14) << f.name << " of " << widened(x);
      ASSERT_TRUE(checked.code != 0 || sameValue(plain.value, checked.value))
          << f.name << " of " << widened(x);
    }
    EXPECT_EQ(refused > 0, domain != kDomains.end()) << f.name; // the arguments reach outside every domain
  }
}

TYPED_TEST(RealFunctions, NaNPassesEveryDomain) {
  using R = TypeParam;
  const R nan = narrowed<R>(kNaN);
  for (const RealFunction &f : realFunctions()) {
    const Outcome<R> plain = call(f, false, nan);
    EXPECT_EQ(plain.code, 0) << f.name;
    EXPECT_TRUE(std::isnan(widened(plain.value))) << f.name;
    EXPECT_EQ(call(f, true, nan).code, isUntested(f.name) ? 0 : 9) << f.name;
  }
  const R one = narrowed<R>(1);
  for (const RealPairFunction &f : realPairFunctions()) {
    EXPECT_EQ(call(f, false, nan, one).code, 0) << f.name;
    EXPECT_EQ(call(f, false, one, nan).code, 0) << f.name;
  }
}

// An infinity of the plain form that is code 6 in the checked one, where the function is tested.
struct Pole {
  const char *name;
  double x, value;
};
const Pole kPoles[] = {
    {"log", 0, -kInfinity},      {"log", -0.0, -kInfinity},   {"log2", 0, -kInfinity},
    {"log10", 0, -kInfinity},    {"log1p", -1, -kInfinity},   {"rsqrt", 0, kInfinity},
    {"rsqrt", -0.0, -kInfinity}, {"atanh", 1, kInfinity},     {"atanh", -1, -kInfinity},
    {"acoth", 1, kInfinity},     {"acoth", -1, -kInfinity},   {"csc", 0, kInfinity},
    {"csc", -0.0, -kInfinity},   {"cot", 0, kInfinity},       {"csch", 0, kInfinity},
    {"coth", -0.0, -kInfinity},  {"acsch", 0, kInfinity},     {"acsch", -0.0, -kInfinity},
    {"gamma", 0, kInfinity},     {"gamma", -0.0, -kInfinity}, {"exp", 1000, kInfinity},
    {"expm1", 1000, kInfinity},  {"sinh", -1000, -kInfinity}, {"cosh", -1000, kInfinity},
    {"gamma", 200, kInfinity},
};

TYPED_TEST(RealFunctions, PolesAreInfinitiesAndNotOutsideTheDomain) {
  using R = TypeParam;
  for (const Pole &pole : kPoles) {
    const RealFunction &f = unaryOf(pole.name);
    const Outcome<R> plain = call(f, false, narrowed<R>(pole.x)),
                     checked = call(f, true, narrowed<R>(pole.x));
    EXPECT_EQ(plain.code, 0) << pole.name;
    EXPECT_EQ(widened(plain.value), pole.value) << pole.name;
    EXPECT_EQ(checked.code, isUntested(pole.name) ? 0 : 6) << pole.name;
  }
}

// The last argument inside and the first outside.
template <class R> struct Edge {
  const char *name;
  R inside, outside;
};
template <class R> std::vector<Edge<R>> edges() {
  const R one = 1, zero = 0, tiny = std::numeric_limits<R>::denorm_min();
  const R above = std::nextafter(one, R(2)), below = std::nextafter(one, zero);
  return {{"sqrt", -zero, -tiny},
          {"rsqrt", -zero, -tiny},
          {"log", -zero, -tiny},
          {"log2", -zero, -tiny},
          {"log10", -zero, -tiny},
          {"log1p", -one, -above},
          {"asin", one, above},
          {"asin", -one, -above},
          {"acos", one, above},
          {"acos", -one, -above},
          {"atanh", one, above},
          {"atanh", -one, -above},
          {"acosh", one, below},
          {"acsc", one, below},
          {"acsc", -one, -below},
          {"asec", one, below},
          {"asec", -one, -below},
          {"acoth", one, below},
          {"acoth", -one, -below},
          {"asech", one, above},
          {"asech", tiny, zero},
          {"asech", tiny, -zero},
          {"loggamma", tiny, zero},
          {"loggamma", tiny, -zero},
          {"inversehaversine", one, above},
          {"inversehaversine", -zero, -tiny}};
}

template <class R> void holdEdges() {
  for (const Edge<R> &edge : edges<R>())
    for (const bool checked : {false, true}) {
      EXPECT_NE(call(unaryOf(edge.name), checked, edge.inside).code, 14) << edge.name;
      EXPECT_EQ(call(unaryOf(edge.name), checked, edge.outside).code, 14) << edge.name;
    }
}
TEST(RealDomains, EndAtTheLastValueOfEitherWidth) {
  holdEdges<float>();
  holdEdges<double>();
}

TEST(RealDomains, InverseGudermannianEndsWhereTheTangentRoundsToOne) {
  for (const double sign : {1.0, -1.0})
    for (const bool checked : {false, true}) {
      const RealFunction &f = unaryOf("inversegudermannian");
      EXPECT_EQ(call(f, checked, sign * 0x1.921fb54442d18p0).code, 0);
      EXPECT_EQ(call(f, checked, sign * 0x1.921fb54442d19p0).code, 14);
      EXPECT_EQ(call(f, checked, float(sign * 0x1.921fb4p0)).code, 0);
      EXPECT_EQ(call(f, checked, float(sign * 0x1.921fb6p0)).code, 14);
    }
}

TYPED_TEST(RealFunctions, LogarithmToABaseRefusesZeroAndBelowOfEitherOperand) {
  using R = TypeParam;
  const RealPairFunction &log = binaryOf("log");
  for (const bool checked : {false, true})
    for (const double x : {0.0, -0.0, -1.0, -kInfinity}) {
      EXPECT_EQ(call(log, checked, narrowed<R>(x), narrowed<R>(2)).code, 14);
      EXPECT_EQ(call(log, checked, narrowed<R>(2), narrowed<R>(x)).code, 14);
    }
  EXPECT_EQ(widened(call(log, false, narrowed<R>(2), narrowed<R>(8)).value), 3);
  EXPECT_EQ(call(log, false, narrowed<R>(1), narrowed<R>(8)).code, 0);
  EXPECT_EQ(call(log, true, narrowed<R>(1), narrowed<R>(8)).code, 6); // log 8 / 0
  EXPECT_EQ(call(log, true, narrowed<R>(1), narrowed<R>(1)).code, 9); // 0 / 0
}

TYPED_TEST(RealFunctions, ArctangentOfTwoRefusesTheOriginAndTestsNoResult) {
  using R = TypeParam;
  const RealPairFunction &atan2 = binaryOf("atan2");
  for (const bool checked : {false, true}) {
    for (const double x : {0.0, -0.0})
      for (const double y : {0.0, -0.0})
        EXPECT_EQ(call(atan2, checked, narrowed<R>(x), narrowed<R>(y)).code, 14);
    EXPECT_EQ(call(atan2, checked, narrowed<R>(0), narrowed<R>(kNaN)).code, 0);
  }
}

TEST(RealValues, ArctangentOfTwoTakesItsArgumentsAsC) {
  EXPECT_EQ(at("atan2", 1, 0), M_PI_2);
  EXPECT_EQ(at("atan2", 0, -1), M_PI);
  EXPECT_EQ(at("atan2", -0.0, -1), -M_PI);
  EXPECT_EQ(at("atan2", 0, 1), 0);
  for (const double x : specialReals<double>())
    for (const double y : specialReals<double>())
      if (x != 0 || y != 0) EXPECT_TRUE(sameReal(at("atan2", x, y), std::atan2(x, y))) << x << " " << y;
}

TEST(RealValues, AreExactWhereTheyCanBe) {
  for (const double zero : {0.0, -0.0}) {
    EXPECT_EQ(at("acot", zero), 1.5707963267948966); // where 1 / x would take the sign
    EXPECT_EQ(at("sinc", zero), 1);
  }
  EXPECT_EQ(at("acot", kInfinity), 0);
  EXPECT_EQ(at("sinc", kInfinity) != at("sinc", kInfinity), true);
  EXPECT_EQ(at("logistic", 0), 0.5);
  EXPECT_EQ(at("logistic", 1000), 1);
  EXPECT_EQ(at("logistic", -1000), 0);
  EXPECT_EQ(at("logistic", kInfinity), 1);
  EXPECT_EQ(at("logistic", -kInfinity), 0);
  EXPECT_EQ(at("inversehaversine", 1), M_PI);
  EXPECT_EQ(at("inversehaversine", 0), 0);
  EXPECT_EQ(at("haversine", M_PI), 1);
  EXPECT_EQ(at("gudermannian", 0), 0);
  EXPECT_EQ(at("gudermannian", kInfinity), M_PI_2);
  EXPECT_EQ(at("asec", 1), 0);
  EXPECT_EQ(at("asec", -1), M_PI);
  EXPECT_EQ(at("acsc", 1), M_PI_2);
  EXPECT_EQ(at("acsc", kInfinity), 0);
  EXPECT_EQ(at("asech", 1), 0);
  EXPECT_EQ(at("acosh", 1), 0);
  EXPECT_EQ(at("acoth", kInfinity), 0);
  EXPECT_EQ(at("sech", 1000), 0);
  EXPECT_EQ(at("csch", -1000), 0);
  EXPECT_EQ(at("loggamma", 1), 0);
  EXPECT_EQ(at("loggamma", 2), 0);
  EXPECT_TRUE(sameReal(at("cbrt", -0.0), -0.0));
  EXPECT_EQ(at("rsqrt", 4), 0.5);
  EXPECT_EQ(at("rsqrt", kInfinity), 0);
  EXPECT_EQ(at("erf", kInfinity), 1);
  EXPECT_EQ(at("erfc", -kInfinity), 2);
  EXPECT_EQ(at("log2", 0x1p-1074), -1074);
  EXPECT_EQ(at("log10", 1e22), 22);
}

// In memory, where the compiler cannot compute a call by its own, better functions.
[[gnu::noinline]] std::vector<double> steps(double from, double to, double by) {
  std::vector<double> values;
  for (double x = from; x < to; x += by) values.push_back(x);
  return values;
}

// The platform's own, exact or not: its cube root of -27 is not -3.
TEST(RealValues, RootAndErrorAndGammaFunctionsAreThePlatforms) {
  for (const double x : steps(-40.0625, 60, 0.25)) {
    EXPECT_EQ(at("cbrt", x), std::cbrt(x));
    EXPECT_EQ(at("erf", x), std::erf(x));
    EXPECT_EQ(at("erfc", x), std::erfc(x));
    EXPECT_EQ(at("gamma", x), std::tgamma(x));
    if (x > 0) EXPECT_EQ(at("loggamma", x), std::lgamma(x));
  }
}

// The plain form of the platform's function stores the sign of gamma for the whole process.
TEST(RealValues, LogarithmOfGammaLeavesTheProcessAlone) {
  signgam = 7;
  EXPECT_GT(at("loggamma", 0.25), 1);
  EXPECT_EQ(signgam, 7);
}

// Within a few units: the formula works on rounded constants.
TEST(RealValues, ContinuedSequencesAgreeWithTheIntegerOnes) {
  double fibonacci[2] = {0, 1}, lucas[2] = {2, 1};
  for (int n = 0; n <= 60; ++n) {
    EXPECT_NEAR(at("fibonacci", n), fibonacci[0], (n + 1) * 4e-16 * (fibonacci[0] + 1)) << n;
    EXPECT_NEAR(at("lucasl", n), lucas[0], (n + 1) * 4e-16 * lucas[0]) << n;
    EXPECT_NEAR(at("fibonacci", -n), n % 2 == 0 ? -fibonacci[0] : fibonacci[0],
                (n + 1) * 4e-16 * (fibonacci[0] + 1))
        << -n;
    EXPECT_NEAR(at("lucasl", -n), n % 2 == 0 ? lucas[0] : -lucas[0], (n + 1) * 4e-16 * lucas[0]) << -n;
    for (double *pair : {fibonacci, lucas}) {
      const double next = pair[0] + pair[1];
      pair[0] = pair[1];
      pair[1] = next;
    }
  }
}

// The formulas that stand in the library, step by step in binary64.
TEST(RealValues, FormulasAreThoseOfTheDefinitions) {
  for (const double x : steps(-30.0625, 31, 0.125)) {
    const double p = std::pow(1.618033988749895, x), half = std::sin(x / 2);
    EXPECT_EQ(at("fibonacci", x), (p - std::cos(x * M_PI) / p) / 2.23606797749979);
    EXPECT_EQ(at("lucasl", x), std::cos(x * M_PI) / p + p);
    EXPECT_EQ(at("haversine", x), half * half);
    EXPECT_EQ(at("gudermannian", x), 2 * std::atan(std::tanh(x / 2)));
    EXPECT_EQ(at("sinc", x), std::sin(x) / x);
    EXPECT_EQ(at("logistic", x), x > 0 ? 1 / (std::exp(-x) + 1) : std::exp(x) / (std::exp(x) + 1));
    EXPECT_EQ(at("csc", x), 1 / std::sin(x));
    EXPECT_EQ(at("sec", x), 1 / std::cos(x));
    EXPECT_EQ(at("cot", x), 1 / std::tan(x));
    EXPECT_EQ(at("csch", x), 1 / std::sinh(x));
    EXPECT_EQ(at("sech", x), 1 / std::cosh(x));
    EXPECT_EQ(at("coth", x), 1 / std::tanh(x));
    EXPECT_EQ(at("acot", x), std::atan(1 / x));
    EXPECT_EQ(at("acsch", x), std::asinh(1 / x));
  }
}

TEST(RealValues, FormulasOfBoundedDomainsAreThoseOfTheDefinitions) {
  for (const double x : steps(0.0078125, 1, 0.0078125))
    for (const double sign : {1.0, -1.0}) {
      const double beyond = sign / x;
      EXPECT_EQ(at("acsc", beyond), std::asin(1 / beyond));
      EXPECT_EQ(at("asec", beyond), std::acos(1 / beyond));
      EXPECT_EQ(at("acoth", beyond), std::atanh(1 / beyond));
      EXPECT_EQ(at("asech", x), std::acosh(1 / x));
      EXPECT_EQ(at("rsqrt", x), 1 / std::sqrt(x));
      EXPECT_EQ(at("inversehaversine", x), 2 * std::asin(std::sqrt(x)));
      EXPECT_EQ(at("inversegudermannian", sign * x), 2 * std::atanh(std::tan(sign * x / 2)));
    }
}

TEST(RealValues, LogarithmToABaseIsTheQuotientOfTwo) {
  for (const double base : steps(0.125, 12, 0.375))
    for (const double x : steps(0.0625, 20, 0.4375))
      EXPECT_EQ(at("log", base, x), std::log(x) / std::log(base)) << base << " " << x;
}

// Every pattern: the Real32 function of the widened value, cut off; the checked form classifies what is left.
TEST(Real16Functions, AreTheReal32FunctionsCutOff) {
  for (const RealFunction &f : realFunctions())
    for (uint32_t bits = 0; bits < 65536; ++bits) {
      const Half x = {uint16_t(bits)};
      const float wide = torvane::widen(torvane::Real16{x.bits});
      const Outcome<float> expected = call(f, false, wide);
      const Outcome<Half> plain = call(f, false, x);
      ASSERT_EQ(plain.code, expected.code) << f.name << " of pattern " << bits;
      if (expected.code != 0) continue;
      ASSERT_EQ(plain.value.bits, torvane::narrow(expected.value).bits) << f.name << " of pattern " << bits;
      ASSERT_EQ(call(f, true, x).code, isUntested(f.name) ? 0 : classOf(widened(plain.value)))
          << f.name << " of " << bits;
    }
}

// Nothing in between is rounded to binary32: 1 / sin of a float is not the float quotient of the float sine.
TEST(Real32Functions, AreTheReal64FunctionsNarrowedOnce) {
  for (const RealFunction &f : realFunctions())
    for (const float x : arguments<float>()) {
      const Outcome<double> expected = call(f, false, double(x));
      const Outcome<float> got = call(f, false, x);
      ASSERT_EQ(got.code, expected.code) << f.name << " of " << x;
      if (expected.code == 0)
        ASSERT_TRUE(sameReal(got.value, float(expected.value))) << f.name << " of " << x;
    }
}

// ---- types without a meaning ----

TEST(RealFunctionNames, RaiseSeventeenForTypesWithoutAMeaning) {
  EXPECT_EQ(raisedBy([] { unary_sin_Integer32(1); }), 17);
  EXPECT_EQ(raisedBy([] { checked_unary_acosh_UnsignedInteger8(1); }), 17);
  EXPECT_EQ(raisedBy([] { binary_log_Integer64_Integer64(2, 8); }), 17);
  EXPECT_EQ(raisedBy([] { checked_binary_atan2_Integer16_Integer16(1, 1); }), 17);
  double re, im;
  for (auto entry : {unary_erf_ComplexReal64, checked_unary_erfc_ComplexReal64, unary_cbrt_ComplexReal64,
                     checked_unary_gamma_ComplexReal64, unary_loggamma_ComplexReal64})
    EXPECT_EQ(raisedBy([&] { entry(&re, &im, 1, 1); }), 17);
}

TEST(RealFunctionNames, RootIsReservedForEveryType) {
  float re, im;
  uint16_t half;
  EXPECT_EQ(raisedBy([] { binary_root_Integer8_Integer8(8, 3); }), 17);
  EXPECT_EQ(raisedBy([] { checked_binary_root_UnsignedInteger64_UnsignedInteger64(8, 3); }), 17);
  EXPECT_EQ(raisedBy([] { binary_root_Real64_Real64(8, 3); }), 17);
  EXPECT_EQ(raisedBy([] { checked_binary_root_Real64_Real64(8, 3); }), 17);
  EXPECT_EQ(raisedBy([] { checked_binary_root_Real32_Real32(8, 3); }), 17);
  EXPECT_EQ(raisedBy([&] { binary_root_Real16_Real16(&half, 0x4000, 0x4000); }), 17);
  EXPECT_EQ(raisedBy([&] { binary_root_ComplexReal32_ComplexReal32(&re, &im, 1, 1, 1, 1); }), 17);
}

TEST(RealFunctionNames, IntegersOfTheSameNameGoTheirOwnWay) {
  EXPECT_EQ(unary_log2_Integer32(8), 3);
  EXPECT_EQ(raisedBy([] { unary_log2_Integer32(6); }), 3);
  EXPECT_EQ(raisedBy([] { unary_log2_Integer32(0); }), 14);
  EXPECT_EQ(raisedBy([] { checked_unary_log2_Integer32(-8); }), 14);
  EXPECT_EQ(unary_log10_UnsignedInteger64(10000000000000000000u), 19u);
  EXPECT_EQ(unary_gamma_Integer16(8), 5040);
  EXPECT_EQ(raisedBy([] { unary_gamma_Integer16(9); }), 1);
  EXPECT_EQ(unary_fibonacci_Integer64(-8), -21);
  EXPECT_EQ(unary_lucasl_UnsignedInteger8(5), 11);
}

// The complex entries reach the complex functions of the same name.
TEST(RealFunctionNames, ComplexesOfTheSameNameGoTheirOwnWay) {
  double re = 0, im = 0;
  EXPECT_EQ(unary_log_ComplexReal64(&re, &im, -1, -0.0), &re);
  EXPECT_EQ(re, 0);
  EXPECT_EQ(im, M_PI);
  EXPECT_EQ(raisedBy([&] { unary_log_ComplexReal64(&re, &im, 0, 0); }), 14);
  unary_log2_ComplexReal64(&re, &im, -2, 0);
  EXPECT_EQ(re, 1);
  EXPECT_EQ(im, 4.532360141827194);
  EXPECT_EQ(raisedBy([&] { unary_atanh_ComplexReal64(&re, &im, 1, 0); }), 14);
  EXPECT_EQ(raisedBy([&] { unary_csc_ComplexReal64(&re, &im, 0, 0); }), 16);
  EXPECT_EQ(raisedBy([&] { unary_rsqrt_ComplexReal64(&re, &im, 0, 0); }), 14);
}

} // namespace

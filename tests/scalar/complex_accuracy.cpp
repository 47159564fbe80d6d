// Oracles, clearances and points of the complex operators' accuracy.
#if __has_include(<mpc.h>) && defined(__LP64__)

#include "complex_accuracy.h"

#include "support/raised.h"

#include <cmath>
#include <cstdio>
#include <functional>
#include <limits>
#include <mpc.h>
#include <random>
#include <torvane/scalars.h>

namespace torvane::test {

namespace {

constexpr mpfr_prec_t kPrecision = 200;
constexpr auto kNearest = MPC_RNDNN;

template <class R> struct Value { R re, im; };

class Exact {
public:
  Exact() { mpc_init2(value, kPrecision); }
  template <class R> explicit Exact(Value<R> z) : Exact() {
    mpc_set_d_d(value, double(z.re), double(z.im), kNearest);
  }
  Exact(const Exact &) = delete;
  ~Exact() { mpc_clear(value); }
  operator mpc_ptr() { return value; }
  operator mpc_srcptr() const { return value; }

private:
  mpc_t value;
};

// A result that is no number is infinitely far away.
template <class R> double ulps(Value<R> got, mpc_srcptr exact) {
  if (!std::isfinite(got.re) || !std::isfinite(got.im)) return HUGE_VAL;
  Exact difference(got);
  mpfr_t error, modulus;
  mpfr_inits2(kPrecision, error, modulus, static_cast<mpfr_ptr>(nullptr));
  mpc_sub(difference, difference, exact, kNearest);
  mpc_abs(error, difference, MPFR_RNDN);
  mpc_abs(modulus, exact, MPFR_RNDN);
  mpfr_div(error, error, modulus, MPFR_RNDN);
  const double result = std::ldexp(mpfr_get_d(error, MPFR_RNDU), std::numeric_limits<R>::digits - 1);
  mpfr_clears(error, modulus, static_cast<mpfr_ptr>(nullptr));
  return result;
}

// ---- oracles ------------------------------------------------------------------------------------

using Oracle = void (*)(mpc_ptr, mpc_srcptr);
using MpcFunction = int (*)(mpc_ptr, mpc_srcptr, mpc_rnd_t);

template <MpcFunction f> void direct(mpc_ptr result, mpc_srcptr z) { f(result, z, kNearest); }
template <MpcFunction f> void inverted(mpc_ptr result, mpc_srcptr z) {
  f(result, z, kNearest);
  mpc_ui_div(result, 1, result, kNearest);
}
template <MpcFunction f> void ofInverse(mpc_ptr result, mpc_srcptr z) {
  Exact inverse;
  mpc_ui_div(inverse, 1, z, kNearest);
  f(result, inverse, kNearest);
}
// 2 f(g(z / 2))
template <MpcFunction f, MpcFunction g> void ofHalfAngle(mpc_ptr result, mpc_srcptr z) {
  Exact inner;
  mpc_div_2ui(inner, z, 1, kNearest);
  g(inner, inner, kNearest);
  f(result, inner, kNearest);
  mpc_mul_2ui(result, result, 1, kNearest);
}
template <unsigned base> void logarithm(mpc_ptr result, mpc_srcptr z) {
  mpfr_t ofBase;
  mpfr_init2(ofBase, kPrecision);
  mpfr_set_ui(ofBase, base, MPFR_RNDN);
  mpfr_log(ofBase, ofBase, MPFR_RNDN);
  mpc_log(result, z, kNearest);
  mpc_div_fr(result, result, ofBase, kNearest);
  mpfr_clear(ofBase);
}
// 2 exp(z / 2) sinh(z / 2) does not cancel.
void expm1Exactly(mpc_ptr result, mpc_srcptr z) {
  Exact half, sinh;
  mpc_div_2ui(half, z, 1, kNearest);
  mpc_sinh(sinh, half, kNearest);
  mpc_exp(half, half, kNearest);
  mpc_mul(result, half, sinh, kNearest);
  mpc_mul_2ui(result, result, 1, kNearest);
}
// Nor does 2 atanh(z / (z + 2)), for small z.
void log1pExactly(mpc_ptr result, mpc_srcptr z) {
  Exact sum;
  if (std::abs(mpfr_get_d(mpc_realref(z), MPFR_RNDN)) < 0.1 &&
      std::abs(mpfr_get_d(mpc_imagref(z), MPFR_RNDN)) < 0.1) {
    mpc_add_ui(sum, z, 2, kNearest);
    mpc_div(sum, z, sum, kNearest);
    mpc_atanh(result, sum, kNearest);
    mpc_mul_2ui(result, result, 1, kNearest);
  } else {
    mpc_add_ui(sum, z, 1, kNearest);
    mpc_log(result, sum, kNearest);
  }
}
void sincExactly(mpc_ptr result, mpc_srcptr z) {
  Exact sine;
  mpc_sin(sine, z, kNearest);
  mpc_div(result, sine, z, kNearest);
}
void logisticExactly(mpc_ptr result, mpc_srcptr z) {
  Exact power;
  mpc_neg(power, z, kNearest);
  mpc_exp(power, power, kNearest);
  mpc_add_ui(power, power, 1, kNearest);
  mpc_ui_div(result, 1, power, kNearest);
}
void haversineExactly(mpc_ptr result, mpc_srcptr z) {
  Exact half;
  mpc_div_2ui(half, z, 1, kNearest);
  mpc_sin(half, half, kNearest);
  mpc_sqr(result, half, kNearest);
}
void inversehaversineExactly(mpc_ptr result, mpc_srcptr z) {
  Exact root;
  mpc_sqrt(root, z, kNearest);
  mpc_asin(result, root, kNearest);
  mpc_mul_2ui(result, result, 1, kNearest);
}
// phi^z and cos(pi z) phi^-z
void goldenPowers(mpc_ptr rising, mpc_ptr falling, mpc_srcptr z) {
  mpfr_t constant;
  mpfr_init2(constant, kPrecision);
  Exact cosine;
  mpfr_const_pi(constant, MPFR_RNDN);
  mpc_mul_fr(cosine, z, constant, kNearest);
  mpc_cos(cosine, cosine, kNearest);
  mpfr_sqrt_ui(constant, 5, MPFR_RNDN);
  mpfr_add_ui(constant, constant, 1, MPFR_RNDN);
  mpfr_div_2ui(constant, constant, 1, MPFR_RNDN);
  mpfr_log(constant, constant, MPFR_RNDN);
  mpc_mul_fr(rising, z, constant, kNearest);
  mpc_exp(rising, rising, kNearest);
  mpc_div(falling, cosine, rising, kNearest);
  mpfr_clear(constant);
}
void fibonacciExactly(mpc_ptr result, mpc_srcptr z) {
  Exact rising, falling;
  goldenPowers(rising, falling, z);
  mpc_sub(result, rising, falling, kNearest);
  mpfr_t root;
  mpfr_init2(root, kPrecision);
  mpfr_sqrt_ui(root, 5, MPFR_RNDN);
  mpc_div_fr(result, result, root, kNearest);
  mpfr_clear(root);
}
void lucaslExactly(mpc_ptr result, mpc_srcptr z) {
  Exact rising, falling;
  goldenPowers(rising, falling, z);
  mpc_add(result, rising, falling, kNearest);
}

void squareExactly(mpc_ptr result, mpc_srcptr z) { mpc_sqr(result, z, kNearest); }
void recipExactly(mpc_ptr result, mpc_srcptr z) { mpc_ui_div(result, 1, z, kNearest); }
void minusExactly(mpc_ptr result, mpc_srcptr z) { mpc_neg(result, z, kNearest); }
// Real results have an imaginary part of 0.
void absExactly(mpc_ptr result, mpc_srcptr z) {
  mpc_abs(mpc_realref(result), z, MPFR_RNDN);
  mpfr_set_ui(mpc_imagref(result), 0, MPFR_RNDN);
}
void abssquareExactly(mpc_ptr result, mpc_srcptr z) {
  mpc_norm(mpc_realref(result), z, MPFR_RNDN);
  mpfr_set_ui(mpc_imagref(result), 0, MPFR_RNDN);
}
void argExactly(mpc_ptr result, mpc_srcptr z) {
  mpc_arg(mpc_realref(result), z, MPFR_RNDN);
  mpfr_set_ui(mpc_imagref(result), 0, MPFR_RNDN);
}
void signExactly(mpc_ptr result, mpc_srcptr z) {
  Exact modulus;
  absExactly(modulus, z);
  mpc_div(result, z, modulus, kNearest);
}
void mod1Exactly(mpc_ptr result, mpc_srcptr z) {
  mpfr_floor(mpc_realref(result), mpc_realref(z));
  mpfr_floor(mpc_imagref(result), mpc_imagref(z));
  mpc_sub(result, z, result, kNearest);
}

using PairOracle = void (*)(mpc_ptr, mpc_srcptr, mpc_srcptr);

void logExactly(mpc_ptr result, mpc_srcptr base, mpc_srcptr z) {
  Exact ofBase;
  mpc_log(ofBase, base, kNearest);
  mpc_log(result, z, kNearest);
  mpc_div(result, result, ofBase, kNearest);
}
void atan2Exactly(mpc_ptr result, mpc_srcptr x, mpc_srcptr y) {
  Exact unit, squares, square;
  mpc_sqr(squares, x, kNearest);
  mpc_sqr(square, y, kNearest);
  mpc_add(squares, squares, square, kNearest);
  mpc_sqrt(squares, squares, kNearest);
  mpc_mul_i(unit, x, 1, kNearest);
  mpc_add(unit, unit, y, kNearest);
  mpc_div(unit, unit, squares, kNearest);
  mpc_log(result, unit, kNearest);
  mpc_mul_i(result, result, -1, kNearest);
}
void powExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) { mpc_pow(result, z, w, kNearest); }
void divideExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) { mpc_div(result, z, w, kNearest); }

void plusExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) { mpc_add(result, z, w, kNearest); }
void subtractExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) { mpc_sub(result, z, w, kNearest); }
void timesExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) { mpc_mul(result, z, w, kNearest); }
void modExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) {
  Exact quotient;
  mpc_div(quotient, z, w, kNearest);
  mpfr_rint(mpc_realref(static_cast<mpc_ptr>(quotient)), mpc_realref(static_cast<mpc_ptr>(quotient)),
            MPFR_RNDN);
  mpfr_rint(mpc_imagref(static_cast<mpc_ptr>(quotient)), mpc_imagref(static_cast<mpc_ptr>(quotient)),
            MPFR_RNDN);
  mpc_mul(quotient, quotient, w, kNearest);
  mpc_sub(result, z, quotient, kNearest);
}
void abserrExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) {
  mpc_sub(result, z, w, kNearest);
  absExactly(result, result);
}
void relerrExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) {
  mpc_sub(result, z, w, kNearest);
  mpc_div(result, result, w, kNearest);
  absExactly(result, result);
}
void maxabsExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) {
  absExactly(result, mpc_cmp_abs(z, w) < 0 ? w : z);
}

// ---- clearances ---------------------------------------------------------------------------------

using Z = Point;
using Clearance = double (*)(Z);

double distanceFromUnits(Z z) {
  return std::min({std::abs(z - 1.), std::abs(z + 1.), std::abs(z - Z(0, 1)), std::abs(z + Z(0, 1))});
}

double everywhere(Z) { return 1; }
// Of a negative integer mod1 gives 1, not 0: not measured there.
double offNegativeIntegers(Z z) {
  for (const double part : {z.real(), z.imag()})
    if (part < 0 && part == std::floor(part)) return 0;
  return 1;
}
// log |z| keeps its absolute accuracy only, and vanishes at 1.
double fromOne(Z z) { return std::min(1., std::abs(z - 1.)); }
// The square is rounded before its distance from -1 is taken: half the digits are lost at the branch point.
double rootFromUnits(Z z) { return std::sqrt(std::min(1., distanceFromUnits(z))); }
// The reciprocal is rounded before its distance from the branch point is taken, or the result vanishes.
double fromUnits(Z z) { return std::min(1., distanceFromUnits(z)); }
double fromDenominatorOfLogistic(Z z) { return std::min(1., std::abs(1. + std::exp(-z))); }
// tanh(z / 2) is rounded before its distance from +-i is taken; tan(z / 2) from +-1.
double fromZeroOfCosh(Z z) { return std::min(1., std::abs(std::cosh(z))); }
double fromZeroOfCos(Z z) { return std::min(1., std::abs(std::cos(z))); }
// pi z and z log phi are rounded before the cosine and the power are taken; and the two terms cancel.
double sharpness(Z z, double sign) {
  const double phi = std::sqrt(1.25) + 0.5;
  const Z rising = std::pow(phi, z), falling = std::pow(phi, -z), cosine = std::cos(M_PI * z);
  const double terms = std::abs(rising) + std::abs(falling) * std::max(1., std::abs(cosine));
  return std::abs(rising + sign * cosine * falling) / terms / (1 + std::abs(z));
}
double ofFibonacci(Z z) { return sharpness(z, -1); }
double ofLucas(Z z) { return sharpness(z, 1); }

using PairClearance = double (*)(Z, Z);

double alwaysClear(Z, Z) { return 1; }
double bothFromOne(Z base, Z z) { return std::min(fromOne(base), fromOne(z)); }
// The sum of the squares may cancel, and the logarithm of a unit near 1 keeps its absolute accuracy.
double ofAtan2(Z x, Z y) {
  const Z sum = x * x + y * y, unit = (y + Z(0, 1) * x) / std::sqrt(sum);
  return std::abs(sum) / (std::norm(x) + std::norm(y)) * std::min(1., std::abs(std::log(unit)));
}
// The exponent w log z is rounded before the exponential is taken.
double ofPow(Z z, Z w) { return 1 / (1 + std::abs(w * std::log(z))); }

// The multiple of the divisor is rounded before it is taken away. Near a tie, and beyond a quotient of a
// million, the exact quotient may go to another integer: not measured.
double ofMod(Z x, Z y) {
  const Z q = x / y, n(std::rint(q.real()), std::rint(q.imag()));
  for (const double part : {q.real(), q.imag()})
    if (std::abs(part) > 1e6 || std::abs(std::abs(part - std::rint(part)) - 0.5) < 1e-3) return 0;
  return std::abs(x - y * n) / (std::abs(x) + std::abs(y * n));
}

// ---- the operators ------------------------------------------------------------------------------

enum class Growth { slow, exponential }; // exponential: not at huge arguments

struct Row {
  const char *name;
  std::function<Value<double>(Value<double>)> wide;
  std::function<Value<float>(Value<float>)> narrow;
  Oracle oracle;
  Growth growth;
  Clearance clearance;
  const char *clearanceText;
};

template <class R, class... A> Value<R> call(R *(*entry)(R *, R *, A...), A... parts) {
  Value<R> result = {};
  entry(&result.re, &result.im, parts...);
  return result;
}

#define ROW(name, oracle, growth, clearance, text)                                                           \
  {                                                                                                          \
#name,                                                                                                    \
   [](Value<double> z) { return call(unary_##name##_ComplexReal64, z.re, z.im); },                           \
   [](Value<float> z) { return call(unary_##name##_ComplexReal32, z.re, z.im); },                            \
   oracle, Growth::growth, clearance, text  \
  }
#define REAL_ROW(name)                                                                                       \
  {                                                                                                          \
#name,                                                                                                    \
   [](Value<double> z) { return Value<double>{unary_##name##_ComplexReal64(z.re, z.im), 0}; },               \
   [](Value<float> z) { return Value<float>{unary_##name##_ComplexReal32(z.re, z.im), 0}; },                 \
   name##Exactly, Growth::slow, everywhere, "1"  \
  }
#define CLEAR(name) ROW(name, name##Exactly, slow, everywhere, "1")
#define DIRECT(name, growth, clearance, text) ROW(name, direct<mpc_##name>, growth, clearance, text)
#define INVERTED(name, function) ROW(name, inverted<mpc_##function>, exponential, everywhere, "1")
#define OF_INVERSE(name, function, clearance, text)                                                          \
  ROW(name, ofInverse<mpc_##function>, slow, clearance, text)
#define kFromUnits "d"
#define kRootFromUnits "sqrt d"
#define kFromOne "\\|z - 1\\|"

const Row kRows[] = {
    CLEAR(minus),
    CLEAR(square),
    CLEAR(recip),
    REAL_ROW(abs),
    REAL_ROW(abssquare),
    REAL_ROW(arg),
    CLEAR(sign),
    ROW(mod1, mod1Exactly, slow, offNegativeIntegers, "1"),
    DIRECT(sqrt, slow, everywhere, "1"),
    ROW(rsqrt, inverted<mpc_sqrt>, slow, everywhere, "1"),
    DIRECT(exp, exponential, everywhere, "1"),
    ROW(expm1, expm1Exactly, exponential, everywhere, "1"),
    DIRECT(log, slow, fromOne, kFromOne),
    ROW(log1p, log1pExactly, slow, everywhere, "1"),
    ROW(log2, logarithm<2>, slow, fromOne, kFromOne),
    ROW(log10, logarithm<10>, slow, fromOne, kFromOne),
    DIRECT(sin, exponential, everywhere, "1"),
    DIRECT(cos, exponential, everywhere, "1"),
    DIRECT(tan, exponential, everywhere, "1"),
    INVERTED(sec, cos),
    INVERTED(csc, sin),
    INVERTED(cot, tan),
    DIRECT(sinh, exponential, everywhere, "1"),
    DIRECT(cosh, exponential, everywhere, "1"),
    DIRECT(tanh, exponential, everywhere, "1"),
    INVERTED(sech, cosh),
    INVERTED(csch, sinh),
    INVERTED(coth, tanh),
    DIRECT(asin, slow, rootFromUnits, kRootFromUnits),
    DIRECT(acos, slow, fromUnits, kFromUnits),
    DIRECT(atan, slow, everywhere, "1"),
    DIRECT(asinh, slow, rootFromUnits, kRootFromUnits),
    DIRECT(acosh, slow, fromUnits, kFromUnits),
    DIRECT(atanh, slow, everywhere, "1"),
    OF_INVERSE(acsc, asin, rootFromUnits, kRootFromUnits),
    OF_INVERSE(asec, acos, fromUnits, kFromUnits),
    OF_INVERSE(acot, atan, fromUnits, kFromUnits),
    OF_INVERSE(acsch, asinh, rootFromUnits, kRootFromUnits),
    OF_INVERSE(asech, acosh, fromUnits, kFromUnits),
    OF_INVERSE(acoth, atanh, fromUnits, kFromUnits),
    ROW(sinc, sincExactly, exponential, everywhere, "1"),
    ROW(logistic, logisticExactly, exponential, fromDenominatorOfLogistic, "\\|1 + exp(-z)\\|"),
    ROW(gudermannian, (ofHalfAngle<mpc_atan, mpc_tanh>), exponential, fromZeroOfCosh, "\\|cosh z\\|"),
    ROW(inversegudermannian, (ofHalfAngle<mpc_atanh, mpc_tan>), exponential, fromZeroOfCos, "\\|cos z\\|"),
    ROW(haversine, haversineExactly, exponential, everywhere, "1"),
    ROW(inversehaversine, inversehaversineExactly, slow, rootFromUnits, kRootFromUnits),
    ROW(fibonacci, fibonacciExactly, exponential, ofFibonacci, "c / (1 + \\|z\\|)"),
    ROW(lucasl, lucaslExactly, exponential, ofLucas, "c / (1 + \\|z\\|)"),
};

struct PairRow {
  const char *name;
  std::function<Value<double>(Value<double>, Value<double>)> wide;
  std::function<Value<float>(Value<float>, Value<float>)> narrow;
  PairOracle oracle;
  PairClearance clearance;
  const char *clearanceText;
};
#define PAIR_ROW(name, clearance, text)                                                                      \
  {                                                                                                          \
#name,                                                                                                    \
   [](Value<double> x, Value<double> y) {                                                                    \
     return call(binary_##name##_ComplexReal64_ComplexReal64, x.re, x.im, y.re, y.im);                       \
   },                                                                                                        \
   [](Value<float> x, Value<float> y) {                                                                      \
     return call(binary_##name##_ComplexReal32_ComplexReal32, x.re, x.im, y.re, y.im);                       \
   },                                                                                                        \
   name##Exactly, clearance, text  \
  }

const PairRow kPairRows[] = {
    PAIR_ROW(plus, alwaysClear, "1"),
    PAIR_ROW(subtract, alwaysClear, "1"),
    PAIR_ROW(times, alwaysClear, "1"),
    PAIR_ROW(divide, alwaysClear, "1"),
    PAIR_ROW(abserr, alwaysClear, "1"),
    PAIR_ROW(relerr, alwaysClear, "1"),
    PAIR_ROW(maxabs, alwaysClear, "1"),
    PAIR_ROW(mod, ofMod, "\\|r\\| / (\\|x\\| + \\|n y\\|)"),
    PAIR_ROW(log, bothFromOne, "the smaller \\|z - 1\\|"),
    PAIR_ROW(atan2, ofAtan2, "s \\|log u\\|"),
    PAIR_ROW(pow, ofPow, "1 / (1 + \\|y log x\\|)"),
};

// ---- the points ---------------------------------------------------------------------------------

enum Region { tiny, small, moderate, large, huge, circles, axes, kRegionCount };

// Far enough from the ends of the format that squares stay normal.
template <class R> constexpr double kTinyExponent = sizeof(R) == 8 ? -300 : -40;
template <class R> constexpr double kHugeExponent = sizeof(R) == 8 ? 500 : 60;
template <class R> constexpr double kCircleExponent = sizeof(R) == 8 ? -24 : -11;

class Points {
public:
  explicit Points(unsigned seed) : random(seed) {}

  template <class R> Value<R> in(Region region) {
    switch (region) {
    case tiny:
      return magnitudes<R>(kTinyExponent<R>, -12);
    case small:
      return magnitudes<R>(-12, -1);
    case moderate:
      return {R(uniform(-3, 3)), R(uniform(-3, 3))};
    case large:
      return magnitudes<R>(1, 4);
    case huge:
      return magnitudes<R>(4, kHugeExponent<R>);
    case circles:
      return onCircle<R>();
    default:
      return besideAxis<R>();
    }
  }

private:
  std::mt19937_64 random;

  double uniform(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  }
  template <class R> R signedPower(double low, double high) {
    const double magnitude = std::exp2(uniform(low, high));
    return R(random() & 1 ? magnitude : -magnitude);
  }
  template <class R> Value<R> magnitudes(double low, double high) {
    const R re = signedPower<R>(low, high);
    return {re, signedPower<R>(low, high)};
  }
  template <class R> Value<R> onCircle() {
    static constexpr double kCentres[][2] = {{1, 0}, {-1, 0}, {0, 1}, {0, -1}, {0, 0}};
    const auto &centre = kCentres[random() % std::size(kCentres)];
    const double radius = std::exp2(uniform(kCircleExponent<R>, -1)), angle = uniform(0, 2 * M_PI);
    return {R(centre[0] + radius * std::cos(angle)), R(centre[1] + radius * std::sin(angle))};
  }
  template <class R> Value<R> besideAxis() {
    const R along = R(uniform(-4, 4)), across = signedPower<R>(kTinyExponent<R>, -3);
    return random() & 1 ? Value<R>{along, across} : Value<R>{across, along};
  }
};

// ---- measuring ----------------------------------------------------------------------------------

template <class R, class F> Value<R> valueOf(const F &row, Value<R> x) {
  if constexpr (sizeof(R) == 8)
    return row.wide(x);
  else
    return row.narrow(x);
}
template <class R, class F> Value<R> valueOf(const F &row, Value<R> x, Value<R> y) {
  if constexpr (sizeof(R) == 8)
    return row.wide(x, y);
  else
    return row.narrow(x, y);
}
template <class R> Z pointOf(Value<R> z) { return {double(z.re), double(z.im)}; }

// The error of what `evaluate` yields; a raised code counts as no number.
template <class R, class Evaluate> double errorOf(Evaluate evaluate, mpc_srcptr exact) {
  Value<R> got = {};
  const mint code = raisedBy([&] { got = evaluate(); });
  return code != 0 ? HUGE_VAL : ulps(got, exact);
}
void take(WorstPoint &worst, double error, double clearance, Z x, Z y) {
  if (error * clearance > worst.cleared) worst = {error, error * clearance, x, y};
}

template <class R> void tryAt(WorstPoint &worst, const Row &row, Value<R> z) {
  const double clearance = row.clearance(pointOf(z));
  if (clearance == 0) return;
  Exact exact;
  row.oracle(exact, Exact(z));
  take(worst, errorOf<R>([&] { return valueOf(row, z); }, exact), clearance, pointOf(z), {});
}
template <class R> void tryAt(WorstPoint &worst, const PairRow &row, Value<R> x, Value<R> y) {
  const double clearance = row.clearance(pointOf(x), pointOf(y));
  if (clearance == 0) return;
  Exact exact;
  row.oracle(exact, Exact(x), Exact(y));
  take(worst, errorOf<R>([&] { return valueOf(row, x, y); }, exact), clearance, pointOf(x), pointOf(y));
}

template <class R> void tryRegions(WorstPoint &worst, int64_t &tried, const Row &row, int count) {
  for (int region = 0; region < kRegionCount; ++region) {
    if (region == huge && row.growth == Growth::exponential) continue;
    Points points(unsigned(40 + region));
    for (int k = 0; k < count; ++k, ++tried) tryAt(worst, row, points.in<R>(Region(region)));
  }
}
template <class R> void tryRegions(WorstPoint &worst, int64_t &tried, const PairRow &row, int count) {
  for (const Region region : {small, moderate, large, circles, axes}) {
    Points points(unsigned(60 + region));
    for (int k = 0; k < count; ++k) {
      const Value<R> x = points.in<R>(region), y = points.in<R>(k % 2 ? region : moderate);
      if (std::abs(pointOf(y) * std::log(pointOf(x))) > 40) continue; // powers beyond binary32
      tryAt(worst, row, x, y);
      ++tried;
    }
  }
}

template <class AnyRow> ComplexAccuracy measure(const AnyRow &row, bool isPair, int points) {
  ComplexAccuracy accuracy = {row.name, isPair, complexBound(row.name, isPair), row.clearanceText, 0, {}, {}};
  tryRegions<double>(accuracy.wide, accuracy.points, row, points);
  tryRegions<float>(accuracy.narrow, accuracy.points, row, points);
  return accuracy;
}

template <class TableRow, size_t n> double boundIn(const TableRow (&rows)[n], const std::string &typed) {
  for (const TableRow &row : rows)
    if (row.typed == typed) return row.accuracy.complex;
  return 0;
}

constexpr char kSectionHead[] = R"(
## Complex operators

Errors are distances: from the result to the exact value, in units of the last place of the exact value's modulus,
against MPC at 200 bits, for the typed entries of both widths. ComplexReal32 keeps its intermediate results in binary32,
so its errors are those of ComplexReal64 in larger units. Tried are %d points in each of seven regions: parts from 2^-300
(2^-40 in binary32) to 2^-12, to 1/2, up to 3, up to 16, up to 2^500 (2^60); circles around 1, -1, i, -i and 0 with radii
from 2^-24 (2^-11) to 1/2; and points that far beside the axes. What grows exponentially is not tried at huge
arguments; operators of two operands take both from the middle regions, circles and axes.

The bound of the row holds for the error times the clearance, which is at most 1. Where it is 1 throughout, the error
itself is bounded. Elsewhere the formula loses accuracy by its nature, is kept for the sake of the values it gives, and
the error grows as the point comes closer:

- log, log2, log10: log |z| is computed from the rounded modulus, so near |z| = 1 the absolute error stays small and the
  relative one does not. A logarithm to a base has that twice.
- asin, asinh, acsc, acsch, inversehaversine: z^2 is rounded before its distance from the branch point is taken; at the
  branch point half the digits are lost. d is the distance from the nearest of 1, -1, i and -i.
- acos, acosh, asec, asech: the same, and the result itself vanishes at 1. acot, acoth: the reciprocal is rounded before its
  distance from the branch point is taken.
- logistic: the denominator cancels. gudermannian, inversegudermannian: tanh(z / 2) is rounded before its distance from i or
  -i is taken, tan(z / 2) before that from 1 or -1.
- fibonacci, lucasl: pi z and z log phi are rounded before the cosine and the power are taken, and the two terms may cancel
  to the part c of their size.
- mod1: not measured at negative integers, of which it gives 1.
- mod: the multiple of the divisor is rounded before it is taken away; r is the result, n the multiple. Not tried within
  0.001 of a tie and beyond a quotient of a million.
- atan2: the sum of the squares cancels to the part s of its size, and log u keeps its absolute accuracy near u = 1.
- pow: y log x is rounded before the exponential is taken. To an integer exponent n the error is at most 1 + |n| ulp.

At the ends of the format the formulas give out before the functions do, and that too is kept: a real exponential that
overflows makes the parts of exp, pow, sinh, cosh, sin and cos infinite though its factor be small; expm1, logistic, fibonacci
and lucasl, which go on computing with such infinities, have NaNs there; sign multiplies by a reciprocal that overflows for
parts below 2^-1024; sqrt of a modulus at the very top of the range is infinite.

| Operator | Bound | Clearance | Worst ComplexReal64 | its ulp | at | Worst ComplexReal32 | its ulp | at |
|---|---|---|---|---|---|---|---|---|
)";

std::string format(const char *pattern, double value) {
  char text[512];
  std::snprintf(text, sizeof text, pattern, value);
  return text;
}
// The digits that tell a point of either width from its neighbours.
std::string pointText(Z z, bool isWide) {
  return format(isWide ? "%.17g" : "%.9g", z.real()) + format(isWide ? "%+.17gi" : "%+.9gi", z.imag());
}
std::string cells(const WorstPoint &worst, bool isPair, bool isWide) {
  return " | " + format("%.2f", worst.cleared) + " | " + format("%.3g", worst.ulps) + " | " +
         pointText(worst.x, isWide) + (isPair ? ", " + pointText(worst.y, isWide) : "");
}

} // namespace

double complexBound(const std::string &typed, bool isPair) {
  return isPair ? boundIn(table::kBinary, typed) : boundIn(table::kUnary, typed);
}

std::vector<ComplexAccuracy> measureComplexOperators(int points) {
  std::vector<ComplexAccuracy> all;
  for (const Row &row : kRows) all.push_back(measure(row, false, points));
  for (const PairRow &row : kPairRows) all.push_back(measure(row, true, points));
  return all;
}

std::string complexAccuracySection(const std::vector<ComplexAccuracy> &measured, int points) {
  char head[sizeof kSectionHead + 32];
  std::snprintf(head, sizeof head, kSectionHead, points);
  std::string section = head;
  for (const ComplexAccuracy &row : measured)
    section += "| " + std::string(row.isPair ? "binary " : "") + row.name + " | " + format("%g", row.bound) +
               " | " + row.clearance + cells(row.wide, row.isPair, true) +
               cells(row.narrow, row.isPair, false) + " |\n";
  return section;
}

} // namespace torvane::test

#endif

// Accuracy of the complex functions against MPC at 200 bits: tiny, small, moderate, large and huge
// arguments, circles around the points where functions branch or vanish, and the two sides of the axes.
//
// The error is the distance to the exact value in units of the last place of its modulus. Some formulas
// lose accuracy by their nature near certain points; they are kept as they are, and the bound there grows as
// the row's clearance shrinks: error <= bound / clearance.
#if __has_include(<mpc.h>) && defined(__LP64__)

#include "scalar/complexes/rest.h"

#include <cmath>
#include <complex>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <mpc.h>
#include <random>

using namespace torvane;

namespace {

constexpr mpfr_prec_t kPrecision = 200;
constexpr auto kNearest = MPC_RNDNN;

class Exact {
public:
  Exact() { mpc_init2(value, kPrecision); }
  template <class R> explicit Exact(Complex<R> z) : Exact() {
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
template <class R> double ulps(Complex<R> got, mpc_srcptr exact) {
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

// ---- clearances ---------------------------------------------------------------------------------

using Z = std::complex<double>;
using Clearance = double (*)(Z);

double distanceFromUnits(Z z) {
  return std::min({std::abs(z - 1.), std::abs(z + 1.), std::abs(z - Z(0, 1)), std::abs(z + Z(0, 1))});
}

double everywhere(Z) { return 1; }
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

// ---- the table ----------------------------------------------------------------------------------

template <class R> using Function = Complex<R> (*)(error &, Complex<R>);

enum class Growth { slow, exponential }; // exponential: not at huge arguments

struct Row {
  const char *name;
  Function<double> wide;
  Function<float> narrow;
  Oracle oracle;
  Growth growth;
  Clearance clearance;
  double bound; // ulp, of both widths
};

#define ROW(name, oracle, growth, clearance, bound)                                                          \
  { #name, complexes::name < double>, complexes::name < float>, oracle, Growth::growth, clearance, bound }
#define DIRECT(name, growth, clearance, bound) ROW(name, direct<mpc_##name>, growth, clearance, bound)
#define INVERTED(name, function, bound) ROW(name, inverted<mpc_##function>, exponential, everywhere, bound)
#define OF_INVERSE(name, function, clearance, bound)                                                         \
  ROW(name, ofInverse<mpc_##function>, slow, clearance, bound)

const Row kRows[] = {
    DIRECT(sqrt, slow, everywhere, 1.5),
    ROW(rsqrt, inverted<mpc_sqrt>, slow, everywhere, 2.5),
    DIRECT(exp, exponential, everywhere, 1.5),
    ROW(expm1, expm1Exactly, exponential, everywhere, 3),
    DIRECT(log, slow, fromOne, 1.5),
    ROW(log1p, log1pExactly, slow, everywhere, 3),
    ROW(log2, logarithm<2>, slow, fromOne, 2),
    ROW(log10, logarithm<10>, slow, fromOne, 2),
    DIRECT(sin, exponential, everywhere, 2),
    DIRECT(cos, exponential, everywhere, 2),
    DIRECT(tan, exponential, everywhere, 3),
    INVERTED(sec, cos, 2.5),
    INVERTED(csc, sin, 2.5),
    INVERTED(cot, tan, 3),
    DIRECT(sinh, exponential, everywhere, 2),
    DIRECT(cosh, exponential, everywhere, 2),
    DIRECT(tanh, exponential, everywhere, 3),
    INVERTED(sech, cosh, 2.5),
    INVERTED(csch, sinh, 2.5),
    INVERTED(coth, tanh, 3),
    DIRECT(asin, slow, rootFromUnits, 2),
    DIRECT(acos, slow, fromUnits, 2),
    DIRECT(atan, slow, everywhere, 5),
    DIRECT(asinh, slow, rootFromUnits, 2),
    DIRECT(acosh, slow, fromUnits, 2),
    DIRECT(atanh, slow, everywhere, 5),
    OF_INVERSE(acsc, asin, rootFromUnits, 4),
    OF_INVERSE(asec, acos, fromUnits, 3),
    OF_INVERSE(acot, atan, fromUnits, 5),
    OF_INVERSE(acsch, asinh, rootFromUnits, 4),
    OF_INVERSE(asech, acosh, fromUnits, 3),
    OF_INVERSE(acoth, atanh, fromUnits, 5),
    ROW(sinc, sincExactly, exponential, everywhere, 3),
    ROW(logistic, logisticExactly, exponential, fromDenominatorOfLogistic, 4),
    ROW(gudermannian, (ofHalfAngle<mpc_atan, mpc_tanh>), exponential, fromZeroOfCosh, 6),
    ROW(inversegudermannian, (ofHalfAngle<mpc_atanh, mpc_tan>), exponential, fromZeroOfCos, 6),
    ROW(haversine, haversineExactly, exponential, everywhere, 4),
    ROW(inversehaversine, inversehaversineExactly, slow, rootFromUnits, 3),
    ROW(fibonacci, fibonacciExactly, exponential, ofFibonacci, 4),
    ROW(lucasl, lucaslExactly, exponential, ofLucas, 4),
};

template <class R> Complex<R> value(const Row &row, error &code, Complex<R> z) {
  if constexpr (sizeof(R) == 8)
    return row.wide(code, z);
  else
    return row.narrow(code, z);
}

// ---- the points ---------------------------------------------------------------------------------

enum Region { tiny, small, moderate, large, huge, circles, axes, kRegionCount };
const char *const kRegionNames[] = {"tiny", "small", "moderate", "large", "huge", "circles", "axes"};

// Far enough from the ends of the format that squares stay normal.
template <class R> constexpr double kTinyExponent = sizeof(R) == 8 ? -300 : -40;
template <class R> constexpr double kHugeExponent = sizeof(R) == 8 ? 500 : 60;
template <class R> constexpr double kCircleExponent = sizeof(R) == 8 ? -24 : -11;

class Points {
public:
  explicit Points(unsigned seed) : random(seed) {}

  template <class R> Complex<R> in(Region region) {
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
  template <class R> Complex<R> magnitudes(double low, double high) {
    const R re = signedPower<R>(low, high);
    return {re, signedPower<R>(low, high)};
  }
  template <class R> Complex<R> onCircle() {
    static constexpr double kCentres[][2] = {{1, 0}, {-1, 0}, {0, 1}, {0, -1}, {0, 0}};
    const auto &centre = kCentres[random() % std::size(kCentres)];
    const double radius = std::exp2(uniform(kCircleExponent<R>, -1)), angle = uniform(0, 2 * M_PI);
    return {R(centre[0] + radius * std::cos(angle)), R(centre[1] + radius * std::sin(angle))};
  }
  template <class R> Complex<R> besideAxis() {
    const R along = R(uniform(-4, 4)), across = signedPower<R>(kTinyExponent<R>, -3);
    return random() & 1 ? Complex<R>{along, across} : Complex<R>{across, along};
  }
};

struct Worst {
  double ratio = 0, error = 0; // of the bound at the point
  Z at;
};

template <class R> Worst worstIn(const Row &row, Region region, int count, unsigned seed) {
  Points points(seed);
  Worst worst;
  for (int k = 0; k < count; ++k) {
    const Complex<R> z = points.in<R>(region);
    const Z at(double(z.re), double(z.im));
    Exact exact;
    row.oracle(exact, Exact(z));
    error code = error::none;
    const double error = ulps(value<R>(row, code, z), exact), ratio = error * row.clearance(at) / row.bound;
    EXPECT_EQ(code, error::none) << row.name << at;
    if (ratio > worst.ratio) worst = {ratio, error, at};
  }
  return worst;
}

template <class R> class ComplexAccuracy : public testing::Test {};
using BothWidths = testing::Types<float, double>;
TYPED_TEST_SUITE(ComplexAccuracy, BothWidths);

#ifndef POINTS_A_REGION
#define POINTS_A_REGION 200
#endif

TYPED_TEST(ComplexAccuracy, UnaryFunctionsStayWithinTheirBounds) {
  for (const Row &row : kRows) {
    std::printf("%-20s bound %.1f:", row.name, row.bound);
    for (int region = 0; region < kRegionCount; ++region) {
      if (region == huge && row.growth == Growth::exponential) continue;
      const Worst worst = worstIn<TypeParam>(row, Region(region), POINTS_A_REGION, unsigned(40 + region));
      std::printf(" %s %.2f", kRegionNames[region], worst.ratio * row.bound);
      EXPECT_LE(worst.ratio, 1) << row.name << " " << kRegionNames[region] << ": " << worst.error
                                << " ulp at " << worst.at.real() << " " << worst.at.imag();
    }
    std::printf("\n");
  }
}

// ---- two operands -------------------------------------------------------------------------------

template <class R> using BinaryFunction = Complex<R> (*)(error &, Complex<R>, Complex<R>);
using BinaryOracle = void (*)(mpc_ptr, mpc_srcptr, mpc_srcptr);
using BinaryClearance = double (*)(Z, Z);

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

double alwaysClear(Z, Z) { return 1; }
double bothFromOne(Z base, Z z) { return std::min(fromOne(base), fromOne(z)); }
// The sum of the squares may cancel, and the logarithm of a unit near 1 keeps its absolute accuracy.
double ofAtan2(Z x, Z y) {
  const Z sum = x * x + y * y, unit = (y + Z(0, 1) * x) / std::sqrt(sum);
  return std::abs(sum) / (std::norm(x) + std::norm(y)) * std::min(1., std::abs(std::log(unit)));
}
// The exponent w log z is rounded before the exponential is taken.
double ofPow(Z z, Z w) { return 1 / (1 + std::abs(w * std::log(z))); }

struct BinaryRow {
  const char *name;
  BinaryFunction<double> wide;
  BinaryFunction<float> narrow;
  BinaryOracle oracle;
  BinaryClearance clearance;
  double bound;
};
#define BINARY_ROW(name, clearance, bound)                                                                   \
  { #name, complexes::name < double>, complexes::name < float>, name##Exactly, clearance, bound }

const BinaryRow kBinaryRows[] = {
    BINARY_ROW(divide, alwaysClear, 3),
    BINARY_ROW(log, bothFromOne, 4),
    BINARY_ROW(atan2, ofAtan2, 4),
    BINARY_ROW(pow, ofPow, 3),
};

template <class R> Complex<R> value(const BinaryRow &row, error &code, Complex<R> x, Complex<R> y) {
  if constexpr (sizeof(R) == 8)
    return row.wide(code, x, y);
  else
    return row.narrow(code, x, y);
}

TYPED_TEST(ComplexAccuracy, BinaryFunctionsStayWithinTheirBounds) {
  using R = TypeParam;
  for (const BinaryRow &row : kBinaryRows) {
    std::printf("%-20s bound %.1f:", row.name, row.bound);
    for (const Region region : {small, moderate, large, circles, axes}) {
      Points points(unsigned(60 + region));
      Worst worst;
      for (int k = 0; k < POINTS_A_REGION; ++k) {
        const Complex<R> x = points.in<R>(region), y = points.in<R>(k % 2 ? region : moderate);
        const Z a(double(x.re), double(x.im)), b(double(y.re), double(y.im));
        if (std::abs(b * std::log(a)) > 40) continue; // powers beyond binary32
        Exact exact;
        row.oracle(exact, Exact(x), Exact(y));
        error code = error::none;
        const Complex<R> got = value<R>(row, code, x, y);
        const double error = ulps(got, exact), ratio = error * row.clearance(a, b) / row.bound;
        ASSERT_EQ(code, error::none) << row.name << a << b;
        if (ratio > worst.ratio) worst = {ratio, error, a};
      }
      std::printf(" %s %.2f", kRegionNames[region], worst.ratio * row.bound);
      EXPECT_LE(worst.ratio, 1) << row.name << " " << kRegionNames[region] << ": " << worst.error
                                << " ulp at " << worst.at.real() << " " << worst.at.imag();
    }
    std::printf("\n");
  }
}

// Each of the n - 1 products that a power stands for adds its rounding.
TYPED_TEST(ComplexAccuracy, IntegerPowersLoseAtMostOneUlpAFactor) {
  using R = TypeParam;
  Points points(70);
  double worst = 0;
  for (int k = 0; k < 20 * POINTS_A_REGION; ++k) {
    const int n = k % 201 - 100;
    Complex<R> z = points.in<R>(circles); // turned away from 0, so that no power leaves binary32
    if (std::hypot(double(z.re), double(z.im)) < 0.5) z.re += 1;
    if (std::abs(n * std::log(std::hypot(double(z.re), double(z.im)))) > 80) continue;
    Exact exact;
    mpc_pow_si(exact, Exact(z), n, kNearest);
    error code = error::none;
    worst = std::max(worst, ulps(complexes::pow(code, z, n), exact) / (1 + std::abs(n)));
    ASSERT_EQ(code, error::none);
  }
  std::printf("worst %.3f ulp a factor\n", worst);
  EXPECT_LE(worst, 1);
}

} // namespace

#endif

// The complex operators with their oracles and clearances, measured; and the page about it.
#if __has_include(<mpc.h>) && defined(__LP64__)

#include "complex_accuracy.h"

#include "complex_clearances.h"
#include "complex_points.h"
#include "support/raised.h"

#include <cmath>
#include <cstdio>
#include <functional>
#include <torvane/scalars.h>

namespace torvane::test {

using namespace measured;

namespace {

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
   #name,                                                                                                 \
   [](Value<double> z) { return call(unary_##name##_ComplexReal64, z.re, z.im); },                           \
   [](Value<float> z) { return call(unary_##name##_ComplexReal32, z.re, z.im); },                            \
   oracle, Growth::growth, clearance, text  \
  }
#define REAL_ROW(name)                                                                                       \
  {                                                                                                          \
   #name,                                                                                                 \
   [](Value<double> z) { return Value<double>{unary_##name##_ComplexReal64(z.re, z.im), 0}; },               \
   [](Value<float> z) { return Value<float>{unary_##name##_ComplexReal32(z.re, z.im), 0}; },                 \
   name##Exactly, Growth::slow, everywhere, "1"  \
  }
#define CLEAR(name) ROW(name, name##Exactly, slow, everywhere, "1")
#define DIRECT(name, growth, clearance, text) ROW(name, direct<mpc_##name>, growth, clearance, text)
#define INVERTED(name, function) ROW(name, inverted<mpc_##function>, exponential, everywhere, "1")
#define OF_INVERSE(name, function, clearance, text)                                                          \
  ROW(name, ofInverse<mpc_##function>, slow, clearance, text)

constexpr const char *kFromUnits = "d", *kRootFromUnits = "sqrt d", *kFromOne = "\\|z - 1\\|";

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
   #name,                                                                                                 \
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
template <class R> Point pointOf(Value<R> z) { return {double(z.re), double(z.im)}; }

// The error of what `evaluate` yields; a raised code counts as no number.
template <class R, class Evaluate> double errorOf(Evaluate evaluate, mpc_srcptr exact) {
  Value<R> got = {};
  const mint code = raisedBy([&] { got = evaluate(); });
  return code != 0 ? HUGE_VAL : ulps(got, exact);
}
void take(WorstPoint &worst, double error, double clearance, Point x, Point y) {
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
std::string pointText(Point z, bool isWide) {
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

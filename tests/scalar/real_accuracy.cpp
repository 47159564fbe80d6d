// The oracles of the functions of reals, the points they are tried at, and the page of their errors. Nothing
// where MPFR is not.
#if __has_include(<mpfr.h>) && defined(__LP64__)

#include "real_accuracy.h"

#include "support/raised.h"

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <mpfr.h>
#include <random>

namespace torvane::test {

namespace {

constexpr mpfr_prec_t kPrecision = 320;

// An MPFR number of its own.
struct Number {
  mpfr_t value;
  Number() { mpfr_init2(value, kPrecision); }
  explicit Number(double x) : Number() { mpfr_set_d(value, x, MPFR_RNDN); }
  ~Number() { mpfr_clear(value); }
  Number(const Number &) = delete;
  Number &operator=(const Number &) = delete;
  operator mpfr_ptr() { return value; }
};

using Exact = void (*)(mpfr_ptr result, mpfr_ptr x);
using ExactPair = void (*)(mpfr_ptr result, mpfr_ptr x, mpfr_ptr y);
template <int (*function)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t)> void plain(mpfr_ptr result, mpfr_ptr x) {
  function(result, x, MPFR_RNDN);
}
template <int (*function)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t)> void ofReciprocal(mpfr_ptr result, mpfr_ptr x) {
  mpfr_ui_div(result, 1, x, MPFR_RNDN);
  function(result, result, MPFR_RNDN);
}

void acot(mpfr_ptr result, mpfr_ptr x) {
  if (mpfr_zero_p(x)) {
    mpfr_const_pi(result, MPFR_RNDN);
    mpfr_div_2ui(result, result, 1, MPFR_RNDN);
  } else {
    ofReciprocal<mpfr_atan>(result, x);
  }
}
void sinc(mpfr_ptr result, mpfr_ptr x) {
  if (mpfr_zero_p(x)) {
    mpfr_set_ui(result, 1, MPFR_RNDN);
  } else {
    mpfr_sin(result, x, MPFR_RNDN);
    mpfr_div(result, result, x, MPFR_RNDN);
  }
}
void logistic(mpfr_ptr result, mpfr_ptr x) {
  mpfr_neg(result, x, MPFR_RNDN);
  mpfr_exp(result, result, MPFR_RNDN);
  mpfr_add_ui(result, result, 1, MPFR_RNDN);
  mpfr_ui_div(result, 1, result, MPFR_RNDN);
}
void gudermannian(mpfr_ptr result, mpfr_ptr x) {
  mpfr_div_2ui(result, x, 1, MPFR_RNDN);
  mpfr_tanh(result, result, MPFR_RNDN);
  mpfr_atan(result, result, MPFR_RNDN);
  mpfr_mul_2ui(result, result, 1, MPFR_RNDN);
}
void inversegudermannian(mpfr_ptr result, mpfr_ptr x) {
  mpfr_div_2ui(result, x, 1, MPFR_RNDN);
  mpfr_tan(result, result, MPFR_RNDN);
  mpfr_atanh(result, result, MPFR_RNDN);
  mpfr_mul_2ui(result, result, 1, MPFR_RNDN);
}
void haversine(mpfr_ptr result, mpfr_ptr x) {
  mpfr_div_2ui(result, x, 1, MPFR_RNDN);
  mpfr_sin(result, result, MPFR_RNDN);
  mpfr_sqr(result, result, MPFR_RNDN);
}
void inversehaversine(mpfr_ptr result, mpfr_ptr x) {
  mpfr_sqrt(result, x, MPFR_RNDN);
  mpfr_asin(result, result, MPFR_RNDN);
  mpfr_mul_2ui(result, result, 1, MPFR_RNDN);
}

// p = phi^x and cos(pi x) / p, with the constants of the definition.
void goldenTerms(mpfr_ptr p, mpfr_ptr second, mpfr_ptr x) {
  Number pi(3.141592653589793);
  mpfr_set_d(p, 1.618033988749895, MPFR_RNDN);
  mpfr_pow(p, p, x, MPFR_RNDN);
  mpfr_mul(second, x, pi, MPFR_RNDN);
  mpfr_cos(second, second, MPFR_RNDN);
  mpfr_div(second, second, p, MPFR_RNDN);
}
void lucasl(mpfr_ptr result, mpfr_ptr x) {
  Number second;
  goldenTerms(result, second, x);
  mpfr_add(result, result, second, MPFR_RNDN);
}
void fibonacci(mpfr_ptr result, mpfr_ptr x) {
  Number second;
  goldenTerms(result, second, x);
  mpfr_sub(result, result, second, MPFR_RNDN);
  mpfr_div_d(result, result, 2.23606797749979, MPFR_RNDN);
}

// ---- sizes ----

// |x f'(x)|, what one ulp of the argument is worth, by function.
void reachOfInverseSecant(mpfr_ptr size, mpfr_ptr x) { // 1 / sqrt(x^2 - 1)
  mpfr_sqr(size, x, MPFR_RNDN);
  mpfr_sub_ui(size, size, 1, MPFR_RNDN);
  mpfr_rec_sqrt(size, size, MPFR_RNDN);
}
void reachOfAsech(mpfr_ptr size, mpfr_ptr x) { // 1 / sqrt(1 - x^2)
  mpfr_sqr(size, x, MPFR_RNDN);
  mpfr_ui_sub(size, 1, size, MPFR_RNDN);
  mpfr_rec_sqrt(size, size, MPFR_RNDN);
}
void reachOfAcoth(mpfr_ptr size, mpfr_ptr x) { // x / (1 - x^2)
  mpfr_sqr(size, x, MPFR_RNDN);
  mpfr_ui_sub(size, 1, size, MPFR_RNDN);
  mpfr_div(size, x, size, MPFR_RNDN);
}
void reachOfInverseHaversine(mpfr_ptr size, mpfr_ptr x) { // sqrt(x / (1 - x))
  Number rest;
  mpfr_ui_sub(rest, 1, x, MPFR_RNDN);
  mpfr_div(size, x, rest, MPFR_RNDN);
  mpfr_sqrt(size, size, MPFR_RNDN);
}
void reachOfInverseGudermannian(mpfr_ptr size, mpfr_ptr x) { // x / cos x
  mpfr_cos(size, x, MPFR_RNDN);
  mpfr_div(size, x, size, MPFR_RNDN);
}
// Both terms, the second with the rounding of pi x.
void termsOfSequence(mpfr_ptr size, mpfr_ptr x) {
  Number p, second;
  goldenTerms(p, second, x);
  mpfr_abs(size, x, MPFR_RNDN);
  mpfr_mul_d(size, size, 3.141592653589793, MPFR_RNDN);
  mpfr_add_ui(size, size, 1, MPFR_RNDN);
  mpfr_div(size, size, p, MPFR_RNDN);
  mpfr_add(size, size, p, MPFR_RNDN);
}

constexpr char kOfValue[] = "f", kWithReach[] = "\\|f\\| + \\|x f'\\|",
               kOfTerms[] = "φ^x + (1 + π\\|x\\|) φ^-x";

struct Interval {
  double from, to;
};

struct Oracle {
  const char *name;
  Exact exact;
  std::vector<Interval> intervals;
  const char *size = kOfValue;
  Exact extra = nullptr; // added to |f|, or without f for the terms
};

const double kMax = std::numeric_limits<double>::max(), kMin = std::numeric_limits<double>::min(),
             kTiny = 4.9406564584124654e-324;
const std::vector<Interval> kEverywhere = {{-20, 20}, {kTiny, kMax}, {-kMax, -kTiny}};

const std::vector<Oracle> &oracles() {
  static const std::vector<Oracle> all = {
      {"sqrt", plain<mpfr_sqrt>, {{0, 4}, {kTiny, kMax}}},
      {"cbrt", plain<mpfr_cbrt>, kEverywhere},
      {"rsqrt", plain<mpfr_rec_sqrt>, {{kTiny, 4}, {kTiny, kMax}}},
      {"exp", plain<mpfr_exp>, {{-745, 710}, {-1, 1}}},
      {"expm1", plain<mpfr_expm1>, {{-60, 710}, {-1, 1}}},
      {"log", plain<mpfr_log>, {{0.5, 2}, {kTiny, kMax}}},
      {"log1p", plain<mpfr_log1p>, {{-1, 1}, {kTiny, kMax}}},
      {"log2", plain<mpfr_log2>, {{0.5, 2}, {kTiny, kMax}}},
      {"log10", plain<mpfr_log10>, {{0.5, 2}, {kTiny, kMax}}},
      {"sin", plain<mpfr_sin>, kEverywhere},
      {"cos", plain<mpfr_cos>, kEverywhere},
      {"tan", plain<mpfr_tan>, kEverywhere},
      {"csc", plain<mpfr_csc>, kEverywhere},
      {"sec", plain<mpfr_sec>, kEverywhere},
      {"cot", plain<mpfr_cot>, kEverywhere},
      {"sinh", plain<mpfr_sinh>, {{-711, 711}, {-2, 2}}},
      {"cosh", plain<mpfr_cosh>, {{-711, 711}, {-2, 2}}},
      {"tanh", plain<mpfr_tanh>, {{-30, 30}, {-2, 2}}},
      {"csch", plain<mpfr_csch>, {{-710, 710}, {-2, 2}}},
      {"sech", plain<mpfr_sech>, {{-710, 710}, {-2, 2}}},
      {"coth", plain<mpfr_coth>, {{-30, 30}, {-2, 2}}},
      {"asin", plain<mpfr_asin>, {{-1, 1}}},
      {"acos", plain<mpfr_acos>, {{-1, 1}}},
      {"atan", plain<mpfr_atan>, kEverywhere},
      {"acsc", ofReciprocal<mpfr_asin>, {{1, 4}, {1, kMax}, {-kMax, -1}}, kWithReach, reachOfInverseSecant},
      {"asec", ofReciprocal<mpfr_acos>, {{1, 4}, {1, kMax}, {-kMax, -1}}, kWithReach, reachOfInverseSecant},
      {"acot", acot, kEverywhere},
      {"asinh", plain<mpfr_asinh>, kEverywhere},
      {"acosh", plain<mpfr_acosh>, {{1, 4}, {1, kMax}}},
      {"atanh", plain<mpfr_atanh>, {{-1, 1}}},
      {"acsch", ofReciprocal<mpfr_asinh>, {{kMin, 20}, {kMin, kMax}, {-20, -kMin}, {-kMax, -kMin}}},
      {"asech", ofReciprocal<mpfr_acosh>, {{kMin, 1}, {0.5, 1}}, kWithReach, reachOfAsech},
      {"acoth", ofReciprocal<mpfr_atanh>, {{1, 4}, {1, kMax}, {-kMax, -1}}, kWithReach, reachOfAcoth},
      {"sinc", sinc, kEverywhere},
      {"fibonacci", fibonacci, {{-1470, 1470}, {-40, 40}}, kOfTerms, termsOfSequence},
      {"lucasl", lucasl, {{-1470, 1470}, {-40, 40}}, kOfTerms, termsOfSequence},
      {"gudermannian", gudermannian, {{-40, 40}, {-2, 2}}},
      {"inversegudermannian",
       inversegudermannian,
       {{-0x1.921fb54442d18p0, 0x1.921fb54442d18p0}, {1.5, 0x1.921fb54442d18p0}},
       kWithReach,
       reachOfInverseGudermannian},
      {"haversine", haversine, kEverywhere},
      {"inversehaversine", inversehaversine, {{0, 1}, {0.9, 1}}, kWithReach, reachOfInverseHaversine},
      {"erfc", plain<mpfr_erfc>, {{-6, 28}, {-1, 2}}},
      {"erf", plain<mpfr_erf>, {{-7, 7}, {-1, 1}}},
      {"gamma", plain<mpfr_gamma>, {{-185, 172}, {0.5, 10}}},
      {"loggamma", plain<mpfr_lngamma>, {{0.5, 4}, {4, 30}, {kTiny, kMax}}},
      {"logistic", logistic, {{-745, 745}, {-40, 40}}},
  };
  return all;
}

void logToBase(mpfr_ptr result, mpfr_ptr base, mpfr_ptr x) {
  Number denominator;
  mpfr_log(denominator, base, MPFR_RNDN);
  mpfr_log(result, x, MPFR_RNDN);
  mpfr_div(result, result, denominator, MPFR_RNDN);
}
void atan2(mpfr_ptr result, mpfr_ptr x, mpfr_ptr y) { mpfr_atan2(result, x, y, MPFR_RNDN); }
void pow(mpfr_ptr result, mpfr_ptr x, mpfr_ptr y) { mpfr_pow(result, x, y, MPFR_RNDN); }

struct PairOracle {
  const char *name;
  ExactPair exact;
  bool takesNegatives;
};
const PairOracle kPairOracles[] = {{"log", logToBase, false}, {"atan2", atan2, true}, {"pow", pow, false}};

// ---- points ----

int64_t orderOf(double x) {
  int64_t bits;
  std::memcpy(&bits, &x, sizeof bits);
  return bits < 0 ? std::numeric_limits<int64_t>::min() - bits : bits;
}
double atOrder(int64_t order) {
  const int64_t bits = order < 0 ? std::numeric_limits<int64_t>::min() - order : order;
  double x;
  std::memcpy(&x, &bits, sizeof x);
  return x;
}

// `steps` even steps in value and as many in the pattern, which are about even in the exponent, each with a
// random offset so that the low bits vary; and 20 neighbours inside either end.
std::vector<double> pointsOf(Interval interval, int steps) {
  std::mt19937_64 random(20260101);
  std::vector<double> points;
  const int64_t first = orderOf(interval.from), last = orderOf(interval.to);
  const auto add = [&](double x) {
    if (x >= interval.from && x <= interval.to) points.push_back(x);
  };
  const double width = interval.to / steps - interval.from / steps;
  const uint64_t stride = (uint64_t(last) - uint64_t(first)) / uint64_t(steps) + 1;
  for (int k = 0; k < steps; ++k) {
    add(interval.from + width * (k + double(random() >> 11) * 0x1p-53));
    add(atOrder(int64_t(uint64_t(first) + stride * uint64_t(k) + random() % stride)));
  }
  for (int k = 0; k < 20; ++k) {
    add(atOrder(first + k));
    add(atOrder(last - k));
  }
  return points;
}

// Next to multiples of pi / 2, where a reduction cancels.
std::vector<double> hardPoints() {
  std::vector<double> points = {kHardest, -kHardest};
  for (int k = 1; k < 2000; k += k < 64 ? 1 : 37) points.insert(points.end(), {k * M_PI_2, -k * M_PI_2});
  return points;
}

bool isInside(const std::vector<Interval> &intervals, double x) {
  for (const Interval &interval : intervals)
    if (x >= interval.from && x <= interval.to) return true;
  return false;
}

std::vector<double> pointsOf(const Oracle &oracle, int steps) {
  std::vector<double> points;
  for (const Interval &interval : oracle.intervals)
    for (const double x : pointsOf(interval, steps)) points.push_back(x);
  for (const double x : hardPoints())
    if (isInside(oracle.intervals, x)) points.push_back(x);
  return points;
}

// Pairs near each other's size, near 1, and of any size.
std::vector<std::pair<double, double>> pairsOf(bool takesNegatives, int steps) {
  std::mt19937_64 random(20260102);
  const auto unit = [&] { return double(random() >> 11) * 0x1p-53; };
  const auto value = [&](int kind) {
    const double x = kind == 0   ? 0.5 + unit()
                     : kind == 1 ? 100 * unit()
                                 : std::ldexp(1 + unit(), int(random() % 2000) - 1000);
    return takesNegatives && random() % 2 == 0 ? -x : x;
  };
  std::vector<std::pair<double, double>> pairs;
  for (int kind = 0; kind < 3; ++kind)
    for (int other = 0; other < 3; ++other)
      for (int k = 0; k < steps; ++k) pairs.emplace_back(value(kind), value(other));
  return pairs;
}

// ---- errors ----

template <class R> double ulpAt(mpfr_ptr size) {
  constexpr int digits = std::numeric_limits<R>::digits, lowest = std::numeric_limits<R>::min_exponent;
  if (!mpfr_regular_p(size)) return mpfr_zero_p(size) ? std::ldexp(1.0, lowest - digits) : HUGE_VAL;
  const int exponent = int(std::max<mpfr_exp_t>(mpfr_get_exp(size), lowest));
  return std::ldexp(1.0, exponent - digits);
}

// An infinity stands for the power of two that is the first to overflow; so does what lies beyond it.
template <class R> void setClipped(mpfr_ptr result, mpfr_ptr exact) {
  Number limit;
  mpfr_set_ui_2exp(limit, 1, std::numeric_limits<R>::max_exponent, MPFR_RNDN);
  if (mpfr_cmpabs(exact, limit) <= 0)
    mpfr_set(result, exact, MPFR_RNDN);
  else
    mpfr_setsign(result, limit, mpfr_signbit(exact), MPFR_RNDN);
}

template <class R> double distance(R got, mpfr_ptr exact) {
  if (mpfr_nan_p(exact) || got != got) return mpfr_nan_p(exact) && got != got ? 0 : HUGE_VAL;
  Number mine(static_cast<double>(got)), clipped;
  setClipped<R>(mine, mine);
  setClipped<R>(clipped, exact);
  mpfr_sub(mine, mine, clipped, MPFR_RNDN);
  return std::fabs(mpfr_get_d(mine, MPFR_RNDN));
}

// The size whose ulp counts.
void sizeOf(mpfr_ptr size, const Oracle &oracle, mpfr_ptr value, mpfr_ptr x) {
  mpfr_abs(size, value, MPFR_RNDN);
  if (oracle.extra == nullptr) return;
  Number extra;
  oracle.extra(extra, x);
  mpfr_abs(extra, extra, MPFR_RNDN);
  if (oracle.size == kOfTerms)
    mpfr_set(size, extra, MPFR_RNDN);
  else
    mpfr_add(size, size, extra, MPFR_RNDN);
}

void take(WorstError &worst, const WorstError &error) {
  if (error.ulps > worst.ulps) worst = {error.ulps, error.x, error.y, worst.beyond};
  worst.beyond = std::max(worst.beyond, error.beyond);
}

// A code where the domain was to hold the point is an error beyond every bound.
template <class R, class Call> R valueOf(Call call) {
  R value = 0;
  return raisedBy([&] { value = call(); }) == 0 ? value : R(NAN);
}

void record64(Accuracy &accuracy, double got, mpfr_ptr exact, mpfr_ptr size, double x, double y) {
  const double d = distance(got, exact);
  const WorstError error = {d == 0 ? 0 : d / ulpAt<double>(size), x, y, 0};
  take(accuracy.real64, error);
  if (std::fabs(x) != kHardest) take(accuracy.elsewhere, error);
  ++accuracy.points;
}
void record32(Accuracy &accuracy, float got, mpfr_ptr exact, mpfr_ptr size, double x, double y) {
  const double d = distance(got, exact), ulp = ulpAt<float>(exact);
  const double beyond = d <= ulp / 2 ? 0 : (d - ulp / 2) / ulpAt<double>(size);
  take(accuracy.real32, {d == 0 ? 0 : d / ulpAt<float>(size), x, y, beyond});
}

void measureAt(Accuracy &accuracy, const RealFunction &function, const Oracle &oracle, double at) {
  Number x(at), exact, size;
  oracle.exact(exact, x);
  sizeOf(size, oracle, exact, x);
  record64(accuracy, valueOf<double>([&] { return function.real64(at); }), exact, size, at, 0);
  const float narrow = float(at);
  if (!std::isfinite(narrow) || !isInside(oracle.intervals, double(narrow))) return;
  mpfr_set_flt(x, narrow, MPFR_RNDN);
  oracle.exact(exact, x);
  sizeOf(size, oracle, exact, x);
  record32(accuracy, valueOf<float>([&] { return function.real32(narrow); }), exact, size, double(narrow), 0);
}

void measureAt(Accuracy &accuracy, const RealPairFunction &function, const PairOracle &oracle, double x,
               double y) {
  Number a(x), b(y), exact;
  oracle.exact(exact, a, b);
  record64(accuracy, valueOf<double>([&] { return function.real64(x, y); }), exact, exact, x, y);
  const float u = float(x), v = float(y);
  if (!std::isnormal(u) || !std::isnormal(v)) return;
  mpfr_set_flt(a, u, MPFR_RNDN);
  mpfr_set_flt(b, v, MPFR_RNDN);
  oracle.exact(exact, a, b);
  record32(accuracy, valueOf<float>([&] { return function.real32(u, v); }), exact, exact, double(u),
           double(v));
}

Accuracy measure(const RealFunction &function, int steps) {
  Accuracy accuracy = {function.name, function.bound, kOfValue, false, 0, {}, {}, {}};
  for (const Oracle &oracle : oracles())
    if (std::strcmp(oracle.name, function.name) == 0) {
      accuracy.size = oracle.size;
      for (const double x : pointsOf(oracle, steps)) measureAt(accuracy, function, oracle, x);
    }
  return accuracy;
}

Accuracy measure(const RealPairFunction &function, int steps) {
  Accuracy accuracy = {function.name, function.bound, kOfValue, true, 0, {}, {}, {}};
  for (const PairOracle &oracle : kPairOracles)
    if (std::strcmp(oracle.name, function.name) == 0)
      for (const auto &[x, y] : pairsOf(oracle.takesNegatives, steps))
        measureAt(accuracy, function, oracle, x, y);
  return accuracy;
}

constexpr char kPageHead[] = R"(# Accuracy of the functions of reals and complexes

`cmake --build build/release --target accuracy` measures and writes this page. The bound is the one in the operator's
row under `src/scalar/rows`; the tests of every build hold the functions below it on fewer points.

Errors are in ulp, against MPFR at 320 bits. The arguments: 20,000 steps through each interval of the function's domain,
evenly spaced, and as many evenly spaced in the exponent, each at a random place within its step; the twenty neighbours
of either end; the neighbourhood of multiples of pi / 2, the hardest double among them. The binary functions are tried
on 180,000 pairs. The figures are those of one machine and its mathematical library, and a library may choose
its code by the processor.

An ulp is the Real64 one at the size in the third column. For most functions that is the value f itself. A definition
that rounds an intermediate result next to a singular point cannot do better than the neighbours of its argument, and
is measured at |f| + |x f'|: one ulp of f and one of the argument together. fibonacci and lucasl subtract their terms
and are measured at the size of these, against the same formula with the same constants in exact arithmetic.

Real32 computes in binary64 and narrows once. Its error column is in its own ulp at the same size; the tests hold it to
half an ulp of f and the bound of Real64. Real16 takes the Real32 result and cuts it off, for all 65,536 patterns.

cos, tan, sec and cot are at their worst at one double next to a multiple of pi / 2, 5.3e255, where the
measured platform loses three bits of the reduction. At all other points that were tried, cos, tan, sec
and cot stay below 2 ulp.

What the table leaves out, since the definitions do: acsch and asech of arguments below 2^-1022 take 1 / x as infinite
where it overflows; csch and sech are 0 where sinh and cosh overflow, from 710.5 on, though the exact values are
subnormal numbers.

| Function | Bound | ulp of | Worst Real64 | at | Worst Real32 | at |
|---|---|---|---|---|---|---|
)";

std::string format(const char *pattern, double value) {
  char text[64];
  std::snprintf(text, sizeof text, pattern, value);
  return text;
}

std::string cells(const WorstError &worst, bool isPair) {
  return format(" %.3f", worst.ulps) + " | " + format("%.17g", worst.x) +
         (isPair ? ", " + format("%.17g", worst.y) : "") + " |";
}

} // namespace

std::vector<Accuracy> measureRealFunctions(int steps) {
  std::vector<Accuracy> all;
  for (const RealFunction &function : realFunctions()) all.push_back(measure(function, steps));
  for (const RealPairFunction &function : realPairFunctions()) all.push_back(measure(function, steps));
  return all;
}

std::string accuracyPage(const std::vector<Accuracy> &measured) {
  std::string page = kPageHead;
  for (const Accuracy &row : measured)
    page += "| " + std::string(row.isPair ? "binary " : "") + row.name + " | " + format("%g", row.bound) +
            " | " + row.size + " |" + cells(row.real64, row.isPair) + cells(row.real32, row.isPair) + "\n";
  return page;
}

} // namespace torvane::test

#endif

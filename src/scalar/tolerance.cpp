// Tolerant comparison of reals, in both widths, and the chains built on it.
//
// Two values are equal when their difference is below the larger one, taken in the direction of their order,
// times 2^(tolerance - significand). The factor costs a power, and sorting asks one tolerance all the time,
// so each thread keeps its last one. With a new tolerance a difference of half the larger value or more is
// told apart before the factor is computed; only a tolerance within one bit of the significand can call such
// values equal, and does so from the cache alone. Callers have seen both answers: the order of the
// steps stays.
#include "tolerance.h"

#include "../runtime/types.h"
#include "scalar_types.h"

#include <cmath>

namespace torvane {

namespace {

template <class R> inline constexpr R kSignificand = isSame<R, Real64> ? R(53) : R(24);

template <class R> struct ToleranceCache { R tolerance, factor; };
template <class R> constinit thread_local ToleranceCache<R> lastTolerance = {kSignificand<R>, R(1)};

// Beyond every exponent of either width, and within int.
template <class R> int exponentWithin(R exponent) {
  constexpr R limit = 5000;
  if (!(exponent < limit)) return static_cast<int>(limit);
  return exponent > -limit ? static_cast<int>(exponent) : -static_cast<int>(limit);
}

template <class R> R shiftFactor(R tolerance) {
  R whole;
  const R fraction = std::modf(tolerance, &whole);
  const R power = fraction == 0 ? R(1) : std::pow(R(2), fraction);
  return std::ldexp(power, exponentWithin(whole - kSignificand<R>));
}

// Whether d is below the tolerated part of m; in the form that cannot underflow.
template <class R> bool isTolerated(R d, R m, R factor) { return m >= 1 ? d < m * factor : d / factor < m; }

// Whether d is half of m or more; in the form that is exact.
template <class R> bool isHalfOrMore(R d, R m) { return m >= 1 ? m * R(0.5) <= d : R(2) * d >= m; }

// Two values of one sign, at a tolerance between 0 and the significand.
template <class R> mint compareWithin(R tolerance, R x, R y) {
  const bool ascending = x <= y;
  const mint order = ascending ? -1 : 1;
  const R d = ascending ? y - x : x - y, upper = ascending ? y : x, lower = ascending ? x : y;
  const R m = upper < 0 ? -lower : upper;
  if (d == m) return order;
  ToleranceCache<R> &cache = lastTolerance<R>;
  if (cache.tolerance != tolerance) {
    if (isHalfOrMore(d, m)) return order;
    cache = {tolerance, shiftFactor(tolerance)};
  }
  return isTolerated(d, m, cache.factor) ? 0 : order;
}

template <class R> mint compare(R tolerance, R x, R y) {
  if (x == y) return 0;
  if (x == 0) return y < 0 ? 1 : -1;
  if (y == 0) return x >= 0 ? 1 : -1;
  if ((x < 0) != (y < 0)) return x < 0 ? -1 : 1;
  if (tolerance <= 0) return y < x ? 1 : -1;
  if (tolerance >= kSignificand<R>) return 0;
  return compareWithin(tolerance, x, y);
}

// ---- chains ----

enum class Chain { allEqual, allDifferent, ascending, notDescending, notAscending, descending, unknown };

constexpr Chain chainOf(mint op) {
  constexpr Chain chains[] = {Chain::allEqual, Chain::allDifferent, Chain::ascending,  Chain::notDescending,
                              Chain::allEqual, Chain::notAscending, Chain::descending, Chain::allDifferent};
  return op >= 1 && op <= 8 ? chains[op - 1] : Chain::unknown;
}
constexpr bool isOrder(Chain chain) { return chain != Chain::allEqual && chain != Chain::allDifferent; }

// Where a value stands to its right neighbour.
constexpr bool admits(Chain chain, mint comparison) {
  switch (chain) {
  case Chain::ascending:
    return comparison == -1;
  case Chain::notDescending:
    return comparison != 1;
  case Chain::notAscending:
    return comparison != -1;
  default:
    return comparison == 1;
  }
}

mreal realPart(mreal x) { return x; }
mreal realPart(mcomplex z) { return z.re; }

bool areEqual(mreal tolerance, mreal x, mreal y) { return compare(tolerance, x, y) == 0; }
bool areEqual(mreal tolerance, mcomplex x, mcomplex y) {
  return areEqual(tolerance, x.re, y.re) && areEqual(tolerance, x.im, y.im);
}

template <class Value> bool isOrdered(Chain chain, mreal tolerance, mint count, const Value *values) {
  for (mint i = 0; i + 1 < count; ++i)
    if (!admits(chain, compare(tolerance, realPart(values[i]), realPart(values[i + 1])))) return false;
  return true;
}

// Every pair, but at tolerance 0 those of the first value alone. For equality, which is transitive there,
// that is the whole answer; for difference it leaves later pairs out, so that 1, 2, 2 count as all different.
// Callers rely on it.
template <class Value> bool pairsAgree(bool equal, mreal tolerance, mint count, const Value *values) {
  const mint rows = tolerance == 0 ? 1 : count;
  for (mint i = 0; i < rows; ++i)
    for (mint j = i + 1; j < count; ++j)
      if (areEqual(tolerance, values[i], values[j]) != equal) return false;
  return true;
}

template <class Value> bool holds(Chain chain, mreal tolerance, mint count, const Value *values) {
  return isOrder(chain) ? isOrdered(chain, tolerance, count, values)
                        : pairsAgree(chain == Chain::allEqual, tolerance, count, values);
}

bool areOnRealAxis(mint count, const mcomplex *values) {
  for (mint i = 0; i < count; ++i)
    if (!(values[i].im == 0)) return false;
  return true;
}

} // namespace

mint compareReals(mint op, mreal tolerance, mint count, const mreal *values) {
  const Chain chain = chainOf(op);
  return chain != Chain::unknown && (count < 2 || holds(chain, tolerance, count, values));
}

mint compareComplexes(mint op, mreal tolerance, mint count, const mcomplex *values, mint *result) {
  const Chain chain = chainOf(op);
  *result = 0;
  if (chain == Chain::unknown) return kWrongArguments;
  if (count >= 2 && isOrder(chain) && !areOnRealAxis(count, values)) return kValueFailed;
  *result = count < 2 || holds(chain, tolerance, count, values);
  return kSuccess;
}

} // namespace torvane

using namespace torvane;

mint CompareDoubleDouble(mreal tolerance, mreal x, mreal y) { return compare(tolerance, x, y); }
mint CompareFloatFloat(float tolerance, float x, float y) { return compare(tolerance, x, y); }

mint near1_double(mreal tolerance, mreal x, mreal y) { return compare(tolerance, x, y) == 0; }
mint near1_float(float tolerance, float x, float y) { return compare(tolerance, x, y) == 0; }

mint near1_reim_mcomplex(mreal tolerance, mreal x, mreal y) {
  if (tolerance < 0) return 0;
  if (y == 0) return 1;
  const mreal d = std::signbit(x) != std::signbit(y) ? y + x : x - y;
  return compare(tolerance, x, d) == 0;
}

mreal ToleranceShiftFactor(mreal tolerance) { return shiftFactor(tolerance); }
float ToleranceShiftFactorFloat(float tolerance) { return shiftFactor(tolerance); }

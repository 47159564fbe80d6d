// Numbers wide enough that a norm computed in them may be taken for the exact one: 200 bits and exponents
// without end where there is MPFR, else the extended precision of the processor, whose exponents still have
// room for every power that the tests take.
#pragma once

#include <algorithm>
#include <cfloat>
#include <cmath>

#if __has_include(<mpfr.h>) && defined(__LP64__)
#include <mpfr.h>
#define TORVANE_TEST_NORMS_BY_MPFR
#endif

namespace torvane::test {

#ifdef TORVANE_TEST_NORMS_BY_MPFR

class Wide {
public:
  static constexpr mpfr_prec_t kPrecision = 200;

  Wide(double x = 0) {
    mpfr_init2(number, kPrecision);
    mpfr_set_d(number, x, MPFR_RNDN); // exact
  }
  Wide(const Wide &other) : Wide() { mpfr_set(number, other.number, MPFR_RNDN); }
  Wide &operator=(const Wide &other) {
    mpfr_set(number, other.number, MPFR_RNDN);
    return *this;
  }
  ~Wide() { mpfr_clear(number); }

  friend Wide operator+(const Wide &x, const Wide &y) { return of(mpfr_add, x, y); }
  friend Wide operator-(const Wide &x, const Wide &y) { return of(mpfr_sub, x, y); }
  friend Wide operator*(const Wide &x, const Wide &y) { return of(mpfr_mul, x, y); }
  friend Wide operator/(const Wide &x, const Wide &y) { return of(mpfr_div, x, y); }
  friend Wide power(const Wide &x, const Wide &y) { return of(mpfr_pow, x, y); }
  friend Wide lengthOf(const Wide &x, const Wide &y) { return of(mpfr_hypot, x, y); }
  friend bool operator<(const Wide &x, const Wide &y) { return mpfr_less_p(x.number, y.number) != 0; }
  friend bool isZero(const Wide &x) { return mpfr_zero_p(x.number) != 0; }
  friend double narrow(const Wide &x) { return mpfr_get_d(x.number, MPFR_RNDN); }
  // e, where x is a half to 1 times 2 to the e; of zero, the smallest one.
  friend long exponentOf(const Wide &x) {
    return isZero(x) ? long{DBL_MIN_EXP} : long{mpfr_get_exp(x.number)};
  }

private:
  template <class Function> static Wide of(Function function, const Wide &x, const Wide &y) {
    Wide result;
    function(result.number, x.number, y.number, MPFR_RNDN);
    return result;
  }
  mpfr_t number;
};

#else

using Wide = long double;
static_assert(LDBL_MANT_DIG >= 64 && LDBL_MAX_EXP > 8 * DBL_MAX_EXP);

inline Wide power(Wide x, Wide y) { return std::pow(x, y); }
inline Wide lengthOf(Wide x, Wide y) { return std::hypot(x, y); }
inline bool isZero(Wide x) { return x == 0; }
inline double narrow(Wide x) { return static_cast<double>(x); }
inline long exponentOf(Wide x) {
  int exponent = DBL_MIN_EXP;
  if (x != 0) std::frexp(x, &exponent);
  return exponent;
}

#endif

inline Wide wideMagnitude(double x) { return std::fabs(x); }
inline Wide larger(const Wide &x, const Wide &y) { return x < y ? y : x; }

// The distance in units of the last place of the expected value, subnormal ones included.
inline double ulpsBetween(double found, const Wide &expected) {
  const long place = std::max(exponentOf(expected) - DBL_MANT_DIG, long{DBL_MIN_EXP - DBL_MANT_DIG});
  const Wide difference = Wide(found) - expected;
  return std::fabs(narrow(difference * power(Wide(2), Wide(static_cast<double>(-place)))));
}

} // namespace torvane::test

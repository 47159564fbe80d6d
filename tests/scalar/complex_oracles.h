// The complex operators by MPC at 200 bits, in forms that do not cancel, and the distance of a result from
// them.
#pragma once

#include <cmath>
#include <limits>
#include <mpc.h>

namespace torvane::test::measured {

// A complex of either width.
template <class R> struct Value { R re, im; };

inline constexpr mpfr_prec_t kPrecision = 200;
inline constexpr auto kNearest = MPC_RNDNN;

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
inline void expm1Exactly(mpc_ptr result, mpc_srcptr z) {
  Exact half, sinh;
  mpc_div_2ui(half, z, 1, kNearest);
  mpc_sinh(sinh, half, kNearest);
  mpc_exp(half, half, kNearest);
  mpc_mul(result, half, sinh, kNearest);
  mpc_mul_2ui(result, result, 1, kNearest);
}
// Nor does 2 atanh(z / (z + 2)), for small z.
inline void log1pExactly(mpc_ptr result, mpc_srcptr z) {
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
inline void sincExactly(mpc_ptr result, mpc_srcptr z) {
  Exact sine;
  mpc_sin(sine, z, kNearest);
  mpc_div(result, sine, z, kNearest);
}
inline void logisticExactly(mpc_ptr result, mpc_srcptr z) {
  Exact power;
  mpc_neg(power, z, kNearest);
  mpc_exp(power, power, kNearest);
  mpc_add_ui(power, power, 1, kNearest);
  mpc_ui_div(result, 1, power, kNearest);
}
inline void haversineExactly(mpc_ptr result, mpc_srcptr z) {
  Exact half;
  mpc_div_2ui(half, z, 1, kNearest);
  mpc_sin(half, half, kNearest);
  mpc_sqr(result, half, kNearest);
}
inline void inversehaversineExactly(mpc_ptr result, mpc_srcptr z) {
  Exact root;
  mpc_sqrt(root, z, kNearest);
  mpc_asin(result, root, kNearest);
  mpc_mul_2ui(result, result, 1, kNearest);
}
// phi^z and cos(pi z) phi^-z
inline void goldenPowers(mpc_ptr rising, mpc_ptr falling, mpc_srcptr z) {
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
inline void fibonacciExactly(mpc_ptr result, mpc_srcptr z) {
  Exact rising, falling;
  goldenPowers(rising, falling, z);
  mpc_sub(result, rising, falling, kNearest);
  mpfr_t root;
  mpfr_init2(root, kPrecision);
  mpfr_sqrt_ui(root, 5, MPFR_RNDN);
  mpc_div_fr(result, result, root, kNearest);
  mpfr_clear(root);
}
inline void lucaslExactly(mpc_ptr result, mpc_srcptr z) {
  Exact rising, falling;
  goldenPowers(rising, falling, z);
  mpc_add(result, rising, falling, kNearest);
}

inline void squareExactly(mpc_ptr result, mpc_srcptr z) { mpc_sqr(result, z, kNearest); }
inline void recipExactly(mpc_ptr result, mpc_srcptr z) { mpc_ui_div(result, 1, z, kNearest); }
inline void minusExactly(mpc_ptr result, mpc_srcptr z) { mpc_neg(result, z, kNearest); }
// Real results have an imaginary part of 0.
inline void absExactly(mpc_ptr result, mpc_srcptr z) {
  mpc_abs(mpc_realref(result), z, MPFR_RNDN);
  mpfr_set_ui(mpc_imagref(result), 0, MPFR_RNDN);
}
inline void abssquareExactly(mpc_ptr result, mpc_srcptr z) {
  mpc_norm(mpc_realref(result), z, MPFR_RNDN);
  mpfr_set_ui(mpc_imagref(result), 0, MPFR_RNDN);
}
inline void argExactly(mpc_ptr result, mpc_srcptr z) {
  mpc_arg(mpc_realref(result), z, MPFR_RNDN);
  mpfr_set_ui(mpc_imagref(result), 0, MPFR_RNDN);
}
inline void signExactly(mpc_ptr result, mpc_srcptr z) {
  Exact modulus;
  absExactly(modulus, z);
  mpc_div(result, z, modulus, kNearest);
}
inline void mod1Exactly(mpc_ptr result, mpc_srcptr z) {
  mpfr_floor(mpc_realref(result), mpc_realref(z));
  mpfr_floor(mpc_imagref(result), mpc_imagref(z));
  mpc_sub(result, z, result, kNearest);
}

using PairOracle = void (*)(mpc_ptr, mpc_srcptr, mpc_srcptr);

inline void logExactly(mpc_ptr result, mpc_srcptr base, mpc_srcptr z) {
  Exact ofBase;
  mpc_log(ofBase, base, kNearest);
  mpc_log(result, z, kNearest);
  mpc_div(result, result, ofBase, kNearest);
}
inline void atan2Exactly(mpc_ptr result, mpc_srcptr x, mpc_srcptr y) {
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
inline void powExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) { mpc_pow(result, z, w, kNearest); }
inline void divideExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) { mpc_div(result, z, w, kNearest); }

inline void plusExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) { mpc_add(result, z, w, kNearest); }
inline void subtractExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) { mpc_sub(result, z, w, kNearest); }
inline void timesExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) { mpc_mul(result, z, w, kNearest); }
inline void modExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) {
  Exact quotient;
  mpc_div(quotient, z, w, kNearest);
  mpfr_rint(mpc_realref(static_cast<mpc_ptr>(quotient)), mpc_realref(static_cast<mpc_ptr>(quotient)),
            MPFR_RNDN);
  mpfr_rint(mpc_imagref(static_cast<mpc_ptr>(quotient)), mpc_imagref(static_cast<mpc_ptr>(quotient)),
            MPFR_RNDN);
  mpc_mul(quotient, quotient, w, kNearest);
  mpc_sub(result, z, quotient, kNearest);
}
inline void abserrExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) {
  mpc_sub(result, z, w, kNearest);
  absExactly(result, result);
}
inline void relerrExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) {
  mpc_sub(result, z, w, kNearest);
  mpc_div(result, result, w, kNearest);
  absExactly(result, result);
}
inline void maxabsExactly(mpc_ptr result, mpc_srcptr z, mpc_srcptr w) {
  absExactly(result, mpc_cmp_abs(z, w) < 0 ? w : z);
}

} // namespace torvane::test::measured

/* The vector routines: an operator over runs of elements of kinds i (mint), d (mreal), c (mcomplex).
 *
 * `strides` counts elements, the result's first, then each operand's; 0 repeats one element and a
 * negative stride walks down. Flags: 2 checks real and complex results, 4 integer ones. Returns 0, or
 * one plus the position of the first failing element, before which all are written; a checked real
 * or complex routine that is not in place tests in bulk and returns 1. The result may be the first
 * operand. Nothing is raised. A count below 1 does nothing.
 *
 * Reductions store into one accumulator, whose stride is not read and whose content does not count.
 * A checked total fails at the first running sum that is out of range, infinite or a NaN; of a long
 * run, each worker sums a piece. A checked dot fails at the first product out of range; its sum is
 * tested at each of up to 7 elements, of more at the last one only. An extreme fails only if it is the
 * most negative word, where that first occurs.
 *
 * Generated from src/scalar/operators.def by tools/generate; not to be edited. */
#ifndef TORVANE_MACHFUNCS_H
#define TORVANE_MACHFUNCS_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

/* minus: -x. */
TORVANE_API mint machfunc_i_minus(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_minus(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_minus(void *result, const void *x, mint count, const mint *strides, mint flags);

/* square: x * x. */
TORVANE_API mint machfunc_i_square(void *result, const void *x, mint count, const mint *strides,
                                   mint flags);
TORVANE_API mint machfunc_d_square(void *result, const void *x, mint count, const mint *strides,
                                   mint flags);
TORVANE_API mint machfunc_c_square(void *result, const void *x, mint count, const mint *strides,
                                   mint flags);

/* recip: 1 / x. */
TORVANE_API mint machfunc_d_recip(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_recip(void *result, const void *x, mint count, const mint *strides, mint flags);

/* abs: the absolute value; of a complex, the modulus. */
TORVANE_API mint machfunc_i_abs(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_abs(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_abs(void *result, const void *x, mint count, const mint *strides, mint flags);

/* abssquare: x * x; of a complex, re * re + im * im. */
TORVANE_API mint machfunc_i_abssquare(void *result, const void *x, mint count, const mint *strides,
                                      mint flags);
TORVANE_API mint machfunc_d_abssquare(void *result, const void *x, mint count, const mint *strides,
                                      mint flags);
TORVANE_API mint machfunc_c_abssquare(void *result, const void *x, mint count, const mint *strides,
                                      mint flags);

/* arg: the argument; of an integer or real, 0 unless negative. */
TORVANE_API mint machfunc_i_arg(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_arg(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_arg(void *result, const void *x, mint count, const mint *strides, mint flags);

/* conj: the complex conjugate. */
TORVANE_API mint machfunc_i_conj(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_conj(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_conj(void *result, const void *x, mint count, const mint *strides, mint flags);

/* im: the imaginary part. */
TORVANE_API mint machfunc_i_im(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_im(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_im(void *result, const void *x, mint count, const mint *strides, mint flags);

/* re: the real part. */
TORVANE_API mint machfunc_i_re(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_re(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_re(void *result, const void *x, mint count, const mint *strides, mint flags);

/* sign: -1, 0 or 1; of a complex, x / abs x, and 0 of 0. */
TORVANE_API mint machfunc_i_sign(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_sign(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_sign(void *result, const void *x, mint count, const mint *strides, mint flags);

/* copy: x itself. */

/* zero: 0; the argument is not read. */

/* one: 1; the argument is not read. */

/* fpexception: 0; checked, 1 for an infinite or NaN value. */

/* pos: x > 0, as 1 or 0. */
TORVANE_API mint machfunc_i_pos(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_pos(void *result, const void *x, mint count, const mint *strides, mint flags);

/* neg: x < 0, as 1 or 0. */
TORVANE_API mint machfunc_i_neg(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_neg(void *result, const void *x, mint count, const mint *strides, mint flags);

/* npos: x <= 0, as 1 or 0. */
TORVANE_API mint machfunc_i_npos(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_npos(void *result, const void *x, mint count, const mint *strides, mint flags);

/* nneg: x >= 0, as 1 or 0. */
TORVANE_API mint machfunc_i_nneg(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_nneg(void *result, const void *x, mint count, const mint *strides, mint flags);

/* unitize: 1 unless x is 0. */
TORVANE_API mint machfunc_i_unitize(void *result, const void *x, mint count, const mint *strides,
                                    mint flags);
TORVANE_API mint machfunc_d_unitize(void *result, const void *x, mint count, const mint *strides,
                                    mint flags);
TORVANE_API mint machfunc_c_unitize(void *result, const void *x, mint count, const mint *strides,
                                    mint flags);

/* ramp: the larger of x and 0. */
TORVANE_API mint machfunc_i_ramp(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_ramp(void *result, const void *x, mint count, const mint *strides, mint flags);

/* evenq: 1 for an even x, else 0. */
TORVANE_API mint machfunc_i_evenq(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_evenq(void *result, const void *x, mint count, const mint *strides, mint flags);

/* oddq: 1 for an odd x, else 0. */
TORVANE_API mint machfunc_i_oddq(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_oddq(void *result, const void *x, mint count, const mint *strides, mint flags);

/* bit_not: the bitwise complement. */
TORVANE_API mint machfunc_i_bit_not(void *result, const void *x, mint count, const mint *strides,
                                    mint flags);

/* bit_length: the bits that x needs; of a negative x, those of its complement. */
TORVANE_API mint machfunc_i_bit_length(void *result, const void *x, mint count, const mint *strides,
                                       mint flags);

/* bit_count: the number of 1 bits. */

/* sqrt: the square root of x; of a complex, the root in the right half plane. */
TORVANE_API mint machfunc_d_sqrt(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_sqrt(void *result, const void *x, mint count, const mint *strides, mint flags);

/* cbrt: the real cube root. */
TORVANE_API mint machfunc_d_cbrt(void *result, const void *x, mint count, const mint *strides, mint flags);

/* rsqrt: 1 / sqrt x. */
TORVANE_API mint machfunc_d_rsqrt(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_rsqrt(void *result, const void *x, mint count, const mint *strides, mint flags);

/* round: x rounded to the nearest integer, ties to even. */
TORVANE_API mint machfunc_i_round(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_round(void *result, const void *x, mint count, const mint *strides, mint flags);

/* floor: the largest integer not above x. */
TORVANE_API mint machfunc_i_floor(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_floor(void *result, const void *x, mint count, const mint *strides, mint flags);

/* ceiling: the smallest integer not below x. */
TORVANE_API mint machfunc_i_ceiling(void *result, const void *x, mint count, const mint *strides,
                                    mint flags);
TORVANE_API mint machfunc_d_ceiling(void *result, const void *x, mint count, const mint *strides,
                                    mint flags);

/* intpart: x without its fraction. */
TORVANE_API mint machfunc_i_intpart(void *result, const void *x, mint count, const mint *strides,
                                    mint flags);
TORVANE_API mint machfunc_d_intpart(void *result, const void *x, mint count, const mint *strides,
                                    mint flags);

/* fracpart: the fraction of x, with its sign. */
TORVANE_API mint machfunc_i_fracpart(void *result, const void *x, mint count, const mint *strides,
                                     mint flags);
TORVANE_API mint machfunc_d_fracpart(void *result, const void *x, mint count, const mint *strides,
                                     mint flags);
TORVANE_API mint machfunc_c_fracpart(void *result, const void *x, mint count, const mint *strides,
                                     mint flags);

/* mod1: the fraction of x above its floor. */
TORVANE_API mint machfunc_i_mod1(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_mod1(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_mod1(void *result, const void *x, mint count, const mint *strides, mint flags);

/* exp: e to the power x. */
TORVANE_API mint machfunc_d_exp(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_exp(void *result, const void *x, mint count, const mint *strides, mint flags);

/* expm1: e to the power x, less 1. */
TORVANE_API mint machfunc_d_expm1(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_expm1(void *result, const void *x, mint count, const mint *strides, mint flags);

/* log: the natural logarithm. */
TORVANE_API mint machfunc_d_log(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_log(void *result, const void *x, mint count, const mint *strides, mint flags);

/* log1p: the natural logarithm of 1 + x. */
TORVANE_API mint machfunc_d_log1p(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_log1p(void *result, const void *x, mint count, const mint *strides, mint flags);

/* log2: the base-2 logarithm; of an integer, exact. */
TORVANE_API mint machfunc_i_log2(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_log2(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_log2(void *result, const void *x, mint count, const mint *strides, mint flags);

/* log10: the base-10 logarithm; of an integer, exact. */
TORVANE_API mint machfunc_i_log10(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_log10(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_log10(void *result, const void *x, mint count, const mint *strides, mint flags);

/* sin: the sine. */
TORVANE_API mint machfunc_d_sin(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_sin(void *result, const void *x, mint count, const mint *strides, mint flags);

/* cos: the cosine. */
TORVANE_API mint machfunc_d_cos(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_cos(void *result, const void *x, mint count, const mint *strides, mint flags);

/* tan: the tangent. */
TORVANE_API mint machfunc_d_tan(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_tan(void *result, const void *x, mint count, const mint *strides, mint flags);

/* csc: 1 / sin x. */
TORVANE_API mint machfunc_d_csc(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_csc(void *result, const void *x, mint count, const mint *strides, mint flags);

/* sec: 1 / cos x. */
TORVANE_API mint machfunc_d_sec(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_sec(void *result, const void *x, mint count, const mint *strides, mint flags);

/* cot: 1 / tan x. */
TORVANE_API mint machfunc_d_cot(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_cot(void *result, const void *x, mint count, const mint *strides, mint flags);

/* sinh: the hyperbolic sine. */
TORVANE_API mint machfunc_d_sinh(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_sinh(void *result, const void *x, mint count, const mint *strides, mint flags);

/* cosh: the hyperbolic cosine. */
TORVANE_API mint machfunc_d_cosh(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_cosh(void *result, const void *x, mint count, const mint *strides, mint flags);

/* tanh: the hyperbolic tangent. */
TORVANE_API mint machfunc_d_tanh(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_tanh(void *result, const void *x, mint count, const mint *strides, mint flags);

/* csch: 1 / sinh x. */
TORVANE_API mint machfunc_d_csch(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_csch(void *result, const void *x, mint count, const mint *strides, mint flags);

/* sech: 1 / cosh x. */
TORVANE_API mint machfunc_d_sech(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_sech(void *result, const void *x, mint count, const mint *strides, mint flags);

/* coth: 1 / tanh x. */
TORVANE_API mint machfunc_d_coth(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_coth(void *result, const void *x, mint count, const mint *strides, mint flags);

/* asin: the inverse sine. */
TORVANE_API mint machfunc_d_asin(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_asin(void *result, const void *x, mint count, const mint *strides, mint flags);

/* acos: the inverse cosine. */
TORVANE_API mint machfunc_d_acos(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_acos(void *result, const void *x, mint count, const mint *strides, mint flags);

/* atan: the inverse tangent. */
TORVANE_API mint machfunc_d_atan(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_atan(void *result, const void *x, mint count, const mint *strides, mint flags);

/* acsc: asin(1 / x). */
TORVANE_API mint machfunc_d_acsc(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_acsc(void *result, const void *x, mint count, const mint *strides, mint flags);

/* asec: acos(1 / x). */
TORVANE_API mint machfunc_d_asec(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_asec(void *result, const void *x, mint count, const mint *strides, mint flags);

/* acot: atan(1 / x); of a real 0, pi / 2. */
TORVANE_API mint machfunc_d_acot(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_acot(void *result, const void *x, mint count, const mint *strides, mint flags);

/* asinh: the inverse hyperbolic sine. */
TORVANE_API mint machfunc_d_asinh(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_asinh(void *result, const void *x, mint count, const mint *strides, mint flags);

/* acosh: the inverse hyperbolic cosine. */
TORVANE_API mint machfunc_d_acosh(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_acosh(void *result, const void *x, mint count, const mint *strides, mint flags);

/* atanh: the inverse hyperbolic tangent. */
TORVANE_API mint machfunc_d_atanh(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_atanh(void *result, const void *x, mint count, const mint *strides, mint flags);

/* acsch: asinh(1 / x). */
TORVANE_API mint machfunc_d_acsch(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_acsch(void *result, const void *x, mint count, const mint *strides, mint flags);

/* asech: acosh(1 / x). */
TORVANE_API mint machfunc_d_asech(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_asech(void *result, const void *x, mint count, const mint *strides, mint flags);

/* acoth: atanh(1 / x). */
TORVANE_API mint machfunc_d_acoth(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_acoth(void *result, const void *x, mint count, const mint *strides, mint flags);

/* sinc: sin x / x, and 1 at 0. */
TORVANE_API mint machfunc_d_sinc(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_c_sinc(void *result, const void *x, mint count, const mint *strides, mint flags);

/* fibonacci: the Fibonacci number of index x, continued to reals and complexes. */
TORVANE_API mint machfunc_i_fibonacci(void *result, const void *x, mint count, const mint *strides,
                                      mint flags);
TORVANE_API mint machfunc_d_fibonacci(void *result, const void *x, mint count, const mint *strides,
                                      mint flags);
TORVANE_API mint machfunc_c_fibonacci(void *result, const void *x, mint count, const mint *strides,
                                      mint flags);

/* lucasl: the Lucas number of index x, continued to reals and complexes. */
TORVANE_API mint machfunc_i_lucasl(void *result, const void *x, mint count, const mint *strides,
                                   mint flags);
TORVANE_API mint machfunc_d_lucasl(void *result, const void *x, mint count, const mint *strides,
                                   mint flags);
TORVANE_API mint machfunc_c_lucasl(void *result, const void *x, mint count, const mint *strides,
                                   mint flags);

/* gudermannian: 2 atan(tanh(x / 2)). */
TORVANE_API mint machfunc_d_gudermannian(void *result, const void *x, mint count, const mint *strides,
                                         mint flags);
TORVANE_API mint machfunc_c_gudermannian(void *result, const void *x, mint count, const mint *strides,
                                         mint flags);

/* inversegudermannian: 2 atanh(tan(x / 2)). */
TORVANE_API mint machfunc_d_inversegudermannian(void *result, const void *x, mint count,
                                                const mint *strides, mint flags);
TORVANE_API mint machfunc_c_inversegudermannian(void *result, const void *x, mint count,
                                                const mint *strides, mint flags);

/* haversine: the square of sin(x / 2). */
TORVANE_API mint machfunc_d_haversine(void *result, const void *x, mint count, const mint *strides,
                                      mint flags);
TORVANE_API mint machfunc_c_haversine(void *result, const void *x, mint count, const mint *strides,
                                      mint flags);

/* inversehaversine: 2 asin(sqrt x). */
TORVANE_API mint machfunc_d_inversehaversine(void *result, const void *x, mint count, const mint *strides,
                                             mint flags);
TORVANE_API mint machfunc_c_inversehaversine(void *result, const void *x, mint count, const mint *strides,
                                             mint flags);

/* erfc: the complementary error function. */
TORVANE_API mint machfunc_d_erfc(void *result, const void *x, mint count, const mint *strides, mint flags);

/* erf: the error function. */
TORVANE_API mint machfunc_d_erf(void *result, const void *x, mint count, const mint *strides, mint flags);

/* gamma: the gamma function; of an integer, the factorial of x - 1. */
TORVANE_API mint machfunc_i_gamma(void *result, const void *x, mint count, const mint *strides, mint flags);
TORVANE_API mint machfunc_d_gamma(void *result, const void *x, mint count, const mint *strides, mint flags);

/* loggamma: the logarithm of the gamma function. */
TORVANE_API mint machfunc_d_loggamma(void *result, const void *x, mint count, const mint *strides,
                                     mint flags);

/* logistic: 1 / (1 + e to the power -x). */
TORVANE_API mint machfunc_d_logistic(void *result, const void *x, mint count, const mint *strides,
                                     mint flags);
TORVANE_API mint machfunc_c_logistic(void *result, const void *x, mint count, const mint *strides,
                                     mint flags);

/* intexp with 10 as second operand. */
TORVANE_API mint machfunc_i_intexp(void *result, const void *x, mint count, const mint *strides,
                                   mint flags);

/* intlen with 10 as second operand. */
TORVANE_API mint machfunc_i_intlen(void *result, const void *x, mint count, const mint *strides,
                                   mint flags);

/* plus: x + y. */
TORVANE_API mint machfunc_ii_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_id_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_ic_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_di_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_dc_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_plus(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);

/* subtract: x - y. */
TORVANE_API mint machfunc_ii_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_id_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_ic_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_di_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_dc_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_subtract(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);

/* times: x * y. */
TORVANE_API mint machfunc_ii_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_id_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_ic_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_di_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_dc_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_times(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);

/* div: x / y. */
TORVANE_API mint machfunc_id_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_ic_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_di_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_dc_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_div(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);

/* fpexception: 0; checked, a test of x and then y. */

/* max: the larger of x and y. */

/* min: the smaller of x and y. */

/* chop: x, or 0 where abs x is below the tolerance y. */
TORVANE_API mint machfunc_dd_chop(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_chop(void *result, const void *x, const void *y, mint count,
                                  const mint *strides, mint flags);

/* abserr: abs(x - y). */
TORVANE_API mint machfunc_ii_abserr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_id_abserr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_ic_abserr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_di_abserr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_abserr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_dc_abserr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_abserr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_abserr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_abserr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);

/* relerr: abs((x - y) / y). */
TORVANE_API mint machfunc_id_relerr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_ic_relerr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_di_relerr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_relerr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_dc_relerr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_relerr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_relerr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_relerr(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);

/* maxabs: the larger of abs x and abs y. */
TORVANE_API mint machfunc_ii_maxabs(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_maxabs(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_maxabs(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);

/* unitize: 1 where abs x is at least the tolerance y, else 0. */
TORVANE_API mint machfunc_ii_unitize(void *result, const void *x, const void *y, mint count,
                                     const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_unitize(void *result, const void *x, const void *y, mint count,
                                     const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_unitize(void *result, const void *x, const void *y, mint count,
                                     const mint *strides, mint flags);

/* bitand: the bitwise and. */
TORVANE_API mint machfunc_ii_bitand(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);

/* bitor: the bitwise or. */
TORVANE_API mint machfunc_ii_bitor(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);

/* bitxor: the bitwise exclusive or. */
TORVANE_API mint machfunc_ii_bitxor(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);

/* intexp: the exponent of the highest power of y that divides x. */
TORVANE_API mint machfunc_ii_intexp(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);

/* intlen: the number of digits of x in base y. */
TORVANE_API mint machfunc_ii_intlen(void *result, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);

/* bitshiftleft: the magnitude of x times 2 to the power y, truncated, with the sign of x. */
TORVANE_API mint machfunc_ii_bitshiftleft(void *result, const void *x, const void *y, mint count,
                                          const mint *strides, mint flags);
TORVANE_API mint machfunc_di_bitshiftleft(void *result, const void *x, const void *y, mint count,
                                          const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_bitshiftleft(void *result, const void *x, const void *y, mint count,
                                          const mint *strides, mint flags);

/* bitshiftright: the magnitude of x divided by 2 to the power y, truncated, with the sign of x. */
TORVANE_API mint machfunc_ii_bitshiftright(void *result, const void *x, const void *y, mint count,
                                           const mint *strides, mint flags);
TORVANE_API mint machfunc_di_bitshiftright(void *result, const void *x, const void *y, mint count,
                                           const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_bitshiftright(void *result, const void *x, const void *y, mint count,
                                           const mint *strides, mint flags);

/* root: reserved. */

/* mod: x less y times the floor of x / y. */
TORVANE_API mint machfunc_ii_mod(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_id_mod(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_ic_mod(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_di_mod(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_mod(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_dc_mod(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_mod(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_mod(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_mod(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);

/* quotient: the floor of x / y. */
TORVANE_API mint machfunc_ii_quotient(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_id_quotient(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_di_quotient(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_quotient(void *result, const void *x, const void *y, mint count,
                                      const mint *strides, mint flags);

/* log: the logarithm of y to base x. */
TORVANE_API mint machfunc_id_log(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_ic_log(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_di_log(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_log(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_dc_log(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_log(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_log(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_log(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);

/* atan2: the two-argument arctangent: for reals atan2 of C, arguments in the same order. */
TORVANE_API mint machfunc_id_atan2(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_ic_atan2(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_di_atan2(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_atan2(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_dc_atan2(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_atan2(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_atan2(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_atan2(void *result, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);

/* pow: x to the power y. */
TORVANE_API mint machfunc_ii_pow(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_id_pow(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_ic_pow(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_di_pow(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_dd_pow(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_dc_pow(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_ci_pow(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_cd_pow(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);
TORVANE_API mint machfunc_cc_pow(void *result, const void *x, const void *y, mint count,
                                 const mint *strides, mint flags);

/* axpy: a * x + y. */
TORVANE_API mint machfunc_iii_axpy(void *result, const void *a, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_ddd_axpy(void *result, const void *a, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_ccc_axpy(void *result, const void *a, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);

/* axmy: a * x - y. */
TORVANE_API mint machfunc_iii_axmy(void *result, const void *a, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_ddd_axmy(void *result, const void *a, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_ccc_axmy(void *result, const void *a, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);

/* ymax: y - a * x. */
TORVANE_API mint machfunc_iii_ymax(void *result, const void *a, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_ddd_ymax(void *result, const void *a, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);
TORVANE_API mint machfunc_ccc_ymax(void *result, const void *a, const void *x, const void *y, mint count,
                                   const mint *strides, mint flags);

/* adxmy: a / (x - y). */
TORVANE_API mint machfunc_ddd_adxmy(void *result, const void *a, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);
TORVANE_API mint machfunc_ccc_adxmy(void *result, const void *a, const void *x, const void *y, mint count,
                                    const mint *strides, mint flags);

/* total: the sum of the elements, left to right; 0 for none. */
TORVANE_API mint machfunc_i_total(mint *accumulator, const mint *data, mint count, const mint *strides,
                                  mint flags);
TORVANE_API mint machfunc_d_total(mreal *accumulator, const mreal *data, mint count, const mint *strides,
                                  mint flags);
TORVANE_API mint machfunc_c_total(mcomplex *accumulator, const mcomplex *data, mint count,
                                  const mint *strides, mint flags);

/* dot: the sum of the products x * y; 0 for none. */
TORVANE_API mint machfunc_ii_dot(mint *accumulator, const mint *x, const mint *y, mint count,
                                 const mint *strides, mint flags);

/* fpexception: 1 if an element is infinite or a NaN, else 0; never fails. */
TORVANE_API mint machfunc_d_fpexception(mint *accumulator, const mreal *data, mint count,
                                        const mint *strides, mint flags);
TORVANE_API mint machfunc_c_fpexception(mint *accumulator, const mcomplex *data, mint count,
                                        const mint *strides, mint flags);

/* max: the largest element, NaN aside; the lowest value for none. */
TORVANE_API mint machfunc_i_max(mint *accumulator, const mint *data, mint count, const mint *strides,
                                mint flags);
TORVANE_API mint machfunc_d_max(mreal *accumulator, const mreal *data, mint count, const mint *strides,
                                mint flags);

/* min: the smallest element, NaN aside; the highest value for none. */
TORVANE_API mint machfunc_i_min(mint *accumulator, const mint *data, mint count, const mint *strides,
                                mint flags);
TORVANE_API mint machfunc_d_min(mreal *accumulator, const mreal *data, mint count, const mint *strides,
                                mint flags);

/* minmax: the smallest and the largest element in two accumulators, as min and max. */
TORVANE_API mint machfunc_i_minmax(mint *accumulator, const mint *data, mint count, const mint *strides,
                                   mint flags);
TORVANE_API mint machfunc_d_minmax(mreal *accumulator, const mreal *data, mint count, const mint *strides,
                                   mint flags);

/* maxabs: the largest abs x, NaN aside; 0 for none. */
TORVANE_API mint machfunc_i_maxabs(mint *accumulator, const mint *data, mint count, const mint *strides,
                                   mint flags);
TORVANE_API mint machfunc_d_maxabs(mreal *accumulator, const mreal *data, mint count, const mint *strides,
                                   mint flags);
TORVANE_API mint machfunc_c_maxabs(mreal *accumulator, const mcomplex *data, mint count,
                                   const mint *strides, mint flags);

TORVANE_END_DECLARATIONS

#endif

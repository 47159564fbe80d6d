/* The typed entries: every scalar operator over thirteen element types, plain and checked.
 *
 * Integers, Real32 and Real64 pass and return by value. Real16 passes as its 16-bit pattern and
 * comes back through a leading pointer, which is also returned. Complexes pass as (re, im) and come
 * back through leading pointers to the two parts, the first of which is returned. Results may share
 * storage with nothing. A failing entry raises its code (failure.h) and stores nothing; in style 1 it
 * returns an arbitrary value, or its first pointer. Codes before a semicolon are raised by both forms;
 * codes 1 of checked forms stand for a result outside its integer type or equal to the most negative
 * value, 6 and 9 for an infinite and a NaN result. All entries are pure and may be called from any
 * thread. Compilers that inline them find the same entries in scalars_inline.hpp (C++20) and, as LLVM
 * bitcode, in torvane_scalars.bc.
 *
 * Generated from src/scalar/operators.def by tools/generate; not to be edited. */
#ifndef TORVANE_SCALARS_H
#define TORVANE_SCALARS_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

/* minus: -x.
 * Codes: signed integers checked 1 - unsigned no test - reals no test - complexes no test. */
TORVANE_API int8_t unary_minus_Integer8(int8_t x);
TORVANE_API uint8_t unary_minus_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_minus_Integer16(int16_t x);
TORVANE_API uint16_t unary_minus_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_minus_Integer32(int32_t x);
TORVANE_API uint32_t unary_minus_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_minus_Integer64(int64_t x);
TORVANE_API uint64_t unary_minus_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_minus_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_minus_Real32(float x);
TORVANE_API double unary_minus_Real64(double x);
TORVANE_API float *unary_minus_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_minus_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_minus_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_minus_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_minus_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_minus_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_minus_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_minus_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_minus_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_minus_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_minus_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_minus_Real32(float x);
TORVANE_API double checked_unary_minus_Real64(double x);
TORVANE_API float *checked_unary_minus_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_minus_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* square: x * x.
 * Codes: integers checked 1 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t unary_square_Integer8(int8_t x);
TORVANE_API uint8_t unary_square_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_square_Integer16(int16_t x);
TORVANE_API uint16_t unary_square_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_square_Integer32(int32_t x);
TORVANE_API uint32_t unary_square_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_square_Integer64(int64_t x);
TORVANE_API uint64_t unary_square_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_square_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_square_Real32(float x);
TORVANE_API double unary_square_Real64(double x);
TORVANE_API float *unary_square_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_square_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_square_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_square_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_square_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_square_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_square_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_square_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_square_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_square_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_square_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_square_Real32(float x);
TORVANE_API double checked_unary_square_Real64(double x);
TORVANE_API float *checked_unary_square_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_square_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* recip: 1 / x.
 * Codes: integers code 17 - reals checked 6, 9 - complexes 16; checked 6, 9. */
TORVANE_API int8_t unary_recip_Integer8(int8_t x);
TORVANE_API uint8_t unary_recip_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_recip_Integer16(int16_t x);
TORVANE_API uint16_t unary_recip_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_recip_Integer32(int32_t x);
TORVANE_API uint32_t unary_recip_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_recip_Integer64(int64_t x);
TORVANE_API uint64_t unary_recip_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_recip_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_recip_Real32(float x);
TORVANE_API double unary_recip_Real64(double x);
TORVANE_API float *unary_recip_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_recip_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_recip_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_recip_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_recip_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_recip_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_recip_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_recip_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_recip_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_recip_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_recip_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_recip_Real32(float x);
TORVANE_API double checked_unary_recip_Real64(double x);
TORVANE_API float *checked_unary_recip_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_recip_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* abs: the absolute value; of a complex, the modulus.
 * Codes: signed integers checked 1 - unsigned no test - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t unary_abs_Integer8(int8_t x);
TORVANE_API uint8_t unary_abs_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_abs_Integer16(int16_t x);
TORVANE_API uint16_t unary_abs_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_abs_Integer32(int32_t x);
TORVANE_API uint32_t unary_abs_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_abs_Integer64(int64_t x);
TORVANE_API uint64_t unary_abs_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_abs_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_abs_Real32(float x);
TORVANE_API double unary_abs_Real64(double x);
TORVANE_API float unary_abs_ComplexReal32(float x_re, float x_im);
TORVANE_API double unary_abs_ComplexReal64(double x_re, double x_im);
TORVANE_API int8_t checked_unary_abs_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_abs_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_abs_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_abs_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_abs_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_abs_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_abs_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_abs_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_abs_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_abs_Real32(float x);
TORVANE_API double checked_unary_abs_Real64(double x);
TORVANE_API float checked_unary_abs_ComplexReal32(float x_re, float x_im);
TORVANE_API double checked_unary_abs_ComplexReal64(double x_re, double x_im);

/* abssquare: x * x; of a complex, re * re + im * im.
 * Codes: integers checked 1 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t unary_abssquare_Integer8(int8_t x);
TORVANE_API uint8_t unary_abssquare_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_abssquare_Integer16(int16_t x);
TORVANE_API uint16_t unary_abssquare_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_abssquare_Integer32(int32_t x);
TORVANE_API uint32_t unary_abssquare_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_abssquare_Integer64(int64_t x);
TORVANE_API uint64_t unary_abssquare_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_abssquare_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_abssquare_Real32(float x);
TORVANE_API double unary_abssquare_Real64(double x);
TORVANE_API float unary_abssquare_ComplexReal32(float x_re, float x_im);
TORVANE_API double unary_abssquare_ComplexReal64(double x_re, double x_im);
TORVANE_API int8_t checked_unary_abssquare_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_abssquare_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_abssquare_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_abssquare_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_abssquare_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_abssquare_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_abssquare_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_abssquare_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_abssquare_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_abssquare_Real32(float x);
TORVANE_API double checked_unary_abssquare_Real64(double x);
TORVANE_API float checked_unary_abssquare_ComplexReal32(float x_re, float x_im);
TORVANE_API double checked_unary_abssquare_ComplexReal64(double x_re, double x_im);

/* arg: the argument; of an integer or real, 0 unless negative.
 * Codes: signed integers 14 - unsigned no test - reals 14 - complexes no test. */
TORVANE_API int8_t unary_arg_Integer8(int8_t x);
TORVANE_API uint8_t unary_arg_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_arg_Integer16(int16_t x);
TORVANE_API uint16_t unary_arg_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_arg_Integer32(int32_t x);
TORVANE_API uint32_t unary_arg_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_arg_Integer64(int64_t x);
TORVANE_API uint64_t unary_arg_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_arg_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_arg_Real32(float x);
TORVANE_API double unary_arg_Real64(double x);
TORVANE_API float unary_arg_ComplexReal32(float x_re, float x_im);
TORVANE_API double unary_arg_ComplexReal64(double x_re, double x_im);
TORVANE_API int8_t checked_unary_arg_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_arg_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_arg_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_arg_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_arg_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_arg_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_arg_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_arg_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_arg_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_arg_Real32(float x);
TORVANE_API double checked_unary_arg_Real64(double x);
TORVANE_API float checked_unary_arg_ComplexReal32(float x_re, float x_im);
TORVANE_API double checked_unary_arg_ComplexReal64(double x_re, double x_im);

/* conj: the complex conjugate.
 * Codes: integers no test - reals no test - complexes no test. */
TORVANE_API int8_t unary_conj_Integer8(int8_t x);
TORVANE_API uint8_t unary_conj_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_conj_Integer16(int16_t x);
TORVANE_API uint16_t unary_conj_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_conj_Integer32(int32_t x);
TORVANE_API uint32_t unary_conj_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_conj_Integer64(int64_t x);
TORVANE_API uint64_t unary_conj_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_conj_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_conj_Real32(float x);
TORVANE_API double unary_conj_Real64(double x);
TORVANE_API float *unary_conj_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_conj_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_conj_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_conj_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_conj_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_conj_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_conj_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_conj_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_conj_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_conj_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_conj_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_conj_Real32(float x);
TORVANE_API double checked_unary_conj_Real64(double x);
TORVANE_API float *checked_unary_conj_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_conj_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* im: the imaginary part.
 * Codes: integers no test - reals no test - complexes no test. */
TORVANE_API int8_t unary_im_Integer8(int8_t x);
TORVANE_API uint8_t unary_im_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_im_Integer16(int16_t x);
TORVANE_API uint16_t unary_im_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_im_Integer32(int32_t x);
TORVANE_API uint32_t unary_im_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_im_Integer64(int64_t x);
TORVANE_API uint64_t unary_im_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_im_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_im_Real32(float x);
TORVANE_API double unary_im_Real64(double x);
TORVANE_API float unary_im_ComplexReal32(float x_re, float x_im);
TORVANE_API double unary_im_ComplexReal64(double x_re, double x_im);
TORVANE_API int8_t checked_unary_im_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_im_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_im_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_im_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_im_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_im_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_im_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_im_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_im_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_im_Real32(float x);
TORVANE_API double checked_unary_im_Real64(double x);
TORVANE_API float checked_unary_im_ComplexReal32(float x_re, float x_im);
TORVANE_API double checked_unary_im_ComplexReal64(double x_re, double x_im);

/* re: the real part.
 * Codes: integers no test - reals no test - complexes no test. */
TORVANE_API int8_t unary_re_Integer8(int8_t x);
TORVANE_API uint8_t unary_re_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_re_Integer16(int16_t x);
TORVANE_API uint16_t unary_re_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_re_Integer32(int32_t x);
TORVANE_API uint32_t unary_re_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_re_Integer64(int64_t x);
TORVANE_API uint64_t unary_re_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_re_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_re_Real32(float x);
TORVANE_API double unary_re_Real64(double x);
TORVANE_API float unary_re_ComplexReal32(float x_re, float x_im);
TORVANE_API double unary_re_ComplexReal64(double x_re, double x_im);
TORVANE_API int8_t checked_unary_re_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_re_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_re_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_re_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_re_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_re_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_re_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_re_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_re_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_re_Real32(float x);
TORVANE_API double checked_unary_re_Real64(double x);
TORVANE_API float checked_unary_re_ComplexReal32(float x_re, float x_im);
TORVANE_API double checked_unary_re_ComplexReal64(double x_re, double x_im);

/* sign: -1, 0 or 1; of a complex, x / abs x, and 0 of 0.
 * Codes: integers no test - reals no test - complexes no test. */
TORVANE_API mint unary_sign_Integer8(int8_t x);
TORVANE_API mint unary_sign_UnsignedInteger8(uint8_t x);
TORVANE_API mint unary_sign_Integer16(int16_t x);
TORVANE_API mint unary_sign_UnsignedInteger16(uint16_t x);
TORVANE_API mint unary_sign_Integer32(int32_t x);
TORVANE_API mint unary_sign_UnsignedInteger32(uint32_t x);
TORVANE_API mint unary_sign_Integer64(int64_t x);
TORVANE_API mint unary_sign_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_sign_Real16(uint16_t x);
TORVANE_API mint unary_sign_Real32(float x);
TORVANE_API mint unary_sign_Real64(double x);
TORVANE_API float *unary_sign_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_sign_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API mint checked_unary_sign_Integer8(int8_t x);
TORVANE_API mint checked_unary_sign_UnsignedInteger8(uint8_t x);
TORVANE_API mint checked_unary_sign_Integer16(int16_t x);
TORVANE_API mint checked_unary_sign_UnsignedInteger16(uint16_t x);
TORVANE_API mint checked_unary_sign_Integer32(int32_t x);
TORVANE_API mint checked_unary_sign_UnsignedInteger32(uint32_t x);
TORVANE_API mint checked_unary_sign_Integer64(int64_t x);
TORVANE_API mint checked_unary_sign_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_sign_Real16(uint16_t x);
TORVANE_API mint checked_unary_sign_Real32(float x);
TORVANE_API mint checked_unary_sign_Real64(double x);
TORVANE_API float *checked_unary_sign_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_sign_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* copy: x itself.
 * Codes: integers no test - reals no test - complexes no test. */
TORVANE_API int8_t unary_copy_Integer8(int8_t x);
TORVANE_API uint8_t unary_copy_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_copy_Integer16(int16_t x);
TORVANE_API uint16_t unary_copy_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_copy_Integer32(int32_t x);
TORVANE_API uint32_t unary_copy_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_copy_Integer64(int64_t x);
TORVANE_API uint64_t unary_copy_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_copy_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_copy_Real32(float x);
TORVANE_API double unary_copy_Real64(double x);
TORVANE_API float *unary_copy_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_copy_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_copy_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_copy_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_copy_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_copy_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_copy_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_copy_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_copy_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_copy_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_copy_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_copy_Real32(float x);
TORVANE_API double checked_unary_copy_Real64(double x);
TORVANE_API float *checked_unary_copy_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_copy_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* zero: 0; the argument is not read.
 * Codes: integers no test - reals no test - complexes no test. */
TORVANE_API int8_t unary_zero_Integer8(int8_t x);
TORVANE_API uint8_t unary_zero_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_zero_Integer16(int16_t x);
TORVANE_API uint16_t unary_zero_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_zero_Integer32(int32_t x);
TORVANE_API uint32_t unary_zero_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_zero_Integer64(int64_t x);
TORVANE_API uint64_t unary_zero_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_zero_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_zero_Real32(float x);
TORVANE_API double unary_zero_Real64(double x);
TORVANE_API float *unary_zero_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_zero_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_zero_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_zero_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_zero_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_zero_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_zero_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_zero_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_zero_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_zero_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_zero_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_zero_Real32(float x);
TORVANE_API double checked_unary_zero_Real64(double x);
TORVANE_API float *checked_unary_zero_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_zero_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* one: 1; the argument is not read.
 * Codes: integers no test - reals no test - complexes no test. */
TORVANE_API int8_t unary_one_Integer8(int8_t x);
TORVANE_API uint8_t unary_one_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_one_Integer16(int16_t x);
TORVANE_API uint16_t unary_one_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_one_Integer32(int32_t x);
TORVANE_API uint32_t unary_one_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_one_Integer64(int64_t x);
TORVANE_API uint64_t unary_one_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_one_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_one_Real32(float x);
TORVANE_API double unary_one_Real64(double x);
TORVANE_API float *unary_one_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_one_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_one_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_one_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_one_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_one_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_one_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_one_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_one_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_one_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_one_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_one_Real32(float x);
TORVANE_API double checked_unary_one_Real64(double x);
TORVANE_API float *checked_unary_one_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_one_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* fpexception: 0; checked, 1 for an infinite or NaN value.
 * Codes: integers no test - reals no test - complexes no test. */
TORVANE_API mint unary_fpexception_Integer8(int8_t x);
TORVANE_API mint unary_fpexception_UnsignedInteger8(uint8_t x);
TORVANE_API mint unary_fpexception_Integer16(int16_t x);
TORVANE_API mint unary_fpexception_UnsignedInteger16(uint16_t x);
TORVANE_API mint unary_fpexception_Integer32(int32_t x);
TORVANE_API mint unary_fpexception_UnsignedInteger32(uint32_t x);
TORVANE_API mint unary_fpexception_Integer64(int64_t x);
TORVANE_API mint unary_fpexception_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_fpexception_Real16(uint16_t x);
TORVANE_API mint unary_fpexception_Real32(float x);
TORVANE_API mint unary_fpexception_Real64(double x);
TORVANE_API mint unary_fpexception_ComplexReal32(float x_re, float x_im);
TORVANE_API mint unary_fpexception_ComplexReal64(double x_re, double x_im);
TORVANE_API mint checked_unary_fpexception_Integer8(int8_t x);
TORVANE_API mint checked_unary_fpexception_UnsignedInteger8(uint8_t x);
TORVANE_API mint checked_unary_fpexception_Integer16(int16_t x);
TORVANE_API mint checked_unary_fpexception_UnsignedInteger16(uint16_t x);
TORVANE_API mint checked_unary_fpexception_Integer32(int32_t x);
TORVANE_API mint checked_unary_fpexception_UnsignedInteger32(uint32_t x);
TORVANE_API mint checked_unary_fpexception_Integer64(int64_t x);
TORVANE_API mint checked_unary_fpexception_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_fpexception_Real16(uint16_t x);
TORVANE_API mint checked_unary_fpexception_Real32(float x);
TORVANE_API mint checked_unary_fpexception_Real64(double x);
TORVANE_API mint checked_unary_fpexception_ComplexReal32(float x_re, float x_im);
TORVANE_API mint checked_unary_fpexception_ComplexReal64(double x_re, double x_im);

/* pos: x > 0, as 1 or 0.
 * Codes: integers no test - reals no test - complexes code 17. */
TORVANE_API mint unary_pos_Integer8(int8_t x);
TORVANE_API mint unary_pos_UnsignedInteger8(uint8_t x);
TORVANE_API mint unary_pos_Integer16(int16_t x);
TORVANE_API mint unary_pos_UnsignedInteger16(uint16_t x);
TORVANE_API mint unary_pos_Integer32(int32_t x);
TORVANE_API mint unary_pos_UnsignedInteger32(uint32_t x);
TORVANE_API mint unary_pos_Integer64(int64_t x);
TORVANE_API mint unary_pos_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_pos_Real16(uint16_t x);
TORVANE_API mint unary_pos_Real32(float x);
TORVANE_API mint unary_pos_Real64(double x);
TORVANE_API mint unary_pos_ComplexReal32(float x_re, float x_im);
TORVANE_API mint unary_pos_ComplexReal64(double x_re, double x_im);
TORVANE_API mint checked_unary_pos_Integer8(int8_t x);
TORVANE_API mint checked_unary_pos_UnsignedInteger8(uint8_t x);
TORVANE_API mint checked_unary_pos_Integer16(int16_t x);
TORVANE_API mint checked_unary_pos_UnsignedInteger16(uint16_t x);
TORVANE_API mint checked_unary_pos_Integer32(int32_t x);
TORVANE_API mint checked_unary_pos_UnsignedInteger32(uint32_t x);
TORVANE_API mint checked_unary_pos_Integer64(int64_t x);
TORVANE_API mint checked_unary_pos_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_pos_Real16(uint16_t x);
TORVANE_API mint checked_unary_pos_Real32(float x);
TORVANE_API mint checked_unary_pos_Real64(double x);
TORVANE_API mint checked_unary_pos_ComplexReal32(float x_re, float x_im);
TORVANE_API mint checked_unary_pos_ComplexReal64(double x_re, double x_im);

/* neg: x < 0, as 1 or 0.
 * Codes: integers no test - reals no test - complexes code 17. */
TORVANE_API mint unary_neg_Integer8(int8_t x);
TORVANE_API mint unary_neg_UnsignedInteger8(uint8_t x);
TORVANE_API mint unary_neg_Integer16(int16_t x);
TORVANE_API mint unary_neg_UnsignedInteger16(uint16_t x);
TORVANE_API mint unary_neg_Integer32(int32_t x);
TORVANE_API mint unary_neg_UnsignedInteger32(uint32_t x);
TORVANE_API mint unary_neg_Integer64(int64_t x);
TORVANE_API mint unary_neg_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_neg_Real16(uint16_t x);
TORVANE_API mint unary_neg_Real32(float x);
TORVANE_API mint unary_neg_Real64(double x);
TORVANE_API mint unary_neg_ComplexReal32(float x_re, float x_im);
TORVANE_API mint unary_neg_ComplexReal64(double x_re, double x_im);
TORVANE_API mint checked_unary_neg_Integer8(int8_t x);
TORVANE_API mint checked_unary_neg_UnsignedInteger8(uint8_t x);
TORVANE_API mint checked_unary_neg_Integer16(int16_t x);
TORVANE_API mint checked_unary_neg_UnsignedInteger16(uint16_t x);
TORVANE_API mint checked_unary_neg_Integer32(int32_t x);
TORVANE_API mint checked_unary_neg_UnsignedInteger32(uint32_t x);
TORVANE_API mint checked_unary_neg_Integer64(int64_t x);
TORVANE_API mint checked_unary_neg_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_neg_Real16(uint16_t x);
TORVANE_API mint checked_unary_neg_Real32(float x);
TORVANE_API mint checked_unary_neg_Real64(double x);
TORVANE_API mint checked_unary_neg_ComplexReal32(float x_re, float x_im);
TORVANE_API mint checked_unary_neg_ComplexReal64(double x_re, double x_im);

/* npos: x <= 0, as 1 or 0.
 * Codes: integers no test - reals no test - complexes code 17. */
TORVANE_API mint unary_npos_Integer8(int8_t x);
TORVANE_API mint unary_npos_UnsignedInteger8(uint8_t x);
TORVANE_API mint unary_npos_Integer16(int16_t x);
TORVANE_API mint unary_npos_UnsignedInteger16(uint16_t x);
TORVANE_API mint unary_npos_Integer32(int32_t x);
TORVANE_API mint unary_npos_UnsignedInteger32(uint32_t x);
TORVANE_API mint unary_npos_Integer64(int64_t x);
TORVANE_API mint unary_npos_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_npos_Real16(uint16_t x);
TORVANE_API mint unary_npos_Real32(float x);
TORVANE_API mint unary_npos_Real64(double x);
TORVANE_API mint unary_npos_ComplexReal32(float x_re, float x_im);
TORVANE_API mint unary_npos_ComplexReal64(double x_re, double x_im);
TORVANE_API mint checked_unary_npos_Integer8(int8_t x);
TORVANE_API mint checked_unary_npos_UnsignedInteger8(uint8_t x);
TORVANE_API mint checked_unary_npos_Integer16(int16_t x);
TORVANE_API mint checked_unary_npos_UnsignedInteger16(uint16_t x);
TORVANE_API mint checked_unary_npos_Integer32(int32_t x);
TORVANE_API mint checked_unary_npos_UnsignedInteger32(uint32_t x);
TORVANE_API mint checked_unary_npos_Integer64(int64_t x);
TORVANE_API mint checked_unary_npos_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_npos_Real16(uint16_t x);
TORVANE_API mint checked_unary_npos_Real32(float x);
TORVANE_API mint checked_unary_npos_Real64(double x);
TORVANE_API mint checked_unary_npos_ComplexReal32(float x_re, float x_im);
TORVANE_API mint checked_unary_npos_ComplexReal64(double x_re, double x_im);

/* nneg: x >= 0, as 1 or 0.
 * Codes: integers no test - reals no test - complexes code 17. */
TORVANE_API mint unary_nneg_Integer8(int8_t x);
TORVANE_API mint unary_nneg_UnsignedInteger8(uint8_t x);
TORVANE_API mint unary_nneg_Integer16(int16_t x);
TORVANE_API mint unary_nneg_UnsignedInteger16(uint16_t x);
TORVANE_API mint unary_nneg_Integer32(int32_t x);
TORVANE_API mint unary_nneg_UnsignedInteger32(uint32_t x);
TORVANE_API mint unary_nneg_Integer64(int64_t x);
TORVANE_API mint unary_nneg_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_nneg_Real16(uint16_t x);
TORVANE_API mint unary_nneg_Real32(float x);
TORVANE_API mint unary_nneg_Real64(double x);
TORVANE_API mint unary_nneg_ComplexReal32(float x_re, float x_im);
TORVANE_API mint unary_nneg_ComplexReal64(double x_re, double x_im);
TORVANE_API mint checked_unary_nneg_Integer8(int8_t x);
TORVANE_API mint checked_unary_nneg_UnsignedInteger8(uint8_t x);
TORVANE_API mint checked_unary_nneg_Integer16(int16_t x);
TORVANE_API mint checked_unary_nneg_UnsignedInteger16(uint16_t x);
TORVANE_API mint checked_unary_nneg_Integer32(int32_t x);
TORVANE_API mint checked_unary_nneg_UnsignedInteger32(uint32_t x);
TORVANE_API mint checked_unary_nneg_Integer64(int64_t x);
TORVANE_API mint checked_unary_nneg_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_nneg_Real16(uint16_t x);
TORVANE_API mint checked_unary_nneg_Real32(float x);
TORVANE_API mint checked_unary_nneg_Real64(double x);
TORVANE_API mint checked_unary_nneg_ComplexReal32(float x_re, float x_im);
TORVANE_API mint checked_unary_nneg_ComplexReal64(double x_re, double x_im);

/* unitize: 1 unless x is 0.
 * Codes: integers no test - reals no test - complexes no test. */
TORVANE_API mint unary_unitize_Integer8(int8_t x);
TORVANE_API mint unary_unitize_UnsignedInteger8(uint8_t x);
TORVANE_API mint unary_unitize_Integer16(int16_t x);
TORVANE_API mint unary_unitize_UnsignedInteger16(uint16_t x);
TORVANE_API mint unary_unitize_Integer32(int32_t x);
TORVANE_API mint unary_unitize_UnsignedInteger32(uint32_t x);
TORVANE_API mint unary_unitize_Integer64(int64_t x);
TORVANE_API mint unary_unitize_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_unitize_Real16(uint16_t x);
TORVANE_API mint unary_unitize_Real32(float x);
TORVANE_API mint unary_unitize_Real64(double x);
TORVANE_API mint unary_unitize_ComplexReal32(float x_re, float x_im);
TORVANE_API mint unary_unitize_ComplexReal64(double x_re, double x_im);
TORVANE_API mint checked_unary_unitize_Integer8(int8_t x);
TORVANE_API mint checked_unary_unitize_UnsignedInteger8(uint8_t x);
TORVANE_API mint checked_unary_unitize_Integer16(int16_t x);
TORVANE_API mint checked_unary_unitize_UnsignedInteger16(uint16_t x);
TORVANE_API mint checked_unary_unitize_Integer32(int32_t x);
TORVANE_API mint checked_unary_unitize_UnsignedInteger32(uint32_t x);
TORVANE_API mint checked_unary_unitize_Integer64(int64_t x);
TORVANE_API mint checked_unary_unitize_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_unitize_Real16(uint16_t x);
TORVANE_API mint checked_unary_unitize_Real32(float x);
TORVANE_API mint checked_unary_unitize_Real64(double x);
TORVANE_API mint checked_unary_unitize_ComplexReal32(float x_re, float x_im);
TORVANE_API mint checked_unary_unitize_ComplexReal64(double x_re, double x_im);

/* ramp: the larger of x and 0.
 * Codes: integers no test - reals no test - complexes code 17. */
TORVANE_API int8_t unary_ramp_Integer8(int8_t x);
TORVANE_API uint8_t unary_ramp_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_ramp_Integer16(int16_t x);
TORVANE_API uint16_t unary_ramp_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_ramp_Integer32(int32_t x);
TORVANE_API uint32_t unary_ramp_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_ramp_Integer64(int64_t x);
TORVANE_API uint64_t unary_ramp_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_ramp_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_ramp_Real32(float x);
TORVANE_API double unary_ramp_Real64(double x);
TORVANE_API float *unary_ramp_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_ramp_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_ramp_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_ramp_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_ramp_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_ramp_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_ramp_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_ramp_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_ramp_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_ramp_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_ramp_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_ramp_Real32(float x);
TORVANE_API double checked_unary_ramp_Real64(double x);
TORVANE_API float *checked_unary_ramp_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_ramp_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* evenq: 1 for an even x, else 0.
 * Codes: integers no test - reals code 17 - complexes code 17. */
TORVANE_API mint unary_evenq_Integer8(int8_t x);
TORVANE_API mint unary_evenq_UnsignedInteger8(uint8_t x);
TORVANE_API mint unary_evenq_Integer16(int16_t x);
TORVANE_API mint unary_evenq_UnsignedInteger16(uint16_t x);
TORVANE_API mint unary_evenq_Integer32(int32_t x);
TORVANE_API mint unary_evenq_UnsignedInteger32(uint32_t x);
TORVANE_API mint unary_evenq_Integer64(int64_t x);
TORVANE_API mint unary_evenq_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_evenq_Real16(uint16_t x);
TORVANE_API mint unary_evenq_Real32(float x);
TORVANE_API mint unary_evenq_Real64(double x);
TORVANE_API mint unary_evenq_ComplexReal32(float x_re, float x_im);
TORVANE_API mint unary_evenq_ComplexReal64(double x_re, double x_im);
TORVANE_API mint checked_unary_evenq_Integer8(int8_t x);
TORVANE_API mint checked_unary_evenq_UnsignedInteger8(uint8_t x);
TORVANE_API mint checked_unary_evenq_Integer16(int16_t x);
TORVANE_API mint checked_unary_evenq_UnsignedInteger16(uint16_t x);
TORVANE_API mint checked_unary_evenq_Integer32(int32_t x);
TORVANE_API mint checked_unary_evenq_UnsignedInteger32(uint32_t x);
TORVANE_API mint checked_unary_evenq_Integer64(int64_t x);
TORVANE_API mint checked_unary_evenq_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_evenq_Real16(uint16_t x);
TORVANE_API mint checked_unary_evenq_Real32(float x);
TORVANE_API mint checked_unary_evenq_Real64(double x);
TORVANE_API mint checked_unary_evenq_ComplexReal32(float x_re, float x_im);
TORVANE_API mint checked_unary_evenq_ComplexReal64(double x_re, double x_im);

/* oddq: 1 for an odd x, else 0.
 * Codes: integers no test - reals code 17 - complexes code 17. */
TORVANE_API mint unary_oddq_Integer8(int8_t x);
TORVANE_API mint unary_oddq_UnsignedInteger8(uint8_t x);
TORVANE_API mint unary_oddq_Integer16(int16_t x);
TORVANE_API mint unary_oddq_UnsignedInteger16(uint16_t x);
TORVANE_API mint unary_oddq_Integer32(int32_t x);
TORVANE_API mint unary_oddq_UnsignedInteger32(uint32_t x);
TORVANE_API mint unary_oddq_Integer64(int64_t x);
TORVANE_API mint unary_oddq_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_oddq_Real16(uint16_t x);
TORVANE_API mint unary_oddq_Real32(float x);
TORVANE_API mint unary_oddq_Real64(double x);
TORVANE_API mint unary_oddq_ComplexReal32(float x_re, float x_im);
TORVANE_API mint unary_oddq_ComplexReal64(double x_re, double x_im);
TORVANE_API mint checked_unary_oddq_Integer8(int8_t x);
TORVANE_API mint checked_unary_oddq_UnsignedInteger8(uint8_t x);
TORVANE_API mint checked_unary_oddq_Integer16(int16_t x);
TORVANE_API mint checked_unary_oddq_UnsignedInteger16(uint16_t x);
TORVANE_API mint checked_unary_oddq_Integer32(int32_t x);
TORVANE_API mint checked_unary_oddq_UnsignedInteger32(uint32_t x);
TORVANE_API mint checked_unary_oddq_Integer64(int64_t x);
TORVANE_API mint checked_unary_oddq_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_oddq_Real16(uint16_t x);
TORVANE_API mint checked_unary_oddq_Real32(float x);
TORVANE_API mint checked_unary_oddq_Real64(double x);
TORVANE_API mint checked_unary_oddq_ComplexReal32(float x_re, float x_im);
TORVANE_API mint checked_unary_oddq_ComplexReal64(double x_re, double x_im);

/* bit_not: the bitwise complement.
 * Codes: signed integers checked 1 - unsigned no test - reals code 17 - complexes code 17. */
TORVANE_API int8_t unary_bit_not_Integer8(int8_t x);
TORVANE_API uint8_t unary_bit_not_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_bit_not_Integer16(int16_t x);
TORVANE_API uint16_t unary_bit_not_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_bit_not_Integer32(int32_t x);
TORVANE_API uint32_t unary_bit_not_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_bit_not_Integer64(int64_t x);
TORVANE_API uint64_t unary_bit_not_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_bit_not_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_bit_not_Real32(float x);
TORVANE_API double unary_bit_not_Real64(double x);
TORVANE_API float *unary_bit_not_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_bit_not_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_bit_not_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_bit_not_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_bit_not_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_bit_not_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_bit_not_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_bit_not_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_bit_not_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_bit_not_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_bit_not_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_bit_not_Real32(float x);
TORVANE_API double checked_unary_bit_not_Real64(double x);
TORVANE_API float *checked_unary_bit_not_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_bit_not_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* bit_length: the bits that x needs; of a negative x, those of its complement.
 * Codes: integers no test - reals code 17 - complexes code 17. */
TORVANE_API mint unary_bit_length_Integer8(int8_t x);
TORVANE_API mint unary_bit_length_UnsignedInteger8(uint8_t x);
TORVANE_API mint unary_bit_length_Integer16(int16_t x);
TORVANE_API mint unary_bit_length_UnsignedInteger16(uint16_t x);
TORVANE_API mint unary_bit_length_Integer32(int32_t x);
TORVANE_API mint unary_bit_length_UnsignedInteger32(uint32_t x);
TORVANE_API mint unary_bit_length_Integer64(int64_t x);
TORVANE_API mint unary_bit_length_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_bit_length_Real16(uint16_t x);
TORVANE_API mint unary_bit_length_Real32(float x);
TORVANE_API mint unary_bit_length_Real64(double x);
TORVANE_API mint unary_bit_length_ComplexReal32(float x_re, float x_im);
TORVANE_API mint unary_bit_length_ComplexReal64(double x_re, double x_im);
TORVANE_API mint checked_unary_bit_length_Integer8(int8_t x);
TORVANE_API mint checked_unary_bit_length_UnsignedInteger8(uint8_t x);
TORVANE_API mint checked_unary_bit_length_Integer16(int16_t x);
TORVANE_API mint checked_unary_bit_length_UnsignedInteger16(uint16_t x);
TORVANE_API mint checked_unary_bit_length_Integer32(int32_t x);
TORVANE_API mint checked_unary_bit_length_UnsignedInteger32(uint32_t x);
TORVANE_API mint checked_unary_bit_length_Integer64(int64_t x);
TORVANE_API mint checked_unary_bit_length_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_bit_length_Real16(uint16_t x);
TORVANE_API mint checked_unary_bit_length_Real32(float x);
TORVANE_API mint checked_unary_bit_length_Real64(double x);
TORVANE_API mint checked_unary_bit_length_ComplexReal32(float x_re, float x_im);
TORVANE_API mint checked_unary_bit_length_ComplexReal64(double x_re, double x_im);

/* bit_count: the number of 1 bits.
 * Codes: integers no test - reals code 17 - complexes code 17. */
TORVANE_API mint unary_bit_count_Integer8(int8_t x);
TORVANE_API mint unary_bit_count_UnsignedInteger8(uint8_t x);
TORVANE_API mint unary_bit_count_Integer16(int16_t x);
TORVANE_API mint unary_bit_count_UnsignedInteger16(uint16_t x);
TORVANE_API mint unary_bit_count_Integer32(int32_t x);
TORVANE_API mint unary_bit_count_UnsignedInteger32(uint32_t x);
TORVANE_API mint unary_bit_count_Integer64(int64_t x);
TORVANE_API mint unary_bit_count_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_bit_count_Real16(uint16_t x);
TORVANE_API mint unary_bit_count_Real32(float x);
TORVANE_API mint unary_bit_count_Real64(double x);
TORVANE_API mint unary_bit_count_ComplexReal32(float x_re, float x_im);
TORVANE_API mint unary_bit_count_ComplexReal64(double x_re, double x_im);
TORVANE_API mint checked_unary_bit_count_Integer8(int8_t x);
TORVANE_API mint checked_unary_bit_count_UnsignedInteger8(uint8_t x);
TORVANE_API mint checked_unary_bit_count_Integer16(int16_t x);
TORVANE_API mint checked_unary_bit_count_UnsignedInteger16(uint16_t x);
TORVANE_API mint checked_unary_bit_count_Integer32(int32_t x);
TORVANE_API mint checked_unary_bit_count_UnsignedInteger32(uint32_t x);
TORVANE_API mint checked_unary_bit_count_Integer64(int64_t x);
TORVANE_API mint checked_unary_bit_count_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_bit_count_Real16(uint16_t x);
TORVANE_API mint checked_unary_bit_count_Real32(float x);
TORVANE_API mint checked_unary_bit_count_Real64(double x);
TORVANE_API mint checked_unary_bit_count_ComplexReal32(float x_re, float x_im);
TORVANE_API mint checked_unary_bit_count_ComplexReal64(double x_re, double x_im);

/* sqrt: the square root of x; of a complex, the root in the right half plane.
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_sqrt_Integer8(int8_t x);
TORVANE_API uint8_t unary_sqrt_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_sqrt_Integer16(int16_t x);
TORVANE_API uint16_t unary_sqrt_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_sqrt_Integer32(int32_t x);
TORVANE_API uint32_t unary_sqrt_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_sqrt_Integer64(int64_t x);
TORVANE_API uint64_t unary_sqrt_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_sqrt_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_sqrt_Real32(float x);
TORVANE_API double unary_sqrt_Real64(double x);
TORVANE_API float *unary_sqrt_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_sqrt_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_sqrt_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_sqrt_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_sqrt_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_sqrt_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_sqrt_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_sqrt_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_sqrt_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_sqrt_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_sqrt_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_sqrt_Real32(float x);
TORVANE_API double checked_unary_sqrt_Real64(double x);
TORVANE_API float *checked_unary_sqrt_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_sqrt_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* cbrt: the real cube root.
 * Codes: integers code 17 - reals no test - complexes code 17. */
TORVANE_API int8_t unary_cbrt_Integer8(int8_t x);
TORVANE_API uint8_t unary_cbrt_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_cbrt_Integer16(int16_t x);
TORVANE_API uint16_t unary_cbrt_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_cbrt_Integer32(int32_t x);
TORVANE_API uint32_t unary_cbrt_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_cbrt_Integer64(int64_t x);
TORVANE_API uint64_t unary_cbrt_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_cbrt_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_cbrt_Real32(float x);
TORVANE_API double unary_cbrt_Real64(double x);
TORVANE_API float *unary_cbrt_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_cbrt_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_cbrt_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_cbrt_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_cbrt_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_cbrt_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_cbrt_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_cbrt_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_cbrt_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_cbrt_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_cbrt_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_cbrt_Real32(float x);
TORVANE_API double checked_unary_cbrt_Real64(double x);
TORVANE_API float *checked_unary_cbrt_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_cbrt_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* rsqrt: 1 / sqrt x.
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_rsqrt_Integer8(int8_t x);
TORVANE_API uint8_t unary_rsqrt_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_rsqrt_Integer16(int16_t x);
TORVANE_API uint16_t unary_rsqrt_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_rsqrt_Integer32(int32_t x);
TORVANE_API uint32_t unary_rsqrt_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_rsqrt_Integer64(int64_t x);
TORVANE_API uint64_t unary_rsqrt_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_rsqrt_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_rsqrt_Real32(float x);
TORVANE_API double unary_rsqrt_Real64(double x);
TORVANE_API float *unary_rsqrt_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_rsqrt_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_rsqrt_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_rsqrt_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_rsqrt_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_rsqrt_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_rsqrt_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_rsqrt_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_rsqrt_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_rsqrt_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_rsqrt_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_rsqrt_Real32(float x);
TORVANE_API double checked_unary_rsqrt_Real64(double x);
TORVANE_API float *checked_unary_rsqrt_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_rsqrt_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* round: x rounded to the nearest integer, ties to even.
 * Codes: integers no test - reals 1 - complexes code 17. */
TORVANE_API int8_t unary_round_Integer8(int8_t x);
TORVANE_API uint8_t unary_round_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_round_Integer16(int16_t x);
TORVANE_API uint16_t unary_round_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_round_Integer32(int32_t x);
TORVANE_API uint32_t unary_round_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_round_Integer64(int64_t x);
TORVANE_API uint64_t unary_round_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_round_Real16(uint16_t x);
TORVANE_API mint unary_round_Real32(float x);
TORVANE_API mint unary_round_Real64(double x);
TORVANE_API float *unary_round_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_round_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_round_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_round_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_round_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_round_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_round_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_round_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_round_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_round_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_round_Real16(uint16_t x);
TORVANE_API mint checked_unary_round_Real32(float x);
TORVANE_API mint checked_unary_round_Real64(double x);
TORVANE_API float *checked_unary_round_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_round_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* floor: the largest integer not above x.
 * Codes: integers no test - reals 1 - complexes code 17. */
TORVANE_API int8_t unary_floor_Integer8(int8_t x);
TORVANE_API uint8_t unary_floor_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_floor_Integer16(int16_t x);
TORVANE_API uint16_t unary_floor_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_floor_Integer32(int32_t x);
TORVANE_API uint32_t unary_floor_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_floor_Integer64(int64_t x);
TORVANE_API uint64_t unary_floor_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_floor_Real16(uint16_t x);
TORVANE_API mint unary_floor_Real32(float x);
TORVANE_API mint unary_floor_Real64(double x);
TORVANE_API float *unary_floor_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_floor_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_floor_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_floor_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_floor_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_floor_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_floor_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_floor_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_floor_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_floor_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_floor_Real16(uint16_t x);
TORVANE_API mint checked_unary_floor_Real32(float x);
TORVANE_API mint checked_unary_floor_Real64(double x);
TORVANE_API float *checked_unary_floor_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_floor_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* ceiling: the smallest integer not below x.
 * Codes: integers no test - reals 1 - complexes code 17. */
TORVANE_API int8_t unary_ceiling_Integer8(int8_t x);
TORVANE_API uint8_t unary_ceiling_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_ceiling_Integer16(int16_t x);
TORVANE_API uint16_t unary_ceiling_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_ceiling_Integer32(int32_t x);
TORVANE_API uint32_t unary_ceiling_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_ceiling_Integer64(int64_t x);
TORVANE_API uint64_t unary_ceiling_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_ceiling_Real16(uint16_t x);
TORVANE_API mint unary_ceiling_Real32(float x);
TORVANE_API mint unary_ceiling_Real64(double x);
TORVANE_API float *unary_ceiling_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_ceiling_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_ceiling_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_ceiling_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_ceiling_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_ceiling_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_ceiling_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_ceiling_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_ceiling_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_ceiling_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_ceiling_Real16(uint16_t x);
TORVANE_API mint checked_unary_ceiling_Real32(float x);
TORVANE_API mint checked_unary_ceiling_Real64(double x);
TORVANE_API float *checked_unary_ceiling_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_ceiling_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* intpart: x without its fraction.
 * Codes: integers no test - reals 1 - complexes code 17. */
TORVANE_API int8_t unary_intpart_Integer8(int8_t x);
TORVANE_API uint8_t unary_intpart_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_intpart_Integer16(int16_t x);
TORVANE_API uint16_t unary_intpart_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_intpart_Integer32(int32_t x);
TORVANE_API uint32_t unary_intpart_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_intpart_Integer64(int64_t x);
TORVANE_API uint64_t unary_intpart_UnsignedInteger64(uint64_t x);
TORVANE_API mint unary_intpart_Real16(uint16_t x);
TORVANE_API mint unary_intpart_Real32(float x);
TORVANE_API mint unary_intpart_Real64(double x);
TORVANE_API float *unary_intpart_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_intpart_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_intpart_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_intpart_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_intpart_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_intpart_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_intpart_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_intpart_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_intpart_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_intpart_UnsignedInteger64(uint64_t x);
TORVANE_API mint checked_unary_intpart_Real16(uint16_t x);
TORVANE_API mint checked_unary_intpart_Real32(float x);
TORVANE_API mint checked_unary_intpart_Real64(double x);
TORVANE_API float *checked_unary_intpart_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_intpart_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* fracpart: the fraction of x, with its sign.
 * Codes: integers no test - reals no test - complexes no test. */
TORVANE_API int8_t unary_fracpart_Integer8(int8_t x);
TORVANE_API uint8_t unary_fracpart_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_fracpart_Integer16(int16_t x);
TORVANE_API uint16_t unary_fracpart_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_fracpart_Integer32(int32_t x);
TORVANE_API uint32_t unary_fracpart_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_fracpart_Integer64(int64_t x);
TORVANE_API uint64_t unary_fracpart_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_fracpart_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_fracpart_Real32(float x);
TORVANE_API double unary_fracpart_Real64(double x);
TORVANE_API float *unary_fracpart_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_fracpart_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_fracpart_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_fracpart_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_fracpart_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_fracpart_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_fracpart_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_fracpart_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_fracpart_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_fracpart_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_fracpart_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_fracpart_Real32(float x);
TORVANE_API double checked_unary_fracpart_Real64(double x);
TORVANE_API float *checked_unary_fracpart_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_fracpart_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* mod1: the fraction of x above its floor.
 * Codes: integers no test - reals no test - complexes no test. */
TORVANE_API int8_t unary_mod1_Integer8(int8_t x);
TORVANE_API uint8_t unary_mod1_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_mod1_Integer16(int16_t x);
TORVANE_API uint16_t unary_mod1_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_mod1_Integer32(int32_t x);
TORVANE_API uint32_t unary_mod1_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_mod1_Integer64(int64_t x);
TORVANE_API uint64_t unary_mod1_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_mod1_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_mod1_Real32(float x);
TORVANE_API double unary_mod1_Real64(double x);
TORVANE_API float *unary_mod1_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_mod1_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_mod1_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_mod1_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_mod1_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_mod1_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_mod1_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_mod1_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_mod1_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_mod1_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_mod1_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_mod1_Real32(float x);
TORVANE_API double checked_unary_mod1_Real64(double x);
TORVANE_API float *checked_unary_mod1_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_mod1_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* exp: e to the power x.
 * Codes: integers code 17 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t unary_exp_Integer8(int8_t x);
TORVANE_API uint8_t unary_exp_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_exp_Integer16(int16_t x);
TORVANE_API uint16_t unary_exp_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_exp_Integer32(int32_t x);
TORVANE_API uint32_t unary_exp_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_exp_Integer64(int64_t x);
TORVANE_API uint64_t unary_exp_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_exp_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_exp_Real32(float x);
TORVANE_API double unary_exp_Real64(double x);
TORVANE_API float *unary_exp_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_exp_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_exp_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_exp_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_exp_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_exp_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_exp_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_exp_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_exp_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_exp_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_exp_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_exp_Real32(float x);
TORVANE_API double checked_unary_exp_Real64(double x);
TORVANE_API float *checked_unary_exp_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_exp_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* expm1: e to the power x, less 1.
 * Codes: integers code 17 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t unary_expm1_Integer8(int8_t x);
TORVANE_API uint8_t unary_expm1_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_expm1_Integer16(int16_t x);
TORVANE_API uint16_t unary_expm1_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_expm1_Integer32(int32_t x);
TORVANE_API uint32_t unary_expm1_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_expm1_Integer64(int64_t x);
TORVANE_API uint64_t unary_expm1_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_expm1_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_expm1_Real32(float x);
TORVANE_API double unary_expm1_Real64(double x);
TORVANE_API float *unary_expm1_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_expm1_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_expm1_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_expm1_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_expm1_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_expm1_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_expm1_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_expm1_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_expm1_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_expm1_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_expm1_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_expm1_Real32(float x);
TORVANE_API double checked_unary_expm1_Real64(double x);
TORVANE_API float *checked_unary_expm1_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_expm1_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* log: the natural logarithm.
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_log_Integer8(int8_t x);
TORVANE_API uint8_t unary_log_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_log_Integer16(int16_t x);
TORVANE_API uint16_t unary_log_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_log_Integer32(int32_t x);
TORVANE_API uint32_t unary_log_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_log_Integer64(int64_t x);
TORVANE_API uint64_t unary_log_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_log_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_log_Real32(float x);
TORVANE_API double unary_log_Real64(double x);
TORVANE_API float *unary_log_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_log_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_log_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_log_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_log_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_log_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_log_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_log_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_log_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_log_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_log_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_log_Real32(float x);
TORVANE_API double checked_unary_log_Real64(double x);
TORVANE_API float *checked_unary_log_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_log_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* log1p: the natural logarithm of 1 + x.
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_log1p_Integer8(int8_t x);
TORVANE_API uint8_t unary_log1p_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_log1p_Integer16(int16_t x);
TORVANE_API uint16_t unary_log1p_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_log1p_Integer32(int32_t x);
TORVANE_API uint32_t unary_log1p_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_log1p_Integer64(int64_t x);
TORVANE_API uint64_t unary_log1p_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_log1p_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_log1p_Real32(float x);
TORVANE_API double unary_log1p_Real64(double x);
TORVANE_API float *unary_log1p_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_log1p_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_log1p_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_log1p_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_log1p_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_log1p_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_log1p_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_log1p_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_log1p_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_log1p_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_log1p_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_log1p_Real32(float x);
TORVANE_API double checked_unary_log1p_Real64(double x);
TORVANE_API float *checked_unary_log1p_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_log1p_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* log2: the base-2 logarithm; of an integer, exact.
 * Codes: integers 3, 14 - reals 14 - complexes 14; checked 6, 9. */
TORVANE_API int8_t unary_log2_Integer8(int8_t x);
TORVANE_API uint8_t unary_log2_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_log2_Integer16(int16_t x);
TORVANE_API uint16_t unary_log2_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_log2_Integer32(int32_t x);
TORVANE_API uint32_t unary_log2_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_log2_Integer64(int64_t x);
TORVANE_API uint64_t unary_log2_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_log2_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_log2_Real32(float x);
TORVANE_API double unary_log2_Real64(double x);
TORVANE_API float *unary_log2_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_log2_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_log2_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_log2_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_log2_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_log2_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_log2_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_log2_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_log2_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_log2_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_log2_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_log2_Real32(float x);
TORVANE_API double checked_unary_log2_Real64(double x);
TORVANE_API float *checked_unary_log2_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_log2_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* log10: the base-10 logarithm; of an integer, exact.
 * Codes: integers 3, 14 - reals 14 - complexes 14; checked 6, 9. */
TORVANE_API int8_t unary_log10_Integer8(int8_t x);
TORVANE_API uint8_t unary_log10_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_log10_Integer16(int16_t x);
TORVANE_API uint16_t unary_log10_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_log10_Integer32(int32_t x);
TORVANE_API uint32_t unary_log10_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_log10_Integer64(int64_t x);
TORVANE_API uint64_t unary_log10_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_log10_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_log10_Real32(float x);
TORVANE_API double unary_log10_Real64(double x);
TORVANE_API float *unary_log10_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_log10_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_log10_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_log10_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_log10_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_log10_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_log10_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_log10_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_log10_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_log10_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_log10_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_log10_Real32(float x);
TORVANE_API double checked_unary_log10_Real64(double x);
TORVANE_API float *checked_unary_log10_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_log10_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* sin: the sine.
 * Codes: integers code 17 - reals no test - complexes checked 6, 9. */
TORVANE_API int8_t unary_sin_Integer8(int8_t x);
TORVANE_API uint8_t unary_sin_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_sin_Integer16(int16_t x);
TORVANE_API uint16_t unary_sin_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_sin_Integer32(int32_t x);
TORVANE_API uint32_t unary_sin_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_sin_Integer64(int64_t x);
TORVANE_API uint64_t unary_sin_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_sin_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_sin_Real32(float x);
TORVANE_API double unary_sin_Real64(double x);
TORVANE_API float *unary_sin_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_sin_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_sin_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_sin_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_sin_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_sin_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_sin_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_sin_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_sin_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_sin_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_sin_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_sin_Real32(float x);
TORVANE_API double checked_unary_sin_Real64(double x);
TORVANE_API float *checked_unary_sin_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_sin_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* cos: the cosine.
 * Codes: integers code 17 - reals no test - complexes checked 6, 9. */
TORVANE_API int8_t unary_cos_Integer8(int8_t x);
TORVANE_API uint8_t unary_cos_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_cos_Integer16(int16_t x);
TORVANE_API uint16_t unary_cos_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_cos_Integer32(int32_t x);
TORVANE_API uint32_t unary_cos_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_cos_Integer64(int64_t x);
TORVANE_API uint64_t unary_cos_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_cos_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_cos_Real32(float x);
TORVANE_API double unary_cos_Real64(double x);
TORVANE_API float *unary_cos_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_cos_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_cos_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_cos_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_cos_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_cos_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_cos_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_cos_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_cos_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_cos_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_cos_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_cos_Real32(float x);
TORVANE_API double checked_unary_cos_Real64(double x);
TORVANE_API float *checked_unary_cos_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_cos_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* tan: the tangent.
 * Codes: integers code 17 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t unary_tan_Integer8(int8_t x);
TORVANE_API uint8_t unary_tan_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_tan_Integer16(int16_t x);
TORVANE_API uint16_t unary_tan_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_tan_Integer32(int32_t x);
TORVANE_API uint32_t unary_tan_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_tan_Integer64(int64_t x);
TORVANE_API uint64_t unary_tan_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_tan_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_tan_Real32(float x);
TORVANE_API double unary_tan_Real64(double x);
TORVANE_API float *unary_tan_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_tan_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_tan_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_tan_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_tan_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_tan_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_tan_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_tan_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_tan_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_tan_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_tan_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_tan_Real32(float x);
TORVANE_API double checked_unary_tan_Real64(double x);
TORVANE_API float *checked_unary_tan_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_tan_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* csc: 1 / sin x.
 * Codes: integers code 17 - reals checked 6, 9 - complexes 16; checked 6, 9. */
TORVANE_API int8_t unary_csc_Integer8(int8_t x);
TORVANE_API uint8_t unary_csc_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_csc_Integer16(int16_t x);
TORVANE_API uint16_t unary_csc_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_csc_Integer32(int32_t x);
TORVANE_API uint32_t unary_csc_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_csc_Integer64(int64_t x);
TORVANE_API uint64_t unary_csc_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_csc_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_csc_Real32(float x);
TORVANE_API double unary_csc_Real64(double x);
TORVANE_API float *unary_csc_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_csc_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_csc_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_csc_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_csc_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_csc_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_csc_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_csc_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_csc_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_csc_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_csc_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_csc_Real32(float x);
TORVANE_API double checked_unary_csc_Real64(double x);
TORVANE_API float *checked_unary_csc_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_csc_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* sec: 1 / cos x.
 * Codes: integers code 17 - reals checked 6, 9 - complexes 16; checked 6, 9. */
TORVANE_API int8_t unary_sec_Integer8(int8_t x);
TORVANE_API uint8_t unary_sec_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_sec_Integer16(int16_t x);
TORVANE_API uint16_t unary_sec_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_sec_Integer32(int32_t x);
TORVANE_API uint32_t unary_sec_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_sec_Integer64(int64_t x);
TORVANE_API uint64_t unary_sec_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_sec_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_sec_Real32(float x);
TORVANE_API double unary_sec_Real64(double x);
TORVANE_API float *unary_sec_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_sec_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_sec_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_sec_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_sec_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_sec_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_sec_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_sec_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_sec_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_sec_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_sec_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_sec_Real32(float x);
TORVANE_API double checked_unary_sec_Real64(double x);
TORVANE_API float *checked_unary_sec_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_sec_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* cot: 1 / tan x.
 * Codes: integers code 17 - reals checked 6, 9 - complexes 16; checked 6, 9. */
TORVANE_API int8_t unary_cot_Integer8(int8_t x);
TORVANE_API uint8_t unary_cot_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_cot_Integer16(int16_t x);
TORVANE_API uint16_t unary_cot_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_cot_Integer32(int32_t x);
TORVANE_API uint32_t unary_cot_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_cot_Integer64(int64_t x);
TORVANE_API uint64_t unary_cot_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_cot_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_cot_Real32(float x);
TORVANE_API double unary_cot_Real64(double x);
TORVANE_API float *unary_cot_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_cot_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_cot_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_cot_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_cot_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_cot_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_cot_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_cot_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_cot_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_cot_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_cot_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_cot_Real32(float x);
TORVANE_API double checked_unary_cot_Real64(double x);
TORVANE_API float *checked_unary_cot_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_cot_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* sinh: the hyperbolic sine.
 * Codes: integers code 17 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t unary_sinh_Integer8(int8_t x);
TORVANE_API uint8_t unary_sinh_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_sinh_Integer16(int16_t x);
TORVANE_API uint16_t unary_sinh_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_sinh_Integer32(int32_t x);
TORVANE_API uint32_t unary_sinh_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_sinh_Integer64(int64_t x);
TORVANE_API uint64_t unary_sinh_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_sinh_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_sinh_Real32(float x);
TORVANE_API double unary_sinh_Real64(double x);
TORVANE_API float *unary_sinh_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_sinh_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_sinh_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_sinh_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_sinh_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_sinh_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_sinh_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_sinh_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_sinh_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_sinh_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_sinh_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_sinh_Real32(float x);
TORVANE_API double checked_unary_sinh_Real64(double x);
TORVANE_API float *checked_unary_sinh_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_sinh_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* cosh: the hyperbolic cosine.
 * Codes: integers code 17 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t unary_cosh_Integer8(int8_t x);
TORVANE_API uint8_t unary_cosh_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_cosh_Integer16(int16_t x);
TORVANE_API uint16_t unary_cosh_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_cosh_Integer32(int32_t x);
TORVANE_API uint32_t unary_cosh_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_cosh_Integer64(int64_t x);
TORVANE_API uint64_t unary_cosh_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_cosh_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_cosh_Real32(float x);
TORVANE_API double unary_cosh_Real64(double x);
TORVANE_API float *unary_cosh_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_cosh_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_cosh_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_cosh_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_cosh_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_cosh_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_cosh_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_cosh_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_cosh_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_cosh_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_cosh_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_cosh_Real32(float x);
TORVANE_API double checked_unary_cosh_Real64(double x);
TORVANE_API float *checked_unary_cosh_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_cosh_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* tanh: the hyperbolic tangent.
 * Codes: integers code 17 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t unary_tanh_Integer8(int8_t x);
TORVANE_API uint8_t unary_tanh_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_tanh_Integer16(int16_t x);
TORVANE_API uint16_t unary_tanh_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_tanh_Integer32(int32_t x);
TORVANE_API uint32_t unary_tanh_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_tanh_Integer64(int64_t x);
TORVANE_API uint64_t unary_tanh_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_tanh_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_tanh_Real32(float x);
TORVANE_API double unary_tanh_Real64(double x);
TORVANE_API float *unary_tanh_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_tanh_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_tanh_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_tanh_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_tanh_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_tanh_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_tanh_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_tanh_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_tanh_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_tanh_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_tanh_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_tanh_Real32(float x);
TORVANE_API double checked_unary_tanh_Real64(double x);
TORVANE_API float *checked_unary_tanh_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_tanh_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* csch: 1 / sinh x.
 * Codes: integers code 17 - reals checked 6, 9 - complexes 16; checked 6, 9. */
TORVANE_API int8_t unary_csch_Integer8(int8_t x);
TORVANE_API uint8_t unary_csch_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_csch_Integer16(int16_t x);
TORVANE_API uint16_t unary_csch_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_csch_Integer32(int32_t x);
TORVANE_API uint32_t unary_csch_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_csch_Integer64(int64_t x);
TORVANE_API uint64_t unary_csch_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_csch_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_csch_Real32(float x);
TORVANE_API double unary_csch_Real64(double x);
TORVANE_API float *unary_csch_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_csch_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_csch_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_csch_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_csch_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_csch_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_csch_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_csch_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_csch_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_csch_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_csch_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_csch_Real32(float x);
TORVANE_API double checked_unary_csch_Real64(double x);
TORVANE_API float *checked_unary_csch_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_csch_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* sech: 1 / cosh x.
 * Codes: integers code 17 - reals checked 6, 9 - complexes 16; checked 6, 9. */
TORVANE_API int8_t unary_sech_Integer8(int8_t x);
TORVANE_API uint8_t unary_sech_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_sech_Integer16(int16_t x);
TORVANE_API uint16_t unary_sech_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_sech_Integer32(int32_t x);
TORVANE_API uint32_t unary_sech_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_sech_Integer64(int64_t x);
TORVANE_API uint64_t unary_sech_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_sech_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_sech_Real32(float x);
TORVANE_API double unary_sech_Real64(double x);
TORVANE_API float *unary_sech_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_sech_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_sech_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_sech_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_sech_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_sech_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_sech_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_sech_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_sech_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_sech_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_sech_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_sech_Real32(float x);
TORVANE_API double checked_unary_sech_Real64(double x);
TORVANE_API float *checked_unary_sech_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_sech_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* coth: 1 / tanh x.
 * Codes: integers code 17 - reals checked 6, 9 - complexes 16; checked 6, 9. */
TORVANE_API int8_t unary_coth_Integer8(int8_t x);
TORVANE_API uint8_t unary_coth_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_coth_Integer16(int16_t x);
TORVANE_API uint16_t unary_coth_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_coth_Integer32(int32_t x);
TORVANE_API uint32_t unary_coth_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_coth_Integer64(int64_t x);
TORVANE_API uint64_t unary_coth_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_coth_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_coth_Real32(float x);
TORVANE_API double unary_coth_Real64(double x);
TORVANE_API float *unary_coth_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_coth_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_coth_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_coth_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_coth_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_coth_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_coth_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_coth_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_coth_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_coth_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_coth_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_coth_Real32(float x);
TORVANE_API double checked_unary_coth_Real64(double x);
TORVANE_API float *checked_unary_coth_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_coth_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* asin: the inverse sine.
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_asin_Integer8(int8_t x);
TORVANE_API uint8_t unary_asin_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_asin_Integer16(int16_t x);
TORVANE_API uint16_t unary_asin_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_asin_Integer32(int32_t x);
TORVANE_API uint32_t unary_asin_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_asin_Integer64(int64_t x);
TORVANE_API uint64_t unary_asin_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_asin_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_asin_Real32(float x);
TORVANE_API double unary_asin_Real64(double x);
TORVANE_API float *unary_asin_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_asin_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_asin_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_asin_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_asin_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_asin_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_asin_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_asin_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_asin_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_asin_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_asin_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_asin_Real32(float x);
TORVANE_API double checked_unary_asin_Real64(double x);
TORVANE_API float *checked_unary_asin_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_asin_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* acos: the inverse cosine.
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_acos_Integer8(int8_t x);
TORVANE_API uint8_t unary_acos_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_acos_Integer16(int16_t x);
TORVANE_API uint16_t unary_acos_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_acos_Integer32(int32_t x);
TORVANE_API uint32_t unary_acos_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_acos_Integer64(int64_t x);
TORVANE_API uint64_t unary_acos_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_acos_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_acos_Real32(float x);
TORVANE_API double unary_acos_Real64(double x);
TORVANE_API float *unary_acos_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_acos_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_acos_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_acos_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_acos_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_acos_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_acos_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_acos_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_acos_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_acos_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_acos_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_acos_Real32(float x);
TORVANE_API double checked_unary_acos_Real64(double x);
TORVANE_API float *checked_unary_acos_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_acos_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* atan: the inverse tangent.
 * Codes: integers code 17 - reals checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_atan_Integer8(int8_t x);
TORVANE_API uint8_t unary_atan_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_atan_Integer16(int16_t x);
TORVANE_API uint16_t unary_atan_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_atan_Integer32(int32_t x);
TORVANE_API uint32_t unary_atan_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_atan_Integer64(int64_t x);
TORVANE_API uint64_t unary_atan_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_atan_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_atan_Real32(float x);
TORVANE_API double unary_atan_Real64(double x);
TORVANE_API float *unary_atan_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_atan_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_atan_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_atan_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_atan_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_atan_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_atan_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_atan_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_atan_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_atan_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_atan_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_atan_Real32(float x);
TORVANE_API double checked_unary_atan_Real64(double x);
TORVANE_API float *checked_unary_atan_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_atan_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* acsc: asin(1 / x).
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_acsc_Integer8(int8_t x);
TORVANE_API uint8_t unary_acsc_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_acsc_Integer16(int16_t x);
TORVANE_API uint16_t unary_acsc_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_acsc_Integer32(int32_t x);
TORVANE_API uint32_t unary_acsc_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_acsc_Integer64(int64_t x);
TORVANE_API uint64_t unary_acsc_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_acsc_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_acsc_Real32(float x);
TORVANE_API double unary_acsc_Real64(double x);
TORVANE_API float *unary_acsc_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_acsc_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_acsc_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_acsc_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_acsc_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_acsc_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_acsc_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_acsc_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_acsc_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_acsc_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_acsc_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_acsc_Real32(float x);
TORVANE_API double checked_unary_acsc_Real64(double x);
TORVANE_API float *checked_unary_acsc_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_acsc_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* asec: acos(1 / x).
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_asec_Integer8(int8_t x);
TORVANE_API uint8_t unary_asec_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_asec_Integer16(int16_t x);
TORVANE_API uint16_t unary_asec_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_asec_Integer32(int32_t x);
TORVANE_API uint32_t unary_asec_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_asec_Integer64(int64_t x);
TORVANE_API uint64_t unary_asec_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_asec_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_asec_Real32(float x);
TORVANE_API double unary_asec_Real64(double x);
TORVANE_API float *unary_asec_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_asec_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_asec_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_asec_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_asec_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_asec_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_asec_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_asec_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_asec_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_asec_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_asec_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_asec_Real32(float x);
TORVANE_API double checked_unary_asec_Real64(double x);
TORVANE_API float *checked_unary_asec_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_asec_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* acot: atan(1 / x); of a real 0, pi / 2.
 * Codes: integers code 17 - reals checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_acot_Integer8(int8_t x);
TORVANE_API uint8_t unary_acot_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_acot_Integer16(int16_t x);
TORVANE_API uint16_t unary_acot_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_acot_Integer32(int32_t x);
TORVANE_API uint32_t unary_acot_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_acot_Integer64(int64_t x);
TORVANE_API uint64_t unary_acot_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_acot_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_acot_Real32(float x);
TORVANE_API double unary_acot_Real64(double x);
TORVANE_API float *unary_acot_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_acot_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_acot_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_acot_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_acot_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_acot_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_acot_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_acot_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_acot_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_acot_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_acot_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_acot_Real32(float x);
TORVANE_API double checked_unary_acot_Real64(double x);
TORVANE_API float *checked_unary_acot_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_acot_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* asinh: the inverse hyperbolic sine.
 * Codes: integers code 17 - reals checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_asinh_Integer8(int8_t x);
TORVANE_API uint8_t unary_asinh_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_asinh_Integer16(int16_t x);
TORVANE_API uint16_t unary_asinh_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_asinh_Integer32(int32_t x);
TORVANE_API uint32_t unary_asinh_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_asinh_Integer64(int64_t x);
TORVANE_API uint64_t unary_asinh_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_asinh_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_asinh_Real32(float x);
TORVANE_API double unary_asinh_Real64(double x);
TORVANE_API float *unary_asinh_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_asinh_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_asinh_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_asinh_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_asinh_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_asinh_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_asinh_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_asinh_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_asinh_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_asinh_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_asinh_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_asinh_Real32(float x);
TORVANE_API double checked_unary_asinh_Real64(double x);
TORVANE_API float *checked_unary_asinh_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_asinh_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* acosh: the inverse hyperbolic cosine.
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_acosh_Integer8(int8_t x);
TORVANE_API uint8_t unary_acosh_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_acosh_Integer16(int16_t x);
TORVANE_API uint16_t unary_acosh_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_acosh_Integer32(int32_t x);
TORVANE_API uint32_t unary_acosh_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_acosh_Integer64(int64_t x);
TORVANE_API uint64_t unary_acosh_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_acosh_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_acosh_Real32(float x);
TORVANE_API double unary_acosh_Real64(double x);
TORVANE_API float *unary_acosh_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_acosh_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_acosh_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_acosh_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_acosh_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_acosh_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_acosh_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_acosh_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_acosh_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_acosh_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_acosh_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_acosh_Real32(float x);
TORVANE_API double checked_unary_acosh_Real64(double x);
TORVANE_API float *checked_unary_acosh_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_acosh_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* atanh: the inverse hyperbolic tangent.
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_atanh_Integer8(int8_t x);
TORVANE_API uint8_t unary_atanh_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_atanh_Integer16(int16_t x);
TORVANE_API uint16_t unary_atanh_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_atanh_Integer32(int32_t x);
TORVANE_API uint32_t unary_atanh_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_atanh_Integer64(int64_t x);
TORVANE_API uint64_t unary_atanh_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_atanh_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_atanh_Real32(float x);
TORVANE_API double unary_atanh_Real64(double x);
TORVANE_API float *unary_atanh_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_atanh_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_atanh_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_atanh_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_atanh_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_atanh_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_atanh_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_atanh_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_atanh_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_atanh_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_atanh_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_atanh_Real32(float x);
TORVANE_API double checked_unary_atanh_Real64(double x);
TORVANE_API float *checked_unary_atanh_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_atanh_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* acsch: asinh(1 / x).
 * Codes: integers code 17 - reals checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_acsch_Integer8(int8_t x);
TORVANE_API uint8_t unary_acsch_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_acsch_Integer16(int16_t x);
TORVANE_API uint16_t unary_acsch_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_acsch_Integer32(int32_t x);
TORVANE_API uint32_t unary_acsch_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_acsch_Integer64(int64_t x);
TORVANE_API uint64_t unary_acsch_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_acsch_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_acsch_Real32(float x);
TORVANE_API double unary_acsch_Real64(double x);
TORVANE_API float *unary_acsch_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_acsch_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_acsch_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_acsch_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_acsch_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_acsch_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_acsch_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_acsch_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_acsch_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_acsch_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_acsch_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_acsch_Real32(float x);
TORVANE_API double checked_unary_acsch_Real64(double x);
TORVANE_API float *checked_unary_acsch_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_acsch_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* asech: acosh(1 / x).
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_asech_Integer8(int8_t x);
TORVANE_API uint8_t unary_asech_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_asech_Integer16(int16_t x);
TORVANE_API uint16_t unary_asech_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_asech_Integer32(int32_t x);
TORVANE_API uint32_t unary_asech_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_asech_Integer64(int64_t x);
TORVANE_API uint64_t unary_asech_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_asech_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_asech_Real32(float x);
TORVANE_API double unary_asech_Real64(double x);
TORVANE_API float *unary_asech_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_asech_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_asech_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_asech_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_asech_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_asech_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_asech_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_asech_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_asech_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_asech_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_asech_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_asech_Real32(float x);
TORVANE_API double checked_unary_asech_Real64(double x);
TORVANE_API float *checked_unary_asech_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_asech_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* acoth: atanh(1 / x).
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_acoth_Integer8(int8_t x);
TORVANE_API uint8_t unary_acoth_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_acoth_Integer16(int16_t x);
TORVANE_API uint16_t unary_acoth_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_acoth_Integer32(int32_t x);
TORVANE_API uint32_t unary_acoth_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_acoth_Integer64(int64_t x);
TORVANE_API uint64_t unary_acoth_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_acoth_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_acoth_Real32(float x);
TORVANE_API double unary_acoth_Real64(double x);
TORVANE_API float *unary_acoth_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_acoth_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_acoth_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_acoth_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_acoth_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_acoth_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_acoth_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_acoth_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_acoth_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_acoth_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_acoth_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_acoth_Real32(float x);
TORVANE_API double checked_unary_acoth_Real64(double x);
TORVANE_API float *checked_unary_acoth_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_acoth_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* sinc: sin x / x, and 1 at 0.
 * Codes: integers code 17 - reals checked 6, 9 - complexes 16; checked 6, 9. */
TORVANE_API int8_t unary_sinc_Integer8(int8_t x);
TORVANE_API uint8_t unary_sinc_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_sinc_Integer16(int16_t x);
TORVANE_API uint16_t unary_sinc_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_sinc_Integer32(int32_t x);
TORVANE_API uint32_t unary_sinc_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_sinc_Integer64(int64_t x);
TORVANE_API uint64_t unary_sinc_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_sinc_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_sinc_Real32(float x);
TORVANE_API double unary_sinc_Real64(double x);
TORVANE_API float *unary_sinc_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_sinc_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_sinc_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_sinc_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_sinc_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_sinc_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_sinc_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_sinc_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_sinc_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_sinc_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_sinc_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_sinc_Real32(float x);
TORVANE_API double checked_unary_sinc_Real64(double x);
TORVANE_API float *checked_unary_sinc_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_sinc_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* fibonacci: the Fibonacci number of index x, continued to reals and complexes.
 * Codes: integers 1 - reals checked 6, 9 - complexes 16; checked 6, 9. */
TORVANE_API int8_t unary_fibonacci_Integer8(int8_t x);
TORVANE_API uint8_t unary_fibonacci_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_fibonacci_Integer16(int16_t x);
TORVANE_API uint16_t unary_fibonacci_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_fibonacci_Integer32(int32_t x);
TORVANE_API uint32_t unary_fibonacci_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_fibonacci_Integer64(int64_t x);
TORVANE_API uint64_t unary_fibonacci_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_fibonacci_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_fibonacci_Real32(float x);
TORVANE_API double unary_fibonacci_Real64(double x);
TORVANE_API float *unary_fibonacci_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_fibonacci_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_fibonacci_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_fibonacci_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_fibonacci_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_fibonacci_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_fibonacci_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_fibonacci_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_fibonacci_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_fibonacci_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_fibonacci_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_fibonacci_Real32(float x);
TORVANE_API double checked_unary_fibonacci_Real64(double x);
TORVANE_API float *checked_unary_fibonacci_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_fibonacci_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* lucasl: the Lucas number of index x, continued to reals and complexes.
 * Codes: integers 1 - reals checked 6, 9 - complexes 16; checked 6, 9. */
TORVANE_API int8_t unary_lucasl_Integer8(int8_t x);
TORVANE_API uint8_t unary_lucasl_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_lucasl_Integer16(int16_t x);
TORVANE_API uint16_t unary_lucasl_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_lucasl_Integer32(int32_t x);
TORVANE_API uint32_t unary_lucasl_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_lucasl_Integer64(int64_t x);
TORVANE_API uint64_t unary_lucasl_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_lucasl_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_lucasl_Real32(float x);
TORVANE_API double unary_lucasl_Real64(double x);
TORVANE_API float *unary_lucasl_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_lucasl_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_lucasl_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_lucasl_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_lucasl_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_lucasl_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_lucasl_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_lucasl_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_lucasl_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_lucasl_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_lucasl_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_lucasl_Real32(float x);
TORVANE_API double checked_unary_lucasl_Real64(double x);
TORVANE_API float *checked_unary_lucasl_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_lucasl_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* gudermannian: 2 atan(tanh(x / 2)).
 * Codes: integers code 17 - reals checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_gudermannian_Integer8(int8_t x);
TORVANE_API uint8_t unary_gudermannian_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_gudermannian_Integer16(int16_t x);
TORVANE_API uint16_t unary_gudermannian_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_gudermannian_Integer32(int32_t x);
TORVANE_API uint32_t unary_gudermannian_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_gudermannian_Integer64(int64_t x);
TORVANE_API uint64_t unary_gudermannian_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_gudermannian_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_gudermannian_Real32(float x);
TORVANE_API double unary_gudermannian_Real64(double x);
TORVANE_API float *unary_gudermannian_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_gudermannian_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_gudermannian_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_gudermannian_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_gudermannian_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_gudermannian_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_gudermannian_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_gudermannian_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_gudermannian_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_gudermannian_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_gudermannian_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_gudermannian_Real32(float x);
TORVANE_API double checked_unary_gudermannian_Real64(double x);
TORVANE_API float *checked_unary_gudermannian_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_gudermannian_ComplexReal64(double *re, double *im, double x_re,
                                                             double x_im);

/* inversegudermannian: 2 atanh(tan(x / 2)).
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_inversegudermannian_Integer8(int8_t x);
TORVANE_API uint8_t unary_inversegudermannian_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_inversegudermannian_Integer16(int16_t x);
TORVANE_API uint16_t unary_inversegudermannian_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_inversegudermannian_Integer32(int32_t x);
TORVANE_API uint32_t unary_inversegudermannian_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_inversegudermannian_Integer64(int64_t x);
TORVANE_API uint64_t unary_inversegudermannian_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_inversegudermannian_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_inversegudermannian_Real32(float x);
TORVANE_API double unary_inversegudermannian_Real64(double x);
TORVANE_API float *unary_inversegudermannian_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_inversegudermannian_ComplexReal64(double *re, double *im, double x_re,
                                                            double x_im);
TORVANE_API int8_t checked_unary_inversegudermannian_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_inversegudermannian_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_inversegudermannian_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_inversegudermannian_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_inversegudermannian_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_inversegudermannian_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_inversegudermannian_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_inversegudermannian_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_inversegudermannian_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_inversegudermannian_Real32(float x);
TORVANE_API double checked_unary_inversegudermannian_Real64(double x);
TORVANE_API float *checked_unary_inversegudermannian_ComplexReal32(float *re, float *im, float x_re,
                                                                   float x_im);
TORVANE_API double *checked_unary_inversegudermannian_ComplexReal64(double *re, double *im, double x_re,
                                                                    double x_im);

/* haversine: the square of sin(x / 2).
 * Codes: integers code 17 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t unary_haversine_Integer8(int8_t x);
TORVANE_API uint8_t unary_haversine_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_haversine_Integer16(int16_t x);
TORVANE_API uint16_t unary_haversine_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_haversine_Integer32(int32_t x);
TORVANE_API uint32_t unary_haversine_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_haversine_Integer64(int64_t x);
TORVANE_API uint64_t unary_haversine_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_haversine_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_haversine_Real32(float x);
TORVANE_API double unary_haversine_Real64(double x);
TORVANE_API float *unary_haversine_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_haversine_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_haversine_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_haversine_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_haversine_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_haversine_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_haversine_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_haversine_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_haversine_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_haversine_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_haversine_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_haversine_Real32(float x);
TORVANE_API double checked_unary_haversine_Real64(double x);
TORVANE_API float *checked_unary_haversine_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_haversine_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* inversehaversine: 2 asin(sqrt x).
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t unary_inversehaversine_Integer8(int8_t x);
TORVANE_API uint8_t unary_inversehaversine_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_inversehaversine_Integer16(int16_t x);
TORVANE_API uint16_t unary_inversehaversine_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_inversehaversine_Integer32(int32_t x);
TORVANE_API uint32_t unary_inversehaversine_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_inversehaversine_Integer64(int64_t x);
TORVANE_API uint64_t unary_inversehaversine_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_inversehaversine_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_inversehaversine_Real32(float x);
TORVANE_API double unary_inversehaversine_Real64(double x);
TORVANE_API float *unary_inversehaversine_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_inversehaversine_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_inversehaversine_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_inversehaversine_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_inversehaversine_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_inversehaversine_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_inversehaversine_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_inversehaversine_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_inversehaversine_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_inversehaversine_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_inversehaversine_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_inversehaversine_Real32(float x);
TORVANE_API double checked_unary_inversehaversine_Real64(double x);
TORVANE_API float *checked_unary_inversehaversine_ComplexReal32(float *re, float *im, float x_re,
                                                                float x_im);
TORVANE_API double *checked_unary_inversehaversine_ComplexReal64(double *re, double *im, double x_re,
                                                                 double x_im);

/* erfc: the complementary error function.
 * Codes: integers code 17 - reals no test - complexes code 17. */
TORVANE_API int8_t unary_erfc_Integer8(int8_t x);
TORVANE_API uint8_t unary_erfc_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_erfc_Integer16(int16_t x);
TORVANE_API uint16_t unary_erfc_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_erfc_Integer32(int32_t x);
TORVANE_API uint32_t unary_erfc_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_erfc_Integer64(int64_t x);
TORVANE_API uint64_t unary_erfc_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_erfc_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_erfc_Real32(float x);
TORVANE_API double unary_erfc_Real64(double x);
TORVANE_API float *unary_erfc_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_erfc_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_erfc_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_erfc_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_erfc_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_erfc_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_erfc_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_erfc_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_erfc_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_erfc_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_erfc_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_erfc_Real32(float x);
TORVANE_API double checked_unary_erfc_Real64(double x);
TORVANE_API float *checked_unary_erfc_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_erfc_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* erf: the error function.
 * Codes: integers code 17 - reals no test - complexes code 17. */
TORVANE_API int8_t unary_erf_Integer8(int8_t x);
TORVANE_API uint8_t unary_erf_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_erf_Integer16(int16_t x);
TORVANE_API uint16_t unary_erf_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_erf_Integer32(int32_t x);
TORVANE_API uint32_t unary_erf_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_erf_Integer64(int64_t x);
TORVANE_API uint64_t unary_erf_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_erf_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_erf_Real32(float x);
TORVANE_API double unary_erf_Real64(double x);
TORVANE_API float *unary_erf_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_erf_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_erf_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_erf_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_erf_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_erf_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_erf_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_erf_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_erf_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_erf_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_erf_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_erf_Real32(float x);
TORVANE_API double checked_unary_erf_Real64(double x);
TORVANE_API float *checked_unary_erf_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_erf_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* gamma: the gamma function; of an integer, the factorial of x - 1.
 * Codes: integers 1 - reals checked 6, 9 - complexes code 17. */
TORVANE_API int8_t unary_gamma_Integer8(int8_t x);
TORVANE_API uint8_t unary_gamma_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_gamma_Integer16(int16_t x);
TORVANE_API uint16_t unary_gamma_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_gamma_Integer32(int32_t x);
TORVANE_API uint32_t unary_gamma_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_gamma_Integer64(int64_t x);
TORVANE_API uint64_t unary_gamma_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_gamma_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_gamma_Real32(float x);
TORVANE_API double unary_gamma_Real64(double x);
TORVANE_API float *unary_gamma_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_gamma_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_gamma_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_gamma_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_gamma_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_gamma_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_gamma_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_gamma_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_gamma_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_gamma_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_gamma_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_gamma_Real32(float x);
TORVANE_API double checked_unary_gamma_Real64(double x);
TORVANE_API float *checked_unary_gamma_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_gamma_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* loggamma: the logarithm of the gamma function.
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes code 17. */
TORVANE_API int8_t unary_loggamma_Integer8(int8_t x);
TORVANE_API uint8_t unary_loggamma_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_loggamma_Integer16(int16_t x);
TORVANE_API uint16_t unary_loggamma_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_loggamma_Integer32(int32_t x);
TORVANE_API uint32_t unary_loggamma_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_loggamma_Integer64(int64_t x);
TORVANE_API uint64_t unary_loggamma_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_loggamma_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_loggamma_Real32(float x);
TORVANE_API double unary_loggamma_Real64(double x);
TORVANE_API float *unary_loggamma_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_loggamma_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_loggamma_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_loggamma_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_loggamma_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_loggamma_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_loggamma_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_loggamma_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_loggamma_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_loggamma_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_loggamma_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_loggamma_Real32(float x);
TORVANE_API double checked_unary_loggamma_Real64(double x);
TORVANE_API float *checked_unary_loggamma_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_loggamma_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* logistic: 1 / (1 + e to the power -x).
 * Codes: integers code 17 - reals checked 6, 9 - complexes 16; checked 6, 9. */
TORVANE_API int8_t unary_logistic_Integer8(int8_t x);
TORVANE_API uint8_t unary_logistic_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t unary_logistic_Integer16(int16_t x);
TORVANE_API uint16_t unary_logistic_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t unary_logistic_Integer32(int32_t x);
TORVANE_API uint32_t unary_logistic_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t unary_logistic_Integer64(int64_t x);
TORVANE_API uint64_t unary_logistic_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *unary_logistic_Real16(uint16_t *result, uint16_t x);
TORVANE_API float unary_logistic_Real32(float x);
TORVANE_API double unary_logistic_Real64(double x);
TORVANE_API float *unary_logistic_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *unary_logistic_ComplexReal64(double *re, double *im, double x_re, double x_im);
TORVANE_API int8_t checked_unary_logistic_Integer8(int8_t x);
TORVANE_API uint8_t checked_unary_logistic_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t checked_unary_logistic_Integer16(int16_t x);
TORVANE_API uint16_t checked_unary_logistic_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t checked_unary_logistic_Integer32(int32_t x);
TORVANE_API uint32_t checked_unary_logistic_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t checked_unary_logistic_Integer64(int64_t x);
TORVANE_API uint64_t checked_unary_logistic_UnsignedInteger64(uint64_t x);
TORVANE_API uint16_t *checked_unary_logistic_Real16(uint16_t *result, uint16_t x);
TORVANE_API float checked_unary_logistic_Real32(float x);
TORVANE_API double checked_unary_logistic_Real64(double x);
TORVANE_API float *checked_unary_logistic_ComplexReal32(float *re, float *im, float x_re, float x_im);
TORVANE_API double *checked_unary_logistic_ComplexReal64(double *re, double *im, double x_re, double x_im);

/* plus: x + y.
 * Codes: integers checked 1 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t binary_plus_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_plus_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_plus_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_plus_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_plus_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_plus_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_plus_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_plus_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_plus_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_plus_Real32_Real32(float x, float y);
TORVANE_API double binary_plus_Real64_Real64(double x, double y);
TORVANE_API float *binary_plus_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                           float y_re, float y_im);
TORVANE_API double *binary_plus_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                            double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_plus_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_plus_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_plus_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_plus_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_plus_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_plus_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_plus_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_plus_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_plus_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_plus_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_plus_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_plus_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                   float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_plus_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                    double x_im, double y_re, double y_im);

/* subtract: x - y.
 * Codes: integers checked 1 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t binary_subtract_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_subtract_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_subtract_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_subtract_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_subtract_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_subtract_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_subtract_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_subtract_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_subtract_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_subtract_Real32_Real32(float x, float y);
TORVANE_API double binary_subtract_Real64_Real64(double x, double y);
TORVANE_API float *binary_subtract_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                               float x_im, float y_re, float y_im);
TORVANE_API double *binary_subtract_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_subtract_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_subtract_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_subtract_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_subtract_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_subtract_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_subtract_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_subtract_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_subtract_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_subtract_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_subtract_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_subtract_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_subtract_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                       float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_subtract_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                        double x_re, double x_im,
                                                                        double y_re, double y_im);

/* times: x * y.
 * Codes: integers checked 1 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t binary_times_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_times_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_times_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_times_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_times_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_times_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_times_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_times_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_times_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_times_Real32_Real32(float x, float y);
TORVANE_API double binary_times_Real64_Real64(double x, double y);
TORVANE_API float *binary_times_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                            float y_re, float y_im);
TORVANE_API double *binary_times_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                             double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_times_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_times_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_times_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_times_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_times_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_times_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_times_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_times_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_times_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_times_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_times_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_times_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                    float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_times_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                     double x_im, double y_re, double y_im);

/* divide: x / y.
 * Codes: integers code 17 - reals checked 6, 9 - complexes 16; checked 6, 9. */
TORVANE_API int8_t binary_divide_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_divide_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_divide_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_divide_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_divide_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_divide_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_divide_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_divide_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_divide_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_divide_Real32_Real32(float x, float y);
TORVANE_API double binary_divide_Real64_Real64(double x, double y);
TORVANE_API float *binary_divide_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                             float y_re, float y_im);
TORVANE_API double *binary_divide_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                              double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_divide_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_divide_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_divide_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_divide_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_divide_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_divide_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_divide_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_divide_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_divide_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_divide_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_divide_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_divide_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                     float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_divide_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                      double x_im, double y_re,
                                                                      double y_im);

/* fpexception: 0; checked, a test of x and then y.
 * Codes: integers no test - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API mint binary_fpexception_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API mint binary_fpexception_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API mint binary_fpexception_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API mint binary_fpexception_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API mint binary_fpexception_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API mint binary_fpexception_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API mint binary_fpexception_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API mint binary_fpexception_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API mint binary_fpexception_Real16_Real16(uint16_t x, uint16_t y);
TORVANE_API mint binary_fpexception_Real32_Real32(float x, float y);
TORVANE_API mint binary_fpexception_Real64_Real64(double x, double y);
TORVANE_API mint binary_fpexception_ComplexReal32_ComplexReal32(float x_re, float x_im, float y_re,
                                                                float y_im);
TORVANE_API mint binary_fpexception_ComplexReal64_ComplexReal64(double x_re, double x_im, double y_re,
                                                                double y_im);
TORVANE_API mint checked_binary_fpexception_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API mint checked_binary_fpexception_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API mint checked_binary_fpexception_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API mint checked_binary_fpexception_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API mint checked_binary_fpexception_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API mint checked_binary_fpexception_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API mint checked_binary_fpexception_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API mint checked_binary_fpexception_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API mint checked_binary_fpexception_Real16_Real16(uint16_t x, uint16_t y);
TORVANE_API mint checked_binary_fpexception_Real32_Real32(float x, float y);
TORVANE_API mint checked_binary_fpexception_Real64_Real64(double x, double y);
TORVANE_API mint checked_binary_fpexception_ComplexReal32_ComplexReal32(float x_re, float x_im, float y_re,
                                                                        float y_im);
TORVANE_API mint checked_binary_fpexception_ComplexReal64_ComplexReal64(double x_re, double x_im,
                                                                        double y_re, double y_im);

/* max: the larger of x and y.
 * Codes: signed integers checked 1 - unsigned no test - reals no test - complexes code 17. */
TORVANE_API int8_t binary_max_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_max_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_max_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_max_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_max_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_max_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_max_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_max_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_max_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_max_Real32_Real32(float x, float y);
TORVANE_API double binary_max_Real64_Real64(double x, double y);
TORVANE_API float *binary_max_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                          float y_re, float y_im);
TORVANE_API double *binary_max_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                           double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_max_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_max_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_max_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_max_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_max_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_max_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_max_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_max_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_max_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_max_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_max_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_max_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                  float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_max_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                   double x_im, double y_re, double y_im);

/* min: the smaller of x and y.
 * Codes: signed integers checked 1 - unsigned no test - reals no test - complexes code 17. */
TORVANE_API int8_t binary_min_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_min_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_min_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_min_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_min_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_min_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_min_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_min_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_min_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_min_Real32_Real32(float x, float y);
TORVANE_API double binary_min_Real64_Real64(double x, double y);
TORVANE_API float *binary_min_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                          float y_re, float y_im);
TORVANE_API double *binary_min_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                           double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_min_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_min_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_min_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_min_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_min_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_min_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_min_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_min_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_min_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_min_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_min_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_min_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                  float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_min_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                   double x_im, double y_re, double y_im);

/* chop: x, or 0 where abs x is below the tolerance y.
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes code 17. */
TORVANE_API int8_t binary_chop_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_chop_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_chop_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_chop_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_chop_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_chop_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_chop_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_chop_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_chop_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_chop_Real32_Real32(float x, float y);
TORVANE_API double binary_chop_Real64_Real64(double x, double y);
TORVANE_API float *binary_chop_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                           float y_re, float y_im);
TORVANE_API double *binary_chop_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                            double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_chop_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_chop_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_chop_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_chop_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_chop_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_chop_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_chop_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_chop_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_chop_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_chop_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_chop_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_chop_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                   float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_chop_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                    double x_im, double y_re, double y_im);

/* abserr: abs(x - y).
 * Codes: integers checked 1 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t binary_abserr_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_abserr_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_abserr_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_abserr_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_abserr_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_abserr_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_abserr_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_abserr_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_abserr_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_abserr_Real32_Real32(float x, float y);
TORVANE_API double binary_abserr_Real64_Real64(double x, double y);
TORVANE_API float *binary_abserr_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                             float y_re, float y_im);
TORVANE_API double *binary_abserr_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                              double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_abserr_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_abserr_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_abserr_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_abserr_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_abserr_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_abserr_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_abserr_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_abserr_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_abserr_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_abserr_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_abserr_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_abserr_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                     float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_abserr_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                      double x_im, double y_re,
                                                                      double y_im);

/* relerr: abs((x - y) / y).
 * Codes: integers code 17 - reals checked 6, 9 - complexes 16; checked 6, 9. */
TORVANE_API int8_t binary_relerr_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_relerr_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_relerr_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_relerr_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_relerr_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_relerr_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_relerr_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_relerr_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_relerr_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_relerr_Real32_Real32(float x, float y);
TORVANE_API double binary_relerr_Real64_Real64(double x, double y);
TORVANE_API float *binary_relerr_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                             float y_re, float y_im);
TORVANE_API double *binary_relerr_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                              double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_relerr_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_relerr_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_relerr_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_relerr_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_relerr_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_relerr_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_relerr_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_relerr_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_relerr_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_relerr_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_relerr_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_relerr_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                     float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_relerr_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                      double x_im, double y_re,
                                                                      double y_im);

/* maxabs: the larger of abs x and abs y.
 * Codes: signed integers checked 1 - unsigned no test - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t binary_maxabs_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_maxabs_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_maxabs_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_maxabs_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_maxabs_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_maxabs_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_maxabs_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_maxabs_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_maxabs_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_maxabs_Real32_Real32(float x, float y);
TORVANE_API double binary_maxabs_Real64_Real64(double x, double y);
TORVANE_API float *binary_maxabs_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                             float y_re, float y_im);
TORVANE_API double *binary_maxabs_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                              double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_maxabs_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_maxabs_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_maxabs_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_maxabs_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_maxabs_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_maxabs_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_maxabs_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_maxabs_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_maxabs_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_maxabs_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_maxabs_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_maxabs_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                     float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_maxabs_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                      double x_im, double y_re,
                                                                      double y_im);

/* unitize: 1 where abs x is at least the tolerance y, else 0.
 * Codes: signed integers 14; checked 1 - unsigned 14 - reals 14; checked 6, 9 - complexes code 17. */
TORVANE_API mint binary_unitize_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API mint binary_unitize_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API mint binary_unitize_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API mint binary_unitize_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API mint binary_unitize_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API mint binary_unitize_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API mint binary_unitize_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API mint binary_unitize_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API mint binary_unitize_Real16_Real16(uint16_t x, uint16_t y);
TORVANE_API mint binary_unitize_Real32_Real32(float x, float y);
TORVANE_API mint binary_unitize_Real64_Real64(double x, double y);
TORVANE_API mint binary_unitize_ComplexReal32_ComplexReal32(float x_re, float x_im, float y_re, float y_im);
TORVANE_API mint binary_unitize_ComplexReal64_ComplexReal64(double x_re, double x_im, double y_re,
                                                            double y_im);
TORVANE_API mint checked_binary_unitize_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API mint checked_binary_unitize_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API mint checked_binary_unitize_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API mint checked_binary_unitize_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API mint checked_binary_unitize_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API mint checked_binary_unitize_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API mint checked_binary_unitize_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API mint checked_binary_unitize_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API mint checked_binary_unitize_Real16_Real16(uint16_t x, uint16_t y);
TORVANE_API mint checked_binary_unitize_Real32_Real32(float x, float y);
TORVANE_API mint checked_binary_unitize_Real64_Real64(double x, double y);
TORVANE_API mint checked_binary_unitize_ComplexReal32_ComplexReal32(float x_re, float x_im, float y_re,
                                                                    float y_im);
TORVANE_API mint checked_binary_unitize_ComplexReal64_ComplexReal64(double x_re, double x_im, double y_re,
                                                                    double y_im);

/* bit_and: the bitwise and.
 * Codes: signed integers checked 1 - unsigned no test - reals code 17 - complexes code 17. */
TORVANE_API int8_t binary_bit_and_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_bit_and_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_bit_and_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_bit_and_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_bit_and_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_bit_and_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_bit_and_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_bit_and_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_bit_and_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_bit_and_Real32_Real32(float x, float y);
TORVANE_API double binary_bit_and_Real64_Real64(double x, double y);
TORVANE_API float *binary_bit_and_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                              float y_re, float y_im);
TORVANE_API double *binary_bit_and_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                               double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_bit_and_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_bit_and_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_bit_and_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_bit_and_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_bit_and_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_bit_and_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_bit_and_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_bit_and_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_bit_and_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_bit_and_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_bit_and_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_bit_and_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                      float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_bit_and_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                       double x_im, double y_re,
                                                                       double y_im);

/* bit_or: the bitwise or.
 * Codes: signed integers checked 1 - unsigned no test - reals code 17 - complexes code 17. */
TORVANE_API int8_t binary_bit_or_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_bit_or_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_bit_or_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_bit_or_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_bit_or_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_bit_or_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_bit_or_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_bit_or_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_bit_or_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_bit_or_Real32_Real32(float x, float y);
TORVANE_API double binary_bit_or_Real64_Real64(double x, double y);
TORVANE_API float *binary_bit_or_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                             float y_re, float y_im);
TORVANE_API double *binary_bit_or_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                              double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_bit_or_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_bit_or_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_bit_or_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_bit_or_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_bit_or_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_bit_or_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_bit_or_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_bit_or_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_bit_or_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_bit_or_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_bit_or_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_bit_or_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                     float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_bit_or_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                      double x_im, double y_re,
                                                                      double y_im);

/* bit_xor: the bitwise exclusive or.
 * Codes: signed integers checked 1 - unsigned no test - reals code 17 - complexes code 17. */
TORVANE_API int8_t binary_bit_xor_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_bit_xor_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_bit_xor_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_bit_xor_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_bit_xor_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_bit_xor_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_bit_xor_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_bit_xor_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_bit_xor_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_bit_xor_Real32_Real32(float x, float y);
TORVANE_API double binary_bit_xor_Real64_Real64(double x, double y);
TORVANE_API float *binary_bit_xor_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                              float y_re, float y_im);
TORVANE_API double *binary_bit_xor_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                               double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_bit_xor_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_bit_xor_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_bit_xor_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_bit_xor_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_bit_xor_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_bit_xor_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_bit_xor_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_bit_xor_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_bit_xor_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_bit_xor_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_bit_xor_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_bit_xor_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                      float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_bit_xor_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                       double x_im, double y_re,
                                                                       double y_im);

/* intexp: the exponent of the highest power of y that divides x.
 * Codes: signed integers 14; checked 1 - unsigned 14 - reals code 17 - complexes code 17. */
TORVANE_API int8_t binary_intexp_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_intexp_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_intexp_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_intexp_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_intexp_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_intexp_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_intexp_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_intexp_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_intexp_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_intexp_Real32_Real32(float x, float y);
TORVANE_API double binary_intexp_Real64_Real64(double x, double y);
TORVANE_API float *binary_intexp_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                             float y_re, float y_im);
TORVANE_API double *binary_intexp_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                              double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_intexp_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_intexp_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_intexp_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_intexp_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_intexp_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_intexp_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_intexp_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_intexp_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_intexp_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_intexp_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_intexp_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_intexp_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                     float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_intexp_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                      double x_im, double y_re,
                                                                      double y_im);

/* intlen: the number of digits of x in base y.
 * Codes: signed integers 14; checked 1 - unsigned 14 - reals code 17 - complexes code 17. */
TORVANE_API int8_t binary_intlen_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_intlen_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_intlen_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_intlen_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_intlen_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_intlen_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_intlen_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_intlen_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_intlen_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_intlen_Real32_Real32(float x, float y);
TORVANE_API double binary_intlen_Real64_Real64(double x, double y);
TORVANE_API float *binary_intlen_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                             float y_re, float y_im);
TORVANE_API double *binary_intlen_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                              double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_intlen_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_intlen_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_intlen_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_intlen_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_intlen_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_intlen_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_intlen_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_intlen_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_intlen_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_intlen_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_intlen_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_intlen_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                     float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_intlen_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                      double x_im, double y_re,
                                                                      double y_im);

/* bit_shiftleft: the magnitude of x times 2 to the power y, truncated, with the sign of x.
 * Codes: signed integers 14; checked 1 - unsigned code 17 - reals code 17 - complexes code 17. */
TORVANE_API int8_t binary_bit_shiftleft_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_bit_shiftleft_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_bit_shiftleft_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_bit_shiftleft_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_bit_shiftleft_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_bit_shiftleft_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_bit_shiftleft_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_bit_shiftleft_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_bit_shiftleft_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_bit_shiftleft_Real32_Real32(float x, float y);
TORVANE_API double binary_bit_shiftleft_Real64_Real64(double x, double y);
TORVANE_API float *binary_bit_shiftleft_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                    float x_im, float y_re, float y_im);
TORVANE_API double *binary_bit_shiftleft_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                     double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_bit_shiftleft_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_bit_shiftleft_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_bit_shiftleft_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_bit_shiftleft_UnsignedInteger16_UnsignedInteger16(uint16_t x,
                                                                                      uint16_t y);
TORVANE_API int32_t checked_binary_bit_shiftleft_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_bit_shiftleft_UnsignedInteger32_UnsignedInteger32(uint32_t x,
                                                                                      uint32_t y);
TORVANE_API int64_t checked_binary_bit_shiftleft_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_bit_shiftleft_UnsignedInteger64_UnsignedInteger64(uint64_t x,
                                                                                      uint64_t y);
TORVANE_API uint16_t *checked_binary_bit_shiftleft_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_bit_shiftleft_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_bit_shiftleft_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_bit_shiftleft_ComplexReal32_ComplexReal32(float *re, float *im,
                                                                            float x_re, float x_im,
                                                                            float y_re, float y_im);
TORVANE_API double *checked_binary_bit_shiftleft_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                             double x_re, double x_im,
                                                                             double y_re, double y_im);

/* bit_shiftright: the magnitude of x divided by 2 to the power y, truncated, with the sign of x.
 * Codes: signed integers 14; checked 1 - unsigned code 17 - reals code 17 - complexes code 17. */
TORVANE_API int8_t binary_bit_shiftright_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_bit_shiftright_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_bit_shiftright_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_bit_shiftright_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_bit_shiftright_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_bit_shiftright_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_bit_shiftright_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_bit_shiftright_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_bit_shiftright_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_bit_shiftright_Real32_Real32(float x, float y);
TORVANE_API double binary_bit_shiftright_Real64_Real64(double x, double y);
TORVANE_API float *binary_bit_shiftright_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                     float x_im, float y_re, float y_im);
TORVANE_API double *binary_bit_shiftright_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                      double x_im, double y_re,
                                                                      double y_im);
TORVANE_API int8_t checked_binary_bit_shiftright_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_bit_shiftright_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_bit_shiftright_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_bit_shiftright_UnsignedInteger16_UnsignedInteger16(uint16_t x,
                                                                                       uint16_t y);
TORVANE_API int32_t checked_binary_bit_shiftright_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_bit_shiftright_UnsignedInteger32_UnsignedInteger32(uint32_t x,
                                                                                       uint32_t y);
TORVANE_API int64_t checked_binary_bit_shiftright_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_bit_shiftright_UnsignedInteger64_UnsignedInteger64(uint64_t x,
                                                                                       uint64_t y);
TORVANE_API uint16_t *checked_binary_bit_shiftright_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_bit_shiftright_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_bit_shiftright_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_bit_shiftright_ComplexReal32_ComplexReal32(float *re, float *im,
                                                                             float x_re, float x_im,
                                                                             float y_re, float y_im);
TORVANE_API double *checked_binary_bit_shiftright_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                              double x_re, double x_im,
                                                                              double y_re, double y_im);

/* root: reserved.
 * Codes: integers code 17 - reals code 17 - complexes code 17. */
TORVANE_API int8_t binary_root_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_root_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_root_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_root_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_root_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_root_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_root_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_root_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_root_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_root_Real32_Real32(float x, float y);
TORVANE_API double binary_root_Real64_Real64(double x, double y);
TORVANE_API float *binary_root_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                           float y_re, float y_im);
TORVANE_API double *binary_root_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                            double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_root_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_root_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_root_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_root_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_root_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_root_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_root_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_root_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_root_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_root_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_root_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_root_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                   float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_root_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                    double x_im, double y_re, double y_im);

/* mod: x less y times the floor of x / y.
 * Codes: integers 14 - reals 14 - complexes 1, 14, 16; checked 6, 9. */
TORVANE_API int8_t binary_mod_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_mod_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_mod_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_mod_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_mod_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_mod_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_mod_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_mod_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_mod_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_mod_Real32_Real32(float x, float y);
TORVANE_API double binary_mod_Real64_Real64(double x, double y);
TORVANE_API float *binary_mod_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                          float y_re, float y_im);
TORVANE_API double *binary_mod_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                           double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_mod_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_mod_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_mod_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_mod_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_mod_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_mod_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_mod_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_mod_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_mod_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_mod_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_mod_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_mod_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                  float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_mod_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                   double x_im, double y_re, double y_im);

/* quotient: the floor of x / y.
 * Codes: integers 14 - reals 1 - complexes code 17. */
TORVANE_API int8_t binary_quotient_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_quotient_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_quotient_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_quotient_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_quotient_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_quotient_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_quotient_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_quotient_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API mint binary_quotient_Real16_Real16(uint16_t x, uint16_t y);
TORVANE_API mint binary_quotient_Real32_Real32(float x, float y);
TORVANE_API mint binary_quotient_Real64_Real64(double x, double y);
TORVANE_API float *binary_quotient_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                               float x_im, float y_re, float y_im);
TORVANE_API double *binary_quotient_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_quotient_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_quotient_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_quotient_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_quotient_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_quotient_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_quotient_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_quotient_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_quotient_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API mint checked_binary_quotient_Real16_Real16(uint16_t x, uint16_t y);
TORVANE_API mint checked_binary_quotient_Real32_Real32(float x, float y);
TORVANE_API mint checked_binary_quotient_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_quotient_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                       float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_quotient_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                        double x_re, double x_im,
                                                                        double y_re, double y_im);

/* log: the logarithm of y to base x.
 * Codes: integers code 17 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t binary_log_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_log_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_log_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_log_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_log_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_log_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_log_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_log_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_log_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_log_Real32_Real32(float x, float y);
TORVANE_API double binary_log_Real64_Real64(double x, double y);
TORVANE_API float *binary_log_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                          float y_re, float y_im);
TORVANE_API double *binary_log_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                           double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_log_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_log_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_log_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_log_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_log_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_log_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_log_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_log_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_log_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_log_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_log_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_log_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                  float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_log_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                   double x_im, double y_re, double y_im);

/* atan2: the two-argument arctangent: for reals atan2 of C, arguments in the same order.
 * Codes: integers code 17 - reals 14 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t binary_atan2_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t binary_atan2_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t binary_atan2_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t binary_atan2_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t binary_atan2_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t binary_atan2_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t binary_atan2_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t binary_atan2_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_atan2_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_atan2_Real32_Real32(float x, float y);
TORVANE_API double binary_atan2_Real64_Real64(double x, double y);
TORVANE_API float *binary_atan2_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                            float y_re, float y_im);
TORVANE_API double *binary_atan2_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                             double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_atan2_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_atan2_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API int16_t checked_binary_atan2_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_atan2_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API int32_t checked_binary_atan2_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_atan2_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API int64_t checked_binary_atan2_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_atan2_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_atan2_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_atan2_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_atan2_Real64_Real64(double x, double y);
TORVANE_API float *checked_binary_atan2_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                    float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_atan2_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                     double x_im, double y_re, double y_im);

/* pow: x to the power y.
 * Codes: integers 14; checked 1 - reals 14; checked 6, 9 - complexes 14, 16; checked 6, 9. */
TORVANE_API int8_t binary_pow_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API int8_t binary_pow_Integer8_UnsignedInteger8(int8_t x, uint8_t y);
TORVANE_API int8_t binary_pow_Integer8_Integer16(int8_t x, int16_t y);
TORVANE_API int8_t binary_pow_Integer8_UnsignedInteger16(int8_t x, uint16_t y);
TORVANE_API int8_t binary_pow_Integer8_Integer32(int8_t x, int32_t y);
TORVANE_API int8_t binary_pow_Integer8_UnsignedInteger32(int8_t x, uint32_t y);
TORVANE_API int8_t binary_pow_Integer8_Integer64(int8_t x, int64_t y);
TORVANE_API int8_t binary_pow_Integer8_UnsignedInteger64(int8_t x, uint64_t y);
TORVANE_API uint16_t *binary_pow_Integer8_Real16(uint16_t *result, int8_t x, uint16_t y);
TORVANE_API float binary_pow_Integer8_Real32(int8_t x, float y);
TORVANE_API double binary_pow_Integer8_Real64(int8_t x, double y);
TORVANE_API float *binary_pow_Integer8_ComplexReal32(float *re, float *im, int8_t x, float y_re,
                                                     float y_im);
TORVANE_API double *binary_pow_Integer8_ComplexReal64(double *re, double *im, int8_t x, double y_re,
                                                      double y_im);
TORVANE_API uint8_t binary_pow_UnsignedInteger8_Integer8(uint8_t x, int8_t y);
TORVANE_API uint8_t binary_pow_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API uint8_t binary_pow_UnsignedInteger8_Integer16(uint8_t x, int16_t y);
TORVANE_API uint8_t binary_pow_UnsignedInteger8_UnsignedInteger16(uint8_t x, uint16_t y);
TORVANE_API uint8_t binary_pow_UnsignedInteger8_Integer32(uint8_t x, int32_t y);
TORVANE_API uint8_t binary_pow_UnsignedInteger8_UnsignedInteger32(uint8_t x, uint32_t y);
TORVANE_API uint8_t binary_pow_UnsignedInteger8_Integer64(uint8_t x, int64_t y);
TORVANE_API uint8_t binary_pow_UnsignedInteger8_UnsignedInteger64(uint8_t x, uint64_t y);
TORVANE_API uint16_t *binary_pow_UnsignedInteger8_Real16(uint16_t *result, uint8_t x, uint16_t y);
TORVANE_API float binary_pow_UnsignedInteger8_Real32(uint8_t x, float y);
TORVANE_API double binary_pow_UnsignedInteger8_Real64(uint8_t x, double y);
TORVANE_API float *binary_pow_UnsignedInteger8_ComplexReal32(float *re, float *im, uint8_t x, float y_re,
                                                             float y_im);
TORVANE_API double *binary_pow_UnsignedInteger8_ComplexReal64(double *re, double *im, uint8_t x,
                                                              double y_re, double y_im);
TORVANE_API int16_t binary_pow_Integer16_Integer8(int16_t x, int8_t y);
TORVANE_API int16_t binary_pow_Integer16_UnsignedInteger8(int16_t x, uint8_t y);
TORVANE_API int16_t binary_pow_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API int16_t binary_pow_Integer16_UnsignedInteger16(int16_t x, uint16_t y);
TORVANE_API int16_t binary_pow_Integer16_Integer32(int16_t x, int32_t y);
TORVANE_API int16_t binary_pow_Integer16_UnsignedInteger32(int16_t x, uint32_t y);
TORVANE_API int16_t binary_pow_Integer16_Integer64(int16_t x, int64_t y);
TORVANE_API int16_t binary_pow_Integer16_UnsignedInteger64(int16_t x, uint64_t y);
TORVANE_API uint16_t *binary_pow_Integer16_Real16(uint16_t *result, int16_t x, uint16_t y);
TORVANE_API float binary_pow_Integer16_Real32(int16_t x, float y);
TORVANE_API double binary_pow_Integer16_Real64(int16_t x, double y);
TORVANE_API float *binary_pow_Integer16_ComplexReal32(float *re, float *im, int16_t x, float y_re,
                                                      float y_im);
TORVANE_API double *binary_pow_Integer16_ComplexReal64(double *re, double *im, int16_t x, double y_re,
                                                       double y_im);
TORVANE_API uint16_t binary_pow_UnsignedInteger16_Integer8(uint16_t x, int8_t y);
TORVANE_API uint16_t binary_pow_UnsignedInteger16_UnsignedInteger8(uint16_t x, uint8_t y);
TORVANE_API uint16_t binary_pow_UnsignedInteger16_Integer16(uint16_t x, int16_t y);
TORVANE_API uint16_t binary_pow_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API uint16_t binary_pow_UnsignedInteger16_Integer32(uint16_t x, int32_t y);
TORVANE_API uint16_t binary_pow_UnsignedInteger16_UnsignedInteger32(uint16_t x, uint32_t y);
TORVANE_API uint16_t binary_pow_UnsignedInteger16_Integer64(uint16_t x, int64_t y);
TORVANE_API uint16_t binary_pow_UnsignedInteger16_UnsignedInteger64(uint16_t x, uint64_t y);
TORVANE_API uint16_t *binary_pow_UnsignedInteger16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_pow_UnsignedInteger16_Real32(uint16_t x, float y);
TORVANE_API double binary_pow_UnsignedInteger16_Real64(uint16_t x, double y);
TORVANE_API float *binary_pow_UnsignedInteger16_ComplexReal32(float *re, float *im, uint16_t x, float y_re,
                                                              float y_im);
TORVANE_API double *binary_pow_UnsignedInteger16_ComplexReal64(double *re, double *im, uint16_t x,
                                                               double y_re, double y_im);
TORVANE_API int32_t binary_pow_Integer32_Integer8(int32_t x, int8_t y);
TORVANE_API int32_t binary_pow_Integer32_UnsignedInteger8(int32_t x, uint8_t y);
TORVANE_API int32_t binary_pow_Integer32_Integer16(int32_t x, int16_t y);
TORVANE_API int32_t binary_pow_Integer32_UnsignedInteger16(int32_t x, uint16_t y);
TORVANE_API int32_t binary_pow_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API int32_t binary_pow_Integer32_UnsignedInteger32(int32_t x, uint32_t y);
TORVANE_API int32_t binary_pow_Integer32_Integer64(int32_t x, int64_t y);
TORVANE_API int32_t binary_pow_Integer32_UnsignedInteger64(int32_t x, uint64_t y);
TORVANE_API uint16_t *binary_pow_Integer32_Real16(uint16_t *result, int32_t x, uint16_t y);
TORVANE_API float binary_pow_Integer32_Real32(int32_t x, float y);
TORVANE_API double binary_pow_Integer32_Real64(int32_t x, double y);
TORVANE_API float *binary_pow_Integer32_ComplexReal32(float *re, float *im, int32_t x, float y_re,
                                                      float y_im);
TORVANE_API double *binary_pow_Integer32_ComplexReal64(double *re, double *im, int32_t x, double y_re,
                                                       double y_im);
TORVANE_API uint32_t binary_pow_UnsignedInteger32_Integer8(uint32_t x, int8_t y);
TORVANE_API uint32_t binary_pow_UnsignedInteger32_UnsignedInteger8(uint32_t x, uint8_t y);
TORVANE_API uint32_t binary_pow_UnsignedInteger32_Integer16(uint32_t x, int16_t y);
TORVANE_API uint32_t binary_pow_UnsignedInteger32_UnsignedInteger16(uint32_t x, uint16_t y);
TORVANE_API uint32_t binary_pow_UnsignedInteger32_Integer32(uint32_t x, int32_t y);
TORVANE_API uint32_t binary_pow_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API uint32_t binary_pow_UnsignedInteger32_Integer64(uint32_t x, int64_t y);
TORVANE_API uint32_t binary_pow_UnsignedInteger32_UnsignedInteger64(uint32_t x, uint64_t y);
TORVANE_API uint16_t *binary_pow_UnsignedInteger32_Real16(uint16_t *result, uint32_t x, uint16_t y);
TORVANE_API float binary_pow_UnsignedInteger32_Real32(uint32_t x, float y);
TORVANE_API double binary_pow_UnsignedInteger32_Real64(uint32_t x, double y);
TORVANE_API float *binary_pow_UnsignedInteger32_ComplexReal32(float *re, float *im, uint32_t x, float y_re,
                                                              float y_im);
TORVANE_API double *binary_pow_UnsignedInteger32_ComplexReal64(double *re, double *im, uint32_t x,
                                                               double y_re, double y_im);
TORVANE_API int64_t binary_pow_Integer64_Integer8(int64_t x, int8_t y);
TORVANE_API int64_t binary_pow_Integer64_UnsignedInteger8(int64_t x, uint8_t y);
TORVANE_API int64_t binary_pow_Integer64_Integer16(int64_t x, int16_t y);
TORVANE_API int64_t binary_pow_Integer64_UnsignedInteger16(int64_t x, uint16_t y);
TORVANE_API int64_t binary_pow_Integer64_Integer32(int64_t x, int32_t y);
TORVANE_API int64_t binary_pow_Integer64_UnsignedInteger32(int64_t x, uint32_t y);
TORVANE_API int64_t binary_pow_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API int64_t binary_pow_Integer64_UnsignedInteger64(int64_t x, uint64_t y);
TORVANE_API uint16_t *binary_pow_Integer64_Real16(uint16_t *result, int64_t x, uint16_t y);
TORVANE_API float binary_pow_Integer64_Real32(int64_t x, float y);
TORVANE_API double binary_pow_Integer64_Real64(int64_t x, double y);
TORVANE_API float *binary_pow_Integer64_ComplexReal32(float *re, float *im, int64_t x, float y_re,
                                                      float y_im);
TORVANE_API double *binary_pow_Integer64_ComplexReal64(double *re, double *im, int64_t x, double y_re,
                                                       double y_im);
TORVANE_API uint64_t binary_pow_UnsignedInteger64_Integer8(uint64_t x, int8_t y);
TORVANE_API uint64_t binary_pow_UnsignedInteger64_UnsignedInteger8(uint64_t x, uint8_t y);
TORVANE_API uint64_t binary_pow_UnsignedInteger64_Integer16(uint64_t x, int16_t y);
TORVANE_API uint64_t binary_pow_UnsignedInteger64_UnsignedInteger16(uint64_t x, uint16_t y);
TORVANE_API uint64_t binary_pow_UnsignedInteger64_Integer32(uint64_t x, int32_t y);
TORVANE_API uint64_t binary_pow_UnsignedInteger64_UnsignedInteger32(uint64_t x, uint32_t y);
TORVANE_API uint64_t binary_pow_UnsignedInteger64_Integer64(uint64_t x, int64_t y);
TORVANE_API uint64_t binary_pow_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *binary_pow_UnsignedInteger64_Real16(uint16_t *result, uint64_t x, uint16_t y);
TORVANE_API float binary_pow_UnsignedInteger64_Real32(uint64_t x, float y);
TORVANE_API double binary_pow_UnsignedInteger64_Real64(uint64_t x, double y);
TORVANE_API float *binary_pow_UnsignedInteger64_ComplexReal32(float *re, float *im, uint64_t x, float y_re,
                                                              float y_im);
TORVANE_API double *binary_pow_UnsignedInteger64_ComplexReal64(double *re, double *im, uint64_t x,
                                                               double y_re, double y_im);
TORVANE_API uint16_t *binary_pow_Real16_Integer8(uint16_t *result, uint16_t x, int8_t y);
TORVANE_API uint16_t *binary_pow_Real16_UnsignedInteger8(uint16_t *result, uint16_t x, uint8_t y);
TORVANE_API uint16_t *binary_pow_Real16_Integer16(uint16_t *result, uint16_t x, int16_t y);
TORVANE_API uint16_t *binary_pow_Real16_UnsignedInteger16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API uint16_t *binary_pow_Real16_Integer32(uint16_t *result, uint16_t x, int32_t y);
TORVANE_API uint16_t *binary_pow_Real16_UnsignedInteger32(uint16_t *result, uint16_t x, uint32_t y);
TORVANE_API uint16_t *binary_pow_Real16_Integer64(uint16_t *result, uint16_t x, int64_t y);
TORVANE_API uint16_t *binary_pow_Real16_UnsignedInteger64(uint16_t *result, uint16_t x, uint64_t y);
TORVANE_API uint16_t *binary_pow_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float binary_pow_Real16_Real32(uint16_t x, float y);
TORVANE_API double binary_pow_Real16_Real64(uint16_t x, double y);
TORVANE_API float *binary_pow_Real16_ComplexReal32(float *re, float *im, uint16_t x, float y_re,
                                                   float y_im);
TORVANE_API double *binary_pow_Real16_ComplexReal64(double *re, double *im, uint16_t x, double y_re,
                                                    double y_im);
TORVANE_API float binary_pow_Real32_Integer8(float x, int8_t y);
TORVANE_API float binary_pow_Real32_UnsignedInteger8(float x, uint8_t y);
TORVANE_API float binary_pow_Real32_Integer16(float x, int16_t y);
TORVANE_API float binary_pow_Real32_UnsignedInteger16(float x, uint16_t y);
TORVANE_API float binary_pow_Real32_Integer32(float x, int32_t y);
TORVANE_API float binary_pow_Real32_UnsignedInteger32(float x, uint32_t y);
TORVANE_API float binary_pow_Real32_Integer64(float x, int64_t y);
TORVANE_API float binary_pow_Real32_UnsignedInteger64(float x, uint64_t y);
TORVANE_API float binary_pow_Real32_Real16(float x, uint16_t y);
TORVANE_API float binary_pow_Real32_Real32(float x, float y);
TORVANE_API double binary_pow_Real32_Real64(float x, double y);
TORVANE_API float *binary_pow_Real32_ComplexReal32(float *re, float *im, float x, float y_re, float y_im);
TORVANE_API double *binary_pow_Real32_ComplexReal64(double *re, double *im, float x, double y_re,
                                                    double y_im);
TORVANE_API double binary_pow_Real64_Integer8(double x, int8_t y);
TORVANE_API double binary_pow_Real64_UnsignedInteger8(double x, uint8_t y);
TORVANE_API double binary_pow_Real64_Integer16(double x, int16_t y);
TORVANE_API double binary_pow_Real64_UnsignedInteger16(double x, uint16_t y);
TORVANE_API double binary_pow_Real64_Integer32(double x, int32_t y);
TORVANE_API double binary_pow_Real64_UnsignedInteger32(double x, uint32_t y);
TORVANE_API double binary_pow_Real64_Integer64(double x, int64_t y);
TORVANE_API double binary_pow_Real64_UnsignedInteger64(double x, uint64_t y);
TORVANE_API double binary_pow_Real64_Real16(double x, uint16_t y);
TORVANE_API double binary_pow_Real64_Real32(double x, float y);
TORVANE_API double binary_pow_Real64_Real64(double x, double y);
TORVANE_API double *binary_pow_Real64_ComplexReal32(double *re, double *im, double x, float y_re,
                                                    float y_im);
TORVANE_API double *binary_pow_Real64_ComplexReal64(double *re, double *im, double x, double y_re,
                                                    double y_im);
TORVANE_API float *binary_pow_ComplexReal32_Integer8(float *re, float *im, float x_re, float x_im,
                                                     int8_t y);
TORVANE_API float *binary_pow_ComplexReal32_UnsignedInteger8(float *re, float *im, float x_re, float x_im,
                                                             uint8_t y);
TORVANE_API float *binary_pow_ComplexReal32_Integer16(float *re, float *im, float x_re, float x_im,
                                                      int16_t y);
TORVANE_API float *binary_pow_ComplexReal32_UnsignedInteger16(float *re, float *im, float x_re, float x_im,
                                                              uint16_t y);
TORVANE_API float *binary_pow_ComplexReal32_Integer32(float *re, float *im, float x_re, float x_im,
                                                      int32_t y);
TORVANE_API float *binary_pow_ComplexReal32_UnsignedInteger32(float *re, float *im, float x_re, float x_im,
                                                              uint32_t y);
TORVANE_API float *binary_pow_ComplexReal32_Integer64(float *re, float *im, float x_re, float x_im,
                                                      int64_t y);
TORVANE_API float *binary_pow_ComplexReal32_UnsignedInteger64(float *re, float *im, float x_re, float x_im,
                                                              uint64_t y);
TORVANE_API float *binary_pow_ComplexReal32_Real16(float *re, float *im, float x_re, float x_im,
                                                   uint16_t y);
TORVANE_API float *binary_pow_ComplexReal32_Real32(float *re, float *im, float x_re, float x_im, float y);
TORVANE_API double *binary_pow_ComplexReal32_Real64(double *re, double *im, float x_re, float x_im,
                                                    double y);
TORVANE_API float *binary_pow_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                          float y_re, float y_im);
TORVANE_API double *binary_pow_ComplexReal32_ComplexReal64(double *re, double *im, float x_re, float x_im,
                                                           double y_re, double y_im);
TORVANE_API double *binary_pow_ComplexReal64_Integer8(double *re, double *im, double x_re, double x_im,
                                                      int8_t y);
TORVANE_API double *binary_pow_ComplexReal64_UnsignedInteger8(double *re, double *im, double x_re,
                                                              double x_im, uint8_t y);
TORVANE_API double *binary_pow_ComplexReal64_Integer16(double *re, double *im, double x_re, double x_im,
                                                       int16_t y);
TORVANE_API double *binary_pow_ComplexReal64_UnsignedInteger16(double *re, double *im, double x_re,
                                                               double x_im, uint16_t y);
TORVANE_API double *binary_pow_ComplexReal64_Integer32(double *re, double *im, double x_re, double x_im,
                                                       int32_t y);
TORVANE_API double *binary_pow_ComplexReal64_UnsignedInteger32(double *re, double *im, double x_re,
                                                               double x_im, uint32_t y);
TORVANE_API double *binary_pow_ComplexReal64_Integer64(double *re, double *im, double x_re, double x_im,
                                                       int64_t y);
TORVANE_API double *binary_pow_ComplexReal64_UnsignedInteger64(double *re, double *im, double x_re,
                                                               double x_im, uint64_t y);
TORVANE_API double *binary_pow_ComplexReal64_Real16(double *re, double *im, double x_re, double x_im,
                                                    uint16_t y);
TORVANE_API double *binary_pow_ComplexReal64_Real32(double *re, double *im, double x_re, double x_im,
                                                    float y);
TORVANE_API double *binary_pow_ComplexReal64_Real64(double *re, double *im, double x_re, double x_im,
                                                    double y);
TORVANE_API double *binary_pow_ComplexReal64_ComplexReal32(double *re, double *im, double x_re,
                                                           double x_im, float y_re, float y_im);
TORVANE_API double *binary_pow_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                           double x_im, double y_re, double y_im);
TORVANE_API int8_t checked_binary_pow_Integer8_Integer8(int8_t x, int8_t y);
TORVANE_API int8_t checked_binary_pow_Integer8_UnsignedInteger8(int8_t x, uint8_t y);
TORVANE_API int8_t checked_binary_pow_Integer8_Integer16(int8_t x, int16_t y);
TORVANE_API int8_t checked_binary_pow_Integer8_UnsignedInteger16(int8_t x, uint16_t y);
TORVANE_API int8_t checked_binary_pow_Integer8_Integer32(int8_t x, int32_t y);
TORVANE_API int8_t checked_binary_pow_Integer8_UnsignedInteger32(int8_t x, uint32_t y);
TORVANE_API int8_t checked_binary_pow_Integer8_Integer64(int8_t x, int64_t y);
TORVANE_API int8_t checked_binary_pow_Integer8_UnsignedInteger64(int8_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_pow_Integer8_Real16(uint16_t *result, int8_t x, uint16_t y);
TORVANE_API float checked_binary_pow_Integer8_Real32(int8_t x, float y);
TORVANE_API double checked_binary_pow_Integer8_Real64(int8_t x, double y);
TORVANE_API float *checked_binary_pow_Integer8_ComplexReal32(float *re, float *im, int8_t x, float y_re,
                                                             float y_im);
TORVANE_API double *checked_binary_pow_Integer8_ComplexReal64(double *re, double *im, int8_t x,
                                                              double y_re, double y_im);
TORVANE_API uint8_t checked_binary_pow_UnsignedInteger8_Integer8(uint8_t x, int8_t y);
TORVANE_API uint8_t checked_binary_pow_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y);
TORVANE_API uint8_t checked_binary_pow_UnsignedInteger8_Integer16(uint8_t x, int16_t y);
TORVANE_API uint8_t checked_binary_pow_UnsignedInteger8_UnsignedInteger16(uint8_t x, uint16_t y);
TORVANE_API uint8_t checked_binary_pow_UnsignedInteger8_Integer32(uint8_t x, int32_t y);
TORVANE_API uint8_t checked_binary_pow_UnsignedInteger8_UnsignedInteger32(uint8_t x, uint32_t y);
TORVANE_API uint8_t checked_binary_pow_UnsignedInteger8_Integer64(uint8_t x, int64_t y);
TORVANE_API uint8_t checked_binary_pow_UnsignedInteger8_UnsignedInteger64(uint8_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_pow_UnsignedInteger8_Real16(uint16_t *result, uint8_t x, uint16_t y);
TORVANE_API float checked_binary_pow_UnsignedInteger8_Real32(uint8_t x, float y);
TORVANE_API double checked_binary_pow_UnsignedInteger8_Real64(uint8_t x, double y);
TORVANE_API float *checked_binary_pow_UnsignedInteger8_ComplexReal32(float *re, float *im, uint8_t x,
                                                                     float y_re, float y_im);
TORVANE_API double *checked_binary_pow_UnsignedInteger8_ComplexReal64(double *re, double *im, uint8_t x,
                                                                      double y_re, double y_im);
TORVANE_API int16_t checked_binary_pow_Integer16_Integer8(int16_t x, int8_t y);
TORVANE_API int16_t checked_binary_pow_Integer16_UnsignedInteger8(int16_t x, uint8_t y);
TORVANE_API int16_t checked_binary_pow_Integer16_Integer16(int16_t x, int16_t y);
TORVANE_API int16_t checked_binary_pow_Integer16_UnsignedInteger16(int16_t x, uint16_t y);
TORVANE_API int16_t checked_binary_pow_Integer16_Integer32(int16_t x, int32_t y);
TORVANE_API int16_t checked_binary_pow_Integer16_UnsignedInteger32(int16_t x, uint32_t y);
TORVANE_API int16_t checked_binary_pow_Integer16_Integer64(int16_t x, int64_t y);
TORVANE_API int16_t checked_binary_pow_Integer16_UnsignedInteger64(int16_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_pow_Integer16_Real16(uint16_t *result, int16_t x, uint16_t y);
TORVANE_API float checked_binary_pow_Integer16_Real32(int16_t x, float y);
TORVANE_API double checked_binary_pow_Integer16_Real64(int16_t x, double y);
TORVANE_API float *checked_binary_pow_Integer16_ComplexReal32(float *re, float *im, int16_t x, float y_re,
                                                              float y_im);
TORVANE_API double *checked_binary_pow_Integer16_ComplexReal64(double *re, double *im, int16_t x,
                                                               double y_re, double y_im);
TORVANE_API uint16_t checked_binary_pow_UnsignedInteger16_Integer8(uint16_t x, int8_t y);
TORVANE_API uint16_t checked_binary_pow_UnsignedInteger16_UnsignedInteger8(uint16_t x, uint8_t y);
TORVANE_API uint16_t checked_binary_pow_UnsignedInteger16_Integer16(uint16_t x, int16_t y);
TORVANE_API uint16_t checked_binary_pow_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y);
TORVANE_API uint16_t checked_binary_pow_UnsignedInteger16_Integer32(uint16_t x, int32_t y);
TORVANE_API uint16_t checked_binary_pow_UnsignedInteger16_UnsignedInteger32(uint16_t x, uint32_t y);
TORVANE_API uint16_t checked_binary_pow_UnsignedInteger16_Integer64(uint16_t x, int64_t y);
TORVANE_API uint16_t checked_binary_pow_UnsignedInteger16_UnsignedInteger64(uint16_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_pow_UnsignedInteger16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_pow_UnsignedInteger16_Real32(uint16_t x, float y);
TORVANE_API double checked_binary_pow_UnsignedInteger16_Real64(uint16_t x, double y);
TORVANE_API float *checked_binary_pow_UnsignedInteger16_ComplexReal32(float *re, float *im, uint16_t x,
                                                                      float y_re, float y_im);
TORVANE_API double *checked_binary_pow_UnsignedInteger16_ComplexReal64(double *re, double *im, uint16_t x,
                                                                       double y_re, double y_im);
TORVANE_API int32_t checked_binary_pow_Integer32_Integer8(int32_t x, int8_t y);
TORVANE_API int32_t checked_binary_pow_Integer32_UnsignedInteger8(int32_t x, uint8_t y);
TORVANE_API int32_t checked_binary_pow_Integer32_Integer16(int32_t x, int16_t y);
TORVANE_API int32_t checked_binary_pow_Integer32_UnsignedInteger16(int32_t x, uint16_t y);
TORVANE_API int32_t checked_binary_pow_Integer32_Integer32(int32_t x, int32_t y);
TORVANE_API int32_t checked_binary_pow_Integer32_UnsignedInteger32(int32_t x, uint32_t y);
TORVANE_API int32_t checked_binary_pow_Integer32_Integer64(int32_t x, int64_t y);
TORVANE_API int32_t checked_binary_pow_Integer32_UnsignedInteger64(int32_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_pow_Integer32_Real16(uint16_t *result, int32_t x, uint16_t y);
TORVANE_API float checked_binary_pow_Integer32_Real32(int32_t x, float y);
TORVANE_API double checked_binary_pow_Integer32_Real64(int32_t x, double y);
TORVANE_API float *checked_binary_pow_Integer32_ComplexReal32(float *re, float *im, int32_t x, float y_re,
                                                              float y_im);
TORVANE_API double *checked_binary_pow_Integer32_ComplexReal64(double *re, double *im, int32_t x,
                                                               double y_re, double y_im);
TORVANE_API uint32_t checked_binary_pow_UnsignedInteger32_Integer8(uint32_t x, int8_t y);
TORVANE_API uint32_t checked_binary_pow_UnsignedInteger32_UnsignedInteger8(uint32_t x, uint8_t y);
TORVANE_API uint32_t checked_binary_pow_UnsignedInteger32_Integer16(uint32_t x, int16_t y);
TORVANE_API uint32_t checked_binary_pow_UnsignedInteger32_UnsignedInteger16(uint32_t x, uint16_t y);
TORVANE_API uint32_t checked_binary_pow_UnsignedInteger32_Integer32(uint32_t x, int32_t y);
TORVANE_API uint32_t checked_binary_pow_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y);
TORVANE_API uint32_t checked_binary_pow_UnsignedInteger32_Integer64(uint32_t x, int64_t y);
TORVANE_API uint32_t checked_binary_pow_UnsignedInteger32_UnsignedInteger64(uint32_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_pow_UnsignedInteger32_Real16(uint16_t *result, uint32_t x, uint16_t y);
TORVANE_API float checked_binary_pow_UnsignedInteger32_Real32(uint32_t x, float y);
TORVANE_API double checked_binary_pow_UnsignedInteger32_Real64(uint32_t x, double y);
TORVANE_API float *checked_binary_pow_UnsignedInteger32_ComplexReal32(float *re, float *im, uint32_t x,
                                                                      float y_re, float y_im);
TORVANE_API double *checked_binary_pow_UnsignedInteger32_ComplexReal64(double *re, double *im, uint32_t x,
                                                                       double y_re, double y_im);
TORVANE_API int64_t checked_binary_pow_Integer64_Integer8(int64_t x, int8_t y);
TORVANE_API int64_t checked_binary_pow_Integer64_UnsignedInteger8(int64_t x, uint8_t y);
TORVANE_API int64_t checked_binary_pow_Integer64_Integer16(int64_t x, int16_t y);
TORVANE_API int64_t checked_binary_pow_Integer64_UnsignedInteger16(int64_t x, uint16_t y);
TORVANE_API int64_t checked_binary_pow_Integer64_Integer32(int64_t x, int32_t y);
TORVANE_API int64_t checked_binary_pow_Integer64_UnsignedInteger32(int64_t x, uint32_t y);
TORVANE_API int64_t checked_binary_pow_Integer64_Integer64(int64_t x, int64_t y);
TORVANE_API int64_t checked_binary_pow_Integer64_UnsignedInteger64(int64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_pow_Integer64_Real16(uint16_t *result, int64_t x, uint16_t y);
TORVANE_API float checked_binary_pow_Integer64_Real32(int64_t x, float y);
TORVANE_API double checked_binary_pow_Integer64_Real64(int64_t x, double y);
TORVANE_API float *checked_binary_pow_Integer64_ComplexReal32(float *re, float *im, int64_t x, float y_re,
                                                              float y_im);
TORVANE_API double *checked_binary_pow_Integer64_ComplexReal64(double *re, double *im, int64_t x,
                                                               double y_re, double y_im);
TORVANE_API uint64_t checked_binary_pow_UnsignedInteger64_Integer8(uint64_t x, int8_t y);
TORVANE_API uint64_t checked_binary_pow_UnsignedInteger64_UnsignedInteger8(uint64_t x, uint8_t y);
TORVANE_API uint64_t checked_binary_pow_UnsignedInteger64_Integer16(uint64_t x, int16_t y);
TORVANE_API uint64_t checked_binary_pow_UnsignedInteger64_UnsignedInteger16(uint64_t x, uint16_t y);
TORVANE_API uint64_t checked_binary_pow_UnsignedInteger64_Integer32(uint64_t x, int32_t y);
TORVANE_API uint64_t checked_binary_pow_UnsignedInteger64_UnsignedInteger32(uint64_t x, uint32_t y);
TORVANE_API uint64_t checked_binary_pow_UnsignedInteger64_Integer64(uint64_t x, int64_t y);
TORVANE_API uint64_t checked_binary_pow_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_pow_UnsignedInteger64_Real16(uint16_t *result, uint64_t x, uint16_t y);
TORVANE_API float checked_binary_pow_UnsignedInteger64_Real32(uint64_t x, float y);
TORVANE_API double checked_binary_pow_UnsignedInteger64_Real64(uint64_t x, double y);
TORVANE_API float *checked_binary_pow_UnsignedInteger64_ComplexReal32(float *re, float *im, uint64_t x,
                                                                      float y_re, float y_im);
TORVANE_API double *checked_binary_pow_UnsignedInteger64_ComplexReal64(double *re, double *im, uint64_t x,
                                                                       double y_re, double y_im);
TORVANE_API uint16_t *checked_binary_pow_Real16_Integer8(uint16_t *result, uint16_t x, int8_t y);
TORVANE_API uint16_t *checked_binary_pow_Real16_UnsignedInteger8(uint16_t *result, uint16_t x, uint8_t y);
TORVANE_API uint16_t *checked_binary_pow_Real16_Integer16(uint16_t *result, uint16_t x, int16_t y);
TORVANE_API uint16_t *checked_binary_pow_Real16_UnsignedInteger16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API uint16_t *checked_binary_pow_Real16_Integer32(uint16_t *result, uint16_t x, int32_t y);
TORVANE_API uint16_t *checked_binary_pow_Real16_UnsignedInteger32(uint16_t *result, uint16_t x, uint32_t y);
TORVANE_API uint16_t *checked_binary_pow_Real16_Integer64(uint16_t *result, uint16_t x, int64_t y);
TORVANE_API uint16_t *checked_binary_pow_Real16_UnsignedInteger64(uint16_t *result, uint16_t x, uint64_t y);
TORVANE_API uint16_t *checked_binary_pow_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y);
TORVANE_API float checked_binary_pow_Real16_Real32(uint16_t x, float y);
TORVANE_API double checked_binary_pow_Real16_Real64(uint16_t x, double y);
TORVANE_API float *checked_binary_pow_Real16_ComplexReal32(float *re, float *im, uint16_t x, float y_re,
                                                           float y_im);
TORVANE_API double *checked_binary_pow_Real16_ComplexReal64(double *re, double *im, uint16_t x,
                                                            double y_re, double y_im);
TORVANE_API float checked_binary_pow_Real32_Integer8(float x, int8_t y);
TORVANE_API float checked_binary_pow_Real32_UnsignedInteger8(float x, uint8_t y);
TORVANE_API float checked_binary_pow_Real32_Integer16(float x, int16_t y);
TORVANE_API float checked_binary_pow_Real32_UnsignedInteger16(float x, uint16_t y);
TORVANE_API float checked_binary_pow_Real32_Integer32(float x, int32_t y);
TORVANE_API float checked_binary_pow_Real32_UnsignedInteger32(float x, uint32_t y);
TORVANE_API float checked_binary_pow_Real32_Integer64(float x, int64_t y);
TORVANE_API float checked_binary_pow_Real32_UnsignedInteger64(float x, uint64_t y);
TORVANE_API float checked_binary_pow_Real32_Real16(float x, uint16_t y);
TORVANE_API float checked_binary_pow_Real32_Real32(float x, float y);
TORVANE_API double checked_binary_pow_Real32_Real64(float x, double y);
TORVANE_API float *checked_binary_pow_Real32_ComplexReal32(float *re, float *im, float x, float y_re,
                                                           float y_im);
TORVANE_API double *checked_binary_pow_Real32_ComplexReal64(double *re, double *im, float x, double y_re,
                                                            double y_im);
TORVANE_API double checked_binary_pow_Real64_Integer8(double x, int8_t y);
TORVANE_API double checked_binary_pow_Real64_UnsignedInteger8(double x, uint8_t y);
TORVANE_API double checked_binary_pow_Real64_Integer16(double x, int16_t y);
TORVANE_API double checked_binary_pow_Real64_UnsignedInteger16(double x, uint16_t y);
TORVANE_API double checked_binary_pow_Real64_Integer32(double x, int32_t y);
TORVANE_API double checked_binary_pow_Real64_UnsignedInteger32(double x, uint32_t y);
TORVANE_API double checked_binary_pow_Real64_Integer64(double x, int64_t y);
TORVANE_API double checked_binary_pow_Real64_UnsignedInteger64(double x, uint64_t y);
TORVANE_API double checked_binary_pow_Real64_Real16(double x, uint16_t y);
TORVANE_API double checked_binary_pow_Real64_Real32(double x, float y);
TORVANE_API double checked_binary_pow_Real64_Real64(double x, double y);
TORVANE_API double *checked_binary_pow_Real64_ComplexReal32(double *re, double *im, double x, float y_re,
                                                            float y_im);
TORVANE_API double *checked_binary_pow_Real64_ComplexReal64(double *re, double *im, double x, double y_re,
                                                            double y_im);
TORVANE_API float *checked_binary_pow_ComplexReal32_Integer8(float *re, float *im, float x_re, float x_im,
                                                             int8_t y);
TORVANE_API float *checked_binary_pow_ComplexReal32_UnsignedInteger8(float *re, float *im, float x_re,
                                                                     float x_im, uint8_t y);
TORVANE_API float *checked_binary_pow_ComplexReal32_Integer16(float *re, float *im, float x_re, float x_im,
                                                              int16_t y);
TORVANE_API float *checked_binary_pow_ComplexReal32_UnsignedInteger16(float *re, float *im, float x_re,
                                                                      float x_im, uint16_t y);
TORVANE_API float *checked_binary_pow_ComplexReal32_Integer32(float *re, float *im, float x_re, float x_im,
                                                              int32_t y);
TORVANE_API float *checked_binary_pow_ComplexReal32_UnsignedInteger32(float *re, float *im, float x_re,
                                                                      float x_im, uint32_t y);
TORVANE_API float *checked_binary_pow_ComplexReal32_Integer64(float *re, float *im, float x_re, float x_im,
                                                              int64_t y);
TORVANE_API float *checked_binary_pow_ComplexReal32_UnsignedInteger64(float *re, float *im, float x_re,
                                                                      float x_im, uint64_t y);
TORVANE_API float *checked_binary_pow_ComplexReal32_Real16(float *re, float *im, float x_re, float x_im,
                                                           uint16_t y);
TORVANE_API float *checked_binary_pow_ComplexReal32_Real32(float *re, float *im, float x_re, float x_im,
                                                           float y);
TORVANE_API double *checked_binary_pow_ComplexReal32_Real64(double *re, double *im, float x_re, float x_im,
                                                            double y);
TORVANE_API float *checked_binary_pow_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                  float x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_pow_ComplexReal32_ComplexReal64(double *re, double *im, float x_re,
                                                                   float x_im, double y_re, double y_im);
TORVANE_API double *checked_binary_pow_ComplexReal64_Integer8(double *re, double *im, double x_re,
                                                              double x_im, int8_t y);
TORVANE_API double *checked_binary_pow_ComplexReal64_UnsignedInteger8(double *re, double *im, double x_re,
                                                                      double x_im, uint8_t y);
TORVANE_API double *checked_binary_pow_ComplexReal64_Integer16(double *re, double *im, double x_re,
                                                               double x_im, int16_t y);
TORVANE_API double *checked_binary_pow_ComplexReal64_UnsignedInteger16(double *re, double *im, double x_re,
                                                                       double x_im, uint16_t y);
TORVANE_API double *checked_binary_pow_ComplexReal64_Integer32(double *re, double *im, double x_re,
                                                               double x_im, int32_t y);
TORVANE_API double *checked_binary_pow_ComplexReal64_UnsignedInteger32(double *re, double *im, double x_re,
                                                                       double x_im, uint32_t y);
TORVANE_API double *checked_binary_pow_ComplexReal64_Integer64(double *re, double *im, double x_re,
                                                               double x_im, int64_t y);
TORVANE_API double *checked_binary_pow_ComplexReal64_UnsignedInteger64(double *re, double *im, double x_re,
                                                                       double x_im, uint64_t y);
TORVANE_API double *checked_binary_pow_ComplexReal64_Real16(double *re, double *im, double x_re,
                                                            double x_im, uint16_t y);
TORVANE_API double *checked_binary_pow_ComplexReal64_Real32(double *re, double *im, double x_re,
                                                            double x_im, float y);
TORVANE_API double *checked_binary_pow_ComplexReal64_Real64(double *re, double *im, double x_re,
                                                            double x_im, double y);
TORVANE_API double *checked_binary_pow_ComplexReal64_ComplexReal32(double *re, double *im, double x_re,
                                                                   double x_im, float y_re, float y_im);
TORVANE_API double *checked_binary_pow_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                   double x_im, double y_re, double y_im);

/* axpy: a * x + y.
 * Codes: integers checked 1 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t ternary_axpy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y);
TORVANE_API uint8_t ternary_axpy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x,
                                                                                    uint8_t y);
TORVANE_API int16_t ternary_axpy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y);
TORVANE_API uint16_t ternary_axpy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a,
                                                                                        uint16_t x,
                                                                                        uint16_t y);
TORVANE_API int32_t ternary_axpy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y);
TORVANE_API uint32_t ternary_axpy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a,
                                                                                        uint32_t x,
                                                                                        uint32_t y);
TORVANE_API int64_t ternary_axpy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y);
TORVANE_API uint64_t ternary_axpy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a,
                                                                                        uint64_t x,
                                                                                        uint64_t y);
TORVANE_API uint16_t *ternary_axpy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x,
                                                        uint16_t y);
TORVANE_API float ternary_axpy_Real32_Real32_Real32(float a, float x, float y);
TORVANE_API double ternary_axpy_Real64_Real64_Real64(double a, double x, double y);
TORVANE_API float *ternary_axpy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re,
                                                                          float a_im, float x_re,
                                                                          float x_im, float y_re,
                                                                          float y_im);
TORVANE_API double *ternary_axpy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                           double a_re, double a_im,
                                                                           double x_re, double x_im,
                                                                           double y_re, double y_im);
TORVANE_API int8_t checked_ternary_axpy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y);
TORVANE_API uint8_t checked_ternary_axpy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a,
                                                                                            uint8_t x,
                                                                                            uint8_t y);
TORVANE_API int16_t checked_ternary_axpy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y);
TORVANE_API uint16_t checked_ternary_axpy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a,
                                                                                                uint16_t x,
                                                                                                uint16_t y);
TORVANE_API int32_t checked_ternary_axpy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y);
TORVANE_API uint32_t checked_ternary_axpy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a,
                                                                                                uint32_t x,
                                                                                                uint32_t y);
TORVANE_API int64_t checked_ternary_axpy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y);
TORVANE_API uint64_t checked_ternary_axpy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a,
                                                                                                uint64_t x,
                                                                                                uint64_t y);
TORVANE_API uint16_t *checked_ternary_axpy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x,
                                                                uint16_t y);
TORVANE_API float checked_ternary_axpy_Real32_Real32_Real32(float a, float x, float y);
TORVANE_API double checked_ternary_axpy_Real64_Real64_Real64(double a, double x, double y);
TORVANE_API float *checked_ternary_axpy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im,
                                                                                  float a_re, float a_im,
                                                                                  float x_re, float x_im,
                                                                                  float y_re, float y_im);
TORVANE_API double *checked_ternary_axpy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                                   double a_re,
                                                                                   double a_im,
                                                                                   double x_re,
                                                                                   double x_im,
                                                                                   double y_re,
                                                                                   double y_im);

/* axmy: a * x - y.
 * Codes: integers checked 1 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t ternary_axmy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y);
TORVANE_API uint8_t ternary_axmy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x,
                                                                                    uint8_t y);
TORVANE_API int16_t ternary_axmy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y);
TORVANE_API uint16_t ternary_axmy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a,
                                                                                        uint16_t x,
                                                                                        uint16_t y);
TORVANE_API int32_t ternary_axmy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y);
TORVANE_API uint32_t ternary_axmy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a,
                                                                                        uint32_t x,
                                                                                        uint32_t y);
TORVANE_API int64_t ternary_axmy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y);
TORVANE_API uint64_t ternary_axmy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a,
                                                                                        uint64_t x,
                                                                                        uint64_t y);
TORVANE_API uint16_t *ternary_axmy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x,
                                                        uint16_t y);
TORVANE_API float ternary_axmy_Real32_Real32_Real32(float a, float x, float y);
TORVANE_API double ternary_axmy_Real64_Real64_Real64(double a, double x, double y);
TORVANE_API float *ternary_axmy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re,
                                                                          float a_im, float x_re,
                                                                          float x_im, float y_re,
                                                                          float y_im);
TORVANE_API double *ternary_axmy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                           double a_re, double a_im,
                                                                           double x_re, double x_im,
                                                                           double y_re, double y_im);
TORVANE_API int8_t checked_ternary_axmy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y);
TORVANE_API uint8_t checked_ternary_axmy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a,
                                                                                            uint8_t x,
                                                                                            uint8_t y);
TORVANE_API int16_t checked_ternary_axmy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y);
TORVANE_API uint16_t checked_ternary_axmy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a,
                                                                                                uint16_t x,
                                                                                                uint16_t y);
TORVANE_API int32_t checked_ternary_axmy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y);
TORVANE_API uint32_t checked_ternary_axmy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a,
                                                                                                uint32_t x,
                                                                                                uint32_t y);
TORVANE_API int64_t checked_ternary_axmy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y);
TORVANE_API uint64_t checked_ternary_axmy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a,
                                                                                                uint64_t x,
                                                                                                uint64_t y);
TORVANE_API uint16_t *checked_ternary_axmy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x,
                                                                uint16_t y);
TORVANE_API float checked_ternary_axmy_Real32_Real32_Real32(float a, float x, float y);
TORVANE_API double checked_ternary_axmy_Real64_Real64_Real64(double a, double x, double y);
TORVANE_API float *checked_ternary_axmy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im,
                                                                                  float a_re, float a_im,
                                                                                  float x_re, float x_im,
                                                                                  float y_re, float y_im);
TORVANE_API double *checked_ternary_axmy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                                   double a_re,
                                                                                   double a_im,
                                                                                   double x_re,
                                                                                   double x_im,
                                                                                   double y_re,
                                                                                   double y_im);

/* ymax: y - a * x.
 * Codes: integers checked 1 - reals checked 6, 9 - complexes checked 6, 9. */
TORVANE_API int8_t ternary_ymax_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y);
TORVANE_API uint8_t ternary_ymax_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x,
                                                                                    uint8_t y);
TORVANE_API int16_t ternary_ymax_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y);
TORVANE_API uint16_t ternary_ymax_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a,
                                                                                        uint16_t x,
                                                                                        uint16_t y);
TORVANE_API int32_t ternary_ymax_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y);
TORVANE_API uint32_t ternary_ymax_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a,
                                                                                        uint32_t x,
                                                                                        uint32_t y);
TORVANE_API int64_t ternary_ymax_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y);
TORVANE_API uint64_t ternary_ymax_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a,
                                                                                        uint64_t x,
                                                                                        uint64_t y);
TORVANE_API uint16_t *ternary_ymax_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x,
                                                        uint16_t y);
TORVANE_API float ternary_ymax_Real32_Real32_Real32(float a, float x, float y);
TORVANE_API double ternary_ymax_Real64_Real64_Real64(double a, double x, double y);
TORVANE_API float *ternary_ymax_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re,
                                                                          float a_im, float x_re,
                                                                          float x_im, float y_re,
                                                                          float y_im);
TORVANE_API double *ternary_ymax_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                           double a_re, double a_im,
                                                                           double x_re, double x_im,
                                                                           double y_re, double y_im);
TORVANE_API int8_t checked_ternary_ymax_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y);
TORVANE_API uint8_t checked_ternary_ymax_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a,
                                                                                            uint8_t x,
                                                                                            uint8_t y);
TORVANE_API int16_t checked_ternary_ymax_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y);
TORVANE_API uint16_t checked_ternary_ymax_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a,
                                                                                                uint16_t x,
                                                                                                uint16_t y);
TORVANE_API int32_t checked_ternary_ymax_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y);
TORVANE_API uint32_t checked_ternary_ymax_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a,
                                                                                                uint32_t x,
                                                                                                uint32_t y);
TORVANE_API int64_t checked_ternary_ymax_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y);
TORVANE_API uint64_t checked_ternary_ymax_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a,
                                                                                                uint64_t x,
                                                                                                uint64_t y);
TORVANE_API uint16_t *checked_ternary_ymax_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x,
                                                                uint16_t y);
TORVANE_API float checked_ternary_ymax_Real32_Real32_Real32(float a, float x, float y);
TORVANE_API double checked_ternary_ymax_Real64_Real64_Real64(double a, double x, double y);
TORVANE_API float *checked_ternary_ymax_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im,
                                                                                  float a_re, float a_im,
                                                                                  float x_re, float x_im,
                                                                                  float y_re, float y_im);
TORVANE_API double *checked_ternary_ymax_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                                   double a_re,
                                                                                   double a_im,
                                                                                   double x_re,
                                                                                   double x_im,
                                                                                   double y_re,
                                                                                   double y_im);

/* adxmy: a / (x - y).
 * Codes: integers code 17 - reals checked 6, 9 - complexes 16; checked 6, 9. */
TORVANE_API int8_t ternary_adxmy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y);
TORVANE_API uint8_t ternary_adxmy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x,
                                                                                     uint8_t y);
TORVANE_API int16_t ternary_adxmy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y);
TORVANE_API uint16_t ternary_adxmy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a,
                                                                                         uint16_t x,
                                                                                         uint16_t y);
TORVANE_API int32_t ternary_adxmy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y);
TORVANE_API uint32_t ternary_adxmy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a,
                                                                                         uint32_t x,
                                                                                         uint32_t y);
TORVANE_API int64_t ternary_adxmy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y);
TORVANE_API uint64_t ternary_adxmy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a,
                                                                                         uint64_t x,
                                                                                         uint64_t y);
TORVANE_API uint16_t *ternary_adxmy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x,
                                                         uint16_t y);
TORVANE_API float ternary_adxmy_Real32_Real32_Real32(float a, float x, float y);
TORVANE_API double ternary_adxmy_Real64_Real64_Real64(double a, double x, double y);
TORVANE_API float *ternary_adxmy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im,
                                                                           float a_re, float a_im,
                                                                           float x_re, float x_im,
                                                                           float y_re, float y_im);
TORVANE_API double *ternary_adxmy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                            double a_re, double a_im,
                                                                            double x_re, double x_im,
                                                                            double y_re, double y_im);
TORVANE_API int8_t checked_ternary_adxmy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y);
TORVANE_API uint8_t checked_ternary_adxmy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a,
                                                                                             uint8_t x,
                                                                                             uint8_t y);
TORVANE_API int16_t checked_ternary_adxmy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y);
TORVANE_API uint16_t checked_ternary_adxmy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(
                                                                                                 uint16_t a,
                                                                                                 uint16_t x,
                                                                                                 uint16_t y);
TORVANE_API int32_t checked_ternary_adxmy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y);
TORVANE_API uint32_t checked_ternary_adxmy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(
                                                                                                 uint32_t a,
                                                                                                 uint32_t x,
                                                                                                 uint32_t y);
TORVANE_API int64_t checked_ternary_adxmy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y);
TORVANE_API uint64_t checked_ternary_adxmy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(
                                                                                                 uint64_t a,
                                                                                                 uint64_t x,
                                                                                                 uint64_t y);
TORVANE_API uint16_t *checked_ternary_adxmy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x,
                                                                 uint16_t y);
TORVANE_API float checked_ternary_adxmy_Real32_Real32_Real32(float a, float x, float y);
TORVANE_API double checked_ternary_adxmy_Real64_Real64_Real64(double a, double x, double y);
TORVANE_API float *checked_ternary_adxmy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im,
                                                                                   float a_re, float a_im,
                                                                                   float x_re, float x_im,
                                                                                   float y_re, float y_im);
TORVANE_API double *checked_ternary_adxmy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                                    double a_re,
                                                                                    double a_im,
                                                                                    double x_re,
                                                                                    double x_im,
                                                                                    double y_re,
                                                                                    double y_im);

/* integer_safe_cast_<from>_<to>: x in the second type.
 * Codes: 42 for a value outside that type, or equal to its most negative value. */
TORVANE_API int8_t integer_safe_cast_Integer8_Integer8(int8_t x);
TORVANE_API uint8_t integer_safe_cast_Integer8_UnsignedInteger8(int8_t x);
TORVANE_API int16_t integer_safe_cast_Integer8_Integer16(int8_t x);
TORVANE_API uint16_t integer_safe_cast_Integer8_UnsignedInteger16(int8_t x);
TORVANE_API int32_t integer_safe_cast_Integer8_Integer32(int8_t x);
TORVANE_API uint32_t integer_safe_cast_Integer8_UnsignedInteger32(int8_t x);
TORVANE_API int64_t integer_safe_cast_Integer8_Integer64(int8_t x);
TORVANE_API uint64_t integer_safe_cast_Integer8_UnsignedInteger64(int8_t x);
TORVANE_API int8_t integer_safe_cast_UnsignedInteger8_Integer8(uint8_t x);
TORVANE_API uint8_t integer_safe_cast_UnsignedInteger8_UnsignedInteger8(uint8_t x);
TORVANE_API int16_t integer_safe_cast_UnsignedInteger8_Integer16(uint8_t x);
TORVANE_API uint16_t integer_safe_cast_UnsignedInteger8_UnsignedInteger16(uint8_t x);
TORVANE_API int32_t integer_safe_cast_UnsignedInteger8_Integer32(uint8_t x);
TORVANE_API uint32_t integer_safe_cast_UnsignedInteger8_UnsignedInteger32(uint8_t x);
TORVANE_API int64_t integer_safe_cast_UnsignedInteger8_Integer64(uint8_t x);
TORVANE_API uint64_t integer_safe_cast_UnsignedInteger8_UnsignedInteger64(uint8_t x);
TORVANE_API int8_t integer_safe_cast_Integer16_Integer8(int16_t x);
TORVANE_API uint8_t integer_safe_cast_Integer16_UnsignedInteger8(int16_t x);
TORVANE_API int16_t integer_safe_cast_Integer16_Integer16(int16_t x);
TORVANE_API uint16_t integer_safe_cast_Integer16_UnsignedInteger16(int16_t x);
TORVANE_API int32_t integer_safe_cast_Integer16_Integer32(int16_t x);
TORVANE_API uint32_t integer_safe_cast_Integer16_UnsignedInteger32(int16_t x);
TORVANE_API int64_t integer_safe_cast_Integer16_Integer64(int16_t x);
TORVANE_API uint64_t integer_safe_cast_Integer16_UnsignedInteger64(int16_t x);
TORVANE_API int8_t integer_safe_cast_UnsignedInteger16_Integer8(uint16_t x);
TORVANE_API uint8_t integer_safe_cast_UnsignedInteger16_UnsignedInteger8(uint16_t x);
TORVANE_API int16_t integer_safe_cast_UnsignedInteger16_Integer16(uint16_t x);
TORVANE_API uint16_t integer_safe_cast_UnsignedInteger16_UnsignedInteger16(uint16_t x);
TORVANE_API int32_t integer_safe_cast_UnsignedInteger16_Integer32(uint16_t x);
TORVANE_API uint32_t integer_safe_cast_UnsignedInteger16_UnsignedInteger32(uint16_t x);
TORVANE_API int64_t integer_safe_cast_UnsignedInteger16_Integer64(uint16_t x);
TORVANE_API uint64_t integer_safe_cast_UnsignedInteger16_UnsignedInteger64(uint16_t x);
TORVANE_API int8_t integer_safe_cast_Integer32_Integer8(int32_t x);
TORVANE_API uint8_t integer_safe_cast_Integer32_UnsignedInteger8(int32_t x);
TORVANE_API int16_t integer_safe_cast_Integer32_Integer16(int32_t x);
TORVANE_API uint16_t integer_safe_cast_Integer32_UnsignedInteger16(int32_t x);
TORVANE_API int32_t integer_safe_cast_Integer32_Integer32(int32_t x);
TORVANE_API uint32_t integer_safe_cast_Integer32_UnsignedInteger32(int32_t x);
TORVANE_API int64_t integer_safe_cast_Integer32_Integer64(int32_t x);
TORVANE_API uint64_t integer_safe_cast_Integer32_UnsignedInteger64(int32_t x);
TORVANE_API int8_t integer_safe_cast_UnsignedInteger32_Integer8(uint32_t x);
TORVANE_API uint8_t integer_safe_cast_UnsignedInteger32_UnsignedInteger8(uint32_t x);
TORVANE_API int16_t integer_safe_cast_UnsignedInteger32_Integer16(uint32_t x);
TORVANE_API uint16_t integer_safe_cast_UnsignedInteger32_UnsignedInteger16(uint32_t x);
TORVANE_API int32_t integer_safe_cast_UnsignedInteger32_Integer32(uint32_t x);
TORVANE_API uint32_t integer_safe_cast_UnsignedInteger32_UnsignedInteger32(uint32_t x);
TORVANE_API int64_t integer_safe_cast_UnsignedInteger32_Integer64(uint32_t x);
TORVANE_API uint64_t integer_safe_cast_UnsignedInteger32_UnsignedInteger64(uint32_t x);
TORVANE_API int8_t integer_safe_cast_Integer64_Integer8(int64_t x);
TORVANE_API uint8_t integer_safe_cast_Integer64_UnsignedInteger8(int64_t x);
TORVANE_API int16_t integer_safe_cast_Integer64_Integer16(int64_t x);
TORVANE_API uint16_t integer_safe_cast_Integer64_UnsignedInteger16(int64_t x);
TORVANE_API int32_t integer_safe_cast_Integer64_Integer32(int64_t x);
TORVANE_API uint32_t integer_safe_cast_Integer64_UnsignedInteger32(int64_t x);
TORVANE_API int64_t integer_safe_cast_Integer64_Integer64(int64_t x);
TORVANE_API uint64_t integer_safe_cast_Integer64_UnsignedInteger64(int64_t x);
TORVANE_API int8_t integer_safe_cast_UnsignedInteger64_Integer8(uint64_t x);
TORVANE_API uint8_t integer_safe_cast_UnsignedInteger64_UnsignedInteger8(uint64_t x);
TORVANE_API int16_t integer_safe_cast_UnsignedInteger64_Integer16(uint64_t x);
TORVANE_API uint16_t integer_safe_cast_UnsignedInteger64_UnsignedInteger16(uint64_t x);
TORVANE_API int32_t integer_safe_cast_UnsignedInteger64_Integer32(uint64_t x);
TORVANE_API uint32_t integer_safe_cast_UnsignedInteger64_UnsignedInteger32(uint64_t x);
TORVANE_API int64_t integer_safe_cast_UnsignedInteger64_Integer64(uint64_t x);
TORVANE_API uint64_t integer_safe_cast_UnsignedInteger64_UnsignedInteger64(uint64_t x);

TORVANE_END_DECLARATIONS

#endif

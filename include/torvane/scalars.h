/* The typed entries: every scalar operator over thirteen element types, plain and checked.
 *
 * Integers, Real32 and Real64 pass and return by value. Real16 passes as its 16-bit pattern and
 * comes back through a leading pointer, which is also returned. Complexes pass as (re, im) and come
 * back through leading pointers to the two parts, the first of which is returned. Results may share
 * storage with nothing. A failing entry raises its code (failure.h) and in style 1 returns an
 * arbitrary value. Codes before a semicolon are raised by both forms; codes 1 of checked forms stand
 * for a result outside its integer type or equal to the most negative value, 6 and 9 for an infinite
 * and a NaN result. All entries are pure and may be called from any thread.
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

TORVANE_END_DECLARATIONS

#endif

// The typed entries as inline functions, for C++20: torvane::inlined::<name> is the export <name>.
// A failing one still raises through the library. To give the export's values to the bit, compile
// with -ffp-contract=off: a fused product is not rounded.
//
// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#ifndef TORVANE_SCALARS_INLINE_HPP
#define TORVANE_SCALARS_INLINE_HPP

#include "detail/scalar/bodies/arithmetic.h"
#include "detail/scalar/bodies/parts.h"
#include "detail/scalar/bodies/comparison.h"
#include "detail/scalar/bodies/bits.h"
#include "detail/scalar/bodies/roots.h"
#include "detail/scalar/bodies/rounding.h"
#include "detail/scalar/bodies/exponential.h"
#include "detail/scalar/bodies/circular.h"
#include "detail/scalar/bodies/inverse.h"
#include "detail/scalar/bodies/special.h"
#include "detail/scalar/bodies/arithmetic.h"
#include "detail/scalar/bodies/parts.h"
#include "detail/scalar/bodies/comparison.h"
#include "detail/scalar/bodies/bits.h"
#include "detail/scalar/bodies/roots.h"
#include "detail/scalar/bodies/rounding.h"
#include "detail/scalar/bodies/exponential.h"
#include "detail/scalar/bodies/inverse.h"
#include "detail/scalar/bodies/powers.h"
#include "detail/scalar/bodies/arithmetic.h"
#include "detail/scalar/bodies/casts.h"

namespace torvane::inlined {

inline int8_t unary_minus_Integer8(int8_t x) {
  return evaluate<unary::minus, Plain>(x);
}
inline uint8_t unary_minus_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::minus, Plain>(x);
}
inline int16_t unary_minus_Integer16(int16_t x) {
  return evaluate<unary::minus, Plain>(x);
}
inline uint16_t unary_minus_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::minus, Plain>(x);
}
inline int32_t unary_minus_Integer32(int32_t x) {
  return evaluate<unary::minus, Plain>(x);
}
inline uint32_t unary_minus_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::minus, Plain>(x);
}
inline int64_t unary_minus_Integer64(int64_t x) {
  return evaluate<unary::minus, Plain>(x);
}
inline uint64_t unary_minus_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::minus, Plain>(x);
}
inline uint16_t *unary_minus_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::minus, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_minus_Real32(float x) {
  return evaluate<unary::minus, Plain>(x);
}
inline double unary_minus_Real64(double x) {
  return evaluate<unary::minus, Plain>(x);
}
inline float *unary_minus_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::minus, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_minus_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::minus, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_minus_Integer8(int8_t x) {
  return evaluate<unary::minus, Checked>(x);
}
inline uint8_t checked_unary_minus_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::minus, Checked>(x);
}
inline int16_t checked_unary_minus_Integer16(int16_t x) {
  return evaluate<unary::minus, Checked>(x);
}
inline uint16_t checked_unary_minus_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::minus, Checked>(x);
}
inline int32_t checked_unary_minus_Integer32(int32_t x) {
  return evaluate<unary::minus, Checked>(x);
}
inline uint32_t checked_unary_minus_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::minus, Checked>(x);
}
inline int64_t checked_unary_minus_Integer64(int64_t x) {
  return evaluate<unary::minus, Checked>(x);
}
inline uint64_t checked_unary_minus_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::minus, Checked>(x);
}
inline uint16_t *checked_unary_minus_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::minus, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_minus_Real32(float x) {
  return evaluate<unary::minus, Checked>(x);
}
inline double checked_unary_minus_Real64(double x) {
  return evaluate<unary::minus, Checked>(x);
}
inline float *checked_unary_minus_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::minus, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_minus_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::minus, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_square_Integer8(int8_t x) {
  return evaluate<unary::square, Plain>(x);
}
inline uint8_t unary_square_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::square, Plain>(x);
}
inline int16_t unary_square_Integer16(int16_t x) {
  return evaluate<unary::square, Plain>(x);
}
inline uint16_t unary_square_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::square, Plain>(x);
}
inline int32_t unary_square_Integer32(int32_t x) {
  return evaluate<unary::square, Plain>(x);
}
inline uint32_t unary_square_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::square, Plain>(x);
}
inline int64_t unary_square_Integer64(int64_t x) {
  return evaluate<unary::square, Plain>(x);
}
inline uint64_t unary_square_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::square, Plain>(x);
}
inline uint16_t *unary_square_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::square, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_square_Real32(float x) {
  return evaluate<unary::square, Plain>(x);
}
inline double unary_square_Real64(double x) {
  return evaluate<unary::square, Plain>(x);
}
inline float *unary_square_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::square, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_square_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::square, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_square_Integer8(int8_t x) {
  return evaluate<unary::square, Checked>(x);
}
inline uint8_t checked_unary_square_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::square, Checked>(x);
}
inline int16_t checked_unary_square_Integer16(int16_t x) {
  return evaluate<unary::square, Checked>(x);
}
inline uint16_t checked_unary_square_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::square, Checked>(x);
}
inline int32_t checked_unary_square_Integer32(int32_t x) {
  return evaluate<unary::square, Checked>(x);
}
inline uint32_t checked_unary_square_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::square, Checked>(x);
}
inline int64_t checked_unary_square_Integer64(int64_t x) {
  return evaluate<unary::square, Checked>(x);
}
inline uint64_t checked_unary_square_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::square, Checked>(x);
}
inline uint16_t *checked_unary_square_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::square, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_square_Real32(float x) {
  return evaluate<unary::square, Checked>(x);
}
inline double checked_unary_square_Real64(double x) {
  return evaluate<unary::square, Checked>(x);
}
inline float *checked_unary_square_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::square, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_square_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::square, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_recip_Integer8(int8_t x) {
  return evaluate<unary::recip, Plain>(x);
}
inline uint8_t unary_recip_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::recip, Plain>(x);
}
inline int16_t unary_recip_Integer16(int16_t x) {
  return evaluate<unary::recip, Plain>(x);
}
inline uint16_t unary_recip_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::recip, Plain>(x);
}
inline int32_t unary_recip_Integer32(int32_t x) {
  return evaluate<unary::recip, Plain>(x);
}
inline uint32_t unary_recip_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::recip, Plain>(x);
}
inline int64_t unary_recip_Integer64(int64_t x) {
  return evaluate<unary::recip, Plain>(x);
}
inline uint64_t unary_recip_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::recip, Plain>(x);
}
inline uint16_t *unary_recip_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::recip, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_recip_Real32(float x) {
  return evaluate<unary::recip, Plain>(x);
}
inline double unary_recip_Real64(double x) {
  return evaluate<unary::recip, Plain>(x);
}
inline float *unary_recip_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::recip, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_recip_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::recip, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_recip_Integer8(int8_t x) {
  return evaluate<unary::recip, Checked>(x);
}
inline uint8_t checked_unary_recip_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::recip, Checked>(x);
}
inline int16_t checked_unary_recip_Integer16(int16_t x) {
  return evaluate<unary::recip, Checked>(x);
}
inline uint16_t checked_unary_recip_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::recip, Checked>(x);
}
inline int32_t checked_unary_recip_Integer32(int32_t x) {
  return evaluate<unary::recip, Checked>(x);
}
inline uint32_t checked_unary_recip_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::recip, Checked>(x);
}
inline int64_t checked_unary_recip_Integer64(int64_t x) {
  return evaluate<unary::recip, Checked>(x);
}
inline uint64_t checked_unary_recip_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::recip, Checked>(x);
}
inline uint16_t *checked_unary_recip_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::recip, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_recip_Real32(float x) {
  return evaluate<unary::recip, Checked>(x);
}
inline double checked_unary_recip_Real64(double x) {
  return evaluate<unary::recip, Checked>(x);
}
inline float *checked_unary_recip_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::recip, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_recip_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::recip, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_abs_Integer8(int8_t x) {
  return evaluate<unary::abs, Plain>(x);
}
inline uint8_t unary_abs_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::abs, Plain>(x);
}
inline int16_t unary_abs_Integer16(int16_t x) {
  return evaluate<unary::abs, Plain>(x);
}
inline uint16_t unary_abs_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::abs, Plain>(x);
}
inline int32_t unary_abs_Integer32(int32_t x) {
  return evaluate<unary::abs, Plain>(x);
}
inline uint32_t unary_abs_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::abs, Plain>(x);
}
inline int64_t unary_abs_Integer64(int64_t x) {
  return evaluate<unary::abs, Plain>(x);
}
inline uint64_t unary_abs_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::abs, Plain>(x);
}
inline uint16_t *unary_abs_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::abs, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_abs_Real32(float x) {
  return evaluate<unary::abs, Plain>(x);
}
inline double unary_abs_Real64(double x) {
  return evaluate<unary::abs, Plain>(x);
}
inline float unary_abs_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::abs, Plain>(ComplexReal32{x_re, x_im});
}
inline double unary_abs_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::abs, Plain>(ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_abs_Integer8(int8_t x) {
  return evaluate<unary::abs, Checked>(x);
}
inline uint8_t checked_unary_abs_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::abs, Checked>(x);
}
inline int16_t checked_unary_abs_Integer16(int16_t x) {
  return evaluate<unary::abs, Checked>(x);
}
inline uint16_t checked_unary_abs_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::abs, Checked>(x);
}
inline int32_t checked_unary_abs_Integer32(int32_t x) {
  return evaluate<unary::abs, Checked>(x);
}
inline uint32_t checked_unary_abs_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::abs, Checked>(x);
}
inline int64_t checked_unary_abs_Integer64(int64_t x) {
  return evaluate<unary::abs, Checked>(x);
}
inline uint64_t checked_unary_abs_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::abs, Checked>(x);
}
inline uint16_t *checked_unary_abs_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::abs, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_abs_Real32(float x) {
  return evaluate<unary::abs, Checked>(x);
}
inline double checked_unary_abs_Real64(double x) {
  return evaluate<unary::abs, Checked>(x);
}
inline float checked_unary_abs_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::abs, Checked>(ComplexReal32{x_re, x_im});
}
inline double checked_unary_abs_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::abs, Checked>(ComplexReal64{x_re, x_im});
}
inline int8_t unary_abssquare_Integer8(int8_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
inline uint8_t unary_abssquare_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
inline int16_t unary_abssquare_Integer16(int16_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
inline uint16_t unary_abssquare_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
inline int32_t unary_abssquare_Integer32(int32_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
inline uint32_t unary_abssquare_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
inline int64_t unary_abssquare_Integer64(int64_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
inline uint64_t unary_abssquare_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
inline uint16_t *unary_abssquare_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::abssquare, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_abssquare_Real32(float x) {
  return evaluate<unary::abssquare, Plain>(x);
}
inline double unary_abssquare_Real64(double x) {
  return evaluate<unary::abssquare, Plain>(x);
}
inline float unary_abssquare_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::abssquare, Plain>(ComplexReal32{x_re, x_im});
}
inline double unary_abssquare_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::abssquare, Plain>(ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_abssquare_Integer8(int8_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
inline uint8_t checked_unary_abssquare_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
inline int16_t checked_unary_abssquare_Integer16(int16_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
inline uint16_t checked_unary_abssquare_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
inline int32_t checked_unary_abssquare_Integer32(int32_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
inline uint32_t checked_unary_abssquare_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
inline int64_t checked_unary_abssquare_Integer64(int64_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
inline uint64_t checked_unary_abssquare_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
inline uint16_t *checked_unary_abssquare_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::abssquare, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_abssquare_Real32(float x) {
  return evaluate<unary::abssquare, Checked>(x);
}
inline double checked_unary_abssquare_Real64(double x) {
  return evaluate<unary::abssquare, Checked>(x);
}
inline float checked_unary_abssquare_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::abssquare, Checked>(ComplexReal32{x_re, x_im});
}
inline double checked_unary_abssquare_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::abssquare, Checked>(ComplexReal64{x_re, x_im});
}
inline int8_t unary_arg_Integer8(int8_t x) {
  return evaluate<unary::arg, Plain>(x);
}
inline uint8_t unary_arg_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::arg, Plain>(x);
}
inline int16_t unary_arg_Integer16(int16_t x) {
  return evaluate<unary::arg, Plain>(x);
}
inline uint16_t unary_arg_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::arg, Plain>(x);
}
inline int32_t unary_arg_Integer32(int32_t x) {
  return evaluate<unary::arg, Plain>(x);
}
inline uint32_t unary_arg_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::arg, Plain>(x);
}
inline int64_t unary_arg_Integer64(int64_t x) {
  return evaluate<unary::arg, Plain>(x);
}
inline uint64_t unary_arg_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::arg, Plain>(x);
}
inline uint16_t *unary_arg_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::arg, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_arg_Real32(float x) {
  return evaluate<unary::arg, Plain>(x);
}
inline double unary_arg_Real64(double x) {
  return evaluate<unary::arg, Plain>(x);
}
inline float unary_arg_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::arg, Plain>(ComplexReal32{x_re, x_im});
}
inline double unary_arg_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::arg, Plain>(ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_arg_Integer8(int8_t x) {
  return evaluate<unary::arg, Checked>(x);
}
inline uint8_t checked_unary_arg_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::arg, Checked>(x);
}
inline int16_t checked_unary_arg_Integer16(int16_t x) {
  return evaluate<unary::arg, Checked>(x);
}
inline uint16_t checked_unary_arg_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::arg, Checked>(x);
}
inline int32_t checked_unary_arg_Integer32(int32_t x) {
  return evaluate<unary::arg, Checked>(x);
}
inline uint32_t checked_unary_arg_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::arg, Checked>(x);
}
inline int64_t checked_unary_arg_Integer64(int64_t x) {
  return evaluate<unary::arg, Checked>(x);
}
inline uint64_t checked_unary_arg_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::arg, Checked>(x);
}
inline uint16_t *checked_unary_arg_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::arg, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_arg_Real32(float x) {
  return evaluate<unary::arg, Checked>(x);
}
inline double checked_unary_arg_Real64(double x) {
  return evaluate<unary::arg, Checked>(x);
}
inline float checked_unary_arg_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::arg, Checked>(ComplexReal32{x_re, x_im});
}
inline double checked_unary_arg_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::arg, Checked>(ComplexReal64{x_re, x_im});
}
inline int8_t unary_conj_Integer8(int8_t x) {
  return evaluate<unary::conj, Plain>(x);
}
inline uint8_t unary_conj_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::conj, Plain>(x);
}
inline int16_t unary_conj_Integer16(int16_t x) {
  return evaluate<unary::conj, Plain>(x);
}
inline uint16_t unary_conj_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::conj, Plain>(x);
}
inline int32_t unary_conj_Integer32(int32_t x) {
  return evaluate<unary::conj, Plain>(x);
}
inline uint32_t unary_conj_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::conj, Plain>(x);
}
inline int64_t unary_conj_Integer64(int64_t x) {
  return evaluate<unary::conj, Plain>(x);
}
inline uint64_t unary_conj_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::conj, Plain>(x);
}
inline uint16_t *unary_conj_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::conj, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_conj_Real32(float x) {
  return evaluate<unary::conj, Plain>(x);
}
inline double unary_conj_Real64(double x) {
  return evaluate<unary::conj, Plain>(x);
}
inline float *unary_conj_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::conj, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_conj_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::conj, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_conj_Integer8(int8_t x) {
  return evaluate<unary::conj, Checked>(x);
}
inline uint8_t checked_unary_conj_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::conj, Checked>(x);
}
inline int16_t checked_unary_conj_Integer16(int16_t x) {
  return evaluate<unary::conj, Checked>(x);
}
inline uint16_t checked_unary_conj_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::conj, Checked>(x);
}
inline int32_t checked_unary_conj_Integer32(int32_t x) {
  return evaluate<unary::conj, Checked>(x);
}
inline uint32_t checked_unary_conj_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::conj, Checked>(x);
}
inline int64_t checked_unary_conj_Integer64(int64_t x) {
  return evaluate<unary::conj, Checked>(x);
}
inline uint64_t checked_unary_conj_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::conj, Checked>(x);
}
inline uint16_t *checked_unary_conj_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::conj, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_conj_Real32(float x) {
  return evaluate<unary::conj, Checked>(x);
}
inline double checked_unary_conj_Real64(double x) {
  return evaluate<unary::conj, Checked>(x);
}
inline float *checked_unary_conj_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::conj, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_conj_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::conj, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_im_Integer8(int8_t x) {
  return evaluate<unary::im, Plain>(x);
}
inline uint8_t unary_im_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::im, Plain>(x);
}
inline int16_t unary_im_Integer16(int16_t x) {
  return evaluate<unary::im, Plain>(x);
}
inline uint16_t unary_im_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::im, Plain>(x);
}
inline int32_t unary_im_Integer32(int32_t x) {
  return evaluate<unary::im, Plain>(x);
}
inline uint32_t unary_im_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::im, Plain>(x);
}
inline int64_t unary_im_Integer64(int64_t x) {
  return evaluate<unary::im, Plain>(x);
}
inline uint64_t unary_im_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::im, Plain>(x);
}
inline uint16_t *unary_im_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::im, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_im_Real32(float x) {
  return evaluate<unary::im, Plain>(x);
}
inline double unary_im_Real64(double x) {
  return evaluate<unary::im, Plain>(x);
}
inline float unary_im_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::im, Plain>(ComplexReal32{x_re, x_im});
}
inline double unary_im_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::im, Plain>(ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_im_Integer8(int8_t x) {
  return evaluate<unary::im, Checked>(x);
}
inline uint8_t checked_unary_im_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::im, Checked>(x);
}
inline int16_t checked_unary_im_Integer16(int16_t x) {
  return evaluate<unary::im, Checked>(x);
}
inline uint16_t checked_unary_im_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::im, Checked>(x);
}
inline int32_t checked_unary_im_Integer32(int32_t x) {
  return evaluate<unary::im, Checked>(x);
}
inline uint32_t checked_unary_im_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::im, Checked>(x);
}
inline int64_t checked_unary_im_Integer64(int64_t x) {
  return evaluate<unary::im, Checked>(x);
}
inline uint64_t checked_unary_im_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::im, Checked>(x);
}
inline uint16_t *checked_unary_im_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::im, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_im_Real32(float x) {
  return evaluate<unary::im, Checked>(x);
}
inline double checked_unary_im_Real64(double x) {
  return evaluate<unary::im, Checked>(x);
}
inline float checked_unary_im_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::im, Checked>(ComplexReal32{x_re, x_im});
}
inline double checked_unary_im_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::im, Checked>(ComplexReal64{x_re, x_im});
}
inline int8_t unary_re_Integer8(int8_t x) {
  return evaluate<unary::re, Plain>(x);
}
inline uint8_t unary_re_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::re, Plain>(x);
}
inline int16_t unary_re_Integer16(int16_t x) {
  return evaluate<unary::re, Plain>(x);
}
inline uint16_t unary_re_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::re, Plain>(x);
}
inline int32_t unary_re_Integer32(int32_t x) {
  return evaluate<unary::re, Plain>(x);
}
inline uint32_t unary_re_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::re, Plain>(x);
}
inline int64_t unary_re_Integer64(int64_t x) {
  return evaluate<unary::re, Plain>(x);
}
inline uint64_t unary_re_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::re, Plain>(x);
}
inline uint16_t *unary_re_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::re, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_re_Real32(float x) {
  return evaluate<unary::re, Plain>(x);
}
inline double unary_re_Real64(double x) {
  return evaluate<unary::re, Plain>(x);
}
inline float unary_re_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::re, Plain>(ComplexReal32{x_re, x_im});
}
inline double unary_re_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::re, Plain>(ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_re_Integer8(int8_t x) {
  return evaluate<unary::re, Checked>(x);
}
inline uint8_t checked_unary_re_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::re, Checked>(x);
}
inline int16_t checked_unary_re_Integer16(int16_t x) {
  return evaluate<unary::re, Checked>(x);
}
inline uint16_t checked_unary_re_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::re, Checked>(x);
}
inline int32_t checked_unary_re_Integer32(int32_t x) {
  return evaluate<unary::re, Checked>(x);
}
inline uint32_t checked_unary_re_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::re, Checked>(x);
}
inline int64_t checked_unary_re_Integer64(int64_t x) {
  return evaluate<unary::re, Checked>(x);
}
inline uint64_t checked_unary_re_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::re, Checked>(x);
}
inline uint16_t *checked_unary_re_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::re, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_re_Real32(float x) {
  return evaluate<unary::re, Checked>(x);
}
inline double checked_unary_re_Real64(double x) {
  return evaluate<unary::re, Checked>(x);
}
inline float checked_unary_re_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::re, Checked>(ComplexReal32{x_re, x_im});
}
inline double checked_unary_re_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::re, Checked>(ComplexReal64{x_re, x_im});
}
inline mint unary_sign_Integer8(int8_t x) {
  return evaluate<unary::sign, Plain>(x);
}
inline mint unary_sign_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sign, Plain>(x);
}
inline mint unary_sign_Integer16(int16_t x) {
  return evaluate<unary::sign, Plain>(x);
}
inline mint unary_sign_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sign, Plain>(x);
}
inline mint unary_sign_Integer32(int32_t x) {
  return evaluate<unary::sign, Plain>(x);
}
inline mint unary_sign_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sign, Plain>(x);
}
inline mint unary_sign_Integer64(int64_t x) {
  return evaluate<unary::sign, Plain>(x);
}
inline mint unary_sign_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sign, Plain>(x);
}
inline mint unary_sign_Real16(uint16_t x) {
  return evaluate<unary::sign, Plain>(Real16{x});
}
inline mint unary_sign_Real32(float x) {
  return evaluate<unary::sign, Plain>(x);
}
inline mint unary_sign_Real64(double x) {
  return evaluate<unary::sign, Plain>(x);
}
inline float *unary_sign_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sign, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_sign_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sign, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline mint checked_unary_sign_Integer8(int8_t x) {
  return evaluate<unary::sign, Checked>(x);
}
inline mint checked_unary_sign_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sign, Checked>(x);
}
inline mint checked_unary_sign_Integer16(int16_t x) {
  return evaluate<unary::sign, Checked>(x);
}
inline mint checked_unary_sign_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sign, Checked>(x);
}
inline mint checked_unary_sign_Integer32(int32_t x) {
  return evaluate<unary::sign, Checked>(x);
}
inline mint checked_unary_sign_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sign, Checked>(x);
}
inline mint checked_unary_sign_Integer64(int64_t x) {
  return evaluate<unary::sign, Checked>(x);
}
inline mint checked_unary_sign_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sign, Checked>(x);
}
inline mint checked_unary_sign_Real16(uint16_t x) {
  return evaluate<unary::sign, Checked>(Real16{x});
}
inline mint checked_unary_sign_Real32(float x) {
  return evaluate<unary::sign, Checked>(x);
}
inline mint checked_unary_sign_Real64(double x) {
  return evaluate<unary::sign, Checked>(x);
}
inline float *checked_unary_sign_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sign, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_sign_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sign, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_copy_Integer8(int8_t x) {
  return evaluate<unary::copy, Plain>(x);
}
inline uint8_t unary_copy_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::copy, Plain>(x);
}
inline int16_t unary_copy_Integer16(int16_t x) {
  return evaluate<unary::copy, Plain>(x);
}
inline uint16_t unary_copy_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::copy, Plain>(x);
}
inline int32_t unary_copy_Integer32(int32_t x) {
  return evaluate<unary::copy, Plain>(x);
}
inline uint32_t unary_copy_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::copy, Plain>(x);
}
inline int64_t unary_copy_Integer64(int64_t x) {
  return evaluate<unary::copy, Plain>(x);
}
inline uint64_t unary_copy_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::copy, Plain>(x);
}
inline uint16_t *unary_copy_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::copy, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_copy_Real32(float x) {
  return evaluate<unary::copy, Plain>(x);
}
inline double unary_copy_Real64(double x) {
  return evaluate<unary::copy, Plain>(x);
}
inline float *unary_copy_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::copy, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_copy_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::copy, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_copy_Integer8(int8_t x) {
  return evaluate<unary::copy, Checked>(x);
}
inline uint8_t checked_unary_copy_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::copy, Checked>(x);
}
inline int16_t checked_unary_copy_Integer16(int16_t x) {
  return evaluate<unary::copy, Checked>(x);
}
inline uint16_t checked_unary_copy_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::copy, Checked>(x);
}
inline int32_t checked_unary_copy_Integer32(int32_t x) {
  return evaluate<unary::copy, Checked>(x);
}
inline uint32_t checked_unary_copy_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::copy, Checked>(x);
}
inline int64_t checked_unary_copy_Integer64(int64_t x) {
  return evaluate<unary::copy, Checked>(x);
}
inline uint64_t checked_unary_copy_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::copy, Checked>(x);
}
inline uint16_t *checked_unary_copy_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::copy, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_copy_Real32(float x) {
  return evaluate<unary::copy, Checked>(x);
}
inline double checked_unary_copy_Real64(double x) {
  return evaluate<unary::copy, Checked>(x);
}
inline float *checked_unary_copy_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::copy, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_copy_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::copy, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_zero_Integer8(int8_t x) {
  return evaluate<unary::zero, Plain>(x);
}
inline uint8_t unary_zero_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::zero, Plain>(x);
}
inline int16_t unary_zero_Integer16(int16_t x) {
  return evaluate<unary::zero, Plain>(x);
}
inline uint16_t unary_zero_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::zero, Plain>(x);
}
inline int32_t unary_zero_Integer32(int32_t x) {
  return evaluate<unary::zero, Plain>(x);
}
inline uint32_t unary_zero_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::zero, Plain>(x);
}
inline int64_t unary_zero_Integer64(int64_t x) {
  return evaluate<unary::zero, Plain>(x);
}
inline uint64_t unary_zero_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::zero, Plain>(x);
}
inline uint16_t *unary_zero_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::zero, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_zero_Real32(float x) {
  return evaluate<unary::zero, Plain>(x);
}
inline double unary_zero_Real64(double x) {
  return evaluate<unary::zero, Plain>(x);
}
inline float *unary_zero_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::zero, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_zero_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::zero, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_zero_Integer8(int8_t x) {
  return evaluate<unary::zero, Checked>(x);
}
inline uint8_t checked_unary_zero_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::zero, Checked>(x);
}
inline int16_t checked_unary_zero_Integer16(int16_t x) {
  return evaluate<unary::zero, Checked>(x);
}
inline uint16_t checked_unary_zero_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::zero, Checked>(x);
}
inline int32_t checked_unary_zero_Integer32(int32_t x) {
  return evaluate<unary::zero, Checked>(x);
}
inline uint32_t checked_unary_zero_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::zero, Checked>(x);
}
inline int64_t checked_unary_zero_Integer64(int64_t x) {
  return evaluate<unary::zero, Checked>(x);
}
inline uint64_t checked_unary_zero_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::zero, Checked>(x);
}
inline uint16_t *checked_unary_zero_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::zero, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_zero_Real32(float x) {
  return evaluate<unary::zero, Checked>(x);
}
inline double checked_unary_zero_Real64(double x) {
  return evaluate<unary::zero, Checked>(x);
}
inline float *checked_unary_zero_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::zero, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_zero_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::zero, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_one_Integer8(int8_t x) {
  return evaluate<unary::one, Plain>(x);
}
inline uint8_t unary_one_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::one, Plain>(x);
}
inline int16_t unary_one_Integer16(int16_t x) {
  return evaluate<unary::one, Plain>(x);
}
inline uint16_t unary_one_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::one, Plain>(x);
}
inline int32_t unary_one_Integer32(int32_t x) {
  return evaluate<unary::one, Plain>(x);
}
inline uint32_t unary_one_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::one, Plain>(x);
}
inline int64_t unary_one_Integer64(int64_t x) {
  return evaluate<unary::one, Plain>(x);
}
inline uint64_t unary_one_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::one, Plain>(x);
}
inline uint16_t *unary_one_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::one, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_one_Real32(float x) {
  return evaluate<unary::one, Plain>(x);
}
inline double unary_one_Real64(double x) {
  return evaluate<unary::one, Plain>(x);
}
inline float *unary_one_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::one, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_one_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::one, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_one_Integer8(int8_t x) {
  return evaluate<unary::one, Checked>(x);
}
inline uint8_t checked_unary_one_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::one, Checked>(x);
}
inline int16_t checked_unary_one_Integer16(int16_t x) {
  return evaluate<unary::one, Checked>(x);
}
inline uint16_t checked_unary_one_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::one, Checked>(x);
}
inline int32_t checked_unary_one_Integer32(int32_t x) {
  return evaluate<unary::one, Checked>(x);
}
inline uint32_t checked_unary_one_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::one, Checked>(x);
}
inline int64_t checked_unary_one_Integer64(int64_t x) {
  return evaluate<unary::one, Checked>(x);
}
inline uint64_t checked_unary_one_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::one, Checked>(x);
}
inline uint16_t *checked_unary_one_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::one, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_one_Real32(float x) {
  return evaluate<unary::one, Checked>(x);
}
inline double checked_unary_one_Real64(double x) {
  return evaluate<unary::one, Checked>(x);
}
inline float *checked_unary_one_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::one, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_one_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::one, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline mint unary_fpexception_Integer8(int8_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
inline mint unary_fpexception_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
inline mint unary_fpexception_Integer16(int16_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
inline mint unary_fpexception_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
inline mint unary_fpexception_Integer32(int32_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
inline mint unary_fpexception_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
inline mint unary_fpexception_Integer64(int64_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
inline mint unary_fpexception_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
inline mint unary_fpexception_Real16(uint16_t x) {
  return evaluate<unary::fpexception, Plain>(Real16{x});
}
inline mint unary_fpexception_Real32(float x) {
  return evaluate<unary::fpexception, Plain>(x);
}
inline mint unary_fpexception_Real64(double x) {
  return evaluate<unary::fpexception, Plain>(x);
}
inline mint unary_fpexception_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::fpexception, Plain>(ComplexReal32{x_re, x_im});
}
inline mint unary_fpexception_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::fpexception, Plain>(ComplexReal64{x_re, x_im});
}
inline mint checked_unary_fpexception_Integer8(int8_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
inline mint checked_unary_fpexception_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
inline mint checked_unary_fpexception_Integer16(int16_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
inline mint checked_unary_fpexception_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
inline mint checked_unary_fpexception_Integer32(int32_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
inline mint checked_unary_fpexception_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
inline mint checked_unary_fpexception_Integer64(int64_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
inline mint checked_unary_fpexception_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
inline mint checked_unary_fpexception_Real16(uint16_t x) {
  return evaluate<unary::fpexception, Checked>(Real16{x});
}
inline mint checked_unary_fpexception_Real32(float x) {
  return evaluate<unary::fpexception, Checked>(x);
}
inline mint checked_unary_fpexception_Real64(double x) {
  return evaluate<unary::fpexception, Checked>(x);
}
inline mint checked_unary_fpexception_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::fpexception, Checked>(ComplexReal32{x_re, x_im});
}
inline mint checked_unary_fpexception_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::fpexception, Checked>(ComplexReal64{x_re, x_im});
}
inline mint unary_pos_Integer8(int8_t x) {
  return evaluate<unary::pos, Plain>(x);
}
inline mint unary_pos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::pos, Plain>(x);
}
inline mint unary_pos_Integer16(int16_t x) {
  return evaluate<unary::pos, Plain>(x);
}
inline mint unary_pos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::pos, Plain>(x);
}
inline mint unary_pos_Integer32(int32_t x) {
  return evaluate<unary::pos, Plain>(x);
}
inline mint unary_pos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::pos, Plain>(x);
}
inline mint unary_pos_Integer64(int64_t x) {
  return evaluate<unary::pos, Plain>(x);
}
inline mint unary_pos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::pos, Plain>(x);
}
inline mint unary_pos_Real16(uint16_t x) {
  return evaluate<unary::pos, Plain>(Real16{x});
}
inline mint unary_pos_Real32(float x) {
  return evaluate<unary::pos, Plain>(x);
}
inline mint unary_pos_Real64(double x) {
  return evaluate<unary::pos, Plain>(x);
}
inline mint unary_pos_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::pos, Plain>(ComplexReal32{x_re, x_im});
}
inline mint unary_pos_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::pos, Plain>(ComplexReal64{x_re, x_im});
}
inline mint checked_unary_pos_Integer8(int8_t x) {
  return evaluate<unary::pos, Checked>(x);
}
inline mint checked_unary_pos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::pos, Checked>(x);
}
inline mint checked_unary_pos_Integer16(int16_t x) {
  return evaluate<unary::pos, Checked>(x);
}
inline mint checked_unary_pos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::pos, Checked>(x);
}
inline mint checked_unary_pos_Integer32(int32_t x) {
  return evaluate<unary::pos, Checked>(x);
}
inline mint checked_unary_pos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::pos, Checked>(x);
}
inline mint checked_unary_pos_Integer64(int64_t x) {
  return evaluate<unary::pos, Checked>(x);
}
inline mint checked_unary_pos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::pos, Checked>(x);
}
inline mint checked_unary_pos_Real16(uint16_t x) {
  return evaluate<unary::pos, Checked>(Real16{x});
}
inline mint checked_unary_pos_Real32(float x) {
  return evaluate<unary::pos, Checked>(x);
}
inline mint checked_unary_pos_Real64(double x) {
  return evaluate<unary::pos, Checked>(x);
}
inline mint checked_unary_pos_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::pos, Checked>(ComplexReal32{x_re, x_im});
}
inline mint checked_unary_pos_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::pos, Checked>(ComplexReal64{x_re, x_im});
}
inline mint unary_neg_Integer8(int8_t x) {
  return evaluate<unary::neg, Plain>(x);
}
inline mint unary_neg_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::neg, Plain>(x);
}
inline mint unary_neg_Integer16(int16_t x) {
  return evaluate<unary::neg, Plain>(x);
}
inline mint unary_neg_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::neg, Plain>(x);
}
inline mint unary_neg_Integer32(int32_t x) {
  return evaluate<unary::neg, Plain>(x);
}
inline mint unary_neg_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::neg, Plain>(x);
}
inline mint unary_neg_Integer64(int64_t x) {
  return evaluate<unary::neg, Plain>(x);
}
inline mint unary_neg_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::neg, Plain>(x);
}
inline mint unary_neg_Real16(uint16_t x) {
  return evaluate<unary::neg, Plain>(Real16{x});
}
inline mint unary_neg_Real32(float x) {
  return evaluate<unary::neg, Plain>(x);
}
inline mint unary_neg_Real64(double x) {
  return evaluate<unary::neg, Plain>(x);
}
inline mint unary_neg_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::neg, Plain>(ComplexReal32{x_re, x_im});
}
inline mint unary_neg_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::neg, Plain>(ComplexReal64{x_re, x_im});
}
inline mint checked_unary_neg_Integer8(int8_t x) {
  return evaluate<unary::neg, Checked>(x);
}
inline mint checked_unary_neg_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::neg, Checked>(x);
}
inline mint checked_unary_neg_Integer16(int16_t x) {
  return evaluate<unary::neg, Checked>(x);
}
inline mint checked_unary_neg_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::neg, Checked>(x);
}
inline mint checked_unary_neg_Integer32(int32_t x) {
  return evaluate<unary::neg, Checked>(x);
}
inline mint checked_unary_neg_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::neg, Checked>(x);
}
inline mint checked_unary_neg_Integer64(int64_t x) {
  return evaluate<unary::neg, Checked>(x);
}
inline mint checked_unary_neg_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::neg, Checked>(x);
}
inline mint checked_unary_neg_Real16(uint16_t x) {
  return evaluate<unary::neg, Checked>(Real16{x});
}
inline mint checked_unary_neg_Real32(float x) {
  return evaluate<unary::neg, Checked>(x);
}
inline mint checked_unary_neg_Real64(double x) {
  return evaluate<unary::neg, Checked>(x);
}
inline mint checked_unary_neg_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::neg, Checked>(ComplexReal32{x_re, x_im});
}
inline mint checked_unary_neg_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::neg, Checked>(ComplexReal64{x_re, x_im});
}
inline mint unary_npos_Integer8(int8_t x) {
  return evaluate<unary::npos, Plain>(x);
}
inline mint unary_npos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::npos, Plain>(x);
}
inline mint unary_npos_Integer16(int16_t x) {
  return evaluate<unary::npos, Plain>(x);
}
inline mint unary_npos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::npos, Plain>(x);
}
inline mint unary_npos_Integer32(int32_t x) {
  return evaluate<unary::npos, Plain>(x);
}
inline mint unary_npos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::npos, Plain>(x);
}
inline mint unary_npos_Integer64(int64_t x) {
  return evaluate<unary::npos, Plain>(x);
}
inline mint unary_npos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::npos, Plain>(x);
}
inline mint unary_npos_Real16(uint16_t x) {
  return evaluate<unary::npos, Plain>(Real16{x});
}
inline mint unary_npos_Real32(float x) {
  return evaluate<unary::npos, Plain>(x);
}
inline mint unary_npos_Real64(double x) {
  return evaluate<unary::npos, Plain>(x);
}
inline mint unary_npos_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::npos, Plain>(ComplexReal32{x_re, x_im});
}
inline mint unary_npos_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::npos, Plain>(ComplexReal64{x_re, x_im});
}
inline mint checked_unary_npos_Integer8(int8_t x) {
  return evaluate<unary::npos, Checked>(x);
}
inline mint checked_unary_npos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::npos, Checked>(x);
}
inline mint checked_unary_npos_Integer16(int16_t x) {
  return evaluate<unary::npos, Checked>(x);
}
inline mint checked_unary_npos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::npos, Checked>(x);
}
inline mint checked_unary_npos_Integer32(int32_t x) {
  return evaluate<unary::npos, Checked>(x);
}
inline mint checked_unary_npos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::npos, Checked>(x);
}
inline mint checked_unary_npos_Integer64(int64_t x) {
  return evaluate<unary::npos, Checked>(x);
}
inline mint checked_unary_npos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::npos, Checked>(x);
}
inline mint checked_unary_npos_Real16(uint16_t x) {
  return evaluate<unary::npos, Checked>(Real16{x});
}
inline mint checked_unary_npos_Real32(float x) {
  return evaluate<unary::npos, Checked>(x);
}
inline mint checked_unary_npos_Real64(double x) {
  return evaluate<unary::npos, Checked>(x);
}
inline mint checked_unary_npos_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::npos, Checked>(ComplexReal32{x_re, x_im});
}
inline mint checked_unary_npos_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::npos, Checked>(ComplexReal64{x_re, x_im});
}
inline mint unary_nneg_Integer8(int8_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
inline mint unary_nneg_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
inline mint unary_nneg_Integer16(int16_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
inline mint unary_nneg_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
inline mint unary_nneg_Integer32(int32_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
inline mint unary_nneg_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
inline mint unary_nneg_Integer64(int64_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
inline mint unary_nneg_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
inline mint unary_nneg_Real16(uint16_t x) {
  return evaluate<unary::nneg, Plain>(Real16{x});
}
inline mint unary_nneg_Real32(float x) {
  return evaluate<unary::nneg, Plain>(x);
}
inline mint unary_nneg_Real64(double x) {
  return evaluate<unary::nneg, Plain>(x);
}
inline mint unary_nneg_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::nneg, Plain>(ComplexReal32{x_re, x_im});
}
inline mint unary_nneg_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::nneg, Plain>(ComplexReal64{x_re, x_im});
}
inline mint checked_unary_nneg_Integer8(int8_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
inline mint checked_unary_nneg_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
inline mint checked_unary_nneg_Integer16(int16_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
inline mint checked_unary_nneg_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
inline mint checked_unary_nneg_Integer32(int32_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
inline mint checked_unary_nneg_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
inline mint checked_unary_nneg_Integer64(int64_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
inline mint checked_unary_nneg_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
inline mint checked_unary_nneg_Real16(uint16_t x) {
  return evaluate<unary::nneg, Checked>(Real16{x});
}
inline mint checked_unary_nneg_Real32(float x) {
  return evaluate<unary::nneg, Checked>(x);
}
inline mint checked_unary_nneg_Real64(double x) {
  return evaluate<unary::nneg, Checked>(x);
}
inline mint checked_unary_nneg_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::nneg, Checked>(ComplexReal32{x_re, x_im});
}
inline mint checked_unary_nneg_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::nneg, Checked>(ComplexReal64{x_re, x_im});
}
inline mint unary_unitize_Integer8(int8_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
inline mint unary_unitize_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
inline mint unary_unitize_Integer16(int16_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
inline mint unary_unitize_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
inline mint unary_unitize_Integer32(int32_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
inline mint unary_unitize_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
inline mint unary_unitize_Integer64(int64_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
inline mint unary_unitize_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
inline mint unary_unitize_Real16(uint16_t x) {
  return evaluate<unary::unitize, Plain>(Real16{x});
}
inline mint unary_unitize_Real32(float x) {
  return evaluate<unary::unitize, Plain>(x);
}
inline mint unary_unitize_Real64(double x) {
  return evaluate<unary::unitize, Plain>(x);
}
inline mint unary_unitize_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::unitize, Plain>(ComplexReal32{x_re, x_im});
}
inline mint unary_unitize_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::unitize, Plain>(ComplexReal64{x_re, x_im});
}
inline mint checked_unary_unitize_Integer8(int8_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
inline mint checked_unary_unitize_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
inline mint checked_unary_unitize_Integer16(int16_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
inline mint checked_unary_unitize_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
inline mint checked_unary_unitize_Integer32(int32_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
inline mint checked_unary_unitize_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
inline mint checked_unary_unitize_Integer64(int64_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
inline mint checked_unary_unitize_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
inline mint checked_unary_unitize_Real16(uint16_t x) {
  return evaluate<unary::unitize, Checked>(Real16{x});
}
inline mint checked_unary_unitize_Real32(float x) {
  return evaluate<unary::unitize, Checked>(x);
}
inline mint checked_unary_unitize_Real64(double x) {
  return evaluate<unary::unitize, Checked>(x);
}
inline mint checked_unary_unitize_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::unitize, Checked>(ComplexReal32{x_re, x_im});
}
inline mint checked_unary_unitize_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::unitize, Checked>(ComplexReal64{x_re, x_im});
}
inline int8_t unary_ramp_Integer8(int8_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
inline uint8_t unary_ramp_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
inline int16_t unary_ramp_Integer16(int16_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
inline uint16_t unary_ramp_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
inline int32_t unary_ramp_Integer32(int32_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
inline uint32_t unary_ramp_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
inline int64_t unary_ramp_Integer64(int64_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
inline uint64_t unary_ramp_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
inline uint16_t *unary_ramp_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::ramp, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_ramp_Real32(float x) {
  return evaluate<unary::ramp, Plain>(x);
}
inline double unary_ramp_Real64(double x) {
  return evaluate<unary::ramp, Plain>(x);
}
inline float *unary_ramp_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::ramp, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_ramp_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::ramp, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_ramp_Integer8(int8_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
inline uint8_t checked_unary_ramp_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
inline int16_t checked_unary_ramp_Integer16(int16_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
inline uint16_t checked_unary_ramp_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
inline int32_t checked_unary_ramp_Integer32(int32_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
inline uint32_t checked_unary_ramp_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
inline int64_t checked_unary_ramp_Integer64(int64_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
inline uint64_t checked_unary_ramp_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
inline uint16_t *checked_unary_ramp_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::ramp, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_ramp_Real32(float x) {
  return evaluate<unary::ramp, Checked>(x);
}
inline double checked_unary_ramp_Real64(double x) {
  return evaluate<unary::ramp, Checked>(x);
}
inline float *checked_unary_ramp_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::ramp, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_ramp_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::ramp, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline mint unary_evenq_Integer8(int8_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
inline mint unary_evenq_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
inline mint unary_evenq_Integer16(int16_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
inline mint unary_evenq_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
inline mint unary_evenq_Integer32(int32_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
inline mint unary_evenq_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
inline mint unary_evenq_Integer64(int64_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
inline mint unary_evenq_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
inline mint unary_evenq_Real16(uint16_t x) {
  return evaluate<unary::evenq, Plain>(Real16{x});
}
inline mint unary_evenq_Real32(float x) {
  return evaluate<unary::evenq, Plain>(x);
}
inline mint unary_evenq_Real64(double x) {
  return evaluate<unary::evenq, Plain>(x);
}
inline mint unary_evenq_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::evenq, Plain>(ComplexReal32{x_re, x_im});
}
inline mint unary_evenq_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::evenq, Plain>(ComplexReal64{x_re, x_im});
}
inline mint checked_unary_evenq_Integer8(int8_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
inline mint checked_unary_evenq_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
inline mint checked_unary_evenq_Integer16(int16_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
inline mint checked_unary_evenq_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
inline mint checked_unary_evenq_Integer32(int32_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
inline mint checked_unary_evenq_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
inline mint checked_unary_evenq_Integer64(int64_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
inline mint checked_unary_evenq_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
inline mint checked_unary_evenq_Real16(uint16_t x) {
  return evaluate<unary::evenq, Checked>(Real16{x});
}
inline mint checked_unary_evenq_Real32(float x) {
  return evaluate<unary::evenq, Checked>(x);
}
inline mint checked_unary_evenq_Real64(double x) {
  return evaluate<unary::evenq, Checked>(x);
}
inline mint checked_unary_evenq_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::evenq, Checked>(ComplexReal32{x_re, x_im});
}
inline mint checked_unary_evenq_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::evenq, Checked>(ComplexReal64{x_re, x_im});
}
inline mint unary_oddq_Integer8(int8_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
inline mint unary_oddq_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
inline mint unary_oddq_Integer16(int16_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
inline mint unary_oddq_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
inline mint unary_oddq_Integer32(int32_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
inline mint unary_oddq_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
inline mint unary_oddq_Integer64(int64_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
inline mint unary_oddq_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
inline mint unary_oddq_Real16(uint16_t x) {
  return evaluate<unary::oddq, Plain>(Real16{x});
}
inline mint unary_oddq_Real32(float x) {
  return evaluate<unary::oddq, Plain>(x);
}
inline mint unary_oddq_Real64(double x) {
  return evaluate<unary::oddq, Plain>(x);
}
inline mint unary_oddq_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::oddq, Plain>(ComplexReal32{x_re, x_im});
}
inline mint unary_oddq_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::oddq, Plain>(ComplexReal64{x_re, x_im});
}
inline mint checked_unary_oddq_Integer8(int8_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
inline mint checked_unary_oddq_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
inline mint checked_unary_oddq_Integer16(int16_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
inline mint checked_unary_oddq_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
inline mint checked_unary_oddq_Integer32(int32_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
inline mint checked_unary_oddq_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
inline mint checked_unary_oddq_Integer64(int64_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
inline mint checked_unary_oddq_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
inline mint checked_unary_oddq_Real16(uint16_t x) {
  return evaluate<unary::oddq, Checked>(Real16{x});
}
inline mint checked_unary_oddq_Real32(float x) {
  return evaluate<unary::oddq, Checked>(x);
}
inline mint checked_unary_oddq_Real64(double x) {
  return evaluate<unary::oddq, Checked>(x);
}
inline mint checked_unary_oddq_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::oddq, Checked>(ComplexReal32{x_re, x_im});
}
inline mint checked_unary_oddq_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::oddq, Checked>(ComplexReal64{x_re, x_im});
}
inline int8_t unary_bit_not_Integer8(int8_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
inline uint8_t unary_bit_not_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
inline int16_t unary_bit_not_Integer16(int16_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
inline uint16_t unary_bit_not_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
inline int32_t unary_bit_not_Integer32(int32_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
inline uint32_t unary_bit_not_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
inline int64_t unary_bit_not_Integer64(int64_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
inline uint64_t unary_bit_not_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
inline uint16_t *unary_bit_not_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::bit_not, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_bit_not_Real32(float x) {
  return evaluate<unary::bit_not, Plain>(x);
}
inline double unary_bit_not_Real64(double x) {
  return evaluate<unary::bit_not, Plain>(x);
}
inline float *unary_bit_not_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::bit_not, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_bit_not_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::bit_not, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_bit_not_Integer8(int8_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
inline uint8_t checked_unary_bit_not_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
inline int16_t checked_unary_bit_not_Integer16(int16_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
inline uint16_t checked_unary_bit_not_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
inline int32_t checked_unary_bit_not_Integer32(int32_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
inline uint32_t checked_unary_bit_not_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
inline int64_t checked_unary_bit_not_Integer64(int64_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
inline uint64_t checked_unary_bit_not_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
inline uint16_t *checked_unary_bit_not_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::bit_not, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_bit_not_Real32(float x) {
  return evaluate<unary::bit_not, Checked>(x);
}
inline double checked_unary_bit_not_Real64(double x) {
  return evaluate<unary::bit_not, Checked>(x);
}
inline float *checked_unary_bit_not_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::bit_not, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_bit_not_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::bit_not, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline mint unary_bit_length_Integer8(int8_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
inline mint unary_bit_length_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
inline mint unary_bit_length_Integer16(int16_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
inline mint unary_bit_length_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
inline mint unary_bit_length_Integer32(int32_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
inline mint unary_bit_length_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
inline mint unary_bit_length_Integer64(int64_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
inline mint unary_bit_length_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
inline mint unary_bit_length_Real16(uint16_t x) {
  return evaluate<unary::bit_length, Plain>(Real16{x});
}
inline mint unary_bit_length_Real32(float x) {
  return evaluate<unary::bit_length, Plain>(x);
}
inline mint unary_bit_length_Real64(double x) {
  return evaluate<unary::bit_length, Plain>(x);
}
inline mint unary_bit_length_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::bit_length, Plain>(ComplexReal32{x_re, x_im});
}
inline mint unary_bit_length_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::bit_length, Plain>(ComplexReal64{x_re, x_im});
}
inline mint checked_unary_bit_length_Integer8(int8_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
inline mint checked_unary_bit_length_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
inline mint checked_unary_bit_length_Integer16(int16_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
inline mint checked_unary_bit_length_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
inline mint checked_unary_bit_length_Integer32(int32_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
inline mint checked_unary_bit_length_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
inline mint checked_unary_bit_length_Integer64(int64_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
inline mint checked_unary_bit_length_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
inline mint checked_unary_bit_length_Real16(uint16_t x) {
  return evaluate<unary::bit_length, Checked>(Real16{x});
}
inline mint checked_unary_bit_length_Real32(float x) {
  return evaluate<unary::bit_length, Checked>(x);
}
inline mint checked_unary_bit_length_Real64(double x) {
  return evaluate<unary::bit_length, Checked>(x);
}
inline mint checked_unary_bit_length_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::bit_length, Checked>(ComplexReal32{x_re, x_im});
}
inline mint checked_unary_bit_length_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::bit_length, Checked>(ComplexReal64{x_re, x_im});
}
inline mint unary_bit_count_Integer8(int8_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
inline mint unary_bit_count_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
inline mint unary_bit_count_Integer16(int16_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
inline mint unary_bit_count_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
inline mint unary_bit_count_Integer32(int32_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
inline mint unary_bit_count_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
inline mint unary_bit_count_Integer64(int64_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
inline mint unary_bit_count_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
inline mint unary_bit_count_Real16(uint16_t x) {
  return evaluate<unary::bit_count, Plain>(Real16{x});
}
inline mint unary_bit_count_Real32(float x) {
  return evaluate<unary::bit_count, Plain>(x);
}
inline mint unary_bit_count_Real64(double x) {
  return evaluate<unary::bit_count, Plain>(x);
}
inline mint unary_bit_count_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::bit_count, Plain>(ComplexReal32{x_re, x_im});
}
inline mint unary_bit_count_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::bit_count, Plain>(ComplexReal64{x_re, x_im});
}
inline mint checked_unary_bit_count_Integer8(int8_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
inline mint checked_unary_bit_count_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
inline mint checked_unary_bit_count_Integer16(int16_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
inline mint checked_unary_bit_count_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
inline mint checked_unary_bit_count_Integer32(int32_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
inline mint checked_unary_bit_count_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
inline mint checked_unary_bit_count_Integer64(int64_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
inline mint checked_unary_bit_count_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
inline mint checked_unary_bit_count_Real16(uint16_t x) {
  return evaluate<unary::bit_count, Checked>(Real16{x});
}
inline mint checked_unary_bit_count_Real32(float x) {
  return evaluate<unary::bit_count, Checked>(x);
}
inline mint checked_unary_bit_count_Real64(double x) {
  return evaluate<unary::bit_count, Checked>(x);
}
inline mint checked_unary_bit_count_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::bit_count, Checked>(ComplexReal32{x_re, x_im});
}
inline mint checked_unary_bit_count_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::bit_count, Checked>(ComplexReal64{x_re, x_im});
}
inline int8_t unary_sqrt_Integer8(int8_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
inline uint8_t unary_sqrt_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
inline int16_t unary_sqrt_Integer16(int16_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
inline uint16_t unary_sqrt_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
inline int32_t unary_sqrt_Integer32(int32_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
inline uint32_t unary_sqrt_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
inline int64_t unary_sqrt_Integer64(int64_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
inline uint64_t unary_sqrt_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
inline uint16_t *unary_sqrt_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sqrt, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_sqrt_Real32(float x) {
  return evaluate<unary::sqrt, Plain>(x);
}
inline double unary_sqrt_Real64(double x) {
  return evaluate<unary::sqrt, Plain>(x);
}
inline float *unary_sqrt_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sqrt, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_sqrt_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sqrt, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_sqrt_Integer8(int8_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
inline uint8_t checked_unary_sqrt_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
inline int16_t checked_unary_sqrt_Integer16(int16_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
inline uint16_t checked_unary_sqrt_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
inline int32_t checked_unary_sqrt_Integer32(int32_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
inline uint32_t checked_unary_sqrt_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
inline int64_t checked_unary_sqrt_Integer64(int64_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
inline uint64_t checked_unary_sqrt_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
inline uint16_t *checked_unary_sqrt_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sqrt, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_sqrt_Real32(float x) {
  return evaluate<unary::sqrt, Checked>(x);
}
inline double checked_unary_sqrt_Real64(double x) {
  return evaluate<unary::sqrt, Checked>(x);
}
inline float *checked_unary_sqrt_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sqrt, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_sqrt_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sqrt, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_cbrt_Integer8(int8_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
inline uint8_t unary_cbrt_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
inline int16_t unary_cbrt_Integer16(int16_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
inline uint16_t unary_cbrt_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
inline int32_t unary_cbrt_Integer32(int32_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
inline uint32_t unary_cbrt_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
inline int64_t unary_cbrt_Integer64(int64_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
inline uint64_t unary_cbrt_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
inline uint16_t *unary_cbrt_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cbrt, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_cbrt_Real32(float x) {
  return evaluate<unary::cbrt, Plain>(x);
}
inline double unary_cbrt_Real64(double x) {
  return evaluate<unary::cbrt, Plain>(x);
}
inline float *unary_cbrt_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cbrt, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_cbrt_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cbrt, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_cbrt_Integer8(int8_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
inline uint8_t checked_unary_cbrt_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
inline int16_t checked_unary_cbrt_Integer16(int16_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
inline uint16_t checked_unary_cbrt_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
inline int32_t checked_unary_cbrt_Integer32(int32_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
inline uint32_t checked_unary_cbrt_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
inline int64_t checked_unary_cbrt_Integer64(int64_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
inline uint64_t checked_unary_cbrt_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
inline uint16_t *checked_unary_cbrt_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cbrt, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_cbrt_Real32(float x) {
  return evaluate<unary::cbrt, Checked>(x);
}
inline double checked_unary_cbrt_Real64(double x) {
  return evaluate<unary::cbrt, Checked>(x);
}
inline float *checked_unary_cbrt_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cbrt, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_cbrt_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cbrt, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_rsqrt_Integer8(int8_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
inline uint8_t unary_rsqrt_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
inline int16_t unary_rsqrt_Integer16(int16_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
inline uint16_t unary_rsqrt_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
inline int32_t unary_rsqrt_Integer32(int32_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
inline uint32_t unary_rsqrt_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
inline int64_t unary_rsqrt_Integer64(int64_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
inline uint64_t unary_rsqrt_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
inline uint16_t *unary_rsqrt_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::rsqrt, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_rsqrt_Real32(float x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
inline double unary_rsqrt_Real64(double x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
inline float *unary_rsqrt_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::rsqrt, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_rsqrt_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::rsqrt, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_rsqrt_Integer8(int8_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
inline uint8_t checked_unary_rsqrt_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
inline int16_t checked_unary_rsqrt_Integer16(int16_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
inline uint16_t checked_unary_rsqrt_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
inline int32_t checked_unary_rsqrt_Integer32(int32_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
inline uint32_t checked_unary_rsqrt_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
inline int64_t checked_unary_rsqrt_Integer64(int64_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
inline uint64_t checked_unary_rsqrt_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
inline uint16_t *checked_unary_rsqrt_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::rsqrt, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_rsqrt_Real32(float x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
inline double checked_unary_rsqrt_Real64(double x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
inline float *checked_unary_rsqrt_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::rsqrt, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_rsqrt_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::rsqrt, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_round_Integer8(int8_t x) {
  return evaluate<unary::round, Plain>(x);
}
inline uint8_t unary_round_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::round, Plain>(x);
}
inline int16_t unary_round_Integer16(int16_t x) {
  return evaluate<unary::round, Plain>(x);
}
inline uint16_t unary_round_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::round, Plain>(x);
}
inline int32_t unary_round_Integer32(int32_t x) {
  return evaluate<unary::round, Plain>(x);
}
inline uint32_t unary_round_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::round, Plain>(x);
}
inline int64_t unary_round_Integer64(int64_t x) {
  return evaluate<unary::round, Plain>(x);
}
inline uint64_t unary_round_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::round, Plain>(x);
}
inline mint unary_round_Real16(uint16_t x) {
  return evaluate<unary::round, Plain>(Real16{x});
}
inline mint unary_round_Real32(float x) {
  return evaluate<unary::round, Plain>(x);
}
inline mint unary_round_Real64(double x) {
  return evaluate<unary::round, Plain>(x);
}
inline float *unary_round_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::round, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_round_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::round, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_round_Integer8(int8_t x) {
  return evaluate<unary::round, Checked>(x);
}
inline uint8_t checked_unary_round_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::round, Checked>(x);
}
inline int16_t checked_unary_round_Integer16(int16_t x) {
  return evaluate<unary::round, Checked>(x);
}
inline uint16_t checked_unary_round_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::round, Checked>(x);
}
inline int32_t checked_unary_round_Integer32(int32_t x) {
  return evaluate<unary::round, Checked>(x);
}
inline uint32_t checked_unary_round_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::round, Checked>(x);
}
inline int64_t checked_unary_round_Integer64(int64_t x) {
  return evaluate<unary::round, Checked>(x);
}
inline uint64_t checked_unary_round_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::round, Checked>(x);
}
inline mint checked_unary_round_Real16(uint16_t x) {
  return evaluate<unary::round, Checked>(Real16{x});
}
inline mint checked_unary_round_Real32(float x) {
  return evaluate<unary::round, Checked>(x);
}
inline mint checked_unary_round_Real64(double x) {
  return evaluate<unary::round, Checked>(x);
}
inline float *checked_unary_round_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::round, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_round_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::round, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_floor_Integer8(int8_t x) {
  return evaluate<unary::floor, Plain>(x);
}
inline uint8_t unary_floor_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::floor, Plain>(x);
}
inline int16_t unary_floor_Integer16(int16_t x) {
  return evaluate<unary::floor, Plain>(x);
}
inline uint16_t unary_floor_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::floor, Plain>(x);
}
inline int32_t unary_floor_Integer32(int32_t x) {
  return evaluate<unary::floor, Plain>(x);
}
inline uint32_t unary_floor_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::floor, Plain>(x);
}
inline int64_t unary_floor_Integer64(int64_t x) {
  return evaluate<unary::floor, Plain>(x);
}
inline uint64_t unary_floor_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::floor, Plain>(x);
}
inline mint unary_floor_Real16(uint16_t x) {
  return evaluate<unary::floor, Plain>(Real16{x});
}
inline mint unary_floor_Real32(float x) {
  return evaluate<unary::floor, Plain>(x);
}
inline mint unary_floor_Real64(double x) {
  return evaluate<unary::floor, Plain>(x);
}
inline float *unary_floor_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::floor, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_floor_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::floor, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_floor_Integer8(int8_t x) {
  return evaluate<unary::floor, Checked>(x);
}
inline uint8_t checked_unary_floor_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::floor, Checked>(x);
}
inline int16_t checked_unary_floor_Integer16(int16_t x) {
  return evaluate<unary::floor, Checked>(x);
}
inline uint16_t checked_unary_floor_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::floor, Checked>(x);
}
inline int32_t checked_unary_floor_Integer32(int32_t x) {
  return evaluate<unary::floor, Checked>(x);
}
inline uint32_t checked_unary_floor_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::floor, Checked>(x);
}
inline int64_t checked_unary_floor_Integer64(int64_t x) {
  return evaluate<unary::floor, Checked>(x);
}
inline uint64_t checked_unary_floor_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::floor, Checked>(x);
}
inline mint checked_unary_floor_Real16(uint16_t x) {
  return evaluate<unary::floor, Checked>(Real16{x});
}
inline mint checked_unary_floor_Real32(float x) {
  return evaluate<unary::floor, Checked>(x);
}
inline mint checked_unary_floor_Real64(double x) {
  return evaluate<unary::floor, Checked>(x);
}
inline float *checked_unary_floor_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::floor, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_floor_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::floor, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_ceiling_Integer8(int8_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
inline uint8_t unary_ceiling_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
inline int16_t unary_ceiling_Integer16(int16_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
inline uint16_t unary_ceiling_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
inline int32_t unary_ceiling_Integer32(int32_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
inline uint32_t unary_ceiling_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
inline int64_t unary_ceiling_Integer64(int64_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
inline uint64_t unary_ceiling_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
inline mint unary_ceiling_Real16(uint16_t x) {
  return evaluate<unary::ceiling, Plain>(Real16{x});
}
inline mint unary_ceiling_Real32(float x) {
  return evaluate<unary::ceiling, Plain>(x);
}
inline mint unary_ceiling_Real64(double x) {
  return evaluate<unary::ceiling, Plain>(x);
}
inline float *unary_ceiling_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::ceiling, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_ceiling_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::ceiling, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_ceiling_Integer8(int8_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
inline uint8_t checked_unary_ceiling_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
inline int16_t checked_unary_ceiling_Integer16(int16_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
inline uint16_t checked_unary_ceiling_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
inline int32_t checked_unary_ceiling_Integer32(int32_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
inline uint32_t checked_unary_ceiling_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
inline int64_t checked_unary_ceiling_Integer64(int64_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
inline uint64_t checked_unary_ceiling_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
inline mint checked_unary_ceiling_Real16(uint16_t x) {
  return evaluate<unary::ceiling, Checked>(Real16{x});
}
inline mint checked_unary_ceiling_Real32(float x) {
  return evaluate<unary::ceiling, Checked>(x);
}
inline mint checked_unary_ceiling_Real64(double x) {
  return evaluate<unary::ceiling, Checked>(x);
}
inline float *checked_unary_ceiling_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::ceiling, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_ceiling_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::ceiling, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_intpart_Integer8(int8_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
inline uint8_t unary_intpart_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
inline int16_t unary_intpart_Integer16(int16_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
inline uint16_t unary_intpart_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
inline int32_t unary_intpart_Integer32(int32_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
inline uint32_t unary_intpart_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
inline int64_t unary_intpart_Integer64(int64_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
inline uint64_t unary_intpart_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
inline mint unary_intpart_Real16(uint16_t x) {
  return evaluate<unary::intpart, Plain>(Real16{x});
}
inline mint unary_intpart_Real32(float x) {
  return evaluate<unary::intpart, Plain>(x);
}
inline mint unary_intpart_Real64(double x) {
  return evaluate<unary::intpart, Plain>(x);
}
inline float *unary_intpart_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::intpart, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_intpart_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::intpart, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_intpart_Integer8(int8_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
inline uint8_t checked_unary_intpart_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
inline int16_t checked_unary_intpart_Integer16(int16_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
inline uint16_t checked_unary_intpart_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
inline int32_t checked_unary_intpart_Integer32(int32_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
inline uint32_t checked_unary_intpart_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
inline int64_t checked_unary_intpart_Integer64(int64_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
inline uint64_t checked_unary_intpart_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
inline mint checked_unary_intpart_Real16(uint16_t x) {
  return evaluate<unary::intpart, Checked>(Real16{x});
}
inline mint checked_unary_intpart_Real32(float x) {
  return evaluate<unary::intpart, Checked>(x);
}
inline mint checked_unary_intpart_Real64(double x) {
  return evaluate<unary::intpart, Checked>(x);
}
inline float *checked_unary_intpart_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::intpart, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_intpart_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::intpart, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_fracpart_Integer8(int8_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
inline uint8_t unary_fracpart_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
inline int16_t unary_fracpart_Integer16(int16_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
inline uint16_t unary_fracpart_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
inline int32_t unary_fracpart_Integer32(int32_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
inline uint32_t unary_fracpart_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
inline int64_t unary_fracpart_Integer64(int64_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
inline uint64_t unary_fracpart_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
inline uint16_t *unary_fracpart_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::fracpart, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_fracpart_Real32(float x) {
  return evaluate<unary::fracpart, Plain>(x);
}
inline double unary_fracpart_Real64(double x) {
  return evaluate<unary::fracpart, Plain>(x);
}
inline float *unary_fracpart_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::fracpart, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_fracpart_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::fracpart, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_fracpart_Integer8(int8_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
inline uint8_t checked_unary_fracpart_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
inline int16_t checked_unary_fracpart_Integer16(int16_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
inline uint16_t checked_unary_fracpart_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
inline int32_t checked_unary_fracpart_Integer32(int32_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
inline uint32_t checked_unary_fracpart_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
inline int64_t checked_unary_fracpart_Integer64(int64_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
inline uint64_t checked_unary_fracpart_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
inline uint16_t *checked_unary_fracpart_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::fracpart, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_fracpart_Real32(float x) {
  return evaluate<unary::fracpart, Checked>(x);
}
inline double checked_unary_fracpart_Real64(double x) {
  return evaluate<unary::fracpart, Checked>(x);
}
inline float *checked_unary_fracpart_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::fracpart, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_fracpart_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::fracpart, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_mod1_Integer8(int8_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
inline uint8_t unary_mod1_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
inline int16_t unary_mod1_Integer16(int16_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
inline uint16_t unary_mod1_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
inline int32_t unary_mod1_Integer32(int32_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
inline uint32_t unary_mod1_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
inline int64_t unary_mod1_Integer64(int64_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
inline uint64_t unary_mod1_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
inline uint16_t *unary_mod1_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::mod1, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_mod1_Real32(float x) {
  return evaluate<unary::mod1, Plain>(x);
}
inline double unary_mod1_Real64(double x) {
  return evaluate<unary::mod1, Plain>(x);
}
inline float *unary_mod1_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::mod1, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_mod1_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::mod1, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_mod1_Integer8(int8_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
inline uint8_t checked_unary_mod1_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
inline int16_t checked_unary_mod1_Integer16(int16_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
inline uint16_t checked_unary_mod1_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
inline int32_t checked_unary_mod1_Integer32(int32_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
inline uint32_t checked_unary_mod1_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
inline int64_t checked_unary_mod1_Integer64(int64_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
inline uint64_t checked_unary_mod1_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
inline uint16_t *checked_unary_mod1_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::mod1, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_mod1_Real32(float x) {
  return evaluate<unary::mod1, Checked>(x);
}
inline double checked_unary_mod1_Real64(double x) {
  return evaluate<unary::mod1, Checked>(x);
}
inline float *checked_unary_mod1_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::mod1, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_mod1_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::mod1, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_exp_Integer8(int8_t x) {
  return evaluate<unary::exp, Plain>(x);
}
inline uint8_t unary_exp_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::exp, Plain>(x);
}
inline int16_t unary_exp_Integer16(int16_t x) {
  return evaluate<unary::exp, Plain>(x);
}
inline uint16_t unary_exp_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::exp, Plain>(x);
}
inline int32_t unary_exp_Integer32(int32_t x) {
  return evaluate<unary::exp, Plain>(x);
}
inline uint32_t unary_exp_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::exp, Plain>(x);
}
inline int64_t unary_exp_Integer64(int64_t x) {
  return evaluate<unary::exp, Plain>(x);
}
inline uint64_t unary_exp_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::exp, Plain>(x);
}
inline uint16_t *unary_exp_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::exp, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_exp_Real32(float x) {
  return evaluate<unary::exp, Plain>(x);
}
inline double unary_exp_Real64(double x) {
  return evaluate<unary::exp, Plain>(x);
}
inline float *unary_exp_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::exp, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_exp_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::exp, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_exp_Integer8(int8_t x) {
  return evaluate<unary::exp, Checked>(x);
}
inline uint8_t checked_unary_exp_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::exp, Checked>(x);
}
inline int16_t checked_unary_exp_Integer16(int16_t x) {
  return evaluate<unary::exp, Checked>(x);
}
inline uint16_t checked_unary_exp_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::exp, Checked>(x);
}
inline int32_t checked_unary_exp_Integer32(int32_t x) {
  return evaluate<unary::exp, Checked>(x);
}
inline uint32_t checked_unary_exp_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::exp, Checked>(x);
}
inline int64_t checked_unary_exp_Integer64(int64_t x) {
  return evaluate<unary::exp, Checked>(x);
}
inline uint64_t checked_unary_exp_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::exp, Checked>(x);
}
inline uint16_t *checked_unary_exp_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::exp, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_exp_Real32(float x) {
  return evaluate<unary::exp, Checked>(x);
}
inline double checked_unary_exp_Real64(double x) {
  return evaluate<unary::exp, Checked>(x);
}
inline float *checked_unary_exp_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::exp, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_exp_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::exp, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_expm1_Integer8(int8_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
inline uint8_t unary_expm1_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
inline int16_t unary_expm1_Integer16(int16_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
inline uint16_t unary_expm1_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
inline int32_t unary_expm1_Integer32(int32_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
inline uint32_t unary_expm1_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
inline int64_t unary_expm1_Integer64(int64_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
inline uint64_t unary_expm1_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
inline uint16_t *unary_expm1_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::expm1, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_expm1_Real32(float x) {
  return evaluate<unary::expm1, Plain>(x);
}
inline double unary_expm1_Real64(double x) {
  return evaluate<unary::expm1, Plain>(x);
}
inline float *unary_expm1_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::expm1, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_expm1_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::expm1, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_expm1_Integer8(int8_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
inline uint8_t checked_unary_expm1_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
inline int16_t checked_unary_expm1_Integer16(int16_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
inline uint16_t checked_unary_expm1_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
inline int32_t checked_unary_expm1_Integer32(int32_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
inline uint32_t checked_unary_expm1_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
inline int64_t checked_unary_expm1_Integer64(int64_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
inline uint64_t checked_unary_expm1_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
inline uint16_t *checked_unary_expm1_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::expm1, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_expm1_Real32(float x) {
  return evaluate<unary::expm1, Checked>(x);
}
inline double checked_unary_expm1_Real64(double x) {
  return evaluate<unary::expm1, Checked>(x);
}
inline float *checked_unary_expm1_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::expm1, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_expm1_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::expm1, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_log_Integer8(int8_t x) {
  return evaluate<unary::log, Plain>(x);
}
inline uint8_t unary_log_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log, Plain>(x);
}
inline int16_t unary_log_Integer16(int16_t x) {
  return evaluate<unary::log, Plain>(x);
}
inline uint16_t unary_log_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log, Plain>(x);
}
inline int32_t unary_log_Integer32(int32_t x) {
  return evaluate<unary::log, Plain>(x);
}
inline uint32_t unary_log_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log, Plain>(x);
}
inline int64_t unary_log_Integer64(int64_t x) {
  return evaluate<unary::log, Plain>(x);
}
inline uint64_t unary_log_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log, Plain>(x);
}
inline uint16_t *unary_log_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_log_Real32(float x) {
  return evaluate<unary::log, Plain>(x);
}
inline double unary_log_Real64(double x) {
  return evaluate<unary::log, Plain>(x);
}
inline float *unary_log_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_log_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_log_Integer8(int8_t x) {
  return evaluate<unary::log, Checked>(x);
}
inline uint8_t checked_unary_log_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log, Checked>(x);
}
inline int16_t checked_unary_log_Integer16(int16_t x) {
  return evaluate<unary::log, Checked>(x);
}
inline uint16_t checked_unary_log_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log, Checked>(x);
}
inline int32_t checked_unary_log_Integer32(int32_t x) {
  return evaluate<unary::log, Checked>(x);
}
inline uint32_t checked_unary_log_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log, Checked>(x);
}
inline int64_t checked_unary_log_Integer64(int64_t x) {
  return evaluate<unary::log, Checked>(x);
}
inline uint64_t checked_unary_log_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log, Checked>(x);
}
inline uint16_t *checked_unary_log_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_log_Real32(float x) {
  return evaluate<unary::log, Checked>(x);
}
inline double checked_unary_log_Real64(double x) {
  return evaluate<unary::log, Checked>(x);
}
inline float *checked_unary_log_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_log_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_log1p_Integer8(int8_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
inline uint8_t unary_log1p_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
inline int16_t unary_log1p_Integer16(int16_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
inline uint16_t unary_log1p_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
inline int32_t unary_log1p_Integer32(int32_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
inline uint32_t unary_log1p_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
inline int64_t unary_log1p_Integer64(int64_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
inline uint64_t unary_log1p_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
inline uint16_t *unary_log1p_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log1p, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_log1p_Real32(float x) {
  return evaluate<unary::log1p, Plain>(x);
}
inline double unary_log1p_Real64(double x) {
  return evaluate<unary::log1p, Plain>(x);
}
inline float *unary_log1p_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log1p, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_log1p_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log1p, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_log1p_Integer8(int8_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
inline uint8_t checked_unary_log1p_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
inline int16_t checked_unary_log1p_Integer16(int16_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
inline uint16_t checked_unary_log1p_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
inline int32_t checked_unary_log1p_Integer32(int32_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
inline uint32_t checked_unary_log1p_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
inline int64_t checked_unary_log1p_Integer64(int64_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
inline uint64_t checked_unary_log1p_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
inline uint16_t *checked_unary_log1p_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log1p, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_log1p_Real32(float x) {
  return evaluate<unary::log1p, Checked>(x);
}
inline double checked_unary_log1p_Real64(double x) {
  return evaluate<unary::log1p, Checked>(x);
}
inline float *checked_unary_log1p_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log1p, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_log1p_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log1p, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_log2_Integer8(int8_t x) {
  return evaluate<unary::log2, Plain>(x);
}
inline uint8_t unary_log2_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log2, Plain>(x);
}
inline int16_t unary_log2_Integer16(int16_t x) {
  return evaluate<unary::log2, Plain>(x);
}
inline uint16_t unary_log2_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log2, Plain>(x);
}
inline int32_t unary_log2_Integer32(int32_t x) {
  return evaluate<unary::log2, Plain>(x);
}
inline uint32_t unary_log2_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log2, Plain>(x);
}
inline int64_t unary_log2_Integer64(int64_t x) {
  return evaluate<unary::log2, Plain>(x);
}
inline uint64_t unary_log2_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log2, Plain>(x);
}
inline uint16_t *unary_log2_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log2, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_log2_Real32(float x) {
  return evaluate<unary::log2, Plain>(x);
}
inline double unary_log2_Real64(double x) {
  return evaluate<unary::log2, Plain>(x);
}
inline float *unary_log2_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log2, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_log2_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log2, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_log2_Integer8(int8_t x) {
  return evaluate<unary::log2, Checked>(x);
}
inline uint8_t checked_unary_log2_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log2, Checked>(x);
}
inline int16_t checked_unary_log2_Integer16(int16_t x) {
  return evaluate<unary::log2, Checked>(x);
}
inline uint16_t checked_unary_log2_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log2, Checked>(x);
}
inline int32_t checked_unary_log2_Integer32(int32_t x) {
  return evaluate<unary::log2, Checked>(x);
}
inline uint32_t checked_unary_log2_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log2, Checked>(x);
}
inline int64_t checked_unary_log2_Integer64(int64_t x) {
  return evaluate<unary::log2, Checked>(x);
}
inline uint64_t checked_unary_log2_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log2, Checked>(x);
}
inline uint16_t *checked_unary_log2_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log2, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_log2_Real32(float x) {
  return evaluate<unary::log2, Checked>(x);
}
inline double checked_unary_log2_Real64(double x) {
  return evaluate<unary::log2, Checked>(x);
}
inline float *checked_unary_log2_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log2, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_log2_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log2, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_log10_Integer8(int8_t x) {
  return evaluate<unary::log10, Plain>(x);
}
inline uint8_t unary_log10_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log10, Plain>(x);
}
inline int16_t unary_log10_Integer16(int16_t x) {
  return evaluate<unary::log10, Plain>(x);
}
inline uint16_t unary_log10_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log10, Plain>(x);
}
inline int32_t unary_log10_Integer32(int32_t x) {
  return evaluate<unary::log10, Plain>(x);
}
inline uint32_t unary_log10_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log10, Plain>(x);
}
inline int64_t unary_log10_Integer64(int64_t x) {
  return evaluate<unary::log10, Plain>(x);
}
inline uint64_t unary_log10_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log10, Plain>(x);
}
inline uint16_t *unary_log10_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log10, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_log10_Real32(float x) {
  return evaluate<unary::log10, Plain>(x);
}
inline double unary_log10_Real64(double x) {
  return evaluate<unary::log10, Plain>(x);
}
inline float *unary_log10_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log10, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_log10_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log10, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_log10_Integer8(int8_t x) {
  return evaluate<unary::log10, Checked>(x);
}
inline uint8_t checked_unary_log10_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log10, Checked>(x);
}
inline int16_t checked_unary_log10_Integer16(int16_t x) {
  return evaluate<unary::log10, Checked>(x);
}
inline uint16_t checked_unary_log10_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log10, Checked>(x);
}
inline int32_t checked_unary_log10_Integer32(int32_t x) {
  return evaluate<unary::log10, Checked>(x);
}
inline uint32_t checked_unary_log10_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log10, Checked>(x);
}
inline int64_t checked_unary_log10_Integer64(int64_t x) {
  return evaluate<unary::log10, Checked>(x);
}
inline uint64_t checked_unary_log10_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log10, Checked>(x);
}
inline uint16_t *checked_unary_log10_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log10, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_log10_Real32(float x) {
  return evaluate<unary::log10, Checked>(x);
}
inline double checked_unary_log10_Real64(double x) {
  return evaluate<unary::log10, Checked>(x);
}
inline float *checked_unary_log10_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log10, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_log10_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log10, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_sin_Integer8(int8_t x) {
  return evaluate<unary::sin, Plain>(x);
}
inline uint8_t unary_sin_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sin, Plain>(x);
}
inline int16_t unary_sin_Integer16(int16_t x) {
  return evaluate<unary::sin, Plain>(x);
}
inline uint16_t unary_sin_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sin, Plain>(x);
}
inline int32_t unary_sin_Integer32(int32_t x) {
  return evaluate<unary::sin, Plain>(x);
}
inline uint32_t unary_sin_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sin, Plain>(x);
}
inline int64_t unary_sin_Integer64(int64_t x) {
  return evaluate<unary::sin, Plain>(x);
}
inline uint64_t unary_sin_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sin, Plain>(x);
}
inline uint16_t *unary_sin_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sin, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_sin_Real32(float x) {
  return evaluate<unary::sin, Plain>(x);
}
inline double unary_sin_Real64(double x) {
  return evaluate<unary::sin, Plain>(x);
}
inline float *unary_sin_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sin, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_sin_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sin, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_sin_Integer8(int8_t x) {
  return evaluate<unary::sin, Checked>(x);
}
inline uint8_t checked_unary_sin_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sin, Checked>(x);
}
inline int16_t checked_unary_sin_Integer16(int16_t x) {
  return evaluate<unary::sin, Checked>(x);
}
inline uint16_t checked_unary_sin_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sin, Checked>(x);
}
inline int32_t checked_unary_sin_Integer32(int32_t x) {
  return evaluate<unary::sin, Checked>(x);
}
inline uint32_t checked_unary_sin_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sin, Checked>(x);
}
inline int64_t checked_unary_sin_Integer64(int64_t x) {
  return evaluate<unary::sin, Checked>(x);
}
inline uint64_t checked_unary_sin_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sin, Checked>(x);
}
inline uint16_t *checked_unary_sin_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sin, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_sin_Real32(float x) {
  return evaluate<unary::sin, Checked>(x);
}
inline double checked_unary_sin_Real64(double x) {
  return evaluate<unary::sin, Checked>(x);
}
inline float *checked_unary_sin_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sin, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_sin_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sin, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_cos_Integer8(int8_t x) {
  return evaluate<unary::cos, Plain>(x);
}
inline uint8_t unary_cos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cos, Plain>(x);
}
inline int16_t unary_cos_Integer16(int16_t x) {
  return evaluate<unary::cos, Plain>(x);
}
inline uint16_t unary_cos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cos, Plain>(x);
}
inline int32_t unary_cos_Integer32(int32_t x) {
  return evaluate<unary::cos, Plain>(x);
}
inline uint32_t unary_cos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cos, Plain>(x);
}
inline int64_t unary_cos_Integer64(int64_t x) {
  return evaluate<unary::cos, Plain>(x);
}
inline uint64_t unary_cos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cos, Plain>(x);
}
inline uint16_t *unary_cos_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cos, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_cos_Real32(float x) {
  return evaluate<unary::cos, Plain>(x);
}
inline double unary_cos_Real64(double x) {
  return evaluate<unary::cos, Plain>(x);
}
inline float *unary_cos_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cos, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_cos_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cos, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_cos_Integer8(int8_t x) {
  return evaluate<unary::cos, Checked>(x);
}
inline uint8_t checked_unary_cos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cos, Checked>(x);
}
inline int16_t checked_unary_cos_Integer16(int16_t x) {
  return evaluate<unary::cos, Checked>(x);
}
inline uint16_t checked_unary_cos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cos, Checked>(x);
}
inline int32_t checked_unary_cos_Integer32(int32_t x) {
  return evaluate<unary::cos, Checked>(x);
}
inline uint32_t checked_unary_cos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cos, Checked>(x);
}
inline int64_t checked_unary_cos_Integer64(int64_t x) {
  return evaluate<unary::cos, Checked>(x);
}
inline uint64_t checked_unary_cos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cos, Checked>(x);
}
inline uint16_t *checked_unary_cos_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cos, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_cos_Real32(float x) {
  return evaluate<unary::cos, Checked>(x);
}
inline double checked_unary_cos_Real64(double x) {
  return evaluate<unary::cos, Checked>(x);
}
inline float *checked_unary_cos_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cos, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_cos_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cos, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_tan_Integer8(int8_t x) {
  return evaluate<unary::tan, Plain>(x);
}
inline uint8_t unary_tan_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::tan, Plain>(x);
}
inline int16_t unary_tan_Integer16(int16_t x) {
  return evaluate<unary::tan, Plain>(x);
}
inline uint16_t unary_tan_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::tan, Plain>(x);
}
inline int32_t unary_tan_Integer32(int32_t x) {
  return evaluate<unary::tan, Plain>(x);
}
inline uint32_t unary_tan_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::tan, Plain>(x);
}
inline int64_t unary_tan_Integer64(int64_t x) {
  return evaluate<unary::tan, Plain>(x);
}
inline uint64_t unary_tan_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::tan, Plain>(x);
}
inline uint16_t *unary_tan_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::tan, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_tan_Real32(float x) {
  return evaluate<unary::tan, Plain>(x);
}
inline double unary_tan_Real64(double x) {
  return evaluate<unary::tan, Plain>(x);
}
inline float *unary_tan_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::tan, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_tan_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::tan, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_tan_Integer8(int8_t x) {
  return evaluate<unary::tan, Checked>(x);
}
inline uint8_t checked_unary_tan_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::tan, Checked>(x);
}
inline int16_t checked_unary_tan_Integer16(int16_t x) {
  return evaluate<unary::tan, Checked>(x);
}
inline uint16_t checked_unary_tan_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::tan, Checked>(x);
}
inline int32_t checked_unary_tan_Integer32(int32_t x) {
  return evaluate<unary::tan, Checked>(x);
}
inline uint32_t checked_unary_tan_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::tan, Checked>(x);
}
inline int64_t checked_unary_tan_Integer64(int64_t x) {
  return evaluate<unary::tan, Checked>(x);
}
inline uint64_t checked_unary_tan_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::tan, Checked>(x);
}
inline uint16_t *checked_unary_tan_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::tan, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_tan_Real32(float x) {
  return evaluate<unary::tan, Checked>(x);
}
inline double checked_unary_tan_Real64(double x) {
  return evaluate<unary::tan, Checked>(x);
}
inline float *checked_unary_tan_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::tan, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_tan_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::tan, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_csc_Integer8(int8_t x) {
  return evaluate<unary::csc, Plain>(x);
}
inline uint8_t unary_csc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::csc, Plain>(x);
}
inline int16_t unary_csc_Integer16(int16_t x) {
  return evaluate<unary::csc, Plain>(x);
}
inline uint16_t unary_csc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::csc, Plain>(x);
}
inline int32_t unary_csc_Integer32(int32_t x) {
  return evaluate<unary::csc, Plain>(x);
}
inline uint32_t unary_csc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::csc, Plain>(x);
}
inline int64_t unary_csc_Integer64(int64_t x) {
  return evaluate<unary::csc, Plain>(x);
}
inline uint64_t unary_csc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::csc, Plain>(x);
}
inline uint16_t *unary_csc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::csc, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_csc_Real32(float x) {
  return evaluate<unary::csc, Plain>(x);
}
inline double unary_csc_Real64(double x) {
  return evaluate<unary::csc, Plain>(x);
}
inline float *unary_csc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::csc, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_csc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::csc, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_csc_Integer8(int8_t x) {
  return evaluate<unary::csc, Checked>(x);
}
inline uint8_t checked_unary_csc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::csc, Checked>(x);
}
inline int16_t checked_unary_csc_Integer16(int16_t x) {
  return evaluate<unary::csc, Checked>(x);
}
inline uint16_t checked_unary_csc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::csc, Checked>(x);
}
inline int32_t checked_unary_csc_Integer32(int32_t x) {
  return evaluate<unary::csc, Checked>(x);
}
inline uint32_t checked_unary_csc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::csc, Checked>(x);
}
inline int64_t checked_unary_csc_Integer64(int64_t x) {
  return evaluate<unary::csc, Checked>(x);
}
inline uint64_t checked_unary_csc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::csc, Checked>(x);
}
inline uint16_t *checked_unary_csc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::csc, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_csc_Real32(float x) {
  return evaluate<unary::csc, Checked>(x);
}
inline double checked_unary_csc_Real64(double x) {
  return evaluate<unary::csc, Checked>(x);
}
inline float *checked_unary_csc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::csc, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_csc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::csc, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_sec_Integer8(int8_t x) {
  return evaluate<unary::sec, Plain>(x);
}
inline uint8_t unary_sec_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sec, Plain>(x);
}
inline int16_t unary_sec_Integer16(int16_t x) {
  return evaluate<unary::sec, Plain>(x);
}
inline uint16_t unary_sec_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sec, Plain>(x);
}
inline int32_t unary_sec_Integer32(int32_t x) {
  return evaluate<unary::sec, Plain>(x);
}
inline uint32_t unary_sec_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sec, Plain>(x);
}
inline int64_t unary_sec_Integer64(int64_t x) {
  return evaluate<unary::sec, Plain>(x);
}
inline uint64_t unary_sec_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sec, Plain>(x);
}
inline uint16_t *unary_sec_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sec, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_sec_Real32(float x) {
  return evaluate<unary::sec, Plain>(x);
}
inline double unary_sec_Real64(double x) {
  return evaluate<unary::sec, Plain>(x);
}
inline float *unary_sec_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sec, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_sec_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sec, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_sec_Integer8(int8_t x) {
  return evaluate<unary::sec, Checked>(x);
}
inline uint8_t checked_unary_sec_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sec, Checked>(x);
}
inline int16_t checked_unary_sec_Integer16(int16_t x) {
  return evaluate<unary::sec, Checked>(x);
}
inline uint16_t checked_unary_sec_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sec, Checked>(x);
}
inline int32_t checked_unary_sec_Integer32(int32_t x) {
  return evaluate<unary::sec, Checked>(x);
}
inline uint32_t checked_unary_sec_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sec, Checked>(x);
}
inline int64_t checked_unary_sec_Integer64(int64_t x) {
  return evaluate<unary::sec, Checked>(x);
}
inline uint64_t checked_unary_sec_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sec, Checked>(x);
}
inline uint16_t *checked_unary_sec_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sec, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_sec_Real32(float x) {
  return evaluate<unary::sec, Checked>(x);
}
inline double checked_unary_sec_Real64(double x) {
  return evaluate<unary::sec, Checked>(x);
}
inline float *checked_unary_sec_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sec, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_sec_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sec, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_cot_Integer8(int8_t x) {
  return evaluate<unary::cot, Plain>(x);
}
inline uint8_t unary_cot_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cot, Plain>(x);
}
inline int16_t unary_cot_Integer16(int16_t x) {
  return evaluate<unary::cot, Plain>(x);
}
inline uint16_t unary_cot_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cot, Plain>(x);
}
inline int32_t unary_cot_Integer32(int32_t x) {
  return evaluate<unary::cot, Plain>(x);
}
inline uint32_t unary_cot_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cot, Plain>(x);
}
inline int64_t unary_cot_Integer64(int64_t x) {
  return evaluate<unary::cot, Plain>(x);
}
inline uint64_t unary_cot_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cot, Plain>(x);
}
inline uint16_t *unary_cot_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cot, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_cot_Real32(float x) {
  return evaluate<unary::cot, Plain>(x);
}
inline double unary_cot_Real64(double x) {
  return evaluate<unary::cot, Plain>(x);
}
inline float *unary_cot_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cot, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_cot_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cot, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_cot_Integer8(int8_t x) {
  return evaluate<unary::cot, Checked>(x);
}
inline uint8_t checked_unary_cot_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cot, Checked>(x);
}
inline int16_t checked_unary_cot_Integer16(int16_t x) {
  return evaluate<unary::cot, Checked>(x);
}
inline uint16_t checked_unary_cot_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cot, Checked>(x);
}
inline int32_t checked_unary_cot_Integer32(int32_t x) {
  return evaluate<unary::cot, Checked>(x);
}
inline uint32_t checked_unary_cot_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cot, Checked>(x);
}
inline int64_t checked_unary_cot_Integer64(int64_t x) {
  return evaluate<unary::cot, Checked>(x);
}
inline uint64_t checked_unary_cot_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cot, Checked>(x);
}
inline uint16_t *checked_unary_cot_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cot, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_cot_Real32(float x) {
  return evaluate<unary::cot, Checked>(x);
}
inline double checked_unary_cot_Real64(double x) {
  return evaluate<unary::cot, Checked>(x);
}
inline float *checked_unary_cot_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cot, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_cot_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cot, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_sinh_Integer8(int8_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
inline uint8_t unary_sinh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
inline int16_t unary_sinh_Integer16(int16_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
inline uint16_t unary_sinh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
inline int32_t unary_sinh_Integer32(int32_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
inline uint32_t unary_sinh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
inline int64_t unary_sinh_Integer64(int64_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
inline uint64_t unary_sinh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
inline uint16_t *unary_sinh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sinh, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_sinh_Real32(float x) {
  return evaluate<unary::sinh, Plain>(x);
}
inline double unary_sinh_Real64(double x) {
  return evaluate<unary::sinh, Plain>(x);
}
inline float *unary_sinh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sinh, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_sinh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sinh, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_sinh_Integer8(int8_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
inline uint8_t checked_unary_sinh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
inline int16_t checked_unary_sinh_Integer16(int16_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
inline uint16_t checked_unary_sinh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
inline int32_t checked_unary_sinh_Integer32(int32_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
inline uint32_t checked_unary_sinh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
inline int64_t checked_unary_sinh_Integer64(int64_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
inline uint64_t checked_unary_sinh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
inline uint16_t *checked_unary_sinh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sinh, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_sinh_Real32(float x) {
  return evaluate<unary::sinh, Checked>(x);
}
inline double checked_unary_sinh_Real64(double x) {
  return evaluate<unary::sinh, Checked>(x);
}
inline float *checked_unary_sinh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sinh, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_sinh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sinh, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_cosh_Integer8(int8_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
inline uint8_t unary_cosh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
inline int16_t unary_cosh_Integer16(int16_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
inline uint16_t unary_cosh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
inline int32_t unary_cosh_Integer32(int32_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
inline uint32_t unary_cosh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
inline int64_t unary_cosh_Integer64(int64_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
inline uint64_t unary_cosh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
inline uint16_t *unary_cosh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cosh, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_cosh_Real32(float x) {
  return evaluate<unary::cosh, Plain>(x);
}
inline double unary_cosh_Real64(double x) {
  return evaluate<unary::cosh, Plain>(x);
}
inline float *unary_cosh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cosh, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_cosh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cosh, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_cosh_Integer8(int8_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
inline uint8_t checked_unary_cosh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
inline int16_t checked_unary_cosh_Integer16(int16_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
inline uint16_t checked_unary_cosh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
inline int32_t checked_unary_cosh_Integer32(int32_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
inline uint32_t checked_unary_cosh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
inline int64_t checked_unary_cosh_Integer64(int64_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
inline uint64_t checked_unary_cosh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
inline uint16_t *checked_unary_cosh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cosh, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_cosh_Real32(float x) {
  return evaluate<unary::cosh, Checked>(x);
}
inline double checked_unary_cosh_Real64(double x) {
  return evaluate<unary::cosh, Checked>(x);
}
inline float *checked_unary_cosh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cosh, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_cosh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cosh, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_tanh_Integer8(int8_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
inline uint8_t unary_tanh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
inline int16_t unary_tanh_Integer16(int16_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
inline uint16_t unary_tanh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
inline int32_t unary_tanh_Integer32(int32_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
inline uint32_t unary_tanh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
inline int64_t unary_tanh_Integer64(int64_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
inline uint64_t unary_tanh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
inline uint16_t *unary_tanh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::tanh, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_tanh_Real32(float x) {
  return evaluate<unary::tanh, Plain>(x);
}
inline double unary_tanh_Real64(double x) {
  return evaluate<unary::tanh, Plain>(x);
}
inline float *unary_tanh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::tanh, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_tanh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::tanh, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_tanh_Integer8(int8_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
inline uint8_t checked_unary_tanh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
inline int16_t checked_unary_tanh_Integer16(int16_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
inline uint16_t checked_unary_tanh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
inline int32_t checked_unary_tanh_Integer32(int32_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
inline uint32_t checked_unary_tanh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
inline int64_t checked_unary_tanh_Integer64(int64_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
inline uint64_t checked_unary_tanh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
inline uint16_t *checked_unary_tanh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::tanh, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_tanh_Real32(float x) {
  return evaluate<unary::tanh, Checked>(x);
}
inline double checked_unary_tanh_Real64(double x) {
  return evaluate<unary::tanh, Checked>(x);
}
inline float *checked_unary_tanh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::tanh, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_tanh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::tanh, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_csch_Integer8(int8_t x) {
  return evaluate<unary::csch, Plain>(x);
}
inline uint8_t unary_csch_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::csch, Plain>(x);
}
inline int16_t unary_csch_Integer16(int16_t x) {
  return evaluate<unary::csch, Plain>(x);
}
inline uint16_t unary_csch_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::csch, Plain>(x);
}
inline int32_t unary_csch_Integer32(int32_t x) {
  return evaluate<unary::csch, Plain>(x);
}
inline uint32_t unary_csch_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::csch, Plain>(x);
}
inline int64_t unary_csch_Integer64(int64_t x) {
  return evaluate<unary::csch, Plain>(x);
}
inline uint64_t unary_csch_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::csch, Plain>(x);
}
inline uint16_t *unary_csch_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::csch, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_csch_Real32(float x) {
  return evaluate<unary::csch, Plain>(x);
}
inline double unary_csch_Real64(double x) {
  return evaluate<unary::csch, Plain>(x);
}
inline float *unary_csch_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::csch, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_csch_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::csch, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_csch_Integer8(int8_t x) {
  return evaluate<unary::csch, Checked>(x);
}
inline uint8_t checked_unary_csch_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::csch, Checked>(x);
}
inline int16_t checked_unary_csch_Integer16(int16_t x) {
  return evaluate<unary::csch, Checked>(x);
}
inline uint16_t checked_unary_csch_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::csch, Checked>(x);
}
inline int32_t checked_unary_csch_Integer32(int32_t x) {
  return evaluate<unary::csch, Checked>(x);
}
inline uint32_t checked_unary_csch_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::csch, Checked>(x);
}
inline int64_t checked_unary_csch_Integer64(int64_t x) {
  return evaluate<unary::csch, Checked>(x);
}
inline uint64_t checked_unary_csch_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::csch, Checked>(x);
}
inline uint16_t *checked_unary_csch_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::csch, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_csch_Real32(float x) {
  return evaluate<unary::csch, Checked>(x);
}
inline double checked_unary_csch_Real64(double x) {
  return evaluate<unary::csch, Checked>(x);
}
inline float *checked_unary_csch_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::csch, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_csch_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::csch, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_sech_Integer8(int8_t x) {
  return evaluate<unary::sech, Plain>(x);
}
inline uint8_t unary_sech_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sech, Plain>(x);
}
inline int16_t unary_sech_Integer16(int16_t x) {
  return evaluate<unary::sech, Plain>(x);
}
inline uint16_t unary_sech_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sech, Plain>(x);
}
inline int32_t unary_sech_Integer32(int32_t x) {
  return evaluate<unary::sech, Plain>(x);
}
inline uint32_t unary_sech_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sech, Plain>(x);
}
inline int64_t unary_sech_Integer64(int64_t x) {
  return evaluate<unary::sech, Plain>(x);
}
inline uint64_t unary_sech_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sech, Plain>(x);
}
inline uint16_t *unary_sech_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sech, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_sech_Real32(float x) {
  return evaluate<unary::sech, Plain>(x);
}
inline double unary_sech_Real64(double x) {
  return evaluate<unary::sech, Plain>(x);
}
inline float *unary_sech_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sech, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_sech_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sech, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_sech_Integer8(int8_t x) {
  return evaluate<unary::sech, Checked>(x);
}
inline uint8_t checked_unary_sech_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sech, Checked>(x);
}
inline int16_t checked_unary_sech_Integer16(int16_t x) {
  return evaluate<unary::sech, Checked>(x);
}
inline uint16_t checked_unary_sech_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sech, Checked>(x);
}
inline int32_t checked_unary_sech_Integer32(int32_t x) {
  return evaluate<unary::sech, Checked>(x);
}
inline uint32_t checked_unary_sech_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sech, Checked>(x);
}
inline int64_t checked_unary_sech_Integer64(int64_t x) {
  return evaluate<unary::sech, Checked>(x);
}
inline uint64_t checked_unary_sech_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sech, Checked>(x);
}
inline uint16_t *checked_unary_sech_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sech, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_sech_Real32(float x) {
  return evaluate<unary::sech, Checked>(x);
}
inline double checked_unary_sech_Real64(double x) {
  return evaluate<unary::sech, Checked>(x);
}
inline float *checked_unary_sech_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sech, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_sech_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sech, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_coth_Integer8(int8_t x) {
  return evaluate<unary::coth, Plain>(x);
}
inline uint8_t unary_coth_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::coth, Plain>(x);
}
inline int16_t unary_coth_Integer16(int16_t x) {
  return evaluate<unary::coth, Plain>(x);
}
inline uint16_t unary_coth_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::coth, Plain>(x);
}
inline int32_t unary_coth_Integer32(int32_t x) {
  return evaluate<unary::coth, Plain>(x);
}
inline uint32_t unary_coth_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::coth, Plain>(x);
}
inline int64_t unary_coth_Integer64(int64_t x) {
  return evaluate<unary::coth, Plain>(x);
}
inline uint64_t unary_coth_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::coth, Plain>(x);
}
inline uint16_t *unary_coth_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::coth, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_coth_Real32(float x) {
  return evaluate<unary::coth, Plain>(x);
}
inline double unary_coth_Real64(double x) {
  return evaluate<unary::coth, Plain>(x);
}
inline float *unary_coth_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::coth, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_coth_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::coth, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_coth_Integer8(int8_t x) {
  return evaluate<unary::coth, Checked>(x);
}
inline uint8_t checked_unary_coth_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::coth, Checked>(x);
}
inline int16_t checked_unary_coth_Integer16(int16_t x) {
  return evaluate<unary::coth, Checked>(x);
}
inline uint16_t checked_unary_coth_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::coth, Checked>(x);
}
inline int32_t checked_unary_coth_Integer32(int32_t x) {
  return evaluate<unary::coth, Checked>(x);
}
inline uint32_t checked_unary_coth_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::coth, Checked>(x);
}
inline int64_t checked_unary_coth_Integer64(int64_t x) {
  return evaluate<unary::coth, Checked>(x);
}
inline uint64_t checked_unary_coth_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::coth, Checked>(x);
}
inline uint16_t *checked_unary_coth_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::coth, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_coth_Real32(float x) {
  return evaluate<unary::coth, Checked>(x);
}
inline double checked_unary_coth_Real64(double x) {
  return evaluate<unary::coth, Checked>(x);
}
inline float *checked_unary_coth_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::coth, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_coth_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::coth, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_asin_Integer8(int8_t x) {
  return evaluate<unary::asin, Plain>(x);
}
inline uint8_t unary_asin_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asin, Plain>(x);
}
inline int16_t unary_asin_Integer16(int16_t x) {
  return evaluate<unary::asin, Plain>(x);
}
inline uint16_t unary_asin_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asin, Plain>(x);
}
inline int32_t unary_asin_Integer32(int32_t x) {
  return evaluate<unary::asin, Plain>(x);
}
inline uint32_t unary_asin_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asin, Plain>(x);
}
inline int64_t unary_asin_Integer64(int64_t x) {
  return evaluate<unary::asin, Plain>(x);
}
inline uint64_t unary_asin_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asin, Plain>(x);
}
inline uint16_t *unary_asin_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asin, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_asin_Real32(float x) {
  return evaluate<unary::asin, Plain>(x);
}
inline double unary_asin_Real64(double x) {
  return evaluate<unary::asin, Plain>(x);
}
inline float *unary_asin_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asin, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_asin_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asin, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_asin_Integer8(int8_t x) {
  return evaluate<unary::asin, Checked>(x);
}
inline uint8_t checked_unary_asin_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asin, Checked>(x);
}
inline int16_t checked_unary_asin_Integer16(int16_t x) {
  return evaluate<unary::asin, Checked>(x);
}
inline uint16_t checked_unary_asin_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asin, Checked>(x);
}
inline int32_t checked_unary_asin_Integer32(int32_t x) {
  return evaluate<unary::asin, Checked>(x);
}
inline uint32_t checked_unary_asin_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asin, Checked>(x);
}
inline int64_t checked_unary_asin_Integer64(int64_t x) {
  return evaluate<unary::asin, Checked>(x);
}
inline uint64_t checked_unary_asin_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asin, Checked>(x);
}
inline uint16_t *checked_unary_asin_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asin, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_asin_Real32(float x) {
  return evaluate<unary::asin, Checked>(x);
}
inline double checked_unary_asin_Real64(double x) {
  return evaluate<unary::asin, Checked>(x);
}
inline float *checked_unary_asin_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asin, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_asin_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asin, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_acos_Integer8(int8_t x) {
  return evaluate<unary::acos, Plain>(x);
}
inline uint8_t unary_acos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acos, Plain>(x);
}
inline int16_t unary_acos_Integer16(int16_t x) {
  return evaluate<unary::acos, Plain>(x);
}
inline uint16_t unary_acos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acos, Plain>(x);
}
inline int32_t unary_acos_Integer32(int32_t x) {
  return evaluate<unary::acos, Plain>(x);
}
inline uint32_t unary_acos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acos, Plain>(x);
}
inline int64_t unary_acos_Integer64(int64_t x) {
  return evaluate<unary::acos, Plain>(x);
}
inline uint64_t unary_acos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acos, Plain>(x);
}
inline uint16_t *unary_acos_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acos, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_acos_Real32(float x) {
  return evaluate<unary::acos, Plain>(x);
}
inline double unary_acos_Real64(double x) {
  return evaluate<unary::acos, Plain>(x);
}
inline float *unary_acos_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acos, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_acos_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acos, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_acos_Integer8(int8_t x) {
  return evaluate<unary::acos, Checked>(x);
}
inline uint8_t checked_unary_acos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acos, Checked>(x);
}
inline int16_t checked_unary_acos_Integer16(int16_t x) {
  return evaluate<unary::acos, Checked>(x);
}
inline uint16_t checked_unary_acos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acos, Checked>(x);
}
inline int32_t checked_unary_acos_Integer32(int32_t x) {
  return evaluate<unary::acos, Checked>(x);
}
inline uint32_t checked_unary_acos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acos, Checked>(x);
}
inline int64_t checked_unary_acos_Integer64(int64_t x) {
  return evaluate<unary::acos, Checked>(x);
}
inline uint64_t checked_unary_acos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acos, Checked>(x);
}
inline uint16_t *checked_unary_acos_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acos, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_acos_Real32(float x) {
  return evaluate<unary::acos, Checked>(x);
}
inline double checked_unary_acos_Real64(double x) {
  return evaluate<unary::acos, Checked>(x);
}
inline float *checked_unary_acos_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acos, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_acos_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acos, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_atan_Integer8(int8_t x) {
  return evaluate<unary::atan, Plain>(x);
}
inline uint8_t unary_atan_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::atan, Plain>(x);
}
inline int16_t unary_atan_Integer16(int16_t x) {
  return evaluate<unary::atan, Plain>(x);
}
inline uint16_t unary_atan_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::atan, Plain>(x);
}
inline int32_t unary_atan_Integer32(int32_t x) {
  return evaluate<unary::atan, Plain>(x);
}
inline uint32_t unary_atan_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::atan, Plain>(x);
}
inline int64_t unary_atan_Integer64(int64_t x) {
  return evaluate<unary::atan, Plain>(x);
}
inline uint64_t unary_atan_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::atan, Plain>(x);
}
inline uint16_t *unary_atan_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::atan, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_atan_Real32(float x) {
  return evaluate<unary::atan, Plain>(x);
}
inline double unary_atan_Real64(double x) {
  return evaluate<unary::atan, Plain>(x);
}
inline float *unary_atan_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::atan, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_atan_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::atan, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_atan_Integer8(int8_t x) {
  return evaluate<unary::atan, Checked>(x);
}
inline uint8_t checked_unary_atan_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::atan, Checked>(x);
}
inline int16_t checked_unary_atan_Integer16(int16_t x) {
  return evaluate<unary::atan, Checked>(x);
}
inline uint16_t checked_unary_atan_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::atan, Checked>(x);
}
inline int32_t checked_unary_atan_Integer32(int32_t x) {
  return evaluate<unary::atan, Checked>(x);
}
inline uint32_t checked_unary_atan_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::atan, Checked>(x);
}
inline int64_t checked_unary_atan_Integer64(int64_t x) {
  return evaluate<unary::atan, Checked>(x);
}
inline uint64_t checked_unary_atan_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::atan, Checked>(x);
}
inline uint16_t *checked_unary_atan_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::atan, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_atan_Real32(float x) {
  return evaluate<unary::atan, Checked>(x);
}
inline double checked_unary_atan_Real64(double x) {
  return evaluate<unary::atan, Checked>(x);
}
inline float *checked_unary_atan_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::atan, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_atan_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::atan, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_acsc_Integer8(int8_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
inline uint8_t unary_acsc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
inline int16_t unary_acsc_Integer16(int16_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
inline uint16_t unary_acsc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
inline int32_t unary_acsc_Integer32(int32_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
inline uint32_t unary_acsc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
inline int64_t unary_acsc_Integer64(int64_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
inline uint64_t unary_acsc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
inline uint16_t *unary_acsc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acsc, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_acsc_Real32(float x) {
  return evaluate<unary::acsc, Plain>(x);
}
inline double unary_acsc_Real64(double x) {
  return evaluate<unary::acsc, Plain>(x);
}
inline float *unary_acsc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acsc, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_acsc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acsc, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_acsc_Integer8(int8_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
inline uint8_t checked_unary_acsc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
inline int16_t checked_unary_acsc_Integer16(int16_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
inline uint16_t checked_unary_acsc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
inline int32_t checked_unary_acsc_Integer32(int32_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
inline uint32_t checked_unary_acsc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
inline int64_t checked_unary_acsc_Integer64(int64_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
inline uint64_t checked_unary_acsc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
inline uint16_t *checked_unary_acsc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acsc, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_acsc_Real32(float x) {
  return evaluate<unary::acsc, Checked>(x);
}
inline double checked_unary_acsc_Real64(double x) {
  return evaluate<unary::acsc, Checked>(x);
}
inline float *checked_unary_acsc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acsc, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_acsc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acsc, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_asec_Integer8(int8_t x) {
  return evaluate<unary::asec, Plain>(x);
}
inline uint8_t unary_asec_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asec, Plain>(x);
}
inline int16_t unary_asec_Integer16(int16_t x) {
  return evaluate<unary::asec, Plain>(x);
}
inline uint16_t unary_asec_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asec, Plain>(x);
}
inline int32_t unary_asec_Integer32(int32_t x) {
  return evaluate<unary::asec, Plain>(x);
}
inline uint32_t unary_asec_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asec, Plain>(x);
}
inline int64_t unary_asec_Integer64(int64_t x) {
  return evaluate<unary::asec, Plain>(x);
}
inline uint64_t unary_asec_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asec, Plain>(x);
}
inline uint16_t *unary_asec_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asec, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_asec_Real32(float x) {
  return evaluate<unary::asec, Plain>(x);
}
inline double unary_asec_Real64(double x) {
  return evaluate<unary::asec, Plain>(x);
}
inline float *unary_asec_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asec, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_asec_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asec, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_asec_Integer8(int8_t x) {
  return evaluate<unary::asec, Checked>(x);
}
inline uint8_t checked_unary_asec_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asec, Checked>(x);
}
inline int16_t checked_unary_asec_Integer16(int16_t x) {
  return evaluate<unary::asec, Checked>(x);
}
inline uint16_t checked_unary_asec_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asec, Checked>(x);
}
inline int32_t checked_unary_asec_Integer32(int32_t x) {
  return evaluate<unary::asec, Checked>(x);
}
inline uint32_t checked_unary_asec_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asec, Checked>(x);
}
inline int64_t checked_unary_asec_Integer64(int64_t x) {
  return evaluate<unary::asec, Checked>(x);
}
inline uint64_t checked_unary_asec_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asec, Checked>(x);
}
inline uint16_t *checked_unary_asec_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asec, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_asec_Real32(float x) {
  return evaluate<unary::asec, Checked>(x);
}
inline double checked_unary_asec_Real64(double x) {
  return evaluate<unary::asec, Checked>(x);
}
inline float *checked_unary_asec_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asec, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_asec_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asec, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_acot_Integer8(int8_t x) {
  return evaluate<unary::acot, Plain>(x);
}
inline uint8_t unary_acot_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acot, Plain>(x);
}
inline int16_t unary_acot_Integer16(int16_t x) {
  return evaluate<unary::acot, Plain>(x);
}
inline uint16_t unary_acot_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acot, Plain>(x);
}
inline int32_t unary_acot_Integer32(int32_t x) {
  return evaluate<unary::acot, Plain>(x);
}
inline uint32_t unary_acot_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acot, Plain>(x);
}
inline int64_t unary_acot_Integer64(int64_t x) {
  return evaluate<unary::acot, Plain>(x);
}
inline uint64_t unary_acot_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acot, Plain>(x);
}
inline uint16_t *unary_acot_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acot, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_acot_Real32(float x) {
  return evaluate<unary::acot, Plain>(x);
}
inline double unary_acot_Real64(double x) {
  return evaluate<unary::acot, Plain>(x);
}
inline float *unary_acot_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acot, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_acot_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acot, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_acot_Integer8(int8_t x) {
  return evaluate<unary::acot, Checked>(x);
}
inline uint8_t checked_unary_acot_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acot, Checked>(x);
}
inline int16_t checked_unary_acot_Integer16(int16_t x) {
  return evaluate<unary::acot, Checked>(x);
}
inline uint16_t checked_unary_acot_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acot, Checked>(x);
}
inline int32_t checked_unary_acot_Integer32(int32_t x) {
  return evaluate<unary::acot, Checked>(x);
}
inline uint32_t checked_unary_acot_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acot, Checked>(x);
}
inline int64_t checked_unary_acot_Integer64(int64_t x) {
  return evaluate<unary::acot, Checked>(x);
}
inline uint64_t checked_unary_acot_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acot, Checked>(x);
}
inline uint16_t *checked_unary_acot_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acot, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_acot_Real32(float x) {
  return evaluate<unary::acot, Checked>(x);
}
inline double checked_unary_acot_Real64(double x) {
  return evaluate<unary::acot, Checked>(x);
}
inline float *checked_unary_acot_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acot, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_acot_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acot, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_asinh_Integer8(int8_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
inline uint8_t unary_asinh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
inline int16_t unary_asinh_Integer16(int16_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
inline uint16_t unary_asinh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
inline int32_t unary_asinh_Integer32(int32_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
inline uint32_t unary_asinh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
inline int64_t unary_asinh_Integer64(int64_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
inline uint64_t unary_asinh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
inline uint16_t *unary_asinh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asinh, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_asinh_Real32(float x) {
  return evaluate<unary::asinh, Plain>(x);
}
inline double unary_asinh_Real64(double x) {
  return evaluate<unary::asinh, Plain>(x);
}
inline float *unary_asinh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asinh, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_asinh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asinh, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_asinh_Integer8(int8_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
inline uint8_t checked_unary_asinh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
inline int16_t checked_unary_asinh_Integer16(int16_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
inline uint16_t checked_unary_asinh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
inline int32_t checked_unary_asinh_Integer32(int32_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
inline uint32_t checked_unary_asinh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
inline int64_t checked_unary_asinh_Integer64(int64_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
inline uint64_t checked_unary_asinh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
inline uint16_t *checked_unary_asinh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asinh, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_asinh_Real32(float x) {
  return evaluate<unary::asinh, Checked>(x);
}
inline double checked_unary_asinh_Real64(double x) {
  return evaluate<unary::asinh, Checked>(x);
}
inline float *checked_unary_asinh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asinh, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_asinh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asinh, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_acosh_Integer8(int8_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
inline uint8_t unary_acosh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
inline int16_t unary_acosh_Integer16(int16_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
inline uint16_t unary_acosh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
inline int32_t unary_acosh_Integer32(int32_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
inline uint32_t unary_acosh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
inline int64_t unary_acosh_Integer64(int64_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
inline uint64_t unary_acosh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
inline uint16_t *unary_acosh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acosh, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_acosh_Real32(float x) {
  return evaluate<unary::acosh, Plain>(x);
}
inline double unary_acosh_Real64(double x) {
  return evaluate<unary::acosh, Plain>(x);
}
inline float *unary_acosh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acosh, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_acosh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acosh, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_acosh_Integer8(int8_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
inline uint8_t checked_unary_acosh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
inline int16_t checked_unary_acosh_Integer16(int16_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
inline uint16_t checked_unary_acosh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
inline int32_t checked_unary_acosh_Integer32(int32_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
inline uint32_t checked_unary_acosh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
inline int64_t checked_unary_acosh_Integer64(int64_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
inline uint64_t checked_unary_acosh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
inline uint16_t *checked_unary_acosh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acosh, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_acosh_Real32(float x) {
  return evaluate<unary::acosh, Checked>(x);
}
inline double checked_unary_acosh_Real64(double x) {
  return evaluate<unary::acosh, Checked>(x);
}
inline float *checked_unary_acosh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acosh, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_acosh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acosh, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_atanh_Integer8(int8_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
inline uint8_t unary_atanh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
inline int16_t unary_atanh_Integer16(int16_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
inline uint16_t unary_atanh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
inline int32_t unary_atanh_Integer32(int32_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
inline uint32_t unary_atanh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
inline int64_t unary_atanh_Integer64(int64_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
inline uint64_t unary_atanh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
inline uint16_t *unary_atanh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::atanh, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_atanh_Real32(float x) {
  return evaluate<unary::atanh, Plain>(x);
}
inline double unary_atanh_Real64(double x) {
  return evaluate<unary::atanh, Plain>(x);
}
inline float *unary_atanh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::atanh, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_atanh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::atanh, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_atanh_Integer8(int8_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
inline uint8_t checked_unary_atanh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
inline int16_t checked_unary_atanh_Integer16(int16_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
inline uint16_t checked_unary_atanh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
inline int32_t checked_unary_atanh_Integer32(int32_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
inline uint32_t checked_unary_atanh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
inline int64_t checked_unary_atanh_Integer64(int64_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
inline uint64_t checked_unary_atanh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
inline uint16_t *checked_unary_atanh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::atanh, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_atanh_Real32(float x) {
  return evaluate<unary::atanh, Checked>(x);
}
inline double checked_unary_atanh_Real64(double x) {
  return evaluate<unary::atanh, Checked>(x);
}
inline float *checked_unary_atanh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::atanh, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_atanh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::atanh, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_acsch_Integer8(int8_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
inline uint8_t unary_acsch_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
inline int16_t unary_acsch_Integer16(int16_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
inline uint16_t unary_acsch_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
inline int32_t unary_acsch_Integer32(int32_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
inline uint32_t unary_acsch_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
inline int64_t unary_acsch_Integer64(int64_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
inline uint64_t unary_acsch_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
inline uint16_t *unary_acsch_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acsch, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_acsch_Real32(float x) {
  return evaluate<unary::acsch, Plain>(x);
}
inline double unary_acsch_Real64(double x) {
  return evaluate<unary::acsch, Plain>(x);
}
inline float *unary_acsch_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acsch, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_acsch_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acsch, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_acsch_Integer8(int8_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
inline uint8_t checked_unary_acsch_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
inline int16_t checked_unary_acsch_Integer16(int16_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
inline uint16_t checked_unary_acsch_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
inline int32_t checked_unary_acsch_Integer32(int32_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
inline uint32_t checked_unary_acsch_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
inline int64_t checked_unary_acsch_Integer64(int64_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
inline uint64_t checked_unary_acsch_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
inline uint16_t *checked_unary_acsch_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acsch, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_acsch_Real32(float x) {
  return evaluate<unary::acsch, Checked>(x);
}
inline double checked_unary_acsch_Real64(double x) {
  return evaluate<unary::acsch, Checked>(x);
}
inline float *checked_unary_acsch_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acsch, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_acsch_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acsch, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_asech_Integer8(int8_t x) {
  return evaluate<unary::asech, Plain>(x);
}
inline uint8_t unary_asech_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asech, Plain>(x);
}
inline int16_t unary_asech_Integer16(int16_t x) {
  return evaluate<unary::asech, Plain>(x);
}
inline uint16_t unary_asech_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asech, Plain>(x);
}
inline int32_t unary_asech_Integer32(int32_t x) {
  return evaluate<unary::asech, Plain>(x);
}
inline uint32_t unary_asech_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asech, Plain>(x);
}
inline int64_t unary_asech_Integer64(int64_t x) {
  return evaluate<unary::asech, Plain>(x);
}
inline uint64_t unary_asech_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asech, Plain>(x);
}
inline uint16_t *unary_asech_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asech, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_asech_Real32(float x) {
  return evaluate<unary::asech, Plain>(x);
}
inline double unary_asech_Real64(double x) {
  return evaluate<unary::asech, Plain>(x);
}
inline float *unary_asech_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asech, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_asech_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asech, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_asech_Integer8(int8_t x) {
  return evaluate<unary::asech, Checked>(x);
}
inline uint8_t checked_unary_asech_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asech, Checked>(x);
}
inline int16_t checked_unary_asech_Integer16(int16_t x) {
  return evaluate<unary::asech, Checked>(x);
}
inline uint16_t checked_unary_asech_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asech, Checked>(x);
}
inline int32_t checked_unary_asech_Integer32(int32_t x) {
  return evaluate<unary::asech, Checked>(x);
}
inline uint32_t checked_unary_asech_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asech, Checked>(x);
}
inline int64_t checked_unary_asech_Integer64(int64_t x) {
  return evaluate<unary::asech, Checked>(x);
}
inline uint64_t checked_unary_asech_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asech, Checked>(x);
}
inline uint16_t *checked_unary_asech_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asech, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_asech_Real32(float x) {
  return evaluate<unary::asech, Checked>(x);
}
inline double checked_unary_asech_Real64(double x) {
  return evaluate<unary::asech, Checked>(x);
}
inline float *checked_unary_asech_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asech, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_asech_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asech, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_acoth_Integer8(int8_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
inline uint8_t unary_acoth_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
inline int16_t unary_acoth_Integer16(int16_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
inline uint16_t unary_acoth_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
inline int32_t unary_acoth_Integer32(int32_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
inline uint32_t unary_acoth_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
inline int64_t unary_acoth_Integer64(int64_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
inline uint64_t unary_acoth_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
inline uint16_t *unary_acoth_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acoth, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_acoth_Real32(float x) {
  return evaluate<unary::acoth, Plain>(x);
}
inline double unary_acoth_Real64(double x) {
  return evaluate<unary::acoth, Plain>(x);
}
inline float *unary_acoth_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acoth, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_acoth_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acoth, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_acoth_Integer8(int8_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
inline uint8_t checked_unary_acoth_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
inline int16_t checked_unary_acoth_Integer16(int16_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
inline uint16_t checked_unary_acoth_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
inline int32_t checked_unary_acoth_Integer32(int32_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
inline uint32_t checked_unary_acoth_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
inline int64_t checked_unary_acoth_Integer64(int64_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
inline uint64_t checked_unary_acoth_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
inline uint16_t *checked_unary_acoth_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acoth, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_acoth_Real32(float x) {
  return evaluate<unary::acoth, Checked>(x);
}
inline double checked_unary_acoth_Real64(double x) {
  return evaluate<unary::acoth, Checked>(x);
}
inline float *checked_unary_acoth_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acoth, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_acoth_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acoth, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_sinc_Integer8(int8_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
inline uint8_t unary_sinc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
inline int16_t unary_sinc_Integer16(int16_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
inline uint16_t unary_sinc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
inline int32_t unary_sinc_Integer32(int32_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
inline uint32_t unary_sinc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
inline int64_t unary_sinc_Integer64(int64_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
inline uint64_t unary_sinc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
inline uint16_t *unary_sinc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sinc, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_sinc_Real32(float x) {
  return evaluate<unary::sinc, Plain>(x);
}
inline double unary_sinc_Real64(double x) {
  return evaluate<unary::sinc, Plain>(x);
}
inline float *unary_sinc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sinc, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_sinc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sinc, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_sinc_Integer8(int8_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
inline uint8_t checked_unary_sinc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
inline int16_t checked_unary_sinc_Integer16(int16_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
inline uint16_t checked_unary_sinc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
inline int32_t checked_unary_sinc_Integer32(int32_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
inline uint32_t checked_unary_sinc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
inline int64_t checked_unary_sinc_Integer64(int64_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
inline uint64_t checked_unary_sinc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
inline uint16_t *checked_unary_sinc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sinc, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_sinc_Real32(float x) {
  return evaluate<unary::sinc, Checked>(x);
}
inline double checked_unary_sinc_Real64(double x) {
  return evaluate<unary::sinc, Checked>(x);
}
inline float *checked_unary_sinc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sinc, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_sinc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sinc, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_fibonacci_Integer8(int8_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
inline uint8_t unary_fibonacci_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
inline int16_t unary_fibonacci_Integer16(int16_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
inline uint16_t unary_fibonacci_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
inline int32_t unary_fibonacci_Integer32(int32_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
inline uint32_t unary_fibonacci_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
inline int64_t unary_fibonacci_Integer64(int64_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
inline uint64_t unary_fibonacci_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
inline uint16_t *unary_fibonacci_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::fibonacci, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_fibonacci_Real32(float x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
inline double unary_fibonacci_Real64(double x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
inline float *unary_fibonacci_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::fibonacci, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_fibonacci_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::fibonacci, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_fibonacci_Integer8(int8_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
inline uint8_t checked_unary_fibonacci_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
inline int16_t checked_unary_fibonacci_Integer16(int16_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
inline uint16_t checked_unary_fibonacci_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
inline int32_t checked_unary_fibonacci_Integer32(int32_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
inline uint32_t checked_unary_fibonacci_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
inline int64_t checked_unary_fibonacci_Integer64(int64_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
inline uint64_t checked_unary_fibonacci_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
inline uint16_t *checked_unary_fibonacci_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::fibonacci, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_fibonacci_Real32(float x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
inline double checked_unary_fibonacci_Real64(double x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
inline float *checked_unary_fibonacci_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::fibonacci, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_fibonacci_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::fibonacci, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_lucasl_Integer8(int8_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
inline uint8_t unary_lucasl_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
inline int16_t unary_lucasl_Integer16(int16_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
inline uint16_t unary_lucasl_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
inline int32_t unary_lucasl_Integer32(int32_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
inline uint32_t unary_lucasl_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
inline int64_t unary_lucasl_Integer64(int64_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
inline uint64_t unary_lucasl_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
inline uint16_t *unary_lucasl_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::lucasl, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_lucasl_Real32(float x) {
  return evaluate<unary::lucasl, Plain>(x);
}
inline double unary_lucasl_Real64(double x) {
  return evaluate<unary::lucasl, Plain>(x);
}
inline float *unary_lucasl_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::lucasl, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_lucasl_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::lucasl, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_lucasl_Integer8(int8_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
inline uint8_t checked_unary_lucasl_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
inline int16_t checked_unary_lucasl_Integer16(int16_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
inline uint16_t checked_unary_lucasl_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
inline int32_t checked_unary_lucasl_Integer32(int32_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
inline uint32_t checked_unary_lucasl_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
inline int64_t checked_unary_lucasl_Integer64(int64_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
inline uint64_t checked_unary_lucasl_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
inline uint16_t *checked_unary_lucasl_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::lucasl, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_lucasl_Real32(float x) {
  return evaluate<unary::lucasl, Checked>(x);
}
inline double checked_unary_lucasl_Real64(double x) {
  return evaluate<unary::lucasl, Checked>(x);
}
inline float *checked_unary_lucasl_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::lucasl, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_lucasl_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::lucasl, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_gudermannian_Integer8(int8_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
inline uint8_t unary_gudermannian_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
inline int16_t unary_gudermannian_Integer16(int16_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
inline uint16_t unary_gudermannian_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
inline int32_t unary_gudermannian_Integer32(int32_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
inline uint32_t unary_gudermannian_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
inline int64_t unary_gudermannian_Integer64(int64_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
inline uint64_t unary_gudermannian_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
inline uint16_t *unary_gudermannian_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::gudermannian, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_gudermannian_Real32(float x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
inline double unary_gudermannian_Real64(double x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
inline float *unary_gudermannian_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::gudermannian, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_gudermannian_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::gudermannian, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_gudermannian_Integer8(int8_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
inline uint8_t checked_unary_gudermannian_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
inline int16_t checked_unary_gudermannian_Integer16(int16_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
inline uint16_t checked_unary_gudermannian_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
inline int32_t checked_unary_gudermannian_Integer32(int32_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
inline uint32_t checked_unary_gudermannian_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
inline int64_t checked_unary_gudermannian_Integer64(int64_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
inline uint64_t checked_unary_gudermannian_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
inline uint16_t *checked_unary_gudermannian_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::gudermannian, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_gudermannian_Real32(float x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
inline double checked_unary_gudermannian_Real64(double x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
inline float *checked_unary_gudermannian_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::gudermannian, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_gudermannian_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::gudermannian, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_inversegudermannian_Integer8(int8_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
inline uint8_t unary_inversegudermannian_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
inline int16_t unary_inversegudermannian_Integer16(int16_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
inline uint16_t unary_inversegudermannian_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
inline int32_t unary_inversegudermannian_Integer32(int32_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
inline uint32_t unary_inversegudermannian_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
inline int64_t unary_inversegudermannian_Integer64(int64_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
inline uint64_t unary_inversegudermannian_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
inline uint16_t *unary_inversegudermannian_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::inversegudermannian, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_inversegudermannian_Real32(float x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
inline double unary_inversegudermannian_Real64(double x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
inline float *unary_inversegudermannian_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::inversegudermannian, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_inversegudermannian_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::inversegudermannian, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_inversegudermannian_Integer8(int8_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
inline uint8_t checked_unary_inversegudermannian_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
inline int16_t checked_unary_inversegudermannian_Integer16(int16_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
inline uint16_t checked_unary_inversegudermannian_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
inline int32_t checked_unary_inversegudermannian_Integer32(int32_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
inline uint32_t checked_unary_inversegudermannian_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
inline int64_t checked_unary_inversegudermannian_Integer64(int64_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
inline uint64_t checked_unary_inversegudermannian_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
inline uint16_t *checked_unary_inversegudermannian_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::inversegudermannian, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_inversegudermannian_Real32(float x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
inline double checked_unary_inversegudermannian_Real64(double x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
inline float *checked_unary_inversegudermannian_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::inversegudermannian, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_inversegudermannian_ComplexReal64(double *re, double *im, double x_re,
                                                               double x_im) {
  return evaluateInto<unary::inversegudermannian, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_haversine_Integer8(int8_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
inline uint8_t unary_haversine_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
inline int16_t unary_haversine_Integer16(int16_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
inline uint16_t unary_haversine_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
inline int32_t unary_haversine_Integer32(int32_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
inline uint32_t unary_haversine_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
inline int64_t unary_haversine_Integer64(int64_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
inline uint64_t unary_haversine_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
inline uint16_t *unary_haversine_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::haversine, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_haversine_Real32(float x) {
  return evaluate<unary::haversine, Plain>(x);
}
inline double unary_haversine_Real64(double x) {
  return evaluate<unary::haversine, Plain>(x);
}
inline float *unary_haversine_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::haversine, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_haversine_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::haversine, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_haversine_Integer8(int8_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
inline uint8_t checked_unary_haversine_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
inline int16_t checked_unary_haversine_Integer16(int16_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
inline uint16_t checked_unary_haversine_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
inline int32_t checked_unary_haversine_Integer32(int32_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
inline uint32_t checked_unary_haversine_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
inline int64_t checked_unary_haversine_Integer64(int64_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
inline uint64_t checked_unary_haversine_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
inline uint16_t *checked_unary_haversine_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::haversine, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_haversine_Real32(float x) {
  return evaluate<unary::haversine, Checked>(x);
}
inline double checked_unary_haversine_Real64(double x) {
  return evaluate<unary::haversine, Checked>(x);
}
inline float *checked_unary_haversine_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::haversine, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_haversine_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::haversine, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_inversehaversine_Integer8(int8_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
inline uint8_t unary_inversehaversine_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
inline int16_t unary_inversehaversine_Integer16(int16_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
inline uint16_t unary_inversehaversine_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
inline int32_t unary_inversehaversine_Integer32(int32_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
inline uint32_t unary_inversehaversine_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
inline int64_t unary_inversehaversine_Integer64(int64_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
inline uint64_t unary_inversehaversine_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
inline uint16_t *unary_inversehaversine_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::inversehaversine, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_inversehaversine_Real32(float x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
inline double unary_inversehaversine_Real64(double x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
inline float *unary_inversehaversine_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::inversehaversine, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_inversehaversine_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::inversehaversine, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_inversehaversine_Integer8(int8_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
inline uint8_t checked_unary_inversehaversine_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
inline int16_t checked_unary_inversehaversine_Integer16(int16_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
inline uint16_t checked_unary_inversehaversine_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
inline int32_t checked_unary_inversehaversine_Integer32(int32_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
inline uint32_t checked_unary_inversehaversine_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
inline int64_t checked_unary_inversehaversine_Integer64(int64_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
inline uint64_t checked_unary_inversehaversine_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
inline uint16_t *checked_unary_inversehaversine_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::inversehaversine, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_inversehaversine_Real32(float x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
inline double checked_unary_inversehaversine_Real64(double x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
inline float *checked_unary_inversehaversine_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::inversehaversine, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_inversehaversine_ComplexReal64(double *re, double *im, double x_re,
                                                            double x_im) {
  return evaluateInto<unary::inversehaversine, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_erfc_Integer8(int8_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
inline uint8_t unary_erfc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
inline int16_t unary_erfc_Integer16(int16_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
inline uint16_t unary_erfc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
inline int32_t unary_erfc_Integer32(int32_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
inline uint32_t unary_erfc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
inline int64_t unary_erfc_Integer64(int64_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
inline uint64_t unary_erfc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
inline uint16_t *unary_erfc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::erfc, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_erfc_Real32(float x) {
  return evaluate<unary::erfc, Plain>(x);
}
inline double unary_erfc_Real64(double x) {
  return evaluate<unary::erfc, Plain>(x);
}
inline float *unary_erfc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::erfc, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_erfc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::erfc, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_erfc_Integer8(int8_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
inline uint8_t checked_unary_erfc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
inline int16_t checked_unary_erfc_Integer16(int16_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
inline uint16_t checked_unary_erfc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
inline int32_t checked_unary_erfc_Integer32(int32_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
inline uint32_t checked_unary_erfc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
inline int64_t checked_unary_erfc_Integer64(int64_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
inline uint64_t checked_unary_erfc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
inline uint16_t *checked_unary_erfc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::erfc, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_erfc_Real32(float x) {
  return evaluate<unary::erfc, Checked>(x);
}
inline double checked_unary_erfc_Real64(double x) {
  return evaluate<unary::erfc, Checked>(x);
}
inline float *checked_unary_erfc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::erfc, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_erfc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::erfc, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_erf_Integer8(int8_t x) {
  return evaluate<unary::erf, Plain>(x);
}
inline uint8_t unary_erf_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::erf, Plain>(x);
}
inline int16_t unary_erf_Integer16(int16_t x) {
  return evaluate<unary::erf, Plain>(x);
}
inline uint16_t unary_erf_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::erf, Plain>(x);
}
inline int32_t unary_erf_Integer32(int32_t x) {
  return evaluate<unary::erf, Plain>(x);
}
inline uint32_t unary_erf_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::erf, Plain>(x);
}
inline int64_t unary_erf_Integer64(int64_t x) {
  return evaluate<unary::erf, Plain>(x);
}
inline uint64_t unary_erf_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::erf, Plain>(x);
}
inline uint16_t *unary_erf_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::erf, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_erf_Real32(float x) {
  return evaluate<unary::erf, Plain>(x);
}
inline double unary_erf_Real64(double x) {
  return evaluate<unary::erf, Plain>(x);
}
inline float *unary_erf_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::erf, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_erf_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::erf, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_erf_Integer8(int8_t x) {
  return evaluate<unary::erf, Checked>(x);
}
inline uint8_t checked_unary_erf_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::erf, Checked>(x);
}
inline int16_t checked_unary_erf_Integer16(int16_t x) {
  return evaluate<unary::erf, Checked>(x);
}
inline uint16_t checked_unary_erf_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::erf, Checked>(x);
}
inline int32_t checked_unary_erf_Integer32(int32_t x) {
  return evaluate<unary::erf, Checked>(x);
}
inline uint32_t checked_unary_erf_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::erf, Checked>(x);
}
inline int64_t checked_unary_erf_Integer64(int64_t x) {
  return evaluate<unary::erf, Checked>(x);
}
inline uint64_t checked_unary_erf_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::erf, Checked>(x);
}
inline uint16_t *checked_unary_erf_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::erf, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_erf_Real32(float x) {
  return evaluate<unary::erf, Checked>(x);
}
inline double checked_unary_erf_Real64(double x) {
  return evaluate<unary::erf, Checked>(x);
}
inline float *checked_unary_erf_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::erf, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_erf_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::erf, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_gamma_Integer8(int8_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
inline uint8_t unary_gamma_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
inline int16_t unary_gamma_Integer16(int16_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
inline uint16_t unary_gamma_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
inline int32_t unary_gamma_Integer32(int32_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
inline uint32_t unary_gamma_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
inline int64_t unary_gamma_Integer64(int64_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
inline uint64_t unary_gamma_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
inline uint16_t *unary_gamma_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::gamma, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_gamma_Real32(float x) {
  return evaluate<unary::gamma, Plain>(x);
}
inline double unary_gamma_Real64(double x) {
  return evaluate<unary::gamma, Plain>(x);
}
inline float *unary_gamma_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::gamma, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_gamma_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::gamma, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_gamma_Integer8(int8_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
inline uint8_t checked_unary_gamma_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
inline int16_t checked_unary_gamma_Integer16(int16_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
inline uint16_t checked_unary_gamma_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
inline int32_t checked_unary_gamma_Integer32(int32_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
inline uint32_t checked_unary_gamma_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
inline int64_t checked_unary_gamma_Integer64(int64_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
inline uint64_t checked_unary_gamma_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
inline uint16_t *checked_unary_gamma_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::gamma, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_gamma_Real32(float x) {
  return evaluate<unary::gamma, Checked>(x);
}
inline double checked_unary_gamma_Real64(double x) {
  return evaluate<unary::gamma, Checked>(x);
}
inline float *checked_unary_gamma_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::gamma, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_gamma_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::gamma, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_loggamma_Integer8(int8_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
inline uint8_t unary_loggamma_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
inline int16_t unary_loggamma_Integer16(int16_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
inline uint16_t unary_loggamma_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
inline int32_t unary_loggamma_Integer32(int32_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
inline uint32_t unary_loggamma_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
inline int64_t unary_loggamma_Integer64(int64_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
inline uint64_t unary_loggamma_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
inline uint16_t *unary_loggamma_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::loggamma, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_loggamma_Real32(float x) {
  return evaluate<unary::loggamma, Plain>(x);
}
inline double unary_loggamma_Real64(double x) {
  return evaluate<unary::loggamma, Plain>(x);
}
inline float *unary_loggamma_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::loggamma, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_loggamma_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::loggamma, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_loggamma_Integer8(int8_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
inline uint8_t checked_unary_loggamma_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
inline int16_t checked_unary_loggamma_Integer16(int16_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
inline uint16_t checked_unary_loggamma_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
inline int32_t checked_unary_loggamma_Integer32(int32_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
inline uint32_t checked_unary_loggamma_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
inline int64_t checked_unary_loggamma_Integer64(int64_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
inline uint64_t checked_unary_loggamma_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
inline uint16_t *checked_unary_loggamma_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::loggamma, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_loggamma_Real32(float x) {
  return evaluate<unary::loggamma, Checked>(x);
}
inline double checked_unary_loggamma_Real64(double x) {
  return evaluate<unary::loggamma, Checked>(x);
}
inline float *checked_unary_loggamma_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::loggamma, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_loggamma_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::loggamma, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t unary_logistic_Integer8(int8_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
inline uint8_t unary_logistic_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
inline int16_t unary_logistic_Integer16(int16_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
inline uint16_t unary_logistic_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
inline int32_t unary_logistic_Integer32(int32_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
inline uint32_t unary_logistic_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
inline int64_t unary_logistic_Integer64(int64_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
inline uint64_t unary_logistic_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
inline uint16_t *unary_logistic_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::logistic, Plain>(HalfPlace{result}, Real16{x});
}
inline float unary_logistic_Real32(float x) {
  return evaluate<unary::logistic, Plain>(x);
}
inline double unary_logistic_Real64(double x) {
  return evaluate<unary::logistic, Plain>(x);
}
inline float *unary_logistic_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::logistic, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *unary_logistic_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::logistic, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t checked_unary_logistic_Integer8(int8_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
inline uint8_t checked_unary_logistic_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
inline int16_t checked_unary_logistic_Integer16(int16_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
inline uint16_t checked_unary_logistic_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
inline int32_t checked_unary_logistic_Integer32(int32_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
inline uint32_t checked_unary_logistic_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
inline int64_t checked_unary_logistic_Integer64(int64_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
inline uint64_t checked_unary_logistic_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
inline uint16_t *checked_unary_logistic_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::logistic, Checked>(HalfPlace{result}, Real16{x});
}
inline float checked_unary_logistic_Real32(float x) {
  return evaluate<unary::logistic, Checked>(x);
}
inline double checked_unary_logistic_Real64(double x) {
  return evaluate<unary::logistic, Checked>(x);
}
inline float *checked_unary_logistic_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::logistic, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
inline double *checked_unary_logistic_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::logistic, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
inline int8_t binary_plus_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
inline uint8_t binary_plus_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
inline int16_t binary_plus_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
inline uint16_t binary_plus_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
inline int32_t binary_plus_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
inline uint32_t binary_plus_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
inline int64_t binary_plus_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
inline uint64_t binary_plus_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
inline uint16_t *binary_plus_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::plus, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_plus_Real32_Real32(float x, float y) {
  return evaluate<binary::plus, Plain>(x, y);
}
inline double binary_plus_Real64_Real64(double x, double y) {
  return evaluate<binary::plus, Plain>(x, y);
}
inline float *binary_plus_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                      float y_re, float y_im) {
  return evaluateInto<binary::plus, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_plus_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                       double y_re, double y_im) {
  return evaluateInto<binary::plus, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_plus_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
inline uint8_t checked_binary_plus_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
inline int16_t checked_binary_plus_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
inline uint16_t checked_binary_plus_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
inline int32_t checked_binary_plus_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
inline uint32_t checked_binary_plus_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
inline int64_t checked_binary_plus_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
inline uint64_t checked_binary_plus_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
inline uint16_t *checked_binary_plus_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::plus, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_plus_Real32_Real32(float x, float y) {
  return evaluate<binary::plus, Checked>(x, y);
}
inline double checked_binary_plus_Real64_Real64(double x, double y) {
  return evaluate<binary::plus, Checked>(x, y);
}
inline float *checked_binary_plus_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                              float y_re, float y_im) {
  return evaluateInto<binary::plus, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_plus_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                               double x_im, double y_re, double y_im) {
  return evaluateInto<binary::plus, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_subtract_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
inline uint8_t binary_subtract_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
inline int16_t binary_subtract_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
inline uint16_t binary_subtract_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
inline int32_t binary_subtract_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
inline uint32_t binary_subtract_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
inline int64_t binary_subtract_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
inline uint64_t binary_subtract_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
inline uint16_t *binary_subtract_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::subtract, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_subtract_Real32_Real32(float x, float y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
inline double binary_subtract_Real64_Real64(double x, double y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
inline float *binary_subtract_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                          float y_re, float y_im) {
  return evaluateInto<binary::subtract, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_subtract_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                           double x_im, double y_re, double y_im) {
  return evaluateInto<binary::subtract, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_subtract_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
inline uint8_t checked_binary_subtract_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
inline int16_t checked_binary_subtract_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
inline uint16_t checked_binary_subtract_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
inline int32_t checked_binary_subtract_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
inline uint32_t checked_binary_subtract_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
inline int64_t checked_binary_subtract_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
inline uint64_t checked_binary_subtract_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
inline uint16_t *checked_binary_subtract_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::subtract, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_subtract_Real32_Real32(float x, float y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
inline double checked_binary_subtract_Real64_Real64(double x, double y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
inline float *checked_binary_subtract_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                  float x_im, float y_re, float y_im) {
  return evaluateInto<binary::subtract, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_subtract_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                   double x_im, double y_re, double y_im) {
  return evaluateInto<binary::subtract, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_times_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
inline uint8_t binary_times_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
inline int16_t binary_times_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
inline uint16_t binary_times_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
inline int32_t binary_times_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
inline uint32_t binary_times_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
inline int64_t binary_times_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
inline uint64_t binary_times_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
inline uint16_t *binary_times_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::times, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_times_Real32_Real32(float x, float y) {
  return evaluate<binary::times, Plain>(x, y);
}
inline double binary_times_Real64_Real64(double x, double y) {
  return evaluate<binary::times, Plain>(x, y);
}
inline float *binary_times_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                       float y_re, float y_im) {
  return evaluateInto<binary::times, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_times_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                        double y_re, double y_im) {
  return evaluateInto<binary::times, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_times_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
inline uint8_t checked_binary_times_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
inline int16_t checked_binary_times_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
inline uint16_t checked_binary_times_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
inline int32_t checked_binary_times_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
inline uint32_t checked_binary_times_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
inline int64_t checked_binary_times_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
inline uint64_t checked_binary_times_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
inline uint16_t *checked_binary_times_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::times, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_times_Real32_Real32(float x, float y) {
  return evaluate<binary::times, Checked>(x, y);
}
inline double checked_binary_times_Real64_Real64(double x, double y) {
  return evaluate<binary::times, Checked>(x, y);
}
inline float *checked_binary_times_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                               float x_im, float y_re, float y_im) {
  return evaluateInto<binary::times, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_times_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                double x_im, double y_re, double y_im) {
  return evaluateInto<binary::times, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_divide_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
inline uint8_t binary_divide_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
inline int16_t binary_divide_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
inline uint16_t binary_divide_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
inline int32_t binary_divide_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
inline uint32_t binary_divide_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
inline int64_t binary_divide_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
inline uint64_t binary_divide_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
inline uint16_t *binary_divide_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::divide, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_divide_Real32_Real32(float x, float y) {
  return evaluate<binary::divide, Plain>(x, y);
}
inline double binary_divide_Real64_Real64(double x, double y) {
  return evaluate<binary::divide, Plain>(x, y);
}
inline float *binary_divide_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                        float y_re, float y_im) {
  return evaluateInto<binary::divide, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_divide_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                         double y_re, double y_im) {
  return evaluateInto<binary::divide, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_divide_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
inline uint8_t checked_binary_divide_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
inline int16_t checked_binary_divide_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
inline uint16_t checked_binary_divide_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
inline int32_t checked_binary_divide_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
inline uint32_t checked_binary_divide_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
inline int64_t checked_binary_divide_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
inline uint64_t checked_binary_divide_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
inline uint16_t *checked_binary_divide_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::divide, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_divide_Real32_Real32(float x, float y) {
  return evaluate<binary::divide, Checked>(x, y);
}
inline double checked_binary_divide_Real64_Real64(double x, double y) {
  return evaluate<binary::divide, Checked>(x, y);
}
inline float *checked_binary_divide_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                float x_im, float y_re, float y_im) {
  return evaluateInto<binary::divide, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_divide_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                 double x_im, double y_re, double y_im) {
  return evaluateInto<binary::divide, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline mint binary_fpexception_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
inline mint binary_fpexception_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
inline mint binary_fpexception_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
inline mint binary_fpexception_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
inline mint binary_fpexception_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
inline mint binary_fpexception_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
inline mint binary_fpexception_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
inline mint binary_fpexception_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
inline mint binary_fpexception_Real16_Real16(uint16_t x, uint16_t y) {
  return evaluate<binary::fpexception, Plain>(Real16{x}, Real16{y});
}
inline mint binary_fpexception_Real32_Real32(float x, float y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
inline mint binary_fpexception_Real64_Real64(double x, double y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
inline mint binary_fpexception_ComplexReal32_ComplexReal32(float x_re, float x_im, float y_re, float y_im) {
  return evaluate<binary::fpexception, Plain>(ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline mint binary_fpexception_ComplexReal64_ComplexReal64(double x_re, double x_im, double y_re,
                                                           double y_im) {
  return evaluate<binary::fpexception, Plain>(ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline mint checked_binary_fpexception_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
inline mint checked_binary_fpexception_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
inline mint checked_binary_fpexception_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
inline mint checked_binary_fpexception_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
inline mint checked_binary_fpexception_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
inline mint checked_binary_fpexception_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
inline mint checked_binary_fpexception_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
inline mint checked_binary_fpexception_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
inline mint checked_binary_fpexception_Real16_Real16(uint16_t x, uint16_t y) {
  return evaluate<binary::fpexception, Checked>(Real16{x}, Real16{y});
}
inline mint checked_binary_fpexception_Real32_Real32(float x, float y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
inline mint checked_binary_fpexception_Real64_Real64(double x, double y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
inline mint checked_binary_fpexception_ComplexReal32_ComplexReal32(float x_re, float x_im, float y_re,
                                                                   float y_im) {
  return evaluate<binary::fpexception, Checked>(ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline mint checked_binary_fpexception_ComplexReal64_ComplexReal64(double x_re, double x_im, double y_re,
                                                                   double y_im) {
  return evaluate<binary::fpexception, Checked>(ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_max_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
inline uint8_t binary_max_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
inline int16_t binary_max_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
inline uint16_t binary_max_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
inline int32_t binary_max_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
inline uint32_t binary_max_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
inline int64_t binary_max_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
inline uint64_t binary_max_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
inline uint16_t *binary_max_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::max, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_max_Real32_Real32(float x, float y) {
  return evaluate<binary::max, Plain>(x, y);
}
inline double binary_max_Real64_Real64(double x, double y) {
  return evaluate<binary::max, Plain>(x, y);
}
inline float *binary_max_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                     float y_re, float y_im) {
  return evaluateInto<binary::max, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_max_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                      double y_re, double y_im) {
  return evaluateInto<binary::max, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_max_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
inline uint8_t checked_binary_max_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
inline int16_t checked_binary_max_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
inline uint16_t checked_binary_max_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
inline int32_t checked_binary_max_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
inline uint32_t checked_binary_max_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
inline int64_t checked_binary_max_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
inline uint64_t checked_binary_max_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
inline uint16_t *checked_binary_max_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::max, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_max_Real32_Real32(float x, float y) {
  return evaluate<binary::max, Checked>(x, y);
}
inline double checked_binary_max_Real64_Real64(double x, double y) {
  return evaluate<binary::max, Checked>(x, y);
}
inline float *checked_binary_max_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                             float y_re, float y_im) {
  return evaluateInto<binary::max, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_max_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                              double x_im, double y_re, double y_im) {
  return evaluateInto<binary::max, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_min_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
inline uint8_t binary_min_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
inline int16_t binary_min_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
inline uint16_t binary_min_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
inline int32_t binary_min_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
inline uint32_t binary_min_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
inline int64_t binary_min_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
inline uint64_t binary_min_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
inline uint16_t *binary_min_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::min, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_min_Real32_Real32(float x, float y) {
  return evaluate<binary::min, Plain>(x, y);
}
inline double binary_min_Real64_Real64(double x, double y) {
  return evaluate<binary::min, Plain>(x, y);
}
inline float *binary_min_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                     float y_re, float y_im) {
  return evaluateInto<binary::min, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_min_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                      double y_re, double y_im) {
  return evaluateInto<binary::min, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_min_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
inline uint8_t checked_binary_min_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
inline int16_t checked_binary_min_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
inline uint16_t checked_binary_min_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
inline int32_t checked_binary_min_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
inline uint32_t checked_binary_min_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
inline int64_t checked_binary_min_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
inline uint64_t checked_binary_min_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
inline uint16_t *checked_binary_min_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::min, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_min_Real32_Real32(float x, float y) {
  return evaluate<binary::min, Checked>(x, y);
}
inline double checked_binary_min_Real64_Real64(double x, double y) {
  return evaluate<binary::min, Checked>(x, y);
}
inline float *checked_binary_min_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                             float y_re, float y_im) {
  return evaluateInto<binary::min, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_min_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                              double x_im, double y_re, double y_im) {
  return evaluateInto<binary::min, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_chop_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
inline uint8_t binary_chop_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
inline int16_t binary_chop_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
inline uint16_t binary_chop_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
inline int32_t binary_chop_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
inline uint32_t binary_chop_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
inline int64_t binary_chop_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
inline uint64_t binary_chop_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
inline uint16_t *binary_chop_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::chop, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_chop_Real32_Real32(float x, float y) {
  return evaluate<binary::chop, Plain>(x, y);
}
inline double binary_chop_Real64_Real64(double x, double y) {
  return evaluate<binary::chop, Plain>(x, y);
}
inline float *binary_chop_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                      float y_re, float y_im) {
  return evaluateInto<binary::chop, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_chop_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                       double y_re, double y_im) {
  return evaluateInto<binary::chop, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_chop_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
inline uint8_t checked_binary_chop_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
inline int16_t checked_binary_chop_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
inline uint16_t checked_binary_chop_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
inline int32_t checked_binary_chop_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
inline uint32_t checked_binary_chop_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
inline int64_t checked_binary_chop_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
inline uint64_t checked_binary_chop_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
inline uint16_t *checked_binary_chop_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::chop, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_chop_Real32_Real32(float x, float y) {
  return evaluate<binary::chop, Checked>(x, y);
}
inline double checked_binary_chop_Real64_Real64(double x, double y) {
  return evaluate<binary::chop, Checked>(x, y);
}
inline float *checked_binary_chop_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                              float y_re, float y_im) {
  return evaluateInto<binary::chop, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_chop_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                               double x_im, double y_re, double y_im) {
  return evaluateInto<binary::chop, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_abserr_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
inline uint8_t binary_abserr_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
inline int16_t binary_abserr_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
inline uint16_t binary_abserr_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
inline int32_t binary_abserr_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
inline uint32_t binary_abserr_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
inline int64_t binary_abserr_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
inline uint64_t binary_abserr_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
inline uint16_t *binary_abserr_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::abserr, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_abserr_Real32_Real32(float x, float y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
inline double binary_abserr_Real64_Real64(double x, double y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
inline float *binary_abserr_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                        float y_re, float y_im) {
  return evaluateInto<binary::abserr, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_abserr_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                         double y_re, double y_im) {
  return evaluateInto<binary::abserr, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_abserr_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
inline uint8_t checked_binary_abserr_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
inline int16_t checked_binary_abserr_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
inline uint16_t checked_binary_abserr_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
inline int32_t checked_binary_abserr_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
inline uint32_t checked_binary_abserr_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
inline int64_t checked_binary_abserr_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
inline uint64_t checked_binary_abserr_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
inline uint16_t *checked_binary_abserr_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::abserr, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_abserr_Real32_Real32(float x, float y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
inline double checked_binary_abserr_Real64_Real64(double x, double y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
inline float *checked_binary_abserr_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                float x_im, float y_re, float y_im) {
  return evaluateInto<binary::abserr, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_abserr_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                 double x_im, double y_re, double y_im) {
  return evaluateInto<binary::abserr, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_relerr_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
inline uint8_t binary_relerr_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
inline int16_t binary_relerr_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
inline uint16_t binary_relerr_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
inline int32_t binary_relerr_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
inline uint32_t binary_relerr_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
inline int64_t binary_relerr_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
inline uint64_t binary_relerr_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
inline uint16_t *binary_relerr_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::relerr, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_relerr_Real32_Real32(float x, float y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
inline double binary_relerr_Real64_Real64(double x, double y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
inline float *binary_relerr_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                        float y_re, float y_im) {
  return evaluateInto<binary::relerr, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_relerr_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                         double y_re, double y_im) {
  return evaluateInto<binary::relerr, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_relerr_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
inline uint8_t checked_binary_relerr_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
inline int16_t checked_binary_relerr_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
inline uint16_t checked_binary_relerr_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
inline int32_t checked_binary_relerr_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
inline uint32_t checked_binary_relerr_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
inline int64_t checked_binary_relerr_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
inline uint64_t checked_binary_relerr_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
inline uint16_t *checked_binary_relerr_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::relerr, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_relerr_Real32_Real32(float x, float y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
inline double checked_binary_relerr_Real64_Real64(double x, double y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
inline float *checked_binary_relerr_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                float x_im, float y_re, float y_im) {
  return evaluateInto<binary::relerr, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_relerr_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                 double x_im, double y_re, double y_im) {
  return evaluateInto<binary::relerr, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_maxabs_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
inline uint8_t binary_maxabs_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
inline int16_t binary_maxabs_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
inline uint16_t binary_maxabs_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
inline int32_t binary_maxabs_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
inline uint32_t binary_maxabs_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
inline int64_t binary_maxabs_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
inline uint64_t binary_maxabs_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
inline uint16_t *binary_maxabs_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::maxabs, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_maxabs_Real32_Real32(float x, float y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
inline double binary_maxabs_Real64_Real64(double x, double y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
inline float *binary_maxabs_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                        float y_re, float y_im) {
  return evaluateInto<binary::maxabs, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_maxabs_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                         double y_re, double y_im) {
  return evaluateInto<binary::maxabs, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_maxabs_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
inline uint8_t checked_binary_maxabs_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
inline int16_t checked_binary_maxabs_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
inline uint16_t checked_binary_maxabs_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
inline int32_t checked_binary_maxabs_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
inline uint32_t checked_binary_maxabs_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
inline int64_t checked_binary_maxabs_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
inline uint64_t checked_binary_maxabs_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
inline uint16_t *checked_binary_maxabs_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::maxabs, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_maxabs_Real32_Real32(float x, float y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
inline double checked_binary_maxabs_Real64_Real64(double x, double y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
inline float *checked_binary_maxabs_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                float x_im, float y_re, float y_im) {
  return evaluateInto<binary::maxabs, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_maxabs_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                 double x_im, double y_re, double y_im) {
  return evaluateInto<binary::maxabs, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline mint binary_unitize_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
inline mint binary_unitize_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
inline mint binary_unitize_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
inline mint binary_unitize_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
inline mint binary_unitize_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
inline mint binary_unitize_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
inline mint binary_unitize_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
inline mint binary_unitize_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
inline mint binary_unitize_Real16_Real16(uint16_t x, uint16_t y) {
  return evaluate<binary::unitize, Plain>(Real16{x}, Real16{y});
}
inline mint binary_unitize_Real32_Real32(float x, float y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
inline mint binary_unitize_Real64_Real64(double x, double y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
inline mint binary_unitize_ComplexReal32_ComplexReal32(float x_re, float x_im, float y_re, float y_im) {
  return evaluate<binary::unitize, Plain>(ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline mint binary_unitize_ComplexReal64_ComplexReal64(double x_re, double x_im, double y_re, double y_im) {
  return evaluate<binary::unitize, Plain>(ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline mint checked_binary_unitize_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
inline mint checked_binary_unitize_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
inline mint checked_binary_unitize_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
inline mint checked_binary_unitize_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
inline mint checked_binary_unitize_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
inline mint checked_binary_unitize_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
inline mint checked_binary_unitize_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
inline mint checked_binary_unitize_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
inline mint checked_binary_unitize_Real16_Real16(uint16_t x, uint16_t y) {
  return evaluate<binary::unitize, Checked>(Real16{x}, Real16{y});
}
inline mint checked_binary_unitize_Real32_Real32(float x, float y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
inline mint checked_binary_unitize_Real64_Real64(double x, double y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
inline mint checked_binary_unitize_ComplexReal32_ComplexReal32(float x_re, float x_im, float y_re,
                                                               float y_im) {
  return evaluate<binary::unitize, Checked>(ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline mint checked_binary_unitize_ComplexReal64_ComplexReal64(double x_re, double x_im, double y_re,
                                                               double y_im) {
  return evaluate<binary::unitize, Checked>(ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_bit_and_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
inline uint8_t binary_bit_and_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
inline int16_t binary_bit_and_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
inline uint16_t binary_bit_and_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
inline int32_t binary_bit_and_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
inline uint32_t binary_bit_and_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
inline int64_t binary_bit_and_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
inline uint64_t binary_bit_and_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
inline uint16_t *binary_bit_and_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_and, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_bit_and_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
inline double binary_bit_and_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
inline float *binary_bit_and_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                         float y_re, float y_im) {
  return evaluateInto<binary::bit_and, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_bit_and_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                          double y_re, double y_im) {
  return evaluateInto<binary::bit_and, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_bit_and_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
inline uint8_t checked_binary_bit_and_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
inline int16_t checked_binary_bit_and_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
inline uint16_t checked_binary_bit_and_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
inline int32_t checked_binary_bit_and_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
inline uint32_t checked_binary_bit_and_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
inline int64_t checked_binary_bit_and_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
inline uint64_t checked_binary_bit_and_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
inline uint16_t *checked_binary_bit_and_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_and, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_bit_and_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
inline double checked_binary_bit_and_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
inline float *checked_binary_bit_and_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                 float x_im, float y_re, float y_im) {
  return evaluateInto<binary::bit_and, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_bit_and_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                  double x_im, double y_re, double y_im) {
  return evaluateInto<binary::bit_and, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_bit_or_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
inline uint8_t binary_bit_or_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
inline int16_t binary_bit_or_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
inline uint16_t binary_bit_or_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
inline int32_t binary_bit_or_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
inline uint32_t binary_bit_or_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
inline int64_t binary_bit_or_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
inline uint64_t binary_bit_or_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
inline uint16_t *binary_bit_or_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_or, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_bit_or_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
inline double binary_bit_or_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
inline float *binary_bit_or_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                        float y_re, float y_im) {
  return evaluateInto<binary::bit_or, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_bit_or_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                         double y_re, double y_im) {
  return evaluateInto<binary::bit_or, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_bit_or_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
inline uint8_t checked_binary_bit_or_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
inline int16_t checked_binary_bit_or_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
inline uint16_t checked_binary_bit_or_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
inline int32_t checked_binary_bit_or_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
inline uint32_t checked_binary_bit_or_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
inline int64_t checked_binary_bit_or_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
inline uint64_t checked_binary_bit_or_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
inline uint16_t *checked_binary_bit_or_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_or, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_bit_or_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
inline double checked_binary_bit_or_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
inline float *checked_binary_bit_or_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                float x_im, float y_re, float y_im) {
  return evaluateInto<binary::bit_or, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_bit_or_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                 double x_im, double y_re, double y_im) {
  return evaluateInto<binary::bit_or, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_bit_xor_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
inline uint8_t binary_bit_xor_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
inline int16_t binary_bit_xor_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
inline uint16_t binary_bit_xor_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
inline int32_t binary_bit_xor_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
inline uint32_t binary_bit_xor_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
inline int64_t binary_bit_xor_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
inline uint64_t binary_bit_xor_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
inline uint16_t *binary_bit_xor_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_xor, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_bit_xor_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
inline double binary_bit_xor_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
inline float *binary_bit_xor_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                         float y_re, float y_im) {
  return evaluateInto<binary::bit_xor, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_bit_xor_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                          double y_re, double y_im) {
  return evaluateInto<binary::bit_xor, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_bit_xor_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
inline uint8_t checked_binary_bit_xor_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
inline int16_t checked_binary_bit_xor_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
inline uint16_t checked_binary_bit_xor_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
inline int32_t checked_binary_bit_xor_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
inline uint32_t checked_binary_bit_xor_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
inline int64_t checked_binary_bit_xor_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
inline uint64_t checked_binary_bit_xor_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
inline uint16_t *checked_binary_bit_xor_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_xor, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_bit_xor_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
inline double checked_binary_bit_xor_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
inline float *checked_binary_bit_xor_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                 float x_im, float y_re, float y_im) {
  return evaluateInto<binary::bit_xor, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_bit_xor_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                  double x_im, double y_re, double y_im) {
  return evaluateInto<binary::bit_xor, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_intexp_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
inline uint8_t binary_intexp_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
inline int16_t binary_intexp_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
inline uint16_t binary_intexp_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
inline int32_t binary_intexp_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
inline uint32_t binary_intexp_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
inline int64_t binary_intexp_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
inline uint64_t binary_intexp_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
inline uint16_t *binary_intexp_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::intexp, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_intexp_Real32_Real32(float x, float y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
inline double binary_intexp_Real64_Real64(double x, double y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
inline float *binary_intexp_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                        float y_re, float y_im) {
  return evaluateInto<binary::intexp, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_intexp_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                         double y_re, double y_im) {
  return evaluateInto<binary::intexp, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_intexp_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
inline uint8_t checked_binary_intexp_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
inline int16_t checked_binary_intexp_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
inline uint16_t checked_binary_intexp_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
inline int32_t checked_binary_intexp_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
inline uint32_t checked_binary_intexp_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
inline int64_t checked_binary_intexp_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
inline uint64_t checked_binary_intexp_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
inline uint16_t *checked_binary_intexp_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::intexp, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_intexp_Real32_Real32(float x, float y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
inline double checked_binary_intexp_Real64_Real64(double x, double y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
inline float *checked_binary_intexp_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                float x_im, float y_re, float y_im) {
  return evaluateInto<binary::intexp, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_intexp_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                 double x_im, double y_re, double y_im) {
  return evaluateInto<binary::intexp, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_intlen_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
inline uint8_t binary_intlen_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
inline int16_t binary_intlen_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
inline uint16_t binary_intlen_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
inline int32_t binary_intlen_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
inline uint32_t binary_intlen_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
inline int64_t binary_intlen_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
inline uint64_t binary_intlen_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
inline uint16_t *binary_intlen_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::intlen, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_intlen_Real32_Real32(float x, float y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
inline double binary_intlen_Real64_Real64(double x, double y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
inline float *binary_intlen_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                        float y_re, float y_im) {
  return evaluateInto<binary::intlen, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_intlen_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                         double y_re, double y_im) {
  return evaluateInto<binary::intlen, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_intlen_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
inline uint8_t checked_binary_intlen_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
inline int16_t checked_binary_intlen_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
inline uint16_t checked_binary_intlen_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
inline int32_t checked_binary_intlen_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
inline uint32_t checked_binary_intlen_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
inline int64_t checked_binary_intlen_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
inline uint64_t checked_binary_intlen_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
inline uint16_t *checked_binary_intlen_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::intlen, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_intlen_Real32_Real32(float x, float y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
inline double checked_binary_intlen_Real64_Real64(double x, double y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
inline float *checked_binary_intlen_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                float x_im, float y_re, float y_im) {
  return evaluateInto<binary::intlen, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_intlen_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                 double x_im, double y_re, double y_im) {
  return evaluateInto<binary::intlen, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_bit_shiftleft_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
inline uint8_t binary_bit_shiftleft_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
inline int16_t binary_bit_shiftleft_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
inline uint16_t binary_bit_shiftleft_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
inline int32_t binary_bit_shiftleft_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
inline uint32_t binary_bit_shiftleft_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
inline int64_t binary_bit_shiftleft_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
inline uint64_t binary_bit_shiftleft_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
inline uint16_t *binary_bit_shiftleft_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_shiftleft, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_bit_shiftleft_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
inline double binary_bit_shiftleft_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
inline float *binary_bit_shiftleft_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                               float x_im, float y_re, float y_im) {
  return evaluateInto<binary::bit_shiftleft, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_bit_shiftleft_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                double x_im, double y_re, double y_im) {
  return evaluateInto<binary::bit_shiftleft, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_bit_shiftleft_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
inline uint8_t checked_binary_bit_shiftleft_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
inline int16_t checked_binary_bit_shiftleft_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
inline uint16_t checked_binary_bit_shiftleft_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
inline int32_t checked_binary_bit_shiftleft_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
inline uint32_t checked_binary_bit_shiftleft_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
inline int64_t checked_binary_bit_shiftleft_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
inline uint64_t checked_binary_bit_shiftleft_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
inline uint16_t *checked_binary_bit_shiftleft_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_shiftleft, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_bit_shiftleft_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
inline double checked_binary_bit_shiftleft_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
inline float *checked_binary_bit_shiftleft_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                       float x_im, float y_re, float y_im) {
  return evaluateInto<binary::bit_shiftleft, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_bit_shiftleft_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                        double x_re, double x_im,
                                                                        double y_re, double y_im) {
  return evaluateInto<binary::bit_shiftleft, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_bit_shiftright_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
inline uint8_t binary_bit_shiftright_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
inline int16_t binary_bit_shiftright_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
inline uint16_t binary_bit_shiftright_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
inline int32_t binary_bit_shiftright_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
inline uint32_t binary_bit_shiftright_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
inline int64_t binary_bit_shiftright_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
inline uint64_t binary_bit_shiftright_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
inline uint16_t *binary_bit_shiftright_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_shiftright, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_bit_shiftright_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
inline double binary_bit_shiftright_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
inline float *binary_bit_shiftright_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                float x_im, float y_re, float y_im) {
  return evaluateInto<binary::bit_shiftright, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_bit_shiftright_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                 double x_im, double y_re, double y_im) {
  return evaluateInto<binary::bit_shiftright, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_bit_shiftright_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
inline uint8_t checked_binary_bit_shiftright_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
inline int16_t checked_binary_bit_shiftright_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
inline uint16_t checked_binary_bit_shiftright_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
inline int32_t checked_binary_bit_shiftright_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
inline uint32_t checked_binary_bit_shiftright_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
inline int64_t checked_binary_bit_shiftright_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
inline uint64_t checked_binary_bit_shiftright_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
inline uint16_t *checked_binary_bit_shiftright_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_shiftright, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_bit_shiftright_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
inline double checked_binary_bit_shiftright_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
inline float *checked_binary_bit_shiftright_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                        float x_im, float y_re, float y_im) {
  return evaluateInto<binary::bit_shiftright, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_bit_shiftright_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                         double x_re, double x_im,
                                                                         double y_re, double y_im) {
  return evaluateInto<binary::bit_shiftright, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_root_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
inline uint8_t binary_root_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
inline int16_t binary_root_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
inline uint16_t binary_root_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
inline int32_t binary_root_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
inline uint32_t binary_root_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
inline int64_t binary_root_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
inline uint64_t binary_root_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
inline uint16_t *binary_root_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::root, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_root_Real32_Real32(float x, float y) {
  return evaluate<binary::root, Plain>(x, y);
}
inline double binary_root_Real64_Real64(double x, double y) {
  return evaluate<binary::root, Plain>(x, y);
}
inline float *binary_root_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                      float y_re, float y_im) {
  return evaluateInto<binary::root, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_root_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                       double y_re, double y_im) {
  return evaluateInto<binary::root, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_root_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
inline uint8_t checked_binary_root_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
inline int16_t checked_binary_root_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
inline uint16_t checked_binary_root_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
inline int32_t checked_binary_root_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
inline uint32_t checked_binary_root_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
inline int64_t checked_binary_root_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
inline uint64_t checked_binary_root_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
inline uint16_t *checked_binary_root_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::root, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_root_Real32_Real32(float x, float y) {
  return evaluate<binary::root, Checked>(x, y);
}
inline double checked_binary_root_Real64_Real64(double x, double y) {
  return evaluate<binary::root, Checked>(x, y);
}
inline float *checked_binary_root_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                              float y_re, float y_im) {
  return evaluateInto<binary::root, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_root_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                               double x_im, double y_re, double y_im) {
  return evaluateInto<binary::root, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_mod_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
inline uint8_t binary_mod_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
inline int16_t binary_mod_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
inline uint16_t binary_mod_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
inline int32_t binary_mod_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
inline uint32_t binary_mod_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
inline int64_t binary_mod_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
inline uint64_t binary_mod_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
inline uint16_t *binary_mod_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::mod, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_mod_Real32_Real32(float x, float y) {
  return evaluate<binary::mod, Plain>(x, y);
}
inline double binary_mod_Real64_Real64(double x, double y) {
  return evaluate<binary::mod, Plain>(x, y);
}
inline float *binary_mod_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                     float y_re, float y_im) {
  return evaluateInto<binary::mod, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_mod_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                      double y_re, double y_im) {
  return evaluateInto<binary::mod, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_mod_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
inline uint8_t checked_binary_mod_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
inline int16_t checked_binary_mod_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
inline uint16_t checked_binary_mod_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
inline int32_t checked_binary_mod_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
inline uint32_t checked_binary_mod_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
inline int64_t checked_binary_mod_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
inline uint64_t checked_binary_mod_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
inline uint16_t *checked_binary_mod_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::mod, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_mod_Real32_Real32(float x, float y) {
  return evaluate<binary::mod, Checked>(x, y);
}
inline double checked_binary_mod_Real64_Real64(double x, double y) {
  return evaluate<binary::mod, Checked>(x, y);
}
inline float *checked_binary_mod_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                             float y_re, float y_im) {
  return evaluateInto<binary::mod, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_mod_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                              double x_im, double y_re, double y_im) {
  return evaluateInto<binary::mod, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_quotient_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
inline uint8_t binary_quotient_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
inline int16_t binary_quotient_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
inline uint16_t binary_quotient_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
inline int32_t binary_quotient_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
inline uint32_t binary_quotient_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
inline int64_t binary_quotient_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
inline uint64_t binary_quotient_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
inline mint binary_quotient_Real16_Real16(uint16_t x, uint16_t y) {
  return evaluate<binary::quotient, Plain>(Real16{x}, Real16{y});
}
inline mint binary_quotient_Real32_Real32(float x, float y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
inline mint binary_quotient_Real64_Real64(double x, double y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
inline float *binary_quotient_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                          float y_re, float y_im) {
  return evaluateInto<binary::quotient, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_quotient_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                           double x_im, double y_re, double y_im) {
  return evaluateInto<binary::quotient, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_quotient_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
inline uint8_t checked_binary_quotient_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
inline int16_t checked_binary_quotient_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
inline uint16_t checked_binary_quotient_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
inline int32_t checked_binary_quotient_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
inline uint32_t checked_binary_quotient_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
inline int64_t checked_binary_quotient_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
inline uint64_t checked_binary_quotient_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
inline mint checked_binary_quotient_Real16_Real16(uint16_t x, uint16_t y) {
  return evaluate<binary::quotient, Checked>(Real16{x}, Real16{y});
}
inline mint checked_binary_quotient_Real32_Real32(float x, float y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
inline mint checked_binary_quotient_Real64_Real64(double x, double y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
inline float *checked_binary_quotient_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                  float x_im, float y_re, float y_im) {
  return evaluateInto<binary::quotient, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_quotient_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                   double x_im, double y_re, double y_im) {
  return evaluateInto<binary::quotient, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_log_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
inline uint8_t binary_log_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
inline int16_t binary_log_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
inline uint16_t binary_log_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
inline int32_t binary_log_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
inline uint32_t binary_log_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
inline int64_t binary_log_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
inline uint64_t binary_log_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
inline uint16_t *binary_log_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::log, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_log_Real32_Real32(float x, float y) {
  return evaluate<binary::log, Plain>(x, y);
}
inline double binary_log_Real64_Real64(double x, double y) {
  return evaluate<binary::log, Plain>(x, y);
}
inline float *binary_log_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                     float y_re, float y_im) {
  return evaluateInto<binary::log, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_log_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                      double y_re, double y_im) {
  return evaluateInto<binary::log, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_log_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
inline uint8_t checked_binary_log_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
inline int16_t checked_binary_log_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
inline uint16_t checked_binary_log_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
inline int32_t checked_binary_log_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
inline uint32_t checked_binary_log_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
inline int64_t checked_binary_log_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
inline uint64_t checked_binary_log_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
inline uint16_t *checked_binary_log_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::log, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_log_Real32_Real32(float x, float y) {
  return evaluate<binary::log, Checked>(x, y);
}
inline double checked_binary_log_Real64_Real64(double x, double y) {
  return evaluate<binary::log, Checked>(x, y);
}
inline float *checked_binary_log_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                             float y_re, float y_im) {
  return evaluateInto<binary::log, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_log_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                              double x_im, double y_re, double y_im) {
  return evaluateInto<binary::log, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_atan2_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
inline uint8_t binary_atan2_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
inline int16_t binary_atan2_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
inline uint16_t binary_atan2_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
inline int32_t binary_atan2_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
inline uint32_t binary_atan2_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
inline int64_t binary_atan2_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
inline uint64_t binary_atan2_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
inline uint16_t *binary_atan2_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::atan2, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_atan2_Real32_Real32(float x, float y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
inline double binary_atan2_Real64_Real64(double x, double y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
inline float *binary_atan2_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                       float y_re, float y_im) {
  return evaluateInto<binary::atan2, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_atan2_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                        double y_re, double y_im) {
  return evaluateInto<binary::atan2, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_atan2_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
inline uint8_t checked_binary_atan2_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
inline int16_t checked_binary_atan2_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
inline uint16_t checked_binary_atan2_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
inline int32_t checked_binary_atan2_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
inline uint32_t checked_binary_atan2_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
inline int64_t checked_binary_atan2_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
inline uint64_t checked_binary_atan2_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
inline uint16_t *checked_binary_atan2_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::atan2, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_atan2_Real32_Real32(float x, float y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
inline double checked_binary_atan2_Real64_Real64(double x, double y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
inline float *checked_binary_atan2_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                               float x_im, float y_re, float y_im) {
  return evaluateInto<binary::atan2, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_atan2_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                double x_im, double y_re, double y_im) {
  return evaluateInto<binary::atan2, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t binary_pow_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int8_t binary_pow_Integer8_UnsignedInteger8(int8_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int8_t binary_pow_Integer8_Integer16(int8_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int8_t binary_pow_Integer8_UnsignedInteger16(int8_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int8_t binary_pow_Integer8_Integer32(int8_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int8_t binary_pow_Integer8_UnsignedInteger32(int8_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int8_t binary_pow_Integer8_Integer64(int8_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int8_t binary_pow_Integer8_UnsignedInteger64(int8_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t *binary_pow_Integer8_Real16(uint16_t *result, int8_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
inline float binary_pow_Integer8_Real32(int8_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_Integer8_Real64(int8_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float *binary_pow_Integer8_ComplexReal32(float *re, float *im, int8_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *binary_pow_Integer8_ComplexReal64(double *re, double *im, int8_t x, double y_re,
                                                 double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline uint8_t binary_pow_UnsignedInteger8_Integer8(uint8_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint8_t binary_pow_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint8_t binary_pow_UnsignedInteger8_Integer16(uint8_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint8_t binary_pow_UnsignedInteger8_UnsignedInteger16(uint8_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint8_t binary_pow_UnsignedInteger8_Integer32(uint8_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint8_t binary_pow_UnsignedInteger8_UnsignedInteger32(uint8_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint8_t binary_pow_UnsignedInteger8_Integer64(uint8_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint8_t binary_pow_UnsignedInteger8_UnsignedInteger64(uint8_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t *binary_pow_UnsignedInteger8_Real16(uint16_t *result, uint8_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
inline float binary_pow_UnsignedInteger8_Real32(uint8_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_UnsignedInteger8_Real64(uint8_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float *binary_pow_UnsignedInteger8_ComplexReal32(float *re, float *im, uint8_t x, float y_re,
                                                        float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *binary_pow_UnsignedInteger8_ComplexReal64(double *re, double *im, uint8_t x, double y_re,
                                                         double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline int16_t binary_pow_Integer16_Integer8(int16_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int16_t binary_pow_Integer16_UnsignedInteger8(int16_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int16_t binary_pow_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int16_t binary_pow_Integer16_UnsignedInteger16(int16_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int16_t binary_pow_Integer16_Integer32(int16_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int16_t binary_pow_Integer16_UnsignedInteger32(int16_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int16_t binary_pow_Integer16_Integer64(int16_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int16_t binary_pow_Integer16_UnsignedInteger64(int16_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t *binary_pow_Integer16_Real16(uint16_t *result, int16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
inline float binary_pow_Integer16_Real32(int16_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_Integer16_Real64(int16_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float *binary_pow_Integer16_ComplexReal32(float *re, float *im, int16_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *binary_pow_Integer16_ComplexReal64(double *re, double *im, int16_t x, double y_re,
                                                  double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline uint16_t binary_pow_UnsignedInteger16_Integer8(uint16_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t binary_pow_UnsignedInteger16_UnsignedInteger8(uint16_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t binary_pow_UnsignedInteger16_Integer16(uint16_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t binary_pow_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t binary_pow_UnsignedInteger16_Integer32(uint16_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t binary_pow_UnsignedInteger16_UnsignedInteger32(uint16_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t binary_pow_UnsignedInteger16_Integer64(uint16_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t binary_pow_UnsignedInteger16_UnsignedInteger64(uint16_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t *binary_pow_UnsignedInteger16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
inline float binary_pow_UnsignedInteger16_Real32(uint16_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_UnsignedInteger16_Real64(uint16_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float *binary_pow_UnsignedInteger16_ComplexReal32(float *re, float *im, uint16_t x, float y_re,
                                                         float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *binary_pow_UnsignedInteger16_ComplexReal64(double *re, double *im, uint16_t x, double y_re,
                                                          double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline int32_t binary_pow_Integer32_Integer8(int32_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int32_t binary_pow_Integer32_UnsignedInteger8(int32_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int32_t binary_pow_Integer32_Integer16(int32_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int32_t binary_pow_Integer32_UnsignedInteger16(int32_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int32_t binary_pow_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int32_t binary_pow_Integer32_UnsignedInteger32(int32_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int32_t binary_pow_Integer32_Integer64(int32_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int32_t binary_pow_Integer32_UnsignedInteger64(int32_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t *binary_pow_Integer32_Real16(uint16_t *result, int32_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
inline float binary_pow_Integer32_Real32(int32_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_Integer32_Real64(int32_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float *binary_pow_Integer32_ComplexReal32(float *re, float *im, int32_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *binary_pow_Integer32_ComplexReal64(double *re, double *im, int32_t x, double y_re,
                                                  double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline uint32_t binary_pow_UnsignedInteger32_Integer8(uint32_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint32_t binary_pow_UnsignedInteger32_UnsignedInteger8(uint32_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint32_t binary_pow_UnsignedInteger32_Integer16(uint32_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint32_t binary_pow_UnsignedInteger32_UnsignedInteger16(uint32_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint32_t binary_pow_UnsignedInteger32_Integer32(uint32_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint32_t binary_pow_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint32_t binary_pow_UnsignedInteger32_Integer64(uint32_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint32_t binary_pow_UnsignedInteger32_UnsignedInteger64(uint32_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t *binary_pow_UnsignedInteger32_Real16(uint16_t *result, uint32_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
inline float binary_pow_UnsignedInteger32_Real32(uint32_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_UnsignedInteger32_Real64(uint32_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float *binary_pow_UnsignedInteger32_ComplexReal32(float *re, float *im, uint32_t x, float y_re,
                                                         float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *binary_pow_UnsignedInteger32_ComplexReal64(double *re, double *im, uint32_t x, double y_re,
                                                          double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline int64_t binary_pow_Integer64_Integer8(int64_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int64_t binary_pow_Integer64_UnsignedInteger8(int64_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int64_t binary_pow_Integer64_Integer16(int64_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int64_t binary_pow_Integer64_UnsignedInteger16(int64_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int64_t binary_pow_Integer64_Integer32(int64_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int64_t binary_pow_Integer64_UnsignedInteger32(int64_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int64_t binary_pow_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline int64_t binary_pow_Integer64_UnsignedInteger64(int64_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t *binary_pow_Integer64_Real16(uint16_t *result, int64_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
inline float binary_pow_Integer64_Real32(int64_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_Integer64_Real64(int64_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float *binary_pow_Integer64_ComplexReal32(float *re, float *im, int64_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *binary_pow_Integer64_ComplexReal64(double *re, double *im, int64_t x, double y_re,
                                                  double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline uint64_t binary_pow_UnsignedInteger64_Integer8(uint64_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint64_t binary_pow_UnsignedInteger64_UnsignedInteger8(uint64_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint64_t binary_pow_UnsignedInteger64_Integer16(uint64_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint64_t binary_pow_UnsignedInteger64_UnsignedInteger16(uint64_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint64_t binary_pow_UnsignedInteger64_Integer32(uint64_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint64_t binary_pow_UnsignedInteger64_UnsignedInteger32(uint64_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint64_t binary_pow_UnsignedInteger64_Integer64(uint64_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint64_t binary_pow_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline uint16_t *binary_pow_UnsignedInteger64_Real16(uint16_t *result, uint64_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
inline float binary_pow_UnsignedInteger64_Real32(uint64_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_UnsignedInteger64_Real64(uint64_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float *binary_pow_UnsignedInteger64_ComplexReal32(float *re, float *im, uint64_t x, float y_re,
                                                         float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *binary_pow_UnsignedInteger64_ComplexReal64(double *re, double *im, uint64_t x, double y_re,
                                                          double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline uint16_t *binary_pow_Real16_Integer8(uint16_t *result, uint16_t x, int8_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *binary_pow_Real16_UnsignedInteger8(uint16_t *result, uint16_t x, uint8_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *binary_pow_Real16_Integer16(uint16_t *result, uint16_t x, int16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *binary_pow_Real16_UnsignedInteger16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *binary_pow_Real16_Integer32(uint16_t *result, uint16_t x, int32_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *binary_pow_Real16_UnsignedInteger32(uint16_t *result, uint16_t x, uint32_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *binary_pow_Real16_Integer64(uint16_t *result, uint16_t x, int64_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *binary_pow_Real16_UnsignedInteger64(uint16_t *result, uint16_t x, uint64_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *binary_pow_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float binary_pow_Real16_Real32(uint16_t x, float y) {
  return evaluate<binary::pow, Plain>(Real16{x}, y);
}
inline double binary_pow_Real16_Real64(uint16_t x, double y) {
  return evaluate<binary::pow, Plain>(Real16{x}, y);
}
inline float *binary_pow_Real16_ComplexReal32(float *re, float *im, uint16_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, Real16{x}, ComplexReal32{y_re, y_im});
}
inline double *binary_pow_Real16_ComplexReal64(double *re, double *im, uint16_t x, double y_re,
                                               double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, Real16{x}, ComplexReal64{y_re, y_im});
}
inline float binary_pow_Real32_Integer8(float x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float binary_pow_Real32_UnsignedInteger8(float x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float binary_pow_Real32_Integer16(float x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float binary_pow_Real32_UnsignedInteger16(float x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float binary_pow_Real32_Integer32(float x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float binary_pow_Real32_UnsignedInteger32(float x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float binary_pow_Real32_Integer64(float x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float binary_pow_Real32_UnsignedInteger64(float x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float binary_pow_Real32_Real16(float x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, Real16{y});
}
inline float binary_pow_Real32_Real32(float x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_Real32_Real64(float x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline float *binary_pow_Real32_ComplexReal32(float *re, float *im, float x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *binary_pow_Real32_ComplexReal64(double *re, double *im, float x, double y_re, double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline double binary_pow_Real64_Integer8(double x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_Real64_UnsignedInteger8(double x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_Real64_Integer16(double x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_Real64_UnsignedInteger16(double x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_Real64_Integer32(double x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_Real64_UnsignedInteger32(double x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_Real64_Integer64(double x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_Real64_UnsignedInteger64(double x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_Real64_Real16(double x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, Real16{y});
}
inline double binary_pow_Real64_Real32(double x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double binary_pow_Real64_Real64(double x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
inline double *binary_pow_Real64_ComplexReal32(double *re, double *im, double x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *binary_pow_Real64_ComplexReal64(double *re, double *im, double x, double y_re, double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline float *binary_pow_ComplexReal32_Integer8(float *re, float *im, float x_re, float x_im, int8_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *binary_pow_ComplexReal32_UnsignedInteger8(float *re, float *im, float x_re, float x_im,
                                                        uint8_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *binary_pow_ComplexReal32_Integer16(float *re, float *im, float x_re, float x_im, int16_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *binary_pow_ComplexReal32_UnsignedInteger16(float *re, float *im, float x_re, float x_im,
                                                         uint16_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *binary_pow_ComplexReal32_Integer32(float *re, float *im, float x_re, float x_im, int32_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *binary_pow_ComplexReal32_UnsignedInteger32(float *re, float *im, float x_re, float x_im,
                                                         uint32_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *binary_pow_ComplexReal32_Integer64(float *re, float *im, float x_re, float x_im, int64_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *binary_pow_ComplexReal32_UnsignedInteger64(float *re, float *im, float x_re, float x_im,
                                                         uint64_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *binary_pow_ComplexReal32_Real16(float *re, float *im, float x_re, float x_im, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, Real16{y});
}
inline float *binary_pow_ComplexReal32_Real32(float *re, float *im, float x_re, float x_im, float y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline double *binary_pow_ComplexReal32_Real64(double *re, double *im, float x_re, float x_im, double y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *binary_pow_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                     float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_pow_ComplexReal32_ComplexReal64(double *re, double *im, float x_re, float x_im,
                                                      double y_re, double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline double *binary_pow_ComplexReal64_Integer8(double *re, double *im, double x_re, double x_im,
                                                 int8_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *binary_pow_ComplexReal64_UnsignedInteger8(double *re, double *im, double x_re, double x_im,
                                                         uint8_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *binary_pow_ComplexReal64_Integer16(double *re, double *im, double x_re, double x_im,
                                                  int16_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *binary_pow_ComplexReal64_UnsignedInteger16(double *re, double *im, double x_re, double x_im,
                                                          uint16_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *binary_pow_ComplexReal64_Integer32(double *re, double *im, double x_re, double x_im,
                                                  int32_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *binary_pow_ComplexReal64_UnsignedInteger32(double *re, double *im, double x_re, double x_im,
                                                          uint32_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *binary_pow_ComplexReal64_Integer64(double *re, double *im, double x_re, double x_im,
                                                  int64_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *binary_pow_ComplexReal64_UnsignedInteger64(double *re, double *im, double x_re, double x_im,
                                                          uint64_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *binary_pow_ComplexReal64_Real16(double *re, double *im, double x_re, double x_im,
                                               uint16_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, Real16{y});
}
inline double *binary_pow_ComplexReal64_Real32(double *re, double *im, double x_re, double x_im, float y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *binary_pow_ComplexReal64_Real64(double *re, double *im, double x_re, double x_im, double y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *binary_pow_ComplexReal64_ComplexReal32(double *re, double *im, double x_re, double x_im,
                                                      float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *binary_pow_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                      double y_re, double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_binary_pow_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int8_t checked_binary_pow_Integer8_UnsignedInteger8(int8_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int8_t checked_binary_pow_Integer8_Integer16(int8_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int8_t checked_binary_pow_Integer8_UnsignedInteger16(int8_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int8_t checked_binary_pow_Integer8_Integer32(int8_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int8_t checked_binary_pow_Integer8_UnsignedInteger32(int8_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int8_t checked_binary_pow_Integer8_Integer64(int8_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int8_t checked_binary_pow_Integer8_UnsignedInteger64(int8_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t *checked_binary_pow_Integer8_Real16(uint16_t *result, int8_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
inline float checked_binary_pow_Integer8_Real32(int8_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_Integer8_Real64(int8_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float *checked_binary_pow_Integer8_ComplexReal32(float *re, float *im, int8_t x, float y_re,
                                                        float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_pow_Integer8_ComplexReal64(double *re, double *im, int8_t x, double y_re,
                                                         double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline uint8_t checked_binary_pow_UnsignedInteger8_Integer8(uint8_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint8_t checked_binary_pow_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint8_t checked_binary_pow_UnsignedInteger8_Integer16(uint8_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint8_t checked_binary_pow_UnsignedInteger8_UnsignedInteger16(uint8_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint8_t checked_binary_pow_UnsignedInteger8_Integer32(uint8_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint8_t checked_binary_pow_UnsignedInteger8_UnsignedInteger32(uint8_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint8_t checked_binary_pow_UnsignedInteger8_Integer64(uint8_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint8_t checked_binary_pow_UnsignedInteger8_UnsignedInteger64(uint8_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t *checked_binary_pow_UnsignedInteger8_Real16(uint16_t *result, uint8_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
inline float checked_binary_pow_UnsignedInteger8_Real32(uint8_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_UnsignedInteger8_Real64(uint8_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float *checked_binary_pow_UnsignedInteger8_ComplexReal32(float *re, float *im, uint8_t x,
                                                                float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_pow_UnsignedInteger8_ComplexReal64(double *re, double *im, uint8_t x,
                                                                 double y_re, double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline int16_t checked_binary_pow_Integer16_Integer8(int16_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int16_t checked_binary_pow_Integer16_UnsignedInteger8(int16_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int16_t checked_binary_pow_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int16_t checked_binary_pow_Integer16_UnsignedInteger16(int16_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int16_t checked_binary_pow_Integer16_Integer32(int16_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int16_t checked_binary_pow_Integer16_UnsignedInteger32(int16_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int16_t checked_binary_pow_Integer16_Integer64(int16_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int16_t checked_binary_pow_Integer16_UnsignedInteger64(int16_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t *checked_binary_pow_Integer16_Real16(uint16_t *result, int16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
inline float checked_binary_pow_Integer16_Real32(int16_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_Integer16_Real64(int16_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float *checked_binary_pow_Integer16_ComplexReal32(float *re, float *im, int16_t x, float y_re,
                                                         float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_pow_Integer16_ComplexReal64(double *re, double *im, int16_t x, double y_re,
                                                          double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline uint16_t checked_binary_pow_UnsignedInteger16_Integer8(uint16_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t checked_binary_pow_UnsignedInteger16_UnsignedInteger8(uint16_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t checked_binary_pow_UnsignedInteger16_Integer16(uint16_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t checked_binary_pow_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t checked_binary_pow_UnsignedInteger16_Integer32(uint16_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t checked_binary_pow_UnsignedInteger16_UnsignedInteger32(uint16_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t checked_binary_pow_UnsignedInteger16_Integer64(uint16_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t checked_binary_pow_UnsignedInteger16_UnsignedInteger64(uint16_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t *checked_binary_pow_UnsignedInteger16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
inline float checked_binary_pow_UnsignedInteger16_Real32(uint16_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_UnsignedInteger16_Real64(uint16_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float *checked_binary_pow_UnsignedInteger16_ComplexReal32(float *re, float *im, uint16_t x,
                                                                 float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_pow_UnsignedInteger16_ComplexReal64(double *re, double *im, uint16_t x,
                                                                  double y_re, double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline int32_t checked_binary_pow_Integer32_Integer8(int32_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int32_t checked_binary_pow_Integer32_UnsignedInteger8(int32_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int32_t checked_binary_pow_Integer32_Integer16(int32_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int32_t checked_binary_pow_Integer32_UnsignedInteger16(int32_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int32_t checked_binary_pow_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int32_t checked_binary_pow_Integer32_UnsignedInteger32(int32_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int32_t checked_binary_pow_Integer32_Integer64(int32_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int32_t checked_binary_pow_Integer32_UnsignedInteger64(int32_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t *checked_binary_pow_Integer32_Real16(uint16_t *result, int32_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
inline float checked_binary_pow_Integer32_Real32(int32_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_Integer32_Real64(int32_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float *checked_binary_pow_Integer32_ComplexReal32(float *re, float *im, int32_t x, float y_re,
                                                         float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_pow_Integer32_ComplexReal64(double *re, double *im, int32_t x, double y_re,
                                                          double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline uint32_t checked_binary_pow_UnsignedInteger32_Integer8(uint32_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint32_t checked_binary_pow_UnsignedInteger32_UnsignedInteger8(uint32_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint32_t checked_binary_pow_UnsignedInteger32_Integer16(uint32_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint32_t checked_binary_pow_UnsignedInteger32_UnsignedInteger16(uint32_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint32_t checked_binary_pow_UnsignedInteger32_Integer32(uint32_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint32_t checked_binary_pow_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint32_t checked_binary_pow_UnsignedInteger32_Integer64(uint32_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint32_t checked_binary_pow_UnsignedInteger32_UnsignedInteger64(uint32_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t *checked_binary_pow_UnsignedInteger32_Real16(uint16_t *result, uint32_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
inline float checked_binary_pow_UnsignedInteger32_Real32(uint32_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_UnsignedInteger32_Real64(uint32_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float *checked_binary_pow_UnsignedInteger32_ComplexReal32(float *re, float *im, uint32_t x,
                                                                 float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_pow_UnsignedInteger32_ComplexReal64(double *re, double *im, uint32_t x,
                                                                  double y_re, double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline int64_t checked_binary_pow_Integer64_Integer8(int64_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int64_t checked_binary_pow_Integer64_UnsignedInteger8(int64_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int64_t checked_binary_pow_Integer64_Integer16(int64_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int64_t checked_binary_pow_Integer64_UnsignedInteger16(int64_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int64_t checked_binary_pow_Integer64_Integer32(int64_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int64_t checked_binary_pow_Integer64_UnsignedInteger32(int64_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int64_t checked_binary_pow_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline int64_t checked_binary_pow_Integer64_UnsignedInteger64(int64_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t *checked_binary_pow_Integer64_Real16(uint16_t *result, int64_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
inline float checked_binary_pow_Integer64_Real32(int64_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_Integer64_Real64(int64_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float *checked_binary_pow_Integer64_ComplexReal32(float *re, float *im, int64_t x, float y_re,
                                                         float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_pow_Integer64_ComplexReal64(double *re, double *im, int64_t x, double y_re,
                                                          double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline uint64_t checked_binary_pow_UnsignedInteger64_Integer8(uint64_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint64_t checked_binary_pow_UnsignedInteger64_UnsignedInteger8(uint64_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint64_t checked_binary_pow_UnsignedInteger64_Integer16(uint64_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint64_t checked_binary_pow_UnsignedInteger64_UnsignedInteger16(uint64_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint64_t checked_binary_pow_UnsignedInteger64_Integer32(uint64_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint64_t checked_binary_pow_UnsignedInteger64_UnsignedInteger32(uint64_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint64_t checked_binary_pow_UnsignedInteger64_Integer64(uint64_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint64_t checked_binary_pow_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline uint16_t *checked_binary_pow_UnsignedInteger64_Real16(uint16_t *result, uint64_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
inline float checked_binary_pow_UnsignedInteger64_Real32(uint64_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_UnsignedInteger64_Real64(uint64_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float *checked_binary_pow_UnsignedInteger64_ComplexReal32(float *re, float *im, uint64_t x,
                                                                 float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_pow_UnsignedInteger64_ComplexReal64(double *re, double *im, uint64_t x,
                                                                  double y_re, double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline uint16_t *checked_binary_pow_Real16_Integer8(uint16_t *result, uint16_t x, int8_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *checked_binary_pow_Real16_UnsignedInteger8(uint16_t *result, uint16_t x, uint8_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *checked_binary_pow_Real16_Integer16(uint16_t *result, uint16_t x, int16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *checked_binary_pow_Real16_UnsignedInteger16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *checked_binary_pow_Real16_Integer32(uint16_t *result, uint16_t x, int32_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *checked_binary_pow_Real16_UnsignedInteger32(uint16_t *result, uint16_t x, uint32_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *checked_binary_pow_Real16_Integer64(uint16_t *result, uint16_t x, int64_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *checked_binary_pow_Real16_UnsignedInteger64(uint16_t *result, uint16_t x, uint64_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
inline uint16_t *checked_binary_pow_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
inline float checked_binary_pow_Real16_Real32(uint16_t x, float y) {
  return evaluate<binary::pow, Checked>(Real16{x}, y);
}
inline double checked_binary_pow_Real16_Real64(uint16_t x, double y) {
  return evaluate<binary::pow, Checked>(Real16{x}, y);
}
inline float *checked_binary_pow_Real16_ComplexReal32(float *re, float *im, uint16_t x, float y_re,
                                                      float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, Real16{x}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_pow_Real16_ComplexReal64(double *re, double *im, uint16_t x, double y_re,
                                                       double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, Real16{x}, ComplexReal64{y_re, y_im});
}
inline float checked_binary_pow_Real32_Integer8(float x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float checked_binary_pow_Real32_UnsignedInteger8(float x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float checked_binary_pow_Real32_Integer16(float x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float checked_binary_pow_Real32_UnsignedInteger16(float x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float checked_binary_pow_Real32_Integer32(float x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float checked_binary_pow_Real32_UnsignedInteger32(float x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float checked_binary_pow_Real32_Integer64(float x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float checked_binary_pow_Real32_UnsignedInteger64(float x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float checked_binary_pow_Real32_Real16(float x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, Real16{y});
}
inline float checked_binary_pow_Real32_Real32(float x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_Real32_Real64(float x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline float *checked_binary_pow_Real32_ComplexReal32(float *re, float *im, float x, float y_re,
                                                      float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_pow_Real32_ComplexReal64(double *re, double *im, float x, double y_re,
                                                       double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline double checked_binary_pow_Real64_Integer8(double x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_Real64_UnsignedInteger8(double x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_Real64_Integer16(double x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_Real64_UnsignedInteger16(double x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_Real64_Integer32(double x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_Real64_UnsignedInteger32(double x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_Real64_Integer64(double x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_Real64_UnsignedInteger64(double x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_Real64_Real16(double x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, Real16{y});
}
inline double checked_binary_pow_Real64_Real32(double x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double checked_binary_pow_Real64_Real64(double x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
inline double *checked_binary_pow_Real64_ComplexReal32(double *re, double *im, double x, float y_re,
                                                       float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_pow_Real64_ComplexReal64(double *re, double *im, double x, double y_re,
                                                       double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
inline float *checked_binary_pow_ComplexReal32_Integer8(float *re, float *im, float x_re, float x_im,
                                                        int8_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *checked_binary_pow_ComplexReal32_UnsignedInteger8(float *re, float *im, float x_re,
                                                                float x_im, uint8_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *checked_binary_pow_ComplexReal32_Integer16(float *re, float *im, float x_re, float x_im,
                                                         int16_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *checked_binary_pow_ComplexReal32_UnsignedInteger16(float *re, float *im, float x_re,
                                                                 float x_im, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *checked_binary_pow_ComplexReal32_Integer32(float *re, float *im, float x_re, float x_im,
                                                         int32_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *checked_binary_pow_ComplexReal32_UnsignedInteger32(float *re, float *im, float x_re,
                                                                 float x_im, uint32_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *checked_binary_pow_ComplexReal32_Integer64(float *re, float *im, float x_re, float x_im,
                                                         int64_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *checked_binary_pow_ComplexReal32_UnsignedInteger64(float *re, float *im, float x_re,
                                                                 float x_im, uint64_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *checked_binary_pow_ComplexReal32_Real16(float *re, float *im, float x_re, float x_im,
                                                      uint16_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, Real16{y});
}
inline float *checked_binary_pow_ComplexReal32_Real32(float *re, float *im, float x_re, float x_im,
                                                      float y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline double *checked_binary_pow_ComplexReal32_Real64(double *re, double *im, float x_re, float x_im,
                                                       double y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
inline float *checked_binary_pow_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                             float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_pow_ComplexReal32_ComplexReal64(double *re, double *im, float x_re,
                                                              float x_im, double y_re, double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline double *checked_binary_pow_ComplexReal64_Integer8(double *re, double *im, double x_re, double x_im,
                                                         int8_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *checked_binary_pow_ComplexReal64_UnsignedInteger8(double *re, double *im, double x_re,
                                                                 double x_im, uint8_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *checked_binary_pow_ComplexReal64_Integer16(double *re, double *im, double x_re, double x_im,
                                                          int16_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *checked_binary_pow_ComplexReal64_UnsignedInteger16(double *re, double *im, double x_re,
                                                                  double x_im, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *checked_binary_pow_ComplexReal64_Integer32(double *re, double *im, double x_re, double x_im,
                                                          int32_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *checked_binary_pow_ComplexReal64_UnsignedInteger32(double *re, double *im, double x_re,
                                                                  double x_im, uint32_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *checked_binary_pow_ComplexReal64_Integer64(double *re, double *im, double x_re, double x_im,
                                                          int64_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *checked_binary_pow_ComplexReal64_UnsignedInteger64(double *re, double *im, double x_re,
                                                                  double x_im, uint64_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *checked_binary_pow_ComplexReal64_Real16(double *re, double *im, double x_re, double x_im,
                                                       uint16_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, Real16{y});
}
inline double *checked_binary_pow_ComplexReal64_Real32(double *re, double *im, double x_re, double x_im,
                                                       float y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *checked_binary_pow_ComplexReal64_Real64(double *re, double *im, double x_re, double x_im,
                                                       double y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
inline double *checked_binary_pow_ComplexReal64_ComplexReal32(double *re, double *im, double x_re,
                                                              double x_im, float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_binary_pow_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                              double x_im, double y_re, double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t ternary_axpy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
inline uint8_t ternary_axpy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x,
                                                                               uint8_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
inline int16_t ternary_axpy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
inline uint16_t ternary_axpy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a, uint16_t x,
                                                                                   uint16_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
inline int32_t ternary_axpy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
inline uint32_t ternary_axpy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a, uint32_t x,
                                                                                   uint32_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
inline int64_t ternary_axpy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
inline uint64_t ternary_axpy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a, uint64_t x,
                                                                                   uint64_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
inline uint16_t *ternary_axpy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x, uint16_t y) {
  return evaluateInto<ternary::axpy, Plain>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
inline float ternary_axpy_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
inline double ternary_axpy_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
inline float *ternary_axpy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re,
                                                                     float a_im, float x_re, float x_im,
                                                                     float y_re, float y_im) {
  return evaluateInto<ternary::axpy, Plain>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *ternary_axpy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im, double a_re,
                                                                      double a_im, double x_re,
                                                                      double x_im, double y_re,
                                                                      double y_im) {
  return evaluateInto<ternary::axpy, Plain>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_ternary_axpy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
inline uint8_t checked_ternary_axpy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a,
                                                                                       uint8_t x,
                                                                                       uint8_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
inline int16_t checked_ternary_axpy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
inline uint16_t checked_ternary_axpy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a,
                                                                                           uint16_t x,
                                                                                           uint16_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
inline int32_t checked_ternary_axpy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
inline uint32_t checked_ternary_axpy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a,
                                                                                           uint32_t x,
                                                                                           uint32_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
inline int64_t checked_ternary_axpy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
inline uint64_t checked_ternary_axpy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a,
                                                                                           uint64_t x,
                                                                                           uint64_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
inline uint16_t *checked_ternary_axpy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x,
                                                           uint16_t y) {
  return evaluateInto<ternary::axpy, Checked>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
inline float checked_ternary_axpy_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
inline double checked_ternary_axpy_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
inline float *checked_ternary_axpy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im,
                                                                             float a_re, float a_im,
                                                                             float x_re, float x_im,
                                                                             float y_re, float y_im) {
  return evaluateInto<ternary::axpy, Checked>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_ternary_axpy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                              double a_re, double a_im,
                                                                              double x_re, double x_im,
                                                                              double y_re, double y_im) {
  return evaluateInto<ternary::axpy, Checked>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t ternary_axmy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
inline uint8_t ternary_axmy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x,
                                                                               uint8_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
inline int16_t ternary_axmy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
inline uint16_t ternary_axmy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a, uint16_t x,
                                                                                   uint16_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
inline int32_t ternary_axmy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
inline uint32_t ternary_axmy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a, uint32_t x,
                                                                                   uint32_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
inline int64_t ternary_axmy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
inline uint64_t ternary_axmy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a, uint64_t x,
                                                                                   uint64_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
inline uint16_t *ternary_axmy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x, uint16_t y) {
  return evaluateInto<ternary::axmy, Plain>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
inline float ternary_axmy_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
inline double ternary_axmy_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
inline float *ternary_axmy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re,
                                                                     float a_im, float x_re, float x_im,
                                                                     float y_re, float y_im) {
  return evaluateInto<ternary::axmy, Plain>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *ternary_axmy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im, double a_re,
                                                                      double a_im, double x_re,
                                                                      double x_im, double y_re,
                                                                      double y_im) {
  return evaluateInto<ternary::axmy, Plain>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_ternary_axmy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
inline uint8_t checked_ternary_axmy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a,
                                                                                       uint8_t x,
                                                                                       uint8_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
inline int16_t checked_ternary_axmy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
inline uint16_t checked_ternary_axmy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a,
                                                                                           uint16_t x,
                                                                                           uint16_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
inline int32_t checked_ternary_axmy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
inline uint32_t checked_ternary_axmy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a,
                                                                                           uint32_t x,
                                                                                           uint32_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
inline int64_t checked_ternary_axmy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
inline uint64_t checked_ternary_axmy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a,
                                                                                           uint64_t x,
                                                                                           uint64_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
inline uint16_t *checked_ternary_axmy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x,
                                                           uint16_t y) {
  return evaluateInto<ternary::axmy, Checked>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
inline float checked_ternary_axmy_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
inline double checked_ternary_axmy_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
inline float *checked_ternary_axmy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im,
                                                                             float a_re, float a_im,
                                                                             float x_re, float x_im,
                                                                             float y_re, float y_im) {
  return evaluateInto<ternary::axmy, Checked>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_ternary_axmy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                              double a_re, double a_im,
                                                                              double x_re, double x_im,
                                                                              double y_re, double y_im) {
  return evaluateInto<ternary::axmy, Checked>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t ternary_ymax_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
inline uint8_t ternary_ymax_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x,
                                                                               uint8_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
inline int16_t ternary_ymax_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
inline uint16_t ternary_ymax_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a, uint16_t x,
                                                                                   uint16_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
inline int32_t ternary_ymax_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
inline uint32_t ternary_ymax_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a, uint32_t x,
                                                                                   uint32_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
inline int64_t ternary_ymax_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
inline uint64_t ternary_ymax_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a, uint64_t x,
                                                                                   uint64_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
inline uint16_t *ternary_ymax_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x, uint16_t y) {
  return evaluateInto<ternary::ymax, Plain>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
inline float ternary_ymax_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
inline double ternary_ymax_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
inline float *ternary_ymax_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re,
                                                                     float a_im, float x_re, float x_im,
                                                                     float y_re, float y_im) {
  return evaluateInto<ternary::ymax, Plain>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *ternary_ymax_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im, double a_re,
                                                                      double a_im, double x_re,
                                                                      double x_im, double y_re,
                                                                      double y_im) {
  return evaluateInto<ternary::ymax, Plain>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_ternary_ymax_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
inline uint8_t checked_ternary_ymax_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a,
                                                                                       uint8_t x,
                                                                                       uint8_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
inline int16_t checked_ternary_ymax_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
inline uint16_t checked_ternary_ymax_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a,
                                                                                           uint16_t x,
                                                                                           uint16_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
inline int32_t checked_ternary_ymax_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
inline uint32_t checked_ternary_ymax_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a,
                                                                                           uint32_t x,
                                                                                           uint32_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
inline int64_t checked_ternary_ymax_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
inline uint64_t checked_ternary_ymax_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a,
                                                                                           uint64_t x,
                                                                                           uint64_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
inline uint16_t *checked_ternary_ymax_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x,
                                                           uint16_t y) {
  return evaluateInto<ternary::ymax, Checked>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
inline float checked_ternary_ymax_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
inline double checked_ternary_ymax_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
inline float *checked_ternary_ymax_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im,
                                                                             float a_re, float a_im,
                                                                             float x_re, float x_im,
                                                                             float y_re, float y_im) {
  return evaluateInto<ternary::ymax, Checked>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_ternary_ymax_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                              double a_re, double a_im,
                                                                              double x_re, double x_im,
                                                                              double y_re, double y_im) {
  return evaluateInto<ternary::ymax, Checked>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t ternary_adxmy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
inline uint8_t ternary_adxmy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x,
                                                                                uint8_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
inline int16_t ternary_adxmy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
inline uint16_t ternary_adxmy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a, uint16_t x,
                                                                                    uint16_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
inline int32_t ternary_adxmy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
inline uint32_t ternary_adxmy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a, uint32_t x,
                                                                                    uint32_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
inline int64_t ternary_adxmy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
inline uint64_t ternary_adxmy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a, uint64_t x,
                                                                                    uint64_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
inline uint16_t *ternary_adxmy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x, uint16_t y) {
  return evaluateInto<ternary::adxmy, Plain>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
inline float ternary_adxmy_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
inline double ternary_adxmy_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
inline float *ternary_adxmy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re,
                                                                      float a_im, float x_re, float x_im,
                                                                      float y_re, float y_im) {
  return evaluateInto<ternary::adxmy, Plain>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *ternary_adxmy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im, double a_re,
                                                                       double a_im, double x_re,
                                                                       double x_im, double y_re,
                                                                       double y_im) {
  return evaluateInto<ternary::adxmy, Plain>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t checked_ternary_adxmy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
inline uint8_t checked_ternary_adxmy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a,
                                                                                        uint8_t x,
                                                                                        uint8_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
inline int16_t checked_ternary_adxmy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
inline uint16_t checked_ternary_adxmy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a,
                                                                                            uint16_t x,
                                                                                            uint16_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
inline int32_t checked_ternary_adxmy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
inline uint32_t checked_ternary_adxmy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a,
                                                                                            uint32_t x,
                                                                                            uint32_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
inline int64_t checked_ternary_adxmy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
inline uint64_t checked_ternary_adxmy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a,
                                                                                            uint64_t x,
                                                                                            uint64_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
inline uint16_t *checked_ternary_adxmy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x,
                                                            uint16_t y) {
  return evaluateInto<ternary::adxmy, Checked>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
inline float checked_ternary_adxmy_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
inline double checked_ternary_adxmy_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
inline float *checked_ternary_adxmy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im,
                                                                              float a_re, float a_im,
                                                                              float x_re, float x_im,
                                                                              float y_re, float y_im) {
  return evaluateInto<ternary::adxmy, Checked>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
inline double *checked_ternary_adxmy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                               double a_re, double a_im,
                                                                               double x_re, double x_im,
                                                                               double y_re, double y_im) {
  return evaluateInto<ternary::adxmy, Checked>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
inline int8_t integer_safe_cast_Integer8_Integer8(int8_t x) {
  return evaluateCast<Integer8, Integer8>(x);
}
inline uint8_t integer_safe_cast_Integer8_UnsignedInteger8(int8_t x) {
  return evaluateCast<Integer8, UnsignedInteger8>(x);
}
inline int16_t integer_safe_cast_Integer8_Integer16(int8_t x) {
  return evaluateCast<Integer8, Integer16>(x);
}
inline uint16_t integer_safe_cast_Integer8_UnsignedInteger16(int8_t x) {
  return evaluateCast<Integer8, UnsignedInteger16>(x);
}
inline int32_t integer_safe_cast_Integer8_Integer32(int8_t x) {
  return evaluateCast<Integer8, Integer32>(x);
}
inline uint32_t integer_safe_cast_Integer8_UnsignedInteger32(int8_t x) {
  return evaluateCast<Integer8, UnsignedInteger32>(x);
}
inline int64_t integer_safe_cast_Integer8_Integer64(int8_t x) {
  return evaluateCast<Integer8, Integer64>(x);
}
inline uint64_t integer_safe_cast_Integer8_UnsignedInteger64(int8_t x) {
  return evaluateCast<Integer8, UnsignedInteger64>(x);
}
inline int8_t integer_safe_cast_UnsignedInteger8_Integer8(uint8_t x) {
  return evaluateCast<UnsignedInteger8, Integer8>(x);
}
inline uint8_t integer_safe_cast_UnsignedInteger8_UnsignedInteger8(uint8_t x) {
  return evaluateCast<UnsignedInteger8, UnsignedInteger8>(x);
}
inline int16_t integer_safe_cast_UnsignedInteger8_Integer16(uint8_t x) {
  return evaluateCast<UnsignedInteger8, Integer16>(x);
}
inline uint16_t integer_safe_cast_UnsignedInteger8_UnsignedInteger16(uint8_t x) {
  return evaluateCast<UnsignedInteger8, UnsignedInteger16>(x);
}
inline int32_t integer_safe_cast_UnsignedInteger8_Integer32(uint8_t x) {
  return evaluateCast<UnsignedInteger8, Integer32>(x);
}
inline uint32_t integer_safe_cast_UnsignedInteger8_UnsignedInteger32(uint8_t x) {
  return evaluateCast<UnsignedInteger8, UnsignedInteger32>(x);
}
inline int64_t integer_safe_cast_UnsignedInteger8_Integer64(uint8_t x) {
  return evaluateCast<UnsignedInteger8, Integer64>(x);
}
inline uint64_t integer_safe_cast_UnsignedInteger8_UnsignedInteger64(uint8_t x) {
  return evaluateCast<UnsignedInteger8, UnsignedInteger64>(x);
}
inline int8_t integer_safe_cast_Integer16_Integer8(int16_t x) {
  return evaluateCast<Integer16, Integer8>(x);
}
inline uint8_t integer_safe_cast_Integer16_UnsignedInteger8(int16_t x) {
  return evaluateCast<Integer16, UnsignedInteger8>(x);
}
inline int16_t integer_safe_cast_Integer16_Integer16(int16_t x) {
  return evaluateCast<Integer16, Integer16>(x);
}
inline uint16_t integer_safe_cast_Integer16_UnsignedInteger16(int16_t x) {
  return evaluateCast<Integer16, UnsignedInteger16>(x);
}
inline int32_t integer_safe_cast_Integer16_Integer32(int16_t x) {
  return evaluateCast<Integer16, Integer32>(x);
}
inline uint32_t integer_safe_cast_Integer16_UnsignedInteger32(int16_t x) {
  return evaluateCast<Integer16, UnsignedInteger32>(x);
}
inline int64_t integer_safe_cast_Integer16_Integer64(int16_t x) {
  return evaluateCast<Integer16, Integer64>(x);
}
inline uint64_t integer_safe_cast_Integer16_UnsignedInteger64(int16_t x) {
  return evaluateCast<Integer16, UnsignedInteger64>(x);
}
inline int8_t integer_safe_cast_UnsignedInteger16_Integer8(uint16_t x) {
  return evaluateCast<UnsignedInteger16, Integer8>(x);
}
inline uint8_t integer_safe_cast_UnsignedInteger16_UnsignedInteger8(uint16_t x) {
  return evaluateCast<UnsignedInteger16, UnsignedInteger8>(x);
}
inline int16_t integer_safe_cast_UnsignedInteger16_Integer16(uint16_t x) {
  return evaluateCast<UnsignedInteger16, Integer16>(x);
}
inline uint16_t integer_safe_cast_UnsignedInteger16_UnsignedInteger16(uint16_t x) {
  return evaluateCast<UnsignedInteger16, UnsignedInteger16>(x);
}
inline int32_t integer_safe_cast_UnsignedInteger16_Integer32(uint16_t x) {
  return evaluateCast<UnsignedInteger16, Integer32>(x);
}
inline uint32_t integer_safe_cast_UnsignedInteger16_UnsignedInteger32(uint16_t x) {
  return evaluateCast<UnsignedInteger16, UnsignedInteger32>(x);
}
inline int64_t integer_safe_cast_UnsignedInteger16_Integer64(uint16_t x) {
  return evaluateCast<UnsignedInteger16, Integer64>(x);
}
inline uint64_t integer_safe_cast_UnsignedInteger16_UnsignedInteger64(uint16_t x) {
  return evaluateCast<UnsignedInteger16, UnsignedInteger64>(x);
}
inline int8_t integer_safe_cast_Integer32_Integer8(int32_t x) {
  return evaluateCast<Integer32, Integer8>(x);
}
inline uint8_t integer_safe_cast_Integer32_UnsignedInteger8(int32_t x) {
  return evaluateCast<Integer32, UnsignedInteger8>(x);
}
inline int16_t integer_safe_cast_Integer32_Integer16(int32_t x) {
  return evaluateCast<Integer32, Integer16>(x);
}
inline uint16_t integer_safe_cast_Integer32_UnsignedInteger16(int32_t x) {
  return evaluateCast<Integer32, UnsignedInteger16>(x);
}
inline int32_t integer_safe_cast_Integer32_Integer32(int32_t x) {
  return evaluateCast<Integer32, Integer32>(x);
}
inline uint32_t integer_safe_cast_Integer32_UnsignedInteger32(int32_t x) {
  return evaluateCast<Integer32, UnsignedInteger32>(x);
}
inline int64_t integer_safe_cast_Integer32_Integer64(int32_t x) {
  return evaluateCast<Integer32, Integer64>(x);
}
inline uint64_t integer_safe_cast_Integer32_UnsignedInteger64(int32_t x) {
  return evaluateCast<Integer32, UnsignedInteger64>(x);
}
inline int8_t integer_safe_cast_UnsignedInteger32_Integer8(uint32_t x) {
  return evaluateCast<UnsignedInteger32, Integer8>(x);
}
inline uint8_t integer_safe_cast_UnsignedInteger32_UnsignedInteger8(uint32_t x) {
  return evaluateCast<UnsignedInteger32, UnsignedInteger8>(x);
}
inline int16_t integer_safe_cast_UnsignedInteger32_Integer16(uint32_t x) {
  return evaluateCast<UnsignedInteger32, Integer16>(x);
}
inline uint16_t integer_safe_cast_UnsignedInteger32_UnsignedInteger16(uint32_t x) {
  return evaluateCast<UnsignedInteger32, UnsignedInteger16>(x);
}
inline int32_t integer_safe_cast_UnsignedInteger32_Integer32(uint32_t x) {
  return evaluateCast<UnsignedInteger32, Integer32>(x);
}
inline uint32_t integer_safe_cast_UnsignedInteger32_UnsignedInteger32(uint32_t x) {
  return evaluateCast<UnsignedInteger32, UnsignedInteger32>(x);
}
inline int64_t integer_safe_cast_UnsignedInteger32_Integer64(uint32_t x) {
  return evaluateCast<UnsignedInteger32, Integer64>(x);
}
inline uint64_t integer_safe_cast_UnsignedInteger32_UnsignedInteger64(uint32_t x) {
  return evaluateCast<UnsignedInteger32, UnsignedInteger64>(x);
}
inline int8_t integer_safe_cast_Integer64_Integer8(int64_t x) {
  return evaluateCast<Integer64, Integer8>(x);
}
inline uint8_t integer_safe_cast_Integer64_UnsignedInteger8(int64_t x) {
  return evaluateCast<Integer64, UnsignedInteger8>(x);
}
inline int16_t integer_safe_cast_Integer64_Integer16(int64_t x) {
  return evaluateCast<Integer64, Integer16>(x);
}
inline uint16_t integer_safe_cast_Integer64_UnsignedInteger16(int64_t x) {
  return evaluateCast<Integer64, UnsignedInteger16>(x);
}
inline int32_t integer_safe_cast_Integer64_Integer32(int64_t x) {
  return evaluateCast<Integer64, Integer32>(x);
}
inline uint32_t integer_safe_cast_Integer64_UnsignedInteger32(int64_t x) {
  return evaluateCast<Integer64, UnsignedInteger32>(x);
}
inline int64_t integer_safe_cast_Integer64_Integer64(int64_t x) {
  return evaluateCast<Integer64, Integer64>(x);
}
inline uint64_t integer_safe_cast_Integer64_UnsignedInteger64(int64_t x) {
  return evaluateCast<Integer64, UnsignedInteger64>(x);
}
inline int8_t integer_safe_cast_UnsignedInteger64_Integer8(uint64_t x) {
  return evaluateCast<UnsignedInteger64, Integer8>(x);
}
inline uint8_t integer_safe_cast_UnsignedInteger64_UnsignedInteger8(uint64_t x) {
  return evaluateCast<UnsignedInteger64, UnsignedInteger8>(x);
}
inline int16_t integer_safe_cast_UnsignedInteger64_Integer16(uint64_t x) {
  return evaluateCast<UnsignedInteger64, Integer16>(x);
}
inline uint16_t integer_safe_cast_UnsignedInteger64_UnsignedInteger16(uint64_t x) {
  return evaluateCast<UnsignedInteger64, UnsignedInteger16>(x);
}
inline int32_t integer_safe_cast_UnsignedInteger64_Integer32(uint64_t x) {
  return evaluateCast<UnsignedInteger64, Integer32>(x);
}
inline uint32_t integer_safe_cast_UnsignedInteger64_UnsignedInteger32(uint64_t x) {
  return evaluateCast<UnsignedInteger64, UnsignedInteger32>(x);
}
inline int64_t integer_safe_cast_UnsignedInteger64_Integer64(uint64_t x) {
  return evaluateCast<UnsignedInteger64, Integer64>(x);
}
inline uint64_t integer_safe_cast_UnsignedInteger64_UnsignedInteger64(uint64_t x) {
  return evaluateCast<UnsignedInteger64, UnsignedInteger64>(x);
}

} // namespace torvane::inlined

#endif

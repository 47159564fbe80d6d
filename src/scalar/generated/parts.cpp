// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../../scalar/bodies/parts.h"
#include <torvane/scalars.h>

using namespace torvane;

int8_t unary_abs_Integer8(int8_t x) {
  return evaluate<unary::abs, Plain>(x);
}
uint8_t unary_abs_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::abs, Plain>(x);
}
int16_t unary_abs_Integer16(int16_t x) {
  return evaluate<unary::abs, Plain>(x);
}
uint16_t unary_abs_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::abs, Plain>(x);
}
int32_t unary_abs_Integer32(int32_t x) {
  return evaluate<unary::abs, Plain>(x);
}
uint32_t unary_abs_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::abs, Plain>(x);
}
int64_t unary_abs_Integer64(int64_t x) {
  return evaluate<unary::abs, Plain>(x);
}
uint64_t unary_abs_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::abs, Plain>(x);
}
uint16_t *unary_abs_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::abs, Plain>(HalfPlace{result}, Real16{x});
}
float unary_abs_Real32(float x) {
  return evaluate<unary::abs, Plain>(x);
}
double unary_abs_Real64(double x) {
  return evaluate<unary::abs, Plain>(x);
}
float unary_abs_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::abs, Plain>(ComplexReal32{x_re, x_im});
}
double unary_abs_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::abs, Plain>(ComplexReal64{x_re, x_im});
}
int8_t checked_unary_abs_Integer8(int8_t x) {
  return evaluate<unary::abs, Checked>(x);
}
uint8_t checked_unary_abs_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::abs, Checked>(x);
}
int16_t checked_unary_abs_Integer16(int16_t x) {
  return evaluate<unary::abs, Checked>(x);
}
uint16_t checked_unary_abs_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::abs, Checked>(x);
}
int32_t checked_unary_abs_Integer32(int32_t x) {
  return evaluate<unary::abs, Checked>(x);
}
uint32_t checked_unary_abs_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::abs, Checked>(x);
}
int64_t checked_unary_abs_Integer64(int64_t x) {
  return evaluate<unary::abs, Checked>(x);
}
uint64_t checked_unary_abs_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::abs, Checked>(x);
}
uint16_t *checked_unary_abs_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::abs, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_abs_Real32(float x) {
  return evaluate<unary::abs, Checked>(x);
}
double checked_unary_abs_Real64(double x) {
  return evaluate<unary::abs, Checked>(x);
}
float checked_unary_abs_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::abs, Checked>(ComplexReal32{x_re, x_im});
}
double checked_unary_abs_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::abs, Checked>(ComplexReal64{x_re, x_im});
}

int8_t unary_abssquare_Integer8(int8_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
uint8_t unary_abssquare_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
int16_t unary_abssquare_Integer16(int16_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
uint16_t unary_abssquare_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
int32_t unary_abssquare_Integer32(int32_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
uint32_t unary_abssquare_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
int64_t unary_abssquare_Integer64(int64_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
uint64_t unary_abssquare_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::abssquare, Plain>(x);
}
uint16_t *unary_abssquare_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::abssquare, Plain>(HalfPlace{result}, Real16{x});
}
float unary_abssquare_Real32(float x) {
  return evaluate<unary::abssquare, Plain>(x);
}
double unary_abssquare_Real64(double x) {
  return evaluate<unary::abssquare, Plain>(x);
}
float unary_abssquare_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::abssquare, Plain>(ComplexReal32{x_re, x_im});
}
double unary_abssquare_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::abssquare, Plain>(ComplexReal64{x_re, x_im});
}
int8_t checked_unary_abssquare_Integer8(int8_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
uint8_t checked_unary_abssquare_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
int16_t checked_unary_abssquare_Integer16(int16_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
uint16_t checked_unary_abssquare_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
int32_t checked_unary_abssquare_Integer32(int32_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
uint32_t checked_unary_abssquare_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
int64_t checked_unary_abssquare_Integer64(int64_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
uint64_t checked_unary_abssquare_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::abssquare, Checked>(x);
}
uint16_t *checked_unary_abssquare_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::abssquare, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_abssquare_Real32(float x) {
  return evaluate<unary::abssquare, Checked>(x);
}
double checked_unary_abssquare_Real64(double x) {
  return evaluate<unary::abssquare, Checked>(x);
}
float checked_unary_abssquare_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::abssquare, Checked>(ComplexReal32{x_re, x_im});
}
double checked_unary_abssquare_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::abssquare, Checked>(ComplexReal64{x_re, x_im});
}

int8_t unary_arg_Integer8(int8_t x) {
  return evaluate<unary::arg, Plain>(x);
}
uint8_t unary_arg_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::arg, Plain>(x);
}
int16_t unary_arg_Integer16(int16_t x) {
  return evaluate<unary::arg, Plain>(x);
}
uint16_t unary_arg_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::arg, Plain>(x);
}
int32_t unary_arg_Integer32(int32_t x) {
  return evaluate<unary::arg, Plain>(x);
}
uint32_t unary_arg_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::arg, Plain>(x);
}
int64_t unary_arg_Integer64(int64_t x) {
  return evaluate<unary::arg, Plain>(x);
}
uint64_t unary_arg_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::arg, Plain>(x);
}
uint16_t *unary_arg_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::arg, Plain>(HalfPlace{result}, Real16{x});
}
float unary_arg_Real32(float x) {
  return evaluate<unary::arg, Plain>(x);
}
double unary_arg_Real64(double x) {
  return evaluate<unary::arg, Plain>(x);
}
float unary_arg_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::arg, Plain>(ComplexReal32{x_re, x_im});
}
double unary_arg_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::arg, Plain>(ComplexReal64{x_re, x_im});
}
int8_t checked_unary_arg_Integer8(int8_t x) {
  return evaluate<unary::arg, Checked>(x);
}
uint8_t checked_unary_arg_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::arg, Checked>(x);
}
int16_t checked_unary_arg_Integer16(int16_t x) {
  return evaluate<unary::arg, Checked>(x);
}
uint16_t checked_unary_arg_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::arg, Checked>(x);
}
int32_t checked_unary_arg_Integer32(int32_t x) {
  return evaluate<unary::arg, Checked>(x);
}
uint32_t checked_unary_arg_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::arg, Checked>(x);
}
int64_t checked_unary_arg_Integer64(int64_t x) {
  return evaluate<unary::arg, Checked>(x);
}
uint64_t checked_unary_arg_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::arg, Checked>(x);
}
uint16_t *checked_unary_arg_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::arg, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_arg_Real32(float x) {
  return evaluate<unary::arg, Checked>(x);
}
double checked_unary_arg_Real64(double x) {
  return evaluate<unary::arg, Checked>(x);
}
float checked_unary_arg_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::arg, Checked>(ComplexReal32{x_re, x_im});
}
double checked_unary_arg_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::arg, Checked>(ComplexReal64{x_re, x_im});
}

int8_t unary_conj_Integer8(int8_t x) {
  return evaluate<unary::conj, Plain>(x);
}
uint8_t unary_conj_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::conj, Plain>(x);
}
int16_t unary_conj_Integer16(int16_t x) {
  return evaluate<unary::conj, Plain>(x);
}
uint16_t unary_conj_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::conj, Plain>(x);
}
int32_t unary_conj_Integer32(int32_t x) {
  return evaluate<unary::conj, Plain>(x);
}
uint32_t unary_conj_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::conj, Plain>(x);
}
int64_t unary_conj_Integer64(int64_t x) {
  return evaluate<unary::conj, Plain>(x);
}
uint64_t unary_conj_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::conj, Plain>(x);
}
uint16_t *unary_conj_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::conj, Plain>(HalfPlace{result}, Real16{x});
}
float unary_conj_Real32(float x) {
  return evaluate<unary::conj, Plain>(x);
}
double unary_conj_Real64(double x) {
  return evaluate<unary::conj, Plain>(x);
}
float *unary_conj_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::conj, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_conj_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::conj, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_conj_Integer8(int8_t x) {
  return evaluate<unary::conj, Checked>(x);
}
uint8_t checked_unary_conj_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::conj, Checked>(x);
}
int16_t checked_unary_conj_Integer16(int16_t x) {
  return evaluate<unary::conj, Checked>(x);
}
uint16_t checked_unary_conj_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::conj, Checked>(x);
}
int32_t checked_unary_conj_Integer32(int32_t x) {
  return evaluate<unary::conj, Checked>(x);
}
uint32_t checked_unary_conj_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::conj, Checked>(x);
}
int64_t checked_unary_conj_Integer64(int64_t x) {
  return evaluate<unary::conj, Checked>(x);
}
uint64_t checked_unary_conj_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::conj, Checked>(x);
}
uint16_t *checked_unary_conj_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::conj, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_conj_Real32(float x) {
  return evaluate<unary::conj, Checked>(x);
}
double checked_unary_conj_Real64(double x) {
  return evaluate<unary::conj, Checked>(x);
}
float *checked_unary_conj_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::conj, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_conj_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::conj, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_im_Integer8(int8_t x) {
  return evaluate<unary::im, Plain>(x);
}
uint8_t unary_im_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::im, Plain>(x);
}
int16_t unary_im_Integer16(int16_t x) {
  return evaluate<unary::im, Plain>(x);
}
uint16_t unary_im_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::im, Plain>(x);
}
int32_t unary_im_Integer32(int32_t x) {
  return evaluate<unary::im, Plain>(x);
}
uint32_t unary_im_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::im, Plain>(x);
}
int64_t unary_im_Integer64(int64_t x) {
  return evaluate<unary::im, Plain>(x);
}
uint64_t unary_im_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::im, Plain>(x);
}
uint16_t *unary_im_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::im, Plain>(HalfPlace{result}, Real16{x});
}
float unary_im_Real32(float x) {
  return evaluate<unary::im, Plain>(x);
}
double unary_im_Real64(double x) {
  return evaluate<unary::im, Plain>(x);
}
float unary_im_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::im, Plain>(ComplexReal32{x_re, x_im});
}
double unary_im_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::im, Plain>(ComplexReal64{x_re, x_im});
}
int8_t checked_unary_im_Integer8(int8_t x) {
  return evaluate<unary::im, Checked>(x);
}
uint8_t checked_unary_im_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::im, Checked>(x);
}
int16_t checked_unary_im_Integer16(int16_t x) {
  return evaluate<unary::im, Checked>(x);
}
uint16_t checked_unary_im_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::im, Checked>(x);
}
int32_t checked_unary_im_Integer32(int32_t x) {
  return evaluate<unary::im, Checked>(x);
}
uint32_t checked_unary_im_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::im, Checked>(x);
}
int64_t checked_unary_im_Integer64(int64_t x) {
  return evaluate<unary::im, Checked>(x);
}
uint64_t checked_unary_im_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::im, Checked>(x);
}
uint16_t *checked_unary_im_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::im, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_im_Real32(float x) {
  return evaluate<unary::im, Checked>(x);
}
double checked_unary_im_Real64(double x) {
  return evaluate<unary::im, Checked>(x);
}
float checked_unary_im_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::im, Checked>(ComplexReal32{x_re, x_im});
}
double checked_unary_im_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::im, Checked>(ComplexReal64{x_re, x_im});
}

int8_t unary_re_Integer8(int8_t x) {
  return evaluate<unary::re, Plain>(x);
}
uint8_t unary_re_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::re, Plain>(x);
}
int16_t unary_re_Integer16(int16_t x) {
  return evaluate<unary::re, Plain>(x);
}
uint16_t unary_re_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::re, Plain>(x);
}
int32_t unary_re_Integer32(int32_t x) {
  return evaluate<unary::re, Plain>(x);
}
uint32_t unary_re_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::re, Plain>(x);
}
int64_t unary_re_Integer64(int64_t x) {
  return evaluate<unary::re, Plain>(x);
}
uint64_t unary_re_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::re, Plain>(x);
}
uint16_t *unary_re_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::re, Plain>(HalfPlace{result}, Real16{x});
}
float unary_re_Real32(float x) {
  return evaluate<unary::re, Plain>(x);
}
double unary_re_Real64(double x) {
  return evaluate<unary::re, Plain>(x);
}
float unary_re_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::re, Plain>(ComplexReal32{x_re, x_im});
}
double unary_re_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::re, Plain>(ComplexReal64{x_re, x_im});
}
int8_t checked_unary_re_Integer8(int8_t x) {
  return evaluate<unary::re, Checked>(x);
}
uint8_t checked_unary_re_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::re, Checked>(x);
}
int16_t checked_unary_re_Integer16(int16_t x) {
  return evaluate<unary::re, Checked>(x);
}
uint16_t checked_unary_re_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::re, Checked>(x);
}
int32_t checked_unary_re_Integer32(int32_t x) {
  return evaluate<unary::re, Checked>(x);
}
uint32_t checked_unary_re_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::re, Checked>(x);
}
int64_t checked_unary_re_Integer64(int64_t x) {
  return evaluate<unary::re, Checked>(x);
}
uint64_t checked_unary_re_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::re, Checked>(x);
}
uint16_t *checked_unary_re_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::re, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_re_Real32(float x) {
  return evaluate<unary::re, Checked>(x);
}
double checked_unary_re_Real64(double x) {
  return evaluate<unary::re, Checked>(x);
}
float checked_unary_re_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::re, Checked>(ComplexReal32{x_re, x_im});
}
double checked_unary_re_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::re, Checked>(ComplexReal64{x_re, x_im});
}

mint unary_sign_Integer8(int8_t x) {
  return evaluate<unary::sign, Plain>(x);
}
mint unary_sign_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sign, Plain>(x);
}
mint unary_sign_Integer16(int16_t x) {
  return evaluate<unary::sign, Plain>(x);
}
mint unary_sign_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sign, Plain>(x);
}
mint unary_sign_Integer32(int32_t x) {
  return evaluate<unary::sign, Plain>(x);
}
mint unary_sign_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sign, Plain>(x);
}
mint unary_sign_Integer64(int64_t x) {
  return evaluate<unary::sign, Plain>(x);
}
mint unary_sign_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sign, Plain>(x);
}
mint unary_sign_Real16(uint16_t x) {
  return evaluate<unary::sign, Plain>(Real16{x});
}
mint unary_sign_Real32(float x) {
  return evaluate<unary::sign, Plain>(x);
}
mint unary_sign_Real64(double x) {
  return evaluate<unary::sign, Plain>(x);
}
float *unary_sign_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sign, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_sign_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sign, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
mint checked_unary_sign_Integer8(int8_t x) {
  return evaluate<unary::sign, Checked>(x);
}
mint checked_unary_sign_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sign, Checked>(x);
}
mint checked_unary_sign_Integer16(int16_t x) {
  return evaluate<unary::sign, Checked>(x);
}
mint checked_unary_sign_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sign, Checked>(x);
}
mint checked_unary_sign_Integer32(int32_t x) {
  return evaluate<unary::sign, Checked>(x);
}
mint checked_unary_sign_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sign, Checked>(x);
}
mint checked_unary_sign_Integer64(int64_t x) {
  return evaluate<unary::sign, Checked>(x);
}
mint checked_unary_sign_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sign, Checked>(x);
}
mint checked_unary_sign_Real16(uint16_t x) {
  return evaluate<unary::sign, Checked>(Real16{x});
}
mint checked_unary_sign_Real32(float x) {
  return evaluate<unary::sign, Checked>(x);
}
mint checked_unary_sign_Real64(double x) {
  return evaluate<unary::sign, Checked>(x);
}
float *checked_unary_sign_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sign, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_sign_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sign, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_copy_Integer8(int8_t x) {
  return evaluate<unary::copy, Plain>(x);
}
uint8_t unary_copy_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::copy, Plain>(x);
}
int16_t unary_copy_Integer16(int16_t x) {
  return evaluate<unary::copy, Plain>(x);
}
uint16_t unary_copy_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::copy, Plain>(x);
}
int32_t unary_copy_Integer32(int32_t x) {
  return evaluate<unary::copy, Plain>(x);
}
uint32_t unary_copy_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::copy, Plain>(x);
}
int64_t unary_copy_Integer64(int64_t x) {
  return evaluate<unary::copy, Plain>(x);
}
uint64_t unary_copy_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::copy, Plain>(x);
}
uint16_t *unary_copy_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::copy, Plain>(HalfPlace{result}, Real16{x});
}
float unary_copy_Real32(float x) {
  return evaluate<unary::copy, Plain>(x);
}
double unary_copy_Real64(double x) {
  return evaluate<unary::copy, Plain>(x);
}
float *unary_copy_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::copy, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_copy_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::copy, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_copy_Integer8(int8_t x) {
  return evaluate<unary::copy, Checked>(x);
}
uint8_t checked_unary_copy_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::copy, Checked>(x);
}
int16_t checked_unary_copy_Integer16(int16_t x) {
  return evaluate<unary::copy, Checked>(x);
}
uint16_t checked_unary_copy_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::copy, Checked>(x);
}
int32_t checked_unary_copy_Integer32(int32_t x) {
  return evaluate<unary::copy, Checked>(x);
}
uint32_t checked_unary_copy_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::copy, Checked>(x);
}
int64_t checked_unary_copy_Integer64(int64_t x) {
  return evaluate<unary::copy, Checked>(x);
}
uint64_t checked_unary_copy_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::copy, Checked>(x);
}
uint16_t *checked_unary_copy_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::copy, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_copy_Real32(float x) {
  return evaluate<unary::copy, Checked>(x);
}
double checked_unary_copy_Real64(double x) {
  return evaluate<unary::copy, Checked>(x);
}
float *checked_unary_copy_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::copy, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_copy_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::copy, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_zero_Integer8(int8_t x) {
  return evaluate<unary::zero, Plain>(x);
}
uint8_t unary_zero_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::zero, Plain>(x);
}
int16_t unary_zero_Integer16(int16_t x) {
  return evaluate<unary::zero, Plain>(x);
}
uint16_t unary_zero_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::zero, Plain>(x);
}
int32_t unary_zero_Integer32(int32_t x) {
  return evaluate<unary::zero, Plain>(x);
}
uint32_t unary_zero_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::zero, Plain>(x);
}
int64_t unary_zero_Integer64(int64_t x) {
  return evaluate<unary::zero, Plain>(x);
}
uint64_t unary_zero_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::zero, Plain>(x);
}
uint16_t *unary_zero_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::zero, Plain>(HalfPlace{result}, Real16{x});
}
float unary_zero_Real32(float x) {
  return evaluate<unary::zero, Plain>(x);
}
double unary_zero_Real64(double x) {
  return evaluate<unary::zero, Plain>(x);
}
float *unary_zero_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::zero, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_zero_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::zero, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_zero_Integer8(int8_t x) {
  return evaluate<unary::zero, Checked>(x);
}
uint8_t checked_unary_zero_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::zero, Checked>(x);
}
int16_t checked_unary_zero_Integer16(int16_t x) {
  return evaluate<unary::zero, Checked>(x);
}
uint16_t checked_unary_zero_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::zero, Checked>(x);
}
int32_t checked_unary_zero_Integer32(int32_t x) {
  return evaluate<unary::zero, Checked>(x);
}
uint32_t checked_unary_zero_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::zero, Checked>(x);
}
int64_t checked_unary_zero_Integer64(int64_t x) {
  return evaluate<unary::zero, Checked>(x);
}
uint64_t checked_unary_zero_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::zero, Checked>(x);
}
uint16_t *checked_unary_zero_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::zero, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_zero_Real32(float x) {
  return evaluate<unary::zero, Checked>(x);
}
double checked_unary_zero_Real64(double x) {
  return evaluate<unary::zero, Checked>(x);
}
float *checked_unary_zero_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::zero, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_zero_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::zero, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_one_Integer8(int8_t x) {
  return evaluate<unary::one, Plain>(x);
}
uint8_t unary_one_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::one, Plain>(x);
}
int16_t unary_one_Integer16(int16_t x) {
  return evaluate<unary::one, Plain>(x);
}
uint16_t unary_one_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::one, Plain>(x);
}
int32_t unary_one_Integer32(int32_t x) {
  return evaluate<unary::one, Plain>(x);
}
uint32_t unary_one_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::one, Plain>(x);
}
int64_t unary_one_Integer64(int64_t x) {
  return evaluate<unary::one, Plain>(x);
}
uint64_t unary_one_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::one, Plain>(x);
}
uint16_t *unary_one_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::one, Plain>(HalfPlace{result}, Real16{x});
}
float unary_one_Real32(float x) {
  return evaluate<unary::one, Plain>(x);
}
double unary_one_Real64(double x) {
  return evaluate<unary::one, Plain>(x);
}
float *unary_one_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::one, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_one_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::one, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_one_Integer8(int8_t x) {
  return evaluate<unary::one, Checked>(x);
}
uint8_t checked_unary_one_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::one, Checked>(x);
}
int16_t checked_unary_one_Integer16(int16_t x) {
  return evaluate<unary::one, Checked>(x);
}
uint16_t checked_unary_one_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::one, Checked>(x);
}
int32_t checked_unary_one_Integer32(int32_t x) {
  return evaluate<unary::one, Checked>(x);
}
uint32_t checked_unary_one_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::one, Checked>(x);
}
int64_t checked_unary_one_Integer64(int64_t x) {
  return evaluate<unary::one, Checked>(x);
}
uint64_t checked_unary_one_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::one, Checked>(x);
}
uint16_t *checked_unary_one_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::one, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_one_Real32(float x) {
  return evaluate<unary::one, Checked>(x);
}
double checked_unary_one_Real64(double x) {
  return evaluate<unary::one, Checked>(x);
}
float *checked_unary_one_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::one, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_one_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::one, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

mint unary_fpexception_Integer8(int8_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
mint unary_fpexception_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
mint unary_fpexception_Integer16(int16_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
mint unary_fpexception_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
mint unary_fpexception_Integer32(int32_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
mint unary_fpexception_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
mint unary_fpexception_Integer64(int64_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
mint unary_fpexception_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::fpexception, Plain>(x);
}
mint unary_fpexception_Real16(uint16_t x) {
  return evaluate<unary::fpexception, Plain>(Real16{x});
}
mint unary_fpexception_Real32(float x) {
  return evaluate<unary::fpexception, Plain>(x);
}
mint unary_fpexception_Real64(double x) {
  return evaluate<unary::fpexception, Plain>(x);
}
mint unary_fpexception_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::fpexception, Plain>(ComplexReal32{x_re, x_im});
}
mint unary_fpexception_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::fpexception, Plain>(ComplexReal64{x_re, x_im});
}
mint checked_unary_fpexception_Integer8(int8_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
mint checked_unary_fpexception_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
mint checked_unary_fpexception_Integer16(int16_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
mint checked_unary_fpexception_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
mint checked_unary_fpexception_Integer32(int32_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
mint checked_unary_fpexception_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
mint checked_unary_fpexception_Integer64(int64_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
mint checked_unary_fpexception_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::fpexception, Checked>(x);
}
mint checked_unary_fpexception_Real16(uint16_t x) {
  return evaluate<unary::fpexception, Checked>(Real16{x});
}
mint checked_unary_fpexception_Real32(float x) {
  return evaluate<unary::fpexception, Checked>(x);
}
mint checked_unary_fpexception_Real64(double x) {
  return evaluate<unary::fpexception, Checked>(x);
}
mint checked_unary_fpexception_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::fpexception, Checked>(ComplexReal32{x_re, x_im});
}
mint checked_unary_fpexception_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::fpexception, Checked>(ComplexReal64{x_re, x_im});
}

mint binary_fpexception_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
mint binary_fpexception_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
mint binary_fpexception_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
mint binary_fpexception_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
mint binary_fpexception_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
mint binary_fpexception_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
mint binary_fpexception_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
mint binary_fpexception_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
mint binary_fpexception_Real16_Real16(uint16_t x, uint16_t y) {
  return evaluate<binary::fpexception, Plain>(Real16{x}, Real16{y});
}
mint binary_fpexception_Real32_Real32(float x, float y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
mint binary_fpexception_Real64_Real64(double x, double y) {
  return evaluate<binary::fpexception, Plain>(x, y);
}
mint binary_fpexception_ComplexReal32_ComplexReal32(float x_re, float x_im, float y_re, float y_im) {
  return evaluate<binary::fpexception, Plain>(ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
mint binary_fpexception_ComplexReal64_ComplexReal64(double x_re, double x_im, double y_re, double y_im) {
  return evaluate<binary::fpexception, Plain>(ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
mint checked_binary_fpexception_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
mint checked_binary_fpexception_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
mint checked_binary_fpexception_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
mint checked_binary_fpexception_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
mint checked_binary_fpexception_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
mint checked_binary_fpexception_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
mint checked_binary_fpexception_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
mint checked_binary_fpexception_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
mint checked_binary_fpexception_Real16_Real16(uint16_t x, uint16_t y) {
  return evaluate<binary::fpexception, Checked>(Real16{x}, Real16{y});
}
mint checked_binary_fpexception_Real32_Real32(float x, float y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
mint checked_binary_fpexception_Real64_Real64(double x, double y) {
  return evaluate<binary::fpexception, Checked>(x, y);
}
mint checked_binary_fpexception_ComplexReal32_ComplexReal32(float x_re, float x_im, float y_re, float y_im) {
  return evaluate<binary::fpexception, Checked>(ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
mint checked_binary_fpexception_ComplexReal64_ComplexReal64(double x_re, double x_im, double y_re,
                                                            double y_im) {
  return evaluate<binary::fpexception, Checked>(ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

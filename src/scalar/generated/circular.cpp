// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../../scalar/bodies/circular.h"
#include <torvane/scalars.h>

using namespace torvane;

int8_t unary_sin_Integer8(int8_t x) {
  return evaluate<unary::sin, Plain>(x);
}
uint8_t unary_sin_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sin, Plain>(x);
}
int16_t unary_sin_Integer16(int16_t x) {
  return evaluate<unary::sin, Plain>(x);
}
uint16_t unary_sin_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sin, Plain>(x);
}
int32_t unary_sin_Integer32(int32_t x) {
  return evaluate<unary::sin, Plain>(x);
}
uint32_t unary_sin_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sin, Plain>(x);
}
int64_t unary_sin_Integer64(int64_t x) {
  return evaluate<unary::sin, Plain>(x);
}
uint64_t unary_sin_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sin, Plain>(x);
}
uint16_t *unary_sin_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sin, Plain>(HalfPlace{result}, Real16{x});
}
float unary_sin_Real32(float x) {
  return evaluate<unary::sin, Plain>(x);
}
double unary_sin_Real64(double x) {
  return evaluate<unary::sin, Plain>(x);
}
float *unary_sin_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sin, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_sin_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sin, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_sin_Integer8(int8_t x) {
  return evaluate<unary::sin, Checked>(x);
}
uint8_t checked_unary_sin_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sin, Checked>(x);
}
int16_t checked_unary_sin_Integer16(int16_t x) {
  return evaluate<unary::sin, Checked>(x);
}
uint16_t checked_unary_sin_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sin, Checked>(x);
}
int32_t checked_unary_sin_Integer32(int32_t x) {
  return evaluate<unary::sin, Checked>(x);
}
uint32_t checked_unary_sin_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sin, Checked>(x);
}
int64_t checked_unary_sin_Integer64(int64_t x) {
  return evaluate<unary::sin, Checked>(x);
}
uint64_t checked_unary_sin_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sin, Checked>(x);
}
uint16_t *checked_unary_sin_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sin, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_sin_Real32(float x) {
  return evaluate<unary::sin, Checked>(x);
}
double checked_unary_sin_Real64(double x) {
  return evaluate<unary::sin, Checked>(x);
}
float *checked_unary_sin_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sin, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_sin_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sin, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_cos_Integer8(int8_t x) {
  return evaluate<unary::cos, Plain>(x);
}
uint8_t unary_cos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cos, Plain>(x);
}
int16_t unary_cos_Integer16(int16_t x) {
  return evaluate<unary::cos, Plain>(x);
}
uint16_t unary_cos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cos, Plain>(x);
}
int32_t unary_cos_Integer32(int32_t x) {
  return evaluate<unary::cos, Plain>(x);
}
uint32_t unary_cos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cos, Plain>(x);
}
int64_t unary_cos_Integer64(int64_t x) {
  return evaluate<unary::cos, Plain>(x);
}
uint64_t unary_cos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cos, Plain>(x);
}
uint16_t *unary_cos_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cos, Plain>(HalfPlace{result}, Real16{x});
}
float unary_cos_Real32(float x) {
  return evaluate<unary::cos, Plain>(x);
}
double unary_cos_Real64(double x) {
  return evaluate<unary::cos, Plain>(x);
}
float *unary_cos_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cos, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_cos_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cos, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_cos_Integer8(int8_t x) {
  return evaluate<unary::cos, Checked>(x);
}
uint8_t checked_unary_cos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cos, Checked>(x);
}
int16_t checked_unary_cos_Integer16(int16_t x) {
  return evaluate<unary::cos, Checked>(x);
}
uint16_t checked_unary_cos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cos, Checked>(x);
}
int32_t checked_unary_cos_Integer32(int32_t x) {
  return evaluate<unary::cos, Checked>(x);
}
uint32_t checked_unary_cos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cos, Checked>(x);
}
int64_t checked_unary_cos_Integer64(int64_t x) {
  return evaluate<unary::cos, Checked>(x);
}
uint64_t checked_unary_cos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cos, Checked>(x);
}
uint16_t *checked_unary_cos_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cos, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_cos_Real32(float x) {
  return evaluate<unary::cos, Checked>(x);
}
double checked_unary_cos_Real64(double x) {
  return evaluate<unary::cos, Checked>(x);
}
float *checked_unary_cos_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cos, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_cos_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cos, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_tan_Integer8(int8_t x) {
  return evaluate<unary::tan, Plain>(x);
}
uint8_t unary_tan_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::tan, Plain>(x);
}
int16_t unary_tan_Integer16(int16_t x) {
  return evaluate<unary::tan, Plain>(x);
}
uint16_t unary_tan_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::tan, Plain>(x);
}
int32_t unary_tan_Integer32(int32_t x) {
  return evaluate<unary::tan, Plain>(x);
}
uint32_t unary_tan_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::tan, Plain>(x);
}
int64_t unary_tan_Integer64(int64_t x) {
  return evaluate<unary::tan, Plain>(x);
}
uint64_t unary_tan_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::tan, Plain>(x);
}
uint16_t *unary_tan_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::tan, Plain>(HalfPlace{result}, Real16{x});
}
float unary_tan_Real32(float x) {
  return evaluate<unary::tan, Plain>(x);
}
double unary_tan_Real64(double x) {
  return evaluate<unary::tan, Plain>(x);
}
float *unary_tan_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::tan, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_tan_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::tan, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_tan_Integer8(int8_t x) {
  return evaluate<unary::tan, Checked>(x);
}
uint8_t checked_unary_tan_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::tan, Checked>(x);
}
int16_t checked_unary_tan_Integer16(int16_t x) {
  return evaluate<unary::tan, Checked>(x);
}
uint16_t checked_unary_tan_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::tan, Checked>(x);
}
int32_t checked_unary_tan_Integer32(int32_t x) {
  return evaluate<unary::tan, Checked>(x);
}
uint32_t checked_unary_tan_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::tan, Checked>(x);
}
int64_t checked_unary_tan_Integer64(int64_t x) {
  return evaluate<unary::tan, Checked>(x);
}
uint64_t checked_unary_tan_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::tan, Checked>(x);
}
uint16_t *checked_unary_tan_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::tan, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_tan_Real32(float x) {
  return evaluate<unary::tan, Checked>(x);
}
double checked_unary_tan_Real64(double x) {
  return evaluate<unary::tan, Checked>(x);
}
float *checked_unary_tan_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::tan, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_tan_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::tan, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_csc_Integer8(int8_t x) {
  return evaluate<unary::csc, Plain>(x);
}
uint8_t unary_csc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::csc, Plain>(x);
}
int16_t unary_csc_Integer16(int16_t x) {
  return evaluate<unary::csc, Plain>(x);
}
uint16_t unary_csc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::csc, Plain>(x);
}
int32_t unary_csc_Integer32(int32_t x) {
  return evaluate<unary::csc, Plain>(x);
}
uint32_t unary_csc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::csc, Plain>(x);
}
int64_t unary_csc_Integer64(int64_t x) {
  return evaluate<unary::csc, Plain>(x);
}
uint64_t unary_csc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::csc, Plain>(x);
}
uint16_t *unary_csc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::csc, Plain>(HalfPlace{result}, Real16{x});
}
float unary_csc_Real32(float x) {
  return evaluate<unary::csc, Plain>(x);
}
double unary_csc_Real64(double x) {
  return evaluate<unary::csc, Plain>(x);
}
float *unary_csc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::csc, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_csc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::csc, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_csc_Integer8(int8_t x) {
  return evaluate<unary::csc, Checked>(x);
}
uint8_t checked_unary_csc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::csc, Checked>(x);
}
int16_t checked_unary_csc_Integer16(int16_t x) {
  return evaluate<unary::csc, Checked>(x);
}
uint16_t checked_unary_csc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::csc, Checked>(x);
}
int32_t checked_unary_csc_Integer32(int32_t x) {
  return evaluate<unary::csc, Checked>(x);
}
uint32_t checked_unary_csc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::csc, Checked>(x);
}
int64_t checked_unary_csc_Integer64(int64_t x) {
  return evaluate<unary::csc, Checked>(x);
}
uint64_t checked_unary_csc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::csc, Checked>(x);
}
uint16_t *checked_unary_csc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::csc, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_csc_Real32(float x) {
  return evaluate<unary::csc, Checked>(x);
}
double checked_unary_csc_Real64(double x) {
  return evaluate<unary::csc, Checked>(x);
}
float *checked_unary_csc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::csc, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_csc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::csc, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_sec_Integer8(int8_t x) {
  return evaluate<unary::sec, Plain>(x);
}
uint8_t unary_sec_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sec, Plain>(x);
}
int16_t unary_sec_Integer16(int16_t x) {
  return evaluate<unary::sec, Plain>(x);
}
uint16_t unary_sec_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sec, Plain>(x);
}
int32_t unary_sec_Integer32(int32_t x) {
  return evaluate<unary::sec, Plain>(x);
}
uint32_t unary_sec_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sec, Plain>(x);
}
int64_t unary_sec_Integer64(int64_t x) {
  return evaluate<unary::sec, Plain>(x);
}
uint64_t unary_sec_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sec, Plain>(x);
}
uint16_t *unary_sec_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sec, Plain>(HalfPlace{result}, Real16{x});
}
float unary_sec_Real32(float x) {
  return evaluate<unary::sec, Plain>(x);
}
double unary_sec_Real64(double x) {
  return evaluate<unary::sec, Plain>(x);
}
float *unary_sec_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sec, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_sec_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sec, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_sec_Integer8(int8_t x) {
  return evaluate<unary::sec, Checked>(x);
}
uint8_t checked_unary_sec_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sec, Checked>(x);
}
int16_t checked_unary_sec_Integer16(int16_t x) {
  return evaluate<unary::sec, Checked>(x);
}
uint16_t checked_unary_sec_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sec, Checked>(x);
}
int32_t checked_unary_sec_Integer32(int32_t x) {
  return evaluate<unary::sec, Checked>(x);
}
uint32_t checked_unary_sec_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sec, Checked>(x);
}
int64_t checked_unary_sec_Integer64(int64_t x) {
  return evaluate<unary::sec, Checked>(x);
}
uint64_t checked_unary_sec_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sec, Checked>(x);
}
uint16_t *checked_unary_sec_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sec, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_sec_Real32(float x) {
  return evaluate<unary::sec, Checked>(x);
}
double checked_unary_sec_Real64(double x) {
  return evaluate<unary::sec, Checked>(x);
}
float *checked_unary_sec_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sec, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_sec_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sec, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_cot_Integer8(int8_t x) {
  return evaluate<unary::cot, Plain>(x);
}
uint8_t unary_cot_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cot, Plain>(x);
}
int16_t unary_cot_Integer16(int16_t x) {
  return evaluate<unary::cot, Plain>(x);
}
uint16_t unary_cot_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cot, Plain>(x);
}
int32_t unary_cot_Integer32(int32_t x) {
  return evaluate<unary::cot, Plain>(x);
}
uint32_t unary_cot_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cot, Plain>(x);
}
int64_t unary_cot_Integer64(int64_t x) {
  return evaluate<unary::cot, Plain>(x);
}
uint64_t unary_cot_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cot, Plain>(x);
}
uint16_t *unary_cot_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cot, Plain>(HalfPlace{result}, Real16{x});
}
float unary_cot_Real32(float x) {
  return evaluate<unary::cot, Plain>(x);
}
double unary_cot_Real64(double x) {
  return evaluate<unary::cot, Plain>(x);
}
float *unary_cot_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cot, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_cot_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cot, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_cot_Integer8(int8_t x) {
  return evaluate<unary::cot, Checked>(x);
}
uint8_t checked_unary_cot_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cot, Checked>(x);
}
int16_t checked_unary_cot_Integer16(int16_t x) {
  return evaluate<unary::cot, Checked>(x);
}
uint16_t checked_unary_cot_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cot, Checked>(x);
}
int32_t checked_unary_cot_Integer32(int32_t x) {
  return evaluate<unary::cot, Checked>(x);
}
uint32_t checked_unary_cot_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cot, Checked>(x);
}
int64_t checked_unary_cot_Integer64(int64_t x) {
  return evaluate<unary::cot, Checked>(x);
}
uint64_t checked_unary_cot_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cot, Checked>(x);
}
uint16_t *checked_unary_cot_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cot, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_cot_Real32(float x) {
  return evaluate<unary::cot, Checked>(x);
}
double checked_unary_cot_Real64(double x) {
  return evaluate<unary::cot, Checked>(x);
}
float *checked_unary_cot_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cot, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_cot_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cot, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_sinh_Integer8(int8_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
uint8_t unary_sinh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
int16_t unary_sinh_Integer16(int16_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
uint16_t unary_sinh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
int32_t unary_sinh_Integer32(int32_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
uint32_t unary_sinh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
int64_t unary_sinh_Integer64(int64_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
uint64_t unary_sinh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sinh, Plain>(x);
}
uint16_t *unary_sinh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sinh, Plain>(HalfPlace{result}, Real16{x});
}
float unary_sinh_Real32(float x) {
  return evaluate<unary::sinh, Plain>(x);
}
double unary_sinh_Real64(double x) {
  return evaluate<unary::sinh, Plain>(x);
}
float *unary_sinh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sinh, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_sinh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sinh, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_sinh_Integer8(int8_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
uint8_t checked_unary_sinh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
int16_t checked_unary_sinh_Integer16(int16_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
uint16_t checked_unary_sinh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
int32_t checked_unary_sinh_Integer32(int32_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
uint32_t checked_unary_sinh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
int64_t checked_unary_sinh_Integer64(int64_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
uint64_t checked_unary_sinh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sinh, Checked>(x);
}
uint16_t *checked_unary_sinh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sinh, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_sinh_Real32(float x) {
  return evaluate<unary::sinh, Checked>(x);
}
double checked_unary_sinh_Real64(double x) {
  return evaluate<unary::sinh, Checked>(x);
}
float *checked_unary_sinh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sinh, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_sinh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sinh, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_cosh_Integer8(int8_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
uint8_t unary_cosh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
int16_t unary_cosh_Integer16(int16_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
uint16_t unary_cosh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
int32_t unary_cosh_Integer32(int32_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
uint32_t unary_cosh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
int64_t unary_cosh_Integer64(int64_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
uint64_t unary_cosh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cosh, Plain>(x);
}
uint16_t *unary_cosh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cosh, Plain>(HalfPlace{result}, Real16{x});
}
float unary_cosh_Real32(float x) {
  return evaluate<unary::cosh, Plain>(x);
}
double unary_cosh_Real64(double x) {
  return evaluate<unary::cosh, Plain>(x);
}
float *unary_cosh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cosh, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_cosh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cosh, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_cosh_Integer8(int8_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
uint8_t checked_unary_cosh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
int16_t checked_unary_cosh_Integer16(int16_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
uint16_t checked_unary_cosh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
int32_t checked_unary_cosh_Integer32(int32_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
uint32_t checked_unary_cosh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
int64_t checked_unary_cosh_Integer64(int64_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
uint64_t checked_unary_cosh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cosh, Checked>(x);
}
uint16_t *checked_unary_cosh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cosh, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_cosh_Real32(float x) {
  return evaluate<unary::cosh, Checked>(x);
}
double checked_unary_cosh_Real64(double x) {
  return evaluate<unary::cosh, Checked>(x);
}
float *checked_unary_cosh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cosh, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_cosh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cosh, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_tanh_Integer8(int8_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
uint8_t unary_tanh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
int16_t unary_tanh_Integer16(int16_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
uint16_t unary_tanh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
int32_t unary_tanh_Integer32(int32_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
uint32_t unary_tanh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
int64_t unary_tanh_Integer64(int64_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
uint64_t unary_tanh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::tanh, Plain>(x);
}
uint16_t *unary_tanh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::tanh, Plain>(HalfPlace{result}, Real16{x});
}
float unary_tanh_Real32(float x) {
  return evaluate<unary::tanh, Plain>(x);
}
double unary_tanh_Real64(double x) {
  return evaluate<unary::tanh, Plain>(x);
}
float *unary_tanh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::tanh, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_tanh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::tanh, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_tanh_Integer8(int8_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
uint8_t checked_unary_tanh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
int16_t checked_unary_tanh_Integer16(int16_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
uint16_t checked_unary_tanh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
int32_t checked_unary_tanh_Integer32(int32_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
uint32_t checked_unary_tanh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
int64_t checked_unary_tanh_Integer64(int64_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
uint64_t checked_unary_tanh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::tanh, Checked>(x);
}
uint16_t *checked_unary_tanh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::tanh, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_tanh_Real32(float x) {
  return evaluate<unary::tanh, Checked>(x);
}
double checked_unary_tanh_Real64(double x) {
  return evaluate<unary::tanh, Checked>(x);
}
float *checked_unary_tanh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::tanh, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_tanh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::tanh, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_csch_Integer8(int8_t x) {
  return evaluate<unary::csch, Plain>(x);
}
uint8_t unary_csch_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::csch, Plain>(x);
}
int16_t unary_csch_Integer16(int16_t x) {
  return evaluate<unary::csch, Plain>(x);
}
uint16_t unary_csch_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::csch, Plain>(x);
}
int32_t unary_csch_Integer32(int32_t x) {
  return evaluate<unary::csch, Plain>(x);
}
uint32_t unary_csch_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::csch, Plain>(x);
}
int64_t unary_csch_Integer64(int64_t x) {
  return evaluate<unary::csch, Plain>(x);
}
uint64_t unary_csch_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::csch, Plain>(x);
}
uint16_t *unary_csch_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::csch, Plain>(HalfPlace{result}, Real16{x});
}
float unary_csch_Real32(float x) {
  return evaluate<unary::csch, Plain>(x);
}
double unary_csch_Real64(double x) {
  return evaluate<unary::csch, Plain>(x);
}
float *unary_csch_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::csch, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_csch_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::csch, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_csch_Integer8(int8_t x) {
  return evaluate<unary::csch, Checked>(x);
}
uint8_t checked_unary_csch_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::csch, Checked>(x);
}
int16_t checked_unary_csch_Integer16(int16_t x) {
  return evaluate<unary::csch, Checked>(x);
}
uint16_t checked_unary_csch_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::csch, Checked>(x);
}
int32_t checked_unary_csch_Integer32(int32_t x) {
  return evaluate<unary::csch, Checked>(x);
}
uint32_t checked_unary_csch_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::csch, Checked>(x);
}
int64_t checked_unary_csch_Integer64(int64_t x) {
  return evaluate<unary::csch, Checked>(x);
}
uint64_t checked_unary_csch_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::csch, Checked>(x);
}
uint16_t *checked_unary_csch_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::csch, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_csch_Real32(float x) {
  return evaluate<unary::csch, Checked>(x);
}
double checked_unary_csch_Real64(double x) {
  return evaluate<unary::csch, Checked>(x);
}
float *checked_unary_csch_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::csch, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_csch_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::csch, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_sech_Integer8(int8_t x) {
  return evaluate<unary::sech, Plain>(x);
}
uint8_t unary_sech_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sech, Plain>(x);
}
int16_t unary_sech_Integer16(int16_t x) {
  return evaluate<unary::sech, Plain>(x);
}
uint16_t unary_sech_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sech, Plain>(x);
}
int32_t unary_sech_Integer32(int32_t x) {
  return evaluate<unary::sech, Plain>(x);
}
uint32_t unary_sech_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sech, Plain>(x);
}
int64_t unary_sech_Integer64(int64_t x) {
  return evaluate<unary::sech, Plain>(x);
}
uint64_t unary_sech_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sech, Plain>(x);
}
uint16_t *unary_sech_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sech, Plain>(HalfPlace{result}, Real16{x});
}
float unary_sech_Real32(float x) {
  return evaluate<unary::sech, Plain>(x);
}
double unary_sech_Real64(double x) {
  return evaluate<unary::sech, Plain>(x);
}
float *unary_sech_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sech, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_sech_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sech, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_sech_Integer8(int8_t x) {
  return evaluate<unary::sech, Checked>(x);
}
uint8_t checked_unary_sech_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sech, Checked>(x);
}
int16_t checked_unary_sech_Integer16(int16_t x) {
  return evaluate<unary::sech, Checked>(x);
}
uint16_t checked_unary_sech_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sech, Checked>(x);
}
int32_t checked_unary_sech_Integer32(int32_t x) {
  return evaluate<unary::sech, Checked>(x);
}
uint32_t checked_unary_sech_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sech, Checked>(x);
}
int64_t checked_unary_sech_Integer64(int64_t x) {
  return evaluate<unary::sech, Checked>(x);
}
uint64_t checked_unary_sech_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sech, Checked>(x);
}
uint16_t *checked_unary_sech_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sech, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_sech_Real32(float x) {
  return evaluate<unary::sech, Checked>(x);
}
double checked_unary_sech_Real64(double x) {
  return evaluate<unary::sech, Checked>(x);
}
float *checked_unary_sech_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sech, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_sech_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sech, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_coth_Integer8(int8_t x) {
  return evaluate<unary::coth, Plain>(x);
}
uint8_t unary_coth_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::coth, Plain>(x);
}
int16_t unary_coth_Integer16(int16_t x) {
  return evaluate<unary::coth, Plain>(x);
}
uint16_t unary_coth_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::coth, Plain>(x);
}
int32_t unary_coth_Integer32(int32_t x) {
  return evaluate<unary::coth, Plain>(x);
}
uint32_t unary_coth_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::coth, Plain>(x);
}
int64_t unary_coth_Integer64(int64_t x) {
  return evaluate<unary::coth, Plain>(x);
}
uint64_t unary_coth_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::coth, Plain>(x);
}
uint16_t *unary_coth_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::coth, Plain>(HalfPlace{result}, Real16{x});
}
float unary_coth_Real32(float x) {
  return evaluate<unary::coth, Plain>(x);
}
double unary_coth_Real64(double x) {
  return evaluate<unary::coth, Plain>(x);
}
float *unary_coth_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::coth, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_coth_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::coth, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_coth_Integer8(int8_t x) {
  return evaluate<unary::coth, Checked>(x);
}
uint8_t checked_unary_coth_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::coth, Checked>(x);
}
int16_t checked_unary_coth_Integer16(int16_t x) {
  return evaluate<unary::coth, Checked>(x);
}
uint16_t checked_unary_coth_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::coth, Checked>(x);
}
int32_t checked_unary_coth_Integer32(int32_t x) {
  return evaluate<unary::coth, Checked>(x);
}
uint32_t checked_unary_coth_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::coth, Checked>(x);
}
int64_t checked_unary_coth_Integer64(int64_t x) {
  return evaluate<unary::coth, Checked>(x);
}
uint64_t checked_unary_coth_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::coth, Checked>(x);
}
uint16_t *checked_unary_coth_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::coth, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_coth_Real32(float x) {
  return evaluate<unary::coth, Checked>(x);
}
double checked_unary_coth_Real64(double x) {
  return evaluate<unary::coth, Checked>(x);
}
float *checked_unary_coth_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::coth, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_coth_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::coth, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

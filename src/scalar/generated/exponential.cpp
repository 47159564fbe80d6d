// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../../scalar/bodies/exponential.h"
#include <torvane/scalars.h>

using namespace torvane;

int8_t unary_exp_Integer8(int8_t x) {
  return evaluate<unary::exp, Plain>(x);
}
uint8_t unary_exp_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::exp, Plain>(x);
}
int16_t unary_exp_Integer16(int16_t x) {
  return evaluate<unary::exp, Plain>(x);
}
uint16_t unary_exp_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::exp, Plain>(x);
}
int32_t unary_exp_Integer32(int32_t x) {
  return evaluate<unary::exp, Plain>(x);
}
uint32_t unary_exp_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::exp, Plain>(x);
}
int64_t unary_exp_Integer64(int64_t x) {
  return evaluate<unary::exp, Plain>(x);
}
uint64_t unary_exp_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::exp, Plain>(x);
}
uint16_t *unary_exp_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::exp, Plain>(HalfPlace{result}, Real16{x});
}
float unary_exp_Real32(float x) {
  return evaluate<unary::exp, Plain>(x);
}
double unary_exp_Real64(double x) {
  return evaluate<unary::exp, Plain>(x);
}
float *unary_exp_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::exp, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_exp_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::exp, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_exp_Integer8(int8_t x) {
  return evaluate<unary::exp, Checked>(x);
}
uint8_t checked_unary_exp_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::exp, Checked>(x);
}
int16_t checked_unary_exp_Integer16(int16_t x) {
  return evaluate<unary::exp, Checked>(x);
}
uint16_t checked_unary_exp_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::exp, Checked>(x);
}
int32_t checked_unary_exp_Integer32(int32_t x) {
  return evaluate<unary::exp, Checked>(x);
}
uint32_t checked_unary_exp_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::exp, Checked>(x);
}
int64_t checked_unary_exp_Integer64(int64_t x) {
  return evaluate<unary::exp, Checked>(x);
}
uint64_t checked_unary_exp_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::exp, Checked>(x);
}
uint16_t *checked_unary_exp_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::exp, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_exp_Real32(float x) {
  return evaluate<unary::exp, Checked>(x);
}
double checked_unary_exp_Real64(double x) {
  return evaluate<unary::exp, Checked>(x);
}
float *checked_unary_exp_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::exp, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_exp_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::exp, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_expm1_Integer8(int8_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
uint8_t unary_expm1_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
int16_t unary_expm1_Integer16(int16_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
uint16_t unary_expm1_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
int32_t unary_expm1_Integer32(int32_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
uint32_t unary_expm1_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
int64_t unary_expm1_Integer64(int64_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
uint64_t unary_expm1_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::expm1, Plain>(x);
}
uint16_t *unary_expm1_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::expm1, Plain>(HalfPlace{result}, Real16{x});
}
float unary_expm1_Real32(float x) {
  return evaluate<unary::expm1, Plain>(x);
}
double unary_expm1_Real64(double x) {
  return evaluate<unary::expm1, Plain>(x);
}
float *unary_expm1_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::expm1, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_expm1_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::expm1, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_expm1_Integer8(int8_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
uint8_t checked_unary_expm1_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
int16_t checked_unary_expm1_Integer16(int16_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
uint16_t checked_unary_expm1_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
int32_t checked_unary_expm1_Integer32(int32_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
uint32_t checked_unary_expm1_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
int64_t checked_unary_expm1_Integer64(int64_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
uint64_t checked_unary_expm1_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::expm1, Checked>(x);
}
uint16_t *checked_unary_expm1_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::expm1, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_expm1_Real32(float x) {
  return evaluate<unary::expm1, Checked>(x);
}
double checked_unary_expm1_Real64(double x) {
  return evaluate<unary::expm1, Checked>(x);
}
float *checked_unary_expm1_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::expm1, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_expm1_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::expm1, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_log_Integer8(int8_t x) {
  return evaluate<unary::log, Plain>(x);
}
uint8_t unary_log_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log, Plain>(x);
}
int16_t unary_log_Integer16(int16_t x) {
  return evaluate<unary::log, Plain>(x);
}
uint16_t unary_log_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log, Plain>(x);
}
int32_t unary_log_Integer32(int32_t x) {
  return evaluate<unary::log, Plain>(x);
}
uint32_t unary_log_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log, Plain>(x);
}
int64_t unary_log_Integer64(int64_t x) {
  return evaluate<unary::log, Plain>(x);
}
uint64_t unary_log_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log, Plain>(x);
}
uint16_t *unary_log_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log, Plain>(HalfPlace{result}, Real16{x});
}
float unary_log_Real32(float x) {
  return evaluate<unary::log, Plain>(x);
}
double unary_log_Real64(double x) {
  return evaluate<unary::log, Plain>(x);
}
float *unary_log_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_log_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_log_Integer8(int8_t x) {
  return evaluate<unary::log, Checked>(x);
}
uint8_t checked_unary_log_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log, Checked>(x);
}
int16_t checked_unary_log_Integer16(int16_t x) {
  return evaluate<unary::log, Checked>(x);
}
uint16_t checked_unary_log_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log, Checked>(x);
}
int32_t checked_unary_log_Integer32(int32_t x) {
  return evaluate<unary::log, Checked>(x);
}
uint32_t checked_unary_log_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log, Checked>(x);
}
int64_t checked_unary_log_Integer64(int64_t x) {
  return evaluate<unary::log, Checked>(x);
}
uint64_t checked_unary_log_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log, Checked>(x);
}
uint16_t *checked_unary_log_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_log_Real32(float x) {
  return evaluate<unary::log, Checked>(x);
}
double checked_unary_log_Real64(double x) {
  return evaluate<unary::log, Checked>(x);
}
float *checked_unary_log_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_log_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_log1p_Integer8(int8_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
uint8_t unary_log1p_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
int16_t unary_log1p_Integer16(int16_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
uint16_t unary_log1p_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
int32_t unary_log1p_Integer32(int32_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
uint32_t unary_log1p_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
int64_t unary_log1p_Integer64(int64_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
uint64_t unary_log1p_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log1p, Plain>(x);
}
uint16_t *unary_log1p_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log1p, Plain>(HalfPlace{result}, Real16{x});
}
float unary_log1p_Real32(float x) {
  return evaluate<unary::log1p, Plain>(x);
}
double unary_log1p_Real64(double x) {
  return evaluate<unary::log1p, Plain>(x);
}
float *unary_log1p_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log1p, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_log1p_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log1p, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_log1p_Integer8(int8_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
uint8_t checked_unary_log1p_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
int16_t checked_unary_log1p_Integer16(int16_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
uint16_t checked_unary_log1p_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
int32_t checked_unary_log1p_Integer32(int32_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
uint32_t checked_unary_log1p_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
int64_t checked_unary_log1p_Integer64(int64_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
uint64_t checked_unary_log1p_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log1p, Checked>(x);
}
uint16_t *checked_unary_log1p_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log1p, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_log1p_Real32(float x) {
  return evaluate<unary::log1p, Checked>(x);
}
double checked_unary_log1p_Real64(double x) {
  return evaluate<unary::log1p, Checked>(x);
}
float *checked_unary_log1p_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log1p, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_log1p_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log1p, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_log2_Integer8(int8_t x) {
  return evaluate<unary::log2, Plain>(x);
}
uint8_t unary_log2_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log2, Plain>(x);
}
int16_t unary_log2_Integer16(int16_t x) {
  return evaluate<unary::log2, Plain>(x);
}
uint16_t unary_log2_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log2, Plain>(x);
}
int32_t unary_log2_Integer32(int32_t x) {
  return evaluate<unary::log2, Plain>(x);
}
uint32_t unary_log2_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log2, Plain>(x);
}
int64_t unary_log2_Integer64(int64_t x) {
  return evaluate<unary::log2, Plain>(x);
}
uint64_t unary_log2_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log2, Plain>(x);
}
uint16_t *unary_log2_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log2, Plain>(HalfPlace{result}, Real16{x});
}
float unary_log2_Real32(float x) {
  return evaluate<unary::log2, Plain>(x);
}
double unary_log2_Real64(double x) {
  return evaluate<unary::log2, Plain>(x);
}
float *unary_log2_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log2, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_log2_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log2, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_log2_Integer8(int8_t x) {
  return evaluate<unary::log2, Checked>(x);
}
uint8_t checked_unary_log2_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log2, Checked>(x);
}
int16_t checked_unary_log2_Integer16(int16_t x) {
  return evaluate<unary::log2, Checked>(x);
}
uint16_t checked_unary_log2_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log2, Checked>(x);
}
int32_t checked_unary_log2_Integer32(int32_t x) {
  return evaluate<unary::log2, Checked>(x);
}
uint32_t checked_unary_log2_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log2, Checked>(x);
}
int64_t checked_unary_log2_Integer64(int64_t x) {
  return evaluate<unary::log2, Checked>(x);
}
uint64_t checked_unary_log2_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log2, Checked>(x);
}
uint16_t *checked_unary_log2_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log2, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_log2_Real32(float x) {
  return evaluate<unary::log2, Checked>(x);
}
double checked_unary_log2_Real64(double x) {
  return evaluate<unary::log2, Checked>(x);
}
float *checked_unary_log2_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log2, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_log2_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log2, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_log10_Integer8(int8_t x) {
  return evaluate<unary::log10, Plain>(x);
}
uint8_t unary_log10_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log10, Plain>(x);
}
int16_t unary_log10_Integer16(int16_t x) {
  return evaluate<unary::log10, Plain>(x);
}
uint16_t unary_log10_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log10, Plain>(x);
}
int32_t unary_log10_Integer32(int32_t x) {
  return evaluate<unary::log10, Plain>(x);
}
uint32_t unary_log10_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log10, Plain>(x);
}
int64_t unary_log10_Integer64(int64_t x) {
  return evaluate<unary::log10, Plain>(x);
}
uint64_t unary_log10_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log10, Plain>(x);
}
uint16_t *unary_log10_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log10, Plain>(HalfPlace{result}, Real16{x});
}
float unary_log10_Real32(float x) {
  return evaluate<unary::log10, Plain>(x);
}
double unary_log10_Real64(double x) {
  return evaluate<unary::log10, Plain>(x);
}
float *unary_log10_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log10, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_log10_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log10, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_log10_Integer8(int8_t x) {
  return evaluate<unary::log10, Checked>(x);
}
uint8_t checked_unary_log10_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::log10, Checked>(x);
}
int16_t checked_unary_log10_Integer16(int16_t x) {
  return evaluate<unary::log10, Checked>(x);
}
uint16_t checked_unary_log10_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::log10, Checked>(x);
}
int32_t checked_unary_log10_Integer32(int32_t x) {
  return evaluate<unary::log10, Checked>(x);
}
uint32_t checked_unary_log10_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::log10, Checked>(x);
}
int64_t checked_unary_log10_Integer64(int64_t x) {
  return evaluate<unary::log10, Checked>(x);
}
uint64_t checked_unary_log10_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::log10, Checked>(x);
}
uint16_t *checked_unary_log10_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::log10, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_log10_Real32(float x) {
  return evaluate<unary::log10, Checked>(x);
}
double checked_unary_log10_Real64(double x) {
  return evaluate<unary::log10, Checked>(x);
}
float *checked_unary_log10_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::log10, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_log10_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::log10, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t binary_log_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
uint8_t binary_log_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
int16_t binary_log_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
uint16_t binary_log_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
int32_t binary_log_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
uint32_t binary_log_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
int64_t binary_log_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
uint64_t binary_log_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::log, Plain>(x, y);
}
uint16_t *binary_log_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::log, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_log_Real32_Real32(float x, float y) {
  return evaluate<binary::log, Plain>(x, y);
}
double binary_log_Real64_Real64(double x, double y) {
  return evaluate<binary::log, Plain>(x, y);
}
float *binary_log_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                              float y_im) {
  return evaluateInto<binary::log, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_log_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                               double y_re, double y_im) {
  return evaluateInto<binary::log, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_log_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
uint8_t checked_binary_log_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
int16_t checked_binary_log_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
uint16_t checked_binary_log_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
int32_t checked_binary_log_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
uint32_t checked_binary_log_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
int64_t checked_binary_log_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
uint64_t checked_binary_log_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::log, Checked>(x, y);
}
uint16_t *checked_binary_log_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::log, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_log_Real32_Real32(float x, float y) {
  return evaluate<binary::log, Checked>(x, y);
}
double checked_binary_log_Real64_Real64(double x, double y) {
  return evaluate<binary::log, Checked>(x, y);
}
float *checked_binary_log_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                      float y_re, float y_im) {
  return evaluateInto<binary::log, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_log_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                       double y_re, double y_im) {
  return evaluateInto<binary::log, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

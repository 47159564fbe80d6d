// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../../scalar/bodies/inverse.h"
#include <torvane/scalars.h>

using namespace torvane;

int8_t unary_asin_Integer8(int8_t x) {
  return evaluate<unary::asin, Plain>(x);
}
uint8_t unary_asin_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asin, Plain>(x);
}
int16_t unary_asin_Integer16(int16_t x) {
  return evaluate<unary::asin, Plain>(x);
}
uint16_t unary_asin_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asin, Plain>(x);
}
int32_t unary_asin_Integer32(int32_t x) {
  return evaluate<unary::asin, Plain>(x);
}
uint32_t unary_asin_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asin, Plain>(x);
}
int64_t unary_asin_Integer64(int64_t x) {
  return evaluate<unary::asin, Plain>(x);
}
uint64_t unary_asin_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asin, Plain>(x);
}
uint16_t *unary_asin_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asin, Plain>(HalfPlace{result}, Real16{x});
}
float unary_asin_Real32(float x) {
  return evaluate<unary::asin, Plain>(x);
}
double unary_asin_Real64(double x) {
  return evaluate<unary::asin, Plain>(x);
}
float *unary_asin_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asin, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_asin_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asin, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_asin_Integer8(int8_t x) {
  return evaluate<unary::asin, Checked>(x);
}
uint8_t checked_unary_asin_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asin, Checked>(x);
}
int16_t checked_unary_asin_Integer16(int16_t x) {
  return evaluate<unary::asin, Checked>(x);
}
uint16_t checked_unary_asin_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asin, Checked>(x);
}
int32_t checked_unary_asin_Integer32(int32_t x) {
  return evaluate<unary::asin, Checked>(x);
}
uint32_t checked_unary_asin_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asin, Checked>(x);
}
int64_t checked_unary_asin_Integer64(int64_t x) {
  return evaluate<unary::asin, Checked>(x);
}
uint64_t checked_unary_asin_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asin, Checked>(x);
}
uint16_t *checked_unary_asin_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asin, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_asin_Real32(float x) {
  return evaluate<unary::asin, Checked>(x);
}
double checked_unary_asin_Real64(double x) {
  return evaluate<unary::asin, Checked>(x);
}
float *checked_unary_asin_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asin, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_asin_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asin, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_acos_Integer8(int8_t x) {
  return evaluate<unary::acos, Plain>(x);
}
uint8_t unary_acos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acos, Plain>(x);
}
int16_t unary_acos_Integer16(int16_t x) {
  return evaluate<unary::acos, Plain>(x);
}
uint16_t unary_acos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acos, Plain>(x);
}
int32_t unary_acos_Integer32(int32_t x) {
  return evaluate<unary::acos, Plain>(x);
}
uint32_t unary_acos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acos, Plain>(x);
}
int64_t unary_acos_Integer64(int64_t x) {
  return evaluate<unary::acos, Plain>(x);
}
uint64_t unary_acos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acos, Plain>(x);
}
uint16_t *unary_acos_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acos, Plain>(HalfPlace{result}, Real16{x});
}
float unary_acos_Real32(float x) {
  return evaluate<unary::acos, Plain>(x);
}
double unary_acos_Real64(double x) {
  return evaluate<unary::acos, Plain>(x);
}
float *unary_acos_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acos, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_acos_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acos, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_acos_Integer8(int8_t x) {
  return evaluate<unary::acos, Checked>(x);
}
uint8_t checked_unary_acos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acos, Checked>(x);
}
int16_t checked_unary_acos_Integer16(int16_t x) {
  return evaluate<unary::acos, Checked>(x);
}
uint16_t checked_unary_acos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acos, Checked>(x);
}
int32_t checked_unary_acos_Integer32(int32_t x) {
  return evaluate<unary::acos, Checked>(x);
}
uint32_t checked_unary_acos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acos, Checked>(x);
}
int64_t checked_unary_acos_Integer64(int64_t x) {
  return evaluate<unary::acos, Checked>(x);
}
uint64_t checked_unary_acos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acos, Checked>(x);
}
uint16_t *checked_unary_acos_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acos, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_acos_Real32(float x) {
  return evaluate<unary::acos, Checked>(x);
}
double checked_unary_acos_Real64(double x) {
  return evaluate<unary::acos, Checked>(x);
}
float *checked_unary_acos_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acos, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_acos_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acos, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_atan_Integer8(int8_t x) {
  return evaluate<unary::atan, Plain>(x);
}
uint8_t unary_atan_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::atan, Plain>(x);
}
int16_t unary_atan_Integer16(int16_t x) {
  return evaluate<unary::atan, Plain>(x);
}
uint16_t unary_atan_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::atan, Plain>(x);
}
int32_t unary_atan_Integer32(int32_t x) {
  return evaluate<unary::atan, Plain>(x);
}
uint32_t unary_atan_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::atan, Plain>(x);
}
int64_t unary_atan_Integer64(int64_t x) {
  return evaluate<unary::atan, Plain>(x);
}
uint64_t unary_atan_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::atan, Plain>(x);
}
uint16_t *unary_atan_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::atan, Plain>(HalfPlace{result}, Real16{x});
}
float unary_atan_Real32(float x) {
  return evaluate<unary::atan, Plain>(x);
}
double unary_atan_Real64(double x) {
  return evaluate<unary::atan, Plain>(x);
}
float *unary_atan_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::atan, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_atan_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::atan, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_atan_Integer8(int8_t x) {
  return evaluate<unary::atan, Checked>(x);
}
uint8_t checked_unary_atan_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::atan, Checked>(x);
}
int16_t checked_unary_atan_Integer16(int16_t x) {
  return evaluate<unary::atan, Checked>(x);
}
uint16_t checked_unary_atan_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::atan, Checked>(x);
}
int32_t checked_unary_atan_Integer32(int32_t x) {
  return evaluate<unary::atan, Checked>(x);
}
uint32_t checked_unary_atan_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::atan, Checked>(x);
}
int64_t checked_unary_atan_Integer64(int64_t x) {
  return evaluate<unary::atan, Checked>(x);
}
uint64_t checked_unary_atan_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::atan, Checked>(x);
}
uint16_t *checked_unary_atan_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::atan, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_atan_Real32(float x) {
  return evaluate<unary::atan, Checked>(x);
}
double checked_unary_atan_Real64(double x) {
  return evaluate<unary::atan, Checked>(x);
}
float *checked_unary_atan_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::atan, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_atan_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::atan, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_acsc_Integer8(int8_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
uint8_t unary_acsc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
int16_t unary_acsc_Integer16(int16_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
uint16_t unary_acsc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
int32_t unary_acsc_Integer32(int32_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
uint32_t unary_acsc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
int64_t unary_acsc_Integer64(int64_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
uint64_t unary_acsc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acsc, Plain>(x);
}
uint16_t *unary_acsc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acsc, Plain>(HalfPlace{result}, Real16{x});
}
float unary_acsc_Real32(float x) {
  return evaluate<unary::acsc, Plain>(x);
}
double unary_acsc_Real64(double x) {
  return evaluate<unary::acsc, Plain>(x);
}
float *unary_acsc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acsc, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_acsc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acsc, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_acsc_Integer8(int8_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
uint8_t checked_unary_acsc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
int16_t checked_unary_acsc_Integer16(int16_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
uint16_t checked_unary_acsc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
int32_t checked_unary_acsc_Integer32(int32_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
uint32_t checked_unary_acsc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
int64_t checked_unary_acsc_Integer64(int64_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
uint64_t checked_unary_acsc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acsc, Checked>(x);
}
uint16_t *checked_unary_acsc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acsc, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_acsc_Real32(float x) {
  return evaluate<unary::acsc, Checked>(x);
}
double checked_unary_acsc_Real64(double x) {
  return evaluate<unary::acsc, Checked>(x);
}
float *checked_unary_acsc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acsc, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_acsc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acsc, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_asec_Integer8(int8_t x) {
  return evaluate<unary::asec, Plain>(x);
}
uint8_t unary_asec_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asec, Plain>(x);
}
int16_t unary_asec_Integer16(int16_t x) {
  return evaluate<unary::asec, Plain>(x);
}
uint16_t unary_asec_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asec, Plain>(x);
}
int32_t unary_asec_Integer32(int32_t x) {
  return evaluate<unary::asec, Plain>(x);
}
uint32_t unary_asec_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asec, Plain>(x);
}
int64_t unary_asec_Integer64(int64_t x) {
  return evaluate<unary::asec, Plain>(x);
}
uint64_t unary_asec_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asec, Plain>(x);
}
uint16_t *unary_asec_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asec, Plain>(HalfPlace{result}, Real16{x});
}
float unary_asec_Real32(float x) {
  return evaluate<unary::asec, Plain>(x);
}
double unary_asec_Real64(double x) {
  return evaluate<unary::asec, Plain>(x);
}
float *unary_asec_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asec, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_asec_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asec, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_asec_Integer8(int8_t x) {
  return evaluate<unary::asec, Checked>(x);
}
uint8_t checked_unary_asec_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asec, Checked>(x);
}
int16_t checked_unary_asec_Integer16(int16_t x) {
  return evaluate<unary::asec, Checked>(x);
}
uint16_t checked_unary_asec_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asec, Checked>(x);
}
int32_t checked_unary_asec_Integer32(int32_t x) {
  return evaluate<unary::asec, Checked>(x);
}
uint32_t checked_unary_asec_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asec, Checked>(x);
}
int64_t checked_unary_asec_Integer64(int64_t x) {
  return evaluate<unary::asec, Checked>(x);
}
uint64_t checked_unary_asec_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asec, Checked>(x);
}
uint16_t *checked_unary_asec_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asec, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_asec_Real32(float x) {
  return evaluate<unary::asec, Checked>(x);
}
double checked_unary_asec_Real64(double x) {
  return evaluate<unary::asec, Checked>(x);
}
float *checked_unary_asec_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asec, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_asec_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asec, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_acot_Integer8(int8_t x) {
  return evaluate<unary::acot, Plain>(x);
}
uint8_t unary_acot_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acot, Plain>(x);
}
int16_t unary_acot_Integer16(int16_t x) {
  return evaluate<unary::acot, Plain>(x);
}
uint16_t unary_acot_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acot, Plain>(x);
}
int32_t unary_acot_Integer32(int32_t x) {
  return evaluate<unary::acot, Plain>(x);
}
uint32_t unary_acot_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acot, Plain>(x);
}
int64_t unary_acot_Integer64(int64_t x) {
  return evaluate<unary::acot, Plain>(x);
}
uint64_t unary_acot_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acot, Plain>(x);
}
uint16_t *unary_acot_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acot, Plain>(HalfPlace{result}, Real16{x});
}
float unary_acot_Real32(float x) {
  return evaluate<unary::acot, Plain>(x);
}
double unary_acot_Real64(double x) {
  return evaluate<unary::acot, Plain>(x);
}
float *unary_acot_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acot, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_acot_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acot, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_acot_Integer8(int8_t x) {
  return evaluate<unary::acot, Checked>(x);
}
uint8_t checked_unary_acot_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acot, Checked>(x);
}
int16_t checked_unary_acot_Integer16(int16_t x) {
  return evaluate<unary::acot, Checked>(x);
}
uint16_t checked_unary_acot_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acot, Checked>(x);
}
int32_t checked_unary_acot_Integer32(int32_t x) {
  return evaluate<unary::acot, Checked>(x);
}
uint32_t checked_unary_acot_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acot, Checked>(x);
}
int64_t checked_unary_acot_Integer64(int64_t x) {
  return evaluate<unary::acot, Checked>(x);
}
uint64_t checked_unary_acot_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acot, Checked>(x);
}
uint16_t *checked_unary_acot_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acot, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_acot_Real32(float x) {
  return evaluate<unary::acot, Checked>(x);
}
double checked_unary_acot_Real64(double x) {
  return evaluate<unary::acot, Checked>(x);
}
float *checked_unary_acot_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acot, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_acot_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acot, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_asinh_Integer8(int8_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
uint8_t unary_asinh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
int16_t unary_asinh_Integer16(int16_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
uint16_t unary_asinh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
int32_t unary_asinh_Integer32(int32_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
uint32_t unary_asinh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
int64_t unary_asinh_Integer64(int64_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
uint64_t unary_asinh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asinh, Plain>(x);
}
uint16_t *unary_asinh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asinh, Plain>(HalfPlace{result}, Real16{x});
}
float unary_asinh_Real32(float x) {
  return evaluate<unary::asinh, Plain>(x);
}
double unary_asinh_Real64(double x) {
  return evaluate<unary::asinh, Plain>(x);
}
float *unary_asinh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asinh, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_asinh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asinh, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_asinh_Integer8(int8_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
uint8_t checked_unary_asinh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
int16_t checked_unary_asinh_Integer16(int16_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
uint16_t checked_unary_asinh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
int32_t checked_unary_asinh_Integer32(int32_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
uint32_t checked_unary_asinh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
int64_t checked_unary_asinh_Integer64(int64_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
uint64_t checked_unary_asinh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asinh, Checked>(x);
}
uint16_t *checked_unary_asinh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asinh, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_asinh_Real32(float x) {
  return evaluate<unary::asinh, Checked>(x);
}
double checked_unary_asinh_Real64(double x) {
  return evaluate<unary::asinh, Checked>(x);
}
float *checked_unary_asinh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asinh, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_asinh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asinh, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_acosh_Integer8(int8_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
uint8_t unary_acosh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
int16_t unary_acosh_Integer16(int16_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
uint16_t unary_acosh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
int32_t unary_acosh_Integer32(int32_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
uint32_t unary_acosh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
int64_t unary_acosh_Integer64(int64_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
uint64_t unary_acosh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acosh, Plain>(x);
}
uint16_t *unary_acosh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acosh, Plain>(HalfPlace{result}, Real16{x});
}
float unary_acosh_Real32(float x) {
  return evaluate<unary::acosh, Plain>(x);
}
double unary_acosh_Real64(double x) {
  return evaluate<unary::acosh, Plain>(x);
}
float *unary_acosh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acosh, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_acosh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acosh, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_acosh_Integer8(int8_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
uint8_t checked_unary_acosh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
int16_t checked_unary_acosh_Integer16(int16_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
uint16_t checked_unary_acosh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
int32_t checked_unary_acosh_Integer32(int32_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
uint32_t checked_unary_acosh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
int64_t checked_unary_acosh_Integer64(int64_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
uint64_t checked_unary_acosh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acosh, Checked>(x);
}
uint16_t *checked_unary_acosh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acosh, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_acosh_Real32(float x) {
  return evaluate<unary::acosh, Checked>(x);
}
double checked_unary_acosh_Real64(double x) {
  return evaluate<unary::acosh, Checked>(x);
}
float *checked_unary_acosh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acosh, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_acosh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acosh, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_atanh_Integer8(int8_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
uint8_t unary_atanh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
int16_t unary_atanh_Integer16(int16_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
uint16_t unary_atanh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
int32_t unary_atanh_Integer32(int32_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
uint32_t unary_atanh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
int64_t unary_atanh_Integer64(int64_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
uint64_t unary_atanh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::atanh, Plain>(x);
}
uint16_t *unary_atanh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::atanh, Plain>(HalfPlace{result}, Real16{x});
}
float unary_atanh_Real32(float x) {
  return evaluate<unary::atanh, Plain>(x);
}
double unary_atanh_Real64(double x) {
  return evaluate<unary::atanh, Plain>(x);
}
float *unary_atanh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::atanh, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_atanh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::atanh, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_atanh_Integer8(int8_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
uint8_t checked_unary_atanh_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
int16_t checked_unary_atanh_Integer16(int16_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
uint16_t checked_unary_atanh_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
int32_t checked_unary_atanh_Integer32(int32_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
uint32_t checked_unary_atanh_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
int64_t checked_unary_atanh_Integer64(int64_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
uint64_t checked_unary_atanh_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::atanh, Checked>(x);
}
uint16_t *checked_unary_atanh_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::atanh, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_atanh_Real32(float x) {
  return evaluate<unary::atanh, Checked>(x);
}
double checked_unary_atanh_Real64(double x) {
  return evaluate<unary::atanh, Checked>(x);
}
float *checked_unary_atanh_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::atanh, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_atanh_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::atanh, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_acsch_Integer8(int8_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
uint8_t unary_acsch_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
int16_t unary_acsch_Integer16(int16_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
uint16_t unary_acsch_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
int32_t unary_acsch_Integer32(int32_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
uint32_t unary_acsch_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
int64_t unary_acsch_Integer64(int64_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
uint64_t unary_acsch_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acsch, Plain>(x);
}
uint16_t *unary_acsch_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acsch, Plain>(HalfPlace{result}, Real16{x});
}
float unary_acsch_Real32(float x) {
  return evaluate<unary::acsch, Plain>(x);
}
double unary_acsch_Real64(double x) {
  return evaluate<unary::acsch, Plain>(x);
}
float *unary_acsch_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acsch, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_acsch_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acsch, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_acsch_Integer8(int8_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
uint8_t checked_unary_acsch_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
int16_t checked_unary_acsch_Integer16(int16_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
uint16_t checked_unary_acsch_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
int32_t checked_unary_acsch_Integer32(int32_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
uint32_t checked_unary_acsch_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
int64_t checked_unary_acsch_Integer64(int64_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
uint64_t checked_unary_acsch_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acsch, Checked>(x);
}
uint16_t *checked_unary_acsch_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acsch, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_acsch_Real32(float x) {
  return evaluate<unary::acsch, Checked>(x);
}
double checked_unary_acsch_Real64(double x) {
  return evaluate<unary::acsch, Checked>(x);
}
float *checked_unary_acsch_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acsch, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_acsch_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acsch, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_asech_Integer8(int8_t x) {
  return evaluate<unary::asech, Plain>(x);
}
uint8_t unary_asech_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asech, Plain>(x);
}
int16_t unary_asech_Integer16(int16_t x) {
  return evaluate<unary::asech, Plain>(x);
}
uint16_t unary_asech_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asech, Plain>(x);
}
int32_t unary_asech_Integer32(int32_t x) {
  return evaluate<unary::asech, Plain>(x);
}
uint32_t unary_asech_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asech, Plain>(x);
}
int64_t unary_asech_Integer64(int64_t x) {
  return evaluate<unary::asech, Plain>(x);
}
uint64_t unary_asech_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asech, Plain>(x);
}
uint16_t *unary_asech_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asech, Plain>(HalfPlace{result}, Real16{x});
}
float unary_asech_Real32(float x) {
  return evaluate<unary::asech, Plain>(x);
}
double unary_asech_Real64(double x) {
  return evaluate<unary::asech, Plain>(x);
}
float *unary_asech_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asech, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_asech_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asech, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_asech_Integer8(int8_t x) {
  return evaluate<unary::asech, Checked>(x);
}
uint8_t checked_unary_asech_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::asech, Checked>(x);
}
int16_t checked_unary_asech_Integer16(int16_t x) {
  return evaluate<unary::asech, Checked>(x);
}
uint16_t checked_unary_asech_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::asech, Checked>(x);
}
int32_t checked_unary_asech_Integer32(int32_t x) {
  return evaluate<unary::asech, Checked>(x);
}
uint32_t checked_unary_asech_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::asech, Checked>(x);
}
int64_t checked_unary_asech_Integer64(int64_t x) {
  return evaluate<unary::asech, Checked>(x);
}
uint64_t checked_unary_asech_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::asech, Checked>(x);
}
uint16_t *checked_unary_asech_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::asech, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_asech_Real32(float x) {
  return evaluate<unary::asech, Checked>(x);
}
double checked_unary_asech_Real64(double x) {
  return evaluate<unary::asech, Checked>(x);
}
float *checked_unary_asech_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::asech, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_asech_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::asech, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_acoth_Integer8(int8_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
uint8_t unary_acoth_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
int16_t unary_acoth_Integer16(int16_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
uint16_t unary_acoth_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
int32_t unary_acoth_Integer32(int32_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
uint32_t unary_acoth_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
int64_t unary_acoth_Integer64(int64_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
uint64_t unary_acoth_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acoth, Plain>(x);
}
uint16_t *unary_acoth_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acoth, Plain>(HalfPlace{result}, Real16{x});
}
float unary_acoth_Real32(float x) {
  return evaluate<unary::acoth, Plain>(x);
}
double unary_acoth_Real64(double x) {
  return evaluate<unary::acoth, Plain>(x);
}
float *unary_acoth_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acoth, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_acoth_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acoth, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_acoth_Integer8(int8_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
uint8_t checked_unary_acoth_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
int16_t checked_unary_acoth_Integer16(int16_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
uint16_t checked_unary_acoth_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
int32_t checked_unary_acoth_Integer32(int32_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
uint32_t checked_unary_acoth_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
int64_t checked_unary_acoth_Integer64(int64_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
uint64_t checked_unary_acoth_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::acoth, Checked>(x);
}
uint16_t *checked_unary_acoth_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::acoth, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_acoth_Real32(float x) {
  return evaluate<unary::acoth, Checked>(x);
}
double checked_unary_acoth_Real64(double x) {
  return evaluate<unary::acoth, Checked>(x);
}
float *checked_unary_acoth_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::acoth, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_acoth_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::acoth, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t binary_atan2_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
uint8_t binary_atan2_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
int16_t binary_atan2_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
uint16_t binary_atan2_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
int32_t binary_atan2_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
uint32_t binary_atan2_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
int64_t binary_atan2_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
uint64_t binary_atan2_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
uint16_t *binary_atan2_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::atan2, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_atan2_Real32_Real32(float x, float y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
double binary_atan2_Real64_Real64(double x, double y) {
  return evaluate<binary::atan2, Plain>(x, y);
}
float *binary_atan2_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                                float y_im) {
  return evaluateInto<binary::atan2, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_atan2_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                 double y_re, double y_im) {
  return evaluateInto<binary::atan2, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_atan2_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
uint8_t checked_binary_atan2_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
int16_t checked_binary_atan2_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
uint16_t checked_binary_atan2_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
int32_t checked_binary_atan2_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
uint32_t checked_binary_atan2_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
int64_t checked_binary_atan2_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
uint64_t checked_binary_atan2_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
uint16_t *checked_binary_atan2_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::atan2, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_atan2_Real32_Real32(float x, float y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
double checked_binary_atan2_Real64_Real64(double x, double y) {
  return evaluate<binary::atan2, Checked>(x, y);
}
float *checked_binary_atan2_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                        float y_re, float y_im) {
  return evaluateInto<binary::atan2, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_atan2_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                         double y_re, double y_im) {
  return evaluateInto<binary::atan2, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

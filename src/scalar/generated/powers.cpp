// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../../scalar/bodies/powers.h"
#include <torvane/scalars.h>

using namespace torvane;

int8_t binary_pow_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int8_t binary_pow_Integer8_UnsignedInteger8(int8_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int8_t binary_pow_Integer8_Integer16(int8_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int8_t binary_pow_Integer8_UnsignedInteger16(int8_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int8_t binary_pow_Integer8_Integer32(int8_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int8_t binary_pow_Integer8_UnsignedInteger32(int8_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int8_t binary_pow_Integer8_Integer64(int8_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int8_t binary_pow_Integer8_UnsignedInteger64(int8_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t *binary_pow_Integer8_Real16(uint16_t *result, int8_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
float binary_pow_Integer8_Real32(int8_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_Integer8_Real64(int8_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float *binary_pow_Integer8_ComplexReal32(float *re, float *im, int8_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *binary_pow_Integer8_ComplexReal64(double *re, double *im, int8_t x, double y_re, double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
uint8_t binary_pow_UnsignedInteger8_Integer8(uint8_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint8_t binary_pow_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint8_t binary_pow_UnsignedInteger8_Integer16(uint8_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint8_t binary_pow_UnsignedInteger8_UnsignedInteger16(uint8_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint8_t binary_pow_UnsignedInteger8_Integer32(uint8_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint8_t binary_pow_UnsignedInteger8_UnsignedInteger32(uint8_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint8_t binary_pow_UnsignedInteger8_Integer64(uint8_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint8_t binary_pow_UnsignedInteger8_UnsignedInteger64(uint8_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t *binary_pow_UnsignedInteger8_Real16(uint16_t *result, uint8_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
float binary_pow_UnsignedInteger8_Real32(uint8_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_UnsignedInteger8_Real64(uint8_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float *binary_pow_UnsignedInteger8_ComplexReal32(float *re, float *im, uint8_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *binary_pow_UnsignedInteger8_ComplexReal64(double *re, double *im, uint8_t x, double y_re,
                                                  double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
int16_t binary_pow_Integer16_Integer8(int16_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int16_t binary_pow_Integer16_UnsignedInteger8(int16_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int16_t binary_pow_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int16_t binary_pow_Integer16_UnsignedInteger16(int16_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int16_t binary_pow_Integer16_Integer32(int16_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int16_t binary_pow_Integer16_UnsignedInteger32(int16_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int16_t binary_pow_Integer16_Integer64(int16_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int16_t binary_pow_Integer16_UnsignedInteger64(int16_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t *binary_pow_Integer16_Real16(uint16_t *result, int16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
float binary_pow_Integer16_Real32(int16_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_Integer16_Real64(int16_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float *binary_pow_Integer16_ComplexReal32(float *re, float *im, int16_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *binary_pow_Integer16_ComplexReal64(double *re, double *im, int16_t x, double y_re, double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
uint16_t binary_pow_UnsignedInteger16_Integer8(uint16_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t binary_pow_UnsignedInteger16_UnsignedInteger8(uint16_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t binary_pow_UnsignedInteger16_Integer16(uint16_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t binary_pow_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t binary_pow_UnsignedInteger16_Integer32(uint16_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t binary_pow_UnsignedInteger16_UnsignedInteger32(uint16_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t binary_pow_UnsignedInteger16_Integer64(uint16_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t binary_pow_UnsignedInteger16_UnsignedInteger64(uint16_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t *binary_pow_UnsignedInteger16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
float binary_pow_UnsignedInteger16_Real32(uint16_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_UnsignedInteger16_Real64(uint16_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float *binary_pow_UnsignedInteger16_ComplexReal32(float *re, float *im, uint16_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *binary_pow_UnsignedInteger16_ComplexReal64(double *re, double *im, uint16_t x, double y_re,
                                                   double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
int32_t binary_pow_Integer32_Integer8(int32_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int32_t binary_pow_Integer32_UnsignedInteger8(int32_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int32_t binary_pow_Integer32_Integer16(int32_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int32_t binary_pow_Integer32_UnsignedInteger16(int32_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int32_t binary_pow_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int32_t binary_pow_Integer32_UnsignedInteger32(int32_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int32_t binary_pow_Integer32_Integer64(int32_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int32_t binary_pow_Integer32_UnsignedInteger64(int32_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t *binary_pow_Integer32_Real16(uint16_t *result, int32_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
float binary_pow_Integer32_Real32(int32_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_Integer32_Real64(int32_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float *binary_pow_Integer32_ComplexReal32(float *re, float *im, int32_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *binary_pow_Integer32_ComplexReal64(double *re, double *im, int32_t x, double y_re, double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
uint32_t binary_pow_UnsignedInteger32_Integer8(uint32_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint32_t binary_pow_UnsignedInteger32_UnsignedInteger8(uint32_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint32_t binary_pow_UnsignedInteger32_Integer16(uint32_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint32_t binary_pow_UnsignedInteger32_UnsignedInteger16(uint32_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint32_t binary_pow_UnsignedInteger32_Integer32(uint32_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint32_t binary_pow_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint32_t binary_pow_UnsignedInteger32_Integer64(uint32_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint32_t binary_pow_UnsignedInteger32_UnsignedInteger64(uint32_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t *binary_pow_UnsignedInteger32_Real16(uint16_t *result, uint32_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
float binary_pow_UnsignedInteger32_Real32(uint32_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_UnsignedInteger32_Real64(uint32_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float *binary_pow_UnsignedInteger32_ComplexReal32(float *re, float *im, uint32_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *binary_pow_UnsignedInteger32_ComplexReal64(double *re, double *im, uint32_t x, double y_re,
                                                   double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
int64_t binary_pow_Integer64_Integer8(int64_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int64_t binary_pow_Integer64_UnsignedInteger8(int64_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int64_t binary_pow_Integer64_Integer16(int64_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int64_t binary_pow_Integer64_UnsignedInteger16(int64_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int64_t binary_pow_Integer64_Integer32(int64_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int64_t binary_pow_Integer64_UnsignedInteger32(int64_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int64_t binary_pow_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
int64_t binary_pow_Integer64_UnsignedInteger64(int64_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t *binary_pow_Integer64_Real16(uint16_t *result, int64_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
float binary_pow_Integer64_Real32(int64_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_Integer64_Real64(int64_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float *binary_pow_Integer64_ComplexReal32(float *re, float *im, int64_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *binary_pow_Integer64_ComplexReal64(double *re, double *im, int64_t x, double y_re, double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
uint64_t binary_pow_UnsignedInteger64_Integer8(uint64_t x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint64_t binary_pow_UnsignedInteger64_UnsignedInteger8(uint64_t x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint64_t binary_pow_UnsignedInteger64_Integer16(uint64_t x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint64_t binary_pow_UnsignedInteger64_UnsignedInteger16(uint64_t x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint64_t binary_pow_UnsignedInteger64_Integer32(uint64_t x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint64_t binary_pow_UnsignedInteger64_UnsignedInteger32(uint64_t x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint64_t binary_pow_UnsignedInteger64_Integer64(uint64_t x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint64_t binary_pow_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
uint16_t *binary_pow_UnsignedInteger64_Real16(uint16_t *result, uint64_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, x, Real16{y});
}
float binary_pow_UnsignedInteger64_Real32(uint64_t x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_UnsignedInteger64_Real64(uint64_t x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float *binary_pow_UnsignedInteger64_ComplexReal32(float *re, float *im, uint64_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *binary_pow_UnsignedInteger64_ComplexReal64(double *re, double *im, uint64_t x, double y_re,
                                                   double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
uint16_t *binary_pow_Real16_Integer8(uint16_t *result, uint16_t x, int8_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *binary_pow_Real16_UnsignedInteger8(uint16_t *result, uint16_t x, uint8_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *binary_pow_Real16_Integer16(uint16_t *result, uint16_t x, int16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *binary_pow_Real16_UnsignedInteger16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *binary_pow_Real16_Integer32(uint16_t *result, uint16_t x, int32_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *binary_pow_Real16_UnsignedInteger32(uint16_t *result, uint16_t x, uint32_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *binary_pow_Real16_Integer64(uint16_t *result, uint16_t x, int64_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *binary_pow_Real16_UnsignedInteger64(uint16_t *result, uint16_t x, uint64_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *binary_pow_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_pow_Real16_Real32(uint16_t x, float y) {
  return evaluate<binary::pow, Plain>(Real16{x}, y);
}
double binary_pow_Real16_Real64(uint16_t x, double y) {
  return evaluate<binary::pow, Plain>(Real16{x}, y);
}
float *binary_pow_Real16_ComplexReal32(float *re, float *im, uint16_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, Real16{x}, ComplexReal32{y_re, y_im});
}
double *binary_pow_Real16_ComplexReal64(double *re, double *im, uint16_t x, double y_re, double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, Real16{x}, ComplexReal64{y_re, y_im});
}
float binary_pow_Real32_Integer8(float x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float binary_pow_Real32_UnsignedInteger8(float x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float binary_pow_Real32_Integer16(float x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float binary_pow_Real32_UnsignedInteger16(float x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float binary_pow_Real32_Integer32(float x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float binary_pow_Real32_UnsignedInteger32(float x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float binary_pow_Real32_Integer64(float x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float binary_pow_Real32_UnsignedInteger64(float x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float binary_pow_Real32_Real16(float x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, Real16{y});
}
float binary_pow_Real32_Real32(float x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_Real32_Real64(float x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
float *binary_pow_Real32_ComplexReal32(float *re, float *im, float x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *binary_pow_Real32_ComplexReal64(double *re, double *im, float x, double y_re, double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
double binary_pow_Real64_Integer8(double x, int8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_Real64_UnsignedInteger8(double x, uint8_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_Real64_Integer16(double x, int16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_Real64_UnsignedInteger16(double x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_Real64_Integer32(double x, int32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_Real64_UnsignedInteger32(double x, uint32_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_Real64_Integer64(double x, int64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_Real64_UnsignedInteger64(double x, uint64_t y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_Real64_Real16(double x, uint16_t y) {
  return evaluate<binary::pow, Plain>(x, Real16{y});
}
double binary_pow_Real64_Real32(double x, float y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double binary_pow_Real64_Real64(double x, double y) {
  return evaluate<binary::pow, Plain>(x, y);
}
double *binary_pow_Real64_ComplexReal32(double *re, double *im, double x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *binary_pow_Real64_ComplexReal64(double *re, double *im, double x, double y_re, double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
float *binary_pow_ComplexReal32_Integer8(float *re, float *im, float x_re, float x_im, int8_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *binary_pow_ComplexReal32_UnsignedInteger8(float *re, float *im, float x_re, float x_im, uint8_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *binary_pow_ComplexReal32_Integer16(float *re, float *im, float x_re, float x_im, int16_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *binary_pow_ComplexReal32_UnsignedInteger16(float *re, float *im, float x_re, float x_im, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *binary_pow_ComplexReal32_Integer32(float *re, float *im, float x_re, float x_im, int32_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *binary_pow_ComplexReal32_UnsignedInteger32(float *re, float *im, float x_re, float x_im, uint32_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *binary_pow_ComplexReal32_Integer64(float *re, float *im, float x_re, float x_im, int64_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *binary_pow_ComplexReal32_UnsignedInteger64(float *re, float *im, float x_re, float x_im, uint64_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *binary_pow_ComplexReal32_Real16(float *re, float *im, float x_re, float x_im, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, Real16{y});
}
float *binary_pow_ComplexReal32_Real32(float *re, float *im, float x_re, float x_im, float y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
double *binary_pow_ComplexReal32_Real64(double *re, double *im, float x_re, float x_im, double y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *binary_pow_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                              float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_pow_ComplexReal32_ComplexReal64(double *re, double *im, float x_re, float x_im, double y_re,
                                               double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal64{y_re, y_im});
}
double *binary_pow_ComplexReal64_Integer8(double *re, double *im, double x_re, double x_im, int8_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *binary_pow_ComplexReal64_UnsignedInteger8(double *re, double *im, double x_re, double x_im,
                                                  uint8_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *binary_pow_ComplexReal64_Integer16(double *re, double *im, double x_re, double x_im, int16_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *binary_pow_ComplexReal64_UnsignedInteger16(double *re, double *im, double x_re, double x_im,
                                                   uint16_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *binary_pow_ComplexReal64_Integer32(double *re, double *im, double x_re, double x_im, int32_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *binary_pow_ComplexReal64_UnsignedInteger32(double *re, double *im, double x_re, double x_im,
                                                   uint32_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *binary_pow_ComplexReal64_Integer64(double *re, double *im, double x_re, double x_im, int64_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *binary_pow_ComplexReal64_UnsignedInteger64(double *re, double *im, double x_re, double x_im,
                                                   uint64_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *binary_pow_ComplexReal64_Real16(double *re, double *im, double x_re, double x_im, uint16_t y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, Real16{y});
}
double *binary_pow_ComplexReal64_Real32(double *re, double *im, double x_re, double x_im, float y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *binary_pow_ComplexReal64_Real64(double *re, double *im, double x_re, double x_im, double y) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *binary_pow_ComplexReal64_ComplexReal32(double *re, double *im, double x_re, double x_im,
                                               float y_re, float y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_pow_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                               double y_re, double y_im) {
  return evaluateInto<binary::pow, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_pow_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int8_t checked_binary_pow_Integer8_UnsignedInteger8(int8_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int8_t checked_binary_pow_Integer8_Integer16(int8_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int8_t checked_binary_pow_Integer8_UnsignedInteger16(int8_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int8_t checked_binary_pow_Integer8_Integer32(int8_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int8_t checked_binary_pow_Integer8_UnsignedInteger32(int8_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int8_t checked_binary_pow_Integer8_Integer64(int8_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int8_t checked_binary_pow_Integer8_UnsignedInteger64(int8_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t *checked_binary_pow_Integer8_Real16(uint16_t *result, int8_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
float checked_binary_pow_Integer8_Real32(int8_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_Integer8_Real64(int8_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float *checked_binary_pow_Integer8_ComplexReal32(float *re, float *im, int8_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *checked_binary_pow_Integer8_ComplexReal64(double *re, double *im, int8_t x, double y_re,
                                                  double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
uint8_t checked_binary_pow_UnsignedInteger8_Integer8(uint8_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint8_t checked_binary_pow_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint8_t checked_binary_pow_UnsignedInteger8_Integer16(uint8_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint8_t checked_binary_pow_UnsignedInteger8_UnsignedInteger16(uint8_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint8_t checked_binary_pow_UnsignedInteger8_Integer32(uint8_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint8_t checked_binary_pow_UnsignedInteger8_UnsignedInteger32(uint8_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint8_t checked_binary_pow_UnsignedInteger8_Integer64(uint8_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint8_t checked_binary_pow_UnsignedInteger8_UnsignedInteger64(uint8_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t *checked_binary_pow_UnsignedInteger8_Real16(uint16_t *result, uint8_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
float checked_binary_pow_UnsignedInteger8_Real32(uint8_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_UnsignedInteger8_Real64(uint8_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float *checked_binary_pow_UnsignedInteger8_ComplexReal32(float *re, float *im, uint8_t x, float y_re,
                                                         float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *checked_binary_pow_UnsignedInteger8_ComplexReal64(double *re, double *im, uint8_t x, double y_re,
                                                          double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
int16_t checked_binary_pow_Integer16_Integer8(int16_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int16_t checked_binary_pow_Integer16_UnsignedInteger8(int16_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int16_t checked_binary_pow_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int16_t checked_binary_pow_Integer16_UnsignedInteger16(int16_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int16_t checked_binary_pow_Integer16_Integer32(int16_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int16_t checked_binary_pow_Integer16_UnsignedInteger32(int16_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int16_t checked_binary_pow_Integer16_Integer64(int16_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int16_t checked_binary_pow_Integer16_UnsignedInteger64(int16_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t *checked_binary_pow_Integer16_Real16(uint16_t *result, int16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
float checked_binary_pow_Integer16_Real32(int16_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_Integer16_Real64(int16_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float *checked_binary_pow_Integer16_ComplexReal32(float *re, float *im, int16_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *checked_binary_pow_Integer16_ComplexReal64(double *re, double *im, int16_t x, double y_re,
                                                   double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
uint16_t checked_binary_pow_UnsignedInteger16_Integer8(uint16_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t checked_binary_pow_UnsignedInteger16_UnsignedInteger8(uint16_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t checked_binary_pow_UnsignedInteger16_Integer16(uint16_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t checked_binary_pow_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t checked_binary_pow_UnsignedInteger16_Integer32(uint16_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t checked_binary_pow_UnsignedInteger16_UnsignedInteger32(uint16_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t checked_binary_pow_UnsignedInteger16_Integer64(uint16_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t checked_binary_pow_UnsignedInteger16_UnsignedInteger64(uint16_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t *checked_binary_pow_UnsignedInteger16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
float checked_binary_pow_UnsignedInteger16_Real32(uint16_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_UnsignedInteger16_Real64(uint16_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float *checked_binary_pow_UnsignedInteger16_ComplexReal32(float *re, float *im, uint16_t x, float y_re,
                                                          float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *checked_binary_pow_UnsignedInteger16_ComplexReal64(double *re, double *im, uint16_t x, double y_re,
                                                           double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
int32_t checked_binary_pow_Integer32_Integer8(int32_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int32_t checked_binary_pow_Integer32_UnsignedInteger8(int32_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int32_t checked_binary_pow_Integer32_Integer16(int32_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int32_t checked_binary_pow_Integer32_UnsignedInteger16(int32_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int32_t checked_binary_pow_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int32_t checked_binary_pow_Integer32_UnsignedInteger32(int32_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int32_t checked_binary_pow_Integer32_Integer64(int32_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int32_t checked_binary_pow_Integer32_UnsignedInteger64(int32_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t *checked_binary_pow_Integer32_Real16(uint16_t *result, int32_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
float checked_binary_pow_Integer32_Real32(int32_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_Integer32_Real64(int32_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float *checked_binary_pow_Integer32_ComplexReal32(float *re, float *im, int32_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *checked_binary_pow_Integer32_ComplexReal64(double *re, double *im, int32_t x, double y_re,
                                                   double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
uint32_t checked_binary_pow_UnsignedInteger32_Integer8(uint32_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint32_t checked_binary_pow_UnsignedInteger32_UnsignedInteger8(uint32_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint32_t checked_binary_pow_UnsignedInteger32_Integer16(uint32_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint32_t checked_binary_pow_UnsignedInteger32_UnsignedInteger16(uint32_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint32_t checked_binary_pow_UnsignedInteger32_Integer32(uint32_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint32_t checked_binary_pow_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint32_t checked_binary_pow_UnsignedInteger32_Integer64(uint32_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint32_t checked_binary_pow_UnsignedInteger32_UnsignedInteger64(uint32_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t *checked_binary_pow_UnsignedInteger32_Real16(uint16_t *result, uint32_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
float checked_binary_pow_UnsignedInteger32_Real32(uint32_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_UnsignedInteger32_Real64(uint32_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float *checked_binary_pow_UnsignedInteger32_ComplexReal32(float *re, float *im, uint32_t x, float y_re,
                                                          float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *checked_binary_pow_UnsignedInteger32_ComplexReal64(double *re, double *im, uint32_t x, double y_re,
                                                           double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
int64_t checked_binary_pow_Integer64_Integer8(int64_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int64_t checked_binary_pow_Integer64_UnsignedInteger8(int64_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int64_t checked_binary_pow_Integer64_Integer16(int64_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int64_t checked_binary_pow_Integer64_UnsignedInteger16(int64_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int64_t checked_binary_pow_Integer64_Integer32(int64_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int64_t checked_binary_pow_Integer64_UnsignedInteger32(int64_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int64_t checked_binary_pow_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
int64_t checked_binary_pow_Integer64_UnsignedInteger64(int64_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t *checked_binary_pow_Integer64_Real16(uint16_t *result, int64_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
float checked_binary_pow_Integer64_Real32(int64_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_Integer64_Real64(int64_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float *checked_binary_pow_Integer64_ComplexReal32(float *re, float *im, int64_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *checked_binary_pow_Integer64_ComplexReal64(double *re, double *im, int64_t x, double y_re,
                                                   double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
uint64_t checked_binary_pow_UnsignedInteger64_Integer8(uint64_t x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint64_t checked_binary_pow_UnsignedInteger64_UnsignedInteger8(uint64_t x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint64_t checked_binary_pow_UnsignedInteger64_Integer16(uint64_t x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint64_t checked_binary_pow_UnsignedInteger64_UnsignedInteger16(uint64_t x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint64_t checked_binary_pow_UnsignedInteger64_Integer32(uint64_t x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint64_t checked_binary_pow_UnsignedInteger64_UnsignedInteger32(uint64_t x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint64_t checked_binary_pow_UnsignedInteger64_Integer64(uint64_t x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint64_t checked_binary_pow_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
uint16_t *checked_binary_pow_UnsignedInteger64_Real16(uint16_t *result, uint64_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, x, Real16{y});
}
float checked_binary_pow_UnsignedInteger64_Real32(uint64_t x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_UnsignedInteger64_Real64(uint64_t x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float *checked_binary_pow_UnsignedInteger64_ComplexReal32(float *re, float *im, uint64_t x, float y_re,
                                                          float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *checked_binary_pow_UnsignedInteger64_ComplexReal64(double *re, double *im, uint64_t x, double y_re,
                                                           double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
uint16_t *checked_binary_pow_Real16_Integer8(uint16_t *result, uint16_t x, int8_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *checked_binary_pow_Real16_UnsignedInteger8(uint16_t *result, uint16_t x, uint8_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *checked_binary_pow_Real16_Integer16(uint16_t *result, uint16_t x, int16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *checked_binary_pow_Real16_UnsignedInteger16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *checked_binary_pow_Real16_Integer32(uint16_t *result, uint16_t x, int32_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *checked_binary_pow_Real16_UnsignedInteger32(uint16_t *result, uint16_t x, uint32_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *checked_binary_pow_Real16_Integer64(uint16_t *result, uint16_t x, int64_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *checked_binary_pow_Real16_UnsignedInteger64(uint16_t *result, uint16_t x, uint64_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, y);
}
uint16_t *checked_binary_pow_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_pow_Real16_Real32(uint16_t x, float y) {
  return evaluate<binary::pow, Checked>(Real16{x}, y);
}
double checked_binary_pow_Real16_Real64(uint16_t x, double y) {
  return evaluate<binary::pow, Checked>(Real16{x}, y);
}
float *checked_binary_pow_Real16_ComplexReal32(float *re, float *im, uint16_t x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, Real16{x}, ComplexReal32{y_re, y_im});
}
double *checked_binary_pow_Real16_ComplexReal64(double *re, double *im, uint16_t x, double y_re,
                                                double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, Real16{x}, ComplexReal64{y_re, y_im});
}
float checked_binary_pow_Real32_Integer8(float x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float checked_binary_pow_Real32_UnsignedInteger8(float x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float checked_binary_pow_Real32_Integer16(float x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float checked_binary_pow_Real32_UnsignedInteger16(float x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float checked_binary_pow_Real32_Integer32(float x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float checked_binary_pow_Real32_UnsignedInteger32(float x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float checked_binary_pow_Real32_Integer64(float x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float checked_binary_pow_Real32_UnsignedInteger64(float x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float checked_binary_pow_Real32_Real16(float x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, Real16{y});
}
float checked_binary_pow_Real32_Real32(float x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_Real32_Real64(float x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
float *checked_binary_pow_Real32_ComplexReal32(float *re, float *im, float x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *checked_binary_pow_Real32_ComplexReal64(double *re, double *im, float x, double y_re, double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
double checked_binary_pow_Real64_Integer8(double x, int8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_Real64_UnsignedInteger8(double x, uint8_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_Real64_Integer16(double x, int16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_Real64_UnsignedInteger16(double x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_Real64_Integer32(double x, int32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_Real64_UnsignedInteger32(double x, uint32_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_Real64_Integer64(double x, int64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_Real64_UnsignedInteger64(double x, uint64_t y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_Real64_Real16(double x, uint16_t y) {
  return evaluate<binary::pow, Checked>(x, Real16{y});
}
double checked_binary_pow_Real64_Real32(double x, float y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double checked_binary_pow_Real64_Real64(double x, double y) {
  return evaluate<binary::pow, Checked>(x, y);
}
double *checked_binary_pow_Real64_ComplexReal32(double *re, double *im, double x, float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal32{y_re, y_im});
}
double *checked_binary_pow_Real64_ComplexReal64(double *re, double *im, double x, double y_re, double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, x, ComplexReal64{y_re, y_im});
}
float *checked_binary_pow_ComplexReal32_Integer8(float *re, float *im, float x_re, float x_im, int8_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *checked_binary_pow_ComplexReal32_UnsignedInteger8(float *re, float *im, float x_re, float x_im,
                                                         uint8_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *checked_binary_pow_ComplexReal32_Integer16(float *re, float *im, float x_re, float x_im, int16_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *checked_binary_pow_ComplexReal32_UnsignedInteger16(float *re, float *im, float x_re, float x_im,
                                                          uint16_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *checked_binary_pow_ComplexReal32_Integer32(float *re, float *im, float x_re, float x_im, int32_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *checked_binary_pow_ComplexReal32_UnsignedInteger32(float *re, float *im, float x_re, float x_im,
                                                          uint32_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *checked_binary_pow_ComplexReal32_Integer64(float *re, float *im, float x_re, float x_im, int64_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *checked_binary_pow_ComplexReal32_UnsignedInteger64(float *re, float *im, float x_re, float x_im,
                                                          uint64_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *checked_binary_pow_ComplexReal32_Real16(float *re, float *im, float x_re, float x_im, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, Real16{y});
}
float *checked_binary_pow_ComplexReal32_Real32(float *re, float *im, float x_re, float x_im, float y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
double *checked_binary_pow_ComplexReal32_Real64(double *re, double *im, float x_re, float x_im, double y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, y);
}
float *checked_binary_pow_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                      float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_pow_ComplexReal32_ComplexReal64(double *re, double *im, float x_re, float x_im,
                                                       double y_re, double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal64{y_re, y_im});
}
double *checked_binary_pow_ComplexReal64_Integer8(double *re, double *im, double x_re, double x_im,
                                                  int8_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *checked_binary_pow_ComplexReal64_UnsignedInteger8(double *re, double *im, double x_re, double x_im,
                                                          uint8_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *checked_binary_pow_ComplexReal64_Integer16(double *re, double *im, double x_re, double x_im,
                                                   int16_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *checked_binary_pow_ComplexReal64_UnsignedInteger16(double *re, double *im, double x_re,
                                                           double x_im, uint16_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *checked_binary_pow_ComplexReal64_Integer32(double *re, double *im, double x_re, double x_im,
                                                   int32_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *checked_binary_pow_ComplexReal64_UnsignedInteger32(double *re, double *im, double x_re,
                                                           double x_im, uint32_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *checked_binary_pow_ComplexReal64_Integer64(double *re, double *im, double x_re, double x_im,
                                                   int64_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *checked_binary_pow_ComplexReal64_UnsignedInteger64(double *re, double *im, double x_re,
                                                           double x_im, uint64_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *checked_binary_pow_ComplexReal64_Real16(double *re, double *im, double x_re, double x_im,
                                                uint16_t y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, Real16{y});
}
double *checked_binary_pow_ComplexReal64_Real32(double *re, double *im, double x_re, double x_im, float y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *checked_binary_pow_ComplexReal64_Real64(double *re, double *im, double x_re, double x_im, double y) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, y);
}
double *checked_binary_pow_ComplexReal64_ComplexReal32(double *re, double *im, double x_re, double x_im,
                                                       float y_re, float y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_pow_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                       double y_re, double y_im) {
  return evaluateInto<binary::pow, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

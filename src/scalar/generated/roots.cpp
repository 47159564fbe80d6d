// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../../scalar/bodies/roots.h"
#include <torvane/scalars.h>

using namespace torvane;

int8_t unary_sqrt_Integer8(int8_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
uint8_t unary_sqrt_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
int16_t unary_sqrt_Integer16(int16_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
uint16_t unary_sqrt_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
int32_t unary_sqrt_Integer32(int32_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
uint32_t unary_sqrt_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
int64_t unary_sqrt_Integer64(int64_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
uint64_t unary_sqrt_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sqrt, Plain>(x);
}
uint16_t *unary_sqrt_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sqrt, Plain>(HalfPlace{result}, Real16{x});
}
float unary_sqrt_Real32(float x) {
  return evaluate<unary::sqrt, Plain>(x);
}
double unary_sqrt_Real64(double x) {
  return evaluate<unary::sqrt, Plain>(x);
}
float *unary_sqrt_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sqrt, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_sqrt_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sqrt, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_sqrt_Integer8(int8_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
uint8_t checked_unary_sqrt_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
int16_t checked_unary_sqrt_Integer16(int16_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
uint16_t checked_unary_sqrt_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
int32_t checked_unary_sqrt_Integer32(int32_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
uint32_t checked_unary_sqrt_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
int64_t checked_unary_sqrt_Integer64(int64_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
uint64_t checked_unary_sqrt_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sqrt, Checked>(x);
}
uint16_t *checked_unary_sqrt_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sqrt, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_sqrt_Real32(float x) {
  return evaluate<unary::sqrt, Checked>(x);
}
double checked_unary_sqrt_Real64(double x) {
  return evaluate<unary::sqrt, Checked>(x);
}
float *checked_unary_sqrt_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sqrt, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_sqrt_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sqrt, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_cbrt_Integer8(int8_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
uint8_t unary_cbrt_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
int16_t unary_cbrt_Integer16(int16_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
uint16_t unary_cbrt_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
int32_t unary_cbrt_Integer32(int32_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
uint32_t unary_cbrt_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
int64_t unary_cbrt_Integer64(int64_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
uint64_t unary_cbrt_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cbrt, Plain>(x);
}
uint16_t *unary_cbrt_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cbrt, Plain>(HalfPlace{result}, Real16{x});
}
float unary_cbrt_Real32(float x) {
  return evaluate<unary::cbrt, Plain>(x);
}
double unary_cbrt_Real64(double x) {
  return evaluate<unary::cbrt, Plain>(x);
}
float *unary_cbrt_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cbrt, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_cbrt_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cbrt, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_cbrt_Integer8(int8_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
uint8_t checked_unary_cbrt_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
int16_t checked_unary_cbrt_Integer16(int16_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
uint16_t checked_unary_cbrt_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
int32_t checked_unary_cbrt_Integer32(int32_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
uint32_t checked_unary_cbrt_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
int64_t checked_unary_cbrt_Integer64(int64_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
uint64_t checked_unary_cbrt_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::cbrt, Checked>(x);
}
uint16_t *checked_unary_cbrt_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::cbrt, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_cbrt_Real32(float x) {
  return evaluate<unary::cbrt, Checked>(x);
}
double checked_unary_cbrt_Real64(double x) {
  return evaluate<unary::cbrt, Checked>(x);
}
float *checked_unary_cbrt_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::cbrt, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_cbrt_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::cbrt, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_rsqrt_Integer8(int8_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
uint8_t unary_rsqrt_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
int16_t unary_rsqrt_Integer16(int16_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
uint16_t unary_rsqrt_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
int32_t unary_rsqrt_Integer32(int32_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
uint32_t unary_rsqrt_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
int64_t unary_rsqrt_Integer64(int64_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
uint64_t unary_rsqrt_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
uint16_t *unary_rsqrt_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::rsqrt, Plain>(HalfPlace{result}, Real16{x});
}
float unary_rsqrt_Real32(float x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
double unary_rsqrt_Real64(double x) {
  return evaluate<unary::rsqrt, Plain>(x);
}
float *unary_rsqrt_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::rsqrt, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_rsqrt_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::rsqrt, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_rsqrt_Integer8(int8_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
uint8_t checked_unary_rsqrt_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
int16_t checked_unary_rsqrt_Integer16(int16_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
uint16_t checked_unary_rsqrt_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
int32_t checked_unary_rsqrt_Integer32(int32_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
uint32_t checked_unary_rsqrt_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
int64_t checked_unary_rsqrt_Integer64(int64_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
uint64_t checked_unary_rsqrt_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
uint16_t *checked_unary_rsqrt_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::rsqrt, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_rsqrt_Real32(float x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
double checked_unary_rsqrt_Real64(double x) {
  return evaluate<unary::rsqrt, Checked>(x);
}
float *checked_unary_rsqrt_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::rsqrt, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_rsqrt_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::rsqrt, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t binary_root_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
uint8_t binary_root_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
int16_t binary_root_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
uint16_t binary_root_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
int32_t binary_root_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
uint32_t binary_root_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
int64_t binary_root_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
uint64_t binary_root_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::root, Plain>(x, y);
}
uint16_t *binary_root_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::root, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_root_Real32_Real32(float x, float y) {
  return evaluate<binary::root, Plain>(x, y);
}
double binary_root_Real64_Real64(double x, double y) {
  return evaluate<binary::root, Plain>(x, y);
}
float *binary_root_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                               float y_im) {
  return evaluateInto<binary::root, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_root_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                double y_re, double y_im) {
  return evaluateInto<binary::root, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_root_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
uint8_t checked_binary_root_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
int16_t checked_binary_root_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
uint16_t checked_binary_root_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
int32_t checked_binary_root_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
uint32_t checked_binary_root_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
int64_t checked_binary_root_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
uint64_t checked_binary_root_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::root, Checked>(x, y);
}
uint16_t *checked_binary_root_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::root, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_root_Real32_Real32(float x, float y) {
  return evaluate<binary::root, Checked>(x, y);
}
double checked_binary_root_Real64_Real64(double x, double y) {
  return evaluate<binary::root, Checked>(x, y);
}
float *checked_binary_root_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                       float y_re, float y_im) {
  return evaluateInto<binary::root, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_root_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                        double y_re, double y_im) {
  return evaluateInto<binary::root, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

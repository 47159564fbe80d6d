// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../../scalar/bodies/arithmetic.h"
#include <torvane/scalars.h>

using namespace torvane;

int8_t unary_minus_Integer8(int8_t x) {
  return evaluate<unary::minus, Plain>(x);
}
uint8_t unary_minus_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::minus, Plain>(x);
}
int16_t unary_minus_Integer16(int16_t x) {
  return evaluate<unary::minus, Plain>(x);
}
uint16_t unary_minus_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::minus, Plain>(x);
}
int32_t unary_minus_Integer32(int32_t x) {
  return evaluate<unary::minus, Plain>(x);
}
uint32_t unary_minus_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::minus, Plain>(x);
}
int64_t unary_minus_Integer64(int64_t x) {
  return evaluate<unary::minus, Plain>(x);
}
uint64_t unary_minus_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::minus, Plain>(x);
}
uint16_t *unary_minus_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::minus, Plain>(HalfPlace{result}, Real16{x});
}
float unary_minus_Real32(float x) {
  return evaluate<unary::minus, Plain>(x);
}
double unary_minus_Real64(double x) {
  return evaluate<unary::minus, Plain>(x);
}
float *unary_minus_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::minus, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_minus_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::minus, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_minus_Integer8(int8_t x) {
  return evaluate<unary::minus, Checked>(x);
}
uint8_t checked_unary_minus_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::minus, Checked>(x);
}
int16_t checked_unary_minus_Integer16(int16_t x) {
  return evaluate<unary::minus, Checked>(x);
}
uint16_t checked_unary_minus_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::minus, Checked>(x);
}
int32_t checked_unary_minus_Integer32(int32_t x) {
  return evaluate<unary::minus, Checked>(x);
}
uint32_t checked_unary_minus_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::minus, Checked>(x);
}
int64_t checked_unary_minus_Integer64(int64_t x) {
  return evaluate<unary::minus, Checked>(x);
}
uint64_t checked_unary_minus_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::minus, Checked>(x);
}
uint16_t *checked_unary_minus_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::minus, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_minus_Real32(float x) {
  return evaluate<unary::minus, Checked>(x);
}
double checked_unary_minus_Real64(double x) {
  return evaluate<unary::minus, Checked>(x);
}
float *checked_unary_minus_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::minus, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_minus_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::minus, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_square_Integer8(int8_t x) {
  return evaluate<unary::square, Plain>(x);
}
uint8_t unary_square_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::square, Plain>(x);
}
int16_t unary_square_Integer16(int16_t x) {
  return evaluate<unary::square, Plain>(x);
}
uint16_t unary_square_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::square, Plain>(x);
}
int32_t unary_square_Integer32(int32_t x) {
  return evaluate<unary::square, Plain>(x);
}
uint32_t unary_square_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::square, Plain>(x);
}
int64_t unary_square_Integer64(int64_t x) {
  return evaluate<unary::square, Plain>(x);
}
uint64_t unary_square_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::square, Plain>(x);
}
uint16_t *unary_square_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::square, Plain>(HalfPlace{result}, Real16{x});
}
float unary_square_Real32(float x) {
  return evaluate<unary::square, Plain>(x);
}
double unary_square_Real64(double x) {
  return evaluate<unary::square, Plain>(x);
}
float *unary_square_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::square, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_square_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::square, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_square_Integer8(int8_t x) {
  return evaluate<unary::square, Checked>(x);
}
uint8_t checked_unary_square_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::square, Checked>(x);
}
int16_t checked_unary_square_Integer16(int16_t x) {
  return evaluate<unary::square, Checked>(x);
}
uint16_t checked_unary_square_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::square, Checked>(x);
}
int32_t checked_unary_square_Integer32(int32_t x) {
  return evaluate<unary::square, Checked>(x);
}
uint32_t checked_unary_square_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::square, Checked>(x);
}
int64_t checked_unary_square_Integer64(int64_t x) {
  return evaluate<unary::square, Checked>(x);
}
uint64_t checked_unary_square_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::square, Checked>(x);
}
uint16_t *checked_unary_square_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::square, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_square_Real32(float x) {
  return evaluate<unary::square, Checked>(x);
}
double checked_unary_square_Real64(double x) {
  return evaluate<unary::square, Checked>(x);
}
float *checked_unary_square_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::square, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_square_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::square, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_recip_Integer8(int8_t x) {
  return evaluate<unary::recip, Plain>(x);
}
uint8_t unary_recip_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::recip, Plain>(x);
}
int16_t unary_recip_Integer16(int16_t x) {
  return evaluate<unary::recip, Plain>(x);
}
uint16_t unary_recip_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::recip, Plain>(x);
}
int32_t unary_recip_Integer32(int32_t x) {
  return evaluate<unary::recip, Plain>(x);
}
uint32_t unary_recip_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::recip, Plain>(x);
}
int64_t unary_recip_Integer64(int64_t x) {
  return evaluate<unary::recip, Plain>(x);
}
uint64_t unary_recip_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::recip, Plain>(x);
}
uint16_t *unary_recip_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::recip, Plain>(HalfPlace{result}, Real16{x});
}
float unary_recip_Real32(float x) {
  return evaluate<unary::recip, Plain>(x);
}
double unary_recip_Real64(double x) {
  return evaluate<unary::recip, Plain>(x);
}
float *unary_recip_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::recip, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_recip_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::recip, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_recip_Integer8(int8_t x) {
  return evaluate<unary::recip, Checked>(x);
}
uint8_t checked_unary_recip_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::recip, Checked>(x);
}
int16_t checked_unary_recip_Integer16(int16_t x) {
  return evaluate<unary::recip, Checked>(x);
}
uint16_t checked_unary_recip_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::recip, Checked>(x);
}
int32_t checked_unary_recip_Integer32(int32_t x) {
  return evaluate<unary::recip, Checked>(x);
}
uint32_t checked_unary_recip_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::recip, Checked>(x);
}
int64_t checked_unary_recip_Integer64(int64_t x) {
  return evaluate<unary::recip, Checked>(x);
}
uint64_t checked_unary_recip_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::recip, Checked>(x);
}
uint16_t *checked_unary_recip_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::recip, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_recip_Real32(float x) {
  return evaluate<unary::recip, Checked>(x);
}
double checked_unary_recip_Real64(double x) {
  return evaluate<unary::recip, Checked>(x);
}
float *checked_unary_recip_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::recip, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_recip_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::recip, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t binary_plus_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
uint8_t binary_plus_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
int16_t binary_plus_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
uint16_t binary_plus_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
int32_t binary_plus_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
uint32_t binary_plus_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
int64_t binary_plus_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
uint64_t binary_plus_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::plus, Plain>(x, y);
}
uint16_t *binary_plus_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::plus, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_plus_Real32_Real32(float x, float y) {
  return evaluate<binary::plus, Plain>(x, y);
}
double binary_plus_Real64_Real64(double x, double y) {
  return evaluate<binary::plus, Plain>(x, y);
}
float *binary_plus_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                               float y_im) {
  return evaluateInto<binary::plus, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_plus_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                double y_re, double y_im) {
  return evaluateInto<binary::plus, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_plus_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
uint8_t checked_binary_plus_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
int16_t checked_binary_plus_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
uint16_t checked_binary_plus_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
int32_t checked_binary_plus_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
uint32_t checked_binary_plus_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
int64_t checked_binary_plus_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
uint64_t checked_binary_plus_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::plus, Checked>(x, y);
}
uint16_t *checked_binary_plus_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::plus, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_plus_Real32_Real32(float x, float y) {
  return evaluate<binary::plus, Checked>(x, y);
}
double checked_binary_plus_Real64_Real64(double x, double y) {
  return evaluate<binary::plus, Checked>(x, y);
}
float *checked_binary_plus_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                       float y_re, float y_im) {
  return evaluateInto<binary::plus, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_plus_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                        double y_re, double y_im) {
  return evaluateInto<binary::plus, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_subtract_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
uint8_t binary_subtract_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
int16_t binary_subtract_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
uint16_t binary_subtract_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
int32_t binary_subtract_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
uint32_t binary_subtract_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
int64_t binary_subtract_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
uint64_t binary_subtract_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
uint16_t *binary_subtract_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::subtract, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_subtract_Real32_Real32(float x, float y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
double binary_subtract_Real64_Real64(double x, double y) {
  return evaluate<binary::subtract, Plain>(x, y);
}
float *binary_subtract_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                   float y_re, float y_im) {
  return evaluateInto<binary::subtract, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_subtract_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                    double y_re, double y_im) {
  return evaluateInto<binary::subtract, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_subtract_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
uint8_t checked_binary_subtract_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
int16_t checked_binary_subtract_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
uint16_t checked_binary_subtract_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
int32_t checked_binary_subtract_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
uint32_t checked_binary_subtract_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
int64_t checked_binary_subtract_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
uint64_t checked_binary_subtract_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
uint16_t *checked_binary_subtract_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::subtract, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_subtract_Real32_Real32(float x, float y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
double checked_binary_subtract_Real64_Real64(double x, double y) {
  return evaluate<binary::subtract, Checked>(x, y);
}
float *checked_binary_subtract_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                           float y_re, float y_im) {
  return evaluateInto<binary::subtract, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_subtract_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                            double x_im, double y_re, double y_im) {
  return evaluateInto<binary::subtract, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_times_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
uint8_t binary_times_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
int16_t binary_times_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
uint16_t binary_times_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
int32_t binary_times_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
uint32_t binary_times_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
int64_t binary_times_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
uint64_t binary_times_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::times, Plain>(x, y);
}
uint16_t *binary_times_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::times, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_times_Real32_Real32(float x, float y) {
  return evaluate<binary::times, Plain>(x, y);
}
double binary_times_Real64_Real64(double x, double y) {
  return evaluate<binary::times, Plain>(x, y);
}
float *binary_times_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                                float y_im) {
  return evaluateInto<binary::times, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_times_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                 double y_re, double y_im) {
  return evaluateInto<binary::times, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_times_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
uint8_t checked_binary_times_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
int16_t checked_binary_times_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
uint16_t checked_binary_times_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
int32_t checked_binary_times_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
uint32_t checked_binary_times_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
int64_t checked_binary_times_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
uint64_t checked_binary_times_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::times, Checked>(x, y);
}
uint16_t *checked_binary_times_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::times, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_times_Real32_Real32(float x, float y) {
  return evaluate<binary::times, Checked>(x, y);
}
double checked_binary_times_Real64_Real64(double x, double y) {
  return evaluate<binary::times, Checked>(x, y);
}
float *checked_binary_times_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                        float y_re, float y_im) {
  return evaluateInto<binary::times, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_times_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                         double y_re, double y_im) {
  return evaluateInto<binary::times, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_divide_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
uint8_t binary_divide_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
int16_t binary_divide_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
uint16_t binary_divide_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
int32_t binary_divide_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
uint32_t binary_divide_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
int64_t binary_divide_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
uint64_t binary_divide_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::divide, Plain>(x, y);
}
uint16_t *binary_divide_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::divide, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_divide_Real32_Real32(float x, float y) {
  return evaluate<binary::divide, Plain>(x, y);
}
double binary_divide_Real64_Real64(double x, double y) {
  return evaluate<binary::divide, Plain>(x, y);
}
float *binary_divide_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                                 float y_im) {
  return evaluateInto<binary::divide, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_divide_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                  double y_re, double y_im) {
  return evaluateInto<binary::divide, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_divide_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
uint8_t checked_binary_divide_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
int16_t checked_binary_divide_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
uint16_t checked_binary_divide_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
int32_t checked_binary_divide_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
uint32_t checked_binary_divide_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
int64_t checked_binary_divide_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
uint64_t checked_binary_divide_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::divide, Checked>(x, y);
}
uint16_t *checked_binary_divide_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::divide, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_divide_Real32_Real32(float x, float y) {
  return evaluate<binary::divide, Checked>(x, y);
}
double checked_binary_divide_Real64_Real64(double x, double y) {
  return evaluate<binary::divide, Checked>(x, y);
}
float *checked_binary_divide_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                         float y_re, float y_im) {
  return evaluateInto<binary::divide, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_divide_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                          double y_re, double y_im) {
  return evaluateInto<binary::divide, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t ternary_axpy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
uint8_t ternary_axpy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x, uint8_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
int16_t ternary_axpy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
uint16_t ternary_axpy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a, uint16_t x,
                                                                            uint16_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
int32_t ternary_axpy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
uint32_t ternary_axpy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a, uint32_t x,
                                                                            uint32_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
int64_t ternary_axpy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
uint64_t ternary_axpy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a, uint64_t x,
                                                                            uint64_t y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
uint16_t *ternary_axpy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x, uint16_t y) {
  return evaluateInto<ternary::axpy, Plain>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
float ternary_axpy_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
double ternary_axpy_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::axpy, Plain>(a, x, y);
}
float *ternary_axpy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re, float a_im,
                                                              float x_re, float x_im, float y_re,
                                                              float y_im) {
  return evaluateInto<ternary::axpy, Plain>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *ternary_axpy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im, double a_re,
                                                               double a_im, double x_re, double x_im,
                                                               double y_re, double y_im) {
  return evaluateInto<ternary::axpy, Plain>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_ternary_axpy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
uint8_t checked_ternary_axpy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x,
                                                                                uint8_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
int16_t checked_ternary_axpy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
uint16_t checked_ternary_axpy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a, uint16_t x,
                                                                                    uint16_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
int32_t checked_ternary_axpy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
uint32_t checked_ternary_axpy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a, uint32_t x,
                                                                                    uint32_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
int64_t checked_ternary_axpy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
uint64_t checked_ternary_axpy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a, uint64_t x,
                                                                                    uint64_t y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
uint16_t *checked_ternary_axpy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x, uint16_t y) {
  return evaluateInto<ternary::axpy, Checked>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
float checked_ternary_axpy_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
double checked_ternary_axpy_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::axpy, Checked>(a, x, y);
}
float *checked_ternary_axpy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re,
                                                                      float a_im, float x_re, float x_im,
                                                                      float y_re, float y_im) {
  return evaluateInto<ternary::axpy, Checked>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_ternary_axpy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im, double a_re,
                                                                       double a_im, double x_re,
                                                                       double x_im, double y_re,
                                                                       double y_im) {
  return evaluateInto<ternary::axpy, Checked>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t ternary_axmy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
uint8_t ternary_axmy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x, uint8_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
int16_t ternary_axmy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
uint16_t ternary_axmy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a, uint16_t x,
                                                                            uint16_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
int32_t ternary_axmy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
uint32_t ternary_axmy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a, uint32_t x,
                                                                            uint32_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
int64_t ternary_axmy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
uint64_t ternary_axmy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a, uint64_t x,
                                                                            uint64_t y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
uint16_t *ternary_axmy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x, uint16_t y) {
  return evaluateInto<ternary::axmy, Plain>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
float ternary_axmy_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
double ternary_axmy_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::axmy, Plain>(a, x, y);
}
float *ternary_axmy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re, float a_im,
                                                              float x_re, float x_im, float y_re,
                                                              float y_im) {
  return evaluateInto<ternary::axmy, Plain>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *ternary_axmy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im, double a_re,
                                                               double a_im, double x_re, double x_im,
                                                               double y_re, double y_im) {
  return evaluateInto<ternary::axmy, Plain>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_ternary_axmy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
uint8_t checked_ternary_axmy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x,
                                                                                uint8_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
int16_t checked_ternary_axmy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
uint16_t checked_ternary_axmy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a, uint16_t x,
                                                                                    uint16_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
int32_t checked_ternary_axmy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
uint32_t checked_ternary_axmy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a, uint32_t x,
                                                                                    uint32_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
int64_t checked_ternary_axmy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
uint64_t checked_ternary_axmy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a, uint64_t x,
                                                                                    uint64_t y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
uint16_t *checked_ternary_axmy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x, uint16_t y) {
  return evaluateInto<ternary::axmy, Checked>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
float checked_ternary_axmy_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
double checked_ternary_axmy_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::axmy, Checked>(a, x, y);
}
float *checked_ternary_axmy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re,
                                                                      float a_im, float x_re, float x_im,
                                                                      float y_re, float y_im) {
  return evaluateInto<ternary::axmy, Checked>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_ternary_axmy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im, double a_re,
                                                                       double a_im, double x_re,
                                                                       double x_im, double y_re,
                                                                       double y_im) {
  return evaluateInto<ternary::axmy, Checked>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t ternary_ymax_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
uint8_t ternary_ymax_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x, uint8_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
int16_t ternary_ymax_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
uint16_t ternary_ymax_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a, uint16_t x,
                                                                            uint16_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
int32_t ternary_ymax_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
uint32_t ternary_ymax_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a, uint32_t x,
                                                                            uint32_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
int64_t ternary_ymax_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
uint64_t ternary_ymax_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a, uint64_t x,
                                                                            uint64_t y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
uint16_t *ternary_ymax_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x, uint16_t y) {
  return evaluateInto<ternary::ymax, Plain>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
float ternary_ymax_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
double ternary_ymax_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::ymax, Plain>(a, x, y);
}
float *ternary_ymax_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re, float a_im,
                                                              float x_re, float x_im, float y_re,
                                                              float y_im) {
  return evaluateInto<ternary::ymax, Plain>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *ternary_ymax_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im, double a_re,
                                                               double a_im, double x_re, double x_im,
                                                               double y_re, double y_im) {
  return evaluateInto<ternary::ymax, Plain>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_ternary_ymax_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
uint8_t checked_ternary_ymax_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x,
                                                                                uint8_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
int16_t checked_ternary_ymax_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
uint16_t checked_ternary_ymax_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a, uint16_t x,
                                                                                    uint16_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
int32_t checked_ternary_ymax_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
uint32_t checked_ternary_ymax_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a, uint32_t x,
                                                                                    uint32_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
int64_t checked_ternary_ymax_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
uint64_t checked_ternary_ymax_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a, uint64_t x,
                                                                                    uint64_t y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
uint16_t *checked_ternary_ymax_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x, uint16_t y) {
  return evaluateInto<ternary::ymax, Checked>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
float checked_ternary_ymax_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
double checked_ternary_ymax_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::ymax, Checked>(a, x, y);
}
float *checked_ternary_ymax_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re,
                                                                      float a_im, float x_re, float x_im,
                                                                      float y_re, float y_im) {
  return evaluateInto<ternary::ymax, Checked>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_ternary_ymax_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im, double a_re,
                                                                       double a_im, double x_re,
                                                                       double x_im, double y_re,
                                                                       double y_im) {
  return evaluateInto<ternary::ymax, Checked>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t ternary_adxmy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
uint8_t ternary_adxmy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x, uint8_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
int16_t ternary_adxmy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
uint16_t ternary_adxmy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a, uint16_t x,
                                                                             uint16_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
int32_t ternary_adxmy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
uint32_t ternary_adxmy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a, uint32_t x,
                                                                             uint32_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
int64_t ternary_adxmy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
uint64_t ternary_adxmy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a, uint64_t x,
                                                                             uint64_t y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
uint16_t *ternary_adxmy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x, uint16_t y) {
  return evaluateInto<ternary::adxmy, Plain>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
float ternary_adxmy_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
double ternary_adxmy_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::adxmy, Plain>(a, x, y);
}
float *ternary_adxmy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re,
                                                               float a_im, float x_re, float x_im,
                                                               float y_re, float y_im) {
  return evaluateInto<ternary::adxmy, Plain>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *ternary_adxmy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im, double a_re,
                                                                double a_im, double x_re, double x_im,
                                                                double y_re, double y_im) {
  return evaluateInto<ternary::adxmy, Plain>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_ternary_adxmy_Integer8_Integer8_Integer8(int8_t a, int8_t x, int8_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
uint8_t checked_ternary_adxmy_UnsignedInteger8_UnsignedInteger8_UnsignedInteger8(uint8_t a, uint8_t x,
                                                                                 uint8_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
int16_t checked_ternary_adxmy_Integer16_Integer16_Integer16(int16_t a, int16_t x, int16_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
uint16_t checked_ternary_adxmy_UnsignedInteger16_UnsignedInteger16_UnsignedInteger16(uint16_t a,
                                                                                     uint16_t x,
                                                                                     uint16_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
int32_t checked_ternary_adxmy_Integer32_Integer32_Integer32(int32_t a, int32_t x, int32_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
uint32_t checked_ternary_adxmy_UnsignedInteger32_UnsignedInteger32_UnsignedInteger32(uint32_t a,
                                                                                     uint32_t x,
                                                                                     uint32_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
int64_t checked_ternary_adxmy_Integer64_Integer64_Integer64(int64_t a, int64_t x, int64_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
uint64_t checked_ternary_adxmy_UnsignedInteger64_UnsignedInteger64_UnsignedInteger64(uint64_t a,
                                                                                     uint64_t x,
                                                                                     uint64_t y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
uint16_t *checked_ternary_adxmy_Real16_Real16_Real16(uint16_t *result, uint16_t a, uint16_t x, uint16_t y) {
  return evaluateInto<ternary::adxmy, Checked>(HalfPlace{result}, Real16{a}, Real16{x}, Real16{y});
}
float checked_ternary_adxmy_Real32_Real32_Real32(float a, float x, float y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
double checked_ternary_adxmy_Real64_Real64_Real64(double a, double x, double y) {
  return evaluate<ternary::adxmy, Checked>(a, x, y);
}
float *checked_ternary_adxmy_ComplexReal32_ComplexReal32_ComplexReal32(float *re, float *im, float a_re,
                                                                       float a_im, float x_re, float x_im,
                                                                       float y_re, float y_im) {
  return evaluateInto<ternary::adxmy, Checked>(ComplexPlace{re, im}, ComplexReal32{a_re, a_im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_ternary_adxmy_ComplexReal64_ComplexReal64_ComplexReal64(double *re, double *im,
                                                                        double a_re, double a_im,
                                                                        double x_re, double x_im,
                                                                        double y_re, double y_im) {
  return evaluateInto<ternary::adxmy, Checked>(ComplexPlace{re, im}, ComplexReal64{a_re, a_im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

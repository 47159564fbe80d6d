// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../../scalar/bodies/bits.h"
#include <torvane/scalars.h>

using namespace torvane;

mint unary_evenq_Integer8(int8_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
mint unary_evenq_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
mint unary_evenq_Integer16(int16_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
mint unary_evenq_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
mint unary_evenq_Integer32(int32_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
mint unary_evenq_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
mint unary_evenq_Integer64(int64_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
mint unary_evenq_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::evenq, Plain>(x);
}
mint unary_evenq_Real16(uint16_t x) {
  return evaluate<unary::evenq, Plain>(Real16{x});
}
mint unary_evenq_Real32(float x) {
  return evaluate<unary::evenq, Plain>(x);
}
mint unary_evenq_Real64(double x) {
  return evaluate<unary::evenq, Plain>(x);
}
mint unary_evenq_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::evenq, Plain>(ComplexReal32{x_re, x_im});
}
mint unary_evenq_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::evenq, Plain>(ComplexReal64{x_re, x_im});
}
mint checked_unary_evenq_Integer8(int8_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
mint checked_unary_evenq_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
mint checked_unary_evenq_Integer16(int16_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
mint checked_unary_evenq_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
mint checked_unary_evenq_Integer32(int32_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
mint checked_unary_evenq_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
mint checked_unary_evenq_Integer64(int64_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
mint checked_unary_evenq_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::evenq, Checked>(x);
}
mint checked_unary_evenq_Real16(uint16_t x) {
  return evaluate<unary::evenq, Checked>(Real16{x});
}
mint checked_unary_evenq_Real32(float x) {
  return evaluate<unary::evenq, Checked>(x);
}
mint checked_unary_evenq_Real64(double x) {
  return evaluate<unary::evenq, Checked>(x);
}
mint checked_unary_evenq_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::evenq, Checked>(ComplexReal32{x_re, x_im});
}
mint checked_unary_evenq_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::evenq, Checked>(ComplexReal64{x_re, x_im});
}

mint unary_oddq_Integer8(int8_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
mint unary_oddq_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
mint unary_oddq_Integer16(int16_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
mint unary_oddq_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
mint unary_oddq_Integer32(int32_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
mint unary_oddq_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
mint unary_oddq_Integer64(int64_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
mint unary_oddq_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::oddq, Plain>(x);
}
mint unary_oddq_Real16(uint16_t x) {
  return evaluate<unary::oddq, Plain>(Real16{x});
}
mint unary_oddq_Real32(float x) {
  return evaluate<unary::oddq, Plain>(x);
}
mint unary_oddq_Real64(double x) {
  return evaluate<unary::oddq, Plain>(x);
}
mint unary_oddq_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::oddq, Plain>(ComplexReal32{x_re, x_im});
}
mint unary_oddq_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::oddq, Plain>(ComplexReal64{x_re, x_im});
}
mint checked_unary_oddq_Integer8(int8_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
mint checked_unary_oddq_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
mint checked_unary_oddq_Integer16(int16_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
mint checked_unary_oddq_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
mint checked_unary_oddq_Integer32(int32_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
mint checked_unary_oddq_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
mint checked_unary_oddq_Integer64(int64_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
mint checked_unary_oddq_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::oddq, Checked>(x);
}
mint checked_unary_oddq_Real16(uint16_t x) {
  return evaluate<unary::oddq, Checked>(Real16{x});
}
mint checked_unary_oddq_Real32(float x) {
  return evaluate<unary::oddq, Checked>(x);
}
mint checked_unary_oddq_Real64(double x) {
  return evaluate<unary::oddq, Checked>(x);
}
mint checked_unary_oddq_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::oddq, Checked>(ComplexReal32{x_re, x_im});
}
mint checked_unary_oddq_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::oddq, Checked>(ComplexReal64{x_re, x_im});
}

int8_t unary_bit_not_Integer8(int8_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
uint8_t unary_bit_not_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
int16_t unary_bit_not_Integer16(int16_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
uint16_t unary_bit_not_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
int32_t unary_bit_not_Integer32(int32_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
uint32_t unary_bit_not_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
int64_t unary_bit_not_Integer64(int64_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
uint64_t unary_bit_not_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::bit_not, Plain>(x);
}
uint16_t *unary_bit_not_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::bit_not, Plain>(HalfPlace{result}, Real16{x});
}
float unary_bit_not_Real32(float x) {
  return evaluate<unary::bit_not, Plain>(x);
}
double unary_bit_not_Real64(double x) {
  return evaluate<unary::bit_not, Plain>(x);
}
float *unary_bit_not_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::bit_not, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_bit_not_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::bit_not, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_bit_not_Integer8(int8_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
uint8_t checked_unary_bit_not_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
int16_t checked_unary_bit_not_Integer16(int16_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
uint16_t checked_unary_bit_not_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
int32_t checked_unary_bit_not_Integer32(int32_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
uint32_t checked_unary_bit_not_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
int64_t checked_unary_bit_not_Integer64(int64_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
uint64_t checked_unary_bit_not_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::bit_not, Checked>(x);
}
uint16_t *checked_unary_bit_not_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::bit_not, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_bit_not_Real32(float x) {
  return evaluate<unary::bit_not, Checked>(x);
}
double checked_unary_bit_not_Real64(double x) {
  return evaluate<unary::bit_not, Checked>(x);
}
float *checked_unary_bit_not_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::bit_not, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_bit_not_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::bit_not, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

mint unary_bit_length_Integer8(int8_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
mint unary_bit_length_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
mint unary_bit_length_Integer16(int16_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
mint unary_bit_length_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
mint unary_bit_length_Integer32(int32_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
mint unary_bit_length_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
mint unary_bit_length_Integer64(int64_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
mint unary_bit_length_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::bit_length, Plain>(x);
}
mint unary_bit_length_Real16(uint16_t x) {
  return evaluate<unary::bit_length, Plain>(Real16{x});
}
mint unary_bit_length_Real32(float x) {
  return evaluate<unary::bit_length, Plain>(x);
}
mint unary_bit_length_Real64(double x) {
  return evaluate<unary::bit_length, Plain>(x);
}
mint unary_bit_length_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::bit_length, Plain>(ComplexReal32{x_re, x_im});
}
mint unary_bit_length_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::bit_length, Plain>(ComplexReal64{x_re, x_im});
}
mint checked_unary_bit_length_Integer8(int8_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
mint checked_unary_bit_length_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
mint checked_unary_bit_length_Integer16(int16_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
mint checked_unary_bit_length_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
mint checked_unary_bit_length_Integer32(int32_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
mint checked_unary_bit_length_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
mint checked_unary_bit_length_Integer64(int64_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
mint checked_unary_bit_length_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::bit_length, Checked>(x);
}
mint checked_unary_bit_length_Real16(uint16_t x) {
  return evaluate<unary::bit_length, Checked>(Real16{x});
}
mint checked_unary_bit_length_Real32(float x) {
  return evaluate<unary::bit_length, Checked>(x);
}
mint checked_unary_bit_length_Real64(double x) {
  return evaluate<unary::bit_length, Checked>(x);
}
mint checked_unary_bit_length_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::bit_length, Checked>(ComplexReal32{x_re, x_im});
}
mint checked_unary_bit_length_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::bit_length, Checked>(ComplexReal64{x_re, x_im});
}

mint unary_bit_count_Integer8(int8_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
mint unary_bit_count_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
mint unary_bit_count_Integer16(int16_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
mint unary_bit_count_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
mint unary_bit_count_Integer32(int32_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
mint unary_bit_count_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
mint unary_bit_count_Integer64(int64_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
mint unary_bit_count_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::bit_count, Plain>(x);
}
mint unary_bit_count_Real16(uint16_t x) {
  return evaluate<unary::bit_count, Plain>(Real16{x});
}
mint unary_bit_count_Real32(float x) {
  return evaluate<unary::bit_count, Plain>(x);
}
mint unary_bit_count_Real64(double x) {
  return evaluate<unary::bit_count, Plain>(x);
}
mint unary_bit_count_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::bit_count, Plain>(ComplexReal32{x_re, x_im});
}
mint unary_bit_count_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::bit_count, Plain>(ComplexReal64{x_re, x_im});
}
mint checked_unary_bit_count_Integer8(int8_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
mint checked_unary_bit_count_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
mint checked_unary_bit_count_Integer16(int16_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
mint checked_unary_bit_count_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
mint checked_unary_bit_count_Integer32(int32_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
mint checked_unary_bit_count_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
mint checked_unary_bit_count_Integer64(int64_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
mint checked_unary_bit_count_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::bit_count, Checked>(x);
}
mint checked_unary_bit_count_Real16(uint16_t x) {
  return evaluate<unary::bit_count, Checked>(Real16{x});
}
mint checked_unary_bit_count_Real32(float x) {
  return evaluate<unary::bit_count, Checked>(x);
}
mint checked_unary_bit_count_Real64(double x) {
  return evaluate<unary::bit_count, Checked>(x);
}
mint checked_unary_bit_count_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::bit_count, Checked>(ComplexReal32{x_re, x_im});
}
mint checked_unary_bit_count_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::bit_count, Checked>(ComplexReal64{x_re, x_im});
}

int8_t binary_bit_and_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
uint8_t binary_bit_and_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
int16_t binary_bit_and_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
uint16_t binary_bit_and_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
int32_t binary_bit_and_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
uint32_t binary_bit_and_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
int64_t binary_bit_and_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
uint64_t binary_bit_and_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
uint16_t *binary_bit_and_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_and, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_bit_and_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
double binary_bit_and_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_and, Plain>(x, y);
}
float *binary_bit_and_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                                  float y_im) {
  return evaluateInto<binary::bit_and, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_bit_and_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                   double y_re, double y_im) {
  return evaluateInto<binary::bit_and, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_bit_and_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
uint8_t checked_binary_bit_and_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
int16_t checked_binary_bit_and_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
uint16_t checked_binary_bit_and_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
int32_t checked_binary_bit_and_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
uint32_t checked_binary_bit_and_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
int64_t checked_binary_bit_and_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
uint64_t checked_binary_bit_and_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
uint16_t *checked_binary_bit_and_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_and, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_bit_and_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
double checked_binary_bit_and_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_and, Checked>(x, y);
}
float *checked_binary_bit_and_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                          float y_re, float y_im) {
  return evaluateInto<binary::bit_and, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_bit_and_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                           double x_im, double y_re, double y_im) {
  return evaluateInto<binary::bit_and, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_bit_or_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
uint8_t binary_bit_or_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
int16_t binary_bit_or_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
uint16_t binary_bit_or_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
int32_t binary_bit_or_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
uint32_t binary_bit_or_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
int64_t binary_bit_or_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
uint64_t binary_bit_or_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
uint16_t *binary_bit_or_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_or, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_bit_or_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
double binary_bit_or_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_or, Plain>(x, y);
}
float *binary_bit_or_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                                 float y_im) {
  return evaluateInto<binary::bit_or, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_bit_or_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                  double y_re, double y_im) {
  return evaluateInto<binary::bit_or, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_bit_or_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
uint8_t checked_binary_bit_or_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
int16_t checked_binary_bit_or_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
uint16_t checked_binary_bit_or_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
int32_t checked_binary_bit_or_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
uint32_t checked_binary_bit_or_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
int64_t checked_binary_bit_or_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
uint64_t checked_binary_bit_or_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
uint16_t *checked_binary_bit_or_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_or, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_bit_or_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
double checked_binary_bit_or_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_or, Checked>(x, y);
}
float *checked_binary_bit_or_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                         float y_re, float y_im) {
  return evaluateInto<binary::bit_or, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_bit_or_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                          double y_re, double y_im) {
  return evaluateInto<binary::bit_or, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_bit_xor_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
uint8_t binary_bit_xor_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
int16_t binary_bit_xor_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
uint16_t binary_bit_xor_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
int32_t binary_bit_xor_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
uint32_t binary_bit_xor_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
int64_t binary_bit_xor_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
uint64_t binary_bit_xor_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
uint16_t *binary_bit_xor_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_xor, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_bit_xor_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
double binary_bit_xor_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_xor, Plain>(x, y);
}
float *binary_bit_xor_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                                  float y_im) {
  return evaluateInto<binary::bit_xor, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_bit_xor_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                   double y_re, double y_im) {
  return evaluateInto<binary::bit_xor, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_bit_xor_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
uint8_t checked_binary_bit_xor_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
int16_t checked_binary_bit_xor_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
uint16_t checked_binary_bit_xor_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
int32_t checked_binary_bit_xor_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
uint32_t checked_binary_bit_xor_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
int64_t checked_binary_bit_xor_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
uint64_t checked_binary_bit_xor_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
uint16_t *checked_binary_bit_xor_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_xor, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_bit_xor_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
double checked_binary_bit_xor_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_xor, Checked>(x, y);
}
float *checked_binary_bit_xor_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                          float y_re, float y_im) {
  return evaluateInto<binary::bit_xor, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_bit_xor_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                           double x_im, double y_re, double y_im) {
  return evaluateInto<binary::bit_xor, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_intexp_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
uint8_t binary_intexp_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
int16_t binary_intexp_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
uint16_t binary_intexp_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
int32_t binary_intexp_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
uint32_t binary_intexp_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
int64_t binary_intexp_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
uint64_t binary_intexp_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
uint16_t *binary_intexp_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::intexp, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_intexp_Real32_Real32(float x, float y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
double binary_intexp_Real64_Real64(double x, double y) {
  return evaluate<binary::intexp, Plain>(x, y);
}
float *binary_intexp_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                                 float y_im) {
  return evaluateInto<binary::intexp, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_intexp_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                  double y_re, double y_im) {
  return evaluateInto<binary::intexp, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_intexp_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
uint8_t checked_binary_intexp_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
int16_t checked_binary_intexp_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
uint16_t checked_binary_intexp_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
int32_t checked_binary_intexp_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
uint32_t checked_binary_intexp_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
int64_t checked_binary_intexp_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
uint64_t checked_binary_intexp_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
uint16_t *checked_binary_intexp_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::intexp, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_intexp_Real32_Real32(float x, float y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
double checked_binary_intexp_Real64_Real64(double x, double y) {
  return evaluate<binary::intexp, Checked>(x, y);
}
float *checked_binary_intexp_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                         float y_re, float y_im) {
  return evaluateInto<binary::intexp, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_intexp_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                          double y_re, double y_im) {
  return evaluateInto<binary::intexp, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_intlen_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
uint8_t binary_intlen_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
int16_t binary_intlen_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
uint16_t binary_intlen_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
int32_t binary_intlen_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
uint32_t binary_intlen_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
int64_t binary_intlen_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
uint64_t binary_intlen_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
uint16_t *binary_intlen_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::intlen, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_intlen_Real32_Real32(float x, float y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
double binary_intlen_Real64_Real64(double x, double y) {
  return evaluate<binary::intlen, Plain>(x, y);
}
float *binary_intlen_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                                 float y_im) {
  return evaluateInto<binary::intlen, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_intlen_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                  double y_re, double y_im) {
  return evaluateInto<binary::intlen, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_intlen_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
uint8_t checked_binary_intlen_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
int16_t checked_binary_intlen_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
uint16_t checked_binary_intlen_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
int32_t checked_binary_intlen_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
uint32_t checked_binary_intlen_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
int64_t checked_binary_intlen_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
uint64_t checked_binary_intlen_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
uint16_t *checked_binary_intlen_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::intlen, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_intlen_Real32_Real32(float x, float y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
double checked_binary_intlen_Real64_Real64(double x, double y) {
  return evaluate<binary::intlen, Checked>(x, y);
}
float *checked_binary_intlen_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                         float y_re, float y_im) {
  return evaluateInto<binary::intlen, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_intlen_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                          double y_re, double y_im) {
  return evaluateInto<binary::intlen, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_bit_shiftleft_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
uint8_t binary_bit_shiftleft_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
int16_t binary_bit_shiftleft_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
uint16_t binary_bit_shiftleft_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
int32_t binary_bit_shiftleft_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
uint32_t binary_bit_shiftleft_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
int64_t binary_bit_shiftleft_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
uint64_t binary_bit_shiftleft_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
uint16_t *binary_bit_shiftleft_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_shiftleft, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_bit_shiftleft_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
double binary_bit_shiftleft_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_shiftleft, Plain>(x, y);
}
float *binary_bit_shiftleft_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                        float y_re, float y_im) {
  return evaluateInto<binary::bit_shiftleft, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_bit_shiftleft_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                         double y_re, double y_im) {
  return evaluateInto<binary::bit_shiftleft, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_bit_shiftleft_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
uint8_t checked_binary_bit_shiftleft_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
int16_t checked_binary_bit_shiftleft_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
uint16_t checked_binary_bit_shiftleft_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
int32_t checked_binary_bit_shiftleft_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
uint32_t checked_binary_bit_shiftleft_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
int64_t checked_binary_bit_shiftleft_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
uint64_t checked_binary_bit_shiftleft_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
uint16_t *checked_binary_bit_shiftleft_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_shiftleft, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_bit_shiftleft_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
double checked_binary_bit_shiftleft_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_shiftleft, Checked>(x, y);
}
float *checked_binary_bit_shiftleft_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                float x_im, float y_re, float y_im) {
  return evaluateInto<binary::bit_shiftleft, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_bit_shiftleft_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                 double x_im, double y_re, double y_im) {
  return evaluateInto<binary::bit_shiftleft, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_bit_shiftright_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
uint8_t binary_bit_shiftright_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
int16_t binary_bit_shiftright_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
uint16_t binary_bit_shiftright_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
int32_t binary_bit_shiftright_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
uint32_t binary_bit_shiftright_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
int64_t binary_bit_shiftright_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
uint64_t binary_bit_shiftright_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
uint16_t *binary_bit_shiftright_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_shiftright, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_bit_shiftright_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
double binary_bit_shiftright_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_shiftright, Plain>(x, y);
}
float *binary_bit_shiftright_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                         float y_re, float y_im) {
  return evaluateInto<binary::bit_shiftright, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_bit_shiftright_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                          double y_re, double y_im) {
  return evaluateInto<binary::bit_shiftright, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_bit_shiftright_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
uint8_t checked_binary_bit_shiftright_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
int16_t checked_binary_bit_shiftright_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
uint16_t checked_binary_bit_shiftright_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
int32_t checked_binary_bit_shiftright_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
uint32_t checked_binary_bit_shiftright_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
int64_t checked_binary_bit_shiftright_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
uint64_t checked_binary_bit_shiftright_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
uint16_t *checked_binary_bit_shiftright_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::bit_shiftright, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_bit_shiftright_Real32_Real32(float x, float y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
double checked_binary_bit_shiftright_Real64_Real64(double x, double y) {
  return evaluate<binary::bit_shiftright, Checked>(x, y);
}
float *checked_binary_bit_shiftright_ComplexReal32_ComplexReal32(float *re, float *im, float x_re,
                                                                 float x_im, float y_re, float y_im) {
  return evaluateInto<binary::bit_shiftright, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_bit_shiftright_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                                  double x_im, double y_re, double y_im) {
  return evaluateInto<binary::bit_shiftright, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

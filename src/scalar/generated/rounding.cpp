// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../../scalar/bodies/rounding.h"
#include <torvane/scalars.h>

using namespace torvane;

int8_t unary_round_Integer8(int8_t x) {
  return evaluate<unary::round, Plain>(x);
}
uint8_t unary_round_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::round, Plain>(x);
}
int16_t unary_round_Integer16(int16_t x) {
  return evaluate<unary::round, Plain>(x);
}
uint16_t unary_round_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::round, Plain>(x);
}
int32_t unary_round_Integer32(int32_t x) {
  return evaluate<unary::round, Plain>(x);
}
uint32_t unary_round_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::round, Plain>(x);
}
int64_t unary_round_Integer64(int64_t x) {
  return evaluate<unary::round, Plain>(x);
}
uint64_t unary_round_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::round, Plain>(x);
}
mint unary_round_Real16(uint16_t x) {
  return evaluate<unary::round, Plain>(Real16{x});
}
mint unary_round_Real32(float x) {
  return evaluate<unary::round, Plain>(x);
}
mint unary_round_Real64(double x) {
  return evaluate<unary::round, Plain>(x);
}
float *unary_round_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::round, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_round_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::round, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_round_Integer8(int8_t x) {
  return evaluate<unary::round, Checked>(x);
}
uint8_t checked_unary_round_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::round, Checked>(x);
}
int16_t checked_unary_round_Integer16(int16_t x) {
  return evaluate<unary::round, Checked>(x);
}
uint16_t checked_unary_round_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::round, Checked>(x);
}
int32_t checked_unary_round_Integer32(int32_t x) {
  return evaluate<unary::round, Checked>(x);
}
uint32_t checked_unary_round_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::round, Checked>(x);
}
int64_t checked_unary_round_Integer64(int64_t x) {
  return evaluate<unary::round, Checked>(x);
}
uint64_t checked_unary_round_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::round, Checked>(x);
}
mint checked_unary_round_Real16(uint16_t x) {
  return evaluate<unary::round, Checked>(Real16{x});
}
mint checked_unary_round_Real32(float x) {
  return evaluate<unary::round, Checked>(x);
}
mint checked_unary_round_Real64(double x) {
  return evaluate<unary::round, Checked>(x);
}
float *checked_unary_round_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::round, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_round_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::round, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_floor_Integer8(int8_t x) {
  return evaluate<unary::floor, Plain>(x);
}
uint8_t unary_floor_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::floor, Plain>(x);
}
int16_t unary_floor_Integer16(int16_t x) {
  return evaluate<unary::floor, Plain>(x);
}
uint16_t unary_floor_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::floor, Plain>(x);
}
int32_t unary_floor_Integer32(int32_t x) {
  return evaluate<unary::floor, Plain>(x);
}
uint32_t unary_floor_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::floor, Plain>(x);
}
int64_t unary_floor_Integer64(int64_t x) {
  return evaluate<unary::floor, Plain>(x);
}
uint64_t unary_floor_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::floor, Plain>(x);
}
mint unary_floor_Real16(uint16_t x) {
  return evaluate<unary::floor, Plain>(Real16{x});
}
mint unary_floor_Real32(float x) {
  return evaluate<unary::floor, Plain>(x);
}
mint unary_floor_Real64(double x) {
  return evaluate<unary::floor, Plain>(x);
}
float *unary_floor_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::floor, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_floor_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::floor, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_floor_Integer8(int8_t x) {
  return evaluate<unary::floor, Checked>(x);
}
uint8_t checked_unary_floor_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::floor, Checked>(x);
}
int16_t checked_unary_floor_Integer16(int16_t x) {
  return evaluate<unary::floor, Checked>(x);
}
uint16_t checked_unary_floor_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::floor, Checked>(x);
}
int32_t checked_unary_floor_Integer32(int32_t x) {
  return evaluate<unary::floor, Checked>(x);
}
uint32_t checked_unary_floor_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::floor, Checked>(x);
}
int64_t checked_unary_floor_Integer64(int64_t x) {
  return evaluate<unary::floor, Checked>(x);
}
uint64_t checked_unary_floor_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::floor, Checked>(x);
}
mint checked_unary_floor_Real16(uint16_t x) {
  return evaluate<unary::floor, Checked>(Real16{x});
}
mint checked_unary_floor_Real32(float x) {
  return evaluate<unary::floor, Checked>(x);
}
mint checked_unary_floor_Real64(double x) {
  return evaluate<unary::floor, Checked>(x);
}
float *checked_unary_floor_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::floor, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_floor_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::floor, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_ceiling_Integer8(int8_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
uint8_t unary_ceiling_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
int16_t unary_ceiling_Integer16(int16_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
uint16_t unary_ceiling_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
int32_t unary_ceiling_Integer32(int32_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
uint32_t unary_ceiling_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
int64_t unary_ceiling_Integer64(int64_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
uint64_t unary_ceiling_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::ceiling, Plain>(x);
}
mint unary_ceiling_Real16(uint16_t x) {
  return evaluate<unary::ceiling, Plain>(Real16{x});
}
mint unary_ceiling_Real32(float x) {
  return evaluate<unary::ceiling, Plain>(x);
}
mint unary_ceiling_Real64(double x) {
  return evaluate<unary::ceiling, Plain>(x);
}
float *unary_ceiling_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::ceiling, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_ceiling_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::ceiling, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_ceiling_Integer8(int8_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
uint8_t checked_unary_ceiling_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
int16_t checked_unary_ceiling_Integer16(int16_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
uint16_t checked_unary_ceiling_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
int32_t checked_unary_ceiling_Integer32(int32_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
uint32_t checked_unary_ceiling_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
int64_t checked_unary_ceiling_Integer64(int64_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
uint64_t checked_unary_ceiling_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::ceiling, Checked>(x);
}
mint checked_unary_ceiling_Real16(uint16_t x) {
  return evaluate<unary::ceiling, Checked>(Real16{x});
}
mint checked_unary_ceiling_Real32(float x) {
  return evaluate<unary::ceiling, Checked>(x);
}
mint checked_unary_ceiling_Real64(double x) {
  return evaluate<unary::ceiling, Checked>(x);
}
float *checked_unary_ceiling_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::ceiling, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_ceiling_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::ceiling, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_intpart_Integer8(int8_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
uint8_t unary_intpart_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
int16_t unary_intpart_Integer16(int16_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
uint16_t unary_intpart_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
int32_t unary_intpart_Integer32(int32_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
uint32_t unary_intpart_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
int64_t unary_intpart_Integer64(int64_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
uint64_t unary_intpart_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::intpart, Plain>(x);
}
mint unary_intpart_Real16(uint16_t x) {
  return evaluate<unary::intpart, Plain>(Real16{x});
}
mint unary_intpart_Real32(float x) {
  return evaluate<unary::intpart, Plain>(x);
}
mint unary_intpart_Real64(double x) {
  return evaluate<unary::intpart, Plain>(x);
}
float *unary_intpart_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::intpart, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_intpart_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::intpart, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_intpart_Integer8(int8_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
uint8_t checked_unary_intpart_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
int16_t checked_unary_intpart_Integer16(int16_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
uint16_t checked_unary_intpart_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
int32_t checked_unary_intpart_Integer32(int32_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
uint32_t checked_unary_intpart_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
int64_t checked_unary_intpart_Integer64(int64_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
uint64_t checked_unary_intpart_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::intpart, Checked>(x);
}
mint checked_unary_intpart_Real16(uint16_t x) {
  return evaluate<unary::intpart, Checked>(Real16{x});
}
mint checked_unary_intpart_Real32(float x) {
  return evaluate<unary::intpart, Checked>(x);
}
mint checked_unary_intpart_Real64(double x) {
  return evaluate<unary::intpart, Checked>(x);
}
float *checked_unary_intpart_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::intpart, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_intpart_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::intpart, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_fracpart_Integer8(int8_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
uint8_t unary_fracpart_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
int16_t unary_fracpart_Integer16(int16_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
uint16_t unary_fracpart_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
int32_t unary_fracpart_Integer32(int32_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
uint32_t unary_fracpart_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
int64_t unary_fracpart_Integer64(int64_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
uint64_t unary_fracpart_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::fracpart, Plain>(x);
}
uint16_t *unary_fracpart_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::fracpart, Plain>(HalfPlace{result}, Real16{x});
}
float unary_fracpart_Real32(float x) {
  return evaluate<unary::fracpart, Plain>(x);
}
double unary_fracpart_Real64(double x) {
  return evaluate<unary::fracpart, Plain>(x);
}
float *unary_fracpart_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::fracpart, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_fracpart_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::fracpart, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_fracpart_Integer8(int8_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
uint8_t checked_unary_fracpart_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
int16_t checked_unary_fracpart_Integer16(int16_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
uint16_t checked_unary_fracpart_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
int32_t checked_unary_fracpart_Integer32(int32_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
uint32_t checked_unary_fracpart_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
int64_t checked_unary_fracpart_Integer64(int64_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
uint64_t checked_unary_fracpart_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::fracpart, Checked>(x);
}
uint16_t *checked_unary_fracpart_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::fracpart, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_fracpart_Real32(float x) {
  return evaluate<unary::fracpart, Checked>(x);
}
double checked_unary_fracpart_Real64(double x) {
  return evaluate<unary::fracpart, Checked>(x);
}
float *checked_unary_fracpart_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::fracpart, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_fracpart_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::fracpart, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_mod1_Integer8(int8_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
uint8_t unary_mod1_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
int16_t unary_mod1_Integer16(int16_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
uint16_t unary_mod1_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
int32_t unary_mod1_Integer32(int32_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
uint32_t unary_mod1_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
int64_t unary_mod1_Integer64(int64_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
uint64_t unary_mod1_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::mod1, Plain>(x);
}
uint16_t *unary_mod1_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::mod1, Plain>(HalfPlace{result}, Real16{x});
}
float unary_mod1_Real32(float x) {
  return evaluate<unary::mod1, Plain>(x);
}
double unary_mod1_Real64(double x) {
  return evaluate<unary::mod1, Plain>(x);
}
float *unary_mod1_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::mod1, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_mod1_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::mod1, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_mod1_Integer8(int8_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
uint8_t checked_unary_mod1_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
int16_t checked_unary_mod1_Integer16(int16_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
uint16_t checked_unary_mod1_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
int32_t checked_unary_mod1_Integer32(int32_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
uint32_t checked_unary_mod1_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
int64_t checked_unary_mod1_Integer64(int64_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
uint64_t checked_unary_mod1_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::mod1, Checked>(x);
}
uint16_t *checked_unary_mod1_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::mod1, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_mod1_Real32(float x) {
  return evaluate<unary::mod1, Checked>(x);
}
double checked_unary_mod1_Real64(double x) {
  return evaluate<unary::mod1, Checked>(x);
}
float *checked_unary_mod1_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::mod1, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_mod1_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::mod1, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t binary_mod_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
uint8_t binary_mod_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
int16_t binary_mod_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
uint16_t binary_mod_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
int32_t binary_mod_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
uint32_t binary_mod_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
int64_t binary_mod_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
uint64_t binary_mod_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::mod, Plain>(x, y);
}
uint16_t *binary_mod_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::mod, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_mod_Real32_Real32(float x, float y) {
  return evaluate<binary::mod, Plain>(x, y);
}
double binary_mod_Real64_Real64(double x, double y) {
  return evaluate<binary::mod, Plain>(x, y);
}
float *binary_mod_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                              float y_im) {
  return evaluateInto<binary::mod, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_mod_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                               double y_re, double y_im) {
  return evaluateInto<binary::mod, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_mod_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
uint8_t checked_binary_mod_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
int16_t checked_binary_mod_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
uint16_t checked_binary_mod_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
int32_t checked_binary_mod_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
uint32_t checked_binary_mod_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
int64_t checked_binary_mod_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
uint64_t checked_binary_mod_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::mod, Checked>(x, y);
}
uint16_t *checked_binary_mod_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::mod, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_mod_Real32_Real32(float x, float y) {
  return evaluate<binary::mod, Checked>(x, y);
}
double checked_binary_mod_Real64_Real64(double x, double y) {
  return evaluate<binary::mod, Checked>(x, y);
}
float *checked_binary_mod_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                      float y_re, float y_im) {
  return evaluateInto<binary::mod, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_mod_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                       double y_re, double y_im) {
  return evaluateInto<binary::mod, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_quotient_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
uint8_t binary_quotient_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
int16_t binary_quotient_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
uint16_t binary_quotient_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
int32_t binary_quotient_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
uint32_t binary_quotient_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
int64_t binary_quotient_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
uint64_t binary_quotient_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
mint binary_quotient_Real16_Real16(uint16_t x, uint16_t y) {
  return evaluate<binary::quotient, Plain>(Real16{x}, Real16{y});
}
mint binary_quotient_Real32_Real32(float x, float y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
mint binary_quotient_Real64_Real64(double x, double y) {
  return evaluate<binary::quotient, Plain>(x, y);
}
float *binary_quotient_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                   float y_re, float y_im) {
  return evaluateInto<binary::quotient, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_quotient_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                    double y_re, double y_im) {
  return evaluateInto<binary::quotient, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_quotient_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
uint8_t checked_binary_quotient_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
int16_t checked_binary_quotient_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
uint16_t checked_binary_quotient_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
int32_t checked_binary_quotient_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
uint32_t checked_binary_quotient_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
int64_t checked_binary_quotient_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
uint64_t checked_binary_quotient_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
mint checked_binary_quotient_Real16_Real16(uint16_t x, uint16_t y) {
  return evaluate<binary::quotient, Checked>(Real16{x}, Real16{y});
}
mint checked_binary_quotient_Real32_Real32(float x, float y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
mint checked_binary_quotient_Real64_Real64(double x, double y) {
  return evaluate<binary::quotient, Checked>(x, y);
}
float *checked_binary_quotient_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                           float y_re, float y_im) {
  return evaluateInto<binary::quotient, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_quotient_ComplexReal64_ComplexReal64(double *re, double *im, double x_re,
                                                            double x_im, double y_re, double y_im) {
  return evaluateInto<binary::quotient, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../../scalar/bodies/comparison.h"
#include <torvane/scalars.h>

using namespace torvane;

mint unary_pos_Integer8(int8_t x) {
  return evaluate<unary::pos, Plain>(x);
}
mint unary_pos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::pos, Plain>(x);
}
mint unary_pos_Integer16(int16_t x) {
  return evaluate<unary::pos, Plain>(x);
}
mint unary_pos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::pos, Plain>(x);
}
mint unary_pos_Integer32(int32_t x) {
  return evaluate<unary::pos, Plain>(x);
}
mint unary_pos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::pos, Plain>(x);
}
mint unary_pos_Integer64(int64_t x) {
  return evaluate<unary::pos, Plain>(x);
}
mint unary_pos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::pos, Plain>(x);
}
mint unary_pos_Real16(uint16_t x) {
  return evaluate<unary::pos, Plain>(Real16{x});
}
mint unary_pos_Real32(float x) {
  return evaluate<unary::pos, Plain>(x);
}
mint unary_pos_Real64(double x) {
  return evaluate<unary::pos, Plain>(x);
}
mint unary_pos_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::pos, Plain>(ComplexReal32{x_re, x_im});
}
mint unary_pos_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::pos, Plain>(ComplexReal64{x_re, x_im});
}
mint checked_unary_pos_Integer8(int8_t x) {
  return evaluate<unary::pos, Checked>(x);
}
mint checked_unary_pos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::pos, Checked>(x);
}
mint checked_unary_pos_Integer16(int16_t x) {
  return evaluate<unary::pos, Checked>(x);
}
mint checked_unary_pos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::pos, Checked>(x);
}
mint checked_unary_pos_Integer32(int32_t x) {
  return evaluate<unary::pos, Checked>(x);
}
mint checked_unary_pos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::pos, Checked>(x);
}
mint checked_unary_pos_Integer64(int64_t x) {
  return evaluate<unary::pos, Checked>(x);
}
mint checked_unary_pos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::pos, Checked>(x);
}
mint checked_unary_pos_Real16(uint16_t x) {
  return evaluate<unary::pos, Checked>(Real16{x});
}
mint checked_unary_pos_Real32(float x) {
  return evaluate<unary::pos, Checked>(x);
}
mint checked_unary_pos_Real64(double x) {
  return evaluate<unary::pos, Checked>(x);
}
mint checked_unary_pos_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::pos, Checked>(ComplexReal32{x_re, x_im});
}
mint checked_unary_pos_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::pos, Checked>(ComplexReal64{x_re, x_im});
}

mint unary_neg_Integer8(int8_t x) {
  return evaluate<unary::neg, Plain>(x);
}
mint unary_neg_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::neg, Plain>(x);
}
mint unary_neg_Integer16(int16_t x) {
  return evaluate<unary::neg, Plain>(x);
}
mint unary_neg_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::neg, Plain>(x);
}
mint unary_neg_Integer32(int32_t x) {
  return evaluate<unary::neg, Plain>(x);
}
mint unary_neg_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::neg, Plain>(x);
}
mint unary_neg_Integer64(int64_t x) {
  return evaluate<unary::neg, Plain>(x);
}
mint unary_neg_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::neg, Plain>(x);
}
mint unary_neg_Real16(uint16_t x) {
  return evaluate<unary::neg, Plain>(Real16{x});
}
mint unary_neg_Real32(float x) {
  return evaluate<unary::neg, Plain>(x);
}
mint unary_neg_Real64(double x) {
  return evaluate<unary::neg, Plain>(x);
}
mint unary_neg_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::neg, Plain>(ComplexReal32{x_re, x_im});
}
mint unary_neg_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::neg, Plain>(ComplexReal64{x_re, x_im});
}
mint checked_unary_neg_Integer8(int8_t x) {
  return evaluate<unary::neg, Checked>(x);
}
mint checked_unary_neg_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::neg, Checked>(x);
}
mint checked_unary_neg_Integer16(int16_t x) {
  return evaluate<unary::neg, Checked>(x);
}
mint checked_unary_neg_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::neg, Checked>(x);
}
mint checked_unary_neg_Integer32(int32_t x) {
  return evaluate<unary::neg, Checked>(x);
}
mint checked_unary_neg_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::neg, Checked>(x);
}
mint checked_unary_neg_Integer64(int64_t x) {
  return evaluate<unary::neg, Checked>(x);
}
mint checked_unary_neg_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::neg, Checked>(x);
}
mint checked_unary_neg_Real16(uint16_t x) {
  return evaluate<unary::neg, Checked>(Real16{x});
}
mint checked_unary_neg_Real32(float x) {
  return evaluate<unary::neg, Checked>(x);
}
mint checked_unary_neg_Real64(double x) {
  return evaluate<unary::neg, Checked>(x);
}
mint checked_unary_neg_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::neg, Checked>(ComplexReal32{x_re, x_im});
}
mint checked_unary_neg_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::neg, Checked>(ComplexReal64{x_re, x_im});
}

mint unary_npos_Integer8(int8_t x) {
  return evaluate<unary::npos, Plain>(x);
}
mint unary_npos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::npos, Plain>(x);
}
mint unary_npos_Integer16(int16_t x) {
  return evaluate<unary::npos, Plain>(x);
}
mint unary_npos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::npos, Plain>(x);
}
mint unary_npos_Integer32(int32_t x) {
  return evaluate<unary::npos, Plain>(x);
}
mint unary_npos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::npos, Plain>(x);
}
mint unary_npos_Integer64(int64_t x) {
  return evaluate<unary::npos, Plain>(x);
}
mint unary_npos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::npos, Plain>(x);
}
mint unary_npos_Real16(uint16_t x) {
  return evaluate<unary::npos, Plain>(Real16{x});
}
mint unary_npos_Real32(float x) {
  return evaluate<unary::npos, Plain>(x);
}
mint unary_npos_Real64(double x) {
  return evaluate<unary::npos, Plain>(x);
}
mint unary_npos_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::npos, Plain>(ComplexReal32{x_re, x_im});
}
mint unary_npos_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::npos, Plain>(ComplexReal64{x_re, x_im});
}
mint checked_unary_npos_Integer8(int8_t x) {
  return evaluate<unary::npos, Checked>(x);
}
mint checked_unary_npos_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::npos, Checked>(x);
}
mint checked_unary_npos_Integer16(int16_t x) {
  return evaluate<unary::npos, Checked>(x);
}
mint checked_unary_npos_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::npos, Checked>(x);
}
mint checked_unary_npos_Integer32(int32_t x) {
  return evaluate<unary::npos, Checked>(x);
}
mint checked_unary_npos_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::npos, Checked>(x);
}
mint checked_unary_npos_Integer64(int64_t x) {
  return evaluate<unary::npos, Checked>(x);
}
mint checked_unary_npos_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::npos, Checked>(x);
}
mint checked_unary_npos_Real16(uint16_t x) {
  return evaluate<unary::npos, Checked>(Real16{x});
}
mint checked_unary_npos_Real32(float x) {
  return evaluate<unary::npos, Checked>(x);
}
mint checked_unary_npos_Real64(double x) {
  return evaluate<unary::npos, Checked>(x);
}
mint checked_unary_npos_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::npos, Checked>(ComplexReal32{x_re, x_im});
}
mint checked_unary_npos_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::npos, Checked>(ComplexReal64{x_re, x_im});
}

mint unary_nneg_Integer8(int8_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
mint unary_nneg_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
mint unary_nneg_Integer16(int16_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
mint unary_nneg_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
mint unary_nneg_Integer32(int32_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
mint unary_nneg_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
mint unary_nneg_Integer64(int64_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
mint unary_nneg_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::nneg, Plain>(x);
}
mint unary_nneg_Real16(uint16_t x) {
  return evaluate<unary::nneg, Plain>(Real16{x});
}
mint unary_nneg_Real32(float x) {
  return evaluate<unary::nneg, Plain>(x);
}
mint unary_nneg_Real64(double x) {
  return evaluate<unary::nneg, Plain>(x);
}
mint unary_nneg_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::nneg, Plain>(ComplexReal32{x_re, x_im});
}
mint unary_nneg_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::nneg, Plain>(ComplexReal64{x_re, x_im});
}
mint checked_unary_nneg_Integer8(int8_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
mint checked_unary_nneg_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
mint checked_unary_nneg_Integer16(int16_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
mint checked_unary_nneg_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
mint checked_unary_nneg_Integer32(int32_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
mint checked_unary_nneg_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
mint checked_unary_nneg_Integer64(int64_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
mint checked_unary_nneg_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::nneg, Checked>(x);
}
mint checked_unary_nneg_Real16(uint16_t x) {
  return evaluate<unary::nneg, Checked>(Real16{x});
}
mint checked_unary_nneg_Real32(float x) {
  return evaluate<unary::nneg, Checked>(x);
}
mint checked_unary_nneg_Real64(double x) {
  return evaluate<unary::nneg, Checked>(x);
}
mint checked_unary_nneg_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::nneg, Checked>(ComplexReal32{x_re, x_im});
}
mint checked_unary_nneg_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::nneg, Checked>(ComplexReal64{x_re, x_im});
}

mint unary_unitize_Integer8(int8_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
mint unary_unitize_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
mint unary_unitize_Integer16(int16_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
mint unary_unitize_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
mint unary_unitize_Integer32(int32_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
mint unary_unitize_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
mint unary_unitize_Integer64(int64_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
mint unary_unitize_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::unitize, Plain>(x);
}
mint unary_unitize_Real16(uint16_t x) {
  return evaluate<unary::unitize, Plain>(Real16{x});
}
mint unary_unitize_Real32(float x) {
  return evaluate<unary::unitize, Plain>(x);
}
mint unary_unitize_Real64(double x) {
  return evaluate<unary::unitize, Plain>(x);
}
mint unary_unitize_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::unitize, Plain>(ComplexReal32{x_re, x_im});
}
mint unary_unitize_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::unitize, Plain>(ComplexReal64{x_re, x_im});
}
mint checked_unary_unitize_Integer8(int8_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
mint checked_unary_unitize_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
mint checked_unary_unitize_Integer16(int16_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
mint checked_unary_unitize_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
mint checked_unary_unitize_Integer32(int32_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
mint checked_unary_unitize_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
mint checked_unary_unitize_Integer64(int64_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
mint checked_unary_unitize_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::unitize, Checked>(x);
}
mint checked_unary_unitize_Real16(uint16_t x) {
  return evaluate<unary::unitize, Checked>(Real16{x});
}
mint checked_unary_unitize_Real32(float x) {
  return evaluate<unary::unitize, Checked>(x);
}
mint checked_unary_unitize_Real64(double x) {
  return evaluate<unary::unitize, Checked>(x);
}
mint checked_unary_unitize_ComplexReal32(float x_re, float x_im) {
  return evaluate<unary::unitize, Checked>(ComplexReal32{x_re, x_im});
}
mint checked_unary_unitize_ComplexReal64(double x_re, double x_im) {
  return evaluate<unary::unitize, Checked>(ComplexReal64{x_re, x_im});
}

int8_t unary_ramp_Integer8(int8_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
uint8_t unary_ramp_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
int16_t unary_ramp_Integer16(int16_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
uint16_t unary_ramp_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
int32_t unary_ramp_Integer32(int32_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
uint32_t unary_ramp_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
int64_t unary_ramp_Integer64(int64_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
uint64_t unary_ramp_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::ramp, Plain>(x);
}
uint16_t *unary_ramp_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::ramp, Plain>(HalfPlace{result}, Real16{x});
}
float unary_ramp_Real32(float x) {
  return evaluate<unary::ramp, Plain>(x);
}
double unary_ramp_Real64(double x) {
  return evaluate<unary::ramp, Plain>(x);
}
float *unary_ramp_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::ramp, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_ramp_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::ramp, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_ramp_Integer8(int8_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
uint8_t checked_unary_ramp_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
int16_t checked_unary_ramp_Integer16(int16_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
uint16_t checked_unary_ramp_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
int32_t checked_unary_ramp_Integer32(int32_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
uint32_t checked_unary_ramp_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
int64_t checked_unary_ramp_Integer64(int64_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
uint64_t checked_unary_ramp_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::ramp, Checked>(x);
}
uint16_t *checked_unary_ramp_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::ramp, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_ramp_Real32(float x) {
  return evaluate<unary::ramp, Checked>(x);
}
double checked_unary_ramp_Real64(double x) {
  return evaluate<unary::ramp, Checked>(x);
}
float *checked_unary_ramp_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::ramp, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_ramp_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::ramp, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t binary_max_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
uint8_t binary_max_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
int16_t binary_max_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
uint16_t binary_max_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
int32_t binary_max_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
uint32_t binary_max_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
int64_t binary_max_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
uint64_t binary_max_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::max, Plain>(x, y);
}
uint16_t *binary_max_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::max, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_max_Real32_Real32(float x, float y) {
  return evaluate<binary::max, Plain>(x, y);
}
double binary_max_Real64_Real64(double x, double y) {
  return evaluate<binary::max, Plain>(x, y);
}
float *binary_max_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                              float y_im) {
  return evaluateInto<binary::max, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_max_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                               double y_re, double y_im) {
  return evaluateInto<binary::max, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_max_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
uint8_t checked_binary_max_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
int16_t checked_binary_max_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
uint16_t checked_binary_max_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
int32_t checked_binary_max_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
uint32_t checked_binary_max_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
int64_t checked_binary_max_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
uint64_t checked_binary_max_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::max, Checked>(x, y);
}
uint16_t *checked_binary_max_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::max, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_max_Real32_Real32(float x, float y) {
  return evaluate<binary::max, Checked>(x, y);
}
double checked_binary_max_Real64_Real64(double x, double y) {
  return evaluate<binary::max, Checked>(x, y);
}
float *checked_binary_max_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                      float y_re, float y_im) {
  return evaluateInto<binary::max, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_max_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                       double y_re, double y_im) {
  return evaluateInto<binary::max, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_min_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
uint8_t binary_min_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
int16_t binary_min_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
uint16_t binary_min_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
int32_t binary_min_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
uint32_t binary_min_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
int64_t binary_min_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
uint64_t binary_min_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::min, Plain>(x, y);
}
uint16_t *binary_min_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::min, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_min_Real32_Real32(float x, float y) {
  return evaluate<binary::min, Plain>(x, y);
}
double binary_min_Real64_Real64(double x, double y) {
  return evaluate<binary::min, Plain>(x, y);
}
float *binary_min_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                              float y_im) {
  return evaluateInto<binary::min, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_min_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                               double y_re, double y_im) {
  return evaluateInto<binary::min, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_min_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
uint8_t checked_binary_min_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
int16_t checked_binary_min_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
uint16_t checked_binary_min_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
int32_t checked_binary_min_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
uint32_t checked_binary_min_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
int64_t checked_binary_min_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
uint64_t checked_binary_min_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::min, Checked>(x, y);
}
uint16_t *checked_binary_min_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::min, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_min_Real32_Real32(float x, float y) {
  return evaluate<binary::min, Checked>(x, y);
}
double checked_binary_min_Real64_Real64(double x, double y) {
  return evaluate<binary::min, Checked>(x, y);
}
float *checked_binary_min_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                      float y_re, float y_im) {
  return evaluateInto<binary::min, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_min_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                       double y_re, double y_im) {
  return evaluateInto<binary::min, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_chop_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
uint8_t binary_chop_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
int16_t binary_chop_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
uint16_t binary_chop_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
int32_t binary_chop_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
uint32_t binary_chop_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
int64_t binary_chop_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
uint64_t binary_chop_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::chop, Plain>(x, y);
}
uint16_t *binary_chop_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::chop, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_chop_Real32_Real32(float x, float y) {
  return evaluate<binary::chop, Plain>(x, y);
}
double binary_chop_Real64_Real64(double x, double y) {
  return evaluate<binary::chop, Plain>(x, y);
}
float *binary_chop_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                               float y_im) {
  return evaluateInto<binary::chop, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_chop_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                double y_re, double y_im) {
  return evaluateInto<binary::chop, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_chop_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
uint8_t checked_binary_chop_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
int16_t checked_binary_chop_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
uint16_t checked_binary_chop_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
int32_t checked_binary_chop_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
uint32_t checked_binary_chop_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
int64_t checked_binary_chop_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
uint64_t checked_binary_chop_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::chop, Checked>(x, y);
}
uint16_t *checked_binary_chop_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::chop, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_chop_Real32_Real32(float x, float y) {
  return evaluate<binary::chop, Checked>(x, y);
}
double checked_binary_chop_Real64_Real64(double x, double y) {
  return evaluate<binary::chop, Checked>(x, y);
}
float *checked_binary_chop_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                       float y_re, float y_im) {
  return evaluateInto<binary::chop, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_chop_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                        double y_re, double y_im) {
  return evaluateInto<binary::chop, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_abserr_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
uint8_t binary_abserr_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
int16_t binary_abserr_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
uint16_t binary_abserr_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
int32_t binary_abserr_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
uint32_t binary_abserr_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
int64_t binary_abserr_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
uint64_t binary_abserr_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
uint16_t *binary_abserr_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::abserr, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_abserr_Real32_Real32(float x, float y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
double binary_abserr_Real64_Real64(double x, double y) {
  return evaluate<binary::abserr, Plain>(x, y);
}
float *binary_abserr_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                                 float y_im) {
  return evaluateInto<binary::abserr, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_abserr_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                  double y_re, double y_im) {
  return evaluateInto<binary::abserr, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_abserr_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
uint8_t checked_binary_abserr_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
int16_t checked_binary_abserr_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
uint16_t checked_binary_abserr_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
int32_t checked_binary_abserr_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
uint32_t checked_binary_abserr_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
int64_t checked_binary_abserr_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
uint64_t checked_binary_abserr_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
uint16_t *checked_binary_abserr_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::abserr, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_abserr_Real32_Real32(float x, float y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
double checked_binary_abserr_Real64_Real64(double x, double y) {
  return evaluate<binary::abserr, Checked>(x, y);
}
float *checked_binary_abserr_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                         float y_re, float y_im) {
  return evaluateInto<binary::abserr, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_abserr_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                          double y_re, double y_im) {
  return evaluateInto<binary::abserr, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_relerr_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
uint8_t binary_relerr_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
int16_t binary_relerr_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
uint16_t binary_relerr_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
int32_t binary_relerr_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
uint32_t binary_relerr_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
int64_t binary_relerr_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
uint64_t binary_relerr_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
uint16_t *binary_relerr_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::relerr, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_relerr_Real32_Real32(float x, float y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
double binary_relerr_Real64_Real64(double x, double y) {
  return evaluate<binary::relerr, Plain>(x, y);
}
float *binary_relerr_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                                 float y_im) {
  return evaluateInto<binary::relerr, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_relerr_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                  double y_re, double y_im) {
  return evaluateInto<binary::relerr, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_relerr_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
uint8_t checked_binary_relerr_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
int16_t checked_binary_relerr_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
uint16_t checked_binary_relerr_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
int32_t checked_binary_relerr_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
uint32_t checked_binary_relerr_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
int64_t checked_binary_relerr_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
uint64_t checked_binary_relerr_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
uint16_t *checked_binary_relerr_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::relerr, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_relerr_Real32_Real32(float x, float y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
double checked_binary_relerr_Real64_Real64(double x, double y) {
  return evaluate<binary::relerr, Checked>(x, y);
}
float *checked_binary_relerr_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                         float y_re, float y_im) {
  return evaluateInto<binary::relerr, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_relerr_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                          double y_re, double y_im) {
  return evaluateInto<binary::relerr, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

int8_t binary_maxabs_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
uint8_t binary_maxabs_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
int16_t binary_maxabs_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
uint16_t binary_maxabs_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
int32_t binary_maxabs_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
uint32_t binary_maxabs_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
int64_t binary_maxabs_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
uint64_t binary_maxabs_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
uint16_t *binary_maxabs_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::maxabs, Plain>(HalfPlace{result}, Real16{x}, Real16{y});
}
float binary_maxabs_Real32_Real32(float x, float y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
double binary_maxabs_Real64_Real64(double x, double y) {
  return evaluate<binary::maxabs, Plain>(x, y);
}
float *binary_maxabs_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im, float y_re,
                                                 float y_im) {
  return evaluateInto<binary::maxabs, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *binary_maxabs_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                  double y_re, double y_im) {
  return evaluateInto<binary::maxabs, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
int8_t checked_binary_maxabs_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
uint8_t checked_binary_maxabs_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
int16_t checked_binary_maxabs_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
uint16_t checked_binary_maxabs_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
int32_t checked_binary_maxabs_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
uint32_t checked_binary_maxabs_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
int64_t checked_binary_maxabs_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
uint64_t checked_binary_maxabs_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
uint16_t *checked_binary_maxabs_Real16_Real16(uint16_t *result, uint16_t x, uint16_t y) {
  return evaluateInto<binary::maxabs, Checked>(HalfPlace{result}, Real16{x}, Real16{y});
}
float checked_binary_maxabs_Real32_Real32(float x, float y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
double checked_binary_maxabs_Real64_Real64(double x, double y) {
  return evaluate<binary::maxabs, Checked>(x, y);
}
float *checked_binary_maxabs_ComplexReal32_ComplexReal32(float *re, float *im, float x_re, float x_im,
                                                         float y_re, float y_im) {
  return evaluateInto<binary::maxabs, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
double *checked_binary_maxabs_ComplexReal64_ComplexReal64(double *re, double *im, double x_re, double x_im,
                                                          double y_re, double y_im) {
  return evaluateInto<binary::maxabs, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

mint binary_unitize_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
mint binary_unitize_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
mint binary_unitize_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
mint binary_unitize_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
mint binary_unitize_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
mint binary_unitize_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
mint binary_unitize_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
mint binary_unitize_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
mint binary_unitize_Real16_Real16(uint16_t x, uint16_t y) {
  return evaluate<binary::unitize, Plain>(Real16{x}, Real16{y});
}
mint binary_unitize_Real32_Real32(float x, float y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
mint binary_unitize_Real64_Real64(double x, double y) {
  return evaluate<binary::unitize, Plain>(x, y);
}
mint binary_unitize_ComplexReal32_ComplexReal32(float x_re, float x_im, float y_re, float y_im) {
  return evaluate<binary::unitize, Plain>(ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
mint binary_unitize_ComplexReal64_ComplexReal64(double x_re, double x_im, double y_re, double y_im) {
  return evaluate<binary::unitize, Plain>(ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}
mint checked_binary_unitize_Integer8_Integer8(int8_t x, int8_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
mint checked_binary_unitize_UnsignedInteger8_UnsignedInteger8(uint8_t x, uint8_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
mint checked_binary_unitize_Integer16_Integer16(int16_t x, int16_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
mint checked_binary_unitize_UnsignedInteger16_UnsignedInteger16(uint16_t x, uint16_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
mint checked_binary_unitize_Integer32_Integer32(int32_t x, int32_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
mint checked_binary_unitize_UnsignedInteger32_UnsignedInteger32(uint32_t x, uint32_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
mint checked_binary_unitize_Integer64_Integer64(int64_t x, int64_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
mint checked_binary_unitize_UnsignedInteger64_UnsignedInteger64(uint64_t x, uint64_t y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
mint checked_binary_unitize_Real16_Real16(uint16_t x, uint16_t y) {
  return evaluate<binary::unitize, Checked>(Real16{x}, Real16{y});
}
mint checked_binary_unitize_Real32_Real32(float x, float y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
mint checked_binary_unitize_Real64_Real64(double x, double y) {
  return evaluate<binary::unitize, Checked>(x, y);
}
mint checked_binary_unitize_ComplexReal32_ComplexReal32(float x_re, float x_im, float y_re, float y_im) {
  return evaluate<binary::unitize, Checked>(ComplexReal32{x_re, x_im}, ComplexReal32{y_re, y_im});
}
mint checked_binary_unitize_ComplexReal64_ComplexReal64(double x_re, double x_im, double y_re, double y_im) {
  return evaluate<binary::unitize, Checked>(ComplexReal64{x_re, x_im}, ComplexReal64{y_re, y_im});
}

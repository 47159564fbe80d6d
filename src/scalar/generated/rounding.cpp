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
  return store(re, im, evaluate<unary::round, Plain>(ComplexReal32{x_re, x_im}));
}
double *unary_round_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return store(re, im, evaluate<unary::round, Plain>(ComplexReal64{x_re, x_im}));
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
  return store(re, im, evaluate<unary::round, Checked>(ComplexReal32{x_re, x_im}));
}
double *checked_unary_round_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return store(re, im, evaluate<unary::round, Checked>(ComplexReal64{x_re, x_im}));
}

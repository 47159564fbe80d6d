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
  return store(result, evaluate<unary::sqrt, Plain>(Real16{x}));
}
float unary_sqrt_Real32(float x) {
  return evaluate<unary::sqrt, Plain>(x);
}
double unary_sqrt_Real64(double x) {
  return evaluate<unary::sqrt, Plain>(x);
}
float *unary_sqrt_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return store(re, im, evaluate<unary::sqrt, Plain>(ComplexReal32{x_re, x_im}));
}
double *unary_sqrt_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return store(re, im, evaluate<unary::sqrt, Plain>(ComplexReal64{x_re, x_im}));
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
  return store(result, evaluate<unary::sqrt, Checked>(Real16{x}));
}
float checked_unary_sqrt_Real32(float x) {
  return evaluate<unary::sqrt, Checked>(x);
}
double checked_unary_sqrt_Real64(double x) {
  return evaluate<unary::sqrt, Checked>(x);
}
float *checked_unary_sqrt_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return store(re, im, evaluate<unary::sqrt, Checked>(ComplexReal32{x_re, x_im}));
}
double *checked_unary_sqrt_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return store(re, im, evaluate<unary::sqrt, Checked>(ComplexReal64{x_re, x_im}));
}

// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../../scalar/bodies/special.h"
#include <torvane/scalars.h>

using namespace torvane;

int8_t unary_sinc_Integer8(int8_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
uint8_t unary_sinc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
int16_t unary_sinc_Integer16(int16_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
uint16_t unary_sinc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
int32_t unary_sinc_Integer32(int32_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
uint32_t unary_sinc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
int64_t unary_sinc_Integer64(int64_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
uint64_t unary_sinc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sinc, Plain>(x);
}
uint16_t *unary_sinc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sinc, Plain>(HalfPlace{result}, Real16{x});
}
float unary_sinc_Real32(float x) {
  return evaluate<unary::sinc, Plain>(x);
}
double unary_sinc_Real64(double x) {
  return evaluate<unary::sinc, Plain>(x);
}
float *unary_sinc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sinc, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_sinc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sinc, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_sinc_Integer8(int8_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
uint8_t checked_unary_sinc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
int16_t checked_unary_sinc_Integer16(int16_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
uint16_t checked_unary_sinc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
int32_t checked_unary_sinc_Integer32(int32_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
uint32_t checked_unary_sinc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
int64_t checked_unary_sinc_Integer64(int64_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
uint64_t checked_unary_sinc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::sinc, Checked>(x);
}
uint16_t *checked_unary_sinc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::sinc, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_sinc_Real32(float x) {
  return evaluate<unary::sinc, Checked>(x);
}
double checked_unary_sinc_Real64(double x) {
  return evaluate<unary::sinc, Checked>(x);
}
float *checked_unary_sinc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::sinc, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_sinc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::sinc, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_fibonacci_Integer8(int8_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
uint8_t unary_fibonacci_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
int16_t unary_fibonacci_Integer16(int16_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
uint16_t unary_fibonacci_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
int32_t unary_fibonacci_Integer32(int32_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
uint32_t unary_fibonacci_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
int64_t unary_fibonacci_Integer64(int64_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
uint64_t unary_fibonacci_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
uint16_t *unary_fibonacci_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::fibonacci, Plain>(HalfPlace{result}, Real16{x});
}
float unary_fibonacci_Real32(float x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
double unary_fibonacci_Real64(double x) {
  return evaluate<unary::fibonacci, Plain>(x);
}
float *unary_fibonacci_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::fibonacci, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_fibonacci_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::fibonacci, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_fibonacci_Integer8(int8_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
uint8_t checked_unary_fibonacci_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
int16_t checked_unary_fibonacci_Integer16(int16_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
uint16_t checked_unary_fibonacci_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
int32_t checked_unary_fibonacci_Integer32(int32_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
uint32_t checked_unary_fibonacci_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
int64_t checked_unary_fibonacci_Integer64(int64_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
uint64_t checked_unary_fibonacci_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
uint16_t *checked_unary_fibonacci_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::fibonacci, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_fibonacci_Real32(float x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
double checked_unary_fibonacci_Real64(double x) {
  return evaluate<unary::fibonacci, Checked>(x);
}
float *checked_unary_fibonacci_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::fibonacci, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_fibonacci_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::fibonacci, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_lucasl_Integer8(int8_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
uint8_t unary_lucasl_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
int16_t unary_lucasl_Integer16(int16_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
uint16_t unary_lucasl_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
int32_t unary_lucasl_Integer32(int32_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
uint32_t unary_lucasl_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
int64_t unary_lucasl_Integer64(int64_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
uint64_t unary_lucasl_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::lucasl, Plain>(x);
}
uint16_t *unary_lucasl_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::lucasl, Plain>(HalfPlace{result}, Real16{x});
}
float unary_lucasl_Real32(float x) {
  return evaluate<unary::lucasl, Plain>(x);
}
double unary_lucasl_Real64(double x) {
  return evaluate<unary::lucasl, Plain>(x);
}
float *unary_lucasl_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::lucasl, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_lucasl_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::lucasl, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_lucasl_Integer8(int8_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
uint8_t checked_unary_lucasl_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
int16_t checked_unary_lucasl_Integer16(int16_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
uint16_t checked_unary_lucasl_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
int32_t checked_unary_lucasl_Integer32(int32_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
uint32_t checked_unary_lucasl_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
int64_t checked_unary_lucasl_Integer64(int64_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
uint64_t checked_unary_lucasl_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::lucasl, Checked>(x);
}
uint16_t *checked_unary_lucasl_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::lucasl, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_lucasl_Real32(float x) {
  return evaluate<unary::lucasl, Checked>(x);
}
double checked_unary_lucasl_Real64(double x) {
  return evaluate<unary::lucasl, Checked>(x);
}
float *checked_unary_lucasl_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::lucasl, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_lucasl_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::lucasl, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_gudermannian_Integer8(int8_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
uint8_t unary_gudermannian_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
int16_t unary_gudermannian_Integer16(int16_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
uint16_t unary_gudermannian_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
int32_t unary_gudermannian_Integer32(int32_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
uint32_t unary_gudermannian_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
int64_t unary_gudermannian_Integer64(int64_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
uint64_t unary_gudermannian_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
uint16_t *unary_gudermannian_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::gudermannian, Plain>(HalfPlace{result}, Real16{x});
}
float unary_gudermannian_Real32(float x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
double unary_gudermannian_Real64(double x) {
  return evaluate<unary::gudermannian, Plain>(x);
}
float *unary_gudermannian_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::gudermannian, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_gudermannian_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::gudermannian, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_gudermannian_Integer8(int8_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
uint8_t checked_unary_gudermannian_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
int16_t checked_unary_gudermannian_Integer16(int16_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
uint16_t checked_unary_gudermannian_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
int32_t checked_unary_gudermannian_Integer32(int32_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
uint32_t checked_unary_gudermannian_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
int64_t checked_unary_gudermannian_Integer64(int64_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
uint64_t checked_unary_gudermannian_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
uint16_t *checked_unary_gudermannian_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::gudermannian, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_gudermannian_Real32(float x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
double checked_unary_gudermannian_Real64(double x) {
  return evaluate<unary::gudermannian, Checked>(x);
}
float *checked_unary_gudermannian_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::gudermannian, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_gudermannian_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::gudermannian, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_inversegudermannian_Integer8(int8_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
uint8_t unary_inversegudermannian_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
int16_t unary_inversegudermannian_Integer16(int16_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
uint16_t unary_inversegudermannian_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
int32_t unary_inversegudermannian_Integer32(int32_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
uint32_t unary_inversegudermannian_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
int64_t unary_inversegudermannian_Integer64(int64_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
uint64_t unary_inversegudermannian_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
uint16_t *unary_inversegudermannian_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::inversegudermannian, Plain>(HalfPlace{result}, Real16{x});
}
float unary_inversegudermannian_Real32(float x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
double unary_inversegudermannian_Real64(double x) {
  return evaluate<unary::inversegudermannian, Plain>(x);
}
float *unary_inversegudermannian_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::inversegudermannian, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_inversegudermannian_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::inversegudermannian, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_inversegudermannian_Integer8(int8_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
uint8_t checked_unary_inversegudermannian_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
int16_t checked_unary_inversegudermannian_Integer16(int16_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
uint16_t checked_unary_inversegudermannian_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
int32_t checked_unary_inversegudermannian_Integer32(int32_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
uint32_t checked_unary_inversegudermannian_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
int64_t checked_unary_inversegudermannian_Integer64(int64_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
uint64_t checked_unary_inversegudermannian_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
uint16_t *checked_unary_inversegudermannian_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::inversegudermannian, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_inversegudermannian_Real32(float x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
double checked_unary_inversegudermannian_Real64(double x) {
  return evaluate<unary::inversegudermannian, Checked>(x);
}
float *checked_unary_inversegudermannian_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::inversegudermannian, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_inversegudermannian_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::inversegudermannian, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_haversine_Integer8(int8_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
uint8_t unary_haversine_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
int16_t unary_haversine_Integer16(int16_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
uint16_t unary_haversine_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
int32_t unary_haversine_Integer32(int32_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
uint32_t unary_haversine_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
int64_t unary_haversine_Integer64(int64_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
uint64_t unary_haversine_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::haversine, Plain>(x);
}
uint16_t *unary_haversine_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::haversine, Plain>(HalfPlace{result}, Real16{x});
}
float unary_haversine_Real32(float x) {
  return evaluate<unary::haversine, Plain>(x);
}
double unary_haversine_Real64(double x) {
  return evaluate<unary::haversine, Plain>(x);
}
float *unary_haversine_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::haversine, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_haversine_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::haversine, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_haversine_Integer8(int8_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
uint8_t checked_unary_haversine_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
int16_t checked_unary_haversine_Integer16(int16_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
uint16_t checked_unary_haversine_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
int32_t checked_unary_haversine_Integer32(int32_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
uint32_t checked_unary_haversine_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
int64_t checked_unary_haversine_Integer64(int64_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
uint64_t checked_unary_haversine_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::haversine, Checked>(x);
}
uint16_t *checked_unary_haversine_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::haversine, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_haversine_Real32(float x) {
  return evaluate<unary::haversine, Checked>(x);
}
double checked_unary_haversine_Real64(double x) {
  return evaluate<unary::haversine, Checked>(x);
}
float *checked_unary_haversine_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::haversine, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_haversine_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::haversine, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_inversehaversine_Integer8(int8_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
uint8_t unary_inversehaversine_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
int16_t unary_inversehaversine_Integer16(int16_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
uint16_t unary_inversehaversine_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
int32_t unary_inversehaversine_Integer32(int32_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
uint32_t unary_inversehaversine_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
int64_t unary_inversehaversine_Integer64(int64_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
uint64_t unary_inversehaversine_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
uint16_t *unary_inversehaversine_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::inversehaversine, Plain>(HalfPlace{result}, Real16{x});
}
float unary_inversehaversine_Real32(float x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
double unary_inversehaversine_Real64(double x) {
  return evaluate<unary::inversehaversine, Plain>(x);
}
float *unary_inversehaversine_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::inversehaversine, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_inversehaversine_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::inversehaversine, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_inversehaversine_Integer8(int8_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
uint8_t checked_unary_inversehaversine_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
int16_t checked_unary_inversehaversine_Integer16(int16_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
uint16_t checked_unary_inversehaversine_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
int32_t checked_unary_inversehaversine_Integer32(int32_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
uint32_t checked_unary_inversehaversine_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
int64_t checked_unary_inversehaversine_Integer64(int64_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
uint64_t checked_unary_inversehaversine_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
uint16_t *checked_unary_inversehaversine_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::inversehaversine, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_inversehaversine_Real32(float x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
double checked_unary_inversehaversine_Real64(double x) {
  return evaluate<unary::inversehaversine, Checked>(x);
}
float *checked_unary_inversehaversine_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::inversehaversine, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_inversehaversine_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::inversehaversine, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_erfc_Integer8(int8_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
uint8_t unary_erfc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
int16_t unary_erfc_Integer16(int16_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
uint16_t unary_erfc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
int32_t unary_erfc_Integer32(int32_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
uint32_t unary_erfc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
int64_t unary_erfc_Integer64(int64_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
uint64_t unary_erfc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::erfc, Plain>(x);
}
uint16_t *unary_erfc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::erfc, Plain>(HalfPlace{result}, Real16{x});
}
float unary_erfc_Real32(float x) {
  return evaluate<unary::erfc, Plain>(x);
}
double unary_erfc_Real64(double x) {
  return evaluate<unary::erfc, Plain>(x);
}
float *unary_erfc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::erfc, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_erfc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::erfc, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_erfc_Integer8(int8_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
uint8_t checked_unary_erfc_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
int16_t checked_unary_erfc_Integer16(int16_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
uint16_t checked_unary_erfc_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
int32_t checked_unary_erfc_Integer32(int32_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
uint32_t checked_unary_erfc_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
int64_t checked_unary_erfc_Integer64(int64_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
uint64_t checked_unary_erfc_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::erfc, Checked>(x);
}
uint16_t *checked_unary_erfc_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::erfc, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_erfc_Real32(float x) {
  return evaluate<unary::erfc, Checked>(x);
}
double checked_unary_erfc_Real64(double x) {
  return evaluate<unary::erfc, Checked>(x);
}
float *checked_unary_erfc_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::erfc, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_erfc_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::erfc, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_erf_Integer8(int8_t x) {
  return evaluate<unary::erf, Plain>(x);
}
uint8_t unary_erf_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::erf, Plain>(x);
}
int16_t unary_erf_Integer16(int16_t x) {
  return evaluate<unary::erf, Plain>(x);
}
uint16_t unary_erf_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::erf, Plain>(x);
}
int32_t unary_erf_Integer32(int32_t x) {
  return evaluate<unary::erf, Plain>(x);
}
uint32_t unary_erf_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::erf, Plain>(x);
}
int64_t unary_erf_Integer64(int64_t x) {
  return evaluate<unary::erf, Plain>(x);
}
uint64_t unary_erf_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::erf, Plain>(x);
}
uint16_t *unary_erf_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::erf, Plain>(HalfPlace{result}, Real16{x});
}
float unary_erf_Real32(float x) {
  return evaluate<unary::erf, Plain>(x);
}
double unary_erf_Real64(double x) {
  return evaluate<unary::erf, Plain>(x);
}
float *unary_erf_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::erf, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_erf_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::erf, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_erf_Integer8(int8_t x) {
  return evaluate<unary::erf, Checked>(x);
}
uint8_t checked_unary_erf_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::erf, Checked>(x);
}
int16_t checked_unary_erf_Integer16(int16_t x) {
  return evaluate<unary::erf, Checked>(x);
}
uint16_t checked_unary_erf_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::erf, Checked>(x);
}
int32_t checked_unary_erf_Integer32(int32_t x) {
  return evaluate<unary::erf, Checked>(x);
}
uint32_t checked_unary_erf_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::erf, Checked>(x);
}
int64_t checked_unary_erf_Integer64(int64_t x) {
  return evaluate<unary::erf, Checked>(x);
}
uint64_t checked_unary_erf_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::erf, Checked>(x);
}
uint16_t *checked_unary_erf_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::erf, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_erf_Real32(float x) {
  return evaluate<unary::erf, Checked>(x);
}
double checked_unary_erf_Real64(double x) {
  return evaluate<unary::erf, Checked>(x);
}
float *checked_unary_erf_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::erf, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_erf_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::erf, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_gamma_Integer8(int8_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
uint8_t unary_gamma_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
int16_t unary_gamma_Integer16(int16_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
uint16_t unary_gamma_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
int32_t unary_gamma_Integer32(int32_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
uint32_t unary_gamma_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
int64_t unary_gamma_Integer64(int64_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
uint64_t unary_gamma_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::gamma, Plain>(x);
}
uint16_t *unary_gamma_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::gamma, Plain>(HalfPlace{result}, Real16{x});
}
float unary_gamma_Real32(float x) {
  return evaluate<unary::gamma, Plain>(x);
}
double unary_gamma_Real64(double x) {
  return evaluate<unary::gamma, Plain>(x);
}
float *unary_gamma_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::gamma, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_gamma_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::gamma, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_gamma_Integer8(int8_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
uint8_t checked_unary_gamma_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
int16_t checked_unary_gamma_Integer16(int16_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
uint16_t checked_unary_gamma_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
int32_t checked_unary_gamma_Integer32(int32_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
uint32_t checked_unary_gamma_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
int64_t checked_unary_gamma_Integer64(int64_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
uint64_t checked_unary_gamma_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::gamma, Checked>(x);
}
uint16_t *checked_unary_gamma_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::gamma, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_gamma_Real32(float x) {
  return evaluate<unary::gamma, Checked>(x);
}
double checked_unary_gamma_Real64(double x) {
  return evaluate<unary::gamma, Checked>(x);
}
float *checked_unary_gamma_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::gamma, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_gamma_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::gamma, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_loggamma_Integer8(int8_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
uint8_t unary_loggamma_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
int16_t unary_loggamma_Integer16(int16_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
uint16_t unary_loggamma_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
int32_t unary_loggamma_Integer32(int32_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
uint32_t unary_loggamma_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
int64_t unary_loggamma_Integer64(int64_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
uint64_t unary_loggamma_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::loggamma, Plain>(x);
}
uint16_t *unary_loggamma_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::loggamma, Plain>(HalfPlace{result}, Real16{x});
}
float unary_loggamma_Real32(float x) {
  return evaluate<unary::loggamma, Plain>(x);
}
double unary_loggamma_Real64(double x) {
  return evaluate<unary::loggamma, Plain>(x);
}
float *unary_loggamma_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::loggamma, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_loggamma_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::loggamma, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_loggamma_Integer8(int8_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
uint8_t checked_unary_loggamma_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
int16_t checked_unary_loggamma_Integer16(int16_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
uint16_t checked_unary_loggamma_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
int32_t checked_unary_loggamma_Integer32(int32_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
uint32_t checked_unary_loggamma_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
int64_t checked_unary_loggamma_Integer64(int64_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
uint64_t checked_unary_loggamma_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::loggamma, Checked>(x);
}
uint16_t *checked_unary_loggamma_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::loggamma, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_loggamma_Real32(float x) {
  return evaluate<unary::loggamma, Checked>(x);
}
double checked_unary_loggamma_Real64(double x) {
  return evaluate<unary::loggamma, Checked>(x);
}
float *checked_unary_loggamma_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::loggamma, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_loggamma_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::loggamma, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

int8_t unary_logistic_Integer8(int8_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
uint8_t unary_logistic_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
int16_t unary_logistic_Integer16(int16_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
uint16_t unary_logistic_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
int32_t unary_logistic_Integer32(int32_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
uint32_t unary_logistic_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
int64_t unary_logistic_Integer64(int64_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
uint64_t unary_logistic_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::logistic, Plain>(x);
}
uint16_t *unary_logistic_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::logistic, Plain>(HalfPlace{result}, Real16{x});
}
float unary_logistic_Real32(float x) {
  return evaluate<unary::logistic, Plain>(x);
}
double unary_logistic_Real64(double x) {
  return evaluate<unary::logistic, Plain>(x);
}
float *unary_logistic_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::logistic, Plain>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *unary_logistic_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::logistic, Plain>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}
int8_t checked_unary_logistic_Integer8(int8_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
uint8_t checked_unary_logistic_UnsignedInteger8(uint8_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
int16_t checked_unary_logistic_Integer16(int16_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
uint16_t checked_unary_logistic_UnsignedInteger16(uint16_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
int32_t checked_unary_logistic_Integer32(int32_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
uint32_t checked_unary_logistic_UnsignedInteger32(uint32_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
int64_t checked_unary_logistic_Integer64(int64_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
uint64_t checked_unary_logistic_UnsignedInteger64(uint64_t x) {
  return evaluate<unary::logistic, Checked>(x);
}
uint16_t *checked_unary_logistic_Real16(uint16_t *result, uint16_t x) {
  return evaluateInto<unary::logistic, Checked>(HalfPlace{result}, Real16{x});
}
float checked_unary_logistic_Real32(float x) {
  return evaluate<unary::logistic, Checked>(x);
}
double checked_unary_logistic_Real64(double x) {
  return evaluate<unary::logistic, Checked>(x);
}
float *checked_unary_logistic_ComplexReal32(float *re, float *im, float x_re, float x_im) {
  return evaluateInto<unary::logistic, Checked>(ComplexPlace{re, im}, ComplexReal32{x_re, x_im});
}
double *checked_unary_logistic_ComplexReal64(double *re, double *im, double x_re, double x_im) {
  return evaluateInto<unary::logistic, Checked>(ComplexPlace{re, im}, ComplexReal64{x_re, x_im});
}

// The remaining complex operators: unit, remainder, sinc, logistic, the functions between circular and
// hyperbolic angles, and the Fibonacci and Lucas numbers continued to complex indices.
#pragma once

#include "circular.h"
#include "inverse.h"
#include "power.h"

namespace torvane::complexes {

// The unit of z: scaled by the larger part first, so that nothing overflows.
template <class R> Complex<R> sign(error &, Complex<R> z) {
  if (isZero(z)) return {R(0), R(0)};
  if (z.im == 0) return {signBit(z.re) ? R(-1) : R(1), R(0)};
  if (z.re == 0) return {R(0), signBit(z.im) ? R(-1) : R(1)};
  const R x = magnitudeOf(z.re), y = magnitudeOf(z.im);
  const Complex<R> direction = scaled(z, R(1) / (x < y ? y : x));
  return dividedBy(direction, library::hypot(direction.re, direction.im));
}

// x less y times the floor of x / y, y not 0: the divisor's sign, and never the divisor itself.
template <class R> R flooredRemainder(R x, R y) {
  const R r = library::fmod(x, y);
  if (!((y > 0 && r < 0) || (y < 0 && r > 0))) return r;
  const R sum = r + y;
  return sum == y ? R(0) : sum;
}

// From where `round` refuses: callers rely on the difference of one between the widths.
template <class R> constexpr R kWordLimit = isSame<R, Real64> ? R(2147483647.0) : R(2147483648.0);

// What `round` gives, as a real: the nearest integer, ties to even, and its range. The comparisons are those
// that a NaN passes without an exception: the others accrue one, which compilers drop where they see that a
// quotient is the constant NaN, and bulk tests would depend on what they see.
template <class R> R nearestWord(error &code, R x) {
  const R r = library::rint(x);
  if (__builtin_islessequal(r, R(-2147483648.0)) || __builtin_isgreaterequal(r, kWordLimit<R>))
    code = error::integerOverflow;
  return r;
}

// Real operands take the real rule; others lose the nearest Gaussian multiple of y.
template <class R> Complex<R> mod(error &code, Complex<R> x, Complex<R> y) {
  if (isZero(y)) {
    code = error::domain;
    return {};
  }
  if (x.im == 0 && y.im == 0) return {flooredRemainder(x.re, y.re), R(0)};
  const Complex<R> q = x / y;
  return x - y * Complex<R>{nearestWord(code, q.re), nearestWord(code, q.im)};
}

template <class R> Complex<R> sinc(error &code, Complex<R> z) {
  return isZero(z) ? Complex<R>{R(1), R(0)} : sin(code, z) / z;
}

template <class R> Complex<R> logistic(error &code, Complex<R> z) {
  return divide(code, Complex<R>{R(1), R(0)}, plusReal(exp(code, -z), R(1)));
}

template <class R> Complex<R> gudermannian(error &code, Complex<R> z) {
  return scaled(atan(code, tanh(code, scaled(z, R(0.5)))), R(2));
}

template <class R> Complex<R> inversegudermannian(error &code, Complex<R> z) {
  return scaled(atanh(code, tan(code, scaled(z, R(0.5)))), R(2));
}

template <class R> Complex<R> haversine(error &code, Complex<R> z) {
  const Complex<R> s = sin(code, scaled(z, R(0.5)));
  return s * s;
}

template <class R> Complex<R> inversehaversine(error &code, Complex<R> z) {
  return scaled(asin(code, sqrt(code, z)), R(2));
}

inline constexpr Real64 kGoldenRatio = 1.618033988749895, kSqrt5 = 2.23606797749979;

// cos(pi z) phi^-z: what Fibonacci numbers subtract and Lucas numbers add.
template <class R> Complex<R> alternatingTerm(error &code, Complex<R> z) {
  return cos(code, scaled(z, R(kPi))) * pow(code, R(kGoldenRatio), -z);
}

template <class R> Complex<R> fibonacci(error &code, Complex<R> z) {
  return dividedBy(pow(code, R(kGoldenRatio), z) - alternatingTerm(code, z), R(kSqrt5));
}

template <class R> Complex<R> lucasl(error &code, Complex<R> z) {
  return pow(code, R(kGoldenRatio), z) + alternatingTerm(code, z);
}

} // namespace torvane::complexes

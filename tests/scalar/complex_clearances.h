// How far a point is from where a formula loses accuracy by its nature: 1 far away, towards 0 there; 0 itself
// where nothing is measured.
#pragma once

#include "complex_accuracy.h"

#include <algorithm>
#include <cmath>

namespace torvane::test::measured {

using Clearance = double (*)(Point);

inline double distanceFromUnits(Point z) {
  return std::min({std::abs(z - 1.), std::abs(z + 1.), std::abs(z - Point(0, 1)), std::abs(z + Point(0, 1))});
}

inline double everywhere(Point) { return 1; }
// Of a negative integer mod1 gives 1, not 0: not measured there.
inline double offNegativeIntegers(Point z) {
  for (const double part : {z.real(), z.imag()})
    if (part < 0 && part == std::floor(part)) return 0;
  return 1;
}
// log |z| keeps its absolute accuracy only, and vanishes at 1.
inline double fromOne(Point z) { return std::min(1., std::abs(z - 1.)); }
// The square is rounded before its distance from -1 is taken: half the digits are lost at the branch point.
inline double rootFromUnits(Point z) { return std::sqrt(std::min(1., distanceFromUnits(z))); }
// The reciprocal is rounded before its distance from the branch point is taken, or the result vanishes.
inline double fromUnits(Point z) { return std::min(1., distanceFromUnits(z)); }
inline double fromDenominatorOfLogistic(Point z) { return std::min(1., std::abs(1. + std::exp(-z))); }
// tanh(z / 2) is rounded before its distance from +-i is taken; tan(z / 2) from +-1.
inline double fromZeroOfCosh(Point z) { return std::min(1., std::abs(std::cosh(z))); }
inline double fromZeroOfCos(Point z) { return std::min(1., std::abs(std::cos(z))); }
// pi z and z log phi are rounded before the cosine and the power are taken; and the two terms cancel.
inline double sharpness(Point z, double sign) {
  const double phi = std::sqrt(1.25) + 0.5;
  const Point rising = std::pow(phi, z), falling = std::pow(phi, -z), cosine = std::cos(M_PI * z);
  const double terms = std::abs(rising) + std::abs(falling) * std::max(1., std::abs(cosine));
  return std::abs(rising + sign * cosine * falling) / terms / (1 + std::abs(z));
}
inline double ofFibonacci(Point z) { return sharpness(z, -1); }
inline double ofLucas(Point z) { return sharpness(z, 1); }

using PairClearance = double (*)(Point, Point);

inline double alwaysClear(Point, Point) { return 1; }
inline double bothFromOne(Point base, Point z) { return std::min(fromOne(base), fromOne(z)); }
// The sum of the squares may cancel, and the logarithm of a unit near 1 keeps its absolute accuracy.
inline double ofAtan2(Point x, Point y) {
  const Point sum = x * x + y * y, unit = (y + Point(0, 1) * x) / std::sqrt(sum);
  return std::abs(sum) / (std::norm(x) + std::norm(y)) * std::min(1., std::abs(std::log(unit)));
}
// The exponent w log z is rounded before the exponential is taken.
inline double ofPow(Point z, Point w) { return 1 / (1 + std::abs(w * std::log(z))); }

// The multiple of the divisor is rounded before it is taken away. Near a tie, and beyond a quotient of a
// million, the exact quotient may go to another integer: not measured.
inline double ofMod(Point x, Point y) {
  const Point q = x / y, n(std::rint(q.real()), std::rint(q.imag()));
  for (const double part : {q.real(), q.imag()})
    if (std::abs(part) > 1e6 || std::abs(std::abs(part - std::rint(part)) - 0.5) < 1e-3) return 0;
  return std::abs(x - y * n) / (std::abs(x) + std::abs(y * n));
}

} // namespace torvane::test::measured

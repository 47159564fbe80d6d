// Points at which the complex operators are measured, by region.
#pragma once

#include "complex_oracles.h"

#include <random>

namespace torvane::test::measured {

enum Region { tiny, small, moderate, large, huge, circles, axes, kRegionCount };

// Far enough from the ends of the format that squares stay normal.
template <class R> inline constexpr double kTinyExponent = sizeof(R) == 8 ? -300 : -40;
template <class R> inline constexpr double kHugeExponent = sizeof(R) == 8 ? 500 : 60;
template <class R> inline constexpr double kCircleExponent = sizeof(R) == 8 ? -24 : -11;

class Points {
public:
  explicit Points(unsigned seed) : random(seed) {}

  template <class R> Value<R> in(Region region) {
    switch (region) {
    case tiny:
      return magnitudes<R>(kTinyExponent<R>, -12);
    case small:
      return magnitudes<R>(-12, -1);
    case moderate:
      return {R(uniform(-3, 3)), R(uniform(-3, 3))};
    case large:
      return magnitudes<R>(1, 4);
    case huge:
      return magnitudes<R>(4, kHugeExponent<R>);
    case circles:
      return onCircle<R>();
    default:
      return besideAxis<R>();
    }
  }

private:
  std::mt19937_64 random;

  double uniform(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  }
  template <class R> R signedPower(double low, double high) {
    const double magnitude = std::exp2(uniform(low, high));
    return R(random() & 1 ? magnitude : -magnitude);
  }
  template <class R> Value<R> magnitudes(double low, double high) {
    const R re = signedPower<R>(low, high);
    return {re, signedPower<R>(low, high)};
  }
  template <class R> Value<R> onCircle() {
    static constexpr double kCentres[][2] = {{1, 0}, {-1, 0}, {0, 1}, {0, -1}, {0, 0}};
    const auto &centre = kCentres[random() % std::size(kCentres)];
    const double radius = std::exp2(uniform(kCircleExponent<R>, -1)), angle = uniform(0, 2 * M_PI);
    return {R(centre[0] + radius * std::cos(angle)), R(centre[1] + radius * std::sin(angle))};
  }
  template <class R> Value<R> besideAxis() {
    const R along = R(uniform(-4, 4)), across = signedPower<R>(kTinyExponent<R>, -3);
    return random() & 1 ? Value<R>{along, across} : Value<R>{across, along};
  }
};

} // namespace torvane::test::measured

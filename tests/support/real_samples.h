// Reals worth trying: every special value, the edges of the format, and random bit patterns of every
// magnitude.
#pragma once

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

namespace torvane::test {

template <class R> std::vector<R> specialReals() {
  using Limits = std::numeric_limits<R>;
  std::vector<R> values;
  for (const R x : {R(0), Limits::denorm_min(), Limits::min(), R(0.25), R(0.5), R(1), R(1.5), R(2), R(2.5), R(3), R(4),
                    R(1e10), Limits::max() / 2, Limits::max(), Limits::infinity(), Limits::quiet_NaN(),
                    std::nextafter(R(1), R(2)), std::nextafter(R(1), R(0)), std::nextafter(Limits::min(), R(0))})
    values.insert(values.end(), {x, -x});
  return values;
}

// Random finite values; the exponent is uniform.
template <class R> std::vector<R> randomReals(size_t count, unsigned seed) {
  std::mt19937_64 random(seed);
  std::vector<R> values;
  while (values.size() < count) {
    const uint64_t bits = random();
    R value;
    std::memcpy(&value, &bits, sizeof value);
    if (std::isfinite(value)) values.push_back(value);
  }
  return values;
}

// Equal bits, or both a NaN: payloads are free.
template <class R> bool sameReal(R x, R y) {
  if (x != x || y != y) return x != x && y != y;
  return std::memcmp(&x, &y, sizeof x) == 0;
}

} // namespace torvane::test

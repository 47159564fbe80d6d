#include "conversion_values.h"

#include "support/integer_samples.h"
#include "support/real_samples.h"

#include <cstring>

namespace torvane::test {

namespace {

template <class T> Bytes bytesOf(const std::vector<T> &values) {
  Bytes bytes(values.size() * sizeof(T));
  std::memcpy(bytes.data(), values.data(), bytes.size());
  return bytes;
}

template <class R> void addAround(std::vector<R> &values, R x) {
  for (const R v : {x, std::nextafter(x, R(0)), std::nextafter(x, 2 * x)})
    values.insert(values.end(), {v, -v});
}

template <class R> std::vector<R> reals() {
  std::vector<R> values = specialReals<R>();
  for (int k : {7, 8, 15, 16, 22, 23, 24, 31, 32, 51, 52, 53, 62, 63, 64, 127})
    for (const double step : {-1.5, -1.0, -0.75, -0.5, -0.25, 0.0, 0.5, 1.0})
      addAround(values, static_cast<R>(std::ldexp(1.0, k) + step));
  for (const double x : {0.5, 1.0, 1.5, 2.5, 3.0, 100.0, 126.5, 1e-50, 1e300, 1.1754943508222875e-38,
                         3.4028234663852886e38, 3.4028235e38, 3.40282356779733e38})
    addAround(values, static_cast<R>(std::min(x, double(std::numeric_limits<R>::max()))));
  for (int bits = 1; bits < 53; bits += 3) // an integer but for some last bits
    values.insert(values.end(), {static_cast<R>(3 + std::ldexp(1.0, bits - 52)),
                                 static_cast<R>(-7 + std::ldexp(1.0, bits - 51))});
  for (const R x : randomReals<R>(40, 7)) values.push_back(x);
  std::mt19937_64 random(3);
  for (int k = 0; k < 40; ++k)
    values.push_back(static_cast<R>(double(int64_t(random())) / std::ldexp(1.0, int(random() % 64))));
  return values;
}

// Every tenth real with imaginary parts from none to as large.
template <class R> std::vector<R> complexes() {
  std::vector<R> parts;
  const std::vector<R> values = reals<R>();
  for (size_t i = 0; i < values.size(); i += i % 3 == 0 ? 7 : 5) {
    const R re = values[i], tiny = std::fabs(re) * std::numeric_limits<R>::epsilon();
    for (const R im : {R(0), -R(0), R(1e-30), tiny, -tiny, tiny / 4, tiny * 64, re, R(-2.5),
                       values[(i * 31) % values.size()], std::numeric_limits<R>::quiet_NaN(),
                       std::numeric_limits<R>::infinity()})
      parts.insert(parts.end(), {re, im});
  }
  return parts;
}

template <class T> Bytes integers() { return bytesOf(boundaryValues<T>(3, 60)); }

} // namespace

Bytes specialElements(mint tag) {
  using Maker = Bytes (*)();
  constexpr Maker makers[] = {integers<int8_t>,
                              integers<uint8_t>,
                              integers<int16_t>,
                              integers<uint16_t>,
                              integers<int32_t>,
                              integers<uint32_t>,
                              integers<int64_t>,
                              integers<uint64_t>,
                              [] { return bytesOf(reals<float>()); },
                              [] { return bytesOf(reals<double>()); },
                              [] { return bytesOf(complexes<float>()); },
                              [] { return bytesOf(complexes<double>()); }};
  return makers[tag - 1]();
}

Bytes everyElement(mint tag) {
  switch (tag) {
  case 1:
    return bytesOf(everyValue<int8_t>());
  case 2:
    return bytesOf(everyValue<uint8_t>());
  case 3:
    return bytesOf(everyValue<int16_t>());
  default:
    return bytesOf(everyValue<uint16_t>());
  }
}

} // namespace torvane::test

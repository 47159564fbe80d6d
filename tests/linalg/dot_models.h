// Slow and obvious dot products: one sum after another, from 0 in the order of the index.
#pragma once

#include "runtime/types.h"
#include "support/exact_integer.h"
#include "support/tensor_builders.h"

#include <cmath>
#include <cstring>
#include <ostream>
#include <random>
#include <type_traits>
#include <vector>

// Beside their type, where the standard library and GoogleTest look for them.
inline bool operator==(mcomplex a, mcomplex b) { return a.re == b.re && a.im == b.im; }
inline std::ostream &operator<<(std::ostream &out, mcomplex z) {
  return out << z.re << " + " << z.im << " i";
}

namespace torvane::test {

constexpr mint kChecks = 6;

// Rounding differs with the order of additions for almost every list of these.
class Samples {
public:
  explicit Samples(uint64_t seed) : random(seed) {}
  mint below(mint bound) { return mint(random() % uint64_t(bound)); }
  mint bits(mint count) { return count == 0 ? 0 : mint(uint32_t(random())) >> (32 - count); }
  mreal real() { return std::ldexp(mreal(int64_t(random())), -60 + below(5)); }

  template <class T> T value(mint bitsOfIntegers = 9) {
    if constexpr (std::is_same_v<T, mint>)
      return bits(bitsOfIntegers);
    else if constexpr (std::is_same_v<T, mreal>)
      return real();
    else
      return {real(), real()};
  }
  template <class T> std::vector<T> list(size_t count, mint bitsOfIntegers = 9) {
    std::vector<T> values(count);
    for (T &one : values) one = value<T>(bitsOfIntegers);
    return values;
  }
  template <class T> Tensor tensor(const Extents &extents, mint bitsOfIntegers = 9) {
    Tensor made = newTensor(typeOf<T>(), extents);
    for (mint k = 0; k < made->elementCount; ++k) elements<T>(made)[k] = value<T>(bitsOfIntegers);
    return made;
  }

private:
  std::mt19937_64 random;
};

// Each product and each sum is stored, so that none of them is fused with the next.
inline void addProduct(mint &sum, mint x, mint y) { sum = mint(uint32_t(sum) + uint32_t(x) * uint32_t(y)); }
inline void addProduct(mreal &sum, mreal x, mreal y) {
  const volatile mreal product = x * y;
  sum = sum + product;
}
inline void addProduct(mcomplex &sum, mcomplex x, mcomplex y) {
  const volatile mreal rr = x.re * y.re, ii = x.im * y.im, ri = x.re * y.im, ir = x.im * y.re;
  const volatile mreal re = rr - ii, im = ir + ri;
  sum = {sum.re + re, sum.im + im};
}

// Elements of a vector in the order of the walk.
template <class T> std::vector<T> walked(const std::vector<T> &data, mint stride, mint count) {
  std::vector<T> values;
  const ptrdiff_t start = stride < 0 ? ptrdiff_t{1 - count} * stride : 0;
  for (mint k = 0; k < count; ++k) values.push_back(data[size_t(start + ptrdiff_t{k} * stride)]);
  return values;
}

template <class T> T modelDot(const std::vector<T> &x, const std::vector<T> &y) {
  T sum = {};
  for (size_t k = 0; k < x.size(); ++k) addProduct(sum, x[k], y[k]);
  return sum;
}

template <class T> std::vector<T> modelProduct(const T *a, const T *b, mint m, mint k, mint n) {
  std::vector<T> result;
  for (mint i = 0; i < m; ++i)
    for (mint j = 0; j < n; ++j) {
      T sum = {};
      for (mint p = 0; p < k; ++p) addProduct(sum, a[i * k + p], b[p * n + j]);
      result.push_back(sum);
    }
  return result;
}

// Whether a checked sum fails, and what it is: below 8 products every one and every partial sum is tested,
// from there on every product and the whole.
struct CheckedSum {
  bool fails;
  mint value;
};
inline CheckedSum modelChecked(const std::vector<mint> &x, const std::vector<mint> &y) {
  Exact sum = Exact::of(0);
  bool fails = false;
  for (size_t k = 0; k < x.size(); ++k) {
    const Exact product = Exact::of(x[k]) * Exact::of(y[k]);
    sum = sum + product;
    fails = fails || product.isRefused<mint>() || (x.size() < 8 && sum.isRefused<mint>());
  }
  return {fails || sum.isRefused<mint>(), sum.wrapped<mint>()};
}

// Whether a sum of so many products, in any order and fused or not, can be this far from the model's.
inline bool isNear(mreal value, mreal expected, mreal magnitudes, size_t products) {
  return std::fabs(value - expected) <= 2 * mreal(products + 2) * 0x1p-53 * magnitudes;
}
inline bool areNear(const std::vector<mreal> &x, const std::vector<mreal> &y, mreal value) {
  mreal magnitudes = 0;
  for (size_t k = 0; k < x.size(); ++k) magnitudes += std::fabs(x[k] * y[k]);
  return isNear(value, modelDot(x, y), magnitudes, x.size());
}
inline bool areNear(const std::vector<mcomplex> &x, const std::vector<mcomplex> &y, mcomplex value) {
  mreal magnitudes = 0;
  for (size_t k = 0; k < x.size(); ++k)
    magnitudes += (std::fabs(x[k].re) + std::fabs(x[k].im)) * (std::fabs(y[k].re) + std::fabs(y[k].im));
  const mcomplex expected = modelDot(x, y);
  return isNear(value.re, expected.re, magnitudes, 2 * x.size()) &&
         isNear(value.im, expected.im, magnitudes, 2 * x.size());
}

} // namespace torvane::test

// Exact integers of up to 160 bits, sign and magnitude, by the school methods: the oracle of integer
// arithmetic. It shares nothing with the overflow builtins it checks, and exists on both targets.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace torvane::test {

class Exact {
public:
  Exact(uint64_t magnitude, bool isNegative) : limbs{uint32_t(magnitude), uint32_t(magnitude >> 32)} {
    negative = isNegative && magnitude != 0;
  }
  template <class T> static Exact of(T value) {
    const bool negative = value < T(0);
    const uint64_t bits = static_cast<uint64_t>(value); // sign-extended
    return Exact(negative ? 0 - bits : bits, negative);
  }

  friend Exact operator-(Exact x) {
    x.negative = !x.negative && !x.isZero();
    return x;
  }
  friend Exact operator+(const Exact &x, const Exact &y) {
    if (x.negative == y.negative) return x.withMagnitude(add(x.limbs, y.limbs), x.negative);
    if (below(x.limbs, y.limbs)) return x.withMagnitude(difference(y.limbs, x.limbs), y.negative);
    return x.withMagnitude(difference(x.limbs, y.limbs), x.negative);
  }
  friend Exact operator-(const Exact &x, const Exact &y) { return x + (-y); }
  friend Exact operator*(const Exact &x, const Exact &y) {
    Limbs product{};
    for (std::size_t i = 0; i < x.limbs.size(); ++i) {
      uint64_t carry = 0;
      for (std::size_t j = 0; i + j < product.size(); ++j) {
        const uint64_t sum = uint64_t{x.limbs[i]} * y.limbs[j] + product[i + j] + carry;
        product[i + j] = uint32_t(sum);
        carry = sum >> 32;
      }
    }
    return x.withMagnitude(product, x.negative != y.negative);
  }

  // Whether the value lies in T.
  template <class T> bool fits() const {
    constexpr bool isSigned = T(-1) < T(0);
    if (negative && !isSigned) return false;
    for (std::size_t i = 2; i < limbs.size(); ++i)
      if (limbs[i] != 0) return false;
    const uint64_t top = uint64_t{1} << (8 * sizeof(T) - 1), low = low64();
    if (isSigned) return negative ? low <= top : low < top;
    return low <= top - 1 + top;
  }
  // The low bits, as two's complement.
  template <class T> T wrapped() const { return static_cast<T>(negative ? 0 - low64() : low64()); }
  // Out of T, or T's most negative value: what checked arithmetic refuses.
  template <class T> bool isRefused() const {
    if (!fits<T>()) return true;
    return T(-1) < T(0) && negative && low64() == uint64_t{1} << (8 * sizeof(T) - 1);
  }

private:
  using Limbs = std::array<uint32_t, 5>;

  uint64_t low64() const { return limbs[0] | uint64_t{limbs[1]} << 32; }
  bool isZero() const { return limbs == Limbs{}; }
  Exact withMagnitude(const Limbs &magnitude, bool isNegative) const {
    Exact result(0, false);
    result.limbs = magnitude;
    result.negative = isNegative && magnitude != Limbs{};
    return result;
  }
  static bool below(const Limbs &x, const Limbs &y) {
    for (std::size_t i = x.size(); i-- > 0;)
      if (x[i] != y[i]) return x[i] < y[i];
    return false;
  }
  static Limbs add(const Limbs &x, const Limbs &y) {
    Limbs sum{};
    uint64_t carry = 0;
    for (std::size_t i = 0; i < sum.size(); ++i) {
      carry += uint64_t{x[i]} + y[i];
      sum[i] = uint32_t(carry);
      carry >>= 32;
    }
    return sum;
  }
  static Limbs difference(const Limbs &x, const Limbs &y) {
    Limbs rest{};
    int64_t borrow = 0;
    for (std::size_t i = 0; i < rest.size(); ++i) {
      borrow += int64_t{x[i]} - y[i];
      rest[i] = uint32_t(borrow);
      borrow >>= 32;
    }
    return rest;
  }

  Limbs limbs;
  bool negative;
};

} // namespace torvane::test

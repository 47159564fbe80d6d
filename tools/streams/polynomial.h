// Polynomials over GF(2) of degree below 576, as bits: coefficient i is bit i mod 64 of word i / 64.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace streams {

inline constexpr int kPolynomialWords = 9;

using Polynomial = std::array<uint64_t, kPolynomialWords>;

inline bool coefficient(const Polynomial &p, int i) {
  return ((p[static_cast<size_t>(i / 64)] >> (i % 64)) & 1) != 0;
}

inline Polynomial monomial(int degree) {
  Polynomial p = {};
  p[static_cast<size_t>(degree / 64)] = uint64_t{1} << (degree % 64);
  return p;
}

// -1 for 0. Words from `words` on are known to be zero.
inline int degreeOf(const Polynomial &p, int words = kPolynomialWords) {
  for (int i = words - 1; i >= 0; --i)
    if (const uint64_t word = p[static_cast<size_t>(i)]; word != 0)
      return 64 * i + 63 - std::countl_zero(word);
  return -1;
}

// p += q t^shift. The product's words from `words` on are known to be zero.
inline void addShifted(Polynomial &p, const Polynomial &q, int shift, int words = kPolynomialWords) {
  const int whole = shift / 64, bits = shift % 64;
  for (int i = words - 1; i >= whole; --i) {
    const auto from = static_cast<size_t>(i - whole);
    uint64_t moved = q[from] << bits;
    if (bits != 0 && from > 0) moved |= q[from - 1] >> (64 - bits);
    p[static_cast<size_t>(i)] ^= moved;
  }
}

inline Polynomial sum(Polynomial p, const Polynomial &q) {
  addShifted(p, q, 0);
  return p;
}

// Products by polynomials of at most `modulus`' degree less 1, and that modulo it.
inline Polynomial productModulo(const Polynomial &p, const Polynomial &q, const Polynomial &modulus) {
  const int degree = degreeOf(modulus);
  Polynomial product = {};
  for (int i = degreeOf(p); i >= 0; --i) {
    Polynomial doubled = {};
    addShifted(doubled, product, 1);
    if (coefficient(doubled, degree)) addShifted(doubled, modulus, 0);
    product = coefficient(p, i) ? sum(doubled, q) : doubled;
  }
  return product;
}

// Without a modulus, for degrees that add up to less than 576.
inline Polynomial product(const Polynomial &p, const Polynomial &q) {
  Polynomial result = {};
  for (int i = degreeOf(p); i >= 0; --i)
    if (coefficient(p, i)) addShifted(result, q, i);
  return result;
}

// 1 / p modulo an irreducible modulus, by Euclid: each remainder is a multiple of p by its factor.
inline Polynomial inverseModulo(const Polynomial &p, const Polynomial &modulus) {
  Polynomial rest = modulus, smaller = p, factor = {}, smallerFactor = monomial(0);
  while (degreeOf(smaller) > 0) {
    const int shift = degreeOf(rest) - degreeOf(smaller);
    if (shift < 0) {
      std::swap(rest, smaller);
      std::swap(factor, smallerFactor);
      continue;
    }
    addShifted(rest, smaller, shift);
    addShifted(factor, smallerFactor, shift);
  }
  return smallerFactor;
}

} // namespace streams

#include "twist_search.h"

#include "twister.h"

namespace streams {

namespace {

constexpr uint32_t kSeed = 4172;
constexpr int kCandidates = 10000;
constexpr int kLargestSmallDegree = 9;

uint32_t residueOf(const Polynomial &p, uint32_t modulus) {
  const int degree = 31 - std::countl_zero(modulus);
  uint32_t rest = 0;
  for (int i = degreeOf(p); i >= 0; --i) {
    rest = (rest << 1) | (coefficient(p, i) ? 1u : 0u);
    if (((rest >> degree) & 1) != 0) rest ^= modulus;
  }
  return rest;
}

Polynomial small(uint32_t bits) {
  Polynomial p = {};
  p[0] = bits;
  return p;
}

// The 127 irreducible polynomials of degree 1 to 9, by the sieve.
std::vector<uint32_t> irreducibles() {
  std::vector<uint32_t> found;
  for (uint32_t p = 2; p < uint32_t{1} << (kLargestSmallDegree + 1); ++p) {
    bool irreducible = true;
    for (uint32_t q : found) irreducible = irreducible && residueOf(small(p), q) != 0;
    if (irreducible) found.push_back(p);
  }
  return found;
}

using Wide = std::array<uint64_t, 2 * kPolynomialWords + 1>;

void addShiftedWide(Wide &wide, const Polynomial &p, int shift) {
  const auto whole = static_cast<size_t>(shift / 64);
  const int bits = shift % 64;
  for (size_t j = 0; j < kPolynomialWords; ++j) {
    wide[j + whole] ^= p[j] << bits;
    if (bits != 0) wide[j + whole + 1] ^= p[j] >> (64 - bits);
  }
}

// Bits spread apart, then reduced from the top.
Polynomial squareModulo(const Polynomial &p, const Polynomial &modulus) {
  const int degree = degreeOf(modulus);
  Wide wide = {};
  for (int i = 0; i < degree; ++i)
    if (coefficient(p, i)) wide[static_cast<size_t>(2 * i / 64)] |= uint64_t{1} << (2 * i % 64);
  for (int i = 2 * degree - 2; i >= degree; --i)
    if (((wide[static_cast<size_t>(i / 64)] >> (i % 64)) & 1) != 0) addShiftedWide(wide, modulus, i - degree);
  Polynomial result;
  for (size_t j = 0; j < kPolynomialWords; ++j) result[j] = wide[j];
  return result;
}

} // namespace

// 521 is prime: a polynomial of this degree that divides t^(2^521) - t and has no root is irreducible; a root
// at 0 or 1 is what the two first lines exclude.
bool hasLongestPeriod(uint32_t twist) {
  const Polynomial p = characteristicPolynomial(twist);
  if (residueOf(p, 2) == 0 || residueOf(p, 3) == 0) return false;
  Polynomial power = monomial(1);
  for (int i = 0; i < kExponent; ++i) power = squareModulo(power, p);
  return power == monomial(1);
}

TwistSearch::TwistSearch() : words(kSeed) {
  const Polynomial constant = constantPart();
  for (uint32_t p : irreducibles()) {
    Factor factor = {residueOf(constant, p), {}};
    for (int bit = 0; bit < kWordBits; ++bit) factor.residues[bit] = residueOf(linearPart(bit), p);
    smallFactors.push_back(factor);
  }
}

bool TwistSearch::hasSmallFactor(uint32_t twist) const {
  for (const Factor &factor : smallFactors) {
    uint32_t residue = factor.constantResidue;
    for (int bit = 0; bit < kWordBits; ++bit)
      if (((twist >> bit) & 1) != 0) residue ^= factor.residues[bit];
    if (residue == 0) return true;
  }
  return false;
}

uint32_t TwistSearch::find(uint32_t number) {
  for (int i = 0; i < kCandidates; ++i) {
    const uint32_t twist = (static_cast<uint32_t>(words()) & 0xFFFF0000) | 0x80000000 | number;
    if (hasSmallFactor(twist)) continue;
    // Words of a state that another test of the period would have begun with: part of the sequence.
    words.discard(kStateWords);
    if (hasLongestPeriod(twist)) return twist;
  }
  return 0;
}

} // namespace streams

// Square roots of whole arrays are correctly rounded at every level, however they are computed: held on all
// numbers whose root lies so close to a midpoint between two neighbours that a small error could tip it, and
// on random ones. The oracle is the processor's own root of one number.
#include "at_levels.h"

#include <cfenv>
#include <cmath>
#include <random>
#include <torvane/machfuncs.h>
#include <torvane/startup.h>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

const mint kDense[2] = {1, 1};

class SquareRoots : public AtLevel {};
INSTANTIATE_TEST_SUITE_P(AtLevel, SquareRoots, testing::Range(mint{0}, levelsToTest()));

void expectRoots(const std::vector<mreal> &x) {
  std::vector<mreal> roots(x.size());
  ASSERT_EQ(machfunc_d_sqrt(roots.data(), x.data(), mint(x.size()), kDense, 0), 0);
  for (size_t k = 0; k < x.size(); ++k) {
    volatile mreal one = x[k];
    ASSERT_EQ(roots[k], std::sqrt(one)) << std::hexfloat << x[k];
  }
}

// One s with s * s = c modulo 2^bits, for c = 1 modulo 8, bit by bit; -s and either plus 2^(bits - 1) are the
// others.
uint64_t rootModulo(uint64_t c, int bits) {
  uint64_t s = 1;
  for (int bit = 3; bit < bits; ++bit)
    if (((s * s - c) >> bit & 1) != 0) s += uint64_t{1} << (bit - 1);
  return s;
}

// Midpoints m = M / 2^53 between neighbours in [1, 2) have M odd. The square of one is a multiple of 2^-106,
// and c / 2^106 away from a number x in [1, 4), of 53 bits, exactly if M * M = c modulo 2^54 (x < 2) or 2^55.
std::vector<uint64_t> midpointsNearRoots(int distance) {
  constexpr uint64_t one = uint64_t{1} << 53;
  std::vector<uint64_t> found;
  for (int64_t c = -distance; c <= distance; ++c) {
    if ((c & 7) != 1) continue;
    for (const int bits : {54, 55}) {
      const uint64_t modulus = uint64_t{1} << bits, s = rootModulo(uint64_t(c), bits);
      for (const uint64_t root : {s, 0 - s, s + modulus / 2, modulus / 2 - s}) {
        const uint64_t m = root & (modulus - 1);
        const bool isBelow2 = static_cast<long double>(m) * m < 2 * static_cast<long double>(one) * one;
        if (m >= one && m < 2 * one && isBelow2 == (bits == 54)) found.push_back(m);
      }
    }
  }
  return found;
}

// The numbers around the square of a midpoint.
std::vector<mreal> hardNumbers() {
  std::vector<mreal> numbers;
  for (const uint64_t m : midpointsNearRoots(512)) {
    const long double midpoint = std::ldexp(static_cast<long double>(m), -53);
    const auto x = static_cast<mreal>(midpoint * midpoint);
    for (const mreal near : {std::nextafter(x, 0.0), x, std::nextafter(x, 8.0)}) numbers.push_back(near);
  }
  return numbers;
}

TEST(MidpointsNearRoots, AreAsCloseAsTheySay) {
  const std::vector<uint64_t> midpoints = midpointsNearRoots(512);
  EXPECT_GT(midpoints.size(), 150U);
  for (const uint64_t m : midpoints) {
    const int bits = static_cast<long double>(m) * m < std::ldexp(1.0L, 107) ? 54 : 55;
    const uint64_t rest = (m * m) & ((uint64_t{1} << bits) - 1);
    EXPECT_TRUE(rest <= 512 || rest >= (uint64_t{1} << bits) - 512) << m;
  }
}

TEST_P(SquareRoots, OfTheHardestNumbersAreCorrectlyRoundedAtEveryExponent) {
  const std::vector<mreal> hard = hardNumbers();
  for (const int exponent : {-1074, -1022, -902, -900, -898, -500, -2, 0, 2, 500, 896, 898, 900, 1020}) {
    std::vector<mreal> x = hard;
    for (mreal &number : x) number = std::ldexp(number, exponent);
    expectRoots(x);
  }
}

TEST_P(SquareRoots, OfRandomNumbersAreCorrectlyRounded) {
  std::mt19937_64 random(11);
  std::vector<mreal> x(200'000);
  for (mreal &number : x) number = std::ldexp(1 + mreal(random() >> 12) * 0x1p-52, int(random() % 4) - 2);
  expectRoots(x);
  for (mreal &number : x) number = std::ldexp(number, int(random() % 2000) - 1000);
  expectRoots(x);
}

TEST_P(SquareRoots, OfRareNumbersAmongOthersAreThoseOfEachAlone) {
  for (const mreal rare : {0.0, -0.0, 0x1p-1074, 0x1.8p-900, 0x1p900, 0x1p1023, HUGE_VAL})
    for (size_t place = 0; place < 40; ++place) {
      std::vector<mreal> x(40, 2.0);
      x[place] = rare;
      expectRoots(x);
    }
}

TEST_P(SquareRoots, RoundAsTheProcessorIsTold) {
  std::vector<mreal> x(64);
  for (size_t k = 0; k < x.size(); ++k) x[k] = mreal(k) + 2;
  for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
    std::fesetround(mode);
    expectRoots(x);
    std::fesetround(FE_TONEAREST);
  }
}

} // namespace

// Tolerant comparison against exact integer arithmetic on the bit patterns; the memory of the last tolerance;
// chains against a walk over all pairs.
#include "scalar/tolerance.h"
#include "support/real_samples.h"

#include <gtest/gtest.h>
#include <thread>
#include <vector>

using namespace torvane::test;

namespace {

template <class R> constexpr int kBits = std::numeric_limits<R>::digits;

mint compare(double tolerance, double x, double y) { return CompareDoubleDouble(tolerance, x, y); }
mint compare(float tolerance, float x, float y) { return CompareFloatFloat(tolerance, x, y); }
mint near1(double tolerance, double x, double y) { return near1_double(tolerance, x, y); }
mint near1(float tolerance, float x, float y) { return near1_float(tolerance, x, y); }
double shiftFactor(double tolerance) { return ToleranceShiftFactor(tolerance); }
float shiftFactor(float tolerance) { return ToleranceShiftFactorFloat(tolerance); }

// |x| as an integer times 2^exponent.
struct Scaled {
  int64_t significand;
  int exponent;
};
template <class R> Scaled scaled(R x) {
  int exponent = 0;
  const R fraction = std::frexp(std::fabs(x), &exponent);
  return {static_cast<int64_t>(std::ldexp(fraction, kBits<R>)), exponent - kBits<R>};
}

// Whether |x - y| < max(|x|, |y|) * 2^(bits - significand) for two finite values of one sign and 0 < bits <=
// the significand less 1: exact, since values further apart than a factor of 4 cannot be that close.
template <class R> bool areClose(int bits, R x, R y) {
  Scaled a = scaled(x), b = scaled(y);
  if (std::abs(a.exponent - b.exponent) > 2) return false;
  const int exponent = std::min(a.exponent, b.exponent);
  const int64_t m = a.significand << (a.exponent - exponent), n = b.significand << (b.exponent - exponent);
  return std::abs(m - n) <= (std::max(m, n) - 1) >> (kBits<R> - bits);
}

template <class R> mint modelled(int bits, R x, R y) {
  const mint order = x < y ? -1 : 1;
  if (x == y) return 0;
  if (x == 0 || y == 0 || (x < 0) != (y < 0) || bits <= 0) return order;
  if (bits >= kBits<R>) return 0;
  return std::isfinite(x) && std::isfinite(y) && areClose(bits, x, y) ? 0 : order;
}

// Values a few units, a few bits or a few binades from x.
template <class R> std::vector<R> neighbours(R x, std::mt19937_64 &random) {
  std::vector<R> values = {
      x, std::nextafter(x, R(INFINITY)), std::nextafter(x, R(-INFINITY)), x / 2, x * 2, x * 4, -x, R(0)};
  for (int bits = 0; bits <= kBits<R>; ++bits) {
    const R step = std::ldexp(x, bits - kBits<R>);
    values.insert(values.end(), {x + step, x - step, x + step * R(random() % 1000) / 500});
  }
  return values;
}

template <class R> class Tolerance : public testing::Test {};
using BothWidths = testing::Types<float, double>;
TYPED_TEST_SUITE(Tolerance, BothWidths);

TYPED_TEST(Tolerance, WholeBitsDecideAsExactArithmeticDoes) {
  using R = TypeParam;
  std::mt19937_64 random(1);
  std::vector<R> values = randomReals<R>(300, 2);
  for (const R x : specialReals<R>())
    if (x == x) values.push_back(x);
  int64_t equal = 0, apart = 0;
  for (const R x : values)
    for (const R y : neighbours(x, random))
      for (int bits = -1; bits <= kBits<R> + 1 && y == y; ++bits) {
        const mint expected = modelled(bits, x, y);
        ++(expected == 0 ? equal : apart);
        ASSERT_EQ(compare(R(bits), x, y), expected) << bits << " bits, " << std::hexfloat << x << " " << y;
        ASSERT_EQ(compare(R(bits), y, x), -expected) << bits << " bits, " << std::hexfloat << y << " " << x;
        ASSERT_EQ(near1(R(bits), x, y), expected == 0);
      }
  EXPECT_GT(equal, 10000); // both answers are tried in earnest
  EXPECT_GT(apart, 10000);
}

TYPED_TEST(Tolerance, FractionsOfABitLieBetweenWholeOnes) {
  using R = TypeParam;
  for (const R x : {R(1), R(1.75), R(0.375), R(-3), R(-0.01), R(1e20)})
    for (int bits = 3; bits < kBits<R> - 1; ++bits) {
      // Apart by 2^(bits + 1/2) of the larger value's smallest fractions.
      const R y = x - R(std::ldexp(std::sqrt(2.0), bits - kBits<R>)) * x;
      const mint order = x < y ? -1 : 1;
      EXPECT_EQ(compare(R(bits) + R(0.25), x, y), order) << bits << " " << x;
      EXPECT_EQ(compare(R(bits) + R(0.25), y, x), -order) << bits << " " << x;
      EXPECT_EQ(compare(R(bits) + R(0.75), x, y), 0) << bits << " " << x;
      EXPECT_EQ(compare(R(bits) + R(0.75), y, x), 0) << bits << " " << x;
    }
}

TYPED_TEST(Tolerance, ZeroEqualsZeroAloneAndNoToleranceCrossesSigns) {
  using R = TypeParam;
  const R tiny = std::numeric_limits<R>::denorm_min();
  for (const R tolerance : {R(-1), R(0), R(2), R(23.5), R(100)}) {
    EXPECT_EQ(compare(tolerance, R(0), R(-0.0)), 0);
    EXPECT_EQ(compare(tolerance, R(0), tiny), -1);
    EXPECT_EQ(compare(tolerance, R(0), -tiny), 1);
    EXPECT_EQ(compare(tolerance, tiny, R(0)), 1);
    EXPECT_EQ(compare(tolerance, -tiny, R(0)), -1);
    EXPECT_EQ(compare(tolerance, R(-1), R(1)), -1);
    EXPECT_EQ(compare(tolerance, R(1), R(-1)), 1);
  }
}

TEST(Tolerance, EndsOfTheScale) {
  EXPECT_EQ(CompareDoubleDouble(0, 1.0, 1.0 + 0x1p-52), -1);
  EXPECT_EQ(CompareDoubleDouble(2, 1.0, 1.0 + 0x1p-52), 0);
  EXPECT_EQ(CompareDoubleDouble(100, 1.0, 1e300), 0);
  EXPECT_EQ(CompareDoubleDouble(100, 1.0, HUGE_VAL), 0);
  EXPECT_EQ(CompareDoubleDouble(10, 1.0, HUGE_VAL), -1);
  EXPECT_EQ(CompareDoubleDouble(10, HUGE_VAL, HUGE_VAL), 0);
  EXPECT_EQ(CompareDoubleDouble(53, -1.0, -1e300), 0);
  EXPECT_EQ(CompareFloatFloat(24, -1.0f, -1e30f), 0);
  EXPECT_EQ(CompareFloatFloat(2, 1.0f, 1.0f + 0x1p-23f), 0);
  EXPECT_EQ(CompareFloatFloat(0, 1.0f, 1.0f + 0x1p-23f), -1);
}

// No comparison with a NaN is true: each value here follows from the order of the tests alone.
TYPED_TEST(Tolerance, NaNsFollowTheOrderOfTheTests) {
  using R = TypeParam;
  const R nan = std::numeric_limits<R>::quiet_NaN(), all = kBits<R>;
  EXPECT_EQ(compare(R(5), R(0), nan), -1);
  EXPECT_EQ(compare(R(5), nan, R(0)), -1);
  EXPECT_EQ(compare(R(5), R(-1), nan), -1);
  EXPECT_EQ(compare(R(5), nan, R(-1)), 1);
  EXPECT_EQ(compare(R(0), R(1), nan), -1);
  EXPECT_EQ(compare(R(0), nan, R(1)), -1);
  EXPECT_EQ(compare(all, R(1), nan), 0);
  EXPECT_EQ(compare(all, nan, nan), 0);
  EXPECT_EQ(compare(R(5), R(1), nan), 1);
  EXPECT_EQ(compare(R(5), nan, R(1)), 1);
  EXPECT_EQ(compare(nan, R(1), std::nextafter(R(1), R(2))), -1);
  EXPECT_EQ(compare(nan, R(1), R(1)), 0);
}

// Within one bit of the significand, values that differ by half the larger or more.
template <class R> struct FarPair {
  R x, y;
  mint order;
};
template <class R>
const FarPair<R> kFarPairs[] = {{1, R(2.5), -1},
                                {R(2.5), 1, 1},
                                {-1, R(-2.5), 1},
                                {R(0.125), R(0.3125), -1},
                                {R(-0.3125), R(-0.125), -1}};

TYPED_TEST(Tolerance, LastToleranceIsRememberedAndCallsEqualWhatANewOneTellsApart) {
  using R = TypeParam;
  const R wide = kBits<R> - R(0.5), next = std::nextafter(R(1), R(2));
  for (const FarPair<R> &pair : kFarPairs<R>) {
    ASSERT_EQ(compare(R(7), R(1), next), 0); // remembers 7
    EXPECT_EQ(compare(wide, pair.x, pair.y), pair.order) << pair.x;
    EXPECT_EQ(compare(wide, pair.x, pair.y), pair.order) << pair.x; // and was not remembered by that
    ASSERT_EQ(compare(wide, R(1), next), 0);
    EXPECT_EQ(compare(wide, pair.x, pair.y), 0) << pair.x;
    ASSERT_EQ(compare(R(0), R(1), next), -1); // an exact one is not remembered
    ASSERT_EQ(compare(R(60), R(1), next), 0); // nor one beyond the significand
    ASSERT_EQ(compare(R(8), R(3), R(3)), 0);  // nor one that equality did not come to
    EXPECT_EQ(compare(wide, pair.x, pair.y), 0) << pair.x;
    ASSERT_EQ(compare(R(8), R(3), std::nextafter(R(3), R(4))), 0);
    EXPECT_EQ(compare(wide, pair.x, pair.y), pair.order) << pair.x;
  }
}

TYPED_TEST(Tolerance, DifferenceThatEqualsTheLargerValueIsNeverTolerated) {
  using R = TypeParam;
  const R wide = kBits<R> - R(0.5), next = std::nextafter(R(1), R(2)), tiny = std::numeric_limits<R>::min();
  ASSERT_EQ(compare(wide, R(1), next), 0);
  EXPECT_EQ(compare(wide, tiny, R(1)), -1);
  EXPECT_EQ(compare(wide, R(1), tiny), 1);
  EXPECT_EQ(compare(wide, -tiny, R(-1)), 1);
}

TYPED_TEST(Tolerance, ConcurrentThreadsRememberTheirOwnTolerance) {
  using R = TypeParam;
  const R wide = kBits<R> - R(0.5), next = std::nextafter(R(1), R(2));
  std::vector<std::thread> threads;
  std::vector<int> wrong(2);
  for (int k = 0; k < 2; ++k)
    threads.emplace_back([&, k] {
      for (int round = 0; round < 20000; ++round) {
        compare(k == 0 ? wide : R(3), R(1), next);
        wrong[size_t(k)] += compare(wide, R(1), R(2.5)) != (k == 0 ? 0 : -1);
      }
    });
  for (std::thread &thread : threads) thread.join();
  EXPECT_EQ(wrong, std::vector<int>(2));
}

TYPED_TEST(Tolerance, ShiftFactorIsThePowerOfTwo) {
  using R = TypeParam;
  for (int bits = -1200; bits <= 1200; ++bits)
    ASSERT_EQ(shiftFactor(R(bits)), std::ldexp(R(1), bits - kBits<R>)) << bits;
  for (R bits = -30; bits < 60; bits += R(0.1)) {
    const R expected = R(exp2l(static_cast<long double>(bits) - kBits<R>));
    ASSERT_LE(std::fabs(shiftFactor(bits) - expected), 2 * std::ldexp(expected, 1 - kBits<R>)) << bits;
  }
}

TYPED_TEST(Tolerance, ShiftFactorTakesEveryReal) {
  using R = TypeParam;
  const R infinity = std::numeric_limits<R>::infinity(), max = std::numeric_limits<R>::max();
  EXPECT_EQ(shiftFactor(infinity), infinity);
  EXPECT_EQ(shiftFactor(max), infinity);
  EXPECT_EQ(shiftFactor(-max), 0);
  EXPECT_EQ(shiftFactor(-infinity), 0);
  EXPECT_TRUE(std::isnan(shiftFactor(std::numeric_limits<R>::quiet_NaN())));
}

TEST(Tolerance, PartOfAComplexIsNegligible) {
  EXPECT_EQ(near1_reim_mcomplex(1, 1.0, 1e-20), 1);
  EXPECT_EQ(near1_reim_mcomplex(-1, 1.0, 1e-20), 0);
  EXPECT_EQ(near1_reim_mcomplex(-1, 1.0, 0.0), 0);
  EXPECT_EQ(near1_reim_mcomplex(0, 1.0, 0.0), 1);
  EXPECT_EQ(near1_reim_mcomplex(0, 0.0, -0.0), 1);
  EXPECT_EQ(near1_reim_mcomplex(0, 1.0, 0x1p-60), 1); // lost in the difference
  // One unit below 1 is half a unit above 1/2: 2^-53 = 1 * 2^(0 - 53), not below it; two tolerated bits are
  // enough.
  for (const double x : {1.0, -1.0})
    for (const double y : {0x1p-53, -0x1p-53}) {
      EXPECT_EQ(near1_reim_mcomplex(0, x, y), 0);
      EXPECT_EQ(near1_reim_mcomplex(1, x, y), 1);
      EXPECT_EQ(near1_reim_mcomplex(2, x, 4 * y), 0);
      EXPECT_EQ(near1_reim_mcomplex(3, x, 4 * y), 1);
    }
  EXPECT_EQ(near1_reim_mcomplex(10, 1.0, 1.0), 0); // their difference is 0, which equals nothing else
  EXPECT_EQ(near1_reim_mcomplex(60, 1.0, 3.0), 0); // it has the other sign
  EXPECT_EQ(near1_reim_mcomplex(60, 3.0, 1.0), 1);
}

// ---- chains ----

using torvane::compareComplexes;
using torvane::compareReals;

mint compareReals(mint op, double tolerance, const std::vector<double> &values) {
  return compareReals(op, tolerance, mint(values.size()), values.data());
}

bool modelledChain(mint op, double tolerance, const std::vector<double> &values) {
  for (size_t i = 0; i < values.size(); ++i)
    for (size_t j = i + 1; j < values.size(); ++j) {
      const mint c = CompareDoubleDouble(tolerance, values[i], values[j]);
      const bool isAdjacent = j == i + 1, isSeen = tolerance != 0 || i == 0;
      if ((op == 1 || op == 5) && isSeen && c != 0) return false;
      if ((op == 2 || op == 8) && isSeen && c == 0) return false;
      if (op == 3 && isAdjacent && c != -1) return false;
      if (op == 4 && isAdjacent && c == 1) return false;
      if (op == 6 && isAdjacent && c == -1) return false;
      if (op == 7 && isAdjacent && c != 1) return false;
    }
  return true;
}

TEST(CompareReals, EveryShortChainOfNearAndFarValues) {
  const double choices[] = {1, 1 + 0x1p-52, 2, -1, NAN};
  for (const double tolerance : {0.0, -1.0, 3.0, 60.0})
    for (int code = 0; code < 5 * 5 * 5 * 5; ++code)
      for (size_t count = 0; count <= 4; ++count) {
        std::vector<double> values;
        for (int rest = code; values.size() < count; rest /= 5) values.push_back(choices[rest % 5]);
        for (mint op = 1; op <= 8; ++op)
          ASSERT_EQ(compareReals(op, tolerance, values), modelledChain(op, tolerance, values))
              << "operator " << op << ", tolerance " << tolerance << ", chain " << code;
      }
}

TEST(CompareReals, AtToleranceZeroLaterPairsAreNotCompared) {
  for (const mint op : {2, 8}) {
    EXPECT_EQ(compareReals(op, 0.0, {1, 2, 2}), 1);
    EXPECT_EQ(compareReals(op, -0.0, {1, 2, 2}), 1);
    EXPECT_EQ(compareReals(op, -1.0, {1, 2, 2}), 0);
    EXPECT_EQ(compareReals(op, 0.0, {2, 1, 2}), 0);
  }
}

// Equality up to some bits is not transitive: 1 equals both neighbours, which differ from each other.
TEST(CompareReals, ToleratedEqualityIsAskedOfEveryPair) {
  const double up = 1 + 0x1p-52, down = 1 - 0x1p-52;
  EXPECT_EQ(compareReals(1, 1.5, {1, up, down}), 0);
  EXPECT_EQ(compareReals(1, 2.5, {1, up, down}), 1);
}

TEST(CompareReals, FewerThanTwoValuesSatisfyEveryOperatorButAnUnknownOne) {
  for (mint op = 1; op <= 8; ++op) {
    EXPECT_EQ(compareReals(op, 0, {}), 1);
    EXPECT_EQ(compareReals(op, 0, {NAN}), 1);
    EXPECT_EQ(compareReals(op, 0, -3, nullptr), 1);
  }
  for (const mint op : {0, 9, -1, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(compareReals(op, 0, {}), 0);
    EXPECT_EQ(compareReals(op, 0, {1, 1}), 0);
  }
}

struct Answer {
  mint status, result;
  friend bool operator==(const Answer &, const Answer &) = default;
};
Answer compareComplexes(mint op, double tolerance, const std::vector<mcomplex> &values) {
  Answer answer = {-1, -1};
  answer.status = compareComplexes(op, tolerance, mint(values.size()), values.data(), &answer.result);
  return answer;
}

TEST(CompareComplexes, BothPartsDecideEquality) {
  const double up = 1 + 0x1p-52;
  for (const mint op : {1, 5}) {
    EXPECT_EQ(compareComplexes(op, 2, {{1, up}, {up, 1}, {1, 1}}), (Answer{0, 1}));
    EXPECT_EQ(compareComplexes(op, 0, {{1, up}, {1, up}}), (Answer{0, 1}));
    EXPECT_EQ(compareComplexes(op, 0, {{1, up}, {1, 1}}), (Answer{0, 0}));
    EXPECT_EQ(compareComplexes(op, 0, {{up, 1}, {1, 1}}), (Answer{0, 0}));
  }
  for (const mint op : {2, 8}) {
    EXPECT_EQ(compareComplexes(op, 2, {{1, 1}, {up, 2}, {2, up}}), (Answer{0, 1}));
    EXPECT_EQ(compareComplexes(op, 2, {{1, 2}, {5, 5}, {up, 2}}), (Answer{0, 0}));
    EXPECT_EQ(compareComplexes(op, 0, {{1, 0}, {2, 0}, {2, 0}}), (Answer{0, 1}));
    EXPECT_EQ(compareComplexes(op, -1, {{1, 0}, {2, 0}, {2, 0}}), (Answer{0, 0}));
  }
}

TEST(CompareComplexes, OrderIsThatOfTheRealPartsOnTheRealAxisAlone) {
  EXPECT_EQ(compareComplexes(3, 0, {{1, 0}, {2, -0.0}, {3, 0}}), (Answer{0, 1}));
  EXPECT_EQ(compareComplexes(3, 0, {{1, 0}, {2, 0}, {2, 0}}), (Answer{0, 0}));
  EXPECT_EQ(compareComplexes(4, 0, {{1, 0}, {2, 0}, {2, 0}}), (Answer{0, 1}));
  EXPECT_EQ(compareComplexes(6, 0, {{2, 0}, {2, 0}, {1, 0}}), (Answer{0, 1}));
  EXPECT_EQ(compareComplexes(7, 0, {{2, 0}, {2, 0}, {1, 0}}), (Answer{0, 0}));
  EXPECT_EQ(compareComplexes(7, 0, {{2, 0}, {1, 0}}), (Answer{0, 1}));
  for (const mint op : {3, 4, 6, 7})
    for (const double im : {1e-300, -1.0, double(NAN)}) {
      EXPECT_EQ(compareComplexes(op, 60, {{1, 0}, {2, im}}), (Answer{4, 0}));
      EXPECT_EQ(compareComplexes(op, 60, {{5, 0}, {5, 0}, {1, im}}), (Answer{4, 0})); // before any comparison
      EXPECT_EQ(compareComplexes(op, 60, {{1, im}}), (Answer{0, 1})); // too few to be looked at
    }
}

TEST(CompareComplexes, UnknownOperatorIsStatusTwelve) {
  for (const mint op : {0, 9, -1, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(compareComplexes(op, 0, {{1, 0}, {1, 0}}), (Answer{12, 0}));
    EXPECT_EQ(compareComplexes(op, 0, {}), (Answer{12, 0}));
  }
  for (mint op = 1; op <= 8; ++op) EXPECT_EQ(compareComplexes(op, 0, {}), (Answer{0, 1}));
}

} // namespace

// Norms by name. The routines behind them are held to their bounds in the elementwise room; here are the
// arguments, the failures, and norms whose value is known.
#include "algorithms/exact_call.h"

#include <cmath>
#include <limits>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mint kMaximum = 2147483647, kReals = 2;
constexpr mreal kInfinity = std::numeric_limits<mreal>::infinity();

class Norm : public NamedFunctions {};

Tensor reals(const std::vector<mreal> &x) { return tensorOf<mreal>({mint(x.size())}, x); }
Tensor complexes(const std::vector<mcomplex> &z) { return tensorOf<mcomplex>({mint(z.size())}, z); }

NamedCall norm(Tensor vector, mint p, mint flags) {
  return std::move(NamedCall("Norm").tensor(std::move(vector)).integer(p).integer(flags));
}
mreal valueOf(NamedCall call) {
  mreal result = -42;
  EXPECT_EQ(call.run(&result), 0);
  return result;
}
void expectStatus(NamedCall call, mint status) {
  mreal result = -42;
  EXPECT_EQ(call.run(&result), status);
  EXPECT_EQ(result, -42);
}

TEST_F(Norm, OfThreeAndFour) {
  EXPECT_EQ(valueOf(std::move(NamedCall("Norm").tensor(reals({3, 4})).integer(0))), 5.0);
  EXPECT_EQ(valueOf(norm(reals({3, 4}), 2, 0)), 5.0);
  EXPECT_EQ(valueOf(norm(reals({3, -4}), 1, 0)), 7.0);
  EXPECT_EQ(valueOf(norm(reals({3, -4}), kMaximum, 0)), 4.0);
  EXPECT_NEAR(valueOf(norm(reals({3, 4, -5}), 3, kReals)), 6.0, 6e-15); // 27 + 64 + 125 = 216
}

TEST_F(Norm, OfComplexesTakesTheModulusWhateverTheExponent) {
  const auto z = [] { return complexes({{3, 4}, {0, -12}}); };
  EXPECT_EQ(valueOf(norm(z(), 1, 0)), 17.0);
  EXPECT_NEAR(valueOf(norm(z(), 2, 0)), 13.0, 3e-15);
  EXPECT_EQ(valueOf(norm(z(), kMaximum, 0)), 12.0);
  EXPECT_NEAR(valueOf(norm(complexes({{3, 0}, {0, 4}, {-3, 4}}), 3, 0)), 6.0, 6e-15);
}

// A plain sum of powers in long double, for moderate elements.
TEST_F(Norm, OfRandomVectorsIsTheRootOfTheSumOfPowers) {
  std::mt19937 random(1);
  for (int time = 0; time < 200; ++time) {
    std::vector<mreal> x(1 + random() % 40);
    for (mreal &element : x) element = mreal(mint(random())) * 1e-8;
    for (mint p : {1, 2, 3, 4, 7, 10}) {
      long double sum = 0;
      for (mreal element : x) sum += std::pow(std::fabs(static_cast<long double>(element)), p);
      const mreal expected = mreal(std::pow(sum, 1.0L / p));
      EXPECT_NEAR(valueOf(norm(reals(x), p, kReals)), expected, 1e-13 * expected) << p;
    }
  }
}

TEST_F(Norm, DoesNotOverflowOnTheWay) {
  for (mint p : {1, 2, 5, kMaximum}) {
    EXPECT_EQ(valueOf(norm(reals({0, 1e300, 0}), p, kReals)), 1e300) << p;
    EXPECT_EQ(valueOf(norm(reals({0, 1e-300}), p, kReals)), 1e-300) << p;
  }
}

TEST_F(Norm, OfNothingIsZero) {
  for (mint p : {1, 2, 3, kMaximum}) {
    EXPECT_EQ(valueOf(norm(reals({}), p, kReals)), 0.0) << p;
    EXPECT_EQ(valueOf(norm(complexes({}), p, kReals)), 0.0) << p;
  }
}

TEST_F(Norm, FailsWhereACheckedNormIsNotFinite) {
  for (mint p : {1, 2, 3, kMaximum}) {
    expectStatus(norm(reals({1, kInfinity}), p, kReals), 4);
    expectStatus(norm(complexes({{1, std::nan("")}}), p, kReals), 4);
  }
  for (mint p : {1, 2}) expectStatus(norm(reals({1.5e308, 1.5e308}), p, kReals), 4);
  EXPECT_EQ(valueOf(norm(reals({1.5e308, 1.5e308}), 1, 0)), kInfinity);
}

// The root with the exponent 0 is infinite in its exponent.
TEST_F(Norm, FailsAtAPowerThatFails) { expectStatus(norm(reals({1, 2}), 0, kReals), 4); }

TEST_F(Norm, RefusesByCountThenRankThenType) {
  for (mint count : {0, 1, 4, -1})
    EXPECT_EQ(lookupRuntimeFunction("Norm")(nullptr, count, nullptr, nullptr), 12) << count;
  expectStatus(norm(tensorOf<mreal>({}, {1}), 2, 0), 2);
  expectStatus(norm(tensorOf<mreal>({1, 1}, {1}), 2, 0), 2);
  expectStatus(norm(tensorOf<mint>({1, 1}, {1}), 2, 0), 2);
  expectStatus(norm(tensorOf<mint>({2}, {3, 4}), 2, 0), 1);
}

} // namespace

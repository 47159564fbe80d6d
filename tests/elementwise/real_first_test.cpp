// Operations that find out on the way whether they stay real: types, what stands before the first element
// that leaves the reals and after it, operands that are results.
#include "elementwise/real_first.h"

#include "widening_oracle.h"

using namespace torvane;
using namespace torvane::test;

namespace {

struct RealFirst {
  Tensor result;
  mint status;
};
RealFirst realFirst(const Tensor &x, mint op, mint flags = 0) {
  MTensor *result = nullptr;
  const mint status = realFirstUnary(&result, x.get(), op, flags);
  return {Tensor(result), status};
}

TEST(RealFirst, StaysRealWhileNoElementLeavesTheReals) {
  const RealFirst roots = realFirst(tensorOf<mreal>({2, 2}, {1, 4, 9, -0.0}), kSqrt);
  ASSERT_EQ(roots.status, 0);
  EXPECT_EQ(roots.result->type, kReal);
  EXPECT_EQ(valuesOf<mreal>(roots.result), (Reals{1, 2, 3, -0.0}));
  const RealFirst none = realFirst(tensorOf<mreal>({0}, {}), kSqrt);
  EXPECT_EQ(none.status, 0);
  EXPECT_EQ(none.result->type, kReal);
}

// Position p at every place: what is before it is coerced, the rest is the widening loop's.
TEST(RealFirst, TurnsComplexAtTheFirstElementThatLeaves) {
  std::mt19937_64 random(10);
  UnaryPair pair;
  ASSERT_TRUE(wideningPair(kSqrt, &pair));
  for (const mint position : {0, 1, 2, 17, 255, 256, 600, 699})
    for (const mint flags : {0, 2}) {
      Reals values = reals(Mixture::positive, 700, random);
      for (size_t k = size_t(position); k < 700; k += 3) values[k] = -values[k];
      const Tensor x = tensorOf<mreal>({70, 10}, values);
      const RealFirst roots = realFirst(x, kSqrt, flags);
      ASSERT_EQ(roots.status, 0);
      ASSERT_TRUE(isValidTensor(roots.result.get()));
      ASSERT_EQ(roots.result->type, kComplex);
      ASSERT_EQ(extentsOf(roots.result), (Extents{70, 10}));
      ASSERT_EQ(valuesOf<mreal>(x), values);
      const Looped looped = loopUnary(pair, values.data(), 0, 700, flags);
      expectWritten(elements<mcomplex>(roots.result), 0, looped);
    }
}

// A coerced zero loses its sign; one of the loop keeps it.
TEST(RealFirst, CoercesZerosBeforeTheFirstElementThatLeaves) {
  const RealFirst roots = realFirst(tensorOf<mreal>({3}, {-0.0, -4, -0.0}), kSqrt);
  ASSERT_EQ(roots.status, 0);
  const auto *z = elements<mcomplex>(roots.result);
  EXPECT_FALSE(std::signbit(z[0].re));
  EXPECT_EQ(z[1].im, 2);
  EXPECT_TRUE(std::signbit(z[2].re));
}

TEST(RealFirst, ComputesOverItsOwnOperand) {
  const Tensor x = tensorOf<mreal>({4}, {4, 9, -16, 25});
  MTensor *slot = x.get();
  EXPECT_EQ(realFirstUnary(&slot, x.get(), kSqrt, 0), 0);
  EXPECT_EQ(slot, x.get());
  ASSERT_EQ(x->type, kComplex);
  EXPECT_EQ(elements<mcomplex>(x)[1].re, 3);
  EXPECT_EQ(elements<mcomplex>(x)[2].im, 4);
  EXPECT_EQ(elements<mcomplex>(x)[3].re, 5);
  const Tensor base = tensorOf<mreal>({2}, {4, -4}), power = tensorOf<mreal>({2, 2}, {0.5, 2, 0.5, 2});
  slot = base.get();
  EXPECT_EQ(realFirstBinary(&slot, base.get(), power.get(), kPow, 0), 0) << "the smaller operand grows";
  EXPECT_TRUE(isValidTensor(base.get()));
  EXPECT_EQ(extentsOf(base), (Extents{2, 2}));
  ASSERT_EQ(base->type, kComplex);
  EXPECT_EQ(elements<mcomplex>(base)[0].re, 2);
  EXPECT_EQ(elements<mcomplex>(base)[3].re, 16);
}

TEST(RealFirst, OfPairsKeepsTheBlocksBeforeTheFailure) {
  std::mt19937_64 random(11);
  BinaryPair pair;
  ASSERT_TRUE(wideningPair(kPow, kReal, kReal, &pair));
  const Tensor base = operand(kReal, {6, 50}, Mixture::positive, random),
               power = tensorOf<mreal>({6}, Reals(6, 0.5));
  MTensor *result = nullptr;
  ASSERT_EQ(realFirstBinary(&result, base.get(), power.get(), kPow, 0), 0);
  EXPECT_EQ(result->type, kReal);
  for (size_t k = 170; k < 300; k += 7) elements<mreal>(base)[k] *= -1;
  ASSERT_EQ(realFirstBinary(&result, base.get(), power.get(), kPow, 0), 0);
  ASSERT_EQ(result->type, kComplex);
  EXPECT_EQ(extentsOf(result), (Extents{6, 50}));
  expectWritten(static_cast<mcomplex *>(result->data), 0, loopBinary(pair, base.get(), power.get(), 0, 0));
  elements<mreal>(base)[290] = 1e300; // overflows as a square, and stays real as a complex
  elements<mreal>(power)[5] = 2;
  EXPECT_EQ(realFirstBinary(&result, base.get(), power.get(), kPow, 0), 4);
  MTensor_delete(result);
}

// A pair must stay finite to stay real, here as in the widening driver.
TEST(RealFirst, OfPairsRefusesAnInfinityThatStaysReal) {
  const Tensor large = tensorOf<mreal>({3}, {1, 1e308, 2});
  MTensor *result = nullptr;
  EXPECT_EQ(realFirstBinary(&result, large.get(), large.get(), kPlus, 0), 4);
  EXPECT_EQ(static_cast<mcomplex *>(result->data)[0].re, 2);
  MTensor_delete(result);
}

TEST(RealFirst, RefusesWhatDoesNotWiden) {
  const Tensor words = tensorOf<mint>({2}, {1, 2}), x = tensorOf<mreal>({2}, {1, 2}),
               z = tensorOf<mcomplex>({2}, {{1, 0}, {2, 0}}), longer = tensorOf<mreal>({3}, {1, 2, 3});
  MTensor *result = nullptr;
  EXPECT_EQ(realFirstUnary(&result, words.get(), kSqrt, 0), 4);
  EXPECT_EQ(realFirstUnary(&result, z.get(), kSqrt, 0), 4);
  for (const mint op : {0, 4, 38, 49, 58, 61, 85, -1})
    EXPECT_EQ(realFirstUnary(&result, x.get(), op, 0), 4) << op;
  EXPECT_EQ(realFirstBinary(&result, words.get(), words.get(), kPlus, 0), 4);
  EXPECT_EQ(realFirstBinary(&result, z.get(), x.get(), 270, 0), 4);
  EXPECT_EQ(realFirstBinary(&result, x.get(), x.get(), 256, 0), 4);
  EXPECT_EQ(realFirstBinary(&result, x.get(), longer.get(), kPlus, 0), -1);
  EXPECT_EQ(result, nullptr);
}

} // namespace

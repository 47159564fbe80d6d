// Coercion between integers, reals and complexes, element by element against the rules written out.
#include "support/tensor_builders.h"
#include <torvane/failure.h>

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <string.h>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr mint kTypes[] = {TORVANE_TYPE_INTEGER, TORVANE_TYPE_REAL, TORVANE_TYPE_COMPLEX};
constexpr mreal kNan = std::numeric_limits<mreal>::quiet_NaN();
constexpr mreal kInfinity = std::numeric_limits<mreal>::infinity();

const std::vector<mint> kIntegers = {0, 1, -1, 7, -12345, INT32_MAX, INT32_MIN, INT32_MIN + 1, 1 << 30, 99};
const std::vector<mreal> kReals = {0.0, -0.0, 0.5,        -0.5,          1.5,
                                   2.5, -2.5, 1e9 + 0.25, -2147483646.5, 2147483646.5};

std::vector<mcomplex> complexes() {
  std::vector<mcomplex> values;
  for (const mreal x : kReals) values.push_back({x, 1.0 + x});
  return values;
}

constexpr mint kPool = 10, kSpan = 40;

// Ties to even, by the halves themselves rather than by the processor's rounding.
mint roundByModel(mreal x) {
  const mreal below = std::floor(x);
  const mreal rest = x - below;
  if (rest != 0.5) return static_cast<mint>(rest < 0.5 ? below : below + 1);
  return static_cast<mint>(std::fmod(below, 2.0) == 0.0 ? below : below + 1);
}

mcomplex plusZero(mreal x) { return {x == 0.0 ? 0.0 : x, 0.0}; }

// A source of `kSpan` elements that repeats its type's values.
Tensor sourceOf(mint type) {
  Tensor tensor = newTensor(type, {kSpan});
  const std::vector<mcomplex> pairs = complexes();
  for (mint i = 0; i < kSpan; ++i) {
    if (type == TORVANE_TYPE_INTEGER) elements<mint>(tensor)[i] = kIntegers[size_t(i % kPool)];
    if (type == TORVANE_TYPE_REAL) elements<mreal>(tensor)[i] = kReals[size_t(i % kPool)];
    if (type == TORVANE_TYPE_COMPLEX) elements<mcomplex>(tensor)[i] = pairs[size_t(i % kPool)];
  }
  return tensor;
}

void coerceByModel(const Tensor &target, mint to, const Tensor &source, mint from) {
  const mint t = target->type, s = source->type;
  const mreal real = s == 2   ? elements<mint>(source)[from]
                     : s == 3 ? elements<mreal>(source)[from]
                              : elements<mcomplex>(source)[from].re;
  if (t == s) {
    const size_t width = elementWidth(t);
    memcpy(static_cast<char *>(target->data) + size_t(to) * width,
           static_cast<char *>(source->data) + size_t(from) * width, width);
  } else if (t == 2) {
    elements<mint>(target)[to] = roundByModel(real);
  } else if (t == 3) {
    elements<mreal>(target)[to] = real;
  } else {
    elements<mcomplex>(target)[to] = plusZero(real);
  }
}

Tensor blankTarget(mint type) {
  Tensor tensor = newTensor(type, {kSpan});
  memset(tensor->data, 0x11, size_t{elementWidth(type)} * kSpan);
  return tensor;
}

mint startFor(mint stride, mint count) { return stride < 0 ? -stride * (count - 1) + 1 : 1; }

void expectCoerced(mint targetType, mint sourceType, mint targetStride, mint sourceStride, mint count,
                   bool generic) {
  const Tensor source = sourceOf(sourceType);
  const Tensor target = blankTarget(targetType), model = blankTarget(targetType);
  const mint to = startFor(targetStride, count), from = startFor(sourceStride, count);
  for (mint i = 0; i < count; ++i)
    coerceByModel(model, to + i * targetStride, source, from + i * sourceStride);
  if (generic)
    GenericData_copySomeCoerce(target->data, targetType, to, targetStride, source->data, sourceType, from,
                               sourceStride, count);
  else
    MTensor_copySomeDataCoerce(target.get(), to, targetStride, source.get(), from, sourceStride, count);
  EXPECT_EQ(memcmp(target->data, model->data, size_t{elementWidth(targetType)} * kSpan), 0)
      << sourceType << " to " << targetType << ", strides " << targetStride << ", " << sourceStride
      << ", count " << count;
}

TEST(Coercion, FollowsItsRuleForEveryPairOfTypesAndEveryStride) {
  for (const bool generic : {false, true})
    for (const mint targetType : kTypes)
      for (const mint sourceType : kTypes)
        for (const mint targetStride : {-2, -1, 0, 1, 3})
          for (const mint sourceStride : {-3, -1, 0, 1, 2})
            for (mint count = 1; count <= 13; ++count)
              expectCoerced(targetType, sourceType, targetStride, sourceStride, count, generic);
}

TEST(Coercion, DoesLongContiguousRuns) {
  for (const mint targetType : kTypes)
    for (const mint sourceType : kTypes)
      for (mint count = 1; count < kSpan; ++count) expectCoerced(targetType, sourceType, 1, 1, count, true);
}

TEST(Coercion, OfNoElementsDoesNothing) {
  for (const bool generic : {false, true})
    for (const mint targetType : kTypes)
      for (const mint sourceType : kTypes)
        for (const mint count : {0, -1, INT32_MIN})
          expectCoerced(targetType, sourceType, 1, 2, count, generic);
}

TEST(Coercion, OutsideTheThreeTypesDoesNothing) {
  const Tensor source = sourceOf(TORVANE_TYPE_COMPLEX);
  const Tensor target = blankTarget(TORVANE_TYPE_COMPLEX), untouched = blankTarget(TORVANE_TYPE_COMPLEX);
  for (const mint other : {0, 1, 5, 6, 100, -1, INT32_MIN, INT32_MAX}) {
    GenericData_copySomeCoerce(target->data, other, 0, 1, source->data, 3, 0, 1, 4);
    GenericData_copySomeCoerce(target->data, 3, 0, 1, source->data, other, 0, 1, 4);
    GenericData_copySomeCoerce(target->data, other, 0, 1, source->data, other, 0, 1, 4);
  }
  EXPECT_EQ(memcmp(target->data, untouched->data, 16 * kSpan), 0);
}

TEST(Coercion, OfEqualTypesIsTheRunCopy) {
  const Tensor source = newTensor(1, {4}), target = newTensor(1, {4});
  for (mint i = 0; i < 4; ++i) elements<mint>(source)[i] = i + 1, elements<mint>(target)[i] = 0;
  MTensor_copySomeDataCoerce(target.get(), 0, 1, source.get(), 0, 1, 3);
  EXPECT_EQ(elements<mint>(target)[2], 3);
  MTensor_copySomeDataCoerce(target.get(), 0, 2, source.get(), 0, 1, 2);
  EXPECT_EQ(elements<mint>(target)[2], 3);
}

TEST(Coercion, ToComplexStoresPositiveZeroForAZeroOfEitherSign) {
  const Tensor source = tensorOf<mreal>({5}, {-0.0, 0.0, -1.0, kNan, -kInfinity});
  const Tensor target = newTensor(TORVANE_TYPE_COMPLEX, {5});
  MTensor_copySomeDataCoerce(target.get(), 0, 1, source.get(), 0, 1, 5);
  const std::vector<mcomplex> values = valuesOf<mcomplex>(target);
  for (const mcomplex z : values) EXPECT_EQ(std::bit_cast<uint64_t>(z.im), 0u);
  EXPECT_EQ(std::bit_cast<uint64_t>(values[0].re), 0u);
  EXPECT_EQ(std::bit_cast<uint64_t>(values[1].re), 0u);
  EXPECT_EQ(values[2].re, -1.0);
  EXPECT_TRUE(std::isnan(values[3].re));
  EXPECT_EQ(values[4].re, -kInfinity);
}

TEST(Coercion, FromComplexDropsTheImaginaryPart) {
  const Tensor source = tensorOf<mcomplex>({4}, {{2.5, 1.0}, {-0.0, kNan}, {kNan, 0.0}, {3.5, kInfinity}});
  const Tensor reals = newTensor(TORVANE_TYPE_REAL, {4});
  MTensor_copySomeDataCoerce(reals.get(), 0, 1, source.get(), 0, 1, 4);
  EXPECT_EQ(elements<mreal>(reals)[0], 2.5);
  EXPECT_TRUE(std::signbit(elements<mreal>(reals)[1]));
  EXPECT_TRUE(std::isnan(elements<mreal>(reals)[2]));
  const Tensor integers = newTensor(TORVANE_TYPE_INTEGER, {1});
  MTensor_copySomeDataCoerce(integers.get(), 0, 1, source.get(), 0, 1, 1);
  EXPECT_EQ(*elements<mint>(integers), 2);
}

TEST(Coercion, ToIntegerRoundsTheElementsBeforeOneThatFails) {
  for (const mreal bad : {kNan, kInfinity, -kInfinity, 2147483648.0, 1e300}) {
    const Tensor source = tensorOf<mreal>({4}, {1.5, 2.5, bad, 7.0});
    const Tensor target = tensorOf<mint>({4}, {0, 0, 0, 0});
    MTensor_copySomeDataCoerce(target.get(), 0, 1, source.get(), 0, 1, 4);
    EXPECT_EQ(elements<mint>(target)[0], 2);
    EXPECT_EQ(elements<mint>(target)[1], 2);
  }
}

TEST(Coercion, OfAComplexElementThatFailsLeavesTheOthersRounded) {
  const Tensor source = tensorOf<mcomplex>({4}, {{1.5, 9}, {kNan, 0}, {3.5, 0}, {-1.5, 1}});
  const Tensor target = tensorOf<mint>({4}, {0, 0, 0, 0});
  MTensor_copySomeDataCoerce(target.get(), 0, 1, source.get(), 0, 1, 4);
  EXPECT_EQ(elements<mint>(target)[0], 2);
  EXPECT_EQ(elements<mint>(target)[2], 4);
  EXPECT_EQ(elements<mint>(target)[3], -2);
}

// A raise would end the process here: in style 2 no frame is there to go to, in style 0 nothing catches.
TEST(Coercion, ThatFailsRaisesNothingInAnyStyle) {
  const Tensor reals = tensorOf<mreal>({3}, {kNan, kInfinity, 1e300});
  const Tensor complexes = tensorOf<mcomplex>({3}, {{kNan, 1}, {kInfinity, 1}, {-1e300, 1}});
  const Tensor target = newTensor(TORVANE_TYPE_INTEGER, {3});
  setExceptionActive(14);
  for (const mint style : {1, 2, 0}) {
    setExceptionStyle(style);
    for (const mint stride : {1, -1}) {
      const mint start = stride < 0 ? 2 : 0;
      MTensor_copySomeDataCoerce(target.get(), 0, 1, reals.get(), start, stride, 3);
      MTensor_copySomeDataCoerce(target.get(), 0, 1, complexes.get(), start, stride, 3);
    }
    EXPECT_EQ(getExceptionActive(), 14);
  }
  setExceptionStyle(1);
  setExceptionActive(0);
}

TEST(TensorDataToReal, ReadsIntegersRealsAndRealComplexes) {
  mint flag = 77;
  EXPECT_EQ(TensorDataToReal(tensorOf<mint>({2}, {1, -9}).get(), 1, &flag), -9.0);
  EXPECT_EQ(TensorDataToReal(tensorOf<mreal>({2}, {1.25, 2.5}).get(), 0, &flag), 1.25);
  EXPECT_EQ(TensorDataToReal(tensorOf<mcomplex>({2}, {{1, 1}, {3.5, 0.0}}).get(), 1, &flag), 3.5);
  EXPECT_EQ(TensorDataToReal(tensorOf<mcomplex>({1}, {{4.5, -0.0}}).get(), 0, &flag), 4.5);
  EXPECT_EQ(flag, 77);
}

TEST(TensorDataToReal, RefusesAnImaginaryPart) {
  for (const mreal im : {1.0, -1e-300, kNan, kInfinity}) {
    mint flag = 0;
    EXPECT_EQ(TensorDataToReal(tensorOf<mcomplex>({1}, {{5.0, im}}).get(), 0, &flag), 0.0);
    EXPECT_EQ(flag, 1);
  }
}

TEST(TensorDataToReal, RefusesOtherTypes) {
  const Tensor tensor = newTensor(1, {2});
  for (const mint type : {0, 1, 5, 100, -1}) {
    mint flag = 0;
    tensor->type = type;
    EXPECT_EQ(TensorDataToReal(tensor.get(), 0, &flag), 0.0);
    EXPECT_EQ(flag, 1) << type;
  }
  tensor->type = 1;
}

} // namespace

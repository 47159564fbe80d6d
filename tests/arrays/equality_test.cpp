// Agreement of reals against exact arithmetic, and the equality of arrays against a model of every pair.
#include "arrays.h"
#include "conversion_model.h"
#include "conversion_values.h"
#include "exact_real.h"

#include "arrays/agreement.h"
#include "arrays/equality.h"
#include "runtime/element_types.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace torvane::test {

namespace {

template <class R> bool agreeAt(mreal tolerance, R x, R y) {
  return agree(tolerance, agreementFactor(tolerance), x, y);
}

template <class R> std::vector<R> partsOf(mint tag) {
  const Bytes bytes = specialElements(tag);
  std::vector<R> parts(bytes.size() / sizeof(R));
  std::memcpy(parts.data(), bytes.data(), bytes.size());
  return parts;
}

// Every real beside itself and its neighbours at every distance, and beside others.
template <class R> void agreesAsExactly(mint tag) {
  const std::vector<R> reals = partsOf<R>(tag);
  for (size_t i = 0; i < reals.size(); ++i)
    for (int bits = 0; bits <= 60; ++bits) {
      const R x = reals[i], y = bits == 60 ? reals[(i * 37 + 11) % reals.size()]
                                           : static_cast<R>(x + x * std::ldexp(R(1), -bits));
      for (const int tolerance : {-1, 0, 1, 2, 28, 29, 30, 51, 52, 53, 54, 1000})
        ASSERT_EQ(agreeAt<R>(tolerance, x, y), modelAgree(tolerance, ExactReal::of(x), ExactReal::of(y)))
            << x << " and " << y << " within " << tolerance;
    }
}

TEST(Agreement, IsThatOfExactArithmetic) {
  agreesAsExactly<double>(10);
  agreesAsExactly<float>(9);
}

TEST(Agreement, TakesPartsOfBits) {
  const double ulp = std::ldexp(1.0, -52);
  EXPECT_FALSE(agreeAt<double>(1.4, 1.0 + 3 * ulp, 1.0)); // 2^-51.6 is 1.3 ulp
  EXPECT_TRUE(agreeAt<double>(1.4, 1.0 + ulp, 1.0));
  EXPECT_FALSE(agreeAt<double>(0.5, 1.0 + ulp, 1.0)); // 0.7 ulp
  EXPECT_TRUE(agreeAt<double>(0.5, 1e-300, 1e-300));
  EXPECT_FALSE(agreeAt<double>(52.9, 1.0, 0.5)); // half is too far whatever the factor
  EXPECT_TRUE(agreeAt<double>(52.9, 1.0, 0.51));
  EXPECT_FALSE(agreeAt<double>(52.9, 0.5, 0.25)); // below 1 too, where the difference is divided
  EXPECT_TRUE(agreeAt<double>(52.9, 0.5, 0.26));
  EXPECT_FALSE(agreeAt<double>(NAN, 1.0, 1.0 + ulp));
}

TEST(Agreement, WholeBitsHaveTheFactorOfTheGeneralWay) {
  for (mint bits = 1; bits < 53; ++bits) EXPECT_EQ(agreementFactor(bits), ToleranceShiftFactor(bits)) << bits;
  for (const mreal none : {0.0, -1.0, 53.0, 1e9, mreal(NAN)}) EXPECT_EQ(agreementFactor(none), 0);
}

// ---- arrays ----

bool isInteger(mint tag) { return tag <= 8; }
bool isNarrow(mint tag) { return tag == 9 || tag == 11; }

struct Point {
  ExactReal re, im;
};

// An element as it is compared: an integer in the real type of the other, through the model of Coerce.
Point pointOf(mint tag, const void *element, mint other) {
  if (isInteger(tag)) {
    if (isInteger(other)) {
      uint64_t bits = 0;
      std::memcpy(&bits, element, kElementWidths[tag]);
      const unsigned unused = 64 - 8 * kElementWidths[tag];
      return {tag % 2 == 1 ? ExactReal::ofInteger(int64_t(bits << unused) >> unused)
                           : ExactReal::of(false, bits, 0),
              {}};
    }
    const mint real = isNarrow(other) ? 9 : 10;
    return pointOf(real, modelOf({kCoerce, false, false, 1}, tag, element, real).bytes.data(), real);
  }
  const size_t parts = tag >= 11 ? 2 : 1;
  double wide[2] = {};
  float narrow[2] = {};
  std::memcpy(isNarrow(tag) ? static_cast<void *>(narrow) : wide, element, kElementWidths[tag]);
  const auto at = [&](size_t i) { return isNarrow(tag) ? ExactReal::of(narrow[i]) : ExactReal::of(wide[i]); };
  return {at(0), parts == 2 ? at(1) : ExactReal()};
}

bool modelEqual(int tolerance, mint tagA, const void *a, mint tagB, const void *b) {
  const Point x = pointOf(tagA, a, tagB), y = pointOf(tagB, b, tagA);
  if (isInteger(tagA) && isInteger(tagB)) return compare(x.re, y.re) == 0;
  return modelAgree(tolerance, x.re, y.re) && modelAgree(tolerance, x.im, y.im);
}

class EqualityOf : public testing::TestWithParam<mint> {};

// Elements beside what they become in the other type, and beside others.
TEST_P(EqualityOf, EveryOtherTypeIsThatOfTheModel) {
  const mint from = GetParam();
  const Bytes elements = specialElements(from);
  const size_t width = kElementWidths[from];
  int equal = 0, different = 0;
  for (mint to = 1; to <= 12; ++to) {
    const Bytes others = specialElements(to);
    for (size_t i = 0; i < elements.size() / width; ++i) {
      auto *x = const_cast<unsigned char *>(elements.data() + i * width);
      const Converted twin = modelOf({kCoerce, true, false, 53}, from, x, to);
      const size_t k = i * 7 % (others.size() / kElementWidths[to]);
      for (const bool isTwin : {true, false}) {
        if (isTwin && twin.status != 0) continue;
        auto *y =
            const_cast<unsigned char *>(isTwin ? twin.bytes.data() : others.data() + k * kElementWidths[to]);
        mint count = 1;
        const MNumericArray a = {0, &count, 1, 0, 0, from, 1, x, 1}, b = {0, &count, 1, 0, 0, to, 1, y, 1};
        for (const int tolerance : {0, 1, 30, 53}) {
          const bool due = modelEqual(tolerance, from, x, to, y);
          ++(due ? equal : different);
          ASSERT_EQ(MNumericArray_equal(tolerance, 1, &a, &b), mint{due})
              << from << " " << textOf(from, x) << " and " << to << " " << textOf(to, y) << " within "
              << tolerance;
        }
      }
    }
  }
  EXPECT_GT(equal, 100);
  EXPECT_GT(different, 100);
}

INSTANTIATE_TEST_SUITE_P(EveryTag, EqualityOf, testing::Range(mint{1}, mint{13}));

// Extents that were reset say nothing about a payload.
TEST(Equality, IsNotThereBetweenOtherNumbersOfElements) {
  const Array three = arrayOf<int32_t>(5, {1, 2, 3}), two = resetTo(arrayOf<int32_t>(5, {1, 2}), {3});
  EXPECT_EQ(MNumericArray_equal(0, 0, three.get(), two.get()), 0);
  EXPECT_EQ(MNumericArray_equal(0, 0, two.get(), three.get()), 0);
  EXPECT_EQ(MNumericArray_equal(0, 0, two.get(), two.get()), 1);
}

TEST(Equality, NegativeIntegersEqualNoUnsignedOne) {
  const Array minus = arrayOf<int32_t>(5, {-1}), all = arrayOf<uint32_t>(6, {0xFFFFFFFFu});
  const Array wide = arrayOf<uint64_t>(8, {~uint64_t{0}});
  EXPECT_EQ(MNumericArray_equal(53, 1, minus.get(), all.get()), 0);
  EXPECT_EQ(MNumericArray_equal(53, 1, minus.get(), wide.get()), 0);
  EXPECT_EQ(MNumericArray_equal(53, 1, wide.get(), minus.get()), 0);
}

TEST(Equality, AsksForOneShapeAndUnlessMixedForOneType) {
  const Array row = arrayOf<int16_t>(3, {1, 2, 3, 4}), matrix = newArray(3, {2, 2}),
              three = arrayOf<int16_t>(3, {1, 2, 3});
  const Array wide = arrayOf<int64_t>(7, {1, 2, 3, 4});
  std::memcpy(matrix->data, row->data, 8);
  EXPECT_EQ(MNumericArray_equal(0, 0, row.get(), row.get()), 1);
  EXPECT_EQ(MNumericArray_equal(0, 1, row.get(), matrix.get()), 0);
  EXPECT_EQ(MNumericArray_equal(0, 1, row.get(), three.get()), 0);
  EXPECT_EQ(MNumericArray_equal(0, 0, row.get(), wide.get()), 0);
  EXPECT_EQ(MNumericArray_equal(0, 1, row.get(), wide.get()), 1);
}

TEST(Equality, ArraysWithoutElementsAreEqualWhateverTheirTypes) {
  const Array a = newArray(3, {2, 0}), b = newArray(12, {2, 0}), c = newArray(3, {3, 0});
  EXPECT_EQ(MNumericArray_equal(0, 0, a.get(), b.get()), 1);
  EXPECT_EQ(MNumericArray_equal(0, 0, a.get(), c.get()), 0);
}

TEST(Equality, FindsADifferenceAtAnyPlace) {
  std::vector<double> values(300, 1.5);
  const Array a = arrayOf(10, values);
  for (size_t at = 0; at < values.size(); ++at) {
    std::vector<double> other = values;
    other[at] = at % 2 == 0 ? 1.25 : NAN;
    const Array b = arrayOf(10, other);
    ASSERT_EQ(MNumericArray_equal(1, 0, a.get(), b.get()), 0) << at;
  }
}

TEST(Equality, HalfTheLargerElementIsTooFarAtAnyToleranceBelow53) {
  const Array one = arrayOf<double>(10, {1}), half = arrayOf<double>(10, {0.5}),
              more = arrayOf<double>(10, {0.51});
  EXPECT_EQ(MNumericArray_equal(52.9, 0, one.get(), half.get()), 0);
  EXPECT_EQ(MNumericArray_equal(52.9, 0, one.get(), more.get()), 1);
  EXPECT_EQ(MNumericArray_equal(53, 0, one.get(), half.get()), 1);
}

TEST(Equality, NaNsAreNotEqualToThemselves) {
  const Array a = arrayOf<float>(9, {NAN});
  EXPECT_EQ(MNumericArray_equal(53, 0, a.get(), a.get()), 0);
}

} // namespace

} // namespace torvane::test

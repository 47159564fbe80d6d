// Parts, constants and comparisons, beyond what the walk over the table of checks holds.
#include "support/raised.h"
#include "support/real_samples.h"

#include <gtest/gtest.h>
#include <torvane/scalars.h>

using namespace torvane::test;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity(),
                 kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(FpException, PlainFormsReadNothingAndCheckedOnesTell) {
  for (const double x : {kInfinity, -kInfinity, kNaN}) {
    EXPECT_EQ(unary_fpexception_Real64(x), 0);
    EXPECT_EQ(checked_unary_fpexception_Real64(x), 1);
    EXPECT_EQ(checked_unary_fpexception_Real32(float(x)), 1);
    EXPECT_EQ(checked_unary_fpexception_ComplexReal64(0, x), 1);
    EXPECT_EQ(checked_unary_fpexception_ComplexReal64(x, 0), 1);
    EXPECT_EQ(raisedBy([&] { binary_fpexception_Real64_Real64(x, x); }), 0);
  }
  EXPECT_EQ(checked_unary_fpexception_Real16(0x7C00), 1);
  EXPECT_EQ(checked_unary_fpexception_Real16(0x7BFF), 0);
  EXPECT_EQ(checked_unary_fpexception_Real64(1), 0);
  EXPECT_EQ(checked_unary_fpexception_Integer8(-128), 0);
}

TEST(FpException, CheckedBinaryFormRaisesForTheFirstBadOperand) {
  EXPECT_EQ(raisedBy([] { checked_binary_fpexception_Real64_Real64(kInfinity, kNaN); }), 6);
  EXPECT_EQ(raisedBy([] { checked_binary_fpexception_Real64_Real64(1, kNaN); }), 9);
  EXPECT_EQ(raisedBy([] { checked_binary_fpexception_Real64_Real64(kNaN, kInfinity); }), 9);
  const auto ofParts = [](double a, double b, double c, double d) {
    return raisedBy([=] { checked_binary_fpexception_ComplexReal64_ComplexReal64(a, b, c, d); });
  };
  EXPECT_EQ(ofParts(kInfinity, kNaN, 0, 0), 6);
  EXPECT_EQ(ofParts(0, kNaN, kInfinity, 0), 9);
  EXPECT_EQ(ofParts(0, 0, kInfinity, kNaN), 6);
  EXPECT_EQ(ofParts(0, 0, 0, kNaN), 9);
  EXPECT_EQ(ofParts(0, 0, 0, 0), 0);
}

TEST(Parts, ModulusOverflowsOnlyAtItsLastStepAndKeepsSubnormals) {
  EXPECT_EQ(unary_abs_ComplexReal64(3, -4), 5);
  EXPECT_EQ(unary_abs_ComplexReal64(9e307, 1.2e308), 1.5e308);
  EXPECT_EQ(unary_abs_ComplexReal64(1.7e308, 1.7e308), kInfinity);
  EXPECT_EQ(raisedBy([] { checked_unary_abs_ComplexReal64(1.7e308, 1.7e308); }), 6);
  EXPECT_EQ(unary_abs_ComplexReal64(3e-320, 4e-320), 5e-320);
  EXPECT_EQ(unary_abs_ComplexReal64(kNaN, -kInfinity), kInfinity);
  EXPECT_TRUE(std::isnan(unary_abs_ComplexReal64(kNaN, 1)));
  EXPECT_FALSE(std::signbit(unary_abs_ComplexReal64(-0.0, -0.0)));
  EXPECT_EQ(unary_abs_ComplexReal32(3, 4), 5);
}

TEST(Parts, ArgumentIsZeroOrRefusedOffThePlane) {
  EXPECT_EQ(unary_arg_Real64(2.5), 0);
  EXPECT_EQ(raisedBy([] { unary_arg_Real64(-2.5); }), 14);
  EXPECT_EQ(raisedBy([] { unary_arg_Real64(-0.0); }), 0);
  EXPECT_EQ(raisedBy([] { unary_arg_Integer16(-1); }), 14);
  EXPECT_EQ(unary_arg_ComplexReal64(-1, 0.0), std::atan2(0.0, -1.0));
  EXPECT_EQ(unary_arg_ComplexReal64(-1, -0.0), -std::atan2(0.0, -1.0));
}

TEST(Parts, SignOfAComplexIsItsUnit) {
  double re, im;
  unary_sign_ComplexReal64(&re, &im, 3e300, -4e300);
  EXPECT_NEAR(re, 0.6, 1e-15);
  EXPECT_NEAR(im, -0.8, 1e-15);
  unary_sign_ComplexReal64(&re, &im, 0, -7);
  EXPECT_EQ(re, 0);
  EXPECT_EQ(im, -1);
  unary_sign_ComplexReal64(&re, &im, -7, 0);
  EXPECT_EQ(re, -1);
  unary_sign_ComplexReal64(&re, &im, 0, -0.0);
  EXPECT_EQ(re, 0);
  EXPECT_EQ(im, 0);
}

TEST(Parts, SignOfRealsAndPatterns) {
  EXPECT_EQ(unary_sign_Real64(-0.0), 0);
  EXPECT_EQ(unary_sign_Real64(-kInfinity), -1);
  EXPECT_EQ(unary_sign_Integer64(INT64_MIN), -1);
  EXPECT_EQ(unary_sign_UnsignedInteger64(UINT64_MAX), 1);
  EXPECT_EQ(unary_sign_Real16(0x7E00), 1); // of a NaN
  EXPECT_EQ(unary_sign_Real16(0x8000), 0);
  EXPECT_EQ(unary_sign_Real16(0x8001), -1);
}

TEST(Parts, ConstantsReadNoArgument) {
  EXPECT_EQ(unary_zero_Real64(kNaN), 0);
  EXPECT_EQ(unary_one_UnsignedInteger8(200), 1);
  uint16_t half = 0;
  unary_one_Real16(&half, 0x7E00);
  EXPECT_EQ(half, 0x3C00);
  double re = 5, im = 5;
  unary_one_ComplexReal64(&re, &im, kNaN, kNaN);
  EXPECT_EQ(re, 1);
  EXPECT_EQ(im, 0);
}

TEST(Comparison, NaNsCompareAsFalse) {
  for (auto entry : {unary_pos_Real64, unary_neg_Real64, unary_npos_Real64, unary_nneg_Real64})
    EXPECT_EQ(entry(kNaN), 0);
  for (auto entry : {unary_pos_Real16, unary_neg_Real16, unary_npos_Real16, unary_nneg_Real16})
    EXPECT_EQ(entry(0xFE00), 0);
  EXPECT_EQ(unary_nneg_Real16(0x8000), 1);
  EXPECT_EQ(unary_npos_Real16(0x0001), 0);
  EXPECT_EQ(unary_unitize_Real64(kNaN), 1);
  EXPECT_EQ(unary_unitize_ComplexReal32(0, -0.0f), 0);
}

TEST(Comparison, ANaNOnOneSideYieldsTheOtherValue) {
  EXPECT_EQ(binary_max_Real64_Real64(kNaN, 2), 2);
  EXPECT_EQ(binary_max_Real64_Real64(2, kNaN), 2);
  EXPECT_EQ(binary_min_Real32_Real32(NAN, -2), -2);
  EXPECT_EQ(binary_min_Real32_Real32(-2, NAN), -2);
  uint16_t half = 0;
  binary_max_Real16_Real16(&half, 0x7E00, 0xC000);
  EXPECT_EQ(half, 0xC000);
  binary_max_Real16_Real16(&half, 0xC000, 0x7E00);
  EXPECT_EQ(half, 0xC000);
  binary_min_Real16_Real16(&half, 0x8000, 0x0000); // of equal values the first
  EXPECT_EQ(half, 0x8000);
}

TEST(Comparison, CheckedExtremesRefuseTheReservedValue) {
  EXPECT_EQ(raisedBy([] { checked_binary_min_Integer8_Integer8(-128, 5); }), 1);
  EXPECT_EQ(raisedBy([] { checked_binary_max_Integer8_Integer8(-128, 5); }), 0);
  EXPECT_EQ(raisedBy([] { checked_binary_bit_and_Integer8_Integer8(-128, -128); }), 1);
  EXPECT_EQ(binary_bit_and_Integer8_Integer8(-128, -128), -128);
}

TEST(Comparison, ChopAndUnitizeRefuseANegativeTolerance) {
  EXPECT_EQ(binary_chop_Real64_Real64(-0.5, 0.6), 0);
  EXPECT_EQ(binary_chop_Real64_Real64(-0.5, 0.5), -0.5);
  EXPECT_EQ(raisedBy([] { binary_chop_Real64_Real64(1, -1e-300); }), 14);
  EXPECT_EQ(binary_unitize_Real64_Real64(-0.5, 0.5), 1);
  EXPECT_EQ(binary_unitize_Real64_Real64(0.25, 0.5), 0);
  EXPECT_EQ(binary_unitize_Real64_Real64(kNaN, 0.5), 0);
  EXPECT_EQ(raisedBy([] { checked_binary_unitize_Real64_Real64(kNaN, 0.5); }), 9);
  EXPECT_EQ(raisedBy([] { checked_binary_unitize_Real64_Real64(kNaN, -1); }), 14);
  EXPECT_EQ(raisedBy([] { binary_unitize_Integer32_Integer32(5, 0); }), 14);
  EXPECT_EQ(binary_unitize_Integer32_Integer32(INT32_MIN, INT32_MAX), 1);
  EXPECT_EQ(raisedBy([] { checked_binary_unitize_Integer32_Integer32(INT32_MIN, 1); }), 1);
}

TEST(Comparison, ErrorsOfComplexesHaveNoImaginaryPart) {
  double re = 9, im = 9;
  binary_abserr_ComplexReal64_ComplexReal64(&re, &im, 4, 5, 1, 1);
  EXPECT_EQ(re, 5);
  EXPECT_TRUE(sameReal(im, 0.0));
  binary_relerr_ComplexReal64_ComplexReal64(&re, &im, 4, 0, 2, 0);
  EXPECT_EQ(re, 1);
  binary_maxabs_ComplexReal64_ComplexReal64(&re, &im, 3, 4, 0, -2);
  EXPECT_EQ(re, 5);
  EXPECT_EQ(raisedBy([&] { binary_relerr_ComplexReal64_ComplexReal64(&re, &im, 4, 0, 0, 0); }), 16);
}

} // namespace

// The core of conversions and its entries: slots, shapes, statuses, aborts, memory. What becomes of elements
// is the matter of conversion_matrix_test.cpp.
#include "arrays.h"

#include "arrays/conversion.h"
#include "elementwise/at_levels.h"
#include "runtime/failure.h"
#include "runtime/memory.h"
#include "support/failing_heap.h"
#include "support/polling.h"
#include "support/tensor_builders.h"

#include <cfenv>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace torvane::test {

namespace {

const ConversionMethod kExact = {0, kCheck, 0}, kPlain = {1, kCoerce, 0}, kRounding = {1, kRound, 0};
constexpr auto kClipped = uint32_t{kClip};

// One element by a number of method, into a new array.
template <class To, class From>
To one(mint from, From x, mint to, mint methodNumber, mint expectedStatus = 0) {
  const Array source = arrayOf<From>(from, {x});
  MNumericArray *result = nullptr;
  const mint status = MNumericArray_convertByMethod(&result, source.get(), to, methodNumber);
  EXPECT_EQ(status, expectedStatus);
  if (status != 0) return To{}; // the slot is stale
  const Array owner(result);
  EXPECT_EQ(result->elementType, to);
  return valuesOf<To>(result).front();
}

TEST(Conversions, KnownElementsComeOutAsTheyShould) {
  one<int8_t>(5, int32_t{300}, 1, 1, 1305);
  EXPECT_EQ(one<int8_t>(5, int32_t{300}, 1, 2), 127);
  EXPECT_EQ(one<int8_t>(5, int32_t{300}, 1, 7), 0);
  EXPECT_EQ(one<double>(1, int8_t{-128}, 10, 7), -1.0);
  EXPECT_EQ(one<double>(1, int8_t{127}, 10, 7), 1.0);
  EXPECT_EQ(one<double>(1, int8_t{0}, 10, 7), 0.0);
  EXPECT_EQ(one<int8_t>(10, 1.0, 1, 7), 127);
  EXPECT_EQ(one<int8_t>(10, -1.0, 1, 7), -128);
  EXPECT_EQ(one<int8_t>(10, 2.5, 1, 7), 127);
  one<int32_t>(10, 2.5, 5, 1, 1305);
  EXPECT_EQ(one<int32_t>(10, 2.5, 5, 5), 2);
  one<int32_t>(10, 1e300, 5, 3, 1);
  EXPECT_EQ(one<int32_t>(10, 1e300, 5, 4), INT32_MAX);
  one<int32_t>(10, double(NAN), 5, 3, 1305);
  one<int32_t>(10, double(NAN), 5, 4, 1305);
  EXPECT_EQ(one<int32_t>(10, double(NAN), 5, 6), INT32_MIN);
  one<float>(5, int32_t{16777217}, 9, 1, 1305);
  EXPECT_EQ(one<float>(5, int32_t{16777217}, 9, 2), 3.4028235e38f);
  EXPECT_EQ(one<float>(5, int32_t{16777217}, 9, 3), 16777216.0f);
  EXPECT_EQ(one<float>(10, 1e-50, 9, 3), 0.0f);
  one<float>(10, 1e-50, 9, 1, 1305);
  EXPECT_EQ(one<double>(12, mcomplex{1, 1e-30}, 10, 3), 1.0);
  one<double>(12, mcomplex{1, 1e-30}, 10, 1, 1305);
  EXPECT_EQ(one<int16_t>(2, uint8_t{255}, 3, 7), 32767);
  EXPECT_EQ(one<int16_t>(2, uint8_t{0}, 3, 7), -32768);
  EXPECT_EQ(one<uint64_t>(1, int8_t{1}, 8, 7), 0x81FFFFFFFFFFFFFFu);
  EXPECT_EQ(one<uint64_t>(1, int8_t{0}, 8, 7), 0x8000000000000000u);
  one<double>(7, INT64_MAX, 10, 1, 1305);
  EXPECT_EQ(one<double>(8, uint64_t{1} << 63, 10, 1), 9223372036854775808.0);
}

// No other way of asking reaches the symmetric range.
TEST(Conversions, SymmetricRangeIsForRecordsFilledInByHand) {
  const Array source = arrayOf<int16_t>(3, {-200, -128, -127, 200}), reals = arrayOf<double>(10, {-1e9, NAN});
  MNumericArray *result = nullptr;
  const ConversionMethod byHand = {0, kCheck, kSymmetric | kClip};
  ASSERT_EQ(MNumericArray_convert(&result, source.get(), 1, &byHand), 0);
  const Array first(result);
  EXPECT_EQ(valuesOf<int8_t>(result), (std::vector<int8_t>{-127, -127, -127, 127}));
  result = nullptr;
  ASSERT_EQ(MNumericArray_convertByMethod(&result, source.get(), 1, 2), 0);
  const Array second(result);
  EXPECT_EQ(valuesOf<int8_t>(result), (std::vector<int8_t>{-128, -128, -127, 127}));
  result = nullptr;
  const ConversionMethod rounding = {0, kRound, kSymmetric | kClip};
  ASSERT_EQ(MNumericArray_convert(&result, reals.get(), 5, &rounding), 0);
  const Array third(result);
  EXPECT_EQ(valuesOf<int32_t>(result), (std::vector<int32_t>{-1000000000, -INT32_MAX}));
}

TEST(Conversions, NullArgumentsGive1300AndLeaveTheSlot) {
  const Array array = arrayOf<int32_t>(5, {1});
  MNumericArray *slot = array.get();
  EXPECT_EQ(MNumericArray_convert(nullptr, array.get(), 5, &kExact), 1300);
  EXPECT_EQ(MNumericArray_convert(&slot, nullptr, 5, &kExact), 1300);
  EXPECT_EQ(slot, array.get());
}

TEST(Conversions, OneTypeAndNoDestinationMakesACloneBitForBit) {
  const std::vector<uint64_t> patterns = {0x7FF0000000000001u, 0x8000000000000000u, 1, 0x4004000000000000u};
  const Array source = arrayOf(10, patterns);
  for (const mint method :
       {mint{kCheck}, mint{kCoerce}, mint{kScale}, mint{99}}) { // no method is asked for a copy
    const ConversionMethod record = {0, method, kClipped};
    MNumericArray *result = nullptr;
    ASSERT_EQ(MNumericArray_convert(&result, source.get(), 10, &record), 0);
    const Array owner(result);
    EXPECT_NE(result, source.get());
    EXPECT_EQ(valuesOf<uint64_t>(result), patterns);
  }
}

TEST(Conversions, OneTypeIntoADestinationIsACopyAlsoOntoItself) {
  const std::vector<int16_t> values = {-7, 8, 9};
  const Array source = arrayOf(3, values), target = arrayOf<int16_t>(3, {0, 0, 0});
  for (MNumericArray *slot : {target.get(), source.get()}) {
    ASSERT_EQ(MNumericArray_convert(&slot, source.get(), 3, &kRounding), 0);
    EXPECT_EQ(valuesOf<int16_t>(slot), values);
  }
}

TEST(Conversions, RoundRoundsRealsAndComplexesOfOneTypeAlsoInPlace) {
  const Array reals = arrayOf<double>(10, {0.5, 1.5, -2.5, 1e300, -0.25}),
              narrow = arrayOf<float>(9, {2.5f, -0.5f});
  const Array complexes = arrayOf<double>(12, {2.5, -3.5, 0.75, -0.75});
  for (const Array *array : {&reals, &narrow, &complexes}) {
    MNumericArray *made = nullptr, *slot = array->get();
    ASSERT_EQ(MNumericArray_convert(&made, array->get(), slot->elementType, &kRounding), 0);
    const Array owner(made);
    ASSERT_EQ(MNumericArray_convert(&slot, array->get(), slot->elementType, &kRounding), 0);
    EXPECT_EQ(std::memcmp(made->data, slot->data, MNumericArray_byteCount(made)), 0);
  }
  EXPECT_EQ(valuesOf<double>(reals.get()), (std::vector<double>{0, 2, -2, 1e300, 0}));
  EXPECT_TRUE(std::signbit(valuesOf<double>(reals.get())[4]));
  EXPECT_EQ(valuesOf<float>(narrow.get()), (std::vector<float>{2, 0}));
  EXPECT_EQ(valuesOf<double>(complexes.get()), (std::vector<double>{2, -4, 1, -1}));
}

TEST(Conversions, NewArraysTakeTheExtentsOfTheSource) {
  const Array source = newArray(2, {2, 3, 2});
  std::memset(source->data, 9, 12);
  MNumericArray *result = nullptr;
  ASSERT_EQ(MNumericArray_convert(&result, source.get(), 12, &kPlain), 0);
  const Array owner(result);
  EXPECT_EQ(result->rank, 3);
  EXPECT_TRUE(std::equal(source->dimensions, source->dimensions + 3, result->dimensions));
  for (const double part : {0, 1}) EXPECT_EQ(valuesOf<double>(result)[size_t(part)], part == 0 ? 9 : 0);
}

TEST(Conversions, DestinationsThatDoNotMatchGive1305AndStay) {
  const Array source = arrayOf<int32_t>(5, {1, 2, 3, 4});
  const Array otherType = arrayOf<float>(9, {7, 7, 7, 7}), otherRank = newArray(10, {2, 2}),
              otherSize = newArray(10, {5});
  for (const Array *target : {&otherType, &otherRank, &otherSize}) {
    MNumericArray *slot = target->get();
    EXPECT_EQ(MNumericArray_convert(&slot, source.get(), 10, &kPlain), 1305);
    EXPECT_EQ(slot, target->get());
  }
  EXPECT_EQ(valuesOf<float>(otherType.get()), (std::vector<float>(4, 7)));
}

// Extents that were reset say nothing about a payload: too small a destination, and too small a source.
TEST(Conversions, DestinationsOfOtherExtentsThanElementsGive1305AndStay) {
  for (const mint target : {5, 10}) { // a copy, and a conversion
    const Array five = newArray(target, {5}), source = arrayOf<int32_t>(5, {1, 2, 3, 4, 5});
    std::memset(five->data, 0, MNumericArray_byteCount(five.get()));
    const Array small = resetTo(newArray(target, {2}), {5}), part = resetTo(arrayOf<int32_t>(5, {1, 2}), {5});
    MNumericArray *slot = small.get();
    EXPECT_EQ(MNumericArray_convert(&slot, source.get(), target, &kPlain), 1305);
    slot = five.get();
    EXPECT_EQ(MNumericArray_convert(&slot, part.get(), target, &kPlain), 1305);
    EXPECT_EQ(*static_cast<char *>(five->data), 0);
    MNumericArray *made = nullptr;
    EXPECT_EQ(MNumericArray_convert(&made, part.get(), target, &kPlain), 403);
    EXPECT_EQ(made, nullptr);
  }
}

TEST(Conversions, OfRankZeroGoIntoRankZeroAndNowhereElse) {
  const Array source = resetTo(arrayOf<int32_t>(5, {6}), {}), same = resetTo(arrayOf<int32_t>(5, {0}), {}),
              real = resetTo(arrayOf<double>(10, {0}), {});
  MNumericArray *slot = same.get(), *other = real.get(), *made = nullptr;
  EXPECT_EQ(MNumericArray_convert(&slot, source.get(), 5, &kPlain), 0);
  EXPECT_EQ(MNumericArray_convert(&other, source.get(), 10, &kPlain), 0);
  EXPECT_EQ(valuesOf<int32_t>(same.get()).front(), 6);
  EXPECT_EQ(valuesOf<double>(real.get()).front(), 6);
  EXPECT_EQ(MNumericArray_convert(&made, source.get(), 5, &kPlain), 403);
}

TEST(Conversions, OfAShapeThatWasAdoptedMakeThatShape) {
  const Array source = adoptedArray(10, {0, 5});
  const ConversionMethod *const methods[] = {&kPlain, &kRounding};
  for (const mint target : {10, 5})
    for (const ConversionMethod *method : methods) {
      MNumericArray *made = nullptr;
      ASSERT_EQ(MNumericArray_convert(&made, source.get(), target, method), 0);
      const Array owner(made);
      EXPECT_EQ(extentsOf(made), (std::vector<mint>{0, 5}));
      EXPECT_EQ(made->elementType, target);
    }
}

TEST(Conversions, TagsThatAreNoneAreRefused) {
  const Array source = arrayOf<int32_t>(5, {1}), target = arrayOf<int32_t>(5, {6});
  for (const mint tag : {INT32_MIN, -1, 0, 13, INT32_MAX}) {
    MNumericArray *slot = nullptr, *filled = target.get();
    EXPECT_EQ(MNumericArray_convert(&slot, source.get(), tag, &kPlain), 403); // no array of it can be made
    EXPECT_EQ(slot, nullptr);
    source->elementType = tag;
    EXPECT_EQ(MNumericArray_convert(&filled, source.get(), 5, &kPlain), 1301);
    EXPECT_EQ(MNumericArray_convert(&slot, source.get(), tag, &kPlain), 403);
    target->elementType = tag;
    EXPECT_EQ(MNumericArray_convert(&filled, source.get(), tag, &kPlain), 1301);
    source->elementType = 3;
    EXPECT_EQ(MNumericArray_convert(&filled, source.get(), tag, &kPlain), 1301);
    source->elementType = target->elementType = 5;
  }
  EXPECT_EQ(valuesOf<int32_t>(target.get()).front(), 6);
}

TEST(Conversions, MethodsThatAreNoneGive1304InEveryPairAndWriteNothing) {
  for (mint from = 1; from <= 12; ++from)
    for (mint to = 1; to <= 12; ++to) {
      if (from == to) continue;
      const Array source = newArray(from, {2}), target = newArray(to, {2});
      std::memset(source->data, 0, MNumericArray_byteCount(source.get()));
      std::memset(target->data, 0x5A, MNumericArray_byteCount(target.get()));
      for (const mint method : {INT32_MIN, -1, 0, 2, 4, 6, 8, 9}) {
        const ConversionMethod record = {1, method, kClipped};
        MNumericArray *slot = target.get();
        EXPECT_EQ(MNumericArray_convert(&slot, source.get(), to, &record), 1304) << from << " " << to;
        EXPECT_EQ(*static_cast<const unsigned char *>(target->data), 0x5A);
      }
    }
}

TEST(Conversions, NothingIsConvertedWhereThereIsNoElement) {
  const Array source = newArray(10, {3, 0});
  const ConversionMethod noMethod = {1, 2, 0};
  MNumericArray *result = nullptr;
  EXPECT_EQ(MNumericArray_convert(&result, source.get(), 1, &noMethod), 0);
  const Array owner(result);
  EXPECT_EQ(result->elementType, 1);
  EXPECT_EQ(result->elementCount, 0);
  EXPECT_EQ(result->rank, 2);
}

// The address in the slot after a failure is compared, never followed.
TEST(Conversions, FailureDeletesTheNewArrayAndLeavesItsAddressInTheSlot) {
  const Array source = arrayOf<double>(10, {1, 2.5});
  const uint32_t used = usedBytesOfThisThread();
  MNumericArray *result = nullptr;
  EXPECT_EQ(MNumericArray_convert(&result, source.get(), 5, &kExact), 1305);
  EXPECT_NE(result, nullptr);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST(Conversions, FailureKeepsAnExistingDestinationConvertedUpToIt) {
  const Array source = arrayOf<double>(10, {1, 2, 2.5, 4}), target = arrayOf<int32_t>(5, {7, 7, 7, 7});
  MNumericArray *slot = target.get();
  EXPECT_EQ(MNumericArray_convert(&slot, source.get(), 5, &kExact), 1305);
  EXPECT_EQ(slot, target.get());
  EXPECT_EQ(valuesOf<int32_t>(target.get()), (std::vector<int32_t>{1, 2, 7, 7}));
}

TEST(Conversions, ComplexElementThatFailsInItsSecondPartIsNotWritten) {
  const Array source = arrayOf<double>(12, {1, 2, 3, 1e300}), target = arrayOf<float>(11, {7, 7, 7, 7});
  MNumericArray *slot = target.get();
  EXPECT_EQ(MNumericArray_convert(&slot, source.get(), 11, &kPlain), 1305);
  EXPECT_EQ(valuesOf<float>(target.get()), (std::vector<float>{1, 2, 7, 7}));
}

class ConversionsAt : public AtLevel {};

TEST_P(ConversionsAt, RoundByTheModeInForce) {
  const Array source = arrayOf<double>(10, {2.25, -2.25, 7.75, -0.75});
  const struct {
    int mode;
    std::vector<int16_t> expected;
  } cases[] = {{FE_TONEAREST, {2, -2, 8, -1}},
               {FE_UPWARD, {3, -2, 8, 0}},
               {FE_DOWNWARD, {2, -3, 7, -1}},
               {FE_TOWARDZERO, {2, -2, 7, 0}}};
  for (const auto &row : cases)
    for (const uint32_t flags : {uint32_t{0}, kClipped}) {
      const ConversionMethod method = {1, kRound, flags};
      MNumericArray *result = nullptr;
      std::fesetround(row.mode);
      const mint status = MNumericArray_convert(&result, source.get(), 3, &method);
      std::fesetround(FE_TONEAREST);
      ASSERT_EQ(status, 0);
      const Array owner(result);
      EXPECT_EQ(valuesOf<int16_t>(result), row.expected) << row.mode;
    }
}

INSTANTIATE_TEST_SUITE_P(Levels, ConversionsAt, testing::Range(mint{0}, levelsToTest()));

// ---- the abort poll ----

class Aborts : public testing::Test {
  const Polling polling{0};
};

TEST_F(Aborts, TurnTheStatusInto1000WhenTheElementsAreDone) {
  const Array source = arrayOf<int32_t>(5, {1, 2}), target = arrayOf<int16_t>(3, {7, 7});
  MNumericArray *slot = target.get();
  EXPECT_EQ(MNumericArray_convert(&slot, source.get(), 3, &kPlain), 1000);
  EXPECT_EQ(valuesOf<int16_t>(target.get()), (std::vector<int16_t>{1, 2}));

  const uint32_t used = usedBytesOfThisThread();
  MNumericArray *result = nullptr;
  EXPECT_EQ(MNumericArray_convert(&result, source.get(), 3, &kPlain), 1000);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST_F(Aborts, GoBeforeTheStatusOfAnElementThatFails) {
  const Array source = arrayOf<double>(10, {1, 2, 2.5, 4}), target = arrayOf<int32_t>(5, {7, 7, 7, 7});
  MNumericArray *slot = target.get();
  EXPECT_EQ(MNumericArray_convert(&slot, source.get(), 5, &kExact), 1000);
  EXPECT_EQ(slot, target.get());
  EXPECT_EQ(valuesOf<int32_t>(target.get()), (std::vector<int32_t>{1, 2, 7, 7}));
}

TEST_F(Aborts, AreNotAskedForWhenNothingButACopyIsMade) {
  const Array source = arrayOf<int32_t>(5, {1, 2});
  MNumericArray *slot = nullptr;
  EXPECT_EQ(MNumericArray_convert(&slot, source.get(), 5, &kPlain), 0);
  const Array owner(slot);
  EXPECT_EQ(MNumericArray_convert(&slot, source.get(), 5, &kPlain), 0);
  EXPECT_TRUE(confirmedAborts().empty());
}

TEST_F(Aborts, LeaveTheStatusWhereTheyAreDeclined) {
  const Array source = arrayOf<int32_t>(5, {1});
  confirmAbortAfter(1);
  MNumericArray *result = nullptr;
  EXPECT_EQ(MNumericArray_convert(&result, source.get(), 3, &kPlain), 0);
  MNumericArray_delete(result);
  EXPECT_EQ(confirmedAborts(), std::vector<std::string>{"In DLLFunction"});
}

// ---- entries ----

TEST(ConvertByMethod, RefusesTagsBeforeMethods) {
  const Array source = arrayOf<int32_t>(5, {1});
  MNumericArray *result = nullptr;
  for (const mint tag : {-1, 0, 13})
    EXPECT_EQ(MNumericArray_convertByMethod(&result, source.get(), tag, 99), 1301);
  for (const mint number : {-1, 0, 9})
    EXPECT_EQ(MNumericArray_convertByMethod(&result, source.get(), 5, number), 1304);
  EXPECT_EQ(result, nullptr);
  EXPECT_EQ(MNumericArray_convertByMethod(&result, nullptr, 5, 1), 1300);
}

TEST(ConvertByMethod, CheckIsExactAndTheOthersForgiveTheLastBit) {
  const double near = std::nextafter(3.0, 4.0);
  one<int32_t>(10, near, 5, 1, 1305);
  EXPECT_EQ(one<int32_t>(10, near, 5, 2 + 1), 3);
  // One above Check does not check exactly either: its tolerance is a bit.
  EXPECT_EQ(one<int32_t>(10, near, 5, 2), 3);
}

// An imaginary part of 2^-53 is below the bit that is forgiven. With Check none passes, though its second
// number forgives a bit too.
TEST(ConvertByMethod, OneBitForgivesAnImaginaryPartInAllMethodsButCheck) {
  const mcomplex nearlyOne = {1, std::ldexp(1.0, -53)};
  for (const mint number : {1, 2}) one<double>(12, nearlyOne, 10, number, 1305);
  for (mint number = 3; number <= 8; ++number) EXPECT_EQ(one<double>(12, nearlyOne, 10, number), 1) << number;
  EXPECT_EQ(one<int32_t>(12, nearlyOne, 5, 5), 1);
  for (mint number = 3; number <= 8; ++number)
    one<double>(12, mcomplex{1, std::ldexp(1.0, -51)}, 10, number, 1305);
}

TEST(ConvertByMethod, ScaleClipsARealByItsNumber) {
  one<float>(10, 1e39, 9, 7, 1305);
  EXPECT_EQ(one<float>(10, 1e39, 9, 8), std::numeric_limits<float>::max());
  EXPECT_EQ(one<float>(10, -1e39, 9, 8), std::numeric_limits<float>::lowest());
}

TEST(ConvertWithTolerance, TestsItsArgumentsInOrder) {
  const Array source = arrayOf<double>(10, {2.5});
  MNumericArray *result = nullptr;
  EXPECT_EQ(MNumericArray_convertWithTolerance(&result, nullptr, 99, 99, -1), 6);
  for (const mint tag : {-1, 0, 13})
    EXPECT_EQ(MNumericArray_convertWithTolerance(&result, source.get(), tag, 99, -1), 1);
  for (const mint number : {-1, 0, 9})
    EXPECT_EQ(MNumericArray_convertWithTolerance(&result, source.get(), 5, number, -1), 6);
  EXPECT_EQ(MNumericArray_convertWithTolerance(&result, source.get(), 5, 1, -0.5), 4);
  EXPECT_EQ(result, nullptr);
  EXPECT_EQ(MNumericArray_convertWithTolerance(nullptr, source.get(), 5, 1, 0), 6);
  EXPECT_EQ(MNumericArray_convertWithTolerance(&result, source.get(), 5, 1, 0), 6);
}

TEST(ConvertWithTolerance, CountsDecimalDigitsForEveryMethod) {
  const Array source = arrayOf<double>(10, {1000.001}); // 2^-20 apart, which 34 bits forgive
  for (const mint number : {1, 2, 3, 4}) {
    MNumericArray *result = nullptr;
    ASSERT_EQ(MNumericArray_convertWithTolerance(&result, source.get(), 5, number, 10.5), 0) << number;
    const Array owner(result);
    EXPECT_EQ(valuesOf<int32_t>(result).front(), 1000);
    result = nullptr;
    EXPECT_EQ(MNumericArray_convertWithTolerance(&result, source.get(), 5, number, 9), 6) << number;
  }
}

mint statusWithDigits(mcomplex z, mint methodNumber, mreal digits) {
  const Array source = arrayOf<double>(12, {z.re, z.im});
  MNumericArray *result = nullptr;
  const mint status = MNumericArray_convertWithTolerance(&result, source.get(), 10, methodNumber, digits);
  if (status == 0) {
    EXPECT_EQ(valuesOf<double>(result), std::vector<double>{z.re});
    MNumericArray_delete(result);
  }
  return status;
}

TEST(ConvertWithTolerance, ForgivesAnImaginaryPartByDigitsInAllMethodsButCheck) {
  const mcomplex nearlyOne = {1, 1e-4};
  for (mint number = 1; number <= 8; ++number) {
    EXPECT_EQ(statusWithDigits(nearlyOne, number, 0), 6) << number;
    EXPECT_EQ(statusWithDigits(nearlyOne, number, 12), number < 3 ? 6 : 0) << number;
  }
}

// Too far apart for any tolerance below 53 bits, which the two numbers of digits lie about.
TEST(ConvertWithTolerance, HasMoreThanThreeBitsInADigitByTheBinaryLogarithmOfTen) {
  EXPECT_EQ(statusWithDigits({1, -0.75}, 3, 15.9546), 0);
  EXPECT_EQ(statusWithDigits({1, -0.75}, 3, 15.9545), 6);
}

TEST(ConvertNew, ForgivesTheLastBit) {
  const Array source = arrayOf<double>(10, {std::nextafter(3.0, 4.0)}),
              farther = arrayOf<double>(10, {3 + std::ldexp(1.0, -49)});
  const Array result(MNumericArray_convertNew(source.get(), 5, 0));
  ASSERT_NE(result, nullptr);
  EXPECT_EQ(valuesOf<int32_t>(result.get()), std::vector<int32_t>{3});
  EXPECT_EQ(MNumericArray_convertNew(farther.get(), 5, 0), nullptr);
}

TEST(ConvertNew, ScalesAndClipsOrCoerces) {
  const Array bytes = arrayOf<uint8_t>(2, {0, 255}), wide = arrayOf<double>(10, {1e300});
  const Array scaled(MNumericArray_convertNew(bytes.get(), 9, 1)),
      coerced(MNumericArray_convertNew(bytes.get(), 9, 2));
  EXPECT_EQ(valuesOf<float>(scaled.get()), (std::vector<float>{0, 1}));
  EXPECT_EQ(valuesOf<float>(coerced.get()), (std::vector<float>{0, 255}));
  const Array clipped(MNumericArray_convertNew(wide.get(), 9, 3));
  EXPECT_EQ(valuesOf<float>(clipped.get()).front(), 3.4028235e38f);
  EXPECT_EQ(MNumericArray_convertNew(wide.get(), 9, 0), nullptr);
  EXPECT_EQ(MNumericArray_convertNew(nullptr, 9, 0), nullptr);
  EXPECT_EQ(MNumericArray_convertNew(wide.get(), 13, 0), nullptr);
}

TEST(ConvertFromTensor, ViewsTheThreeTypesAndLeavesTheTensorAlone) {
  const Tensor words = tensorOf<mint>({2, 2}, {1, -2, 3, 4}), reals = tensorOf<mreal>({3}, {1, 2, 3});
  const Tensor complexes = tensorOf<mcomplex>({1}, {{5, 0}});
  const uint32_t used = usedBytesOfThisThread();
  for (const Tensor *tensor : {&words, &reals, &complexes}) {
    const void *data = (*tensor)->data;
    const Array result = newArray(3, extentsOf(*tensor));
    EXPECT_EQ(MNumericArray_fromTensor(result.get(), tensor->get(), &kPlain), 0);
    EXPECT_EQ(valuesOf<int16_t>(result.get()).front(), tensor == &complexes ? 5 : 1);
    EXPECT_EQ((*tensor)->data, data);
    EXPECT_TRUE(isValidTensor(tensor->get()));
  }
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST(ConvertFromTensor, RefusesWhatNoArrayCanView) {
  const Array result = newArray(3, {1});
  const Tensor scalar = newTensor(TORVANE_TYPE_REAL, {}), rowless = newTensor(TORVANE_TYPE_REAL, {0, 3}),
               none(MTensor_new());
  for (const Tensor *tensor : {&scalar, &rowless, &none})
    EXPECT_EQ(MNumericArray_fromTensor(result.get(), tensor->get(), &kPlain), 204);
  EXPECT_EQ(MNumericArray_fromTensor(result.get(), nullptr, &kPlain), 1300);
  EXPECT_EQ(MNumericArray_fromTensor(nullptr, scalar.get(), &kPlain), 1300);
  const Tensor other = tensorOf<mreal>({2}, {1, 2});
  EXPECT_EQ(MNumericArray_fromTensor(result.get(), other.get(), &kPlain), 1305);
}

// ---- memory ----

TEST(ConversionMemory, EveryFailedRequestGives403AndLeavesTheSlotNull) {
  const Array source = newArray(5, {300000});
  std::memset(source->data, 0, 1200000);
  FailingHeap heap;
  const uint32_t used = usedBytesOfThisThread();
  for (const mint target : {5, 10}) { // a clone, and a conversion
    const int64_t failures = failEveryRequest(heap, [&] {
      MNumericArray *result = nullptr;
      const mint status = MNumericArray_convert(&result, source.get(), target, &kPlain);
      EXPECT_EQ(status, heap.failed() ? 403 : 0);
      EXPECT_EQ(result == nullptr, heap.failed());
      MNumericArray_delete(result);
    });
    EXPECT_GE(failures, 1);
  }
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST(ConversionMemory, ViewThatCannotBeMadeGives204) {
  const std::vector<mint> extents(50000, 1); // so large that the heap is asked
  const Tensor tensor = newTensor(TORVANE_TYPE_REAL, extents);
  const Array result = newArray(10, extents);
  *static_cast<double *>(result->data) = 5;
  *elements<mreal>(tensor) = 2;
  FailingHeap heap;
  const uint32_t used = usedBytesOfThisThread();
  heap.failFrom(1);
  EXPECT_EQ(MNumericArray_fromTensor(result.get(), tensor.get(), &kPlain), 204);
  EXPECT_TRUE(heap.failed());
  heap.succeed();
  EXPECT_EQ(valuesOf<double>(result.get()).front(), 5);
  EXPECT_EQ(MNumericArray_fromTensor(result.get(), tensor.get(), &kPlain), 0);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

} // namespace

} // namespace torvane::test

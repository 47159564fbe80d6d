// Scalars as text against exact decimal arithmetic, and where the strings live: every one is a block of the
// library's heap, and memory that does not suffice takes the fatal path.
#include "runtime/heap_state.h"
#include "runtime/memory.h"
#include "support/child_process.h"
#include "support/failing_heap.h"
#include "support/half_values.h"
#include "support/heap_walker.h"
#include "support/on_thread.h"
#include "support/raised.h"
#include "support/real_samples.h"

#include <cstdio>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <torvane/text.h>
#include <type_traits>
#include <unistd.h>

namespace torvane::test {

namespace {

// The text of a call, whose string is freed.
template <class... A> std::string textOf(char *(*entry)(A...), std::type_identity_t<A>... values) {
  char *text = entry(values...);
  const std::string copy = text;
  to_string_free(text);
  return copy;
}

// Decimal digits and the place of the point, by hand.
class Decimal {
public:
  explicit Decimal(uint64_t value) {
    for (; value != 0; value /= 10) digits.insert(digits.begin(), char(value % 10));
    point = int(digits.size());
  }
  void twice() {
    int carry = 0;
    for (size_t k = digits.size(); k-- > 0; carry = digits[k] > 9, digits[k] = char(digits[k] % 10))
      digits[k] = char(2 * digits[k] + carry);
    if (carry != 0) prepend(1);
  }
  void halve() {
    int carry = 0;
    for (char &digit : digits) {
      const int whole = digit + 10 * carry;
      digit = char(whole / 2);
      carry = whole % 2;
    }
    if (carry != 0) digits.push_back(5);
  }
  // Six places, ties to even.
  std::string rounded() {
    while (point < 1) prepend(0);
    while (digits.size() < size_t(point) + 6) digits.push_back(0);
    const size_t kept = size_t(point) + 6;
    const std::string rest(digits.begin() + long(kept), digits.end()), half = std::string(1, 5);
    const std::string trimmed = rest.substr(0, rest.find_last_not_of('\0') + 1);
    digits.resize(kept);
    if (trimmed > half || (trimmed == half && digits.back() % 2 != 0)) increment();
    std::string text;
    for (const char digit : digits) text += char('0' + digit);
    text.erase(0, std::min(text.find_first_not_of('0'), size_t(point) - 1));
    return text.insert(text.size() - 6, 1, '.');
  }

private:
  std::string digits; // values 0 to 9
  int point;          // digits before it

  void prepend(char digit) {
    digits.insert(digits.begin(), digit);
    ++point;
  }
  void increment() {
    for (size_t k = digits.size(); k-- > 0;) {
      if (++digits[k] < 10) return;
      digits[k] = 0;
    }
    prepend(1);
  }
};

std::string exactText(double x) {
  const std::string sign = std::signbit(x) ? "-" : "";
  if (std::isnan(x)) return sign + "nan";
  if (std::isinf(x)) return sign + "inf";
  int exponent = 0;
  Decimal decimal(uint64_t(std::ldexp(std::frexp(std::fabs(x), &exponent), 53)));
  for (exponent -= 53; exponent > 0; --exponent) decimal.twice();
  for (; exponent < 0; ++exponent) decimal.halve();
  return sign + decimal.rounded();
}

template <class T> void expectIntegers(char *(*entry)(T)) {
  using Limits = std::numeric_limits<T>;
  for (const T x : {Limits::min(), T(Limits::min() + 1), T(-1), T(0), T(1), T(9), T(10), T(99), T(100),
                    T(Limits::max() - 1), Limits::max()})
    EXPECT_EQ(textOf(entry, x), std::to_string(x));
}

} // namespace

TEST(TextOfIntegers, HasTheirDigitsAndTheSignOfNegativesAtEveryExtreme) {
  expectIntegers(to_string_Integer8);
  expectIntegers(to_string_UnsignedInteger8);
  expectIntegers(to_string_Integer16);
  expectIntegers(to_string_UnsignedInteger16);
  expectIntegers(to_string_Integer32);
  expectIntegers(to_string_UnsignedInteger32);
  expectIntegers(to_string_Integer64);
  expectIntegers(to_string_UnsignedInteger64);
}

TEST(TextOfIntegers, RendersTheMostNegativeValueOfEachWidth) {
  EXPECT_EQ(textOf(to_string_Integer8, INT8_MIN), "-128");
  EXPECT_EQ(textOf(to_string_UnsignedInteger8, uint8_t{255}), "255");
  EXPECT_EQ(textOf(to_string_Integer16, INT16_MIN), "-32768");
  EXPECT_EQ(textOf(to_string_Integer32, INT32_MIN), "-2147483648");
  EXPECT_EQ(textOf(to_string_Integer64, INT64_MIN), "-9223372036854775808");
  EXPECT_EQ(textOf(to_string_UnsignedInteger64, UINT64_MAX), "18446744073709551615");
}

TEST(TextOfIntegers, OfSixteenBitsIsRightForAllValues) {
  for (int value = 0; value < 65536; ++value) {
    ASSERT_EQ(textOf(to_string_UnsignedInteger16, uint16_t(value)), std::to_string(value));
    ASSERT_EQ(textOf(to_string_Integer16, int16_t(value - 32768)), std::to_string(value - 32768));
  }
}

TEST(TextOfReals, HasSixPlacesAndEveryDigitBeforeThePoint) {
  EXPECT_EQ(textOf(to_string_Real64, 0.0), "0.000000");
  EXPECT_EQ(textOf(to_string_Real64, -0.0), "-0.000000");
  EXPECT_EQ(textOf(to_string_Real64, -2.5), "-2.500000");
  EXPECT_EQ(textOf(to_string_Real64, 0x1p-7), "0.007812"); // a tie, to even
  EXPECT_EQ(textOf(to_string_Real64, 0.9999996), "1.000000");
  EXPECT_EQ(textOf(to_string_Real64, -5e-324), "-0.000000");
  EXPECT_EQ(textOf(to_string_Real64, 1e300).size(), 301u + 1 + 6);
  EXPECT_EQ(textOf(to_string_Real64, -1.7976931348623157e308).size(), 1u + 309 + 1 + 6);
  EXPECT_EQ(textOf(to_string_Real32, 0.1f), "0.100000");
  EXPECT_EQ(textOf(to_string_Real32, 16777217.0f), "16777216.000000");
}

TEST(TextOfReals, IsTheExactValueRoundedToSixPlaces) {
  for (const double x : specialReals<double>()) ASSERT_EQ(textOf(to_string_Real64, x), exactText(x));
  for (const double x : randomReals<double>(2000, 61)) ASSERT_EQ(textOf(to_string_Real64, x), exactText(x));
  for (int k = -4096; k <= 4096; ++k) // ties among them
    ASSERT_EQ(textOf(to_string_Real64, std::ldexp(k, -8)), exactText(std::ldexp(k, -8)));
}

TEST(TextOfReals, OfBinary32IsThatOfTheWidenedValue) {
  for (const float x : specialReals<float>()) ASSERT_EQ(textOf(to_string_Real32, x), exactText(double(x)));
  for (const float x : randomReals<float>(2000, 62))
    ASSERT_EQ(textOf(to_string_Real32, x), exactText(double(x)));
}

TEST(TextOfReals, OfBinary16IsThatOfItsValueForAllPatterns) {
  for (uint32_t bits = 0; bits < 65536; ++bits) {
    const auto pattern = uint16_t(bits);
    const std::string sign = bits >> 15 != 0 ? "-" : "";
    ASSERT_EQ(textOf(to_string_Real16, pattern),
              isHalfNaN(pattern) ? sign + "nan" : exactText(halfValue(pattern)))
        << bits;
  }
}

TEST(TextOfReals, OfInfinitiesAndNaNsIsWhatPrintfWrites) {
  char expected[16];
  const float infinity = HUGE_VALF, nan = std::numeric_limits<float>::quiet_NaN();
  for (const float x : {infinity, -infinity, nan, -nan}) {
    std::snprintf(expected, sizeof expected, "%f", double(x));
    EXPECT_EQ(textOf(to_string_Real32, x), expected);
    EXPECT_EQ(textOf(to_string_Real64, double(x)), expected);
    EXPECT_EQ(textOf(to_string_ComplexReal64, double(x), 0.0), std::string(expected) + " + 0.000000I");
  }
}

TEST(TextOfComplexes, JoinsThePartsByAPlusWhateverTheSign) {
  EXPECT_EQ(textOf(to_string_ComplexReal64, 0.0, 0.0), "0.000000 + 0.000000I");
  EXPECT_EQ(textOf(to_string_ComplexReal64, 1.0, -2.0), "1.000000 + -2.000000I");
  EXPECT_EQ(textOf(to_string_ComplexReal32, 1.0f, -2.0f), "1.000000 + -2.000000I");
  EXPECT_EQ(textOf(to_string_ComplexReal64, -0.0, -0.0), "-0.000000 + -0.000000I");
  const std::vector<double> wide = randomReals<double>(400, 63);
  const std::vector<float> narrow = randomReals<float>(400, 64);
  for (size_t k = 0; k + 1 < wide.size(); ++k) {
    ASSERT_EQ(textOf(to_string_ComplexReal64, wide[k], wide[k + 1]),
              exactText(wide[k]) + " + " + exactText(wide[k + 1]) + "I");
    ASSERT_EQ(textOf(to_string_ComplexReal32, narrow[k], narrow[k + 1]),
              exactText(double(narrow[k])) + " + " + exactText(double(narrow[k + 1])) + "I");
  }
}

TEST(TextMemory, AStringIsOneFreshBlockThatTheCallerFrees) {
  onThread([] {
    to_string_free(to_string_Integer8(0)); // the thread's heap stands
    const uint32_t before = usedBytesOfThisThread();
    char *first = to_string_Real64(-1.7976931348623157e308),
         *second = to_string_Real64(-1.7976931348623157e308);
    EXPECT_NE(first, second);
    EXPECT_GE(blockUsableBytes(first), std::strlen(first) + 1);
    EXPECT_GT(usedBytesOfThisThread(), before);
    to_string_free(first);
    EXPECT_EQ(second, exactText(-1.7976931348623157e308)) << "the other one lives on";
    to_string_free(second);
    EXPECT_EQ(usedBytesOfThisThread(), before);
    EXPECT_TRUE(isValidHere());
  });
}

TEST(TextMemory, NullIsNoStringToFree) {
  const uint32_t before = usedBytesOfThisThread();
  EXPECT_EQ(raisedBy([] { to_string_free(nullptr); }), 0);
  EXPECT_EQ(usedBytesOfThisThread(), before);
  EXPECT_TRUE(isValidHere());
}

TEST(TextMemory, AnyThreadMayFree) {
  char *text = to_string_Integer64(INT64_MIN);
  onThread([text] { to_string_free(text); });
  EXPECT_TRUE(isValidHere());
}

// Strings have no errorMode: whatever fails while one is made ends the process.
class TextExhaustion : public testing::TestWithParam<std::function<void()>> {};

TEST_P(TextExhaustion, TakesTheFatalPathWhicheverRequestOfTheHeapFails) {
  for (int64_t k = 1;; ++k) {
    const ChildOutcome outcome = runInChild([&] {
      FailingHeap heap;
      onThread([&] {
        heap.failRequest(k);
        GetParam()();
        _exit(heap.failed() ? 98 : 0);
      });
    });
    if (outcome.status == 0) {
      EXPECT_GE(k, 3) << "the thread's heap and the string's memory are requests";
      return;
    }
    ASSERT_EQ(outcome.status, 1);
    ASSERT_EQ(outcome.output.substr(0, 26), "\nNo more memory available.");
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, TextExhaustion,
                         testing::Values([] { to_string_Integer64(INT64_MIN); },
                                         [] { to_string_ComplexReal64(1e300, -2); }),
                         [](const auto &kind) { return kind.index == 0 ? "Integer64" : "ComplexReal64"; });

} // namespace torvane::test

// Digits of integers: against division one digit at a time, and put together again.
#include "algorithms/exact_call.h"

using namespace torvane;
using namespace torvane::test;

namespace {

class IntegerDigits : public NamedFunctions {};

NamedCall digits(mint x, mint base) { return std::move(NamedCall("IntegerDigits").integer(x).integer(base)); }
NamedCall digits(mint x, mint base, mint length) {
  return std::move(NamedCall("IntegerDigits").integer(x).integer(base).integer(length));
}
Tensor vectorOf(const std::vector<mint> &values) { return tensorOf<mint>({mint(values.size())}, values); }

TEST_F(IntegerDigits, OfKnownIntegers) {
  expectExactly(digits(0, 10), vectorOf({0}));
  expectExactly(digits(-123, 10), vectorOf({1, 2, 3}));
  expectExactly(digits(5, 2, 2), vectorOf({0, 1}));
  expectExactly(digits(5, 2, 5), vectorOf({0, 0, 1, 0, 1}));
  expectExactly(digits(5, 2, 0), vectorOf({}));
  expectExactly(digits(0, 10, 3), vectorOf({0, 0, 0}));
  expectExactly(digits(1234, 10, 2), vectorOf({3, 4}));
}

TEST_F(IntegerDigits, OfTheExtremeIntegers) {
  std::vector<mint> binary(32, 0);
  binary[0] = 1;
  expectExactly(digits(INT32_MIN, 2), vectorOf(binary));
  expectExactly(digits(INT32_MIN, 10), vectorOf({2, 1, 4, 7, 4, 8, 3, 6, 4, 8}));
  expectExactly(digits(INT32_MAX, 10), vectorOf({2, 1, 4, 7, 4, 8, 3, 6, 4, 7}));
  expectExactly(digits(INT32_MIN, INT32_MAX), vectorOf({1, 1}));
  expectExactly(digits(INT32_MAX, INT32_MAX), vectorOf({1, 0}));
  expectExactly(digits(INT32_MIN, 2, 3), vectorOf({0, 0, 0}));
}

TEST_F(IntegerDigits, ComeTogetherAgain) {
  std::mt19937 random(1);
  for (int time = 0; time < 2000; ++time) {
    const mint x = mint(random()) >> (random() % 31),
               base = 2 + mint(random() % (time % 3 == 0 ? 100000 : 35));
    NamedCall call = digits(x, base);
    MTensor *slot = nullptr;
    ASSERT_EQ(call.run(&slot), 0);
    const Tensor result(slot);
    int64_t value = 0;
    for (mint digit : valuesOf<mint>(result)) {
      EXPECT_TRUE(digit >= 0 && digit < base);
      value = value * base + digit;
    }
    EXPECT_EQ(value, std::abs(int64_t{x}));
    if (x != 0) EXPECT_NE(valuesOf<mint>(result)[0], 0);
  }
}

TEST_F(IntegerDigits, OfAGivenLengthAreTheLowestOnesBehindZeros) {
  std::mt19937 random(2);
  for (int time = 0; time < 500; ++time) {
    const mint x = mint(random()) >> (random() % 31), base = 2 + mint(random() % 20),
               length = mint(random() % 40);
    std::vector<mint> expected(size_t(length), 0);
    int64_t rest = std::abs(int64_t{x});
    for (size_t i = expected.size(); i-- > 0; rest /= base) expected[i] = mint(rest % base);
    expectExactly(digits(x, base, length), vectorOf(expected));
  }
}

TEST_F(IntegerDigits, RefuseOtherCountsAndValues) {
  for (mint count : {0, 1, 4, -1})
    EXPECT_EQ(lookupRuntimeFunction("IntegerDigits")(nullptr, count, nullptr, nullptr), 12) << count;
  for (mint base : {1, 0, -1, -10, INT32_MIN}) expectFails(digits(7, base), 4);
  for (mint length : {-1, -2, INT32_MIN}) expectFails(digits(7, 10, length), 4);
}

TEST_F(IntegerDigits, WithoutMemoryLeaveTheSlotEmpty) {
  const Tensor warm = newTensor(TORVANE_TYPE_INTEGER, {2});
  EXPECT_EQ(failEveryAllocation(digits(7, 10, 400000), false), 1);
}

// More bytes than 32 bits count.
TEST_F(IntegerDigits, OfMoreThanMemoryHoldsAreRefused) { expectFails(digits(7, 10, INT32_MAX), 403); }

} // namespace

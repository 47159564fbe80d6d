// The 64 safe casts between integer types, and the helpers of 64-bit arithmetic.
#include "scalar/wide_integers.h"
#include "support/exact_integer.h"
#include "support/integer_samples.h"
#include "support/raised.h"

#include <gtest/gtest.h>
#include <torvane/integers.h>
#include <torvane/scalars.h>

using namespace torvane;
using namespace torvane::test;

namespace {

// ---- casts --------------------------------------------------------------------------------------

template <class From, class To> int expectCasts(To (*cast)(From), const char *name) {
  int refusals = 0;
  std::vector<From> values = unaryOperands<From>();
  for (const int64_t edge :
       {int64_t{std::numeric_limits<To>::min()}, static_cast<int64_t>(std::numeric_limits<To>::max())})
    for (const int64_t d : {-1, 0, 1})
      values.push_back(static_cast<From>(static_cast<uint64_t>(edge) + static_cast<uint64_t>(d)));
  for (const From x : values) {
    To result = 0;
    const bool refused = Exact::of(x).template isRefused<To>();
    EXPECT_EQ(raisedBy([&] { result = cast(x); }), refused ? 42 : 0) << name << " " << +x;
    if (!refused)
      EXPECT_TRUE(Exact::of(result).template wrapped<uint64_t>() == Exact::of(x).template wrapped<uint64_t>())
          << name << " " << +x;
    refusals += refused;
  }
  return refusals;
}

// A cast refuses something exactly if some source value lies outside the target, or is its reserved value.
template <class From, class To> bool canFail() {
  return Exact::of(std::numeric_limits<From>::min()).template isRefused<To>() ||
         Exact::of(std::numeric_limits<From>::max()).template isRefused<To>();
}

TEST(SafeCast, OfAllPairsPassesWhatFitsAndRefusesTheRest) {
  int neverFailing = 0;
#define CAST(From, To)                                                                                       \
  {                                                                                                          \
    const int refusals = expectCasts<From, To>(integer_safe_cast_##From##_##To, #From " to " #To);           \
    EXPECT_EQ(refusals > 0, (canFail<From, To>())) << #From " to " #To;                                      \
    neverFailing += refusals == 0;                                                                           \
  }
#define CASTS(From) TORVANE_FOR_EACH_INTEGER_WITH(CAST, From)
  TORVANE_FOR_EACH_INTEGER(CASTS)
#undef CASTS
#undef CAST
  // Six widenings of signed types, six of unsigned types to signed ones, ten among the unsigned types.
  EXPECT_EQ(neverFailing, 22);
}

TEST(SafeCast, RefusesTheTargetsReservedValueAndNotTheSources) {
  EXPECT_EQ(raisedBy([] { integer_safe_cast_Integer32_Integer8(-128); }), 42);
  EXPECT_EQ(raisedBy([] { integer_safe_cast_Integer16_Integer16(-32768); }), 42);
  EXPECT_EQ(raisedBy([] { integer_safe_cast_Integer64_Integer32(INT32_MIN); }), 42);
  EXPECT_EQ(integer_safe_cast_Integer32_Integer64(INT32_MIN), INT32_MIN);
  EXPECT_EQ(raisedBy([] { integer_safe_cast_UnsignedInteger64_Integer32(2147483648u); }), 42);
  EXPECT_EQ(raisedBy([] { integer_safe_cast_Integer8_UnsignedInteger64(-1); }), 42);
}

// ---- helpers ------------------------------------------------------------------------------------

std::vector<int64_t> factors() { return boundaryValues<int64_t>(1, 300); }

TEST(WideInteger, MultiplicationTellsWhetherTheExactProductFits) {
  for (const int64_t a : factors())
    for (const int64_t b : factors()) {
      const Exact exact = Exact::of(a) * Exact::of(b);
      int overflow = 7;
      ASSERT_EQ(__mulodi4(a, b, &overflow), exact.wrapped<int64_t>()) << a << " " << b;
      ASSERT_EQ(overflow, !exact.fits<int64_t>()) << a << " " << b;
    }
}

// The quotient q is the one with 0 <= a - q b < b.
void expectQuotient(uint64_t a, uint64_t b) {
  const uint64_t q = __udivdi3(a, b);
  const Exact rest = Exact(a, false) - Exact(q, false) * Exact(b, false);
  ASSERT_TRUE(rest.fits<uint64_t>() && rest.wrapped<uint64_t>() < b) << a << " / " << b << " gave " << q;
}

TEST(WideInteger, DivisionLeavesARemainderBelowTheDivisor) {
  for (const uint64_t a : boundaryValues<uint64_t>(1, 300))
    for (const uint64_t b : boundaryValues<uint64_t>(1, 300))
      if (b != 0) ASSERT_NO_FATAL_FAILURE(expectQuotient(a, b));
}

// Dividends next to multiples of the divisor are where an estimate is wrong.
TEST(WideInteger, DivisionIsExactNextToMultiples) {
  std::mt19937_64 random(3);
  for (int k = 0; k < 300000; ++k) {
    const uint64_t b = (random() >> (random() % 64)) | 1, q = random() % (UINT64_MAX / b) + 1;
    for (const uint64_t a : {q * b - 1, q * b, q * b + (b - 1)})
      ASSERT_NO_FATAL_FAILURE(expectQuotient(a, b));
    ASSERT_EQ(__udivdi3(q * b - 1, b), q - 1);
    ASSERT_EQ(__udivdi3(q * b, b), q);
  }
}

} // namespace

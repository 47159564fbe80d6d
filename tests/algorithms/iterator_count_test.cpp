// Steps of integer and real loops.
#include "named_call.h"
#include <torvane/lists.h>

#include <cmath>
#include <limits>
#include <random>

using namespace torvane;
using namespace torvane::test;

namespace {

class IteratorCount : public NamedFunctions {
protected:
  static std::pair<mint, mint> integer(mint min, mint max, mint step) {
    mint count = -77;
    const mint status = NamedCall("IteratorCountI").integer(min).integer(max).integer(step).run(&count);
    EXPECT_EQ(Runtime_IteratorCount_I_I_I_I(min, max, step), status == 0 ? count : 0);
    return {status, count};
  }
  static std::pair<mint, mint> real(mreal min, mreal max, mreal step) {
    mint count = -77;
    const mint status = NamedCall("IteratorCountR").real(min).real(max).real(step).run(&count);
    EXPECT_EQ(Runtime_IteratorCount_R_R_R_I(min, max, step), status == 0 ? count : 0);
    return {status, count};
  }
  using Count = std::pair<mint, mint>;
  const Count failed{4, -77};
};

TEST_F(IteratorCount, OfIntegersIsTheStepsOfTheLoop) {
  EXPECT_EQ(integer(1, 10, 1), Count(0, 9));
  EXPECT_EQ(integer(1, 1, 1), Count(0, 0));
  EXPECT_EQ(integer(2, 1, 1), Count(0, -1));
  EXPECT_EQ(integer(1, 10, 3), Count(0, 3));
  EXPECT_EQ(integer(1, 10, -1), Count(0, -9));
  EXPECT_EQ(integer(10, 1, -1), Count(0, 9));
  EXPECT_EQ(integer(5, 5, INT32_MIN), Count(0, 0));
  EXPECT_EQ(integer(5, 6, INT32_MIN), Count(0, -1));
  EXPECT_EQ(integer(6, 5, INT32_MIN), Count(0, 0));
  EXPECT_EQ(integer(0, INT32_MAX, -1), Count(0, -INT32_MAX));
}

TEST_F(IteratorCount, OfIntegersAgreesWithTheLoopWhereItRuns) {
  for (mint min = -6; min <= 6; ++min)
    for (mint max = -6; max <= 6; ++max)
      for (mint step = -4; step <= 4; ++step) {
        if (step == 0) continue;
        mint passes = 0;
        for (mint i = min; step > 0 ? i <= max : i >= max; i += step) ++passes;
        const auto [status, count] = integer(min, max, step);
        EXPECT_EQ(status, 0);
        EXPECT_TRUE(passes > 0 ? count == passes - 1 : count < 0) << min << " to " << max << " by " << step;
      }
}

TEST_F(IteratorCount, OfIntegersFailsWithoutAStepOrADifference) {
  EXPECT_EQ(integer(1, 10, 0), failed);
  EXPECT_EQ(integer(-1, INT32_MAX, 1), failed);
  EXPECT_EQ(integer(INT32_MAX, -1, 1), failed); // the reserved value
  EXPECT_EQ(integer(1, INT32_MIN, -1), failed);
}

TEST_F(IteratorCount, StepsAreOneUnlessGiven) {
  mint count = 0;
  EXPECT_EQ(NamedCall("IteratorCountI").integer(3).integer(7).run(&count), 0);
  EXPECT_EQ(count, 4);
  EXPECT_EQ(NamedCall("IteratorCountR").real(3.5).real(7.25).run(&count), 0);
  EXPECT_EQ(count, 3);
}

TEST_F(IteratorCount, OfRealsCountsALastValueThatMissesTheBoundByRounding) {
  EXPECT_EQ(real(0, 1, 0.1), Count(0, 10));
  EXPECT_EQ(real(1, 0, -0.1), Count(0, 10));
  EXPECT_EQ(real(0, 0.3, 0.1), Count(0, 3));
  EXPECT_EQ(real(-0.3, 0, 0.1), Count(0, 3));
  EXPECT_EQ(real(0, 0.29999, 0.1), Count(0, 2));
  EXPECT_EQ(real(2, 2, 1), Count(0, 0));
  EXPECT_EQ(real(0, -0.0, -5), Count(0, 0));
  for (mint n = 1; n < 2000; ++n) {
    EXPECT_EQ(real(0, 1, 1.0 / n), Count(0, n));
    EXPECT_EQ(real(0, n * 0.1, 0.1), Count(0, n));
    EXPECT_EQ(real(0, -n * 0.7, -0.7), Count(0, n));
  }
}

TEST_F(IteratorCount, OfRealsWithoutAPassIsMinusOneOnceAndFailsBelow) {
  EXPECT_EQ(real(1, 0.5, 1), Count(0, -1));
  EXPECT_EQ(real(1, 0, 1), failed); // where the tolerance is below 0
  EXPECT_EQ(real(3, 2, 1), Count(0, -1)); // and above
  EXPECT_EQ(real(1, -0.5, 1), failed);
}

TEST_F(IteratorCount, OfRealsFailsBeyondTheIntegers) {
  EXPECT_EQ(real(1, 2147483646.0, 1), Count(0, 2147483645));
  EXPECT_EQ(real(0, 2147483646.0, 1), failed);
  const mreal infinity = std::numeric_limits<mreal>::infinity(), nan = std::nan("");
  EXPECT_EQ(real(0, infinity, 1), failed);
  EXPECT_EQ(real(-infinity, 0, 1), failed);
  EXPECT_EQ(real(nan, 1, 1), failed);
  EXPECT_EQ(real(0, nan, 1), failed);
  EXPECT_EQ(real(infinity, infinity, 1), failed);
  EXPECT_EQ(real(0, 5, infinity), Count(0, 0));
}

TEST_F(IteratorCount, OfRealsHasAStatusOfItsOwnForNoStep) {
  for (const mreal step : {0.0, -0.0, std::nan("")}) EXPECT_EQ(real(0, 1, step), Count(-1, -77));
}

} // namespace

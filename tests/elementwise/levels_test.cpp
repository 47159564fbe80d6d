// The processor level: what the machine has, when it comes into force, and that it changes the loops.
#include "elementwise/generated/arithmetic_loops.h"
#include "runtime/platform_cpu_level.h"
#include "runtime/startup.h"

#include <gtest/gtest.h>
#include <torvane/startup.h>

using namespace torvane;

namespace {

class Levels : public testing::Test {
protected:
  ~Levels() override { setProcessorLevel(kProcessorLevels); }
};

// The compiler's own reading of cpuid is the oracle.
TEST_F(Levels, OfTheMachineIsWhatTheCompilerSees) {
  const bool hasAvx2 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");
  const bool hasAvx512 = hasAvx2 && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq") &&
                         __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vl");
  EXPECT_EQ(highestProcessorLevel(), hasAvx512 ? kAvx512Level : hasAvx2 ? kAvx2Level : kBaselineLevel);
}

TEST_F(Levels, IsTheHighestFromStageZeroOn) {
  setProcessorLevel(kBaselineLevel);
  InitRuntimeLibrary(1);
  EXPECT_EQ(processorLevel(), kBaselineLevel);
  InitRuntimeLibrary(0);
  EXPECT_EQ(processorLevel(), highestProcessorLevel());
}

TEST_F(Levels, IsNeverSetAboveOrBelowWhatThereIs) {
  setProcessorLevel(1000);
  EXPECT_EQ(processorLevel(), highestProcessorLevel());
  EXPECT_EQ(setProcessorLevel(-5), highestProcessorLevel());
  EXPECT_EQ(processorLevel(), kBaselineLevel);
}

TEST_F(Levels, HaveLoopsOfTheirOwn) {
  using torvane_loops::arithmetic_baseline;
#ifdef TORVANE_HAS_AVX2
  using torvane_loops::arithmetic_avx2;
  EXPECT_NE(arithmetic_avx2.dd_plus.run, arithmetic_baseline.dd_plus.run);
#endif
#ifdef TORVANE_HAS_AVX512
  using torvane_loops::arithmetic_avx512;
  EXPECT_NE(arithmetic_avx512.dd_plus.run, arithmetic_baseline.dd_plus.run);
  EXPECT_NE(arithmetic_avx512.dd_plus.run, arithmetic_avx2.dd_plus.run);
#endif
  EXPECT_NE(arithmetic_baseline.dd_plus.run, nullptr);
}

TEST_F(Levels, TellTheSizesOfResultAndOperands) {
  const auto &loop = torvane_loops::arithmetic_baseline.ic_plus;
  EXPECT_EQ(loop.bytes[0], 16);
  EXPECT_EQ(loop.bytes[1], 4);
  EXPECT_EQ(loop.bytes[2], 16);
}

} // namespace

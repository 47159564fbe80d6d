// A fixture that puts a processor level in force for one test.
#pragma once

#include "runtime/platform_cpu_level.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace torvane::test {

// Levels that this machine can run and that this build has loops for.
inline mint levelsToTest() {
  mint built = 1;
#ifdef TORVANE_HAS_AVX2
  ++built;
#endif
#ifdef TORVANE_HAS_AVX512
  ++built;
#endif
  return std::min(mint(highestProcessorLevel() + 1), built);
}

class AtLevel : public testing::TestWithParam<mint> {
protected:
  AtLevel() : previous(setProcessorLevel(GetParam())) {}
  ~AtLevel() override { setProcessorLevel(previous); }
  mint previous;
};

} // namespace torvane::test

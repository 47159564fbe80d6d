// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#pragma once

#include "../levels.h"
#include "../reduction_loops.h"

namespace torvane_loops {

struct RootsLoops {
  UnaryLoop d_sqrt;
  UnaryLoop c_sqrt;
  UnaryLoop d_cbrt;
  UnaryLoop d_rsqrt;
  UnaryLoop c_rsqrt;
};
extern const RootsLoops roots_baseline, roots_avx2, roots_avx512;

} // namespace torvane_loops

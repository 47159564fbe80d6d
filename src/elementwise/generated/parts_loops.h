// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#pragma once

#include "../levels.h"
#include "../reduction_loops.h"

namespace torvane_loops {

struct PartsLoops {
  UnaryLoop i_abs;
  UnaryLoop d_abs;
  UnaryLoop c_abs;
  UnaryLoop i_abssquare;
  UnaryLoop d_abssquare;
  UnaryLoop c_abssquare;
  UnaryLoop i_arg;
  UnaryLoop d_arg;
  UnaryLoop c_arg;
  UnaryLoop i_conj;
  UnaryLoop d_conj;
  UnaryLoop c_conj;
  UnaryLoop i_im;
  UnaryLoop d_im;
  UnaryLoop c_im;
  UnaryLoop i_re;
  UnaryLoop d_re;
  UnaryLoop c_re;
  UnaryLoop i_sign;
  UnaryLoop d_sign;
  UnaryLoop c_sign;
  ReductionLoop d_fpexception;
  ReductionLoop c_fpexception;
};
extern const PartsLoops parts_baseline, parts_avx2, parts_avx512;

} // namespace torvane_loops

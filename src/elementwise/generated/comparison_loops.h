// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#pragma once

#include "../levels.h"
#include "../reduction_loops.h"

namespace torvane_loops {

struct ComparisonLoops {
  UnaryLoop i_pos;
  UnaryLoop d_pos;
  UnaryLoop i_neg;
  UnaryLoop d_neg;
  UnaryLoop i_npos;
  UnaryLoop d_npos;
  UnaryLoop i_nneg;
  UnaryLoop d_nneg;
  UnaryLoop i_unitize;
  UnaryLoop d_unitize;
  UnaryLoop c_unitize;
  UnaryLoop i_ramp;
  UnaryLoop d_ramp;
  BinaryLoop dd_chop;
  BinaryLoop cd_chop;
  BinaryLoop ii_abserr;
  BinaryLoop id_abserr;
  BinaryLoop ic_abserr;
  BinaryLoop di_abserr;
  BinaryLoop dd_abserr;
  BinaryLoop dc_abserr;
  BinaryLoop ci_abserr;
  BinaryLoop cd_abserr;
  BinaryLoop cc_abserr;
  BinaryLoop id_relerr;
  BinaryLoop ic_relerr;
  BinaryLoop di_relerr;
  BinaryLoop dd_relerr;
  BinaryLoop dc_relerr;
  BinaryLoop ci_relerr;
  BinaryLoop cd_relerr;
  BinaryLoop cc_relerr;
  BinaryLoop ii_maxabs;
  BinaryLoop dd_maxabs;
  BinaryLoop cc_maxabs;
  BinaryLoop ii_unitize;
  BinaryLoop dd_unitize;
  BinaryLoop cd_unitize;
  ReductionLoop i_max;
  ReductionLoop d_max;
  ReductionLoop i_min;
  ReductionLoop d_min;
  ReductionLoop i_minmax;
  ReductionLoop d_minmax;
  ReductionLoop i_maxabs;
  ReductionLoop d_maxabs;
  ReductionLoop c_maxabs;
};
extern const ComparisonLoops comparison_baseline, comparison_avx2, comparison_avx512;

} // namespace torvane_loops

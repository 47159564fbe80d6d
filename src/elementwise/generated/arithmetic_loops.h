// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#pragma once

#include "../levels.h"
#include "../reduction_loops.h"

namespace torvane_loops {

struct ArithmeticLoops {
  UnaryLoop i_minus;
  UnaryLoop d_minus;
  UnaryLoop c_minus;
  UnaryLoop i_square;
  UnaryLoop d_square;
  UnaryLoop c_square;
  UnaryLoop d_recip;
  UnaryLoop c_recip;
  BinaryLoop ii_plus;
  BinaryLoop id_plus;
  BinaryLoop ic_plus;
  BinaryLoop di_plus;
  BinaryLoop dd_plus;
  BinaryLoop dc_plus;
  BinaryLoop ci_plus;
  BinaryLoop cd_plus;
  BinaryLoop cc_plus;
  BinaryLoop ii_subtract;
  BinaryLoop id_subtract;
  BinaryLoop ic_subtract;
  BinaryLoop di_subtract;
  BinaryLoop dd_subtract;
  BinaryLoop dc_subtract;
  BinaryLoop ci_subtract;
  BinaryLoop cd_subtract;
  BinaryLoop cc_subtract;
  BinaryLoop ii_times;
  BinaryLoop id_times;
  BinaryLoop ic_times;
  BinaryLoop di_times;
  BinaryLoop dd_times;
  BinaryLoop dc_times;
  BinaryLoop ci_times;
  BinaryLoop cd_times;
  BinaryLoop cc_times;
  BinaryLoop id_div;
  BinaryLoop ic_div;
  BinaryLoop di_div;
  BinaryLoop dd_div;
  BinaryLoop dc_div;
  BinaryLoop ci_div;
  BinaryLoop cd_div;
  BinaryLoop cc_div;
  TernaryLoop iii_axpy;
  TernaryLoop ddd_axpy;
  TernaryLoop ccc_axpy;
  TernaryLoop iii_axmy;
  TernaryLoop ddd_axmy;
  TernaryLoop ccc_axmy;
  TernaryLoop iii_ymax;
  TernaryLoop ddd_ymax;
  TernaryLoop ccc_ymax;
  TernaryLoop ddd_adxmy;
  TernaryLoop ccc_adxmy;
  ReductionLoop i_total;
  ReductionLoop d_total;
  ReductionLoop c_total;
  PairReductionLoop ii_dot;
};
extern const ArithmeticLoops arithmetic_baseline, arithmetic_avx2, arithmetic_avx512;

} // namespace torvane_loops

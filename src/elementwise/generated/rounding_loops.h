// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#pragma once

#include "../levels.h"
#include "../reduction_loops.h"

namespace torvane_loops {

struct RoundingLoops {
  UnaryLoop i_round;
  UnaryLoop d_round;
  UnaryLoop i_floor;
  UnaryLoop d_floor;
  UnaryLoop i_ceiling;
  UnaryLoop d_ceiling;
  UnaryLoop i_intpart;
  UnaryLoop d_intpart;
  UnaryLoop i_fracpart;
  UnaryLoop d_fracpart;
  UnaryLoop c_fracpart;
  UnaryLoop i_mod1;
  UnaryLoop d_mod1;
  UnaryLoop c_mod1;
  BinaryLoop ii_mod;
  BinaryLoop id_mod;
  BinaryLoop ic_mod;
  BinaryLoop di_mod;
  BinaryLoop dd_mod;
  BinaryLoop dc_mod;
  BinaryLoop ci_mod;
  BinaryLoop cd_mod;
  BinaryLoop cc_mod;
  BinaryLoop ii_quotient;
  BinaryLoop id_quotient;
  BinaryLoop di_quotient;
  BinaryLoop dd_quotient;
};
extern const RoundingLoops rounding_baseline, rounding_avx2, rounding_avx512;

} // namespace torvane_loops

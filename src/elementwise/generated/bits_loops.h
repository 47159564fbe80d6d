// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#pragma once

#include "../levels.h"
#include "../reduction_loops.h"

namespace torvane_loops {

struct BitsLoops {
  UnaryLoop i_evenq;
  UnaryLoop d_evenq;
  UnaryLoop i_oddq;
  UnaryLoop d_oddq;
  UnaryLoop i_bit_not;
  UnaryLoop i_bit_length;
  UnaryLoop i_intexp;
  UnaryLoop i_intlen;
  BinaryLoop ii_bitand;
  BinaryLoop ii_bitor;
  BinaryLoop ii_bitxor;
  BinaryLoop ii_intexp;
  BinaryLoop ii_intlen;
  BinaryLoop ii_bitshiftleft;
  BinaryLoop di_bitshiftleft;
  BinaryLoop ci_bitshiftleft;
  BinaryLoop ii_bitshiftright;
  BinaryLoop di_bitshiftright;
  BinaryLoop ci_bitshiftright;
};
extern const BitsLoops bits_baseline, bits_avx2, bits_avx512;

} // namespace torvane_loops

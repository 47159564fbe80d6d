// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../drivers.h"
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/bits.h"
#include "bits_loops.h"
#include <torvane/machfuncs.h>

using namespace torvane;

static const torvane_loops::BitsLoops &loops() {
  static constexpr const torvane_loops::BitsLoops *byLevel[kProcessorLevels] = TORVANE_LOOPS_BY_LEVEL(bits);
  return *byLevel[processorLevel()];
}

mint machfunc_i_evenq(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_evenq, result, x, count, strides, flags);
}
mint machfunc_d_evenq(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_evenq, result, x, count, strides, flags);
}

mint machfunc_i_oddq(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_oddq, result, x, count, strides, flags);
}
mint machfunc_d_oddq(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().d_oddq, result, x, count, strides, flags);
}

mint machfunc_i_bit_not(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_bit_not, result, x, count, strides, flags);
}

mint machfunc_i_bit_length(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_bit_length, result, x, count, strides, flags);
}


mint machfunc_i_intexp(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_intexp, result, x, count, strides, flags);
}

mint machfunc_i_intlen(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return driveUnary(loops().i_intlen, result, x, count, strides, flags);
}

mint machfunc_ii_bitand(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().ii_bitand, result, x, y, count, strides, flags);
}

mint machfunc_ii_bitor(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return driveBinary(loops().ii_bitor, result, x, y, count, strides, flags);
}

mint machfunc_ii_bitxor(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().ii_bitxor, result, x, y, count, strides, flags);
}

mint machfunc_ii_intexp(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().ii_intexp, result, x, y, count, strides, flags);
}

mint machfunc_ii_intlen(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return driveBinary(loops().ii_intlen, result, x, y, count, strides, flags);
}

mint machfunc_ii_bitshiftleft(void *result, const void *x, const void *y, mint count, const mint *strides,
                              mint flags) {
  return driveBinary(loops().ii_bitshiftleft, result, x, y, count, strides, flags);
}
mint machfunc_di_bitshiftleft(void *result, const void *x, const void *y, mint count, const mint *strides,
                              mint flags) {
  return driveBinary(loops().di_bitshiftleft, result, x, y, count, strides, flags);
}
mint machfunc_ci_bitshiftleft(void *result, const void *x, const void *y, mint count, const mint *strides,
                              mint flags) {
  return driveBinary(loops().ci_bitshiftleft, result, x, y, count, strides, flags);
}

mint machfunc_ii_bitshiftright(void *result, const void *x, const void *y, mint count, const mint *strides,
                               mint flags) {
  return driveBinary(loops().ii_bitshiftright, result, x, y, count, strides, flags);
}
mint machfunc_di_bitshiftright(void *result, const void *x, const void *y, mint count, const mint *strides,
                               mint flags) {
  return driveBinary(loops().di_bitshiftright, result, x, y, count, strides, flags);
}
mint machfunc_ci_bitshiftright(void *result, const void *x, const void *y, mint count, const mint *strides,
                               mint flags) {
  return driveBinary(loops().ci_bitshiftright, result, x, y, count, strides, flags);
}

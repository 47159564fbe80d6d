// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../kernel.h"
#include "../reduction.h"
#include "../reduction_driver.h"
#include "../../scalar/bodies/bits.h"
#include <torvane/machfuncs.h>

using namespace torvane;

mint machfunc_i_evenq(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::evenq, mint>(result, x, count, strides, flags);
}
mint machfunc_d_evenq(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::evenq, mreal>(result, x, count, strides, flags);
}

mint machfunc_i_oddq(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::oddq, mint>(result, x, count, strides, flags);
}
mint machfunc_d_oddq(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::oddq, mreal>(result, x, count, strides, flags);
}

mint machfunc_i_bit_not(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::bit_not, mint>(result, x, count, strides, flags);
}

mint machfunc_i_bit_length(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return unaryRoutine<unary::bit_length, mint>(result, x, count, strides, flags);
}


mint machfunc_i_intexp(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return boundRoutine<binary::intexp, mint, 10>(result, x, count, strides, flags);
}

mint machfunc_i_intlen(void *result, const void *x, mint count, const mint *strides, mint flags) {
  return boundRoutine<binary::intlen, mint, 10>(result, x, count, strides, flags);
}

mint machfunc_ii_bitand(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::bit_and, mint, mint>(result, x, y, count, strides, flags);
}

mint machfunc_ii_bitor(void *result, const void *x, const void *y, mint count, const mint *strides,
                       mint flags) {
  return binaryRoutine<binary::bit_or, mint, mint>(result, x, y, count, strides, flags);
}

mint machfunc_ii_bitxor(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::bit_xor, mint, mint>(result, x, y, count, strides, flags);
}

mint machfunc_ii_intexp(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::intexp, mint, mint>(result, x, y, count, strides, flags);
}

mint machfunc_ii_intlen(void *result, const void *x, const void *y, mint count, const mint *strides,
                        mint flags) {
  return binaryRoutine<binary::intlen, mint, mint>(result, x, y, count, strides, flags);
}

mint machfunc_ii_bitshiftleft(void *result, const void *x, const void *y, mint count, const mint *strides,
                              mint flags) {
  return binaryRoutine<binary::bit_shiftleft, mint, mint>(result, x, y, count, strides, flags);
}
mint machfunc_di_bitshiftleft(void *result, const void *x, const void *y, mint count, const mint *strides,
                              mint flags) {
  return binaryRoutine<binary::bit_shiftleft, mreal, mint>(result, x, y, count, strides, flags);
}
mint machfunc_ci_bitshiftleft(void *result, const void *x, const void *y, mint count, const mint *strides,
                              mint flags) {
  return binaryRoutine<binary::bit_shiftleft, ComplexReal64, mint>(result, x, y, count, strides, flags);
}

mint machfunc_ii_bitshiftright(void *result, const void *x, const void *y, mint count, const mint *strides,
                               mint flags) {
  return binaryRoutine<binary::bit_shiftright, mint, mint>(result, x, y, count, strides, flags);
}
mint machfunc_di_bitshiftright(void *result, const void *x, const void *y, mint count, const mint *strides,
                               mint flags) {
  return binaryRoutine<binary::bit_shiftright, mreal, mint>(result, x, y, count, strides, flags);
}
mint machfunc_ci_bitshiftright(void *result, const void *x, const void *y, mint count, const mint *strides,
                               mint flags) {
  return binaryRoutine<binary::bit_shiftright, ComplexReal64, mint>(result, x, y, count, strides, flags);
}

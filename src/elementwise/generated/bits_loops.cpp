// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../kernel.h"
#include "../reduction.h"
#include "bits_loops.h"
#include "../../scalar/bodies/bits.h"

using namespace torvane;

const torvane_loops::BitsLoops torvane_loops::TORVANE_LOOPS_HERE(bits) = {
    .i_evenq = kUnaryLoop<unary::evenq, mint>,
    .d_evenq = kUnaryLoop<unary::evenq, mreal>,
    .i_oddq = kUnaryLoop<unary::oddq, mint>,
    .d_oddq = kUnaryLoop<unary::oddq, mreal>,
    .i_bit_not = kUnaryLoop<unary::bit_not, mint>,
    .i_bit_length = kUnaryLoop<unary::bit_length, mint>,
    .i_intexp = kBoundLoop<binary::intexp, mint, 10>,
    .i_intlen = kBoundLoop<binary::intlen, mint, 10>,
    .ii_bitand = kBinaryLoop<binary::bit_and, mint, mint>,
    .ii_bitor = kBinaryLoop<binary::bit_or, mint, mint>,
    .ii_bitxor = kBinaryLoop<binary::bit_xor, mint, mint>,
    .ii_intexp = kBinaryLoop<binary::intexp, mint, mint>,
    .ii_intlen = kBinaryLoop<binary::intlen, mint, mint>,
    .ii_bitshiftleft = kBinaryLoop<binary::bit_shiftleft, mint, mint>,
    .di_bitshiftleft = kBinaryLoop<binary::bit_shiftleft, mreal, mint>,
    .ci_bitshiftleft = kBinaryLoop<binary::bit_shiftleft, ComplexReal64, mint>,
    .ii_bitshiftright = kBinaryLoop<binary::bit_shiftright, mint, mint>,
    .di_bitshiftright = kBinaryLoop<binary::bit_shiftright, mreal, mint>,
    .ci_bitshiftright = kBinaryLoop<binary::bit_shiftright, ComplexReal64, mint>,
};

// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../kernel.h"
#include "../reduction.h"
#include "parts_loops.h"
#include "../../scalar/bodies/parts.h"

using namespace torvane;

const torvane_loops::PartsLoops torvane_loops::TORVANE_LOOPS_HERE(parts) = {
    .i_abs = kUnaryLoop<unary::abs, mint>,
    .d_abs = kUnaryLoop<unary::abs, mreal>,
    .c_abs = kUnaryLoop<unary::abs, ComplexReal64>,
    .i_abssquare = kUnaryLoop<unary::abssquare, mint>,
    .d_abssquare = kUnaryLoop<unary::abssquare, mreal>,
    .c_abssquare = kUnaryLoop<unary::abssquare, ComplexReal64>,
    .i_arg = kUnaryLoop<unary::arg, mint>,
    .d_arg = kUnaryLoop<unary::arg, mreal>,
    .c_arg = kUnaryLoop<unary::arg, ComplexReal64>,
    .i_conj = kUnaryLoop<unary::conj, mint>,
    .d_conj = kUnaryLoop<unary::conj, mreal>,
    .c_conj = kUnaryLoop<unary::conj, ComplexReal64>,
    .i_im = kUnaryLoop<unary::im, mint>,
    .d_im = kUnaryLoop<unary::im, mreal>,
    .c_im = kUnaryLoop<unary::im, ComplexReal64>,
    .i_re = kUnaryLoop<unary::re, mint>,
    .d_re = kUnaryLoop<unary::re, mreal>,
    .c_re = kUnaryLoop<unary::re, ComplexReal64>,
    .i_sign = kUnaryLoop<unary::sign, mint>,
    .d_sign = kUnaryLoop<unary::sign, mreal>,
    .c_sign = kUnaryLoop<unary::sign, ComplexReal64>,
    .d_fpexception = kReductionLoop<reduction::fpexception, mreal>,
    .c_fpexception = kReductionLoop<reduction::fpexception, ComplexReal64>,
};

// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../kernel.h"
#include "comparison_loops.h"
#include "../../scalar/bodies/comparison.h"

using namespace torvane;

const torvane_loops::ComparisonLoops torvane_loops::TORVANE_LOOPS_HERE(comparison) = {
    .i_pos = kUnaryLoop<unary::pos, mint>,
    .d_pos = kUnaryLoop<unary::pos, mreal>,
    .i_neg = kUnaryLoop<unary::neg, mint>,
    .d_neg = kUnaryLoop<unary::neg, mreal>,
    .i_npos = kUnaryLoop<unary::npos, mint>,
    .d_npos = kUnaryLoop<unary::npos, mreal>,
    .i_nneg = kUnaryLoop<unary::nneg, mint>,
    .d_nneg = kUnaryLoop<unary::nneg, mreal>,
    .i_unitize = kUnaryLoop<unary::unitize, mint>,
    .d_unitize = kUnaryLoop<unary::unitize, mreal>,
    .c_unitize = kUnaryLoop<unary::unitize, ComplexReal64>,
    .i_ramp = kUnaryLoop<unary::ramp, mint>,
    .d_ramp = kUnaryLoop<unary::ramp, mreal>,
    .dd_chop = kBinaryLoop<binary::chop, mreal, mreal>,
    .cd_chop = kBinaryLoop<binary::chop, ComplexReal64, mreal>,
    .ii_abserr = kBinaryLoop<binary::abserr, mint, mint>,
    .id_abserr = kBinaryLoop<binary::abserr, mint, mreal>,
    .ic_abserr = kBinaryLoop<binary::abserr, mint, ComplexReal64>,
    .di_abserr = kBinaryLoop<binary::abserr, mreal, mint>,
    .dd_abserr = kBinaryLoop<binary::abserr, mreal, mreal>,
    .dc_abserr = kBinaryLoop<binary::abserr, mreal, ComplexReal64>,
    .ci_abserr = kBinaryLoop<binary::abserr, ComplexReal64, mint>,
    .cd_abserr = kBinaryLoop<binary::abserr, ComplexReal64, mreal>,
    .cc_abserr = kBinaryLoop<binary::abserr, ComplexReal64, ComplexReal64>,
    .id_relerr = kBinaryLoop<binary::relerr, mint, mreal>,
    .ic_relerr = kBinaryLoop<binary::relerr, mint, ComplexReal64>,
    .di_relerr = kBinaryLoop<binary::relerr, mreal, mint>,
    .dd_relerr = kBinaryLoop<binary::relerr, mreal, mreal>,
    .dc_relerr = kBinaryLoop<binary::relerr, mreal, ComplexReal64>,
    .ci_relerr = kBinaryLoop<binary::relerr, ComplexReal64, mint>,
    .cd_relerr = kBinaryLoop<binary::relerr, ComplexReal64, mreal>,
    .cc_relerr = kBinaryLoop<binary::relerr, ComplexReal64, ComplexReal64>,
    .ii_maxabs = kBinaryLoop<binary::maxabs, mint, mint>,
    .dd_maxabs = kBinaryLoop<binary::maxabs, mreal, mreal>,
    .cc_maxabs = kBinaryLoop<binary::maxabs, ComplexReal64, ComplexReal64>,
    .ii_unitize = kBinaryLoop<binary::unitize, mint, mint>,
    .dd_unitize = kBinaryLoop<binary::unitize, mreal, mreal>,
    .cd_unitize = kBinaryLoop<binary::unitize, ComplexReal64, mreal>,
};

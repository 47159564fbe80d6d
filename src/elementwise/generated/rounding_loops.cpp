// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../kernel.h"
#include "../reduction.h"
#include "rounding_loops.h"
#include "../../scalar/bodies/rounding.h"

using namespace torvane;

const torvane_loops::RoundingLoops torvane_loops::TORVANE_LOOPS_HERE(rounding) = {
    .i_round = kUnaryLoop<unary::round, mint>,
    .d_round = kUnaryLoop<unary::round, mreal>,
    .i_floor = kUnaryLoop<unary::floor, mint>,
    .d_floor = kUnaryLoop<unary::floor, mreal>,
    .i_ceiling = kUnaryLoop<unary::ceiling, mint>,
    .d_ceiling = kUnaryLoop<unary::ceiling, mreal>,
    .i_intpart = kUnaryLoop<unary::intpart, mint>,
    .d_intpart = kUnaryLoop<unary::intpart, mreal>,
    .i_fracpart = kUnaryLoop<unary::fracpart, mint>,
    .d_fracpart = kUnaryLoop<unary::fracpart, mreal>,
    .c_fracpart = kUnaryLoop<unary::fracpart, ComplexReal64>,
    .i_mod1 = kUnaryLoop<unary::mod1, mint>,
    .d_mod1 = kUnaryLoop<unary::mod1, mreal>,
    .c_mod1 = kUnaryLoop<unary::mod1, ComplexReal64>,
    .ii_mod = kBinaryLoop<binary::mod, mint, mint>,
    .id_mod = kBinaryLoop<binary::mod, mint, mreal>,
    .ic_mod = kBinaryLoop<binary::mod, mint, ComplexReal64>,
    .di_mod = kBinaryLoop<binary::mod, mreal, mint>,
    .dd_mod = kBinaryLoop<binary::mod, mreal, mreal>,
    .dc_mod = kBinaryLoop<binary::mod, mreal, ComplexReal64>,
    .ci_mod = kBinaryLoop<binary::mod, ComplexReal64, mint>,
    .cd_mod = kBinaryLoop<binary::mod, ComplexReal64, mreal>,
    .cc_mod = kBinaryLoop<binary::mod, ComplexReal64, ComplexReal64>,
    .ii_quotient = kBinaryLoop<binary::quotient, mint, mint>,
    .id_quotient = kBinaryLoop<binary::quotient, mint, mreal>,
    .di_quotient = kBinaryLoop<binary::quotient, mreal, mint>,
    .dd_quotient = kBinaryLoop<binary::quotient, mreal, mreal>,
};

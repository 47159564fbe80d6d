// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../kernel.h"
#include "../reduction.h"
#include "roots_loops.h"
#include "../../scalar/bodies/roots.h"

using namespace torvane;

const torvane_loops::RootsLoops torvane_loops::TORVANE_LOOPS_HERE(roots) = {
    .d_sqrt = kUnaryLoop<unary::sqrt, mreal>,
    .c_sqrt = kUnaryLoop<unary::sqrt, ComplexReal64>,
    .d_cbrt = kUnaryLoop<unary::cbrt, mreal>,
    .d_rsqrt = kUnaryLoop<unary::rsqrt, mreal>,
    .c_rsqrt = kUnaryLoop<unary::rsqrt, ComplexReal64>,
};

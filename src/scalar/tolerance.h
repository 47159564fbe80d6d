// Chains of tolerant comparisons, as the table of a compiled library's run time offers them.
//
// Operators: 1 and 5 all equal, 2 and 8 no two equal, 3 ascending, 4 not descending, 6 not ascending,
// 7 descending. Fewer than two values are in any order and all equal, whatever they are.
#pragma once

#include <torvane/tolerance.h>

namespace torvane {

// 1 where `count` values satisfy the operator, else 0; 0 for an unknown operator.
mint compareReals(mint op, mreal tolerance, mint count, const mreal *values);

// The same of complexes into *result, 0 unless the test is true. Status: 12 for an unknown operator, 4 where
// an order is asked of values that are not all on the real axis, else 0.
mint compareComplexes(mint op, mreal tolerance, mint count, const mcomplex *values, mint *result);

} // namespace torvane

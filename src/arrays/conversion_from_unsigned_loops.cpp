// Conversions from unsigned integers.
#include "../elementwise/levels.h"
#include "conversion_from_integer.h"

using namespace torvane;

const torvane_loops::ConversionsFrom<4> torvane_loops::TORVANE_LOOPS_HERE(fromunsigned) = {{
    TORVANE_LOOPS_FROM_INTEGER(UnsignedInteger8),
    TORVANE_LOOPS_FROM_INTEGER(UnsignedInteger16),
    TORVANE_LOOPS_FROM_INTEGER(UnsignedInteger32),
    TORVANE_LOOPS_FROM_INTEGER(UnsignedInteger64),
}};

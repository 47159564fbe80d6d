// Conversions from signed integers.
#include "../elementwise/levels.h"
#include "conversion_from_integer.h"

using namespace torvane;

const torvane_loops::ConversionsFrom<4> torvane_loops::TORVANE_LOOPS_HERE(fromsigned) = {{
    TORVANE_LOOPS_FROM_INTEGER(Integer8),
    TORVANE_LOOPS_FROM_INTEGER(Integer16),
    TORVANE_LOOPS_FROM_INTEGER(Integer32),
    TORVANE_LOOPS_FROM_INTEGER(Integer64),
}};

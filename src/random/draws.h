// The bulk draws of a buffered generator, and the exported ones of a generator that has bits alone: what the
// framework puts into the tables of new generators.
#pragma once

#include "../runtime/types.h"
#include <torvane/distributions.h>

namespace torvane {

// RandomMIntegers and RandomMReals of a generator whose state is a RandomBuffer.
mint bufferedMIntegers(mint *destination, mint count, mint low, mint high, RandomGenerator *generator);
mint bufferedMReals(mreal *destination, mint count, mreal low, mreal high, RandomGenerator *generator);

} // namespace torvane

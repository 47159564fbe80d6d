// The kind that a vector routine stores, for those who must not read a payload as another type.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// Of an operator and kinds that have a routine; 0 for numbers and kinds outside the tables.
mint storedKind1(mint op, mint kind);
mint storedKind2(mint op, mint kind1, mint kind2);

} // namespace torvane

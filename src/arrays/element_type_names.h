// The name map: element types by their primary names, for the conversion of numeric arrays.
#pragma once

#include "../runtime/types.h"

namespace torvane {

// The tag of a primary name; 0 when the name is unknown, or before stage 1 of start-up.
mint elementTypeOfPrimaryName(const char *name);

// For start-up: see startup.h.
void initializeElementTypeNames(mint stage);
void tearDownElementTypeNames();

} // namespace torvane

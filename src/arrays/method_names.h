// The methods of conversion by name and by number.
#pragma once

#include "../runtime/types.h"

namespace torvane {

inline constexpr mint kMethodCount = 8;

// The name of a method from 1 to 8; null for all other numbers.
const char *nameOfMethod(mint number);

// The number of a method; 0 when the name is unknown, or before stage 1 of start-up.
mint methodOfName(const char *name);

// For start-up: see startup.h.
void initializeMethodNames(mint stage);
void tearDownMethodNames();

} // namespace torvane

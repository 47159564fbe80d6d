// The registry: functions that compiled code reaches by name, through one signature.
//
// The rows stand in functions.def. Start-up puts them into one hash table with string keys, which lookups
// read without a lock; whoever registers more names does so while nobody looks one up.
#pragma once

#include "../runtime/types.h"
#include <torvane/registry.h>

namespace torvane {

enum RuntimeFunctionKind : mint {
  kPure = 0,
  kPlainRandom = 1,
  kDraws = 2, // draws random numbers
  kSeeds = 5, // changes the generator's state
};

struct RuntimeFunctionEntry {
  RuntimeFunctionHandler function;
  mint kind;
};

// The handler of a name, compared by content; unavailableRuntimeFunction for null and for unknown names.
RuntimeFunctionHandler lookupRuntimeFunction(const char *name);

// The kind of a name; 0 for null and for unknown names.
mint lookupRuntimeFunctionKind(const char *name);

// Adds a name, which is copied. Of equal names the latest is found.
void registerRuntimeFunction(const char *name, RuntimeFunctionHandler function, mint kind);

// What the table is built from, in its order.
struct RuntimeFunctionRow {
  const char *name;
  RuntimeFunctionEntry entry;
  const char *counts; // numbers of arguments, as functions.def says them
};
inline constexpr mint kRuntimeFunctionCount = 80;
extern const RuntimeFunctionRow kRuntimeFunctions[kRuntimeFunctionCount];

// Every handler, by standing in its row. unavailableRuntimeFunction, of many rows, returns 12 whatever it is
// given.
#define TORVANE_FUNCTION(name, handler, ...)                                                                 \
  mint handler(TorvaneLibraryData *libraryData, mint argumentCount, void *const *arguments, void *result);
#include "functions.def"
#undef TORVANE_FUNCTION
mint unavailableRuntimeFunction(TorvaneLibraryData *libraryData, mint argumentCount, void *const *arguments,
                                void *result);

} // namespace torvane

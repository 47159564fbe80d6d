// What a compiled library keeps from call to call: the private state behind word 28 of its record, as the
// functions of the registry see it. The record itself stands in <torvane/library_data.h>.
#pragma once

#include "types.h"
#include <torvane/library_data.h>

namespace torvane {

struct BagTable;

// Eleven words, all zero when the record is made.
struct RuntimeState {
  void *word1;
  BagTable *bagTable; // null until there is a bag
  void *blockStack;   // of open random blocks, innermost first
  void *word4;
  intptr_t arithmeticFlags;
  void *words6to11[6];
};
static_assert(sizeof(RuntimeState) == 11 * sizeof(void *));
static_assert(offsetof(RuntimeState, bagTable) == sizeof(void *));
static_assert(offsetof(RuntimeState, blockStack) == 2 * sizeof(void *));
static_assert(offsetof(RuntimeState, arithmeticFlags) == 4 * sizeof(void *));

inline RuntimeState *runtimeState(const TorvaneLibraryData *libraryData) {
  return static_cast<RuntimeState *>(libraryData->runtimeState);
}

} // namespace torvane

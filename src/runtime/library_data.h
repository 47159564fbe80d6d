// The library-data record as the functions of the registry see it: a positional record of words, one of which
// holds what a compiled library keeps from call to call.
#pragma once

#include "types.h"
#include <torvane/registry.h>

// Words count from 1 in its documentation; word 28 points at the state.
struct TorvaneLibraryData {
  void *words[49];
};

namespace torvane {

// Eleven words, all zero when the record is made.
struct RuntimeState {
  void *word1;
  void *bagTable;
  void *blockStack; // of open random blocks, innermost first
  void *word4;
  intptr_t arithmeticFlags;
  void *words6to11[6];
};
static_assert(sizeof(RuntimeState) == 11 * sizeof(void *));

inline RuntimeState *runtimeState(const TorvaneLibraryData *libraryData) {
  return static_cast<RuntimeState *>(libraryData->words[27]);
}

} // namespace torvane

// The module initialisers that start-up runs, and the hooks that threads run when they begin and end.
// The order stands in the table of startup.cpp.
#pragma once

#include "types.h"

namespace torvane {

// Each takes the stage, 0 to 4, and acts on its own ones.
void initializeMemory(mint stage);
void initializeHashConstants(mint stage);
void initializeElementTypeNames(mint stage);
void initializeRankZeroTensors(mint stage);
void initializeThresholds(mint stage);
void initializeEternalTensor(mint stage);
void initializeAbortPoll(mint stage);

// Thread hooks. Start hooks run in the order of registration, exit hooks in reverse. The lists belong to
// the process and are made at stage 1 of Memory; a function already on a list is not added twice, so
// that a second start-up does not run it twice.
using ThreadHook = void (*)();
void createThreadHookLists();
void addThreadStartHook(ThreadHook hook);
void addThreadExitHook(ThreadHook hook);
void runThreadStartHooks();
void runThreadExitHooks();

} // namespace torvane

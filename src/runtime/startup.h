// The module initialisers that start-up runs, and the hooks that threads run when they begin and end.
// The order stands in the table of startup.cpp.
#pragma once

#include "types.h"

namespace torvane {

// Each takes the stage, 0 to 4, and acts on its own ones: 0 sets process-wide constants and touches no memory
// of the allocator, 1 makes the allocator and the tables, 2 fills tables that need other modules, 3 is
// reserved, 4 makes what needs all modules. A restart runs them again: what lives must survive it.
void initializeMemory(mint stage);
void initializeHashConstants(mint stage);
void initializeRuntimeFunctionTable(mint stage);
void initializeConversionTables(mint stage);
void initializeRankZeroTensors(mint stage);
void initializeSparseArrays(mint stage);
void initializeRandomNumbers(mint stage);
void initializeThresholds(mint stage);
void initializeEternalTensor(mint stage);
void initializeAbortPoll(mint stage);

// Release what the modules hold outside the allocator, or would find again after it is gone.
void tearDownThreadHookLists();
void tearDownRuntimeFunctionTable();
void tearDownConversionTables();
void tearDownRankZeroTensors();
void tearDownRandomNumbers();
void tearDownEternalTensor();
void tearDownPool();

struct StartupModule {
  const char *name;
  void (*initialize)(mint stage); // null: the module's place in the order, kept for it
  void (*tearDown)();             // null: the module holds nothing of its own
};
inline constexpr mint kStartupModuleCount = 10;
extern const StartupModule kStartupModules[kStartupModuleCount];

// Start-up over any table, in its order; a stage outside 0 to 4 does nothing. Teardown, in reverse order.
void runStage(const StartupModule *modules, mint count, mint stage);
void tearDownModules(const StartupModule *modules, mint count);

// The end of the library: runs the calling thread's exit hooks if asked to, then the module teardowns, of
// which the allocator's is the last. Only when no other thread is in the library any more.
void tearDownLibrary(mint runExitHooks);

// Thread hooks. Start hooks run in the order of registration, exit hooks in reverse. The lists belong to
// the process and are made at stage 1 of Memory; a function already on a list is not added twice, so
// that a second start-up does not run it twice. Hooks are added on the thread that starts the library.
using ThreadHook = void (*)();
void createThreadHookLists();
void addThreadStartHook(ThreadHook hook);
void addThreadExitHook(ThreadHook hook);
void runThreadStartHooks();
void runThreadExitHooks();

} // namespace torvane

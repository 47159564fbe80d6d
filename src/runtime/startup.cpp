// Start-up: five stages over ten modules in one fixed order, and the teardown, in reverse.
//
// A module without a function here keeps its place in the order until it lands.
#include "startup.h"

#include "failure.h"
#include "memory.h"
#include <torvane/startup.h>

#include <atomic>

namespace torvane {

namespace {

constexpr mint kStageCount = 5;

// Whether InitializeTorvaneRTL has run. The other entries neither ask nor set it.
constinit std::atomic<mint> rtlInitialized{0};

// The lists of hooks are part of Memory: it makes them at its stage 1, and they go before the allocator.
void tearDownMemoryModule() {
  tearDownThreadHookLists();
  tearDownMemory();
}

} // namespace

const StartupModule kStartupModules[kStartupModuleCount] = {
    {"memory", initializeMemory, tearDownMemoryModule},
    {"hash and numeric constants", initializeHashConstants, nullptr},
    {"function registry", initializeRuntimeFunctionTable, tearDownRuntimeFunctionTable},
    {"numeric array conversion tables", initializeConversionTables, tearDownConversionTables},
    {"rank-zero tensors", initializeRankZeroTensors, tearDownRankZeroTensors},
    {"sparse arrays", initializeSparseArrays, nullptr},
    {"random numbers", initializeRandomNumbers, tearDownRandomNumbers},
    {"parallel and vector thresholds", initializeThresholds, tearDownPool},
    {"eternal tensor", initializeEternalTensor, tearDownEternalTensor},
    {"abort poll", initializeAbortPoll, nullptr},
};

void runStage(const StartupModule *modules, mint count, mint stage) {
  if (stage < 0 || stage >= kStageCount) return;
  for (mint i = 0; i < count; ++i)
    if (modules[i].initialize != nullptr) modules[i].initialize(stage);
}

void tearDownModules(const StartupModule *modules, mint count) {
  for (mint i = count - 1; i >= 0; --i)
    if (modules[i].tearDown != nullptr) modules[i].tearDown();
}

void tearDownLibrary(mint runExitHooks) {
  if (runExitHooks != 0) runThreadExitHooks();
  tearDownModules(kStartupModules, kStartupModuleCount);
}

} // namespace torvane

using namespace torvane;

void InitRuntimeLibrary(mint stage) { runStage(kStartupModules, kStartupModuleCount, stage); }

void InitializeRuntimeLibrary() {
  for (mint stage = 0; stage < kStageCount; ++stage) InitRuntimeLibrary(stage);
}

void TorvaneRTL_initialize() { InitializeRuntimeLibrary(); }

// The abort pointers come last: no stage may poll the host.
void InitializeTorvaneRTL(void *allocatorState, mint *abortFlag, mint (*abortTest)(const char *)) {
  if (rtlInitialized.exchange(1, std::memory_order_relaxed) != 0) return;
  adoptAllocatorState(allocatorState);
  InitializeRuntimeLibrary();
  setAbortWatch(abortFlag, abortTest);
}

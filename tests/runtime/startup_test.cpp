// Order and stages of start-up, its guard, what survives a restart, and the teardown.
#include "algorithms/hash_table_settings.h"
#include "arrays/element_type_names.h"
#include "runtime/failure.h"
#include "runtime/heap_state.h"
#include "runtime/heap_thread.h"
#include "runtime/memory.h"
#include "runtime/set_jump.h"
#include "runtime/startup.h"
#include "runtime/thresholds.h"
#include "support/child_process.h"
#include "support/failing_heap.h"
#include "support/heap_walker.h"
#include "support/on_thread.h"
#include "tensor/tensor.h"
#include <torvane/elementwise.h>
#include <torvane/startup.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include <unistd.h>

using namespace torvane;

namespace {

TEST(Startup, TenModulesStandInTheirFixedOrder) {
  const std::vector<std::string> expected = {"memory",
                                             "hash and numeric constants",
                                             "function registry",
                                             "numeric array conversion tables",
                                             "rank-zero tensors",
                                             "sparse arrays",
                                             "random numbers",
                                             "parallel and vector thresholds",
                                             "eternal tensor",
                                             "abort poll"};
  std::vector<std::string> names;
  for (const StartupModule &module : kStartupModules) names.push_back(module.name);
  EXPECT_EQ(names, expected);
}

TEST(Startup, RowsCallTheInitialisersOfTheirModules) {
  EXPECT_EQ(kStartupModules[0].initialize, initializeMemory);
  EXPECT_EQ(kStartupModules[1].initialize, initializeHashConstants);
  EXPECT_EQ(kStartupModules[2].initialize, initializeRuntimeFunctionTable);
  EXPECT_EQ(kStartupModules[3].initialize, initializeConversionTables);
  EXPECT_EQ(kStartupModules[4].initialize, initializeRankZeroTensors);
  EXPECT_EQ(kStartupModules[6].initialize, initializeRandomNumbers);
  EXPECT_EQ(kStartupModules[7].initialize, initializeThresholds);
  EXPECT_EQ(kStartupModules[8].initialize, initializeEternalTensor);
  EXPECT_EQ(kStartupModules[9].initialize, initializeAbortPoll);
}

std::string trace;
template <char letter> void traced(mint stage) { trace += letter + std::to_string(stage); }
template <char letter> void tracedEnd() { trace += letter; }
const StartupModule kTraced[3] = {
    {"a", traced<'a'>, tracedEnd<'a'>}, {"absent", nullptr, nullptr}, {"b", traced<'b'>, tracedEnd<'b'>}};

TEST(Startup, StageRunsEveryModuleInOrderAndSkipsThoseThatAreNotThere) {
  trace.clear();
  for (mint stage = 0; stage < 5; ++stage) runStage(kTraced, 3, stage);
  EXPECT_EQ(trace, "a0b0a1b1a2b2a3b3a4b4");
}

TEST(Startup, StagesOutsideTheFiveDoNothing) {
  trace.clear();
  for (mint stage : {-1, 5, 6, INT32_MIN, INT32_MAX}) runStage(kTraced, 3, stage);
  EXPECT_EQ(trace, "");
}

TEST(Startup, TeardownRunsTheModulesInReverse) {
  trace.clear();
  tearDownModules(kTraced, 3);
  EXPECT_EQ(trace, "ba");
}

// What start-up leaves in words that every stage's effect can be read from.
struct Effects {
  bool hashes, names, thresholds;
};

Effects effects() {
  return {hashFunction == hashMurmur3, elementTypeOfPrimaryName("Real64") == 10,
          getVectorParallelLengthThreshold(0) == 32768};
}

void disturb() {
  setHashFunction("SIP24");
  setVectorParallelLengthThreshold(0, 1);
}

TEST(Startup, OneStageAtATimeReachesEveryModule) {
  test::inFreshProcess([] {
    disturb();
    EXPECT_FALSE(effects().hashes || effects().names || effects().thresholds);
    InitRuntimeLibrary(0);
    EXPECT_TRUE(effects().hashes && effects().thresholds);
    EXPECT_FALSE(effects().names);
    EXPECT_EQ(coreCount(), 1);
    InitRuntimeLibrary(1);
    EXPECT_TRUE(effects().names);
    disturb();
    for (mint stage : {2, 3, 4, 5, -1}) InitRuntimeLibrary(stage);
    EXPECT_FALSE(effects().hashes || effects().thresholds);
  });
}

TEST(Startup, BothEntriesRunAllStagesEachTimeTheyAreCalled) {
  test::inFreshProcess([] {
    for (void (*start)() : {InitializeRuntimeLibrary, TorvaneRTL_initialize})
      for (int time = 0; time < 2; ++time) {
        disturb();
        start();
        EXPECT_TRUE(effects().hashes && effects().names && effects().thresholds);
      }
  });
}

mint firstFlag = 1, secondFlag = 1;
mint yes(const char *) { return 1; }
mint no(const char *) { return 0; }

TEST(Startup, HostsStartRunsTheStagesOnceAndIgnoresLaterArguments) {
  test::inFreshProcess([] {
    disturb();
    InitializeTorvaneRTL(nullptr, &firstFlag, yes);
    EXPECT_TRUE(effects().hashes && effects().names && effects().thresholds);
    EXPECT_EQ(getAbortWatchHandle(), &firstFlag);
    EXPECT_EQ(checkAbortWatch(), 1);
    disturb();
    InitializeTorvaneRTL(nullptr, &secondFlag, no);
    EXPECT_FALSE(effects().hashes || effects().thresholds);
    EXPECT_EQ(getAbortWatchHandle(), &firstFlag);
    EXPECT_EQ(checkAbortWatch(), 1);
  });
}

// This thread plays the host: its state and heap exist, the library knows neither.
TEST(Startup, HostsStartAdoptsTheStateThatItIsGivenTheFirstTime) {
  test::inFreshProcess([] {
    void *block = allocate(100, 0, kFatal);
    ThreadHeap *const heap = threadHeap;
    AllocatorState *const state = currentState();
    allocatorState = nullptr;
    forgetHeap();
    ASSERT_NE(ensureThreadHeap(), heap); // of a state of the library's own, which the host's now replaces
    InitializeTorvaneRTL(state, nullptr, nullptr);
    EXPECT_EQ(currentState(), state);
    EXPECT_EQ(ensureThreadHeap(), heap);
    const uint32_t used = usedBytesOfThisThread();
    torvane::free(block);
    EXPECT_EQ(usedBytesOfThisThread(), used - 104);
    AllocatorState other = {};
    InitializeTorvaneRTL(&other, nullptr, nullptr);
    EXPECT_EQ(currentState(), state);
    EXPECT_TRUE(test::isValidState());
  });
}

ProcessHeap watchingHeap = platformProcessHeap;
int requestsSeen, requestsWithTheHostsFlag;
void noteFlag() {
  ++requestsSeen;
  requestsWithTheHostsFlag += getAbortWatchHandle() == &firstFlag;
}

// The stages ask the process heap for memory, and so can be looked into while they run.
TEST(Startup, NoStageSeesTheHostsAbortPointers) {
  test::inFreshProcess([] {
    tearDownMemory();
    watchingHeap.take = [](size_t bytes) { return noteFlag(), platformProcessHeap.take(bytes); };
    watchingHeap.takeAligned = [](size_t bytes, size_t alignment) {
      return noteFlag(), platformProcessHeap.takeAligned(bytes, alignment);
    };
    processHeap = &watchingHeap;
    InitializeTorvaneRTL(nullptr, &firstFlag, yes);
    EXPECT_GT(requestsSeen, 5);
    EXPECT_EQ(requestsWithTheHostsFlag, 0);
    EXPECT_EQ(getAbortWatchHandle(), &firstFlag);
  });
}

// Ends of a start-up of which one request failed.
constexpr int kLivesWell = 0, kFatalStatus = 1, kLivesIll = 2, kNothingFailed = 3;

// Start-up with its k-th request failing: on a state that the host has made, or on none.
[[noreturn]] void startWithFailure(int64_t k, bool withState) {
  tearDownLibrary(0);
  void *const state = withState ? (torvane::free(allocate(8, 0, kFatal)), currentState()) : nullptr;
  if (withState) {
    allocatorState = nullptr;
    forgetHeap();
  }
  test::FailingHeap heap;
  heap.failRequest(k);
  disturb();
  InitializeTorvaneRTL(state, &firstFlag, yes);
  const bool failed = heap.failed();
  heap.succeed();
  const bool well = effects().hashes && effects().names && effects().thresholds &&
                    getEternalMTensor() != nullptr && getAbortWatchHandle() == &firstFlag &&
                    (state == nullptr || currentState() == state) && test::isValidState();
  _exit(!well ? kLivesIll : failed ? kLivesWell : kNothingFailed);
}

// What can be done without, the growth of a table, is done without.
void expectFatalOrNothingLeftOut(bool withState, int64_t needed) {
  int64_t fatal = 0;
  for (int64_t k = 1;; ++k) {
    const test::ChildOutcome child = test::runInChild([=] { startWithFailure(k, withState); });
    ASSERT_TRUE(child.exited) << k;
    if (child.status == kNothingFailed) break;
    ASSERT_TRUE(child.status == kFatalStatus || child.status == kLivesWell) << k << ": " << child.status;
    fatal += child.status == kFatalStatus;
  }
  EXPECT_GE(fatal, needed);
}

TEST(Startup, WithoutMemoryIsTheFatalPathOrLeavesNothingOut) {
  expectFatalOrNothingLeftOut(false, 5); // state, reserve, geometry, page map and heap among them
}

TEST(Startup, OnTheStateOfAHostWithoutMemoryIsTheFatalPathOrLeavesNothingOut) {
  expectFatalOrNothingLeftOut(true, 2); // both lists of hooks among them
}

int exitHookCalls;
bool hookSawTheMap;
void countExitHook() {
  ++exitHookCalls;
  hookSawTheMap = elementTypeOfPrimaryName("Real64") == 10;
}

TEST(Startup, StageOneMakesBothListsOfHooks) {
  test::inFreshProcess([] {
    tearDownLibrary(0);
    InitRuntimeLibrary(0);
    InitRuntimeLibrary(1);
    test::FailingHeap heap;
    heap.failFrom(1); // a list that had to be made now would be the fatal path
    addThreadStartHook(countExitHook);
    addThreadExitHook(countExitHook);
    EXPECT_EQ(heap.requests(), 0);
  });
}

TEST(Startup, MakesTheEndOfAThreadsHeapAnExitHook) {
  test::inFreshProcess([] {
    InitializeRuntimeLibrary();
    test::onThread([] {
      torvane::free(allocate(100, 0, kFatal));
      ASSERT_TRUE(hasHeap());
      runThreadExitHooks();
      EXPECT_FALSE(hasHeap());
      EXPECT_EQ(threadSlotValue(currentState()->tlsSlot), nullptr);
    });
  });
}

TEST(Startup, TensorsAndHeapsSurviveARestartAndTheEternalTensorIsMadeAnew) {
  test::inFreshProcess([] {
    InitializeRuntimeLibrary();
    const mint extents[] = {3};
    MTensor *const tensor = CreatePackedArray(TORVANE_TYPE_INTEGER, 1, extents);
    MTensor_initialize(tensor, 7);
    ThreadHeap *const heap = threadHeap;
    AllocatorState *const state = currentState();
    MTensor *const eternal = getEternalMTensor();
    for (int time = 0; time < 3; ++time) InitializeRuntimeLibrary();
    EXPECT_EQ(currentState(), state);
    EXPECT_EQ(ensureThreadHeap(), heap);
    EXPECT_TRUE(isValidTensor(tensor));
    EXPECT_EQ(static_cast<mint *>(tensor->data)[2], 7);
    EXPECT_NE(getEternalMTensor(), eternal);
    EXPECT_EQ(eternal->flags, uint32_t{TORVANE_FLAG_ETERNAL});
    MTensor_delete(eternal);
    EXPECT_EQ(eternal->refCount, int64_t{1} << 32);
    MTensor_delete(tensor);
    EXPECT_TRUE(test::isValidState());
  });
}

TEST(Startup, HostsStartRunsTheStagesEvenAfterAnotherEntryDid) {
  test::inFreshProcess([] {
    InitializeRuntimeLibrary();
    disturb();
    InitializeTorvaneRTL(nullptr, nullptr, nullptr);
    EXPECT_TRUE(effects().hashes && effects().thresholds);
    ASSERT_NE(getAbortWatchHandle(), nullptr);
    EXPECT_EQ(checkAbortWatch(), 0);
  });
}

TEST(Startup, BlocksStyleCodePointersAndFramesSurviveARestart) {
  test::inFreshProcess([] {
    InitializeTorvaneRTL(nullptr, &firstFlag, yes);
    void *block = allocate(100, 0, kFatal);
    std::memset(block, 0x5A, 100);
    const uint32_t used = usedBytesOfThisThread();
    setExceptionStyle(2);
    setExceptionActive(14);
    void *frame = SetJumpStack_Push();
    for (int time = 0; time < 3; ++time) InitializeRuntimeLibrary();
    EXPECT_EQ(RTL_exceptionStyle, 2);
    EXPECT_EQ(RTL_exceptionActive, 14);
    EXPECT_EQ(setJumpTop(), frame);
    SetJumpStack_Pop();
    EXPECT_EQ(getAbortWatchHandle(), &firstFlag);
    EXPECT_EQ(checkAbortWatch(), 1);
    for (int i = 0; i < 100; ++i) EXPECT_EQ(static_cast<unsigned char *>(block)[i], 0x5A);
    EXPECT_GE(usedBytesOfThisThread(), used);
    torvane::free(block);
  });
}

TEST(Startup, HostThatFixesTheWorkersBetweenTheStagesKeepsThem) {
  test::inFreshProcess([] {
    InitRuntimeLibrary(0);
    setWorkerCountFixed(1);
    setWorkerCount(77);
    for (mint stage = 1; stage < 5; ++stage) InitRuntimeLibrary(stage);
    EXPECT_EQ(workerCount(), 77);
  });
}

TEST(Startup, TeardownRunsTheExitHooksFirstWhenAskedTo) {
  test::inFreshProcess([] {
    InitializeRuntimeLibrary();
    addThreadExitHook(countExitHook);
    tearDownLibrary(1);
    EXPECT_EQ(exitHookCalls, 1);
    EXPECT_TRUE(hookSawTheMap);
    EXPECT_EQ(elementTypeOfPrimaryName("Real64"), 0);
    runThreadExitHooks(); // the list is gone
    EXPECT_EQ(exitHookCalls, 1);
  });
}

TEST(Startup, TeardownLeavesTheExitHooksAloneWhenNotAskedTo) {
  test::inFreshProcess([] {
    InitializeRuntimeLibrary();
    addThreadExitHook(countExitHook);
    tearDownLibrary(0);
    EXPECT_EQ(exitHookCalls, 0);
  });
}

TEST(Startup, LibraryStartsAgainAfterItsTeardown) {
  test::inFreshProcess([] {
    for (int time = 0; time < 3; ++time) {
      InitializeRuntimeLibrary();
      EXPECT_TRUE(effects().hashes && effects().names && effects().thresholds);
      tearDownLibrary(1);
    }
  });
}

// The settings that stage 0 restores one by one.
TEST(Startup, StageZeroRestoresEveryHashSetting) {
  const HashSeeds other = {};
  hashSeeds = &other;
  maxLoadFactor = 9;
  minLoadFactor = 9;
  hashPrefixLimit = 9;
  hashPrefixLimitNeighbour = 9;
  currentKeyWords = 9;
  setHashFunction("SIP24");
  for (mint stage : {1, 2, 3, 4}) initializeHashConstants(stage);
  EXPECT_EQ(currentKeyWords, 9);
  EXPECT_EQ(hashFunction.load(), &hashSip24);
  initializeHashConstants(0);
  EXPECT_EQ(hashSeeds.load(), &kHashSeeds);
  EXPECT_EQ(maxLoadFactor, 2.0);
  EXPECT_EQ(minLoadFactor, 0.5);
  EXPECT_EQ(hashPrefixLimit, 0x7fffffff);
  EXPECT_EQ(hashPrefixLimitNeighbour, 0x7fffffff);
  EXPECT_EQ(currentKeyWords, 0);
  EXPECT_EQ(hashFunction.load(), &hashMurmur3);
}

} // namespace

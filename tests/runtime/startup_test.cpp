// Order and stages of start-up, its guard, what survives a restart, and the teardown.
#include "algorithms/hash_table_settings.h"
#include "arrays/element_type_names.h"
#include "runtime/failure.h"
#include "runtime/memory.h"
#include "runtime/set_jump.h"
#include "runtime/startup.h"
#include "runtime/thresholds.h"
#include "support/child_process.h"
#include <torvane/elementwise.h>
#include <torvane/startup.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

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
  EXPECT_EQ(kStartupModules[3].initialize, initializeElementTypeNames);
  EXPECT_EQ(kStartupModules[4].initialize, initializeRankZeroTensors);
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

// Each of these starts the library in a process of its own: start-up is once for a process.
void inFreshProcess(void (*body)()) {
  const test::ChildOutcome child = test::runInChild([body] {
    body();
    std::_Exit(testing::Test::HasFailure() ? 1 : 0);
  });
  EXPECT_TRUE(child.exited);
  EXPECT_EQ(child.status, 0) << child.output;
}

TEST(Startup, OneStageAtATimeReachesEveryModule) {
  inFreshProcess([] {
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
  inFreshProcess([] {
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
  inFreshProcess([] {
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

TEST(Startup, HostsStartRunsTheStagesEvenAfterAnotherEntryDid) {
  inFreshProcess([] {
    InitializeRuntimeLibrary();
    disturb();
    InitializeTorvaneRTL(nullptr, nullptr, nullptr);
    EXPECT_TRUE(effects().hashes && effects().thresholds);
    ASSERT_NE(getAbortWatchHandle(), nullptr);
    EXPECT_EQ(checkAbortWatch(), 0);
  });
}

TEST(Startup, BlocksStyleCodePointersAndFramesSurviveARestart) {
  inFreshProcess([] {
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
  inFreshProcess([] {
    InitRuntimeLibrary(0);
    setWorkerCountFixed(1);
    setWorkerCount(77);
    for (mint stage = 1; stage < 5; ++stage) InitRuntimeLibrary(stage);
    EXPECT_EQ(workerCount(), 77);
  });
}

int exitHookCalls;
bool hookSawTheMap;
void countExitHook() {
  ++exitHookCalls;
  hookSawTheMap = elementTypeOfPrimaryName("Real64") == 10;
}

TEST(Startup, TeardownRunsTheExitHooksFirstWhenAskedTo) {
  inFreshProcess([] {
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
  inFreshProcess([] {
    InitializeRuntimeLibrary();
    addThreadExitHook(countExitHook);
    tearDownLibrary(0);
    EXPECT_EQ(exitHookCalls, 0);
  });
}

TEST(Startup, LibraryStartsAgainAfterItsTeardown) {
  inFreshProcess([] {
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

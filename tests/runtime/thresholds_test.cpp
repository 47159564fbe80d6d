// The words of parallel execution at the stages of start-up, and their accessors.
#include "runtime/platform_cpu.h"
#include "runtime/startup.h"
#include "runtime/thresholds.h"
#include <torvane/elementwise.h>

#include <gtest/gtest.h>

#include <vector>

using namespace torvane;

namespace {

class Thresholds : public testing::Test {
protected:
  Thresholds() { initializeThresholds(0); }
  ~Thresholds() override {
    initializeThresholds(0);
    initializeThresholds(1);
  }
};

void disturbEverything() {
  for (mint i = 0; i < 5; ++i) setVectorParallelLengthThreshold(i, 7 + i);
  for (mint i = 0; i < 3; ++i) setVectorVendorLengthThreshold(i, 17 + i);
  setWorkerCount(5);
  setWorkerCountFixed(1);
  setParallelDisabled(1);
}

void expectStageZero() {
  for (mint i = 0; i < 5; ++i) EXPECT_EQ(getVectorParallelLengthThreshold(i), 32768);
  for (mint i = 0; i < 3; ++i) EXPECT_EQ(getVectorVendorLengthThreshold(i), 0x7FFFFFFF);
  EXPECT_EQ(workerCount(), 1);
  EXPECT_EQ(coreCount(), 1);
  EXPECT_EQ(logicalProcessorCount(), 1);
  EXPECT_EQ(workerCountFixed(), 0);
  EXPECT_EQ(parallelDisabled(), 0);
}

TEST_F(Thresholds, StageZeroSetsEveryWord) {
  initializeThresholds(1);
  disturbEverything();
  initializeThresholds(0);
  expectStageZero();
}

// Read when this program is loaded, before anything of the library has run.
std::vector<mint> allWords() {
  std::vector<mint> words = {workerCount(), coreCount(), logicalProcessorCount(), workerCountFixed(),
                             parallelDisabled()};
  for (mint i = 0; i < 5; ++i) words.push_back(getVectorParallelLengthThreshold(i));
  for (mint i = 0; i < 3; ++i) words.push_back(getVectorVendorLengthThreshold(i));
  return words;
}
const std::vector<mint> wordsAtLoad = allWords();

TEST_F(Thresholds, WordsHoldTheValuesOfStageZeroAtLoad) { EXPECT_EQ(wordsAtLoad, allWords()); }

TEST_F(Thresholds, StageOneCountsTheProcessorsAndSetsTheWorkers) {
  ProcessorInformation machine;
  ASSERT_TRUE(readProcessorInformation(&machine));
  initializeThresholds(1);
  EXPECT_EQ(coreCount(), machine.coreCount);
  EXPECT_EQ(logicalProcessorCount(), machine.logicalProcessorCount);
  EXPECT_EQ(workerCount(), machine.coreCount);
}

TEST_F(Thresholds, StageOneKeepsAFixedWorkerCount) {
  setWorkerCount(1234);
  EXPECT_EQ(setWorkerCountFixed(1), 0);
  initializeThresholds(1);
  EXPECT_EQ(workerCount(), 1234);
  EXPECT_GE(coreCount(), 1);
}

TEST_F(Thresholds, LaterStagesLeaveTheWordsAlone) {
  initializeThresholds(1);
  disturbEverything();
  for (mint stage : {2, 3, 4}) initializeThresholds(stage);
  EXPECT_EQ(getVectorParallelLengthThreshold(4), 11);
  EXPECT_EQ(getVectorVendorLengthThreshold(2), 19);
  EXPECT_EQ(workerCount(), 5);
  EXPECT_EQ(parallelDisabled(), 1);
}

TEST_F(Thresholds, StageOneLeavesTheLengthsAlone) {
  disturbEverything();
  initializeThresholds(1);
  EXPECT_EQ(getVectorParallelLengthThreshold(0), 7);
  EXPECT_EQ(getVectorVendorLengthThreshold(0), 17);
}

TEST_F(Thresholds, EachEntryIsItsOwn) {
  for (mint i = 0; i < 5; ++i) setVectorParallelLengthThreshold(i, 100 * i - 1);
  for (mint i = 0; i < 3; ++i) setVectorVendorLengthThreshold(i, -i);
  for (mint i = 0; i < 5; ++i) {
    EXPECT_EQ(getVectorParallelLengthThreshold(i), 100 * i - 1);
    EXPECT_EQ(vectorParallelLength(i), 100 * i - 1);
  }
  for (mint i = 0; i < 3; ++i) EXPECT_EQ(getVectorVendorLengthThreshold(i), -i);
}

TEST_F(Thresholds, SettersReturnThePreviousValue) {
  EXPECT_EQ(setWorkerCount(3), 1);
  EXPECT_EQ(setWorkerCount(0), 3);
  EXPECT_EQ(workerCount(), 0);
  EXPECT_EQ(setParallelDisabled(1), 0);
  EXPECT_EQ(setParallelDisabled(0), 1);
}

} // namespace

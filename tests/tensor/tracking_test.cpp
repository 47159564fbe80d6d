// The tracker: what it reports, what stays readable, what is freed in the end.
#include "tensor/tracking.h"
#include "runtime/memory.h"
#include "runtime/startup.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

#include <mutex>
#include <string>
#include <thread>

using namespace torvane;
using namespace torvane::test;

namespace {

using Texts = std::vector<std::string>;

std::mutex textsLock;
Texts texts;

void report(const char *text) {
  std::lock_guard guard(textsLock);
  texts.push_back(text);
}

Texts takeTexts() {
  std::lock_guard guard(textsLock);
  return std::exchange(texts, {});
}

MTensor *newVector(mint length) { return CreatePackedArray(TORVANE_TYPE_INTEGER, 1, &length); }

class Tracking : public testing::Test {
protected:
  void SetUp() override {
    takeTexts();
    MTensor_startTracking(report);
  }
  void TearDown() override { MTensor_stopTracking(1); }
};

TEST_F(Tracking, OfTensorsThatAreDeletedOnceReportsNothing) {
  for (int i = 0; i < 100; ++i) MTensor_delete(newVector(3));
  FreeMTensor(newVector(2));
  MTensor_stopTracking(1);
  EXPECT_EQ(takeTexts(), Texts());
}

TEST_F(Tracking, KeepsADeletedTensorReadable) {
  MTensor *tensor = newVector(3);
  MTensor_initialize(tensor, 7);
  const uint32_t used = usedBytesOfThisThread();
  MTensor_delete(tensor);
  EXPECT_EQ(usedBytesOfThisThread(), used);
  EXPECT_EQ(static_cast<mint *>(tensor->data)[2], 7);
  EXPECT_TRUE(isValidTensor(tensor));
}

TEST_F(Tracking, FreesTheDeletedTensorsWhenItsTableIsDestroyed) {
  MTensor_stopTracking(1);
  const uint32_t before = usedBytesOfThisThread();
  MTensor_startTracking(report);
  for (int i = 0; i < 100; ++i) MTensor_delete(newVector(5));
  EXPECT_GT(usedBytesOfThisThread(), before);
  MTensor_stopTracking(1);
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST_F(Tracking, ReportsEveryTensorThatIsNotFreed) {
  MTensor *const first = newVector(1), *const second = MTensor_new();
  MTensor_delete(newVector(1));
  MTensor_stopTracking(0);
  EXPECT_EQ(takeTexts(), Texts({"MTensor not freed", "MTensor not freed"}));
  MTensor_delete(first);
  MTensor_delete(second);
}

TEST_F(Tracking, LeavesTensorsThatAreNotFreedToTheirOwners) {
  MTensor *const tensor = newVector(4);
  MTensor_stopTracking(1);
  EXPECT_TRUE(isValidTensor(tensor));
  MTensor_delete(tensor);
  EXPECT_EQ(takeTexts(), Texts({"MTensor not freed"}));
}

TEST_F(Tracking, DoesNotReportAConstantAsLeaked) {
  MTensor *const source = newVector(2), *const constant = MTensor_new();
  MTensor_copyAsConstant(constant, source);
  MTensor_delete(constant);
  MTensor_delete(source);
  MTensor_stopTracking(1);
  EXPECT_EQ(takeTexts(), Texts());
  constant->flags = 0;
  MTensor_delete(constant);
}

TEST_F(Tracking, ReportsASecondDeletion) {
  MTensor *const tensor = newVector(2);
  MTensor_delete(tensor);
  EXPECT_EQ(takeTexts(), Texts());
  MTensor_delete(tensor);
  FreeMTensor(tensor);
  EXPECT_EQ(takeTexts(), Texts({"MTensor has already been freed", "MTensor has already been freed"}));
}

TEST_F(Tracking, ReportsTheDeletionOfATensorThatItDoesNotKnow) {
  MTensor_stopTracking(1);
  MTensor *const tensor = newVector(2);
  MTensor_startTracking(report);
  MTensor_delete(tensor);
  EXPECT_EQ(takeTexts(), Texts({"MTensor cannot be found"}));
  EXPECT_TRUE(isValidTensor(tensor));
  MTensor_stopTracking(1);
  MTensor_delete(tensor);
}

TEST_F(Tracking, ReportsARecordThatIsRegisteredTwice) {
  MTensor *const tensor = MTensor_new();
  trackCreation(tensor);
  EXPECT_EQ(takeTexts(), Texts({"MTensor already created"}));
  MTensor_delete(tensor);
  MTensor_stopTracking(1);
  EXPECT_EQ(takeTexts(), Texts());
}

TEST_F(Tracking, ChecksNullAndTheDeletionGuardFirst) {
  MTensor *const tensor = MTensor_new();
  tensor->flags = TORVANE_FLAG_CONSTANT;
  MTensor_delete(tensor);
  MTensor_delete(tensor);
  MTensor_delete(nullptr);
  EXPECT_EQ(takeTexts(), Texts());
  tensor->flags = 0;
  MTensor_delete(tensor);
}

TEST_F(Tracking, CountsTheDeletionsOfFailedCreations) {
  const mint negative[] = {-1}, huge[] = {65536, 65536};
  EXPECT_EQ(MTensor_newAllocatedCommon(TORVANE_TYPE_REAL, 1, negative, kQuiet), nullptr);
  EXPECT_EQ(CreatePackedArray(TORVANE_TYPE_REAL, 2, huge), nullptr);
  MTensor_stopTracking(1);
  EXPECT_EQ(takeTexts(), Texts());
}

TEST_F(Tracking, KeepsItsTableOnRequestAndReportsItsLeaksOnce) {
  MTensor *const leaked = newVector(3), *const deleted = newVector(3);
  MTensor_initialize(deleted, 5);
  MTensor_delete(deleted);
  MTensor_stopTracking(0);
  EXPECT_EQ(takeTexts(), Texts({"MTensor not freed"}));
  EXPECT_EQ(static_cast<mint *>(deleted->data)[0], 5);
  MTensor_delete(leaked);
  MTensor_stopTracking(1);
  EXPECT_EQ(takeTexts(), Texts());
}

TEST_F(Tracking, BeginsAnewOverATableThatWasKept) {
  MTensor_stopTracking(1);
  const uint32_t before = usedBytesOfThisThread();
  MTensor_startTracking(report);
  MTensor_delete(newVector(3));
  MTensor_stopTracking(0);
  MTensor_startTracking(report);
  MTensor_stopTracking(1);
  EXPECT_EQ(usedBytesOfThisThread(), before);
  EXPECT_EQ(takeTexts(), Texts());
}

TEST_F(Tracking, RegistersTheSharedRankZeroTensorsLikeAnyOther) {
  initializeRankZeroTensors(1);
  std::thread([] { LoadSharedRankZeroMTensor(nullptr, TORVANE_TYPE_REAL, 0); }).join();
  MTensor_stopTracking(1);
  EXPECT_EQ(takeTexts(), Texts(9, "MTensor not freed"));
}

TEST_F(Tracking, TakesTensorsOfManyThreads) {
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i)
    threads.emplace_back([] {
      for (int k = 0; k < 500; ++k) {
        MTensor *tensor = newVector(k % 7);
        MTensor_delete(tensor);
        if (k % 100 == 0) MTensor_delete(tensor);
      }
    });
  for (std::thread &thread : threads) thread.join();
  MTensor_stopTracking(1);
  EXPECT_EQ(takeTexts(), Texts(20, "MTensor has already been freed"));
}

// A thread that saw tracking on and finds it ended under the lock has its tensor to free itself.
TEST_F(Tracking, ThatHasEndedMeanwhileNotesNothing) {
  MTensor *const tensor = newVector(2);
  MTensor_stopTracking(1);
  takeTexts();
  EXPECT_FALSE(trackDeletion(tensor));
  trackCreation(tensor);
  EXPECT_EQ(takeTexts(), Texts());
  const uint32_t used = usedBytesOfThisThread();
  MTensor_delete(tensor);
  EXPECT_LT(usedBytesOfThisThread(), used);
}

TEST_F(Tracking, LetsTheReportFunctionMakeTensors) {
  MTensor_startTracking([](const char *text) {
    report(text);
    MTensor_delete(MTensor_new());
  });
  MTensor *const tensor = MTensor_new(), *const leaked = MTensor_new();
  MTensor_delete(tensor);
  MTensor_delete(tensor);
  MTensor_stopTracking(1);
  EXPECT_EQ(takeTexts(), Texts({"MTensor has already been freed", "MTensor not freed"}));
  MTensor_delete(leaked);
}

TEST_F(Tracking, MayStopWhileOtherThreadsMakeAndDelete) {
  std::atomic<bool> done{false};
  std::thread worker([&] {
    while (!done) MTensor_delete(newVector(2));
  });
  for (int i = 0; i < 50; ++i) {
    MTensor_stopTracking(1);
    MTensor_startTracking(report);
  }
  done = true;
  worker.join();
  for (const std::string &text : takeTexts())
    EXPECT_TRUE(text == "MTensor not freed" || text == "MTensor cannot be found") << text;
}

} // namespace

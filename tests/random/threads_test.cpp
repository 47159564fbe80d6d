// Ends of threads, snapshots that go from one thread to another, and thread numbers.
#include "plain_method.h"

#include "random/thread_number.h"
#include "runtime/platform.h"
#include "support/on_thread.h"
#include <torvane/startup.h>

#include <atomic>
#include <set>
#include <thread>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

using RandomThreads = Framework;

TEST_F(RandomThreads, ThreadThatEndsReleasesItsGenerators) {
  addPlainMethod<0>("ExtendedCA");
  addPlainMethod<1>("MersenneTwister");
  onThread([] {
    const uint32_t seed = 1;
    Runtime_SeedRandom(&seed, 1);
    Runtime_SeedRandom(&seed, 3);
    drawBits(3);
    EXPECT_EQ(plainGenerators, 2);
  });
  EXPECT_EQ(plainGenerators, 0);
}

TEST_F(RandomThreads, SnapshotThatIsHandedToAThreadIsReleasedAtItsEnd) {
  addPlainMethod<0>("A");
  const uint32_t seed = 8;
  const uint64_t key = plainKey(&seed, 1);
  RandomGeneratorSnapshot *snapshot = RandomGenerator_create("A", nullptr, &seed, 1);
  std::thread([snapshot, key] {
    RandomGeneratorSnapshot_activate(snapshot);
    EXPECT_EQ(drawBits(32), plainWord(key, 0));
  }).join();
  EXPECT_EQ(plainGenerators, 0);
}

// A host's own slot, whose destructor draws: in what order the slots of a thread go nobody can know.
std::atomic<int> lateDraws{0};
void drawLate(void *) {
  drawBits(9);
  ++lateDraws;
}

TEST_F(RandomThreads, DrawAtTheVeryEndOfAThreadLeavesNothingBehind) {
  addPlainMethod<0>("ExtendedCA");
  ThreadSlot slot = 0;
  ASSERT_TRUE(createThreadSlot(&slot, drawLate));
  for (int i = 0; i < 10; ++i)
    onThread([slot] {
      setThreadSlotValue(slot, &lateDraws);
      drawBits(5);
    });
  deleteThreadSlot(slot);
  EXPECT_EQ(lateDraws, 10);
  EXPECT_EQ(plainGenerators, 0);
}

TEST_F(RandomThreads, ThreadsHaveSmallNumbersThatAreUsedAgain) {
  std::set<mint> numbers;
  for (int round = 0; round < 20; ++round)
    onThread([&] {
      const mint number = threadNumber();
      EXPECT_EQ(threadNumber(), number);
      numbers.insert(number);
    });
  EXPECT_EQ(numbers.size(), 1u);
}

// What the exit hook gives back is another thread's from then on, also where the first one goes on.
TEST_F(RandomThreads, ThreadThatAsksAgainAfterItsHooksGetsAnotherNumber) {
  onThread([] {
    const mint number = threadNumber();
    releaseThreadNumber();
    std::atomic<mint> taken{-1};
    std::atomic<bool> done{false};
    std::thread other([&] {
      taken = threadNumber();
      while (!done) std::this_thread::yield();
    });
    while (taken == -1) std::this_thread::yield();
    EXPECT_EQ(taken, number);
    EXPECT_NE(threadNumber(), number);
    done = true;
    other.join();
  });
}

TEST_F(RandomThreads, ThreadNumbersOfThreadsThatLiveTogetherDiffer) {
  std::atomic<int> asked{0};
  std::vector<mint> numbers(6);
  std::vector<std::thread> threads;
  for (size_t i = 0; i < numbers.size(); ++i)
    threads.emplace_back([&, i] {
      numbers[i] = threadNumber();
      ++asked;
      while (asked != static_cast<int>(numbers.size())) std::this_thread::yield();
    });
  for (std::thread &thread : threads) thread.join();
  EXPECT_EQ(std::set<mint>(numbers.begin(), numbers.end()).size(), numbers.size());
  for (mint number : numbers) EXPECT_LT(number, 6 + 1);
}

} // namespace

// The pool under stress: runs in the thread sanitizer's lane too.
#include "parallel/first_failure.h"
#include "parallel/pool.h"
#include "pool_fixture.h"
#include "runtime/memory.h"
#include "support/on_thread.h"
#include "support/sanitizers.h"
#include <torvane/exception.hpp>

#include <atomic>
#include <mutex>
#include <random>
#include <set>

namespace torvane::test {
namespace {

using ConcurrentPool = PoolTest;

#if TORVANE_ADDRESS_SANITIZER || TORVANE_THREAD_SANITIZER
constexpr int kRounds = 300;
#else
constexpr int kRounds = 3000;
#endif

// Pieces that a thread of the pool has carried, so that a test may hold that there were any.
std::atomic<int> piecesOfHelpers{0};

// A piece that takes its time and lets others on the processor: the pool wakes nobody for less.
void linger() {
  for (const uint64_t start = timeStamp(); timeStamp() - start < 20000;) __builtin_ia32_pause();
  std::this_thread::yield();
}

// Fills a plain vector, so that a body that ran twice, or a loop that returned early, is a race.
void fillAndCheck(mint count, mint mark, const ParallelPartition *partition) {
  std::vector<mint> values(static_cast<size_t>(count), -1);
  const auto caller = std::this_thread::get_id();
  loopOver(
      0, count, 1,
      [&](ParallelWorker *worker) {
        if (std::this_thread::get_id() != caller) ++piecesOfHelpers;
        if (mark % 4 == 0) linger();
        for (mint i = ParallelWorker_first(worker); i < ParallelWorker_last(worker); ++i)
          values[static_cast<size_t>(i)] += i + mark + 1;
      },
      partition);
  for (mint i = 0; i < count; ++i) ASSERT_EQ(values[static_cast<size_t>(i)], i + mark);
}

TEST_F(ConcurrentPool, LoopsInARowSeeEachOthersResults) {
  const ParallelPartition pieces = {kOfSize, 1, 0};
  piecesOfHelpers = 0;
  for (int round = 0; round < kRounds; ++round)
    fillAndCheck(1 + round % 97, round, round % 8 < 4 ? &pieces : nullptr);
  EXPECT_GT(piecesOfHelpers, kRounds / 10) << "threads take part";
}

TEST_F(ConcurrentPool, LoopsAfterAPauseFindSleepingThreads) {
  for (int round = 0; round < 30; ++round) {
    sleepMilliseconds(1);
    fillAndCheck(50, round, nullptr);
  }
}

TEST_F(ConcurrentPool, WorkersAddToAccumulatorsOfTheirOwn) {
  const ParallelPartition pieces = {kOfSize, 1, 0};
  for (int round = 0; round < kRounds / 4; ++round) {
    int64_t sums[3] = {}; // plain: a worker held by two bodies at once is a race
    loopOver(
        0, 500, 1,
        [&](ParallelWorker *worker) {
          if (ParallelWorker_first(worker) % 100 == 0) linger();
          sums[ParallelWorker_index(worker)] += ParallelWorker_first(worker);
        },
        &pieces);
    ASSERT_EQ(sums[0] + sums[1] + sums[2], 500 * 499 / 2);
  }
}

TEST_F(ConcurrentPool, NestedLoopsOfAllWorkersDoNotDisturbEachOther) {
  const ParallelPartition pieces = {kOfSize, 1, 0};
  for (int round = 0; round < kRounds / 10; ++round) {
    std::atomic<int> wrong{0};
    const mint status = loopOver(
        0, 20, 1,
        [&](ParallelWorker *worker) {
          const mint own = ParallelWorker_first(worker);
          linger();
          mint covered = 0;
          const mint inner = loopOver(own, own + 50, 1, [&](ParallelWorker *serial) {
            covered += ParallelWorker_last(serial) - ParallelWorker_first(serial);
            if (own % 2 == 0) ParallelWorker_fail(serial, own + 1);
          });
          if (covered != 50 || inner != (own % 2 == 0 ? own + 1 : 0)) ++wrong;
        },
        &pieces);
    ASSERT_EQ(wrong, 0);
    ASSERT_EQ(status, 0);
  }
}

TEST_F(ConcurrentPool, FailuresOfManyPiecesLeaveOneOfTheirStatuses) {
  const ParallelPartition pieces = {kOfSize, 1, 0};
  for (int round = 0; round < kRounds / 4; ++round) {
    const mint status = loopOver(
        0, 30, 1,
        [](ParallelWorker *worker) {
          if (ParallelWorker_first(worker) % 3 == 0)
            throw TorvaneRuntimeException(100 + ParallelWorker_first(worker));
        },
        &pieces);
    ASSERT_TRUE(status >= 100 && status < 130 && (status - 100) % 3 == 0) << status;
  }
}

TEST_F(ConcurrentPool, SmallestOfManyFailuresIsFound) {
  const ParallelPartition pieces = {kOfSize, 1, 0};
  std::mt19937 random(3);
  for (int round = 0; round < kRounds / 4; ++round) {
    FirstFailure failure;
    std::vector<char> fails(200), run(200);
    mint smallest = 200;
    for (int k = 0; k < 5; ++k) {
      const auto at = static_cast<mint>(random() % 200);
      fails[static_cast<size_t>(at)] = 1;
      smallest = std::min(smallest, at);
    }
    loopOver(
        0, 200, 1,
        [&](ParallelWorker *worker) {
          const mint at = ParallelWorker_first(worker);
          if (at % 50 == 0) linger();
          if (failure.isBefore(at)) return;
          run[static_cast<size_t>(at)] = 1;
          if (fails[static_cast<size_t>(at)] != 0) failure.at(at);
        },
        &pieces);
    ASSERT_EQ(failure.outcome(), smallest + 1);
    for (mint i = 0; i <= smallest; ++i) ASSERT_EQ(run[static_cast<size_t>(i)], 1);
  }
}

TEST_F(ConcurrentPool, WorkerCountChangesBetweenLoops) {
  std::mt19937 random(4);
  for (int round = 0; round < kRounds / 10; ++round) {
    setWorkerCount(static_cast<mint>(random() % 6));
    fillAndCheck(40, round, nullptr);
    if (round % 7 == 0) tearDownPool();
  }
}

TEST_F(ConcurrentPool, LoopsOfTwoHostThreadsAreEachComplete) {
  std::thread other([] {
    for (int round = 0; round < kRounds; ++round) fillAndCheck(64, round, nullptr);
  });
  for (int round = 0; round < kRounds; ++round) fillAndCheck(64, round, nullptr);
  other.join();
}

TEST_F(ConcurrentPool, LoopsOfTwoHostThreadsKeepTheirOwnStatuses) {
  const auto loopsWithStatus = [](mint status) {
    for (int round = 0; round < kRounds / 2; ++round)
      ASSERT_EQ(loopOver(0, 12, 1,
                         [=](ParallelWorker *worker) {
                           if (status != 0) ParallelWorker_fail(worker, status);
                         }),
                status);
  };
  std::thread second(loopsWithStatus, 5), third(loopsWithStatus, 0);
  loopsWithStatus(7);
  second.join();
  third.join();
}

// Each form by turns, on its own data: a body that runs twice, or after its loop has returned, is a race.
void loopOfEachForm(int rounds, mint mark) {
  for (int round = 0; round < rounds; ++round) {
    std::vector<mint> values(60, -1);
    const auto fill = [](void *closure, ParallelWorker *worker) {
      auto &list = *static_cast<std::vector<mint> *>(closure);
      for (mint i = ParallelWorker_first(worker); i < ParallelWorker_last(worker); ++i)
        list[size_t(i)] += i + 1;
    };
    ASSERT_EQ(round % 2 == 0 ? parallelLoopEven(&values, nullptr, fill, 0, 60, 1)
                             : parallelLoop(&values, nullptr, fill, 0, 60, 1, nullptr),
              0);
    for (mint i = 0; i < 60; ++i) ASSERT_EQ(values[size_t(i)], i) << mark;
    mint visits[4] = {};
    const auto visit = [](void *closure, ParallelWorker *worker) {
      ++static_cast<mint *>(closure)[ParallelWorker_index(worker)];
    };
    ASSERT_EQ(parallelOnEveryWorker(visits, visit, 0), 0);
    const mint all = visits[0] + visits[1] + visits[2] + visits[3];
    ASSERT_TRUE(all == 3 || all == 0) << "every worker, or none while the other thread has the pool";
  }
}

TEST_F(ConcurrentPool, HostThreadsMixLoopsOfAllForms) {
  std::thread other(loopOfEachForm, kRounds / 3, 1);
  loopOfEachForm(kRounds / 3, 2);
  other.join();
}

TEST_F(ConcurrentPool, HostThreadsChangeTheWorkerCountUnderEachOther) {
  std::thread other([] {
    for (int round = 0; round < kRounds / 10; ++round) {
      setWorkerCount(1 + round % 4);
      fillAndCheck(30, round, nullptr);
    }
  });
  for (int round = 0; round < kRounds / 10; ++round) fillAndCheck(30, round, nullptr);
  other.join();
}

TEST_F(ConcurrentPool, CallsOnEveryWorkerAlternateWithLoops) {
  for (int round = 0; round < kRounds; ++round) {
    std::vector<mint> visits(3);
    const auto visit = [](void *closure, ParallelWorker *worker) {
      ++(*static_cast<std::vector<mint> *>(closure))[static_cast<size_t>(ParallelWorker_index(worker))];
    };
    ASSERT_EQ(parallelOnEveryWorker(&visits, visit, 0), 0);
    ASSERT_EQ(visits, (std::vector<mint>{1, 1, 1}));
    fillAndCheck(1 + round % 9, round, nullptr);
  }
}

// Pieces that sleep leave the processor to helpers, which must carry pieces and not repeat their own call.
TEST_F(ConcurrentPool, ThreadsCalledOnEveryWorkerHelpWithTheNextLoop) {
  const ParallelPartition pieces = {kOfSize, 1, 0};
  std::set<std::thread::id> threads;
  std::mutex threadsLock;
  for (int round = 0; round < 10; ++round) {
    std::atomic<int> visits{0}, covered{0};
    const auto visit = [](void *closure, ParallelWorker *) { ++*static_cast<std::atomic<int> *>(closure); };
    ASSERT_EQ(parallelOnEveryWorker(&visits, visit, 0), 0);
    loopOver(
        0, 8, 1,
        [&](ParallelWorker *worker) {
          sleepMilliseconds(1);
          covered += ParallelWorker_last(worker) - ParallelWorker_first(worker);
          const std::lock_guard guard(threadsLock);
          threads.insert(std::this_thread::get_id());
        },
        &pieces);
    ASSERT_EQ(covered, 8);
    ASSERT_EQ(visits, 3);
  }
  EXPECT_GE(threads.size(), 2u) << "or no thread has helped";
}

TEST_F(ConcurrentPool, BlocksOfABodyMayBeFreedByTheCaller) {
  for (int round = 0; round < kRounds / 10; ++round) {
    std::vector<void *> blocks(30);
    loopOver(0, 30, 1, [&](ParallelWorker *worker) {
      for (mint i = ParallelWorker_first(worker); i < ParallelWorker_last(worker); ++i)
        blocks[static_cast<size_t>(i)] = allocate(100 + static_cast<uint32_t>(i), 0, kFatal);
    });
    for (void *block : blocks) free(block);
  }
}

TEST_F(ConcurrentPool, EachLoopMayComeFromAnotherThread) {
  for (int round = 0; round < 50; ++round) onThread([=] { fillAndCheck(40, round, nullptr); });
}

} // namespace
} // namespace torvane::test

// When the pool and its threads are made, kept and destroyed.
#include "pool_fixture.h"
#include "parallel/pool.h"
#include "runtime/memory.h"
#include "support/child_process.h"
#include "support/sanitizers.h"
#include <torvane/startup.h>

#include <atomic>
#include <set>
#include <sys/resource.h>
#include <unistd.h>

namespace torvane::test {
namespace {

std::atomic<int> threadsStarted{0};
std::atomic<uint64_t> indicesSeen{0};
void countStart(ParallelWorker *worker) {
  ++threadsStarted;
  indicesSeen |= uint64_t{1} << ParallelWorker_index(worker); // of at most 40 workers
}

class Pool : public PoolTest {
protected:
  Pool() {
    threadsStarted = 0;
    indicesSeen = 0;
    addWorkerStartHook(countStart);
  }
};

mint runLoop() {
  return loopOver(0, 100, 1, [](ParallelWorker *) {});
}

// Waits for every thread, so that all of them have run their start hooks.
mint visitWorkers() {
  return parallelOnEveryWorker(
      nullptr, [](void *, ParallelWorker *) {}, 0);
}

TEST_F(Pool, IsMadeByTheFirstLoopAndKept) {
  EXPECT_FALSE(poolExists());
  runLoop();
  EXPECT_TRUE(poolExists());
  for (int round = 0; round < 10; ++round) visitWorkers();
  EXPECT_EQ(threadsStarted, 3);
}

TEST_F(Pool, IsKeptWhenPrepareHasSeenOneWorker) {
  visitWorkers();
  const auto prepare = [](void *, ParallelPool *) {};
  const auto body = [](void *, ParallelWorker *) {};
  EXPECT_EQ(parallelLoopEven(nullptr, prepare, body, 0, 10, 10), 0);
  visitWorkers();
  EXPECT_EQ(threadsStarted, 3);
}

TEST_F(Pool, OfOneWorkerHasNoThread) {
  setWorkerCount(1);
  runLoop();
  visitWorkers();
  EXPECT_TRUE(poolExists());
  EXPECT_EQ(threadsStarted, 0);
}

TEST_F(Pool, ChangedCountTakesEffectAtTheNextLoop) {
  visitWorkers();
  setWorkerCount(2);
  EXPECT_EQ(threadsStarted, 3);
  visitWorkers();
  EXPECT_EQ(threadsStarted, 5);
  setWorkerCount(1);
  visitWorkers();
  setWorkerCount(4);
  visitWorkers();
  EXPECT_EQ(threadsStarted, 9);
  EXPECT_EQ(indicesSeen, 0xFu);
}

TEST_F(Pool, CountChangedByABodyWaitsForTheNextLoop) {
  loopOver(0, 3, 1, [](ParallelWorker *) {
    setWorkerCount(5);
    runLoop();
  });
  const int before = threadsStarted;
  EXPECT_LE(before, 3);
  visitWorkers();
  EXPECT_EQ(threadsStarted, 3 + 5);
}

TEST_F(Pool, TeardownEndsItAndTheNextLoopMakesAnother) {
  for (int round = 1; round <= 10; ++round) {
    visitWorkers();
    EXPECT_EQ(threadsStarted, 3 * round);
    tearDownPool();
    EXPECT_FALSE(poolExists());
    addWorkerStartHook(countStart); // teardown has dropped it
  }
}

TEST_F(Pool, TeardownOfTheLibraryEndsIt) {
  visitWorkers();
  kStartupModules[7].tearDown();
  EXPECT_FALSE(poolExists());
}

TEST_F(Pool, ReturnsAllItsMemory) {
  tearDownPool(); // the hook of the fixture too
  free(allocate(8, 0, kFatal));
  const uint32_t before = usedBytesOfThisThread();
  for (const mint workers : {1, 2, 7}) {
    setWorkerCount(workers);
    addWorkerStartHook(countStart);
    const uint32_t withHook = usedBytesOfThisThread();
    runLoop();
    EXPECT_GT(usedBytesOfThisThread(), withHook);
    tearDownPool();
    EXPECT_EQ(usedBytesOfThisThread(), before);
  }
}

std::vector<int> hooksRun;
std::mutex hooksLock;
template <int number> void hook(ParallelWorker *worker) {
  const std::lock_guard guard(hooksLock);
  if (ParallelWorker_index(worker) == 0) hooksRun.push_back(number);
}

TEST_F(Pool, LatestStartHookRunsFirst) {
  hooksRun.clear();
  addWorkerStartHook(hook<1>);
  addWorkerStartHook(hook<2>);
  visitWorkers();
  EXPECT_EQ(hooksRun, (std::vector{2, 1}));
}

std::atomic<int> threadsBegun{0}, threadsEnded{0};
void countBegin() { ++threadsBegun; }
void countEnd() { ++threadsEnded; }

TEST_F(Pool, ThreadsRunTheHooksOfTheLibrarysThreads) {
  threadsBegun = threadsEnded = 0;
  addThreadStartHook(countBegin);
  addThreadExitHook(countEnd);
  visitWorkers();
  EXPECT_EQ(threadsBegun, 3);
  EXPECT_EQ(threadsEnded, 0);
  tearDownPool();
  EXPECT_EQ(threadsEnded, 3);
  tearDownThreadHookLists();
  InitializeRuntimeLibrary();
}

TEST_F(Pool, WorkerKnowsItsOwnThread) {
  std::atomic<int> right{0};
  const auto body = [](void *closure, ParallelWorker *worker) {
    if (worker->ownerThreadId == currentThreadId()) ++*static_cast<std::atomic<int> *>(closure);
  };
  parallelOnEveryWorker(&right, body, 0);
  EXPECT_EQ(right, 3);
}

int niceOfThisThread() { return getpriority(PRIO_PROCESS, 0); }
std::atomic<int> niceOfWorkers{0};

TEST_F(Pool, ThreadsAskForAPriorityTwoStepsAboveTheirCreators) {
  const int own = niceOfThisThread();
  const ChildOutcome child =
      runInChild([=] { endProcess(setpriority(PRIO_PROCESS, 0, own - 2) == 0 ? 42 : 43); });
  niceOfWorkers = 99;
  addWorkerStartHook([](ParallelWorker *) { niceOfWorkers = niceOfThisThread(); });
  visitWorkers();
  EXPECT_EQ(niceOfWorkers, child.status == 42 ? std::max(own - 2, -20) : own);
  EXPECT_EQ(niceOfThisThread(), own);
}

#if !TORVANE_THREAD_SANITIZER // which takes a thread that joins itself for a mistake of its own
// A thread of a pool cannot join itself: the pool that it destroys has to stay, for it is still to be used.
struct Destroying {
  ParallelPool *pool;
  std::atomic<int> outcome{-1};
};

TEST_F(Pool, OfAThreadThatCannotBeJoinedStays) {
  Destroying destroying = {createPool(2)};
  ParallelPool *pool = destroying.pool;
  ParallelWorker *worker = &pool->workers[0];
  const auto body = [](void *closure, ParallelWorker *) {
    auto *self = static_cast<Destroying *>(closure);
    self->outcome = destroyPool(self->pool) ? 1 : 0;
  };
  pool->busyWorkers = 1;
  {
    const LockGuard<Lock> guard(worker->lock);
    worker->seatTask = {0, 0, 1, body, &destroying};
    worker->task = &worker->seatTask;
    worker->ownTask = 1;
  }
  wakeWorker(worker);
  ASSERT_TRUE(joinThread(worker->thread));
  EXPECT_EQ(destroying.outcome, 0);
  EXPECT_EQ(pool->busyWorkers, 0) << "its records are still there";
  free(pool->workersBlock);
  free(pool->block);
}
#endif

TEST_F(Pool, MoreWorkersThanProcessorsAreServed) {
  setWorkerCount(40);
  std::atomic<int> pieces{0};
  loopOver(0, 40, 1, [&](ParallelWorker *worker) {
    pieces += ParallelWorker_index(worker) == ParallelWorker_first(worker) ? 1 : 0;
  });
  EXPECT_EQ(pieces, 40);
  visitWorkers();
  EXPECT_EQ(threadsStarted, 40);
}

#if !TORVANE_THREAD_SANITIZER // its run time cannot start a thread in a forked child
TEST_F(Pool, ForkedChildMakesItsOwn) {
  visitWorkers();
  const ChildOutcome child = runInChild([] {
    threadsStarted = 0;
    std::atomic<int> pieces{0};
    loopOver(0, 3, 1, [&](ParallelWorker *) { ++pieces; });
    visitWorkers();
    setWorkerCount(2);
    visitWorkers();
    tearDownPool();
    if (pieces == 3 && threadsStarted == 5) endProcess(42);
  });
  EXPECT_TRUE(child.exited);
  EXPECT_EQ(child.status, 42);
  EXPECT_EQ(visitWorkers(), 0) << "the parent's is as it was";
  EXPECT_EQ(threadsStarted, 3);
}

// The thread that forks is just making a pool: to the child it looks as if somebody else went on with that.
ProcessHeap forkingHeap = platformProcessHeap;
ChildOutcome forkedMeanwhile;
void *takeAndFork(size_t bytes) {
  processHeap = &platformProcessHeap;
  forkedMeanwhile = runInChild([] {
    alarm(60); // for a child that waits for the other one
    std::atomic<int> indices{0};
    loopOver(0, 3, 1, [&](ParallelWorker *worker) {
      indices += ParallelWorker_last(worker) - ParallelWorker_first(worker);
    });
    if (indices == 3) endProcess(42);
  });
  return platformProcessHeap.take(bytes);
}

TEST_F(Pool, ChildThatIsForkedWhileAPoolIsMadeMakesItsOwn) {
  runLoop();
  setWorkerCount(2);
  forkingHeap.take = takeAndFork; // by the start of the new pool's first thread
  processHeap = &forkingHeap;
  forkedMeanwhile = {};
  runLoop();
  EXPECT_EQ(processHeap.load(), &platformProcessHeap);
  EXPECT_TRUE(forkedMeanwhile.exited);
  EXPECT_EQ(forkedMeanwhile.status, 42);
}
#endif

// Bodies that sleep leave the processor to whoever comes to help.
TEST_F(Pool, ThreadsHelpTheCallerWithLongPieces) {
  setWorkerCount(2);
  std::set<std::thread::id> threads;
  for (int round = 0; round < 1000 && threads.size() < 2; ++round) {
    Recorder recorder;
    loopOver(0, 2, 1, [&](ParallelWorker *worker) {
      sleepMilliseconds(2);
      Recorder::body(&recorder, worker);
    });
    for (const Call &call : recorder.calls()) threads.insert(call.thread);
  }
  EXPECT_EQ(threads.size(), 2u);
  EXPECT_EQ(threads.count(std::this_thread::get_id()), 1u);
}

// Two bodies that wait for each other can only end on two threads.
TEST_F(Pool, EveryWorkerIsAtWorkAtTheSameTime) {
  for (int round = 0; round < 20; ++round) {
    std::atomic<int> arrived{0};
    const auto body = [](void *closure, ParallelWorker *) {
      auto &count = *static_cast<std::atomic<int> *>(closure);
      for (++count; count < 3;) std::this_thread::yield();
    };
    EXPECT_EQ(parallelOnEveryWorker(&arrived, body, 0), 0);
  }
}

} // namespace
} // namespace torvane::test

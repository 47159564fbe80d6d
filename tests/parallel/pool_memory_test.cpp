// The pool where memory or threads are short: a loop covers its range with the threads that there are, and
// with none at all on its caller's.
#include "pool_fixture.h"

#include "runtime/memory.h"
#include "support/failing_heap.h"
#include "support/heap_walker.h"
#include "support/memory_sweep.h"

#include <functional>
#include <set>

namespace torvane::test {
namespace {

constexpr mint kWorkers = 4;

// Calls of bodies, by index and by worker.
struct Visits {
  std::atomic<int> ofIndex[100] = {}, ofWorker[kWorkers] = {};

  bool areOneEach() const {
    const auto isOne = [](const std::atomic<int> &count) { return count == 1; };
    return std::all_of(std::begin(ofIndex), std::end(ofIndex), isOne) &&
           std::all_of(std::begin(ofWorker), std::end(ofWorker), isOne);
  }
  // A loop in pieces, and a call for each worker.
  mint make() {
    const mint status = loopOver(0, 100, 1, [this](ParallelWorker *worker) {
      for (mint i = ParallelWorker_first(worker); i < ParallelWorker_last(worker); ++i) ++ofIndex[i];
    });
    const auto body = [](void *closure, ParallelWorker *worker) {
      ++static_cast<Visits *>(closure)->ofWorker[ParallelWorker_index(worker)];
    };
    return status != 0 ? status : parallelOnEveryWorker(this, body, 0);
  }
};

class ShortPool : public PoolTest {
protected:
  ShortPool() { setWorkerCount(kWorkers); }
  // Gives the pool's blocks to the thread's heap, so that a thread's start is the first request of a new
  // pool.
  static void warmUp() {
    Visits().make();
    tearDownPool();
  }
  static mint threadsOfPool() {
    ParallelPool *pool = enterPool(true);
    const auto count = std::count_if(pool->workers, pool->workers + kWorkers,
                                     [](const ParallelWorker &worker) { return worker.hasThread != 0; });
    leavePool(pool);
    return static_cast<mint>(count);
  }
};

#define TORVANE_EXPECT_VISITS()                                                                              \
  do {                                                                                                       \
    Visits visits;                                                                                           \
    EXPECT_EQ(visits.make(), 0);                                                                             \
    EXPECT_TRUE(visits.areOneEach());                                                                        \
  } while (false)

TEST_F(ShortPool, OfNoThreadIsServedByItsCaller) {
  warmUp();
  const uint32_t used = usedBytesOfThisThread();
  FailingHeap heap;
  heap.failFrom(1);
  std::set<std::thread::id> threads;
  for (int round = 0; round < 3; ++round) TORVANE_EXPECT_VISITS();
  loopOver(0, 100, 1, [&](ParallelWorker *) { threads.insert(std::this_thread::get_id()); });
  EXPECT_EQ(threads, std::set{std::this_thread::get_id()});
  EXPECT_EQ(threadsOfPool(), 0);
  heap.succeed();
  tearDownPool();
  EXPECT_EQ(usedBytesOfThisThread(), used);
  EXPECT_TRUE(isValidHere());
}

TEST_F(ShortPool, OfSomeThreadsIsServedByThemAndItsCaller) {
  warmUp();
  for (int64_t k = 1; k <= kWorkers; ++k) {
    FailingHeap heap;
    heap.failRequest(k);
    for (int round = 0; round < 30; ++round) TORVANE_EXPECT_VISITS();
    EXPECT_TRUE(heap.failed());
    EXPECT_EQ(threadsOfPool(), kWorkers - 1);
    tearDownPool();
    EXPECT_EQ(heap.blocksOut(), 0);
  }
}

// Without memory for the start of a thread.
const ProcessHeap kNoStarts = [] {
  ProcessHeap heap = platformProcessHeap;
  heap.take = [](size_t bytes) { return bytes < 64 ? nullptr : platformProcessHeap.take(bytes); };
  return heap;
}();

TEST_F(ShortPool, HasNoMoreWorkersThanAMachineHasWhateverIsAsked) {
  setWorkerCount(INT32_MAX);
  processHeap = &kNoStarts;
  mint workers = 0;
  const auto prepare = [](void *closure, ParallelPool *pool) {
    *static_cast<mint *>(closure) = ParallelPool_workerCount(pool);
  };
  parallelLoop(
      &workers, prepare, [](void *, ParallelWorker *) {}, 0, 10, 1, nullptr);
  processHeap = &platformProcessHeap;
  EXPECT_EQ(workers, 4096);
  tearDownPool();
  EXPECT_TRUE(isValidHere());
}

// A thread that was refused is not asked for again until the count changes.
TEST_F(ShortPool, GetsItsThreadsOnceItIsMadeAnew) {
  warmUp();
  {
    FailingHeap heap;
    heap.failFrom(1);
    TORVANE_EXPECT_VISITS();
  }
  TORVANE_EXPECT_VISITS();
  EXPECT_EQ(threadsOfPool(), 0);
  setWorkerCount(2);
  loopOver(0, 2, 1, [](ParallelWorker *) {});
  setWorkerCount(kWorkers);
  TORVANE_EXPECT_VISITS();
  EXPECT_EQ(threadsOfPool(), kWorkers);
}

// Records and threads of a pool are requests, and so is its hook: the first is fatal, the threads are done
// without.
TEST_F(ShortPool, WithoutMemoryEndsTheProcessOrGoesOnWithFewerThreads) {
  Visits *visits = nullptr;
  const SweepOutcome outcome = sweepMemory(
      {"a loop that makes the pool", [&] { visits = new Visits; }, [&] { return visits->make(); },
       [](mint) { return false; }, [] { return std::string(); }, [&] { return visits->areOneEach(); },
       [&] {
         tearDownPool();
         delete visits;
       }},
      SweepKind::cold);
  EXPECT_EQ(outcome.faults, "");
  EXPECT_EQ(outcome.refused, 0);
  EXPECT_GE(outcome.ended, 2) << "the pool's block and that of its workers";
  // What an ended thread left may serve the next one, which then asks for less: not every start need be met.
  EXPECT_GE(outcome.requests - outcome.ended, 1) << "the start of a thread";
  EXPECT_LE(outcome.requests - outcome.ended, kWorkers);
}

} // namespace
} // namespace torvane::test

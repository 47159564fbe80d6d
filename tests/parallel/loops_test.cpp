// What a parallel loop promises its caller and its bodies.
#include "parallel/first_failure.h"
#include "parallel/pool.h"
#include "pool_fixture.h"
#include "runtime/memory.h"
#include <torvane/exception.hpp>
#include <torvane/failure.h>

#include <atomic>
#include <climits>
#include <set>

namespace torvane::test {
namespace {

using ParallelLoop = PoolTest;
using EvenLoop = PoolTest;
using EveryWorker = PoolTest;

const std::vector<Call> kOneCallOf10 = {{0, 10, 0, {}}};

bool allOnThisThread(const std::vector<Call> &calls) {
  return std::all_of(calls.begin(), calls.end(),
                     [](const Call &call) { return call.thread == std::this_thread::get_id(); });
}

mint record(Recorder *recorder, mint first, mint last, mint grain,
            const ParallelPartition *partition = nullptr) {
  return parallelLoop(recorder, nullptr, Recorder::body, first, last, grain, partition);
}

TEST_F(ParallelLoop, EmptyRangeReturnsZeroAndMakesNoPool) {
  Recorder recorder;
  EXPECT_EQ(record(&recorder, 5, 5, 1), 0);
  EXPECT_EQ(record(&recorder, 5, 4, 0), 0) << "whatever the grain";
  EXPECT_EQ(record(&recorder, INT_MAX, INT_MIN, 1), 0);
  EXPECT_TRUE(recorder.calls().empty());
  EXPECT_FALSE(poolExists());
}

TEST_F(ParallelLoop, GrainBelowOneIsStatusFourAndMakesNoPool) {
  Recorder recorder;
  EXPECT_EQ(record(&recorder, 0, 5, 0), 4);
  EXPECT_EQ(record(&recorder, 0, 5, INT_MIN), 4);
  EXPECT_EQ(parallelLoopEven(&recorder, nullptr, Recorder::body, 0, 5, 0), 4);
  EXPECT_TRUE(recorder.calls().empty());
  EXPECT_FALSE(poolExists());
}

TEST_F(ParallelLoop, OneWorkerRunsTheWholeRangeOnTheCallersThread) {
  for (const mint workers : {1, 0, -7}) {
    setWorkerCount(workers);
    Recorder recorder;
    EXPECT_EQ(record(&recorder, 0, 10, 1), 0);
    EXPECT_EQ(recorder.calls(), kOneCallOf10);
    EXPECT_TRUE(allOnThisThread(recorder.calls()));
  }
}

TEST_F(ParallelLoop, WithoutAPartitionPieceKIsWorkerKs) {
  const std::vector<Call> wanted = {{0, 3, 0, {}}, {3, 6, 1, {}}, {6, 10, 2, {}}};
  for (int round = 0; round < 200; ++round) {
    Recorder recorder, two;
    EXPECT_EQ(record(&two, 0, 2, 1), 0);
    EXPECT_EQ(record(&recorder, 0, 10, 1), 0);
    ASSERT_EQ(recorder.calls(), wanted);
  }
}

TEST_F(ParallelLoop, FewerIndicesThanWorkersLeaveWorkersOut) {
  Recorder recorder;
  EXPECT_EQ(record(&recorder, 8, 10, 1), 0);
  EXPECT_EQ(recorder.calls(), (std::vector<Call>{{8, 9, 0, {}}, {9, 10, 1, {}}}));
}

TEST_F(ParallelLoop, RangeOfAllIntegersReachesTheBodiesWhole) {
  setWorkerCount(2);
  Recorder recorder;
  EXPECT_EQ(record(&recorder, INT_MIN, INT_MAX, 1), 0);
  EXPECT_EQ(recorder.calls(), (std::vector<Call>{{INT_MIN, -1, 0, {}}, {-1, INT_MAX, 1, {}}}));
}

TEST_F(ParallelLoop, EveryIndexIsCoveredOnceUnderEveryPartition) {
  for (mint kind = 0; kind <= 5; ++kind)
    for (const mint size : {1, 7, 40}) {
      const ParallelPartition partition = {kind, size, 0};
      std::vector<std::atomic<int>> seen(1000);
      loopOver(
          0, 1000, 3,
          [&](ParallelWorker *worker) {
            for (mint i = ParallelWorker_first(worker); i < ParallelWorker_last(worker); ++i)
              seen[static_cast<size_t>(i)].fetch_add(1, std::memory_order_relaxed);
          },
          &partition);
      for (const auto &times : seen) ASSERT_EQ(times, 1) << kind << " " << size;
    }
}

TEST_F(ParallelLoop, PartitionForcedSerialRunsOnce) {
  ParallelPartition *serial = ParallelPartition_serial();
  Recorder recorder;
  EXPECT_EQ(record(&recorder, 0, 10, 1, serial), 0);
  EXPECT_EQ(recorder.calls(), kOneCallOf10);
  EXPECT_TRUE(allOnThisThread(recorder.calls()));
  torvane::free(serial);
}

TEST_F(ParallelLoop, RangeThatDoesNotExceedThePartitionsSizeRunsOnce) {
  ParallelPartition partition = {kAtLeast, 10, 0};
  Recorder short10, long11;
  EXPECT_EQ(record(&short10, 0, 10, 1, &partition), 0);
  EXPECT_EQ(short10.calls(), kOneCallOf10);
  EXPECT_EQ(record(&long11, 0, 11, 1, &partition), 0);
  EXPECT_EQ(long11.calls().size(), 2u);
  EXPECT_EQ(partition.size, 10);
}

TEST_F(ParallelLoop, LoopLeavesThePartitionAsItWas) {
  ParallelPartition partition = {kOfSize, 9, 0};
  Recorder recorder;
  record(&recorder, 0, 1000, 4, &partition);
  EXPECT_EQ(partition.kind, 2);
  EXPECT_EQ(partition.size, 9) << "9 is no multiple of 4: 8 was used";
  EXPECT_EQ(partition.forceSerial, 0);
  EXPECT_EQ(recorder.calls().size(), 125u);
}

TEST_F(ParallelLoop, PrepareRunsOnceBeforeThePiecesAndSeesTheWorkers) {
  struct Closure {
    mint prepared = 0, workers = 0;
    std::atomic<mint> early{0};
  } closure;
  const auto prepare = [](void *c, ParallelPool *pool) {
    ++static_cast<Closure *>(c)->prepared;
    static_cast<Closure *>(c)->workers = ParallelPool_workerCount(pool);
  };
  const auto body = [](void *c, ParallelWorker *) {
    if (static_cast<Closure *>(c)->prepared != 1) ++static_cast<Closure *>(c)->early;
  };
  EXPECT_EQ(parallelLoop(&closure, prepare, body, 0, 100, 1, nullptr), 0);
  EXPECT_EQ(closure.prepared, 1);
  EXPECT_EQ(closure.workers, 3);
  EXPECT_EQ(closure.early, 0);
}

TEST_F(ParallelLoop, PrepareRunsOnceWhereTheLoopIsSerialToo) {
  mint prepared = 0;
  const auto prepare = [](void *c, ParallelPool *) { ++*static_cast<mint *>(c); };
  const auto body = [](void *, ParallelWorker *) {};
  const ParallelPartition serial = {kAtLeast, 1, 1}, tooShort = {kOfSize, 100, 0};
  parallelLoop(&prepared, prepare, body, 0, 50, 1, &serial);
  EXPECT_EQ(prepared, 1) << "forced";
  parallelLoop(&prepared, prepare, body, 0, 50, 1, &tooShort);
  EXPECT_EQ(prepared, 2) << "too short";
  loopOver(0, 1, 1, [&](ParallelWorker *) { parallelLoop(&prepared, prepare, body, 0, 50, 1, nullptr); });
  EXPECT_EQ(prepared, 3) << "nested";
  setWorkerCount(1);
  parallelLoop(&prepared, prepare, body, 0, 50, 1, nullptr);
  EXPECT_EQ(prepared, 4) << "one worker";
  parallelLoop(&prepared, prepare, body, 50, 50, 1, nullptr);
  EXPECT_EQ(prepared, 4) << "nothing to do";
}

TEST_F(ParallelLoop, StatusOfAFailedPieceIsTheResultAndTheOthersRun) {
  const ParallelPartition grains = {kOfSize, 1, 0};
  std::atomic<int> pieces{0};
  const mint status = loopOver(
      0, 100, 1,
      [&](ParallelWorker *worker) {
        ++pieces;
        if (ParallelWorker_first(worker) == 40) ParallelWorker_fail(worker, 77);
      },
      &grains);
  EXPECT_EQ(status, 77);
  EXPECT_EQ(pieces, 100);
}

TEST_F(ParallelLoop, LastFailureWins) {
  ParallelPartition *serial = ParallelPartition_serial();
  const auto body = [](ParallelWorker *worker) {
    ParallelWorker_fail(worker, 5);
    ParallelWorker_fail(worker, 6);
  };
  EXPECT_EQ(loopOver(0, 10, 1, body, serial), 6);
  EXPECT_EQ(loopOver(0, 1, 1, body), 6);
  torvane::free(serial);
}

TEST_F(ParallelLoop, FailureIsForgottenByTheNextLoop) {
  const auto fail = [](ParallelWorker *worker) { ParallelWorker_fail(worker, 9); };
  Recorder recorder;
  EXPECT_EQ(loopOver(0, 10, 1, fail), 9);
  EXPECT_EQ(record(&recorder, 0, 10, 1), 0);
  setWorkerCount(1);
  EXPECT_EQ(loopOver(0, 10, 1, fail), 9);
  EXPECT_EQ(record(&recorder, 0, 10, 1), 0);
}

TEST_F(ParallelLoop, LoopInsideABodyRunsOnceOnTheBodysThread) {
  std::atomic<int> right{0};
  loopOver(0, 3, 1, [&](ParallelWorker *) {
    Recorder inner;
    record(&inner, 0, 10, 1);
    if (inner.calls() == kOneCallOf10 && allOnThisThread(inner.calls())) ++right;
  });
  EXPECT_EQ(right, 3);
}

TEST_F(ParallelLoop, LoopInsideABodyReturnsItsOwnStatus) {
  std::atomic<mint> failing{0}, fine{-1};
  const mint outer = loopOver(0, 3, 1, [&](ParallelWorker *worker) {
    if (ParallelWorker_index(worker) == 1) ParallelWorker_fail(worker, 40);
    failing = loopOver(0, 5, 1, [](ParallelWorker *inner) { ParallelWorker_fail(inner, 41); });
    fine = loopOver(0, 5, 1, [](ParallelWorker *) {});
  });
  EXPECT_EQ(failing, 41);
  EXPECT_EQ(fine, 0);
  EXPECT_EQ(outer, 40) << "the inner loops neither add to the outer one's failure nor take it away";
}

// Whatever the outer and the inner loop are.
mint loopOfForm(int form, void *closure, ParallelBody body) {
  if (form == 0) return parallelLoop(closure, nullptr, body, 0, 10, 1, nullptr);
  if (form == 1) return parallelLoopEven(closure, nullptr, body, 0, 10, 1);
  return parallelOnEveryWorker(closure, body, 0);
}
struct Nesting {
  int inner;
  std::atomic<int> wrong{0}, bodies{0};
};
void nest(void *closure, ParallelWorker *) {
  auto *self = static_cast<Nesting *>(closure);
  Recorder inner;
  const mint status = loopOfForm(self->inner, &inner, Recorder::body);
  const bool isRight = self->inner == 2 ? inner.calls().empty() : inner.calls() == kOneCallOf10;
  if (status != 0 || !isRight || !allOnThisThread(inner.calls())) ++self->wrong;
  ++self->bodies;
}

TEST_F(ParallelLoop, LoopsOfEveryFormAreRefusedThePoolInsideOnesOfEveryForm) {
  for (const int outer : {0, 1, 2})
    for (const int inner : {0, 1, 2}) {
      Nesting nesting = {inner};
      EXPECT_EQ(loopOfForm(outer, &nesting, nest), 0);
      EXPECT_EQ(nesting.wrong, 0) << inner << " in " << outer;
      EXPECT_EQ(nesting.bodies, 3);
    }
}

TEST_F(ParallelLoop, LoopIsRunningWhileItsBodiesAre) {
  EXPECT_FALSE(parallelLoopIsRunning());
  std::atomic<int> running{0};
  loopOver(0, 3, 1, [&](ParallelWorker *) { running += parallelLoopIsRunning() ? 1 : 0; });
  EXPECT_EQ(running, 3);
  EXPECT_FALSE(parallelLoopIsRunning());
}

TEST_F(ParallelLoop, RaisedExceptionBecomesTheStatusOnEveryPath) {
  const auto raise = [](ParallelWorker *worker) {
    if (ParallelWorker_first(worker) == 0) throw TorvaneRuntimeException(14);
  };
  EXPECT_EQ(loopOver(0, 9, 1, raise), 14);
  setWorkerCount(1);
  EXPECT_EQ(loopOver(0, 9, 1, raise), 14);
  Recorder recorder;
  EXPECT_EQ(record(&recorder, 0, 10, 1), 0) << "the pool is free again";
}

TEST_F(ParallelLoop, ExceptionOutOfPrepareLeavesThePoolFree) {
  const auto prepare = [](void *, ParallelPool *) { throw TorvaneRuntimeException(3); };
  Recorder recorder;
  EXPECT_THROW(parallelLoop(&recorder, prepare, Recorder::body, 0, 9, 1, nullptr), TorvaneRuntimeException);
  EXPECT_FALSE(parallelLoopIsRunning());
  EXPECT_TRUE(recorder.calls().empty());
}

// A body that catches what is raised in it, as bodies do. Styles 1 and 2 are for one raising thread at a
// time.
struct Raising {
  void (*function)(void *, void *);
  static void raise(void *, void *) { throwTorvaneException(14); }
};

mint caughtCode() {
  Raising record = {Raising::raise};
  Raising *pointer = &record;
  CompilerError *error = catchExceptionHandler(nullptr, &pointer);
  const mint code = error == nullptr ? 0 : error->code;
  Delete_CompilerError(error);
  return code;
}

TEST_F(ParallelLoop, BodiesCarryWhatTheyCatchInEachExceptionStyle) {
  for (const mint style : {0, 1, 2}) {
    setExceptionStyle(style);
    const mint status = loopOver(0, 90, 1, [](ParallelWorker *worker) {
      if (ParallelWorker_first(worker) == 30) ParallelWorker_fail(worker, 1000 + caughtCode());
    });
    EXPECT_EQ(status, 1014) << style;
    EXPECT_EQ(getExceptionActive(), 0);
  }
  setExceptionStyle(1);
}

// A kernel's loop: element i fails if `fails`, everything before the failing element of a piece is written,
// and a piece behind a known failure is dropped.
struct Kernel {
  std::vector<char> fails;
  std::vector<std::atomic<char>> written;
  FirstFailure failure;

  explicit Kernel(size_t count) : fails(count), written(count) {}
  static void body(void *closure, ParallelWorker *worker) {
    auto *self = static_cast<Kernel *>(closure);
    if (self->failure.isBefore(ParallelWorker_first(worker))) return;
    for (mint i = ParallelWorker_first(worker); i < ParallelWorker_last(worker); ++i) {
      if (self->fails[static_cast<size_t>(i)] != 0) return self->failure.at(i);
      self->written[static_cast<size_t>(i)].store(1, std::memory_order_relaxed);
    }
  }
};

TEST_F(ParallelLoop, SmallestFailingPositionIsFoundAndEverythingBeforeItIsWritten) {
  constexpr mint kCount = 3000;
  const ParallelPartition pieces = {kOfSize, 100, 0};
  const std::vector<std::vector<mint>> failing = {
      {0}, {2999}, {100, 99}, {1500, 2999, 2000}, {700, 701, 699, 2998}};
  for (int round = 0; round < 20; ++round)
    for (const auto &positions : failing)
      for (const ParallelPartition *partition : {static_cast<const ParallelPartition *>(nullptr), &pieces}) {
        Kernel kernel(kCount);
        for (const mint at : positions) kernel.fails[static_cast<size_t>(at)] = 1;
        EXPECT_EQ(parallelLoop(&kernel, nullptr, Kernel::body, 0, kCount, 1, partition), 0);
        const mint smallest = *std::min_element(positions.begin(), positions.end());
        ASSERT_EQ(kernel.failure.outcome(), smallest + 1);
        for (mint i = 0; i < smallest; ++i) ASSERT_EQ(kernel.written[static_cast<size_t>(i)], 1) << i;
      }
}

TEST(FirstFailure, HoldsTheSmallestPosition) {
  FirstFailure failure;
  EXPECT_EQ(failure.outcome(), 0);
  EXPECT_FALSE(failure.isBefore(INT_MAX));
  failure.at(INT_MAX - 1);
  EXPECT_EQ(failure.outcome(), INT_MAX);
  failure.at(7);
  failure.at(8);
  EXPECT_EQ(failure.outcome(), 8);
  EXPECT_TRUE(failure.isBefore(8));
  EXPECT_FALSE(failure.isBefore(7)) << "the piece that starts at the failure has to find it";
}

TEST_F(EvenLoop, PieceKIsWorkerKsAndStartsAtAMultiple) {
  Recorder recorder;
  EXPECT_EQ(parallelLoopEven(&recorder, nullptr, Recorder::body, 0, 100, 10), 0);
  EXPECT_EQ(recorder.calls(), (std::vector<Call>{{0, 36, 0, {}}, {36, 72, 1, {}}, {72, 100, 2, {}}}));
}

TEST_F(EvenLoop, LessThanAGrainAWorkerRunsOnceOnTheCallersThread) {
  Recorder serial, parallel;
  EXPECT_EQ(parallelLoopEven(&serial, nullptr, Recorder::body, 0, 10, 4), 0);
  EXPECT_EQ(serial.calls(), kOneCallOf10);
  EXPECT_TRUE(allOnThisThread(serial.calls()));
  EXPECT_EQ(parallelLoopEven(&parallel, nullptr, Recorder::body, 0, 12, 4), 0);
  EXPECT_EQ(parallel.calls().size(), 3u);
}

TEST_F(EvenLoop, EmptyRangeReturnsZero) {
  Recorder recorder;
  EXPECT_EQ(parallelLoopEven(&recorder, nullptr, Recorder::body, 3, 3, 1), 0);
  EXPECT_TRUE(recorder.calls().empty());
  EXPECT_FALSE(poolExists());
}

TEST_F(EvenLoop, PrepareSeesOneWorkerWhenTheLoopWillRunSerially) {
  mint seen = 0;
  const auto prepare = [](void *c, ParallelPool *pool) {
    *static_cast<mint *>(c) = ParallelPool_workerCount(pool);
  };
  const auto body = [](void *, ParallelWorker *) {};
  parallelLoopEven(&seen, prepare, body, 0, 12, 4);
  EXPECT_EQ(seen, 3);
  parallelLoopEven(&seen, prepare, body, 0, 11, 4);
  EXPECT_EQ(seen, 1);
  parallelLoopEven(&seen, prepare, body, 0, 12, 4);
  EXPECT_EQ(seen, 3) << "restored";
  loopOver(0, 1, 1, [&](ParallelWorker *) { parallelLoopEven(&seen, prepare, body, 0, 12, 4); });
  EXPECT_EQ(seen, 1);
}

TEST_F(EvenLoop, FailedPieceIsTheResult) {
  const auto body = [](void *, ParallelWorker *worker) {
    if (ParallelWorker_index(worker) == 2) ParallelWorker_fail(worker, 8);
  };
  EXPECT_EQ(parallelLoopEven(nullptr, nullptr, body, 0, 99, 1), 8);
}

mint onEveryWorker(Recorder *recorder, mint flags) {
  return parallelOnEveryWorker(recorder, Recorder::body, flags);
}

TEST_F(EveryWorker, EachWorkerIsCalledOnceOnItsOwnThread) {
  std::set<std::thread::id> threads[3];
  for (int round = 0; round < 20; ++round) {
    Recorder recorder;
    EXPECT_EQ(onEveryWorker(&recorder, 0), 0);
    ASSERT_EQ(recorder.calls().size(), 3u);
    for (mint k = 0; k < 3; ++k) {
      ASSERT_EQ(recorder.calls()[static_cast<size_t>(k)].index, k);
      threads[k].insert(recorder.calls()[static_cast<size_t>(k)].thread);
    }
  }
  for (const auto &own : threads) EXPECT_EQ(own.size(), 1u);
  EXPECT_NE(*threads[0].begin(), *threads[1].begin());
  EXPECT_NE(*threads[1].begin(), *threads[2].begin());
  EXPECT_EQ(threads[0].count(std::this_thread::get_id()), 0u);
}

TEST_F(EveryWorker, OneWorkerIsTheCallerUnlessThatIsToBeSkipped) {
  setWorkerCount(1);
  Recorder called, skipped;
  EXPECT_EQ(onEveryWorker(&called, 0), 0);
  ASSERT_EQ(called.calls().size(), 1u);
  EXPECT_TRUE(allOnThisThread(called.calls()));
  EXPECT_EQ(onEveryWorker(&skipped, kNotForOneWorker), 0);
  EXPECT_TRUE(skipped.calls().empty());
}

TEST_F(EveryWorker, AskingForTheExistingPoolMakesNoneAndIsStatusFourWithoutOne) {
  Recorder recorder;
  EXPECT_EQ(onEveryWorker(&recorder, kExistingPoolOnly), 4);
  EXPECT_FALSE(poolExists());
  EXPECT_TRUE(recorder.calls().empty());
}

TEST_F(EveryWorker, ExistingPoolIsUsedAsItIsWhateverTheCountNow) {
  Recorder first, second;
  onEveryWorker(&first, 0);
  setWorkerCount(5);
  EXPECT_EQ(onEveryWorker(&second, kExistingPoolOnly), 0);
  EXPECT_EQ(second.calls().size(), 3u);
}

TEST_F(EveryWorker, InsideALoopItDoesNothing) {
  Recorder recorder;
  std::atomic<mint> sum{0};
  loopOver(0, 3, 1, [&](ParallelWorker *) {
    sum += onEveryWorker(&recorder, 0) + onEveryWorker(&recorder, kExistingPoolOnly);
  });
  EXPECT_EQ(sum, 0);
  EXPECT_TRUE(recorder.calls().empty());
}

TEST_F(EveryWorker, FailureOfOneIsTheResult) {
  const auto body = [](void *, ParallelWorker *worker) {
    if (ParallelWorker_index(worker) == 1) ParallelWorker_fail(worker, 12);
  };
  EXPECT_EQ(parallelOnEveryWorker(nullptr, body, 0), 12);
  setWorkerCount(1);
  const auto failing = [](void *, ParallelWorker *worker) { ParallelWorker_fail(worker, 13); };
  EXPECT_EQ(parallelOnEveryWorker(nullptr, failing, 0), 13);
}

} // namespace
} // namespace torvane::test

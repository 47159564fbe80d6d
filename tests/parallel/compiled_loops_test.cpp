// The exported loops over a compiled function.
#include "parallel/parallel.h"
#include "runtime/memory.h"
#include "runtime/platform_thread.h"
#include <torvane/exception.hpp>
#include <torvane/failure.h>
#include <torvane/parallel.h>

#include <gtest/gtest.h>

#include <atomic>
#include <climits>
#include <mutex>
#include <numeric>
#include <set>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace torvane;

namespace {

std::vector<mint> visited;
void visit(mint i) { visited.push_back(i); }
void visitClosure(void *closure, mint i) { static_cast<std::vector<mint> *>(closure)->push_back(i); }

std::vector<mint> visitedBy(mint first, mint last) {
  visited.clear();
  EXPECT_EQ(NonParallelDo(visit, first, last), 0);
  std::vector<mint> closed;
  EXPECT_EQ(NonParallelDo_Closure(&closed, visitClosure, first, last), 0);
  EXPECT_EQ(closed, visited);
  return visited;
}

TEST(SerialDo, CallsInOrderBothEndsIncluded) {
  EXPECT_EQ(visitedBy(-2, 2), (std::vector<mint>{-2, -1, 0, 1, 2}));
  EXPECT_EQ(visitedBy(3, 3), std::vector<mint>{3});
}

TEST(SerialDo, CallsNothingWhenFirstExceedsLast) {
  EXPECT_TRUE(visitedBy(3, 2).empty());
  EXPECT_TRUE(visitedBy(INT_MAX, INT_MIN).empty());
}

TEST(SerialDo, EndsAtTheLargestIntegerAndBeginsAtTheSmallest) {
  EXPECT_EQ(visitedBy(INT_MAX - 1, INT_MAX), (std::vector<mint>{INT_MAX - 1, INT_MAX}));
  EXPECT_EQ(visitedBy(INT_MIN, INT_MIN + 1), (std::vector<mint>{INT_MIN, INT_MIN + 1}));
}

TEST(SerialDo, RaiseOfTheFunctionPassesThrough) {
  visited.clear();
  const auto raise = [](mint i) {
    if (i == 2) throw TorvaneRuntimeException(14);
    visited.push_back(i);
  };
  EXPECT_THROW(NonParallelDo(raise, 0, 5), TorvaneRuntimeException);
  EXPECT_EQ(visited, (std::vector<mint>{0, 1}));
}

// Threads that a function has been called on.
std::mutex threadsLock;
std::set<std::thread::id> threads;
int64_t noteThread(int64_t x) {
  const std::lock_guard guard(threadsLock);
  threads.insert(std::this_thread::get_id());
  return x;
}

constexpr int64_t kUnwritten = -1;
int64_t function(int64_t x) { return 3 * x + 7; }

struct ConcurrentMap : testing::Test {
  std::vector<int64_t> source, target;

  void fill(size_t count) {
    source.resize(count);
    std::iota(source.begin(), source.end(), 0);
    target.assign(count, kUnwritten);
  }
  mint map(int64_t (*f)(int64_t)) {
    return parallel_for_Integer64_Integer64(source.data(), static_cast<int64_t>(source.size()), target.data(),
                                            f);
  }
  size_t taskSize() const {
    const auto tasks = static_cast<size_t>(systemProcessorCount());
    return ((source.size() - 1) / tasks / 64 + 1) * 64;
  }
};

TEST_F(ConcurrentMap, EveryElementIsMappedAtEveryLength) {
  for (const size_t count :
       {0u, 1u, 63u, 4095u, 4096u, 4097u, 4160u, 8191u, 8192u, 8193u, 100003u, 1000000u}) {
    fill(count);
    ASSERT_EQ(map(function), 0);
    for (size_t i = 0; i < count; ++i) ASSERT_EQ(target[i], function(static_cast<int64_t>(i))) << count;
  }
}

TEST_F(ConcurrentMap, VectorMayBeMappedOntoItself) {
  for (const size_t count : {100u, 50000u}) {
    fill(count);
    ASSERT_EQ(
        parallel_for_Integer64_Integer64(source.data(), static_cast<int64_t>(count), source.data(), function),
        0);
    for (size_t i = 0; i < count; ++i) ASSERT_EQ(source[i], function(static_cast<int64_t>(i)));
  }
}

TEST_F(ConcurrentMap, NegativeLengthIsEighteenAndTouchesNothing) {
  fill(10);
  for (const int64_t count : {int64_t{-1}, int64_t{INT_MIN}, int64_t{0x80000000}, int64_t{0xFFFFFFFF}})
    EXPECT_EQ(parallel_for_Integer64_Integer64(source.data(), count, target.data(), function), 18);
  EXPECT_EQ(target, std::vector<int64_t>(10, kUnwritten));
}

TEST_F(ConcurrentMap, LowHalfOfTheLengthCounts) {
  fill(10);
  EXPECT_EQ(parallel_for_Integer64_Integer64(source.data(), (int64_t{1} << 32) + 3, target.data(), function),
            0);
  EXPECT_EQ(parallel_for_Integer64_Integer64(nullptr, int64_t{1} << 32, nullptr, function), 0);
  EXPECT_EQ(target[2], function(2));
  EXPECT_EQ(target[3], kUnwritten);
  EXPECT_EQ(parallel_for_Integer64_Integer64(source.data(), INT64_MIN + 4, target.data(), function), 0);
  EXPECT_EQ(target[3], function(3));
}

int64_t noteAndSleep(int64_t x) {
  noteThread(x);
  if (x % 512 == 0) sleepMilliseconds(1);
  return x;
}

TEST_F(ConcurrentMap, FewerThan4096RunOnTheCallingThread) {
  threads.clear();
  fill(4095);
  for (int round = 0; round < 20; ++round) map(noteAndSleep);
  EXPECT_EQ(threads, std::set{std::this_thread::get_id()});
}

TEST_F(ConcurrentMap, From4096OnOtherThreadsTakePart) {
  if (systemProcessorCount() < 2) GTEST_SKIP() << "one processor, one task";
  threads.clear();
  fill(4096);
  for (int round = 0; round < 1000 && threads.size() < 2; ++round) map(noteAndSleep);
  EXPECT_GE(threads.size(), 2u);
}

// Elements at which the function raises, with their own index as the code.
std::set<int64_t> raising;
int64_t raiseAt(int64_t x) {
  if (raising.count(x) != 0) throw TorvaneRuntimeException(static_cast<mint>(x));
  return function(x);
}

TEST_F(ConcurrentMap, CodeOfTheSmallestFailingIndexIsTheResult) {
  for (const size_t count : {3000u, 4096u, 100000u})
    for (const std::set<int64_t> &at :
         {std::set<int64_t>{1}, {int64_t(count) - 1}, {700, 2900}, {2999, 2998, 64}}) {
      raising = at;
      fill(count);
      ASSERT_EQ(map(raiseAt), static_cast<mint>(*at.begin()));
    }
}

// So the tasks show where they begin: at multiples of 64.
TEST_F(ConcurrentMap, RaiseEndsItsTaskAndNoOther) {
  for (const int64_t count : {8192, 8193, 9001}) {
    fill(static_cast<size_t>(count));
    const auto task = static_cast<int64_t>(taskSize());
    EXPECT_EQ(task % 64, 0);
    raising = {10, task - 1};
    EXPECT_EQ(map(raiseAt), 10);
    for (int64_t i = 0; i < count; ++i)
      ASSERT_EQ(target[static_cast<size_t>(i)], i >= 10 && i < task ? kUnwritten : function(i)) << i;
  }
}

TEST_F(ConcurrentMap, CodeZeroCountsAsNone) {
  for (const size_t count : {100u, 5000u}) {
    fill(count);
    raising = {0};
    EXPECT_EQ(map(raiseAt), 0);
    EXPECT_EQ(target[0], kUnwritten);
  }
}

int64_t throwOther(int64_t x) { return x == 70 ? throw std::runtime_error("of the host") : x; }

TEST_F(ConcurrentMap, OtherExceptionsPassThrough) {
  for (const size_t count : {100u, 5000u}) {
    fill(count);
    EXPECT_THROW(map(throwOther), std::runtime_error);
  }
}

TEST_F(ConcurrentMap, GivesBackItsMemoryHoweverItEnds) {
  torvane::free(allocate(8, 0, kFatal));
  fill(5000);
  const uint32_t before = usedBytesOfThisThread();
  map(function);
  EXPECT_EQ(usedBytesOfThisThread(), before);
  raising = {4500};
  map(raiseAt);
  EXPECT_EQ(usedBytesOfThisThread(), before);
  EXPECT_THROW(map(throwOther), std::runtime_error);
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

// The map's tasks are not the pool's: inside one of the pool's loops it runs as it does elsewhere.
TEST_F(ConcurrentMap, RunsInsideALoopOfThePool) {
  fill(9000);
  struct Closure {
    ConcurrentMap *self;
    mint code;
  } closure = {this, -1};
  const auto body = [](void *c, ParallelWorker *) {
    auto *inner = static_cast<Closure *>(c);
    inner->code = inner->self->map(function);
  };
  EXPECT_EQ(parallelLoop(&closure, nullptr, body, 0, 1, 1, nullptr), 0);
  EXPECT_EQ(closure.code, 0);
  for (size_t i = 0; i < 9000; ++i) ASSERT_EQ(target[i], function(static_cast<int64_t>(i)));
}

int64_t raiseByStyle(int64_t x) {
  if (x == 4000) throwTorvaneException(14);
  return function(x);
}

TEST_F(ConcurrentMap, RaiseInStyleOneIsPendingAndTheTaskGoesOn) {
  for (const size_t count : {4095u, 9000u}) {
    fill(count);
    EXPECT_EQ(map(raiseByStyle), 0);
    EXPECT_EQ(setExceptionActive(0), 14);
    EXPECT_EQ(target[4000], function(4000));
    EXPECT_EQ(target[count - 1], function(static_cast<int64_t>(count) - 1));
  }
}

TEST_F(ConcurrentMap, RaiseInStyleZeroIsTheResult) {
  setExceptionStyle(0);
  for (const size_t count : {4095u, 9000u}) {
    fill(count);
    EXPECT_EQ(map(raiseByStyle), 14);
    EXPECT_EQ(target[3999], function(3999));
    EXPECT_EQ(target[4000], kUnwritten);
  }
  setExceptionStyle(1);
}

struct Handled {
  void (*run)(void *argument, void *closure);
  ConcurrentMap *test;
};

mint codeCaughtAround(ConcurrentMap *test) {
  Handled record = {
      [](void *, void *closure) { (*static_cast<Handled **>(closure))->test->map(raiseByStyle); }, test};
  Handled *pointer = &record;
  CompilerError *error = catchExceptionHandler(nullptr, &pointer);
  const mint code = error == nullptr ? 0 : error->code;
  Delete_CompilerError(error);
  return code;
}

TEST_F(ConcurrentMap, RaiseInStyleTwoReachesTheCallersFrame) {
  setExceptionStyle(2);
  for (const size_t count : {4095u, 9000u}) {
    fill(count);
    EXPECT_EQ(codeCaughtAround(this), 14);
    EXPECT_EQ(target[3999], function(3999));
    EXPECT_EQ(target[4000], kUnwritten);
  }
  threads.clear();
  map(noteThread);
  EXPECT_EQ(threads, std::set{std::this_thread::get_id()});
  setExceptionStyle(1);
}

TEST_F(ConcurrentMap, MapsOfTwoThreadsAreEachComplete) {
  const auto mapMany = [] {
    std::vector<int64_t> values(6000), results(6000);
    std::iota(values.begin(), values.end(), 0);
    for (int round = 0; round < 50; ++round) {
      std::fill(results.begin(), results.end(), kUnwritten);
      ASSERT_EQ(parallel_for_Integer64_Integer64(values.data(), 6000, results.data(), function), 0);
      for (size_t i = 0; i < 6000; ++i) ASSERT_EQ(results[i], function(static_cast<int64_t>(i)));
    }
  };
  std::thread other(mapMany);
  mapMany();
  other.join();
}

} // namespace

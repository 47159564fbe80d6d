// Many host threads in the library at once: each does a little of everything, and what each gets is bit for
// bit what one thread alone got for the same seed.
//
// Threads come in rounds and end; meanwhile each starts some that live for one activity. They pass blocks,
// tensors and arrays through a post office, where another thread, often one that has come after the maker
// ended, looks them over and frees them. In the end no byte is out but the scratch that draws of complexes
// keep, and the walker finds every heap whole. Nothing here but the post office's lock and the start of a
// round orders one thread after another, so that the thread sanitizer sees what the library itself does.
#include "four_workers.h"
#include "host_activities.h"
#include "post_office.h"
#include "random/thread_number.h"
#include "runtime/heap_thread.h"
#include "runtime/memory.h"
#include "support/heap_walker.h"
#include "support/on_thread.h"
#include "support/sanitizers.h"
#include <torvane/torvane.h>

#include <barrier>
#include <functional>
#include <optional>
#include <thread>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr uint32_t kRounds = TORVANE_THREAD_SANITIZER ? 2 : TORVANE_ADDRESS_SANITIZER ? 4 : 16;

uint32_t sumOf(mint statistic, uint32_t *heaps) {
  uint32_t sum = 0;
  uint32_t *figures = heapStatistics(heaps, statistic);
  for (uint32_t i = 0; i < *heaps; ++i) sum += figures[i];
  torvane::free(figures);
  return sum;
}

// Bytes of blocks that nobody has freed, in all heaps; the figures themselves are one of them.
uint32_t liveBytes() {
  uint32_t heaps = 0;
  const uint32_t freedByOthers = sumOf(2, &heaps) + sumOf(3, &heaps), used = sumOf(0, &heaps);
  const auto figures = static_cast<uint32_t>(heaps * sizeof(uint32_t));
  return used - freedByOthers - heaps * kHeapOwnBytes - allocatedBytesFor(figures);
}

// Records of ended threads wait for new ones: as many as threads have lived at once.
void makeRecordsOfThreads(uint32_t count) {
  std::barrier all(count);
  std::vector<std::thread> threads;
  for (uint32_t k = 0; k < count; ++k)
    threads.emplace_back([&all] {
      const mreal zero = 0;
      LoadSharedRankZeroMTensor(&zero, TORVANE_TYPE_REAL, 0);
      threadNumber();
      all.arrive_and_wait();
    });
  for (std::thread &thread : threads) thread.join();
}

// All at the same time, on a thread each.
void runTogether(const std::function<void(uint32_t host)> &body) {
  std::barrier start(kHosts);
  std::vector<std::thread> hosts;
  for (uint32_t host = 0; host < kHosts; ++host)
    hosts.emplace_back([&, host] {
      start.arrive_and_wait();
      body(host);
    });
  for (std::thread &host : hosts) host.join();
}

class ConcurrentHosts : public testing::Test {
protected:
  ConcurrentHosts() {
    InitializeRuntimeLibrary();
    workers.emplace();
    records.emplace();
    onThread([this] {
      for (uint32_t seed = 0; seed < kHosts; ++seed)
        for (uint32_t activity = 0; activity < kActivityCount; ++activity)
          alone[seed].push_back(resultsOf(activity, seed));
    });
    makeRecordsOfThreads(2 * kHosts);
    before = liveBytes();
  }

  // In an order of its own, and every fifth activity on a thread that comes and goes meanwhile.
  void work(uint32_t host, uint32_t round) {
    for (uint32_t step = 0; step < kActivityCount; ++step) {
      const uint32_t activity = (step + 3 * host + round) % kActivityCount;
      const auto act = [&] {
        EXPECT_TRUE(resultsOf(activity, host) == alone[host][activity])
            << "activity " << activity << " of host " << host;
        office.post(1000 * round + 100 * host + step, host);
        office.collect(host);
      };
      if (step % 5 == 4)
        onThread(act);
      else
        act();
    }
    EXPECT_TRUE(isValidHere());
  }

  void expectNothingLeft() {
    const size_t waiting = office.waiting();
    for (size_t i = 0; i < waiting; ++i) office.collect(kHosts);
    EXPECT_EQ(office.opened(), int(kRounds * kHosts * kActivityCount));
    EXPECT_TRUE(isValidHere());
    EXPECT_EQ(liveBytes(), before + kRounds * kHosts * bytesKeptByActivities());
    EXPECT_TRUE(isValidState());
  }

  std::optional<FourWorkers> workers;
  std::optional<HostRecords> records;
  std::vector<Results> alone[kHosts];
  PostOffice office;
  uint32_t before = 0;
};

TEST_F(ConcurrentHosts, EachGetWhatOneThreadAloneGets) {
  for (uint32_t round = 0; round < kRounds; ++round) runTogether([&](uint32_t host) { work(host, round); });
  EXPECT_EQ(getExceptionActive(), 0);
  expectNothingLeft();
}

constexpr mint kBeside[] = {0, 1};
mreal totalOf(const Tensor &reals) {
  mreal total = 0;
  EXPECT_EQ(machfunc_d_total(&total, elements<mreal>(reals), reals->elementCount, kBeside, 0), 0);
  return total;
}

// Whoever finds the pool taken adds from left to right.
TEST(ConcurrentTotals, AreThoseOfAllWorkersOrOfOne) {
  InitializeRuntimeLibrary();
  const FourWorkers workers;
  Tensor reals = realsOf({50000}, 5);
  for (mint i = 0; i < reals->elementCount; ++i) elements<mreal>(reals)[i] /= 3;
  const mreal ofWorkers = totalOf(reals);
  const mint enabled = setParallelDisabled(1);
  const mreal ofOne = totalOf(reals);
  setParallelDisabled(enabled);
  ASSERT_NE(ofOne, ofWorkers) << "or the test tells nothing";
  runTogether([&](uint32_t) {
    for (int i = 0; i < 40; ++i) {
      const mreal total = totalOf(reals);
      ASSERT_TRUE(total == ofWorkers || total == ofOne) << total;
    }
  });
}

struct Raiser {
  void (*run)(void *argument, void *closure);
  int16_t operand;
};

// Holds a tensor while it raises: 1 below -32000, 42 above 100, else nothing.
void castAndAdd(void *argument, void *closure) {
  const Raiser *self = *static_cast<Raiser **>(closure);
  const Tensor held = newTensor(TORVANE_TYPE_REAL, {100});
  const int16_t sum = checked_binary_plus_Integer16_Integer16(self->operand, -700);
  *static_cast<int8_t *>(argument) = integer_safe_cast_Integer16_Integer8(int16_t(sum + 700));
}

// The one style in which every thread may raise whenever it likes.
TEST(ConcurrentRaises, OfTheThrowingStyleReachTheirOwnHandlers) {
  setExceptionStyle(0);
  runTogether([](uint32_t host) {
    const uint32_t used = (torvane::free(allocate(8, 0, kFatal)), usedBytesOfThisThread());
    for (int i = 0; i < 200; ++i) {
      const int16_t operands[] = {-32700, 5000, int16_t(host)};
      Raiser raiser = {castAndAdd, operands[(uint32_t(i) + host) % 3]}, *closure = &raiser;
      int8_t result = -1;
      CompilerError *error = catchExceptionHandler(&result, &closure);
      const mint code = error == nullptr ? 0 : error->code;
      Delete_CompilerError(error);
      ASSERT_EQ(code, raiser.operand < -32000 ? 1 : raiser.operand > 100 ? 42 : 0);
      ASSERT_EQ(result, code == 0 ? mint(host) : -1);
      ASSERT_EQ(usedBytesOfThisThread(), used);
    }
  });
  setExceptionStyle(1);
  EXPECT_EQ(getExceptionActive(), 0);
}

} // namespace

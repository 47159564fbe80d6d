// Signals, threads and priorities of the operating system.
#include "runtime/platform_thread.h"
#include "support/child_process.h"
#include "support/failing_heap.h"
#include "support/sanitizers.h"

#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <pthread.h>
#include <sched.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace torvane::test {
namespace {

TEST(ConcurrentSignal, SetBeforeTheWaitLetsOneWaitThrough) {
  Lock lock;
  Signal signal;
  signal.set();
  signal.set();
  lock.enter();
  signal.wait(lock, 0);
  EXPECT_FALSE(lock.tryEnter()) << "the wait has taken the lock again";
  lock.leave();
  EXPECT_FALSE(signal.hasSleeper());
}

// Two threads take turns: a signal that is lost is a test that does not end.
void playTurns(uint64_t watchTicks, int rounds) {
  Lock lock;
  Signal there, back;
  int turn = 0;
  const auto play = [&](int own, Signal &mine, Signal &other) {
    lock.enter();
    for (int round = 0; round < rounds; ++round) {
      while (turn != own) mine.wait(lock, watchTicks);
      turn = 1 - own;
      lock.leave();
      other.set();
      lock.enter();
    }
    lock.leave();
  };
  std::thread opponent(play, 1, std::ref(there), std::ref(back));
  play(0, back, there);
  opponent.join();
  EXPECT_EQ(turn, 0);
}

TEST(ConcurrentSignal, TurnsPassBetweenSleepers) { playTurns(0, 2000); }
TEST(ConcurrentSignal, TurnsPassBetweenWatchers) { playTurns(100000, 2000); }
TEST(ConcurrentSignal, TurnsPassBetweenThreadsThatFallAsleepMeanwhile) { playTurns(500, 2000); }

TEST(ConcurrentSignal, SleeperIsSeenAndWokenOnceASet) {
  Lock lock;
  Signal signal;
  std::atomic<int> waits{0};
  std::thread sleeper([&] {
    const LockGuard<Lock> guard(lock);
    for (int i = 0; i < 3; ++i, ++waits) signal.wait(lock, 0);
  });
  for (int sets = 0; sets < 3; ++sets) {
    while (!signal.hasSleeper() && waits == sets) std::this_thread::yield();
    EXPECT_EQ(waits, sets) << "a wait resets the signal, so that the next one sleeps";
    EXPECT_TRUE(lock.tryEnter()) << "the wait has left the lock";
    lock.leave();
    signal.set();
    while (waits == sets) std::this_thread::yield();
  }
  sleeper.join();
}

struct Seen {
  int nice = 100;
  sigset_t blocked;
};

void look(void *seen) {
  auto *out = static_cast<Seen *>(seen);
  out->nice = getpriority(PRIO_PROCESS, 0);
  pthread_sigmask(SIG_SETMASK, nullptr, &out->blocked);
}

Seen seenBy(mint priority) {
  Seen seen;
  ThreadHandle thread;
  EXPECT_TRUE(startThread(&thread, look, &seen, priority));
  EXPECT_TRUE(joinThread(thread));
  return seen;
}

bool mayRaisePriority() {
  const int nice = getpriority(PRIO_PROCESS, 0);
  const ChildOutcome child =
      runInChild([=] { endProcess(setpriority(PRIO_PROCESS, 0, nice - 2) == 0 ? 42 : 43); });
  return child.status == 42;
}

TEST(ConcurrentThreads, PriorityIsTwoStepsUpOrDownWhereTheSystemAllows) {
  const int own = getpriority(PRIO_PROCESS, 0);
  EXPECT_EQ(seenBy(kNormalPriority).nice, own);
  EXPECT_EQ(seenBy(kLoweredPriority).nice, std::min(own + 2, 19));
  EXPECT_EQ(seenBy(kRaisedPriority).nice, mayRaisePriority() ? std::max(own - 2, -20) : own);
  EXPECT_EQ(getpriority(PRIO_PROCESS, 0), own);
}

TEST(ConcurrentThreads, SignalsOfTheHostAreLeftToItsThreads) {
  const Seen seen = seenBy(kNormalPriority);
  for (const int host : {SIGINT, SIGTERM, SIGUSR1, SIGCHLD}) EXPECT_EQ(sigismember(&seen.blocked, host), 1);
  for (const int own : {SIGSEGV, SIGFPE, SIGBUS, SIGILL}) EXPECT_EQ(sigismember(&seen.blocked, own), 0);
  sigset_t here;
  pthread_sigmask(SIG_SETMASK, nullptr, &here);
  EXPECT_EQ(sigismember(&here, SIGINT), 0);
}

TEST(ConcurrentThreads, ThreadIsRefusedWithoutMemory) {
  FailingHeap heap;
  heap.failRequest(1);
  ThreadHandle thread;
  EXPECT_FALSE(startThread(&thread, look, nullptr, kNormalPriority));
  heap.succeed();
  EXPECT_EQ(heap.blocksOut(), 0);
}

#if !TORVANE_ADDRESS_SANITIZER && !TORVANE_THREAD_SANITIZER // whose run times need more than the limit leaves
// Threads hold their stacks, so that a process without room for more is refused one of them.
TEST(ConcurrentThreads, ThreadIsRefusedByTheSystem) {
  inFreshProcess([] {
    FailingHeap heap;
    const rlimit none = {1, 1};
    setrlimit(RLIMIT_AS, &none);
    std::atomic<bool> done{false};
    const auto wait = [](void *until) {
      while (!*static_cast<std::atomic<bool> *>(until)) sleepMilliseconds(1);
    };
    ThreadHandle threads[64];
    size_t count = 0;
    while (count < 64 && startThread(&threads[count], wait, &done, kNormalPriority)) ++count;
    EXPECT_LT(count, 64u);
    done = true;
    for (size_t i = 0; i < count; ++i) EXPECT_TRUE(joinThread(threads[i]));
    EXPECT_EQ(heap.blocksOut(), 0);
  });
}
#endif

TEST(Processors, AreThoseThatTheProcessMayRunOn) {
  EXPECT_GE(systemProcessorCount(), 1);
  const ChildOutcome child = runInChild([] {
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(sched_getcpu(), &one);
    if (sched_setaffinity(0, sizeof one, &one) != 0) endProcess(1);
    endProcess(systemProcessorCount() == 1 ? 42 : 2);
  });
  EXPECT_EQ(child.status, 42);
}

// In a child each, which may not be able to take back what it has done.
mint levelAfter(int nice, mint level) {
  const ChildOutcome child = runInChild([=] {
    setpriority(PRIO_PROCESS, 0, nice);
    endProcess(setProcessPriorityLevel(level) == 0 ? processPriorityLevel() + 50 : 1);
  });
  return child.status - 50;
}

TEST(ProcessPriority, LevelsThatLowerAreReadBack) {
  for (const mint level : {0, -1, -2}) EXPECT_EQ(levelAfter(0, level), level);
}

TEST(ProcessPriority, LevelsThatRaiseAreReadBackWhereTheSystemAllows) {
  for (const mint level : {1, 2}) EXPECT_EQ(levelAfter(0, level), mayRaisePriority() ? level : 0);
}

TEST(ProcessPriority, OtherLevelsAreIgnored) {
  for (const mint level : {-3, 3, 100, INT32_MIN, INT32_MAX}) EXPECT_EQ(levelAfter(10, level), -1);
}

TEST(ProcessPriority, PriorityBetweenTheLevelsIsZero) {
  EXPECT_EQ(levelAfter(10, 3), -1);
  EXPECT_EQ(levelAfter(7, 3), 0);
}

TEST(ProcessPriority, RealTimeIsThree) {
  const ChildOutcome child = runInChild([] {
    const sched_param lowest = {1};
    if (sched_setscheduler(0, SCHED_RR, &lowest) != 0) endProcess(43);
    endProcess(processPriorityLevel() == 3 ? 42 : 1);
  });
  if (child.status == 43) GTEST_SKIP() << "the system refuses real time";
  EXPECT_EQ(child.status, 42);
}

} // namespace
} // namespace torvane::test

// Linux schedules threads, not processes: each has a nice value of its own, inherited from its creator. The
// priority of the process is that of its first thread; setting it moves every thread by the same distance, so
// that what was raised stays raised.
#include "platform_thread.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <dirent.h>
#include <iterator>
#include <linux/futex.h>
#include <pthread.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace torvane {

namespace {

constexpr int kLowestLevel = -2;
constexpr int kNiceOfLevel[] = {19, 10, 0, -5, -10};
constexpr mint kRealTimeLevel = 3;
constexpr int kRaisedSteps = 2; // of the nice value

struct ThreadStart {
  void (*function)(void *);
  void *argument;
  mint priority;
};

id_t idOf(int thread) { return static_cast<id_t>(thread); }

void addToNice(int thread, int steps) {
  setpriority(PRIO_PROCESS, idOf(thread), getpriority(PRIO_PROCESS, idOf(thread)) + steps);
}

void *runThread(void *record) {
  const ThreadStart start = *static_cast<ThreadStart *>(record);
  processHeap.load()->give(record);
  if (start.priority == kRaisedPriority) addToNice(0, -kRaisedSteps);
  if (start.priority == kLoweredPriority) addToNice(0, kRaisedSteps);
  start.function(start.argument);
  return nullptr;
}

// Signals that tell a thread of its own doing must reach it; every other one is a matter of the host.
sigset_t signalsOfTheHost() {
  sigset_t set;
  sigfillset(&set);
  for (const int own : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP, SIGABRT, SIGSYS, SIGPROF})
    sigdelset(&set, own);
  return set;
}

bool createThread(pthread_t *thread, ThreadStart *start) {
  const sigset_t blocked = signalsOfTheHost();
  sigset_t previous;
  pthread_sigmask(SIG_BLOCK, &blocked, &previous);
  const bool created = pthread_create(thread, nullptr, runThread, start) == 0;
  pthread_sigmask(SIG_SETMASK, &previous, nullptr);
  return created;
}

template <class Visit> void forEachThread(Visit visit) {
  DIR *threads = opendir("/proc/self/task");
  if (threads == nullptr) return;
  while (const dirent *entry = readdir(threads))
    if (entry->d_name[0] != '.') visit(std::atoi(entry->d_name));
  closedir(threads);
}

int niceOfProcess() { return getpriority(PRIO_PROCESS, idOf(getpid())); }

} // namespace

bool Signal::take() {
  uint32_t expected = kSet;
  return word.load(std::memory_order_relaxed) == kSet &&
         word.compare_exchange_strong(expected, kUnset, std::memory_order_acquire);
}

bool Signal::watch(uint64_t ticks) {
  if (take()) return true;
  if (ticks == 0) return false;
  for (const uint64_t start = timeStamp(); timeStamp() - start < ticks;) {
    if (take()) return true;
    __builtin_ia32_pause();
  }
  return false;
}

void Signal::sleep() {
  while (!take()) {
    uint32_t expected = kUnset;
    if (word.compare_exchange_strong(expected, kSleptOn, std::memory_order_relaxed) || expected == kSleptOn)
      syscall(SYS_futex, &word, FUTEX_WAIT_PRIVATE, kSleptOn, nullptr, nullptr, 0);
  }
}

void Signal::wakeSleeper() { syscall(SYS_futex, &word, FUTEX_WAKE_PRIVATE, 1, nullptr, nullptr, 0); }

void Signal::wait(Lock &held, uint64_t watchTicks) {
  held.leave();
  if (!watch(watchTicks)) sleep();
  held.enter();
}

static_assert(sizeof(ThreadHandle) == sizeof(pthread_t));

bool startThread(ThreadHandle *thread, void (*function)(void *), void *argument, mint priority) {
  const ProcessHeap *heap = processHeap.load();
  auto *start = static_cast<ThreadStart *>(heap->take(sizeof(ThreadStart)));
  if (start == nullptr) return false;
  *start = {function, argument, priority};
  pthread_t created;
  if (!createThread(&created, start)) {
    heap->give(start);
    return false;
  }
  *thread = created;
  return true;
}

bool joinThread(ThreadHandle thread) { return pthread_join(thread, nullptr) == 0; }

mint systemProcessorCount() {
  cpu_set_t allowed;
  if (sched_getaffinity(0, sizeof allowed, &allowed) == 0) return CPU_COUNT(&allowed);
  const long online = sysconf(_SC_NPROCESSORS_ONLN); // more processors than a set of fixed size holds
  return online < 1 ? 1 : static_cast<mint>(online);
}

void runInForkedChildren(void (*function)()) { pthread_atfork(nullptr, nullptr, function); }

mint processPriorityLevel() {
  const int policy = sched_getscheduler(getpid());
  if (policy == SCHED_FIFO || policy == SCHED_RR) return kRealTimeLevel;
  const int *found = std::find(std::begin(kNiceOfLevel), std::end(kNiceOfLevel), niceOfProcess());
  return found == std::end(kNiceOfLevel) ? 0 : static_cast<mint>(found - kNiceOfLevel) + kLowestLevel;
}

mint setProcessPriorityLevel(mint level) {
  if (level < kLowestLevel || level > -kLowestLevel) return 0;
  const int steps = kNiceOfLevel[level - kLowestLevel] - niceOfProcess();
  forEachThread([steps](int thread) { addToNice(thread, steps); });
  return 0;
}

} // namespace torvane

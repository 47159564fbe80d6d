// Threads, signals and priorities of the operating system.
#pragma once

#include "platform.h"

namespace torvane {

// An event that a wait resets: set lets one wait through, the one under way or the next. One thread at a
// time waits on it. All zero is unset.
class Signal {
public:
  // Touches nothing of the signal after it is set: its memory may be gone by then.
  void set() {
    if (word.exchange(kSet, std::memory_order_release) == kSleptOn) wakeSleeper();
  }

  // Leaves the held lock, waits, and takes it again. Watches the signal for so many ticks of timeStamp before
  // it sleeps: a thread that sleeps costs whoever wakes it microseconds.
  void wait(Lock &held, uint64_t watchTicks);

  // Whether setting it means waking somebody. Out of date as soon as it is known.
  bool hasSleeper() const { return word.load(std::memory_order_relaxed) == kSleptOn; }

private:
  enum : uint32_t { kUnset, kSet, kSleptOn };
  bool take();
  bool watch(uint64_t ticks);
  void sleep();
  void wakeSleeper();
  std::atomic<uint32_t> word{kUnset};
};

// What a thread is started with: two steps above its creator, or two below. A request, which the system may
// refuse in silence.
enum ThreadPriority : mint { kNormalPriority = 0, kRaisedPriority = 1, kLoweredPriority = 4 };

using ThreadHandle = uintptr_t;

// False when the system has no thread to give. A signal of the system that is not about the thread's own
// doing is left to the host's threads.
bool startThread(ThreadHandle *thread, void (*function)(void *), void *argument, mint priority);
bool joinThread(ThreadHandle thread);

// Processors that the process may run on, at least 1; read when asked.
mint systemProcessorCount();

// Runs the function in every child that the process forks from now on, where only the forking thread lives
// on.
void runInForkedChildren(void (*function)());

// The priority of the process: -2 idle, -1 below normal, 0 normal, 1 above normal, 2 high. The reader yields
// 3 for real time, and 0 for a priority between these. The setter ignores other levels and always returns 0.
mint processPriorityLevel();
mint setProcessPriorityLevel(mint level);

} // namespace torvane

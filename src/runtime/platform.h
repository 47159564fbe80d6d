// The boundary to the operating system: everything the library asks of it is declared here.
#pragma once

#include "types.h"

#include <atomic>

namespace torvane {

// The process heap, as a table so that a test can put a failing one in its place. The allocator's own
// bookkeeping and its slabs come from here and from nowhere else.
struct ProcessHeap {
  void *(*take)(size_t bytes);                          // null when exhausted
  void (*give)(void *block);                            // null is ignored
  void *(*takeZeroed)(size_t bytes);                    // all zero; null when exhausted
  void *(*takeAligned)(size_t bytes, size_t alignment); // null when exhausted
  void (*giveAligned)(void *block);
};
extern std::atomic<const ProcessHeap *> processHeap;
extern const ProcessHeap platformProcessHeap; // what processHeap holds at load

// A critical section of one word. Not recursive. All zero is unlocked.
class Lock {
public:
  void enter() {
    uintptr_t expected = 0;
    if (!word.compare_exchange_strong(expected, 1, std::memory_order_acquire)) enterSlowly();
  }
  bool tryEnter() {
    uintptr_t expected = 0;
    return word.compare_exchange_strong(expected, 1, std::memory_order_acquire);
  }
  // Touches nothing of the lock after the release: its memory may be gone by then.
  void leave() {
    if (word.exchange(0, std::memory_order_release) == 2) wakeOne();
  }

private:
  void enterSlowly();
  void wakeOne();
  std::atomic<uintptr_t> word{0}; // 0 free, 1 held, 2 held and waited for
};

// A critical section of one word for a handful of instructions. Who has to wait spins and then sleeps in
// short naps, so that leaving is a plain store: half the cost of a Lock where nobody waits. Not recursive.
// All zero is unlocked.
class BriefLock {
public:
  void enter() {
    if (!tryEnter()) enterSlowly();
  }
  bool tryEnter() {
    uintptr_t expected = 0;
    return word.compare_exchange_strong(expected, 1, std::memory_order_acquire);
  }
  // Touches nothing of the lock after the release: its memory may be gone by then.
  void leave() { word.store(0, std::memory_order_release); }

private:
  void enterSlowly();
  std::atomic<uintptr_t> word{0};
};

template <class Held> class LockGuard {
public:
  explicit LockGuard(Held &held) : lock(held) { lock.enter(); }
  ~LockGuard() { lock.leave(); }
  LockGuard(const LockGuard &) = delete;
  LockGuard &operator=(const LockGuard &) = delete;

private:
  Held &lock;
};

// Thread-local slots of the operating system. The destructor runs at the end of a thread whose value is
// not null, with the slot already cleared.
using ThreadSlot = uint32_t;
bool createThreadSlot(ThreadSlot *slot, void (*destructor)(void *));
void deleteThreadSlot(ThreadSlot slot);
void *threadSlotValue(ThreadSlot slot);
bool setThreadSlotValue(ThreadSlot slot, void *value); // false when there was no memory to keep it

// A counter that runs with time, some billions a second; cheap to read.
inline uint64_t timeStamp() { return __builtin_ia32_rdtsc(); }

uint32_t currentThreadId();
uint32_t processClock(); // processor time of the process, in the platform's units, cut to a word
void sleepMilliseconds(uint32_t milliseconds);
void writeStandardOutput(const char *text);
[[noreturn]] void endProcess(int status);

// System information, read when asked.
uint32_t systemPageSize();
uint32_t systemAllocationGranularity(); // 65536
uint64_t systemInstalledKilobytes();

} // namespace torvane

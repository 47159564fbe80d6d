// The operating system, Linux: heap, lock, thread slots, threads, system information.
#include "platform.h"

#include <cstdlib>
#include <linux/futex.h>
#include <pthread.h>
#include <sys/syscall.h>
#include <sys/sysinfo.h>
#include <time.h>
#include <unistd.h>

namespace torvane {

namespace {

void *takeZeroed(size_t bytes) { return std::calloc(1, bytes); }

void *takeAligned(size_t bytes, size_t alignment) {
  void *block = nullptr;
  return posix_memalign(&block, alignment, bytes) == 0 ? block : nullptr;
}

// The futex word is the lock's low half, which holds the whole value on every supported target.
void *futexWord(std::atomic<uintptr_t> &word) { return &word; }

} // namespace

const ProcessHeap platformProcessHeap = {std::malloc, std::free, takeZeroed, takeAligned, std::free};
constinit std::atomic<const ProcessHeap *> processHeap{&platformProcessHeap};

// The three-state mutex of U. Drepper, "Futexes Are Tricky" (2011), section 5.
void Lock::enterSlowly() {
  for (int spins = 0; spins < 100; ++spins) {
    uintptr_t expected = 0;
    if (word.load(std::memory_order_relaxed) == 0 &&
        word.compare_exchange_strong(expected, 1, std::memory_order_acquire))
      return;
    __builtin_ia32_pause();
  }
  while (word.exchange(2, std::memory_order_acquire) != 0)
    syscall(SYS_futex, futexWord(word), FUTEX_WAIT_PRIVATE, 2, nullptr, nullptr, 0);
}

void Lock::wakeOne() { syscall(SYS_futex, futexWord(word), FUTEX_WAKE_PRIVATE, 1, nullptr, nullptr, 0); }

void BriefLock::enterSlowly() {
  for (int spins = 0;; ++spins) {
    if (word.load(std::memory_order_relaxed) == 0 && tryEnter()) return;
    if (spins < 200) {
      __builtin_ia32_pause();
    } else {
      const timespec nap = {0, 20000};
      nanosleep(&nap, nullptr);
    }
  }
}

static_assert(sizeof(ThreadSlot) >= sizeof(pthread_key_t));

bool createThreadSlot(ThreadSlot *slot, void (*destructor)(void *)) {
  pthread_key_t key;
  if (pthread_key_create(&key, destructor) != 0) return false;
  *slot = key;
  return true;
}

void deleteThreadSlot(ThreadSlot slot) { pthread_key_delete(slot); }
void *threadSlotValue(ThreadSlot slot) { return pthread_getspecific(slot); }
bool setThreadSlotValue(ThreadSlot slot, void *value) { return pthread_setspecific(slot, value) == 0; }

uint32_t currentThreadId() { return static_cast<uint32_t>(syscall(SYS_gettid)); }
uint32_t processClock() { return static_cast<uint32_t>(clock()); }

void sleepMilliseconds(uint32_t milliseconds) {
  timespec remaining = {static_cast<time_t>(milliseconds / 1000),
                        static_cast<long>(milliseconds % 1000) * 1000000};
  while (nanosleep(&remaining, &remaining) != 0) {
  }
}

void writeStandardOutput(const char *text) {
  size_t length = 0;
  while (text[length] != '\0') ++length;
  while (length > 0) {
    const ssize_t written = write(STDOUT_FILENO, text, length);
    if (written <= 0) return;
    text += written;
    length -= static_cast<size_t>(written);
  }
}

void endProcess(int status) { std::_Exit(status); }

uint32_t systemPageSize() { return static_cast<uint32_t>(sysconf(_SC_PAGESIZE)); }

// Linux hands out pages one by one; slabs keep the size that the size classes were laid out for.
uint32_t systemAllocationGranularity() { return 65536; }

uint64_t systemInstalledKilobytes() {
  struct sysinfo info;
  if (sysinfo(&info) != 0) return 0;
  return uint64_t{info.totalram} * info.mem_unit / 1024;
}

} // namespace torvane

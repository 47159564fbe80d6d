#include "thread_number.h"

#include "../runtime/memory.h"
#include "method.h"

namespace torvane {

namespace {

struct NumberedThread {
  mint number;
  NumberedThread *next; // in the list of those that have ended
};

constexpr ThreadSlot kNoSlot = ~ThreadSlot{0};
constinit std::atomic<ThreadSlot> numberSlot{kNoSlot};

constinit Lock lock; // over the two below
constinit NumberedThread *ended = nullptr;
constinit mint numbersGiven = 0;

NumberedThread *takeEnded() {
  LockGuard guard(lock);
  NumberedThread *taken = ended;
  if (taken != nullptr) ended = taken->next;
  return taken;
}

NumberedThread *newNumber() {
  auto *record = static_cast<NumberedThread *>(allocate(sizeof(NumberedThread), 0, kFatal));
  LockGuard guard(lock);
  *record = {numbersGiven++, nullptr};
  return record;
}

NumberedThread *numberOfThread() {
  const ThreadSlot slot = numberSlot.load(std::memory_order_relaxed);
  return slot != kNoSlot ? static_cast<NumberedThread *>(threadSlotValue(slot)) : nullptr;
}

// With a heap, so that the exit hooks run: see current.cpp.
NumberedThread *giveNumber() {
  createThreadNumberSlot();
  usedBytesOfThisThread();
  NumberedThread *record = takeEnded();
  if (record == nullptr) record = newNumber();
  setThreadValue(numberSlot.load(std::memory_order_relaxed), record);
  return record;
}

} // namespace

mint threadNumber() {
  const NumberedThread *record = numberOfThread();
  return (record != nullptr ? record : giveNumber())->number;
}

void createThreadNumberSlot() {
  LockGuard guard(lock);
  if (numberSlot.load(std::memory_order_relaxed) == kNoSlot)
    numberSlot.store(newPlainThreadSlot(), std::memory_order_relaxed);
}

// The records go with the allocator's memory.
void deleteThreadNumberSlot() {
  LockGuard guard(lock);
  const ThreadSlot slot = numberSlot.exchange(kNoSlot, std::memory_order_relaxed);
  if (slot != kNoSlot) deleteThreadSlot(slot);
  ended = nullptr;
  numbersGiven = 0;
}

void releaseThreadNumber() {
  NumberedThread *record = numberOfThread();
  if (record == nullptr) return;
  setThreadValue(numberSlot.load(std::memory_order_relaxed), nullptr);
  LockGuard guard(lock);
  record->next = ended;
  ended = record;
}

} // namespace torvane

// The allocator's state: made once, adopted from a host, torn down, started again.
#include "runtime/heap_slab.h"
#include "runtime/heap_state.h"
#include "runtime/heap_thread.h"
#include "runtime/memory.h"
#include "runtime/startup.h"
#include "support/child_process.h"
#include "support/failing_heap.h"
#include "support/heap_walker.h"
#include "support/on_thread.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace torvane::test {

namespace {

// Leaves a child with the number of the first check that fails, or 0.
struct ChildChecks {
  int number = 0;
  void expect(bool holds) {
    ++number;
    if (!holds) _exit(number);
  }
};

int statusOfChild(void (*body)(ChildChecks &)) {
  const ChildOutcome outcome = runInChild([&] {
    ChildChecks checks;
    body(checks);
    _exit(0);
  });
  return outcome.exited ? outcome.status : -outcome.status;
}

} // namespace

TEST(State, IsMadeAtStageOneAndSurvivesEveryRestart) {
  EXPECT_EQ(statusOfChild([](ChildChecks &checks) {
              tearDownMemory();
              checks.expect(currentState() == nullptr);
              initializeMemory(0);
              checks.expect(currentState() == nullptr);
              initializeMemory(1);
              AllocatorState *state = currentState();
              checks.expect(state != nullptr);
              checks.expect(state->threads != nullptr && state->threads->isMainHeap == 1);
              auto *block = static_cast<int *>(allocate(100, 0, kFatal));
              *block = 5;
              checks.expect(state->threads->next == nullptr);
              for (mint stage = 0; stage <= 4; ++stage) initializeMemory(stage);
              checks.expect(currentState() == state && *block == 5);
              onThread([&] { checks.expect(ensureThreadHeap()->isMainHeap == 0); });
              free(block);
              checks.expect(isValidState());
            }),
            0);
}

TEST(State, IsMadeByTheFirstAllocationToo) {
  EXPECT_EQ(statusOfChild([](ChildChecks &checks) {
              tearDownMemory();
              free(nullptr);
              checks.expect(currentState() == nullptr);
              void *block = allocate(8, 0, kQuiet);
              checks.expect(block != nullptr && currentState()->threads->isMainHeap == 1);
              checks.expect(currentState()->reserve != nullptr);
            }),
            0);
}

TEST(State, TornDownReturnsEverythingWhateverIsInUse) {
  EXPECT_EQ(
      statusOfChild([](ChildChecks &checks) {
        tearDownMemory();
        FailingHeap heap;
        for (uint32_t size = 1; size < 2000000; size = size * 5 / 4 + 1) allocate(size, 0, kFatal);
        onThread([] {
          for (uint32_t size = 1; size < 200000; size *= 2) allocate(size, 0, kFatal);
        });
        void *remote[] = {allocate(10, 0, kFatal), allocate(2000, 0, kFatal), allocate(70000, 0, kFatal)};
        onThread([&] {
          for (void *block : remote) free(block);
        });
        checks.expect(isValidState());
        checks.expect(currentState()->threads->next != nullptr);
        tearDownMemory();
        checks.expect(heap.blocksOut() == 0);
        checks.expect(currentState() == nullptr && !hasHeap());
        tearDownMemory();
        free(allocate(100, 0, kFatal));
        checks.expect(isValidState());
        tearDownMemory();
        checks.expect(heap.blocksOut() == 0);
      }),
      0);
}

TEST(State, OfAHostIsSharedWithItsHeaps) {
  EXPECT_EQ(statusOfChild([](ChildChecks &checks) {
              // This thread plays the host: its state and heap exist, the library knows neither.
              void *block = allocate(100, 0, kFatal);
              ThreadHeap *heap = threadHeap;
              AllocatorState *state = currentState();
              allocatorState = nullptr;
              forgetHeap();
              adoptAllocatorState(state);
              initializeMemory(0);
              initializeMemory(1);
              checks.expect(currentState() == state);
              checks.expect(ensureThreadHeap() == heap);
              const uint32_t used = usedBytesOfThisThread();
              free(block);
              checks.expect(usedBytesOfThisThread() == used - 104);
              adoptAllocatorState(nullptr);
              checks.expect(currentState() == state && threadHeap == heap);
              checks.expect(isValidState());
            }),
            0);
}

// The tables that a slab's pages ask for: two levels, and one more of each where the slab lies across a border.
uint32_t bytesOfTablesFor(const void *memory) {
  if (sizeof(void *) != 4) return 65536 * 8;
  const uintptr_t first = reinterpret_cast<uintptr_t>(memory) >> 12, last = first + kBareSlabBytes / 4096 - 1;
  const uintptr_t leaves = (last >> 7) - (first >> 7) + 1, middles = (last >> 14) - (first >> 14) + 1;
  return static_cast<uint32_t>(512 * (leaves + middles));
}

TEST(State, CountsThePageMapsTables) {
  EXPECT_EQ(statusOfChild([](ChildChecks &checks) {
              tearDownMemory();
              ensureThreadHeap();
              constexpr uint32_t kTop = sizeof(void *) == 4 ? 64 * 4 : sizeof(PageMapTop);
              checks.expect(currentState()->pageMapBytes == kTop);
              const void *block = allocate(8, 0, kFatal);
              const Slab *slab = slabOfAddress(currentState()->pageMap, block);
              checks.expect(currentState()->pageMapBytes == kTop + bytesOfTablesFor(slab->memory));
            }),
            0);
}

} // namespace torvane::test

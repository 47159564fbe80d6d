// The start-up of random numbers, one module of the library's.
#include "../runtime/startup.h"

#include "current.h"
#include "method.h"
#include "thread_number.h"

namespace torvane {

namespace {

void endThread() {
  releaseGeneratorsOfThread();
  releaseThreadNumber();
}

void addMethods() {
  RandomGeneratorMethod_add("ExtendedCA", CA5BufferState_alloc, CA5BufferState_clone, CA5BufferState_free);
  RandomGeneratorMethod_add("MersenneTwister", MersenneTwister_alloc, MersenneTwister_clone,
                            MersenneTwister_free);
  RandomGeneratorMethod_add("ParallelMersenneTwister", PMT32_alloc, PMT32_clone, PMT32_free);
}

} // namespace

// A start-up that runs again forgets the methods that were added, and leaves the generators of every thread,
// the current ones among them, as they are.
void initializeRandomNumbers(mint stage) {
  if (stage == 0) forgetMethods();
  if (stage == 1) {
    createCurrentSlot();
    createThreadNumberSlot();
    addThreadExitHook(endThread);
    addMethods();
  }
  if (stage == 2) requireCurrentGenerator();
}

// Generators that threads still hold go with the allocator's memory.
void tearDownRandomNumbers() {
  deleteCurrentSlot();
  deleteThreadNumberSlot();
  destroyMethods();
}

} // namespace torvane

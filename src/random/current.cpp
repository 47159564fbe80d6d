#include "current.h"

#include "../runtime/memory.h"
#include "../runtime/startup.h"
#include "generator.h"

namespace torvane {

namespace {

constexpr ThreadSlot kNoSlot = ~ThreadSlot{0}; // until start-up, and after a teardown

// Without a destructor, as the slots of the methods.
constinit std::atomic<ThreadSlot> currentSlot{kNoSlot};

constexpr const char *kMethodNames[] = {nullptr, "ExtendedCA", "MKL", "MersenneTwister", "ParallelGenerator"};
constexpr mint kLastMethodCode = 4;

void releaseGenerator(const RandomGeneratorMethod *method) {
  RandomGenerator *generator = generatorOfThread(method);
  if (generator == nullptr) return;
  if (currentGenerator() == generator) setCurrentGenerator(nullptr);
  setGeneratorOfThread(method, nullptr);
  release(generator);
}

} // namespace

RandomGenerator *currentGenerator() {
  const ThreadSlot slot = currentSlot.load(std::memory_order_relaxed);
  return slot != kNoSlot ? static_cast<RandomGenerator *>(threadSlotValue(slot)) : nullptr;
}

void setCurrentGenerator(RandomGenerator *generator) {
  setThreadValue(currentSlot.load(std::memory_order_relaxed), generator);
}

// The exit hooks run at the end of every thread that has a heap; so that a thread that was handed a snapshot
// is among them, it gets one here.
void putIntoThread(RandomGenerator *generator) {
  const RandomGeneratorMethod *method = methodOf(generator);
  RandomGenerator *old = generatorOfThread(method);
  if (old == generator) return;
  usedBytesOfThisThread();
  retain(generator);
  setGeneratorOfThread(method, generator);
  if (old == nullptr) return;
  if (currentGenerator() == old) setCurrentGenerator(generator);
  release(old);
}

RandomGenerator *unshareCurrentGenerator() {
  RandomGenerator *generator = currentGenerator();
  if (generator == nullptr || !isShared(generator)) [[likely]]
    return generator;
  RandomGenerator *clone = cloneGenerator(generator);
  if (clone == nullptr) return generator;
  putIntoThread(clone);
  return clone;
}

// Before start-up nobody has added a method yet.
void requireCurrentGenerator() {
  if (currentGenerator() != nullptr) return;
  if (findMethod(kDefaultMethodName) == nullptr) initializeRandomNumbers(1);
  RandomGeneratorSnapshot_activate(RandomGenerator_create("Default", nullptr, nullptr, -1));
}

void createCurrentSlot() {
  if (currentSlot.load(std::memory_order_relaxed) == kNoSlot)
    currentSlot.store(newPlainThreadSlot(), std::memory_order_relaxed);
}

void deleteCurrentSlot() {
  const ThreadSlot slot = currentSlot.exchange(kNoSlot, std::memory_order_relaxed);
  if (slot != kNoSlot) deleteThreadSlot(slot);
}

void releaseGeneratorsOfThread() {
  for (const RandomGeneratorMethod *method = methods; method != nullptr; method = method->next)
    releaseGenerator(method);
}

} // namespace torvane

using namespace torvane;

RandomGenerator *Runtime_GetCurrentRandomGenerator() {
  RandomGenerator *generator = unshareCurrentGenerator();
  if (generator != nullptr) [[likely]]
    return generator;
  requireCurrentGenerator();
  return currentGenerator();
}

mint Runtime_SeedRandom(const uint32_t *seed, mint method) {
  if (method > kLastMethodCode) return kWrongArguments;
  const char *name = method > 0 ? kMethodNames[method] : nullptr;
  RandomGeneratorSnapshot_activate(RandomGenerator_create(name, nullptr, seed, seed != nullptr ? 1 : 0));
  return kSuccess;
}

// Methods whose streams are plain: word i of a seed is a hash of both, so that a model of one line tells
// every bit that a generator should give. The framework moves their generators as it moves any other's.
#pragma once

#include "random/buffer.h"
#include "random/current.h"
#include "runtime/startup.h"
#include <torvane/random.h>
#include <torvane/startup.h>

#include <gtest/gtest.h>

#include <atomic>

namespace torvane::test {

// The finaliser of a 64-bit hash.
inline uint64_t mixed(uint64_t x) {
  x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9;
  x = (x ^ (x >> 27)) * 0x94D049BB133111EB;
  return x ^ (x >> 31);
}
inline uint32_t plainWord(uint64_t key, uint64_t i) {
  return static_cast<uint32_t>(mixed(key ^ mixed(i + 1)) >> 20);
}

inline uint64_t plainKey(const uint32_t *seed, mint count) {
  uint64_t key = mixed(static_cast<uint64_t>(count));
  for (mint i = 0; i < count; ++i) key = mixed(key + seed[i]);
  return key;
}
inline constexpr uint64_t kUnseededKey = 77;

// What was last passed to a seed function on this thread.
inline thread_local uint64_t lastPlainKey = 0;
// Generators that exist, of all plain methods and threads.
inline std::atomic<int> plainGenerators{0};
// Methods whose clone fails while this is set.
inline std::atomic<bool> clonesFail{false};

struct PlainState {
  uint64_t key;
  uint64_t next;
};

inline mint plainFill(uint32_t *words, uint32_t *count, uint32_t *bitsLeft, RandomGenerator *source) {
  auto *state = static_cast<PlainState *>(source->state);
  for (uint32_t i = 0; i < *count; ++i) words[i] = plainWord(state->key, state->next++);
  *bitsLeft = 32;
  return 0;
}

inline mint plainSeed(RandomGenerator *source, const uint32_t *words, mint count) {
  lastPlainKey = plainKey(words, count);
  *static_cast<PlainState *>(source->state) = {lastPlainKey, 0};
  return 0;
}

// What a test decides by chance, the same in every run.
class Choices {
public:
  explicit Choices(uint64_t seed) : key(mixed(seed)) {}
  uint32_t operator()() { return plainWord(key, next++); }

private:
  uint64_t key, next = 0;
};

inline constexpr uint32_t kPlainWords = 5; // a buffer, so that fills are frequent

// One set of functions for each `number`: methods are told apart by them.
template <int number> RandomGenerator *plainAlloc(void *) {
  RandomGenerator *generator = RandomBuffer_new(plainFill, kPlainWords);
  bufferOf(generator)->source = newSource(plainSeed, new PlainState{kUnseededKey, 0});
  ++plainGenerators;
  return generator;
}
template <int number> RandomGenerator *plainClone(RandomGenerator *generator) {
  if (clonesFail) return nullptr;
  RandomGenerator *clone = RandomBuffer_copy(generator);
  bufferOf(clone)->source = newSource(plainSeed, new PlainState(*sourceState<PlainState>(generator)));
  ++plainGenerators;
  return clone;
}
template <int number> void plainFree(RandomGenerator *generator) {
  delete sourceState<PlainState>(generator);
  RandomGenerator_deleteGeneric(bufferOf(generator)->source);
  RandomBuffer_delete(generator);
  --plainGenerators;
}

template <int number> void addPlainMethod(const char *name) {
  RandomGeneratorMethod_add(name, plainAlloc<number>, plainClone<number>, plainFree<number>);
}

// The framework as start-up leaves it, with this thread holding no generator; afterwards the same again.
class Framework : public testing::Test {
protected:
  Framework() {
    InitializeRuntimeLibrary();
    releaseGeneratorsOfThread();
  }
  ~Framework() override {
    releaseGeneratorsOfThread();
    InitializeRuntimeLibrary();
    EXPECT_EQ(plainGenerators, 0);
  }
};

inline uint32_t drawBits(mint bits) {
  RandomGenerator *generator = Runtime_GetCurrentRandomGenerator();
  return generator->functions->getBits(bits, generator);
}
inline uint32_t drawBits(RandomGenerator *generator, mint bits) {
  return generator->functions->getBits(bits, generator);
}

} // namespace torvane::test

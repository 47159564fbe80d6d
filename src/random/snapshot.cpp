#include "snapshot.h"

#include "../runtime/memory.h"
#include "../runtime/platform.h"
#include "current.h"
#include "generator.h"

#include <string.h>

namespace torvane {

namespace {

RandomGeneratorSnapshot *newSnapshot() {
  auto *snapshot =
      static_cast<RandomGeneratorSnapshot *>(allocate(sizeof(RandomGeneratorSnapshot), 0, kFatal));
  *snapshot = {nullptr, nullptr, 0};
  return snapshot;
}

RandomGeneratorNode *newNode(RandomGenerator *generator, RandomGeneratorNode *after) {
  auto *node = static_cast<RandomGeneratorNode *>(allocate(sizeof(RandomGeneratorNode), 0, kFatal));
  *node = {0, generator, nullptr, after};
  if (after != nullptr) after->next = node;
  return node;
}

// The words of a call, or one from the clock where their count is below 1.
void seedGenerator(RandomGenerator *generator, const uint32_t *words, mint count) {
  const uint32_t clockWord = processClock();
  if (count < 1)
    generator->seed(generator, &clockWord, 1);
  else
    generator->seed(generator, words, count);
}

// A generator that a pinned snapshot holds keeps its state: the node goes on with a clone.
void seedNode(RandomGeneratorNode *node, const uint32_t *words, mint count) {
  if (isShared(node->generator)) {
    RandomGenerator *clone = cloneGenerator(node->generator);
    if (clone == nullptr) return;
    node->generator = clone;
  }
  seedGenerator(node->generator, words, count);
}

bool wantsSeed(const char *method, const uint32_t *words, mint count) {
  return words != nullptr || count < 0 || strcmp(method, "Automatic") == 0;
}

RandomGenerator *findOrMakeGenerator(RandomGeneratorMethod *method, void *parameters) {
  RandomGenerator *generator = generatorOfThread(method);
  return generator != nullptr ? generator : adopt(method->alloc(parameters), method);
}

RandomGeneratorSnapshot *createSnapshot(const char *name, void *parameters, const uint32_t *seed,
                                        mint count) {
  RandomGeneratorMethod *method = findMethod(name);
  if (method == nullptr) return nullptr;
  RandomGenerator *generator = findOrMakeGenerator(method, parameters);
  if (generator == nullptr) return nullptr;
  RandomGeneratorSnapshot *snapshot = newSnapshot();
  snapshot->head = newNode(generator, nullptr);
  if (wantsSeed(name, seed, count)) seedNode(snapshot->head, seed, count);
  snapshot->head->flags = kIsCurrent;
  return snapshot;
}

// Before the node's seed, which may put a clone into it that is as current as the original.
uint32_t flagsOf(const RandomGenerator *generator) {
  return generator == currentGenerator() ? uint32_t{kIsCurrent} : 0;
}

void install(const RandomGeneratorNode *node) {
  RandomGenerator *generator = node->generator;
  putIntoThread(generator);
  if ((node->flags & kIsCurrent) != 0) setCurrentGenerator(generator);
}

} // namespace

void deleteSnapshot(RandomGeneratorSnapshot *snapshot) {
  while (RandomGeneratorNode *node = snapshot->head) {
    snapshot->head = node->next;
    if (snapshot->pinned != 0) release(node->generator);
    torvane::free(node);
  }
  torvane::free(snapshot);
}

} // namespace torvane

using namespace torvane;

RandomGeneratorSnapshot *RandomGenerator_create(const char *method, void *parameters, const uint32_t *seed,
                                                mint seedCount) {
  if (method == nullptr) return RandomGeneratorSnapshot_capture(seed, seedCount);
  if (strcmp(method, "Default") != 0) return createSnapshot(method, parameters, seed, seedCount);
  return createSnapshot(kDefaultMethodName, parameters, seed, seedCount != 0 ? seedCount : -1);
}

RandomGeneratorSnapshot *RandomGeneratorSnapshot_capture(const uint32_t *seed, mint seedCount) {
  RandomGeneratorSnapshot *snapshot = newSnapshot();
  RandomGeneratorNode *last = nullptr;
  unshareCurrentGenerator();
  for (const RandomGeneratorMethod *method = methods; method != nullptr; method = method->next) {
    RandomGenerator *generator = generatorOfThread(method);
    if (generator == nullptr) continue;
    last = newNode(generator, last);
    if (snapshot->head == nullptr) snapshot->head = last;
    last->flags = flagsOf(generator);
    if (seed != nullptr) seedNode(last, seed, seedCount);
  }
  return snapshot;
}

void RandomGeneratorSnapshot_activate(RandomGeneratorSnapshot *snapshot) {
  if (snapshot == nullptr) return;
  for (const RandomGeneratorNode *node = snapshot->head; node != nullptr; node = node->next) install(node);
  deleteSnapshot(snapshot);
}

void RandomGeneratorSnapshot_pin(RandomGeneratorSnapshot *snapshot) {
  if (snapshot->pinned != 0) return;
  for (const RandomGeneratorNode *node = snapshot->head; node != nullptr; node = node->next)
    retain(node->generator);
  snapshot->pinned = 1;
}

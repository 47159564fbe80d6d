// Making, copying, seeding and saving generators without memory: there is no status for it, so that each
// request that fails ends the process with its message, and none is done without.
#include "random/current.h"
#include "random/method.h"
#include "runtime/memory.h"
#include "support/memory_sweep.h"
#include "support/on_thread.h"

#include <torvane/torvane.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

using Draws = std::vector<mint>;
Draws draw() {
  Draws drawn(40);
  EXPECT_EQ(UniformRandomMIntegers(drawn.data(), 40, -1000, 1000000), 0);
  return drawn;
}

// All that a run does, from a thread without generators; the generators that it leaves to its thread go
// behind it, and `release` gives back the rest.
struct Run {
  const char *name;
  int64_t fewestRequests;
  std::function<void()> run;
  std::function<bool()> isRight;
  std::function<void()> release = [] {};
  uint32_t keptBytes = 0;
};

void expectFatalWherever(const Run &swept) {
  const SweepOutcome outcome =
      sweepMemory({swept.name, [] {},
                   [&] {
                     swept.run();
                     return 0;
                   },
                   [](mint) { return false; }, [] { return std::string(); }, swept.isRight,
                   [&] {
                     releaseGeneratorsOfThread();
                     swept.release();
                   },
                   swept.keptBytes},
                  SweepKind::cold);
  EXPECT_EQ(outcome.faults, "") << swept.name;
  EXPECT_EQ(outcome.refused, 0) << swept.name;
  EXPECT_EQ(outcome.ended, outcome.requests) << swept.name;
  EXPECT_GE(outcome.ended, swept.fewestRequests) << swept.name;
}

class GeneratorMemory : public testing::Test {
protected:
  static void SetUpTestSuite() { InitializeRuntimeLibrary(); }
};

constexpr uint32_t kSeed[] = {7, 8};
mint streamNumber = 5;

void select(const char *method, void *parameters = nullptr) {
  RandomGeneratorSnapshot_activate(RandomGenerator_create(method, parameters, kSeed, 2));
}

Draws drawsOf(const char *method, void *parameters = nullptr) {
  Draws drawn;
  onThread([&] {
    select(method, parameters);
    drawn = draw();
  });
  return drawn;
}

TEST_F(GeneratorMemory, OfEveryMethodIsNeeded) {
  for (const char *method : {"ExtendedCA", "MersenneTwister"})
    expectFatalWherever(
        {method, 5, [=] { select(method); }, [=, expected = drawsOf(method)] { return draw() == expected; }});
  const char *streams = "ParallelMersenneTwister";
  expectFatalWherever({streams, 5, [=] { select(streams, &streamNumber); },
                       [expected = drawsOf(streams, &streamNumber)] { return draw() == expected; }});
}

TEST_F(GeneratorMemory, OfTheDefaultMethodIsNeededByTheFirstDraw) {
  expectFatalWherever({"first draw", 5, [] { draw(); },
                       [] { return std::strcmp(currentGenerator()->info->name, "ExtendedCA") == 0; }});
}

// The set, and the clone that goes on in place of what the set holds.
TEST_F(GeneratorMemory, OfASavedSetAndOfTheClonesBehindItIsNeeded) {
  const Draws expected = drawsOf("MersenneTwister");
  const uint32_t other = 9;
  Draws within;
  for (const bool isSeeded : {false, true}) {
    const auto useBlock = [&, isSeeded] {
      select("MersenneTwister");
      RandomGeneratorSnapshot *saved = RandomGeneratorSnapshot_capture(nullptr, 0);
      RandomGeneratorSnapshot_pin(saved);
      if (isSeeded) Runtime_SeedRandom(&other, 0);
      within = draw();
      RandomGeneratorSnapshot_activate(saved);
    };
    const auto isBack = [&, isSeeded] { return (within != expected) == isSeeded && draw() == expected; };
    expectFatalWherever({isSeeded ? "seed in a block" : "draw in a block", 6, useBlock, isBack});
  }
}

TEST_F(GeneratorMemory, OfGeneratorsInTheMakingIsNeeded) {
  RandomGenerator *made = nullptr, *copied = nullptr;
  const auto discard = [&](void (*destroy)(RandomGenerator *)) {
    return [&, destroy] {
      destroy(made);
      destroy(copied);
    };
  };
  expectFatalWherever({"generic", 1,
                       [&] {
                         made = RandomGenerator_newGeneric();
                         copied = RandomGenerator_copyGeneric(made);
                       },
                       [&] { return copied->functions->randomMReals == Generic_randomMReals; },
                       discard(RandomGenerator_deleteGeneric)});
  const auto wordsOf = [](const RandomGenerator *of) { return static_cast<RandomBuffer *>(of->state)->data; };
  expectFatalWherever({"buffered", 4,
                       [&] {
                         made = RandomBuffer_new(nullptr, 100);
                         wordsOf(made)->words[99] = 17;
                         copied = RandomBuffer_copy(made);
                       },
                       [&] { return wordsOf(copied)->words[99] == 17 && wordsOf(copied)->capacity == 100; },
                       discard(RandomBuffer_delete)});
}

TEST_F(GeneratorMemory, OfAMethodIsNeeded) {
  const uint32_t kept =
      allocatedBytesFor(sizeof(RandomGeneratorMethod)) + allocatedBytesFor(sizeof "another");
  expectFatalWherever({"method", 2,
                       [] {
                         RandomGeneratorMethod_add("another", MersenneTwister_alloc, MersenneTwister_clone,
                                                   MersenneTwister_free);
                       },
                       [expected = drawsOf("MersenneTwister")] {
                         select("another");
                         return draw() == expected;
                       },
                       [] {}, kept});
}

} // namespace

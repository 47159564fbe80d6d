// Draws on several threads at once: each thread's are those of its own generator and seed.
#include "algorithms/named_call.h"
#include "words.h"

#include <thread>

using namespace torvane;
using namespace torvane::test;

namespace {

struct Drawn {
  ModelTensor shuffled, few, weighted;
  std::vector<mreal> normal;
};

ModelTensor sampleOf(const NamedCall &call) {
  MTensor *slot = nullptr;
  EXPECT_EQ(NamedCall(call).run(&slot), 0);
  ModelTensor model = modelOfTensor(slot);
  MTensor_delete(slot);
  return model;
}

Drawn drawAll(uint32_t seed) {
  EXPECT_EQ(Runtime_SeedRandom(&seed, 3), 0);
  Drawn drawn;
  const ModelTensor list = numbered({2000});
  drawn.shuffled = sampleOf(NamedCall("RandomSample").tensor(TORVANE_TYPE_REAL, list));
  drawn.few = sampleOf(NamedCall("RandomSample").tensor(TORVANE_TYPE_REAL, list).integer(150));
  drawn.weighted = sampleOf(NamedCall("RandomSampleWeights")
                                .tensor(TORVANE_TYPE_REAL, list)
                                .tensor(tensorOf<mreal>({2000}, std::vector<mreal>(2000, 0.1)))
                                .integer(150));
  MTensor *slot = nullptr;
  EXPECT_EQ(NamedCall("RandomNormal").real(0).real(1).vector({999}).run(&slot), 0);
  const auto *values = static_cast<const mreal *>(slot->data);
  drawn.normal.assign(values, values + slot->elementCount);
  MTensor_delete(slot);
  return drawn;
}

TEST(DrawsOnThreads, AreThoseOfTheThreadsOwnSeed) {
  startRandomNumbers();
  constexpr size_t kThreads = 4;
  Drawn drawn[kThreads];
  std::vector<std::thread> threads;
  for (uint32_t k = 0; k < kThreads; ++k) threads.emplace_back([&drawn, k] { drawn[k] = drawAll(k + 1); });
  for (std::thread &thread : threads) thread.join();
  for (uint32_t k = 0; k < kThreads; ++k) {
    const Drawn alone = drawAll(k + 1);
    EXPECT_EQ(drawn[k].shuffled, alone.shuffled);
    EXPECT_EQ(drawn[k].few, alone.few);
    EXPECT_EQ(drawn[k].weighted, alone.weighted);
    EXPECT_EQ(drawn[k].normal, alone.normal);
  }
  EXPECT_NE(drawn[0].shuffled, drawn[1].shuffled);
}

} // namespace

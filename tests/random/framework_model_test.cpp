// Random sequences of seeds, draws, blocks and threads, against a model that keeps for each thread nothing
// but the seed and the position of each method's stream.
#include "plain_method.h"

#include "algorithms/registry.h"
#include "random/block_handlers.h"
#include "support/on_thread.h"
#include <torvane/startup.h>

#include <map>
#include <string>
#include <thread>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

// A stream by its definition: the words one after the other, each from its high bit on.
struct ModelStream {
  uint64_t key = kUnseededKey;
  uint64_t position = 0; // in bits

  uint32_t read(mint bits) {
    uint64_t value = 0;
    for (mint i = 0; i < bits; ++i, ++position)
      value = (value << 1) | ((plainWord(key, position / 32) >> (31 - position % 32)) & 1);
    return static_cast<uint32_t>(value);
  }
};

struct ModelThread {
  std::map<std::string, ModelStream> streams;
  std::string current;
};

const std::string kMethods[] = {"ExtendedCA", "MersenneTwister", "Third"};
mint codeOf(const std::string &method) { return method == "ExtendedCA" ? 1 : 3; }

// A thread's real generators beside the model's, with a library context of its own.
class Pair {
public:
  explicit Pair(unsigned seed) : choose(seed) { context.runtimeState = &state; }

  void run(int steps) {
    for (int i = 0; i < steps && !testing::Test::HasFailure(); ++i) {
      step();
      check();
    }
    endRandomBlocks(&context);
    while (!blocks.empty()) endModelBlock();
    EXPECT_EQ(state.blockStack, nullptr);
    check();
  }

private:
  void step() {
    switch (choose() % 10) {
    case 0:
      return select();
    case 1:
      return seedAll();
    case 2:
      return begin();
    case 3:
      return end();
    case 4:
      return callNothing();
    default:
      return draw();
    }
  }

  // From the clock, from a word, from several, or not at all.
  void select() {
    const std::string method = kMethods[choose() % 3];
    const std::vector<uint32_t> words(choose() % 4, choose());
    const auto count = static_cast<mint>(words.size());
    if (count == 1 && method != "Third") {
      EXPECT_EQ(Runtime_SeedRandom(words.data(), codeOf(method)), 0);
    } else {
      RandomGeneratorSnapshot_activate(
          RandomGenerator_create(method.c_str(), nullptr, count > 0 ? words.data() : nullptr, count));
    }
    ModelStream &stream = model.streams[method];
    if (count > 0) stream = {plainKey(words.data(), count), 0};
    model.current = method;
  }

  // Without a word nothing is seeded.
  void seedAll() {
    const auto word = choose();
    const bool given = choose() % 8 != 0;
    EXPECT_EQ(Runtime_SeedRandom(given ? &word : nullptr, -mint(choose() % 2)), 0);
    if (!given) return;
    for (auto &entry : model.streams) entry.second = {plainKey(&word, 1), 0};
  }

  void begin() {
    EXPECT_EQ(lookupRuntimeFunction("BlockRandomBegin")(&context, 0, nullptr, nullptr), 0);
    blocks.push_back(model);
  }

  void end() {
    EXPECT_EQ(lookupRuntimeFunction("BlockRandomEnd")(&context, 0, nullptr, nullptr), 0);
    endModelBlock();
  }

  // What was there at the beginning is as it was; what has come since stays.
  void endModelBlock() {
    if (blocks.empty()) return;
    for (const auto &[method, stream] : blocks.back().streams) model.streams[method] = stream;
    if (!blocks.back().current.empty()) model.current = blocks.back().current;
    blocks.pop_back();
  }

  // Calls that the methods of this library make of no effect.
  void callNothing() {
    const auto word = choose();
    EXPECT_EQ(Runtime_SeedRandom(&word, 2), 0);
    EXPECT_EQ(Runtime_SeedRandom(nullptr, 4), 0);
    EXPECT_EQ(Runtime_SeedRandom(&word, 5 + mint(choose() % 9)), 12);
    RandomGeneratorSnapshot_activate(nullptr);
  }

  // The first draw of a thread makes the default method's generator, with a seed that only the clock knows.
  void draw() {
    if (model.current.empty()) {
      Runtime_GetCurrentRandomGenerator();
      model.current = "ExtendedCA";
      model.streams[model.current] = {lastPlainKey, 0};
    }
    const mint bits = 1 + mint(choose() % 32);
    EXPECT_EQ(drawBits(bits), model.streams[model.current].read(bits))
        << bits << " bits of " << model.current;
  }

  void check() {
    const RandomGenerator *current = currentGenerator();
    EXPECT_EQ(current != nullptr ? current->info->name : "", model.current);
  }

  Choices choose;
  TorvaneLibraryData context = {};
  RuntimeState state = {};
  ModelThread model;
  std::vector<ModelThread> blocks;
};

class FrameworkModel : public Framework {
protected:
  FrameworkModel() {
    addPlainMethod<0>("ExtendedCA");
    addPlainMethod<1>("MersenneTwister");
    addPlainMethod<2>("Third");
  }
};

TEST_F(FrameworkModel, RandomSequencesOfCallsGiveTheModelsBits) {
  for (unsigned seed = 1; seed <= 60; ++seed) {
    Pair(seed).run(400);
    releaseGeneratorsOfThread();
    ASSERT_EQ(plainGenerators, 0) << "seed " << seed;
  }
}

TEST_F(FrameworkModel, ThreadsThatComeAndGoEachHaveGeneratorsOfTheirOwn) {
  for (unsigned round = 0; round < 8; ++round) {
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < 4; ++i) threads.emplace_back([=] { Pair(1000 + 4 * round + i).run(300); });
    for (std::thread &thread : threads) thread.join();
    ASSERT_EQ(plainGenerators, 0) << "what a thread held ends with it";
  }
}

} // namespace

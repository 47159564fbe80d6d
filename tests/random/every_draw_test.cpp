// What all draws have in common, which is how they come by their generator.
#include "every_draw.h"
#include "plain_method.h"

#include "runtime/library_data.h"
#include "support/on_thread.h"

using namespace torvane;
using namespace torvane::test;

namespace {

RandomGenerator *refuse(void *) { return nullptr; }

class EveryDraw : public Framework {};

TEST_F(EveryDraw, WithoutAGeneratorGives11) {
  RandomGeneratorMethod_add("ExtendedCA", refuse, plainClone<0>, plainFree<0>);
  for (const Draw &draw : kEveryDraw) {
    Drawn drawn;
    EXPECT_EQ(draw.run(&drawn), 11) << draw.name;
  }
  EXPECT_EQ(Runtime_GetCurrentRandomGenerator(), nullptr);
}

TEST_F(EveryDraw, WithoutAGeneratorTensorsByNameAreRefused) {
  RandomGeneratorMethod_add("ExtendedCA", refuse, plainClone<0>, plainFree<0>);
  expectRefused(NamedCall("RandomIntegers").integer(1).integer(2).vector({3}), 4);
  expectRefused(NamedCall("RandomReals").real(1).real(2).vector({3}), 4);
  expectRefused(NamedCall("RandomNormal").real(1).real(2).vector({3}), 11);
  expectRefused(NamedCall("RandomBeta").real(2).real(3).vector({3}), 11);
  expectRefused(NamedCall("RandomSample").vector({1, 2, 3}), 11);
  expectRefused(NamedCall("RandomChoice").vector({1, 2, 3}).vector({2}), 11);
}

// Each alone in its block: the first draw of a block is the one that must leave the outer generator alone.
TEST_F(EveryDraw, FirstInABlockLeavesTheSequenceToTheOutside) {
  RuntimeState state = {};
  TorvaneLibraryData context = {};
  context.runtimeState = &state;
  for (const mint method : {1, 3}) {
    const uint32_t seed = 20261121;
    ASSERT_EQ(Runtime_SeedRandom(&seed, method), 0);
    for (const Draw &draw : kEveryDraw) {
      Drawn inside, after, later;
      EXPECT_EQ(NamedCall("BlockRandomBegin").run(nullptr, &context), 0);
      EXPECT_EQ(draw.run(&inside), 0) << draw.name;
      EXPECT_EQ(NamedCall("BlockRandomEnd").run(nullptr, &context), 0);
      EXPECT_EQ(draw.run(&after), 0) << draw.name;
      EXPECT_EQ(draw.run(&later), 0) << draw.name;
      EXPECT_EQ(inside, after) << draw.name << ", method " << method;
      EXPECT_NE(after, later) << draw.name << ", method " << method;
    }
  }
}

TEST_F(EveryDraw, FirstOnAThreadInstallsTheDefaultMethod) {
  for (const Draw &draw : kEveryDraw)
    onThread([&draw] {
      Drawn drawn;
      EXPECT_EQ(currentGenerator(), nullptr);
      EXPECT_EQ(draw.run(&drawn), 0) << draw.name;
      ASSERT_NE(currentGenerator(), nullptr) << draw.name;
      EXPECT_STREQ(currentGenerator()->info->name, "ExtendedCA") << draw.name;
    });
}

} // namespace

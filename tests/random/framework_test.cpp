// Methods, generators, snapshots and blocks, call by call.
#include "plain_method.h"

#include "algorithms/registry.h"
#include "random/block_handlers.h"
#include "random/generator.h"
#include "random/snapshot.h"
#include "runtime/memory.h"
#include "support/child_process.h"
#include <torvane/distributions.h>
#include <torvane/startup.h>

#include <ctime>
#include <string>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

RandomGenerator *selectMethod(const char *name, const uint32_t *seed = nullptr, mint count = 0) {
  RandomGeneratorSnapshot_activate(RandomGenerator_create(name, nullptr, seed, count));
  return currentGenerator();
}

mint refCountOf(const RandomGenerator *generator) { return generator->info->refCount; }

// A library context with what the handlers of blocks need of it.
struct Context {
  Context() { record.runtimeState = &state; }
  mint call(const char *name, std::vector<void *> arguments = {}) {
    return lookupRuntimeFunction(name)(&record, mint(arguments.size()), arguments.data(), nullptr);
  }
  TorvaneLibraryData record = {};
  RuntimeState state = {};
};

TEST_F(Framework, BuiltInMethodsHaveTheFirstThreeIds) {
  const char *names[] = {"ExtendedCA", "MersenneTwister", "ParallelMersenneTwister"};
  for (mint i = 0; i < 3; ++i) {
    const RandomGenerator *generator = selectMethod(names[i], nullptr, -1);
    EXPECT_STREQ(generator->info->name, names[i]);
    EXPECT_EQ(generator->info->id, i + 1);
    EXPECT_EQ(generator->info->refCount, 1);
  }
}

TEST_F(Framework, StageTwoInstallsTheDefaultMethodAndKeepsACurrentGenerator) {
  EXPECT_EQ(currentGenerator(), nullptr);
  initializeRandomNumbers(2);
  const RandomGenerator *installed = currentGenerator();
  ASSERT_NE(installed, nullptr);
  EXPECT_STREQ(installed->info->name, "ExtendedCA");
  InitializeRuntimeLibrary();
  EXPECT_EQ(currentGenerator(), installed);
}

TEST_F(Framework, DrawOnAThreadWithoutAGeneratorInstallsTheDefaultMethodSeededFromTheClock) {
  addPlainMethod<0>("ExtendedCA");
  lastPlainKey = 0;
  const RandomGenerator *generator = Runtime_GetCurrentRandomGenerator();
  EXPECT_STREQ(generator->info->name, "ExtendedCA");
  EXPECT_NE(lastPlainKey, 0u) << "not seeded";
  EXPECT_EQ(generator, Runtime_GetCurrentRandomGenerator());
}

TEST_F(Framework, MethodsWithoutAGeneratorHereChangeNothing) {
  const uint32_t seed = 3;
  RandomGenerator *generator = selectMethod("MersenneTwister", &seed, 1);
  BufferData *data = bufferOf(generator)->data;
  for (mint method : {2, 4}) {
    drawBits(7);
    const uint32_t left = data->bitsLeft;
    EXPECT_EQ(Runtime_SeedRandom(&seed, method), 0);
    EXPECT_EQ(currentGenerator(), generator);
    EXPECT_EQ(data->bitsLeft, left);
  }
}

TEST_F(Framework, MethodCodesBeyondFourAreRefused) {
  const uint32_t seed = 3;
  for (mint method : {5, 6, INT32_MAX}) EXPECT_EQ(Runtime_SeedRandom(&seed, method), 12);
  EXPECT_EQ(currentGenerator(), nullptr);
}

TEST_F(Framework, SeedWithoutAMethodReachesEveryGeneratorOfTheThread) {
  addPlainMethod<0>("A");
  addPlainMethod<1>("B");
  selectMethod("B");
  RandomGenerator *a = selectMethod("A");
  const uint32_t seed = 12;
  for (mint method : {0, -1, INT32_MIN}) {
    drawBits(20);
    EXPECT_EQ(Runtime_SeedRandom(&seed, method), 0);
    EXPECT_EQ(currentGenerator(), a);
    EXPECT_EQ(drawBits(32), plainWord(plainKey(&seed, 1), 0));
    EXPECT_EQ(drawBits(selectMethod("B"), 32), plainWord(plainKey(&seed, 1), 0));
    selectMethod("A");
  }
}

TEST_F(Framework, SeedWithoutAMethodNeedsNoGenerator) {
  const uint32_t seed = 12;
  EXPECT_EQ(Runtime_SeedRandom(&seed, 0), 0);
  EXPECT_EQ(currentGenerator(), nullptr);
}

TEST_F(Framework, MethodWithoutASeedIsSelectedAndNotSeeded) {
  addPlainMethod<0>("ExtendedCA");
  addPlainMethod<1>("MersenneTwister");
  EXPECT_EQ(Runtime_SeedRandom(nullptr, 1), 0);
  EXPECT_EQ(drawBits(32), plainWord(kUnseededKey, 0));
  EXPECT_EQ(Runtime_SeedRandom(nullptr, 3), 0);
  EXPECT_EQ(drawBits(32), plainWord(kUnseededKey, 0));
  EXPECT_EQ(Runtime_SeedRandom(nullptr, 1), 0);
  EXPECT_EQ(drawBits(32), plainWord(kUnseededKey, 1));
}

TEST_F(Framework, NegativeSeedCountTakesOneWordFromTheClock) {
  addPlainMethod<0>("A");
  const uint32_t words[] = {1, 2};
  for (const uint32_t *given : {static_cast<const uint32_t *>(nullptr), words}) {
    lastPlainKey = 0;
    selectMethod("A", given, -1);
    EXPECT_NE(lastPlainKey, 0u);
    EXPECT_NE(lastPlainKey, plainKey(words, 1));
  }
  lastPlainKey = 0;
  selectMethod("A", words, 0);
  EXPECT_NE(lastPlainKey, 0u) << "words without a count";
}

std::vector<uint32_t> recordedSeed;
mint recordSeed(RandomGenerator *, const uint32_t *words, mint count) {
  recordedSeed.assign(words, words + count);
  return 0;
}
RandomGenerator *allocRecording(void *parameters) {
  RandomGenerator *generator = plainAlloc<0>(parameters);
  generator->seed = recordSeed;
  return generator;
}

TEST_F(Framework, SeedFromTheClockIsTheProcessorTimeOfTheProcess) {
  RandomGeneratorMethod_add("A", allocRecording, plainClone<0>, plainFree<0>);
  const auto before = static_cast<uint32_t>(std::clock());
  selectMethod("A", nullptr, -1);
  const auto after = static_cast<uint32_t>(std::clock());
  ASSERT_EQ(recordedSeed.size(), 1u);
  EXPECT_LE(before, recordedSeed[0]);
  EXPECT_LE(recordedSeed[0], after);
}

// As published, and from the authors' initialisation by the array {0} alike.
TEST_F(Framework, SeedsReachTheTwisterAsItsKeys) {
  const uint32_t zero = 0;
  EXPECT_EQ(Runtime_SeedRandom(&zero, 3), 0);
  EXPECT_EQ(drawBits(32), 0x6DEE6E4Cu);
  EXPECT_EQ(drawBits(32), 0x3BB91947u);
  const uint32_t keys[] = {0x12345, 0, 0x23456, 0, 0x34567, 0, 0x45678, 0};
  selectMethod("MersenneTwister", keys, 8);
  const uint64_t high = drawBits(32);
  EXPECT_EQ(high << 32 | drawBits(32), 7266447313870364031u);
}

TEST_F(Framework, NamesThatSeedByThemselves) {
  addPlainMethod<0>("Automatic");
  addPlainMethod<1>("ExtendedCA");
  for (const char *name : {"Automatic", "Default"}) {
    lastPlainKey = 0;
    selectMethod(name);
    EXPECT_NE(lastPlainKey, 0u) << name;
  }
  EXPECT_STREQ(currentGenerator()->info->name, "ExtendedCA");
}

TEST_F(Framework, LatestOfEqualNamesIsFound) {
  addPlainMethod<0>("A");
  EXPECT_EQ(selectMethod("A")->info->id, 4);
  addPlainMethod<1>("A");
  EXPECT_EQ(selectMethod("A")->info->id, 5);
}

TEST_F(Framework, NameOfAMethodIsCopied) {
  char name[] = "mine";
  addPlainMethod<0>(name);
  name[0] = 'x';
  EXPECT_NE(selectMethod("mine"), nullptr);
}

RandomGenerator *refuse(void *) { return nullptr; }

TEST_F(Framework, UnknownMethodsAndRefusedParametersGiveNull) {
  RandomGeneratorMethod_add("MKL", refuse, plainClone<0>, plainFree<0>);
  EXPECT_EQ(RandomGenerator_create("nobody", nullptr, nullptr, -1), nullptr);
  EXPECT_EQ(RandomGenerator_create("MKL", nullptr, nullptr, -1), nullptr);
  mint stream = 1024;
  EXPECT_EQ(RandomGenerator_create("ParallelMersenneTwister", &stream, nullptr, -1), nullptr);
  const uint32_t seed = 1;
  EXPECT_EQ(Runtime_SeedRandom(&seed, 2), 0) << "the seed has no effect, and is no failure";
  EXPECT_EQ(currentGenerator(), nullptr);
}

TEST_F(Framework, CreateReachesAParallelStreamByItsParameters) {
  mint stream = 5;
  const uint32_t seed = 9;
  RandomGeneratorSnapshot_activate(RandomGenerator_create("ParallelMersenneTwister", &stream, &seed, 1));
  RandomGenerator *same = PMT32_alloc(&stream);
  same->seed(same, &seed, 1);
  for (int i = 0; i < 100; ++i) EXPECT_EQ(drawBits(32), drawBits(same, 32));
  PMT32_free(same);
}

TEST_F(Framework, NullNameIsACapture) {
  addPlainMethod<0>("A");
  RandomGenerator *a = selectMethod("A");
  RandomGeneratorSnapshot *snapshot = RandomGenerator_create(nullptr, nullptr, nullptr, 0);
  ASSERT_NE(snapshot->head, nullptr);
  EXPECT_EQ(snapshot->head->generator, a);
  EXPECT_EQ(snapshot->head->flags, 1u);
  EXPECT_EQ(snapshot->head->next, nullptr);
  EXPECT_EQ(snapshot->pinned, 0);
  EXPECT_EQ(snapshot->threadStore, nullptr);
  RandomGeneratorSnapshot_activate(snapshot);
}

TEST_F(Framework, CaptureHoldsTheGeneratorsOfTheThreadNewestMethodFirst) {
  addPlainMethod<0>("A");
  addPlainMethod<1>("B");
  RandomGenerator *b = selectMethod("B"), *a = selectMethod("A");
  RandomGeneratorSnapshot *snapshot = RandomGeneratorSnapshot_capture(nullptr, 0);
  const RandomGeneratorNode *first = snapshot->head, *second = first->next;
  EXPECT_EQ(first->generator, b);
  EXPECT_EQ(first->flags, 0u);
  EXPECT_EQ(second->generator, a);
  EXPECT_EQ(second->flags, 1u);
  EXPECT_EQ(second->prev, first);
  EXPECT_EQ(second->next, nullptr);
  deleteSnapshot(snapshot);
}

TEST_F(Framework, PinHoldsEachGeneratorOnce) {
  addPlainMethod<0>("A");
  RandomGenerator *a = selectMethod("A");
  RandomGeneratorSnapshot *snapshot = RandomGeneratorSnapshot_capture(nullptr, 0);
  RandomGeneratorSnapshot_pin(snapshot);
  RandomGeneratorSnapshot_pin(snapshot);
  EXPECT_EQ(refCountOf(a), 2);
  RandomGeneratorSnapshot_activate(snapshot);
  EXPECT_EQ(refCountOf(a), 1);
}

TEST_F(Framework, DrawFromAPinnedGeneratorGoesOnWithAClone) {
  addPlainMethod<0>("A");
  RandomGenerator *a = selectMethod("A");
  RandomGeneratorSnapshot *snapshot = RandomGeneratorSnapshot_capture(nullptr, 0);
  RandomGeneratorSnapshot_pin(snapshot);
  RandomGenerator *clone = Runtime_GetCurrentRandomGenerator();
  EXPECT_NE(clone, a);
  EXPECT_EQ(refCountOf(clone), 1);
  EXPECT_EQ(refCountOf(a), 1);
  EXPECT_EQ(clone->info->id, a->info->id);
  EXPECT_STREQ(clone->info->name, "A");
  EXPECT_EQ(Runtime_GetCurrentRandomGenerator(), clone);
  RandomGeneratorSnapshot_activate(snapshot);
  EXPECT_EQ(currentGenerator(), a);
  EXPECT_EQ(plainGenerators, 1);
}

TEST_F(Framework, MethodThatCannotCloneKeepsItsGenerator) {
  addPlainMethod<0>("A");
  const uint32_t seed = 5;
  RandomGenerator *a = selectMethod("A");
  RandomGeneratorSnapshot *snapshot = RandomGeneratorSnapshot_capture(nullptr, 0);
  RandomGeneratorSnapshot_pin(snapshot);
  clonesFail = true;
  EXPECT_EQ(Runtime_GetCurrentRandomGenerator(), a);
  EXPECT_EQ(selectMethod("A", &seed, 1), a);
  clonesFail = false;
  EXPECT_EQ(drawBits(a, 32), plainWord(kUnseededKey, 0)) << "the seed was not dropped";
  RandomGeneratorSnapshot_activate(snapshot);
}

TEST_F(Framework, NegativeReferenceCountIsNeverChanged) {
  addPlainMethod<0>("A");
  RandomGenerator *a = selectMethod("A");
  a->info->refCount = -1;
  RandomGeneratorSnapshot *snapshot = RandomGeneratorSnapshot_capture(nullptr, 0);
  RandomGeneratorSnapshot_pin(snapshot);
  EXPECT_EQ(refCountOf(a), -1);
  EXPECT_EQ(Runtime_GetCurrentRandomGenerator(), a);
  RandomGeneratorSnapshot_activate(snapshot);
  EXPECT_EQ(refCountOf(a), -1);
  a->info->refCount = 1;
}

TEST_F(Framework, SnapshotThatReplacesTheCurrentGeneratorLeavesItsSuccessorCurrent) {
  addPlainMethod<0>("A");
  selectMethod("A");
  RandomGeneratorSnapshot *snapshot = RandomGeneratorSnapshot_capture(nullptr, 0);
  RandomGeneratorSnapshot_pin(snapshot);
  snapshot->head->flags = 0;
  RandomGenerator *kept = snapshot->head->generator;
  drawBits(32);
  RandomGeneratorSnapshot_activate(snapshot);
  EXPECT_EQ(currentGenerator(), kept);
}

TEST_F(Framework, BlockPutsTheSequenceBackAsIfItHadNotRun) {
  addPlainMethod<0>("A");
  Context context;
  selectMethod("A");
  EXPECT_EQ(drawBits(7), plainWord(kUnseededKey, 0) >> 25);
  EXPECT_EQ(context.call("BlockRandomBegin"), 0);
  const uint32_t seed = 4;
  selectMethod("A", &seed, 1);
  EXPECT_EQ(drawBits(32), plainWord(plainKey(&seed, 1), 0));
  EXPECT_EQ(context.call("BlockRandomEnd"), 0);
  EXPECT_EQ(drawBits(25), plainWord(kUnseededKey, 0) & 0x1FFFFFF);
}

TEST_F(Framework, BlocksNestAndAnEndWithoutABeginDoesNothing) {
  addPlainMethod<0>("A");
  Context context;
  selectMethod("A");
  EXPECT_EQ(context.call("BlockRandomEnd"), 0);
  for (int depth = 0; depth < 5; ++depth) {
    EXPECT_EQ(context.call("BlockRandomBegin"), 0);
    EXPECT_EQ(drawBits(32), plainWord(kUnseededKey, uint64_t(depth)));
  }
  for (int depth = 4; depth >= 0; --depth) {
    EXPECT_EQ(context.call("BlockRandomEnd"), 0);
    EXPECT_EQ(drawBits(32), plainWord(kUnseededKey, uint64_t(depth)));
  }
  EXPECT_EQ(context.call("BlockRandomEnd"), 0);
  EXPECT_EQ(drawBits(32), plainWord(kUnseededKey, 1));
}

TEST_F(Framework, BeginInABlockLeavesTheOuterGeneratorToTheOuterBlock) {
  addPlainMethod<0>("A");
  Context context;
  RandomGenerator *outer = selectMethod("A");
  context.call("BlockRandomBegin");
  context.call("BlockRandomBegin");
  EXPECT_NE(currentGenerator(), outer);
  EXPECT_EQ(refCountOf(currentGenerator()), 2);
  EXPECT_EQ(refCountOf(outer), 1);
  endRandomBlocks(&context.record);
  EXPECT_EQ(currentGenerator(), outer);
}

TEST_F(Framework, BlockNeedsNoGenerator) {
  Context context;
  EXPECT_EQ(context.call("BlockRandomBegin"), 0);
  EXPECT_EQ(context.call("BlockRandomEnd"), 0);
  EXPECT_EQ(currentGenerator(), nullptr);
}

TEST_F(Framework, ContextThatGoesEndsItsBlocksInnermostFirst) {
  addPlainMethod<0>("A");
  Context context;
  selectMethod("A");
  for (int depth = 0; depth < 3; ++depth) {
    context.call("BlockRandomBegin");
    drawBits(32);
  }
  endRandomBlocks(&context.record);
  EXPECT_EQ(context.state.blockStack, nullptr);
  EXPECT_EQ(drawBits(32), plainWord(kUnseededKey, 0));
  EXPECT_EQ(plainGenerators, 1);
}

TEST_F(Framework, BlockLeavesItsCellAndNothingElse) {
  addPlainMethod<0>("A");
  Context context;
  selectMethod("A");
  const uint32_t before = usedBytesOfThisThread();
  for (int i = 0; i < 10; ++i) {
    context.call("BlockRandomBegin");
    context.call("BlockRandomEnd");
  }
  EXPECT_EQ(usedBytesOfThisThread() - before, 10 * allocatedBytesFor(2 * sizeof(void *)));
}

TEST_F(Framework, NamedFunctionsCountTheirArguments) {
  Context context;
  mint value = 0;
  EXPECT_EQ(context.call("BlockRandomBegin", {&value}), 12);
  EXPECT_EQ(context.call("BlockRandomEnd", {&value}), 12);
  EXPECT_EQ(context.call("SeedRandom", {&value, &value, &value}), 12);
  EXPECT_EQ(context.state.blockStack, nullptr);
}

TEST_F(Framework, NamedSeedTakesAMethodAndASeed) {
  addPlainMethod<0>("MersenneTwister");
  Context context;
  mint method = 3, seed = 21;
  EXPECT_EQ(context.call("SeedRandom"), 0);
  EXPECT_EQ(currentGenerator(), nullptr);
  EXPECT_EQ(context.call("SeedRandom", {&method}), 0);
  EXPECT_EQ(drawBits(32), plainWord(kUnseededKey, 0));
  EXPECT_EQ(context.call("SeedRandom", {&method, &seed}), 0);
  const uint32_t word = 21;
  EXPECT_EQ(drawBits(32), plainWord(plainKey(&word, 1), 0));
  method = 5;
  EXPECT_EQ(context.call("SeedRandom", {&method, &seed}), 12);
}

TEST_F(Framework, RestartForgetsMethodsThatWereAddedAndKeepsTheirGenerators) {
  addPlainMethod<0>("A");
  RandomGenerator *a = selectMethod("A");
  InitializeRuntimeLibrary();
  EXPECT_EQ(currentGenerator(), a);
  EXPECT_EQ(drawBits(32), plainWord(kUnseededKey, 0));
  EXPECT_EQ(RandomGenerator_create("A", nullptr, nullptr, -1), nullptr);
  addPlainMethod<1>("B");
  EXPECT_EQ(selectMethod("B")->info->id, 4) << "ids begin again";
  addPlainMethod<0>("A");
  EXPECT_EQ(selectMethod("A"), a) << "added as before, it finds its generators again";
}

TEST_F(Framework, MethodThatIsAddedOtherwiseAfterARestartIsAnother) {
  addPlainMethod<0>("A");
  RandomGenerator *a = selectMethod("A");
  InitializeRuntimeLibrary();
  RandomGeneratorMethod_add("A", plainAlloc<0>, plainClone<0>, plainFree<1>);
  EXPECT_NE(selectMethod("A"), a);
  EXPECT_EQ(plainGenerators, 2);
}

TEST_F(Framework, ManyRestartsCostNeitherMemoryNorSlots) {
  Runtime_GetCurrentRandomGenerator();
  addPlainMethod<0>("A");
  InitializeRuntimeLibrary();
  const uint32_t before = usedBytesOfThisThread();
  for (int i = 0; i < 3000; ++i) {
    initializeRandomNumbers(0);
    initializeRandomNumbers(1);
    addPlainMethod<0>("A");
    initializeRandomNumbers(2);
  }
  EXPECT_EQ(usedBytesOfThisThread(), before);
}

TEST_F(Framework, TeardownLeavesNothingForALaterStart) {
  inFreshProcess([] {
    const uint32_t seed = 1;
    selectMethod("MersenneTwister", &seed, 1);
    tearDownLibrary(1);
    EXPECT_EQ(currentGenerator(), nullptr);
    InitializeRuntimeLibrary();
    EXPECT_STREQ(currentGenerator()->info->name, "ExtendedCA");
    EXPECT_EQ(selectMethod("MersenneTwister", &seed, 1)->info->id, 2);
  });
}

TEST(FrameworkBeforeStartup, DrawMakesWhatItNeeds) {
  inFreshProcess([] {
    const RandomGenerator *generator = Runtime_GetCurrentRandomGenerator();
    EXPECT_STREQ(generator->info->name, "ExtendedCA");
    InitializeRuntimeLibrary();
    EXPECT_EQ(currentGenerator(), generator);
  });
}

TEST(GenericGenerator, HasTheDrawsThatNeedBitsAlone) {
  RandomGenerator *generator = RandomGenerator_newGeneric();
  EXPECT_EQ(generator->info, nullptr);
  EXPECT_EQ(generator->seed, nullptr);
  EXPECT_EQ(generator->state, nullptr);
  EXPECT_EQ(generator->functions->getBits, nullptr);
  EXPECT_EQ(generator->functions->getWords, nullptr);
  EXPECT_EQ(generator->functions->randomMIntegers, Generic_randomMIntegers);
  EXPECT_EQ(generator->functions->randomMReals, Generic_randomMReals);
  for (auto reserved : generator->functions->reserved) EXPECT_EQ(reserved, nullptr);
  EXPECT_EQ(Runtime_RandomGenerator_getBitFunction(generator), nullptr);
  RandomGenerator_deleteGeneric(generator);
}

uint32_t ownBits(mint bits, RandomGenerator *) { return static_cast<uint32_t>(bits); }
mint ownSeed(RandomGenerator *, const uint32_t *, mint) { return 0; }
void ownFurther() {}

TEST(GenericGenerator, CopyTakesTheTableButItsLastSlot) {
  RandomGenerator *generator = RandomGenerator_newGeneric();
  generator->functions->getBits = ownBits;
  generator->functions->randomMReals = nullptr;
  generator->functions->reserved[1] = generator->functions->reserved[2] = ownFurther;
  generator->seed = ownSeed;
  generator->state = &generator;
  RandomGenerator *copy = RandomGenerator_copyGeneric(generator);
  EXPECT_NE(copy->functions, generator->functions);
  EXPECT_EQ(Runtime_RandomGenerator_getBitFunction(copy), ownBits);
  EXPECT_EQ(copy->functions->randomMReals, nullptr);
  EXPECT_EQ(copy->functions->reserved[1], ownFurther);
  EXPECT_EQ(copy->functions->reserved[2], nullptr);
  EXPECT_EQ(copy->seed, ownSeed);
  EXPECT_EQ(copy->state, nullptr);
  EXPECT_EQ(copy->info, nullptr);
  RandomGenerator_deleteGeneric(copy);
  RandomGenerator_deleteGeneric(generator);
}

TEST(GenericGenerator, DistributionArrayEntriesStand) {
  EXPECT_EQ(RandomDistributionFunctionArray_copy(), 0);
  RandomDistributionFunctionArray_delete();
}

} // namespace

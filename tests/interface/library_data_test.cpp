// The life of a library-data record: versions, start-up, what is its own and what is shared, what a free
// ends.
#include "algorithms/hash_table_settings.h"
#include "algorithms/registry.h"
#include "runtime/memory.h"
#include "runtime/startup.h"
#include "support/child_process.h"
#include "support/failing_heap.h"
#include "support/heap_walker.h"
#include <torvane/elementwise.h>
#include <torvane/library_data.h>
#include <torvane/parts.h>
#include <torvane/startup.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

using namespace torvane;
using namespace torvane::test;

namespace {

// The record as words, counted from 1.
const uintptr_t *wordsOf(const void *record) { return static_cast<const uintptr_t *>(record) - 1; }

constexpr mint kTableWords[] = {28, 29, 30, 35, 37, 38, 48, 49};
bool isTableWord(mint word) {
  return std::find(std::begin(kTableWords), std::end(kTableWords), word) != std::end(kTableWords);
}

TEST(LibraryData, OfVersionsZeroToFiveHasEveryFunctionAndTable) {
  for (mint version = 0; version <= 5; ++version) {
    TorvaneLibraryData *record = TorvaneLibraryData_new(version);
    for (mint word = 1; word <= 49; ++word)
      if (word != 30) EXPECT_NE(wordsOf(record)[word], 0u) << version << ", word " << word;
    EXPECT_EQ(record->version, version);
    EXPECT_EQ(record->runtime->version, 1);
    TorvaneLibraryData_free(record);
  }
}

TEST(LibraryData, OfAVersionAboveFiveHasTablesAndNoFunctions) {
  for (const mint version : {6, 7, INT32_MAX}) {
    TorvaneLibraryData *record = TorvaneLibraryData_new(version);
    ASSERT_NE(record, nullptr);
    for (mint word = 1; word <= 49; ++word)
      EXPECT_EQ(wordsOf(record)[word] != 0, isTableWord(word)) << version << ", word " << word;
    EXPECT_EQ(record->version, version);
    EXPECT_EQ(record->runtime->version, 1);
    TorvaneLibraryData_free(record);
  }
}

TEST(LibraryData, OfANegativeVersionIsThatOfVersionZero) {
  TorvaneLibraryData *zero = TorvaneLibraryData_new(0), *negative = TorvaneLibraryData_new(-1);
  for (mint word = 1; word <= 49; ++word)
    if (word != 28 && word != 30) EXPECT_EQ(wordsOf(negative)[word], wordsOf(zero)[word]) << word;
  EXPECT_EQ(negative->version, -1);
  TorvaneLibraryData_free(negative);
  TorvaneLibraryData_free(zero);
}

TEST(LibraryData, StateIsElevenWordsOfZerosOfItsOwn) {
  TorvaneLibraryData *first = TorvaneLibraryData_new(3), *second = TorvaneLibraryData_new(3);
  EXPECT_NE(first->runtimeState, second->runtimeState);
  for (const TorvaneLibraryData *record : {first, second})
    for (mint word = 1; word <= 11; ++word) EXPECT_EQ(wordsOf(record->runtimeState)[word], 0u) << word;
  TorvaneLibraryData_free(first);
  TorvaneLibraryData_free(second);
}

TEST(LibraryData, RuntimeTableOfVersionOneIsPrivateAndAWordShorterThanTheSharedOne) {
  TorvaneLibraryData *one = TorvaneLibraryData_new(1), *other = TorvaneLibraryData_new(1);
  TorvaneLibraryData *three = TorvaneLibraryData_new(3), *five = TorvaneLibraryData_new(5);
  EXPECT_NE(one->runtime, three->runtime);
  EXPECT_NE(one->runtime, other->runtime);
  EXPECT_EQ(three->runtime, five->runtime);
  EXPECT_EQ(std::memcmp(one->runtime, three->runtime, 27 * sizeof(void *)), 0);
  EXPECT_NE(wordsOf(three->runtime)[28], 0u);
  for (TorvaneLibraryData *record : {one, other, three, five}) TorvaneLibraryData_free(record);
}

// The allocator hands out first what came back last, and a block of 27 words has room for a 28th.
TEST(LibraryData, NothingStandsBehindTheTableOfVersionOne) {
  TorvaneLibraryData *first = TorvaneLibraryData_new(1); // the library is up
  void *const block = allocate(27 * sizeof(void *), 0, kFatal);
  ASSERT_GE(blockUsableBytes(block), 28 * sizeof(void *));
  std::memset(block, 0xA5, 28 * sizeof(void *));
  torvane::free(block);
  TorvaneLibraryData *one = TorvaneLibraryData_new(1);
  ASSERT_EQ(one->runtime, block);
  EXPECT_EQ(wordsOf(one->runtime)[28], UINTPTR_MAX / 0xFF * 0xA5);
  TorvaneLibraryData_free(one);
  TorvaneLibraryData_free(first);
}

TEST(LibraryData, OtherTablesAreSharedByAllVersions) {
  TorvaneLibraryData *first = TorvaneLibraryData_new(0);
  for (const mint version : {1, 3, 4, 5, 7}) {
    TorvaneLibraryData *record = TorvaneLibraryData_new(version);
    for (const mint word : {35, 37, 38, 48, 49})
      EXPECT_EQ(wordsOf(record)[word], wordsOf(first)[word]) << version << ", word " << word;
    TorvaneLibraryData_free(record);
  }
  TorvaneLibraryData_free(first);
}

TEST(LibraryData, TablesStayAfterARecordIsFreed) {
  TorvaneLibraryData *record = TorvaneLibraryData_new(2);
  const TorvaneRuntimeTable *runtime = record->runtime;
  const TorvaneNumericTable *numeric = record->numeric;
  TorvaneLibraryData_free(record);
  EXPECT_EQ(runtime->lookupRuntimeFunction(nullptr)(nullptr, 0, nullptr, nullptr), 12);
  EXPECT_EQ(numeric->rank(nullptr), 0);
}

TEST(LibraryData, FreeGivesBackAllThatTheRecordOwns) {
  for (const mint version : {0, 1, 5, 7}) {
    TorvaneLibraryData *first = TorvaneLibraryData_new(version); // and with it the library is up
    const uint32_t used = usedBytesOfThisThread();
    TorvaneLibraryData *record = TorvaneLibraryData_new(version);
    EXPECT_GT(usedBytesOfThisThread(), used);
    TorvaneLibraryData_free(record);
    EXPECT_EQ(usedBytesOfThisThread(), used) << version;
    TorvaneLibraryData_free(first);
  }
  EXPECT_TRUE(isValidHere());
}

// A setting that every start-up restores shows whether there was one.
void disturb() { setVectorParallelLengthThreshold(0, 1); }
bool hasStarted() { return getVectorParallelLengthThreshold(0) == 32768; }

TEST(LibraryDataStart, FirstRecordStartsTheLibraryAndTheSecondDoesNot) {
  inFreshProcess([] {
    disturb();
    const TorvaneLibraryData *record = TorvaneLibraryData_new(3);
    EXPECT_TRUE(hasStarted());
    EXPECT_NE(record->runtime->lookupRuntimeFunction("Bag"), unavailableRuntimeFunction);
    EXPECT_NE(getEternalMTensor(), nullptr);
    disturb();
    TorvaneLibraryData_new(3);
    EXPECT_FALSE(hasStarted());
  });
}

TEST(LibraryDataStart, FirstRecordStartsTheLibraryAlsoAfterTheHostDid) {
  inFreshProcess([] {
    InitializeTorvaneRTL(nullptr, nullptr, nullptr);
    disturb();
    TorvaneLibraryData_new(7);
    EXPECT_TRUE(hasStarted());
  });
}

TEST(LibraryDataStart, FreeOfARecordMakesTheNextOneStartTheLibraryAgain) {
  inFreshProcess([] {
    TorvaneLibraryData *first = TorvaneLibraryData_new(3), *second = TorvaneLibraryData_new(3);
    disturb();
    TorvaneLibraryData_free(first);
    EXPECT_FALSE(hasStarted());
    first = TorvaneLibraryData_new(3);
    EXPECT_TRUE(hasStarted());
    disturb();
    TorvaneLibraryData_free(TorvaneLibraryData_new(3)); // no start before this one, but after it
    EXPECT_FALSE(hasStarted());
    TorvaneLibraryData_free(second);
    TorvaneLibraryData_free(first);
    TorvaneLibraryData_new(3);
    EXPECT_TRUE(hasStarted());
  });
}

TEST(LibraryDataStart, FreeOfNullIsIgnoredAndStartsNothing) {
  inFreshProcess([] {
    TorvaneLibraryData_new(3);
    disturb();
    TorvaneLibraryData_free(nullptr);
    TorvaneLibraryData_new(3);
    EXPECT_FALSE(hasStarted());
  });
}

TEST(LibraryDataStart, TensorsBagsAndTheGeneratorLiveThroughARestart) {
  inFreshProcess([] {
    TorvaneLibraryData *record = TorvaneLibraryData_new(3), *other = TorvaneLibraryData_new(3);
    const uint32_t seed = 7;
    ASSERT_EQ(record->runtime->seedRandom(&seed, 3), 0);
    RandomGenerator *generator = record->runtime->currentGenerator();
    const mint extent = 3;
    MTensor *tensor = nullptr;
    ASSERT_EQ(record->newTensor(TORVANE_TYPE_INTEGER, 1, &extent, &tensor), 0);
    MTensor_initialize(tensor, 9);
    mint type = TORVANE_TYPE_INTEGER, bag = -1, kind = TORVANE_PART_POSITION, position = 1, read = 0;
    void *const bagArguments[] = {&type};
    ASSERT_EQ(record->runtime->lookupRuntimeFunction("Bag")(record, 1, bagArguments, &bag), 0);
    void *const stuffArguments[] = {&bag, &tensor};
    ASSERT_EQ(record->runtime->lookupRuntimeFunction("StuffBag")(record, 2, stuffArguments, nullptr), 0);

    TorvaneLibraryData_free(other);
    disturb();
    other = TorvaneLibraryData_new(3);
    ASSERT_TRUE(hasStarted());
    EXPECT_EQ(record->runtime->currentGenerator(), generator);
    void *const partArguments[] = {&bag, &kind, &position};
    ASSERT_EQ(record->runtime->lookupRuntimeFunction("BagPart")(record, 3, partArguments, &read), 0);
    EXPECT_EQ(read, 9);
    EXPECT_EQ(record->integerData(tensor)[2], 9);
    record->deleteTensor(tensor);
    TorvaneLibraryData_free(other);
    TorvaneLibraryData_free(record);
    EXPECT_TRUE(isValidState());
  });
}

TEST(LibraryDataStart, WithoutMemoryForTheRecordEndsTheProcess) {
  const ChildOutcome child = runInChild([] {
    TorvaneLibraryData_new(1);
    FailingHeap heap;
    heap.failFrom(1);
    for (;;) TorvaneLibraryData_new(1); // until the slabs at hand are full
  });
  EXPECT_TRUE(child.exited);
  EXPECT_EQ(child.status, 1);
}

} // namespace

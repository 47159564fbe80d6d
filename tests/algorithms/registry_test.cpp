// The table of named functions: its rows, lookups, registration, restarts, and the handlers that need no
// algorithm.
#include "algorithms/registry.h"
#include "algorithms/hash_table_settings.h"
#include "runtime/memory.h"
#include "runtime/startup.h"
#include "support/child_process.h"
#include "support/raised.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <string>
#include <thread>

using namespace torvane;
using namespace torvane::test;

namespace {

class Registry : public testing::Test {
protected:
  Registry() {
    for (mint stage : {0, 1}) initializeRuntimeFunctionTable(stage);
  }
};

mint call(const char *name, std::vector<void *> arguments, void *result) {
  return lookupRuntimeFunction(name)(nullptr, static_cast<mint>(arguments.size()), arguments.data(), result);
}

TEST_F(Registry, HoldsEightyDistinctNames) {
  std::set<std::string> names;
  for (const RuntimeFunctionRow &row : kRuntimeFunctions) names.insert(row.name);
  EXPECT_EQ(names.size(), 80u);
}

TEST_F(Registry, ResolvesEveryNameToTheHandlerOfItsRow) {
  for (const RuntimeFunctionRow &row : kRuntimeFunctions) {
    const std::string elsewhere = row.name;
    EXPECT_EQ(lookupRuntimeFunction(elsewhere.c_str()), row.entry.function) << row.name;
    EXPECT_EQ(lookupRuntimeFunctionKind(elsewhere.c_str()), row.entry.kind) << row.name;
  }
}

TEST_F(Registry, KindsTellWhoTouchesTheGenerator) {
  const std::set<std::string> draws = {"RandomInteger",       "RandomIntegers",      "RandomReal",
                                       "RandomReals",         "RandomComplex",       "RandomComplexes",
                                       "RandomChoice",        "RandomChoiceWeights", "RandomSample",
                                       "RandomSampleWeights", "RandomNormal",        "RandomBeta"};
  const std::set<std::string> seeds = {"SeedRandom", "BlockRandomBegin", "BlockRandomEnd"};
  for (const RuntimeFunctionRow &row : kRuntimeFunctions) {
    const std::string name = row.name;
    const mint kind = draws.count(name) ? 2 : seeds.count(name) ? 5 : name == "Random" ? 1 : 0;
    EXPECT_EQ(lookupRuntimeFunctionKind(row.name), kind) << name;
  }
}

TEST_F(Registry, UnknownNamesYieldAHandlerThatReturnsTwelveWhateverItIsGiven) {
  for (const char *name : {static_cast<const char *>(nullptr), "", "dimensions", "Dimensions ", "Sor"}) {
    const RuntimeFunctionHandler handler = lookupRuntimeFunction(name);
    ASSERT_EQ(handler, unavailableRuntimeFunction);
    EXPECT_EQ(handler(nullptr, -5, nullptr, nullptr), 12);
    EXPECT_EQ(handler(nullptr, 3, nullptr, nullptr), 12);
    EXPECT_EQ(lookupRuntimeFunctionKind(name), 0);
  }
}

TEST_F(Registry, PlainRandomReturnsFourteenWhateverTheCount) {
  for (mint count : {-1, 0, 1, 7})
    EXPECT_EQ(lookupRuntimeFunction("Random")(nullptr, count, nullptr, nullptr), 14);
}

// The numbers that a fixed count allows: "2", "1, 2".
std::set<mint> allowedCounts(const std::string &text) {
  std::set<mint> counts;
  if (text.find_first_not_of("0123456789, ") != std::string::npos) return counts;
  for (size_t at = 0; at < text.size(); at = text.find_first_of("0123456789", at + 1))
    counts.insert(text[at] - '0');
  return counts;
}

TEST_F(Registry, FixedCountsAreCheckedBeforeAnArgumentIsTouched) {
  EXPECT_EQ(allowedCounts("1, 2"), (std::set<mint>{1, 2}));
  EXPECT_EQ(allowedCounts("odd"), std::set<mint>());
  for (const RuntimeFunctionRow &row : kRuntimeFunctions) {
    const std::set<mint> allowed = allowedCounts(row.counts);
    for (mint count = -1; count < 8 && !allowed.empty(); ++count)
      if (!allowed.count(count))
        EXPECT_EQ(row.entry.function(nullptr, count, nullptr, nullptr), 12) << row.name;
  }
}

TEST_F(Registry, ConcurrentLookupsFindTheirHandlers) {
  std::atomic<int> wrong = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i)
    threads.emplace_back([&wrong] {
      for (int time = 0; time < 50; ++time)
        for (const RuntimeFunctionRow &row : kRuntimeFunctions)
          wrong += lookupRuntimeFunction(row.name) != row.entry.function;
    });
  for (std::thread &thread : threads) thread.join();
  EXPECT_EQ(wrong, 0);
}

mint answer(TorvaneLibraryData *, mint, void *const *, void *) { return 42; }

TEST_F(Registry, TakesFurtherNamesAndFindsTheLatestOfEqualOnes) {
  const ChildOutcome child = runInChild([] {
    std::string name = "Answer";
    registerRuntimeFunction(name.c_str(), answer, 7);
    name[0] = 'X';
    registerRuntimeFunction("Sort", answer, 8);
    const bool well = call("Answer", {}, nullptr) == 42 && lookupRuntimeFunctionKind("Answer") == 7 &&
                      call("Sort", {}, nullptr) == 42 && lookupRuntimeFunctionKind("Sort") == 8 &&
                      lookupRuntimeFunction("Xnswer") == unavailableRuntimeFunction;
    std::_Exit(well ? 0 : 1);
  });
  EXPECT_EQ(child.status, 0);
}

TEST_F(Registry, IsOutOfSightBetweenTheFirstTwoStagesAndStaysWhatItWas) {
  const uint32_t used = usedBytesOfThisThread();
  initializeRuntimeFunctionTable(0);
  EXPECT_EQ(lookupRuntimeFunction("CopyTensor"), unavailableRuntimeFunction);
  initializeRuntimeFunctionTable(1);
  for (mint stage : {2, 3, 4, 5, -1}) initializeRuntimeFunctionTable(stage);
  EXPECT_NE(lookupRuntimeFunction("CopyTensor"), unavailableRuntimeFunction);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST_F(Registry, HonoursTheHashFunctionThatIsSelectedAtAStart) {
  const ChildOutcome child = runInChild([] {
    initializeRuntimeFunctionTable(0);
    setHashFunction("SIP24");
    initializeRuntimeFunctionTable(1);
    std::_Exit(lookupRuntimeFunction("CopyTensor") != unavailableRuntimeFunction ? 0 : 1);
  });
  EXPECT_EQ(child.status, 0);
}

TEST_F(Registry, GivesItsMemoryBackAtTheTeardownAndComesBackAfterIt) {
  const uint32_t used = usedBytesOfThisThread();
  tearDownRuntimeFunctionTable();
  EXPECT_LT(usedBytesOfThisThread(), used);
  EXPECT_EQ(lookupRuntimeFunction("CopyTensor"), unavailableRuntimeFunction);
  initializeRuntimeFunctionTable(1);
  EXPECT_EQ(usedBytesOfThisThread(), used);
  EXPECT_NE(lookupRuntimeFunction("CopyTensor"), unavailableRuntimeFunction);
}

TEST_F(Registry, CopyTensorCopiesIntoNewAndUsedSlots) {
  const Tensor source = tensorOf<mreal>({2, 2}, {1, 2, 3, 4});
  MTensor *argument = source.get(), *slot = nullptr;
  for (int time = 0; time < 2; ++time) {
    MTensor *const before = slot;
    ASSERT_EQ(call("CopyTensor", {&argument}, &slot), 0);
    ASSERT_TRUE(before == nullptr || before == slot);
    EXPECT_TRUE(isValidTensor(slot));
    EXPECT_EQ(extentsOf(slot), (Extents{2, 2}));
    EXPECT_EQ(static_cast<mreal *>(slot->data)[3], 4);
    static_cast<mreal *>(slot->data)[3] = 0;
  }
  EXPECT_EQ(call("CopyTensor", {&argument}, &argument), 0);
  EXPECT_EQ(valuesOf<mreal>(source), (std::vector<mreal>{1, 2, 3, 4}));
  MTensor_delete(slot);
}

TEST_F(Registry, CoerceTensorConvertsEveryElementAlsoInPlace) {
  Tensor source = tensorOf<mcomplex>({2}, {{1.25, 7}, {-2.75, 0}});
  MTensor *argument = source.get(), *slot = nullptr;
  mint type = TORVANE_TYPE_INTEGER;
  ASSERT_EQ(call("CoerceTensor", {&type, &argument}, &slot), 0);
  const Tensor rounded(slot);
  EXPECT_EQ(valuesOf<mint>(rounded), (std::vector<mint>{1, -3}));
  type = TORVANE_TYPE_REAL;
  ASSERT_EQ(call("CoerceTensor", {&type, &argument}, &argument), 0);
  EXPECT_EQ(argument, source.get());
  EXPECT_TRUE(isValidTensor(argument));
  EXPECT_EQ(valuesOf<mreal>(source), (std::vector<mreal>{1.25, -2.75}));
}

TEST_F(Registry, CoerceTensorToATypeWithoutElementsIsRefused) {
  const Tensor source = tensorOf<mint>({1}, {1});
  MTensor *argument = source.get(), *slot = nullptr;
  for (mint type : {-1, 0, 1, 5, 6, 100}) {
    EXPECT_EQ(call("CoerceTensor", {&type, &argument}, &slot), 1);
    EXPECT_EQ(slot, nullptr);
  }
}

} // namespace

// The runtime table of the record, through the record alone: parts, operators, generators, functions by name.
#include "interface/library_record.h"
#include "support/failing_heap.h"
#include <torvane/operators.h>
#include <torvane/parts.h>

#include <cstring>

namespace torvane::test {

namespace {

class RecordRuntime : public WithRecord {
protected:
  // Version 1 has a table of its own, without the last word.
  explicit RecordRuntime(mint version = 3) : WithRecord(version), runtime(record->runtime) {}
  const TorvaneRuntimeTable *const runtime;
};

constexpr mint kSquareRoot = 57, kPlus = 257;

TEST_F(RecordRuntime, NewTensorIsEmpty) {
  MTensor *tensor = keep(runtime->newTensor());
  EXPECT_EQ(record->rank(tensor), 0);
  EXPECT_EQ(record->type(tensor), TORVANE_TYPE_NONE);
  EXPECT_EQ(tensor->data, nullptr);
}

TEST_F(RecordRuntime, ResizeMakesNegativeExtentsZeroWhereTheyStand) {
  MTensor *tensor = keep(runtime->newTensor());
  mint extents[] = {2, -3, INT32_MIN, 4};
  ASSERT_EQ(runtime->resize(tensor, TORVANE_TYPE_REAL, 4, extents), 0);
  EXPECT_EQ(std::vector<mint>(extents, extents + 4), (std::vector<mint>{2, 0, 0, 4}));
  EXPECT_EQ(extentsOf(tensor), (std::vector<mint>{2, 0, 0, 4}));
  EXPECT_EQ(record->elementCount(tensor), 0);
  mint two[] = {2, 3};
  ASSERT_EQ(runtime->resize(tensor, TORVANE_TYPE_INTEGER, 2, two), 0);
  EXPECT_EQ(record->type(tensor), TORVANE_TYPE_INTEGER);
  EXPECT_EQ(record->elementCount(tensor), 6);
}

TEST_F(RecordRuntime, ResizeRefusesANegativeRankAndReportsShortMemoryAsFive) {
  MTensor *tensor = keep(runtime->newTensor());
  mint extents[] = {65536, 65536}, large[] = {1 << 19};
  EXPECT_EQ(runtime->resize(tensor, TORVANE_TYPE_REAL, -1, extents), 401);
  EXPECT_EQ(extents[0], 65536);
  EXPECT_EQ(runtime->resize(tensor, TORVANE_TYPE_REAL, 2, extents), 5);
  FailingHeap heap;
  heap.failFrom(1);
  EXPECT_EQ(runtime->resize(tensor, TORVANE_TYPE_REAL, 1, large), 5);
}

TEST_F(RecordRuntime, CopyKeepsTheRecordInTheSlotAndCopyNewDoesNot) {
  const MTensor *source = integers({3}, {4, 5, 6});
  MTensor *target = newTensor(TORVANE_TYPE_COMPLEX, {2, 2}), *const held = target;
  ASSERT_EQ(runtime->copy(&target, source), 0);
  EXPECT_EQ(target, held);
  EXPECT_EQ(valuesOf(target), (std::vector<mint>{4, 5, 6}));
  ASSERT_EQ(runtime->copyNew(&target, source), 0);
  EXPECT_NE(target, held);
  EXPECT_EQ(valuesOf(keep(target)), (std::vector<mint>{4, 5, 6}));
  MTensor *empty = nullptr;
  ASSERT_EQ(runtime->copy(&empty, source), 0);
  EXPECT_EQ(valuesOf(keep(empty)), (std::vector<mint>{4, 5, 6}));
  MTensor *itself = target;
  EXPECT_EQ(runtime->copy(&itself, target), 0);
  EXPECT_EQ(valuesOf(itself), (std::vector<mint>{4, 5, 6}));
}

TEST_F(RecordRuntime, CopiesWithoutMemoryGiveFive) {
  const MTensor *source = newTensor(TORVANE_TYPE_REAL, {1 << 18});
  MTensor *target = newTensor(TORVANE_TYPE_INTEGER, {1}), *const held = target, *fresh = held;
  FailingHeap heap;
  heap.failFrom(1);
  EXPECT_EQ(runtime->copy(&target, source), 5);
  EXPECT_EQ(target, held);
  EXPECT_EQ(runtime->copyNew(&fresh, source), 5);
  EXPECT_EQ(fresh, nullptr);
}

TEST_F(RecordRuntime, PartsNeedNoRankOfTheirResult) {
  const MTensor *matrix = integers({3, 4}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
  MTensor *rows = integers({2}, {3, 1}), *span = integers({2}, {-1, -3}), *part = nullptr;
  mint last = -1;
  const mint kinds[] = {TORVANE_PART_LIST, TORVANE_PART_POSITION};
  void *const specs[] = {&rows, &last};
  ASSERT_EQ(runtime->getParts(&part, matrix, 2, kinds, specs), 0);
  keep(part);
  EXPECT_EQ(extentsOf(part), (std::vector<mint>{2}));
  EXPECT_EQ(valuesOf(part), (std::vector<mint>{12, 4}));
  MTensor *const held = part;
  const mint otherKinds[] = {TORVANE_PART_ALL, TORVANE_PART_SPAN};
  void *const otherSpecs[] = {nullptr, &span};
  ASSERT_EQ(runtime->getParts(&part, matrix, 2, otherKinds, otherSpecs), 0);
  EXPECT_EQ(part, held);
  EXPECT_EQ(extentsOf(part), (std::vector<mint>{3, 3}));
  EXPECT_EQ(valuesOf(part), (std::vector<mint>{4, 3, 2, 8, 7, 6, 12, 11, 10}));
  ASSERT_EQ(runtime->getParts(&part, matrix, 0, nullptr, nullptr), 0);
  EXPECT_EQ(valuesOf(part), valuesOf(matrix));
}

TEST_F(RecordRuntime, PartsThatAreNotThereGiveOneAndLeaveTheSlot) {
  const MTensor *vector = integers({2}, {1, 2});
  mint third = 3;
  const mint kinds[] = {TORVANE_PART_POSITION, TORVANE_PART_POSITION, 4};
  void *const specs[] = {&third, &third, nullptr};
  MTensor *part = nullptr;
  for (const mint count : {-1, 1, 2, INT32_MIN})
    EXPECT_EQ(runtime->getParts(&part, vector, count, kinds, specs), 1) << count;
  EXPECT_EQ(runtime->getParts(&part, vector, 1, kinds + 2, specs + 2), 1);
  EXPECT_EQ(part, nullptr);
}

TEST_F(RecordRuntime, TypesOfOperatorsAreThoseOfTheExports) {
  for (mint op = 0; op < 90; ++op)
    for (const mint kind : {2, 3, 4}) EXPECT_EQ(runtime->unaryType(op, kind), ReturnType1(op, kind)) << op;
  for (mint op = 250; op < 285; ++op)
    for (const mint first : {2, 3, 4})
      for (const mint second : {2, 3, 4})
        EXPECT_EQ(runtime->binaryType(op, first, second), ReturnType2(op, first, second)) << op;
  EXPECT_EQ(runtime->unaryType(kSquareRoot, TORVANE_TYPE_REAL), TORVANE_TYPE_REAL);
  EXPECT_EQ(runtime->binaryType(kPlus, TORVANE_TYPE_INTEGER, TORVANE_TYPE_REAL), TORVANE_TYPE_REAL);
}

TEST_F(RecordRuntime, OperatorsOnTensorsGiveOneOrTheStatusAsItArose) {
  MTensor *x = reals({2}, {4, 9}), *negative = reals({1}, {-4}), *three = reals({3}, {1, 2, 3});
  MTensor *result = newTensor(TORVANE_TYPE_INTEGER, {1});
  ASSERT_EQ(runtime->unary(&result, x, kSquareRoot, TORVANE_TYPE_REAL), 0);
  EXPECT_EQ(realsOf(result), (std::vector<mreal>{2, 3}));
  ASSERT_EQ(runtime->binary(&result, x, x, kPlus, TORVANE_TYPE_REAL), 0);
  EXPECT_EQ(realsOf(result), (std::vector<mreal>{8, 18}));
  EXPECT_EQ(runtime->unary(&result, negative, kSquareRoot, TORVANE_TYPE_REAL), 1);
  EXPECT_EQ(runtime->unaryWithFlags(&result, negative, kSquareRoot, TORVANE_TYPE_REAL, 0), 4);
  EXPECT_EQ(runtime->binary(&result, x, three, kPlus, TORVANE_TYPE_REAL), 1);
  EXPECT_EQ(runtime->binaryWithFlags(&result, x, three, kPlus, TORVANE_TYPE_REAL, 0), -1);
}

TEST_F(RecordRuntime, FlagsOfOperatorsCheckTheElements) {
  MTensor *top = integers({1}, {INT32_MAX}), *huge = reals({1}, {1e308});
  MTensor *result = newTensor(TORVANE_TYPE_INTEGER, {1});
  EXPECT_EQ(runtime->binaryWithFlags(&result, top, top, kPlus, TORVANE_TYPE_INTEGER, 0), 0);
  EXPECT_EQ(valuesOf(result), (std::vector<mint>{-2}));
  EXPECT_EQ(runtime->binaryWithFlags(&result, top, top, kPlus, TORVANE_TYPE_INTEGER, 4), 4);
  constexpr mint kSquare = 56;
  EXPECT_EQ(runtime->unaryWithFlags(&result, huge, kSquare, TORVANE_TYPE_REAL, 0), 0);
  EXPECT_EQ(runtime->unaryWithFlags(&result, huge, kSquare, TORVANE_TYPE_REAL, 2), 4);
}

TEST_F(RecordRuntime, ComparesChainsOfNumbers) {
  const mreal reals[] = {1, 1 + 0x1p-52, 2};
  EXPECT_EQ(runtime->compareReals(3, 0.0, 3, reals), 1);
  EXPECT_EQ(runtime->compareReals(3, 7.0, 3, reals), 0);
  EXPECT_EQ(runtime->compareReals(4, 7.0, 3, reals), 1);
  EXPECT_EQ(runtime->compareReals(99, 0.0, 3, reals), 0);
  const mcomplex complexes[] = {{1, 0}, {1, 1}};
  mint result = 77;
  EXPECT_EQ(runtime->compareComplexes(2, 0.0, 2, complexes, &result), 0);
  EXPECT_EQ(result, 1);
  EXPECT_EQ(runtime->compareComplexes(3, 0.0, 2, complexes, &result), 4);
  EXPECT_EQ(runtime->compareComplexes(99, 0.0, 2, complexes, &result), 12);
}

TEST_F(RecordRuntime, ServicesReturnZeroSixAndZero) {
  EXPECT_EQ(runtime->service21(), 0);
  EXPECT_EQ(runtime->service22(), 6);
  EXPECT_EQ(runtime->service24(), 0);
}

TEST_F(RecordRuntime, GeneratorMethodsAreFoundByName) {
  EXPECT_EQ(runtime->generatorMethod(nullptr), nullptr);
  EXPECT_EQ(runtime->generatorMethod("extendedca"), nullptr);
  void *const one = runtime->generatorMethod("ExtendedCA"), *const two =
                                                                runtime->generatorMethod("MersenneTwister");
  EXPECT_NE(one, nullptr);
  EXPECT_NE(two, nullptr);
  EXPECT_NE(one, two);
  EXPECT_NE(runtime->generatorMethod("ParallelMersenneTwister"), nullptr);
}

TEST_F(RecordRuntime, SeedsDecideWhatTheCurrentGeneratorGives) {
  const uint32_t seed = 5489;
  std::vector<uint32_t> first, second;
  for (auto *words : {&first, &second}) {
    ASSERT_EQ(runtime->seedRandom(&seed, 3), 0);
    RandomGenerator *generator = runtime->currentGenerator();
    ASSERT_STREQ(generator->info->name, "MersenneTwister");
    for (int i = 0; i < 10; ++i) words->push_back(generator->functions->getBits(32, generator));
  }
  EXPECT_EQ(first, second);
  EXPECT_EQ(runtime->seedRandom(&seed, 9), 12);
}

TEST_F(RecordRuntime, SeededGeneratorIsASnapshotToActivate) {
  const uint32_t seed = 3;
  ASSERT_EQ(runtime->seedRandom(&seed, 1), 0);
  RandomGeneratorSnapshot *snapshot = runtime->seededGenerator("MersenneTwister", nullptr, &seed, 1);
  ASSERT_NE(snapshot, nullptr);
  RandomGeneratorSnapshot_activate(snapshot);
  EXPECT_STREQ(runtime->currentGenerator()->info->name, "MersenneTwister");
  EXPECT_EQ(runtime->seededGenerator("no such method", nullptr, &seed, 1), nullptr);
}

TEST_F(RecordRuntime, SharedScalarsAreTheLibrarys) {
  const mreal value = 2.5;
  MTensor *shared = runtime->sharedRankZero(&value, TORVANE_TYPE_REAL, 1);
  EXPECT_EQ(shared, *LoadSharedRankZeroMTensor(nullptr, TORVANE_TYPE_REAL, 1));
  EXPECT_EQ(record->realData(shared)[0], 2.5);
}

TEST_F(RecordRuntime, TensorsAreMadeOfTables) {
  const mint extents[] = {2, 3}, table[] = {1, 2, 3, 4, 5, 6};
  MTensor *tensor = nullptr;
  ASSERT_EQ(runtime->fromTable(&tensor, TORVANE_TYPE_INTEGER, 2, extents, table), 0);
  MTensor *const held = keep(tensor);
  EXPECT_EQ(extentsOf(tensor), (std::vector<mint>{2, 3}));
  EXPECT_EQ(valuesOf(tensor), (std::vector<mint>{1, 2, 3, 4, 5, 6}));
  const mcomplex z = {1, 2};
  ASSERT_EQ(runtime->fromTable(&tensor, TORVANE_TYPE_COMPLEX, 0, nullptr, &z), 0);
  EXPECT_EQ(tensor, held);
  EXPECT_EQ(record->complexData(tensor)[0].im, 2);
  const mint empty[] = {0};
  ASSERT_EQ(runtime->fromTable(&tensor, TORVANE_TYPE_REAL, 1, empty, nullptr), 0);
  EXPECT_EQ(record->elementCount(tensor), 0);
}

TEST_F(RecordRuntime, TablesThatAreNoTensorsAreRefused) {
  const mint extents[] = {2, -3}, overflow[] = {65536, 65536};
  MTensor *tensor = nullptr;
  for (const mint type : {-1, 0, 1, 5})
    EXPECT_EQ(runtime->fromTable(&tensor, type, 1, extents, extents), 1) << type;
  EXPECT_EQ(runtime->fromTable(&tensor, TORVANE_TYPE_INTEGER, -1, extents, extents), 401);
  EXPECT_EQ(runtime->fromTable(&tensor, TORVANE_TYPE_INTEGER, 2, extents, extents), 402);
  EXPECT_EQ(runtime->fromTable(&tensor, TORVANE_TYPE_INTEGER, 2, overflow, extents), 5);
  EXPECT_EQ(tensor, nullptr);
}

// What a record keeps, by the functions that keep it.
class RecordState : public RecordRuntime {
protected:
  mint call(const char *name, std::vector<void *> arguments, void *result = nullptr) {
    return runtime->lookupRuntimeFunction(name)(record, mint(arguments.size()), arguments.data(), result);
  }
  mint newBag() {
    mint type = TORVANE_TYPE_INTEGER, number = -1;
    EXPECT_EQ(call("Bag", {&type}, &number), 0);
    return number;
  }
  mint stuff(mint bag, mint value) { return call("StuffBagScalar", {&bag, &value}); }
  uint32_t draw() {
    RandomGenerator *generator = runtime->currentGenerator();
    return generator->functions->getBits(32, generator);
  }
};

TEST_F(RecordState, FunctionsAreFoundByNameAndUnknownOnesReturnTwelve) {
  const MTensor *unsorted = integers({3}, {3, 1, 2});
  MTensor *sorted = nullptr;
  ASSERT_EQ(call("Sort", {&unsorted}, &sorted), 0);
  EXPECT_EQ(valuesOf(keep(sorted)), (std::vector<mint>{1, 2, 3}));
  EXPECT_EQ(call("No such function", {}), 12);
  EXPECT_EQ(runtime->lookupRuntimeFunction(nullptr)(record, 0, nullptr, nullptr), 12);
}

TEST_F(RecordState, BagsBelongToTheirRecord) {
  TorvaneLibraryData *other = TorvaneLibraryData_new(3);
  const mint bag = newBag();
  EXPECT_EQ(stuff(bag, 5), 0);
  mint number = bag, value = 5;
  void *const arguments[] = {&number, &value};
  EXPECT_EQ(runtime->lookupRuntimeFunction("StuffBagScalar")(other, 2, arguments, nullptr), 12);
  TorvaneLibraryData_free(other);
  EXPECT_EQ(stuff(bag, 5), 0);
}

TEST_F(RecordState, ResetEmptiesTheRecordAndLeavesItUsable) {
  EXPECT_EQ(newBag(), 0);
  EXPECT_EQ(newBag(), 1);
  EXPECT_EQ(stuff(1, 5), 0);
  const uint32_t seed = 11;
  ASSERT_EQ(runtime->seedRandom(&seed, 3), 0);
  const uint32_t first = draw();
  ASSERT_EQ(runtime->seedRandom(&seed, 3), 0);
  ASSERT_EQ(call("BlockRandomBegin", {}), 0);
  draw();
  ASSERT_EQ(call("BlockRandomBegin", {}), 0);
  draw();
  runtime->resetState(record);
  EXPECT_EQ(draw(), first) << "the blocks were not ended";
  EXPECT_EQ(stuff(1, 5), 12) << "the bags are still there";
  EXPECT_EQ(newBag(), 0);
  const auto *words = static_cast<const uintptr_t *>(record->runtimeState);
  EXPECT_NE(words[1], 0u);
  runtime->resetState(record);
  for (int word = 0; word < 11; ++word) EXPECT_EQ(words[word], 0u) << word;
}

// Word 5 of the state is the flags that Cross computes under.
TEST_F(RecordState, FlagsAreThoseOfTheRecordUntilItIsReset) {
  const MTensor *x = integers({3}, {INT32_MAX, 0, 0}), *y = integers({3}, {0, INT32_MAX, 0});
  MTensor *result = newTensor(TORVANE_TYPE_INTEGER, {3});
  static_cast<intptr_t *>(record->runtimeState)[4] = 6;
  EXPECT_EQ(call("Cross", {&x, &y}, &result), 4);
  runtime->resetState(record);
  EXPECT_EQ(call("Cross", {&x, &y}, &result), 0);
}

TEST_F(RecordState, FreeEndsTheOpenBlocksOfTheRecord) {
  TorvaneLibraryData *other = TorvaneLibraryData_new(3);
  const uint32_t seed = 12;
  ASSERT_EQ(runtime->seedRandom(&seed, 3), 0);
  const uint32_t first = draw();
  ASSERT_EQ(runtime->seedRandom(&seed, 3), 0);
  ASSERT_EQ(runtime->lookupRuntimeFunction("BlockRandomBegin")(other, 0, nullptr, nullptr), 0);
  draw();
  draw();
  TorvaneLibraryData_free(other);
  EXPECT_EQ(draw(), first);
}

class RecordOfVersionOne : public RecordRuntime {
protected:
  RecordOfVersionOne() : RecordRuntime(1) {}
};

TEST_F(RecordOfVersionOne, HasTheSameWords) {
  const MTensor *source = integers({2}, {1, 2});
  MTensor *target = nullptr;
  EXPECT_EQ(runtime->version, 1);
  ASSERT_EQ(runtime->copyNew(&target, source), 0);
  EXPECT_EQ(valuesOf(keep(target)), (std::vector<mint>{1, 2}));
  const mint three = 3;
  EXPECT_EQ(record->integerData(runtime->sharedRankZero(&three, TORVANE_TYPE_INTEGER, 2))[0], 3);
}

} // namespace

} // namespace torvane::test

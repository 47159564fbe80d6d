// Order of work within an activity is fixed, so that its results are; activities of other threads change
// neither them nor the memory that is left.
#include "host_activities.h"

#include "algorithms/hash_table.h"
#include "algorithms/named_call.h"
#include "arrays/conversion.h"
#include "arrays/sparse_array.h"
#include "runtime/memory.h"
#include <torvane/torvane.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <numeric>
#include <string>
#include <utility>

namespace torvane::test {

void Results::tensor(const MTensor *tensor) {
  if (tensor == nullptr) return value(mint{-1});
  value(tensor->type);
  add(tensor->dimensions, size_t(tensor->rank) * sizeof(mint));
  add(tensor->data, size_t(tensor->elementCount) * size_t(MTensor_typeSizeTable[tensor->type]));
}

void Results::sparse(const MSparseArray *sparse) {
  tensor(sparse->skeleton->rowPointers);
  tensor(sparse->skeleton->columnIndices);
  tensor(sparse->skeleton->values);
}

namespace {

struct Numbers {
  uint64_t state;
  uint32_t next() { return uint32_t((state = state * 6364136223846793005u + 1442695040888963407u) >> 33); }
};

} // namespace

Tensor realsOf(const Extents &extents, uint32_t seed) {
  Tensor tensor = newTensor(TORVANE_TYPE_REAL, extents);
  Numbers numbers{seed};
  for (mint i = 0; i < tensor->elementCount; ++i) elements<mreal>(tensor)[i] = numbers.next() % 20000 / 16.0;
  return tensor;
}

MSparseArray *sparseOf(uint32_t seed) {
  Tensor matrix = realsOf({12, 20}, seed);
  for (mint i = 0; i < matrix->elementCount; ++i)
    if (i % 7 != mint(seed % 7)) elements<mreal>(matrix)[i] = 0;
  MSparseArray *sparse = nullptr;
  EXPECT_EQ(MSparseArray_fromTensor(matrix.get(), nullptr, &sparse), 0);
  return sparse;
}

namespace {

// A status, and the tensor of the slot where it is 0, which goes.
void takeResult(mint status, MTensor *slot, Results *results) {
  results->value(status);
  if (status == 0) results->tensor(slot);
  MTensor_delete(slot);
}

void takeCall(NamedCall call, Results *results, mint expected = 0) {
  MTensor *slot = nullptr;
  const mint status = call.run(&slot);
  EXPECT_EQ(status, expected) << call.name;
  takeResult(status, slot, results);
}

void useBlocks(uint32_t seed, Results *results) {
  Numbers numbers{seed};
  std::vector<std::pair<unsigned char *, uint32_t>> blocks;
  for (int i = 0; i < 150; ++i) {
    const uint32_t limit = i % 70 == 69 ? 1200000 : i % 20 == 19 ? 100000 : 1000;
    const uint32_t size = 1 + numbers.next() % limit;
    auto *block = static_cast<unsigned char *>(Malloc_fun(size));
    std::memset(block, int(seed + size) & 255, size);
    blocks.emplace_back(block, size);
    auto &[other, length] = blocks[numbers.next() % blocks.size()];
    const uint32_t longer = length + numbers.next() % 300;
    other = static_cast<unsigned char *>(Realloc_fun(other, longer));
    std::memset(other + length, other[0], longer - length);
    length = longer;
  }
  for (const auto &[block, size] : blocks) {
    results->value(size);
    results->value(int64_t(std::count(block, block + size, block[0])));
    Free_fun(block);
  }
}

constexpr mint kComplexes = 50;

void drawBy(const char *method, uint32_t seed, Results *results) {
  RandomGeneratorSnapshot_activate(RandomGenerator_create(method, nullptr, &seed, 1));
  mint integers[200];
  mreal reals[200];
  mcomplex complexes[kComplexes];
  EXPECT_EQ(UniformRandomMIntegers(integers, 200, -5, 1000003), 0);
  EXPECT_EQ(UniformRandomMReals(reals, 200, -1, 1), 0);
  EXPECT_EQ(UniformRandomMComplexes(complexes, kComplexes, 0, 0, 2, 3), 0);
  results->add(integers, sizeof integers);
  results->add(reals, sizeof reals);
  results->add(complexes, sizeof complexes);
  takeCall(NamedCall("RandomNormal").real(0).real(1).vector({99}), results);
  takeCall(NamedCall("RandomSample").tensor(TORVANE_TYPE_REAL, numbered({300})).integer(40), results);
}
void drawAutomaton(uint32_t seed, Results *results) { drawBy("ExtendedCA", seed, results); }
void drawTwister(uint32_t seed, Results *results) { drawBy("MersenneTwister", seed, results); }
void drawStreams(uint32_t seed, Results *results) { drawBy("ParallelMersenneTwister", seed, results); }

void sortRows(uint32_t seed, Results *results) {
  for (const Extents &extents : {Extents{3000}, Extents{400, 3}}) {
    const Tensor rows = realsOf(extents, seed);
    MTensor *slot = nullptr;
    const mint status = Runtime_MTensor_Sort(&slot, rows.get());
    takeResult(status, slot, results);
    const Tensor order = newTensor(TORVANE_TYPE_INTEGER, {extents[0]});
    results->value(Runtime_MTensor_computeSortPermutation(order.get(), rows.get()));
    results->tensor(order.get());
  }
}

void transpose(uint32_t seed, Results *results) {
  const Tensor matrix = realsOf({90, 130}, seed), box = realsOf({20, 30, 11}, seed);
  const Tensor order = tensorOf<mint>({3}, {3, 1, 2});
  MTensor *slot = nullptr;
  mint status = Runtime_MTensor_12TransposeConjugate(&slot, matrix.get(), 0);
  takeResult(status, slot, results);
  slot = nullptr;
  status = Runtime_MTensor_ndimTransposeConjugate(&slot, box.get(), order.get());
  takeResult(status, slot, results);
}

// Longer than the threshold: whoever comes first has the pool, the others run alone.
void computeElements(uint32_t seed, Results *results) {
  enum Operator : mint { kSin = 1, kExp = 32, kSqrt = 57, kPlus = 257, kTimes = 259 };
  const Tensor x = realsOf({40000}, seed), y = realsOf({40000}, seed + 100);
  for (const mint op : {kSin, kExp, kSqrt}) {
    // One element in the second half is outside the domain of the root, and of no other.
    elements<mreal>(x)[20000 + seed * 77] = op == kSqrt && seed % 2 == 0 ? -1 : 1;
    MTensor *slot = nullptr;
    const mint status = MTensorMathUnary(&slot, op == kExp ? y.get() : x.get(), op, TORVANE_TYPE_REAL);
    takeResult(status, slot, results);
  }
  for (const mint op : {kPlus, kTimes}) {
    MTensor *slot = nullptr;
    const mint status = MTensorMathBinary(&slot, x.get(), y.get(), op, TORVANE_TYPE_REAL);
    takeResult(status, slot, results);
  }
}

void convertArrays(uint32_t seed, Results *results) {
  const mint extents[] = {7, 60};
  const Tensor values = realsOf({7, 60}, seed);
  MNumericArray *source = Runtime_CreateNumericArray(TORVANE_ELEMENT_REAL64, 2, extents);
  std::memcpy(source->data, values->data, 7 * 60 * sizeof(mreal));
  for (mint type = TORVANE_ELEMENT_INTEGER8; type <= TORVANE_ELEMENT_COMPLEX_REAL64; ++type)
    for (mint method = 1; method <= 8; ++method) {
      MNumericArray *made = nullptr;
      const mint status = MNumericArray_convertByMethod(&made, source, type, method);
      results->value(status);
      if (status != 0) continue;
      results->add(made->data, MNumericArray_byteCount(made));
      MNumericArray_delete(made);
    }
  MNumericArray_delete(source);
}

void buildSparse(uint32_t seed, Results *results) {
  MSparseArray *sparse = sparseOf(seed), *copy = MSparseArray_copy(sparse);
  results->sparse(sparse);
  MSparseArray_delete(sparse);
  MTensor *dense = nullptr;
  const mint status = MSparseArray_toTensor(copy, &dense);
  takeResult(status, dense, results);
  results->value(MSparseArray_byteCount(copy));
  MSparseArray_delete(copy);
}

void callByName(uint32_t seed, Results *results) {
  mint found = 0;
  for (const RuntimeFunctionRow &row : kRuntimeFunctions)
    found += lookupRuntimeFunction(row.name) == row.entry.function;
  results->value(found);
  results->value(lookupRuntimeFunctionKind("RandomReal"));
  takeCall(NamedCall("Ordering").tensor(realsOf({500}, seed)), results);
  takeCall(NamedCall("Reverse").tensor(realsOf({50, 9}, seed)), results);
  takeCall(NamedCall("Median").tensor(realsOf({60, 5}, seed)), results);
  takeCall(NamedCall("Accumulate").tensor(realsOf({60, 5}, seed)).integer(0), results);
  takeCall(NamedCall("IntegerDigits").integer(mint(123456789 + seed)).integer(7), results);
  takeCall(NamedCall("OuterPlus").vector({1, mint(seed)}).vector({3, 4}).integer(1).integer(1).integer(0),
           results);
  takeCall(NamedCall("Flatten").integer(mint(seed)), results, 12); // an argument too few
}

Tensor fewIntegers(uint32_t seed, mint count) {
  Tensor tensor = newTensor(TORVANE_TYPE_INTEGER, {count});
  Numbers numbers{seed};
  for (mint i = 0; i < count; ++i) elements<mint>(tensor)[i] = mint(numbers.next() % 97);
  return tensor;
}

void searchAndCount(uint32_t seed, Results *results) {
  takeCall(NamedCall("Tally").tensor(fewIntegers(seed, 700)), results);
  takeCall(NamedCall("Union").tensor(fewIntegers(seed, 300)).tensor(fewIntegers(seed + 1, 50)), results);
  takeCall(NamedCall("Intersection").tensor(realsOf({300}, seed)).tensor(realsOf({200}, seed)), results);
  const Tensor rows = fewIntegers(seed, 300), pattern = fewIntegers(seed, 1);
  const Tensor value = tensorOf<mint>({}, {elements<mint>(pattern)[0]});
  takeCall(NamedCall("Position").tensor(cloneOf(rows.get())).tensor(cloneOf(value.get())), results);
  mint count = -1;
  EXPECT_EQ(NamedCall("Count").tensor(cloneOf(rows.get())).tensor(cloneOf(value.get())).run(&count), 0);
  results->value(count);
}

TorvaneLibraryData *records[kHosts];

void fillBags(uint32_t seed, Results *results) {
  TorvaneLibraryData *record = records[seed];
  const auto call = [&](const char *name, std::vector<void *> arguments, void *result) {
    return lookupRuntimeFunction(name)(record, mint(arguments.size()), arguments.data(), result);
  };
  mint type = TORVANE_TYPE_REAL, bag = -1, all = TORVANE_PART_ALL;
  EXPECT_EQ(call("Bag", {&type}, &bag), 0);
  const Tensor reals = realsOf({1500}, seed);
  MTensor *handle = reals.get(), *slot = nullptr;
  for (int i = 0; i < 3; ++i) EXPECT_EQ(call("StuffBag", {&bag, &handle}, nullptr), 0);
  EXPECT_EQ(call("StuffBagScalar", {&bag, elements<mreal>(reals)}, nullptr), 0);
  EXPECT_EQ(call("BagPart", {&bag, &all}, &slot), 0);
  results->value(bag);
  takeResult(0, slot, results);
  record->runtime->resetState(record);
}

void compareAndPrint(uint32_t seed, Results *results) {
  // Every seed has its own tolerance: the one that a comparison keeps must not be another thread's.
  const mreal tolerance = 8.0 + seed, x = 1.0 + seed;
  for (int bit = 0; bit < 30; ++bit) {
    const mreal y = x + x * ToleranceShiftFactor(bit);
    results->value(CompareDoubleDouble(tolerance, x, y));
    results->value(CompareFloatFloat(float(seed) + 0.5f, float(bit), float(bit) * 1.0001f));
    char *texts[] = {to_string_Real64(y), to_string_Integer64(-int64_t{seed} << bit),
                     to_string_ComplexReal64(y, -y)};
    for (char *text : texts) {
      results->add(text, std::strlen(text));
      to_string_free(text);
    }
  }
}

void shareScalars(uint32_t seed, Results *results) {
  for (mint slot = 0; slot < 3; ++slot) {
    const mreal real = seed + slot * 0.5;
    const mint integer = mint(seed) * 100 + slot;
    MTensor **held = LoadSharedRankZeroMTensor(&real, TORVANE_TYPE_REAL, slot);
    results->tensor(*LoadSharedRankZeroMTensor(&integer, TORVANE_TYPE_INTEGER, slot));
    results->tensor(*held);
  }
  results->value(checked_binary_pow_Integer64_Integer64(seed + 1, 12));
  results->value(checked_binary_plus_Integer32_Integer32(mint(seed), 1000));
}

// A table of the thread's own.
void keepStrings(uint32_t seed, Results *results) {
  Numbers numbers{seed};
  HashTable *table =
      HashTable_new(0, hashStringKey, copyStringKey, compareStringKey, nullptr, releaseStringKey);
  std::vector<std::string> keys;
  for (int i = 0; i < 200; ++i) keys.push_back(std::to_string(numbers.next() % 150));
  for (const std::string &key : keys) {
    const auto word = reinterpret_cast<uintptr_t>(key.c_str());
    mint wasInserted = 0;
    HashTable_findOrInsert(table, word, &wasInserted)->value += key.size();
    results->value(wasInserted);
    results->value(uint32_t(HashTable_get(table, word)));
  }
  results->value(HashTable_memorySize(table, nullptr));
  HashTable_clear(table, 1);
}

int64_t polynomial(int64_t x) { return x * x * 3 - x; }

void mapVector(uint32_t seed, Results *results) {
  std::vector<int64_t> source(5000), target(5000);
  std::iota(source.begin(), source.end(), int64_t{seed} * 1000);
  results->value(parallel_for_Integer64_Integer64(source.data(), 5000, target.data(), polynomial));
  results->add(target.data(), target.size() * sizeof target[0]);
}

using Activity = void (*)(uint32_t seed, Results *results);
constexpr Activity kActivities[] = {useBlocks,       drawAutomaton, drawTwister,     drawStreams,
                                    sortRows,        transpose,     computeElements, convertArrays,
                                    buildSparse,     callByName,    searchAndCount,  fillBags,
                                    compareAndPrint, shareScalars,  keepStrings,     mapVector};
static_assert(std::size(kActivities) == kActivityCount);

} // namespace

Results resultsOf(uint32_t activity, uint32_t seed) {
  Results results;
  kActivities[activity](seed, &results);
  return results;
}

// One real an element for each of the activities that draw.
uint32_t bytesKeptByActivities() {
  const auto drawing = std::count_if(std::begin(kActivities), std::end(kActivities), [](Activity activity) {
    return activity == drawAutomaton || activity == drawTwister || activity == drawStreams;
  });
  return uint32_t(drawing) * allocatedBytesFor(kComplexes * sizeof(mreal));
}

HostRecords::HostRecords() {
  for (TorvaneLibraryData *&record : records) record = TorvaneLibraryData_new(5);
}
HostRecords::~HostRecords() {
  for (TorvaneLibraryData *record : records) TorvaneLibraryData_free(record);
}

} // namespace torvane::test

// Many host threads in the library at once: each does a little of everything, and what each gets is bit for
// bit what one thread alone got for the same seed.
//
// Threads come in rounds and end; in the middle of its work each starts a short-lived one. They pass blocks,
// tensors and arrays through a post office, where another thread, often one that has come after the maker
// ended, looks them over and frees them. In the end no byte is out but the scratch that draws of complexes
// keep, and the walker finds every heap whole. Nothing here but the post office's lock and the start of a
// round orders one thread after another, so that the thread sanitizer sees what the library itself does.
#include "algorithms/hash_table.h"
#include "algorithms/named_call.h"
#include "arrays/conversion.h"
#include "arrays/sparse_array.h"
#include "four_workers.h"
#include "random/thread_number.h"
#include "runtime/heap_thread.h"
#include "runtime/memory.h"
#include "support/heap_walker.h"
#include "support/on_thread.h"
#include <torvane/torvane.h>

#include <algorithm>
#include <atomic>
#include <barrier>
#include <cstring>
#include <deque>
#include <functional>
#include <mutex>
#include <numeric>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

#if defined(__SANITIZE_THREAD__)
constexpr uint32_t kRounds = 2;
#elif defined(__SANITIZE_ADDRESS__)
constexpr uint32_t kRounds = 4;
#else
constexpr uint32_t kRounds = 16;
#endif
constexpr uint32_t kThreads = 8;

// ---- what a thread got, as bytes in the order in which it came ----

class Results {
public:
  void add(const void *data, size_t size) {
    const auto *first = static_cast<const char *>(data);
    bytes.insert(bytes.end(), first, first + size);
  }
  template <class Value> void value(Value x) { add(&x, sizeof x); }
  void tensor(const MTensor *tensor) {
    if (tensor == nullptr) return value(mint{-1});
    value(tensor->type);
    add(tensor->dimensions, size_t(tensor->rank) * sizeof(mint));
    add(tensor->data, size_t(tensor->elementCount) * size_t(MTensor_typeSizeTable[tensor->type]));
  }
  friend bool operator==(const Results &, const Results &) = default;
  std::vector<char> bytes;
};

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

struct Numbers {
  uint64_t state;
  uint32_t next() { return uint32_t((state = state * 6364136223846793005u + 1442695040888963407u) >> 33); }
};

Tensor realsOf(const Extents &extents, uint32_t seed) {
  Tensor tensor = newTensor(TORVANE_TYPE_REAL, extents);
  Numbers numbers{seed};
  for (mint i = 0; i < tensor->elementCount; ++i) elements<mreal>(tensor)[i] = numbers.next() % 20000 / 16.0;
  return tensor;
}

// ---- what a thread does ----

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

// A draw of complexes keeps its scratch for good, one real an element: what its callers know of it.
constexpr mint kComplexes = 50;
uint32_t bytesKeptByComplexes() { return allocatedBytesFor(kComplexes * sizeof(mreal)); }
constexpr uint32_t kDrawingActivities = 3;

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

MSparseArray *sparseOf(uint32_t seed) {
  Tensor matrix = realsOf({12, 20}, seed);
  for (mint i = 0; i < matrix->elementCount; ++i)
    if (i % 7 != mint(seed % 7)) elements<mreal>(matrix)[i] = 0;
  MSparseArray *sparse = nullptr;
  EXPECT_EQ(MSparseArray_fromTensor(matrix.get(), nullptr, &sparse), 0);
  return sparse;
}

void takeSparse(const MSparseArray *sparse, Results *results) {
  results->tensor(sparse->skeleton->rowPointers);
  results->tensor(sparse->skeleton->columnIndices);
  results->tensor(sparse->skeleton->values);
}

void buildSparse(uint32_t seed, Results *results) {
  MSparseArray *sparse = sparseOf(seed), *copy = MSparseArray_copy(sparse);
  takeSparse(sparse, results);
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

// One a host: a record is freed only when no other thread is in the library.
TorvaneLibraryData *records[kThreads];

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
constexpr uint32_t kActivityCount = sizeof kActivities / sizeof kActivities[0];

Results resultsOf(uint32_t activity, uint32_t seed) {
  Results results;
  kActivities[activity](seed, &results);
  return results;
}

// ---- the post office ----

// All of it made of its seed.
struct Parcel {
  uint32_t seed, maker;
  char *block, *text;
  MTensor *tensor;
  MNumericArray *array;
  MSparseArray *sparse;
};

uint32_t blockSizeOf(uint32_t seed) { return 1 + seed * 7919 % (seed % 11 == 0 ? 200000 : 1500); }

Parcel newParcel(uint32_t seed, uint32_t maker) {
  const mint extents[] = {3, 5};
  Parcel parcel = {seed,
                   maker,
                   static_cast<char *>(Malloc_fun(blockSizeOf(seed))),
                   to_string_UnsignedInteger32(seed),
                   realsOf({mint(10 + seed % 90)}, seed).release(),
                   Runtime_CreateNumericArray(TORVANE_ELEMENT_INTEGER16, 2, extents),
                   sparseOf(seed)};
  std::memset(parcel.block, int(seed & 127), blockSizeOf(seed));
  std::memset(parcel.array->data, int(seed & 127), 30);
  return parcel;
}

void openParcel(const Parcel &parcel) {
  const uint32_t size = blockSizeOf(parcel.seed);
  const char mark = char(parcel.seed & 127);
  EXPECT_EQ(std::count(parcel.block, parcel.block + size, mark), ptrdiff_t(size));
  EXPECT_EQ(parcel.text, std::to_string(parcel.seed));
  const auto *wide = static_cast<const char *>(parcel.array->data);
  EXPECT_EQ(std::count(wide, wide + 30, mark), 30);
  const Tensor tensor = realsOf({mint(10 + parcel.seed % 90)}, parcel.seed);
  MSparseArray *again = sparseOf(parcel.seed);
  Results expected, got;
  expected.tensor(tensor.get());
  got.tensor(parcel.tensor);
  takeSparse(again, &expected);
  takeSparse(parcel.sparse, &got);
  EXPECT_TRUE(got == expected) << parcel.seed;
  MSparseArray_delete(again);
  Free_fun(parcel.block);
  to_string_free(parcel.text);
  MTensor_delete(parcel.tensor);
  MNumericArray_delete(parcel.array);
  MSparseArray_delete(parcel.sparse);
}

class PostOffice {
public:
  void post(const Parcel &parcel) {
    const std::lock_guard guard(lock);
    parcels.push_back(parcel);
  }
  // Opens the oldest parcel that somebody else has made, if there is one.
  void collect(uint32_t reader) {
    if (std::optional<Parcel> parcel = take(reader)) {
      openParcel(*parcel);
      ++opened;
    }
  }
  size_t waiting() const { return parcels.size(); }
  std::atomic<int> opened{0};

private:
  std::optional<Parcel> take(uint32_t reader) {
    const std::lock_guard guard(lock);
    for (auto at = parcels.begin(); at != parcels.end(); ++at)
      if (at->maker != reader) {
        const Parcel parcel = *at;
        parcels.erase(at);
        return parcel;
      }
    return std::nullopt;
  }
  std::mutex lock;
  std::deque<Parcel> parcels;
};

// ---- the hosts ----

uint32_t sumOf(mint statistic, uint32_t *heaps) {
  uint32_t sum = 0;
  uint32_t *figures = heapStatistics(heaps, statistic);
  for (uint32_t i = 0; i < *heaps; ++i) sum += figures[i];
  torvane::free(figures);
  return sum;
}

// Bytes of blocks that nobody has freed, in all heaps; the figures themselves are one of them.
uint32_t liveBytes() {
  uint32_t heaps = 0;
  const uint32_t freedByOthers = sumOf(2, &heaps) + sumOf(3, &heaps), used = sumOf(0, &heaps);
  const auto figures = static_cast<uint32_t>(heaps * sizeof(uint32_t));
  return used - freedByOthers - heaps * kHeapOwnBytes - allocatedBytesFor(figures);
}

// Records of ended threads wait for new ones: as many as threads have lived at once.
void makeRecordsOfThreads(uint32_t count) {
  std::barrier all(count);
  std::vector<std::thread> threads;
  for (uint32_t k = 0; k < count; ++k)
    threads.emplace_back([&all] {
      const mreal zero = 0;
      LoadSharedRankZeroMTensor(&zero, TORVANE_TYPE_REAL, 0);
      threadNumber();
      all.arrive_and_wait();
    });
  for (std::thread &thread : threads) thread.join();
}

class ConcurrentHosts : public testing::Test {
protected:
  ConcurrentHosts() {
    InitializeRuntimeLibrary();
    workers.emplace();
    for (TorvaneLibraryData *&record : records) record = TorvaneLibraryData_new(5);
    onThread([this] {
      for (uint32_t seed = 0; seed < kThreads; ++seed)
        for (uint32_t activity = 0; activity < kActivityCount; ++activity)
          alone[seed].push_back(resultsOf(activity, seed));
    });
    makeRecordsOfThreads(2 * kThreads);
    before = liveBytes();
  }
  ~ConcurrentHosts() override {
    for (TorvaneLibraryData *record : records) TorvaneLibraryData_free(record);
  }

  // In an order of its own, and the latter part on a thread that comes and goes meanwhile.
  void work(uint32_t host, uint32_t round) {
    for (uint32_t step = 0; step < kActivityCount; ++step) {
      const uint32_t activity = (step + 3 * host + round) % kActivityCount;
      const auto act = [&] {
        EXPECT_TRUE(resultsOf(activity, host) == alone[host][activity])
            << "activity " << activity << " of host " << host;
        office.post(newParcel(1000 * round + 100 * host + step, host));
        office.collect(host);
      };
      if (step % 5 == 4)
        onThread(act);
      else
        act();
    }
    EXPECT_TRUE(isValidHere());
  }

  void runRound(uint32_t round) {
    std::barrier start(kThreads);
    std::vector<std::thread> hosts;
    for (uint32_t host = 0; host < kThreads; ++host)
      hosts.emplace_back([this, &start, host, round] {
        start.arrive_and_wait();
        work(host, round);
      });
    for (std::thread &host : hosts) host.join();
  }

  void expectNothingLeft() {
    const size_t waiting = office.waiting();
    for (size_t i = 0; i < waiting; ++i) office.collect(kThreads);
    EXPECT_EQ(office.opened, int(kRounds * kThreads * kActivityCount));
    EXPECT_TRUE(isValidHere());
    EXPECT_EQ(liveBytes(), before + kRounds * kThreads * kDrawingActivities * bytesKeptByComplexes());
    EXPECT_TRUE(isValidState());
  }

  std::optional<FourWorkers> workers;
  std::vector<Results> alone[kThreads];
  PostOffice office;
  uint32_t before = 0;
};

TEST_F(ConcurrentHosts, EachGetWhatOneThreadAloneGets) {
  for (uint32_t round = 0; round < kRounds; ++round) runRound(round);
  EXPECT_EQ(getExceptionActive(), 0);
  expectNothingLeft();
}

// ---- what several threads may do at once, each on its own ----

void runTogether(const std::function<void(uint32_t host)> &body) {
  std::barrier start(kThreads);
  std::vector<std::thread> hosts;
  for (uint32_t host = 0; host < kThreads; ++host)
    hosts.emplace_back([&, host] {
      start.arrive_and_wait();
      body(host);
    });
  for (std::thread &host : hosts) host.join();
}

TEST(ConcurrentStreams, GetNumbersThatNobodyElseGets) {
  constexpr size_t kEach = 128; // times the threads: all 1024 there are
  std::vector<mint> numbers[kThreads];
  runTogether([&](uint32_t host) {
    for (size_t i = 0; i < kEach; ++i) numbers[host].push_back(PMT32_getNextIndex());
  });
  std::set<mint> all;
  for (const std::vector<mint> &some : numbers) all.insert(some.begin(), some.end());
  EXPECT_EQ(all.size(), kEach * kThreads);
  EXPECT_EQ(*all.begin(), 0);
  EXPECT_EQ(*all.rbegin(), 1023);
}

constexpr mint kBeside[] = {0, 1};
mreal totalOf(const Tensor &reals) {
  mreal total = 0;
  EXPECT_EQ(machfunc_d_total(&total, elements<mreal>(reals), reals->elementCount, kBeside, 0), 0);
  return total;
}

// Whoever finds the pool taken adds from left to right.
TEST(ConcurrentTotals, AreThoseOfAllWorkersOrOfOne) {
  InitializeRuntimeLibrary();
  const FourWorkers workers;
  Tensor reals = realsOf({50000}, 5);
  for (mint i = 0; i < reals->elementCount; ++i) elements<mreal>(reals)[i] /= 3;
  const mreal ofWorkers = totalOf(reals);
  const mint enabled = setParallelDisabled(1);
  const mreal ofOne = totalOf(reals);
  setParallelDisabled(enabled);
  ASSERT_NE(ofOne, ofWorkers) << "or the test tells nothing";
  runTogether([&](uint32_t) {
    for (int i = 0; i < 40; ++i) {
      const mreal total = totalOf(reals);
      ASSERT_TRUE(total == ofWorkers || total == ofOne) << total;
    }
  });
}

struct Raiser {
  void (*run)(void *argument, void *closure);
  int16_t operand;
};

// Holds a tensor while it raises: 1 below -32000, 42 above 100, else nothing.
void castAndAdd(void *argument, void *closure) {
  const Raiser *self = *static_cast<Raiser **>(closure);
  const Tensor held = newTensor(TORVANE_TYPE_REAL, {100});
  const int16_t sum = checked_binary_plus_Integer16_Integer16(self->operand, -700);
  *static_cast<int8_t *>(argument) = integer_safe_cast_Integer16_Integer8(int16_t(sum + 700));
}

// The one style in which every thread may raise whenever it likes.
TEST(ConcurrentRaises, OfTheThrowingStyleReachTheirOwnHandlers) {
  setExceptionStyle(0);
  runTogether([](uint32_t host) {
    const uint32_t used = (torvane::free(allocate(8, 0, kFatal)), usedBytesOfThisThread());
    for (int i = 0; i < 200; ++i) {
      const int16_t operands[] = {-32700, 5000, int16_t(host)};
      Raiser raiser = {castAndAdd, operands[(uint32_t(i) + host) % 3]}, *closure = &raiser;
      int8_t result = -1;
      CompilerError *error = catchExceptionHandler(&result, &closure);
      const mint code = error == nullptr ? 0 : error->code;
      Delete_CompilerError(error);
      ASSERT_EQ(code, raiser.operand < -32000 ? 1 : raiser.operand > 100 ? 42 : 0);
      ASSERT_EQ(result, code == 0 ? mint(host) : -1);
      ASSERT_EQ(usedBytesOfThisThread(), used);
    }
  });
  setExceptionStyle(1);
  EXPECT_EQ(getExceptionActive(), 0);
}

} // namespace

// The table's core: sizing, growth and shrinking at their exact moments, duplicates, callbacks, clearing, a
// heap that fails, and random operations against a plain list that keeps everything in order of insertion.
#include "algorithms/hash_table.h"
#include "algorithms/hash_table_settings.h"
#include "runtime/memory.h"
#include "support/child_process.h"
#include "support/failing_heap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

using namespace torvane;

namespace {

HashTable *plainTable(mint hint) { return HashTable_new(hint, nullptr, nullptr, nullptr, nullptr, nullptr); }

uintptr_t wordOf(const char *text) { return reinterpret_cast<uintptr_t>(text); }

class Table : public testing::Test {
protected:
  Table() : usedBefore(usedBytesOfThisThread()) {}
  ~Table() override {
    if (table != nullptr) {
      EXPECT_TRUE(isValidHashTable(table));
      HashTable_clear(table, 1);
    }
    EXPECT_EQ(usedBytesOfThisThread(), usedBefore);
  }
  uint32_t usedBefore;
  HashTable *table = nullptr;
};

TEST(HashPrimes, AreTheThirtyTwoOfTheList) {
  const std::vector<mint> expected = {
      3,        5,        7,        11,        17,        31,        67,         127,
      257,      521,      1031,     2053,      4099,      8191,      16411,      32771,
      65537,    131071,   262147,   524287,    1048583,   2097169,   4194319,    8388617,
      16777259, 33554467, 67108879, 134217757, 268435459, 536870923, 1073741827, 2147483647};
  EXPECT_EQ(std::vector<mint>(kHashPrimes, kHashPrimes + kHashPrimeCount), expected);
}

TEST(HashPrimes, AreOddAndPrime) {
  for (const mint prime : kHashPrimes)
    for (mint divisor = 2; divisor <= 46340 && divisor < prime; ++divisor)
      ASSERT_NE(prime % divisor, 0) << prime;
}

// The size of a new table, by the rule as it is said.
mint bucketsFor(mint hint) {
  int64_t magnitude = hint < 0 ? -int64_t{hint} : hint, index = 0;
  for (; magnitude > 0; magnitude /= 2) ++index;
  index = std::min<int64_t>(index, 31);
  if (kHashPrimes[index] < hint) ++index;
  return kHashPrimes[std::clamp<int64_t>(index, 2, 31)];
}

TEST_F(Table, SizeFollowsTheHint) {
  const std::map<mint, mint> known = {{0, 7},  {1, 7},   {2, 7},   {3, 7},     {4, 11},   {7, 11},
                                      {8, 17}, {31, 31}, {32, 67}, {127, 127}, {128, 257}};
  for (auto [hint, buckets] : known) {
    EXPECT_EQ(bucketsFor(hint), buckets) << hint;
    HashTable *made = plainTable(hint);
    EXPECT_EQ(made->bucketCount, buckets) << hint;
    HashTable_clear(made, 1);
  }
  for (mint hint = -600; hint < 9000; ++hint) {
    HashTable *made = plainTable(hint);
    ASSERT_EQ(made->bucketCount, bucketsFor(hint)) << hint;
    ASSERT_EQ(made->initialBucketCount, made->bucketCount);
    ASSERT_EQ(made->initialPrimeIndex, made->primeIndex);
    ASSERT_EQ(kHashPrimes[made->primeIndex], made->bucketCount);
    HashTable_clear(made, 1);
  }
}

TEST_F(Table, NewTableIsEmptyWithAllItsFlags) {
  table = plainTable(0);
  EXPECT_EQ(table->count, 0);
  EXPECT_EQ(table->flags, 14);
  EXPECT_EQ(table->releaseTable, nullptr);
  for (mint i = 0; i < table->bucketCount; ++i) EXPECT_EQ(table->buckets[i], nullptr);
}

// Their bytes do not fit the 32 bits of a size on either target.
TEST(HashTableDeath, TableOfTheLargestPrimeIsTheFatalPath) {
  const test::ChildOutcome child = test::runInChild([] { plainTable(0x7fffffff); });
  EXPECT_TRUE(child.exited);
  EXPECT_EQ(child.status, 1);
}

TEST(HashTableDeath, NodeWithoutMemoryIsTheFatalPath) {
  const test::ChildOutcome child = test::runInChild([] {
    HashTable *table = plainTable(0);
    test::FailingHeap heap;
    heap.failFrom(1);
    for (uintptr_t key = 0; key < 1000000; ++key) HashTable_insert(table, key); // until the slab is used up
  });
  EXPECT_TRUE(child.exited);
  EXPECT_EQ(child.status, 1);
}

TEST_F(Table, NodeStartsWithItsKeyAndAValueOfZero) {
  table = plainTable(0);
  HashNode *node = HashTable_insert(table, 12345);
  EXPECT_EQ(node->key, 12345u);
  EXPECT_EQ(node->value, 0u);
  EXPECT_EQ(node->hash, 12345u);
  EXPECT_EQ(HashTable_insertValue(table, 7, 70)->value, 70u);
  EXPECT_EQ(HashTable_get(table, 7), 70u);
  EXPECT_EQ(HashTable_get(table, 8), 0u);
  EXPECT_EQ(HashTable_find(table, 8), nullptr);
  EXPECT_EQ(HashTable_find(table, 12345), node);
}

TEST_F(Table, TableOfSevenGrowsToElevenAtTheFifteenthNode) {
  table = plainTable(0);
  for (uintptr_t key = 1; key <= 14; ++key) HashTable_insert(table, key);
  EXPECT_EQ(table->bucketCount, 7);
  HashTable_insert(table, 15);
  EXPECT_EQ(table->bucketCount, 11);
  EXPECT_EQ(table->primeIndex, 3);
  EXPECT_EQ(table->initialBucketCount, 7);
  EXPECT_EQ(table->initialPrimeIndex, 2);
}

TEST_F(Table, GrowsOneStepAtATimeWhenTheLoadPassesTwo) {
  table = plainTable(0);
  mint index = 2;
  for (mint count = 1; count <= 5000; ++count) {
    if (count > 2 * kHashPrimes[index]) ++index;
    HashTable_insert(table, static_cast<uintptr_t>(count) * 2654435761u);
    ASSERT_EQ(table->bucketCount, kHashPrimes[index]) << count;
  }
  EXPECT_TRUE(isValidHashTable(table));
}

TEST_F(Table, ShrinksOneStepWheneverARemovalLeavesLessThanHalf) {
  table = plainTable(31);
  for (uintptr_t key = 0; key < 600; ++key) HashTable_insert(table, key);
  ASSERT_EQ(table->bucketCount, 521);
  mint index = table->primeIndex;
  for (uintptr_t key = 0; key < 600; ++key) {
    ASSERT_EQ(HashTable_remove(table, key), 1);
    if (kHashPrimes[index] > 31 && 2 * table->count < kHashPrimes[index]) --index;
    ASSERT_EQ(table->bucketCount, kHashPrimes[index]) << table->count;
  }
  EXPECT_EQ(table->bucketCount, 31);
}

TEST_F(Table, NeverShrinksBelowItsInitialSize) {
  table = plainTable(1000);
  const mint initial = table->bucketCount;
  HashTable_insert(table, 1);
  HashTable_remove(table, 1);
  EXPECT_EQ(table->bucketCount, initial);
}

TEST_F(Table, FlagsWithoutTheirBitsKeepTheSize) {
  table = plainTable(0);
  table->flags = kTableUnreadBit | kTableShrinks;
  for (uintptr_t key = 0; key < 100; ++key) HashTable_insert(table, key);
  EXPECT_EQ(table->bucketCount, 7);
  table->flags = kTableGrows;
  HashTable_insert(table, 100);
  EXPECT_EQ(table->bucketCount, 11);
  for (uintptr_t key = 0; key < 100; ++key) HashTable_remove(table, key);
  EXPECT_EQ(table->bucketCount, 11);
}

TEST_F(Table, LatestOfEqualKeysIsFoundFirstAndOnceRemovedTheEarlierAgain) {
  table = plainTable(0);
  HashNode *first = HashTable_insertValue(table, 5, 1);
  HashNode *second = HashTable_insertValue(table, 5, 2);
  EXPECT_NE(first, second);
  EXPECT_EQ(table->count, 2);
  EXPECT_EQ(HashTable_find(table, 5), second);
  EXPECT_EQ(HashTable_remove(table, 5), 1);
  EXPECT_EQ(HashTable_find(table, 5), first);
  EXPECT_EQ(HashTable_remove(table, 5), 1);
  EXPECT_EQ(HashTable_remove(table, 5), 0);
}

TEST_F(Table, RemovalByNodeTakesTheFirstEqualNodeAndNotTheOneGiven) {
  table = plainTable(0);
  HashNode *first = HashTable_insertValue(table, 5, 1);
  HashTable_insertValue(table, 5, 2);
  EXPECT_EQ(HashTable_removeNode(table, first), 1);
  EXPECT_EQ(HashTable_find(table, 5), first);
  EXPECT_EQ(HashTable_get(table, 5), 1u);
}

TEST_F(Table, RemovalByANodeOfAnotherTableFindsItsEqualOrNothing) {
  table = plainTable(0);
  HashTable *other = plainTable(0);
  const HashNode *five = HashTable_insert(other, 5);
  EXPECT_EQ(HashTable_removeNode(table, five), 0);
  HashTable_insert(table, 5);
  EXPECT_EQ(HashTable_removeNode(table, five), 1);
  EXPECT_EQ(table->count, 0);
  HashTable_clear(other, 1);
}

TEST_F(Table, FindOrInsertTellsWhichItDid) {
  table = plainTable(0);
  mint inserted = -1;
  HashNode *node = HashTable_findOrInsert(table, 5, &inserted);
  EXPECT_EQ(inserted, 1);
  EXPECT_EQ(HashTable_findOrInsert(table, 5, &inserted), node);
  EXPECT_EQ(inserted, 0);
  EXPECT_EQ(HashTable_findOrInsert(table, 5, nullptr), node);
  EXPECT_EQ(table->count, 1);
}

// Addresses differ in bits beyond the lowest 32 where pointers have 64: they stay different keys.
TEST_F(Table, WholeWordIsTheHashOfAKeyWithoutAHashFunction) {
  table = plainTable(0);
  const uintptr_t far = uintptr_t{1} << (sizeof(void *) * 8 - 4);
  HashTable_insertValue(table, 16, 1);
  HashTable_insertValue(table, far + 16, 2);
  EXPECT_EQ(HashTable_get(table, 16), 1u);
  EXPECT_EQ(HashTable_get(table, far + 16), 2u);
  for (uintptr_t i = 0; i < 100; ++i) HashTable_insertValue(table, far + 32 + i, i);
  EXPECT_TRUE(isValidHashTable(table));
}

uint32_t sameHash(const uintptr_t *) { return 4711; }
mint sameWord(const HashNode *node, const uintptr_t *key) { return node->key == *key; }
mint never(const HashNode *, const uintptr_t *) { return 0; }

TEST_F(Table, ComparisonTellsKeysOfOneHashApart) {
  table = HashTable_new(0, sameHash, nullptr, sameWord, nullptr, nullptr);
  for (uintptr_t key = 0; key < 50; ++key) HashTable_insertValue(table, key, key + 1);
  for (uintptr_t key = 0; key < 50; ++key) EXPECT_EQ(HashTable_get(table, key), key + 1);
  EXPECT_EQ(HashTable_remove(table, 25), 1);
  EXPECT_EQ(HashTable_find(table, 25), nullptr);
  EXPECT_EQ(HashTable_get(table, 26), 27u);
}

TEST_F(Table, EqualHashesAreEqualKeysWithoutAComparison) {
  table = HashTable_new(0, sameHash, nullptr, nullptr, nullptr, nullptr);
  HashNode *node = HashTable_insert(table, 1);
  EXPECT_EQ(HashTable_find(table, 2), node);
  EXPECT_EQ(HashTable_findOrInsert(table, 3, nullptr), node);
  EXPECT_EQ(HashTable_remove(table, 4), 1);
}

TEST_F(Table, WithoutAHashFunctionLookupIgnoresTheComparisonAndFindOrInsertAsksIt) {
  table = HashTable_new(0, nullptr, nullptr, never, nullptr, nullptr);
  HashNode *first = HashTable_insert(table, 1);
  EXPECT_EQ(HashTable_find(table, 1), first);
  mint inserted = 0;
  EXPECT_NE(HashTable_findOrInsert(table, 1, &inserted), first);
  EXPECT_EQ(inserted, 1);
  EXPECT_EQ(HashTable_removeNode(table, first), 1);
  EXPECT_EQ(table->count, 1);
}

std::vector<std::string> events;
void noteInitialize(HashNode *node) {
  EXPECT_EQ(node->key, 0u);
  EXPECT_EQ(node->value, 0u);
  EXPECT_NE(node->hash, 0u);
  events.push_back("initialize");
}
void noteCopy(HashNode *node, const uintptr_t *key) {
  node->key = *key + 1000;
  events.push_back("copy");
}
void noteRelease(HashNode *node) { events.push_back("release " + std::to_string(node->key)); }
void noteTable(HashTable *) { events.push_back("table"); }
uint32_t hashOfHundreds(const uintptr_t *key) { return static_cast<uint32_t>(*key % 1000 / 100 + 1); }

TEST_F(Table, CallbacksRunInTheirOrder) {
  events.clear();
  HashTable *made = HashTable_new(0, hashOfHundreds, noteCopy, nullptr, noteInitialize, noteRelease);
  made->releaseTable = noteTable;
  EXPECT_EQ(HashTable_insert(made, 100)->key, 1100u);
  HashTable_insert(made, 200);
  HashTable_remove(made, 100);
  HashTable_clear(made, 1);
  EXPECT_EQ(events, (std::vector<std::string>{"initialize", "copy", "initialize", "copy", "release 1100",
                                              "release 1200", "table"}));
}

int keyCalls;
uint32_t countedHash(const uintptr_t *key) { return ++keyCalls, static_cast<uint32_t>(*key * 2654435761u); }
void countedCopy(HashNode *node, const uintptr_t *key) { ++keyCalls, node->key = *key; }
mint countedCompare(const HashNode *node, const uintptr_t *key) { return ++keyCalls, node->key == *key; }

TEST_F(Table, ResizeAsksNoKeyCallback) {
  table = HashTable_new(0, countedHash, countedCopy, countedCompare, nullptr, nullptr);
  keyCalls = 0;
  for (uintptr_t key = 0; key < 1000; ++key) HashTable_insert(table, key);
  EXPECT_EQ(keyCalls, 2000); // one hash and one copy a key, through eight resizes
  EXPECT_TRUE(isValidHashTable(table));
}

TEST_F(Table, ComparisonIsAskedOnlyForEqualHashes) {
  table = HashTable_new(1000, countedHash, countedCopy, countedCompare, nullptr, nullptr);
  for (uintptr_t key = 0; key < 1000; ++key) HashTable_insert(table, key);
  keyCalls = 0;
  for (uintptr_t key = 0; key < 1000; ++key) ASSERT_NE(HashTable_find(table, key), nullptr);
  EXPECT_EQ(keyCalls, 2000);
}

TEST_F(Table, RemovalByNodeTakesTheHashFromTheNode) {
  table = HashTable_new(0, countedHash, countedCopy, countedCompare, nullptr, nullptr);
  const HashNode *node = HashTable_insert(table, 5);
  keyCalls = 0;
  EXPECT_EQ(HashTable_removeNode(table, node), 1);
  EXPECT_EQ(keyCalls, 1); // one comparison, no hash
}

std::vector<uintptr_t> keysInOrder(HashTable *table) {
  std::vector<uintptr_t> keys;
  HashTable_forEach(
      table,
      [](HashNode *node, void *argument) -> mint {
        static_cast<std::vector<uintptr_t> *>(argument)->push_back(node->key);
        return 0;
      },
      &keys);
  return keys;
}

TEST_F(Table, ForEachWalksTheBucketsInOrderAndEachChainFromItsLatest) {
  table = plainTable(0);
  for (uintptr_t key : {0u, 7u, 14u, 3u, 10u, 6u, 1u}) HashTable_insert(table, key);
  EXPECT_EQ(keysInOrder(table), (std::vector<uintptr_t>{14, 7, 0, 1, 10, 3, 6}));
}

TEST_F(Table, ResizeMovesNodesToTheHeadsOfTheirNewChainsInBucketOrder) {
  table = plainTable(0);
  for (uintptr_t key : {0u, 11u, 22u, 33u, 77u, 154u}) HashTable_insert(table, key);
  // In seven buckets: 0: 154 77 0, 1: 22, 4: 11, 5: 33. All of them meet in one bucket of eleven.
  for (uintptr_t key = 1; key <= 9; ++key) HashTable_insert(table, key);
  ASSERT_EQ(table->bucketCount, 11);
  const std::vector<uintptr_t> keys = keysInOrder(table);
  EXPECT_EQ(std::vector<uintptr_t>(keys.begin(), keys.begin() + 6),
            (std::vector<uintptr_t>{33, 11, 22, 0, 77, 154}));
}

TEST_F(Table, ForEachStopsAtTheFirstNonZeroResult) {
  table = plainTable(0);
  for (uintptr_t key = 0; key < 6; ++key) HashTable_insert(table, key);
  struct Walk {
    int visits;
    uintptr_t last;
  } walk = {0, 0};
  const NodeVisitor untilThree = [](HashNode *node, void *argument) -> mint {
    auto *seen = static_cast<Walk *>(argument);
    ++seen->visits;
    seen->last = node->key;
    return node->key == 3 ? -5 : 0;
  };
  EXPECT_EQ(HashTable_forEach(table, untilThree, &walk), 1);
  EXPECT_EQ(walk.visits, 4);
  EXPECT_EQ(walk.last, 3u);
}

TEST_F(Table, VisitorMayRemoveItsNode) {
  table = plainTable(1000);
  for (uintptr_t key = 0; key < 1000; ++key) HashTable_insert(table, key);
  const NodeVisitor removeEven = [](HashNode *node, void *argument) -> mint {
    if (node->key % 2 == 0) HashTable_removeNode(static_cast<HashTable *>(argument), node);
    return 0;
  };
  EXPECT_EQ(HashTable_forEach(table, removeEven, table), 0);
  EXPECT_EQ(table->count, 500);
  for (const uintptr_t key : keysInOrder(table)) EXPECT_EQ(key % 2, 1u);
}

TEST_F(Table, VisitorMayFreeItsNodeOutright) {
  HashTable *made = plainTable(0);
  for (uintptr_t key = 0; key < 14; ++key) HashTable_insert(made, key);
  EXPECT_EQ(HashTable_forEach(
                made, [](HashNode *node, void *) -> mint { return torvane::free(node), 0; }, nullptr),
            0);
  made->count = 0; // the visitor's doing: nothing is left to release
  HashTable_clear(made, 1);
}

TEST_F(Table, ClearReleasesTheNodesAndKeepsAnUngrownTable) {
  table = HashTable_new(0, nullptr, nullptr, nullptr, nullptr, noteRelease);
  for (uintptr_t key = 0; key < 10; ++key) HashTable_insert(table, key);
  events.clear();
  HashNode **buckets = table->buckets;
  HashTable_clear(table, 0);
  EXPECT_EQ(events.size(), 10u);
  EXPECT_EQ(table->count, 0);
  EXPECT_EQ(table->buckets, buckets);
  HashTable_insertValue(table, 3, 33);
  EXPECT_EQ(HashTable_get(table, 3), 33u);
}

TEST_F(Table, ClearReturnsAGrownTableToItsInitialSize) {
  table = plainTable(31);
  for (uintptr_t key = 0; key < 500; ++key) HashTable_insert(table, key);
  ASSERT_GT(table->bucketCount, 31);
  HashTable_clear(table, 0);
  EXPECT_EQ(table->bucketCount, 31);
  EXPECT_EQ(table->primeIndex, 5);
  EXPECT_EQ(table->count, 0);
  EXPECT_TRUE(isValidHashTable(table));
  for (uintptr_t key = 0; key < 500; ++key) HashTable_insertValue(table, key, key);
  EXPECT_EQ(HashTable_get(table, 499), 499u);
}

TEST_F(Table, ClearOfAnEmptyTableDoesNothingEvenToAGrownOne) {
  table = plainTable(0);
  table->flags &= ~kTableShrinks;
  for (uintptr_t key = 0; key < 100; ++key) HashTable_insert(table, key);
  for (uintptr_t key = 0; key < 100; ++key) HashTable_remove(table, key);
  const mint grown = table->bucketCount;
  ASSERT_GT(grown, 7);
  HashTable_clear(table, 0);
  EXPECT_EQ(table->bucketCount, grown);
}

TEST_F(Table, MemorySizeCountsTableBucketsNodesAndWhatTheCallbackSays) {
  EXPECT_EQ(HashTable_memorySize(nullptr, nullptr), 0u);
  table = plainTable(0);
  const auto word = uint32_t{sizeof(void *)};
  const uint32_t empty = uint32_t{sizeof(HashTable)} + 7 * word;
  EXPECT_EQ(HashTable_memorySize(table, nullptr), empty);
  for (uintptr_t key = 0; key < 5; ++key) HashTable_insert(table, key);
  EXPECT_EQ(HashTable_memorySize(table, nullptr), empty + 5 * 4 * word);
  EXPECT_EQ(HashTable_memorySize(table,
                                 [](const HashNode *node) { return static_cast<uint32_t>(node->key) * 100; }),
            empty + 5 * 4 * word + 1000);
}

TEST(HashTableMemorySize, AsksNoNodeOfATableWithoutBuckets) {
  HashTable bare = {};
  bare.bucketCount = 7;
  const NodeSizeFunction never = [](const HashNode *) { return 1000u; };
  EXPECT_EQ(HashTable_memorySize(&bare, never), sizeof(HashTable) + 7 * sizeof(HashNode *));
}

// A process heap that has small blocks, for the nodes, and no big ones, for the buckets.
int refusals;
void *takeSmallOnly(size_t bytes) {
  if (bytes < 100000) return platformProcessHeap.take(bytes);
  ++refusals;
  return nullptr;
}
ProcessHeap heapOfSmallBlocks() {
  ProcessHeap heap = platformProcessHeap;
  heap.take = takeSmallOnly;
  return heap;
}

// Takes all blocks of so many bytes that heaps have kept from tests before, while new ones are refused.
class DrainedOfBlocks {
public:
  explicit DrainedOfBlocks(uint32_t bytes) {
    while (void *block = allocate(bytes, 0, kQuiet)) blocks.push_back(block);
  }
  ~DrainedOfBlocks() {
    for (void *block : blocks) torvane::free(block);
  }
  DrainedOfBlocks(const DrainedOfBlocks &) = delete;
  DrainedOfBlocks &operator=(const DrainedOfBlocks &) = delete;

private:
  std::vector<void *> blocks;
};

TEST_F(Table, ResizeThatCannotHaveItsBucketsLeavesTheTableAsItWas) {
  table = plainTable(16000);
  ASSERT_EQ(table->bucketCount, 16411);
  for (uintptr_t key = 0; key < 2 * 16411; ++key) HashTable_insertValue(table, key, key + 1);
  HashNode **const buckets = table->buckets;
  const ProcessHeap smallOnly = heapOfSmallBlocks();
  processHeap = &smallOnly;
  const DrainedOfBlocks drained(32771 * sizeof(HashNode *));
  refusals = 0;
  for (uintptr_t key = 2 * 16411; key < 2 * 16411 + 100; ++key) HashTable_insertValue(table, key, key + 1);
  processHeap = &platformProcessHeap;
  EXPECT_EQ(refusals, 100); // each of these insertions tried to grow
  EXPECT_EQ(table->buckets, buckets);
  EXPECT_EQ(table->bucketCount, 16411);
  EXPECT_EQ(table->primeIndex, 14);
  EXPECT_TRUE(isValidHashTable(table));
  for (uintptr_t key = 0; key < 2 * 16411 + 100; ++key) ASSERT_EQ(HashTable_get(table, key), key + 1);
  HashTable_insert(table, 40000);
  EXPECT_EQ(table->bucketCount, 32771);
}

// A limit on the thread's heap refuses requests that may fail quietly, and those alone.
TEST_F(Table, TableUnderALimitStopsGrowingAndStaysComplete) {
  table = plainTable(0);
  setLimitOfThisThread(1);
  for (uintptr_t key = 0; key < 500; ++key) HashTable_insertValue(table, key, key + 1);
  const mint limited = table->bucketCount;
  setLimitOfThisThread(0);
  EXPECT_EQ(limited, 7);
  EXPECT_TRUE(isValidHashTable(table));
  for (uintptr_t key = 0; key < 500; ++key) ASSERT_EQ(HashTable_get(table, key), key + 1);
  HashTable_insert(table, 500);
  EXPECT_EQ(table->bucketCount, 11);
}

class StringTable : public Table {
protected:
  StringTable() {
    table = HashTable_new(31, hashStringKey, copyStringKey, compareStringKey, nullptr, releaseStringKey);
  }
  ~StringTable() override { setHashFunction("Murmur3"); }
};

TEST_F(StringTable, KeysAreCopiedAndComparedByContent) {
  char name[] = "alpha";
  HashTable_insertValue(table, wordOf(name), 1);
  name[0] = 'A';
  EXPECT_EQ(HashTable_get(table, wordOf("alpha")), 1u);
  EXPECT_EQ(HashTable_get(table, wordOf(name)), 0u);
  EXPECT_EQ(HashTable_get(table, wordOf("alph")), 0u);
  EXPECT_EQ(HashTable_get(table, wordOf("alphab")), 0u);
}

TEST_F(StringTable, EmptyStringHashesAsNoBytesAndEqualsOnlyItself) {
  HashNode *node = HashTable_insert(table, wordOf(""));
  EXPECT_EQ(node->hash, hashMurmur3(nullptr, 0));
  EXPECT_EQ(HashTable_find(table, wordOf("")), node);
  EXPECT_EQ(HashTable_find(table, wordOf("a")), nullptr);
}

TEST_F(StringTable, HashLeavesOutTheTerminatorAndTakesTheSelectedFunction) {
  EXPECT_EQ(HashTable_insert(table, wordOf("abc"))->hash, hashMurmur3("abc", 3));
  setHashFunction("SIP24");
  EXPECT_EQ(HashTable_insert(table, wordOf("abcd"))->hash, hashSip24("abcd", 4));
}

TEST_F(StringTable, HoldsManyNames) {
  for (int i = 0; i < 2000; ++i)
    HashTable_insertValue(table, wordOf(("name" + std::to_string(i)).c_str()), static_cast<uintptr_t>(i) + 1);
  for (int i = 0; i < 2000; ++i)
    ASSERT_EQ(HashTable_get(table, wordOf(("name" + std::to_string(i)).c_str())),
              static_cast<uintptr_t>(i) + 1);
  for (int i = 0; i < 2000; i += 2)
    ASSERT_EQ(HashTable_remove(table, wordOf(("name" + std::to_string(i)).c_str())), 1);
  EXPECT_EQ(table->count, 1000);
}

// The model keeps (key, value) pairs in order of insertion; the latest equal one is found, and removed,
// first.
struct Model {
  std::multimap<uintptr_t, uintptr_t> pairs; // equal keys stay in order of insertion

  std::multimap<uintptr_t, uintptr_t>::iterator latest(uintptr_t key) {
    auto [first, end] = pairs.equal_range(key);
    return first == end ? pairs.end() : std::prev(end);
  }
};

void expectSameContent(HashTable *table, const Model &model) {
  std::vector<std::pair<uintptr_t, uintptr_t>> ours;
  HashTable_forEach(
      table,
      [](HashNode *node, void *argument) -> mint {
        static_cast<std::vector<std::pair<uintptr_t, uintptr_t>> *>(argument)->emplace_back(node->key,
                                                                                            node->value);
        return 0;
      },
      &ours);
  std::vector<std::pair<uintptr_t, uintptr_t>> theirs(model.pairs.begin(), model.pairs.end());
  std::sort(ours.begin(), ours.end());
  std::sort(theirs.begin(), theirs.end());
  ASSERT_EQ(ours, theirs);
}

// Resizes reverse chains, so among equal keys only the table that never resized finds the latest first; with
// distinct keys the model is exact for all.
void runAgainstModel(HashTable *table, uint32_t seed, bool withDuplicates) {
  std::mt19937 random(seed);
  Model model;
  for (int step = 0; step < 20000; ++step) {
    const uintptr_t key = random() % (step < 10000 ? 2000 : 200);
    const uintptr_t value = random();
    const auto found = model.latest(key);
    const bool present = found != model.pairs.end();
    switch (random() % (step < 8000 ? 6 : 8)) {
    case 0:
    case 1: {
      mint inserted = -1;
      HashNode *node = HashTable_findOrInsert(table, key, &inserted);
      ASSERT_EQ(inserted, !present);
      if (inserted) {
        node->value = value;
        model.pairs.emplace(key, value);
      } else
        ASSERT_EQ(node->value, found->second);
      break;
    }
    case 2:
      if (withDuplicates || !present) {
        HashTable_insertValue(table, key, value);
        model.pairs.emplace(key, value);
      }
      break;
    case 3:
      ASSERT_EQ(HashTable_get(table, key), present ? found->second : 0);
      break;
    case 4:
      ASSERT_EQ(HashTable_find(table, key) != nullptr, present);
      break;
    case 5:
      if (HashNode *node = HashTable_find(table, key); node != nullptr) {
        ASSERT_EQ(HashTable_removeNode(table, node), 1);
        model.pairs.erase(found);
      }
      break;
    default:
      ASSERT_EQ(HashTable_remove(table, key), present);
      if (present) model.pairs.erase(found);
    }
    ASSERT_EQ(table->count, mint(model.pairs.size()));
    if (step % 500 == 0) {
      ASSERT_TRUE(isValidHashTable(table));
      expectSameContent(table, model);
    }
    if (random() % 5000 == 0) {
      HashTable_clear(table, 0);
      model.pairs.clear();
    }
  }
  expectSameContent(table, model);
}

TEST_F(Table, AgreesWithTheModelUnderRandomOperationsOnPlainKeys) {
  for (uint32_t seed = 1; seed <= 4; ++seed) {
    HashTable *made = plainTable(static_cast<mint>(seed * 20));
    runAgainstModel(made, seed, false);
    HashTable_clear(made, 1);
  }
}

TEST_F(Table, AgreesWithTheModelUnderRandomOperationsOnHashedKeys) {
  for (uint32_t seed = 5; seed <= 8; ++seed) {
    HashTable *made = HashTable_new(0, hashOfHundreds, nullptr, sameWord, nullptr, nullptr);
    runAgainstModel(made, seed, false);
    HashTable_clear(made, 1);
  }
}

TEST_F(Table, AgreesWithTheModelWithEqualKeysWhileItsSizeIsFixed) {
  for (uint32_t seed = 9; seed <= 12; ++seed) {
    HashTable *made = HashTable_new(300, countedHash, nullptr, countedCompare, nullptr, nullptr);
    made->flags = kTableUnreadBit;
    runAgainstModel(made, seed, true);
    EXPECT_EQ(made->bucketCount, made->initialBucketCount);
    HashTable_clear(made, 1);
  }
}

} // namespace

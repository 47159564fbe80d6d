// The core of the hash table; the interface and its invariants are in hash_table.h.
//
// A lookup walks links (the slots that hold a node's address) so that finding and unlinking share one walk.
#include "hash_table.h"

#include "../runtime/memory.h"
#include "hash_table_settings.h"

#include <bit>
#include <cstring>

namespace torvane {

static_assert(sizeof(HashNode) == 4 * sizeof(void *));
static_assert(sizeof(void *) != 4 || sizeof(HashTable) == 52);

// A little above powers of two, so that a step changes the count by about two.
const mint kHashPrimes[kHashPrimeCount] = {
    3,        5,        7,        11,        17,        31,        67,         127,
    257,      521,      1031,     2053,      4099,      8191,      16411,      32771,
    65537,    131071,   262147,   524287,    1048583,   2097169,   4194319,    8388617,
    16777259, 33554467, 67108879, 134217757, 268435459, 536870923, 1073741827, 2147483647,
};

namespace {

constexpr mint kSmallestIndex = 2;
constexpr mint kLargestIndex = kHashPrimeCount - 1;

mint clampIndex(mint index) {
  return index < kSmallestIndex ? kSmallestIndex : index > kLargestIndex ? kLargestIndex : index;
}

mint primeIndexOf(mint hint) {
  const uint32_t magnitude = hint < 0 ? 0u - static_cast<uint32_t>(hint) : static_cast<uint32_t>(hint);
  const mint index = clampIndex(static_cast<mint>(std::bit_width(magnitude)));
  return clampIndex(kHashPrimes[index] < hint ? index + 1 : index);
}

// Zeroed buckets; null if they cannot be had (modes other than kFatal). The largest arrays do not fit the
// 32-bit sizes of the allocator.
HashNode **newBuckets(mint count, ErrorMode errorMode) {
  const uint64_t bytes = uint64_t{static_cast<uint32_t>(count)} * sizeof(HashNode *);
  if (bytes > UINT32_MAX) {
    if (errorMode == kFatal) fatalOutOfMemory();
    return nullptr;
  }
  const auto size = static_cast<uint32_t>(bytes);
  void *buckets = allocate(size, 0, errorMode);
  return buckets == nullptr ? nullptr : static_cast<HashNode **>(memset(buckets, 0, size));
}

// Nearly every hash has 32 bits, and dividing those is much cheaper than dividing words of 64.
uint32_t bucketOf(uintptr_t hash, mint bucketCount) {
  const auto divisor = static_cast<uint32_t>(bucketCount);
  if ((hash >> 16 >> 16) == 0) return static_cast<uint32_t>(hash) % divisor;
  return static_cast<uint32_t>(hash % divisor);
}

uintptr_t hashOf(const HashTable *table, const uintptr_t *key) {
  return table->hashKey == nullptr ? *key : table->hashKey(key);
}

// The slot that holds the first node equal to the key, or the null at the chain's end. Without `compareKey`
// equal hashes are equal keys.
HashNode **findLink(const HashTable *table, uintptr_t hash, const uintptr_t *key,
                    CompareKeyFunction compareKey) {
  HashNode **link = &table->buckets[bucketOf(hash, table->bucketCount)];
  for (; *link != nullptr; link = &(*link)->next)
    if ((*link)->hash == hash && (compareKey == nullptr || compareKey(*link, key) != 0)) break;
  return link;
}

// Lookup and removal go by the stored hash alone when the key is its own hash; findOrInsert asks compareKey
// in any case. Callers rely on both.
CompareKeyFunction lookupComparison(const HashTable *table) {
  return table->hashKey == nullptr ? nullptr : table->compareKey;
}

void pushNode(HashNode **buckets, mint bucketCount, HashNode *node) {
  HashNode **head = &buckets[bucketOf(node->hash, bucketCount)];
  node->next = *head;
  *head = node;
}

// Moves every node by its stored hash, to the head of its new chain, without asking the keys.
void resizeByStep(HashTable *table, mint step) {
  const mint index = clampIndex(table->primeIndex + step);
  const mint newCount = kHashPrimes[index];
  if (newCount == table->bucketCount) return;
  HashNode **buckets = newBuckets(newCount, kQuiet);
  if (buckets == nullptr) return;
  for (mint i = 0; i < table->bucketCount; ++i)
    for (HashNode *node = table->buckets[i], *next; node != nullptr; node = next) {
      next = node->next;
      pushNode(buckets, newCount, node);
    }
  free(table->buckets);
  table->buckets = buckets;
  table->bucketCount = newCount;
  table->primeIndex = index;
}

bool isOverfull(const HashTable *table) {
  return (table->flags & kTableGrows) != 0 && table->bucketCount < 0x7fffffff &&
         mreal(table->count) > mreal(table->bucketCount) * maxLoadFactor.load(std::memory_order_relaxed);
}

bool isSparse(const HashTable *table) {
  return (table->flags & kTableShrinks) != 0 && table->bucketCount > table->initialBucketCount &&
         mreal(table->bucketCount) * minLoadFactor.load(std::memory_order_relaxed) > mreal(table->count);
}

HashNode *addNode(HashTable *table, uintptr_t hash, const uintptr_t *key) {
  auto *node = static_cast<HashNode *>(allocate(sizeof(HashNode), 0, kFatal));
  *node = {0, 0, hash, nullptr};
  if (table->initializeNode != nullptr) table->initializeNode(node);
  if (table->copyKey != nullptr)
    table->copyKey(node, key);
  else
    node->key = *key;
  pushNode(table->buckets, table->bucketCount, node);
  ++table->count;
  if (isOverfull(table)) resizeByStep(table, 1);
  return node;
}

void releaseAndFree(const HashTable *table, HashNode *node) {
  if (table->releaseNode != nullptr) table->releaseNode(node);
  free(node);
}

mint removeEqual(HashTable *table, uintptr_t hash, const uintptr_t *key) {
  HashNode **link = findLink(table, hash, key, lookupComparison(table));
  HashNode *node = *link;
  if (node == nullptr) return 0;
  *link = node->next;
  --table->count;
  releaseAndFree(table, node);
  if (isSparse(table)) resizeByStep(table, -1);
  return 1;
}

// Empties the buckets in index order, and stops once as many nodes are gone as there were.
void releaseNodes(HashTable *table) {
  mint left = table->count;
  for (mint i = 0; i < table->bucketCount && left > 0; ++i) {
    for (HashNode *node = table->buckets[i], *next; node != nullptr; node = next, --left) {
      next = node->next;
      releaseAndFree(table, node);
    }
    table->buckets[i] = nullptr;
  }
  table->count = 0;
}

void destroyTable(HashTable *table) {
  free(table->buckets);
  if (table->releaseTable != nullptr) table->releaseTable(table);
  free(table);
}

void returnToInitialSize(HashTable *table) {
  if (table->bucketCount <= table->initialBucketCount) return;
  free(table->buckets);
  table->buckets = newBuckets(table->initialBucketCount, kFatal);
  table->bucketCount = table->initialBucketCount;
  table->primeIndex = table->initialPrimeIndex;
}

} // namespace

HashTable *HashTable_new(mint sizeHint, HashKeyFunction hashKey, CopyKeyFunction copyKey,
                         CompareKeyFunction compareKey, NodeFunction initializeNode,
                         NodeFunction releaseNode) {
  const mint index = primeIndexOf(sizeHint);
  const mint count = kHashPrimes[index];
  auto *table = static_cast<HashTable *>(allocate(sizeof(HashTable), 0, kFatal));
  *table = {.buckets = newBuckets(count, kFatal),
            .hashKey = hashKey,
            .copyKey = copyKey,
            .compareKey = compareKey,
            .initializeNode = initializeNode,
            .releaseNode = releaseNode,
            .releaseTable = nullptr,
            .initialBucketCount = count,
            .bucketCount = count,
            .initialPrimeIndex = index,
            .primeIndex = index,
            .count = 0,
            .flags = kTableUnreadBit | kTableGrows | kTableShrinks};
  return table;
}

HashNode *HashTable_insert(HashTable *table, uintptr_t key) {
  return addNode(table, hashOf(table, &key), &key);
}

HashNode *HashTable_insertValue(HashTable *table, uintptr_t key, uintptr_t value) {
  HashNode *node = HashTable_insert(table, key);
  node->value = value;
  return node;
}

HashNode *HashTable_findOrInsert(HashTable *table, uintptr_t key, mint *wasInserted) {
  const uintptr_t hash = hashOf(table, &key);
  HashNode *found = *findLink(table, hash, &key, table->compareKey);
  if (wasInserted != nullptr) *wasInserted = found == nullptr;
  return found != nullptr ? found : addNode(table, hash, &key);
}

HashNode *HashTable_find(const HashTable *table, uintptr_t key) {
  return *findLink(table, hashOf(table, &key), &key, lookupComparison(table));
}

uintptr_t HashTable_get(const HashTable *table, uintptr_t key) {
  const HashNode *node = HashTable_find(table, key);
  return node == nullptr ? 0 : node->value;
}

mint HashTable_removeNode(HashTable *table, const HashNode *node) {
  return removeEqual(table, node->hash, &node->key);
}

mint HashTable_remove(HashTable *table, uintptr_t key) {
  return removeEqual(table, hashOf(table, &key), &key);
}

mint HashTable_forEach(HashTable *table, NodeVisitor visit, void *argument) {
  for (mint i = 0; i < table->bucketCount; ++i)
    for (HashNode *node = table->buckets[i], *next; node != nullptr; node = next) {
      next = node->next;
      if (visit(node, argument) != 0) return 1;
    }
  return 0;
}

void HashTable_clear(HashTable *table, mint destroy) {
  if (table->count == 0 && destroy == 0) return;
  releaseNodes(table);
  if (destroy != 0)
    destroyTable(table);
  else
    returnToInitialSize(table);
}

uint32_t HashTable_memorySize(const HashTable *table, NodeSizeFunction nodeSize) {
  if (table == nullptr) return 0;
  auto bytes = static_cast<uint32_t>(sizeof(HashTable) +
                                     static_cast<uint32_t>(table->bucketCount) * sizeof(HashNode *) +
                                     static_cast<uint32_t>(table->count) * sizeof(HashNode));
  if (nodeSize == nullptr || table->buckets == nullptr) return bytes;
  for (mint i = 0; i < table->bucketCount; ++i)
    for (const HashNode *node = table->buckets[i]; node != nullptr; node = node->next)
      bytes += nodeSize(node);
  return bytes;
}

bool isValidHashTable(const HashTable *table) {
  if (kHashPrimes[table->primeIndex] != table->bucketCount) return false;
  if (table->initialBucketCount > table->bucketCount) return false;
  mint seen = 0;
  for (mint i = 0; i < table->bucketCount; ++i)
    for (const HashNode *node = table->buckets[i]; node != nullptr; node = node->next, ++seen)
      if (bucketOf(node->hash, table->bucketCount) != static_cast<uint32_t>(i) || seen >= table->count)
        return false;
  return seen == table->count;
}

} // namespace torvane

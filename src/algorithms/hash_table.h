// The library's one hash table: chained, with a prime number of buckets and callbacks for the keys, and the
// keyed wrapper for keys of a fixed number of 32-bit words.
//
// Invariants: every node stands in bucket hash mod bucketCount; bucketCount = kHashPrimes[primeIndex];
// count is the number of nodes; initialBucketCount <= bucketCount.
//
// A table has no lock: callers that share one serialise it. Nodes, buckets and tables come from the
// library's allocator, and running out of memory is the fatal path, except that a resize that cannot have
// its buckets leaves the table as it was.
#pragma once

#include "../runtime/types.h"

namespace torvane {

struct HashNode {
  uintptr_t key;   // the key itself, or a pointer to it
  uintptr_t value; // the caller's; 0 at insertion
  uintptr_t hash;  // from hashKey 32 bits; without it the key's whole word, so that equal means equal
  HashNode *next;
};

struct HashTable;

// A callback that takes a key takes the address of a word that holds it. `key` is the first field of a node,
// so a node's own address serves as well: removal by node passes the two nodes.
using HashKeyFunction = uint32_t (*)(const uintptr_t *key);
using CopyKeyFunction = void (*)(HashNode *node, const uintptr_t *key);
using CompareKeyFunction = mint (*)(const HashNode *node, const uintptr_t *key); // non-zero when equal
using NodeFunction = void (*)(HashNode *node);
using NodeVisitor = mint (*)(HashNode *node, void *argument);
using NodeSizeFunction = uint32_t (*)(const HashNode *node);

struct HashTable {
  HashNode **buckets;
  HashKeyFunction hashKey;           // null: the key word is its own hash
  CopyKeyFunction copyKey;           // null: the key word is stored
  CompareKeyFunction compareKey;     // null: equal hashes are equal keys
  NodeFunction initializeNode;       // may be null; runs before copyKey
  NodeFunction releaseNode;          // may be null; runs before a node is freed
  void (*releaseTable)(HashTable *); // null until a caller sets it; runs just before the table is freed
  mint initialBucketCount;
  mint bucketCount;
  mint initialPrimeIndex;
  mint primeIndex;
  mint count;
  mint flags; // kTable... bits
};

enum HashTableFlags : mint {
  kTableUnreadBit = 2, // set at creation and read by nothing
  kTableGrows = 4,
  kTableShrinks = 8,
};

inline constexpr mint kHashPrimeCount = 32;
extern const mint kHashPrimes[kHashPrimeCount];

// A new empty table of at least `sizeHint` buckets, and of 7 at the least. Any callback may be null.
HashTable *HashTable_new(mint sizeHint, HashKeyFunction hashKey, CopyKeyFunction copyKey,
                         CompareKeyFunction compareKey, NodeFunction initializeNode,
                         NodeFunction releaseNode);

// Adds a node without looking for an equal key; of equal keys the latest is found first.
HashNode *HashTable_insert(HashTable *table, uintptr_t key);
HashNode *HashTable_insertValue(HashTable *table, uintptr_t key, uintptr_t value);

// The node with an equal key, or a new one. `wasInserted`, unless null, receives 1 or 0.
HashNode *HashTable_findOrInsert(HashTable *table, uintptr_t key, mint *wasInserted);

// The node or null. Without a hashKey a node matches on its stored hash alone, whatever compareKey is.
HashNode *HashTable_find(const HashTable *table, uintptr_t key);

// The value of the node, or 0.
uintptr_t HashTable_get(const HashTable *table, uintptr_t key);

// Removes the first node equal to `node` or to the key: 1, or 0 if there is none. Among equal keys the node
// that goes need not be the one that was given.
mint HashTable_removeNode(HashTable *table, const HashNode *node);
mint HashTable_remove(HashTable *table, uintptr_t key);

// Visits the nodes, buckets in index order, until a visitor returns non-zero: 1 then, else 0. The visitor may
// free its node; a removal that shrinks the table makes the walk miss nodes or meet them again.
mint HashTable_forEach(HashTable *table, NodeVisitor visit, void *argument);

// Releases all nodes. With `destroy` the table goes too; without it a table that has nodes returns to its
// initial bucket count.
void HashTable_clear(HashTable *table, mint destroy);

// Bytes of the table, its buckets and its nodes, and of what `nodeSize` (or null) says of each node.
uint32_t HashTable_memorySize(const HashTable *table, NodeSizeFunction nodeSize);

// A table whose keys are `keyWords` 32-bit words. Keys are given by the address of their words. Operations
// on keyed tables must not run on two threads at once, even on different tables: the key length in force is
// one process-wide word, set while an operation runs.
struct KeyedHashTable {
  HashTable *table;
  mint keyWords;
  mint unused;
  mint flags; // kKeyed... bits
};

enum KeyedHashTableFlags : mint {
  kKeyedOwnsKeys = 1,    // an array key is copied at insertion, and freed with its node
  kKeyedWantsArrays = 2, // array keys even for one word
  kKeyedOneWord = 4,     // set by KeyedHashTable_new: the node holds the one word itself
};

// `releaseKey`, unless null, replaces the release of the nodes in every mode, that of owned keys too.
KeyedHashTable *KeyedHashTable_new(mint keyWords, mint sizeHint, mint flags, NodeFunction releaseKey);
HashNode *KeyedHashTable_insert(KeyedHashTable *keyed, const uint32_t *key);
HashNode *KeyedHashTable_find(const KeyedHashTable *keyed, const uint32_t *key);
HashNode *KeyedHashTable_findOrInsert(KeyedHashTable *keyed, const uint32_t *key, mint *wasInserted);
mint KeyedHashTable_removeNode(KeyedHashTable *keyed, const HashNode *node);
mint KeyedHashTable_count(const KeyedHashTable *keyed);
uint32_t KeyedHashTable_memorySize(const KeyedHashTable *keyed, NodeSizeFunction nodeSize);
void KeyedHashTable_delete(KeyedHashTable *keyed);

// Callbacks for string keys: hashed by the selected function, copied at insertion, freed with the node.
uint32_t hashStringKey(const uintptr_t *key);
void copyStringKey(HashNode *node, const uintptr_t *key);
mint compareStringKey(const HashNode *node, const uintptr_t *key);
void releaseStringKey(HashNode *node);

// Whether every invariant above holds. For tests and the checking build: it walks the whole table.
bool isValidHashTable(const HashTable *table);

} // namespace torvane

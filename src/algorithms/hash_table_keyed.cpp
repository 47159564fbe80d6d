// Tables with keys of a fixed number of 32-bit words, and the key callbacks that are shared.
#include "hash_table.h"

#include "../runtime/memory.h"
#include "hash_table_settings.h"

#include <cstring>

namespace torvane {

namespace {

const char *textOf(const uintptr_t *key) { return reinterpret_cast<const char *>(*key); }

const void *wordsOf(const uintptr_t *key) { return reinterpret_cast<const void *>(*key); }

uint32_t currentKeyBytes() {
  return static_cast<uint32_t>(currentKeyWords.load(std::memory_order_relaxed)) * uint32_t{sizeof(uint32_t)};
}

// Both targets are little-endian: the first four bytes of the key's word are the 32-bit word itself.
uint32_t hashOneWord(const uintptr_t *key) { return hashKeyBytes(key, sizeof(uint32_t)); }

mint compareOneWord(const HashNode *node, const uintptr_t *key) { return node->key == *key; }

uint32_t hashWords(const uintptr_t *key) { return hashKeyBytes(wordsOf(key), currentKeyBytes()); }

mint compareWords(const HashNode *node, const uintptr_t *key) {
  const uint32_t bytes = currentKeyBytes();
  return bytes == 0 || memcmp(wordsOf(&node->key), wordsOf(key), bytes) == 0;
}

void copyWords(HashNode *node, const uintptr_t *key) {
  const uint32_t bytes = currentKeyBytes();
  void *copy = allocate(bytes, 0, kFatal);
  if (bytes != 0) memcpy(copy, wordsOf(key), bytes);
  node->key = reinterpret_cast<uintptr_t>(copy);
}

void freeKey(HashNode *node) { free(reinterpret_cast<void *>(node->key)); }

HashTable *newOneWordTable(mint sizeHint, NodeFunction releaseKey) {
  return HashTable_new(sizeHint, hashOneWord, nullptr, compareOneWord, nullptr, releaseKey);
}

HashTable *newArrayTable(mint sizeHint, mint flags, NodeFunction releaseKey) {
  const bool owns = (flags & kKeyedOwnsKeys) != 0;
  const NodeFunction release = releaseKey != nullptr ? releaseKey : owns ? freeKey : nullptr;
  return HashTable_new(sizeHint, hashWords, owns ? copyWords : nullptr, compareWords, nullptr, release);
}

// The key length in force while an operation runs.
class KeyLengthInForce {
public:
  explicit KeyLengthInForce(const KeyedHashTable *keyed) {
    currentKeyWords.store(keyed->keyWords, std::memory_order_relaxed);
  }
  ~KeyLengthInForce() { currentKeyWords.store(0, std::memory_order_relaxed); }
  KeyLengthInForce(const KeyLengthInForce &) = delete;
  KeyLengthInForce &operator=(const KeyLengthInForce &) = delete;
};

uintptr_t keyWordOf(const KeyedHashTable *keyed, const uint32_t *key) {
  return (keyed->flags & kKeyedOneWord) != 0 ? *key : reinterpret_cast<uintptr_t>(key);
}

} // namespace

KeyedHashTable *KeyedHashTable_new(mint keyWords, mint sizeHint, mint flags, NodeFunction releaseKey) {
  const bool arrays = (flags & kKeyedWantsArrays) != 0 || keyWords != 1;
  auto *keyed = static_cast<KeyedHashTable *>(allocate(sizeof(KeyedHashTable), 0, kFatal));
  *keyed = {.table =
                arrays ? newArrayTable(sizeHint, flags, releaseKey) : newOneWordTable(sizeHint, releaseKey),
            .keyWords = keyWords,
            .unused = 0,
            .flags = arrays ? flags & ~kKeyedOneWord : flags | kKeyedOneWord};
  return keyed;
}

HashNode *KeyedHashTable_insert(KeyedHashTable *keyed, const uint32_t *key) {
  const KeyLengthInForce scope(keyed);
  return HashTable_insert(keyed->table, keyWordOf(keyed, key));
}

HashNode *KeyedHashTable_find(const KeyedHashTable *keyed, const uint32_t *key) {
  const KeyLengthInForce scope(keyed);
  return HashTable_find(keyed->table, keyWordOf(keyed, key));
}

HashNode *KeyedHashTable_findOrInsert(KeyedHashTable *keyed, const uint32_t *key, mint *wasInserted) {
  const KeyLengthInForce scope(keyed);
  return HashTable_findOrInsert(keyed->table, keyWordOf(keyed, key), wasInserted);
}

mint KeyedHashTable_removeNode(KeyedHashTable *keyed, const HashNode *node) {
  const KeyLengthInForce scope(keyed);
  return HashTable_removeNode(keyed->table, node);
}

mint KeyedHashTable_count(const KeyedHashTable *keyed) { return keyed->table->count; }

uint32_t KeyedHashTable_memorySize(const KeyedHashTable *keyed, NodeSizeFunction nodeSize) {
  if (keyed == nullptr) return 0;
  return HashTable_memorySize(keyed->table, nodeSize) + uint32_t{sizeof(KeyedHashTable)};
}

void KeyedHashTable_delete(KeyedHashTable *keyed) {
  HashTable_clear(keyed->table, 1);
  free(keyed);
}

uint32_t hashStringKey(const uintptr_t *key) {
  return hashKeyBytes(textOf(key), static_cast<uint32_t>(strlen(textOf(key))));
}

void copyStringKey(HashNode *node, const uintptr_t *key) {
  const auto bytes = static_cast<uint32_t>(strlen(textOf(key)) + 1);
  node->key = reinterpret_cast<uintptr_t>(memcpy(allocate(bytes, 0, kFatal), textOf(key), bytes));
}

mint compareStringKey(const HashNode *node, const uintptr_t *key) {
  return strcmp(textOf(&node->key), textOf(key)) == 0;
}

void releaseStringKey(HashNode *node) { freeKey(node); }

} // namespace torvane

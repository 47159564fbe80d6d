// The keyed wrapper in all its modes: one word, arrays that the table owns, arrays that the caller owns.
#include "algorithms/hash_table.h"
#include "algorithms/hash_table_settings.h"
#include "runtime/memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <vector>

using namespace torvane;

namespace {

class Keyed : public testing::Test {
protected:
  Keyed() : usedBefore(usedBytesOfThisThread()) {}
  ~Keyed() override {
    if (keyed != nullptr) KeyedHashTable_delete(keyed);
    EXPECT_EQ(usedBytesOfThisThread(), usedBefore);
    EXPECT_EQ(currentKeyWords, 0);
    hashPrefixLimit = 0x7fffffff;
  }
  uint32_t usedBefore;
  KeyedHashTable *keyed = nullptr;
};

TEST_F(Keyed, OneWordIsHeldInTheNodeUnlessArraysAreWanted) {
  struct {
    mint keyWords, flags, expected;
  } cases[] = {{1, 0, 4}, {1, 1, 5}, {1, 2, 2}, {1, 3, 3}, {2, 0, 0},
               {2, 1, 1}, {3, 3, 3}, {1, 4, 4}, {2, 4, 0}};
  for (const auto &c : cases) {
    KeyedHashTable *made = KeyedHashTable_new(c.keyWords, 0, c.flags, nullptr);
    EXPECT_EQ(made->flags, c.expected) << c.keyWords << " words, flags " << c.flags;
    EXPECT_EQ(made->keyWords, c.keyWords);
    KeyedHashTable_delete(made);
  }
}

TEST_F(Keyed, OneWordKeysAreLoadedFromTheirAddressAndHashedAsFourBytes) {
  keyed = KeyedHashTable_new(1, 0, 0, nullptr);
  uint32_t key = 0xDEADBEEFu;
  HashNode *node = KeyedHashTable_insert(keyed, &key);
  EXPECT_EQ(node->key, 0xDEADBEEFu);
  EXPECT_EQ(node->hash, hashMurmur3(&key, 4));
  const uint32_t elsewhere = key;
  EXPECT_EQ(KeyedHashTable_find(keyed, &elsewhere), node);
  key = 1;
  EXPECT_EQ(KeyedHashTable_find(keyed, &key), nullptr);
}

TEST_F(Keyed, OwnedArrayKeysAreCopiesAndGoWithTheirNodes) {
  keyed = KeyedHashTable_new(3, 0, kKeyedOwnsKeys, nullptr);
  uint32_t key[3] = {1, 2, 3};
  HashNode *node = KeyedHashTable_insert(keyed, key);
  EXPECT_NE(node->key, reinterpret_cast<uintptr_t>(key));
  EXPECT_EQ(node->hash, hashMurmur3(key, 12));
  key[2] = 4;
  EXPECT_EQ(KeyedHashTable_find(keyed, key), nullptr);
  key[2] = 3;
  EXPECT_EQ(KeyedHashTable_find(keyed, key), node);
  EXPECT_EQ(KeyedHashTable_removeNode(keyed, node), 1);
  EXPECT_EQ(KeyedHashTable_count(keyed), 0);
}

TEST_F(Keyed, ArrayKeysOfTheCallerAreStoredByTheirAddress) {
  keyed = KeyedHashTable_new(2, 0, 0, nullptr);
  const uint32_t key[2] = {7, 8};
  HashNode *node = KeyedHashTable_insert(keyed, key);
  EXPECT_EQ(node->key, reinterpret_cast<uintptr_t>(key));
  const uint32_t equal[2] = {7, 8}, other[2] = {7, 9};
  EXPECT_EQ(KeyedHashTable_find(keyed, equal), node);
  EXPECT_EQ(KeyedHashTable_find(keyed, other), nullptr);
}

TEST_F(Keyed, ArraysOfOneWordAreComparedByContent) {
  keyed = KeyedHashTable_new(1, 0, kKeyedWantsArrays | kKeyedOwnsKeys, nullptr);
  const uint32_t key = 5, equal = 5;
  HashNode *node = KeyedHashTable_insert(keyed, &key);
  EXPECT_NE(node->key, 5u);
  EXPECT_EQ(KeyedHashTable_find(keyed, &equal), node);
}

TEST_F(Keyed, KeysOfNoWordsAreAllEqual) {
  keyed = KeyedHashTable_new(0, 0, kKeyedOwnsKeys, nullptr);
  const uint32_t a = 1, b = 2;
  mint inserted = 0;
  HashNode *node = KeyedHashTable_findOrInsert(keyed, &a, &inserted);
  EXPECT_EQ(inserted, 1);
  EXPECT_EQ(KeyedHashTable_findOrInsert(keyed, &b, &inserted), node);
  EXPECT_EQ(inserted, 0);
}

int released;
std::vector<uintptr_t> releasedKeys;
void countRelease(HashNode *node) {
  ++released;
  releasedKeys.push_back(node->key);
}

TEST_F(Keyed, GivenReleaseReplacesTheDefaultInEveryMode) {
  const uint32_t key[2] = {3, 4};
  for (auto [keyWords, flags] : {std::pair{1, 0}, {1, 1}, {1, 2}, {1, 3}, {2, 0}, {2, 1}}) {
    released = 0;
    releasedKeys.clear();
    KeyedHashTable *made = KeyedHashTable_new(keyWords, 0, flags, countRelease);
    const mint modes = made->flags;
    KeyedHashTable_insert(made, key);
    KeyedHashTable_insert(made, key);
    EXPECT_EQ(KeyedHashTable_removeNode(made, KeyedHashTable_find(made, key)), 1);
    EXPECT_EQ(released, 1);
    KeyedHashTable_delete(made);
    EXPECT_EQ(released, 2);
    // The default, which frees owned arrays, did not run: they are the callback's to free.
    if ((modes & kKeyedOneWord) == 0 && (modes & kKeyedOwnsKeys) != 0)
      for (const uintptr_t owned : releasedKeys) torvane::free(reinterpret_cast<void *>(owned));
  }
}

mint wordsInForce;
uint32_t noteWords(const void *, uint32_t length) {
  wordsInForce = currentKeyWords;
  return length;
}

TEST_F(Keyed, KeyLengthIsInForceWhileAnOperationRunsAndZeroAfterwards) {
  hashFunction = noteWords;
  const uint32_t key[5] = {1, 2, 3, 4, 5};
  keyed = KeyedHashTable_new(5, 0, kKeyedOwnsKeys, nullptr);
  KeyedHashTable *single = KeyedHashTable_new(1, 0, 0, nullptr);
  auto expectWords = [](mint words) {
    EXPECT_EQ(wordsInForce, words);
    EXPECT_EQ(currentKeyWords, 0);
    wordsInForce = -1;
  };
  HashNode *node = KeyedHashTable_insert(keyed, key);
  expectWords(5);
  KeyedHashTable_find(keyed, key);
  expectWords(5);
  KeyedHashTable_findOrInsert(keyed, key, nullptr);
  expectWords(5);
  EXPECT_EQ(KeyedHashTable_removeNode(keyed, node), 1);
  EXPECT_EQ(currentKeyWords, 0);
  KeyedHashTable_insert(single, key);
  expectWords(1);
  KeyedHashTable_delete(single);
  setHashFunction("Murmur3");
}

TEST_F(Keyed, LimitRuleHoldsForWordAndArrayKeys) {
  hashPrefixLimit = 1;
  const uint32_t key[4] = {0x11223344, 0x55667788, 0x99AABBCC, 0xDDEEFF00};
  const uint32_t four = 4, sixteen = 16;
  KeyedHashTable *single = KeyedHashTable_new(1, 0, 0, nullptr);
  EXPECT_EQ(KeyedHashTable_insert(single, key)->hash,
            hashMurmur3("\x44", 1) ^ hashMurmur3("\x11", 1) ^ hashMurmur3(&four, 4));
  hashPrefixLimit = 2;
  EXPECT_EQ(KeyedHashTable_insert(single, key)->hash, hashMurmur3(key, 4));
  KeyedHashTable_delete(single);
  hashPrefixLimit = 4;
  keyed = KeyedHashTable_new(4, 0, 0, nullptr);
  EXPECT_EQ(KeyedHashTable_insert(keyed, key)->hash,
            hashMurmur3(key, 4) ^ hashMurmur3(key + 3, 4) ^ hashMurmur3(&sixteen, 4));
}

TEST_F(Keyed, MemorySizeAddsTheWrappersOwnBlock) {
  EXPECT_EQ(KeyedHashTable_memorySize(nullptr, nullptr), 0u);
  keyed = KeyedHashTable_new(1, 0, 0, nullptr);
  const uint32_t key = 9;
  KeyedHashTable_insert(keyed, &key);
  EXPECT_EQ(KeyedHashTable_memorySize(keyed, nullptr),
            HashTable_memorySize(keyed->table, nullptr) + uint32_t{sizeof(KeyedHashTable)});
}

TEST_F(Keyed, SizeHintReachesTheTable) {
  keyed = KeyedHashTable_new(2, 32, 0, nullptr);
  EXPECT_EQ(keyed->table->bucketCount, 67);
}

void runAgainstMap(KeyedHashTable *keyed, uint32_t seed, std::vector<std::array<uint32_t, 3>> *keys) {
  std::mt19937 random(seed);
  std::map<std::vector<uint32_t>, uintptr_t> model;
  const auto words = static_cast<size_t>(keyed->keyWords);
  for (int step = 0; step < 20000; ++step) {
    const auto &key = (*keys)[random() % keys->size()];
    const std::vector<uint32_t> content(key.begin(), key.begin() + static_cast<ptrdiff_t>(words));
    const auto found = model.find(content);
    if (random() % 3 != 0) {
      mint inserted = -1;
      HashNode *node = KeyedHashTable_findOrInsert(keyed, key.data(), &inserted);
      ASSERT_EQ(inserted, found == model.end());
      if (inserted) {
        node->value = static_cast<uintptr_t>(step);
        model[content] = node->value;
      } else
        ASSERT_EQ(node->value, found->second);
    } else {
      HashNode *node = KeyedHashTable_find(keyed, key.data());
      ASSERT_EQ(node != nullptr, found != model.end());
      if (node != nullptr) {
        ASSERT_EQ(KeyedHashTable_removeNode(keyed, node), 1);
        model.erase(found);
      }
    }
    ASSERT_EQ(KeyedHashTable_count(keyed), mint(model.size()));
  }
  EXPECT_TRUE(isValidHashTable(keyed->table));
}

TEST_F(Keyed, EveryModeAgreesWithAMapUnderRandomOperations) {
  std::mt19937 random(77);
  std::vector<std::array<uint32_t, 3>> keys(3000);
  for (auto &key : keys)
    key = {static_cast<uint32_t>(random() % 20), static_cast<uint32_t>(random() % 20),
           static_cast<uint32_t>(random() % 4)};
  for (mint words = 1; words <= 3; ++words)
    for (mint flags = 0; flags <= 3; ++flags) {
      KeyedHashTable *made = KeyedHashTable_new(words, 10, flags, nullptr);
      runAgainstMap(made, static_cast<uint32_t>(words * 4 + flags), &keys);
      KeyedHashTable_delete(made);
    }
}

} // namespace

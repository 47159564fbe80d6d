#include "name_map.h"

#include "../algorithms/hash_functions.h"

#include <cstring>

namespace torvane {

namespace {

constexpr mint kBuckets = 8;

uint32_t hashName(const uintptr_t *key) {
  const auto *name = reinterpret_cast<const char *>(*key);
  return fnv1a32(name, static_cast<uint32_t>(strlen(name)), kFnvBasis32);
}

HashTable *newTable(void (*fill)(HashTable *)) {
  HashTable *names = HashTable_new(kBuckets, hashName, nullptr, compareStringKey, nullptr, nullptr);
  fill(names);
  return names;
}

} // namespace

void addName(HashTable *names, const char *name, mint number) {
  HashTable_insertValue(names, reinterpret_cast<uintptr_t>(name), static_cast<uintptr_t>(number));
}

void initializeNameMap(NameMap &map, mint stage, void (*fill)(HashTable *)) {
  if (stage == 0) map.visible.store(nullptr, std::memory_order_relaxed);
  if (stage != 1) return;
  if (map.table == nullptr) map.table = newTable(fill);
  map.visible.store(map.table, std::memory_order_relaxed);
}

void tearDownNameMap(NameMap &map) {
  map.visible.store(nullptr, std::memory_order_relaxed);
  if (map.table != nullptr) HashTable_clear(map.table, 1);
  map.table = nullptr;
}

mint numberOfName(const NameMap &map, const char *name) {
  const HashTable *names = map.visible.load(std::memory_order_relaxed);
  if (names == nullptr) return 0;
  return static_cast<mint>(HashTable_get(names, reinterpret_cast<uintptr_t>(name)));
}

} // namespace torvane

// The map is a hash table of the 41 primary names, filled once in the table's order. Its keys are the
// constant strings themselves, and its hash is FNV-1a whatever function is selected, so that it stays valid
// under any. Stage 0 takes it out of sight and stage 1 puts it back: a restart neither builds it anew nor
// frees memory that may be of another allocator state by then.
#include "element_type_names.h"

#include "../algorithms/hash_functions.h"
#include "../algorithms/hash_table.h"
#include "../runtime/element_types.h"
#include "../runtime/startup.h"

#include <atomic>
#include <cstring>

namespace torvane {

namespace {

constexpr mint kBuckets = 8;

constinit HashTable *map = nullptr;
constinit std::atomic<HashTable *> visibleMap{nullptr};

uint32_t hashName(const uintptr_t *key) {
  const auto *name = reinterpret_cast<const char *>(*key);
  return fnv1a32(name, static_cast<uint32_t>(strlen(name)), kFnvBasis32);
}

HashTable *newNameMap() {
  HashTable *names = HashTable_new(kBuckets, hashName, nullptr, compareStringKey, nullptr, nullptr);
  for (mint row = 0; row < kElementTypeCount; ++row)
    for (const char *name : kPrimaryTypeNames[row])
      if (name != nullptr)
        HashTable_insertValue(names, reinterpret_cast<uintptr_t>(name), static_cast<uintptr_t>(row + 1));
  return names;
}

} // namespace

void initializeElementTypeNames(mint stage) {
  if (stage == 0) visibleMap.store(nullptr, std::memory_order_relaxed);
  if (stage != 1) return;
  if (map == nullptr) map = newNameMap();
  visibleMap.store(map, std::memory_order_relaxed);
}

void tearDownElementTypeNames() {
  visibleMap.store(nullptr, std::memory_order_relaxed);
  if (map != nullptr) HashTable_clear(map, 1);
  map = nullptr;
}

mint elementTypeOfPrimaryName(const char *name) {
  const HashTable *names = visibleMap.load(std::memory_order_relaxed);
  if (names == nullptr) return 0;
  return static_cast<mint>(HashTable_get(names, reinterpret_cast<uintptr_t>(name)));
}

} // namespace torvane

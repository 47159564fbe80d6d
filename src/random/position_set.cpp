#include "position_set.h"

#include "../algorithms/hash_table_settings.h"

namespace torvane {

namespace {

// Without the wrapper for keys of words, whose operations must not run on two threads at once.
uint32_t hashPosition(const uintptr_t *key) {
  const auto position = static_cast<uint32_t>(*key);
  return hashKeyBytes(&position, sizeof position);
}

mint isSamePosition(const HashNode *node, const uintptr_t *key) { return node->key == *key; }

} // namespace

PositionSet::PositionSet(mint expected)
    : table(HashTable_new(2 * expected + 1, hashPosition, nullptr, isSamePosition, nullptr, nullptr)) {}

mint PositionSet::keepNew(mint *positions, mint count) {
  mint kept = 0;
  for (mint k = 0; k < count; ++k) {
    mint isNew;
    HashTable_findOrInsert(table, static_cast<uintptr_t>(positions[k]), &isNew);
    positions[kept] = positions[k];
    kept += isNew;
  }
  return kept;
}

} // namespace torvane

// The positions that a sample has so far.
#pragma once

#include "../algorithms/hash_table.h"

namespace torvane {

class PositionSet {
public:
  explicit PositionSet(mint expected);
  ~PositionSet() { HashTable_clear(table, 1); }
  PositionSet(const PositionSet &) = delete;
  PositionSet &operator=(const PositionSet &) = delete;

  // Moves the positions that were not in the set to the front, in their order, and adds them. Their number.
  mint keepNew(mint *positions, mint count);

private:
  HashTable *table;
};

} // namespace torvane

// A map from constant names to small numbers, filled once.
//
// Its keys are the strings themselves, and its hash is FNV-1a whatever function is selected, so that it stays
// valid under any. Stage 0 of start-up takes it out of sight and stage 1 puts it back: a restart neither
// builds it anew nor frees memory that may be of another allocator state by then.
#pragma once

#include "../algorithms/hash_table.h"

#include <atomic>

namespace torvane {

struct NameMap {
  HashTable *table = nullptr;
  std::atomic<HashTable *> visible{nullptr};
};

void addName(HashTable *names, const char *name, mint number);

// At a stage of start-up; `fill` adds the names to a new map.
void initializeNameMap(NameMap &map, mint stage, void (*fill)(HashTable *));
void tearDownNameMap(NameMap &map);

// The number of a name; 0 when the name is unknown, or before stage 1 of start-up.
mint numberOfName(const NameMap &map, const char *name);

} // namespace torvane

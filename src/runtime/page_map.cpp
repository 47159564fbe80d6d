#include "page_map.h"

#include "heap_state.h"

namespace torvane {

namespace {

// A level's table, made under the lock when it is missing: another thread may have been first.
template <class Table> Table *ensureTable(AllocatorState *state, std::atomic<Table *> &entry) {
  Table *table = entry.load(std::memory_order_acquire);
  if (table != nullptr) return table;
  LockGuard guard(state->pageMapLock);
  table = entry.load(std::memory_order_acquire);
  if (table != nullptr) return table;
  table = static_cast<Table *>(processHeap.load()->takeZeroed(sizeof(Table)));
  if (table == nullptr) return nullptr;
  state->pageMapBytes += static_cast<uint32_t>(sizeof(Table));
  entry.store(table, std::memory_order_release);
  return table;
}

// The unit's place in its leaf, with every table above it made; null when memory is exhausted.
template <uint32_t kEntries>
std::atomic<Slab *> *ensureEntry(AllocatorState *, PageMapTable<Slab, kEntries, 0> *leaf, uintptr_t unit) {
  return &leaf->entryOf(unit);
}
template <class Table> std::atomic<Slab *> *ensureEntry(AllocatorState *state, Table *table, uintptr_t unit) {
  auto *next = ensureTable(state, table->entryOf(unit));
  return next == nullptr ? nullptr : ensureEntry(state, next, unit);
}

template <class Entry, uint32_t kEntries, uint32_t kShift>
void destroyTable(PageMapTable<Entry, kEntries, kShift> *table) {
  if (table == nullptr) return;
  if constexpr (!std::is_same_v<Entry, Slab>)
    for (auto &entry : table->entries) destroyTable(entry.load(std::memory_order_relaxed));
  processHeap.load()->give(table);
}

} // namespace

bool enterInPageMap(AllocatorState *state, const void *memory, size_t bytes, Slab *slab) {
  const uintptr_t first = reinterpret_cast<uintptr_t>(memory) >> kPageMapShift;
  const uintptr_t end = first + (bytes >> kPageMapShift);
  for (uintptr_t unit = first; unit != end; ++unit)
    if (ensureEntry(state, state->pageMap, unit) == nullptr) return false;
  for (uintptr_t unit = first; unit != end; ++unit)
    ensureEntry(state, state->pageMap, unit)->store(slab, std::memory_order_relaxed);
  return true;
}

PageMapTop *newPageMap() {
  return static_cast<PageMapTop *>(processHeap.load()->takeZeroed(sizeof(PageMapTop)));
}
void destroyPageMap(PageMapTop *map) { destroyTable(map); }

} // namespace torvane

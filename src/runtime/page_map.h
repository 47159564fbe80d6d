// The page map: which slab, if any, an address belongs to. A radix tree over the address, read without a
// lock; a table once stored stays until the state is torn down, and an entry is written once for a slab and
// read only by holders of its cells.
//
// Of 32-bit addresses it has three levels over pages of 4096 bytes: 64, 128 and 128 entries. Of 64-bit
// addresses it has two levels over units of 64 KiB, which slabs are aligned to, so that a lookup is two
// loads; 48 address bits are covered. The 64-bit tables are large and nearly all untouched zero pages.
#pragma once

#include "platform.h"

namespace torvane {

struct AllocatorState;
struct Slab;

inline constexpr bool kNarrowAddresses = sizeof(void *) == 4;

template <class Entry, uint32_t kEntries, uint32_t kShift> struct PageMapTable {
  std::atomic<Entry *> entries[kEntries];
  std::atomic<Entry *> &entryOf(uintptr_t unit) { return entries[(unit >> kShift) % kEntries]; }
  const std::atomic<Entry *> &entryOf(uintptr_t unit) const { return entries[(unit >> kShift) % kEntries]; }
};

template <bool> struct PageMapShape {
  using Leaf = PageMapTable<Slab, 65536, 0>;
  using Top = PageMapTable<Leaf, 65536, 16>;
  static constexpr uint32_t kUnitShift = 16;
};
template <> struct PageMapShape<true> {
  using Leaf = PageMapTable<Slab, 128, 0>;
  using Top = PageMapTable<PageMapTable<Leaf, 128, 7>, 64, 14>;
  static constexpr uint32_t kUnitShift = 12;
};
using PageMapTop = PageMapShape<kNarrowAddresses>::Top;
inline constexpr uint32_t kPageMapShift = PageMapShape<kNarrowAddresses>::kUnitShift;
inline constexpr size_t kSlabAlignment = size_t{1} << kPageMapShift;

template <class Table> inline Slab *slabOfUnit(const Table *table, uintptr_t unit) {
  const auto *entry = table->entryOf(unit).load(std::memory_order_acquire);
  return entry == nullptr ? nullptr : slabOfUnit(entry, unit);
}
template <uint32_t kEntries>
inline Slab *slabOfUnit(const PageMapTable<Slab, kEntries, 0> *leaf, uintptr_t unit) {
  return leaf->entryOf(unit).load(std::memory_order_relaxed);
}

// The slab of a cell without header, null for every other block. The map must exist.
inline Slab *slabOfAddress(const PageMapTop *map, const void *address) {
  return slabOfUnit(map, reinterpret_cast<uintptr_t>(address) >> kPageMapShift);
}

// Enters `slab`, or null, for each unit of [memory, memory + bytes). False when a table could not be had;
// nothing is entered then. Entering null never fails.
bool enterInPageMap(AllocatorState *state, const void *memory, size_t bytes, Slab *slab);

PageMapTop *newPageMap();
void destroyPageMap(PageMapTop *map);

} // namespace torvane

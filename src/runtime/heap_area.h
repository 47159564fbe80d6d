// The areas that a thread heap keeps for reuse when it releases a slab or a large block, so that a program
// that grows and shrinks does not go to the operating system each time. Owner only, bounded in bytes; an
// area is kept under a grade, and any area of a grade serves every request of it.
//
// Grades: one for the aligned areas of slabs with bare cells, and then eight for each doubling from 9 KiB
// to 1 MiB, which are exactly the area sizes of the classes with cell headers. Larger areas are not kept.
#pragma once

#include "heap_size_class.h"

namespace torvane {

inline constexpr uint32_t kAreaGrades = 56;
inline constexpr uint32_t kMaxKeptBytes = sizeof(void *) == 4 ? 2u << 20 : 8u << 20;

struct KeptArea {
  KeptArea *next;
};

struct AreaCache {
  uint32_t keptBytes;
  uint32_t maxKeptBytes;            // 0 once the heap's thread has ended
  uint32_t victim;                  // the list that gives way next when there is no room
  KeptArea *lists[kAreaGrades + 1]; // by grade, and the aligned areas last
};

// Areas of kBareSlabBytes aligned to kSlabAlignment, and plain areas of any size. Null when memory is
// exhausted. `bytes` is the same at take and give.
void *takeAlignedArea(AreaCache &cache);
void giveAlignedArea(AreaCache &cache, void *area);
void *takeArea(AreaCache &cache, uint32_t bytes);
void giveArea(AreaCache &cache, void *area, uint32_t bytes);

// Gives all kept areas back and keeps none from now on.
void closeAreaCache(AreaCache &cache);

} // namespace torvane

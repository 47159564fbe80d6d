// The areas that a thread heap keeps for reuse when it releases a slab or a large block, so that a program
// that grows and shrinks does not go to the operating system each time. Owner only, bounded in bytes; an
// area is kept under a grade, and any area of a grade serves every request of it.
//
// Grades: one for the aligned areas of slabs with bare cells, and then eight for each doubling from 9 KiB
// to 1 MiB, which are exactly the area sizes of the classes with cell headers. Larger areas are not kept.
//
// What a heap keeps when its thread ends goes into one store of the process, bounded likewise, and serves the
// threads that come: a program whose threads come and go does not touch fresh pages with each of them.
#pragma once

#include "heap_size_class.h"

#include <array>
#include <bit>

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

inline constexpr uint32_t kNoGrade = kAreaGrades + 1;
inline constexpr uint32_t kFirstGradeShift = 13; // 8 KiB: grade 0 is 9 KiB
inline constexpr uint32_t kGradeStepShift = 3;   // eight grades a doubling

// The smallest grade that holds `bytes`.
inline uint32_t gradeOf(uint32_t bytes) {
  const uint32_t last = bytes - 1;
  if (last >> kFirstGradeShift == 0) return kNoGrade;
  const uint32_t doubling = static_cast<uint32_t>(std::bit_width(last)) - 1;
  const uint32_t step = (last >> (doubling - kGradeStepShift)) & ((1u << kGradeStepShift) - 1);
  const uint32_t grade = ((doubling - kFirstGradeShift) << kGradeStepShift) + step;
  return grade < kAreaGrades ? grade : kNoGrade;
}

inline constexpr auto gradeBytes = [] {
  std::array<uint32_t, kAreaGrades + 1> bytes{};
  for (uint32_t grade = 0; grade < kAreaGrades; ++grade) {
    const uint32_t shift = kFirstGradeShift + (grade >> kGradeStepShift);
    const uint32_t step = grade & ((1u << kGradeStepShift) - 1);
    bytes[grade] = (1u << shift) + ((step + 1) << (shift - kGradeStepShift));
  }
  bytes[kAreaGrades] = kBareSlabBytes;
  return bytes;
}();
static_assert(gradeBytes[0] == 9216 && gradeBytes[kAreaGrades - 1] == 1u << 20);

// Areas of kBareSlabBytes aligned to kSlabAlignment, and plain areas of any size. Null when memory is
// exhausted. `grade` is that of `bytes`, and the same at take and give.
void *takeAlignedArea(AreaCache &cache);
void giveAlignedArea(AreaCache &cache, void *area);
inline void *takeArea(AreaCache &cache, uint32_t bytes, uint32_t grade);
inline void giveArea(AreaCache &cache, void *area, uint32_t grade);

// What the two do when nothing is kept, and when there is no room.
void *takeNewArea(uint32_t bytes, uint32_t grade);
void giveAreaWithoutRoom(AreaCache &cache, void *area, uint32_t grade);

// Leaves all kept areas to the process's store and keeps none from now on.
void closeAreaCache(AreaCache &cache);

// Gives back what ended threads have left.
void emptyAreaStore();

inline void *takeKept(AreaCache &cache, uint32_t grade) {
  KeptArea *area = cache.lists[grade];
  if (area == nullptr) return nullptr;
  cache.lists[grade] = area->next;
  cache.keptBytes -= gradeBytes[grade];
  return area;
}

inline void keepArea(AreaCache &cache, void *memory, uint32_t grade) {
  auto *area = static_cast<KeptArea *>(memory);
  area->next = cache.lists[grade];
  cache.lists[grade] = area;
  cache.keptBytes += gradeBytes[grade];
}

inline bool hasRoomFor(const AreaCache &cache, uint32_t grade) {
  return cache.maxKeptBytes - cache.keptBytes >= gradeBytes[grade];
}

inline void *takeArea(AreaCache &cache, uint32_t bytes, uint32_t grade) {
  if (grade != kNoGrade)
    if (void *area = takeKept(cache, grade)) return area;
  return takeNewArea(bytes, grade);
}

inline void giveArea(AreaCache &cache, void *area, uint32_t grade) {
  if (grade != kNoGrade && hasRoomFor(cache, grade)) return keepArea(cache, area, grade);
  giveAreaWithoutRoom(cache, area, grade);
}

} // namespace torvane

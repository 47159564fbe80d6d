#include "heap_area.h"

#include "page_map.h"

#include <bit>

namespace torvane {

namespace {

constexpr uint32_t kAligned = kAreaGrades; // the list of aligned areas
constexpr uint32_t kNoGrade = kAreaGrades + 1;
constexpr uint32_t kFirstGradeShift = 13; // 8 KiB: grade 0 is 9 KiB
constexpr uint32_t kStepShift = 3;        // eight grades a doubling

// The smallest grade that holds `bytes`.
uint32_t gradeOf(uint32_t bytes) {
  const uint32_t last = bytes - 1;
  if (last >> kFirstGradeShift == 0) return kNoGrade;
  const uint32_t doubling = static_cast<uint32_t>(std::bit_width(last)) - 1;
  const uint32_t step = (last >> (doubling - kStepShift)) & ((1u << kStepShift) - 1);
  const uint32_t grade = ((doubling - kFirstGradeShift) << kStepShift) + step;
  return grade < kAreaGrades ? grade : kNoGrade;
}

constexpr uint32_t gradeBytes(uint32_t grade) {
  if (grade == kAligned) return kBareSlabBytes;
  const uint32_t shift = kFirstGradeShift + (grade >> kStepShift);
  return (1u << shift) + (((grade & ((1u << kStepShift) - 1)) + 1) << (shift - kStepShift));
}
static_assert(gradeBytes(0) == 9216 && gradeBytes(kAreaGrades - 1) == 1u << 20);

void *takeKept(AreaCache &cache, uint32_t grade) {
  KeptArea *area = cache.lists[grade];
  if (area == nullptr) return nullptr;
  cache.lists[grade] = area->next;
  cache.keptBytes -= gradeBytes(grade);
  return area;
}

void giveBack(void *area, uint32_t grade) {
  const ProcessHeap &heap = *processHeap.load(std::memory_order_relaxed);
  grade == kAligned ? heap.giveAligned(area) : heap.give(area);
}

// Gives back one area of another grade, each in its turn; false when there is none.
bool evict(AreaCache &cache, uint32_t grade) {
  for (uint32_t tries = 0; tries <= kAreaGrades; ++tries) {
    cache.victim = cache.victim == kAreaGrades ? 0 : cache.victim + 1;
    if (cache.victim == grade) continue;
    if (void *area = takeKept(cache, cache.victim)) {
      giveBack(area, cache.victim);
      return true;
    }
  }
  return false;
}

void keepOrGive(AreaCache &cache, void *memory, uint32_t grade) {
  const uint32_t bytes = gradeBytes(grade);
  while (cache.maxKeptBytes - cache.keptBytes < bytes)
    if (!evict(cache, grade)) return giveBack(memory, grade);
  auto *area = static_cast<KeptArea *>(memory);
  area->next = cache.lists[grade];
  cache.lists[grade] = area;
  cache.keptBytes += bytes;
}

} // namespace

void *takeAlignedArea(AreaCache &cache) {
  if (void *area = takeKept(cache, kAligned)) return area;
  return processHeap.load(std::memory_order_relaxed)->takeAligned(kBareSlabBytes, kSlabAlignment);
}

void giveAlignedArea(AreaCache &cache, void *area) { keepOrGive(cache, area, kAligned); }

void *takeArea(AreaCache &cache, uint32_t bytes) {
  const uint32_t grade = gradeOf(bytes);
  if (grade == kNoGrade) return processHeap.load(std::memory_order_relaxed)->take(bytes);
  if (void *area = takeKept(cache, grade)) return area;
  return processHeap.load(std::memory_order_relaxed)->take(gradeBytes(grade));
}

void giveArea(AreaCache &cache, void *area, uint32_t bytes) {
  const uint32_t grade = gradeOf(bytes);
  grade == kNoGrade ? processHeap.load(std::memory_order_relaxed)->give(area)
                    : keepOrGive(cache, area, grade);
}

void closeAreaCache(AreaCache &cache) {
  cache.maxKeptBytes = 0;
  for (uint32_t grade = 0; grade <= kAligned; ++grade)
    while (void *area = takeKept(cache, grade)) giveBack(area, grade);
}

} // namespace torvane

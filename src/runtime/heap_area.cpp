#include "heap_area.h"

#include "page_map.h"

namespace torvane {

namespace {

constexpr uint32_t kAligned = kAreaGrades; // the list of aligned areas

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

} // namespace

void *takeNewArea(uint32_t bytes, uint32_t grade) {
  const ProcessHeap &heap = *processHeap.load(std::memory_order_relaxed);
  return heap.take(grade == kNoGrade ? bytes : gradeBytes[grade]);
}

void giveAreaWithoutRoom(AreaCache &cache, void *area, uint32_t grade) {
  if (grade == kNoGrade) return giveBack(area, grade);
  while (!hasRoomFor(cache, grade))
    if (!evict(cache, grade)) return giveBack(area, grade);
  keepArea(cache, area, grade);
}

void *takeAlignedArea(AreaCache &cache) {
  if (void *area = takeKept(cache, kAligned)) return area;
  return processHeap.load(std::memory_order_relaxed)->takeAligned(kBareSlabBytes, kSlabAlignment);
}

void giveAlignedArea(AreaCache &cache, void *area) { giveAreaWithoutRoom(cache, area, kAligned); }

void closeAreaCache(AreaCache &cache) {
  cache.maxKeptBytes = 0;
  for (uint32_t grade = 0; grade <= kAligned; ++grade)
    while (void *area = takeKept(cache, grade)) giveBack(area, grade);
}

} // namespace torvane

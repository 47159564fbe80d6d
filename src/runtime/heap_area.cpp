#include "heap_area.h"

#include "page_map.h"

#include <bit>

namespace torvane {

namespace {

constexpr uint32_t kNoGrade = kAreaGrades;
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
  const uint32_t shift = kFirstGradeShift + (grade >> kStepShift);
  return (1u << shift) + (((grade & ((1u << kStepShift) - 1)) + 1) << (shift - kStepShift));
}
static_assert(gradeBytes(0) == 9216 && gradeBytes(kAreaGrades - 1) == 1u << 20);

void *takeKept(AreaCache &cache, KeptArea *&list, uint32_t bytes) {
  KeptArea *area = list;
  list = area->next;
  cache.keptBytes -= bytes;
  return area;
}

bool keep(AreaCache &cache, KeptArea *&list, void *memory, uint32_t bytes) {
  if (cache.maxKeptBytes - cache.keptBytes < bytes) return false;
  auto *area = static_cast<KeptArea *>(memory);
  area->next = list;
  list = area;
  cache.keptBytes += bytes;
  return true;
}

void drain(KeptArea *&list, void (*give)(void *)) {
  while (list != nullptr) {
    KeptArea *area = list;
    list = area->next;
    give(area);
  }
}

} // namespace

void *takeAlignedArea(AreaCache &cache, uint32_t bytes) {
  if (cache.aligned != nullptr) return takeKept(cache, cache.aligned, bytes);
  return processHeap.load(std::memory_order_relaxed)->takeAligned(bytes, kSlabAlignment);
}

void giveAlignedArea(AreaCache &cache, void *area, uint32_t bytes) {
  if (!keep(cache, cache.aligned, area, bytes)) processHeap.load(std::memory_order_relaxed)->giveAligned(area);
}

void *takeArea(AreaCache &cache, uint32_t bytes) {
  const uint32_t grade = gradeOf(bytes);
  if (grade == kNoGrade) return processHeap.load(std::memory_order_relaxed)->take(bytes);
  if (cache.graded[grade] != nullptr) return takeKept(cache, cache.graded[grade], gradeBytes(grade));
  return processHeap.load(std::memory_order_relaxed)->take(gradeBytes(grade));
}

void giveArea(AreaCache &cache, void *area, uint32_t bytes) {
  const uint32_t grade = gradeOf(bytes);
  if (grade == kNoGrade || !keep(cache, cache.graded[grade], area, gradeBytes(grade)))
    processHeap.load(std::memory_order_relaxed)->give(area);
}

void closeAreaCache(AreaCache &cache) {
  const ProcessHeap &heap = *processHeap.load();
  cache.maxKeptBytes = 0;
  cache.keptBytes = 0;
  drain(cache.aligned, heap.giveAligned);
  for (KeptArea *&list : cache.graded) drain(list, heap.give);
}

} // namespace torvane

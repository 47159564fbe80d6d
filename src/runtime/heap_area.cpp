#include "heap_area.h"

#include "page_map.h"

#include <atomic>

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

// The areas that ended threads have left, each a transfer of ownership under the lock.
struct AreaStore {
  Lock lock;
  AreaCache areas;
  std::atomic<bool> holdsAreas; // read without the lock: a missed area costs a new one, no more
};
constinit AreaStore store = {{}, {0, kMaxKeptBytes, 0, {}}, false};

void *takeStored(uint32_t grade) {
  if (!store.holdsAreas.load(std::memory_order_relaxed)) return nullptr;
  LockGuard guard(store.lock);
  void *area = takeKept(store.areas, grade);
  store.holdsAreas.store(store.areas.keptBytes != 0, std::memory_order_relaxed);
  return area;
}

bool putIntoStore(void *area, uint32_t grade) {
  LockGuard guard(store.lock);
  if (!hasRoomFor(store.areas, grade)) return false;
  keepArea(store.areas, area, grade);
  store.holdsAreas.store(true, std::memory_order_relaxed);
  return true;
}

} // namespace

void *takeNewArea(uint32_t bytes, uint32_t grade) {
  if (grade != kNoGrade)
    if (void *area = takeStored(grade)) return area;
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
  if (void *area = takeStored(kAligned)) return area;
  return processHeap.load(std::memory_order_relaxed)->takeAligned(kBareSlabBytes, kSlabAlignment);
}

void giveAlignedArea(AreaCache &cache, void *area) { giveAreaWithoutRoom(cache, area, kAligned); }

void closeAreaCache(AreaCache &cache) {
  cache.maxKeptBytes = 0;
  for (uint32_t grade = 0; grade <= kAligned; ++grade)
    while (void *area = takeKept(cache, grade))
      if (!putIntoStore(area, grade)) giveBack(area, grade);
}

void emptyAreaStore() {
  LockGuard guard(store.lock);
  for (uint32_t grade = 0; grade <= kAligned; ++grade)
    while (void *area = takeKept(store.areas, grade)) giveBack(area, grade);
  store.holdsAreas.store(false, std::memory_order_relaxed);
}

} // namespace torvane

#include "heap_slab.h"

#include "heap_list.h"
#include "heap_state.h"
#include "heap_thread.h"

namespace torvane {

namespace {

constinit SizeClass noClass{};

constexpr Slab makeNoSlab() {
  Slab slab{};
  slab.ownClass = &noClass;
  return slab;
}

} // namespace

constinit Slab noSlab = makeNoSlab();

namespace {

void *takeSlabMemory(SizeClass &sizeClass) {
  AreaCache &areas = areasOf(sizeClass.heap);
  return hasCellHeaders(sizeClass)
             ? takeArea(areas, sizeClass.slabDataBytes, gradeOf(sizeClass.slabDataBytes))
             : takeAlignedArea(areas);
}

void giveSlabMemory(SizeClass &sizeClass, void *memory) {
  AreaCache &areas = areasOf(sizeClass.heap);
  if (hasCellHeaders(sizeClass))
    giveArea(areas, memory, gradeOf(sizeClass.slabDataBytes));
  else
    giveAlignedArea(areas, memory);
}

// All cells of the area in address order; the area's remainder stays idle.
CellLink chainCells(void *memory, uint32_t cellBytes, uint32_t count) {
  char *at = static_cast<char *>(memory);
  for (uint32_t rest = count - 1; rest != 0; --rest, at += cellBytes)
    reinterpret_cast<FreeCell *>(at)->next = CellLink(reinterpret_cast<FreeCell *>(at + cellBytes), rest);
  reinterpret_cast<FreeCell *>(at)->next = CellLink();
  return CellLink(static_cast<FreeCell *>(memory), count);
}

bool enterSlab(const SizeClass &sizeClass, const void *memory, Slab *entry) {
  return hasCellHeaders(sizeClass) || enterInPageMap(currentState(), memory, sizeClass.slabDataBytes, entry);
}

void fillHeader(Slab *slab, SizeClass &sizeClass, void *memory) {
  slab->sizeClass = &sizeClass;
  slab->pendingNext = slab;
  slab->freeHead = chainCells(memory, sizeClass.objectBytes, sizeClass.objectsPerSlab);
  slab->remoteHead = nullptr;
  slab->memory = memory;
  slab->ownClass = &sizeClass;
  slab->objectBytes = sizeClass.objectBytes;
}

void forgetHotSlab(HeapRecords &records, const Slab *slab) {
  // An area that is not aligned to its size reaches into two places.
  const auto memory = reinterpret_cast<uintptr_t>(slab->memory);
  for (const uintptr_t address : {memory, memory + kBareSlabBytes - 1}) {
    HotSlab &entry = hotSlabFor(records, address);
    if (entry.memory == memory) entry = {kNoHotMemory, nullptr};
  }
  if (records.lastSlab.memory == memory) records.lastSlab = {kNoHotMemory, nullptr};
}

// Gives back a slab that is on no list.
void releaseSlab(Slab *slab) {
  SizeClass &sizeClass = *slab->sizeClass;
  forgetHotSlab(recordsOf(sizeClass.heap), slab);
  enterSlab(sizeClass, slab->memory, nullptr);
  giveSlabMemory(sizeClass, slab->memory);
  sizeClass.heap->heldBytes -= slabTotalBytes(sizeClass);
  processHeap.load(std::memory_order_relaxed)->giveAligned(slab);
}

// Where small allocations find the queue's first slab.
void announceHead(SizeClass &sizeClass) {
  if (hasCellHeaders(sizeClass)) return;
  HeapRecords &records = recordsOf(sizeClass.heap);
  Slab *const head = sizeClass.partialSlabs != nullptr ? sizeClass.partialSlabs : &noSlab;
  const auto number = static_cast<uint32_t>(&sizeClass - records.sizeClasses);
  for (uint32_t eighth = cellBytesOfClass(number - 1) / 8 + 1; eighth <= sizeClass.objectBytes / 8; ++eighth)
    records.readySlabs[eighth] = head;
}

// After each change of a partial queue or of the spare. Only the first slab of a queue is ever alone.
void queueChanged(SizeClass &sizeClass) {
  Slab *head = sizeClass.partialSlabs;
  if (head != nullptr) {
    const bool staysWhenFree = head->next == nullptr && sizeClass.spareSlab == nullptr;
    head->retireCount = staysWhenFree ? kNeverRetire : sizeClass.objectsPerSlab;
  }
  announceHead(sizeClass);
}

void takeOffPartial(Slab *slab) {
  SizeClass &sizeClass = *slab->sizeClass;
  unlinkFromQueue(sizeClass.partialSlabs, slab);
  --sizeClass.partialCount;
  queueChanged(sizeClass);
}

// At the end of the queue, so that a slab gathers free cells until its turn comes; at the front it would lose
// each cell again at once, and move between the lists with every cell. An idle slab in place gives way:
// cells are taken from slabs in use first.
void putOnPartial(Slab *slab) {
  SizeClass &sizeClass = *slab->sizeClass;
  Slab *head = sizeClass.partialSlabs;
  if (head != nullptr && isWhollyFree(head)) {
    takeOffPartial(head);
    sizeClass.spareSlab = head;
  }
  slab->retireCount = sizeClass.objectsPerSlab;
  pushBack(sizeClass.partialSlabs, slab);
  ++sizeClass.partialCount;
  queueChanged(sizeClass);
}

// Counts the cells still in use as free, so that the release of the slab leaves the counters true.
void abandonCells(Slab *slab) {
  const SizeClass &sizeClass = *slab->sizeClass;
  const uint32_t live = sizeClass.objectsPerSlab - slab->freeHead.count();
  sizeClass.heap->usedBytes.subtract(live * sizeClass.objectBytes);
}

} // namespace

Slab *newSlab(SizeClass &sizeClass) {
  const ProcessHeap &source = *processHeap.load(std::memory_order_relaxed);
  auto *slab = static_cast<Slab *>(
      source.takeAligned(sizeof(Slab), alignof(Slab) > sizeof(void *) ? alignof(Slab) : sizeof(void *)));
  if (slab == nullptr) return nullptr;
  void *memory = takeSlabMemory(sizeClass);
  if (memory == nullptr || !CellLink::reaches(memory, sizeClass.slabDataBytes) ||
      !enterSlab(sizeClass, memory, slab)) {
    if (memory != nullptr) giveSlabMemory(sizeClass, memory);
    source.giveAligned(slab);
    return nullptr;
  }
  fillHeader(slab, sizeClass, memory);
  putOnPartial(slab);
  sizeClass.heap->heldBytes += slabTotalBytes(sizeClass);
  return slab;
}

Slab *takeSpareSlab(SizeClass &sizeClass) {
  Slab *slab = sizeClass.spareSlab;
  if (slab == nullptr) return nullptr;
  sizeClass.spareSlab = nullptr;
  putOnPartial(slab);
  return slab;
}

void retireSlab(Slab *slab) {
  SizeClass &sizeClass = *slab->sizeClass;
  takeOffPartial(slab);
  if (sizeClass.spareSlab != nullptr) return releaseSlab(slab);
  sizeClass.spareSlab = slab;
  queueChanged(sizeClass);
}

void *moveToFull(Slab *slab, void *block) {
  takeOffPartial(slab);
  pushFront(slab->sizeClass->fullSlabs, slab);
  return block;
}

void moveToPartial(Slab *slab) {
  unlink(slab->sizeClass->fullSlabs, slab);
  putOnPartial(slab);
}

void releaseIdleSlab(SizeClass &sizeClass) {
  Slab *slab = sizeClass.partialSlabs;
  if (slab != nullptr && isWhollyFree(slab)) {
    takeOffPartial(slab);
    releaseSlab(slab);
  }
  if (sizeClass.spareSlab == nullptr) return;
  releaseSlab(sizeClass.spareSlab);
  sizeClass.spareSlab = nullptr;
  queueChanged(sizeClass);
}

void releaseAllSlabs(SizeClass &sizeClass) {
  while (sizeClass.fullSlabs != nullptr) moveToPartial(sizeClass.fullSlabs);
  while (Slab *slab = sizeClass.partialSlabs) {
    takeOffPartial(slab);
    abandonCells(slab);
    releaseSlab(slab);
  }
  releaseIdleSlab(sizeClass);
}

} // namespace torvane

#include "heap_walker.h"

#include "runtime/heap_remote.h"
#include "runtime/heap_slab.h"
#include "runtime/heap_state.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace torvane::test {

namespace {

// What is wrong, or empty. The first finding stays.
struct Findings {
  std::string text;
  void expect(bool holds, const std::string &what) {
    if (!holds && text.empty()) text = what;
  }
};

struct Totals {
  std::set<const Slab *> slabs; // all of the heap
  uint32_t freeBytes = 0;
  uint32_t liveBytes = 0;
};

// Marks a cell that is not live; it must be the slab's and not marked yet.
bool markCell(const Slab *slab, const FreeCell *cell, std::vector<bool> &marked, Findings &findings) {
  const uint32_t bytes = slab->sizeClass->objectBytes;
  const auto offset =
      static_cast<size_t>(reinterpret_cast<const char *>(cell) - static_cast<char *>(slab->memory));
  const size_t index = offset / bytes;
  const bool fits = offset % bytes == 0 && index < marked.size() && !marked[index];
  findings.expect(fits, "a free cell is not its slab's, or is free twice");
  if (fits) marked[index] = true;
  return fits;
}

// Marks the cells of one list. Returns their number.
uint32_t markCells(const Slab *slab, const FreeCell *head, std::vector<bool> &marked, Findings &findings) {
  uint32_t count = 0;
  for (const FreeCell *cell = head; cell != nullptr && markCell(slab, cell, marked, findings);
       cell = cell->next.cell())
    ++count;
  return count;
}

// The same for the slab's cells in the class's box.
uint32_t markBoxedCells(const Slab *slab, SizeClass &sizeClass, std::vector<bool> &marked,
                        Findings &findings) {
  const RemoteBox *box = remoteSideOf(sizeClass).filling;
  uint32_t count = 0;
  for (uint32_t i = 0; box != nullptr && i < box->count; ++i)
    if (slabOfCell(sizeClass, box->cells[i]) == slab)
      count += markCell(slab, box->cells[i], marked, findings);
  return count;
}

bool hasRemoteCells(SizeClass &sizeClass, const Slab *slab) {
  if (slab->remoteHead != nullptr) return true;
  const RemoteBox *box = remoteSideOf(sizeClass).filling;
  return box != nullptr && std::any_of(box->cells, box->cells + box->count, [&](const FreeCell *cell) {
           return slabOfCell(sizeClass, cell) == slab;
         });
}

void checkLiveHeaders(const Slab *slab, const std::vector<bool> &free, Findings &findings) {
  const char *cell = static_cast<const char *>(slab->memory);
  for (size_t i = 0; i < free.size(); ++i, cell += slab->sizeClass->objectBytes)
    if (!free[i])
      findings.expect(*reinterpret_cast<const uintptr_t *>(cell) == reinterpret_cast<uintptr_t>(slab) + 1,
                      "a live cell does not name its slab");
}

void checkPageMap(const Slab *slab, Findings &findings) {
  const char *memory = static_cast<const char *>(slab->memory);
  for (uint32_t at = 0; at < slab->sizeClass->slabDataBytes; at += 4096)
    findings.expect(slabOfAddress(currentState()->pageMap, memory + at) == slab,
                    "a page of a slab is not in the page map");
  findings.expect(reinterpret_cast<uintptr_t>(memory) % kSlabAlignment == 0, "a slab is not aligned");
}

// Returns the remotely freed bytes of the slab.
uint32_t checkSlab(const Slab *slab, SizeClass &sizeClass, Totals &totals, Findings &findings) {
  findings.expect(slab->sizeClass == &sizeClass, "a slab is on a list of another class");
  findings.expect(slab->objectBytes == sizeClass.objectBytes, "a slab's objectBytes is not its class's");
  findings.expect(slab->ownClass == &sizeClass, "a slab's two classes differ");
  std::vector<bool> marked(sizeClass.objectsPerSlab);
  const uint32_t freeCells = markCells(slab, slab->freeHead.cell(), marked, findings);
  findings.expect(freeCells == slab->freeHead.count(),
                  "a count in freeHead is not the length of the free list");
  const uint32_t remote =
      markCells(slab, slab->remoteHead, marked, findings) + markBoxedCells(slab, sizeClass, marked, findings);
  if (hasCellHeaders(sizeClass))
    checkLiveHeaders(slab, marked, findings);
  else
    checkPageMap(slab, findings);
  totals.liveBytes += (sizeClass.objectsPerSlab - freeCells) * sizeClass.objectBytes;
  totals.freeBytes +=
      slabTotalBytes(sizeClass) - (sizeClass.objectsPerSlab - freeCells) * sizeClass.objectBytes;
  return remote * sizeClass.objectBytes;
}

// `before` is what the first record's prev holds: null, or in a queue the last record.
template <class Record>
std::vector<Record *> walkList(Record *head, Findings &findings, const Record *before = nullptr) {
  std::vector<Record *> records;
  for (Record *record = head; record != nullptr && findings.text.empty(); record = record->next) {
    findings.expect(record->prev == before, "a list's prev link is wrong");
    before = record;
    records.push_back(record);
  }
  return records;
}

void checkPending(SizeClass &sizeClass, const std::vector<Slab *> &slabs, Findings &findings) {
  std::set<const Slab *> pending;
  for (const Slab *slab = sizeClass.pendingSlabs; slab != nullptr; slab = slab->pendingNext)
    if (!pending.insert(slab).second) return findings.expect(false, "the pending list runs in a circle");
  for (const Slab *slab : slabs) {
    findings.expect((pending.erase(slab) != 0) == hasRemoteCells(sizeClass, slab),
                    "a slab is pending without remote cells, or has some and is not");
    if (!hasRemoteCells(sizeClass, slab))
      findings.expect(slab->pendingNext == slab, "an idle pendingNext is not the slab itself");
  }
  findings.expect(pending.empty(), "a pending slab is on no list");
}

void checkIdleSlab(const SizeClass &sizeClass, const std::vector<Slab *> &partial, Findings &findings) {
  if (sizeClass.spareSlab != nullptr)
    findings.expect(isWhollyFree(sizeClass.spareSlab), "the spare slab has live cells");
  for (const Slab *slab : partial) {
    findings.expect(!slab->freeHead.isNull(), "a slab without free cells is on the partial list");
    if (isWhollyFree(slab))
      findings.expect(partial.size() == 1 && sizeClass.spareSlab == nullptr,
                      "a second wholly free slab is kept");
  }
}

void checkRetireCounts(const SizeClass &sizeClass, const std::vector<Slab *> &partial, Findings &findings) {
  const bool alone = partial.size() == 1 && sizeClass.spareSlab == nullptr;
  for (const Slab *slab : partial)
    findings.expect(slab->retireCount == (alone ? kNeverRetire : sizeClass.objectsPerSlab),
                    "a slab retires at the wrong count");
}

void checkReadySlabs(SizeClass &sizeClass, Findings &findings) {
  if (hasCellHeaders(sizeClass)) return;
  const Slab *head = sizeClass.partialSlabs != nullptr ? sizeClass.partialSlabs : &noSlab;
  for (uint32_t eighth = 1; eighth <= kMaxBareCellBytes / 8; ++eighth)
    if (cellBytesOfClass(classOfSize[eighth]) == sizeClass.objectBytes)
      findings.expect(recordsOf(sizeClass.heap).readySlabs[eighth] == head,
                      "a ready slab is not the queue's first");
}

void checkClass(SizeClass &sizeClass, ThreadHeap *heap, Totals &totals, Findings &findings) {
  LockGuard guard(sizeClass.lock);
  findings.expect(sizeClass.heap == heap, "a class belongs to another heap");
  std::vector<Slab *> slabs = walkList(sizeClass.fullSlabs, findings);
  for (const Slab *slab : slabs) findings.expect(slab->freeHead.isNull(), "a full slab has free cells");
  const Slab *last = sizeClass.partialSlabs == nullptr ? nullptr : sizeClass.partialSlabs->prev;
  const std::vector<Slab *> partial = walkList<Slab>(sizeClass.partialSlabs, findings, last);
  findings.expect(partial.empty() || partial.back() == last, "the partial queue does not know its last slab");
  findings.expect(partial.size() == sizeClass.partialCount, "partialCount is wrong");
  checkIdleSlab(sizeClass, partial, findings);
  checkRetireCounts(sizeClass, partial, findings);
  checkReadySlabs(sizeClass, findings);
  slabs.insert(slabs.end(), partial.begin(), partial.end());
  if (sizeClass.spareSlab != nullptr) slabs.push_back(sizeClass.spareSlab);
  findings.expect(std::set<Slab *>(slabs.begin(), slabs.end()).size() == slabs.size(),
                  "a slab is on two lists");
  totals.slabs.insert(slabs.begin(), slabs.end());
  uint32_t remoteBytes = 0;
  for (const Slab *slab : slabs) remoteBytes += checkSlab(slab, sizeClass, totals, findings);
  findings.expect(remoteBytes == sizeClass.remoteBytes, "remoteBytes is wrong");
  checkPending(sizeClass, slabs, findings);
}

void checkLargeBlocks(ThreadHeap *heap, Totals &totals, Findings &findings) {
  LockGuard guard(heap->largeLock);
  std::set<const LargeBlock *> deferred;
  for (const LargeBlock *block = heap->deferredLarge; block != nullptr; block = block->deferredNext)
    if (!deferred.insert(block).second) return findings.expect(false, "deferredLarge runs in a circle");
  for (const LargeBlock *block : walkList(heap->largeBlocks, findings)) {
    findings.expect(block->heap == heap && block->totalBytes % 2 == 0, "a large block's header is wrong");
    if (deferred.erase(block) == 0)
      findings.expect(block->deferredNext == block, "deferredNext is not the block itself");
    totals.liveBytes += block->totalBytes;
  }
  findings.expect(deferred.empty(), "a deferred block is not the heap's");
}

// A hot slab that was released would take in cells of whoever has its area now.
void checkHotSlab(const HotSlab &entry, const Totals &totals, Findings &findings) {
  if (entry.slab == nullptr) return findings.expect(entry.memory == kNoHotMemory, "memory of no slab is hot");
  findings.expect(totals.slabs.count(entry.slab) == 1, "a hot slab is not the heap's");
  if (!findings.text.empty()) return;
  findings.expect(entry.memory == reinterpret_cast<uintptr_t>(entry.slab->memory) &&
                      !hasCellHeaders(*entry.slab->sizeClass),
                  "hot memory is not its slab's");
}

void checkAreas(const AreaCache &areas, Findings &findings) {
  findings.expect(areas.keptBytes <= areas.maxKeptBytes, "more areas are kept than allowed");
  bool any = false;
  for (const KeptArea *list : areas.lists) any |= list != nullptr;
  findings.expect(any == (areas.keptBytes != 0), "keptBytes is wrong");
}

testing::AssertionResult asResult(const Findings &findings) {
  if (findings.text.empty()) return testing::AssertionSuccess();
  return testing::AssertionFailure() << findings.text;
}

uint32_t countMapped(const PageMapShape<kNarrowAddresses>::Leaf *leaf) {
  uint32_t count = 0;
  for (const auto &entry : leaf->entries) count += entry.load() != nullptr;
  return count;
}

template <class Table> uint32_t countMapped(const Table *table) {
  uint32_t count = 0;
  for (const auto &entry : table->entries)
    if (entry.load() != nullptr) count += countMapped(entry.load());
  return count;
}

uint32_t bareSlabs(const SizeClass &sizeClass) {
  if (hasCellHeaders(sizeClass)) return 0;
  Findings ignored;
  return static_cast<uint32_t>(walkList(sizeClass.fullSlabs, ignored).size()) + sizeClass.partialCount +
         (sizeClass.spareSlab != nullptr);
}

} // namespace

testing::AssertionResult isValidHeap(ThreadHeap *heap, uint32_t externalBytes) {
  Findings findings;
  Totals totals;
  for (uint32_t number = 1; number <= kClassCount; ++number)
    checkClass(*heap->classes[number], heap, totals, findings);
  checkLargeBlocks(heap, totals, findings);
  checkHotSlab(recordsOf(heap).lastSlab, totals, findings);
  for (const HotSlab &entry : recordsOf(heap).hotSlabs) checkHotSlab(entry, totals, findings);
  checkAreas(areasOf(heap), findings);
  const uint32_t used = kHeapOwnBytes + totals.liveBytes + externalBytes;
  findings.expect(freeBytesOf(heap) == totals.freeBytes, "freeBytes is wrong");
  findings.expect(heap->usedBytes.value() == used, "usedBytes is wrong");
  findings.expect(heap->peakBytes.value() >= used, "usedBytes is above its peak");
  findings.expect(heap->noticeBytes == (heap->limitBytes == 0 ? heap->peakBytes.value() + 1 : 0),
                  "noticeBytes is not what peak and limit say");
  findings.expect(recordsOf(heap).readySlabs[0] == &noSlab && noSlab.freeHead.isNull(),
                  "size 0 finds a slab");
  return asResult(findings);
}

testing::AssertionResult isValidHere(uint32_t externalBytes) {
  return !hasHeap() ? testing::AssertionSuccess() : isValidHeap(threadHeap, externalBytes);
}

testing::AssertionResult isValidState() {
  Findings findings;
  AllocatorState *state = currentState();
  uint32_t mapped = 0;
  for (ThreadHeap *heap : walkList(state->threads, findings)) {
    const testing::AssertionResult valid = isValidHeap(heap);
    if (!valid) return valid;
    for (uint32_t number = 1; number <= kClassCount; ++number) mapped += bareSlabs(*heap->classes[number]);
  }
  const uint32_t entriesPerSlab = kBareSlabBytes >> kPageMapShift;
  findings.expect(countMapped(state->pageMap) == mapped * entriesPerSlab,
                  "the page map holds more than the slabs");
  return asResult(findings);
}

int64_t pageMapTables() {
  using Leaf = PageMapShape<kNarrowAddresses>::Leaf; // every level below the top is as large
  return (currentState()->pageMapBytes - int64_t{sizeof(PageMapTop)}) / int64_t{sizeof(Leaf)};
}

} // namespace torvane::test

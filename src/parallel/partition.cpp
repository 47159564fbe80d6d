#include "partition.h"

#include "../runtime/memory.h"

#include <algorithm>

namespace torvane {

namespace {

ParallelPartition *newPartition(ParallelPartition content) {
  auto *partition = static_cast<ParallelPartition *>(allocate(sizeof(ParallelPartition), 0, kFatal));
  *partition = content;
  return partition;
}

int64_t raisedToMultiple(int64_t value, int64_t of) { return (value + of - 1) / of * of; }

// A size of at least one grain, and whole grains.
int64_t fittedSize(int64_t size, int64_t grain) { return size < grain ? grain : size - size % grain; }

int64_t pieceCount(mint kind, int64_t length, int64_t size, int64_t workers) {
  switch (kind) {
  case kAtLeast:
    return workers;
  case kOfSize:
    return std::max<int64_t>(length / size, 1);
  case kCount:
    return size;
  default:
    return 1;
  }
}

} // namespace

ParallelPartition *ParallelPartition_new(mint kind, mint size) {
  return newPartition({kind, std::max(size, 1), 0});
}

ParallelPartition *ParallelPartition_serial() { return newPartition({kAtLeast, 1, 1}); }

int64_t PieceCutter::share(int64_t parts) const {
  return raisedToMultiple(std::max<int64_t>((last - next) / parts, 1), grain);
}

// Shrinking pieces never run out by their number: what is left is shared again until nothing is.
int64_t PieceCutter::nextLength() {
  if (rule == kByIndex) return size;
  if (kind == kShrinking) {
    piecesLeft = 2;
    return std::max(share(workers), size);
  }
  return kind == kAtLeast ? std::max(share(piecesLeft), size) : share(piecesLeft);
}

Piece PieceCutter::cut() {
  const int64_t first = next, length = nextLength();
  --piecesLeft;
  ++index;
  next = rule == kByIndex && index == workers ? last : std::min(first + length, last);
  return {static_cast<mint>(first), static_cast<mint>(next)};
}

bool cutByPartition(PieceCutter *cutter, Piece range, mint grain, const ParallelPartition *partition,
                    mint workers) {
  const int64_t length = int64_t{range.last} - range.first;
  *cutter = {};
  cutter->rule = PieceCutter::kEven;
  cutter->next = range.first;
  cutter->last = range.last;
  cutter->grain = grain;
  cutter->workers = workers;
  if (partition != nullptr) {
    if (length / grain <= partition->size) return false;
    cutter->kind = partition->kind;
    cutter->size = fittedSize(partition->size, grain);
  }
  cutter->piecesLeft = pieceCount(cutter->kind, length, cutter->size, workers);
  return true;
}

// Deliberate: the pieces start at multiples of their length and not at range.first, and their length is no
// whole number of grains but count / workers and the rest of that by the grain. Callers pass ranges from 0
// and rely on piece k of the range being that of worker k. The rest may use the range up before the last
// worker's turn.
void cutByIndex(PieceCutter *cutter, Piece range, mint grain, mint workers) {
  const int64_t even = std::max<int64_t>((int64_t{range.last} - range.first) / workers, 1);
  *cutter = {};
  cutter->rule = PieceCutter::kByIndex;
  cutter->last = range.last;
  cutter->size = even + even % grain;
  cutter->piecesLeft = cutter->workers = workers;
}

} // namespace torvane

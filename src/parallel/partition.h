// How the range of a parallel loop is cut into pieces. Pieces are cut in ascending order, each when somebody
// is free to carry it; which pieces there are depends on the range, the grain, the partition and the number
// of workers alone, never on who carries them or when.
#pragma once

#include "../runtime/types.h"

namespace torvane {

enum PartitionKind : mint {
  kAtLeast = 1, // even pieces, one a worker, but none below `size`
  kOfSize = 2,  // pieces of `size` or a little more
  kCount = 3,   // `size` even pieces
  kShrinking =
      4, // each piece the share of one worker in what is left, but none below `size`: large pieces first
};

// `size` counts indices (kCount: pieces). A loop runs serially unless (last - first) / grain exceeds `size`,
// and a size below the grain becomes the grain: {kOfSize, 1} asks for pieces of a grain each. A piece is its
// share of what is left, raised to whole grains, so that the first ones are longer where the range is no
// multiple.
struct ParallelPartition {
  mint kind;
  mint size;
  mint forceSerial;
};

// New partitions, which the caller frees with torvane::free; a size below 1 becomes 1. The serial one makes
// every loop run on its caller's thread.
ParallelPartition *ParallelPartition_new(mint kind, mint size);
ParallelPartition *ParallelPartition_serial();

struct Piece {
  mint first, last; // last exclusive
};

// What is left of a range. Wide fields: a range may span all of mint.
struct PieceCutter {
  enum Rule { kNothing, kEven, kByIndex } rule = kNothing;
  mint kind = kAtLeast; // no partition is the same as even pieces of at least 1
  int64_t next = 0, last = 0;
  int64_t grain = 1, size = 1;
  int64_t piecesLeft = 0;
  int64_t workers = 1;
  int64_t index = 0; // of the next piece

  bool isEmpty() const { return rule == kNothing || next >= last || piecesLeft <= 0; }
  Piece cut(); // the next piece, not empty; only while something is left

private:
  int64_t share(int64_t parts) const;
  int64_t nextLength();
};

// False: the partition asks for the serial path, the range being too short for it. `partition` may be null.
bool cutByPartition(PieceCutter *cutter, Piece range, mint grain, const ParallelPartition *partition,
                    mint workers);

// One piece a worker, all of one length, from 0 on; see the body.
void cutByIndex(PieceCutter *cutter, Piece range, mint grain, mint workers);

} // namespace torvane
